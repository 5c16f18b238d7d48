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

    for (bool guide : {false, true}) {
        SCOPED_TRACE(guide);
        zumtest::BinderScope binder;
        zuminspect::InspectSettings settings;
        settings.country = "GBR";
        settings.guide = guide;
        zuminspect::Session session(zuminspect::InputKind::Sections, settings);
        session.Feed(section.data(), section.size());
        session.Finish();
        const Json model = session.Model();
        const Json& event = model["eit"].at(0)["events"].at(0);
        ASSERT_EQ(event.contains("guide"), guide);
        if (!guide)
            continue;
        const Json& answers = event["guide"];
        EXPECT_EQ(answers["rating"], Json::parse(R"({"type": 8, "value": 8, "extra": 0})"));
        EXPECT_EQ(answers["hdSimulcast"], Json::parse(R"({"transportStreamId": 2, "originalNetworkId": 3,
                                                          "serviceId": 4, "eventId": 5, "simulcast": true})"));
        EXPECT_EQ(answers["linkageType"], 13);
        ASSERT_EQ(answers["links"].size(), 1u);
        EXPECT_EQ(answers["links"][0]["targetIdType"], nullptr);
        EXPECT_TRUE(answers["hd"].get<bool>());
        EXPECT_EQ(answers["components"]["video"].size(), 0u); // no ISDB country
        std::ostringstream tree;
        zuminspect::RenderTree(model, tree);
        EXPECT_NE(tree.str().find("    guide:  audioDescription: no, subtitles: no, signLanguage: no, hd: yes"),
                  std::string::npos)
            << tree.str();
    }
}

// A Japanese BS capture: the guide finds each event's common event group and the copy rules.
TEST(InspectGuide, JapaneseCaptureAnswers)
{
    const std::string path = std::string(ZUM_CAPTURES_DIR) + "/tsduck_tsduck-test__test-101.ts";
    std::ifstream in(path, std::ios::binary);
    if (!in)
        GTEST_SKIP() << "no capture at " << path;
    const std::vector<uint8_t> ts((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    zuminspect::InspectSettings settings;
    settings.country = "JPN";
    settings.guide = true;
    zumtest::BinderScope binder(zuminspect::BinderSettingsFor(settings));
    zuminspect::Session session(zuminspect::InputKind::TransportStream, settings);
    session.Feed(ts.data(), ts.size());
    session.Finish();
    const Json model = session.Model();
    int events = 0, common = 0, ruled = 0;
    for (const Json& service : model["eit"])
        for (const Json& event : service["events"]) {
            ++events;
            const Json& guide = event["guide"];
            for (const Json& other : guide["commonEvents"]) {
                ++common;
                EXPECT_EQ(other["eventId"], event["eventId"]);
                EXPECT_EQ(other["transportStreamId"], service["transportStreamId"]); // the record's network
            }
            if (guide.contains("copyControl")) {
                ++ruled;
                EXPECT_TRUE(guide["copyControl"]["audioOutput"].is_number());
            }
            EXPECT_EQ(guide["components"]["video"].size(), 1u);
        }
    EXPECT_GT(events, 0);
    EXPECT_GT(common, 0);
    EXPECT_GT(ruled, 0);
}
