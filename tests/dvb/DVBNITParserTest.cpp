#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <list>
#include <string>
#include <tuple>
#include <vector>

#include "dvb/DVBNITParser.h"
#include "operators/DescLogicalChannel.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zumtest::Bytes;
using zumtest::Concat;
using zumtest::Desc;

namespace {

struct Mux { unsigned tsid, onid; Bytes descriptors; };

Bytes Nit(unsigned tableId, unsigned networkId, unsigned version, unsigned section, unsigned last,
          const Bytes& networkDescriptors, const std::vector<Mux>& muxes)
{
    zumtest::SectionBuilder b(zumtest::LongHeader(tableId, networkId, version, section, last));
    b.Begin16(12).Raw(networkDescriptors).End().Begin16(12);
    for (const Mux& m : muxes)
        b.U16(m.tsid).U16(m.onid).Begin16(12).Raw(m.descriptors).End();
    b.End();
    return b.Build();
}

std::vector<unsigned> Tsids(const TCDVBNITInstance* instance)
{
    std::vector<unsigned> out;
    for (int i = 0; i < instance->NumOfDVBItemMux(); ++i)
        out.push_back(instance->DVBItemMuxOfIndex(static_cast<unsigned>(i))->TransportStreamId());
    return out;
}

// The private data specifier under which tag 0x83 carries channel numbers.
const Bytes kSpecifier = Desc(0x5F, {0, 0, 0, 0x28});

} // namespace

TEST(DVBNITParser, TransportStreamsAndTheirChannels)
{
    zumtest::BinderScope binder;
    binder->countryCode = ZumPackCode("GBR");
    TCDVBNITParser nit(0x40, ZUMHandle());
    nit.Initialize();
    EXPECT_FALSE(nit.IsRecv(0));
    // Channel entries: service id, visible flag, 10-bit number.
    const Bytes mux1 = Concat({Desc(0x5A, Bytes(11, 0)), Desc(0x41, {0x01, 0x01, 1, 0x01, 0x02, 2}), kSpecifier,
                               Desc(0x83, {0x01, 0x01, 0xFC, 0x01, 0x01, 0x02, 0x7C, 0x02})});
    const Bytes mux2 = Concat({kSpecifier, Desc(0x83, {0x02, 0x01, 0xFF, 0xFF})});
    const Bytes s = Nit(0x40, 0x3001, 1, 0, 0, Desc(0x40, {'Z'}), {{1, 0x2000, mux1}, {2, 0x2000, mux2}, {3, 7, {}}});
    EXPECT_TRUE(nit.Parse(0x10, s.data()));
    EXPECT_TRUE(nit.IsRecv(0));
    EXPECT_EQ(std::make_tuple(nit.NetworkId(), nit.DescriptorsLength(0), nit.NumOfDVBItemMux(0)),
              std::make_tuple(0x3001, 1, 3));
    EXPECT_NE(nit.Descriptor(0x40, 0), nullptr);

    const TCDVBItemMux* first = nit.DVBItemMux(1, 0);
    ASSERT_NE(first, nullptr);
    // The specifier stays out of the loop; the others carry the table id.
    EXPECT_EQ(std::make_tuple(first->OriginalNetworkId(), first->NumOfDescriptors(0x5A), first->NumOfDescriptors(0x41),
                              first->NumOfDescriptors(0x5F), first->DescriptorByIndex(0)->TableId()),
              std::make_tuple(0x2000, 1, 1, 0, 0x40));
    IDescLogicalChannel* lcn = first->LCNDescriptorbyPriority(false, 0x102, ZumPackCode("GBR"), false);
    ASSERT_NE(lcn, nullptr);
    EXPECT_EQ(lcn->LogicalChannelNumber(0x102), 2u);
    EXPECT_FALSE(lcn->VisibleServiceFlag(0x102, 0));
    const TCDVBItemMux* second = nit.GetFirstInstance()->DVBItemMux(2, 0x2000);
    ASSERT_NE(second, nullptr);
    lcn = second->LCNDescriptorbyPriority(true, 0x201, ZumPackCode("GBR"), true);
    ASSERT_NE(lcn, nullptr);
    EXPECT_EQ(lcn->LogicalChannelNumber(0x201), 1023u);
    // Tag 0x84 is not one the lookup knows; the third stream has no loop at all.
    EXPECT_EQ(first->LCNDescriptor(0x101, 0x84, ZumPackCode("GBR")), nullptr);
    EXPECT_EQ(nit.DVBItemMux(3, 0)->LCNDescriptorbyPriority(true, 0x301, 0xFFFF00, true), nullptr);

    std::list<TCBaseDesc*> clones;
    EXPECT_TRUE(nit.GetDescriptor(&clones, 0));
    ASSERT_EQ(clones.size(), 1u);
    delete clones.front();
}

