#include "inspect/TsDemux.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <map>
#include <random>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "inspect/TsMux.h"
#include "support/Crc32.h"
#include "support/SectionBuilder.h"

using zuminspect::InputKind;
using zuminspect::kNoPid;
using zuminspect::TsDemux;
using zuminspect::TsMux;
using zumtest::Bytes;
using zumtest::Concat;

namespace {

using Delivered = std::vector<std::pair<uint16_t, Bytes>>;

// A long-form section of exactly `size` bytes whose body bytes count up from `seed`.
Bytes Section(unsigned tableId, unsigned extension, size_t size, uint8_t seed = 0)
{
    zumtest::SectionBuilder builder(zumtest::LongHeader(tableId, extension));
    for (size_t i = 0; i < size - 12; ++i)
        builder.U8(static_cast<uint8_t>(seed + i));
    const Bytes section = builder.Build();
    EXPECT_EQ(section.size(), size);
    return section;
}

struct Result {
    Delivered sections;
    zuminspect::DemuxStats stats;
};

// Feeds `input` in chunks of `chunk` bytes (0: all at once).
Result Demux(const Bytes& input, size_t chunk = 0, InputKind kind = InputKind::TransportStream,
             TsDemux::PidFilter filter = nullptr)
{
    Result result;
    TsDemux demux(
        [&result](uint16_t pid, const uint8_t* data, size_t size) {
            EXPECT_EQ(size, static_cast<size_t>(((data[1] & 0x0F) << 8) | data[2]) + 3);
            result.sections.emplace_back(pid, Bytes(data, data + size));
        },
        kind);
    demux.SetPidFilter(std::move(filter));
    chunk = chunk == 0 ? input.size() : chunk;
    for (size_t pos = 0; pos < input.size(); pos += chunk)
        demux.Feed(input.data() + pos, std::min(chunk, input.size() - pos));
    demux.Finish();
    result.stats = demux.Stats();
    return result;
}

Delivered On(uint16_t pid, const std::vector<Bytes>& sections)
{
    Delivered out;
    for (const Bytes& s : sections)
        out.emplace_back(pid, s);
    return out;
}

// One packet by hand: an adaptation field of `adaptationLength` bytes (none if
// negative) whose flags byte is `flags`, then `payload`, then 0xFF up to 188 bytes.
Bytes Packet(uint16_t pid, bool unitStart, unsigned cc, const Bytes& payload, int adaptationLength = -1,
             uint8_t flags = 0x00)
{
    Bytes p{0x47, static_cast<uint8_t>((unitStart ? 0x40 : 0) | (pid >> 8)), static_cast<uint8_t>(pid),
            static_cast<uint8_t>((adaptationLength >= 0 ? 0x30 : 0x10) | (cc & 0x0F))};
    if (adaptationLength >= 0) {
        p.push_back(static_cast<uint8_t>(adaptationLength));
        if (adaptationLength > 0) {
            p.push_back(flags);
            p.insert(p.end(), static_cast<size_t>(adaptationLength - 1), 0xFF);
        }
    }
    p.insert(p.end(), payload.begin(), payload.end());
    EXPECT_LE(p.size(), 188u);
    p.resize(188, 0xFF);
    return p;
}

Bytes Slice(const Bytes& b, size_t from, size_t to)
{
    return Bytes(b.begin() + static_cast<std::ptrdiff_t>(from), b.begin() + static_cast<std::ptrdiff_t>(to));
}

// 188-byte packets rewritten as 192 (4-byte prefix) or 204 (16 parity bytes).
Bytes Reframe(const Bytes& ts, size_t packetSize)
{
    Bytes out;
    for (size_t pos = 0; pos < ts.size(); pos += 188) {
        if (packetSize == 192)
            out.insert(out.end(), {0x12, 0x34, 0x56, static_cast<uint8_t>(pos / 188)});
        out = Concat({out, Slice(ts, pos, pos + 188)});
        for (size_t i = 0; packetSize == 204 && i < 16; ++i)
            out.push_back(static_cast<uint8_t>(pos * 7 + i * 29)); // stands in for Reed-Solomon parity
    }
    return out;
}

} // namespace

