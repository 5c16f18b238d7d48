#include <gtest/gtest.h>

#include <zlib.h>

#include <ctime>
#include <functional>
#include <regex>
#include <string>
#include <vector>

#include <zum-platform/Dlog.h>

#include "dvb/DVBEITParser.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"

using zumtest::ByteWriter;
using zumtest::Bytes;
using zumtest::Desc;
using zumtest::SectionBuilder;
using zumtest::SectionHeader;

namespace {

// Seconds since 6 January 1980 of a UTC calendar time, by the C library.
unsigned int Since1980(int year, int month, int day, int hour, int minute, int second)
{
    std::tm tm{};
    tm.tm_year = year - 1900;
    tm.tm_mon = month - 1;
    tm.tm_mday = day;
    tm.tm_hour = hour;
    tm.tm_min = minute;
    tm.tm_sec = second;
    return static_cast<unsigned int>(timegm(&tm) - 315964800);
}

// MJD, then hours, minutes, seconds written as BCD literals (0x23 for 23).
Bytes Start(unsigned mjd, unsigned hh, unsigned mm, unsigned ss)
{
    return {static_cast<uint8_t>(mjd >> 8), static_cast<uint8_t>(mjd), static_cast<uint8_t>(hh),
            static_cast<uint8_t>(mm), static_cast<uint8_t>(ss)};
}

const Bytes kUndefinedStart{0xFF, 0xFF, 0xFF, 0xFF, 0xFF};
const Bytes kUndefinedDuration{0xFF, 0xFF, 0xFF};

struct EventFields {
    unsigned eventId = 1;
    Bytes start = Start(60369, 0x20, 0x00, 0x00);
    Bytes duration = {0x00, 0x30, 0x00};
    unsigned running = 0;
    unsigned freeCa = 0;
    Bytes loop;
};

Bytes Event(const EventFields& e)
{
    ByteWriter w;
    w.U16(e.eventId).Raw(e.start).Raw(e.duration);
    w.Begin16(12, (e.running << 13) | (e.freeCa << 12)).Raw(e.loop).End();
    return w.Data();
}

Bytes Events(const std::vector<EventFields>& events)
{
    Bytes out;
    for (const EventFields& e : events)
        out = zumtest::Concat({out, Event(e)});
    return out;
}

struct EitFields {
    unsigned tableId = 0x4E;
    unsigned serviceId = 0x0101;
    unsigned tsid = 0x0441;
    unsigned onid = 0x0001;
    unsigned version = 3;
    unsigned section = 0;
    unsigned last = 0;
    unsigned segmentLast = 0;
    unsigned lastTableId = 0x4E;
};

Bytes Eit(const EitFields& s, const Bytes& loop)
{
    SectionHeader h;
    h.tableId = s.tableId;
    h.extension = s.serviceId;
    h.version = s.version;
    h.sectionNumber = s.section;
    h.lastSectionNumber = s.last;
    SectionBuilder b(h);
    b.U16(s.tsid).U16(s.onid).U8(s.segmentLast).U8(s.lastTableId).Raw(loop);
    return b.Build();
}

Bytes Compressed(const Bytes& plain)
{
    uLongf size = compressBound(plain.size());
    Bytes out(size);
    EXPECT_EQ(compress(out.data(), &size, plain.data(), plain.size()), Z_OK);
    out.resize(size);
    return out;
}

// What a caller does: header fields from the section, then the item.
bool Feed(TCDVBEITItem& item, const Bytes& s)
{
    return item.Parse(s.data(), static_cast<int>(s.size()), (s[5] >> 1) & 0x1F, s[6], s[7], s[0]);
}

// One event's fields in one line, to compare decodings.
std::string Fields(const TCDVBEITItemEvent& e)
{
    std::string out = std::to_string(e.EventId()) + " " + std::to_string(e.StartTime()) + " " +
                      std::to_string(e.Duration()) + " " + std::to_string(e.RunningStatus()) + " " +
                      std::to_string(e.FreeCaMode()) + " [";
    for (int i = 0; i < e.DescriptorsLength(); ++i)
        out += std::to_string(e.Descriptors()[i]) + ",";
    return out + "]";
}

std::vector<std::string> AllFields(const TCDVBEITItem& item)
{
    std::vector<std::string> out;
    for (int i = 0; i < item.NumOfDVBEITItemEvent(); ++i)
        out.push_back(Fields(*item.DVBEITItemEvent(static_cast<unsigned>(i))));
    return out;
}

std::string Flags(const TCBaseSection& t, int count)
{
    std::string out;
    for (int s = 0; s < count; ++s)
        out += t.IsRecvSection(s) ? '1' : '0';
    return out;
}

const Bytes kShortEventLoop = Desc(0x4D, {'e', 'n', 'g', 4, 'N', 'e', 'w', 's', 0});
const Bytes kContentLoop = Desc(0x54, {0x20, 0x00});

// Events of 256 bytes: a 12-byte header and one 244-byte descriptor.
Bytes BigEvents(int count)
{
    std::vector<EventFields> events;
    for (int i = 0; i < count; ++i) {
        EventFields e;
        e.eventId = static_cast<unsigned>(0x100 + i);
        e.loop = Desc(0x4E, Bytes(242, static_cast<uint8_t>(i)));
        events.push_back(e);
    }
    return Events(events);
}

} // namespace

