#include <gtest/gtest.h>

#include <algorithm>
#include <list>
#include <memory>
#include <string>

#include <zum-platform/Codes.h>

#include "dvb/DVBTDTParser.h"
#include "dvb/DVBTOTParser.h"
#include "dvb/DescLocalTimeOffset.h"
#include "support/Crc32.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zumtest::Bytes;
using zumtest::Desc;
using zumtest::SectionBuilder;
using zumtest::SectionHeader;

namespace {

Bytes Tdt(const Bytes& body)
{
    SectionHeader h;
    h.tableId = 0x70;
    h.syntax = false;
    SectionBuilder b(h);
    b.Raw(body);
    return b.Build();
}

// A TOT: UTC_time, the loop behind its 12-bit length, then the CRC_32, or
// the four bytes `trailer` in its place.
Bytes Tot(const Bytes& utc, const Bytes& loop, const Bytes* trailer = nullptr)
{
    SectionHeader h;
    h.tableId = 0x73;
    h.syntax = false;
    SectionBuilder b(h);
    b.Raw(utc).Begin16(12, 0xF000).Raw(loop).End().U32(0);
    Bytes s = b.Build();
    const Bytes crc = trailer ? *trailer : [&s] {
        const uint32_t value = zumtest::Crc32Mpeg(s.data(), s.size() - 4);
        return Bytes{static_cast<uint8_t>(value >> 24), static_cast<uint8_t>(value >> 16),
                     static_cast<uint8_t>(value >> 8), static_cast<uint8_t>(value)};
    }();
    std::copy(crc.begin(), crc.end(), s.end() - 4);
    return s;
}

// A local time offset entry: country, region, polarity, offset hh mm,
// change MJD + hh mm ss, next offset hh mm.
Bytes Offset(const char* country, unsigned region, unsigned polarity, Bytes offset, Bytes change, Bytes next)
{
    zumtest::ByteWriter w;
    w.Text(country).U8((region << 2) | 0x02 | polarity).Raw(offset).Raw(change).Raw(next);
    return w.Data();
}

struct TimeCase {
    const char* name;
    Bytes utc;
    unsigned int seconds;
};

const TimeCase kTimes[] = {
    {"6 Jan 1980 00:00:00", {0xAC, 0xD4, 0x00, 0x00, 0x00}, 0},
    {"undefined", {0xFF, 0xFF, 0xFF, 0xFF, 0xFF}, 0},
    {"28 Feb 2024 23:59:59", {0xEB, 0xD0, 0x23, 0x59, 0x59}, 16124u * 86400u + 86399u},
    {"29 Feb 2024 00:00:00", {0xEB, 0xD1, 0x00, 0x00, 0x00}, 16125u * 86400u},
    {"29 Feb 2024 23:59:59", {0xEB, 0xD1, 0x23, 0x59, 0x59}, 16125u * 86400u + 86399u},
    {"1 Mar 2024 00:00:00", {0xEB, 0xD2, 0x00, 0x00, 0x00}, 16126u * 86400u},
    {"largest BCD", {0xFF, 0xFF, 0x99, 0x99, 0x99}, 0},
    {"largest passing time", {0xFF, 0xFF, 0x24, 0x60, 0x60}, 21291u * 86400u + 90060u},
};

} // namespace

TEST(DVBTDTParser, Times)
{
    TCDVBTDTParser tdt{ZUMHandle()};
    EXPECT_EQ(tdt.Time(), 0u);
    for (const TimeCase& c : kTimes) {
        SCOPED_TRACE(c.name);
        tdt.Initialize();
        const Bytes s = Tdt(c.utc);
        ASSERT_EQ(s.size(), 8u);
        EXPECT_TRUE(tdt.Parse(0x14, s.data()));
        EXPECT_EQ(tdt.Time(), c.seconds);
        // No section state: the same section counts again.
        EXPECT_TRUE(tdt.Parse(0x14, s.data()));
    }
}

