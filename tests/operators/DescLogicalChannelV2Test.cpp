#include <gtest/gtest.h>

#include <cstring>
#include <list>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include <zum-platform/Binder.h>
#include <zum-platform/PlatformConfig.h>

#include "core/Descriptor.h"
#include "core/DescriptorHash.h"
#include "operators/DescLogicalChannelV2.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zumtest::Bytes;
using zumtest::Desc;

namespace {

struct List {
    unsigned id;
    std::string name, country; // country: three bytes as sent
    Bytes entries = {};        // the services loop as sent
};

Bytes Body(const std::vector<List>& lists)
{
    zumtest::ByteWriter w;
    for (const List& l : lists)
        w.U8(l.id).Begin8().Text(l.name).End().Text(l.country).Begin8().Raw(l.entries).End();
    return w.Data();
}

// Parses from a heap block of the descriptor's exact size, so that a read past it shows.
int ParseExact(TCBaseDesc& d, const Bytes& body)
{
    const Bytes raw = Desc(0x87, body);
    std::unique_ptr<unsigned char[]> exact(new unsigned char[raw.size()]);
    std::memcpy(exact.get(), raw.data(), raw.size());
    return d.Parse(exact.get());
}

// The selected list and its country, with GetChannelListCountryId's answer.
std::tuple<bool, int, ECountryCode> Choice(const TCDescLogicalChannelV2& d)
{
    ECountryCode country = 7;
    int id = -2;
    const bool selected = d.GetChannelListCountryId(country, id);
    return std::make_tuple(selected, id, country);
}

std::map<unsigned int, std::string> Names(const TCDescLogicalChannelV2& d)
{
    std::map<unsigned int, std::string> lists = {{77, "old"}};
    d.GetChannelLists(lists);
    return lists;
}

std::vector<unsigned> Numbers(IDescLogicalChannel& d)
{
    std::vector<unsigned> out;
    for (const _TTDescLCN* e = d.First(0); e; e = d.Next(0))
        out.push_back(e->channelNumber);
    return out;
}

} // namespace

TEST(DescLogicalChannelV2, SelectionByReceiverCountry)
{
    const struct {
        const char* name;
        const char* receiver;
        std::vector<List> lists;
        int selected;
        const char* country;
        unsigned services;
    } cases[] = {
        {"home lists win, lowest id among them", "GBR", {{3, "", "SWE"}, {7, "", "GBR"}, {5, "", "GBR"}}, 5, "GBR", 0},
        {"no home list: lowest id", "DEU", {{3, "", "SWE"}, {2, "", "NOR"}}, 2, "NOR", 0},
        {"home beats a lower id", "GBR", {{1, "", "SWE"}, {9, "", "GBR"}}, 9, "GBR", 0},
        {"a selected home list stays", "GBR", {{9, "", "GBR"}, {1, "", "SWE"}}, 9, "GBR", 0},
        {"lower-case country letters", "GBR", {{1, "", "SWE"}, {4, "", "gbr"}}, 4, "GBR", 0},
        {"repeated id takes the later country", "GBR", {{2, "", "GBR"}, {1, "", "GBR"}, {1, "", "SWE"}}, 1, "SWE", 0},
        // A loop of 6 has 2 odd bytes that are skipped; a list that comes again adds its entries.
        {"repeated list", "DNK",
         {{6, "a", "DNK", {0, 1, 0x80, 1, 0xEE, 0xEE}}, {5, "b", "SWE"}, {6, "c", "dnk", {0, 1, 0x80, 2}}}, 6, "DNK",
         2},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        zumtest::BinderScope binder;
        binder->countryCode = ZumPackCode(c.receiver);
        // Through a real NIT loop under a Nordic specifier.
        const Bytes loop = zumtest::Concat({Desc(0x5F, {0, 0, 0, 0x29}), Desc(0x87, Body(c.lists))});
        TCDescriptorHash hash;
        TCDescriptor{ZUMHandle()}.Parse(loop.data(), static_cast<int>(loop.size()), hash, 0x40);
        auto* v2 = dynamic_cast<TCDescLogicalChannelV2*>(hash.Descriptor(0x87, 0));
        ASSERT_NE(v2, nullptr);
        const TCDescLogicalChannelV2& d = *v2;
        EXPECT_EQ(Choice(d), std::make_tuple(true, c.selected, ZumPackCode(c.country)));
        EXPECT_EQ(d.NumOfServices(0), c.services);
        EXPECT_EQ(Names(d).at(static_cast<unsigned>(c.selected)), c.lists.back().name) << "the later name stands";
    }
}

