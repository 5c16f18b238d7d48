#include <gtest/gtest.h>

#include <list>
#include <map>
#include <string>
#include <tuple>
#include <vector>

#include <zum-platform/Binder.h>
#include <zum-platform/PlatformConfig.h>

#include "core/Descriptor.h"
#include "core/DescriptorHash.h"
#include "dvb/DVBBATParser.h"
#include "dvb/DVBNITParser.h"
#include "operators/DescFSatGuidance.h"
#include "operators/DescFSatLinkage.h"
#include "operators/DescFSatLogicalChannel.h"
#include "operators/DescFSatRegionName.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zumtest::Bytes;
using zumtest::Concat;
using zumtest::Desc;

namespace {

const unsigned int kFsat = 0x46534154;
const unsigned int kEng = 0x656E67, kCym = 0x63796D, kWel = 0x77656C, kGla = 0x676C61, kFra = 0x667261;

Bytes Pds(unsigned int v) { return Desc(0x5F, {uint8_t(v >> 24), uint8_t(v >> 16), uint8_t(v >> 8), uint8_t(v)}); }

// A loop of a GBR receiver, decoded by the factories; `Get` gives the last descriptor as T.
struct Loop {
    zumtest::BinderScope binder;
    TCDescriptorHash hash;
    explicit Loop(const Bytes& loop, unsigned char tableId = 0x4A)
    {
        binder->countryCode = ZumPackCode("GBR");
        TCDescriptor{ZUMHandle()}.Parse(loop.data(), static_cast<int>(loop.size()), hash, tableId);
    }
    template <class T>
    T* Get() const
    {
        const int n = hash.NumOfDescriptors();
        return n > 0 ? dynamic_cast<T*>(hash.DescriptorByIndex(static_cast<unsigned>(n - 1))) : nullptr;
    }
};

// One service of a 0xD3 body: service id, Freesat id, entries (flags, number, region).
struct Svc { unsigned sid, fsid; std::vector<std::tuple<unsigned, unsigned, unsigned>> entries; };

Bytes Lcn(const std::vector<Svc>& services)
{
    zumtest::ByteWriter w;
    for (const Svc& s : services) {
        w.U16(s.sid).U16(0x8000 | s.fsid).Begin8();
        for (const auto& e : s.entries)
            w.U16((std::get<0>(e) << 12) | std::get<1>(e)).U16(std::get<2>(e));
        w.End();
    }
    return w.Data();
}

// Flags of an entry: numeric selection, visible, customisable.
const unsigned kNVC = 0xE, kNV = 0xC, kN = 0x8, kV = 0x4;

std::vector<std::tuple<unsigned, unsigned, unsigned>> Walk(TCDescFSatLogicalChannel& d, int region)
{
    std::vector<std::tuple<unsigned, unsigned, unsigned>> out;
    const _TTDescLCN* e = region < 0 ? d.FirstAllRegions() : d.First(static_cast<unsigned short>(region));
    for (; e; e = region < 0 ? d.NextAllRegions() : d.Next(static_cast<unsigned short>(region)))
        out.emplace_back(e->serviceId, e->channelNumber, e->regionId);
    return out;
}

} // namespace