TEST(DVBTDTParser, OnlyAFiveByteBodyCounts)
{
    const Bytes noon = {0xEB, 0xD1, 0x12, 0x00, 0x00};
    TCDVBTDTParser tdt{ZUMHandle()};
    ASSERT_TRUE(tdt.Parse(0x14, Tdt(noon).data()));
    const unsigned int kept = tdt.Time();
    // Initialize forgets nothing of the time.
    tdt.Initialize();
    EXPECT_EQ(tdt.Time(), kept);

    const Bytes bodies[] = {{}, {0xEB, 0xD2, 0x00, 0x00}, {0xEB, 0xD2, 0x00, 0x00, 0x00, 0x00}, Bytes(20, 0)};
    for (const Bytes& body : bodies) {
        SCOPED_TRACE(body.size());
        zumtest::LogCapture log;
        EXPECT_FALSE(tdt.Parse(0x14, Tdt(body).data()));
        EXPECT_EQ(tdt.Time(), kept);
        EXPECT_TRUE(log.Lines().empty());
    }
}

TEST(DVBTOTParser, TimesAndOffsets)
{
    zumtest::BinderScope binder;
    binder->countryCode = ZumPackCode("GBR");
    TCDVBTOTParser tot{ZUMHandle()};
    for (const TimeCase& c : kTimes) {
        SCOPED_TRACE(c.name);
        const Bytes loop = Desc(0x58, Offset("GBR", 0, 0, {0x01, 0x00}, c.utc, {0x00, 0x00}));
        EXPECT_TRUE(tot.Parse(0x14, Tot(c.utc, loop).data()));
        EXPECT_EQ(tot.Time(), c.seconds);
        auto* lto = dynamic_cast<TCDescLocalTimeOffset*>(tot.Descriptor(0x58, 0));
        ASSERT_NE(lto, nullptr);
        EXPECT_EQ(lto->TimeOfChange(0), c.seconds);
    }
}

TEST(DVBTOTParser, BothPolaritiesAndTheList)
{
    zumtest::BinderScope binder;
    binder->countryCode = ZumPackCode("GBR");
    const Bytes change = {0xEB, 0xD1, 0x01, 0x00, 0x00};
    const Bytes loop = zumtest::Concat({
        Desc(0x58, zumtest::Concat({Offset("GBR", 0, 0, {0x01, 0x00}, change, {0x00, 0x00}),
                                    Offset("PRT", 3, 1, {0x01, 0x30}, change, {0x02, 0x45})})),
        Desc(0x40, {'N', 'e', 't'}),
        Desc(0x58, Offset("ESP", 1, 1, {0x00, 0x00}, change, {0x01, 0x00})),
    });
    TCDVBTOTParser tot{ZUMHandle()};
    ASSERT_TRUE(tot.Parse(0x14, Tot({0xEB, 0xD1, 0x00, 0x30, 0x00}, loop).data()));
    EXPECT_EQ(tot.Time(), 16125u * 86400u + 1800u);
    EXPECT_EQ(tot.NumOfDescriptors(), 3);
    EXPECT_EQ(tot.NumOfDescriptors(0x58), 2);

    std::list<TCBaseDesc*> list{nullptr};
    ASSERT_TRUE(tot.GetLocalTimeOffsetDescList(&list));
    ASSERT_EQ(list.size(), 3u);
    EXPECT_EQ(list.front(), nullptr); // appended behind what was there
    list.pop_front();
    std::unique_ptr<TCBaseDesc> first(list.front()), second(list.back());
    EXPECT_NE(first.get(), tot.Descriptor(0x58, 0));
    auto* a = dynamic_cast<TCDescLocalTimeOffset*>(first.get());
    auto* b = dynamic_cast<TCDescLocalTimeOffset*>(second.get());
    ASSERT_NE(a, nullptr);
    ASSERT_NE(b, nullptr);
    EXPECT_EQ(a->TableId(), 0x73);
    ASSERT_EQ(a->NumOfEntries(), 2);
    EXPECT_EQ(a->LocalTimeOffsetPolarity(0), 0);
    EXPECT_EQ(a->LocalTimeOffset(0), 60);
    EXPECT_EQ(a->CountryCode(1), ZumPackCode("PRT"));
    EXPECT_EQ(a->CountryRegionId(1), 3);
    EXPECT_EQ(a->LocalTimeOffsetPolarity(1), 1);
    EXPECT_EQ(a->LocalTimeOffset(1), 90);
    EXPECT_EQ(a->TimeOfChange(1), 16125u * 86400u + 3600u);
    EXPECT_EQ(a->NextTimeOffset(1), 165);
    EXPECT_EQ(b->CountryCode(0), ZumPackCode("ESP"));
    EXPECT_EQ(b->LocalTimeOffsetPolarity(0), 1);
    EXPECT_EQ(b->NextTimeOffset(0), 60);

    // Initialize drops nothing; the next TOT without descriptors empties the table.
    tot.Initialize();
    EXPECT_EQ(tot.NumOfDescriptors(), 3);
    EXPECT_TRUE(tot.Parse(0x14, Tot({0xEB, 0xD1, 0x00, 0x31, 0x00}, {}).data()));
    EXPECT_EQ(tot.Time(), 16125u * 86400u + 1860u);
    EXPECT_EQ(tot.NumOfDescriptors(), 0);
    std::list<TCBaseDesc*> none{nullptr};
    EXPECT_FALSE(tot.GetLocalTimeOffsetDescList(&none));
    EXPECT_EQ(none.size(), 1u);

    zumtest::LogCapture log;
    EXPECT_FALSE(tot.GetLocalTimeOffsetDescList(nullptr));
    ASSERT_EQ(log.Lines(6).size(), 1u);
    EXPECT_EQ(log.Lines(6)[0].rfind("ASSERT!, Func:GetLocalTimeOffsetDescList, Line:", 0), 0u);
    EXPECT_TRUE(log.Contains(", Failed: pDescList"));
}

