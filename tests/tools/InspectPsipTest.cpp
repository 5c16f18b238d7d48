// The inspector's PSIP guide: EITs on the PID the MGT announces, the time of
// the STT, the channel of the TVCT, the rating and captions of each event, and
// the text of a cable emergency alert.

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <sstream>
#include <string>

#include "inspect/PsipView.h"
#include "inspect/Renderers.h"
#include "inspect/Session.h"
#include "inspect/TsMux.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zumtest::Bytes;

namespace {

zumtest::SectionBuilder Psip(unsigned tableId, unsigned extension)
{
    zumtest::SectionHeader header = zumtest::LongHeader(tableId, extension, 1);
    header.protocolVersion = 0;
    return zumtest::SectionBuilder(header);
}

Bytes English(const std::string& text)
{
    zumtest::ByteWriter w;
    w.U8(1).Text("eng").U8(1).U8(0).U8(0).Begin8().Text(text).End();
    return w.Data();
}

Bytes Stream()
{
    zumtest::SectionBuilder mgt = Psip(0xC7, 0);
    mgt.U16(2);
    mgt.U16(0x0000).U16(0xFFFB).U8(0xE1).U32(100).U16(0xF000);
    mgt.U16(0x0100).U16(0xFD00).U8(0xE1).U32(200).U16(0xF000);
    mgt.U16(0xF000);

    zumtest::SectionBuilder tvct = Psip(0xC8, 0x0AAA);
    tvct.U8(1);
    for (char c : std::string("KULX-HD"))
        tvct.U16(static_cast<unsigned char>(c));
    tvct.U24(0xF00000u | (10u << 10) | 1).U8(0x04).U32(0).U16(0x0AAA).U16(1).U8(0x0D).U8(0xC2).U16(0x0003);
    tvct.U16(0xFC00).U16(0xFC00);

    zumtest::SectionBuilder stt = Psip(0xCD, 0);
    stt.U32(0x5823B892).U8(18).U16(0x0000);

    // 2026-11-14 19:00 EST for an hour, TV-PG with dialogue and language, line 21 captions.
    zumtest::SectionBuilder eit = Psip(0xCB, 0x0003);
    eit.U8(1).U16(0xC001).U32(0x5823B892).U24(0xC00000 | 3600).Begin8().Raw(English("Title")).End();
    eit.Begin16(12, 0xF000);
    eit.Descriptor(0x87, {0xC1, 0x01, 0x03, 0x00, 0x03, 0x01, 0x01, 0x02, 0x01, 0x00});
    eit.Descriptor(0x86, zumtest::Concat({{0xE1}, {'e', 'n', 'g'}, {0x40, 0x3F, 0xFF}}));
    eit.End();

    zumtest::SectionBuilder eas = Psip(0xD8, 0);
    eas.U16(0x1234).Text("WXR").Begin8().Text("TOR").End().Begin8().Raw(English("Tornado warning")).End();
    eas.U8(0).U32(0x5823B892).U16(30).U16(0xFFFF).U16(0).U16(0).U16(0).U16(0);
    eas.Begin16(16, 0).Raw(English("Take shelter now")).End();
    eas.U8(1).U8(49).U16(0x0023).U8(0).U16(0xFC00);

    return zumtest::Concat({zuminspect::TsMux::Packetize(0x1FFB, {mgt.Build(), tvct.Build(), stt.Build(), eas.Build()}),
                            zuminspect::TsMux::Packetize(0x1D00, {eit.Build()})});
}

std::string Tree(const Bytes& input)
{
    zuminspect::InspectSettings settings;
    settings.country = "USA";
    settings.language = "eng";
    zumtest::BinderScope binder(zuminspect::BinderSettingsFor(settings));
    zumtest::LogCapture log;
    zuminspect::Session session(zuminspect::DetectInputKind(input.data(), input.size()), settings);
    session.Feed(input.data(), input.size());
    session.Finish();
    EXPECT_FALSE(log.Contains("ASSERT!"));
    std::ostringstream out;
    zuminspect::RenderTree(session.Model(), out);
    return out.str();
}

} // namespace

TEST(InspectPsip, GuideLineAndAlertText)
{
    const std::string tree = Tree(Stream());
    EXPECT_NE(tree.find("  KULX-HD 10.1  2026-11-14 19:00 EST  60 min  Title  [TV-PG D L]  CC1 eng\n"),
              std::string::npos)
        << tree;
    EXPECT_NE(tree.find("EAS  event 4660, WXR TOR, priority 15, 30 min\n  Tornado warning\n"
                        "  \"Take shelter now\"\n  state 49, county 35, subdivision 0\n"),
              std::string::npos)
        << tree;
    EXPECT_NE(tree.find("STT  2026-11-15 00:00:00 UTC, GPS-UTC offset 18 s"), std::string::npos);
    ASSERT_TRUE(zuminspect::SetGuideTimeZone("PST"));
    EXPECT_NE(Tree(Stream()).find("2026-11-14 16:00 PST  60 min"), std::string::npos);
    zuminspect::SetGuideTimeZone("EST");
    EXPECT_FALSE(zuminspect::SetGuideTimeZone("CET"));
}

TEST(InspectPsip, KulxCaptures)
{
    std::string sections;
    for (const char* file : {"tsduck_tsduck-test__ref_test-040.tstables.bin", "tsduck_tsduck-test__ref_test-051.tstables.bin"}) {
        std::ifstream in(std::string(ZUM_CAPTURES_DIR) + "/" + file, std::ios::binary);
        sections.append(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    }
    if (sections.empty())
        GTEST_SKIP() << "captures not present";
    const std::string tree = Tree(Bytes(sections.begin(), sections.end()));
    // Daylight time, as the STT says; captions in line 21 and digital.
    EXPECT_NE(tree.find("Program guide  19 events"), std::string::npos);
    EXPECT_NE(tree.find("  KULX 10.1  2019-03-17 11:00 EDT  30 min  "), std::string::npos) << tree;
    EXPECT_NE(tree.find("CC1 eng, CS1 eng\n"), std::string::npos);
    EXPECT_EQ(tree.find("(no title)"), std::string::npos);
}