TEST(DVBEITParser, TableIdPredicates)
{
    struct Case {
        unsigned tableId;
        bool presentFollowing, actual;
    } cases[] = {
        {0x4E, true, true},   {0x4F, true, false},  {0x50, false, true}, {0x51, false, true},
        {0x52, false, false}, {0x5F, false, false}, {0x60, false, false}, {0x6F, false, false},
        {0x80, false, true},  {0x81, false, true},  {0x82, false, false}, {0xD0, true, false},
        {0xD1, true, false},  {0xD2, false, false}, {0x00, false, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.tableId);
        EXPECT_EQ(TCDVBEITParser::IsEITPFTable(static_cast<unsigned char>(c.tableId)), c.presentFollowing);
        EXPECT_EQ(TCDVBEITParser::IsEITActualTable(static_cast<unsigned char>(c.tableId)), c.actual);
    }
}

// True means "new section", whatever the completeness of the table.
TEST(DVBEITParser, AnswersTrueForEveryNewSectionOfEachService)
{
    EitFields a;
    a.last = 1;
    a.segmentLast = 1;
    EitFields a1 = a;
    a1.section = 1;
    EitFields b = a;
    b.serviceId = 0x0102;
    EitFields sameSidOtherNetwork = a;
    sameSidOtherNetwork.onid = 0x0002;
    EitFields aOther = a;
    aOther.tableId = 0x4F;
    EitFields aNewVersion = a;
    aNewVersion.version = 4;

    struct Step {
        const char* what;
        Bytes section;
        bool result;
    } steps[] = {
        {"first section of A", Eit(a, {}), true},
        {"repeated", Eit(a, {}), false},
        {"second section of A", Eit(a1, {}), true},
        {"another service", Eit(b, {}), true},
        {"same service id in another network", Eit(sameSidOtherNetwork, {}), true},
        {"A's second section repeated", Eit(a1, {}), false},
        {"another table id of A shares A's tracker", Eit(aOther, Event({})), true},
        {"it repeated", Eit(aOther, Event({})), false},
        {"new version", Eit(aNewVersion, {}), true},
        {"back to the old version", Eit(a, {}), true},
    };
    TCDVBEITParser parser(0x4E, ZUMHandle());
    parser.Initialize();
    for (const Step& s : steps) {
        SCOPED_TRACE(s.what);
        EXPECT_EQ(parser.Parse(0x12, s.section.data()), s.result);
    }

    TCDVBEITInstance* instance = parser.EITInstance(TCServiceKey(0x0001, 0x0441, 0x0101));
    ASSERT_NE(instance, nullptr);
    EXPECT_EQ(instance->TransportStreamId(), 0x0441);
    EXPECT_EQ(instance->OriginalNetworkId(), 0x0001);
    EXPECT_EQ(instance->LastTableId(), 0x4E);
    EXPECT_NE(parser.EITInstance(TCServiceKey(0x0002, 0x0441, 0x0101)), nullptr);
    EXPECT_EQ(parser.EITInstance(TCServiceKey(0x0001, 0x0441, 0x0103)), nullptr);
}

