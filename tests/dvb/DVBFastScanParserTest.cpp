#include <gtest/gtest.h>

#include <list>
#include <string>
#include <vector>

#include "dvb/DVBFNTParser.h"
#include "dvb/DVBFSTParser.h"
#include "dvb/DescService.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zumtest::Bytes;
using zumtest::Concat;
using zumtest::Desc;

namespace {

constexpr unsigned kFNT = 0xBC;
constexpr unsigned kFST = 0xBD;

struct Mux { unsigned tsid, onid; Bytes descriptors; };

Bytes Fnt(unsigned networkId, unsigned version, unsigned section, unsigned last, const Bytes& network,
          const std::vector<Mux>& muxes)
{
    zumtest::SectionBuilder b(zumtest::LongHeader(kFNT, networkId, version, section, last, true));
    b.Begin16(12).Raw(network).End().Begin16(12);
    for (const Mux& m : muxes)
        b.U16(m.tsid).U16(m.onid).Begin16(12).Raw(m.descriptors).End();
    b.End();
    return b.Build();
}

struct Service { unsigned onid, tsid, sid; std::vector<unsigned> pids; Bytes descriptors; };

Bytes Fst(unsigned networkId, unsigned version, unsigned section, unsigned last, const std::vector<Service>& services)
{
    zumtest::SectionBuilder b(zumtest::LongHeader(kFST, networkId, version, section, last, true));
    for (const Service& s : services) {
        b.U16(s.onid).U16(s.tsid).U16(s.sid);
        for (unsigned pid : s.pids)
            b.U16(pid);
        b.Begin16(12).Raw(s.descriptors).End();
    }
    return b.Build();
}

std::string Muxes(const TCDVBFNTParser& fnt)
{
    std::string out;
    for (int i = 0; i < fnt.NumOfDVBItemMux(); ++i)
        out += std::to_string(fnt.DVBItemMuxOfIndex(i)->TransportStreamId()) + ";";
    return out;
}

Bytes ServiceList(std::initializer_list<unsigned> ids)
{
    Bytes body;
    for (unsigned id : ids)
        body.insert(body.end(), {uint8_t(id >> 8), uint8_t(id), 0x01});
    return Desc(0x41, body);
}

} // namespace

TEST(DVBFNTParser, NetworksTransportsAndServices)
{
    zumtest::BinderScope binder;
    binder->countryCode = ZumPackCode("NLD");
    TCDVBFNTParser fnt(kFNT, kZUMDefaultHandle);
    fnt.Initialize();
    EXPECT_FALSE(fnt.IsRecv());
    EXPECT_EQ(fnt.NetworkId(), 0xFFFFFFFFu);
    EXPECT_EQ(fnt.DVBItemMuxOfIndex(0), nullptr);
    EXPECT_EQ(fnt.Descriptor(0x40), nullptr);
    std::list<TCBaseDesc*> clones;
    EXPECT_FALSE(fnt.GetDescriptor(&clones));

    // Network 5 in two sections, the second first: its muxes stay in the order they came.
    const Bytes lists = Concat({ServiceList({0x101, 0x102}), ServiceList({0x103})});
    EXPECT_FALSE(fnt.Parse(0x1F, Fnt(5, 1, 1, 1, {}, {{0x30, 0x1, {}}}).data()));
    EXPECT_FALSE(fnt.IsRecv());
    EXPECT_TRUE(fnt.Parse(0x1F, Fnt(5, 1, 0, 1, Desc(0x40, {'C', 'D'}), {{0x10, 0x1, lists}, {0x11, 0x1, {}}}).data()));
    EXPECT_EQ(Muxes(fnt), "48;16;17;");
    // Network 3 comes later and becomes the first.
    const Bytes three = Fnt(3, 0, 0, 0, Concat({Desc(0x40, {'N'}), Desc(0x40, {'M'})}), {{0x20, 0x2, {}}});
    EXPECT_TRUE(fnt.Parse(0x1F, three.data()));
    EXPECT_FALSE(fnt.Parse(0x1F, three.data())); // a repetition adds nothing
    EXPECT_EQ(fnt.NetworkId(), 3u);
    std::list<unsigned short> ids;
    fnt.NetworkIds(ids);
    EXPECT_EQ(ids, (std::list<unsigned short>{3, 5}));
    EXPECT_EQ(Muxes(fnt), "32;");
    EXPECT_EQ(fnt.DescriptorsLength(), 2);
    ASSERT_NE(fnt.Descriptor(0x40), nullptr);
    EXPECT_EQ(fnt.Descriptor(0x40)->TableId(), int(kFNT));
    EXPECT_TRUE(fnt.GetDescriptor(&clones));
    EXPECT_EQ(clones.size(), 2u);
    for (TCBaseDesc* d : clones)
        delete d;

    // A service is found through the first service list descriptor of its transport only.
    const TCDVBFNTInstance* five = fnt.GetInstance(5);
    ASSERT_NE(five, nullptr);
    EXPECT_EQ(five->Id(), 5);
    EXPECT_EQ(five->DVBItemMux(0x10, 0x1, 0x102), five->DVBItemMuxOfIndex(1));
    EXPECT_EQ(five->DVBItemMux(0x10, 0x1, 0x103), nullptr);
    EXPECT_EQ(five->DVBItemMux(0x10, 0x2, 0x101), nullptr);
    EXPECT_EQ(five->DVBItemMux(0x30, 0x1, 0x101), nullptr);
    EXPECT_EQ(five->DVBItemMuxOfIndex(3), nullptr);

    // A new version empties only its own network.
    EXPECT_FALSE(fnt.Parse(0x1F, Fnt(5, 2, 0, 1, {}, {{0x12, 0x1, {}}}).data()));
    EXPECT_EQ(five->NumOfDVBItemMux(), 1);
    EXPECT_EQ(Muxes(fnt), "32;");
    fnt.Initialize();
    EXPECT_EQ(fnt.GetFirstInstance(), nullptr);
    EXPECT_EQ(fnt.NumOfDVBItemMux(), 0);
}