TEST(DescLogicalChannelV2, AnswersForTheSelectedList)
{
    zumtest::BinderScope binder;
    binder->countryCode = ZumPackCode("NOR");
    TCDescLogicalChannelV2 d{ZUMHandle()};
    // EBook entries: top bit of b2 visible, 10-bit number; bits 6..2 are not the number's.
    const Bytes body = Body({{4, "Sverige", "SWE", {0, 1, 0x80, 10, 0, 2, 0x80, 20}},
                             {2, "Norge", "NOR", {0, 2, 0xFF, 0xFF, 0, 3, 0x00, 30, 0, 2, 0x80, 0}}});
    ASSERT_EQ(ParseExact(d, body), static_cast<int>(body.size()) + 2);
    EXPECT_EQ(Choice(d), std::make_tuple(true, 2, ZumPackCode("NOR")));
    EXPECT_EQ(d.NumOfServices(0), 3u);
    EXPECT_EQ(d.LogicalChannelNumber(2), 0x3FFu);
    EXPECT_EQ(d.LogicalChannelNumber(1), 0xFFFFFFFFu) << "service of the other list";
    EXPECT_TRUE(!d.VisibleServiceFlag(3, 0) && d.VisibleServiceFlag(1, 0));
    std::list<unsigned short> numbers = {1};
    d.GetLogicalChannelNumberList(2, numbers);
    EXPECT_EQ(numbers, (std::list<unsigned short>{1, 0x3FF, 0}));
    EXPECT_EQ(Numbers(d), (std::vector<unsigned>{0x3FF, 0, 30}));
    EXPECT_TRUE(d.CheckServiceId(2, ZumPackCode("NOR")) && d.CheckServiceId(2, 0xFFFF00));
    EXPECT_FALSE(d.CheckServiceId(2, ZumPackCode("SWE")) || d.CheckServiceId(1, 0xFFFF00) ||
                 d.CheckServiceId(9, ZumPackCode("NOR")));
    std::set<unsigned short> ids = {99};
    EXPECT_TRUE(d.ServiceIDList(ids));
    EXPECT_EQ(ids, (std::set<unsigned short>{2, 3, 99}));
    EXPECT_EQ(Names(d), (std::map<unsigned int, std::string>{{2, "Norge"}, {4, "Sverige"}}));
    TCDescLogicalChannelV2::EntryMap entries;
    for (unsigned int list : {4u, 5u, TCDescLogicalChannelV2::s_invalid_channel_id})
        d.GetLogicalChannelMapForChList(list, entries);
    EXPECT_EQ(entries.size(), 2u) << "an unknown list leaves the map";

    // Choosing another list: the running walk goes on where it was.
    ASSERT_NE(d.First(0), nullptr);
    EXPECT_FALSE(d.SelectChannelList(3));
    EXPECT_EQ(std::get<1>(Choice(d)), 2);
    EXPECT_TRUE(d.SelectChannelList(4));
    EXPECT_EQ(d.Next(0)->channelNumber, 0);
    EXPECT_EQ(Numbers(d), (std::vector<unsigned>{10, 20}));
    EXPECT_TRUE(d.CheckServiceId(1, ZumPackCode("SWE")) && d.NumericSelectionFlag(1, 0));
    EXPECT_FALSE(d.CheckServiceId(3, 0xFFFF00)) << "only in the list no longer selected";
    std::list<unsigned short> regions, polsat;
    unsigned short freesat = 5, first = 6, second = 7;
    EXPECT_FALSE(d.CustomisableServiceFlag(1, 0) || d.GetAvailableRegions(regions) || d.FreesatServiceId(1, freesat) ||
                 d.GetDPIds(1, first, second) || d.PolsatServiceId(1, polsat));
    EXPECT_TRUE(regions.empty() && polsat.empty() && freesat + first + second == 18);

    // DeleteAll drops entries and names, keeps the choice and its country.
    d.DeleteAll();
    EXPECT_EQ(d.Next(0), nullptr);
    EXPECT_EQ(d.NumOfServices(0), 0u);
    EXPECT_TRUE(Names(d).empty());
    EXPECT_EQ(Choice(d), std::make_tuple(true, 4, ZumPackCode("SWE")));
}

