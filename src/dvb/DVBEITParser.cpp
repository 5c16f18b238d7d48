#include "DVBEITParser.h"

#include <algorithm>
#include <cstring>

#include <zlib.h>

#include "../core/ByteReader.h"
#include "../core/Log.h"
#include "BcdDigits.h"
#include "DescLocalTimeOffset.h"

namespace {

// table_id to last_table_id: the bytes in front of the event loop.
constexpr int kSectionHeadBytes = 14;
constexpr int kCrcBytes = 4;

bool AllBitsSet(const unsigned char* p, int count)
{
    return std::all_of(p, p + count, [](unsigned char b) { return b == 0xFF; });
}

bool IsCompressedTable(int tableId)
{
    return tableId >= 0x80 && tableId <= 0x9F;
}

} // namespace

// ---------------------------------------------------------------------------
// TCDVBEITInstance

bool TCDVBEITInstance::Parse(const unsigned char* body, int length, unsigned short serviceId, int version,
                             int sectionNumber, int lastSectionNumber, unsigned int crc)
{
    m_transportStreamId = body && length >= 2 ? ReadBE16(body) : 0;
    m_originalNetworkId = body && length >= 4 ? ReadBE16(body + 2) : 0;
    m_lastTableId = body && length >= 6 ? body[5] : 0;
    const int result = t_CheckVersion(version, sectionNumber, lastSectionNumber, crc);
    ZUM_LOGD("EIT Parsing => bCheckVerResult = %d, Version Number = %d [TSID/ONID/SID] = [0x%x/0x%x/0x%x] "
             "tableId = 0x%x sec = %d , lastSec = %d",
             result, version, m_transportStreamId, m_originalNetworkId, serviceId, m_lastTableId, sectionNumber,
             lastSectionNumber);
    return result == TABLE_FIRST || result == TABLE_ADD || result == TABLE_CHANGED;
}

// ---------------------------------------------------------------------------
// TCDVBEITParser

TCDVBEITParser::TCDVBEITParser(int tableId, const ZUMHandle& handle) : TCSectionParser(tableId, handle) {}

TCDVBEITParser::~TCDVBEITParser()
{
    Initialize();
}

bool TCDVBEITParser::IsEITPFTable(unsigned char tableId)
{
    return tableId == 0x4E || tableId == 0x4F || tableId == 0xD0 || tableId == 0xD1;
}

bool TCDVBEITParser::IsEITActualTable(unsigned char tableId)
{
    return tableId == 0x4E || tableId == 0x50 || tableId == 0x51 || tableId == 0x80 || tableId == 0x81;
}

TCDVBEITInstance* TCDVBEITParser::EITInstance(TCServiceKey key) const
{
    const auto it = m_instances.find(key);
    return it == m_instances.end() ? nullptr : it->second.get();
}

bool TCDVBEITParser::RemoveSection(int originalNetworkId, unsigned short transportStreamId,
                                   unsigned short serviceId, int section)
{
    TCDVBEITInstance* instance =
        EITInstance(TCServiceKey(static_cast<unsigned short>(originalNetworkId), transportStreamId, serviceId));
    return instance && instance->RemoveSection(section);
}

void TCDVBEITParser::t_Initialize()
{
    m_instances.clear();
    m_key = TCServiceKey();
}

bool TCDVBEITParser::t_Parse(const unsigned char* body, int length)
{
    m_key = TCServiceKey(length >= 4 ? ReadBE16(body + 2) : 0, length >= 2 ? ReadBE16(body) : 0,
                         m_tableIdExtension);
    // Header, ids, segment end, last table id and CRC_32: an EIT without events.
    if (m_sectionLength < 15) {
        ZUM_LOGE("[TCDVBEITParser::%s] eit section too short, length:%d", "t_Parse", m_sectionLength + 3);
        return false;
    }
    std::unique_ptr<TCDVBEITInstance>& instance = m_instances[m_key];
    if (!instance)
        instance = std::make_unique<TCDVBEITInstance>();
    return instance->Parse(body, length, m_tableIdExtension, m_versionNumber, m_sectionNumber, m_lastSectionNumber,
                           m_crc);
}

// ---------------------------------------------------------------------------
// TCDVBEITItemEvent

TCDVBEITItemEvent::TCDVBEITItemEvent(const ZUMHandle& handle) : m_handle(handle) {}

void TCDVBEITItemEvent::DeleteAll()
{
    m_pDescriptors.reset();
    m_descriptorsLength = 0;
}

unsigned int TCDVBEITItemEvent::ConvertBCDtoSec(const unsigned char* data) const
{
    if (!data)
        return 0;
    return ZumBcdDigits(data, 2) * 3600u + ZumBcdDigits(data + 1, 2) * 60u + ZumBcdDigits(data + 2, 2);
}

int TCDVBEITItemEvent::Parse(const unsigned char* data, int tableId, unsigned char flag)
{
    if (!data)
        return 0;
    const int loopLength = static_cast<int>(ReadBE16(data + 10) & 0x0FFF);
    return Parse(data, kHeaderLength + loopLength, tableId, flag);
}

