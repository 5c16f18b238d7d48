// AC-4 and audio preselection on a PMT's audio stream, through the inspector:
// presentations read from the toc in the model, the summary in the tree.

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

TEST(InspectAudio, AC4AndPreselectionsOnAPmtStream)
{
    zumtest::SectionBuilder pat(zumtest::LongHeader(0x00, 1));
    pat.U16(1).U16(0xE100);
    // DSI version 0, two presentations: id 1 en-US main audio, id 2 es commentary.
    const zumtest::Bytes toc = {0x00, 0x00, 0x02, 0x80, 0x02, 0x10, 0x00, 0x04, 0x44, 0x45, 0x65, 0x6E,
                                0x2D, 0x55, 0x53, 0x80, 0x02, 0x20, 0x00, 0x04, 0x45, 0x42, 0x65, 0x73};
    const zumtest::Bytes ac4 = zumtest::Concat({{0x15, 0xC0, 0xA0, static_cast<uint8_t>(toc.size())}, toc});
    // Preselection 1 in eng, preselection 2 with audio description and dialogue enhancement.
    const zumtest::Bytes apd = {0x19, 0x10, 0x08, 0x08, 'e', 'n', 'g', 0x10, 0xA0};
    zumtest::SectionBuilder pmt(zumtest::LongHeader(0x02, 1));
    pmt.U16(0xE101).Begin16().End();
    pmt.U8(0x06).U16(0xE101).Begin16().Raw(zumtest::Desc(0x7F, ac4)).Raw(zumtest::Desc(0x7F, apd)).End();
    const zumtest::Bytes ts = zumtest::Concat({zuminspect::TsMux::Packetize(0x0000, {pat.Build()}),
                                               zuminspect::TsMux::Packetize(0x0100, {pmt.Build()})});

    zumtest::BinderScope binder;
    zuminspect::Session session(zuminspect::InputKind::TransportStream, {});
    session.Feed(ts.data(), ts.size());
    session.Finish();
    const Json model = session.Model();
    const Json& loop = model["pmts"].at(0)["streams"].at(0)["descriptors"];
    ASSERT_EQ(loop.size(), 2u) << loop.dump();
    EXPECT_EQ(loop[0]["class"], "TCDescAC4");
    EXPECT_EQ(loop[0]["tag"], "0x7F15");
    const Json& ac4Fields = loop[0]["fields"];
    EXPECT_EQ(ac4Fields["presentations"], Json::parse(R"([{"id": 1, "language": "eng", "main": true},
                                                          {"id": 2, "language": "spa", "main": false}])"));
    EXPECT_EQ(ac4Fields["dsiVersion"], 0);
    EXPECT_EQ(ac4Fields["channelModeName"], "stereo");
    EXPECT_FALSE(ac4Fields.contains("dsiError"));
    EXPECT_EQ(loop[1]["fields"]["preselections"].at(1)["audioDescription"], true);

    std::ostringstream tree;
    zuminspect::RenderTree(model, tree);
    EXPECT_NE(tree.str().find("[0x7F15] TCDescAC4  summary: \"AC-4, 2 presentations: eng (main), spa; stereo + DE\""),
              std::string::npos)
        << tree.str();
    EXPECT_NE(tree.str().find("[0x7F19] TCDescAPD  summary: \"audio preselection, 2 preselections: 1 eng, 2 AD + DE\""),
              std::string::npos)
        << tree.str();
}