TEST(DVBEITParser, LogsTheVerdictOfEachSection)
{
    EitFields s;
    s.tableId = 0x50;
    s.last = 9;
    s.section = 8;
    s.segmentLast = 9;
    s.lastTableId = 0x51;
    const Bytes section = Eit(s, {});
    TCDVBEITParser parser(0x50, ZUMHandle());
    zumtest::LogCapture log;
    EXPECT_TRUE(parser.Parse(0x12, section.data()));
    EXPECT_FALSE(parser.Parse(0x12, section.data()));
    EXPECT_EQ(log.Lines(DLOG_DEBUG),
              (std::vector<std::string>{
                  "EIT Parsing => bCheckVerResult = 1, Version Number = 3 [TSID/ONID/SID] = [0x441/0x1/0x101] "
                  "tableId = 0x51 sec = 8 , lastSec = 9",
                  "EIT Parsing => bCheckVerResult = 0, Version Number = 3 [TSID/ONID/SID] = [0x441/0x1/0x101] "
                  "tableId = 0x51 sec = 8 , lastSec = 9"}));
}

TEST(DVBEITParser, RefusesSectionsShorterThanAnEmptyEit)
{
    struct Case {
        int bodyBytes; // behind the 8 header bytes, before the CRC_32
        bool accepted;
        const char* line;
    } cases[] = {
        {6, true, nullptr},
        {5, false, "[TCDVBEITParser::t_Parse] eit section too short, length:17"},
        {0, false, "[TCDVBEITParser::t_Parse] eit section too short, length:12"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.bodyBytes);
        SectionHeader h;
        h.tableId = 0x4E;
        h.extension = 0x0101;
        const Bytes head{0x04, 0x41, 0x00, 0x01, 0x00, 0x4E}; // ids, segment end, last table id
        SectionBuilder b(h);
        b.Raw(Bytes(head.begin(), head.begin() + c.bodyBytes));
        const Bytes section = b.Build();
        TCDVBEITParser parser(0x4E, ZUMHandle());
        zumtest::LogCapture log;
        EXPECT_EQ(parser.Parse(0x12, section.data()), c.accepted);
        EXPECT_EQ(parser.EITInstance(TCServiceKey(0x0001, 0x0441, 0x0101)) != nullptr, c.accepted);
        if (c.line)
            EXPECT_EQ(log.Lines(DLOG_ERROR), std::vector<std::string>{c.line});
        else
            EXPECT_TRUE(log.Lines(DLOG_ERROR).empty());
    }
}

TEST(DVBEITParser, RemoveSectionAndInitialize)
{
    EitFields a;
    a.last = 1;
    a.segmentLast = 1;
    EitFields b = a;
    b.serviceId = 0x0202;
    TCDVBEITParser parser(0x4E, ZUMHandle());
    ASSERT_TRUE(parser.Parse(0x12, Eit(a, {}).data()));
    ASSERT_TRUE(parser.Parse(0x12, Eit(b, {}).data()));

    EXPECT_TRUE(parser.RemoveSection(0x0001, 0x0441, 0x0101, 0));
    EXPECT_TRUE(parser.Parse(0x12, Eit(a, {}).data()));
    EXPECT_FALSE(parser.Parse(0x12, Eit(b, {}).data()));

    EXPECT_FALSE(parser.RemoveSection(0x0001, 0x0441, 0x0303, 0));
    EXPECT_FALSE(parser.RemoveSection(0x0001, 0x0441, 0x0101, 2));

    parser.Initialize();
    EXPECT_EQ(parser.EITInstance(TCServiceKey(0x0001, 0x0441, 0x0101)), nullptr);
    EXPECT_FALSE(parser.RemoveSection(0x0001, 0x0441, 0x0101, 0));
    EXPECT_TRUE(parser.Parse(0x12, Eit(b, {}).data()));
}

