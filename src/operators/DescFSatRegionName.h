#ifndef ZUM_OPERATORS_DESCFSATREGIONNAME_H
#define ZUM_OPERATORS_DESCFSATREGIONNAME_H

// Freesat's names and groups: region names (0xD4), service groups (0xD5),
// service group names (0xD8) and short service names (0xD9). The name
// lookups answer 0 for the language asked for, 1 for a substitute, 2 for nothing.

#include <list>
#include <vector>

#include "../core/BaseDesc.h"

class ZUM_EXPORT TCDescFSatRegionName : public TCBaseDesc {
public:
    struct RegionName {
        unsigned int regionId;
        unsigned int language;
        // As sent; the run holds what the body had of it.
        unsigned int nameLength;
        TTRawRun name;
    };

    TCDescFSatRegionName() : TCBaseDesc(0xD4) {}
    ~TCDescFSatRegionName() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    virtual bool ContainsRegionID(unsigned short regionId) const;
    virtual int GetRegionName(unsigned int regionId, unsigned int language, unsigned char* buffer,
                              unsigned int& size) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    std::vector<RegionName> m_regionNames;
};

class ZUM_EXPORT TCDescFSatServiceGroup : public TCBaseDesc {
public:
    struct ServiceGroup {
        unsigned char firstFlag = 0;
        unsigned char secondFlag = 0;
        unsigned int groupId = 0;
        std::list<unsigned short> freesatIds;
    };

    TCDescFSatServiceGroup() : TCBaseDesc(0xD5) {}
    ~TCDescFSatServiceGroup() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned int NumOfEntries() const { return static_cast<unsigned int>(m_groups.size()); }
    bool GetServiceGroup(unsigned int index, ServiceGroup& group) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    struct TTGroup {
        unsigned char firstFlag;
        unsigned char secondFlag;
        unsigned short groupId;
        TTRawRun freesatIds;
    };
    std::vector<TTGroup> m_groups;
};

class ZUM_EXPORT TCDescFSatServiceGroupName : public TCBaseDesc {
public:
    TCDescFSatServiceGroupName() : TCBaseDesc(0xD8) {}
    ~TCDescFSatServiceGroupName() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned int NumOfEntries() const { return static_cast<unsigned int>(m_groups.size()); }
    bool GroupType(unsigned int index, unsigned char& type) const;
    int GetEntry(unsigned int index, unsigned int language, unsigned short& groupId, unsigned char* buffer,
                 unsigned int& size) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    struct TTGroupName {
        unsigned char groupType;
        unsigned short groupId;
        // The whole entries of the language loop: language, name length, name.
        TTRawRun names;
    };
    std::vector<TTGroupName> m_groups;
};

class ZUM_EXPORT TCDescFSatShortServiceName : public TCBaseDesc {
public:
    TCDescFSatShortServiceName() : TCBaseDesc(0xD9) {}
    ~TCDescFSatShortServiceName() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    virtual int GetName(unsigned int language, unsigned char* buffer, unsigned short& size) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;
};

#endif
