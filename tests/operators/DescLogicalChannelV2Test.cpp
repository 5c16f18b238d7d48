#include <gtest/gtest.h>

#include <cstring>
#include <list>
#include <map>
#include <memory>
#include <set>
#include <string>
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
using zumtest::ByteWriter;
using zumtest::Concat;
using zumtest::Desc;

namespace {

struct List {
    unsigned id;
    std::string name;
    std::string country; // three bytes as sent
    Bytes entries;       // the services loop as sent
};

Bytes Body(const std::vector<List>& lists)
{
    ByteWriter w;
    for (const List& l : lists) {
        w.U8(l.id).Begin8().Text(l.name).End().Text(l.country).Begin8().Raw(l.entries).End();
    }
    return w.Data();
}

// Parses from a heap block of the descriptor's exact size.
int ParseExact(TCBaseDesc& d, const Bytes& raw)
{
    std::unique_ptr<unsigned char[]> exact(new unsigned char[raw.size()]);
    std::memcpy(exact.get(), raw.data(), raw.size());
    return d.Parse(exact.get());
}

int Selected(const TCDescLogicalChannelV2& d)
{
    ECountryCode country = 0;
    int id = -2;
    d.GetChannelListCountryId(country, id);
    return id;
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
    struct Case {
        const char* name;
        const char* receiver;
        std::vector<List> lists;
        int selected;
        const char* country;
    } cases[] = {
        {"home lists win, lowest id among them", "GBR", {{3, "", "SWE", {}}, {7, "", "GBR", {}}, {5, "", "GBR", {}}}, 5,
         "GBR"},
        {"no home list: lowest id", "DEU", {{3, "", "SWE", {}}, {2, "", "NOR", {}}}, 2, "NOR"},
        {"home beats a lower id", "GBR", {{1, "", "SWE", {}}, {9, "", "GBR", {}}}, 9, "GBR"},
        {"a selected home list stays", "GBR", {{9, "", "GBR", {}}, {1, "", "SWE", {}}}, 9, "GBR"},
        {"lower-case country letters", "GBR", {{1, "", "SWE", {}}, {4, "", "gbr", {}}}, 4, "GBR"},
        {"one list without services", "FIN", {{200, "x", "SWE", {}}}, 200, "SWE"},
        {"repeated id takes the later country", "GBR", {{2, "", "GBR", {}}, {1, "", "GBR", {}}, {1, "", "SWE", {}}},
         1, "SWE"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        zumtest::BinderScope binder;
        binder->countryCode = ZumPackCode(c.receiver);
        TCDescLogicalChannelV2 d{ZUMHandle()};
        ParseExact(d, Desc(0x87, Body(c.lists)));
        ECountryCode country = 0;
        int id = -2;
        EXPECT_TRUE(d.GetChannelListCountryId(country, id));
        EXPECT_EQ(id, c.selected);
        EXPECT_EQ(country, ZumPackCode(c.country));
    }
}

TEST(DescLogicalChannelV2, AnswersForTheSelectedList)
{
    zumtest::BinderScope binder;
    binder->countryCode = ZumPackCode("NOR");
    TCDescLogicalChannelV2 d{ZUMHandle()};
    // EBook entries: top bit of b2 visible, 10-bit number; bits 6..2 are not the number's.
    const Bytes body = Body({
        {4, "Sverige", "SWE", {0, 1, 0x80, 10, 0, 2, 0x80, 20}},
        {2, "Norge", "NOR", {0, 2, 0xFF, 0xFF, 0, 3, 0x00, 30, 0, 2, 0x80, 0}},
    });
    ASSERT_EQ(ParseExact(d, Desc(0x87, body)), static_cast<int>(body.size()) + 2);
    EXPECT_EQ(d.Tag(), 0x87);
    EXPECT_EQ(Selected(d), 2);

    EXPECT_EQ(d.NumOfServices(0), 3u);
    EXPECT_EQ(d.LogicalChannelNumber(2), 0x3FFu);
    EXPECT_EQ(d.LogicalChannelNumber(1), 0xFFFFFFFFu) << "service of the other list";
    EXPECT_TRUE(d.VisibleServiceFlag(2, 0));
    EXPECT_FALSE(d.VisibleServiceFlag(3, 0));
    EXPECT_TRUE(d.VisibleServiceFlag(1, 0));
    std::list<unsigned short> numbers = {1};
    d.GetLogicalChannelNumberList(2, numbers);
    EXPECT_EQ(numbers, (std::list<unsigned short>{1, 0x3FF, 0}));
    EXPECT_EQ(Numbers(d), (std::vector<unsigned>{0x3FF, 0, 30}));

    struct Check {
        unsigned short service;
        ECountryCode country;
        bool found;
    } checks[] = {
        {2, ZumPackCode("NOR"), true}, {2, 0xFFFF00, true},  {2, ZumPackCode("SWE"), false},
        {1, 0xFFFF00, false},          {3, 0xFFFF00, true},  {9, ZumPackCode("NOR"), false},
    };
    for (const Check& c : checks)
        EXPECT_EQ(d.CheckServiceId(c.service, c.country), c.found) << c.service << " " << c.country;

    std::set<unsigned short> ids = {99};
    EXPECT_TRUE(d.ServiceIDList(ids));
    EXPECT_EQ(ids, (std::set<unsigned short>{2, 3, 99}));

    std::map<unsigned int, std::string> lists = {{77, "old"}};
    d.GetChannelLists(lists);
    EXPECT_EQ(lists, (std::map<unsigned int, std::string>{{2, "Norge"}, {4, "Sverige"}}));

    TCDescLogicalChannelV2::EntryMap entries;
    d.GetLogicalChannelMapForChList(4, entries);
    EXPECT_EQ(entries.size(), 2u);
    d.GetLogicalChannelMapForChList(5, entries);
    d.GetLogicalChannelMapForChList(TCDescLogicalChannelV2::s_invalid_channel_id, entries);
    EXPECT_EQ(entries.size(), 2u) << "an unknown list leaves the map";

    // Choosing another list: the running walk goes on where it was.
    ASSERT_NE(d.First(0), nullptr);
    EXPECT_FALSE(d.SelectChannelList(3));
    EXPECT_EQ(Selected(d), 2);
    EXPECT_TRUE(d.SelectChannelList(4));
    ASSERT_NE(d.Next(0), nullptr);
    EXPECT_EQ(d.Next(0)->channelNumber, 30);
    EXPECT_EQ(Numbers(d), (std::vector<unsigned>{10, 20}));
    EXPECT_TRUE(d.CheckServiceId(1, ZumPackCode("SWE")));
    EXPECT_FALSE(d.CheckServiceId(3, 0xFFFF00)) << "only in the list no longer selected";

    EXPECT_TRUE(d.NumericSelectionFlag(1, 0));
    EXPECT_FALSE(d.CustomisableServiceFlag(1, 0));
    std::list<unsigned short> regions;
    EXPECT_FALSE(d.GetAvailableRegions(regions));
    unsigned short freesat = 5, first = 6, second = 7;
    EXPECT_FALSE(d.FreesatServiceId(1, freesat));
    EXPECT_FALSE(d.GetDPIds(1, first, second));
    EXPECT_EQ(freesat + first + second, 18);

    // DeleteAll drops entries and names, keeps the choice and its country.
    d.First(0);
    d.DeleteAll();
    EXPECT_EQ(d.Next(0), nullptr);
    EXPECT_EQ(d.First(0), nullptr);
    EXPECT_EQ(d.NumOfServices(0), 0u);
    d.GetChannelLists(lists);
    EXPECT_TRUE(lists.empty());
    ECountryCode country = 0;
    int id = 0;
    EXPECT_TRUE(d.GetChannelListCountryId(country, id));
    EXPECT_EQ(id, 4);
    EXPECT_EQ(country, ZumPackCode("SWE"));
}

TEST(DescLogicalChannelV2, EmptyDescriptor)
{
    zumtest::BinderScope binder;
    TCDescLogicalChannelV2 d{ZUMHandle()};
    EXPECT_EQ(ParseExact(d, Desc(0x87, {})), 2);
    EXPECT_EQ(d.NumOfServices(0), 0u);
    EXPECT_EQ(d.First(0), nullptr);
    EXPECT_EQ(d.Next(0), nullptr);
    EXPECT_TRUE(d.VisibleServiceFlag(1, 0));
    EXPECT_EQ(d.LogicalChannelNumber(1), 0xFFFFFFFFu);
    EXPECT_FALSE(d.CheckServiceId(1, 0xFFFF00));
    std::set<unsigned short> ids;
    EXPECT_TRUE(d.ServiceIDList(ids));
    EXPECT_TRUE(ids.empty());
    ECountryCode country = 7;
    int id = 7;
    EXPECT_FALSE(d.GetChannelListCountryId(country, id));
    EXPECT_EQ(country, 0u);
    EXPECT_EQ(id, -1);
    EXPECT_FALSE(d.SelectChannelList(0));
}

// A body cut anywhere: whole lists and whole entries stand, nothing past the
// body is read (the descriptor sits in a block of its exact size).
TEST(DescLogicalChannelV2, TruncatedBodies)
{
    const Bytes full = Body({
        {1, "AB", "SWE", {0, 1, 0x80, 1, 0, 2, 0x80, 2}},
        {2, "C", "GBR", {0, 3, 0x80, 3}},
    });
    ASSERT_EQ(full.size(), 27u);
    struct Case {
        size_t cut;
        int consumed;
        std::map<unsigned int, std::string> lists;
        int selected;
        unsigned services;
    } cases[] = {
        {1, 0, {}, -1, 0},
        {2, 0, {}, -1, 0},
        {7, 0, {}, -1, 0},  // country there, loop length missing
        {8, 8, {{1, "AB"}}, 1, 0},
        {11, 8, {{1, "AB"}}, 1, 0},
        {12, 12, {{1, "AB"}}, 1, 1},
        {16, 16, {{1, "AB"}}, 1, 2},
        {17, 16, {{1, "AB"}}, 1, 2},
        {22, 16, {{1, "AB"}}, 1, 2},
        {23, 23, {{1, "AB"}, {2, "C"}}, 2, 0},
        {26, 23, {{1, "AB"}, {2, "C"}}, 2, 0},
        {27, 27, {{1, "AB"}, {2, "C"}}, 2, 1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.cut);
        zumtest::BinderScope binder;
        binder->countryCode = ZumPackCode("GBR");
        zumtest::LogCapture log;
        TCDescLogicalChannelV2 d{ZUMHandle()};
        EXPECT_EQ(ParseExact(d, Desc(0x87, Bytes(full.begin(), full.begin() + static_cast<long>(c.cut)))),
                  static_cast<int>(c.cut) + 2);
        EXPECT_EQ(log.Contains("outLen=" + std::to_string(c.consumed)), c.consumed != static_cast<int>(c.cut));
        std::map<unsigned int, std::string> lists;
        d.GetChannelLists(lists);
        EXPECT_EQ(lists, c.lists);
        EXPECT_EQ(Selected(d), c.selected);
        EXPECT_EQ(d.NumOfServices(0), c.services);
    }
}

TEST(DescLogicalChannelV2, LoopLengthsAndRepeatedLists)
{
    zumtest::BinderScope binder;
    binder->countryCode = ZumPackCode("DNK");
    TCDescLogicalChannelV2 d{ZUMHandle()};
    const Bytes body = Body({
        {6, "a", "DNK", {0, 1, 0x80, 1, 0xEE, 0xEE}}, // a loop of 6: the 2 odd bytes are skipped
        {5, "b", "SWE", {}},                          // empty loop
        {6, "c", "dnk", {0, 1, 0x80, 2}},             // same list again: adds, renames
    });
    ParseExact(d, Desc(0x87, body));
    EXPECT_EQ(Selected(d), 6);
    EXPECT_EQ(d.NumOfServices(0), 2u);
    std::list<unsigned short> numbers;
    d.GetLogicalChannelNumberList(1, numbers);
    EXPECT_EQ(numbers, (std::list<unsigned short>{1, 2}));
    std::map<unsigned int, std::string> lists;
    d.GetChannelLists(lists);
    EXPECT_EQ(lists, (std::map<unsigned int, std::string>{{5, "b"}, {6, "c"}}));
    EXPECT_TRUE(d.SelectChannelList(5));
    EXPECT_EQ(d.NumOfServices(0), 0u);
}

TEST(DescLogicalChannelV2, WithoutBinderNothingIsStored)
{
    zumtest::BinderScope scope;
    zum_platform::RemoveBinder();
    zumtest::LogCapture log;
    TCDescLogicalChannelV2 d{ZUMHandle()};
    ParseExact(d, Desc(0x87, Body({{1, "x", "SWE", {0, 1, 0x80, 1}}})));
    EXPECT_TRUE(log.Contains("Failed: pBinder"));
    EXPECT_TRUE(log.Contains("outLen=0"));
    EXPECT_EQ(Selected(d), -1);
    std::map<unsigned int, std::string> lists;
    d.GetChannelLists(lists);
    EXPECT_TRUE(lists.empty());
}

TEST(DescLogicalChannelV2, ForkAsksWithTheSameHandle)
{
    zumtest::BinderScope binder;
    binder->countryCode = ZumPackCode("FIN");
    const ZUMHandle handle(9, 8, 7);
    TCDescLogicalChannelV2 d{handle};
    ParseExact(d, Desc(0x87, Body({{1, "", "SWE", {0, 1, 0x80, 1}}, {3, "", "FIN", {0, 1, 0x80, 3}}})));
    EXPECT_EQ(zum_platform::LastBinderHandle(), handle);
    EXPECT_EQ(Selected(d), 3);

    d.SelectChannelList(1);
    IBinder::Instance()->GetCountryCode(ZUMHandle());
    ASSERT_NE(zum_platform::LastBinderHandle(), handle);
    std::unique_ptr<TCBaseDesc> clone(d.Fork());
    EXPECT_EQ(zum_platform::LastBinderHandle(), handle);
    auto& copy = dynamic_cast<TCDescLogicalChannelV2&>(*clone);
    EXPECT_EQ(Selected(copy), 3) << "a clone chooses again by the country";
    EXPECT_EQ(copy.LogicalChannelNumber(1), 3u);

    TCDescLogicalChannelV2 empty{handle};
    std::unique_ptr<TCBaseDesc> emptyClone(empty.Fork());
    EXPECT_EQ(Selected(dynamic_cast<TCDescLogicalChannelV2&>(*emptyClone)), -1);
}

// Through the NIT loop, the binder's country chooses the list.
TEST(DescLogicalChannelV2, LoopChoosesByBinderCountry)
{
    const Bytes v2 = Desc(0x87, Body({{1, "", "SWE", {0, 7, 0x80, 101}}, {2, "", "NOR", {0, 7, 0x80, 201}}}));
    const Bytes loop = Concat({Desc(0x5F, {0, 0, 0, 0x29}), v2});
    struct Case {
        const char* country;
        unsigned number;
    } cases[] = {{"SWE", 101}, {"NOR", 201}, {"DNK", 101}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.country);
        zumtest::BinderScope binder;
        binder->countryCode = ZumPackCode(c.country);
        TCDescriptor descriptor{ZUMHandle()};
        TCDescriptorHash hash;
        descriptor.Parse(loop.data(), static_cast<int>(loop.size()), hash, 0x40);
        auto* lcn = dynamic_cast<IDescLogicalChannel*>(hash.Descriptor(0x87, 0));
        ASSERT_NE(lcn, nullptr);
        EXPECT_EQ(lcn->LogicalChannelNumber(7), c.number);
    }
}