TEST(DVBEITItem, DecodesEventsWithTheirRawDescriptorLoops)
{
    EventFields news;
    news.eventId = 0x1234;
    news.start = Start(60369, 0x12, 0x34, 0x56);
    news.duration = {0x01, 0x30, 0x00};
    news.running = 4;
    news.freeCa = 1;
    news.loop = zumtest::Concat({kShortEventLoop, kContentLoop});
    EventFields bare;
    bare.eventId = 0x0001;
    bare.start = kUndefinedStart;
    bare.duration = kUndefinedDuration;
    bare.running = 7;
    EitFields s;
    s.segmentLast = 0;
    s.lastTableId = 0x4F;
    const Bytes section = Eit(s, Events({news, bare}));

    const ZUMHandle handle(7, 1, 2);
    TCDVBEITItem item(0x0001, 0x0441, 0x0101, handle);
    ASSERT_TRUE(Feed(item, section));
    EXPECT_TRUE(item.IsComplete());
    EXPECT_EQ(item.SegmentLastSectionNumber(), 0);
    EXPECT_EQ(item.LastTableId(), 0x4F);
    ASSERT_EQ(item.NumOfDVBEITItemEvent(), 2);

    const TCDVBEITItemEvent* e = item.DVBEITItemEvent(0);
    EXPECT_EQ(e->Handle(), handle);
    EXPECT_EQ(e->TableId(), 0x4E);
    EXPECT_EQ(e->Flag(), 0);
    EXPECT_EQ(e->EventId(), 0x1234);
    EXPECT_EQ(e->StartTime(), Since1980(2024, 2, 29, 12, 34, 56));
    EXPECT_EQ(e->Duration(), 5400u);
    EXPECT_EQ(e->RunningStatus(), 4);
    EXPECT_EQ(e->FreeCaMode(), 1);
    ASSERT_EQ(e->DescriptorsLength(), news.loop.size());
    EXPECT_EQ(Bytes(e->Descriptors(), e->Descriptors() + e->DescriptorsLength()), news.loop);

    e = item.DVBEITItemEvent(1);
    EXPECT_EQ(e->EventId(), 0x0001);
    EXPECT_EQ(e->StartTime(), 0xFFFFFFFFu);
    EXPECT_EQ(e->Duration(), 0xFFFFFFu);
    EXPECT_EQ(e->RunningStatus(), 7);
    EXPECT_EQ(e->FreeCaMode(), 0);
    EXPECT_EQ(e->Descriptors(), nullptr);
    EXPECT_EQ(e->DescriptorsLength(), 0);

    EXPECT_EQ(item.DVBEITItemEvent(2), nullptr);
    EXPECT_TRUE(item.FindDVBEitEvent(0x1234));
    EXPECT_FALSE(item.FindDVBEitEvent(0x1235));
    EXPECT_EQ(item.OriginalNetworkId(), 0x0001);
    EXPECT_EQ(item.TransportStreamId(), 0x0441);
    EXPECT_EQ(item.ServiceId(), 0x0101);
}

TEST(DVBEITItem, PresentFollowingHoldsOneSectionAtATime)
{
    EitFields present;
    present.last = 1;
    present.segmentLast = 1;
    EitFields following = present;
    following.section = 1;
    EventFields now;
    now.eventId = 10;
    EventFields next;
    next.eventId = 11;

    TCDVBEITItem item(1, 0x0441, 0x0101, ZUMHandle());
    EXPECT_TRUE(Feed(item, Eit(present, Event(now))));
    EXPECT_FALSE(item.IsComplete());
    EXPECT_TRUE(item.FindDVBEitEvent(10));
    EXPECT_TRUE(Feed(item, Eit(following, Event(next))));
    EXPECT_TRUE(item.IsComplete());
    EXPECT_EQ(item.SectionNumber(), 1);
    EXPECT_FALSE(item.FindDVBEitEvent(10));
    EXPECT_TRUE(item.FindDVBEitEvent(11));

    // A repeat is no news and leaves the events in hand.
    EXPECT_FALSE(Feed(item, Eit(present, Event(now))));
    EXPECT_TRUE(item.FindDVBEitEvent(11));
    EXPECT_EQ(item.NumOfDVBEITItemEvent(), 1);
}

