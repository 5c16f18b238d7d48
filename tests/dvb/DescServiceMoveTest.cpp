#include <gtest/gtest.h>

#include <string>
#include <typeindex>

#include "dvb/DescLoopProbe.h"
#include "dvb/DescServiceMove.h"
#include "dvb/ServiceKey.h"
#include "support/LogCapture.h"

using svctest::Bytes;
using svctest::Decode;
using zumtest::Desc;

TEST(DescServiceMove, NewLocation)
{
    struct Case {
        const char* name;
        Bytes body;
        TCServiceKey key;
        const char* warning;
    } cases[] = {
        {"whole", {0x00, 0x02, 0x04, 0x10, 0x12, 0x34}, TCServiceKey(0x0002, 0x0410, 0x1234), nullptr},
        {"service id cut", {0x00, 0x02, 0x04, 0x10, 0x12}, TCServiceKey(0x0002, 0x0410, 0xFFFF),
         "inLen=5, outLen=4"},
        {"network id only", {0x00, 0x02}, TCServiceKey(0x0002, 0xFFFF, 0xFFFF), nullptr},
        {"empty", {}, TCServiceKey(), nullptr},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        zumtest::LogCapture log;
        auto d = Decode(new TCDescServiceMove(), Desc(0x60, c.body));
        TCServiceKey key(1, 2, 3);
        d->GetNewServiceLocation(key);
        EXPECT_TRUE(key == c.key);
        EXPECT_EQ(d->NewOriginalNetworkId(), c.key.m_originalNetworkId);
        EXPECT_EQ(d->NewTransportStreamId(), c.key.m_transportStreamId);
        EXPECT_EQ(d->NewServiceId(), c.key.m_serviceId);
        if (c.warning)
            EXPECT_TRUE(log.Contains(c.warning));
        else
            EXPECT_FALSE(log.Contains("length mismatch"));
    }
}

// A second decode of a shorter body does not keep the ids of the first.
TEST(DescServiceMove, SecondParseStartsFromNoService)
{
    auto d = Decode(new TCDescServiceMove(), Desc(0x60, {0x00, 0x02, 0x04, 0x10, 0x12, 0x34}));
    const Bytes shorter = Desc(0x60, {0x00, 0x05});
    d->Parse(shorter.data());
    EXPECT_EQ(d->NewOriginalNetworkId(), 0x0005);
    EXPECT_EQ(d->NewTransportStreamId(), 0xFFFF);
    EXPECT_EQ(d->NewServiceId(), 0xFFFF);
}

TEST(DescServiceMove, FactoryRowsThroughLoops)
{
    const Bytes move = Desc(0x60, {0x00, 0x02, 0x04, 0x10, 0x12, 0x34});
    const svctest::Row rows[] = {
        {"GBR", 0x02, move, 0x60, typeid(TCDescServiceMove)},
        {"BRA", 0x02, move, 0x60, typeid(TCDescServiceMove)},
        {"GBR", 0x42, move, 0x60, typeid(TCDescDefault)},
    };
    for (const svctest::Row& row : rows) {
        SCOPED_TRACE(testing::Message() << row.country << " 0x" << std::hex << int(row.tableId));
        EXPECT_EQ(svctest::ClassOfRow(row), row.expected.name());
    }
}
