#include "AETTParser.h"

#include <cstring>

#include "../core/ByteReader.h"
#include "../core/Log.h"

int TCAETTParserBlock::Parse(const unsigned char* data, int size)
{
    const int length = size >= 6 ? (ReadBE16(data + 4) & 0x0FFF) : 0;
    if (size < 6 || length + 6 > size) {
        m_textLength = 0;
        m_text.clear();
        ZUM_LOGD("TCAETTParserBlock::Parse error... total size = %d , parsed len = %d", size, length + 6);
        return -1;
    }
    m_etmId = ReadBE32(data);
    m_key = KeyOf(m_etmId);
    m_textLength = static_cast<unsigned short>(length);
    m_text.assign(data + 6, data + 6 + length);
    return length + 6;
}

bool TCAETTParserBlock::ETTExtendTextMsg(unsigned char* text, unsigned short* length) const
{
    if (!text || !length) {
        ZUM_LOGD("TCAETTParserBlock::text is NULL or  length is NULL");
        return false;
    }
    if (*length == 0 || m_text.empty() || m_textLength == 0)
        return false;
    if (*length < m_textLength) {
        ZUM_LOGD("TCAETTParserBlock::TitleText length is invalid input = %d , output = %d", *length, m_textLength);
        std::memcpy(text, m_text.data(), *length);
        return false;
    }
    std::memcpy(text, m_text.data(), m_textLength);
    *length = m_textLength;
    return true;
}

TCAETTItem::~TCAETTItem() = default;

void TCAETTItem::DeleteAll()
{
    m_sections.clear();
}

const TCAETTBlockMap* TCAETTItem::AETTParserSourceList(int section) const
{
    auto it = m_sections.find(section);
    return it == m_sections.end() ? nullptr : it->second.get();
}

TCAETTParserBlock* TCAETTItem::AETTParserBlock(unsigned int key) const
{
    for (const auto& section : m_sections) {
        auto it = section.second->find(static_cast<int>(key));
        if (it != section.second->end())
            return it->second.get();
    }
    return nullptr;
}

bool TCAETTItem::Parse(const unsigned char* data, int size, int version, int section, int lastSection,
                       unsigned int crc)
{
    const int result = t_CheckVersion(version, section, lastSection, crc);
    if (result != TABLE_FIRST && result != TABLE_ADD && result != TABLE_CHANGED)
        return false;
    m_Parse(section, data, size);
    return true;
}

void TCAETTItem::m_Parse(int section, const unsigned char* data, int size)
{
    auto& blocks = m_sections[section];
    if (!blocks)
        blocks = std::make_unique<TCAETTBlockMap>();
    if (size < 1)
        return;
    const int count = data[0];
    int offset = 1;
    for (int i = 0; i < count; ++i) {
        if (size - offset < 4) {
            ZUM_LOGD("TCAETTItem::Parse error... total size = %d , parsed len = %d", size, offset + 4);
            return;
        }
        const int key = static_cast<int>(TCAETTParserBlock::KeyOf(ReadBE32(data + offset)));
        auto it = blocks->find(key);
        if (it == blocks->end())
            it = blocks->emplace(key, std::make_unique<TCAETTParserBlock>());
        const int n = it->second->Parse(data + offset, size - offset);
        if (n < 0 || offset + n > size) {
            ZUM_LOGD("TCAETTItem::Parse error... total size = %d , parsed len = %d", size, offset);
            return;
        }
        offset += n;
    }
}

TCAETTParser::TCAETTParser(const ZUMHandle& handle) : TCSectionParser(215, handle) {}

TCAETTParser::~TCAETTParser() = default;

void TCAETTParser::t_Initialize()
{
    m_items.clear();
}

TCAETTItem* TCAETTParser::AETTItem(unsigned char tag) const
{
    auto it = m_items.find(tag);
    return it == m_items.end() ? nullptr : it->second.get();
}

bool TCAETTParser::t_Parse(const unsigned char* body, int length)
{
    m_lastTag = static_cast<unsigned char>(m_tableIdExtension & 0xFF);
    auto& item = m_items[m_lastTag];
    if (!item)
        item = std::make_unique<TCAETTItem>(m_lastTag);
    // The blocks end before the CRC_32.
    return item->Parse(body, length - 4, m_versionNumber, m_sectionNumber, m_lastSectionNumber, m_crc);
}