// BBC One London and BBC One Scotland swap 101 and their 95x numbers between regions 1 and 2.
TEST(DescFSatLogicalChannel, NumbersByRegion)
{
    const Loop loop(Concat({Pds(kFsat), Desc(0xD3, Lcn({{0x1B5D, 0x101, {{kNVC, 101, 1}, {kNV, 952, 2}}},
                                                         {0x1B5E, 0x102, {{kNV, 101, 2}, {kN, 953, 1}}},
                                                         {0x2000, 0x7FFF, {}}}))}));
    auto* d = loop.Get<TCDescFSatLogicalChannel>();
    ASSERT_NE(d, nullptr);
    std::list<unsigned short> regions = {9};
    EXPECT_TRUE(d->GetAvailableRegions(regions));
    EXPECT_EQ(regions, (std::list<unsigned short>{9, 1, 2}));
    EXPECT_EQ(Walk(*d, 2), (std::vector<std::tuple<unsigned, unsigned, unsigned>>{{0x1B5D, 952, 2}, {0x1B5E, 101, 2}}));
    EXPECT_EQ(Walk(*d, -1).size(), 4u);
    EXPECT_EQ(std::get<2>(Walk(*d, -1).front()), 1u);
    EXPECT_EQ(std::make_tuple(d->NumOfServices(1), d->NumOfServices(3)), std::make_tuple(2u, 0u));
    // The service without entries is known; a region without its entry answers the defaults.
    unsigned short fsid = 0;
    EXPECT_TRUE(d->FreesatServiceId(0x2000, fsid));
    EXPECT_EQ(fsid, 0x7FFF);
    EXPECT_TRUE(d->CheckServiceId(0x2000, 0));
    EXPECT_FALSE(d->CheckServiceId(0x2001, 0));
    fsid = 5;
    EXPECT_FALSE(d->FreesatServiceId(0x2001, fsid));
    EXPECT_EQ(fsid, 5);
    EXPECT_EQ(d->LogicalChannelNumber(0x1B5D), TCDescFSatLogicalChannel::s_invalid_lcn);
    EXPECT_EQ(std::make_tuple(d->VisibleServiceFlag(0x1B5E, 1), d->CustomisableServiceFlag(0x1B5E, 1),
                              d->NumericSelectionFlag(0x1B5E, 1)),
              std::make_tuple(false, false, true));
    EXPECT_EQ(std::make_tuple(d->VisibleServiceFlag(0x2000, 1), d->CustomisableServiceFlag(0x2000, 1),
                              d->NumericSelectionFlag(0x2000, 1)),
              std::make_tuple(true, true, true));
    std::list<_TTDescLCN> entries;
    d->LogicalChannelNumber(0x1B5E, 1, entries);
    ASSERT_EQ(entries.size(), 1u);
    EXPECT_EQ(std::make_tuple(entries.front().channelNumber, entries.front().freesatServiceId,
                              entries.front().polsatServiceId),
              std::make_tuple(953, 0x102, 0xFFFF));
    // Next of another region restarts the walk there.
    EXPECT_EQ(d->First(1)->channelNumber, 101);
    EXPECT_EQ(d->Next(2)->channelNumber, 952);

    std::unique_ptr<TCBaseDesc> clone(d->Fork());
    auto* merged = dynamic_cast<TCDescFSatLogicalChannel*>(clone.get());
    ASSERT_NE(merged, nullptr);
    merged->Merge(*d);
    EXPECT_EQ(merged->NumOfServices(2), 4u);
}

TEST(DescFSatLogicalChannel, FlagsFirstAndLastAndCutBodies)
{
    // Customisable 1 then 0, visible 0 then 1: the last customisable, the first visible flag.
    const Loop two(Concat({Pds(kFsat), Desc(0xD3, Lcn({{7, 1, {{kNVC & ~kV, 5, 1}, {kNV, 6, 1}}}}))}));
    auto* d = two.Get<TCDescFSatLogicalChannel>();
    ASSERT_NE(d, nullptr);
    EXPECT_EQ(std::make_tuple(d->CustomisableServiceFlag(7, 1), d->VisibleServiceFlag(7, 1)),
              std::make_tuple(false, false));

    // Body lengths: 0, a head cut off, an entry cut off, a loop longer than the body.
    const Bytes full = Lcn({{7, 1, {{kNV, 5, 1}, {kNV, 6, 1}}}});
    const std::vector<std::tuple<Bytes, unsigned, bool>> cases = {
        {{}, 0, false},
        {Bytes(full.begin(), full.begin() + 4), 0, false},
        {Bytes(full.begin(), full.begin() + 12), 1, true},
        {{0, 7, 0, 1, 0xFF, 0x80, 5, 0, 1}, 1, true},
    };
    for (const auto& c : cases) {
        const Loop cut(Concat({Pds(kFsat), Desc(0xD3, std::get<0>(c))}));
        auto* lcn = cut.Get<TCDescFSatLogicalChannel>();
        ASSERT_NE(lcn, nullptr);
        EXPECT_EQ(lcn->NumOfServices(1), std::get<1>(c));
        EXPECT_EQ(lcn->CheckServiceId(7, 0), std::get<2>(c));
    }
}

