// samples/ews.ts through the inspector: the warning screen's where, which
// disaster and what text, after the first version and after the second.

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "inspect/Renderers.h"
#include "inspect/Router.h"
#include "inspect/Session.h"
#include "support/LogCapture.h"
#include "support/TestEnvironment.h"

using zuminspect::Json;

namespace {

using Bytes = std::vector<uint8_t>;

const Bytes& EwsSample()
{
    static const Bytes sample = [] {
        std::ifstream in(ZUM_SOURCE_DIR "/samples/ews.ts", std::ios::binary);
        return Bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    }();
    return sample;
}

// The packets before the second PAT: the first version of the warning only.
Bytes FirstVersion()
{
    const Bytes& all = EwsSample();
    int pats = 0;
    for (size_t at = 0; at + 188 <= all.size(); at += 188)
        if ((((all[at + 1] & 0x1F) << 8) | all[at + 2]) == 0 && ++pats == 2)
            return Bytes(all.begin(), all.begin() + static_cast<long>(at));
    return all;
}

Json Inspect(const Bytes& stream, const char* country, std::string* tree = nullptr)
{
    zuminspect::InspectSettings settings;
    settings.country = country;
    zumtest::BinderScope binder(zuminspect::BinderSettingsFor(settings));
    zumtest::LogCapture log;
    zuminspect::Session session(zuminspect::InputKind::TransportStream, settings);
    session.Feed(stream.data(), stream.size());
    session.Finish();
    EXPECT_EQ(session.Routing().NoParser(), 0u);
    EXPECT_FALSE(log.Contains("ASSERT!"));
    const Json model = session.Model();
    std::ostringstream out;
    zuminspect::RenderTree(model, out);
    if (tree)
        *tree = out.str();
    return model;
}

std::string Texts(const Json& list)
{
    std::string out;
    for (const Json& t : list)
        out += (out.empty() ? "" : "|") + (t.is_string() ? t.get<std::string>() : t.dump());
    return out;
}

std::string Locations(const Json& ews)
{
    std::string out;
    for (const Json& l : ews["locations"])
        out += (out.empty() ? "" : "|") + std::to_string(l["code"].get<unsigned>()) + " " +
               l["description"].get<std::string>() + " " + std::to_string(l["disasterCode"].get<unsigned>());
    return out;
}

} // namespace

TEST(InspectEws, EachVersionAsAWarningScreen)
{
    ASSERT_FALSE(EwsSample().empty());
    const Json first = Inspect(FirstVersion(), "GBR")["ews"];
    EXPECT_EQ(Locations(first), "31710 Central Coast 1|31720 North Coast 1|32730 Highlands 1");
    EXPECT_EQ(Texts(first["disaster"]["texts"]), "Earthquake|Strong shaking||");
    EXPECT_EQ(Texts(first["message"]["texts"]),
              "Earthquake of magnitude 6.2 off the coast.|Stay away from buildings and windows.");
    EXPECT_EQ(first["disasters"].size(), 2u);

    std::string tree;
    const Json model = Inspect(EwsSample(), "GBR", &tree);
    const Json& ews = model["ews"];
    EXPECT_EQ(ews["pids"], Json::parse("[2305]"));
    EXPECT_EQ(ews["complete"], Json::parse(R"({"TRDW": true, "TCDW": true, "TMDW": true})"));
    EXPECT_EQ(Locations(ews), "36010 West Bay 2|36020 South Bay 2|31720 North Coast 2");
    EXPECT_EQ(ews["packageId"], 2);
    EXPECT_EQ(ews["disaster"]["disasterCode"], 2);
    EXPECT_EQ(Texts(ews["message"]["texts"]),
              "Tsunami warning: move away from the coast now.|Follow the signs to the evacuation routes.");
    EXPECT_EQ(ews["message"]["messageKey"], 2);
    EXPECT_EQ(ews["disasters"].size(), 3u);

    for (const char* line : {"EMERGENCY WARNING  on PID 0x0901  (TRDW complete, TCDW complete, TMDW complete)\n",
                             "\n  disaster 0x0002 \"Tsunami\" / \"Waves above 3 m\" / \"Move to high ground\"  "
                             "(code bytes 0x02 0x00)\n",
                             "\n  where  (location type 0x01, package 0x02)\n    36010 \"West Bay\"\n",
                             "\n  message  (key 0x02, header 0x81)\n    \"Tsunami warning: move away from the coast "
                             "now.\"\n",
                             "\n    0x0003 \"Flood\"  (code bytes 0x03 0x01)\n"})
        EXPECT_NE(tree.find(line), std::string::npos) << line;

    int found = 0;
    for (const Json& t : model["summary"]["tables"]) {
        if (t["pid"] == 0x0901 && t["tableId"] == "0x80") {
            ++found;
            EXPECT_EQ(t["table"], "emergency warning");
            EXPECT_EQ(t["parser"], "TCEWSParser");
            EXPECT_EQ(t["versions"], Json::parse("[1, 2]"));
            EXPECT_EQ(t["complete"], true);
        }
    }
    EXPECT_EQ(found, 1);
}

// The PMT's emergency information descriptor decodes where the country picks ISDB, and stays raw elsewhere.
TEST(InspectEws, EmergencyInformationDescriptorByCountry)
{
    const Json jpn = Inspect(EwsSample(), "JPN")["pmts"][0]["descriptors"][0];
    EXPECT_EQ(jpn["class"], "TCDescEmergencyInformation");
    EXPECT_EQ(jpn["fields"], Json::parse(R"({"loops": [{"serviceId": 257, "startEnd": true, "signalLevel": true,
        "areaCodes": [{"code": "0x5A5", "wideArea": 1, "prefecture": 63},
                      {"code": "0xAAC", "wideArea": 0, "prefecture": 23}]}]})"));
    const Json gbr = Inspect(EwsSample(), "GBR")["pmts"][0]["descriptors"][0];
    EXPECT_EQ(gbr["class"], "TCDescDefault");
}

// Table 0x80 is the warning only on a private-section stream that a PMT announced: on the EIT PID it stays a
// compressed EIT, in a file of sections the section's shape decides (none seen here), on any other PID it has
// no parser.
TEST(InspectEws, RoutedOnTheAnnouncedStreamOnly)
{
    zumtest::BinderScope binder;
    zuminspect::Router router(kZUMDefaultHandle, false);
    EXPECT_EQ(router.ParserName(0x0901, 0x80), "");
    EXPECT_FALSE(router.Wants(0x0901));
    zuminspect::TsDemux demux([&](uint16_t pid, const uint8_t* s, size_t n) { router.OnSection(pid, s, n); });
    demux.SetPidFilter([&](uint16_t pid) { return router.Wants(pid); });
    demux.Feed(EwsSample().data(), EwsSample().size());
    demux.Finish();
    EXPECT_TRUE(router.Wants(0x0901));
    EXPECT_EQ(router.ParserName(0x0901, 0x80), "TCEWSParser");
    EXPECT_EQ(router.ParserName(0x0012, 0x80), "TCDVBEITParser");
    EXPECT_EQ(router.ParserName(zuminspect::kNoPid, 0x80), "");
    EXPECT_EQ(router.ParserName(0x0902, 0x80), "");
    EXPECT_EQ(router.ParserName(0x0901, 0x81), "");
}