TEST(TsMux, PacketsCarryCountersPointersAndStuffing)
{
    const Bytes a = Section(0x00, 1, 16);
    const Bytes b = Section(0x00, 2, 300);
    const Bytes ts = TsMux::Packetize(0x0100, {a, b});
    ASSERT_EQ(ts.size(), 2 * 188u);
    // a and the head of b share the first packet; b's tail and stuffing fill the second.
    EXPECT_EQ(Slice(ts, 0, 5), (Bytes{0x47, 0x41, 0x00, 0x10, 0x00}));
    EXPECT_EQ(Slice(ts, 5, 21), a);
    EXPECT_EQ(Slice(ts, 188, 192), (Bytes{0x47, 0x01, 0x00, 0x11}));
    EXPECT_EQ(Slice(ts, 192, 192 + 300 - 167), Slice(b, 167, 300));
    EXPECT_EQ(ts.back(), 0xFF);

    // The counter wraps and runs on across Flush calls.
    TsMux mux(0x0011, 14);
    mux.Add(Section(0x42, 1, 500));
    Bytes more = mux.Flush();
    mux.Add(Section(0x42, 2, 16));
    more = Concat({more, mux.Flush()});
    ASSERT_EQ(more.size(), 4 * 188u);
    for (size_t i = 0; i < 4; ++i)
        EXPECT_EQ(more[i * 188 + 3] & 0x0F, (14 + i) % 16) << "packet " << i;

    // 183 + 183 bytes leave the next section's first byte at payload offset 183
    // of the second packet, where no pointer_field can reach it.
    for (size_t first : {182u, 183u, 184u, 366u, 367u}) {
        const std::vector<Bytes> sections = {Section(0x4A, 1, first), Section(0x4A, 2, 20)};
        EXPECT_EQ(Demux(TsMux::Packetize(0x0011, sections)).sections, On(0x0011, sections)) << first;
    }
}

TEST(TsDemux, EveryPacketSizeAnyChunkingAndGarbageBetweenPackets)
{
    // Sizes around the packet boundaries: a packet holds 183 bytes after the pointer_field.
    const std::vector<Bytes> sections = {
        Section(0x42, 1, 16),   Section(0x42, 2, 183, 1), Section(0x42, 3, 184, 2), Section(0x4E, 4, 185, 3),
        Section(0x4E, 5, 12),   Section(0x4E, 6, 12, 9),  Section(0x50, 7, 1000, 4), Section(0x50, 8, 4096, 5),
        Section(0x02, 9, 366, 6), Section(0x02, 10, 367, 7),
    };
    const Bytes ts = TsMux::Packetize(0x0012, sections);
    // Garbage with stray sync bytes, before the first packet and after some others.
    const Bytes garbage{0x47, 0x00, 0x12, 0x47, 0x47, 0x10, 0xFF, 0x00, 0x47};
    for (size_t packetSize : {188u, 192u, 204u}) {
        const Bytes clean = Reframe(ts, packetSize);
        Bytes damaged = garbage;
        for (size_t i = 0; i * packetSize < clean.size(); ++i) {
            damaged = Concat({damaged, Slice(clean, i * packetSize, (i + 1) * packetSize)});
            if (i % 5 == 2)
                damaged = Concat({damaged, Slice(garbage, 0, 1 + i % garbage.size())});
        }
        for (bool withGarbage : {false, true}) {
            for (size_t chunk : {0u, 1u, 2u, 7u, 100u, 187u, 188u, 189u, 1000u}) {
                SCOPED_TRACE(std::to_string(packetSize) + (withGarbage ? " with garbage" : "") + ", chunk " +
                             std::to_string(chunk));
                const Result r = Demux(withGarbage ? damaged : clean, chunk);
                EXPECT_EQ(r.sections, On(0x0012, sections));
                EXPECT_EQ(r.stats.packetSize, packetSize);
                EXPECT_EQ(r.stats.packets, ts.size() / 188);
                EXPECT_EQ(r.stats.syncLosses > 0, withGarbage);
                EXPECT_EQ(r.stats.continuityErrors + r.stats.crcErrors + r.stats.droppedSections +
                              r.stats.truncatedPackets + r.stats.unfinishedSections,
                          0u);
            }
        }
    }
}

