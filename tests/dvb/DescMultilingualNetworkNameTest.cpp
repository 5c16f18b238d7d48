#include <gtest/gtest.h>

#include <string>
#include <typeindex>

#include "dvb/DescLoopProbe.h"
#include "dvb/DescMultilingualNetworkName.h"
#include "support/LogCapture.h"

using svctest::Bytes;
using svctest::Copied;
using svctest::CopyWith;
using svctest::Decode;
using zumtest::Desc;

namespace {

constexpr unsigned int kEng = 0x656E67; // "eng"
constexpr unsigned int kENG = 0x454E47; // "ENG"
constexpr unsigned int kDeu = 0x646575; // "deu"

// Two entries: eng "ABC" / provider "P", deu "" / provider "Anbieter".
Bytes ServiceNames()
{
    return {'e', 'n', 'g', 1, 'P', 3, 'A', 'B', 'C', 'd', 'e', 'u', 8, 'A', 'n', 'b', 'i', 'e', 't', 'e', 'r', 0};
}

} // namespace

TEST(DescMultilingualNetworkName, DecodesEveryEntryAndFindsByLanguage)
{
    zumtest::LogCapture log;
    int parsed = 0;
    auto d = Decode(new TCDescMultilingualNetworkName(),
                    Desc(0x5B, {'e', 'n', 'g', 2, 'N', 'W', 'd', 'e', 'u', 0, 'f', 'r', 'a', 3, 'R', 'e', 's'}),
                    &parsed);
    EXPECT_EQ(parsed, 19);
    EXPECT_FALSE(log.Contains("length mismatch"));
    ASSERT_EQ(d->NumOfNetworkName(), 3);
    EXPECT_EQ(d->NetworkNameDesc(0)->Language(), kEng);
    EXPECT_EQ(d->NetworkNameDesc(1)->NetworkNameLength(), 0);
    EXPECT_EQ(d->NetworkNameDesc(2)->Language(), 0x667261u);
    EXPECT_EQ(d->NetworkNameDesc(3), nullptr);
    EXPECT_EQ(d->NetworkNameDesc(-1), nullptr);

    struct Case {
        unsigned int language;
        bool found;
        std::string name;
    } cases[] = {
        {kENG, true, "NW"},
        {0x465241, true, "Res"},
        {kDeu, true, ""},
        {0x737061, false, ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.language);
        unsigned char buffer[255];
        unsigned short size = 1; // output only: the buffer holds any name
        EXPECT_EQ(d->GetNetworkNameByLanguage(c.language, buffer, &size), c.found);
        if (c.found) {
            EXPECT_EQ(std::string(buffer, buffer + size), c.name);
        }
    }
}

TEST(DescMultilingualNetworkName, NullArgumentsAssert)
{
    auto d = Decode(new TCDescMultilingualNetworkName(), Desc(0x5B, {'e', 'n', 'g', 1, 'N'}));
    zumtest::LogCapture log;
    unsigned short size = 10;
    EXPECT_FALSE(d->GetNetworkNameByLanguage(kEng, nullptr, &size));
    EXPECT_TRUE(log.Contains("Failed: name != __null && size != __null"));
}

// A record reads no further than the descriptor: a name that claims more
// keeps the bytes there are, and an entry head cut short is not an entry.
TEST(DescMultilingualNetworkName, ShortBodies)
{
    struct Case {
        const char* name;
        Bytes body;
        int entries;
        std::string lastName;
        int parsed;
    } cases[] = {
        {"name runs over", {'e', 'n', 'g', 9, 'A', 'B'}, 1, "AB", 8},
        {"entry head cut", {'e', 'n', 'g', 1, 'A', 'd', 'e'}, 1, "A", 7},
        {"no whole head", {'e', 'n', 'g'}, 0, "", 2},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        int parsed = 0;
        auto d = Decode(new TCDescMultilingualNetworkName(), Desc(0x5B, c.body), &parsed);
        EXPECT_EQ(parsed, static_cast<int>(c.body.size()) + 2);
        ASSERT_EQ(d->NumOfNetworkName(), c.entries);
        if (c.entries > 0) {
            unsigned char buffer[255];
            unsigned short size = 0;
            ASSERT_TRUE(d->GetNetworkNameByLanguage(kEng, buffer, &size));
            EXPECT_EQ(std::string(buffer, buffer + size), c.lastName);
        }
    }
    auto empty = Decode(new TCDescMultilingualNetworkName(), Desc(0x5B, {}));
    EXPECT_EQ(empty->NumOfNetworkName(), 0);
}

