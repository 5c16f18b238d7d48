#include <gtest/gtest.h>

#include "dvb/DescLocalTimeOffset.h"
#include "dvb/DescLoopProbe.h"

using namespace svctest;

namespace {

// GBR region 0, +60 minutes, changing on 29 Feb 2024 01:00:00 to +120.
const Bytes kGbr = {'G', 'B', 'R', 0x02, 0x01, 0x00, 0xEB, 0xD1, 0x01, 0x00, 0x00, 0x02, 0x00};
// ESP region 5, negative, -60 minutes, time of change undefined, next -30.
const Bytes kEsp = {'E', 'S', 'P', 0x17, 0x01, 0x00, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00, 0x30};

} // namespace

TEST(DescLocalTimeOffset, Conversions)
{
    const struct {
        const char* name;
        Bytes utc;
        unsigned int seconds;
    } cases[] = {
        {"6 Jan 1980 itself", {0xAC, 0xD4, 0x00, 0x00, 0x00}, 0},
        {"the next day, one second in", {0xAC, 0xD5, 0x00, 0x00, 0x01}, 86401},
        // MJD 60369 is 29 Feb 2024, 16125 days on.
        {"leap day at noon", {0xEB, 0xD1, 0x12, 0x34, 0x56}, 1393245296u},
        {"24:00:00 passes as the next midnight", {0xEB, 0xD1, 0x24, 0x00, 0x00}, 1393286400u},
        {"minute and second 60 pass", {0xAC, 0xD4, 0x00, 0x60, 0x60}, 3660},
        {"hours 25", {0xAC, 0xD5, 0x25, 0x00, 0x00}, 0},
        {"minutes 61", {0xAC, 0xD5, 0x00, 0x61, 0x00}, 0},
        {"seconds 61", {0xAC, 0xD5, 0x00, 0x00, 0x61}, 0},
        {"the day before wraps", {0xAC, 0xD3, 0x00, 0x00, 0x00}, 0xFFFFFFFFu - 86400u + 1u},
        {"MJD 0 wraps", {0x00, 0x00, 0x00, 0x00, 0x00}, 472285696u},
    };
    for (const auto& c : cases)
        EXPECT_EQ(TCDescLocalTimeOffset::ConvertDVBtimetoATSCtime(c.utc.data()), c.seconds) << c.name;
    EXPECT_EQ(TCDescLocalTimeOffset::ConvertDVBtimetoATSCtime(nullptr), 0u);

    // Days clamp below the epoch, unlike seconds.
    const struct {
        unsigned int mjd, days;
    } days[] = {{44244, 0}, {44243, 0}, {0, 0}, {44245, 1}, {60369, 16125}, {0xFFFF, 21291}};
    for (const auto& d : days)
        EXPECT_EQ(TCDescLocalTimeOffset::ConvertDVBtimetoATSCtime(d.mjd), d.days) << d.mjd;

    const struct {
        Bytes bcd;
        int minutes;
    } minutes[] = {{{0x12, 0x30}, 750}, {{0x00, 0x00}, 0}, {{0x00, 0x59}, 59}, {{0x99, 0x99}, 6039}};
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
        {cut(20), "1, - 0 0 0 0 0, " + gbr + ", - 0 0 0 0 0", "inLen=20, outLen=13"},
        {cut(13), "1, - 0 0 0 0 0, " + gbr + ", - 0 0 0 0 0"},
        {cut(12), "0, - 0 0 0 0 0, - 0 0 0 0 0", "inLen=12, outLen=0"},
        {cut(1), "0, - 0 0 0 0 0, - 0 0 0 0 0", "inLen=1, outLen=0"},
        {{}, "0, - 0 0 0 0 0, - 0 0 0 0 0"},
    });
    // A second decode replaces the entries.
    auto d = Decode(new TCDescLocalTimeOffset(), Desc(0x58, two));
    ExpectClone(*d);
    d->Parse(Desc(0x58, kEsp).data());
    EXPECT_EQ(d->NumOfEntries(), 1);
    EXPECT_EQ(d->CountryCode(0), ZumPackCode("ESP"));
}
