#include <gtest/gtest.h>

#include <cstdio>
#include <ctime>
#include <memory>
#include <string>

#include <zum-platform/Codes.h>

#include "dvb/DescLocalTimeOffset.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"

using zumtest::Bytes;
using zumtest::Desc;

namespace {

// Seconds from 6 January 1980 by the C library's calendar, as an oracle.
unsigned int GpsSeconds(int year, int month, int day, int h, int m, int s)
{
    std::tm t{};
    t.tm_year = year - 1900;
    t.tm_mon = month - 1;
    t.tm_mday = day;
    t.tm_hour = h;
    t.tm_min = m;
    t.tm_sec = s;
    return static_cast<unsigned int>(timegm(&t) - 315964800);
}

std::unique_ptr<TCDescLocalTimeOffset> Decoded(const Bytes& body)
{
    std::unique_ptr<TCDescLocalTimeOffset> d(new TCDescLocalTimeOffset());
    d->Parse(Desc(0x58, body).data());
    return d;
}

// GBR region 0, +60 minutes, changing on 29 Feb 2024 01:00:00 to +120.
const Bytes kGbr = {'G', 'B', 'R', 0x02, 0x01, 0x00, 0xEB, 0xD1, 0x01, 0x00, 0x00, 0x02, 0x00};
// ESP region 5, negative, -60 minutes, time of change undefined, next -30.
const Bytes kEsp = {'E', 'S', 'P', 0x17, 0x01, 0x00, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00, 0x30};

} // namespace

// Midnight, the leap day and the largest values are also run through the
// TDT and the TOT.
TEST(DescLocalTimeOffset, ConvertDVBtimetoATSCtime)
{
    struct Case {
        const char* name;
        Bytes utc;
        unsigned int seconds;
    } cases[] = {
        {"6 Jan 1980 itself", {0xAC, 0xD4, 0x00, 0x00, 0x00}, 0},
        {"the next day, one second in", {0xAC, 0xD5, 0x00, 0x00, 0x01}, 86401},
        {"leap day at noon", {0xEB, 0xD1, 0x12, 0x34, 0x56}, GpsSeconds(2024, 2, 29, 12, 34, 56)},
        {"24:00:00 passes as the next midnight", {0xEB, 0xD1, 0x24, 0x00, 0x00}, GpsSeconds(2024, 3, 1, 0, 0, 0)},
        {"minute and second 60 pass", {0xAC, 0xD4, 0x00, 0x60, 0x60}, 3660},
        {"hours 25", {0xAC, 0xD5, 0x25, 0x00, 0x00}, 0},
        {"minutes 61", {0xAC, 0xD5, 0x00, 0x61, 0x00}, 0},
        {"seconds 61", {0xAC, 0xD5, 0x00, 0x00, 0x61}, 0},
        {"the day before wraps", {0xAC, 0xD3, 0x00, 0x00, 0x00}, 0xFFFFFFFFu - 86400u + 1u},
        {"MJD 0 wraps", {0x00, 0x00, 0x00, 0x00, 0x00}, 472285696u},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(TCDescLocalTimeOffset::ConvertDVBtimetoATSCtime(c.utc.data()), c.seconds);
    }
    EXPECT_EQ(TCDescLocalTimeOffset::ConvertDVBtimetoATSCtime(nullptr), 0u);
}

TEST(DescLocalTimeOffset, DaysAndMinutes)
{
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

TEST(DescLocalTimeOffset, Entries)
{
    zumtest::LogCapture log;
    auto d = Decoded(zumtest::Concat({kGbr, kEsp}));
    EXPECT_EQ(d->Tag(), 0x58);
    ASSERT_EQ(d->NumOfEntries(), 2);
    EXPECT_EQ(d->CountryCode(0), ZumPackCode("GBR"));
    EXPECT_EQ(d->CountryRegionId(0), 0);
    EXPECT_EQ(d->LocalTimeOffsetPolarity(0), 0);
    EXPECT_EQ(d->LocalTimeOffset(0), 60);
    EXPECT_EQ(d->TimeOfChange(0), GpsSeconds(2024, 2, 29, 1, 0, 0));
    EXPECT_EQ(d->NextTimeOffset(0), 120);
    EXPECT_EQ(d->CountryCode(1), ZumPackCode("ESP"));
    EXPECT_EQ(d->CountryRegionId(1), 5);
    EXPECT_EQ(d->LocalTimeOffsetPolarity(1), 1);
    EXPECT_EQ(d->LocalTimeOffset(1), 60);
    EXPECT_EQ(d->TimeOfChange(1), 0u);
    EXPECT_EQ(d->NextTimeOffset(1), 30);
    EXPECT_TRUE(log.Lines().empty());

    for (int index : {2, -1}) {
        SCOPED_TRACE(index);
        EXPECT_EQ(d->CountryCode(index), 0u);
        EXPECT_EQ(d->CountryRegionId(index), 0);
        EXPECT_EQ(d->LocalTimeOffsetPolarity(index), 0);
        EXPECT_EQ(d->LocalTimeOffset(index), 0);
        EXPECT_EQ(d->TimeOfChange(index), 0u);
        EXPECT_EQ(d->NextTimeOffset(index), 0);
    }

    std::unique_ptr<TCBaseDesc> clone(d->Fork());
    auto* copy = dynamic_cast<TCDescLocalTimeOffset*>(clone.get());
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(copy->NumOfEntries(), 2);
    EXPECT_EQ(copy->NextTimeOffset(1), 30);

    // A second decode replaces the entries.
    d->Parse(Desc(0x58, kEsp).data());
    EXPECT_EQ(d->NumOfEntries(), 1);
    EXPECT_EQ(d->CountryCode(0), ZumPackCode("ESP"));
}

TEST(DescLocalTimeOffset, PartialEntriesAreLeft)
{
    const Bytes two = zumtest::Concat({kGbr, kEsp});
    const struct {
        size_t length;
        int entries;
        int hookResult;
    } cases[] = {{1, 0, 0}, {12, 0, 0}, {13, 1, 13}, {20, 1, 13}, {25, 1, 13}, {26, 2, 26}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.length);
        zumtest::LogCapture log;
        auto d = Decoded(Bytes(two.begin(), two.begin() + static_cast<long>(c.length)));
        EXPECT_EQ(d->NumOfEntries(), c.entries);
        EXPECT_EQ(d->CountryCode(0), c.entries ? ZumPackCode("GBR") : 0u);
        char line[96];
        std::snprintf(line, sizeof line, "[Warning] Descriptor[0x58] length mismatch!inLen=%d, outLen=%d",
                      static_cast<int>(c.length), c.hookResult);
        EXPECT_EQ(log.Count(line), static_cast<int>(c.length) == c.hookResult ? 0 : 1);
    }
}
