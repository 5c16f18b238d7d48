#include "AEITParser.h"

#include <cstring>
#include <iterator>

#include "../core/ByteReader.h"
#include "../core/Diagnostics.h"
#include "../core/Log.h"

// ---------------------------------------------------------------- event

int TCAEITParserEvent::Parse(const unsigned char* data, int size)
{
    if (size < 10 || data[9] + 10 > size) {
        m_titleLength = 0;
        m_title.clear();
        ZUM_LOGD("TCAEITParserEvent::Parse error... total size = %d , parsed len = %d", size,
                 size < 10 ? 10 : data[9] + 10);
        return -1;
    }
    m_eventId = ReadBE16(data) & 0x3FFF;
    m_startTime = ReadBE32(data + 2);
    m_etmPresent = (data[6] >> 4) & 0x03;
    m_duration = ReadBE24(data + 6) & 0x0FFFFF;
    m_titleLength = data[9];
    m_title.assign(data + 10, data + 10 + m_titleLength);
    const int at = 10 + m_titleLength;
    const int descriptorsLength = at + 2 <= size ? (ReadBE16(data + at) & 0x0FFF) : -1;
    if (descriptorsLength < 0 || at + 2 + descriptorsLength > size) {
        m_descriptorsLength = 0;
        m_descriptors.clear();
        ZUM_LOGD("TCAEITParserEvent::Parse error... total size = %d , parsed len = %d", size,
                 at + 2 + (descriptorsLength < 0 ? 0 : descriptorsLength));
        return -1;
    }
    m_descriptorsLength = static_cast<unsigned short>(descriptorsLength);
    m_descriptors.assign(data + at + 2, data + at + 2 + descriptorsLength);
    return m_titleLength + descriptorsLength + 12;
}

bool TCAEITParserEvent::TitleText(unsigned char* text, int* length) const
{
    if (!text || !length) {
        ZUM_LOGD("TCAEITParserEvent::text is NULL or titleLength is NULL");
        return false;
    }
    if (*length < 1 || m_title.empty() || m_titleLength == 0)
        return false;
    if (*length < m_titleLength) {
        ZUM_LOGD("TCAEITParserEvent::TitleText length is invalid input = %d , output = %d", *length, m_titleLength);
        std::memcpy(text, m_title.data(), static_cast<size_t>(*length));
        return false;
    }
    std::memcpy(text, m_title.data(), m_titleLength);
    *length = m_titleLength;
    return true;
}

// ---------------------------------------------------------------- source

TCAEITParserEvent* TCAEITParserSource::AEITParserEvent(unsigned int index) const
{
    if (index >= m_events.size())
        return nullptr;
    return std::next(m_events.begin(), index)->second.get();
}

int TCAEITParserSource::Parse(const unsigned char* data, int size)
{
    if (size < 1) {
        ZUM_LOGD("TCAEITParserSource::Parse error... total size = %d , parsed len = %d", size, 1);
        return -1;
    }
    const int count = data[0];
    int offset = 1;
    for (int i = 0; i < count; ++i) {
        if (size - offset < 2) {
            ZUM_LOGD("TCAEITParserSource::Parse error... total size = %d , parsed len = %d", size, offset + 2);
            return -1;
        }
        auto& event = m_events[ReadBE16(data + offset)];
        if (!event)
            event = std::make_unique<TCAEITParserEvent>();
        const int n = event->Parse(data + offset, size - offset);
        if (n < 0 || offset + n > size) {
            ZUM_LOGD("TCAEITParserSource::Parse error... total size = %d , parsed len = %d", size, offset);
            return -1;
        }
        offset += n;
    }
    return offset;
}

// ---------------------------------------------------------------- tag

TCAEITParserTag::~TCAEITParserTag() = default;

void TCAEITParserTag::DeleteAll()
{
    for (auto& section : m_sections) {
        TCAEITSourceMap* pSources = section.second.get();
        if (ZUM_ASSERT(pSources))
            pSources->clear();
    }
    m_sections.clear();
}

const TCAEITSourceMap* TCAEITParserTag::AEITParserSourceList(int section) const
{
    auto it = m_sections.find(section);
    return it == m_sections.end() ? nullptr : it->second.get();
}

bool TCAEITParserTag::Parse(const unsigned char* data, int size, int version, int section, int lastSection,
                            unsigned int crc)
{
    if (size < 1)
        return false;
    m_numSourcesInSection = data[0];
    const int result = t_CheckVersion(version, section, lastSection, crc);
    if (result != TABLE_FIRST && result != TABLE_ADD && result != TABLE_CHANGED)
        return false;
    auto& sources = m_sections[section];
    if (!sources)
        sources = std::make_unique<TCAEITSourceMap>();
    int offset = 1;
    for (int i = 0; i < m_numSourcesInSection; ++i) {
        if (offset + 2 > size) {
            ZUM_LOGD("TCAEITParserTag::Parse error... total size = %d , parsed len = %d", size, offset + 2);
            return false;
        }
        const unsigned short sourceId = ReadBE16(data + offset);
        auto& source = (*sources)[sourceId];
        if (!source)
            source = std::make_unique<TCAEITParserSource>(sourceId);
        offset += 2;
        const int n = source->Parse(data + offset, size - offset);
        if (n < 0 || offset + n > size) {
            ZUM_LOGD("TCAEITParserTag::Parse error... total size = %d , parsed len = %d", size, offset);
            return false;
        }
        offset += n;
    }
    return true;
}

// ---------------------------------------------------------------- parser

TCAEITParser::TCAEITParser(const ZUMHandle& handle) : TCSectionParser(214, handle) {}

TCAEITParser::~TCAEITParser() = default;

void TCAEITParser::t_Initialize()
{
    m_tags.clear();
}

TCAEITParserTag* TCAEITParser::AEITParserTag(unsigned char tag) const
{
    auto it = m_tags.find(tag);
    return it == m_tags.end() ? nullptr : it->second.get();
}

bool TCAEITParser::t_Parse(const unsigned char* body, int length)
{
    m_lastTag = static_cast<unsigned char>(m_tableIdExtension & 0xFF);
    auto& tag = m_tags[m_lastTag];
    if (!tag)
        tag = std::make_unique<TCAEITParserTag>(m_lastTag);
    // The events end before the CRC_32.
    return tag->Parse(body, length - 4, m_versionNumber, m_sectionNumber, m_lastSectionNumber, m_crc);
}