TEST(TsDemux, InterleavedPidsKeepTheirOwnSections)
{
    const std::vector<Bytes> onA = {Section(0x50, 1, 900), Section(0x50, 2, 40)};
    const Bytes onB = Section(0x42, 1, 500);
    const Bytes a = TsMux::Packetize(0x0012, onA);
    const Bytes b = TsMux::Packetize(0x0011, {onB});
    Bytes ts;
    for (size_t i = 0; i * 188 < a.size(); ++i) { // a has more packets than b
        ts = Concat({ts, Slice(a, i * 188, i * 188 + 188)});
        if (i * 188 < b.size())
            ts = Concat({ts, Slice(b, i * 188, i * 188 + 188)});
    }
    Delivered expected = On(0x0011, {onB}); // b's 3 packets end first
    for (const auto& d : On(0x0012, onA))
        expected.push_back(d);
    EXPECT_EQ(Demux(ts).sections, expected);
}

TEST(TsDemux, SectionsAcrossPacketsBehindAdaptationFields)
{
    const auto space = [](int adaptation) { return 184 - (adaptation >= 0 ? static_cast<size_t>(adaptation) + 1 : 0); };
    const Bytes adaptationOnly = Concat({{0x47, 0x00, 0x11, 0x25, 183, 0x00}, Bytes(182, 0xFF)});
    for (int length : {-1, 0, 1, 50, 100, 180}) {
        SCOPED_TRACE(length);
        // a fills the first packet (its header split behind the longest field) and ends in the
        // second, in front of b and the head of c; c ends in the third, before stuffing.
        const int later = std::min(length, 140);
        const Bytes a = Section(0x4E, 1, space(length) - 1 + 20), b = Section(0x4E, 2, 12);
        const size_t cHead = space(later) - 1 - 20 - b.size();
        const Bytes c = Section(0x4E, 3, cHead + space(later) - 10);
        const Bytes ts = Concat({
            Packet(0x11, true, 5, Concat({{0x00}, Slice(a, 0, a.size() - 20)}), length),
            adaptationOnly, // the counter stays
            Packet(0x11, true, 6, Concat({{20}, Slice(a, a.size() - 20, a.size()), b, Slice(c, 0, cHead)}), later),
            Packet(0x11, false, 7, Slice(c, cHead, c.size()), later),
            Packet(0x11, true, 8, {0x00, 0xFF, 0xFF}), // a unit start with nothing but stuffing
        });
        const Result r = Demux(ts);
        EXPECT_EQ(r.sections, On(0x11, {a, b, c}));
        EXPECT_EQ(r.stats.continuityErrors + r.stats.droppedSections + r.stats.unfinishedSections, 0u);
    }
}

TEST(TsDemux, BrokenStreamDropsOnlyTheSectionInProgress)
{
    // Five packets: x and a's head, a, a, a's tail and b's head, b's tail.
    const Bytes x = Section(0x50, 1, 100), a = Section(0x50, 2, 600), b = Section(0x50, 3, 40);
    const Bytes ts = TsMux::Packetize(0x12, {x, a, b});
    ASSERT_EQ(ts.size(), 5 * 188u);
    const auto packet = [&ts](size_t i) { return Slice(ts, i * 188, i * 188 + 188); };
    Bytes changed = packet(1);
    changed[100] ^= 0x01;
    Bytes transportError = packet(1);
    transportError[1] |= 0x80;
    Bytes corruptCounter = transportError;
    corruptCounter[3] ^= 0x08;
    const Bytes head = Slice(ts, 0, 376), rest = Slice(ts, 376, ts.size());
    struct Case {
        const char* name;
        Bytes input;
        std::vector<Bytes> sections;
        uint64_t continuity, transport, duplicates, dropped, truncated;
    };
    const std::vector<Case> cases = {
        {"lost packet", Concat({packet(0), rest}), {x, b}, 1, 0, 0, 1, 0},
        {"transport error", Concat({packet(0), transportError, rest}), {x, b}, 0, 1, 0, 1, 0},
        {"transport error, counter corrupt", Concat({packet(0), corruptCounter, rest}), {x, b}, 0, 1, 0, 1, 0},
        {"packet sent twice", Concat({head, packet(1), rest}), {x, a, b}, 0, 0, 1, 0, 0},
        {"packet sent three times", Concat({head, packet(1), packet(1), rest}), {x, b}, 1, 0, 1, 1, 0},
        {"same counter, other bytes", Concat({head, changed, rest}), {x, b}, 1, 0, 0, 1, 0},
        {"last packet cut by 1", Slice(ts, 0, ts.size() - 1), {x, a}, 0, 0, 0, 0, 1},
        {"last packet cut by 100", Slice(ts, 0, ts.size() - 100), {x, a}, 0, 0, 0, 0, 1},
        {"last packet cut to its sync byte", Slice(ts, 0, ts.size() - 187), {x, a}, 0, 0, 0, 0, 1},
    };
    for (const Case& c : cases) {
        for (size_t chunk : {0u, 1u}) {
            SCOPED_TRACE(std::string(c.name) + ", chunk " + std::to_string(chunk));
            const Result r = Demux(c.input, chunk);
            EXPECT_EQ(r.sections, On(0x12, c.sections));
            EXPECT_EQ(r.stats.continuityErrors, c.continuity);
            EXPECT_EQ(r.stats.pids.at(0x12).continuityErrors, c.continuity);
            EXPECT_EQ(r.stats.transportErrors, c.transport);
            EXPECT_EQ(r.stats.duplicates, c.duplicates);
            EXPECT_EQ(r.stats.droppedSections, c.dropped);
            EXPECT_EQ(r.stats.truncatedPackets, c.truncated);
            EXPECT_EQ(r.stats.unfinishedSections, c.truncated); // b was in progress
        }
    }
}

