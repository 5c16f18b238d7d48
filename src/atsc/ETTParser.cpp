#include "ETTParser.h"

#include "../core/ByteReader.h"
#include "../core/Log.h"
#include "../dvb/DescText.h"

namespace {

constexpr int kEttTableId = 0xCC;
// ETM_id and CRC_32 around the text.
constexpr int kFrameSize = 8;

} // namespace

// ---------------------------------------------------------------- item

TCETTItem::~TCETTItem() = default;

void TCETTItem::DeleteAll()
{
    m_text.clear();
}

bool TCETTItem::Parse(const unsigned char* data, int size, int version, int section, int lastSection)
{
    const unsigned int crc = size >= kFrameSize ? ReadBE32(data + size - 4) : 0;
    const int result = t_CheckVersion(version, section, lastSection, crc);
    if (result != TABLE_FIRST && result != TABLE_CHANGED)
        return false;
    DeleteAll();
    // A section too short for the ETM_id and the CRC carries no text.
    if (size > kFrameSize)
        m_text.assign(data + 4, data + size - 4);
    return IsValid();
}

bool TCETTItem::ETTExtendTextMsg(unsigned char* text, unsigned short* length) const
{
    if (!text || !length) {
        ZUM_LOGD("TCETTItem::text is NULL or  length is NULL");
        return false;
    }
    if (*length == 0 || m_text.empty())
        return false;
    if (*length < m_text.size())
        ZUM_LOGD("TCETTItem::TitleText length is invalid input = %d , output = %d", *length, TextLength());
    return zum_text::Copy(Text(), TextLength(), text, length);
}

// ---------------------------------------------------------------- instance

TCETTInstance::~TCETTInstance() = default;

void TCETTInstance::DeleteAll()
{
    m_items.clear();
}

TCETTItem* TCETTInstance::ETTItem(unsigned int etmId) const
{
    for (const auto& item : m_items)
        if (item->ETMId() == etmId)
            return item.get();
    return nullptr;
}

bool TCETTInstance::Parse(const unsigned char* data, int size, unsigned int etmId, int version, int section,
                          int lastSection)
{
    TCETTItem* item = ETTItem(etmId);
    if (!item) {
        m_items.emplace_back(new TCETTItem(etmId));
        item = m_items.back().get();
    }
    return item->Parse(data, size, version, section, lastSection);
}

// ---------------------------------------------------------------- parser

TCETTParser::TCETTParser(const ZUMHandle& handle) : TCSectionParser(kEttTableId, handle) {}

TCETTParser::~TCETTParser() = default;

void TCETTParser::t_Initialize()
{
    m_etmId = 0xFFFFFFFF;
    m_instances.clear();
}

bool TCETTParser::t_CheckPSIPTable(unsigned char /*tableId*/)
{
    return true;
}

TCETTInstance* TCETTParser::ETTInstance(short pid) const
{
    const auto it = m_instances.find(pid);
    return it == m_instances.end() ? nullptr : it->second.get();
}

bool TCETTParser::t_Parse(const unsigned char* body, int length)
{
    if (length < 4)
        return false;
    m_etmId = ReadBE32(body);
    auto& instance = m_instances[m_pid];
    if (!instance)
        instance.reset(new TCETTInstance());
    return instance->Parse(body, length, m_etmId, m_versionNumber, m_sectionNumber, m_lastSectionNumber);
}
