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
#include "operators/DescLogicalChannel.h"
#include "operators/DescLogicalChannelV2.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zumtest::Bytes;
using zumtest::Concat;
using zumtest::Desc;

namespace {

using Entry = std::tuple<unsigned, unsigned, bool>; // service id, number, visible
using Lists = std::map<unsigned int, std::string>;

// Parses from a heap block of the descriptor's exact size, so that a read past it shows.
int ParseExact(TCBaseDesc& d, const Bytes& raw)
{
    std::unique_ptr<unsigned char[]> exact(new unsigned char[raw.size()]);
    std::memcpy(exact.get(), raw.data(), raw.size());
    return d.Parse(exact.get());
}

std::vector<Entry> Walk(IDescLogicalChannel& d)
{
    std::vector<Entry> out;
    for (const _TTDescLCN* e = d.First(0); e; e = d.Next(0))
        out.emplace_back(e->serviceId, e->channelNumber, e->visibleFlag != 0);
    return out;
}

Bytes Pds(unsigned int v) { return Desc(0x5F, {uint8_t(v >> 24), uint8_t(v >> 16), uint8_t(v >> 8), uint8_t(v)}); }

// The last descriptor that a NIT loop keeps, for the binder in force.
TCBaseDesc* LastOfNitLoop(const Bytes& loop, TCDescriptorHash& hash)
{
    TCDescriptor{ZUMHandle()}.Parse(loop.data(), static_cast<int>(loop.size()), hash, 0x40);
    const int n = hash.NumOfDescriptors();
    return n > 0 ? hash.DescriptorByIndex(static_cast<unsigned>(n - 1)) : nullptr;
}

// Channel lists of a version 2 body: id, name, country as sent, services loop as sent.
struct List { unsigned id; std::string name, country; Bytes entries = {}; };

Bytes Body(const std::vector<List>& lists)
{
    zumtest::ByteWriter w;
    for (const List& l : lists)
        w.U8(l.id).Begin8().Text(l.name).End().Text(l.country).Begin8().Raw(l.entries).End();
    return w.Data();
}

// The selected list and its country, with GetChannelListCountryId's answer.
std::tuple<bool, int, ECountryCode> Choice(const TCDescLogicalChannelV2& d)
{
    ECountryCode country = 7;
    int id = -2;
    const bool selected = d.GetChannelListCountryId(country, id);
    return std::make_tuple(selected, id, country);
}

Lists Names(const TCDescLogicalChannelV2& d)
{
    Lists lists = {{77, "old"}};
    d.GetChannelLists(lists);
    return lists;
}

} // namespace

TEST(DescLogicalChannel, FullTruncatedAndEmptyBodies)
{
    const struct { Bytes body; int parsed; unsigned entries; } cases[] = {
        {{0, 1, 0x80, 1, 0, 2, 0x80, 2}, 10, 2}, {{0, 1, 0x80, 1, 0, 2, 0x80}, 9, 1}, {{0, 1, 0x80}, 5, 0}, {{}, 2, 0}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.body.size());
        zumtest::LogCapture log;
        TCDescLogicalChannel d(0x83, 0x28);
        EXPECT_EQ(ParseExact(d, Desc(0x83, c.body)), c.parsed);
        EXPECT_EQ(d.NumOfServices(0), c.entries);
        EXPECT_EQ(log.Contains("length mismatch!inLen=" + std::to_string(c.body.size()) +
                               ", outLen=" + std::to_string(c.entries * 4)),
                  c.body.size() % 4 != 0);
        EXPECT_EQ(d.LogicalChannelNumber(2), c.entries == 2 ? 2u : 0xFFFFFFFFu);
        EXPECT_TRUE(d.VisibleServiceFlag(2, 0)) << "an absent service is visible";
    }
}

