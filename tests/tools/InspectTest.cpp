// The inspector end to end: samples/sample.ts through routing and the model,
// the same stream damaged in the ways reception damages streams, and the real
// captures beside the project when they are there.

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "inspect/Renderers.h"
#include "inspect/Session.h"
#include "support/LogCapture.h"
#include "support/TestEnvironment.h"

namespace fs = std::filesystem;
using zuminspect::InspectSettings;
using zuminspect::Json;
using Bytes = std::vector<uint8_t>;

namespace {

using Counts = std::map<std::pair<unsigned, unsigned>, unsigned>; // (PID, table id) -> sections

Bytes ReadFile(const fs::path& path)
{
    std::ifstream in(path, std::ios::binary);
    return Bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

const Bytes& Sample()
{
    static const Bytes sample = ReadFile(ZUM_SOURCE_DIR "/samples/sample.ts");
    return sample;
}

// The sample's sections back to back, without packets or PIDs.
Bytes SampleSections()
{
    Bytes sections;
    zuminspect::TsDemux demux([&](uint16_t, const uint8_t* s, size_t n) { sections.insert(sections.end(), s, s + n); });
    demux.Feed(Sample().data(), Sample().size());
    demux.Finish();
    return sections;
}

// The whole inspection in chunks, as the tool reads a file, with what must
// hold for any input: every section the demultiplexer delivered reached a
// parser or was counted as having none, no library assertion fired, and
// both renderings take the model.
Json Inspect(const Bytes& data, const InspectSettings& settings = {}, size_t chunk = 4096)
{
    zumtest::BinderScope binder(zuminspect::BinderSettingsFor(settings));
    zumtest::LogCapture log;
    zuminspect::Session session(zuminspect::DetectInputKind(data.data(), data.size()), settings);
    for (size_t pos = 0; pos < data.size(); pos += chunk)
        session.Feed(data.data() + pos, std::min(chunk, data.size() - pos));
    session.Finish();
    EXPECT_EQ(session.Stats().sections, session.Routing().Routed() + session.Routing().NoParser());
    EXPECT_FALSE(log.Contains("ASSERT!"));
    const Json model = session.Model();
    std::ostringstream json, tree;
    zuminspect::RenderJson(model, json);
    zuminspect::RenderTree(model, tree);
    EXPECT_EQ(Json::parse(json.str()), model);
    return model;
}

Json At(const Json& model, const std::string& pointer)
{
    return model.at(Json::json_pointer(pointer));
}

// The first entry of `list` that has all the fields of `match`; an empty object if none.
Json Find(const Json& list, const Json& match)
{
    for (const Json& entry : list) {
        bool all = true;
        for (const auto& field : match.items())
            all = all && entry.value(field.key(), Json()) == field.value();
        if (all)
            return entry;
    }
    return Json::object();
}

Json Table(const Json& model, unsigned pid, const std::string& tableId)
{
    return Find(model["summary"]["tables"], {{"pid", pid}, {"tableId", tableId}});
}

bool Complete(const Json& model, unsigned pid, const std::string& tableId)
{
    return Table(model, pid, tableId)["complete"] == true;
}

// Delivered sections by PID (0xFFFF for a file of sections) and table id.
Counts SectionCounts(const Json& model)
{
    Counts counts;
    for (const Json& t : model["summary"]["tables"])
        if (t["sections"] > 0)
            counts[{t["pid"].is_null() ? 0xFFFFu : t["pid"].get<unsigned>(),
                    static_cast<unsigned>(std::stoul(t["tableId"].get<std::string>(), nullptr, 16))}] =
                t["sections"].get<unsigned>();
    return counts;
}

} // namespace

// ---- the sample ------------------------------------------------------------

TEST(InspectSample, ServicesNamesAndChannelNumbers)
{
    const Json model = Inspect(Sample());
    ASSERT_EQ(model["sdts"].size(), 1u);
    std::set<std::tuple<unsigned, std::string, unsigned>> services;
    for (const Json& s : At(model, "/sdts/0/services")) {
        services.emplace(s["serviceId"].get<unsigned>(), s["name"].get<std::string>(), s["type"].get<unsigned>());
        EXPECT_EQ(s["provider"], "ZUM Broadcast");
        EXPECT_EQ(s["runningStatus"], 4);
        EXPECT_EQ(s["freeCA"], false);
    }
    EXPECT_EQ(services, (std::set<std::tuple<unsigned, std::string, unsigned>>{
                            {0x0101, "ZUM One", 0x19}, {0x0102, "ZUM Two", 0x01}, {0x0103, "Türkçe Haber", 0x16}}));
    // The NIT also announces the services of the other transport stream.
    std::set<std::tuple<unsigned, unsigned, unsigned, unsigned>> channels;
    for (const Json& ts : At(model, "/nits/0/transportStreams"))
        for (const Json& s : ts["services"]) {
            channels.emplace(ts["transportStreamId"].get<unsigned>(), s["serviceId"].get<unsigned>(),
                             s["serviceType"].get<unsigned>(), s["channelNumber"].get<unsigned>());
            EXPECT_EQ(s["channelNumberTag"], "0x83");
        }
    EXPECT_EQ(channels, (std::set<std::tuple<unsigned, unsigned, unsigned, unsigned>>{
                            {0x1001, 0x0101, 0x19, 1}, {0x1001, 0x0102, 0x01, 2}, {0x1001, 0x0103, 0x16, 3},
                            {0x1002, 0x0201, 0x19, 4}, {0x1002, 0x0202, 0x02, 700}}));
}

TEST(InspectSample, EventsOfPresentFollowingAndBothSchedules)
{
    using Event = std::tuple<unsigned, std::string, unsigned, std::string, unsigned, int, std::string>;
    const std::set<Event> expected = {
        {0x0101, "0x4E", 0x1002, "2026-11-14T01:00:00Z", 6300, 4, "The Long Coast"},
        {0x0101, "0x4E", 0x1003, "2026-11-14T02:45:00Z", 4500, 1, "Harbour Lives"},
        {0x0102, "0x4E", 0x2001, "2026-11-14T00:30:00Z", 7200, 4, "Snooker: UK Championship"},
        {0x0102, "0x4E", 0x2002, "2026-11-14T02:30:00Z", 12600, 1, "Teleshopping"},
        {0x0103, "0x4E", 0x3001, "2026-11-14T01:00:00Z", 3600, 4, "Gece Haberleri"},
        {0x0103, "0x4E", 0x3002, "2026-11-14T02:00:00Z", 3600, 1, "Belgesel: Anadolu"},
        {0x0101, "0x50", 0x1001, "2026-11-14T00:00:00Z", 3600, 0, "Late News"},
        {0x0101, "0x50", 0x1002, "2026-11-14T01:00:00Z", 6300, 0, "The Long Coast"},
        {0x0101, "0x50", 0x1003, "2026-11-14T02:45:00Z", 4500, 0, "Harbour Lives"},
        {0x0101, "0x50", 0x1004, "2026-11-14T04:00:00Z", 3600, 0, "World Business Report"},
        {0x0101, "0x50", 0x1005, "2026-11-14T05:00:00Z", 3600, 0, "Early Breakfast"},
    };
    const Json model = Inspect(Sample());
    std::set<Event> seen;
    std::map<std::string, Json> schedules; // the events of each schedule, without their table id
    for (const Json& service : model["eit"])
        for (const Json& e : service["events"]) {
            const Json& shortEvent = e.at("descriptors").at(0);
            EXPECT_EQ(shortEvent["class"], "TCDescShortEvent");
            if (e["tableId"] != "0x80")
                seen.emplace(service["serviceId"].get<unsigned>(), e["tableId"].get<std::string>(),
                             e["eventId"].get<unsigned>(), e["start"].get<std::string>(),
                             e["duration"].get<unsigned>(), e["runningStatus"].get<int>(),
                             shortEvent["fields"]["name"].get<std::string>());
            Json rest = e;
            rest.erase("tableId");
            schedules[e["tableId"].get<std::string>()].push_back(rest);
        }
    EXPECT_EQ(seen, expected);
    // The compressed schedule carries the same night, descriptor for descriptor.
    EXPECT_EQ(schedules["0x80"], schedules["0x50"]);
    EXPECT_EQ(Table(model, 0x12, "0x80")["versions"], Table(model, 0x12, "0x50")["versions"]);
}

TEST(InspectSample, EveryTableWholeFieldsDecodedAndTree)
{
    const Json model = Inspect(Sample());
    EXPECT_LE(At(model, "/input/bytes"), 64 * 1024);
    EXPECT_EQ(SectionCounts(model), (Counts{{{0x0000, 0x00}, 1}, {{0x0100, 0x02}, 1}, {{0x0200, 0x02}, 1},
                                            {{0x0300, 0x02}, 1}, {{0x0010, 0x40}, 1}, {{0x0011, 0x42}, 1},
                                            {{0x0012, 0x4E}, 6}, {{0x0012, 0x50}, 2}, {{0x0012, 0x80}, 2},
                                            {{0x0014, 0x70}, 1}, {{0x0014, 0x73}, 1}}));
    for (const Json& t : model["summary"]["tables"]) {
        EXPECT_EQ(t["complete"], true) << t.dump();
        EXPECT_EQ(t["crcErrors"], 0) << t.dump();
    }
    const std::vector<std::pair<std::string, Json>> fields = {
        {"/pat/transportStreamId", 0x1001},
        {"/pat/networkPid", 0x0010},
        {"/pmts/0/pcrPid", 0x0110},
        {"/pmts/2/streams/1/descriptors/0/fields/languages/0/language", "tur"},
        {"/pmts/0/streams/2/descriptors/2/fields/subtitles/0/type", 0x10},
        {"/nits/0/descriptors/0/fields/name", "ZUM Test Network"},
        {"/nits/0/transportStreams/1/descriptors/0/fields/centreFrequencyHz", 490000000},
        {"/eit/2/events/0/descriptors/0/fields/text", "Günün özeti."},
        {"/eit/0/events/0/descriptors/2/fields/ratings/0/rating", 0x0C},
        {"/tdt/time", "2026-11-14T01:20:00Z"},
        {"/tot/descriptors/0/fields/offsets/0/country", "GBR"},
        {"/tot/descriptors/0/fields/offsets/0/timeOfChange", "2027-03-28T01:00:00Z"},
        {"/tot/descriptors/0/fields/offsets/0/nextOffsetMinutes", 60},
        {"/summary/routing/noParser", 0},
    };
    for (const auto& f : fields)
        EXPECT_EQ(At(model, f.first), f.second) << f.first;
    for (const char* counter : {"syncLosses", "continuityErrors", "crcErrors", "droppedSections", "truncatedPackets",
                                "unfinishedSections"})
        EXPECT_EQ(model["summary"]["demux"][counter], 0) << counter;
    EXPECT_EQ(Table(model, 0x12, "0x4E")["versions"], Json::array({5}));

    std::ostringstream tree;
    zuminspect::RenderTree(model, tree);
    for (const char* line : {"PAT  transport stream 0x1001, network PID 0x0010",
                             "service 0x0103 \"Türkçe Haber\"  type 0x16 (H.264/AVC SD digital television service), "
                             "provider \"ZUM Broadcast\", running 4 (running)",
                             "service 0x0202  type 0x02 (digital radio sound service)  channel 700 (from 0x83)",
                             "0x80 event 0x1004  2026-11-14 04:00:00 UTC (local 04:00:00 +00:00)  1:00:00  "
                             "running 0 (undefined), free CA no",
                             "centreFrequencyHz: 490 MHz, bandwidth: 0 (8 MHz), constellation: 2 (64-QAM)",
                             "TOT  2026-11-14 01:20:00 UTC (local 01:20:00 +00:00)"})
        EXPECT_NE(tree.str().find(line), std::string::npos) << line;
}

TEST(InspectSample, ChunkSizeAndSectionFileDoNotChangeTheTables)
{
    const Json whole = Inspect(Sample(), {}, Sample().size());
    for (size_t chunk : {1u, 187u, 189u})
        EXPECT_EQ(Inspect(Sample(), {}, chunk), whole) << chunk;
    const Json fromSections = Inspect(SampleSections());
    EXPECT_EQ(fromSections["input"]["kind"], "sections");
    EXPECT_TRUE(At(fromSections, "/pmts/0/pid").is_null()); // a file of sections has no PIDs
    for (const char* table : {"/pat", "/nits", "/sdts", "/eit", "/tdt", "/tot", "/pmts/1/streams"})
        EXPECT_EQ(At(fromSections, table), At(whole, table)) << table;
}

// ---- damaged streams -------------------------------------------------------

TEST(InspectDamaged, CountedAndTheRestDecoded)
{
    // Packets of the sample: 0 PAT, 1..3 PMT, 4 NIT, 5 SDT, 6..13 EIT, 14 TDT and TOT.
    const auto at = [](size_t packet) { return static_cast<std::ptrdiff_t>(packet * 188); };
    const auto sdt = at(5), eit = at(9);
    struct Case {
        const char* name;
        std::function<void(Bytes&)> damage;
        std::function<void(const Json&)> check;
    };
    const std::vector<Case> cases = {
        {"lost packet", [&](Bytes& b) { b.erase(b.begin() + eit, b.begin() + eit + 188); },
         [](const Json& m) {
             EXPECT_EQ(At(m, "/summary/demux/continuityErrors"), 1);
             EXPECT_GE(At(m, "/summary/demux/droppedSections"), 1);
             EXPECT_TRUE(Complete(m, 0x0011, "0x42"));
             EXPECT_TRUE(Complete(m, 0x0014, "0x73"));
         }},
        {"cut packet", [&](Bytes& b) { b.erase(b.begin() + eit + 20, b.begin() + eit + 120); },
         [](const Json& m) {
             EXPECT_GE(At(m, "/summary/demux/syncLosses"), 1);
             EXPECT_TRUE(Complete(m, 0x0011, "0x42"));
         }},
        {"bad CRC", [&](Bytes& b) { b[static_cast<size_t>(sdt) + 30] ^= 0x01; },
         [](const Json& m) {
             EXPECT_EQ(Table(m, 0x0011, "0x42")["crcErrors"], 1);
             EXPECT_TRUE(m["sdts"].empty());
             EXPECT_TRUE(Complete(m, 0x0012, "0x4E"));
         }},
        {"garbage between packets",
         [&](Bytes& b) {
             std::mt19937 random(1);
             for (int i = 0; i < 100; ++i)
                 b.insert(b.begin() + sdt, static_cast<uint8_t>(random()));
         },
         [](const Json& m) {
             EXPECT_GE(At(m, "/summary/demux/skippedBytes"), 100);
             EXPECT_EQ(At(m, "/summary/demux/sections"), 18);
             for (const Json& t : m["summary"]["tables"])
                 EXPECT_EQ(t["complete"], true) << t.dump();
         }},
        {"truncated file", [](Bytes& b) { b.resize(b.size() - 100); },
         [](const Json& m) {
             EXPECT_EQ(At(m, "/summary/demux/truncatedPackets"), 1);
             EXPECT_TRUE(m["tdt"].is_null());
             EXPECT_TRUE(Complete(m, 0x0012, "0x80"));
         }},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Bytes stream = Sample();
        c.damage(stream);
        const Json model = Inspect(stream, {"GBR", 0, 0, "eng", false});
        // The tables that no damage touches.
        EXPECT_TRUE(Complete(model, 0x0000, "0x00"));
        EXPECT_TRUE(Complete(model, 0x0100, "0x02"));
        EXPECT_TRUE(Complete(model, 0x0010, "0x40"));
        EXPECT_EQ(At(model, "/nits/0/transportStreams/0/services/2/channelNumber"), 3);
        c.check(model);
    }
}

TEST(InspectDamaged, RandomBytesAndTruncatedSectionsPassWithoutHarm)
{
    std::mt19937 random(7);
    Bytes noise(256 * 1024);
    for (uint8_t& b : noise)
        b = static_cast<uint8_t>(random());
    const Bytes sections = SampleSections();
    const Bytes lastCut(sections.begin(), sections.end() - 10);
    for (const Bytes& input : {noise, lastCut, Bytes(Sample().begin(), Sample().begin() + 300)})
        for (bool allPids : {false, true})
            EXPECT_TRUE(Inspect(input, {"DEU", 0, 0, "", allPids})["summary"].is_object());
}

// ---- real captures ---------------------------------------------------------

namespace {

const fs::path kCaptures(ZUM_CAPTURES_DIR);

std::vector<std::string> CaptureFiles()
{
    std::vector<std::string> names;
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(kCaptures, error))
        if (entry.path().extension() == ".ts" || entry.path().extension() == ".bin")
            names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

// The country picks the broadcast system: ATSC, ISDB Brazil, ISDB Japan, else DVB.
std::string CountryFor(const std::string& name)
{
    const std::vector<std::pair<std::string, std::string>> countries = {
        {"test-040", "USA"}, {"test-051", "USA"}, {"test-052", "USA"},   {"cablelabs", "USA"},
        {"test-170", "BRA"}, {"test-101", "JPN"}, {"japanese", "JPN"}, {"ariblib", "JPN"},
    };
    for (const auto& c : countries)
        if (name.find(c.first) != std::string::npos)
            return c.second;
    return "GBR";
}

// Files whose every section is whole: the manifest counts them exactly.
const std::map<std::string, Counts> kManifest = {
    {"tsduck_tsduck-test__test-018.ts", // Italian DVB-T mux with AIT, TDT and TOT
     {{{0x0000, 0x00}, 9}, {{0x0010, 0x40}, 2}, {{0x0011, 0x42}, 2}, {{0x0014, 0x70}, 4}, {{0x0014, 0x73}, 3},
      {{0x0100, 0x02}, 17}, {{0x0101, 0x02}, 18}, {{0x1EC5, 0x74}, 2}, {{0x1EC6, 0x74}, 2}, {{0x1EC7, 0x74}, 2}}},
    {"tsduck_tsduck-test__test-012.ts", // one service with video and audio PIDs around its PAT and PMT
     {{{0x0000, 0x00}, 78}, {{0x00A0, 0x02}, 77}}},
    {"petrj_MPEGTS__TestData.China_stream-2021-10-05-06-36-43.ts", // three continuity breaks
     {{{0x0000, 0x00}, 322}, {{0x0010, 0x40}, 19}, {{0x0011, 0x42}, 19}, {{0x0012, 0x4E}, 132},
      {{0x0012, 0x50}, 262}, {{0x0012, 0x51}, 65}, {{0x1392, 0x02}, 116}}},
    {"petrj_MPEGTS__SDT.CA3.ts", {{{0x0011, 0x42}, 26}, {{0x0011, 0x4A}, 5}}},
    {"tsduck_tsduck__psi_nit_tntv23_packets.ts", {{{0x0010, 0x40}, 1}}}, // one NIT over six packets
    {"tsduck_tsduck-test__test-101.ts", // ISDB-S
     {{{0x0000, 0x00}, 1}, {{0x0010, 0x40}, 1}, {{0x0012, 0x4F}, 1}, {{0x0012, 0x60}, 2}, {{0x0101, 0x02}, 1},
      {{0x0201, 0x02}, 1}, {{0x0203, 0x02}, 1}}},
    {"phpbg_dvbpsi__2_mpegts_tot_packets.ts", {{{0x0014, 0x73}, 2}}}, // the same packet twice
    {"tsduck_tsduck-test__test-038.bin", {{{0xFFFF, 0x4E}, 64}, {{0xFFFF, 0x50}, 263}}},
};

class InspectCapture : public ::testing::TestWithParam<std::string> {};

} // namespace

TEST(InspectCaptures, FolderHoldsCaptures)
{
    if (!fs::is_directory(kCaptures))
        GTEST_SKIP() << "no captures at " << kCaptures;
    EXPECT_FALSE(CaptureFiles().empty());
}

// One test per file, so that each runs on its own clock and names its file.
TEST_P(InspectCapture, NoSectionLostByTheTool)
{
    const Bytes data = ReadFile(kCaptures / GetParam());
    ASSERT_FALSE(data.empty());
    const bool ts = fs::path(GetParam()).extension() == ".ts";
    Json model;
    for (bool allPids : {false, true}) {
        SCOPED_TRACE(allPids ? "all PIDs" : "receiver PIDs");
        model = Inspect(data, {CountryFor(GetParam()), 0, 0, "", allPids}, 64 * 1024);
        EXPECT_EQ(At(model, "/input/kind"), ts ? "transport stream" : "sections");
        EXPECT_EQ(At(model, "/input/packetSize"), ts ? Json(188) : Json(nullptr));
        EXPECT_EQ(At(model, "/summary/demux/syncLosses"), 0);
    }
    EXPECT_GT(At(model, "/summary/demux/sections"), 0);
    const auto manifest = kManifest.find(GetParam());
    if (manifest != kManifest.end()) {
        EXPECT_EQ(SectionCounts(model), manifest->second);
        EXPECT_EQ(At(model, "/summary/demux/crcErrors"), 0);
    }
    if (GetParam() == "tsduck_tsduck__psi_bat_cplus_packets.ts") { // the BAT on the SDT's PID
        EXPECT_EQ(At(model, "/bats/0/bouquetId"), 0xC003);
        EXPECT_EQ(Find(model["summary"]["tables"], {{"tableId", "0x4A"}}).value("parser", Json()), "TCDVBBATParser");
    }
    if (GetParam() == "tsduck_tsduck__psi_cat_r3_packets.ts") {
        EXPECT_EQ(At(model, "/cat/descriptors/0/class"), "TCDescCA");
    }
    if (GetParam() == "tsduck_tsduck-test__test-030.ts") { // PID 0x0112 carries EIT sections damaged on air
        const Json eit = Find(model["summary"]["pids"], {{"pid", 0x0112}});
        EXPECT_GT(eit.at("crcErrors").get<int>() + eit.at("droppedSections").get<int>(), 0);
        EXPECT_GT(eit.at("continuityErrors").get<int>() + eit.at("transportErrors").get<int>(), 0);
        Counts counts = SectionCounts(model); // the other PIDs are untouched by it
        for (const auto& e : Counts{{{0x0000, 0x00}, 35}, {{0x0001, 0x01}, 35}, {{0x0012, 0x4E}, 57}})
            EXPECT_EQ(counts[e.first], e.second);
    }
}

INSTANTIATE_TEST_SUITE_P(Captures, InspectCapture, ::testing::ValuesIn(CaptureFiles()),
                         [](const ::testing::TestParamInfo<std::string>& info) {
                             std::string name = info.param;
                             for (char& c : name)
                                 c = std::isalnum(static_cast<unsigned char>(c)) ? c : '_';
                             return name;
                         });
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(InspectCapture);
