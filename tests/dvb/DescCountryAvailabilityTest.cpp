#include <gtest/gtest.h>

#include <list>
#include <typeindex>

#include "dvb/DescCountryAvailability.h"
#include "dvb/DescLoopProbe.h"
#include "support/LogCapture.h"

using svctest::Bytes;
using svctest::Decode;
using zumtest::Desc;

namespace {

constexpr unsigned int kGBR = 0x474252;
constexpr unsigned int kIRL = 0x49524C;
constexpr unsigned int kFRA = 0x465241;
constexpr unsigned int kBRA = 0x425241;

} // namespace

TEST(DescCountryAvailability, FlagAndList)
{
    struct Case {
        const char* name;
        Bytes body;
        std::list<ECountryCode> countries;
        bool gbr;
        bool fra;
        const char* warning;
    } cases[] = {
        {"available in two", {0x80, 'G', 'B', 'R', 'I', 'R', 'L'}, {kGBR, kIRL}, true, false, nullptr},
        {"not available in one", {0x7F, 'G', 'B', 'R'}, {kGBR}, false, true, nullptr},
        {"flag only", {0x80}, {}, false, false, nullptr},
        {"flag only, not available", {0x00}, {}, true, true, nullptr},
        {"cut country", {0x80, 'G', 'B', 'R', 'I', 'R'}, {kGBR}, true, false, "inLen=6, outLen=4"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        zumtest::LogCapture log;
        auto d = Decode(new TCDescCountryAvailability(), Desc(0x49, c.body));
        std::list<ECountryCode> got{0x1};
        EXPECT_EQ(d->Countries(got), !c.countries.empty());
        got.pop_front(); // the caller's own entry stays in front
        EXPECT_EQ(got, c.countries);
        EXPECT_EQ(d->IsServiceAvailable(kGBR), c.gbr);
        EXPECT_EQ(d->IsServiceAvailable(kFRA), c.fra);
        if (c.warning)
            EXPECT_TRUE(log.Contains(c.warning));
        else
            EXPECT_FALSE(log.Contains("length mismatch"));
    }
}

// The country enumerations come through the platform's tables; a country
// outside them is "others" (78).
TEST(DescCountryAvailability, CountriesAsEnumerations)
{
    auto d = Decode(new TCDescCountryAvailability(), Desc(0x49, {0x80, 'G', 'B', 'R', 'B', 'R', 'A', 'Z', 'M', 'B'}));
    std::list<int> values;
    EXPECT_TRUE(d->Countries(values));
    EXPECT_EQ(values, (std::list<int>{7, 78, 97}));
    std::list<ECountry> countries;
    EXPECT_TRUE(d->Countries(countries));
    EXPECT_EQ(countries, (std::list<ECountry>{static_cast<ECountry>(7), static_cast<ECountry>(78),
                                               static_cast<ECountry>(97)}));

    auto none = Decode(new TCDescCountryAvailability(), Desc(0x49, {0x80}));
    EXPECT_FALSE(none->Countries(values));
    EXPECT_EQ(values.size(), 3u);
    EXPECT_FALSE(none->IsServiceAvailable(kBRA));
}

// A second decode replaces the list rather than adding to it.
TEST(DescCountryAvailability, SecondParseReplacesTheList)
{
    auto d = Decode(new TCDescCountryAvailability(), Desc(0x49, {0x80, 'G', 'B', 'R'}));
    const Bytes other = Desc(0x49, {0x80, 'I', 'R', 'L'});
    d->Parse(other.data());
    std::list<ECountryCode> got;
    d->Countries(got);
    EXPECT_EQ(got, (std::list<ECountryCode>{kIRL}));
}

TEST(DescCountryAvailability, LengthZeroAndFactoryRow)
{
    int parsed = 0;
    auto d = Decode(new TCDescCountryAvailability(), Desc(0x49, {}), &parsed);
    EXPECT_EQ(parsed, 2);
    EXPECT_TRUE(d->IsServiceAvailable(kGBR));
    const svctest::Row rows[] = {
        {"GBR", 0x42, Desc(0x49, {0x80, 'G', 'B', 'R'}), 0x49, typeid(TCDescCountryAvailability)},
        {"BRA", 0x42, Desc(0x49, {0x80, 'B', 'R', 'A'}), 0x49, typeid(TCDescCountryAvailability)},
    };
    for (const svctest::Row& row : rows) {
        SCOPED_TRACE(row.country);
        EXPECT_EQ(svctest::ClassOfRow(row), row.expected.name());
    }
}