TEST(DescLogicalChannel, RepeatedServiceAndTheOtherAnswers)
{
    // Service 7 twice (5, then 9, the second hidden), service 3 once.
    TCDescLogicalChannel d(0x83, 0x28);
    ASSERT_EQ(ParseExact(d, Desc(0x83, {0, 7, 0x80, 5, 0, 3, 0x83, 0xFF, 0, 7, 0x00, 9})), 14);
    EXPECT_EQ(d.NumOfServices(0x1234), 3u);
    EXPECT_EQ(d.LogicalChannelNumber(7), 5u);
    EXPECT_TRUE(d.VisibleServiceFlag(7, 0)) << "the first entry answers";
    EXPECT_TRUE(d.CheckServiceId(3, ZumPackCode("GBR")) && d.NumericSelectionFlag(8, 0));
    EXPECT_FALSE(d.CheckServiceId(8, 0xFFFF00));
    std::list<unsigned short> numbers = {77};
    d.GetLogicalChannelNumberList(7, numbers);
    d.GetLogicalChannelNumberList(8, numbers);
    EXPECT_EQ(numbers, (std::list<unsigned short>{77, 5, 9}));
    EXPECT_EQ(Walk(d), (std::vector<Entry>{{3, 0x3FF, true}, {7, 5, true}, {7, 9, false}}));
    const _TTDescLCN* e = d.First(0);
    EXPECT_EQ(e->numericSelectionFlag + e->regionId + e->freesatServiceId + e->dpIdFirst + e->dpIdSecond +
                  e->customisableFlag,
              1);
    EXPECT_EQ(e->polsatServiceId, 0xFFFF);
    std::set<unsigned short> ids = {100};
    EXPECT_TRUE(d.ServiceIDList(ids));
    EXPECT_EQ(ids, (std::set<unsigned short>{3, 7, 100}));

    // A clone decodes anew and walks on its own.
    d.First(0);
    std::unique_ptr<TCBaseDesc> clone(d.Fork());
    auto& copy = dynamic_cast<TCDescLogicalChannel&>(*clone);
    EXPECT_EQ(std::make_tuple(copy.Tag(), copy.PrivateDataSpecifier()), std::make_tuple(0x83, 0x28u));
    EXPECT_EQ(Walk(copy).size(), 3u);
    EXPECT_EQ(d.Next(0)->channelNumber, 5);
    d.DeleteAll();
    EXPECT_EQ(d.Next(0), nullptr);
    EXPECT_EQ(d.NumOfServices(0), 0u);
}

