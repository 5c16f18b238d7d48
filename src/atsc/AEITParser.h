#ifndef ZUM_ATSC_AEITPARSER_H
#define ZUM_ATSC_AEITPARSER_H

#include <map>
#include <memory>
#include <vector>

#include "../core/BaseSection.h"
#include "../core/SectionParser.h"

// One event of an aggregate event table; title and descriptors kept raw.
class ZUM_EXPORT TCAEITParserEvent {
public:
    // The record's length, or -1 when it runs past `size`.
    int Parse(const unsigned char* data, int size);
    // Copy of the raw title (a multiple string structure); *length is the
    // capacity on entry. Truncates and answers false when it does not fit.
    bool TitleText(unsigned char* text, int* length) const;

    unsigned short EventId() const { return m_eventId; }
    unsigned int StartTime() const { return m_startTime; }
    unsigned char ETMPresent() const { return m_etmPresent; }
    unsigned int Duration() const { return m_duration; }
    unsigned char TitleLength() const { return m_titleLength; }
    const unsigned char* Title() const { return m_title.empty() ? nullptr : m_title.data(); }
    const unsigned char* Descriptors() const { return m_descriptors.empty() ? nullptr : m_descriptors.data(); }
    unsigned short DescriptorsLength() const { return m_descriptorsLength; }

private:
    unsigned short m_eventId = 0;
    unsigned int m_startTime = 0;
    unsigned char m_etmPresent = 0;
    unsigned int m_duration = 0;
    unsigned char m_titleLength = 0;
    std::vector<unsigned char> m_title;
    std::vector<unsigned char> m_descriptors;
    unsigned short m_descriptorsLength = 0;
};

// The events of one source in one section, by event id.
class ZUM_EXPORT TCAEITParserSource {
public:
    explicit TCAEITParserSource(unsigned short sourceId) : m_sourceId(sourceId) {}
    // Bytes consumed, or -1 on an event that runs past `size`.
    int Parse(const unsigned char* data, int size);
    int SizeOfAEITParserEvent() const { return static_cast<int>(m_events.size()); }
    TCAEITParserEvent* AEITParserEvent(unsigned int index) const;
    unsigned short SourceId() const { return m_sourceId; }

private:
    std::map<int, std::unique_ptr<TCAEITParserEvent>> m_events;
    unsigned short m_sourceId;
};

using TCAEITSourceMap = std::map<int, std::unique_ptr<TCAEITParserSource>>;

// The table of one MGT tag: per section number, the sources it carried.
class ZUM_EXPORT TCAEITParserTag : public TCBaseSection {
public:
    explicit TCAEITParserTag(unsigned char tag) : m_tag(tag) {}
    void DeleteAll() override;
    ~TCAEITParserTag() override;

    // True when the section was read; IsValid() says whether the table is whole.
    bool Parse(const unsigned char* data, int size, int version, int section, int lastSection, unsigned int crc);
    const TCAEITSourceMap* AEITParserSourceList(int section) const;
    unsigned char NumSourcesInSection() const { return m_numSourcesInSection; }
    unsigned char Tag() const { return m_tag; }

private:
    unsigned char m_numSourcesInSection = 0;
    std::map<int, std::unique_ptr<TCAEITSourceMap>> m_sections;
    unsigned char m_tag;
};

// Aggregate event information table (0xD6) of the cable control channel:
// events of many sources per section, kept per MGT tag.
class ZUM_EXPORT TCAEITParser : public TCSectionParser {
public:
    explicit TCAEITParser(const ZUMHandle& handle);
    ~TCAEITParser() override;

    TCAEITParserTag* AEITParserTag(unsigned char tag) const;
    unsigned char LastTag() const { return m_lastTag; }

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;

private:
    std::map<int, std::unique_ptr<TCAEITParserTag>> m_tags;
    unsigned char m_lastTag = 0;
};

#endif
