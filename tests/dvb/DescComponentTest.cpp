#include <gtest/gtest.h>

#include <string>
#include <typeindex>

#include "dvb/DescComponent.h"
#include "dvb/DescLoopProbe.h"
#include "support/LogCapture.h"

using svctest::Bytes;
using svctest::Copied;
using svctest::CopyWith;
using svctest::Decode;
using zumtest::Desc;

namespace {

// Byte 0 is ext << 4 | content.
std::unique_ptr<TCDescComponent> Component(int system, unsigned char ext, unsigned char content,
                                           unsigned char type, unsigned char tag = 0)
{
    return Decode(new TCDescComponent(system),
                  Desc(0x50, {static_cast<unsigned char>(ext << 4 | content), type, tag, 'e', 'n', 'g'}));
}

} // namespace

TEST(DescComponent, DecodesEveryField)
{
    zumtest::LogCapture log;
    auto d = Decode(new TCDescComponent(0), Desc(0x50, {0xE5, 0x0B, 0x42, 'd', 'e', 'u', 'H', 'D', 'T', 'V'}));
    EXPECT_FALSE(log.Contains("length mismatch"));
    EXPECT_EQ(d->System(), 0);
    EXPECT_EQ(d->StreamContentExt(), 0xE);
    EXPECT_EQ(d->StreamContent(), 0x5);
    EXPECT_EQ(d->ComponentType(), 0x0B);
    EXPECT_EQ(d->ComponentTag(), 0x42);
    EXPECT_EQ(d->Language(), 0x646575u);
    EXPECT_EQ(d->TextLength(), 4);
    struct Case {
        int capacity;
        bool result;
        int size;
        std::string bytes;
    } cases[] = {
        {4, true, 4, "HDTV##"},
        {3, false, 3, "HDT##"},
        {0, false, 0, "##"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.capacity);
        Copied got = CopyWith<char, int>(c.capacity, [&](char* b, int* s) { return d->TextChar(b, s); });
        EXPECT_EQ(got.result, c.result);
        EXPECT_EQ(got.size, c.size);
        EXPECT_EQ(got.bytes, c.bytes);
    }
}

TEST(DescComponent, ShortBodiesKeepWhatTheyHold)
{
    struct Case {
        Bytes body;
        unsigned char type;
        unsigned char tag;
        unsigned int language;
        int textLength;
    } cases[] = {
        {{0x01}, 0, 0, 0, 0},
        {{0x01, 0x03}, 0x03, 0, 0, 0},
        {{0x01, 0x03, 0x07, 'e', 'n'}, 0x03, 0x07, 0, 0},
        {{0x01, 0x03, 0x07, 'e', 'n', 'g'}, 0x03, 0x07, 0x656E67, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.body.size());
        auto d = Decode(new TCDescComponent(0), Desc(0x50, c.body));
        EXPECT_EQ(d->StreamContent(), 0x1);
        EXPECT_EQ(d->ComponentType(), c.type);
        EXPECT_EQ(d->ComponentTag(), c.tag);
        EXPECT_EQ(d->Language(), c.language);
        EXPECT_EQ(d->TextLength(), c.textLength);
    }
    int parsed = 0;
    auto empty = Decode(new TCDescComponent(1), Desc(0x50, {}), &parsed);
    EXPECT_EQ(parsed, 2);
    EXPECT_FALSE(empty->IsHD());
}

