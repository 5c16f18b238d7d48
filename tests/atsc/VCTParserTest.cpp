#include <gtest/gtest.h>

#include <list>
#include <string>
#include <tuple>
#include <vector>

#include "AtscCapture.h"
#include "atsc/DescExtendedChannelName.h"
#include "atsc/DescServiceLocation.h"
#include "atsc/VCTParser.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zumtest::Bytes;
using zumtest::Desc;

namespace {

struct Channel {
    std::string name;
    unsigned major, minor, modulation = 4, carrier = 0, tsid = 0x0AAA, program = 1;
    unsigned etm = 0, access = 0, hidden = 0, path = 0, outOfBand = 0, hideGuide = 0, serviceType = 2;
    unsigned sourceId = 1;
    Bytes descriptors = {};
};

void PutChannel(zumtest::ByteWriter& b, const Channel& c)
{
    for (size_t i = 0; i < 7; ++i)
        b.U16(i < c.name.size() ? static_cast<unsigned char>(c.name[i]) : 0);
    b.U24(0xF00000u | (c.major << 10) | c.minor).U8(c.modulation).U32(c.carrier).U16(c.tsid).U16(c.program);
    b.U8((c.etm << 6) | (c.access << 5) | (c.hidden << 4) | (c.path << 3) | (c.outOfBand << 2) | (c.hideGuide << 1) | 1);
    b.U8(0xC0 | c.serviceType).U16(c.sourceId).Begin16(10, 0xFC00).Raw(c.descriptors).End();
}

Bytes Vct(unsigned tableId, unsigned version, const std::vector<Channel>& channels, const Bytes& additional = {},
          unsigned section = 0, unsigned last = 0)
{
    zumtest::SectionHeader header = zumtest::LongHeader(tableId, 0x0AAA, version, section, last);
    header.protocolVersion = 0;
    zumtest::SectionBuilder b(header);
    b.U8(static_cast<unsigned>(channels.size()));
    for (const Channel& c : channels)
        PutChannel(b, c);
    b.Begin16(10, 0xFC00).Raw(additional).End();
    return b.Build();
}

zum_platform::BinderSettings Usa()
{
    zum_platform::BinderSettings s;
    s.countryCode = ZumPackCode("USA");
    return s;
}

std::string ShortName(const TCVCTChannel* c)
{
    std::string name;
    for (int i = 0; i < TCVCTChannel::kShortNameBytes; i += 2)
        if (c->ShortName()[i + 1])
            name += static_cast<char>(c->ShortName()[i + 1]);
    return name.substr(0, name.find_last_not_of(' ') + 1);
}

// "KULX-HD" in English, uncompressed.
const Bytes kLongName = {0x01, 'e', 'n', 'g', 0x01, 0x00, 0x00, 0x07, 'K', 'U', 'L', 'X', '-', 'H', 'D'};

} // namespace

