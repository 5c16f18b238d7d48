#include "inspect/TsMux.h"

#include <algorithm>

#include "inspect/TsDemux.h"

namespace zuminspect {

namespace {
constexpr size_t kHeaderSize = 4;
constexpr size_t kPayloadSize = kPacketSize - kHeaderSize;
// A pointer_field can reach only so far if one byte of the section is to
// start in the same packet.
constexpr size_t kMaxPointer = kPayloadSize - 2;
} // namespace

TsMux::TsMux(uint16_t pid, uint8_t firstContinuityCounter)
    : m_pid(static_cast<uint16_t>(pid & kNullPid)), m_cc(static_cast<uint8_t>(firstContinuityCounter & 0x0F))
{
}

void TsMux::Add(const std::vector<uint8_t>& section)
{
    Add(section.data(), section.size());
}

void TsMux::Add(const uint8_t* section, size_t size)
{
    if (section == nullptr || size == 0)
        return;
    m_starts.push_back(m_stream.size());
    m_stream.insert(m_stream.end(), section, section + size);
}

std::vector<uint8_t> TsMux::Flush()
{
    std::vector<uint8_t> out;
    size_t pos = 0;
    auto nextStart = m_starts.begin();
    while (pos < m_stream.size()) {
        nextStart = std::lower_bound(nextStart, m_starts.end(), pos);
        const bool hasStart = nextStart != m_starts.end() && *nextStart - pos <= kMaxPointer;
        // Without a start of its own a packet must not reach into the next
        // section: that one has to begin in a packet with a pointer_field.
        size_t end = std::min(m_stream.size(), pos + (hasStart ? kPayloadSize - 1 : kPayloadSize));
        if (!hasStart && nextStart != m_starts.end())
            end = std::min(end, *nextStart);

        out.push_back(kSyncByte);
        out.push_back(static_cast<uint8_t>((hasStart ? 0x40 : 0x00) | (m_pid >> 8)));
        out.push_back(static_cast<uint8_t>(m_pid));
        out.push_back(static_cast<uint8_t>(0x10 | m_cc)); // payload only
        m_cc = static_cast<uint8_t>((m_cc + 1) & 0x0F);
        const size_t packetStart = out.size() - kHeaderSize;
        if (hasStart)
            out.push_back(static_cast<uint8_t>(*nextStart - pos));
        out.insert(out.end(), m_stream.begin() + static_cast<std::ptrdiff_t>(pos),
                   m_stream.begin() + static_cast<std::ptrdiff_t>(end));
        out.resize(packetStart + kPacketSize, 0xFF);
        pos = end;
    }
    m_stream.clear();
    m_starts.clear();
    return out;
}

std::vector<uint8_t> TsMux::Packetize(uint16_t pid, const std::vector<std::vector<uint8_t>>& sections)
{
    TsMux mux(pid);
    for (const auto& section : sections)
        mux.Add(section);
    return mux.Flush();
}

} // namespace zuminspect
