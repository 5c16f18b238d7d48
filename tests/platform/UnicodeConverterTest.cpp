#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <zum-platform/UnicodeConverter.h>

#include "support/TestEnvironment.h"

namespace {

using U16 = std::basic_string<unsigned short>;
using Bytes = std::vector<unsigned char>;

constexpr ELanguageCode kNoLang = static_cast<ELanguageCode>(-1);

} // namespace

// The leading bytes pick the table; an unknown table answers false, empty and nothing consumed.
TEST(UnicodeConverter, TablesByLeadingBytes)
{
    // length: what the caller gives, -1 for the whole source (an empty source goes as null)
    struct Case { Bytes source; bool ok; U16 expected; int length = -1; } cases[] = {
        {{'C', 'a', 'f', 0xC2, 'e', ' ', 0xCF, 's'}, true, {'C', 'a', 'f', 0xE9, ' ', 0x161}},
        // no precomposed form; spacing letters of the default table; a mark at the end is dropped
        {{0xC8, 'x'}, true, {'x', 0x308}}, {{0xE9, 0xFB, 0xA4}, true, {0xD8, 0xDF, 0x20AC}}, {{'a', 0xC2}, true, {'a'}},
        {{0x01, 0xB0, 0xD0}, true, {0x410, 0x430}}, {{0x0B, 0xA4}, true, {0x20AC}},
        {{0x10, 0x00, 0x02, 0xB1}, true, {0x105}}, {{0x12, 0xC7, 0xD1}, true, {0xD55C}},
        {{0x13, 0xD6, 0xD0}, true, {0x4E2D}}, {{0x14, 0x4E, 0x2D}, true, {0x4E2D}},
        {{0x11, 0x00, 0x41, 0x04, 0x10, 0xD8, 0x3D, 0xDE, 0x00}, true, {'A', 0x410, 0xD83D, 0xDE00}},
        {{0x11, 0x00, 0x41, 0x00}, true, {'A'}}, // odd tail dropped
        {{0x15, 'a', 0xE2, 0x82, 0xAC, 0xF0, 0x9F, 0x98, 0x80}, true, {'a', 0x20AC, 0xD83D, 0xDE00}},
        {{0x15, 'a', 0xFF, 'b', 0xE2, 0x82}, true, {'a', 'b'}}, // bad byte skipped, cut sequence dropped
        {{'A', 0x86, 'B', 0x87, 0x8A, 'C', 0x00}, true, {'A', 'B', '\n', 'C'}},
        {{0x11, 0xE0, 0x8A, 0xE0, 0x87, 0x00, 'z'}, true, {'\n', 'z'}}, {{0x15}, true, {}},
        {{0x08, 'a'}, false, {}}, {{0x0C, 'a'}, false, {}}, {{0x16, 'a'}, false, {}}, {{0x1F, 0x01, 'a'}, false, {}},
        {{0x10, 0x00, 0x0C, 'a'}, false, {}}, {{0x10, 0x01, 0x02, 'a'}, false, {}}, {{0x10, 0x00, 0x10}, false, {}},
        {{0x10, 0x00}, false, {}}, {{}, false, {}}, {{}, false, {}, 2}, {{'a'}, false, {}, 0},
        // Nothing behind the length is read: the next byte would complete the mark or the selector.
        {{'a', 0xC2, 'e'}, true, {'a'}, 2}, {{0x10, 0x00, 0x01, 'a'}, false, {}, 2},
    };
    TCUnicodeConverter converter(kZUMDefaultHandle);
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(c.source));
        Bytes source = c.source;
        const unsigned short given = static_cast<unsigned short>(c.length < 0 ? source.size() : c.length);
        unsigned short length = given;
        U16 out{'x'};
        EXPECT_EQ(converter.ConvertToUnicode(source.empty() ? nullptr : source.data(), length, out, false, kNoLang,
                                             true),
                  c.ok);
        EXPECT_EQ(out, c.expected);
        EXPECT_EQ(length, c.ok ? given : 0);
    }
}

