#include <gtest/gtest.h>

#include <list>
#include <memory>
#include <string>
#include <tuple>

#include <zum-platform/Codes.h>

#include "dvb/DVBTDTParser.h"
#include "dvb/DVBTOTParser.h"
#include "dvb/DescLocalTimeOffset.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zumtest::Bytes;
using zumtest::Desc;

namespace {

Bytes ShortSection(unsigned tableId, const Bytes& body)
{
    zumtest::SectionBuilder b({tableId, false});
    b.Raw(body);
    return b.Build();
}

// UTC_time, the loop behind its 12-bit length, and four bytes in place of the CRC_32.
Bytes Tot(const Bytes& utc, const Bytes& loop)
{
    zumtest::ByteWriter w;
    w.Raw(utc).Begin16(12, 0xF000).Raw(loop).End().U32(0x12345678);
    return ShortSection(0x73, w.Data());
}

// One local time offset entry: country, region, polarity, offset, time of change, next offset.
Bytes Offset(const char* country, unsigned region, unsigned polarity, Bytes offset, Bytes change, Bytes next)
{
    zumtest::ByteWriter w;
    w.Text(country).U8((region << 2) | 0x02 | polarity).Raw(offset).Raw(change).Raw(next);
    return w.Data();
}

const Bytes kLeapDay = {0xEB, 0xD1, 0x00, 0x00, 0x00}; // 29 February 2024, 16125 days in

} // namespace

// Both tables and the time of change of an offset go through the one conversion.
TEST(DVBTimeTables, UtcTimes)
{
    const struct {
        const char* name;
        Bytes utc;
        unsigned int seconds;
    } cases[] = {
        {"6 Jan 1980 00:00:00", {0xAC, 0xD4, 0x00, 0x00, 0x00}, 0},
        {"7 Jan 1980 00:00:01", {0xAC, 0xD5, 0x00, 0x00, 0x01}, 86401},
        {"29 Feb 2024 23:59:59", {0xEB, 0xD1, 0x23, 0x59, 0x59}, 16125u * 86400u + 86399u},
        {"hours 24 pass", {0xAC, 0xD4, 0x24, 0x00, 0x00}, 86400},
        {"hours 25", {0xAC, 0xD4, 0x25, 0x00, 0x00}, 0},
        {"undefined", {0xFF, 0xFF, 0xFF, 0xFF, 0xFF}, 0},
        {"largest BCD", {0xFF, 0xFF, 0x99, 0x99, 0x99}, 0},
        {"largest passing time", {0xFF, 0xFF, 0x24, 0x60, 0x60}, 21291u * 86400u + 90060u},
    };
    zumtest::BinderScope binder;
    TCDVBTDTParser tdt{ZUMHandle()};
    TCDVBTOTParser tot{ZUMHandle()};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const Bytes s = ShortSection(0x70, c.utc);
        // No section state: the same section counts again.
        EXPECT_TRUE(tdt.Parse(0x14, s.data()) && tdt.Parse(0x14, s.data()));
        EXPECT_TRUE(tot.Parse(0x14, Tot(c.utc, Desc(0x58, Offset("GBR", 0, 0, {1, 0}, c.utc, {0, 0}))).data()));
        auto* lto = dynamic_cast<TCDescLocalTimeOffset*>(tot.Descriptor(0x58, 0));
        ASSERT_NE(lto, nullptr);
        EXPECT_EQ(std::make_tuple(tdt.Time(), tot.Time(), lto->TimeOfChange(0)),
                  std::make_tuple(c.seconds, c.seconds, c.seconds));
    }
}

