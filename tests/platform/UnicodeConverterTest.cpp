#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <zum-platform/UnicodeConverter.h>

namespace {

using U16 = std::basic_string<unsigned short>;
using Bytes = std::vector<unsigned char>;

constexpr ELanguageCode kNoLanguage = static_cast<ELanguageCode>(-1);

U16 Units(std::initializer_list<unsigned short> units) { return U16(units); }

struct TextCase {
    const char* name;
    Bytes source;
    U16 expected;
};

void PrintTo(const TextCase& c, std::ostream* os) { *os << c.name; }

class ConvertText : public ::testing::TestWithParam<TextCase> {};

TEST_P(ConvertText, ToString)
{
    const TextCase& c = GetParam();
    Bytes source = c.source;
    unsigned short length = static_cast<unsigned short>(source.size());
    U16 out = Units({'x'});
    TCUnicodeConverter converter(kZUMDefaultHandle);
    EXPECT_TRUE(converter.ConvertToUnicode(source.data(), length, out, false, kNoLanguage, true));
    EXPECT_EQ(out, c.expected);
    EXPECT_EQ(length, source.size());
}

INSTANTIATE_TEST_SUITE_P(
    Tables, ConvertText,
    ::testing::Values(
        TextCase{"DefaultAscii", {'N', 'e', 'w', 's'}, Units({'N', 'e', 'w', 's'})},
        TextCase{"DefaultDiacriticComposes", {'C', 'a', 'f', 0xC2, 'e', ' ', 0xCF, 's'},
                 Units({'C', 'a', 'f', 0xE9, ' ', 0x161})},
        TextCase{"DefaultRareLetterKeepsCombiningMark", {0xC8, 'x'}, Units({'x', 0x308})},
        TextCase{"DefaultSpacingLetters", {0xE9, 0xFB, 0xA4}, Units({0xD8, 0xDF, 0x20AC})},
        TextCase{"DefaultMarkAtEndDropped", {'a', 0xC2}, Units({'a'})},
        TextCase{"Iso8859_5", {0x01, 0xB0, 0xD0}, Units({0x410, 0x430})},
        TextCase{"Iso8859_9", {0x05, 'D', 0xF0, 'a'}, Units({'D', 0x11F, 'a'})},
        TextCase{"Iso8859_15", {0x0B, 0xA4}, Units({0x20AC})},
        TextCase{"ThreeByteLatin1", {0x10, 0x00, 0x01, 'A', 0xE9}, Units({'A', 0xE9})},
        TextCase{"ThreeByteLatin2", {0x10, 0x00, 0x02, 0xB1}, Units({0x105})},
        TextCase{"Utf16", {0x11, 0x00, 0x41, 0x04, 0x10, 0xD8, 0x3D, 0xDE, 0x00}, Units({'A', 0x410, 0xD83D, 0xDE00})},
        TextCase{"Utf16OddTailDropped", {0x11, 0x00, 0x41, 0x00}, Units({'A'})},
        TextCase{"Utf8ThreeByte", {0x15, 'a', 0xE2, 0x82, 0xAC}, Units({'a', 0x20AC})},
        TextCase{"Utf8FourByteIsPair", {0x15, 0xF0, 0x9F, 0x98, 0x80}, Units({0xD83D, 0xDE00})},
        TextCase{"Utf8BadByteSkipped", {0x15, 'a', 0xFF, 'b', 0xE2, 0x82}, Units({'a', 'b'})},
        TextCase{"KsX1001", {0x12, 0xC7, 0xD1}, Units({0xD55C})},
        TextCase{"Gb2312", {0x13, 0xD6, 0xD0}, Units({0x4E2D})},
        TextCase{"Big5", {0x14, 0xA4, 0xA4}, Units({0x4E2D})},
        TextCase{"ControlCodesSingleByte", {'A', 0x86, 'B', 0x87, 0x8A, 'C', 0x00}, Units({'A', 'B', '\n', 'C'})},
        TextCase{"ControlCodesIn8859", {0x05, 'A', 0x8A, 0x86, 'B'}, Units({'A', '\n', 'B'})},
        TextCase{"ControlCodesUtf8", {0x15, 'x', 0xEE, 0x82, 0x86, 0xEE, 0x82, 0x8A, 'y'}, Units({'x', '\n', 'y'})},
        TextCase{"ControlCodesUtf16", {0x11, 0xE0, 0x8A, 0xE0, 0x87, 0x00, 'z'}, Units({'\n', 'z'})},
        TextCase{"SelectorOnly", {0x15}, U16()}),
    [](const ::testing::TestParamInfo<TextCase>& info) { return std::string(info.param.name); });

class RefuseTable : public ::testing::TestWithParam<Bytes> {};

TEST_P(RefuseTable, FalseAndEmpty)
{
    Bytes source = GetParam();
    unsigned short length = static_cast<unsigned short>(source.size());
    U16 out = Units({'x'});
    TCUnicodeConverter converter(kZUMDefaultHandle);
    EXPECT_FALSE(converter.ConvertToUnicode(source.data(), length, out, false, kNoLanguage, true));
    EXPECT_TRUE(out.empty());
}

INSTANTIATE_TEST_SUITE_P(Selectors, RefuseTable,
                         ::testing::Values(Bytes{0x08, 'a'}, Bytes{0x0C, 'a'}, Bytes{0x16, 'a'},
                                           Bytes{0x1F, 0x01, 'a'}, Bytes{0x10, 0x00, 0x0C, 'a'},
                                           Bytes{0x10, 0x01, 0x02, 'a'}, Bytes{0x10, 0x00, 0x10},
                                           Bytes{0x10, 0x00}));

TEST(UnicodeConverter, ReadsNothingBehindSourceLength)
{
    // The byte behind the length would complete the mark or the selector.
    TCUnicodeConverter converter(kZUMDefaultHandle);
    Bytes mark{'a', 0xC2, 'e'};
    unsigned short length = 2;
    U16 out;
    EXPECT_TRUE(converter.ConvertToUnicode(mark.data(), length, out, false, kNoLanguage, true));
    EXPECT_EQ(out, Units({'a'}));

    Bytes selector{0x10, 0x00, 0x01, 'a'};
    length = 2;
    EXPECT_FALSE(converter.ConvertToUnicode(selector.data(), length, out, false, kNoLanguage, true));
}

TEST(UnicodeConverter, NullOrEmptyGivesFalse)
{
    TCUnicodeConverter converter(kZUMDefaultHandle);
    Bytes text{'a', 'b'};
    U16 out = Units({'x'});
    unsigned short length = 2;
    EXPECT_FALSE(converter.ConvertToUnicode(nullptr, length, out, false, kNoLanguage, true));
    EXPECT_TRUE(out.empty());
    length = 0;
    out = Units({'x'});
    EXPECT_FALSE(converter.ConvertToUnicode(text.data(), length, out, false, kNoLanguage, true));
    EXPECT_TRUE(out.empty());

    unsigned char target[8];
    unsigned short capacity = sizeof target;
    length = 2;
    EXPECT_FALSE(converter.ConvertToUnicode(text.data(), length, nullptr, capacity, false, kNoLanguage, true));
    EXPECT_EQ(capacity, 0);
    capacity = sizeof target;
    length = 0;
    EXPECT_FALSE(converter.ConvertToUnicode(text.data(), length, target, capacity, false, kNoLanguage, true));
    EXPECT_EQ(capacity, 0);
    capacity = 0;
    length = 2;
    EXPECT_FALSE(converter.ConvertToUnicode(text.data(), length, target, capacity, false, kNoLanguage, true));
    EXPECT_EQ(capacity, 0);
}

TEST(UnicodeConverter, EveryLeadByteStaysInBounds)
{
    // Exact-size heap copies let a checked build see any read behind the text.
    TCUnicodeConverter converter(kZUMDefaultHandle);
    const Bytes tail{0x00, 0x0F, 0xC2, 0xE2, 0x82, 0xD8};
    for (unsigned int lead = 0; lead <= 0xFF; ++lead) {
        for (size_t size = 1; size <= tail.size() + 1; ++size) {
            Bytes source(size, static_cast<unsigned char>(lead));
            std::copy_n(tail.begin(), size - 1, source.begin() + 1);
            unsigned short length = static_cast<unsigned short>(source.size());
            Bytes target(3);
            unsigned short capacity = static_cast<unsigned short>(target.size());
            converter.ConvertToUnicode(source.data(), length, target.data(), capacity, false, kNoLanguage, true);
            EXPECT_LE(capacity, target.size());
            EXPECT_LE(length, source.size());
        }
    }
}

struct BufferCase {
    const char* name;
    Bytes source;
    unsigned short capacity;
    bool result;
    Bytes written;
    unsigned short consumed;
};

void PrintTo(const BufferCase& c, std::ostream* os) { *os << c.name; }

class ConvertBuffer : public ::testing::TestWithParam<BufferCase> {};

TEST_P(ConvertBuffer, BigEndianWithinCapacity)
{
    const BufferCase& c = GetParam();
    Bytes source = c.source;
    unsigned short length = static_cast<unsigned short>(source.size());
    constexpr unsigned char kUntouched = 0xEE;
    Bytes target(c.capacity + 4u, kUntouched);
    unsigned short targetLength = c.capacity;
    TCUnicodeConverter converter(kZUMDefaultHandle);
    EXPECT_EQ(converter.ConvertToUnicode(source.data(), length, target.data(), targetLength, false, kNoLanguage, true),
              c.result);
    ASSERT_EQ(targetLength, c.written.size());
    EXPECT_EQ(Bytes(target.begin(), target.begin() + targetLength), c.written);
    for (size_t i = targetLength; i < target.size(); ++i)
        EXPECT_EQ(target[i], kUntouched) << "byte " << i;
    EXPECT_EQ(length, c.consumed);
}

INSTANTIATE_TEST_SUITE_P(
    Capacity, ConvertBuffer,
    ::testing::Values(
        BufferCase{"Fits", {0x15, 'a', 0xE2, 0x82, 0xAC}, 4, true, {0x00, 'a', 0x20, 0xAC}, 5},
        BufferCase{"CutAtCapacity", {'H', 'e', 'l', 'l', 'o'}, 4, false, {0x00, 'H', 0x00, 'e'}, 2},
        BufferCase{"OddCapacityLeavesLastByte", {'H', 'e', 'l'}, 5, false, {0x00, 'H', 0x00, 'e'}, 2},
        BufferCase{"PairNotSplit", {0x15, 'a', 0xF0, 0x9F, 0x98, 0x80}, 4, false, {0x00, 'a'}, 2},
        BufferCase{"NothingFits", {0x11, 0x00, 'A'}, 1, false, {}, 0},
        BufferCase{"DroppedTailCounts", {'a', 0x87}, 2, true, {0x00, 'a'}, 2}),
    [](const ::testing::TestParamInfo<BufferCase>& info) { return std::string(info.param.name); });

} // namespace
