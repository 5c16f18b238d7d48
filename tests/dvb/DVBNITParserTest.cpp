#include <gtest/gtest.h>

#include <list>
#include <string>
#include <vector>

#include "dvb/DVBNITParser.h"
#include "operators/DescLogicalChannel.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zumtest::Bytes;
using zumtest::Concat;
using zumtest::Desc;
using zumtest::SectionBuilder;

namespace {

struct Lcn {
    unsigned serviceId;
    unsigned number;
    bool visible = true;
};

// EACEM-style entries: service id, visible flag, 10-bit number.
Bytes LcnDesc(unsigned tag, const std::vector<Lcn>& entries)
{
    Bytes body;
    for (const Lcn& e : entries) {
        body.push_back(static_cast<uint8_t>(e.serviceId >> 8));
        body.push_back(static_cast<uint8_t>(e.serviceId));
        const unsigned value = (e.visible ? 0x8000 : 0) | 0x7C00 | (e.number & 0x3FF);
        body.push_back(static_cast<uint8_t>(value >> 8));
        body.push_back(static_cast<uint8_t>(value));
    }
    return Desc(tag, body);
}

Bytes Pds(unsigned value)
{
    return Desc(0x5F, {static_cast<uint8_t>(value >> 24), static_cast<uint8_t>(value >> 16),
                       static_cast<uint8_t>(value >> 8), static_cast<uint8_t>(value)});
}

Bytes Terrestrial(unsigned centreFrequency)
{
    return Desc(0x5A, {static_cast<uint8_t>(centreFrequency >> 24), static_cast<uint8_t>(centreFrequency >> 16),
                       static_cast<uint8_t>(centreFrequency >> 8), static_cast<uint8_t>(centreFrequency), 0x1F, 0x81,
                       0x4A, 0xFF, 0xFF, 0xFF, 0xFF});
}

Bytes ServiceList(const std::vector<std::pair<unsigned, unsigned>>& services)
{
    Bytes body;
    for (const auto& s : services) {
        body.push_back(static_cast<uint8_t>(s.first >> 8));
        body.push_back(static_cast<uint8_t>(s.first));
        body.push_back(static_cast<uint8_t>(s.second));
    }
    return Desc(0x41, body);
}

struct Mux {
    unsigned tsid;
    unsigned onid;
    Bytes descriptors;
};

Bytes Nit(unsigned tableId, unsigned networkId, unsigned version, unsigned section, unsigned last,
          const Bytes& networkDescriptors, const std::vector<Mux>& muxes)
{
    SectionBuilder b(zumtest::LongHeader(tableId, networkId, version, section, last));
    b.Begin16(12).Raw(networkDescriptors).End();
    b.Begin16(12);
    for (const Mux& m : muxes)
        b.U16(m.tsid).U16(m.onid).Begin16(12).Raw(m.descriptors).End();
    b.End();
    return b.Build();
}

Bytes NetworkName(const std::string& name)
{
    return Desc(0x40, Bytes(name.begin(), name.end()));
}

std::vector<unsigned> Tsids(const TCDVBNITInstance* instance)
{
    std::vector<unsigned> out;
    for (int i = 0; i < instance->NumOfDVBItemMux(); ++i)
        out.push_back(instance->DVBItemMuxOfIndex(static_cast<unsigned>(i))->TransportStreamId());
    return out;
}

} // namespace

TEST(DVBNITParser, TransportStreamsWithDeliveryServicesAndChannels)
{
    zumtest::BinderScope binder;
    binder->countryCode = ZumPackCode("GBR");
    TCDVBNITParser nit(0x40, ZUMHandle());
    nit.Initialize();
    EXPECT_FALSE(nit.IsRecv(0));
    const Bytes mux1 = Concat({Terrestrial(0x0337F980), ServiceList({{0x101, 1}, {0x102, 2}}),
                               Pds(0x28), LcnDesc(0x83, {{0x101, 1}, {0x102, 2, false}})});
    const Bytes mux2 = Concat({Terrestrial(0x0341E980), ServiceList({{0x201, 1}}), Pds(0x28),
                               LcnDesc(0x83, {{0x201, 1023}})});
    const Bytes s = Nit(0x40, 0x3001, 1, 0, 0, NetworkName("ZUM Net"),
                        {{0x0001, 0x2000, mux1}, {0x0002, 0x2000, mux2}, {0x0003, 0x2001, {}}});
    EXPECT_TRUE(nit.Parse(0x10, s.data()));
    EXPECT_TRUE(nit.IsRecv(0));
    EXPECT_EQ(nit.NetworkId(), 0x3001);
    EXPECT_EQ(nit.DescriptorsLength(0), 1);
    ASSERT_NE(nit.Descriptor(0x40, 0), nullptr);
    EXPECT_EQ(nit.NumOfDVBItemMux(0), 3);

    const TCDVBItemMux* first = nit.DVBItemMux(0x0001, 0);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->OriginalNetworkId(), 0x2000);
    EXPECT_EQ(first->NumOfDescriptors(0x5A), 1);
    EXPECT_EQ(first->NumOfDescriptors(0x41), 1);
    EXPECT_EQ(first->NumOfDescriptors(0x5F), 0);
    EXPECT_EQ(first->DescriptorByIndex(0)->TableId(), 0x40);

    // Channel numbers by descriptor priority.
    IDescLogicalChannel* lcn = first->LCNDescriptorbyPriority(false, 0x102, ZumPackCode("GBR"), false);
    ASSERT_NE(lcn, nullptr);
    EXPECT_EQ(lcn->LogicalChannelNumber(0x102), 2u);
    EXPECT_FALSE(lcn->VisibleServiceFlag(0x102, 0));
    const TCDVBItemMux* second = nit.GetFirstInstance()->DVBItemMux(0x0002, 0x2000);
    ASSERT_NE(second, nullptr);
    lcn = second->LCNDescriptorbyPriority(true, 0x201, ZumPackCode("GBR"), true);
    ASSERT_NE(lcn, nullptr);
    EXPECT_EQ(lcn->LogicalChannelNumber(0x201), 1023u);
    // Tag 0x84 is not one the lookup knows.
    EXPECT_EQ(first->LCNDescriptor(0x101, 0x84, ZumPackCode("GBR")), nullptr);
    // The third stream has no loop at all.
    EXPECT_EQ(nit.DVBItemMux(0x0003, 0)->LCNDescriptorbyPriority(true, 0x301, 0xFFFF00, true), nullptr);

    std::list<TCBaseDesc*> clones;
    EXPECT_TRUE(nit.GetDescriptor(&clones, 0));
    ASSERT_EQ(clones.size(), 1u);
    delete clones.front();
}