// Two segments of a schedule, each shorter than its 8 section numbers.
TEST(DVBEITItem, ScheduleSegmentsWithMissingTrailingSections)
{
    struct Step {
        unsigned section, segmentLast;
        const char* flags; // sections 0..15 counted as received
        bool complete;
    } steps[] = {
        {0, 2, "1001111100000000", false},
        {2, 2, "1011111100000000", false},
        {8, 8, "1011111111111111", false},
        {1, 2, "1111111111111111", true},
    };
    TCDVBEITItem item(1, 0x0441, 0x0101, ZUMHandle());
    for (const Step& st : steps) {
        SCOPED_TRACE(st.section);
        EitFields s;
        s.tableId = 0x50;
        s.lastTableId = 0x51;
        s.last = 15;
        s.section = st.section;
        s.segmentLast = st.segmentLast;
        EventFields e;
        e.eventId = 0x200 + st.section;
        EXPECT_TRUE(Feed(item, Eit(s, Event(e))));
        EXPECT_EQ(Flags(item, 16), st.flags);
        EXPECT_EQ(item.IsComplete(), st.complete);
        EXPECT_TRUE(item.FindDVBEitEvent(static_cast<unsigned short>(0x200 + st.section)));
    }
    EXPECT_TRUE(item.IsRecvSegment(0, 1));
}

TEST(DVBEITItem, SegmentEndOutsideItsSegmentIsRefused)
{
    EitFields s;
    s.tableId = 0x50;
    s.last = 15;
    s.segmentLast = 0;
    EventFields first;
    first.eventId = 1;
    TCDVBEITItem item(1, 0x0441, 0x0101, ZUMHandle());
    ASSERT_TRUE(Feed(item, Eit(s, Event(first))));

    s.section = 8;
    s.segmentLast = 3;
    EventFields second;
    second.eventId = 2;
    zumtest::LogCapture log;
    EXPECT_FALSE(Feed(item, Eit(s, Event(second))));
    EXPECT_EQ(log.Lines(DLOG_DEBUG), std::vector<std::string>{
                                         "TCBaseSection::t_CheckSegment=> Invalid Segment Last Section Number. "
                                         "return false"});
    // The section stays marked; its events were never read.
    EXPECT_TRUE(item.IsRecvSection(8));
    EXPECT_TRUE(item.FindDVBEitEvent(1));
    EXPECT_FALSE(item.FindDVBEitEvent(2));
}

TEST(DVBEITItem, VersionChangeReplacesEventsAndReopensTheTable)
{
    EitFields v1;
    v1.version = 1;
    EitFields v2 = v1;
    v2.version = 2;
    v2.last = 1;
    v2.segmentLast = 1;
    EitFields v2second = v2;
    v2second.section = 1;
    EventFields old;
    old.eventId = 100;
    EventFields fresh;
    fresh.eventId = 200;

    TCDVBEITItem item(1, 0x0441, 0x0101, ZUMHandle());
    ASSERT_TRUE(Feed(item, Eit(v1, Event(old))));
    EXPECT_TRUE(item.IsComplete());
    EXPECT_EQ(item.VersionNumber(), 1);

    EXPECT_TRUE(Feed(item, Eit(v2, Event(fresh))));
    EXPECT_FALSE(item.IsComplete());
    EXPECT_EQ(item.VersionNumber(), 2);
    EXPECT_FALSE(item.FindDVBEitEvent(100));
    EXPECT_TRUE(item.FindDVBEitEvent(200));
    EXPECT_EQ(Flags(item, 2), "10");

    EXPECT_TRUE(Feed(item, Eit(v2second, {})));
    EXPECT_TRUE(item.IsComplete());
    EXPECT_EQ(item.NumOfDVBEITItemEvent(), 0);
}