TEST(TsDemux, SignalledDiscontinuityIsNoContinuityError)
{
    const Bytes a = Section(0x42, 1, 20), b = Section(0x42, 2, 20);
    for (uint8_t flags : {0x80, 0x00}) { // discontinuity_indicator set, then clear
        SCOPED_TRACE(int(flags));
        const Result r = Demux(Concat({Packet(0x11, true, 3, Concat({{0x00}, a})),
                                       Packet(0x11, true, 9, Concat({{0x00}, b}), 1, flags)}));
        EXPECT_EQ(r.sections, On(0x11, {a, b}));
        EXPECT_EQ(r.stats.continuityErrors, flags ? 0u : 1u);
    }
}

TEST(TsDemux, OnlySectionsWithAGoodCrcAreDeliveredFromPacketsOrAFile)
{
    Bytes bad = Section(0x4E, 1, 200);
    bad[50] ^= 0x40;
    const Bytes good = Section(0x4E, 2, 200);
    const Bytes big = Section(0x50, 3, 4096);
    // A TOT keeps its CRC_32 although it is of the short form; a TDT has none.
    Bytes tot{0x73, 0x70, 0x0B, 0xEB, 0x2E, 0x01, 0x20, 0x00, 0xF0, 0x00};
    const uint32_t crc = zumtest::Crc32Mpeg(tot.data(), tot.size());
    for (int shift = 24; shift >= 0; shift -= 8)
        tot.push_back(static_cast<uint8_t>(crc >> shift));
    Bytes badTot = tot;
    badTot.back() ^= 0xFF;
    const Bytes tdt{0x70, 0x70, 0x05, 0xEB, 0x2E, 0x01, 0x20, 0x00};
    const Bytes file = Concat({bad, good, {0xFF, 0xFF}, tdt, badTot, tot, big}); // stuffing is skipped
    struct Case {
        InputKind kind;
        Bytes input;
        uint16_t pid;
    };
    const Bytes ts = TsMux::Packetize(0x14, {bad, good, tdt, badTot, tot, big});
    for (const Case& c : {Case{InputKind::TransportStream, ts, 0x14}, Case{InputKind::Sections, file, kNoPid}}) {
        for (size_t chunk : {0u, 1u, 13u}) {
            SCOPED_TRACE(std::to_string(c.pid) + ", chunk " + std::to_string(chunk));
            const Result r = Demux(c.input, chunk, c.kind);
            EXPECT_EQ(r.sections, On(c.pid, {good, tdt, tot, big}));
            EXPECT_EQ(r.stats.crcErrors, 2u);
            EXPECT_EQ(r.stats.pids.at(c.pid).crcErrorsByTable, (std::map<uint8_t, uint64_t>{{0x4E, 1}, {0x73, 1}}));
            EXPECT_EQ(r.stats.pids.at(c.pid).sections, 4u);
            EXPECT_EQ(r.stats.truncatedPackets, 0u);
        }
    }
    const Result cut = Demux(Slice(file, 0, file.size() - 1), 0, InputKind::Sections);
    EXPECT_EQ(cut.sections, On(kNoPid, {good, tdt, tot}));
    EXPECT_EQ(cut.stats.truncatedPackets, 1u);
}

