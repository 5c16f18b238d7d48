#include <gtest/gtest.h>

#include <cstring>
#include <list>
#include <memory>
#include <set>
#include <string>
#include <tuple>
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

using Entry = std::tuple<unsigned, unsigned, bool>; // service id, number, visible

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

Bytes Pds(unsigned int v)
{
    return Desc(0x5F, {uint8_t(v >> 24), uint8_t(v >> 16), uint8_t(v >> 8), uint8_t(v)});
}

// Two entries that tell the five layouts apart.
const Bytes kProbe = {0x00, 0x01, 0x7F, 0x01, 0x00, 0x02, 0x00, 0x02};

} // namespace

TEST(DescLogicalChannel, FullTruncatedAndEmptyBodies)
{
    const struct {
        Bytes body;
        int parsed;
        unsigned entries;
    } cases[] = {
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
    EXPECT_FALSE(d.CheckServiceId(8, 0xFFFF00) || d.CustomisableServiceFlag(7, 0));
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

    // Answers that this class never gives leave their outputs alone.
    std::list<unsigned short> regions, polsat;
    unsigned short freesat = 42, first = 43, second = 44;
    EXPECT_FALSE(d.GetAvailableRegions(regions) || d.FreesatServiceId(7, freesat) || d.PolsatServiceId(7, polsat) ||
                 d.GetDPIds(7, first, second));
    EXPECT_TRUE(regions.empty() && polsat.empty() && freesat + first + second == 42 + 43 + 44);

    // A clone decodes anew and walks on its own.
    d.First(0);
    std::unique_ptr<TCBaseDesc> clone(d.Fork());
    auto* copy = dynamic_cast<TCDescLogicalChannel*>(clone.get());
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(std::make_tuple(copy->Tag(), copy->PrivateDataSpecifier()), std::make_tuple(0x83, 0x28u));
    EXPECT_EQ(Walk(*copy).size(), 3u);
    EXPECT_EQ(d.Next(0)->channelNumber, 5);
    d.DeleteAll();
    EXPECT_EQ(d.Next(0), nullptr);
    EXPECT_EQ(d.NumOfServices(0), 0u);
}

// Through a real NIT loop: the factory row that makes the object, and the
// entry layout that the object then takes from its specifier and tag.
TEST(DescLogicalChannel, DispatchAndLayoutThroughTheNitLoop)
{
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
        {"nordic has no 0x88", 0x88, {0x29}, 0, 0, nullptr, 0},
        {"0x87 elsewhere", 0x87, {0x28}, 0, 0, nullptr, 0},
    };
    auto last = [](const Bytes& loop, TCDescriptorHash& hash) {
        TCDescriptor{ZUMHandle()}.Parse(loop.data(), static_cast<int>(loop.size()), hash, 0x40);
        const int n = hash.NumOfDescriptors();
        return n > 0 ? hash.DescriptorByIndex(static_cast<unsigned>(n - 1)) : nullptr;
    };
    for (const auto& c : cases) {
        for (unsigned int pds : c.pds) {
            SCOPED_TRACE(std::string(c.name) + " " + std::to_string(pds));
            zumtest::BinderScope binder;
            binder->privateDataSpecifier = c.binderPds;
            binder->operatorId = c.op;
            TCDescriptorHash hash;
            TCBaseDesc* d = last(pds ? Concat({Pds(pds), Desc(c.tag, kProbe)}) : Desc(c.tag, kProbe), hash);
            auto* lcn = dynamic_cast<TCDescLogicalChannel*>(d);
            ASSERT_EQ(lcn != nullptr, c.entries != nullptr);
            if (lcn) {
                EXPECT_EQ(lcn->Tag(), static_cast<int>(c.tag));
                EXPECT_EQ(lcn->PrivateDataSpecifier(), c.kept ? c.kept : pds);
                EXPECT_EQ(Walk(*lcn), *c.entries);
            } else {
                EXPECT_EQ(d, nullptr);
            }
        }
    }
    // Version 2 under the Nordic group and Tricolor.
    const unsigned int v2[] = {0x14, 0x19, 0x29, 0x2168, 0x21CA, 0x2221, 0x22FC, 0x10FFFFF, 0x41444250, 0x6FFFFF};
    for (unsigned int pds : v2) {
        TCDescriptorHash hash;
        auto* v2 = dynamic_cast<TCDescLogicalChannelV2*>(last(Concat({Pds(pds), Desc(0x87, {})}), hash));
        EXPECT_NE(v2, nullptr) << pds;
    }
}