TEST(DVBEITItem, StartTimesAndDurations)
{
    struct Case {
        const char* what;
        Bytes start, duration;
        unsigned int startTime, durationSeconds;
    } cases[] = {
        {"day 0", Start(44244, 0x00, 0x00, 0x00), {0x00, 0x00, 0x00}, 0, 0},
        {"undefined", kUndefinedStart, kUndefinedDuration, 0xFFFFFFFFu, 0xFFFFFFu},
        {"last second of a year", Start(60309, 0x23, 0x59, 0x59), {0x23, 0x59, 0x59},
         Since1980(2023, 12, 31, 23, 59, 59), 86399},
        {"midnight", Start(60310, 0x00, 0x00, 0x00), {0x24, 0x00, 0x00}, Since1980(2024, 1, 1, 0, 0, 0), 86400},
        {"24:00:00 is the next midnight", Start(60309, 0x24, 0x00, 0x00), {0x00, 0x00, 0x01},
         Since1980(2024, 1, 1, 0, 0, 0), 1},
        {"eve of a leap day", Start(60368, 0x23, 0x59, 0x59), {0x00, 0x00, 0x01}, Since1980(2024, 2, 28, 23, 59, 59),
         1},
        {"leap day", Start(60369, 0x00, 0x00, 0x00), {0x00, 0x01, 0x00}, Since1980(2024, 2, 29, 0, 0, 0), 60},
        {"end of a leap day", Start(60369, 0x23, 0x59, 0x59), {0x01, 0x00, 0x00}, Since1980(2024, 2, 29, 23, 59, 59),
         3600},
        {"after a leap day", Start(60370, 0x00, 0x00, 0x00), {0x00, 0x00, 0x00}, Since1980(2024, 3, 1, 0, 0, 0), 0},
        {"leap day of 2000", Start(51603, 0x12, 0x00, 0x00), {0x00, 0x00, 0x00}, Since1980(2000, 2, 29, 12, 0, 0), 0},
        {"leap second", Start(57753, 0x23, 0x59, 0x60), {0x00, 0x00, 0x60}, Since1980(2017, 1, 1, 0, 0, 0), 60},
        {"hours 25", Start(60369, 0x25, 0x00, 0x00), {0x25, 0x00, 0x00}, 0, 90000},
        {"minutes 61", Start(60369, 0x00, 0x61, 0x00), {0x00, 0x00, 0x00}, 0, 0},
        {"day before day 0 wraps", Start(44243, 0x00, 0x00, 0x00), {0x00, 0x00, 0x00},
         Since1980(1980, 1, 5, 0, 0, 0), 0},
        // All bits set but one byte: converted, not undefined.
        {"MJD 65535", {0xFF, 0xFF, 0x00, 0x00, 0x00}, {0x00, 0xFF, 0xFF}, Since1980(2038, 4, 22, 0, 0, 0),
         165 * 60 + 165},
        {"broken hours", {0xFF, 0xFF, 0xFF, 0xFF, 0xFE}, {0xFF, 0xFF, 0xFE}, 0,
         165 * 3600 + 165 * 60 + 164},
    };
    std::vector<EventFields> events;
    for (const Case& c : cases) {
        EventFields e;
        e.eventId = static_cast<unsigned>(events.size());
        e.start = c.start;
        e.duration = c.duration;
        events.push_back(e);
    }
    TCDVBEITItem item(1, 0x0441, 0x0101, ZUMHandle());
    ASSERT_TRUE(Feed(item, Eit(EitFields{}, Events(events))));
    ASSERT_EQ(item.NumOfDVBEITItemEvent(), static_cast<int>(events.size()));
    for (size_t i = 0; i < events.size(); ++i) {
        SCOPED_TRACE(cases[i].what);
        const TCDVBEITItemEvent* e = item.DVBEITItemEvent(static_cast<unsigned>(i));
        EXPECT_EQ(e->StartTime(), cases[i].startTime);
        EXPECT_EQ(e->Duration(), cases[i].durationSeconds);
    }
}

TEST(DVBEITItem, CompressedEventLoopsByTableId)
{
    EventFields first;
    first.eventId = 0x0A01;
    first.running = 2;
    first.loop = kShortEventLoop;
    EventFields second;
    second.eventId = 0x0A02;
    second.freeCa = 1;
    second.loop = kContentLoop;
    const Bytes plain = Events({first, second});

    TCDVBEITItem reference(1, 0x0441, 0x0101, ZUMHandle());
    ASSERT_TRUE(Feed(reference, Eit(EitFields{}, plain)));
    const std::vector<std::string> expected = AllFields(reference);
    ASSERT_EQ(expected.size(), 2u);

    struct Case {
        unsigned tableId;
        bool compressed;
    } cases[] = {{0x80, true}, {0x81, true}, {0x9F, true}, {0x7F, false}, {0xA0, false}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.tableId);
        EitFields s;
        s.tableId = c.tableId;
        TCDVBEITItem item(1, 0x0441, 0x0101, ZUMHandle());
        zumtest::LogCapture log;
        EXPECT_TRUE(Feed(item, Eit(s, c.compressed ? Compressed(plain) : plain)));
        EXPECT_EQ(AllFields(item), expected);
        EXPECT_EQ(item.DVBEITItemEvent(0)->TableId(), static_cast<int>(c.tableId));
        EXPECT_TRUE(log.Lines().empty());
    }
}

