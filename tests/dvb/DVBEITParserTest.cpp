#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <regex>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include <zum-platform/Dlog.h>

#include "dvb/DVBEITParser.h"
#include "dvb/DescLocalTimeOffset.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"

using zumtest::ByteWriter;
using zumtest::Bytes;
using zumtest::Concat;
using zumtest::Desc;

namespace {

// 29 February 2024 (MJD 60369), in seconds since 6 January 1980.
constexpr unsigned int kLeapDay = 16125u * 86400u;

// MJD, then hours, minutes, seconds as BCD literals (0x23 for 23).
Bytes Start(unsigned mjd, uint8_t hh, uint8_t mm, uint8_t ss)
{
    return {static_cast<uint8_t>(mjd >> 8), static_cast<uint8_t>(mjd), hh, mm, ss};
}

const Bytes kUndefinedStart{0xFF, 0xFF, 0xFF, 0xFF, 0xFF};
const Bytes kShortEventLoop = Desc(0x4D, {'e', 'n', 'g', 4, 'N', 'e', 'w', 's', 0});
const Bytes kContentLoop = Desc(0x54, {0x20, 0x00});

struct EventFields {
    unsigned eventId = 1;
    Bytes start = Start(60369, 0x20, 0x00, 0x00), duration = {0x00, 0x30, 0x00};
    unsigned running = 0, freeCa = 0;
    Bytes loop = {};
};

Bytes Events(const std::vector<EventFields>& events)
{
    ByteWriter w;
    for (const EventFields& e : events)
        w.U16(e.eventId).Raw(e.start).Raw(e.duration).Begin16(12, (e.running << 13) | (e.freeCa << 12)).Raw(e.loop)
            .End();
    return w.Data();
}

struct EitFields {
    unsigned tableId = 0x4E, version = 3, section = 0, last = 0, segmentLast = 0;
    unsigned serviceId = 0x0101, onid = 0x0001, lastTableId = 0x4E;
};

Bytes Eit(const EitFields& s, const Bytes& loop = {})
{
    zumtest::SectionBuilder b({s.tableId, true, false, 3, s.serviceId, s.version, true, s.section, s.last});
    b.U16(0x0441).U16(s.onid).U8(s.segmentLast).U8(s.lastTableId).Raw(loop);
    return b.Build();
}

// What a caller does: header fields from the section, then the item.
bool Feed(TCDVBEITItem& item, const Bytes& s)
{
    return item.Parse(s.data(), static_cast<int>(s.size()), (s[5] >> 1) & 0x1F, s[6], s[7], s[0]);
}

// Event id, start, duration, running status, free CA mode, raw loop.
using Decoded = std::tuple<unsigned, unsigned, unsigned, int, int, Bytes>;

std::vector<Decoded> AllFields(const TCDVBEITItem& item)
{
    std::vector<Decoded> out;
    for (unsigned i = 0; i < static_cast<unsigned>(item.NumOfDVBEITItemEvent()); ++i) {
        const TCDVBEITItemEvent* e = item.DVBEITItemEvent(i);
        out.emplace_back(e->EventId(), e->StartTime(), e->Duration(), e->RunningStatus(), e->FreeCaMode(),
                         Bytes(e->Descriptors(), e->Descriptors() + e->DescriptorsLength()));
    }
    return out;
}

std::string Flags(const TCBaseSection& t, int count)
{
    std::string out;
    for (int s = 0; s < count; ++s)
        out += t.IsRecvSection(s) ? '1' : '0';
    return out;
}

} // namespace

TEST(DVBEITParser, TableIdPredicates)
{
    const struct { unsigned char tableId; bool presentFollowing, actual; } cases[] = {
        {0x4E, true, true},   {0x4F, true, false},  {0x50, false, true},  {0x51, false, true},
        {0x52, false, false}, {0x6F, false, false}, {0x80, false, true},  {0x81, false, true},
        {0x82, false, false}, {0xD0, true, false},  {0xD1, true, false},  {0xD2, false, false}};
    for (const auto& c : cases) {
        EXPECT_EQ(TCDVBEITParser::IsEITPFTable(c.tableId), c.presentFollowing) << int(c.tableId);
        EXPECT_EQ(TCDVBEITParser::IsEITActualTable(c.tableId), c.actual) << int(c.tableId);
    }
}

