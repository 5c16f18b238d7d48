// The related content table through the inspector, with the icon, URI, CRID,
// target region and prominence descriptors of its loop decoded.

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "inspect/Renderers.h"
#include "inspect/Session.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zuminspect::Json;
using zumtest::Bytes;
using zumtest::Concat;
using zumtest::Desc;

TEST(InspectTargeting, RelatedContentTableAndItsDescriptors)
{
    const std::string url = "dvb://233a.1004.1044$2f/logo.png";
    zumtest::SectionBuilder b(zumtest::LongHeader(0x76, 9, 0, 0, 0, true));
    b.U16(0).U8(1);
    b.Begin16().Raw({0x00, 0x20, 0x02, 0x00}).Begin8().Text("crid://x").End().U8(0).U16(0x0000).End();
    b.Begin16()
        .Raw(Desc(0x7F, Concat({{0x00, 0x00, 0x01, 0x40, 3, 'p', 'n', 'g', static_cast<uint8_t>(url.size())},
                                Bytes(url.begin(), url.end())})))
        .Raw(Desc(0x7F, {0x13, 0x00, 1, 'u', 0x00, 0x3C}))
        .Raw(Desc(0x76, {0x04, 3, 'a', '/', 'b'}))
        .Raw(Desc(0x7F, {0x09, 'G', 'B', 'R', 0x02, 1, 2}))
        .Raw(Desc(0x7F, {0x22, 4, 0x20, 0x05, 0x01, 0x02}))
        .End();
    const Bytes section = b.Build();
    zuminspect::InspectSettings settings;
    settings.country = "GBR";
    zumtest::BinderScope binder(zuminspect::BinderSettingsFor(settings));
    zuminspect::Session session(zuminspect::DetectInputKind(section.data(), section.size()), settings);
    session.Feed(section.data(), section.size());
    session.Finish();
    const Json model = session.Model();

    const Json& table = model["rct"]["tables"].at(0);
    EXPECT_EQ(table["id"], 9);
    EXPECT_EQ(table["links"].at(0)["uri"], "crid://x");
    const Json& loop = table["descriptors"];
    ASSERT_EQ(loop.size(), 5u);
    EXPECT_EQ(loop[0]["fields"]["iconType"], "png");
    EXPECT_EQ(loop[0]["fields"]["locator"]["carouselId"], 0x2F);
    EXPECT_EQ(loop[1]["fields"]["uri"], "u");
    EXPECT_EQ(loop[2]["fields"]["crids"].at(0)["crid"], "a/b");
    EXPECT_EQ(loop[3]["fields"]["regions"].at(0).dump(), R"({"country":"GBR","depth":2,"primary":1,"secondary":2})");
    EXPECT_EQ(loop[4]["fields"]["sogis"].at(0)["serviceId"], 0x0102);
    EXPECT_EQ(model["summary"]["tables"].at(0)["parser"], "TCDVBRCTParser");

    std::ostringstream tree;
    zuminspect::RenderTree(model, tree);
    EXPECT_NE(tree.str().find("RCT  related content tables: 1\n  table 9, links: 1\n    link  "), std::string::npos)
        << tree.str();
}