TEST(DVBEITItem, BrokenCompressedLoopsAreRefused)
{
    EventFields e;
    e.loop = kShortEventLoop;
    const Bytes good = Compressed(Events({e, e, e}));

    struct Case {
        const char* what;
        std::function<Bytes()> loop;
        const char* line; // regular expression of the one DEBUG line
    } cases[] = {
        {"corrupt header", [&] { Bytes b = good; b[0] = 0x00; return b; },
         R"(\[TCDVBEITItem Error\] ExtractCompressed line:\d+ rc=-3 bufferSize=0)"},
        {"cut short", [&] { return Bytes(good.begin(), good.end() - 6); },
         R"(\[TCDVBEITItem Error\] ExtractCompressed line:\d+ rc=-3 bufferSize=\d+)"},
        {"bad checksum", [&] { Bytes b = good; b.back() ^= 0x01; return b; },
         R"(\[TCDVBEITItem Error\] ExtractCompressed line:\d+ rc=-3 bufferSize=\d+)"},
        {"plain bytes", [&] { return Events({e}); },
         R"(\[TCDVBEITItem Error\] ExtractCompressed line:\d+ rc=-3 bufferSize=0)"},
        {"empty loop", [] { return Bytes{}; }, nullptr},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        TCDVBEITItem item(1, 0x0441, 0x0101, ZUMHandle());
        EitFields first;
        first.tableId = 0x80;
        first.last = 1;
        first.segmentLast = 1;
        ASSERT_TRUE(Feed(item, Eit(first, good)));
        ASSERT_EQ(item.NumOfDVBEITItemEvent(), 3);

        EitFields second = first;
        second.section = 1;
        zumtest::LogCapture log;
        EXPECT_FALSE(Feed(item, Eit(second, c.loop())));
        // The previous section's events are gone, and the section counts as received.
        EXPECT_EQ(item.NumOfDVBEITItemEvent(), 0);
        EXPECT_TRUE(item.IsRecvSection(1));
        const std::vector<std::string> lines = log.Lines();
        if (c.line) {
            ASSERT_EQ(lines.size(), 1u);
            EXPECT_TRUE(std::regex_match(lines[0], std::regex(c.line))) << lines[0];
        } else {
            EXPECT_TRUE(lines.empty());
        }
    }
}

TEST(DVBEITItem, DecompressedLoopIsLimitedTo4096Bytes)
{
    struct Case {
        int events, tail;
        bool accepted;
        int decoded;
    } cases[] = {{16, 0, true, 16}, {15, 11, true, 15}, {16, 1, false, 0}, {17, 0, false, 0}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.events * 256 + c.tail);
        const Bytes plain = zumtest::Concat({BigEvents(c.events), Bytes(static_cast<size_t>(c.tail), 0)});
        EitFields s;
        s.tableId = 0x81;
        TCDVBEITItem item(1, 0x0441, 0x0101, ZUMHandle());
        zumtest::LogCapture log;
        EXPECT_EQ(Feed(item, Eit(s, Compressed(plain))), c.accepted);
        EXPECT_EQ(item.NumOfDVBEITItemEvent(), c.decoded);
        if (c.accepted) {
            EXPECT_TRUE(log.Lines().empty());
            EXPECT_TRUE(item.FindDVBEitEvent(static_cast<unsigned short>(0x100 + c.events - 1)));
            EXPECT_EQ(item.DVBEITItemEvent(0)->DescriptorsLength(), 244);
        } else {
            ASSERT_EQ(log.Lines().size(), 1u);
            EXPECT_TRUE(std::regex_match(
                log.Lines()[0],
                std::regex(R"(\[TCDVBEITItem Error\] Z_BUF_ERROR ExtractCompressed line:\d+ rc=-5 bufferSize=4096)")))
                << log.Lines()[0];
        }
    }
}

