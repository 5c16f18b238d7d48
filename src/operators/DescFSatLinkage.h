#ifndef ZUM_OPERATORS_DESCFSATLINKAGE_H
#define ZUM_OPERATORS_DESCFSATLINKAGE_H

// Freesat's descriptors of where data and interactive content are found:
// tunnelled data (0xD0, 0xD1), linkage (0xD2), interactive storage (0xD6),
// info location (0xD7) and interactive restriction (0xDB).

#include <list>
#include <map>
#include <vector>

#include "../core/BaseDesc.h"

// Data type to component tag, a later pair replacing an earlier.
class ZUM_EXPORT TCDescFSatTunnelledData : public TCBaseDesc {
public:
    TCDescFSatTunnelledData() : TCBaseDesc(0xD0) {}
    ~TCDescFSatTunnelledData() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned int NumOfEntries() const { return m_numOfEntries; }
    bool ComponentTag(unsigned int dataType, unsigned int& tag) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    // The pairs are read from the raw copy; this counts their distinct data types.
    unsigned int m_numOfEntries = 0;
};

// One data type a byte.
class ZUM_EXPORT TCDescFSatAltTunnelledData : public TCBaseDesc {
public:
    TCDescFSatAltTunnelledData() : TCBaseDesc(0xD1) {}
    ~TCDescFSatAltTunnelledData() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned int NumOfEntries() const { return m_dataTypes.size(); }
    // 0 behind the end, after an assertion.
    unsigned int GetDataType(unsigned int index) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    // The data types are the payload's bytes, read on access.
    struct TTDataTypes {
        unsigned int count = 0;
        unsigned int size() const { return count; }
    } m_dataTypes;
};

class ZUM_EXPORT TCDescFSatLinkage : public TCBaseDesc {
public:
    struct Linkage {
        unsigned int firstId = 0;
        unsigned int secondId = 0;
        unsigned int thirdId = 0;
        std::list<unsigned int> dataTypes;
    };

    TCDescFSatLinkage() : TCBaseDesc(0xD2) {}
    ~TCDescFSatLinkage() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned int NumOfEntries() const { return static_cast<unsigned int>(m_linkages.size()); }
    bool GetLinkage(unsigned int index, Linkage& linkage) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    struct TTLinkage {
        unsigned short firstId;
        unsigned short secondId;
        unsigned short thirdId;
        TTRawRun dataTypes;
    };
    std::vector<TTLinkage> m_linkages;
};

// Room for interactive content: sizes by id, in two maps chosen by a bit.
class ZUM_EXPORT TCDescFSatInteractiveStorage : public TCBaseDesc {
public:
    TCDescFSatInteractiveStorage() : TCBaseDesc(0xD6) {}
    ~TCDescFSatInteractiveStorage() override;
    // Keeps everything: the fields are set anew by each decode.
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned int AllocationUnit() const { return m_allocationUnit; }
    void GetStorageAllocations(std::map<unsigned short, unsigned int>& first,
                               std::map<unsigned short, unsigned int>& second) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned int m_allocationUnit = 0;
    // The three-byte entries behind the unit byte, read on access.
    int m_entries = 0;
};

class ZUM_EXPORT TCDescFSatInfoLocation : public TCBaseDesc {
public:
    struct InfoLocation {
        unsigned int firstId = 0;
        unsigned int secondId = 0;
        unsigned int thirdId = 0;
    };

    TCDescFSatInfoLocation() : TCBaseDesc(0xD7) {}
    ~TCDescFSatInfoLocation() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned int NumOfEntries() const { return static_cast<unsigned int>(m_infoLocation.size()); }
    // All ids 0 behind the end, after an assertion.
    InfoLocation GetInfoLocation(unsigned int index) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    std::vector<InfoLocation> m_infoLocation;
};

// Services that interactive applications may not reach.
class ZUM_EXPORT TCDescFSatInteractiveRestriction : public TCBaseDesc {
public:
    TCDescFSatInteractiveRestriction() : TCBaseDesc(0xDB) {}
    ~TCDescFSatInteractiveRestriction() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    virtual void GetRestrictedServices(std::list<unsigned short>& services) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    // Service ids of two bytes each, read from the raw copy.
    int m_count = 0;
};

#endif
