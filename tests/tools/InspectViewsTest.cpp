// The inspector as a person reads it: the standards' names of code points,
// values in their units, the filters and views of the command line on the
// sample, and the whole tree of one real capture against a reviewed file.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "inspect/Format.h"
#include "inspect/Names.h"
#include "inspect/Renderers.h"
#include "inspect/Session.h"
#include "inspect/Views.h"
#include "support/TestEnvironment.h"

namespace fs = std::filesystem;
using zuminspect::BroadcastSystem;
using zuminspect::Json;

namespace {

const BroadcastSystem kDvb = BroadcastSystem::Dvb;
const BroadcastSystem kAtsc = BroadcastSystem::Atsc;
const BroadcastSystem kIsdb = BroadcastSystem::Isdb;

std::vector<uint8_t> ReadFile(const fs::path& path)
{
    std::ifstream in(path, std::ios::binary);
    return std::vector<uint8_t>((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

Json Inspect(const std::vector<uint8_t>& data, const std::string& country = "GBR")
{
    const zuminspect::InspectSettings settings{country, 0, 0, "", false};
    zumtest::BinderScope binder(zuminspect::BinderSettingsFor(settings));
    zuminspect::Session session(zuminspect::DetectInputKind(data.data(), data.size()), settings);
    session.Feed(data.data(), data.size());
    session.Finish();
    return session.Model();
}

const Json& Sample()
{
    static const Json model = Inspect(ReadFile(ZUM_SOURCE_DIR "/samples/sample.ts"));
    return model;
}

std::vector<std::string> Lines(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    return lines;
}

} // namespace

TEST(InspectNames, KnownValuesOfTheStandards)
{
    using namespace zuminspect;
    const std::vector<std::pair<std::string, std::string>> cases = {
        {ServiceTypeName(0x01, kDvb), "digital television service"},
        {ServiceTypeName(0x19, kDvb), "H.264/AVC HD digital television service"},
        {ServiceTypeName(0x1F, kDvb), "HEVC digital television service"},
        {ServiceTypeName(0x09, kDvb), "reserved for future use"},
        {ServiceTypeName(0x90, kDvb), "user defined"},
        {ServiceTypeName(0xC0, kIsdb), "data service"},
        {ServiceTypeName(0x02, kAtsc), "ATSC digital television"},
        {StreamTypeName(0x1B, kDvb), "AVC video (H.264)"},
        {StreamTypeName(0x24, kDvb), "HEVC video (H.265)"},
        {StreamTypeName(0x81, kDvb), "user private"},
        {StreamTypeName(0x81, kAtsc), "AC-3 audio"},
        {RunningStatusName(4), "running"},
        {RunningStatusName(2), "starts in a few seconds"},
        {RunningStatusName(-1), "not given"},
        {RunningStatusName(7), "reserved for future use"},
        {ContentName(0x2, kDvb), "News/Current affairs"},
        {ContentName(0x2, 0x1, kDvb), "news/weather report"},
        {ContentName(0x4, 0x3, kDvb), "football/soccer"},
        {ContentName(0x8, 0x4, kDvb), "reserved for future use"},
        {ContentName(0x1, 0xF, kDvb), "user defined"},
        {ContentName(0x1, kIsdb), "sports"},
        {ComponentName(0x1, 0, 0x03), "MPEG-2 video, 16:9 aspect ratio without pan vectors, 25 Hz"},
        {ComponentName(0x1, 0, 0x0E), "MPEG-2 high definition video, 16:9 aspect ratio with pan vectors, 30 Hz"},
        {ComponentName(0x2, 0, 0x03), "MPEG-1 Layer 2 audio, stereo (2 channel)"},
        {ComponentName(0x3, 0, 0x10), "DVB subtitles (normal), no monitor aspect ratio criticality"},
        {ComponentName(0x4, 0, 0x42), "AC-3 audio, complete main, 2 channel (stereo)"},
        {ComponentName(0x5, 0, 0x0B), "H.264/AVC high definition video, 16:9 aspect ratio, 25 Hz"},
        {ComponentName(0x9, 0, 0x04), "HEVC ultra high definition video"},
        {ComponentName(0x9, 1, 0x02), "AC-4 main audio, stereo"},
        {ParentalRatingName(0x00), "undefined"},
        {ParentalRatingName(0x0C), "minimum age 15"},
        {ParentalRatingName(0x10), "defined by the broadcaster"},
        {TeletextTypeName(0x02), "Teletext subtitle page"},
        {LinkageTypeName(0x09), "System Software Update service"},
        {LinkageTypeName(0x0E), "extended event linkage"},
        {CaSystemName(0x0500), "France Telecom (Viaccess)"},
        {CaSystemName(0x1803), "Kudelski (Nagravision)"},
        {FrontEndModulationName(16), "8PSK"},
        {FrontEndModulationName(-1), "auto"},
        {FrontEndCodeRateName(2), "3/4"},
        {FrontEndCodeRateName(11), "9/10"},
        {FrontEndBandwidthName(3), "8 MHz"},
        {PolarisationName(2), "circular left"},
        {RollOffName(2), "0.20"},
        {CableModulationName(0x05), "256-QAM"},
        {OuterFecName(2), "RS(204/188)"},
        {InnerFecName(7), "3/5"},
        {TerrestrialBandwidthName(0), "8 MHz"},
        {ConstellationName(2), "64-QAM"},
        {HierarchyName(0), "non-hierarchical, native interleaver"},
        {GuardIntervalName(3), "1/4"},
        {TransmissionModeName(1), "8k mode"},
        {T2GuardIntervalName(5), "19/128"},
        {T2TransmissionModeName(5), "32k mode"},
        {AtscModulationName(0x04), "8-VSB"},
        {AtscServiceTypeName(0x03), "ATSC audio"},
        {TableIdName(0x42, kDvb), "SDT actual"},
        {TableIdName(0x5A, kDvb), "EIT schedule actual"},
        {TableIdName(0x85, kDvb, 0x0030), "LCN"},
        {TableIdName(0x85, kDvb, 0x0012), "EIT compressed"},
        {TableIdName(0x85, kIsdb), "EMM"},
        {TableIdName(0xC8, kAtsc), "TVCT"},
        {TableIdName(0xC8, kIsdb), "CDT"},
        {TableIdName(0xC8, kDvb), "user defined"},
        {TableIdName(0xD5, kDvb), "SIT"},
        {TableIdName(0x80, kIsdb), "emergency warning"},
    };
    for (size_t i = 0; i < cases.size(); ++i)
        EXPECT_EQ(cases[i].first, cases[i].second) << "case " << i;
    EXPECT_TRUE(TableMatches("eit", 0x50, kDvb));
    EXPECT_TRUE(TableMatches("SDT Other", 0x46, kDvb));
    EXPECT_TRUE(TableMatches("0x46", 0x46, kDvb));
    EXPECT_TRUE(TableMatches("70", 0x46, kDvb));
    EXPECT_FALSE(TableMatches("SDT actual", 0x46, kDvb));
    EXPECT_FALSE(TableMatches("ei", 0x50, kDvb));
    EXPECT_EQ(SystemOf(ZumPackCode('B', 'R', 'A'), 0), kIsdb);
    EXPECT_EQ(SystemOf(ZumPackCode('F', 'R', 'A'), 0), kDvb);
}

TEST(InspectFormat, UnitsTimesAndTheLocalClock)
{
    using namespace zuminspect;
    EXPECT_EQ(FrequencyText(482e6), "482 MHz");
    EXPECT_EQ(FrequencyText(11765e6), "11.765 GHz");
    EXPECT_EQ(FrequencyText(474.166e6), "474.166 MHz");
    EXPECT_EQ(SymbolRateText(27500), "27500 kSym/s");
    EXPECT_EQ(DurationText(6300), "1:45:00");
    EXPECT_EQ(DurationText(36 * 3600 + 1), "36:00:01");
    EXPECT_EQ(OffsetText(-210), "-03:30");
    EXPECT_EQ(TimeText("2026-11-14T01:00:00Z"), "2026-11-14 01:00:00 UTC");
    EXPECT_EQ(TimeText("not a time"), "not a time");
    // Offset +01:00 until 2027-03-28 01:00 UTC, then +02:00.
    const uint32_t change = 1490230800; // 2027-03-28T01:00:00Z since 1980-01-06
    const LocalClock clock("ITA", 60, change, 120);
    EXPECT_EQ(clock.Local(change - 1), "2027-03-28T01:59:59+01:00");
    EXPECT_EQ(clock.Local(change), "2027-03-28T03:00:00+02:00");
    EXPECT_EQ(LocalClock().Local(change), "");
    EXPECT_EQ(TimeAndLocalText("2027-03-27T23:30:00Z", "2027-03-28T00:30:00+01:00"),
              "2027-03-27 23:30:00 UTC (local 2027-03-28 00:30:00 +01:00)");
    EXPECT_EQ(TimeAndLocalText(Json(), Json()), "not given");
    const std::vector<std::pair<std::string, std::string>> tree = {
        {TreeValue("serviceId", 0x0101), "0x0101"},
        {TreeValue("serviceType", 0x19, "H.264/AVC HD digital television service"),
         "0x19 (H.264/AVC HD digital television service)"},
        {TreeValue("frequencyKHz", 11765000), "11.765 GHz"},
        {TreeValue("centreFrequencyHz", Json()), "not given"},
        {TreeValue("symbolRateKsps", 27500), "27500 kSym/s"},
        {TreeValue("orbitalPosition", 192), "19.2\xC2\xB0"},
        {TreeValue("channelNumber", 700), "700"},
        {TreeValue("name", "ZUM One"), "\"ZUM One\""},
    };
    for (const auto& t : tree)
        EXPECT_EQ(t.first, t.second);
}

TEST(InspectViews, FiltersOnTheSample)
{
    const Json& whole = Sample();
    zuminspect::ModelFilter pid;
    pid.pid = 0x0014;
    const Json time = zuminspect::FilterModel(whole, pid);
    EXPECT_TRUE(time["pat"].is_null());
    EXPECT_TRUE(time["pmts"].empty() && time["nits"].empty() && time["sdts"].empty() && time["eit"].empty());
    EXPECT_EQ(time["tdt"], whole["tdt"]);
    EXPECT_EQ(time["tot"], whole["tot"]);
    EXPECT_EQ(time["summary"]["tables"].size(), 2u);
    EXPECT_EQ(time["summary"]["pids"].size(), 1u);
    EXPECT_EQ(time["summary"]["demux"], whole["summary"]["demux"]); // the stream's counters stay whole

    struct TableCase {
        const char* table;
        std::optional<unsigned int> pid;
        size_t pmts, sdts, tables;
        std::set<std::string> eventTables;
    };
    const std::vector<TableCase> tables = {
        {"0x42", {}, 0, 1, 1, {}},
        {"sdt actual", {}, 0, 1, 1, {}},
        {"PMT", {}, 3, 0, 3, {}},
        {"PMT", 0x0200u, 1, 0, 1, {}},
        {"EIT", {}, 0, 0, 3, {"0x4E", "0x50", "0x80"}},
        {"eit schedule actual", 0x0012u, 0, 0, 1, {"0x50"}},
        {"BAT", {}, 0, 0, 0, {}},
    };
    for (const TableCase& c : tables) {
        SCOPED_TRACE(c.table);
        zuminspect::ModelFilter filter;
        filter.table = c.table;
        filter.pid = c.pid;
        const Json m = zuminspect::FilterModel(whole, filter);
        EXPECT_EQ(m["pmts"].size(), c.pmts);
        EXPECT_EQ(m["sdts"].size(), c.sdts);
        EXPECT_EQ(m["summary"]["tables"].size(), c.tables);
        std::set<std::string> eventTables;
        for (const Json& s : m["eit"])
            for (const Json& e : s["events"])
                eventTables.insert(e["tableId"].get<std::string>());
        EXPECT_EQ(eventTables, c.eventTables);
        EXPECT_EQ(m["tdt"].is_null(), true);
    }

    EXPECT_EQ(zuminspect::ResolveServices(whole, "zum two"), (std::set<unsigned int>{0x0102}));
    EXPECT_EQ(zuminspect::ResolveServices(whole, "ZUM"), (std::set<unsigned int>{0x0101, 0x0102}));
    EXPECT_EQ(zuminspect::ResolveServices(whole, "0x0103"), (std::set<unsigned int>{0x0103}));
    EXPECT_TRUE(zuminspect::ResolveServices(whole, "BBC One").empty());
    zuminspect::ModelFilter service;
    service.serviceIds = {0x0102};
    const Json two = zuminspect::FilterModel(whole, service);
    ASSERT_EQ(two["pat"]["programs"].size(), 1u);
    ASSERT_EQ(two["pmts"].size(), 1u);
    EXPECT_EQ(two["pmts"][0]["programNumber"], 0x0102);
    ASSERT_EQ(two["sdts"][0]["services"].size(), 1u);
    EXPECT_EQ(two["sdts"][0]["services"][0]["name"], "ZUM Two");
    ASSERT_EQ(two["nits"][0]["transportStreams"].size(), 1u); // the other transport stream has no 0x0102
    EXPECT_EQ(two["nits"][0]["transportStreams"][0]["services"].size(), 1u);
    ASSERT_EQ(two["eit"].size(), 1u);
    EXPECT_EQ(two["eit"][0]["serviceId"], 0x0102);
    EXPECT_EQ(two["summary"], whole["summary"]);
}

TEST(InspectViews, SummaryServicesAndEventsOfTheSample)
{
    const Json& whole = Sample();
    const Json summary = zuminspect::SummaryOnly(whole);
    EXPECT_EQ(summary.size(), 2u);
    std::ostringstream summaryTree;
    zuminspect::RenderTree(summary, summaryTree);
    EXPECT_EQ(Lines(summaryTree.str()).size(), 1u + 4u + 8u + 1u + 11u); // input, heads, PIDs, tables

    const Json services = zuminspect::ServiceList(whole);
    ASSERT_EQ(services.size(), 3u);
    EXPECT_EQ(services[2]["channelNumber"], 3);
    EXPECT_EQ(services[2]["name"], "Türkçe Haber");
    EXPECT_EQ(services[2]["typeName"], "H.264/AVC SD digital television service");
    EXPECT_EQ(services[0]["runningStatusName"], "running");
    std::ostringstream serviceLines;
    zuminspect::RenderServiceLines(services, serviceLines);
    const std::vector<std::string> lines = Lines(serviceLines.str());
    ASSERT_EQ(lines.size(), 4u);
    EXPECT_EQ(lines[1], "    1  0x3001  0x1001  0x0101   ZUM One                   "
                        "0x19 H.264/AVC HD digital television service    ZUM Broadcast         free");
    EXPECT_EQ(lines[3].find("    3  0x3001  0x1001  0x0103   Türkçe Haber              0x16"), 0u);

    // p/f, schedule and compressed schedule name the same events once.
    const Json events = zuminspect::EventList(whole);
    ASSERT_EQ(events.size(), 9u);
    std::vector<std::string> first;
    for (const Json& e : events)
        if (e["serviceId"] == 0x0101)
            first.push_back(e["name"].get<std::string>());
    EXPECT_EQ(first, (std::vector<std::string>{"Late News", "The Long Coast", "Harbour Lives", "World Business Report",
                                               "Early Breakfast"}));
    EXPECT_EQ(events[1]["tableId"], "0x4E");
    EXPECT_EQ(events[1]["runningStatusName"], "running");
    EXPECT_EQ(events[1]["startLocal"], "2026-11-14T01:00:00+00:00");
    EXPECT_EQ(events[1]["genre"], "movie/drama (general)");
    EXPECT_EQ(events[1]["rating"], "minimum age 15");
    std::ostringstream eventLines;
    zuminspect::RenderEventLines(events, eventLines);
    EXPECT_EQ(Lines(eventLines.str())[1],
              "0x0101 ZUM One           2026-11-14 01:00:00 UTC (local 01:00:00 +00:00)   1:45:00  running      "
              "The Long Coast  [movie/drama (general)]  (minimum age 15)");
}

// The tree of a real Italian multiplex (PAT, PMTs with CA, NIT with satellite
// delivery, SDT, TDT and TOT with its local offset), line for line against
// tests/tools/expected/, where every line was read against the capture.
TEST(InspectViews, RealCaptureTreeAsReviewed)
{
    const fs::path capture = fs::path(ZUM_CAPTURES_DIR) / "tsduck_tsduck-test__test-018.ts";
    if (!fs::exists(capture))
        GTEST_SKIP() << "no capture " << capture;
    const Json model = Inspect(ReadFile(capture), "ITA");
    std::ostringstream tree;
    zuminspect::RenderTree(model, tree);
    std::ostringstream services;
    zuminspect::RenderServiceLines(zuminspect::ServiceList(model), services);
    std::ifstream expectedFile(ZUM_SOURCE_DIR "/tests/tools/expected/test-018.tree.txt");
    ASSERT_TRUE(expectedFile) << "expected file missing";
    const std::vector<std::string> expected =
        Lines(std::string((std::istreambuf_iterator<char>(expectedFile)), std::istreambuf_iterator<char>()));
    const std::vector<std::string> actual = Lines(tree.str() + "--services\n" + services.str());
    for (size_t i = 0; i < std::min(expected.size(), actual.size()); ++i)
        ASSERT_EQ(actual[i], expected[i]) << "line " << i + 1;
    EXPECT_EQ(actual.size(), expected.size());
}