TEST(DescMultilingualNetworkName, RecordCopyAtItsBoundaries)
{
    auto d = Decode(new TCDescMultilingualNetworkName(), Desc(0x5B, {'e', 'n', 'g', 4, 'N', 'a', 'm', 'e'}));
    const CmultiNetworkNameDesc* entry = d->NetworkNameDesc(0);
    ASSERT_NE(entry, nullptr);
    struct Case {
        int capacity;
        bool result;
        int size;
        std::string bytes;
    } cases[] = {
        {4, true, 4, "Name##"},
        {3, false, 3, "Nam##"},
        {0, false, 0, "##"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.capacity);
        Copied got = CopyWith<unsigned char, unsigned short>(
            c.capacity, [&](unsigned char* b, unsigned short* s) { return entry->NetworkNameChar(b, s); });
        EXPECT_EQ(got.result, c.result);
        EXPECT_EQ(got.size, c.size);
        EXPECT_EQ(got.bytes, c.bytes);
    }
}

// The service name matches in any case, the provider name only exactly.
TEST(DescMultilingualServiceName, LookupsByLanguageAndIndex)
{
    int parsed = 0;
    auto d = Decode(new TCDescMultilingualServiceName(), Desc(0x5D, ServiceNames()), &parsed);
    EXPECT_EQ(parsed, 24);
    ASSERT_EQ(d->NumOfServiceName(), 2);

    struct Case {
        const char* name;
        bool provider;
        unsigned int language;
        bool found;
        std::string text;
    } cases[] = {
        {"service, same case", false, kEng, true, "ABC"},
        {"service, other case", false, kENG, true, "ABC"},
        {"provider, same case", true, kEng, true, "P"},
        {"provider, other case", true, kENG, false, ""},
        {"empty service name", false, kDeu, true, ""},
        {"provider of the second", true, kDeu, true, "Anbieter"},
        {"absent language", false, 0x667261, false, ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        unsigned char buffer[255];
        unsigned short size = 3; // output only
        const bool found = c.provider ? d->GetServiceProviderNameByLanguage(c.language, buffer, &size)
                                      : d->GetServiceNameByLanguage(c.language, buffer, &size);
        EXPECT_EQ(found, c.found);
        if (c.found) {
            EXPECT_EQ(std::string(buffer, buffer + size), c.text);
        }
    }

    unsigned int language = 0;
    unsigned char buffer[255];
    unsigned short size = 0;
    ASSERT_TRUE(d->GetServiceNameByIndex(0, &language, buffer, &size));
    EXPECT_EQ(language, kEng);
    EXPECT_EQ(std::string(buffer, buffer + size), "ABC");
    EXPECT_FALSE(d->GetServiceNameByIndex(2, &language, buffer, &size));
    EXPECT_FALSE(d->GetServiceNameByLanguage(kEng, nullptr, &size));
}

// The record copies say true also when they cut; an empty copy says whether
// there was no text.
TEST(DescMultilingualServiceName, RecordCopiesAnswerTrueWhenCut)
{
    auto d = Decode(new TCDescMultilingualServiceName(), Desc(0x5D, ServiceNames()));
    const CmultiServiceNameDesc* eng = d->ServiceNameDesc(0);
    const CmultiServiceNameDesc* deu = d->ServiceNameDesc(1);
    ASSERT_NE(eng, nullptr);
    ASSERT_NE(deu, nullptr);
    EXPECT_EQ(d->ServiceNameDesc(2), nullptr);
    struct Case {
        const char* name;
        const CmultiServiceNameDesc* entry;
        int capacity;
        bool result;
        int size;
        std::string bytes;
    } cases[] = {
        {"exact", eng, 3, true, 3, "ABC##"},
        {"cut", eng, 2, true, 2, "AB##"},
        {"capacity 0 with text", eng, 0, false, 0, "##"},
        {"no text", deu, 0, true, 0, "##"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Copied got = CopyWith<unsigned char, unsigned short>(
            c.capacity, [&](unsigned char* b, unsigned short* s) { return c.entry->ServiceNameChar(b, s); });
        EXPECT_EQ(got.result, c.result);
        EXPECT_EQ(got.size, c.size);
        EXPECT_EQ(got.bytes, c.bytes);
    }
    Copied provider = CopyWith<unsigned char, unsigned short>(
        5, [&](unsigned char* b, unsigned short* s) { return deu->ServiceProviderNameChar(b, s); });
    EXPECT_TRUE(provider.result);
    EXPECT_EQ(provider.bytes, "Anbie##");
}

TEST(DescMultilingualServiceName, ShortBodies)
{
    struct Case {
        const char* name;
        Bytes body;
        int entries;
        int providerLength;
        int serviceLength;
    } cases[] = {
        {"provider runs over", {'e', 'n', 'g', 7, 'P', 'Q'}, 1, 2, 0},
        {"service runs over", {'e', 'n', 'g', 1, 'P', 5, 'S'}, 1, 1, 1},
        {"head only", {'e', 'n', 'g', 0}, 1, 0, 0},
        {"no whole head", {'e', 'n'}, 0, 0, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        int parsed = 0;
        auto d = Decode(new TCDescMultilingualServiceName(), Desc(0x5D, c.body), &parsed);
        ASSERT_EQ(d->NumOfServiceName(), c.entries);
        if (c.entries) {
            EXPECT_EQ(d->ServiceNameDesc(0)->ServiceProviderNameLength(), c.providerLength);
            EXPECT_EQ(d->ServiceNameDesc(0)->ServiceNameLength(), c.serviceLength);
        }
    }
    EXPECT_EQ(Decode(new TCDescMultilingualServiceName(), Desc(0x5D, {}))->NumOfServiceName(), 0);
}

TEST(DescMultilingualComponent, TagAndTexts)
{
    struct Case {
        const char* name;
        Bytes body;
        int entries;
        int parsed;
    } cases[] = {
        {"two texts", {0x07, 'e', 'n', 'g', 2, 'H', 'D', 'd', 'e', 'u', 0}, 2, 13},
        {"tag only", {0x07}, 0, 3},
        {"text runs over", {0x07, 'e', 'n', 'g', 6, 'H'}, 1, 8},
        {"cut head", {0x07, 'e', 'n'}, 0, 5},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        zumtest::LogCapture log;
        int parsed = 0;
        auto d = Decode(new TCDescMultilingualComponent(), Desc(0x5E, c.body), &parsed);
        EXPECT_EQ(parsed, c.parsed);
        EXPECT_EQ(d->ComponentTag(), 0x07);
        ASSERT_EQ(d->NumOfComponentText(), c.entries);
        if (c.entries) {
            EXPECT_EQ(d->ComponentDesc(0)->Language(), kEng);
            Copied got = CopyWith<char, int>(
                2, [&](char* b, int* s) { return d->ComponentDesc(0)->TextDescChar(b, s); });
            EXPECT_TRUE(got.result);
            EXPECT_EQ(got.bytes.substr(0, 1), "H");
        }
    }
    auto d = Decode(new TCDescMultilingualComponent(), Desc(0x5E, {0x07, 'e', 'n', 'g', 2, 'H', 'D'}));
    Copied cut = CopyWith<char, int>(1, [&](char* b, int* s) { return d->ComponentDesc(0)->TextDescChar(b, s); });
    EXPECT_FALSE(cut.result);
    EXPECT_EQ(cut.bytes, "H##");
}

TEST(DescMultilingualNetworkName, FactoryRowsThroughLoops)
{
    const svctest::Row rows[] = {
        {"GBR", 0x40, Desc(0x5B, {'e', 'n', 'g', 1, 'N'}), 0x5B, typeid(TCDescMultilingualNetworkName)},
        {"GBR", 0x42, Desc(0x5D, ServiceNames()), 0x5D, typeid(TCDescMultilingualServiceName)},
        // No factory makes the multilingual component descriptor.
        {"GBR", 0x4E, Desc(0x5E, {0x07, 'e', 'n', 'g', 0}), 0x5E, typeid(TCDescDefault)},
    };
    for (const svctest::Row& row : rows) {
        SCOPED_TRACE(row.expected.name());
        EXPECT_EQ(svctest::ClassOfRow(row), row.expected.name());
    }
}
