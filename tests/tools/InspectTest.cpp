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
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <tuple>
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

constexpr size_t kPacket = 188;

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

const Json* FindTable(const Json& model, uint16_t pid, const std::string& tableId)
{
    for (const Json& t : model["summary"]["tables"])
        if (t["pid"] == pid && t["tableId"] == tableId)
            return &t;
    return nullptr;
}

} // namespace

// ---- the sample ------------------------------------------------------------

TEST(InspectSample, ServicesNamesAndChannelNumbers)
{
    const Json model = Inspect(Sample());
    ASSERT_EQ(model["sdts"].size(), 1u);
    struct Expected {
        unsigned transportStream, serviceId, type;
        const char* name; // null: announced in the NIT only
        unsigned channel;
    };
    const std::vector<Expected> expected = {
        {0x1001, 0x0101, 0x19, "ZUM One", 1},      {0x1001, 0x0102, 0x01, "ZUM Two", 2},
        {0x1001, 0x0103, 0x16, "Türkçe Haber", 3}, {0x1002, 0x0201, 0x19, nullptr, 4},
        {0x1002, 0x0202, 0x02, nullptr, 700},
    };
    std::set<std::tuple<unsigned, unsigned, unsigned, unsigned>> channels, wanted;
    for (const Json& ts : At(model, "/nits/0/transportStreams"))
        for (const Json& s : ts["services"]) {
            channels.emplace(ts["transportStreamId"].get<unsigned>(), s["serviceId"].get<unsigned>(),
                             s["serviceType"].get<unsigned>(), s["channelNumber"].get<unsigned>());
            EXPECT_EQ(s["channelNumberTag"], "0x83");
        }
    for (const Expected& e : expected) {
        wanted.emplace(e.transportStream, e.serviceId, e.type, e.channel);
        if (e.name == nullptr)
            continue;
        const Json& services = At(model, "/sdts/0/services");
        const auto s = std::find_if(services.begin(), services.end(),
                                    [&](const Json& j) { return j["serviceId"] == e.serviceId; });
        ASSERT_NE(s, services.end()) << e.name;
        EXPECT_EQ((*s)["name"], e.name);
        EXPECT_EQ((*s)["type"], e.type);
        EXPECT_EQ((*s)["provider"], "ZUM Broadcast");
        EXPECT_EQ((*s)["runningStatus"], 4);
        EXPECT_EQ((*s)["freeCA"], false);
    }
    EXPECT_EQ(channels, wanted);
}

TEST(InspectSample, EventsOfPresentFollowingAndBothSchedules)
{
    using Event = std::tuple<unsigned, std::string, unsigned, std::string, unsigned, int, std::string>;
    std::set<Event> expected = {
        {0x0101, "0x4E", 0x1002, "2026-11-14T01:00:00Z", 6300, 4, "The Long Coast"},
        {0x0101, "0x4E", 0x1003, "2026-11-14T02:45:00Z", 4500, 1, "Harbour Lives"},
        {0x0102, "0x4E", 0x2001, "2026-11-14T00:30:00Z", 7200, 4, "Snooker: UK Championship"},
        {0x0102, "0x4E", 0x2002, "2026-11-14T02:30:00Z", 12600, 1, "Teleshopping"},
        {0x0103, "0x4E", 0x3001, "2026-11-14T01:00:00Z", 3600, 4, "Gece Haberleri"},
        {0x0103, "0x4E", 0x3002, "2026-11-14T02:00:00Z", 3600, 1, "Belgesel: Anadolu"},
    };
    for (const char* schedule : {"0x50", "0x80"}) // plain and compressed carry the same night
        for (const Event& e : std::vector<Event>{
                 {0x0101, schedule, 0x1001, "2026-11-14T00:00:00Z", 3600, 0, "Late News"},
                 {0x0101, schedule, 0x1002, "2026-11-14T01:00:00Z", 6300, 0, "The Long Coast"},
                 {0x0101, schedule, 0x1003, "2026-11-14T02:45:00Z", 4500, 0, "Harbour Lives"},
                 {0x0101, schedule, 0x1004, "2026-11-14T04:00:00Z", 3600, 0, "World Business Report"},
                 {0x0101, schedule, 0x1005, "2026-11-14T05:00:00Z", 3600, 0, "Early Breakfast"}})
            expected.insert(e);

    const Json model = Inspect(Sample());
    std::set<Event> seen;
    for (const Json& service : model["eit"])
        for (const Json& e : service["events"]) {
            const Json& shortEvent = e.at("descriptors").at(0);
            EXPECT_EQ(shortEvent["class"], "TCDescShortEvent");
            seen.emplace(service["serviceId"].get<unsigned>(), e["tableId"].get<std::string>(),
                         e["eventId"].get<unsigned>(), e["start"].get<std::string>(), e["duration"].get<unsigned>(),
                         e["runningStatus"].get<int>(), shortEvent["fields"]["name"].get<std::string>());
        }
    EXPECT_EQ(seen, expected);
}