// The NIT's and BAT's priority: 0x83 (D-Book numbers) before 0x82, then Freesat's 0xD3, then 0xB0.
TEST(DescFSatLogicalChannel, PlaceInTheChannelNumberPriority)
{
    zumtest::BinderScope binder;
    binder->countryCode = ZumPackCode("GBR");
    const Bytes loop = Concat({Pds(0x233A), Desc(0x83, {0x10, 0x3F, 0xFC, 0x01}),
                               Pds(kFsat), Desc(0xD3, Lcn({{0x103F, 1, {{kNV, 101, 1}}}, {0x1B5D, 2, {{kNV, 101, 1}}}})),
                               Pds(0x22), Desc(0xB0, {0x1B, 0x5D, 0x00, 0x09, 0x20, 0x00, 0x00, 0x0A})});
    // The same transport stream loop in a NIT and in a Freesat bouquet.
    const auto section = [&](unsigned tableId) {
        zumtest::SectionBuilder b(zumtest::LongHeader(tableId, 0x3B, 1));
        b.Begin16(12).End().Begin16(12).U16(0x7D5).U16(2).Begin16(12).Raw(loop).End().End();
        return b.Build();
    };
    const Bytes nitSection = section(0x40), batSection = section(0x4A);
    TCDVBNITParser nit(0x40, ZUMHandle());
    nit.Initialize();
    ASSERT_TRUE(nit.Parse(0x10, nitSection.data()));
    TCDVBBATParser bat{ZUMHandle()};
    bat.Initialize();
    ASSERT_TRUE(bat.Parse(0x11, batSection.data()));
    const ECountryCode gbr = ZumPackCode("GBR");
    for (const TCDVBItemMux* mux : {nit.DVBItemMux(0x7D5, 0), bat.GetInstance(0x3B)->DVBItemMux(0x7D5)}) {
        ASSERT_NE(mux, nullptr);
        IDescLogicalChannel* dbook = mux->LCNDescriptorbyPriority(false, 0x103F, gbr, false);
        ASSERT_NE(dbook, nullptr);
        EXPECT_EQ(dbook->LogicalChannelNumber(0x103F), 1u);
        IDescLogicalChannel* fsat = mux->LCNDescriptorbyPriority(true, 0x1B5D, gbr, true);
        ASSERT_NE(fsat, nullptr);
        unsigned short fsid = 0;
        EXPECT_TRUE(fsat->FreesatServiceId(0x1B5D, fsid));
        EXPECT_EQ(fsat->LogicalChannelNumber(0x1B5D), 0xFFFFFFFFu);
        EXPECT_EQ(fsat->First(1)->channelNumber, 101);
        IDescLogicalChannel* other = mux->LCNDescriptorbyPriority(false, 0x2000, gbr, false);
        ASSERT_NE(other, nullptr);
        EXPECT_EQ(other->LogicalChannelNumber(0x2000), 10u);
        EXPECT_EQ(mux->LCNDescriptor(0x1B5D, 0xD3, gbr), fsat);
    }
}