TEST(VCTParser, EveryChannelFieldAndTheChannelDescriptors)
{
    zumtest::BinderScope binder(Usa());
    TCTVCTParser vct(ZUMHandle{});
    vct.Initialize();
    const std::vector<Channel> channels = {
        {"KULX", 10, 1, 4, 0, 0x0AAA, 3, 0, 1, 0, 1, 0, 0, 2, 0x0101,
         zumtest::Concat({Desc(0xA0, kLongName), Desc(0xA1, {0xE0, 0x31, 0x02, 0x02, 0xE0, 0x31, 0, 0, 0, 0x81,
                                                              0xE0, 0x34, 'e', 'n', 'g'})})},
        {"ABCDEFG", 1023, 1023, 0xFF, 0xFFFFFFFF, 0xFFFF, 0xFFFF, 3, 0, 1, 0, 1, 1, 0x3F, 0xFFFF},
    };
    EXPECT_TRUE(vct.Parse(0x1FFB, Vct(0xC8, 0, channels, Desc(0xAD, {1})).data()));
    ASSERT_EQ(vct.NumOfVCTChannel(), 2u);
    EXPECT_EQ(vct.NumChannelsInSection(), 2);
    using Fields = std::tuple<std::string, int, int, int, unsigned, int, int, int, int, int, int, int, int, int>;
    const Fields expected[] = {
        {"KULX", 10, 1, 4, 0u, 0x0AAA, 3, 0, 1, 0, 1, 0, 2, 0x0101},
        // out_of_band set, hide_guide set: they do not mix.
        {"ABCDEFG", 1023, 1023, 0xFF, 0xFFFFFFFFu, 0xFFFF, 0xFFFF, 3, 0, 1, 0, 1, 0x3F, 0xFFFF},
    };
    for (unsigned i = 0; i < 2; ++i) {
        const TCVCTChannel* c = vct.VCTChannel(i);
        EXPECT_EQ(Fields(ShortName(c), c->MajorChannelNumber(), c->MinorChannelNumber(), c->ModulationMode(),
                         c->CarrierFrequency(), c->ChannelTSID(), c->ProgramNumber(), c->ETMLocation(),
                         c->AccessControlled(), c->Hidden(), c->PathSelect(), c->HideGuide(), c->ServiceType(),
                         c->SourceId()),
                  expected[i])
            << i;
        // The rest of the 50-byte area stays zero.
        for (int b = TCVCTChannel::kShortNameBytes; b < TCVCTChannel::kShortNameArea; ++b)
            EXPECT_EQ(c->ShortName()[b], 0) << b;
    }
    EXPECT_EQ(vct.VCTChannel(2), nullptr);
    EXPECT_EQ(vct.NumOfDescriptors(0xAD), 1);

    const TCVCTChannel* kulx = vct.VCTChannel(0);
    const auto* name = dynamic_cast<TCDescExtendedChannelName*>(kulx->Descriptor(0xA0, 0));
    ASSERT_NE(name, nullptr);
    EXPECT_EQ(name->TableId(), 0xC8);
    char text[32];
    int length = sizeof text;
    ASSERT_TRUE(name->ExtendedChannelNameString()->GetMutipleText(0, ZumPackCode("eng"), 0, text, &length, nullptr));
    EXPECT_EQ(length, 14);
    EXPECT_EQ(text[13], 'D');
    const auto* location = dynamic_cast<TCDescServiceLocation*>(kulx->Descriptor(0xA1, 0));
    ASSERT_NE(location, nullptr);
    EXPECT_EQ(std::make_tuple(location->PCRPID(), location->NumberElements(), location->StreamType(1),
                              location->ElementaryPID(1), location->ISO639LanguageCode(1)),
              std::make_tuple(0x0031, 2, 0x81u, 0x0034u, ZumPackCode("eng")));

    // A service location cut by its length keeps the elements that fit; an index outside them logs.
    TCDescServiceLocation cut;
    const Bytes cutBytes = Desc(0xA1, {0xE0, 0x31, 0x03, 0x02, 0xE0, 0x31, 0, 0, 0});
    cut.Parse(cutBytes.data());
    zumtest::LogCapture log;
    EXPECT_EQ(cut.NumberElements(), 1);
    EXPECT_EQ(std::make_tuple(cut.StreamType(1), cut.ElementaryPID(-1), cut.ISO639LanguageCode(3)),
              std::make_tuple(0u, 0xFFFFFFFFu, 0u));
    EXPECT_EQ(log.Lines(3).size(), 3u);
    EXPECT_TRUE(log.Contains("[ASSERTION!!!] TCDescServiceLocation Line = "));
}

