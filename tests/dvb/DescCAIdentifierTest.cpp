#include <gtest/gtest.h>

#include <list>

#include "dvb/DescCAIdentifier.h"
#include "dvb/DescLoopProbe.h"
#include "support/LogCapture.h"

using svctest::Bytes;
using svctest::Decode;
using zumtest::Desc;

TEST(DescCAIdentifier, SystemIds)
{
    struct Case {
        const char* name;
        Bytes body;
        std::list<unsigned short> ids;
    } cases[] = {
        {"two systems", {0x09, 0x63, 0x18, 0x02}, {0x0963, 0x1802}},
        // The lone last byte is the high byte of an id whose low byte was not sent.
        {"odd length", {0x09, 0x63, 0x18}, {0x0963, 0x1800}},
        {"one byte", {0x05}, {0x0500}},
        {"empty", {}, {}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        zumtest::LogCapture log;
        auto d = Decode(new TCDescCAIdentifier(), Desc(0x53, c.body));
        EXPECT_EQ(d->Tag(), 0x53);
        EXPECT_EQ(d->CASystemIds(), c.ids);
        EXPECT_FALSE(log.Contains("length mismatch"));
    }
}

// No SI factory makes it: a loop keeps the raw bytes only.
TEST(DescCAIdentifier, NoFactoryRow)
{
    TCDescriptorHash hash;
    svctest::Walk("GBR", 0x42, Desc(0x53, {0x09, 0x63}), hash);
    EXPECT_EQ(svctest::ClassOf(hash.Descriptor(0x53, 0)), typeid(TCDescDefault).name());
}