TEST(DescFSat, FactoryRows)
{
    const std::vector<std::tuple<unsigned, unsigned, unsigned char, bool>> rows = {
        // specifier, tag, table id, class made
        {kFsat, 0xD0, 0x4A, true}, {kFsat, 0xDC, 0x42, true}, {kFsat, 0xDD, 0x42, false},
        {0x28, 0xD4, 0x4A, false}, {0x233A, 0x89, 0x42, true}, {0, 0x7E, 0x42, true},
        {kFsat, 0xD0, 0x02, true}, {kFsat, 0xD1, 0x02, true}, {kFsat, 0xD2, 0x02, false}, {0x28, 0xD0, 0x02, false},
    };
    for (const auto& r : rows) {
        const Loop loop(Concat({Pds(std::get<0>(r)), Desc(std::get<1>(r), {0, 1, 2, 3})}), std::get<2>(r));
        const TCBaseDesc* d = loop.Get<TCBaseDesc>();
        const bool made = d && d->Tag() == static_cast<int>(std::get<1>(r)) &&
                          !dynamic_cast<const TCDescDefault*>(d);
        EXPECT_EQ(made, std::get<3>(r)) << std::hex << std::get<0>(r) << " " << std::get<1>(r);
    }
}

TEST(DescFSat, DataAndStorage)
{
    const Loop tunnel(Concat({Pds(kFsat), Desc(0xD0, {1, 0x10, 2, 0x20, 1, 0x11, 9})}));
    auto* t = tunnel.Get<TCDescFSatTunnelledData>();
    ASSERT_NE(t, nullptr);
    unsigned int tag = 77;
    EXPECT_EQ(t->NumOfEntries(), 2u);
    EXPECT_TRUE(t->ComponentTag(1, tag));
    EXPECT_EQ(tag, 0x11u);
    EXPECT_FALSE(t->ComponentTag(9, tag));

    zumtest::LogCapture log;
    const Loop alt(Concat({Pds(kFsat), Desc(0xD1, {5, 6})}));
    auto* a = alt.Get<TCDescFSatAltTunnelledData>();
    ASSERT_NE(a, nullptr);
    EXPECT_EQ(std::make_tuple(a->NumOfEntries(), a->GetDataType(1), a->GetDataType(2)), std::make_tuple(2u, 6u, 0u));
    EXPECT_TRUE(log.Contains("Failed: index < m_dataTypes.size()"));

    // Unit 2^10, count 3 in both maps; unit 0 makes every size 0.
    std::map<unsigned short, unsigned int> first, second;
    const Loop storage(Concat({Pds(kFsat), Desc(0xD6, {0x0A, 0x80, 0x05, 3, 0x00, 0x05, 1, 0x87, 0xFF, 2})}));
    storage.Get<TCDescFSatInteractiveStorage>()->GetStorageAllocations(first, second);
    EXPECT_EQ(first, (std::map<unsigned short, unsigned int>{{5, 3072}, {0x7FF, 2048}}));
    EXPECT_EQ(second, (std::map<unsigned short, unsigned int>{{5, 1024}}));
    const Loop zero(Concat({Pds(kFsat), Desc(0xD6, {0x00, 0x80, 0x05, 3})}));
    zero.Get<TCDescFSatInteractiveStorage>()->GetStorageAllocations(first, second);
    EXPECT_EQ(first, (std::map<unsigned short, unsigned int>{{5, 0}}));
    EXPECT_TRUE(second.empty());

    // Two groups with skipped bytes; the second cut by the end after one entry.
    const Loop info(Concat({Pds(kFsat), Desc(0xD7, {1, 0xEE, 6, 0, 1, 0, 2, 0, 3, 0, 12, 0, 4, 0, 5, 0, 6, 0})}));
    auto* i = info.Get<TCDescFSatInfoLocation>();
    ASSERT_EQ(i->NumOfEntries(), 2u);
    EXPECT_EQ(std::make_tuple(i->GetInfoLocation(1).firstId, i->GetInfoLocation(1).thirdId), std::make_tuple(4u, 6u));
    EXPECT_EQ(i->GetInfoLocation(2).firstId, 0u);

    const Loop link(Concat({Pds(kFsat), Desc(0xD2, {0, 1, 0, 2, 1, 0xAA, 0, 3, 2, 7, 8, 0, 9})}));
    TCDescFSatLinkage::Linkage l;
    auto* k = link.Get<TCDescFSatLinkage>();
    ASSERT_EQ(k->NumOfEntries(), 1u);
    ASSERT_TRUE(k->GetLinkage(0, l));
    EXPECT_EQ(std::make_tuple(l.firstId, l.secondId, l.thirdId, l.dataTypes),
              std::make_tuple(1u, 2u, 3u, std::list<unsigned int>{7, 8}));
    EXPECT_FALSE(k->GetLinkage(1, l));

    std::list<unsigned short> services = {1};
    const Loop restrict(Concat({Pds(kFsat), Desc(0xDB, {0x12, 0x34, 0x56})}));
    restrict.Get<TCDescFSatInteractiveRestriction>()->GetRestrictedServices(services);
    EXPECT_EQ(services, std::list<unsigned short>{0x1234});

    const Loop cm(Concat({Desc(0x7E, {0x0D})}));
    auto* c = cm.Get<TCDescFTAContentManagement>();
    ASSERT_NE(c, nullptr);
    EXPECT_EQ(std::make_tuple(c->DoNotScramble(), c->ControlRemoteAccessOverInternet(), c->DoNotApplyRevocation()),
              std::make_tuple(true, 2, true));
}

