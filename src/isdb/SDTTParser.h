#ifndef ZUM_ISDB_SDTTPARSER_H
#define ZUM_ISDB_SDTTPARSER_H

#include <list>
#include <map>
#include <memory>
#include <utility>
#include <vector>

#include <zum-platform/ZUMHandle.h>

#include "../core/BaseSection.h"
#include "../core/DescriptorHash.h"
#include "../core/SectionParser.h"

// One download content of a software download trigger: versions, schedule and descriptors.
class ZUM_EXPORT SDContent : public TCDescriptorHashOwner {
public:
    struct TTSchedule {
        // Seconds since 1980-01-06 00:00:00.
        unsigned int startTime = 0;
        // The three BCD bytes of hours, minutes and seconds as one 24-bit number.
        unsigned int duration = 0;
    };

    explicit SDContent(const ZUMHandle& handle);

    // False when the head, the schedule or the descriptors do not fit in
    // `length`; `consumed` then tells how far the content was read.
    bool Parse(const unsigned char* data, int length, int& consumed);

    unsigned char Group() const { return m_group; }
    unsigned short TargetVersion() const { return m_targetVersion; }
    unsigned short NewVersion() const { return m_newVersion; }
    // 0 or 1; -1 while the stream gave no such value.
    int DownloadLevel() const { return m_downloadLevel; }
    int VersionIndicator() const { return m_versionIndicator; }
    unsigned short ContentDescriptionLength() const { return m_contentDescriptionLength; }
    unsigned short ScheduleDescriptionLength() const { return m_scheduleDescriptionLength; }
    unsigned char ScheduleTimeShift() const { return m_scheduleTimeShift; }
    const std::list<TTSchedule>& Schedule() const { return m_schedule; }

private:
    ZUMHandle m_handle;
    unsigned char m_group = 0;
    unsigned short m_targetVersion = 0;
    unsigned short m_newVersion = 0;
    int m_downloadLevel = -1;
    int m_versionIndicator = 0;
    unsigned short m_contentDescriptionLength = 0;
    unsigned short m_scheduleDescriptionLength = 0;
    unsigned char m_scheduleTimeShift = 0;
    std::list<TTSchedule> m_schedule;
};

// The contents announced for one maker and model.
class ZUM_EXPORT TCSDTTInstance : public TCBaseSection {
public:
    explicit TCSDTTInstance(const ZUMHandle& handle);
    ~TCSDTTInstance() override;

    void DeleteAll() override;
    // `length` counts the CRC field. False for a repeated, ignored or broken section.
    bool Parse(const unsigned char* data, int length, char version, unsigned char section, unsigned char lastSection,
               unsigned int crc);

    unsigned short TransportStreamId() const { return m_transportStreamId; }
    unsigned short OriginalNetworkId() const { return m_originalNetworkId; }
    unsigned short ServiceId() const { return m_serviceId; }
    unsigned char NumOfContents() const { return m_numOfContents; }
    int NumOfContent() const { return static_cast<int>(m_contents.size()); }
    SDContent* ContentOfIndex(unsigned int index) const;

private:
    bool m_Fail(int site);

    ZUMHandle m_handle;
    unsigned short m_transportStreamId = 0;
    unsigned short m_originalNetworkId = 0;
    unsigned short m_serviceId = 0;
    unsigned char m_numOfContents = 0;
    std::vector<std::unique_ptr<SDContent>> m_contents;
};

// Software download trigger table 0xC3, one instance per maker_id and model_id.
class ZUM_EXPORT TCSDTTParser : public TCSectionParser {
public:
    explicit TCSDTTParser(const ZUMHandle& handle, unsigned char tableId = 0xC3);
    ~TCSDTTParser() override;

    TCSDTTInstance* SDTTInstance(unsigned short id) const;
    int NumOfSDTTInstance() const { return static_cast<int>(m_instances.size()); }

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;

private:
    std::map<unsigned short, std::unique_ptr<TCSDTTInstance>> m_instances;
};

#endif