TEST(TsDemux, NothingFromPesMalformedFilteredOrRandomInput)
{
    const Bytes a = Section(0x42, 1, 30);
    Bytes pes{0x00, 0x00, 0x01, 0xE0, 0x00, 0x00, 0x80, 0x80, 0x05};
    pes.resize(184, 0x00); // a PES header followed by zero payload
    const std::vector<std::pair<const char*, Bytes>> cases = {
        {"PES packets", Concat({Packet(0x100, true, 0, pes), Packet(0x100, false, 1, Bytes(184, 0x00))})},
        {"pointer beyond the payload", Packet(0x11, true, 0, {0xB7, 0x42})},
        {"pointer to the last byte", Packet(0x11, true, 0, Concat({{0xB6}, Bytes(182, 0xFF)}))},
        {"adaptation field longer than the packet", Concat({{0x47, 0x40, 0x11, 0x30, 0xC8}, Bytes(183, 0x00)})},
        {"reserved adaptation_field_control", Concat({{0x47, 0x40, 0x11, 0x00, 0x00}, a, Bytes(183 - a.size(), 0xFF)})},
        {"scrambled payload", Concat({{0x47, 0x40, 0x11, 0x90, 0x00}, a, Bytes(183 - a.size(), 0xFF)})},
        {"section length past the packet", Packet(0x11, true, 0, {0x00, 0x42, 0xFF, 0xFF, 0x00})},
    };
    for (const auto& c : cases) {
        const Result r = Demux(c.second);
        EXPECT_TRUE(r.sections.empty()) << c.first;
        EXPECT_EQ(r.stats.packets, c.second.size() / 188) << c.first;
    }
    // A PID the filter refuses is counted, not collected.
    const Bytes eit = Section(0x4E, 1, 40);
    const Result r = Demux(Concat({TsMux::Packetize(0x11, {a}), TsMux::Packetize(0x12, {eit})}), 0,
                           InputKind::TransportStream, [](uint16_t pid) { return pid != 0x11; });
    EXPECT_EQ(r.sections, On(0x12, {eit}));
    EXPECT_EQ(r.stats.pids.at(0x11).packets, 1u);

    std::mt19937 rng(7);
    for (int round = 0; round < 50; ++round) {
        Bytes input(static_cast<size_t>(rng() % 5000));
        for (uint8_t& b : input)
            b = static_cast<uint8_t>(rng() % 4 == 0 ? 0x47 : rng());
        for (InputKind kind : {InputKind::TransportStream, InputKind::Sections})
            Demux(input, 1 + rng() % 300, kind);
    }
}

TEST(DetectInputKind, BySyncBytesAtThePacketPeriod)
{
    const Bytes ts = TsMux::Packetize(0x12, {Section(0x50, 1, 600)});
    const Bytes one = TsMux::Packetize(0x12, {Section(0x50, 1, 100)});
    const Bytes sections = Concat({Section(0x47, 1, 188), Section(0x42, 1, 100)}); // 0x47 first, but no period
    const std::vector<std::tuple<const char*, Bytes, InputKind>> cases = {
        {"188", ts, InputKind::TransportStream},
        {"192 with prefix", Reframe(ts, 192), InputKind::TransportStream},
        {"204", Reframe(ts, 204), InputKind::TransportStream},
        {"one 188-byte packet", one, InputKind::TransportStream},
        {"one 192-byte packet", Reframe(one, 192), InputKind::TransportStream},
        {"sections", sections, InputKind::Sections},
        {"short", Bytes{0x47, 0x00}, InputKind::Sections},
        {"empty", Bytes{}, InputKind::Sections},
    };
    for (const auto& c : cases)
        EXPECT_EQ(zuminspect::DetectInputKind(std::get<1>(c).data(), std::get<1>(c).size()), std::get<2>(c))
            << std::get<0>(c);
}