TEST(DescFSat, NameLookups)
{
    unsigned char buffer[16] = {};
    unsigned int size = sizeof buffer;
    const Loop regions(Concat({Pds(kFsat), Desc(0xD4, Concat({{0, 5, 'e', 'n', 'g', 6}, Bytes{'L', 'o', 'n', 'd', 'o', 'n'},
                                                              {0, 5, 'w', 'e', 'l', 4}, Bytes{'C', 'y', 'm', 'r'},
                                                              {0, 7, 'e', 'n', 'g', 9, 'X'}}))}));
    auto* r = regions.Get<TCDescFSatRegionName>();
    ASSERT_NE(r, nullptr);
    const std::vector<std::tuple<unsigned, unsigned, int, std::string>> asks = {
        {5, kWel, 0, "Cymr"}, {5, kGla, 1, "London"}, {7, kEng, 0, "X"}};
    for (const auto& ask : asks) {
        size = sizeof buffer;
        EXPECT_EQ(r->GetRegionName(std::get<0>(ask), std::get<1>(ask), buffer, size), std::get<2>(ask));
        EXPECT_EQ(std::string(buffer, buffer + size), std::get<3>(ask));
    }
    size = 3;
    EXPECT_EQ(r->GetRegionName(6, kEng, buffer, size), 2);
    EXPECT_EQ(size, 3u);
    EXPECT_TRUE(r->ContainsRegionID(7));

    unsigned short shortSize = sizeof buffer;
    const Loop names(Concat({Pds(kFsat), Desc(0xD9, {'e', 'n', 'g', 3, 'B', 'B', 'C', 'c', 'y', 'm', 2, 'S', '4'})}));
    auto* n = names.Get<TCDescFSatShortServiceName>();
    EXPECT_EQ(n->GetName(kFra, buffer, shortSize), 1);
    EXPECT_EQ(std::string(buffer, buffer + shortSize), "S4");
    shortSize = 2;
    EXPECT_EQ(n->GetName(kEng, buffer, shortSize), 0);
    EXPECT_EQ(std::string(buffer, buffer + shortSize), "BB");
    const Loop empty(Concat({Pds(kFsat), Desc(0xD9, {})}));
    EXPECT_EQ(empty.Get<TCDescFSatShortServiceName>()->GetName(kEng, buffer, shortSize), 2);
    EXPECT_EQ(shortSize, 0);

    // Group 3 of type 1 with two names; a second record whose name runs over its loop.
    zumtest::LogCapture log;
    const Loop groups(Concat({Pds(kFsat), Desc(0xD8, {0x08, 0x03, 11, 'e', 'n', 'g', 2, 'N', 'w', 'c', 'y', 'm', 1, 'C',
                                                      0x10, 0x04, 5, 'e', 'n', 'g', 9, 'Z'})}));
    auto* g = groups.Get<TCDescFSatServiceGroupName>();
    unsigned short groupId = 0;
    unsigned char type = 0;
    size = sizeof buffer;
    EXPECT_EQ(g->GetEntry(0, kCym, groupId, buffer, size), 0);
    EXPECT_EQ(std::make_tuple(groupId, std::string(buffer, buffer + size)), std::make_tuple(3, std::string("C")));
    EXPECT_TRUE(g->GroupType(0, type));
    EXPECT_EQ(type, 1);
    EXPECT_EQ(g->GetEntry(1, kEng, groupId, buffer, size), 2);
    EXPECT_EQ(groupId, 4);
    EXPECT_EQ(g->GetEntry(5, kEng, groupId, buffer, size), 2);
    EXPECT_TRUE(log.Contains("genre name size is to big"));
    const Loop over(Concat({Pds(kFsat), Desc(0xD8, {0x08, 0x03, 12, 'e'})}));
    EXPECT_EQ(over.Get<TCDescFSatServiceGroupName>()->NumOfEntries(), 0u);
    EXPECT_TRUE(log.Contains("language loop size is to big"));

    const Loop sg(Concat({Pds(kFsat), Desc(0xD5, {0xC0 | 0x01, 0x02, 4, 0x80, 0x01, 0x00, 0x02})}));
    TCDescFSatServiceGroup::ServiceGroup group;
    ASSERT_TRUE(sg.Get<TCDescFSatServiceGroup>()->GetServiceGroup(0, group));
    EXPECT_EQ(std::make_tuple(group.firstFlag, group.secondFlag, group.groupId, group.freesatIds),
              std::make_tuple(1, 1, 0x102u, std::list<unsigned short>{1, 2}));
}

