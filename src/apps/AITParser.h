#ifndef ZUM_APPS_AITPARSER_H
#define ZUM_APPS_AITPARSER_H

#include <map>
#include <memory>
#include <vector>

#include <zum-platform/ZUMHandle.h>

#include "../core/BaseSection.h"
#include "../core/DescriptorHash.h"
#include "../core/SectionParser.h"

// One application of an AIT: its identifier, what the receiver is to do with
// it, and its application descriptors.
class ZUM_EXPORT TCAITApplication : public TCDescriptorHashOwner {
public:
    explicit TCAITApplication(const ZUMHandle& handle);
    ~TCAITApplication() override;

    virtual unsigned int OrganisationId() const { return m_organisationId; }
    virtual unsigned short ApplicationId() const { return m_applicationId; }
    virtual unsigned char ApplicationControlCode() const { return m_applicationControlCode; }
    virtual unsigned char ApplicationReservedData() const { return m_applicationReservedData; }
    // Returns application_descriptors_loop_length + 9.
    virtual int Parse(const unsigned char* data);
    // As above, reading the descriptor loop no further than `remaining` bytes from `data`.
    int Parse(const unsigned char* data, int remaining);
    // Copies the four fields and forks the descriptors.
    virtual TCAITApplication& operator=(const TCAITApplication& other);

    TCAITApplication(const TCAITApplication&) = delete;

private:
    ZUMHandle m_handle;
    unsigned int m_organisationId = 0;
    unsigned short m_applicationId = 0;
    unsigned char m_applicationControlCode = 0;
    unsigned char m_applicationReservedData = 0;
};

// The AIT sub-table of one application type: its common descriptors and its
// applications, collected over its sections.
class ZUM_EXPORT TCAitInstance : public TCBaseSection, public TCDescriptorHashOwner {
public:
    // With `other` not null: a deep copy of it, with a new, empty section tracker.
    TCAitInstance(unsigned char tableId, unsigned short extension, const TCAitInstance* other,
                  const ZUMHandle& handle);
    ~TCAitInstance() override;

    void DeleteAll() override;
    // `data` lies at common_descriptors_length; `size` runs to the end of the
    // section, CRC_32 included. `force` parses a section seen before.
    bool Parse(const unsigned char* data, int size, int version, int section, int lastSection, unsigned int crc,
               bool force);

    virtual int NumOfAITApplication() const { return static_cast<int>(m_applications.size()); }
    // Null past the end.
    virtual TCAITApplication* AITApplication(unsigned int index) const;
    // The first with both ids equal; null if none.
    virtual TCAITApplication* AITApplicationByAppIdent(unsigned int organisationId,
                                                       unsigned short applicationId) const;

    unsigned char TableId() const { return m_tableId; }
    unsigned char TestApplicationFlag() const { return m_testApplicationFlag; }
    unsigned short ApplicationType() const { return m_applicationType; }
    int LastVersionCheck() const { return m_lastVersionCheck; }

private:
    ZUMHandle m_handle;
    unsigned char m_tableId;
    unsigned char m_testApplicationFlag;
    unsigned short m_applicationType;
    int m_lastVersionCheck = -1;
    std::vector<std::unique_ptr<TCAITApplication>> m_applications;
};

// Application information table (0x74): one instance per application type.
class ZUM_EXPORT TCAITParser : public TCSectionParser {
public:
    TCAITParser(int tableId, const ZUMHandle& handle);
    ~TCAITParser() override;

    // The instance of the lowest application type; null if there is none.
    TCAitInstance* GetFirstInstance() const;
    TCAitInstance* FirstAITInstance() const { return GetFirstInstance(); }
    TCAitInstance* GetInstance(unsigned short type) const;
    TCAitInstance* AITInstance(unsigned short type) const { return GetInstance(type); }
    int NumOfAITInstance() const { return static_cast<int>(m_instances.size()); }
    // In order of application type; null past the end.
    TCAitInstance* AITInstanceOfIndex(unsigned int index) const;

    // DeleteAll, then a deep copy of each instance of `other`.
    virtual TCAITParser& operator=(const TCAITParser& other);
    virtual void DeleteAll();

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;

private:
    std::map<unsigned short, std::unique_ptr<TCAitInstance>> m_instances;
};

#endif
