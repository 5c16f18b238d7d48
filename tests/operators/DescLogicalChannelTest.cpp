#include <gtest/gtest.h>

#include <cstring>
#include <list>
#include <memory>
#include <set>
#include <string>
#include <vector>

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

std::unique_ptr<unsigned char[]> Exact(const Bytes& b)
{
    std::unique_ptr<unsigned char[]> out(new unsigned char[b.size()]);
    std::memcpy(out.get(), b.data(), b.size());
    return out;
}

// Parses from a heap block of the descriptor's exact size.
int ParseExact(TCBaseDesc& d, const Bytes& raw)
{
    const auto exact = Exact(raw);
    return d.Parse(exact.get());
}

struct Entry {
    unsigned serviceId;
    unsigned number;
    bool visible;
    bool operator==(const Entry& o) const
    {
        return serviceId == o.serviceId && number == o.number && visible == o.visible;
    }
};

std::ostream& operator<<(std::ostream& os, const Entry& e)
{
    return os << "{" << e.serviceId << ", " << e.number << ", " << e.visible << "}";
}

std::vector<Entry> Walk(IDescLogicalChannel& d)
{
    std::vector<Entry> out;
    for (const _TTDescLCN* e = d.First(0); e; e = d.Next(0))
        out.push_back({e->serviceId, e->channelNumber, e->visibleFlag != 0});
    return out;
}

Bytes Pds(unsigned int value)
{
    return Desc(0x5F, {static_cast<uint8_t>(value >> 24), static_cast<uint8_t>(value >> 16),
                       static_cast<uint8_t>(value >> 8), static_cast<uint8_t>(value)});
}

// Two entries that tell the five layouts apart.
const Bytes kProbe = {0x00, 0x01, 0x7F, 0x01, 0x00, 0x02, 0x00, 0x02};

} // namespace

TEST(DescLogicalChannel, LayoutFollowsSpecifierAndTag)
{
    const std::vector<Entry> ebook = {{1, 0x301, false}, {2, 2, false}};
    const std::vector<Entry> dbook = {{1, 0x301, true}, {2, 2, true}};
    const std::vector<Entry> nordig = {{1, 0x3F01, false}, {2, 2, false}};
    const std::vector<Entry> m7 = {{1, 0x3F01, false}, {2, 2, true}};
    const std::vector<Entry> philips = {{1, 0x7F01, true}, {2, 2, true}};
    const std::vector<Entry> ebookShown = {{1, 0x301, true}, {2, 2, true}};
    struct Case {
        unsigned int pds;
        int tag;
        const std::vector<Entry>& expected;
    } cases[] = {
        {0x14, 0x83, nordig},       {0x22, 0xB0, nordig},       {0x29, 0x83, nordig},
        {0x6003, 0x83, nordig},     {0x62E1, 0xE2, nordig},     {0xECCA0001, 0x83, nordig},
        {0xEFFFFFFF, 0x83, nordig}, {0x1A0, 0x86, philips},     {0x6001, 0xE2, philips},
        {0x2FFFFF, 0x81, philips},  {0x7FFFFF, 0x86, philips},  {0x22C6, 0x88, ebook},
        {0x22C6, 0x83, dbook},      {0x233A, 0x88, ebook},      {0x233A, 0x86, dbook},
        {0x6002, 0x88, ebook},      {0x6002, 0x83, dbook},      {0x10FFFFF, 0x83, m7},
        {0x28, 0x88, ebook},        {0, 0x83, ebook},           {0xFFFFFFFF, 0x83, ebook},
        // Tag 0x82 shows every entry whatever its bits say.
        {0x08, 0x82, ebookShown},   {0x6002, 0x82, {{1, 0x301, true}, {2, 2, true}}},
        {0x6003, 0x82, {{1, 0x3F01, true}, {2, 2, true}}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::to_string(c.pds) + " tag " + std::to_string(c.tag));
        TCDescLogicalChannel d(c.tag, c.pds);
        EXPECT_EQ(ParseExact(d, Desc(static_cast<unsigned>(c.tag), kProbe)), 10);
        EXPECT_EQ(Walk(d), c.expected);
        EXPECT_EQ(d.Tag(), c.tag);
        EXPECT_EQ(d.PrivateDataSpecifier(), c.pds);
    }
}