TEST(DescFSat, Guidance)
{
    unsigned char buffer[16];
    unsigned short size = 4;
    const Loop fsat(Concat({Pds(kFsat), Desc(0xDA, {0x00, 'e', 'n', 'g', 'S', 't', 'r', 'o', 'n', 'g', ' ', 'l', 'a', 'n'})}));
    auto* f = fsat.Get<TCDescFSatGuidance>();
    ASSERT_NE(f, nullptr);
    EXPECT_TRUE(f->GetText(buffer, size));
    EXPECT_EQ(std::make_tuple(size, std::string(buffer, buffer + 4), f->Length(), f->LanguageCode()),
              std::make_tuple(4, std::string("Stro"), 10u, kEng));
    const Loop fsat1(Concat({Pds(kFsat), Desc(0xDA, {0x01, 'e', 'n', 'g', 'X'})}));
    size = 4;
    EXPECT_FALSE(fsat1.Get<TCDescFSatGuidance>()->GetText(buffer, size));
    EXPECT_EQ(size, 0);

    const Loop dbook(Concat({Pds(0x233A), Desc(0x89, {0x01, 0x01, 'e', 'n', 'g', 'F', 'L'})}));
    auto* g = dbook.Get<TCDescGuidance>();
    ASSERT_NE(g, nullptr);
    size = sizeof buffer;
    EXPECT_TRUE(g->GetText(buffer, size));
    EXPECT_EQ(std::make_tuple(g->Type(), g->GuidanceMode(), g->LanguageCode(), std::string(buffer, buffer + size)),
              std::make_tuple(1u, 1u, kEng, std::string("FL")));
    const Loop dbook2(Concat({Pds(0x233A), Desc(0x89, {0x02, 0x01, 'e', 'n', 'g'})}));
    EXPECT_EQ(dbook2.Get<TCDescGuidance>()->LanguageCode(), 0u);
    size = sizeof buffer;
    EXPECT_FALSE(dbook2.Get<TCDescGuidance>()->GetText(buffer, size));
}