// The receiver's classification of a component. ext -1 in the table means
// that the test does not care: each such row runs with two ext values.
TEST(DescComponent, Classification)
{
    enum Flag { HD = 1, UHD = 2, SUB = 4, SIGN = 8, AD = 16, DE = 32, SPS = 64, TTML = 128 };
    struct Case {
        const char* name;
        int system;
        int ext;
        unsigned char content;
        unsigned char type;
        unsigned char tag;
        int flags;
    } cases[] = {
        {"MPEG-2 SD", 0, -1, 0x1, 0x01, 0, 0},
        {"MPEG-2 HD", 0, -1, 0x1, 0x09, 0, HD},
        {"MPEG-2 HD top", 0, -1, 0x1, 0x10, 0, HD},
        {"MPEG-2 above HD", 0, -1, 0x1, 0x11, 0, 0},
        {"ISDB HD type from the DVB factory", 0, -1, 0x1, 0xB1, 0, 0},
        {"ISDB HD type from the ISDB factory", 1, -1, 0x1, 0xB1, 0, HD},
        {"ISDB HD 0xC4", 1, -1, 0x1, 0xC4, 0, HD},
        {"ISDB 0xB2 is not HD", 1, -1, 0x1, 0xB2, 0, 0},
        {"AVC HD", 0, -1, 0x5, 0x0B, 0, HD},
        {"AVC HD 0x10", 0, -1, 0x5, 0x10, 0, HD},
        {"AVC SD", 0, -1, 0x5, 0x01, 0, 0},
        {"HEVC HD", 0, 0, 0x9, 0x03, 0, HD},
        {"HEVC UHD", 0, 0, 0x9, 0x04, 0, UHD},
        {"HEVC UHD other ext", 0, 1, 0x9, 0x04, 0, 0},
        {"subtitle", 0, -1, 0x3, 0x10, 0, SUB},
        {"subtitle 0x14", 0, -1, 0x3, 0x14, 0, SUB},
        {"subtitle 0x15 is none", 0, -1, 0x3, 0x15, 0, 0},
        {"hard of hearing subtitle", 0, -1, 0x3, 0x24, 0, SUB},
        {"sign language", 0, -1, 0x3, 0x30, 0, SIGN},
        {"HE-AAC AD", 0, -1, 0x6, 0x44, 0, AD},
        {"HE-AAC 0x45", 0, -1, 0x6, 0x45, 0, 0},
        {"MPEG-1 audio AD", 0, -1, 0x2, 0x47, 0, AD},
        {"MPEG-1 audio 0x44", 0, -1, 0x2, 0x44, 0, 0},
        {"AC-4 AD", 0, 1, 0x9, 0x06, 0, AD},
        {"AC-4 AD with DE", 0, 1, 0x9, 0x07, 0, AD | DE},
        {"AC-4 DE", 0, 1, 0x9, 0x01, 0, DE},
        {"AC-4 main", 0, 1, 0x9, 0x00, 0, 0},
        {"AC-4 0x0E", 0, 1, 0x9, 0x0E, 0, 0},
        {"TTML", 0, 2, 0x9, 0x00, 0, TTML},
        {"NGA audio description", 0, 0xE, 0xB, 0x00, 0x04, AD},
        {"NGA spoken subtitles", 0, 0xE, 0xB, 0x00, 0x08, SPS},
        {"NGA dialogue enhancement", 0, 0xE, 0xB, 0x00, 0x10, DE},
        {"NGA flags in the type count for nothing", 0, 0xE, 0xB, 0x1C, 0x00, 0},
        {"NGA bits under another ext", 0, 0xD, 0xB, 0x00, 0x1C, 0},
    };
    for (const Case& c : cases) {
        for (int ext : c.ext < 0 ? std::vector<int>{0x0, 0xF} : std::vector<int>{c.ext}) {
            SCOPED_TRACE(testing::Message() << c.name << ", ext " << ext);
            auto d = Component(c.system, static_cast<unsigned char>(ext), c.content, c.type, c.tag);
            EXPECT_EQ(d->IsHD(), (c.flags & HD) != 0);
            EXPECT_EQ(d->IsUHD(), (c.flags & UHD) != 0);
            EXPECT_EQ(d->IsSubtitle(), (c.flags & SUB) != 0);
            EXPECT_EQ(d->IsSignLanguage(), (c.flags & SIGN) != 0);
            EXPECT_EQ(d->IsAD(), (c.flags & AD) != 0);
            EXPECT_EQ(d->IsDE(), (c.flags & DE) != 0);
            EXPECT_EQ(d->IsSpS(), (c.flags & SPS) != 0);
            EXPECT_EQ(d->IsTTML(), (c.flags & TTML) != 0);
        }
    }
}

// The clone keeps the system, which only the constructor knows.
TEST(DescComponent, ForkKeepsTheSystem)
{
    auto isdb = Component(1, 0, 0x1, 0xB1);
    std::unique_ptr<TCBaseDesc> clone(isdb->Fork());
    auto* component = dynamic_cast<TCDescComponent*>(clone.get());
    ASSERT_NE(component, nullptr);
    EXPECT_EQ(component->System(), 1);
    EXPECT_TRUE(component->IsHD());
}

TEST(DescStreamIdentifier, ComponentTag)
{
    struct Case {
        Bytes body;
        unsigned char tag;
        const char* warning;
    } cases[] = {
        {{0x21}, 0x21, nullptr},
        {{0x21, 0x00}, 0x21, "inLen=2, outLen=1"},
        {{}, 0x00, nullptr},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.body.size());
        zumtest::LogCapture log;
        auto d = Decode(new TCDescStreamIdentifier(), Desc(0x52, c.body));
        EXPECT_EQ(d->ComponentTag(), c.tag);
        EXPECT_EQ(log.Contains("length mismatch"), c.warning != nullptr);
        if (c.warning) {
            EXPECT_TRUE(log.Contains(c.warning));
        }
    }
}

TEST(DescComponent, FactoryRowsThroughLoops)
{
    const Bytes component = Desc(0x50, {0x01, 0xB1, 0x01, 'p', 'o', 'r'});
    const svctest::Row rows[] = {
        {"GBR", 0x4E, component, 0x50, typeid(TCDescComponent)},
        {"BRA", 0x4E, component, 0x50, typeid(TCDescComponent)},
        {"GBR", 0x02, Desc(0x52, {0x01}), 0x52, typeid(TCDescStreamIdentifier)},
        {"BRA", 0x02, Desc(0x52, {0x01}), 0x52, typeid(TCDescStreamIdentifier)},
        {"USA", 0x02, Desc(0x52, {0x01}), 0x52, typeid(TCDescStreamIdentifier)},
        // In SI tables the stream identifier has no row.
        {"GBR", 0x42, Desc(0x52, {0x01}), 0x52, typeid(TCDescDefault)},
    };
    for (const svctest::Row& row : rows) {
        SCOPED_TRACE(row.expected.name());
        EXPECT_EQ(svctest::ClassOfRow(row), row.expected.name());
    }
    // The system argument differs by factory: the ISDB one classifies ISDB HD types.
    for (const char* country : {"GBR", "BRA"}) {
        TCDescriptorHash hash;
        svctest::Walk(country, 0x4E, component, hash);
        auto* d = dynamic_cast<TCDescComponent*>(hash.Descriptor(0x50, 0));
        ASSERT_NE(d, nullptr);
        EXPECT_EQ(d->IsHD(), std::string(country) == "BRA") << country;
    }
}
