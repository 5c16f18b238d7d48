// The SIT of a recorded stream through the inspector: routed on its PID,
// programs with their texts and the loop in the model and the tree.

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "inspect/Renderers.h"
#include "inspect/Session.h"
#include "inspect/TsMux.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zuminspect::Json;

TEST(InspectSit, RoutedOnItsPidWithProgramsAndLoop)
{
    zumtest::SectionHeader h = zumtest::LongHeader(0xD5, 1);
    h.protocolVersion = 0;
    zumtest::SectionBuilder sit(h);
    // One program: number 0x0102, no first text, kind 2, start, flag and code,
    // duration, title "News", two empty texts; then the loop.
    sit.U8(1).U16(0x0102).U8(0).U8(2).U32(1000).U8(0x85).U24(0xF00E10).Begin8().Text("News").End();
    sit.U16(0xF000).U16(0xF000).Begin16().Raw(zumtest::Desc(0x48, {0x01, 0, 2, 'T', 'V'})).End();
    // The DVB selection information table shares the PID; the library has no parser for it.
    zumtest::SectionBuilder dvbSit(zumtest::LongHeader(0x7F, 0xFFFF));
    dvbSit.U16(0xF000);
    const std::vector<uint8_t> ts = zumtest::Concat(
        {zuminspect::TsMux::Packetize(zuminspect::kPidSit, {sit.Build(), dvbSit.Build()}),
         zuminspect::TsMux::Packetize(0x0100, {sit.Build()})});

    zumtest::BinderScope binder;
    zuminspect::Session session(zuminspect::InputKind::TransportStream, {});
    session.Feed(ts.data(), ts.size());
    session.Finish();
    const Json model = session.Model();
    const Json& program = model["sit"]["programs"].at(0);
    EXPECT_EQ(program, Json::parse(R"({"programNumber": 258, "kind": 2, "startTime": 1000, "flag": true, "code": 5,
                                       "duration": 3600, "texts": ["News", "", "", "", ""]})"));
    EXPECT_EQ(model["sit"]["descriptors"].at(0)["class"], "TCDescService");
    std::vector<std::string> parsers;
    for (const Json& t : model["summary"]["tables"])
        parsers.push_back(t["tableId"].get<std::string>() + " " + t["parser"].dump() + " " + t["complete"].dump());
    EXPECT_EQ(parsers, (std::vector<std::string>{"0x7F null null", "0xD5 \"TCSITParser\" true"}));
    std::ostringstream tree;
    zuminspect::RenderTree(model, tree);
    EXPECT_NE(tree.str().find("SIT  1 programs in the last section\n  [0x48] TCDescService"), std::string::npos)
        << tree.str();
}
