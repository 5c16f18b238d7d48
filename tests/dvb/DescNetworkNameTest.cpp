#include <gtest/gtest.h>

#include <string>
#include <typeindex>

#include "dvb/DescLoopProbe.h"
#include "dvb/DescNetworkName.h"
#include "support/LogCapture.h"

using svctest::Bytes;
using svctest::Copied;
using svctest::CopyWith;
using svctest::Decode;
using zumtest::Desc;

namespace {

std::string Bouquet(const TCDescBouquetName& d)
{
    unsigned char buffer[256];
    unsigned short size = sizeof buffer;
    return d.BouquetNameText(buffer, &size) ? std::string(buffer, buffer + size) : "<none>";
}

} // namespace

// Both names are the whole body; the copy refuses nothing but cuts and says false.
TEST(DescNetworkName, WholeBodyAndTextCopy)
{
    int parsed = 0;
    auto network = Decode(new TCDescNetworkName(), Desc(0x40, {'A', 's', 't', 'r', 'a'}), &parsed);
    EXPECT_EQ(parsed, 7);
    EXPECT_EQ(network->NetworkNameLength(), 5);
    auto bouquet = Decode(new TCDescBouquetName(), Desc(0x47, {'F', 'r', 'e', 'e'}));
    EXPECT_EQ(bouquet->Tag(), 0x47);
    EXPECT_EQ(Bouquet(*bouquet), "Free");

    struct Case {
        int capacity;
        bool result;
        int size;
        std::string bytes;
    } cases[] = {
        {6, true, 5, "Astra###"},
        {5, true, 5, "Astra##"},
        {4, false, 4, "Astr##"},
        {0, false, 0, "##"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.capacity);
        Copied got = CopyWith<unsigned char, unsigned short>(
            c.capacity, [&](unsigned char* b, unsigned short* s) { return network->NetworkNameText(b, s); });
        EXPECT_EQ(got.result, c.result);
        EXPECT_EQ(got.size, c.size);
        EXPECT_EQ(got.bytes, c.bytes);
    }
    unsigned char buffer[8];
    EXPECT_FALSE(network->NetworkNameText(buffer, nullptr));
    unsigned short size = 8;
    EXPECT_FALSE(network->NetworkNameText(nullptr, &size));
    EXPECT_EQ(size, 8);
}

TEST(DescNetworkName, LengthZeroStoresNothing)
{
    int parsed = 0;
    auto network = Decode(new TCDescNetworkName(), Desc(0x40, {}), &parsed);
    EXPECT_EQ(parsed, 2);
    unsigned char buffer[8];
    unsigned short size = 8;
    EXPECT_FALSE(network->NetworkNameText(buffer, &size));
    auto bouquet = Decode(new TCDescBouquetName(), Desc(0x47, {}));
    EXPECT_EQ(Bouquet(*bouquet), "<none>");
}

// Only the first language is kept; a name that runs over keeps its length
// without text; the entries behind the first draw no warning.
TEST(DescMultilingualBouquetName, FirstEntryOnly)
{
    struct Case {
        const char* name;
        Bytes body;
        unsigned int language;
        int length;
        std::string text;
        bool warning;
    } cases[] = {
        {"two entries", {'e', 'n', 'g', 3, 'O', 'n', 'e', 'd', 'e', 'u', 3, 'E', 'i', 'n'}, 0x656E67, 3, "One", false},
        {"one entry", {'f', 'r', 'a', 2, 'U', 'n'}, 0x667261, 2, "Un", false},
        {"name runs over", {'f', 'r', 'a', 9, 'U', 'n'}, 0x667261, 9, "<none>", true},
        {"no name length", {'f', 'r', 'a'}, 0x667261, 0, "<none>", false},
        {"language cut", {'f', 'r'}, 0, 0, "<none>", true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        zumtest::LogCapture log;
        auto d = Decode(new TCDescMultilingualBouquetName(), Desc(0x5C, c.body));
        EXPECT_EQ(d->Tag(), 0x5C);
        EXPECT_EQ(d->Language(), c.language);
        EXPECT_EQ(d->BouquetNameLength(), c.length);
        EXPECT_EQ(Bouquet(*d), c.text);
        EXPECT_EQ(log.Contains("length mismatch"), c.warning);
    }
}

TEST(DescMultilingualBouquetName, ForkKeepsTheClass)
{
    auto d = Decode(new TCDescMultilingualBouquetName(), Desc(0x5C, {'e', 'n', 'g', 1, 'X'}));
    std::unique_ptr<TCBaseDesc> clone(d->Fork());
    auto* copy = dynamic_cast<TCDescMultilingualBouquetName*>(clone.get());
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(copy->Language(), 0x656E67u);
    EXPECT_EQ(Bouquet(*copy), "X");
    std::unique_ptr<TCBaseDesc> plain(Decode(new TCDescBouquetName(), Desc(0x47, {'Y'}))->Fork());
    EXPECT_EQ(svctest::ClassOf(plain.get()), typeid(TCDescBouquetName).name());
}

TEST(DescNetworkName, FactoryRowsThroughLoops)
{
    const svctest::Row rows[] = {
        {"GBR", 0x40, Desc(0x40, {'N'}), 0x40, typeid(TCDescNetworkName)},
        {"GBR", 0x4A, Desc(0x47, {'B'}), 0x47, typeid(TCDescBouquetName)},
        {"GBR", 0x4A, Desc(0x5C, {'e', 'n', 'g', 1, 'B'}), 0x5C, typeid(TCDescMultilingualBouquetName)},
        {"DEU", 0x41, Desc(0x40, {'N'}), 0x40, typeid(TCDescNetworkName)},
    };
    for (const svctest::Row& row : rows) {
        SCOPED_TRACE(row.expected.name());
        EXPECT_EQ(svctest::ClassOfRow(row), row.expected.name());
    }
}
