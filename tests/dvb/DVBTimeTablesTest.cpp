#include <gtest/gtest.h>

#include <list>
#include <memory>
#include <string>
#include <tuple>

#include "dvb/DVBTDTParser.h"
#include "dvb/DVBTOTParser.h"
#include "dvb/DescLocalTimeOffset.h"
#include "dvb/DescLoopProbe.h"

using namespace svctest;

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

const Bytes kLeapDay = {0xEB, 0xD1, 0x00, 0x00, 0x00}; // 29 February 2024, 16125 days in

// GBR region 0, +60 minutes, changing on 29 Feb 2024 01:00:00 to +120.
const Bytes kGbr = {'G', 'B', 'R', 0x02, 0x01, 0x00, 0xEB, 0xD1, 0x01, 0x00, 0x00, 0x02, 0x00};
// ESP region 5, negative, -60 minutes, time of change undefined, next -30.
const Bytes kEsp = {'E', 'S', 'P', 0x17, 0x01, 0x00, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00, 0x30};

} // namespace

TEST(DVBTOTParser, OffsetsAndTheList)
{
    zumtest::BinderScope binder;
    const Bytes loop =
        zumtest::Concat({Desc(0x58, zumtest::Concat({kGbr, kEsp})), Desc(0x40, {'N', 'e', 't'}), Desc(0x58, kGbr)});
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
    EXPECT_EQ(std::make_tuple(a->TableId(), a->NumOfEntries(), a->CountryCode(1), b->CountryCode(0)),
              std::make_tuple(0x73, 2, ZumPackCode("ESP"), ZumPackCode("GBR")));

    // The next TOT without descriptors empties the table.
    EXPECT_TRUE(tot.Parse(0x14, Tot(kLeapDay, {}).data()));
    EXPECT_EQ(tot.NumOfDescriptors(), 0);
    std::list<TCBaseDesc*> none{nullptr};
    EXPECT_FALSE(tot.GetLocalTimeOffsetDescList(&none));
    EXPECT_EQ(none.size(), 1u);

    zumtest::LogCapture log;
    EXPECT_FALSE(tot.GetLocalTimeOffsetDescList(nullptr));
    EXPECT_EQ(log.Lines(6).size(), 1u);
    EXPECT_TRUE(log.Contains("ASSERT!, Func:GetLocalTimeOffsetDescList, Line:") && log.Contains(", Failed: pDescList"));
}

TEST(DVBTimeTables, ShortAndOverlongSections)
{
    zumtest::BinderScope binder;
    const Bytes lto = Desc(0x58, kGbr);
    TCDVBTDTParser tdt{ZUMHandle()};
    TCDVBTOTParser tot{ZUMHandle()};
    // No section state: the same section counts again.
    for (int twice = 0; twice < 2; ++twice) {
        ASSERT_TRUE(tdt.Parse(0x14, ShortSection(0x70, kLeapDay).data()));
        ASSERT_TRUE(tot.Parse(0x14, Tot(kLeapDay, lto).data()));
    }
    tdt.Initialize();
    tot.Initialize();
    // A TDT body of any length but 5 is refused in silence and changes nothing;
    // Initialize does not either.
    zumtest::LogCapture log;
    for (size_t length : {0u, 4u, 6u})
        EXPECT_FALSE(tdt.Parse(0x14, ShortSection(0x70, Bytes(length, 0x00)).data())) << length;
    EXPECT_EQ(std::make_tuple(tdt.Time(), tot.Time(), tot.NumOfDescriptors(0x58)),
              std::make_tuple(16125u * 86400u, 16125u * 86400u, 1));
    EXPECT_TRUE(log.Lines().empty());
    // A TOT body without room for the loop length still empties the table and
    // sets the time, read as far as the section reaches.
    EXPECT_TRUE(tot.Parse(0x14, ShortSection(0x73, {0xAC, 0xD5, 0x00, 0x00, 0x02, 0xF0}).data()));
    EXPECT_EQ(std::make_tuple(tot.Time(), tot.NumOfDescriptors()), std::make_tuple(86402u, 0));
    ASSERT_TRUE(tot.Parse(0x14, Tot(kLeapDay, lto).data()));
    EXPECT_TRUE(tot.Parse(0x14, ShortSection(0x73, {0xAC, 0xD5, 0x01}).data()));
    EXPECT_EQ(std::make_tuple(tot.Time(), tot.NumOfDescriptors()), std::make_tuple(86400u + 3600u, 0));
    // Seven bytes: the time and an empty loop, no CRC_32.
    EXPECT_TRUE(tot.Parse(0x14, ShortSection(0x73, {0xAC, 0xD5, 0x00, 0x00, 0x01, 0xF0, 0x00}).data()));
    EXPECT_EQ(std::make_tuple(tot.Time(), tot.NumOfDescriptors()), std::make_tuple(86401u, 0));

    // A loop length beyond the section is cut at its end: the descriptor inside
    // stays, and the one that the trailer starts runs over and is dropped.
    Bytes s = Tot(kLeapDay, lto);
    s[8] = s[9] = 0xFF;
    s[s.size() - 4] = 0x00;
    s[s.size() - 3] = 0x10;
    log.Clear();
    EXPECT_TRUE(tot.Parse(0x14, s.data()));
    EXPECT_EQ(std::make_tuple(tot.NumOfDescriptors(), tot.NumOfDescriptors(0x58)), std::make_tuple(1, 1));
    EXPECT_EQ(log.Count("[Warning] TCDescriptorBase::Parse total len is not correct!inLen=" +
                        std::to_string(lto.size() + 4) + ", outLen=" + std::to_string(lto.size() + 18)),
              1);
}