// A body cut anywhere: whole lists and whole entries stand, nothing past the body is read.
TEST(DescLogicalChannelV2, TruncatedBodies)
{
    const Bytes full = Body({{1, "AB", "SWE", {0, 1, 0x80, 1, 0, 2, 0x80, 2}}, {2, "C", "GBR", {0, 3, 0x80, 3}}});
    ASSERT_EQ(full.size(), 27u);
    const std::map<unsigned int, std::string> none, first = {{1, "AB"}}, both = {{1, "AB"}, {2, "C"}};
    const struct {
        long cut;
        int consumed;
        const std::map<unsigned int, std::string>& lists;
        int selected;
        unsigned services;
        bool binder = true;
    } cases[] = {
        {0, 0, none, -1, 0},    {1, 0, none, -1, 0},    {2, 0, none, -1, 0},
        {7, 0, none, -1, 0}, // country there, loop length missing
        {8, 8, first, 1, 0},    {11, 8, first, 1, 0},   {12, 12, first, 1, 1},  {16, 16, first, 1, 2},
        {17, 16, first, 1, 2},  {22, 16, first, 1, 2},  {23, 23, both, 2, 0},   {26, 23, both, 2, 0},
        {27, 27, both, 2, 1},   {27, 0, none, -1, 0, false}, // without a binder nothing is stored
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.cut);
        zumtest::BinderScope binder;
        binder->countryCode = ZumPackCode("GBR");
        if (!c.binder)
            zum_platform::RemoveBinder();
        zumtest::LogCapture log;
        TCDescLogicalChannelV2 d{ZUMHandle()};
        EXPECT_EQ(ParseExact(d, Bytes(full.begin(), full.begin() + c.cut)), c.cut + 2);
        EXPECT_EQ(log.Contains("outLen=" + std::to_string(c.consumed)), c.consumed != c.cut);
        EXPECT_EQ(log.Contains("Failed: pBinder"), !c.binder);
        std::map<unsigned int, std::string> lists;
        d.GetChannelLists(lists);
        EXPECT_EQ(lists, c.lists);
        EXPECT_EQ(d.NumOfServices(0), c.services);
        if (c.selected >= 0) {
            EXPECT_EQ(std::get<1>(Choice(d)), c.selected);
            continue;
        }
        // Nothing selected: every answer is that of an empty descriptor.
        EXPECT_EQ(Choice(d), std::make_tuple(false, -1, 0u));
        std::set<unsigned short> ids;
        EXPECT_TRUE(d.ServiceIDList(ids) && ids.empty());
        EXPECT_TRUE(d.First(0) == nullptr && d.Next(0) == nullptr && d.VisibleServiceFlag(1, 0));
        EXPECT_FALSE(d.CheckServiceId(1, 0xFFFF00) || d.SelectChannelList(0));
        EXPECT_EQ(d.LogicalChannelNumber(1), 0xFFFFFFFFu);
    }
}

TEST(DescLogicalChannelV2, ForkAsksWithTheSameHandle)
{
    zumtest::BinderScope binder;
    binder->countryCode = ZumPackCode("FIN");
    const ZUMHandle handle(9, 8, 7);
    TCDescLogicalChannelV2 d{handle};
    ParseExact(d, Body({{1, "", "SWE", {0, 1, 0x80, 1}}, {3, "", "FIN", {0, 1, 0x80, 3}}}));
    EXPECT_EQ(zum_platform::LastBinderHandle(), handle);
    d.SelectChannelList(1);
    IBinder::Instance()->GetCountryCode(ZUMHandle());
    std::unique_ptr<TCBaseDesc> clone(d.Fork());
    EXPECT_EQ(zum_platform::LastBinderHandle(), handle);
    EXPECT_EQ(dynamic_cast<TCDescLogicalChannelV2&>(*clone).LogicalChannelNumber(1), 3u)
        << "a clone chooses again by the country";
}