TEST(DVBNITParser, SectionsOutOfOrderAndCompleteCount)
{
    zumtest::BinderScope binder;
    TCDVBNITParser nit(0x40, ZUMHandle());
    const Bytes s0 = Nit(0x40, 9, 1, 0, 1, Desc(0x40, {'A'}), {{0x10, 1, {}}, {0x11, 1, {}}});
    EXPECT_FALSE(nit.Parse(0x10, Nit(0x40, 9, 1, 1, 1, Desc(0x40, {'B'}), {{0x20, 1, {}}}).data()));
    EXPECT_TRUE(nit.Parse(0x10, s0.data()));
    TCDVBNITInstance* instance = nit.GetInstance(9);
    ASSERT_NE(instance, nullptr);
    EXPECT_EQ(Tsids(instance), (std::vector<unsigned>{0x10, 0x11, 0x20}));
    EXPECT_EQ(instance->NumOfDescriptors(0x40), 2);
    unsigned char tableId = 0;
    unsigned int count = 0;
    EXPECT_EQ(instance->GetCurrentNITCount(&tableId, &count), 1u);
    EXPECT_EQ(tableId, 0x40);

    // The repeated last section: nothing doubled, and the all-received flag follows.
    EXPECT_FALSE(nit.AllSubtablesReceived());
    EXPECT_FALSE(nit.Parse(0x10, s0.data()));
    EXPECT_EQ(Tsids(instance), (std::vector<unsigned>{0x10, 0x11, 0x20}));
    EXPECT_TRUE(nit.AllSubtablesReceived());
    EXPECT_EQ(instance->GetCurrentNITCount(nullptr, nullptr), 1u);

    // A new version completed counts once more; its muxes replace the old ones.
    EXPECT_TRUE(nit.Parse(0x10, Nit(0x40, 9, 2, 0, 0, {}, {{0x30, 1, {}}}).data()));
    EXPECT_EQ(Tsids(instance), std::vector<unsigned>{0x30});
    EXPECT_EQ(instance->NumOfDescriptors(), 0);
    EXPECT_EQ(instance->GetCurrentNITCount(nullptr, &count), 2u);
    EXPECT_EQ(count, 2u);
}

// A section offered again after RemoveSection appends its muxes, as it does its
// network descriptors; what a caller holds stays valid until the next version.
TEST(DVBNITParser, SectionParsedAgainAppends)
{
    zumtest::BinderScope binder;
    TCDVBNITParser nit(0x40, ZUMHandle());
    const Bytes s0 = Nit(0x40, 9, 1, 0, 1, Desc(0x40, {'A'}), {{0x10, 1, {}}, {0x11, 1, {}}});
    nit.Parse(0x10, s0.data());
    nit.Parse(0x10, Nit(0x40, 9, 1, 1, 1, {}, {{0x20, 1, {}}}).data());
    TCDVBNITInstance* instance = nit.GetInstance(9);
    const TCDVBItemMux* held = instance->DVBItemMuxOfIndex(0);
    EXPECT_TRUE(instance->RemoveSection(0));
    EXPECT_TRUE(nit.Parse(0x10, s0.data()));
    EXPECT_EQ(Tsids(instance), (std::vector<unsigned>{0x10, 0x11, 0x10, 0x11, 0x20}));
    EXPECT_EQ(instance->NumOfDescriptors(0x40), 2);
    EXPECT_EQ(instance->DVBItemMuxOfIndex(0), held);
    EXPECT_EQ(held->TransportStreamId(), 0x10);
}

