#ifndef ZUM_TOOLS_INSPECT_TSMUX_H
#define ZUM_TOOLS_INSPECT_TSMUX_H

// Packs sections into 188-byte transport stream packets on one PID, the way a
// playout multiplexer does: sections back to back, a pointer_field in every
// packet where a section starts, 0xFF stuffing after the last one.

#include <cstddef>
#include <cstdint>
#include <vector>

namespace zuminspect {

class TsMux {
public:
    explicit TsMux(uint16_t pid, uint8_t firstContinuityCounter = 0);

    // Queues a section; it shares a packet with the sections queued before it.
    void Add(const std::vector<uint8_t>& section);
    void Add(const uint8_t* section, size_t size);
    // Packets for all queued sections, the last one stuffed; the queue is
    // emptied and the continuity counter runs on into the next call.
    std::vector<uint8_t> Flush();

    uint16_t Pid() const { return m_pid; }
    uint8_t NextContinuityCounter() const { return m_cc; }

    // One-shot form: the packets of `sections` on `pid`.
    static std::vector<uint8_t> Packetize(uint16_t pid, const std::vector<std::vector<uint8_t>>& sections);

private:
    uint16_t m_pid;
    uint8_t m_cc;
    std::vector<uint8_t> m_stream;  // queued sections back to back
    std::vector<size_t> m_starts;   // where each of them begins in m_stream
};

} // namespace zuminspect

#endif