TEST(DVBTOTParser, ShortAndOverlongSections)
{
    zumtest::BinderScope binder;
    binder->countryCode = ZumPackCode("GBR");
    const Bytes utc = {0xEB, 0xD1, 0x00, 0x00, 0x00};
    const Bytes lto = Desc(0x58, Offset("GBR", 0, 0, {0x01, 0x00}, utc, {0x00, 0x00}));
    TCDVBTOTParser tot{ZUMHandle()};
    ASSERT_TRUE(tot.Parse(0x14, Tot(utc, lto).data()));
    ASSERT_EQ(tot.NumOfDescriptors(0x58), 1);

    // Bodies too short to hold the loop length are refused in silence and
    // change nothing.
    for (size_t length : {0u, 5u, 6u}) {
        SCOPED_TRACE(length);
        SectionHeader h;
        h.tableId = 0x73;
        h.syntax = false;
        SectionBuilder b(h);
        b.Raw(Bytes(length, 0x00));
        zumtest::LogCapture log;
        EXPECT_FALSE(tot.Parse(0x14, b.Build().data()));
        EXPECT_EQ(tot.Time(), 16125u * 86400u);
        EXPECT_EQ(tot.NumOfDescriptors(0x58), 1);
        EXPECT_TRUE(log.Lines().empty());
    }

    // Seven bytes: the time and an empty loop, no CRC_32.
    {
        SectionHeader h;
        h.tableId = 0x73;
        h.syntax = false;
        SectionBuilder b(h);
        b.Raw({0xAC, 0xD5, 0x00, 0x00, 0x01, 0xF0, 0x00});
        EXPECT_TRUE(tot.Parse(0x14, b.Build().data()));
        EXPECT_EQ(tot.Time(), 86401u);
        EXPECT_EQ(tot.NumOfDescriptors(), 0);
    }

    // A loop length beyond the section is cut at the section's end: the
    // descriptors inside stay, and what the trailer makes of a descriptor
    // runs over and is dropped.
    Bytes s = Tot(utc, lto, nullptr);
    s[8] = 0xFF; // loop length 0xFFF
    s[9] = 0xFF;
    const size_t crcAt = s.size() - 4;
    s[crcAt] = 0x00;
    s[crcAt + 1] = 0x10;
    zumtest::LogCapture log;
    EXPECT_TRUE(tot.Parse(0x14, s.data()));
    EXPECT_EQ(tot.NumOfDescriptors(), 1);
    EXPECT_EQ(tot.NumOfDescriptors(0x58), 1);
    const int inLen = static_cast<int>(lto.size()) + 4;
    const std::string warning = "[Warning] TCDescriptorBase::Parse total len is not correct!inLen=" +
                                std::to_string(inLen) + ", outLen=" + std::to_string(lto.size() + 18);
    EXPECT_EQ(log.Count(warning), 1);
}