TEST(InspectSample, TablesCompleteAndFieldsDecoded)
{
    const Json model = Inspect(Sample());
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
        {"/summary/demux/crcErrors", 0},
        {"/summary/demux/continuityErrors", 0},
        {"/summary/routing/noParser", 0},
    };
    for (const auto& f : fields)
        EXPECT_EQ(At(model, f.first), f.second) << f.first;
    ASSERT_EQ(model["summary"]["tables"].size(), 11u);
    for (const Json& t : model["summary"]["tables"]) {
        EXPECT_EQ(t["complete"], true) << t.dump();
        EXPECT_EQ(t["crcErrors"], 0) << t.dump();
    }
    EXPECT_EQ(FindTable(model, 0x12, "0x4E")->at("versions"), Json::array({5}));
}

TEST(InspectSample, ChunkSizeAndSectionFileDoNotChangeTheTables)
{
    const Json whole = Inspect(Sample(), {}, Sample().size());
    for (size_t chunk : {size_t{1}, size_t{187}, kPacket + 1})
        EXPECT_EQ(Inspect(Sample(), {}, chunk), whole) << chunk;

    // The same sections back to back, without packets or PIDs.
    Bytes sections;
    zuminspect::TsDemux demux([&](uint16_t, const uint8_t* s, size_t n) { sections.insert(sections.end(), s, s + n); });
    demux.Feed(Sample().data(), Sample().size());
    demux.Finish();
    const Json fromSections = Inspect(sections);
    EXPECT_EQ(fromSections["input"]["kind"], "sections");
    for (const char* table : {"/pat", "/nits", "/sdts", "/eit", "/tdt", "/tot", "/pmts/1/streams"})
        EXPECT_EQ(At(fromSections, table), At(whole, table)) << table;
}

TEST(InspectSample, TreeShowsTheModel)
{
    std::ostringstream tree;
    zuminspect::RenderTree(Inspect(Sample()), tree);
    for (const char* line : {"PAT  transport stream 0x1001, network PID 0x0010",
                             "service 0x0103 \"Türkçe Haber\"  type 0x16, provider \"ZUM Broadcast\"",
                             "service 0x0202  type 0x02  channel 700 (from 0x83)",
                             "0x80 event 0x1004  2026-11-14T04:00:00Z  01:00:00  running 0, free CA no",
                             "TOT  2026-11-14T01:20:00Z"})
        EXPECT_NE(tree.str().find(line), std::string::npos) << line;
}

// ---- damaged streams -------------------------------------------------------

