// The inspector where table ids are not the whole story: event loops decoded
// under the table id of their schedule family, shared table ids of a file of
// sections, frequencies marked as not given, and the text table of a country.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include <zum-platform/PlatformConfig.h>

#include "inspect/Session.h"
#include "inspect/TableIds.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zuminspect::InspectSettings;
using zuminspect::Json;
using zumtest::Bytes;
using zumtest::Concat;
using zumtest::Desc;

namespace {

// Text settings for one test, put back afterwards.
struct TextScope {
    explicit TextScope(const zum_platform::TextSettings& s) { zum_platform::SetTextSettings(s); }
    ~TextScope() { zum_platform::SetTextSettings({}); }
};

Json Inspect(const Bytes& data, const std::string& country, const std::string& charset = "")
{
    InspectSettings settings;
    settings.country = country;
    zumtest::BinderScope binder(zuminspect::BinderSettingsFor(settings));
    TextScope text(zuminspect::TextSettingsFor(charset));
    zuminspect::Session session(zuminspect::DetectInputKind(data.data(), data.size()), settings);
    session.Feed(data.data(), data.size());
    session.Finish();
    return session.Model();
}

// An EIT section of service 1 with one event whose loop is `loop`, compressed for 0x80..0x9F.
Bytes Eit(unsigned tableId, const Bytes& loop)
{
    zumtest::ByteWriter events;
    events.U16(7).Raw({0xE4, 0x77, 0x01, 0x20, 0x00}).Raw({0x01, 0x00, 0x00}).Begin16(12, 4u << 13).Raw(loop).End();
    const bool compressed = tableId >= 0x80 && tableId <= 0x9F;
    zumtest::SectionBuilder s(zumtest::LongHeader(tableId, 1, 0, 0, 0, true));
    s.U16(2).U16(3).U8(0).U8(tableId).Raw(compressed ? zumtest::Deflate(events.Data()) : events.Data());
    return s.Build();
}

} // namespace

TEST(InspectTableIds, EventLoopsDecodedUnderTheirScheduleFamily)
{
    const struct { unsigned tableId, served; } rows[] = {
        {0x4E, 0x4E}, {0x4F, 0x4F}, {0x50, 0x50}, {0x51, 0x50}, {0x5F, 0x50}, {0x60, 0x60},
        {0x6F, 0x60}, {0x70, 0x70}, {0x82, 0x80}, {0x91, 0x90}, {0x9F, 0x90}, {0xA0, 0xA0},
    };
    for (const auto& r : rows)
        EXPECT_EQ(zuminspect::EventLoopTableId(static_cast<uint8_t>(r.tableId)), r.served) << r.tableId;

    // Day 8 onwards of both schedules, in a DVB and in an ISDB country.
    const Bytes name = Desc(0x4D, {'e', 'n', 'g', 4, 'N', 'e', 'w', 's', 0});
    for (const char* country : {"GBR", "BRA"})
        for (unsigned tableId : {0x52u, 0x5Fu, 0x63u, 0x6Fu}) {
            SCOPED_TRACE(testing::Message() << country << " " << tableId);
            const Json model = Inspect(Eit(tableId, name), country);
            const Json& d = model.at("eit").at(0).at("events").at(0).at("descriptors").at(0);
            EXPECT_EQ(d.value("class", "").rfind("TCDescShortEvent", 0), 0u); // the ISDB subclass in BRA
            EXPECT_EQ(d.at("fields").value("name", ""), "News");
        }
}