// Through a real NIT loop: the factory row that makes the object, and the
// entry layout that the object then takes from its specifier and tag.
TEST(DescLogicalChannel, DispatchAndLayoutThroughTheNitLoop)
{
    // Two entries that tell the five layouts apart.
    const Bytes probe = {0x00, 0x01, 0x7F, 0x01, 0x00, 0x02, 0x00, 0x02};
    const std::vector<Entry> ebook = {{1, 0x301, false}, {2, 2, false}}, dbook = {{1, 0x301, true}, {2, 2, true}};
    const std::vector<Entry> nordig = {{1, 0x3F01, false}, {2, 2, false}}, m7 = {{1, 0x3F01, false}, {2, 2, true}};
    const std::vector<Entry> philips = {{1, 0x7F01, true}, {2, 2, true}}, shown = {{1, 0x3F01, true}, {2, 2, true}};
    const struct {
        const char* name;
        unsigned tag;
        std::vector<unsigned int> pds; // in the stream, 0 for none
        unsigned int binderPds, op;
        const std::vector<Entry>* entries; // null: no logical channel descriptor
        unsigned int kept;                 // the specifier the object keeps, 0 for the stream's
    } cases[] = {
        {"nordig", 0x83, {0x14, 0x29, 0x6003, 0xECCA0001, 0xEFFFFFFF}, 0, 0, &nordig, 0},
        {"numericable", 0xB0, {0x22}, 0, 0, &nordig, 0},
        {"gtpl from the stream", 0xE2, {0x62E1}, 0, 0, &nordig, 0},
        {"rcs", 0x86, {0x1A0, 0x7FFFFF}, 0, 0, &philips, 0},
        {"d-smart", 0xE2, {0x6001}, 0, 68, &philips, 0},
        {"airtel", 0xE2, {0x6001}, 0, 90, &philips, 0},
        {"digiturk", 0x81, {0x2FFFFF}, 0, 0, &philips, 0},
        {"dbook", 0x83, {0x22C6, 0x233A, 0x6002}, 0, 0, &dbook, 0},
        {"ebook under tag 0x88", 0x88, {0x28, 0x233A}, 0, 0, &ebook, 0},
        {"m7", 0x83, {0x10FFFFF}, 0, 0, &m7, 0},
        {"ebook by default", 0x83, {0x28, 0x1234, 0xFFFFFFFF}, 0, 0, &ebook, 0},
        {"tag 0x82 shows every entry", 0x82, {0x08, 0x31, 0xFCFCFCFC, 0x6002}, 0, 0, &dbook, 0},
        {"nxt nordig under tag 0x82", 0x82, {0x6003}, 0, 0, &shown, 0},
        {"0x83 without specifier takes the binder's", 0x83, {0}, 0x4711, 0, &ebook, 0x4711},
        {"dbook by the binder under operator 86", 0x88, {0}, 0x233A, 86, &ebook, 0x233A},
        {"operator 86 overrides the stream", 0x88, {0x28}, 0x233A, 86, &ebook, 0x233A},
        {"no specifier anywhere", 0x88, {0}, 0, 0, nullptr, 0},
        {"ebook has no 0x89", 0x89, {0x28}, 0, 0, nullptr, 0},
        {"0x6001 of another operator", 0xE2, {0x6001}, 0, 5, nullptr, 0},
        {"gtpl from the binder only", 0xE2, {0}, 0x62E1, 0, nullptr, 0},
        {"gtpl has no default rule", 0x83, {0x62E1}, 0, 0, nullptr, 0},
        {"nordic has no 0x88", 0x88, {0x29}, 0, 0, nullptr, 0},
        {"0x87 elsewhere", 0x87, {0x28}, 0, 0, nullptr, 0},
    };
    for (const auto& c : cases) {
        for (unsigned int pds : c.pds) {
            SCOPED_TRACE(std::string(c.name) + " " + std::to_string(pds));
            zumtest::BinderScope binder;
            binder->privateDataSpecifier = c.binderPds;
            binder->operatorId = c.op;
            TCDescriptorHash hash;
            TCBaseDesc* d = LastOfNitLoop(pds ? Concat({Pds(pds), Desc(c.tag, probe)}) : Desc(c.tag, probe), hash);
            auto* lcn = dynamic_cast<TCDescLogicalChannel*>(d);
            ASSERT_EQ(lcn != nullptr, c.entries != nullptr);
            EXPECT_EQ(d, lcn);
            if (lcn) {
                EXPECT_EQ(lcn->Tag(), static_cast<int>(c.tag));
                EXPECT_EQ(lcn->PrivateDataSpecifier(), c.kept ? c.kept : pds);
                EXPECT_EQ(Walk(*lcn), *c.entries);
            }
        }
    }
    // Version 2 under the Nordic group and Tricolor.
    for (unsigned int pds : {0x14u, 0x19u, 0x29u, 0x2168u, 0x21CAu, 0x2221u, 0x22FCu, 0x10FFFFFu, 0x41444250u,
                             0x6FFFFFu}) {
        TCDescriptorHash hash;
        TCBaseDesc* d = LastOfNitLoop(Concat({Pds(pds), Desc(0x87, {})}), hash);
        EXPECT_NE(dynamic_cast<TCDescLogicalChannelV2*>(d), nullptr) << pds;
    }
}

TEST(DescLogicalChannelV2, SelectionByReceiverCountry)
{
    const struct { const char *name, *receiver; std::vector<List> lists; int selected; const char* country;
                   unsigned services; } cases[] = {
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
        TCDescLogicalChannelV2 d{ZUMHandle()};
        ParseExact(d, Desc(0x87, Body(c.lists)));
        EXPECT_EQ(Choice(d), std::make_tuple(true, c.selected, ZumPackCode(c.country)));
        EXPECT_EQ(d.NumOfServices(0), c.services);
        EXPECT_EQ(Names(d).at(static_cast<unsigned>(c.selected)), c.lists.back().name) << "the later name stands";
    }
}