TEST(VCTParser, TheVersionGate)
{
    zumtest::BinderScope binder(Usa());
    struct Case {
        const char* name;
        bool lvct, matched;
        int selected, mgt; // -1: not set
        unsigned version;
        bool taken;
    } cases[] = {
        {"nothing selected, 0", false, false, -1, -1, 0, true},
        {"nothing selected, 31", false, false, -1, -1, 31, true},
        {"newer than selected", false, false, 5, 7, 7, true},
        {"older, not the MGT's", false, false, 5, 7, 3, false},
        {"the selected one", false, false, 5, 7, 5, true},
        {"wrapped under the MGT's word", false, false, 30, 1, 1, true},
        {"older after a wrap, not the MGT's", false, false, 30, 1, 2, false},
        {"matched: newer refused", false, true, 5, 6, 6, false},
        {"matched: the selected one", false, true, 5, 6, 5, true},
        {"LVCT takes any", true, false, 30, 1, 2, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        zumtest::LogCapture log;
        std::unique_ptr<TCVCTParser> vct;
        if (c.lvct)
            vct.reset(new TCLVCTParser(ZUMHandle{}));
        else
            vct.reset(new TCCVCTParser(ZUMHandle{}));
        vct->Initialize();
        if (c.selected >= 0)
            vct->SetSelectedVCTVersion(static_cast<char>(c.selected));
        if (c.mgt >= 0)
            vct->SetCurrentMGTVCTVersion(static_cast<char>(c.mgt));
        vct->SetMatchedVersion(c.matched);
        EXPECT_EQ(vct->Parse(0x1FFB, Vct(0xC9, c.version, {{"A", 2, 1}}).data()), c.taken);
        EXPECT_EQ(vct->NumOfVCTChannel(), c.taken ? 1u : 0u);
        const std::string refused = "TCVCTParser::t_Parse, m_bMatchedVersion[" + std::to_string(c.matched) +
                                    "], t_versionNumber[" + std::to_string(c.version) + "], m_selectedVCTVersion[" +
                                    std::to_string(c.selected) + "], m_currentMGTVersion[" + std::to_string(c.mgt) +
                                    "]";
        EXPECT_EQ(log.Count(refused), c.taken ? 0 : 1);
        // Initialize opens the gate again.
        vct->Initialize();
        EXPECT_TRUE(vct->Parse(0x1FFB, Vct(0xC9, c.version, {{"A", 2, 1}}).data()));
    }
}

TEST(VCTParser, SectionsAccumulatePerVersion)
{
    zumtest::BinderScope binder(Usa());
    zumtest::LogCapture log;
    TCTVCTParser vct(ZUMHandle{});
    vct.Initialize();
    EXPECT_FALSE(vct.IsRecv());
    const Bytes first = Vct(0xC8, 1, {{"A", 2, 1, 4, 0, 1, 10, 0, 0, 0, 0, 0, 0, 2, 7}}, {}, 0, 1);
    const Bytes second = Vct(0xC8, 1, {{"B", 2, 2, 4, 0, 1, 11, 0, 0, 0, 0, 0, 0, 2, 8},
                                      {"C", 2, 3, 4, 0, 1, 12, 0, 0, 0, 0, 0, 0, 2, 7}}, {}, 1, 1);
    EXPECT_FALSE(vct.Parse(0x1FFB, first.data()));
    EXPECT_FALSE(vct.IsRecv());
    EXPECT_FALSE(vct.Parse(0x1FFB, first.data()));
    EXPECT_TRUE(vct.Parse(0x1FFB, second.data()));
    EXPECT_TRUE(vct.IsRecv());
    EXPECT_EQ(vct.NumOfVCTChannel(), 3u);
    EXPECT_EQ(vct.NumChannelsInSection(), 2);

    std::list<TCVCTChannel*> bySource = {nullptr};
    EXPECT_TRUE(vct.VCTChannelBySourceId(7, &bySource));
    ASSERT_EQ(bySource.size(), 3u);
    EXPECT_EQ(bySource.back(), vct.VCTChannel(2));
    EXPECT_TRUE(vct.VCTChannelBySourceId(99, &bySource));
    EXPECT_EQ(bySource.size(), 3u);
    EXPECT_FALSE(vct.VCTChannelBySourceId(7, nullptr));
    EXPECT_EQ(log.Count("VCTChannelBySourceId ::pChannelList == NULL"), 1);
    EXPECT_EQ(vct.VCTChannelByProgramNumber(11), vct.VCTChannel(1));
    EXPECT_EQ(vct.VCTChannelByProgramNumber(13), nullptr);

    // A new version drops the old channels; setting a version drops nothing.
    vct.SetSelectedVCTVersion(1);
    EXPECT_TRUE(vct.Parse(0x1FFB, Vct(0xC8, 2, {}, Desc(0xA0, {0})).data()));
    EXPECT_EQ(vct.NumOfVCTChannel(), 0u);
    EXPECT_EQ(vct.NumOfDescriptors(0xA0), 1);
    EXPECT_EQ(log.Count("VCT Section Ignored... "), 0);
    EXPECT_FALSE(vct.Parse(0x1FFB, Vct(0xC8, 2, {}, {}, 3, 1).data()));
    EXPECT_EQ(log.Count("VCT Section Ignored... "), 1);
}

TEST(VCTParser, AChannelRunningOverEndsTheSection)
{
    zumtest::BinderScope binder(Usa());
    Bytes overlong = Vct(0xC8, 0, {{"A", 2, 1}, {"B", 2, 2}});
    // The second channel's descriptors_length claims 0x3FF bytes.
    overlong[9 + 1 + 32 + 30] = 0xFF;
    overlong[9 + 1 + 32 + 31] = 0xFF;
    Bytes shortTail = Vct(0xC8, 0, {{"A", 2, 1}});
    shortTail[9 + 1 + 32] = 0xFF; // additional_descriptors_length 0x3FF
    struct Case {
        const char* name;
        Bytes section;
        unsigned channels;
        std::vector<std::string> log;
    } cases[] = {
        {"channel descriptors run over", overlong, 1,
         {"VCT Descriptor Parsing error total size = 38 , parsed len = 1055",
          "TCVCTParser::t_Parse error... parsed len = 71 , total size = 71"}},
        {"additional descriptors run over", shortTail, 1,
         {"TCVCTParser::Descriptor parsing error... parsed len = 33 , total size = 39"}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        zumtest::LogCapture log;
        TCTVCTParser vct(ZUMHandle{});
        vct.Initialize();
        EXPECT_FALSE(vct.Parse(0x1FFB, c.section.data()));
        EXPECT_EQ(vct.NumOfVCTChannel(), c.channels);
        EXPECT_EQ(log.Lines(), c.log);
        // The section counts as received.
        EXPECT_TRUE(vct.IsRecv());
    }
}

TEST(VCTParser, RealCapture)
{
    const std::vector<Bytes> sections = atsctest::CaptureSections(0xC8);
    if (sections.empty())
        GTEST_SKIP() << "captures not available";
    zumtest::BinderScope binder(Usa());
    TCTVCTParser vct(ZUMHandle{});
    vct.Initialize();
    for (const Bytes& section : sections)
        EXPECT_TRUE(vct.Parse(0x1FFB, section.data()));
    ASSERT_EQ(vct.NumOfVCTChannel(), 4u);
    std::vector<std::string> names;
    for (unsigned i = 0; i < 4; ++i) {
        const TCVCTChannel* c = vct.VCTChannel(i);
        names.push_back(std::to_string(c->MajorChannelNumber()) + "." + std::to_string(c->MinorChannelNumber()) +
                        " " + ShortName(c));
        EXPECT_EQ(c->NumOfDescriptors(0xA1), 1) << i;
    }
    EXPECT_EQ(names, (std::vector<std::string>{"10.1 KULX", "10.2 TelXito", "10.3 LightTV", "10.4 Quest"}));
}
