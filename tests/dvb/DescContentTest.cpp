#include <gtest/gtest.h>

#include <string>
#include <typeindex>

#include "dvb/DescContent.h"
#include "dvb/DescLoopProbe.h"
#include "support/LogCapture.h"

using svctest::Bytes;
using svctest::Decode;
using zumtest::Desc;

TEST(DescContent, NibblesPerEntry)
{
    struct Case {
        const char* name;
        Bytes body;
        int count;
        const char* warning;
    } cases[] = {
        {"two entries", {0x12, 0x34, 0xAB, 0xCD}, 2, nullptr},
        {"odd byte", {0x12, 0x34, 0xAB, 0xCD, 0xEF}, 2, "inLen=5, outLen=4"},
        {"length 1", {0x12}, 0, "inLen=1, outLen=0"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        zumtest::LogCapture log;
        auto d = Decode(new TCDescContent(), Desc(0x54, c.body));
        ASSERT_EQ(d->Count(), c.count);
        if (c.count == 2) {
            EXPECT_EQ(d->ContentNibbleLevel1(0), 0x1);
            EXPECT_EQ(d->ContentNibbleLevel2(0), 0x2);
            EXPECT_EQ(d->UserNibble1(0), 0x3);
            EXPECT_EQ(d->UserNibble2(0), 0x4);
            EXPECT_EQ(d->ContentNibbleLevel1(1), 0xA);
            EXPECT_EQ(d->ContentNibbleLevel2(1), 0xB);
            EXPECT_EQ(d->UserNibble1(1), 0xC);
            EXPECT_EQ(d->UserNibble2(1), 0xD);
        }
        for (int index : {-1, c.count}) {
            EXPECT_EQ(d->ContentNibbleLevel1(index), 0);
            EXPECT_EQ(d->ContentNibbleLevel2(index), 0);
            EXPECT_EQ(d->UserNibble1(index), 0);
            EXPECT_EQ(d->UserNibble2(index), 0);
        }
        if (c.warning)
            EXPECT_TRUE(log.Contains(c.warning));
        else
            EXPECT_FALSE(log.Contains("length mismatch"));
    }
    int parsed = 0;
    auto empty = Decode(new TCDescContent(), Desc(0x54, {}), &parsed);
    EXPECT_EQ(parsed, 2);
    EXPECT_EQ(empty->Count(), 0);
}

// The specifier that the loop stored is not in the raw bytes: the clone
// must take it over.
TEST(DescContent, ForkKeepsTheSpecifier)
{
    auto d = Decode(new TCDescContent(), Desc(0x54, {0x12, 0x34}));
    EXPECT_EQ(d->PDSD(), 0u);
    d->SetPDSD(0x233A);
    std::unique_ptr<TCBaseDesc> clone(d->Fork());
    auto* content = dynamic_cast<TCDescContent*>(clone.get());
    ASSERT_NE(content, nullptr);
    EXPECT_EQ(content->PDSD(), 0x233Au);
    EXPECT_EQ(content->UserNibble2(0), 0x4);
}

TEST(DescParentalRating, RatingPerCountry)
{
    struct Case {
        const char* name;
        Bytes body;
        int count;
        const char* warning;
    } cases[] = {
        {"two countries", {'G', 'B', 'R', 0x0C, 'f', 'r', 'a', 0x05}, 2, nullptr},
        {"cut entry", {'G', 'B', 'R', 0x0C, 'f', 'r', 'a'}, 1, "inLen=7, outLen=4"},
        {"below one entry", {'G', 'B', 'R'}, 0, "inLen=3, outLen=0"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        zumtest::LogCapture log;
        auto d = Decode(new TCDescParentalRating(), Desc(0x55, c.body));
        ASSERT_EQ(d->Count(), c.count);
        if (c.count >= 1) {
            EXPECT_EQ(d->CountryCode(0), 0x474252u);
            EXPECT_EQ(d->Rating(0), 0x0C);
        }
        if (c.count == 2) {
            // Codes keep the case they were sent in.
            EXPECT_EQ(d->CountryCode(1), 0x667261u);
            EXPECT_EQ(d->Rating(1), 0x05);
        }
        for (int index : {-1, c.count}) {
            EXPECT_EQ(d->CountryCode(index), 0u);
            EXPECT_EQ(d->Rating(index), 0);
        }
        if (c.warning)
            EXPECT_TRUE(log.Contains(c.warning));
        else
            EXPECT_FALSE(log.Contains("length mismatch"));
    }
    EXPECT_EQ(Decode(new TCDescParentalRating(), Desc(0x55, {}))->Count(), 0);
}

TEST(DescContent, FactoryRowsThroughLoops)
{
    const Bytes rating = Desc(0x55, {'B', 'R', 'A', 0x02});
    const svctest::Row rows[] = {
        {"GBR", 0x4E, Desc(0x54, {0x12, 0x34}), 0x54, typeid(TCDescContent)},
        {"BRA", 0x4E, Desc(0x54, {0x12, 0x34}), 0x54, typeid(TCDescContent)},
        {"GBR", 0x4E, rating, 0x55, typeid(TCDescParentalRating)},
        {"BRA", 0x4E, rating, 0x55, typeid(TCDescParentalRating)},
        // Program tables: only the ISDB one has the rating row.
        {"BRA", 0x02, rating, 0x55, typeid(TCDescParentalRating)},
        {"GBR", 0x02, rating, 0x55, typeid(TCDescDefault)},
        // The application information table has it everywhere.
        {"GBR", 0x74, rating, 0x55, typeid(TCDescParentalRating)},
        {"USA", 0x74, rating, 0x55, typeid(TCDescParentalRating)},
    };
    for (const svctest::Row& row : rows) {
        SCOPED_TRACE(testing::Message() << row.country << " 0x" << std::hex << int(row.tableId));
        EXPECT_EQ(svctest::ClassOfRow(row), row.expected.name());
    }
}

// Under the Dish TV specifier the genre descriptor keeps its raw bytes until
// its class decodes, and stays in the loop.
TEST(DescContent, DishTVSpecifierKeepsTheRawBytes)
{
    const Bytes loop = zumtest::Concat({Desc(0x5F, {0xEC, 0xCA, 0x00, 0x01}), Desc(0x54, {0x12, 0x34})});
    TCDescriptorHash hash;
    svctest::Walk("GBR", 0x4E, loop, hash);
    ASSERT_EQ(hash.NumOfDescriptors(), 1);
    EXPECT_EQ(svctest::ClassOf(hash.Descriptor(0x54, 0)), typeid(TCDescDefault).name());
}