TEST(DVBFSTParser, ServicesPerOperatorNetwork)
{
    zumtest::BinderScope binder;
    binder->countryCode = ZumPackCode("NLD");
    TCDVBFSTParser fst(kFST, kZUMDefaultHandle);
    fst.Initialize();
    EXPECT_EQ(fst.OperatorNetworkId(), 0xFFFF);
    EXPECT_EQ(fst.DVBFSTInstance(0xFFFF), nullptr);

    const std::vector<unsigned> pids = {0xE101, 0xE102, 0xE103, 0xE104, 0xFFFF};
    const Bytes service = Desc(0x48, {0x01, 0x00, 0x02, 'N', 'L'});
    const Bytes nine = Fst(9, 1, 0, 0, {{0x1, 0x10, 0x101, pids, service}, {0x1, 0x11, 0x102, pids, {}}});
    EXPECT_TRUE(fst.Parse(0x1F, nine.data()));
    EXPECT_FALSE(fst.Parse(0x1F, nine.data()));
    EXPECT_TRUE(fst.Parse(0x1F, Fst(4, 0, 0, 0, {}).data())); // a body of the CRC_32 alone
    EXPECT_EQ(fst.OperatorNetworkId(), 4);
    EXPECT_EQ(fst.DVBFSTInstance(0xFFFF), fst.DVBFSTInstance(4));
    EXPECT_EQ(fst.DVBFSTInstance(4)->NumOfDVBFSTItemService(), 0);
    EXPECT_EQ(fst.DVBFSTInstance(7), nullptr);

    const TCDVBFSTInstance* instance = fst.DVBFSTInstance(9);
    ASSERT_NE(instance, nullptr);
    ASSERT_EQ(instance->NumOfDVBFSTItemService(), 2);
    EXPECT_EQ(instance->DVBFSTItemServiceOfIndex(2), nullptr);
    const TCDVBFSTItemService* s = instance->DVBFSTItemServiceOfIndex(0);
    EXPECT_EQ(std::vector<unsigned>({s->OriginalNetworkId(), s->TransportStreamId(), s->ServiceId(), s->DefaultVideoPid(),
                                     s->DefaultAudioPid(), s->DefaultVideoEcmPid(), s->DefaultAudioEcmPid(),
                                     s->DefaultPcrPid(), s->DescriptorsLength()}),
              (std::vector<unsigned>{1, 0x10, 0x101, 0xE101, 0xE102, 0xE103, 0xE104, 0xFFFF, 7}));
    ASSERT_NE(dynamic_cast<const TCDescService*>(s->Descriptor(0x48, 0)), nullptr);
    EXPECT_EQ(s->Descriptor(0x48, 0)->TableId(), 0xBD);
    EXPECT_EQ(instance->DVBFSTItemServiceOfIndex(1)->ServiceId(), 0x102);

    // A record cut by the section's end: its fixed fields must fit, its loop is read to the CRC_32.
    zumtest::SectionBuilder cut(zumtest::LongHeader(kFST, 8, 0, 0, 0, true));
    cut.U16(1).U16(2).U16(3).Raw(Bytes(10, 0)).U16(0xF0FF).Raw(service).U16(1);
    EXPECT_TRUE(fst.Parse(0x1F, cut.Build().data()));
    ASSERT_EQ(fst.DVBFSTInstance(8)->NumOfDVBFSTItemService(), 1);
    EXPECT_EQ(fst.DVBFSTInstance(8)->DVBFSTItemServiceOfIndex(0)->NumOfDescriptors(), 1);
    fst.Initialize();
    EXPECT_EQ(fst.OperatorNetworkId(), 0xFFFF);
    EXPECT_EQ(fst.DVBFSTInstance(9), nullptr);
}
