#ifndef ZUM_TOOLS_INSPECT_TSDEMUX_H
#define ZUM_TOOLS_INSPECT_TSDEMUX_H

// Turns a transport stream, or a file of sections back to back, into whole
// sections with a good CRC_32, as a receiver's section filters would. Input
// comes in chunks of any size, so a file or standard input can be streamed.

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <vector>

namespace zuminspect {

enum class InputKind { TransportStream, Sections };

// TS when the data starts with a sync byte that comes again one packet later
// (188, 192 or 204 bytes; for 192 the first sync sits behind the 4-byte
// prefix), or when it is exactly one such packet; sections otherwise.
InputKind DetectInputKind(const uint8_t* data, size_t size);

// The PID reported for sections read from a file of sections.
constexpr uint16_t kNoPid = 0xFFFF;
constexpr uint16_t kNullPid = 0x1FFF;
constexpr size_t kPacketSize = 188;
constexpr uint8_t kSyncByte = 0x47;

struct PidStats {
    uint64_t packets = 0;
    uint64_t continuityErrors = 0;
    uint64_t transportErrors = 0;  // packets with transport_error_indicator
    uint64_t duplicates = 0;       // a packet sent twice, as allowed once; not an error
    uint64_t sections = 0;         // delivered
    uint64_t crcErrors = 0;
    uint64_t droppedSections = 0;  // in progress when the stream broke
    std::map<uint8_t, uint64_t> sectionsByTable;
    std::map<uint8_t, uint64_t> crcErrorsByTable;
    bool pes = false;              // the last unit start was a PES packet: no sections here
};

struct DemuxStats {
    size_t packetSize = 0;         // 188, 192 or 204 once locked; 0 for sections
    uint64_t packets = 0;
    uint64_t syncLosses = 0;       // locked stream without a sync byte where one was due
    uint64_t skippedBytes = 0;     // garbage and cut packets passed over while finding sync
    uint64_t truncatedPackets = 0; // a packet or section cut by the end of input
    uint64_t continuityErrors = 0;
    uint64_t transportErrors = 0;
    uint64_t duplicates = 0;
    uint64_t sections = 0;
    uint64_t crcErrors = 0;
    uint64_t droppedSections = 0;
    uint64_t unfinishedSections = 0; // still incomplete at the end of input
    std::map<uint16_t, PidStats> pids;
};

class TsDemux {
public:
    // Called for every section with a good CRC_32 (checked where the long form,
    // or the TOT, carries one); `size` is always section_length + 3. The bytes
    // live only during the call, and the handler must not call Feed or Finish.
    using SectionHandler = std::function<void(uint16_t pid, const uint8_t* section, size_t size)>;
    using PidFilter = std::function<bool(uint16_t pid)>;

    explicit TsDemux(SectionHandler handler, InputKind kind = InputKind::TransportStream);

    // Sections are only collected on PIDs the filter accepts (all by default);
    // packets of other PIDs are still counted and continuity-checked.
    void SetPidFilter(PidFilter filter) { m_filter = std::move(filter); }

    void Feed(const uint8_t* data, size_t size);
    // End of input: takes a last whole packet whose successor cannot be seen,
    // drops a cut one, and counts sections left unfinished. Call once.
    void Finish();

    const DemuxStats& Stats() const { return m_stats; }

private:
    struct PidState {
        int lastCc = -1;
        bool duplicateSeen = false;
        std::array<uint8_t, kPacketSize> lastPacket{};
        bool collecting = false;
        std::vector<uint8_t> section; // bytes of the section in progress
    };

    void m_RunTs(bool atEnd);
    void m_RunSections(bool atEnd);
    void m_Packet(const uint8_t* packet);
    void m_Payload(uint16_t pid, PidState& state, PidStats& stats, const uint8_t* payload, size_t size, bool unitStart);
    void m_Extract(uint16_t pid, PidState& state, PidStats& stats, bool moreMayFollow);
    void m_Drop(PidState& state, PidStats& stats);
    void m_Deliver(uint16_t pid, PidStats& stats, const uint8_t* section, size_t size);

    SectionHandler m_handler;
    PidFilter m_filter;
    InputKind m_kind;
    std::vector<uint8_t> m_pending; // input not yet consumed
    size_t m_period = 0;            // distance of sync bytes once locked
    std::map<uint16_t, PidState> m_states;
    DemuxStats m_stats;
};

} // namespace zuminspect

#endif