TEST(DescLogicalChannel, FullTruncatedAndEmptyBodies)
{
    struct Case {
        const char* name;
        Bytes body;
        int parsed;
        size_t entries;
        bool warns;
    } cases[] = {
        {"two entries", {0, 1, 0x80, 1, 0, 2, 0x80, 2}, 10, 2, false},
        {"one entry and three bytes", {0, 1, 0x80, 1, 0, 2, 0x80}, 9, 1, true},
        {"less than an entry", {0, 1, 0x80}, 5, 0, true},
        {"empty", {}, 2, 0, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        zumtest::LogCapture log;
        TCDescLogicalChannel d(0x83, 0x28);
        EXPECT_EQ(ParseExact(d, Desc(0x83, c.body)), c.parsed);
        EXPECT_EQ(d.NumOfServices(0), c.entries);
        EXPECT_EQ(log.Contains("length mismatch!inLen=" + std::to_string(c.body.size()) +
                               ", outLen=" + std::to_string(c.entries * 4)),
                  c.warns);
        unsigned char raw[16];
        int size = sizeof raw;
        EXPECT_EQ(d.GetDescriptor(raw, &size), !c.body.empty());
        EXPECT_EQ(size, c.body.empty() ? 0 : static_cast<int>(c.body.size()) + 2);
        if (c.entries == 0) {
            EXPECT_EQ(d.First(0), nullptr);
            EXPECT_EQ(d.LogicalChannelNumber(1), 0xFFFFFFFFu);
            EXPECT_TRUE(d.VisibleServiceFlag(1, 0));
        }
    }
}

TEST(DescLogicalChannel, RepeatedServiceAndAccessors)
{
    // Service 7 twice (5, then 9, the second hidden), service 3 once.
    TCDescLogicalChannel d(0x83, 0x28);
    ASSERT_EQ(ParseExact(d, Desc(0x83, {0, 7, 0x80, 5, 0, 3, 0x83, 0xFF, 0, 7, 0x00, 9})), 14);

    EXPECT_EQ(d.NumOfServices(0), 3u);
    EXPECT_EQ(d.NumOfServices(0x1234), 3u);
    EXPECT_EQ(d.LogicalChannelNumber(7), 5u);
    EXPECT_EQ(d.LogicalChannelNumber(3), 0x3FFu);
    EXPECT_EQ(d.LogicalChannelNumber(8), 0xFFFFFFFFu);
    EXPECT_TRUE(d.VisibleServiceFlag(7, 0)) << "the first entry answers";
    EXPECT_TRUE(d.VisibleServiceFlag(8, 0));
    EXPECT_TRUE(d.CheckServiceId(3, ZumPackCode("GBR")));
    EXPECT_TRUE(d.CheckServiceId(3, 0xFFFF00));
    EXPECT_FALSE(d.CheckServiceId(8, 0xFFFF00));
    EXPECT_TRUE(d.NumericSelectionFlag(8, 0));
    EXPECT_FALSE(d.CustomisableServiceFlag(7, 0));

    std::list<unsigned short> numbers = {77};
    d.GetLogicalChannelNumberList(7, numbers);
    EXPECT_EQ(numbers, (std::list<unsigned short>{77, 5, 9}));
    d.GetLogicalChannelNumberList(8, numbers);
    EXPECT_EQ(numbers.size(), 3u);

    EXPECT_EQ(Walk(d), (std::vector<Entry>{{3, 0x3FF, true}, {7, 5, true}, {7, 9, false}}));
    const _TTDescLCN* e = d.First(0);
    ASSERT_NE(e, nullptr);
    EXPECT_EQ(e->numericSelectionFlag, 1);
    EXPECT_EQ(e->polsatServiceId, 0xFFFF);
    EXPECT_EQ(e->regionId + e->freesatServiceId + e->dpIdFirst + e->dpIdSecond + e->customisableFlag, 0);

    std::set<unsigned short> ids = {100};
    EXPECT_TRUE(d.ServiceIDList(ids));
    EXPECT_EQ(ids, (std::set<unsigned short>{3, 7, 100}));

    std::list<unsigned short> regions = {1};
    EXPECT_FALSE(d.GetAvailableRegions(regions));
    EXPECT_EQ(regions.size(), 1u);
    unsigned short freesat = 42, first = 43, second = 44;
    EXPECT_FALSE(d.FreesatServiceId(7, freesat));
    EXPECT_FALSE(d.GetDPIds(7, first, second));
    EXPECT_EQ(freesat + first + second, 42 + 43 + 44);
    std::list<unsigned short> polsat = {5};
    EXPECT_FALSE(d.PolsatServiceId(7, polsat));
    EXPECT_EQ(polsat.size(), 1u);

    // A clone decodes anew and walks on its own.
    d.First(0);
    std::unique_ptr<TCBaseDesc> clone(d.Fork());
    auto* copy = dynamic_cast<TCDescLogicalChannel*>(clone.get());
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(copy->Tag(), 0x83);
    EXPECT_EQ(copy->PrivateDataSpecifier(), 0x28u);
    EXPECT_EQ(Walk(*copy).size(), 3u);
    ASSERT_NE(d.Next(0), nullptr);
    EXPECT_EQ(d.Next(0)->channelNumber, 9);
    EXPECT_EQ(d.Next(0), nullptr);

    d.First(0);
    d.DeleteAll();
    EXPECT_EQ(d.Next(0), nullptr);
    EXPECT_EQ(d.NumOfServices(0), 0u);
}

TEST(DescLogicalChannel, ForkOfAnEmptyObjectIsEmpty)
{
    TCDescLogicalChannel d(0xB0, 0x22);
    std::unique_ptr<TCBaseDesc> clone(d.Fork());
    EXPECT_EQ(clone->Tag(), 0xB0);
    EXPECT_EQ(dynamic_cast<TCDescLogicalChannel&>(*clone).PrivateDataSpecifier(), 0x22u);
    EXPECT_EQ(dynamic_cast<IDescLogicalChannel&>(*clone).NumOfServices(0), 0u);
}

// The factory rows, seen through a real NIT loop.
TEST(DescLogicalChannel, DispatchThroughTheNitLoop)
{
    struct Case {
        const char* name;
        Bytes loop;
        unsigned int binderPds;
        unsigned int op;
        const char* kind; // "lcn", "lcn2" or "none"
        int tag;
        unsigned int pds;
    } cases[] = {
        {"ebook", Concat({Pds(0x28), Desc(0x88, kProbe)}), 0, 0, "lcn", 0x88, 0x28},
        {"dbook by the binder under operator 86", Desc(0x88, kProbe), 0x233A, 86, "lcn", 0x88, 0x233A},
        {"operator 86 overrides the stream", Concat({Pds(0x28), Desc(0x88, kProbe)}), 0x233A, 86, "lcn", 0x88,
         0x233A},
        {"no specifier anywhere", Desc(0x88, kProbe), 0, 0, "none", 0, 0},
        {"0x83 under an unknown specifier", Concat({Pds(0x1234), Desc(0x83, kProbe)}), 0, 0, "lcn", 0x83, 0x1234},
        {"0x83 without specifier takes the binder's", Desc(0x83, kProbe), 0x4711, 0, "lcn", 0x83, 0x4711},
        {"0x83 under ebook falls to the default", Concat({Pds(0x28), Desc(0x83, kProbe)}), 0, 0, "lcn", 0x83, 0x28},
        {"ebook has no 0x89", Concat({Pds(0x28), Desc(0x89, kProbe)}), 0, 0, "none", 0, 0},
        {"sagem 0x08", Concat({Pds(0x08), Desc(0x82, kProbe)}), 0, 0, "lcn", 0x82, 0x08},
        {"sagem 0x31", Concat({Pds(0x31), Desc(0x82, kProbe)}), 0, 0, "lcn", 0x82, 0x31},
        {"sagem 0xFCFCFCFC", Concat({Pds(0xFCFCFCFC), Desc(0x82, kProbe)}), 0, 0, "lcn", 0x82, 0xFCFCFCFC},
        {"numericable", Concat({Pds(0x22), Desc(0xB0, kProbe)}), 0, 0, "lcn", 0xB0, 0x22},
        {"rcs 0x1A0", Concat({Pds(0x1A0), Desc(0x86, kProbe)}), 0, 0, "lcn", 0x86, 0x1A0},
        {"rcs 0x7FFFFF", Concat({Pds(0x7FFFFF), Desc(0x86, kProbe)}), 0, 0, "lcn", 0x86, 0x7FFFFF},
        {"dbook 0x88", Concat({Pds(0x233A), Desc(0x88, kProbe)}), 0, 0, "lcn", 0x88, 0x233A},
        {"d-smart", Concat({Pds(0x6001), Desc(0xE2, kProbe)}), 0, 68, "lcn", 0xE2, 0x6001},
        {"airtel", Concat({Pds(0x6001), Desc(0xE2, kProbe)}), 0, 90, "lcn", 0xE2, 0x6001},
        {"0x6001 of another operator", Concat({Pds(0x6001), Desc(0xE2, kProbe)}), 0, 5, "none", 0, 0},
        {"nxt 0x6002", Concat({Pds(0x6002), Desc(0x82, kProbe)}), 0, 0, "lcn", 0x82, 0x6002},
        {"nxt 0x6003", Concat({Pds(0x6003), Desc(0x82, kProbe)}), 0, 0, "lcn", 0x82, 0x6003},
        {"digiturk 0x81", Concat({Pds(0x2FFFFF), Desc(0x81, kProbe)}), 0, 0, "lcn", 0x81, 0x2FFFFF},
        {"gtpl from the stream", Concat({Pds(0x62E1), Desc(0xE2, kProbe)}), 0, 0, "lcn", 0xE2, 0x62E1},
        {"gtpl from the binder only", Desc(0xE2, kProbe), 0x62E1, 0, "none", 0, 0},
        {"nordic 0x87", Concat({Pds(0x29), Desc(0x87, {})}), 0, 0, "lcn2", 0x87, 0},
        {"nordic has no 0x88", Concat({Pds(0x29), Desc(0x88, kProbe)}), 0, 0, "none", 0, 0},
        {"nordic 0x83 falls to the default", Concat({Pds(0x14), Desc(0x83, kProbe)}), 0, 0, "lcn", 0x83, 0x14},
        {"adb 0x87", Concat({Pds(0x41444250), Desc(0x87, {})}), 0, 0, "lcn2", 0x87, 0},
        {"tricolor 0x87", Concat({Pds(0x6FFFFF), Desc(0x87, {})}), 0, 0, "lcn2", 0x87, 0},
        {"0x87 elsewhere", Concat({Pds(0x28), Desc(0x87, {})}), 0, 0, "none", 0, 0},
    };
    const unsigned int nordic[] = {0x14, 0x19, 0x29, 0x2168, 0x21CA, 0x2221, 0x22FC, 0x10FFFFF, 0x41444250};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        zumtest::BinderScope binder;
        binder->countryCode = ZumPackCode("SWE");
        binder->privateDataSpecifier = c.binderPds;
        binder->operatorId = c.op;
        TCDescriptor descriptor{ZUMHandle()};
        TCDescriptorHash hash;
        const auto exact = Exact(c.loop);
        descriptor.Parse(exact.get(), static_cast<int>(c.loop.size()), hash, 0x40);
        const int last = hash.NumOfDescriptors() - 1;
        TCBaseDesc* d = last >= 0 ? hash.DescriptorByIndex(static_cast<unsigned>(last)) : nullptr;
        if (std::string(c.kind) == "none") {
            EXPECT_EQ(d, nullptr);
            continue;
        }
        ASSERT_NE(d, nullptr);
        EXPECT_EQ(d->Tag(), c.tag);
        EXPECT_EQ(d->TableId(), 0x40);
        if (std::string(c.kind) == "lcn") {
            auto* lcn = dynamic_cast<TCDescLogicalChannel*>(d);
            ASSERT_NE(lcn, nullptr);
            EXPECT_EQ(lcn->PrivateDataSpecifier(), c.pds);
            EXPECT_EQ(lcn->NumOfServices(0), 2u);
        } else {
            EXPECT_NE(dynamic_cast<TCDescLogicalChannelV2*>(d), nullptr);
            EXPECT_NE(dynamic_cast<IDescLogicalChannel*>(d), nullptr);
        }
    }
    for (unsigned int pds : nordic) {
        SCOPED_TRACE(pds);
        zumtest::BinderScope binder;
        TCDescriptor descriptor{ZUMHandle()};
        TCDescriptorHash hash;
        const Bytes loop = Concat({Pds(pds), Desc(0x87, {})});
        descriptor.Parse(loop.data(), static_cast<int>(loop.size()), hash, 0x40);
        EXPECT_NE(dynamic_cast<TCDescLogicalChannelV2*>(hash.Descriptor(0x87, 0)), nullptr);
    }
}
