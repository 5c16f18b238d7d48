#include "inspect/TsDemux.h"

#include <algorithm>
#include <cstring>

#include "support/Crc32.h"

namespace zuminspect {

namespace {

constexpr uint8_t kStuffing = 0xFF;
constexpr size_t kPeriods[] = {188, 192, 204};
// Further sync bytes at the same distance before a period is believed: a
// stray 0x47 in a payload passes four checks about once in 2^32, and two
// (where garbage cuts the run short) once in 2^16.
constexpr int kConfirmations = 4;
constexpr int kShortConfirmations = 2;
// The one table of the short form that still ends in a CRC_32.
constexpr uint8_t kTotTableId = 0x73;

struct Lock {
    enum Status { Found, NeedMore, None } status;
    size_t pos;    // where the packets begin; or where to look again, or `to`
    size_t period;
};

// First position in [from, to) where sync bytes come back at one of the
// packet periods: kConfirmations times, or at least kShortConfirmations times
// before garbage breaks the run. At the end of input fewer will do, down to
// `minSeenAtEnd` (0 lets a lone last packet through).
Lock FindLock(const uint8_t* data, size_t size, size_t from, size_t to, bool atEnd, int minSeenAtEnd)
{
    to = std::min(to, size);
    for (size_t pos = from; pos < to; ++pos) {
        if (data[pos] != kSyncByte)
            continue;
        size_t bestPeriod = 0;
        int bestSeen = -1;
        bool open = false; // a period that more input may still confirm
        for (size_t period : kPeriods) {
            int seen = 0;
            bool broken = false;
            for (int k = 1; k <= kConfirmations && !broken; ++k) {
                const size_t at = pos + static_cast<size_t>(k) * period;
                if (at >= size)
                    break;
                broken = data[at] != kSyncByte;
                seen += broken ? 0 : 1;
            }
            if (seen == kConfirmations)
                return {Lock::Found, pos, period};
            open = open || !broken;
            const bool enough = (broken && seen >= kShortConfirmations) || (atEnd && !broken && seen >= minSeenAtEnd);
            // Most confirmations win; for a lone last unit its size tells.
            if (enough && (seen > bestSeen || (seen == 0 && bestSeen == 0 && size - pos == period))) {
                bestPeriod = period;
                bestSeen = seen;
            }
        }
        if (open && !atEnd)
            return {Lock::NeedMore, pos, 0};
        if (bestPeriod != 0)
            return {Lock::Found, pos, bestPeriod};
    }
    return {Lock::None, to, 0};
}

size_t SectionSize(const uint8_t* header)
{
    return static_cast<size_t>(((header[1] & 0x0F) << 8) | header[2]) + 3;
}

} // namespace

InputKind DetectInputKind(const uint8_t* data, size_t size)
{
    if (size < kPacketSize)
        return InputKind::Sections;
    for (size_t period : kPeriods) {
        // 192-byte packets carry a 4-byte prefix in front of the sync byte.
        const size_t first = period == 192 ? 4 : 0;
        if (data[first] == kSyncByte && (size == period || (size > first + period && data[first + period] == kSyncByte)))
            return InputKind::TransportStream;
    }
    return InputKind::Sections;
}

TsDemux::TsDemux(SectionHandler handler, InputKind kind) : m_handler(std::move(handler)), m_kind(kind) {}

void TsDemux::Feed(const uint8_t* data, size_t size)
{
    if (data == nullptr || size == 0)
        return;
    m_pending.insert(m_pending.end(), data, data + size);
    if (m_kind == InputKind::TransportStream)
        m_RunTs(false);
    else
        m_RunSections(false);
}

void TsDemux::Finish()
{
    if (m_kind == InputKind::TransportStream)
        m_RunTs(true);
    else
        m_RunSections(true);
    for (auto& entry : m_states) {
        if (!entry.second.collecting)
            continue;
        ++m_stats.unfinishedSections;
        entry.second.collecting = false;
        entry.second.section.clear();
    }
}

void TsDemux::m_RunTs(bool atEnd)
{
    const size_t size = m_pending.size();
    size_t pos = 0;
    while (pos < size) {
        if (m_period == 0) {
            const Lock lock = FindLock(m_pending.data(), size, pos, size, atEnd, 0);
            m_stats.skippedBytes += lock.pos - pos;
            pos = lock.pos;
            if (lock.status != Lock::Found)
                break;
            m_period = lock.period;
            m_stats.packetSize = lock.period;
        }
        if (m_pending[pos] != kSyncByte) {
            ++m_stats.syncLosses;
            m_period = 0;
            continue;
        }
        // A whole unit and the byte behind it, where the next sync is due;
        // at the end a whole packet is enough.
        if (pos + m_period >= size && !(atEnd && pos + kPacketSize <= size)) {
            if (atEnd) {
                ++m_stats.truncatedPackets;
                pos = size;
            }
            break;
        }
        if (pos + m_period < size && m_pending[pos + m_period] != kSyncByte) {
            // The stream breaks behind this packet. It is whole unless the
            // stream picks up again inside it: then it was cut short.
            const Lock next = FindLock(m_pending.data(), size, pos + 1, pos + kPacketSize, atEnd, 1);
            if (next.status == Lock::NeedMore)
                break;
            ++m_stats.syncLosses;
            if (next.status == Lock::Found) {
                m_stats.skippedBytes += next.pos - pos;
                pos = next.pos;
                m_period = next.period;
                continue;
            }
            m_Packet(&m_pending[pos]);
            pos += kPacketSize;
            m_period = 0;
            continue;
        }
        m_Packet(&m_pending[pos]);
        pos = std::min(pos + m_period, size);
    }
    m_pending.erase(m_pending.begin(), m_pending.begin() + static_cast<std::ptrdiff_t>(pos));
}

void TsDemux::m_RunSections(bool atEnd)
{
    const size_t size = m_pending.size();
    size_t pos = 0;
    PidStats& stats = m_stats.pids[kNoPid];
    while (pos < size) {
        if (m_pending[pos] == kStuffing) {
            ++pos;
            ++m_stats.skippedBytes;
            continue;
        }
        if (size - pos < 3 || size - pos < SectionSize(&m_pending[pos]))
            break;
        const size_t sectionSize = SectionSize(&m_pending[pos]);
        m_Deliver(kNoPid, stats, &m_pending[pos], sectionSize);
        pos += sectionSize;
    }
    if (atEnd && pos < size) {
        ++m_stats.truncatedPackets;
        pos = size;
    }
    m_pending.erase(m_pending.begin(), m_pending.begin() + static_cast<std::ptrdiff_t>(pos));
}

void TsDemux::m_Packet(const uint8_t* packet)
{
    ++m_stats.packets;
    const uint16_t pid = static_cast<uint16_t>(((packet[1] & 0x1F) << 8) | packet[2]);
    PidStats& stats = m_stats.pids[pid];
    ++stats.packets;
    if (pid == kNullPid)
        return;

    PidState& state = m_states[pid];
    const bool transportError = (packet[1] & 0x80) != 0;
    const bool unitStart = (packet[1] & 0x40) != 0;
    const unsigned scrambling = packet[3] >> 6;
    const unsigned adaptation = (packet[3] >> 4) & 0x03;
    const int cc = packet[3] & 0x0F;
    if (transportError) {
        // Nothing of a packet flagged in error reaches a parser: the section in
        // progress has a hole now, and a section starting here may be corrupt
        // where no CRC_32 would tell. The next packet sets the counter's reference.
        ++stats.transportErrors;
        ++m_stats.transportErrors;
        m_Drop(state, stats);
        state.lastCc = -1;
        return;
    }
    if ((adaptation & 1) == 0)
        return; // reserved, or adaptation field only: no payload, the counter stays

    size_t offset = 4;
    bool discontinuity = false;
    if (adaptation & 2) {
        offset = 5 + packet[4];
        if (offset > kPacketSize) {
            m_Drop(state, stats);
            state.lastCc = -1;
            return;
        }
        discontinuity = packet[4] > 0 && (packet[5] & 0x80) != 0;
    }

    bool duplicate = false;
    if (state.lastCc >= 0) {
        const bool repeated = cc == state.lastCc;
        duplicate = repeated && !state.duplicateSeen && std::memcmp(state.lastPacket.data(), packet, 4) == 0 &&
                    std::memcmp(state.lastPacket.data() + offset, packet + offset, kPacketSize - offset) == 0;
        if (duplicate) {
            ++stats.duplicates;
            ++m_stats.duplicates;
        } else if (repeated || cc != ((state.lastCc + 1) & 0x0F)) {
            if (!discontinuity) {
                ++stats.continuityErrors;
                ++m_stats.continuityErrors;
            }
            m_Drop(state, stats);
        }
    }
    state.duplicateSeen = duplicate;
    // A packet flagged in error may carry a corrupt counter: the next one sets the reference.
    state.lastCc = transportError ? -1 : cc;
    std::memcpy(state.lastPacket.data(), packet, kPacketSize);
    // Inside a section a repeated packet would add its bytes twice; otherwise
    // it only repeats whole sections or a start, which are safe to take again.
    if (duplicate && state.collecting)
        return;

    if ((m_filter && !m_filter(pid)) || scrambling != 0) {
        m_Drop(state, stats);
        return;
    }
    m_Payload(pid, state, stats, packet + offset, kPacketSize - offset, unitStart);
}

void TsDemux::m_Payload(uint16_t pid, PidState& state, PidStats& stats, const uint8_t* payload, size_t size,
                        bool unitStart)
{
    if (!unitStart) {
        if (!state.collecting)
            return;
        state.section.insert(state.section.end(), payload, payload + size);
        m_Extract(pid, state, stats, false);
        return;
    }
    if (size >= 3 && payload[0] == 0 && payload[1] == 0 && payload[2] == 1) {
        stats.pes = true; // a PES packet start code, not a pointer_field
        m_Drop(state, stats);
        return;
    }
    stats.pes = false;
    if (size == 0 || 1 + static_cast<size_t>(payload[0]) > size) {
        m_Drop(state, stats); // the pointer_field is missing or points outside the packet
        return;
    }
    const size_t start = 1 + static_cast<size_t>(payload[0]);
    if (state.collecting) {
        // The bytes in front of the first new section end the one in progress.
        state.section.insert(state.section.end(), payload + 1, payload + start);
        m_Extract(pid, state, stats, false);
        m_Drop(state, stats);
    }
    if (start == size)
        return;
    state.section.assign(payload + start, payload + size);
    state.collecting = true;
    m_Extract(pid, state, stats, true);
}

void TsDemux::m_Extract(uint16_t pid, PidState& state, PidStats& stats, bool moreMayFollow)
{
    while (state.collecting) {
        std::vector<uint8_t>& bytes = state.section;
        if (bytes.empty() || bytes[0] == kStuffing) {
            state.collecting = false;
            bytes.clear();
            return;
        }
        if (bytes.size() < 3 || bytes.size() < SectionSize(bytes.data()))
            return;
        const size_t size = SectionSize(bytes.data());
        m_Deliver(pid, stats, bytes.data(), size);
        // Only a unit start may open a section: behind one that ends in a
        // continuation packet there is nothing but stuffing.
        if (!moreMayFollow) {
            state.collecting = false;
            bytes.clear();
            return;
        }
        bytes.erase(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(size));
    }
}

void TsDemux::m_Drop(PidState& state, PidStats& stats)
{
    if (!state.collecting)
        return;
    state.collecting = false;
    state.section.clear();
    ++stats.droppedSections;
    ++m_stats.droppedSections;
}

void TsDemux::m_Deliver(uint16_t pid, PidStats& stats, const uint8_t* section, size_t size)
{
    const uint8_t tableId = section[0];
    const bool hasCrc = (section[1] & 0x80) != 0 || tableId == kTotTableId;
    if (hasCrc && (size < 7 || zumtest::Crc32Mpeg(section, size) != 0)) {
        ++stats.crcErrors;
        ++stats.crcErrorsByTable[tableId];
        ++m_stats.crcErrors;
        return;
    }
    ++stats.sections;
    ++stats.sectionsByTable[tableId];
    ++m_stats.sections;
    if (m_handler)
        m_handler(pid, section, size);
}

} // namespace zuminspect