TEST(DescLogicalChannelV2, AnswersForTheSelectedList)
{
    zumtest::BinderScope binder;
    binder->countryCode = ZumPackCode("NOR");
    const ZUMHandle handle(9, 8, 7);
    TCDescLogicalChannelV2 d{handle};
    // EBook entries: top bit of b2 visible, 10-bit number; bits 6..2 are not the number's.
    const Bytes body = Body({{4, "Sverige", "SWE", {0, 1, 0x80, 10, 0, 2, 0x80, 20}},
                             {2, "Norge", "NOR", {0, 2, 0xFF, 0xFF, 0, 3, 0x00, 30, 0, 2, 0x80, 0}}});
    ASSERT_EQ(ParseExact(d, Desc(0x87, body)), static_cast<int>(body.size()) + 2);
    EXPECT_EQ(zum_platform::LastBinderHandle(), handle);
    EXPECT_EQ(Choice(d), std::make_tuple(true, 2, ZumPackCode("NOR")));
    EXPECT_EQ(d.NumOfServices(0), 3u);
    EXPECT_EQ(d.LogicalChannelNumber(2), 0x3FFu);
    EXPECT_EQ(d.LogicalChannelNumber(1), 0xFFFFFFFFu) << "service of the other list";
    EXPECT_TRUE(!d.VisibleServiceFlag(3, 0) && d.VisibleServiceFlag(1, 0));
    std::list<unsigned short> numbers = {1};
    d.GetLogicalChannelNumberList(2, numbers);
    EXPECT_EQ(numbers, (std::list<unsigned short>{1, 0x3FF, 0}));
    EXPECT_EQ(Walk(d), (std::vector<Entry>{{2, 0x3FF, true}, {2, 0, true}, {3, 30, false}}));
    EXPECT_TRUE(d.CheckServiceId(2, ZumPackCode("NOR")) && d.CheckServiceId(2, 0xFFFF00));
    EXPECT_FALSE(d.CheckServiceId(2, ZumPackCode("SWE")) || d.CheckServiceId(1, 0xFFFF00) ||
                 d.CheckServiceId(9, ZumPackCode("NOR")));
    std::set<unsigned short> ids = {99};
    EXPECT_TRUE(d.ServiceIDList(ids));
    EXPECT_EQ(ids, (std::set<unsigned short>{2, 3, 99}));
    EXPECT_EQ(Names(d), (Lists{{2, "Norge"}, {4, "Sverige"}}));
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
    EXPECT_EQ(Walk(d), (std::vector<Entry>{{1, 10, true}, {2, 20, true}}));
    EXPECT_TRUE(d.CheckServiceId(1, ZumPackCode("SWE")) && d.NumericSelectionFlag(1, 0));
    EXPECT_FALSE(d.CheckServiceId(3, 0xFFFF00)) << "only in the list no longer selected";

    // A clone asks with the same handle and chooses again by the country.
    IBinder::Instance()->GetCountryCode(ZUMHandle());
    std::unique_ptr<TCBaseDesc> clone(d.Fork());
    EXPECT_EQ(zum_platform::LastBinderHandle(), handle);
    EXPECT_EQ(std::get<1>(Choice(dynamic_cast<TCDescLogicalChannelV2&>(*clone))), 2);

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
    const Lists none, first = {{1, "AB"}}, both = {{1, "AB"}, {2, "C"}};
    const struct { long cut; int consumed; const Lists& lists; int selected; unsigned services; bool binder = true; }
        cases[] = {
            {0, 0, none, -1, 0},    {1, 0, none, -1, 0},    {2, 0, none, -1, 0},
            {4, 0, none, -1, 0}, // the name reaches the end
            // A name with fewer than 4 bytes behind it still stores the list and takes part in the selection.
            {5, 5, first, 1, 0},    {7, 7, first, 1, 0},
            {8, 8, first, 1, 0},    {11, 8, first, 1, 0},   {12, 12, first, 1, 1},  {16, 16, first, 1, 2},
            {17, 16, first, 1, 2},  {19, 16, first, 1, 2},  {20, 20, both, 1, 2},   {22, 22, both, 2, 0},
            {23, 23, both, 2, 0},   {26, 23, both, 2, 0},
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
        EXPECT_EQ(ParseExact(d, Desc(0x87, Bytes(full.begin(), full.begin() + c.cut))), c.cut + 2);
        EXPECT_EQ(log.Contains("outLen=" + std::to_string(c.consumed)), c.consumed != c.cut);
        EXPECT_EQ(log.Contains("Failed: pBinder"), !c.binder);
        Lists lists;
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