// Event bytes that end inside an event: nothing is read past the section.
TEST(DVBEITItem, EventsEndingEarlyKeepWhatIsThere)
{
    EventFields whole;
    whole.eventId = 1;
    whole.loop = kContentLoop;
    ByteWriter overlong;
    overlong.U16(2).Raw(Start(60369, 0x10, 0x00, 0x00)).Raw({0x00, 0x10, 0x00});
    overlong.U16(0x8000 | 0x0FFF).Raw({0x54, 0x02, 0x11});

    struct Case {
        const char* what;
        Bytes tail;
        int events;
        Bytes lastLoop;
    } cases[] = {
        {"loop longer than the section", overlong.Data(), 2, {0x54, 0x02, 0x11}},
        {"header cut at 11 bytes", Bytes(overlong.Data().begin(), overlong.Data().begin() + 11), 1, kContentLoop},
        {"header of 12 bytes and no loop", Bytes(overlong.Data().begin(), overlong.Data().begin() + 12), 2, {}},
        {"nothing", {}, 1, kContentLoop},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        TCDVBEITItem item(1, 0x0441, 0x0101, ZUMHandle());
        EXPECT_TRUE(Feed(item, Eit(EitFields{}, zumtest::Concat({Event(whole), c.tail}))));
        ASSERT_EQ(item.NumOfDVBEITItemEvent(), c.events);
        const TCDVBEITItemEvent* last = item.DVBEITItemEvent(static_cast<unsigned>(c.events - 1));
        EXPECT_EQ(Bytes(last->Descriptors(), last->Descriptors() + last->DescriptorsLength()), c.lastLoop);
        if (c.events == 2) {
            EXPECT_EQ(last->EventId(), 2);
            EXPECT_EQ(last->RunningStatus(), 4);
            EXPECT_EQ(last->Duration(), 600u);
        }
    }
}

TEST(DVBEITItem, RefusesSectionsTooShortForTheirHeader)
{
    EventFields e;
    const Bytes section = Eit(EitFields{}, Event(e));
    TCDVBEITItem item(1, 0x0441, 0x0101, ZUMHandle());
    for (int length = 0; length < 14; ++length) {
        SCOPED_TRACE(length);
        // Exactly `length` bytes on the heap, so that a read past them shows.
        const Bytes cut(section.begin(), section.begin() + length);
        EXPECT_FALSE(item.Parse(length ? cut.data() : nullptr, length, 3, 0, 0, 0x4E));
        EXPECT_FALSE(item.IsRecvSection(0));
    }
    // Header and CRC_32 only, plain or compressed.
    const Bytes empty = Eit(EitFields{}, {});
    ASSERT_EQ(empty.size(), 18u);
    EXPECT_TRUE(Feed(item, empty));
    EXPECT_EQ(item.NumOfDVBEITItemEvent(), 0);
    TCDVBEITItem compressed(1, 0x0441, 0x0101, ZUMHandle());
    EitFields s;
    s.tableId = 0x80;
    EXPECT_FALSE(Feed(compressed, Eit(s, {})));
}

TEST(DVBEITItemEvent, ParsesOneRecordInPlace)
{
    EventFields fields;
    fields.loop = kShortEventLoop;
    const Bytes record = Event(fields);
    const Bytes bare = Event(EventFields{});
    TCDVBEITItemEvent e{ZUMHandle()};
    EXPECT_EQ(e.Parse(record.data(), 0x50, 5), static_cast<int>(record.size()));
    EXPECT_EQ(e.Flag(), 5);
    EXPECT_EQ(e.DescriptorsLength(), kShortEventLoop.size());
    // Parsing again drops the previous loop.
    EXPECT_EQ(e.Parse(bare.data(), 0x4E, 0), 12);
    EXPECT_EQ(e.Descriptors(), nullptr);
    EXPECT_EQ(e.ConvertBCDtoSec(Bytes{0x12, 0x34, 0x56}.data()), 12u * 3600 + 34 * 60 + 56);
}