// Big-endian pairs cut after the last whole character that fits; nothing behind what was written is touched.
TEST(UnicodeConverter, BufferWithinCapacity)
{
    struct Case { Bytes source; unsigned short capacity; bool ok; Bytes written; unsigned short consumed; } cases[] = {
        {{0x15, 'a', 0xE2, 0x82, 0xAC}, 4, true, {0x00, 'a', 0x20, 0xAC}, 5},
        {{'H', 'e', 'l', 'l', 'o'}, 4, false, {0x00, 'H', 0x00, 'e'}, 2},
        {{'H', 'e', 'l'}, 5, false, {0x00, 'H', 0x00, 'e'}, 2}, // odd capacity leaves its last byte
        {{0x15, 'a', 0xF0, 0x9F, 0x98, 0x80}, 4, false, {0x00, 'a'}, 2}, // a pair is not split
        {{'a', 0x87}, 2, true, {0x00, 'a'}, 2}, // a dropped tail still counts as consumed
        {{0x11, 0x00, 'A'}, 1, false, {}, 0}, {{'a'}, 0, false, {}, 0}, {{}, 8, false, {}, 0},
    };
    TCUnicodeConverter converter(kZUMDefaultHandle);
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(c.source));
        Bytes source = c.source;
        unsigned short length = static_cast<unsigned short>(source.size());
        Bytes target(c.capacity + 4u, 0xEE), expected = c.written;
        expected.resize(target.size(), 0xEE);
        unsigned short size = c.capacity;
        EXPECT_EQ(converter.ConvertToUnicode(source.data(), length, target.data(), size, false, kNoLang, true), c.ok);
        EXPECT_EQ(size, c.written.size());
        EXPECT_EQ(target, expected);
        EXPECT_EQ(length, c.consumed);
    }
    unsigned short length = 1, capacity = 8;
    unsigned char text[] = {'a'};
    EXPECT_FALSE(converter.ConvertToUnicode(text, length, nullptr, capacity, false, kNoLang, true));
    EXPECT_EQ(capacity, 0);

    // Exact-size heap copies let a checked build see any read behind the text.
    const Bytes tail{0x00, 0x0F, 0xC2, 0xE2, 0x82, 0xD8};
    for (unsigned int lead = 0; lead <= 0xFF; ++lead) {
        for (size_t size = 1; size <= tail.size() + 1; ++size) {
            Bytes source(size, static_cast<unsigned char>(lead));
            std::copy_n(tail.begin(), size - 1, source.begin() + 1);
            unsigned short used = static_cast<unsigned short>(source.size()), room = 3;
            Bytes target(room);
            converter.ConvertToUnicode(source.data(), used, target.data(), room, false, kNoLang, true);
            EXPECT_LE(room, target.size());
            EXPECT_LE(used, source.size());
        }
    }
}

// In Japan every text is ARIB 8-unit code: designations and shifts, kanji and the alphanumeric set (as full-width
// forms), APR as a line break; a cut buffer consumes the source of the characters written. Brazil reads Latin text.
TEST(UnicodeConverter, AribTextInJapan)
{
    zumtest::BinderScope binder;
    binder->countryCode = ZumPackCode("JPN");
    TCUnicodeConverter converter(kZUMDefaultHandle);
    const struct { Bytes source; U16 expected; } cases[] = {
        {{0x0E, 0x4E, 0x48, 0x4B, 0x0F, 0x41, 0x6D, 0x39, 0x67, 0x0E, 0x31}, {0xFF2E, 0xFF28, 0xFF2B, 0x7DCF, 0x5408, 0xFF11}},
        {{0x0E, 'A', 'B', 0x0D, 'C'}, {0xFF21, 0xFF22, '\n', 0xFF23}},
        {{0x1B, 0x7C, 0xC6, 0xEC}, {0x30C6, 0x30EC}}, // katakana, locking shift of G3 into GR
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::PrintToString(c.source));
        Bytes source = c.source;
        unsigned short length = static_cast<unsigned short>(source.size());
        U16 out;
        EXPECT_TRUE(converter.ConvertToUnicode(source.data(), length, out, false, kNoLang, true));
        EXPECT_EQ(out, c.expected);
    }
    Bytes source = {0x0E, 0x4E, 0x48, 0x4B, 0x0F, 0x41, 0x6D, 0x39, 0x67};
    unsigned short length = static_cast<unsigned short>(source.size()), size = 8;
    Bytes target(8);
    EXPECT_FALSE(converter.ConvertToUnicode(source.data(), length, target.data(), size, false, kNoLang, true));
    EXPECT_EQ(size, 8);
    EXPECT_EQ(length, 7);
    EXPECT_EQ(target, (Bytes{0xFF, 0x2E, 0xFF, 0x28, 0xFF, 0x2B, 0x7D, 0xCF}));

    binder->countryCode = ZumPackCode("BRA");
    Bytes latin = {'r', 0xE9};
    length = 2;
    U16 out;
    EXPECT_TRUE(converter.ConvertToUnicode(latin.data(), length, out, false, kNoLang, true));
    EXPECT_EQ(out, (U16{'r', 0xE9}));
}
