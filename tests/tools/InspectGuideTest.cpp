// --guide: each event of the model carries what the guide utilities answer for its stored loop.

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "inspect/Renderers.h"
#include "inspect/Session.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zuminspect::Json;

TEST(InspectGuide, EventsCarryTheGuideAnswers)
{
    zumtest::SectionBuilder eit(zumtest::LongHeader(0x4E, 0x0101));
    const zumtest::Bytes loop = zumtest::Concat(
        {zumtest::Desc(0x4A, {0x00, 0x02, 0x00, 0x03, 0x00, 0x04, 0x0D, 0x00, 0x05, 0x40}),
         zumtest::Desc(0x50, {0x05, 0x0B, 0x01, 'e', 'n', 'g'}), zumtest::Desc(0x55, {'G', 'B', 'R', 0x08})});
    eit.U16(0x0441).U16(0x0001).U8(0).U8(0x4E);
    eit.U16(0x0A01).Raw({0xEA, 0x91, 0x20, 0x00, 0x00, 0x00, 0x30, 0x00}).Begin16(12, 0x8000).Raw(loop).End();
    const zumtest::Bytes section = eit.Build();

    zumtest::BinderScope binder;
    zuminspect::InspectSettings settings;
    settings.country = "GBR";
    settings.guide = true;
    zuminspect::Session session(zuminspect::InputKind::Sections, settings);
    session.Feed(section.data(), section.size());
    session.Finish();
    const Json model = session.Model();
    const Json& answers = model["eit"].at(0)["events"].at(0)["guide"];
    EXPECT_EQ(answers["rating"], Json::parse(R"({"type": 8, "value": 8, "extra": 0})"));
    EXPECT_EQ(answers["hdSimulcast"]["eventId"], 5);
    EXPECT_EQ(answers["linkageType"], 13);
    EXPECT_EQ(answers["links"].size(), 1u);
    std::ostringstream tree;
    zuminspect::RenderTree(model, tree);
    EXPECT_NE(tree.str().find("    guide:  audioDescription: no, subtitles: no, signLanguage: no, hd: yes"),
              std::string::npos)
        << tree.str();
}

// Real EITs of a DVB and two ISDB countries: the rating is the entry of the receiver's country as the event's
// descriptors show it; ISDB events list their video component; Japanese events their common event group and
// copy rules.
TEST(InspectGuide, CapturesAnswer)
{
    const struct {
        const char* file;
        const char* country;
    } captures[] = {{"tsduck_tsduck-test__test-038.bin", "CZE"},
                    {"tsduck_tsduck-test__ref_test-170.tstables.bin", "BRA"},
                    {"tsduck_tsduck-test__test-101.ts", "JPN"}};
    const std::string dir = ZUM_CAPTURES_DIR;
    if (!std::ifstream(dir + "/" + captures[0].file))
        GTEST_SKIP() << "no captures at " << dir;
    for (const auto& capture : captures) {
        SCOPED_TRACE(capture.file);
        std::ifstream in(dir + "/" + capture.file, std::ios::binary);
        const std::vector<uint8_t> input((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
        zuminspect::InspectSettings settings;
        settings.country = capture.country;
        settings.guide = true;
        zumtest::BinderScope binder(zuminspect::BinderSettingsFor(settings));
        zuminspect::Session session(zuminspect::DetectInputKind(input.data(), input.size()), settings);
        session.Feed(input.data(), input.size());
        session.Finish();
        const Json model = session.Model();
        const bool isdb = capture.country[0] != 'C', japan = capture.country[0] == 'J';
        int rated = 0, common = 0, ruled = 0;
        for (const Json& service : model["eit"])
            for (const Json& event : service["events"]) {
                const Json& guide = event["guide"];
                for (const Json& d : event["descriptors"])
                    for (const Json& r : d["tag"] == "0x55" ? d["fields"]["ratings"] : Json::array())
                        if (r["country"] == capture.country) {
                            ++rated;
                            EXPECT_EQ(guide["rating"]["value"], r["rating"]);
                        }
                for (const Json& other : guide["commonEvents"]) {
                    ++common;
                    EXPECT_EQ(other["eventId"], event["eventId"]);
                }
                ruled += guide.contains("copyControl") && guide["copyControl"]["audioOutput"].is_number();
                EXPECT_EQ(guide["components"]["video"].size(), isdb ? 1u : 0u);
            }
        EXPECT_EQ(rated > 0, !japan);
        EXPECT_EQ(common > 0, japan);
        EXPECT_EQ(ruled > 0, japan);
    }
}