// A file of sections has no PIDs: a table id of the compressed EIT range goes
// to a parser only where the country and the section leave one reading.
TEST(InspectTableIds, SharedTableIdsOfASectionFile)
{
    const Bytes event = Desc(0x4D, {'e', 'n', 'g', 1, 'X', 0});
    zumtest::SectionBuilder sgt(zumtest::LongHeader(0x91, 1, 0, 0, 0, true)); // service list: no zlib stream
    sgt.U16(0xF000).U16(0xF000).Raw(Bytes(12, 0x20));
    zumtest::SectionBuilder lcn(zumtest::LongHeader(0x85, 1));
    lcn.U16(100).U16(300).U16(500);
    const struct { const char* what; Bytes section; const char* country; const char* parser; size_t events; } cases[] = {
        {"compressed EIT 0x91", Eit(0x91, event), "GBR", "TCDVBEITParser", 1},
        {"Astra SGT 0x91", sgt.Build(), "DEU", nullptr, 0},
        {"compressed EIT in an ISDB country", Eit(0x91, event), "BRA", nullptr, 0},
        {"compressed EIT 0x85", Eit(0x85, event), "GBR", "TCDVBEITParser", 1},
        {"channel numbers 0x85", lcn.Build(), "GBR", "TCDVBLCNParser", 0},
        {"0x85 in Japan", lcn.Build(), "JPN", nullptr, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        const Json model = Inspect(c.section, c.country);
        const Json row = model["summary"]["tables"].at(0);
        EXPECT_EQ(row["parser"], c.parser ? Json(c.parser) : Json(nullptr));
        EXPECT_EQ(model["summary"]["routing"]["noParser"], c.parser ? 0 : 1);
        EXPECT_EQ(model["eit"].size(), c.events);
    }
}

TEST(InspectTableIds, FrequenciesNotGiven)
{
    zumtest::SectionBuilder nit(zumtest::LongHeader(0x40, 1, 0, 0, 0, true));
    const Bytes allOnes(4, 0xFF);
    nit.Begin16(12).End().Begin16(12).U16(1).U16(1).Begin16(12);
    nit.Raw(Desc(0x5A, Concat({allOnes, Bytes(7, 0)})));                             // terrestrial
    nit.Raw(Desc(0x43, Concat({allOnes, Bytes(7, 0)})));                             // satellite
    nit.Raw(Desc(0x44, Concat({allOnes, Bytes(7, 0)})));                             // cable
    nit.Raw(Desc(0x62, Concat({{0x03}, allOnes, {0x00, 0x0F, 0x42, 0x40}})));       // list: not given, 10 MHz
    nit.Raw(Desc(0x7F, Concat({{0x04, 0, 0, 1, 0, 0, 0, 1}, allOnes, {0}})));       // T2 cell 1
    nit.End().End();
    const Json model = Inspect(nit.Build(), "GBR");
    const Json& loop = model.at("nits").at(0).at("transportStreams").at(0).at("descriptors");
    ASSERT_EQ(loop.size(), 5u);
    EXPECT_EQ(loop[0]["fields"]["centreFrequencyHz"], nullptr);
    EXPECT_EQ(loop[1]["fields"]["frequencyKHz"], nullptr);
    EXPECT_EQ(loop[2]["fields"]["frequencyKHz"], nullptr);
    EXPECT_EQ(loop[3]["fields"]["frequenciesMHz"], Json::array({nullptr, 10.0}));
    EXPECT_EQ(loop[4]["fields"]["cells"][0]["centreFrequencies"], Json::array({nullptr}));
}

// Text without a selector byte: the standards' table unless the country's
// rules or the settings give another.
TEST(InspectTableIds, TextTableByCountryAndCharset)
{
    const Bytes name = Desc(0x40, {'r', 0xE9, 's', 0xA4});
    zumtest::SectionBuilder nit(zumtest::LongHeader(0x40, 1, 0, 0, 0, true));
    nit.Begin16(12).Raw(name).End().Begin16(12).End();
    const Bytes section = nit.Build();
    const struct { const char* country; const char* charset; const char* text; } cases[] = {
        {"FRA", "", "r\xC3\x98s\xE2\x82\xAC"},        // ISO 6937: rØs€
        {"FRA", "country", "r\xC3\xA9s\xE2\x82\xAC"}, // ISO 8859-15: rés€
        {"GBR", "country", "r\xC3\x98s\xE2\x82\xAC"},
        {"BRA", "", "r\xC3\xA9s\xE2\x82\xAC"},
        {"BRA", "ISO6937", "r\xC3\x98s\xE2\x82\xAC"},
        {"GBR", "ISO-8859-1", "r\xC3\xA9s\xC2\xA4"},  // ¤ where 8859-15 has €
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.country << " " << c.charset);
        const Json model = Inspect(section, c.country, c.charset);
        EXPECT_EQ(model.at("nits").at(0).at("descriptors").at(0).at("fields").at("name"), c.text);
    }
    for (const char* good : {"ISO-8859-1", "ISO-8859-16", "ISO6937", "country"})
        EXPECT_TRUE(zuminspect::IsKnownCharset(good)) << good;
    for (const char* bad : {"ISO-8859-12", "ISO-8859-0", "ISO-8859-01", "ISO-8859-", "latin1", ""})
        EXPECT_FALSE(zuminspect::IsKnownCharset(bad)) << bad;
}

// A multi-day schedule of a real broadcast: every event has its name.
TEST(InspectTableIds, MultiDayScheduleCaptureNamesEveryEvent)
{
    const std::filesystem::path file =
        std::filesystem::path(ZUM_CAPTURES_DIR) / "petrj_MPEGTS__EIT_France_EIT.FR.2.ts";
    std::ifstream in(file, std::ios::binary);
    if (!in)
        GTEST_SKIP() << "no capture at " << file;
    const Bytes data((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    const Json model = Inspect(data, "FRA");
    std::set<std::string> tableIds;
    size_t events = 0;
    for (const Json& service : model.at("eit"))
        for (const Json& e : service.at("events")) {
            ++events;
            tableIds.insert(e.at("tableId").get<std::string>());
            bool named = false;
            for (const Json& d : e.at("descriptors"))
                named = named || (d.value("class", "").rfind("TCDescShortEvent", 0) == 0 &&
                                  !d.at("fields").value("name", "").empty());
            EXPECT_TRUE(named) << "event " << e.at("eventId") << " of table " << e.at("tableId");
        }
    EXPECT_GT(events, 0u);
    EXPECT_TRUE(tableIds.count("0x52") && tableIds.count("0x53")) << testing::PrintToString(tableIds);
}
