#include <gtest/gtest.h>

#include <typeindex>

#include "dvb/DescLoopProbe.h"
#include "dvb/DescPrivateDataSpecifier.h"
#include "support/LogCapture.h"

using svctest::Bytes;
using svctest::Decode;
using zumtest::Concat;
using zumtest::Desc;

TEST(DescPrivateDataSpecifier, FourBytesBigEndian)
{
    struct Case {
        const char* name;
        Bytes body;
        unsigned int specifier;
        const char* warning;
    } cases[] = {
        {"specifier", {0x00, 0x00, 0x22, 0xC6}, 0x22C6, nullptr},
        {"high byte", {0xEC, 0xCA, 0x00, 0x01}, 0xECCA0001, nullptr},
        {"extra byte", {0x00, 0x00, 0x00, 0x28, 0xFF}, 0x28, "inLen=5, outLen=4"},
        {"cut", {0x00, 0x00, 0x22}, 0, "inLen=3, outLen=0"},
        {"empty", {}, 0, nullptr},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        zumtest::LogCapture log;
        auto d = Decode(new TCDescPrivateDataSpecifier(), Desc(0x5F, c.body));
        EXPECT_EQ(d->PrivateDataSpecifier(), c.specifier);
        if (c.warning)
            EXPECT_TRUE(log.Contains(c.warning));
        else
            EXPECT_FALSE(log.Contains("length mismatch"));
    }
}

// In SI loops only the EACEM specifier is kept as a descriptor; in a PMT it
// goes through the same filter first.
TEST(DescPrivateDataSpecifier, FactoryRowsThroughLoops)
{
    struct Case {
        const char* country;
        unsigned char tableId;
        Bytes body;
        int kept;
    } cases[] = {
        {"GBR", 0x40, {0x00, 0x00, 0x22, 0xC6}, 1},
        {"GBR", 0x40, {0x00, 0x00, 0x00, 0x28}, 0},
        {"GBR", 0x02, {0x00, 0x00, 0x22, 0xC6}, 1},
        {"GBR", 0x02, {0x00, 0x00, 0x23, 0x3A}, 0},
        {"BRA", 0x02, {0x00, 0x00, 0x23, 0x3A}, 1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.country << " 0x" << std::hex << int(c.tableId));
        TCDescriptorHash hash;
        svctest::Walk(c.country, c.tableId, Concat({Desc(0x5F, c.body)}), hash);
        ASSERT_EQ(hash.NumOfDescriptors(0x5F), c.kept);
        if (c.kept) {
            auto* d = dynamic_cast<TCDescPrivateDataSpecifier*>(hash.Descriptor(0x5F, 0));
            ASSERT_NE(d, nullptr);
            EXPECT_EQ(d->PrivateDataSpecifier(), static_cast<unsigned int>(c.body[2] << 8 | c.body[3]));
        }
    }
}