// The header of a short last entry is read as it stands where it lies in the
// CRC_32; only its loop, which would leave the section, is dropped.
TEST(DVBNITParser, ShortLastEntryReadsIntoTheCrc)
{
    zumtest::BinderScope binder;
    zumtest::SectionBuilder b(zumtest::LongHeader(0x40, 5));
    b.Begin16(12).End().Begin16(12).U16(0x44).U16(0x55).Begin16(12).Raw(Desc(0x40, {'N'})).End().U16(0x1234).End();
    const Bytes s = b.Build();
    const unsigned crcHigh = s[s.size() - 4] << 8 | s[s.size() - 3];
    ASSERT_NE(crcHigh, 0u); // else the test could not tell the bytes from zeros
    TCDVBNITParser nit(0x40, ZUMHandle());
    EXPECT_TRUE(nit.Parse(0x10, s.data()));
    ASSERT_EQ(nit.NumOfDVBItemMux(0), 2);
    const TCDVBItemMux* last = nit.DVBItemMuxOfIndex(1, 0);
    EXPECT_EQ(last->TransportStreamId(), 0x1234);
    EXPECT_EQ(last->OriginalNetworkId(), crcHigh);
    EXPECT_EQ(last->NumOfDescriptors(), 0);
    EXPECT_EQ(nit.DVBItemMuxOfIndex(0, 0)->NumOfDescriptors(), 1);
}

// The actual table answers for its first network whatever the id asked; the other table for the id asked.
TEST(DVBNITParser, SelectionByTableId)
{
    zumtest::BinderScope binder;
    TCDVBNITParser actual(0x40, ZUMHandle()), other(0x41, ZUMHandle());
    actual.Parse(0x10, Nit(0x40, 9, 0, 0, 0, {}, {{0x77, 1, {}}}).data());
    other.Parse(0x10, Nit(0x41, 9, 0, 0, 0, {}, {{0x77, 1, {}}}).data());
    EXPECT_NE(actual.DVBItemMux(0x77, 7), nullptr);
    EXPECT_EQ(actual.NumOfDVBItemMux(1234), 1);
    EXPECT_NE(other.DVBItemMux(0x77, 9), nullptr);
    EXPECT_EQ(other.NetworkId(), -1);
    EXPECT_TRUE(other.DVBItemMux(0x77, 7) == nullptr && other.NumOfDVBItemMux(1234) == 0 &&
                other.DVBItemMuxOfIndex(0, 1234) == nullptr && other.DescriptorsLength(1234) == 0 &&
                other.Descriptor(0x40, 1234) == nullptr);
    EXPECT_TRUE(other.IsRecv(1234));

    // Another network on the other-table parser; ids listed in order.
    other.Parse(0x10, Nit(0x41, 3, 0, 0, 1, {}, {}).data());
    std::list<unsigned short> ids;
    other.NetworkIds(ids);
    EXPECT_EQ(ids, (std::list<unsigned short>{3, 9}));
    EXPECT_FALSE(other.IsRecv(3));
    EXPECT_EQ(other.GetFirstInstance()->NetworkId(), 3);

    other.Initialize();
    EXPECT_EQ(other.GetFirstInstance(), nullptr);
    EXPECT_FALSE(other.IsRecv(9));
}

TEST(DVBNITParser, LoopsLongerThanTheSectionAreBounded)
{
    zumtest::BinderScope binder;
    zumtest::SectionBuilder b(zumtest::LongHeader(0x40, 5));
    // The network loop claims 300 bytes; one mux follows whose loop claims 500.
    b.U16(0xF000 | 300).Raw(Desc(0x40, {'N'})).U16(0xF000 | 20).U16(0x44).U16(0x55).U16(0xF000 | 500);
    b.Raw(Desc(0x41, {0, 1, 1}));
    TCDVBNITParser nit(0x40, ZUMHandle());
    EXPECT_TRUE(nit.Parse(0x10, b.Build().data()));
    // The network loop swallowed everything up to the CRC_32, as its length says.
    EXPECT_EQ(nit.NumOfDVBItemMux(0), 0);
    EXPECT_EQ(nit.DescriptorsLength(0), 1);
}

TEST(DVBNITParser, RealCaptureSection)
{
    std::ifstream in(std::string(ZUM_CAPTURES_DIR) + "/tsduck_tsduck__psi_nit_tntv23_sections.0.NIT.bin",
                     std::ios::binary);
    if (!in)
        GTEST_SKIP() << "captures not present";
    const Bytes s((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    zumtest::BinderScope binder;
    binder->countryCode = ZumPackCode("FRA");
    TCDVBNITParser nit(0x40, ZUMHandle());
    EXPECT_TRUE(nit.Parse(0x10, s.data()));
    ASSERT_GT(nit.NumOfDVBItemMux(0), 0);
    for (int i = 0; i < nit.NumOfDVBItemMux(0); ++i)
        EXPECT_GT(nit.DVBItemMuxOfIndex(i, 0)->NumOfDescriptors(), 0) << "mux " << i;
}