TEST(DVBTOTParser, OffsetsAndTheList)
{
    zumtest::BinderScope binder;
    const Bytes loop = zumtest::Concat({
        Desc(0x58, zumtest::Concat({Offset("GBR", 0, 0, {0x01, 0x00}, kLeapDay, {0x00, 0x00}),
                                    Offset("PRT", 3, 1, {0x01, 0x30}, kLeapDay, {0x02, 0x45})})),
        Desc(0x40, {'N', 'e', 't'}),
        Desc(0x58, Offset("ESP", 1, 1, {0x00, 0x00}, kLeapDay, {0x01, 0x00})),
    });
    TCDVBTOTParser tot{ZUMHandle()};
    ASSERT_TRUE(tot.Parse(0x14, Tot({0xEB, 0xD1, 0x00, 0x30, 0x00}, loop).data()));
    EXPECT_EQ(tot.Time(), 16125u * 86400u + 1800u);
    EXPECT_EQ(tot.NumOfDescriptors(), 3);

    std::list<TCBaseDesc*> list{nullptr};
    ASSERT_TRUE(tot.GetLocalTimeOffsetDescList(&list));
    ASSERT_EQ(list.size(), 3u);
    EXPECT_EQ(list.front(), nullptr) << "appended behind what was there";
    list.pop_front();
    std::unique_ptr<TCBaseDesc> first(list.front()), second(list.back());
    EXPECT_NE(first.get(), tot.Descriptor(0x58, 0)) << "a clone";
    auto* a = dynamic_cast<TCDescLocalTimeOffset*>(first.get());
    auto* b = dynamic_cast<TCDescLocalTimeOffset*>(second.get());
    ASSERT_TRUE(a && b);
    EXPECT_EQ(a->TableId(), 0x73);
    ASSERT_EQ(a->NumOfEntries(), 2);
    EXPECT_EQ(std::make_tuple(a->CountryCode(1), a->CountryRegionId(1), a->LocalTimeOffsetPolarity(1),
                              a->LocalTimeOffset(1), a->TimeOfChange(1), a->NextTimeOffset(1)),
              std::make_tuple(ZumPackCode("PRT"), 3, 1, 90, 16125u * 86400u, 165));
    EXPECT_EQ(b->CountryCode(0), ZumPackCode("ESP"));

    // The next TOT without descriptors empties the table.
    EXPECT_TRUE(tot.Parse(0x14, Tot(kLeapDay, {}).data()));
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

TEST(DVBTimeTables, ShortAndOverlongSections)
{
    zumtest::BinderScope binder;
    const Bytes lto = Desc(0x58, Offset("GBR", 0, 0, {0x01, 0x00}, kLeapDay, {0x00, 0x00}));
    TCDVBTDTParser tdt{ZUMHandle()};
    TCDVBTOTParser tot{ZUMHandle()};
    ASSERT_TRUE(tdt.Parse(0x14, ShortSection(0x70, kLeapDay).data()));
    ASSERT_TRUE(tot.Parse(0x14, Tot(kLeapDay, lto).data()));
    tdt.Initialize();
    tot.Initialize();
    // A TDT body of any length but 5, and a TOT body too short for the loop length,
    // are refused in silence and change nothing; Initialize does not either.
    zumtest::LogCapture log;
    for (size_t length : {0u, 4u, 6u, 20u})
        EXPECT_FALSE(tdt.Parse(0x14, ShortSection(0x70, Bytes(length, 0x00)).data())) << length;
    for (size_t length : {0u, 5u, 6u})
        EXPECT_FALSE(tot.Parse(0x14, ShortSection(0x73, Bytes(length, 0x00)).data())) << length;
    EXPECT_EQ(std::make_tuple(tdt.Time(), tot.Time(), tot.NumOfDescriptors(0x58)),
              std::make_tuple(16125u * 86400u, 16125u * 86400u, 1));
    EXPECT_TRUE(log.Lines().empty());
    // Seven bytes: the time and an empty loop, no CRC_32.
    EXPECT_TRUE(tot.Parse(0x14, ShortSection(0x73, {0xAC, 0xD5, 0x00, 0x00, 0x01, 0xF0, 0x00}).data()));
    EXPECT_EQ(tot.Time(), 86401u);
    EXPECT_EQ(tot.NumOfDescriptors(), 0);

    // A loop length beyond the section is cut at its end: the descriptor inside
    // stays, and the one that the trailer starts runs over and is dropped.
    Bytes s = Tot(kLeapDay, lto);
    s[8] = s[9] = 0xFF;
    s[s.size() - 4] = 0x00;
    s[s.size() - 3] = 0x10;
    log.Clear();
    EXPECT_TRUE(tot.Parse(0x14, s.data()));
    EXPECT_EQ(tot.NumOfDescriptors(), 1);
    EXPECT_EQ(tot.NumOfDescriptors(0x58), 1);
    EXPECT_EQ(log.Count("[Warning] TCDescriptorBase::Parse total len is not correct!inLen=" +
                        std::to_string(lto.size() + 4) + ", outLen=" + std::to_string(lto.size() + 18)),
              1);
}