TEST(DescLocalTimeOffset, Conversions)
{
    const struct { const char* name; Bytes utc; unsigned int seconds; } cases[] = {
        {"6 Jan 1980 itself", {0xAC, 0xD4, 0x00, 0x00, 0x00}, 0},
        {"the next day, one second in", {0xAC, 0xD5, 0x00, 0x00, 0x01}, 86401},
        // MJD 60369 is 29 Feb 2024, 16125 days on.
        {"leap day at noon", {0xEB, 0xD1, 0x12, 0x34, 0x56}, 1393245296u},
        {"24:00:00 passes as the next midnight", {0xEB, 0xD1, 0x24, 0x00, 0x00}, 1393286400u},
        {"minute and second 60 pass", {0xAC, 0xD4, 0x00, 0x60, 0x60}, 3660},
        {"hours 25", {0xAC, 0xD5, 0x25, 0x00, 0x00}, 0},
        {"minutes 61", {0xAC, 0xD5, 0x00, 0x61, 0x00}, 0},
        {"seconds 61", {0xAC, 0xD5, 0x00, 0x00, 0x61}, 0},
        {"MJD 0 wraps", {0x00, 0x00, 0x00, 0x00, 0x00}, 472285696u},
        {"all bits set", {0xFF, 0xFF, 0xFF, 0xFF, 0xFF}, 0},
        {"largest time that passes", {0xFF, 0xFF, 0x24, 0x60, 0x60}, 21291u * 86400u + 90060u},
    };
    for (const auto& c : cases)
        EXPECT_EQ(TCDescLocalTimeOffset::ConvertDVBtimetoATSCtime(c.utc.data()), c.seconds) << c.name;
    EXPECT_EQ(TCDescLocalTimeOffset::ConvertDVBtimetoATSCtime(nullptr), 0u);

    // Days clamp below the epoch, unlike seconds.
    const struct { unsigned int mjd, days; } days[] = {
        {44244, 0}, {44243, 0}, {0, 0}, {44245, 1}, {60369, 16125}, {0xFFFF, 21291}};
    for (const auto& d : days)
        EXPECT_EQ(TCDescLocalTimeOffset::ConvertDVBtimetoATSCtime(d.mjd), d.days) << d.mjd;

    const struct { Bytes bcd; int minutes; } minutes[] = {
        {{0x12, 0x30}, 750}, {{0x00, 0x00}, 0}, {{0x00, 0x59}, 59}, {{0x99, 0x99}, 6039}};
    for (const auto& m : minutes)
        EXPECT_EQ(TCDescLocalTimeOffset::ConvertBCDtoMin(m.bcd.data()), m.minutes);
    EXPECT_EQ(TCDescLocalTimeOffset::ConvertBCDtoMin(nullptr), 0);
}

// Per entry: country, region, polarity, offset, time of change, next offset; an index outside gives zeros.
TEST(DescLocalTimeOffset, Entries)
{
    auto show = [](const TCDescLocalTimeOffset& d) {
        std::string s = std::to_string(d.NumOfEntries());
        for (int i = -1; i <= d.NumOfEntries(); ++i)
            s += ", " + Join(Code(d.CountryCode(i)), d.CountryRegionId(i), d.LocalTimeOffsetPolarity(i),
                             d.LocalTimeOffset(i), d.TimeOfChange(i), d.NextTimeOffset(i));
        return s;
    };
    const std::string gbr = "GBR 0 0 60 1393203600 120";
    const Bytes two = zumtest::Concat({kGbr, kEsp});
    auto cut = [&two](long length) { return Bytes(two.begin(), two.begin() + length); };
    ExpectBodies(0x58, [] { return new TCDescLocalTimeOffset(); }, show, {
        {two, "2, - 0 0 0 0 0, " + gbr + ", ESP 5 1 60 0 30, - 0 0 0 0 0"},
        {cut(25), "1, - 0 0 0 0 0, " + gbr + ", - 0 0 0 0 0", "inLen=25, outLen=13"},
        {cut(13), "1, - 0 0 0 0 0, " + gbr + ", - 0 0 0 0 0"},
        {cut(12), "0, - 0 0 0 0 0, - 0 0 0 0 0", "inLen=12, outLen=0"},
    });
    // A second decode replaces the entries.
    auto d = Decode(new TCDescLocalTimeOffset(), Desc(0x58, two));
    d->Parse(Desc(0x58, kEsp).data());
    EXPECT_EQ(d->NumOfEntries(), 1);
    EXPECT_EQ(d->CountryCode(0), ZumPackCode("ESP"));
}
