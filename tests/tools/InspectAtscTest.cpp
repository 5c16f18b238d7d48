// The inspector with an ATSC country: the base PID filtered, the MGT and the
// TVCT routed, channels named from their multiple string structures.

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "inspect/Renderers.h"
#include "inspect/Session.h"
#include "inspect/TsMux.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zuminspect::Json;
using zumtest::Bytes;

namespace {

zumtest::SectionHeader Psip(unsigned tableId, unsigned version)
{
    zumtest::SectionHeader header = zumtest::LongHeader(tableId, 0x0AAA, version);
    header.protocolVersion = 0;
    return header;
}

Bytes Mgt(unsigned vctVersion)
{
    zumtest::SectionBuilder b(Psip(0xC7, 0));
    b.U16(2);
    b.U16(0x0000).U16(0xFFFB).U8(0xE0 | vctVersion).U32(100).U16(0xF000);
    b.U16(0x0100).U16(0xFD00).U8(0xE0).U32(200).U16(0xF000);
    b.U16(0xF000);
    return b.Build();
}

// A channel with a short name and, when `longName` is set, an English and a
// French extended channel name.
void Channel(zumtest::ByteWriter& b, unsigned minor, const std::string& shortName, const std::string& longName)
{
    for (size_t i = 0; i < 7; ++i)
        b.U16(i < shortName.size() ? static_cast<unsigned char>(shortName[i]) : 0);
    b.U24(0xF00000u | (10u << 10) | minor).U8(0x04).U32(0).U16(0x0AAA).U16(minor).U8(0x0D).U8(0xC2).U16(minor);
    b.Begin16(10, 0xFC00);
    if (!longName.empty()) {
        zumtest::ByteWriter name;
        name.U8(2).Text("fre").U8(1).U8(0).U8(0).Begin8().Text("Canal " + std::to_string(minor)).End();
        name.Text("eng").U8(1).U8(0).U8(0).Begin8().Text(longName).End();
        b.Descriptor(0xA0, name.Data());
    }
    b.End();
}

Bytes Tvct(unsigned version)
{
    zumtest::SectionBuilder b(Psip(0xC8, version));
    b.U8(2);
    Channel(b, 1, "KULX", "KULX-HD");
    Channel(b, 2, "TelXito", "");
    b.U16(0xFC00);
    return b.Build();
}

Json Inspect(const std::string& country)
{
    const Bytes stream = zuminspect::TsMux::Packetize(0x1FFB, {Mgt(3), Tvct(3)});
    zuminspect::InspectSettings settings;
    settings.country = country;
    settings.language = "eng";
    zumtest::BinderScope binder(zuminspect::BinderSettingsFor(settings));
    zumtest::LogCapture log;
    zuminspect::Session session(zuminspect::DetectInputKind(stream.data(), stream.size()), settings);
    session.Feed(stream.data(), stream.size());
    session.Finish();
    EXPECT_FALSE(log.Contains("ASSERT!"));
    return session.Model();
}

} // namespace

TEST(InspectAtsc, ChannelsNamedFromTheirStringStructures)
{
    const Json model = Inspect("USA");
    const Json& atsc = model.at("atsc");
    EXPECT_EQ(atsc.at(Json::json_pointer("/mgt/tables/0/version")), 3);
    EXPECT_EQ(atsc.at(Json::json_pointer("/mgt/eitCount")), 1);
    const Json& channels = atsc.at(Json::json_pointer("/vcts/0/channels"));
    ASSERT_EQ(channels.size(), 2u);
    EXPECT_EQ(channels[0].at("channel"), "10.1 KULX-HD");
    EXPECT_EQ(channels[0].at("shortName"), "KULX");
    EXPECT_EQ(channels[1].at("channel"), "10.2 TelXito");
    EXPECT_EQ(channels[1].at("name"), nullptr);
    const Json& name = channels[0].at(Json::json_pointer("/descriptors/0"));
    EXPECT_EQ(name.at("class"), "TCDescExtendedChannelName");
    EXPECT_EQ(name.at(Json::json_pointer("/fields/text")), "KULX-HD");
    EXPECT_EQ(name.at(Json::json_pointer("/fields/strings/0/language")), "fre");

    std::vector<std::string> parsers;
    for (const Json& table : model.at(Json::json_pointer("/summary/tables"))) {
        parsers.push_back(table.at("parser").get<std::string>());
        EXPECT_EQ(table.at("complete"), true);
    }
    EXPECT_EQ(parsers, (std::vector<std::string>{"TCMGTParser", "TCTVCTParser"}));

    std::ostringstream tree;
    zuminspect::RenderTree(model, tree);
    EXPECT_NE(tree.str().find("\n  10.1 KULX-HD  program 0x0001"), std::string::npos) << tree.str();
    EXPECT_NE(tree.str().find("type 0x0000 TVCT current  PID 0x1FFB, version 3"), std::string::npos);
}

TEST(InspectAtsc, ADvbCountryFiltersNoBasePid)
{
    const Json model = Inspect("GBR");
    EXPECT_EQ(model.at("atsc"), nullptr);
    EXPECT_EQ(model.at(Json::json_pointer("/summary/demux/sections")), 0);
}
