#include "EITParser.h"

#include "../core/ByteReader.h"
#include "../core/Diagnostics.h"
#include "../core/Log.h"
#include "../dvb/DescText.h"

namespace {

constexpr int kEitTableId = 0xCB;
// event_id to title_length, and the descriptors_length field.
constexpr int kTitleAt = 10;
constexpr int kFixedSize = 12;

} // namespace

// ---------------------------------------------------------------- event

int TCEITItemEvent::RecordSize(const unsigned char* data, int size)
{
    if (size < kTitleAt)
        return -1;
    const int titleLength = data[kTitleAt - 1];
    if (kTitleAt + titleLength + 2 > size)
        return -1;
    const int record = kFixedSize + titleLength + static_cast<int>(ReadBE16(data + kTitleAt + titleLength) & 0x0FFF);
    return record > size ? -1 : record;
}

void TCEITItemEvent::DeleteAll()
{
    m_bytes.clear();
    m_titleLength = 0;
    m_descriptorsLength = 0;
}

int TCEITItemEvent::Parse(const unsigned char* data, int sectionNumber)
{
    DeleteAll();
    m_eventId = static_cast<unsigned short>(ReadBE16(data) & 0x3FFF);
    m_startTime = ReadBE32(data + 2);
    m_etmLocation = (data[6] >> 4) & 0x03;
    m_lengthInSeconds = ReadBE24(data + 6) & 0x0FFFFF;
    m_titleLength = data[kTitleAt - 1];
    const unsigned char* loop = data + kTitleAt + m_titleLength;
    m_descriptorsLength = static_cast<unsigned short>(ReadBE16(loop) & 0x0FFF);
    m_sectionNumber = static_cast<unsigned char>(sectionNumber);
    if (m_titleLength + m_descriptorsLength > 0) {
        m_bytes.reserve(m_titleLength + m_descriptorsLength);
        m_bytes.assign(data + kTitleAt, data + kTitleAt + m_titleLength);
        m_bytes.insert(m_bytes.end(), loop + 2, loop + 2 + m_descriptorsLength);
    }
    return m_titleLength + m_descriptorsLength + kFixedSize;
}

bool TCEITItemEvent::TitleText(unsigned char* text, int* length) const
{
    if (!text || !length) {
        ZUM_LOGD("TCEITItemEvent::text is NULL or titleLength is NULL");
        return false;
    }
    if (*length < 1 || m_titleLength == 0)
        return false;
    if (*length < m_titleLength)
        ZUM_LOGD("TCEITItemEvent::TitleText length is invalid input = %d , output = %d", *length, m_titleLength);
    return zum_text::Copy(Title(), m_titleLength, text, length);
}

// ---------------------------------------------------------------- item

TCEITItem::~TCEITItem() = default;

void TCEITItem::DeleteAll()
{
    m_events.clear();
}

TCEITItemEvent* TCEITItem::EITItemEvent(unsigned int index) const
{
    return index < m_events.size() ? m_events[index].get() : nullptr;
}

bool TCEITItem::Parse(const unsigned char* data, int size, int version, int section, int lastSection)
{
    if (size < 4)
        return false;
    const int result = t_CheckVersion(version, section, lastSection, ReadBE32(data + size - 4));
    if (result == TABLE_SAME || result == TABLE_IGNORE)
        return false;
    const int count = data[0];
    int offset = 1;
    for (int i = 0; i < count; ++i) {
        // A record whose lengths pass the section is not read at all.
        const int record = TCEITItemEvent::RecordSize(data + offset, size - offset);
        if (record < 0) {
            ZUM_LOGD("TCEITItem::m_Parse.. Parsing Error... current index = %d , size = %d", offset, size);
            return false;
        }
        m_events.emplace_back(new TCEITItemEvent());
        offset += m_events.back()->Parse(data + offset, section);
        if (offset >= size) {
            ZUM_LOGD("TCEITItem::m_Parse.. Parsing Error... current index = %d , size = %d", offset, size);
            return false;
        }
    }
    return IsValid();
}

// ---------------------------------------------------------------- instance

TCEITInstance::~TCEITInstance() = default;

void TCEITInstance::DeleteAll()
{
    m_items.clear();
}

TCEITItem* TCEITInstance::EITItem(unsigned short sourceId) const
{
    for (const auto& item : m_items)
        if (item->SourceId() == sourceId)
            return item.get();
    return nullptr;
}

TCEITItem* TCEITInstance::EITItemOfIndex(unsigned int index) const
{
    return index < m_items.size() ? m_items[index].get() : nullptr;
}

bool TCEITInstance::Parse(const unsigned char* data, int size, unsigned short sourceId, int version, int section,
                          int lastSection)
{
    TCEITItem* item = EITItem(sourceId);
    if (!item) {
        m_items.emplace_back(new TCEITItem(sourceId));
        item = m_items.back().get();
    }
    return item->Parse(data, size, version, section, lastSection);
}

// ---------------------------------------------------------------- parser

TCEITParser::TCEITParser(const ZUMHandle& handle) : TCSectionParser(kEitTableId, handle) {}

TCEITParser::~TCEITParser() = default;

void TCEITParser::t_Initialize()
{
    m_sourceId = INVALID;
    m_instances.clear();
}

bool TCEITParser::t_CheckPSIPTable(unsigned char /*tableId*/)
{
    return true;
}

unsigned int TCEITParser::SourceId() const
{
    if (!ZUM_ASSERT(m_sourceId != INVALID))
        return INVALID;
    return m_sourceId;
}

TCEITInstance* TCEITParser::EITInstance(short pid) const
{
    if (!ZUM_ASSERT(m_sourceId != INVALID))
        return nullptr;
    const auto it = m_instances.find(pid);
    return it == m_instances.end() ? nullptr : it->second.get();
}

std::vector<short> TCEITParser::PIDs() const
{
    std::vector<short> pids;
    for (const auto& instance : m_instances)
        pids.push_back(static_cast<short>(instance.first));
    return pids;
}

bool TCEITParser::t_Parse(const unsigned char* body, int length)
{
    m_sourceId = m_tableIdExtension;
    auto& instance = m_instances[m_pid];
    if (!instance)
        instance.reset(new TCEITInstance(m_pid));
    return instance->Parse(body, length, m_tableIdExtension, m_versionNumber, m_sectionNumber, m_lastSectionNumber);
}
