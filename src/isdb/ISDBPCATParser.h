#ifndef ZUM_ISDB_ISDBPCATPARSER_H
#define ZUM_ISDB_ISDBPCATPARSER_H

#include <map>
#include <memory>
#include <vector>

#include <zum-platform/ZUMHandle.h>

#include "../core/BaseSection.h"
#include "../core/DescriptorHash.h"
#include "../core/SectionParser.h"

// One content version of a partial content announcement: its schedule and descriptors.
class ZUM_EXPORT TCISDBPCATContentVersion : public TCDescriptorHashOwner {
public:
    explicit TCISDBPCATContentVersion(const ZUMHandle& handle);

    // Always true; the schedule and loop are read as their lengths say.
    bool Parse(const unsigned char* data);
    // As above, reading no further than `length` bytes from `data`.
    bool Parse(const unsigned char* data, int length);

    unsigned short ContentVersion() const { return m_contentVersion; }
    unsigned short ContentMinorVersion() const { return m_contentMinorVersion; }
    int VersionIndicator() const { return m_versionIndicator; }
    int ContentDescriptorLength() const { return m_contentDescriptorLength; }
    int ScheduleDescriptionLength() const { return m_scheduleDescriptionLength; }
    // Seconds since 1980-01-06 00:00:00, one per schedule entry held.
    const std::vector<unsigned int>& StartTimes() const { return m_startTimes; }
    const std::vector<unsigned int>& Durations() const { return m_durations; }
    int ScheduleCount() const { return m_scheduleCount; }
    // Bytes in the stream: 8 + content descriptor length.
    int Size() const { return m_size; }

private:
    ZUMHandle m_handle;
    unsigned short m_contentVersion = 0;
    unsigned short m_contentMinorVersion = 0;
    int m_versionIndicator = 0;
    int m_contentDescriptorLength = 0;
    int m_scheduleDescriptionLength = 0;
    std::vector<unsigned int> m_startTimes;
    std::vector<unsigned int> m_durations;
    int m_scheduleCount = 0;
    int m_size = 0;
};

// The content versions of one service_id.
class ZUM_EXPORT TCISDBPCATInstance : public TCBaseSection {
public:
    explicit TCISDBPCATInstance(const ZUMHandle& handle);
    ~TCISDBPCATInstance() override;

    void DeleteAll() override;
    int CheckVersion(char version, unsigned char section, unsigned char lastSection, unsigned int crc)
    {
        return t_CheckVersion(version, section, lastSection, crc);
    }
    // `length` counts the CRC field.
    bool Parse(const unsigned char* data, int length, int checkResult);

    unsigned short TransportStreamId() const { return m_transportStreamId; }
    unsigned short OriginalNetworkId() const { return m_originalNetworkId; }
    unsigned int ContentId() const { return m_contentId; }
    unsigned char NumOfContentVersions() const { return m_numOfContentVersions; }
    int NumOfContentVersion() const { return static_cast<int>(m_records.size()); }
    TCISDBPCATContentVersion* ContentVersionOfIndex(unsigned int index) const;

private:
    ZUMHandle m_handle;
    unsigned short m_transportStreamId = 0;
    unsigned short m_originalNetworkId = 0;
    unsigned int m_contentId = 0;
    unsigned char m_numOfContentVersions = 0;
    std::vector<std::unique_ptr<TCISDBPCATContentVersion>> m_records;
};

// Partial content announcement table 0xC2, one instance per service_id.
class ZUM_EXPORT TCISDBPCATParser : public TCSectionParser {
public:
    explicit TCISDBPCATParser(const ZUMHandle& handle);
    ~TCISDBPCATParser() override;

    TCISDBPCATInstance* PCATInstance(unsigned short id) const;
    unsigned short CurrentId() const { return m_currentId; }
    int NumOfPCATInstance() const { return static_cast<int>(m_instances.size()); }

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;

private:
    unsigned short m_currentId = 0;
    std::map<unsigned short, std::unique_ptr<TCISDBPCATInstance>> m_instances;
};

#endif