int TCDVBEITItemEvent::Parse(const unsigned char* data, int length, int tableId, unsigned char flag)
{
    DeleteAll();
    m_tableId = tableId;
    m_flag = flag;
    if (!data || length < 1)
        return 0;

    // A header cut by the end of the bytes reads the rest as 0.
    unsigned char head[kHeaderLength] = {};
    std::memcpy(head, data, static_cast<size_t>(std::min(length, kHeaderLength)));
    m_eventId = static_cast<unsigned short>(ReadBE16(head));
    m_startTime = AllBitsSet(head + 2, 5) ? 0xFFFFFFFFu : TCDescLocalTimeOffset::ConvertDVBtimetoATSCtime(head + 2);
    m_duration = AllBitsSet(head + 7, 3) ? 0xFFFFFFu : ConvertBCDtoSec(head + 7);
    m_runningStatus = (head[10] >> 5) & 0x07;
    m_freeCaMode = (head[10] >> 4) & 0x01;
    const int loopLength = static_cast<int>(ReadBE16(head + 10) & 0x0FFF);
    // A loop that runs past the bytes keeps what is there.
    const int kept = std::min(loopLength, length - kHeaderLength);
    if (kept > 0) {
        m_pDescriptors.reset(new unsigned char[kept]);
        std::memcpy(m_pDescriptors.get(), data + kHeaderLength, static_cast<size_t>(kept));
        m_descriptorsLength = static_cast<unsigned short>(kept);
    }
    return kHeaderLength + loopLength;
}

// ---------------------------------------------------------------------------
// TCDVBEITItem

TCDVBEITItem::TCDVBEITItem(int originalNetworkId, unsigned short transportStreamId, unsigned short serviceId,
                           const ZUMHandle& handle)
    : m_handle(handle),
      m_originalNetworkId(originalNetworkId),
      m_transportStreamId(transportStreamId),
      m_serviceId(serviceId)
{
}

TCDVBEITItem::~TCDVBEITItem()
{
    DeleteAll();
}

void TCDVBEITItem::DeleteAll()
{
    m_events.clear();
}

int TCDVBEITItem::NumOfDVBEITItemEvent() const
{
    return static_cast<int>(m_events.size());
}

TCDVBEITItemEvent* TCDVBEITItem::DVBEITItemEvent(unsigned int index) const
{
    return index < m_events.size() ? m_events[index].get() : nullptr;
}

bool TCDVBEITItem::FindDVBEitEvent(unsigned short eventId) const
{
    return std::any_of(m_events.begin(), m_events.end(),
                       [eventId](const std::unique_ptr<TCDVBEITItemEvent>& e) { return e->EventId() == eventId; });
}

bool TCDVBEITItem::ExtractCompressed(const unsigned char* source, unsigned int sourceLength, unsigned char* target,
                                     unsigned int* targetLength)
{
    if (!source || !target || !targetLength)
        return false;
    // The target always holds 4096 bytes; *targetLength is an output only.
    uLongf size = kMaxEventBytes;
    const int rc = uncompress(target, &size, source, sourceLength);
    // One try only: a loop that does not fit the buffer is not taken.
    if (rc == Z_BUF_ERROR || size > kMaxEventBytes) {
        ZUM_LOGD("[TCDVBEITItem Error] Z_BUF_ERROR %s line:%d rc=%d bufferSize=%lu", __func__, __LINE__, rc, size);
        return false;
    }
    if (rc != Z_OK) {
        ZUM_LOGD("[TCDVBEITItem Error] %s line:%d rc=%d bufferSize=%lu", __func__, __LINE__, rc, size);
        return false;
    }
    *targetLength = static_cast<unsigned int>(size);
    return true;
}

bool TCDVBEITItem::Parse(const unsigned char* section, int length, int version, int sectionNumber,
                         int lastSectionNumber, int tableId)
{
    // The fingerprint, the segment end and last_table_id must lie inside the section.
    if (!section || length < kSectionHeadBytes)
        return false;
    m_sectionNumber = static_cast<unsigned char>(sectionNumber);
    m_versionNumber = version;

    const int result = t_CheckVersion(version, sectionNumber, lastSectionNumber, ReadBE32(section + length - kCrcBytes));
    if (result == TABLE_FIRST || result == TABLE_CHANGED)
        m_complete = false;
    else if (result != TABLE_ADD)
        return false;

    if (!t_CheckSegment(sectionNumber, lastSectionNumber, section[12]))
        return false;
    if (IsValid())
        m_complete = true;
    return m_Parse(section, length, tableId);
}

bool TCDVBEITItem::m_Parse(const unsigned char* section, int length, int tableId)
{
    m_segmentLastSectionNumber = section[12];
    m_lastTableId = section[13];
    DeleteAll();

    const unsigned char* events = section + kSectionHeadBytes;
    int size = length - kSectionHeadBytes - kCrcBytes;
    // How far an event may be read: to the section's end, CRC_32 included, or
    // to the end of what the loop decompressed to.
    int reach = size + kCrcBytes;
    unsigned char buffer[kMaxEventBytes];
    if (IsCompressedTable(tableId)) {
        if (size < 1)
            return false;
        unsigned int extracted = 0;
        if (!ExtractCompressed(events, static_cast<unsigned int>(size), buffer, &extracted))
            return false;
        events = buffer;
        size = reach = static_cast<int>(extracted);
    }

    // Any tail of the loop makes an event, read as far as the bytes reach.
    for (int position = 0; position < size;) {
        m_events.push_back(std::make_unique<TCDVBEITItemEvent>(m_handle));
        position += m_events.back()->Parse(events + position, reach - position, tableId, 0);
    }
    return true;
}