// True means "new section of this service", whatever the completeness of the table.
TEST(DVBEITParser, AnswersTrueForEveryNewSectionOfEachService)
{
    const EitFields a{0x4E, 3, 0, 1, 1, 0x0101, 1, 0x4F};
    const Bytes full = Eit({0x4E, 3, 0, 0, 0, 0x0909});
    // section_length 14 and 9: the body ends inside the fixed fields.
    auto cut = [&full](int bodyBytes) {
        Bytes s(full.begin(), full.begin() + 8 + bodyBytes + 4);
        s[2] = static_cast<uint8_t>(bodyBytes + 9);
        return s;
    };
    const struct { const char* what; Bytes section; bool result; } steps[] = {
        {"first section of A", Eit(a), true},
        {"repeated", Eit(a), false},
        {"second section of A", Eit({0x4E, 3, 1, 1, 1, 0x0101, 1, 0x4F}), true},
        {"another service", Eit({0x4E, 3, 0, 1, 1, 0x0102}), true},
        {"same service id in another network", Eit({0x4E, 3, 0, 1, 1, 0x0101, 2}), true},
        {"A's second section repeated", Eit({0x4E, 3, 1, 1, 1, 0x0101, 1, 0x4F}), false},
        {"another table id of A shares A's tracker", Eit({0x4F, 3, 0, 1, 1}, Events({{}})), true},
        {"it repeated", Eit({0x4F, 3, 0, 1, 1}, Events({{}})), false},
        {"new version", Eit({0x4E, 4, 0, 1, 1}), true},
        {"back to the old version", Eit(a), true},
        {"one byte short of an empty EIT", cut(5), false},
        {"no body at all", cut(0), false},
        {"an empty EIT", full, true},
    };
    TCDVBEITParser parser(0x4E, ZUMHandle());
    zumtest::LogCapture log;
    for (const auto& s : steps)
        EXPECT_EQ(parser.Parse(0x12, s.section.data()), s.result) << s.what;
    const std::vector<std::string> lines = log.Lines(DLOG_DEBUG);
    ASSERT_GE(lines.size(), 2u);
    for (int verdict : {0, 1})
        EXPECT_EQ(lines[static_cast<size_t>(verdict)],
                  "EIT Parsing => bCheckVerResult = " + std::to_string(1 - verdict) +
                      ", Version Number = 3 [TSID/ONID/SID] = [0x441/0x1/0x101] tableId = 0x4f sec = 0 , lastSec = 1");
    EXPECT_EQ(log.Lines(DLOG_ERROR), (std::vector<std::string>{
                                         "[TCDVBEITParser::t_Parse] eit section too short, length:17",
                                         "[TCDVBEITParser::t_Parse] eit section too short, length:12"}));

    const TCDVBEITInstance* instance = parser.EITInstance(TCServiceKey(0x0001, 0x0441, 0x0101));
    ASSERT_NE(instance, nullptr);
    EXPECT_EQ(instance->TransportStreamId(), 0x0441);
    EXPECT_EQ(instance->OriginalNetworkId(), 0x0001);
    EXPECT_EQ(instance->LastTableId(), 0x4F) << "of the section parsed last";
    EXPECT_NE(parser.EITInstance(TCServiceKey(0x0002, 0x0441, 0x0101)), nullptr);
    EXPECT_EQ(parser.EITInstance(TCServiceKey(0x0001, 0x0441, 0x0103)), nullptr);
}

TEST(DVBEITParser, RemoveSectionAndInitialize)
{
    const Bytes a = Eit({0x4E, 3, 0, 1, 1}), b = Eit({0x4E, 3, 0, 1, 1, 0x0202});
    TCDVBEITParser parser(0x4E, ZUMHandle());
    ASSERT_TRUE(parser.Parse(0x12, a.data()));
    ASSERT_TRUE(parser.Parse(0x12, b.data()));
    EXPECT_TRUE(parser.RemoveSection(0x0001, 0x0441, 0x0101, 0));
    EXPECT_TRUE(parser.Parse(0x12, a.data()));
    EXPECT_FALSE(parser.Parse(0x12, b.data())) << "the other service's tracker is its own";
    EXPECT_FALSE(parser.RemoveSection(0x0001, 0x0441, 0x0303, 0));
    EXPECT_FALSE(parser.RemoveSection(0x0001, 0x0441, 0x0101, 2));

    parser.Initialize();
    EXPECT_EQ(parser.EITInstance(TCServiceKey(0x0001, 0x0441, 0x0101)), nullptr);
    EXPECT_FALSE(parser.RemoveSection(0x0001, 0x0441, 0x0101, 0));
    EXPECT_TRUE(parser.Parse(0x12, b.data()));
}

