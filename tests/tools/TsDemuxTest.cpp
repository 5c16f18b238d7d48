#include "inspect/TsDemux.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <ostream>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "inspect/TsMux.h"
#include "support/Crc32.h"
#include "support/SectionBuilder.h"

using zuminspect::DetectInputKind;
using zuminspect::InputKind;
using zuminspect::TsDemux;
using zuminspect::TsMux;
using zumtest::Bytes;

namespace {

// A long-form section of exactly `size` bytes whose body bytes count up from `seed`.
Bytes Section(unsigned tableId, unsigned extension, size_t size, uint8_t seed = 0)
{
    zumtest::SectionHeader header;
    header.tableId = tableId;
    header.extension = extension;
    zumtest::SectionBuilder builder(header);
    for (size_t i = 0; i < size - 12; ++i)
        builder.U8(static_cast<uint8_t>(seed + i));
    Bytes section = builder.Build();
    EXPECT_EQ(section.size(), size);
    return section;
}

struct Delivered {
    uint16_t pid;
    Bytes section;
    bool operator==(const Delivered& o) const { return pid == o.pid && section == o.section; }
};

void PrintTo(const Delivered& d, std::ostream* os)
{
    *os << "pid " << d.pid << " size " << d.section.size();
    if (d.section.size() > 4)
        *os << " table " << int(d.section[0]) << " ext " << int(d.section[3] * 256 + d.section[4]);
}

struct Result {
    std::vector<Delivered> sections;
    zuminspect::DemuxStats stats;
};

// Feeds `input` in chunks of `chunk` bytes (0: all at once).
Result Demux(const Bytes& input, size_t chunk = 0, InputKind kind = InputKind::TransportStream)
{
    Result result;
    TsDemux demux(
        [&result](uint16_t pid, const uint8_t* data, size_t size) {
            EXPECT_EQ(size, static_cast<size_t>(((data[1] & 0x0F) << 8) | data[2]) + 3);
            result.sections.push_back({pid, Bytes(data, data + size)});
        },
        kind);
    if (chunk == 0)
        chunk = input.size();
    for (size_t pos = 0; pos < input.size(); pos += chunk)
        demux.Feed(input.data() + pos, std::min(chunk, input.size() - pos));
    demux.Finish();
    result.stats = demux.Stats();
    return result;
}

std::vector<Delivered> On(uint16_t pid, const std::vector<Bytes>& sections)
{
    std::vector<Delivered> out;
    for (const Bytes& s : sections)
        out.push_back({pid, s});
    return out;
}

// One packet by hand: an adaptation field of `adaptationLength` bytes (none if
// negative), then `payload`, then 0xFF up to 188 bytes.
Bytes Packet(uint16_t pid, bool unitStart, unsigned cc, const Bytes& payload, int adaptationLength = -1)
{
    Bytes p{0x47, static_cast<uint8_t>((unitStart ? 0x40 : 0) | (pid >> 8)), static_cast<uint8_t>(pid),
            static_cast<uint8_t>((adaptationLength >= 0 ? 0x30 : 0x10) | (cc & 0x0F))};
    if (adaptationLength >= 0) {
        p.push_back(static_cast<uint8_t>(adaptationLength));
        if (adaptationLength > 0) {
            p.push_back(0x00); // no flags
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

Bytes Cat(std::initializer_list<Bytes> parts)
{
    return zumtest::Concat(parts);
}

// 188-byte packets rewritten as 192 (4-byte prefix) or 204 (16 parity bytes).
Bytes Reframe(const Bytes& ts, size_t packetSize)
{
    Bytes out;
    for (size_t pos = 0; pos + 188 <= ts.size(); pos += 188) {
        if (packetSize == 192)
            out.insert(out.end(), {0x12, 0x34, 0x56, static_cast<uint8_t>(pos / 188)});
        out.insert(out.end(), ts.begin() + static_cast<std::ptrdiff_t>(pos),
                   ts.begin() + static_cast<std::ptrdiff_t>(pos + 188));
        for (size_t i = 0; packetSize == 204 && i < 16; ++i)
            out.push_back(static_cast<uint8_t>(pos * 7 + i * 29)); // stands in for Reed-Solomon parity
    }
    return out;
}

const std::vector<Bytes>& MixedSections()
{
    // Sizes around the packet boundaries: a packet holds 183 bytes after the pointer_field.
    static const std::vector<Bytes> sections = {
        Section(0x42, 1, 16),   Section(0x42, 2, 183, 1), Section(0x42, 3, 184, 2), Section(0x4E, 4, 185, 3),
        Section(0x4E, 5, 12),   Section(0x4E, 6, 12, 9),  Section(0x50, 7, 1000, 4), Section(0x50, 8, 4096, 5),
        Section(0x02, 9, 366, 6), Section(0x02, 10, 367, 7),
    };
    return sections;
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
    more = Cat({more, mux.Flush()});
    ASSERT_EQ(more.size(), 4 * 188u);
    const unsigned expected[] = {14, 15, 0, 1};
    for (size_t i = 0; i < 4; ++i)
        EXPECT_EQ(more[i * 188 + 3] & 0x0F, expected[i]) << "packet " << i;
}

TEST(TsMux, NeverStartsASectionInAPacketWithoutPointer)
{
    // 183 + 183 bytes leave the next section's first byte at payload offset 183
    // of the second packet, where no pointer_field can reach it.
    for (size_t first : {182u, 183u, 184u, 366u, 367u}) {
        const std::vector<Bytes> sections = {Section(0x4A, 1, first), Section(0x4A, 2, 20)};
        const Bytes ts = TsMux::Packetize(0x0011, sections);
        EXPECT_EQ(Demux(ts).sections, On(0x0011, sections)) << first;
    }
}

TEST(TsDemux, RoundTripAtEveryPacketSize)
{
    const Bytes ts = TsMux::Packetize(0x0012, MixedSections());
    for (size_t packetSize : {188u, 192u, 204u}) {
        const Bytes input = packetSize == 188 ? ts : Reframe(ts, packetSize);
        const Result r = Demux(input);
        EXPECT_EQ(r.sections, On(0x0012, MixedSections())) << packetSize;
        EXPECT_EQ(r.stats.packetSize, packetSize);
        EXPECT_EQ(r.stats.packets, ts.size() / 188);
        EXPECT_EQ(r.stats.syncLosses + r.stats.continuityErrors + r.stats.crcErrors + r.stats.droppedSections +
                      r.stats.truncatedPackets + r.stats.unfinishedSections,
                  0u);
        EXPECT_EQ(r.stats.pids.at(0x0012).sectionsByTable.at(0x50), 2u);
    }
}

TEST(TsDemux, ChunkedFeedingGivesTheSameSections)
{
    const Bytes ts = TsMux::Packetize(0x0012, MixedSections());
    for (size_t packetSize : {188u, 192u, 204u}) {
        const Bytes input = packetSize == 188 ? ts : Reframe(ts, packetSize);
        for (size_t chunk : {1u, 2u, 7u, 187u, 188u, 189u, 1000u})
            EXPECT_EQ(Demux(input, chunk).sections, On(0x0012, MixedSections())) << packetSize << "/" << chunk;
    }
}

TEST(TsDemux, InterleavedPidsKeepTheirOwnSections)
{
    const std::vector<Bytes> onA = {Section(0x50, 1, 900), Section(0x50, 2, 40)};
    const std::vector<Bytes> onB = {Section(0x42, 1, 500)};
    const Bytes a = TsMux::Packetize(0x0012, onA);
    const Bytes b = TsMux::Packetize(0x0011, onB);
    Bytes ts;
    for (size_t i = 0; i * 188 < std::max(a.size(), b.size()); ++i) {
        if (i * 188 < a.size())
            ts = Cat({ts, Slice(a, i * 188, i * 188 + 188)});
        if (i * 188 < b.size())
            ts = Cat({ts, Slice(b, i * 188, i * 188 + 188)});
    }
    const Result r = Demux(ts);
    ASSERT_EQ(r.sections.size(), 3u);
    EXPECT_EQ(r.sections[0], (Delivered{0x0011, onB[0]})); // B's 3 packets end first
    EXPECT_EQ(r.sections[1], (Delivered{0x0012, onA[0]}));
    EXPECT_EQ(r.sections[2], (Delivered{0x0012, onA[1]}));
}

TEST(TsDemux, SectionsAcrossPacketsSeveralInOnePacketAndStuffing)
{
    const Bytes a = Section(0x4E, 1, 250);
    const Bytes b = Section(0x4E, 2, 20);
    const Bytes c = Section(0x4E, 3, 100);
    const size_t aHead = 183;                  // all of packet 1 after the pointer_field
    const size_t aTail = a.size() - aHead;     // opens packet 2, before the pointer's target
    const size_t cHead = 183 - aTail - b.size(); // fills packet 2
    const Bytes ts = Cat({
        Packet(0x12, true, 0, Cat({{0x00}, Slice(a, 0, aHead)})),
        Packet(0x12, true, 1, Cat({{static_cast<uint8_t>(aTail)}, Slice(a, aHead, a.size()), b, Slice(c, 0, cHead)})),
        Packet(0x12, false, 2, Slice(c, cHead, c.size())), // then 0xFF stuffing
        Packet(0x12, true, 3, {0x00, 0xFF, 0xFF}),          // a unit start with nothing but stuffing
    });
    const Result r = Demux(ts);
    EXPECT_EQ(r.sections, On(0x12, {a, b, c}));
    EXPECT_EQ(r.stats.droppedSections, 0u);
}

TEST(TsDemux, AdaptationFieldsAreSkipped)
{
    const Bytes b = Section(0x42, 2, 30);
    for (int length : {0, 1, 50, 100, 180}) {
        // Section a fills the first packet behind the field and the pointer_field
        // (its header split for the longest field) and ends in the second.
        const size_t head = 182 - static_cast<size_t>(length);
        const Bytes a = Section(0x42, 1, head + 20);
        const Bytes adaptationOnly = Cat({{0x47, 0x00, 0x11, 0x25, 183, 0x00}, Bytes(182, 0xFF)});
        const Bytes ts = Cat({
            Packet(0x11, true, 5, Cat({{0x00}, Slice(a, 0, head)}), length),
            adaptationOnly, // the counter stays
            Packet(0x11, false, 6, Slice(a, head, a.size()), std::min(length, 150)),
            Packet(0x11, true, 7, Cat({{0x00}, b}), std::min(length, 150)),
        });
        const Result r = Demux(ts);
        EXPECT_EQ(r.sections, On(0x11, {a, b})) << length;
        EXPECT_EQ(r.stats.continuityErrors, 0u) << length;
    }
}

TEST(TsDemux, ContinuityErrorDropsOnlyTheSectionInProgress)
{
    const Bytes a = Section(0x50, 1, 600);
    const Bytes b = Section(0x50, 2, 40);
    Bytes ts = TsMux::Packetize(0x12, {a, b});
    ASSERT_EQ(ts.size(), 4 * 188u);
    // Lose the second packet: a has a hole, b (in the fourth packet) is whole.
    ts.erase(ts.begin() + 188, ts.begin() + 376);
    const Result r = Demux(ts);
    EXPECT_EQ(r.sections, On(0x12, {b}));
    EXPECT_EQ(r.stats.continuityErrors, 1u);
    EXPECT_EQ(r.stats.pids.at(0x12).continuityErrors, 1u);
    EXPECT_EQ(r.stats.droppedSections, 1u);
}

TEST(TsDemux, TransportErrorDropsOnlyTheSectionInProgress)
{
    const Bytes a = Section(0x50, 1, 600);
    const Bytes b = Section(0x50, 2, 40);
    Bytes ts = TsMux::Packetize(0x12, {a, b});
    ts[188 + 1] |= 0x80;
    const Result r = Demux(ts);
    EXPECT_EQ(r.sections, On(0x12, {b}));
    EXPECT_EQ(r.stats.transportErrors, 1u);
    EXPECT_EQ(r.stats.continuityErrors, 0u);
    EXPECT_EQ(r.stats.droppedSections, 1u);
}

TEST(TsDemux, OneRepeatedPacketIsAllowedTwoAreNot)
{
    const Bytes a = Section(0x50, 1, 600);
    const Bytes b = Section(0x50, 2, 40);
    const Bytes ts = TsMux::Packetize(0x12, {a, b});
    const Bytes second = Slice(ts, 188, 376);
    const Bytes once = Cat({Slice(ts, 0, 376), second, Slice(ts, 376, ts.size())});
    Result r = Demux(once);
    EXPECT_EQ(r.sections, On(0x12, {a, b}));
    EXPECT_EQ(r.stats.duplicates, 1u);
    EXPECT_EQ(r.stats.continuityErrors, 0u);

    const Bytes twice = Cat({Slice(ts, 0, 376), second, second, Slice(ts, 376, ts.size())});
    r = Demux(twice);
    EXPECT_EQ(r.sections, On(0x12, {b}));
    EXPECT_EQ(r.stats.continuityErrors, 1u);

    // A repeated packet with the same counter but other bytes is a break.
    Bytes changed = second;
    changed[100] ^= 0x01;
    r = Demux(Cat({Slice(ts, 0, 376), changed, Slice(ts, 376, ts.size())}));
    EXPECT_EQ(r.sections, On(0x12, {b}));
    EXPECT_EQ(r.stats.continuityErrors, 1u);
}

TEST(TsDemux, CutPacketAtTheEndIsDropped)
{
    const Bytes a = Section(0x42, 1, 100);
    const Bytes b = Section(0x42, 2, 300);
    const Bytes ts = TsMux::Packetize(0x11, {a, b});
    ASSERT_EQ(ts.size(), 3 * 188u);
    for (size_t cut : {1u, 100u, 187u}) {
        const Bytes input = Slice(ts, 0, ts.size() - cut);
        for (size_t chunk : {0u, 1u}) {
            const Result r = Demux(input, chunk);
            EXPECT_EQ(r.sections, On(0x11, {a})) << cut;
            EXPECT_EQ(r.stats.truncatedPackets, 1u) << cut;
            EXPECT_EQ(r.stats.unfinishedSections, 1u) << cut;
        }
    }
}

TEST(TsDemux, BadCrcIsCountedAndSkipped)
{
    Bytes bad = Section(0x4E, 1, 200);
    bad[50] ^= 0x40;
    const Bytes good = Section(0x4E, 2, 200);
    // A TOT keeps its CRC_32 although it is of the short form; a TDT has none.
    Bytes tot{0x73, 0x70, 0x0B, 0xEB, 0x2E, 0x01, 0x20, 0x00, 0xF0, 0x00};
    const uint32_t crc = zumtest::Crc32Mpeg(tot.data(), tot.size());
    tot.insert(tot.end(), {static_cast<uint8_t>(crc >> 24), static_cast<uint8_t>(crc >> 16),
                           static_cast<uint8_t>(crc >> 8), static_cast<uint8_t>(crc)});
    Bytes badTot = tot;
    badTot.back() ^= 0xFF;
    const Bytes tdt{0x70, 0x70, 0x05, 0xEB, 0x2E, 0x01, 0x20, 0x00};

    const Result r = Demux(Cat({TsMux::Packetize(0x12, {bad, good}), TsMux::Packetize(0x14, {tdt, badTot, tot})}));
    std::vector<Delivered> expected = On(0x12, {good});
    for (const Delivered& d : On(0x14, {tdt, tot}))
        expected.push_back(d);
    EXPECT_EQ(r.sections, expected);
    EXPECT_EQ(r.stats.crcErrors, 2u);
    EXPECT_EQ(r.stats.pids.at(0x12).crcErrorsByTable.at(0x4E), 1u);
    EXPECT_EQ(r.stats.pids.at(0x14).crcErrorsByTable.at(0x73), 1u);
    EXPECT_EQ(r.stats.pids.at(0x12).sections, 1u);
}

TEST(TsDemux, ResynchronisesAfterGarbageBetweenPackets)
{
    const Bytes ts = TsMux::Packetize(0x12, MixedSections());
    const size_t packets = ts.size() / 188;
    // Garbage with stray sync bytes, before the first packet and after some others.
    const Bytes garbage{0x47, 0x00, 0x12, 0x47, 0x47, 0x10, 0xFF, 0x00, 0x47};
    for (size_t packetSize : {188u, 192u, 204u}) {
        const size_t unit = packetSize;
        const Bytes framed = packetSize == 188 ? ts : Reframe(ts, packetSize);
        Bytes input = garbage;
        for (size_t i = 0; i < packets; ++i) {
            input = Cat({input, Slice(framed, i * unit, i * unit + unit)});
            if (i % 5 == 2)
                input = Cat({input, Slice(garbage, 0, 1 + i % garbage.size())});
        }
        for (size_t chunk : {0u, 1u, 100u}) {
            const Result r = Demux(input, chunk);
            EXPECT_EQ(r.sections, On(0x12, MixedSections())) << packetSize << "/" << chunk;
            EXPECT_GE(r.stats.syncLosses, 1u);
            EXPECT_EQ(r.stats.continuityErrors, 0u);
        }
    }
}

TEST(TsDemux, PesPacketsGiveNoSections)
{
    Bytes pes{0x00, 0x00, 0x01, 0xE0, 0x00, 0x00, 0x80, 0x80, 0x05};
    pes.resize(184, 0x00); // a PES header followed by zero payload
    const Bytes pat = Section(0x00, 1, 16);
    const Bytes ts = Cat({Packet(0x100, true, 0, pes), Packet(0x100, false, 1, Bytes(184, 0x00)),
                          TsMux::Packetize(0x0000, {pat})});
    const Result r = Demux(ts);
    EXPECT_EQ(r.sections, On(0x0000, {pat}));
    EXPECT_TRUE(r.stats.pids.at(0x100).pes);
    EXPECT_EQ(r.stats.pids.at(0x100).packets, 2u);
}

TEST(TsDemux, PidFilterLimitsCollection)
{
    const Bytes sdt = Section(0x42, 1, 40);
    const Bytes eit = Section(0x4E, 1, 40);
    const Bytes ts = Cat({TsMux::Packetize(0x11, {sdt}), TsMux::Packetize(0x12, {eit})});
    std::vector<uint16_t> pids;
    TsDemux demux([&pids](uint16_t pid, const uint8_t*, size_t) { pids.push_back(pid); });
    demux.SetPidFilter([](uint16_t pid) { return pid == 0x12; });
    demux.Feed(ts.data(), ts.size());
    demux.Finish();
    EXPECT_EQ(pids, std::vector<uint16_t>{0x12});
    EXPECT_EQ(demux.Stats().pids.at(0x11).packets, 1u);
}

TEST(TsDemux, MalformedHeadersNeitherCrashNorDeliver)
{
    const Bytes a = Section(0x42, 1, 30);
    struct Case {
        const char* name;
        Bytes packet;
    };
    const std::vector<Case> cases = {
        {"pointer beyond the payload", Packet(0x11, true, 0, {0xB7, 0x42})},
        {"pointer to the last byte", Packet(0x11, true, 0, Cat({{0xB6}, Bytes(182, 0xFF)}))},
        {"adaptation field longer than the packet", Cat({{0x47, 0x40, 0x11, 0x30, 0xC8}, Bytes(183, 0x00)})},
        {"reserved adaptation_field_control", Cat({{0x47, 0x40, 0x11, 0x00, 0x00}, a, Bytes(183 - a.size(), 0xFF)})},
        {"scrambled payload", Cat({{0x47, 0x40, 0x11, 0x90, 0x00}, a, Bytes(183 - a.size(), 0xFF)})},
        {"section length past the packet", Packet(0x11, true, 0, {0x00, 0x42, 0xFF, 0xFF, 0x00})},
    };
    for (const Case& c : cases) {
        ASSERT_EQ(c.packet.size(), 188u) << c.name;
        const Result r = Demux(c.packet);
        EXPECT_TRUE(r.sections.empty()) << c.name;
    }
}

TEST(TsDemux, RandomInputEndsWithoutHanging)
{
    std::mt19937 rng(7);
    for (int round = 0; round < 50; ++round) {
        Bytes input(static_cast<size_t>(rng() % 5000));
        for (uint8_t& b : input)
            b = static_cast<uint8_t>(rng() % 4 == 0 ? 0x47 : rng());
        for (InputKind kind : {InputKind::TransportStream, InputKind::Sections})
            Demux(input, 1 + rng() % 300, kind);
    }
}

TEST(SectionFile, SectionsBackToBack)
{
    const Bytes a = Section(0x42, 1, 100);
    Bytes bad = Section(0x42, 2, 50);
    bad[20] ^= 0x01;
    const Bytes tdt{0x70, 0x70, 0x05, 0xEB, 0x2E, 0x01, 0x20, 0x00};
    const Bytes b = Section(0x4E, 3, 4096);
    const Bytes file = Cat({a, bad, {0xFF, 0xFF}, tdt, b});
    for (size_t chunk : {0u, 1u, 13u}) {
        const Result r = Demux(file, chunk, InputKind::Sections);
        EXPECT_EQ(r.sections, On(zuminspect::kNoPid, {a, tdt, b})) << chunk;
        EXPECT_EQ(r.stats.crcErrors, 1u);
        EXPECT_EQ(r.stats.truncatedPackets, 0u);
    }
    const Result cut = Demux(Slice(file, 0, file.size() - 1), 0, InputKind::Sections);
    EXPECT_EQ(cut.sections, On(zuminspect::kNoPid, {a, tdt}));
    EXPECT_EQ(cut.stats.truncatedPackets, 1u);
}

TEST(DetectInputKind, BySyncBytesAtThePacketPeriod)
{
    const Bytes ts = TsMux::Packetize(0x12, {Section(0x50, 1, 600)});
    const Bytes one = TsMux::Packetize(0x12, {Section(0x50, 1, 100)});
    const Bytes sections = Cat({Section(0x47, 1, 188), Section(0x42, 1, 100)}); // 0x47 first, but no period
    struct Case {
        const char* name;
        Bytes data;
        InputKind kind;
    };
    const std::vector<Case> cases = {
        {"188", ts, InputKind::TransportStream},
        {"192 with prefix", Reframe(ts, 192), InputKind::TransportStream},
        {"204", Reframe(ts, 204), InputKind::TransportStream},
        {"one 188-byte packet", one, InputKind::TransportStream},
        {"one 192-byte packet", Reframe(one, 192), InputKind::TransportStream},
        {"sections", sections, InputKind::Sections},
        {"short", Bytes{0x47, 0x00}, InputKind::Sections},
        {"empty", Bytes{}, InputKind::Sections},
    };
    for (const Case& c : cases)
        EXPECT_EQ(DetectInputKind(c.data.data(), c.data.size()), c.kind) << c.name;
}
