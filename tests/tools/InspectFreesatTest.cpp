// A Freesat receiver's view (GBR, specifier FSAT): the NIT's channel numbers
// per region, the private descriptors decoded, and the postcode tables joined.

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
using zumtest::Desc;

TEST(InspectFreesat, ChannelNumbersByRegionAndPostCodes)
{
    // Service 0x1B5D: 101 in region 1, 952 in region 2; the region names in English.
    const zumtest::Bytes lcn = {0x1B, 0x5D, 0x80, 0x01, 8, 0xC0, 101, 0x00, 0x01, 0xC3, 0xB8, 0x00, 0x02};
    const zumtest::Bytes loop = zumtest::Concat(
        {Desc(0x41, {0x1B, 0x5D, 0x01}), Desc(0x5F, {0x46, 0x53, 0x41, 0x54}), Desc(0xD3, lcn),
         Desc(0xD4, {0, 1, 'e', 'n', 'g', 6, 'L', 'o', 'n', 'd', 'o', 'n'}), Desc(0xDC, {0x08})});
    zumtest::SectionBuilder nit(zumtest::LongHeader(0x40, 0x3B));
    nit.Begin16(12).End().Begin16(12).U16(0x7D5).U16(2).Begin16(12).Raw(loop).End().End();
    zumtest::SectionBuilder tree(zumtest::LongHeader(0xD2, 0, 0, 0, 0, true));
    tree.Raw({'P', 'C'});
    const std::vector<uint8_t> ts = zumtest::Concat({zuminspect::TsMux::Packetize(zuminspect::kPidNit, {nit.Build()}),
                                                     zuminspect::TsMux::Packetize(0x0F02, {tree.Build()})});

    zuminspect::InspectSettings settings;
    settings.country = "GBR";
    settings.privateDataSpecifier = 0x46534154;
    settings.allPids = true;
    zumtest::BinderScope binder(zuminspect::BinderSettingsFor(settings));
    zuminspect::Session session(zuminspect::InputKind::TransportStream, settings);
    session.Feed(ts.data(), ts.size());
    session.Finish();
    const Json model = session.Model();
    const Json& stream = model["nits"].at(0)["transportStreams"].at(0);
    EXPECT_EQ(stream["services"].at(0)["channelNumbersByRegion"],
              Json::parse(R"([{"region": 1, "channelNumber": 101}, {"region": 2, "channelNumber": 952}])"));
    EXPECT_EQ(stream["services"].at(0)["channelNumberTag"], "0xD3");
    const Json& descriptors = stream["descriptors"];
    EXPECT_EQ(descriptors.at(1)["fields"]["services"], Json::parse(R"([{"serviceId": 7005, "freesatId": 1}])"));
    EXPECT_EQ(descriptors.at(2)["fields"]["names"].at(0)["name"], "London");
    EXPECT_EQ(descriptors.at(3)["fields"]["doNotScramble"], true);
    EXPECT_EQ(model["freesatPostCodes"]["tree"], Json::parse(R"({"bytes": 2, "complete": true})"));
    std::ostringstream text;
    zuminspect::RenderTree(model, text);
    EXPECT_NE(text.str().find("channel - (from 0xD3), region 1: 101, region 2: 952"), std::string::npos) << text.str();
    EXPECT_NE(text.str().find("FREESAT POSTCODES  tree: 2 bytes, region keys: 0 bytes"), std::string::npos) << text.str();
    bool named = false;
    for (const Json& t : model["summary"]["tables"])
        named = named || t["parser"] == "TCDVBFSatPostCodeParser";
    EXPECT_TRUE(named);
}
