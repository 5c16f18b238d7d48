#include "DescUKDTTServiceAttribute.h"

#include "../core/ByteReader.h"
#include "../core/RecordAt.h"

namespace {
constexpr int kUKDTTEntrySize = 3;
} // namespace

TCDescUKDTTServiceAttribute::TCDescUKDTTServiceAttribute() : TCBaseDesc(0x86) {}

void TCDescUKDTTServiceAttribute::DeleteAll()
{
    m_count = 0;
    m_distinct = 0;
}

TCBaseDesc* TCDescUKDTTServiceAttribute::Fork() const
{
    return t_ForkAs(new TCDescUKDTTServiceAttribute());
}

bool TCDescUKDTTServiceAttribute::m_Find(unsigned short serviceId, _TTDescUKDTT& entry) const
{
    for (int i = 0; i < m_count; ++i) {
        const unsigned char* raw = RawRecordAt(t_Payload(), m_count, kUKDTTEntrySize, i);
        if (ReadBE16(raw) != serviceId)
            continue;
        entry.serviceId = serviceId;
        entry.numericSelectionFlag = (raw[2] >> 1) & 0x01;
        entry.visibleServiceFlag = raw[2] & 0x01;
        return true;
    }
    return false;
}

bool TCDescUKDTTServiceAttribute::NumericSelectionFlag(unsigned short serviceId) const
{
    _TTDescUKDTT entry;
    return !m_Find(serviceId, entry) || entry.numericSelectionFlag != 0;
}

bool TCDescUKDTTServiceAttribute::VisibleServiceFlag(unsigned short serviceId) const
{
    _TTDescUKDTT entry;
    return !m_Find(serviceId, entry) || entry.visibleServiceFlag != 0;
}

int TCDescUKDTTServiceAttribute::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length < kUKDTTEntrySize)
        return 0;
    const int entries = length / kUKDTTEntrySize;
    // A service listed twice counts once: its first entry stands.
    for (int i = 0; i < entries; ++i) {
        _TTDescUKDTT earlier;
        m_count = i;
        if (!m_Find(static_cast<unsigned short>(ReadBE16(payload + i * kUKDTTEntrySize)), earlier))
            ++m_distinct;
    }
    m_count = entries;
    return entries * kUKDTTEntrySize;
}