TEST(DVBNITParser, SectionsOutOfOrderAndCompleteCount)
{
    zumtest::BinderScope binder;
    TCDVBNITParser nit(0x40, ZUMHandle());
    const Bytes s1 = Nit(0x40, 9, 1, 1, 1, NetworkName("B"), {{0x20, 1, {}}});
    const Bytes s0 = Nit(0x40, 9, 1, 0, 1, NetworkName("A"), {{0x10, 1, {}}, {0x11, 1, {}}});
    EXPECT_FALSE(nit.Parse(0x10, s1.data()));
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

TEST(DVBNITParser, SelectionByTableId)
{
    zumtest::BinderScope binder;
    TCDVBNITParser actual(0x40, ZUMHandle());
    TCDVBNITParser other(0x41, ZUMHandle());
    const Bytes nine = Nit(0x40, 9, 0, 0, 0, {}, {{0x77, 1, {}}});
    const Bytes nineOther = Nit(0x41, 9, 0, 0, 0, {}, {{0x77, 1, {}}});
    actual.Parse(0x10, nine.data());
    other.Parse(0x10, nineOther.data());

    EXPECT_NE(actual.DVBItemMux(0x77, 7), nullptr);
    EXPECT_EQ(other.DVBItemMux(0x77, 7), nullptr);
    EXPECT_NE(other.DVBItemMux(0x77, 9), nullptr);
    EXPECT_EQ(other.NetworkId(), -1);
    EXPECT_EQ(actual.NumOfDVBItemMux(1234), 1);
    EXPECT_EQ(other.NumOfDVBItemMux(1234), 0);
    EXPECT_EQ(other.DVBItemMuxOfIndex(0, 1234), nullptr);
    EXPECT_EQ(other.DescriptorsLength(1234), 0);
    EXPECT_EQ(other.Descriptor(0x40, 1234), nullptr);
    EXPECT_TRUE(other.IsRecv(1234));
    EXPECT_NE(other.GetInstance(9), nullptr);

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
    SectionBuilder b(zumtest::LongHeader(0x40, 5));
    // Network loop claims 300 bytes; one mux follows whose loop claims 500.
    b.U16(0xF000 | 300).Raw(NetworkName("N")).U16(0xF000 | 20).U16(0x44).U16(0x55).U16(0xF000 | 500).Raw(
        ServiceList({{1, 1}}));
    TCDVBNITParser nit(0x40, ZUMHandle());
    EXPECT_TRUE(nit.Parse(0x10, b.Build().data()));
    // The network loop swallowed everything up to the CRC_32, as its length says.
    EXPECT_EQ(nit.NumOfDVBItemMux(0), 0);
    EXPECT_EQ(nit.DescriptorsLength(0), 1);
}

TEST(DVBNITParser, RealCaptureSection)
{
    const std::string path = std::string(ZUM_CAPTURES_DIR) + "/tsduck_tsduck__psi_nit_tntv23_sections.0.NIT.bin";
    FILE* f = std::fopen(path.c_str(), "rb");
    if (!f)
        GTEST_SKIP() << "captures not present";
    Bytes s(4096);
    s.resize(std::fread(s.data(), 1, s.size(), f));
    std::fclose(f);
    zumtest::BinderScope binder;
    binder->countryCode = ZumPackCode("FRA");
    TCDVBNITParser nit(0x40, ZUMHandle());
    EXPECT_TRUE(nit.Parse(0x10, s.data()));
    ASSERT_GT(nit.NumOfDVBItemMux(0), 0);
    for (int i = 0; i < nit.NumOfDVBItemMux(0); ++i) {
        const TCDVBItemMux* mux = nit.DVBItemMuxOfIndex(i, 0);
        EXPECT_GT(mux->NumOfDescriptors(), 0) << "ts " << mux->TransportStreamId();
    }
}