namespace {

// Packets of the sample: 0 PAT, 1..3 PMT, 4 NIT, 5 SDT, 6..13 EIT, 14 TDT and TOT.
constexpr size_t kSdtPacket = 5;
constexpr size_t kEitPacket = 9;

Bytes RandomBytes(size_t size, unsigned seed)
{
    std::mt19937 random(seed);
    Bytes bytes(size);
    for (uint8_t& b : bytes)
        b = static_cast<uint8_t>(random());
    return bytes;
}

bool Complete(const Json& model, uint16_t pid, const std::string& tableId)
{
    const Json* t = FindTable(model, pid, tableId);
    return t != nullptr && (*t)["complete"] == true;
}

// The tables that no damage case touches.
void ExpectUntouchedTablesWhole(const Json& model)
{
    EXPECT_TRUE(Complete(model, 0x0000, "0x00"));
    EXPECT_TRUE(Complete(model, 0x0100, "0x02"));
    EXPECT_TRUE(Complete(model, 0x0010, "0x40"));
    EXPECT_EQ(At(model, "/nits/0/transportStreams/0/services/2/channelNumber"), 3);
}

} // namespace

TEST(InspectDamaged, CountedAndTheRestDecoded)
{
    struct Case {
        const char* name;
        std::function<void(Bytes&)> damage;
        std::function<void(const Json&)> check;
    };
    const auto at = [](size_t packet) { return static_cast<std::ptrdiff_t>(packet * kPacket); };
    const std::vector<Case> cases = {
        {"lost packet", [&](Bytes& b) { b.erase(b.begin() + at(kEitPacket), b.begin() + at(kEitPacket + 1)); },
         [](const Json& m) {
             EXPECT_EQ(At(m, "/summary/demux/continuityErrors"), 1);
             EXPECT_GE(At(m, "/summary/demux/droppedSections"), 1);
             EXPECT_TRUE(Complete(m, 0x0011, "0x42"));
             EXPECT_TRUE(Complete(m, 0x0014, "0x73"));
         }},
        {"cut packet", [&](Bytes& b) { b.erase(b.begin() + at(kEitPacket) + 20, b.begin() + at(kEitPacket) + 120); },
         [](const Json& m) {
             EXPECT_GE(At(m, "/summary/demux/syncLosses"), 1);
             EXPECT_TRUE(Complete(m, 0x0011, "0x42"));
         }},
        {"bad CRC", [&](Bytes& b) { b[static_cast<size_t>(at(kSdtPacket)) + 30] ^= 0x01; },
         [](const Json& m) {
             EXPECT_EQ(FindTable(m, 0x0011, "0x42")->at("crcErrors"), 1);
             EXPECT_TRUE(m["sdts"].empty());
             EXPECT_TRUE(Complete(m, 0x0012, "0x4E"));
         }},
        {"garbage between packets",
         [&](Bytes& b) {
             const Bytes garbage = RandomBytes(100, 1);
             b.insert(b.begin() + at(kSdtPacket), garbage.begin(), garbage.end());
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
        ExpectUntouchedTablesWhole(model);
        c.check(model);
    }
}

TEST(InspectDamaged, RandomBytesAndTruncatedSectionsPassWithoutHarm)
{
    Bytes sections;
    zuminspect::TsDemux demux([&](uint16_t, const uint8_t* s, size_t n) { sections.insert(sections.end(), s, s + n); });
    demux.Feed(Sample().data(), Sample().size());
    demux.Finish();
    Bytes lastCut(sections.begin(), sections.end() - 10);
    for (const Bytes& input : {RandomBytes(256 * 1024, 7), lastCut, Bytes(Sample().begin(), Sample().begin() + 300)}) {
        for (bool allPids : {false, true}) {
            const Json model = Inspect(input, {"DEU", 0, 0, "", allPids});
            EXPECT_TRUE(model["summary"].is_object());
        }
    }
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
    for (bool allPids : {false, true}) {
        SCOPED_TRACE(allPids ? "all PIDs" : "receiver PIDs");
        const Json model = Inspect(data, {CountryFor(GetParam()), 0, 0, "", allPids}, 64 * 1024);
        EXPECT_GT(model["summary"]["pids"].size(), 0u);
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
