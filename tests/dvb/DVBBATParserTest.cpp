#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <list>
#include <string>
#include <vector>

#include "dvb/DVBBATParser.h"
#include "dvb/DescLinkage.h"
#include "dvb/DescNetworkName.h"
#include "operators/DescLogicalChannel.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zumtest::Bytes;
using zumtest::Concat;
using zumtest::Desc;

namespace {

struct Mux { unsigned tsid, onid; Bytes descriptors; };

Bytes Bat(unsigned bouquetId, unsigned version, unsigned section, unsigned last, const Bytes& bouquetDescriptors,
          const std::vector<Mux>& muxes)
{
    zumtest::SectionBuilder b(zumtest::LongHeader(0x4A, bouquetId, version, section, last, true));
    b.Begin16(12).Raw(bouquetDescriptors).End().Begin16(12);
    for (const Mux& m : muxes)
        b.U16(m.tsid).U16(m.onid).Begin16(12).Raw(m.descriptors).End();
    b.End();
    return b.Build();
}

std::vector<unsigned> Tsids(const TCDVBBATInstance* instance)
{
    std::vector<unsigned> out;
    for (int i = 0; instance && i < instance->NumOfDVBItemMux(); ++i)
        out.push_back(instance->DVBItemMuxOfIndex(static_cast<unsigned>(i))->TransportStreamId());
    return out;
}

Bytes ReadCapture(const std::string& name)
{
    std::ifstream in(std::string(ZUM_CAPTURES_DIR) + "/" + name, std::ios::binary);
    return Bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

} // namespace

TEST(DVBBATParser, BouquetsTrackedApart)
{
    zumtest::BinderScope binder;
    binder->countryCode = ZumPackCode("FRA");
    TCDVBBATParser bat(kZUMDefaultHandle);
    bat.Initialize();
    EXPECT_FALSE(bat.IsRecv(1));
    // Bouquet 1 in two sections, 1 first; its streams carry channel numbers under specifier 0x28.
    const Bytes numbers = Concat({Desc(0x5F, {0, 0, 0, 0x28}), Desc(0x83, {0x01, 0x01, 0xFC, 0x05})});
    const Bytes s0 = Bat(1, 3, 0, 1, Desc(0x47, {'B', 'q'}), {{0x10, 0x20, numbers}, {0x11, 0x20, {}}});
    const Bytes s1 = Bat(1, 3, 1, 1, Desc(0x4A, {0, 1, 0, 2, 0, 3, 0x04}), {{0x12, 0x21, {}}});
    EXPECT_FALSE(bat.Parse(0x11, s1.data()));
    EXPECT_FALSE(bat.IsRecv(1));
    EXPECT_TRUE(bat.IsRecv(7)); // an unknown bouquet
    EXPECT_TRUE(bat.Parse(0x11, s0.data()));
    const TCDVBBATInstance* one = bat.GetInstance(1);
    ASSERT_NE(one, nullptr);
    EXPECT_EQ(Tsids(one), (std::vector<unsigned>{0x10, 0x11, 0x12}));
    EXPECT_EQ(one->BouquetId(), 1);
    EXPECT_NE(one->Descriptor(0x47, 0), nullptr);
    // The bouquet loop decodes under table id 0x4A, and so do the streams.
    ASSERT_NE(dynamic_cast<const TCDescLinkage*>(one->Descriptor(0x4A, 0)), nullptr);
    EXPECT_EQ(one->Descriptor(0x4A, 0)->TableId(), 0x4A);
    const TCDVBItemMux* mux = one->DVBItemMux(0x10, 0x20);
    ASSERT_NE(mux, nullptr);
    EXPECT_EQ(one->DVBItemMux(0x10, 0x21), nullptr);
    EXPECT_EQ(one->DVBItemMuxOfIndex(3), nullptr);
    const IDescLogicalChannel* lcn = mux->LCNDescriptorbyPriority(true, 0x101, ZumPackCode("FRA"), true);
    ASSERT_NE(lcn, nullptr);
    EXPECT_EQ(lcn->LogicalChannelNumber(0x101), 5u);
    EXPECT_EQ(mux->DescriptorByIndex(0)->TableId(), 0x4A);

    // A second bouquet; the flag waits for a repetition of a complete bouquet once all are complete.
    EXPECT_TRUE(bat.Parse(0x11, Bat(2, 0, 0, 0, {}, {{0x30, 1, {}}}).data()));
    EXPECT_FALSE(bat.AllSubtablesReceived());
    EXPECT_FALSE(bat.Parse(0x11, s0.data()));
    EXPECT_TRUE(bat.AllSubtablesReceived());
    std::list<unsigned short> ids;
    bat.BouquetIds(ids);
    EXPECT_EQ(ids, (std::list<unsigned short>{1, 2}));

    // A new version of bouquet 2 leaves bouquet 1 complete.
    EXPECT_FALSE(bat.Parse(0x11, Bat(2, 1, 0, 1, {}, {{0x31, 1, {}}}).data()));
    EXPECT_EQ(Tsids(bat.GetInstance(2)), std::vector<unsigned>{0x31});
    EXPECT_TRUE(bat.IsRecv(1));
    EXPECT_FALSE(bat.IsRecv(2));
    EXPECT_EQ(Tsids(bat.GetInstance(1)), (std::vector<unsigned>{0x10, 0x11, 0x12}));

    bat.Initialize();
    EXPECT_EQ(bat.GetInstance(1), nullptr);
    EXPECT_FALSE(bat.AllSubtablesReceived());
}

// The BATs of Sky Italia and Canal+ decode: bouquet names and transport streams with their loops.
TEST(DVBBATParser, RealCaptures)
{
    const Bytes cplus = ReadCapture("tsduck_tsduck__psi_bat_cplus_sections.0.BAT.bin");
    const Bytes tvnum = ReadCapture("tsduck_tsduck__psi_bat_tvnum_sections.0.BAT.bin");
    const Bytes sky = ReadCapture("tsduck_tsduck-test__ref_test-002.tstables.bin");
    if (cplus.empty() || tvnum.empty() || sky.empty())
        GTEST_SKIP() << "captures not present";
    zumtest::BinderScope binder;
    binder->countryCode = ZumPackCode("FRA");
    for (const auto& capture : {std::make_pair(&cplus, 0xC003), std::make_pair(&tvnum, 0x0086)}) {
        TCDVBBATParser bat(kZUMDefaultHandle);
        EXPECT_TRUE(bat.Parse(0x11, capture.first->data()));
        const TCDVBBATInstance* bouquet = bat.GetInstance(static_cast<unsigned short>(capture.second));
        ASSERT_NE(bouquet, nullptr) << capture.second;
        EXPECT_NE(dynamic_cast<const TCDescBouquetName*>(bouquet->Descriptor(0x47, 0)), nullptr);
        ASSERT_GT(bouquet->NumOfDVBItemMux(), 0);
        for (int i = 0; i < bouquet->NumOfDVBItemMux(); ++i)
            EXPECT_GT(bouquet->DVBItemMuxOfIndex(static_cast<unsigned>(i))->NumOfDescriptors(), 0) << i;
    }

    binder->countryCode = ZumPackCode("ITA");
    TCDVBBATParser italy(kZUMDefaultHandle);
    int sections = 0;
    for (size_t at = 0; at + 3 <= sky.size();) {
        const size_t size = 3 + (((sky[at + 1] & 0x0F) << 8) | sky[at + 2]);
        if (sky[at] == 0x4A) {
            italy.Parse(0x11, sky.data() + at);
            ++sections;
        }
        at += size;
    }
    EXPECT_EQ(sections, 4);
    std::list<unsigned short> ids;
    italy.BouquetIds(ids);
    ASSERT_FALSE(ids.empty());
    int muxes = 0;
    for (unsigned short id : ids)
        muxes += italy.GetInstance(id)->NumOfDVBItemMux();
    EXPECT_GT(muxes, 0);
}