// One section into a fresh item: every field, times at their limits, event loops that
// run over, and sections too short for their header.
TEST(DVBEITItem, DecodesTheEventsOfOneSection)
{
    // One event of the given start and duration, and what it decodes to.
    auto timed = [](const Bytes& start, const Bytes& duration) { return Eit({}, Events({{1, start, duration}})); };
    auto at = [](unsigned start, unsigned seconds) { return std::vector<Decoded>{{1, start, seconds, 0, 0, {}}}; };
    const Bytes loop = Concat({kShortEventLoop, kContentLoop}), empty = Eit({});
    const Bytes first = Events({{1, Start(60369, 0x20, 0, 0), {0, 0x30, 0}, 0, 0, kContentLoop}});
    const Decoded one{1, kLeapDay + 20 * 3600, 1800, 0, 0, kContentLoop};
    ByteWriter overlong;
    overlong.U16(2).Raw(Start(60369, 0x10, 0x00, 0x00)).Raw({0x00, 0x10, 0x00}).U16(0x8FFF).Raw({0x54, 0x02, 0x11});
    const Bytes& o = overlong.Data();
    // A tail of the event loop reads on into the CRC_32 and stops at the section's end.
    const Bytes whole = Eit({}, Concat({first, o})), cut11 = Eit({}, Concat({first, Bytes(o.begin(), o.begin() + 11)})),
                cut12 = Eit({}, Concat({first, Bytes(o.begin(), o.begin() + 12)})),
                cut4 = Eit({}, Concat({first, Bytes(o.begin(), o.begin() + 4)}));
    const auto crc = [](const Bytes& s, int from) { return Bytes(s.end() - 4 + from, s.end()); };
    const unsigned hoursOfDuration = ((cut4[cut4.size() - 1] >> 4) * 10 + (cut4[cut4.size() - 1] & 0x0F)) * 3600;
    const struct { const char* what; Bytes section; std::vector<Decoded> events; bool result; } cases[] = {
        {"all fields", Eit({0x4E, 3, 0, 0, 0, 0x0101, 1, 0x4F},
                           Events({{0x1234, Start(60369, 0x12, 0x34, 0x56), {0x01, 0x30, 0x00}, 4, 1, loop},
                                   {1, kUndefinedStart, {0xFF, 0xFF, 0xFF}, 7, 0}})),
         {{0x1234, kLeapDay + 45296, 5400, 4, 1, loop}, {1, 0xFFFFFFFF, 0xFFFFFF, 7, 0, {}}}, true},
        {"loop longer than the section", whole,
         {one, {2, kLeapDay + 36000, 600, 4, 0, Concat({{0x54, 0x02, 0x11}, crc(whole, 0)})}}, true},
        {"header cut at 11 bytes", cut11,
         {one, {2, kLeapDay + 36000, 600, 4, 0, crc(cut11, 1)}}, true},
        {"header of 12 bytes", cut12, {one, {2, kLeapDay + 36000, 600, 4, 0, crc(cut12, 0)}}, true},
        // Event id and MJD in the loop, the hours in the CRC_32, the rest past the section: read as 0.
        {"header cut at 4 bytes", cut4,
         {one, {2, TCDescLocalTimeOffset::ConvertDVBtimetoATSCtime(Concat({Bytes(o.begin() + 2, o.begin() + 4),
                                                                           crc(cut4, 0)}).data()),
                hoursOfDuration, 0, 0, {}}}, true},
        // Times go through the shared conversion; the duration's BCD has no limits of its own.
        {"undefined", timed(kUndefinedStart, {0xFF, 0xFF, 0xFF}), at(0xFFFFFFFF, 0xFFFFFF), true},
        {"hours 25", timed(Start(60369, 0x25, 0, 0), {0x25, 0, 0x60}), at(0, 90060), true},
        // All bits set but one byte: converted, not undefined.
        {"MJD 65535", timed({0xFF, 0xFF, 0, 0, 0}, {0, 0xFF, 0xFF}), at(21291u * 86400u, 165 * 61), true},
        {"broken hours", timed({0xFF, 0xFF, 0xFF, 0xFF, 0xFE}, {0xFF, 0xFF, 0xFE}), at(0, 165 * 3600 + 165 * 60 + 164),
         true},
        {"no event", empty, {}, true},
        {"13 bytes", Bytes(empty.begin(), empty.begin() + 13), {}, false},
        {"nothing", {}, {}, false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        const ZUMHandle handle(7, 1, 2);
        TCDVBEITItem item(1, 0x0441, 0x0101, handle);
        // Each vector holds exactly its section, so that a read past it shows.
        const int length = static_cast<int>(c.section.size());
        EXPECT_EQ(item.Parse(length ? c.section.data() : nullptr, length, 3, 0, 0, 0x4E), c.result);
        EXPECT_EQ(item.IsRecvSection(0), c.result);
        EXPECT_EQ(item.IsComplete(), c.result);
        EXPECT_EQ(AllFields(item), c.events);
        EXPECT_EQ(item.LastTableId(), length > 13 ? c.section[13] : 0);
        EXPECT_EQ(item.DVBEITItemEvent(static_cast<unsigned>(c.events.size())), nullptr);
        if (!c.events.empty()) {
            const TCDVBEITItemEvent& e = *item.DVBEITItemEvent(0);
            EXPECT_TRUE(e.Handle() == handle && e.Flag() == 0 && e.TableId() == 0x4E);
            EXPECT_TRUE(item.FindDVBEitEvent(static_cast<unsigned short>(std::get<0>(c.events.back()))));
            EXPECT_FALSE(item.FindDVBEitEvent(0x1235));
        }
    }
}

// One item through present/following and a version change, then schedule segments.
TEST(DVBEITItem, SectionTrackingOfOneItem)
{
    // fresh: a new item for this step; held: the one event that the item holds afterwards.
    const struct { const char* what; bool fresh; EitFields section; unsigned eventId; bool result; const char* flags;
                   bool complete; unsigned held; } steps[] = {
        {"present", true, {0x4E, 3, 0, 1, 1}, 10, true, "10", false, 10},
        {"following replaces present", false, {0x4E, 3, 1, 1, 1}, 11, true, "11", true, 11},
        {"a repeat is no news", false, {0x4E, 3, 0, 1, 1}, 10, false, "11", true, 11},
        {"new version reopens", false, {0x4E, 4, 0, 1, 1}, 12, true, "10", false, 12},
        {"and completes", false, {0x4E, 4, 1, 1, 1}, 13, true, "11", true, 13},
        {"segment 0 ends at 2", true, {0x50, 3, 0, 15, 2}, 20, true, "1001111100000000", false, 20},
        {"its last section", false, {0x50, 3, 2, 15, 2}, 22, true, "1011111100000000", false, 22},
        {"segment 1 of one section", false, {0x50, 3, 8, 15, 8}, 28, true, "1011111111111111", false, 28},
        {"the gap filled", false, {0x50, 3, 1, 15, 2}, 21, true, "1111111111111111", true, 21},
        {"segment of one", true, {0x50, 3, 0, 15, 0}, 30, true, "1111111100000000", false, 30},
        {"segment end outside its segment", false, {0x50, 3, 8, 15, 3}, 31, false, "1111111110000000", false, 30},
    };
    std::unique_ptr<TCDVBEITItem> item;
    zumtest::LogCapture log;
    for (const auto& st : steps) {
        SCOPED_TRACE(st.what);
        if (st.fresh)
            item.reset(new TCDVBEITItem(1, 0x0441, 0x0101, ZUMHandle()));
        EventFields e;
        e.eventId = st.eventId;
        EXPECT_EQ(Feed(*item, Eit(st.section, Events({e}))), st.result);
        EXPECT_EQ(Flags(*item, static_cast<int>(st.section.last) + 1), st.flags);
        EXPECT_EQ(item->IsComplete(), st.complete);
        EXPECT_EQ(item->NumOfDVBEITItemEvent(), 1);
        EXPECT_TRUE(item->FindDVBEitEvent(static_cast<unsigned short>(st.held)));
    }
    EXPECT_EQ(log.Count("TCBaseSection::t_CheckSegment=> Invalid Segment Last Section Number. return false"), 1);
    EXPECT_EQ(item->VersionNumber(), 3);
}

// Section 1 of a table after a good compressed section 0 of three events.
TEST(DVBEITItem, CompressedLoopsUpTo4096Bytes)
{
    // Events of 256 bytes: a 12-byte header and one 244-byte descriptor.
    std::vector<EventFields> big(16);
    for (unsigned i = 0; i < big.size(); ++i)
        big[i] = {0x100 + i, Start(60369, 0, 0, 0), {0, 0, 0}, 0, 0, Desc(0x4E, Bytes(242, static_cast<uint8_t>(i)))};
    const Bytes all = Events(big), fifteen(all.begin(), all.end() - 256), good = zumtest::Deflate(Events({{}, {}, {}}));
    const Bytes two = Events({{0x0A01, Start(60369, 0, 0, 0), {0, 1, 0}, 2, 0, kShortEventLoop}, {0x0A02}});
    Bytes corrupt = good;
    corrupt[0] = 0x00;
    // line: the one DEBUG line, as a regular expression.
    const struct { const char* what; unsigned tableId; Bytes loop; unsigned events, lastId; const char* line; }
        cases[] = {
        {"0x80", 0x80, zumtest::Deflate(two), 2, 0x0A02, nullptr},
        {"0x9F", 0x9F, zumtest::Deflate(two), 2, 0x0A02, nullptr},
        {"0x7F is plain", 0x7F, two, 2, 0x0A02, nullptr},
        {"0xA0 is plain", 0xA0, two, 2, 0x0A02, nullptr},
        {"exactly 4096", 0x81, zumtest::Deflate(all), 16, 0x10F, nullptr},
        {"ends inside an event header", 0x81, zumtest::Deflate(Concat({fifteen, {0x0B, 0x01}})), 16, 0x0B01, nullptr},
        {"one byte over 4096", 0x81, zumtest::Deflate(Concat({all, {0}})), 0, 0,
         R"(\[TCDVBEITItem Error\] Z_BUF_ERROR ExtractCompressed line:\d+ rc=-5 bufferSize=4096)"},
        {"corrupt header", 0x80, corrupt, 0, 0,
         R"(\[TCDVBEITItem Error\] ExtractCompressed line:\d+ rc=-3 bufferSize=0)"},
        {"cut short", 0x80, Bytes(good.begin(), good.end() - 6), 0, 0,
         R"(\[TCDVBEITItem Error\] ExtractCompressed line:\d+ rc=-3 bufferSize=\d+)"},
        {"empty loop", 0x80, {}, 0, 0, nullptr},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        TCDVBEITItem item(1, 0x0441, 0x0101, ZUMHandle());
        ASSERT_TRUE(Feed(item, Eit({0x80, 3, 0, 1, 1}, good)));
        ASSERT_EQ(item.NumOfDVBEITItemEvent(), 3);
        zumtest::LogCapture log;
        // A refused section still counts as received, and the previous events are gone.
        EXPECT_EQ(Feed(item, Eit({c.tableId, 3, 1, 1, 1}, c.loop)), c.events > 0);
        EXPECT_TRUE(item.IsRecvSection(1));
        const std::vector<Decoded> events = AllFields(item);
        ASSERT_EQ(events.size(), c.events);
        EXPECT_TRUE(c.events == 0 || (std::get<0>(events.back()) == c.lastId &&
                                      item.DVBEITItemEvent(0)->TableId() == static_cast<int>(c.tableId)));
        if (c.events == 2) {
            EXPECT_EQ(events[0], Decoded(0x0A01, kLeapDay, 60, 2, 0, kShortEventLoop));
        }
        const std::vector<std::string> lines = log.Lines();
        EXPECT_TRUE(c.line ? lines.size() == 1 && std::regex_match(lines[0], std::regex(c.line)) : lines.empty())
            << testing::PrintToString(lines);
    }
}

// The target holds 4096 bytes whatever *targetLength says on entry.
TEST(DVBEITItem, ExtractCompressedTakesNoCapacity)
{
    const Bytes plain(300, 0x5A), packed = zumtest::Deflate(plain);
    Bytes target(TCDVBEITItem::kMaxEventBytes);
    for (unsigned int entry : {0u, 10u, 0xFFFFFFFFu}) {
        unsigned int size = entry;
        EXPECT_TRUE(TCDVBEITItem::ExtractCompressed(packed.data(), static_cast<unsigned int>(packed.size()),
                                                    target.data(), &size));
        EXPECT_EQ(Bytes(target.begin(), target.begin() + size), plain);
    }
}

TEST(DVBEITItemEvent, ParsingAgainDropsThePreviousLoop)
{
    const Bytes record = Events({{1, Start(60369, 0, 0, 0), {0, 0, 0}, 0, 0, kShortEventLoop}}), bare = Events({{}});
    TCDVBEITItemEvent e{ZUMHandle()};
    EXPECT_EQ(e.Parse(record.data(), 0x50, 5), static_cast<int>(record.size()));
    EXPECT_EQ(e.Parse(bare.data(), 0x4E, 0), 12);
    EXPECT_EQ(e.Descriptors(), nullptr);
    EXPECT_EQ(e.DescriptorsLength(), 0);
}

// Real EIT sections: every one is taken by the parser, every new one decodes into events that fill the section
// exactly, with sane times, and only a repeat is turned away.
TEST(DVBEITCapture, RecordedSectionsDecode)
{
    const std::string dir = ZUM_CAPTURES_DIR;
    // Czech p/f and schedule, Italian p/f among other tables, Brazilian ISDB-Tb p/f.
    const char* files[] = {"tsduck_tsduck-test__test-038.bin", "tsduck_tsduck-test__ref_test-002.tstables.bin",
                           "tsduck_tsduck-test__ref_test-170.tstables.bin"};
    if (!std::ifstream(dir + "/" + files[0]))
        GTEST_SKIP() << "no captures at " << dir;
    const unsigned int year2000 = 630720000u, year2040 = 1893024000u; // seconds since 6 January 1980
    int eitSections = 0, events = 0;
    for (const char* file : files) {
        SCOPED_TRACE(file);
        std::ifstream in(dir + "/" + file, std::ios::binary);
        const Bytes all((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
        TCDVBEITParser parser(0x4E, ZUMHandle());
        std::map<std::tuple<int, int, int, int>, std::unique_ptr<TCDVBEITItem>> items; // as a guide keeps them
        std::map<std::tuple<int, int, int, int>, std::set<Bytes>> seen;
        zumtest::LogCapture log;
        for (size_t at = 0, size = 0; at + 3 <= all.size(); at += size) {
            size = static_cast<size_t>(((all[at + 1] & 0x0F) << 8) | all[at + 2]) + 3;
            if (at + size > all.size())
                break;
            // Each vector holds exactly its section, so that a read past it shows.
            const Bytes s(all.begin() + static_cast<long>(at), all.begin() + static_cast<long>(at + size));
            if (s[0] < 0x4E || s[0] > 0x6F)
                continue;
            ++eitSections;
            ASSERT_GE(s.size(), 18u);
            parser.Parse(0x12, s.data());
            const auto sid = static_cast<unsigned short>((s[3] << 8) | s[4]);
            const auto tsid = static_cast<unsigned short>((s[8] << 8) | s[9]);
            const auto onid = static_cast<unsigned short>((s[10] << 8) | s[11]);
            EXPECT_NE(parser.EITInstance(TCServiceKey(onid, tsid, sid)), nullptr);
            const auto key = std::make_tuple(int(onid), int(tsid), int(sid), int(s[0]));
            std::unique_ptr<TCDVBEITItem>& item = items[key];
            if (!item)
                item.reset(new TCDVBEITItem(onid, tsid, sid, ZUMHandle()));
            const bool known = !seen[key].insert(s).second;
            if (!Feed(*item, s)) {
                EXPECT_TRUE(known) << "section " << int(s[6]) << " of service " << sid;
                continue;
            }
            size_t covered = 0;
            events += item->NumOfDVBEITItemEvent();
            for (const Decoded& e : AllFields(*item)) {
                covered += 12u + std::get<5>(e).size();
                EXPECT_TRUE(std::get<1>(e) == 0xFFFFFFFFu || (std::get<1>(e) >= year2000 && std::get<1>(e) < year2040));
                EXPECT_TRUE(std::get<2>(e) == 0xFFFFFFu || std::get<2>(e) <= 7u * 86400u) << std::get<2>(e);
            }
            EXPECT_EQ(covered, s.size() - 18) << "section " << int(s[6]) << " of service " << sid;
        }
        EXPECT_TRUE(log.Lines(DLOG_ERROR).empty());
    }
    EXPECT_GT(eitSections, 300);
    EXPECT_GT(events, 800);
}
