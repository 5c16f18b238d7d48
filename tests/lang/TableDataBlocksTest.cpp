#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "lang/CommonTableDataParser.h"
#include "lang/FrequencyInformationParser.h"
#include "lang/KeywordTableDataParser.h"
#include "support/SectionBuilder.h"

using zumtest::Bytes;

namespace {

// The block in a heap buffer of exactly its size, so that a sanitizer sees an overread.
template <class Parser>
int ParseExact(Parser& parser, const Bytes& block)
{
    std::unique_ptr<unsigned char[]> exact(new unsigned char[block.size() + 1]);
    std::copy(block.begin(), block.end(), exact.get());
    return parser.Parse(block.empty() ? nullptr : exact.get(), static_cast<unsigned>(block.size()));
}

std::string Owned(const std::unique_ptr<unsigned char[]>& bytes, unsigned length)
{
    return bytes ? std::string(reinterpret_cast<const char*>(bytes.get()), length) : "<null>";
}

Bytes Repeat(size_t count, uint8_t value, Bytes head = {})
{
    head.insert(head.end(), count, value);
    return head;
}

} // namespace

TEST(TableDataBlocks, KeywordTable)
{
    const struct { Bytes block; int result; std::vector<std::string> keywords; } cases[] = {
        {{}, 0, {}},
        {{0}, 1, {}},
        {{0, 9, 9}, 1, {}},
        {{1, 0}, 1, {"<null>"}},
        {{3, 1, 'a', 0}, 0, {"a", "<null>"}}, // three announced, two there
        {{1}, 0, {}},                          // no length byte
        {{1, 2, 'a'}, 0, {}},                  // one byte short
        {{2, 2, 'a', 'b', 1, 'c', 'z'}, 1, {"ab", "c"}},
        {Repeat(255, 'k', {1, 255}), 1, {std::string(255, 'k')}},
    };
    TCKeywordTableDataParser parser;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.block.size());
        EXPECT_EQ(ParseExact(parser, c.block), c.result);
        std::vector<std::string> keywords;
        for (const auto& k : parser.KeywordList())
            keywords.push_back(Owned(k.keyword, k.length));
        EXPECT_EQ(keywords, c.keywords);
    }
}

TEST(TableDataBlocks, CommonTable)
{
    // Entries as "code:first/second".
    const struct { Bytes block; int result; std::vector<std::string> entries; } cases[] = {
        {{}, 0, {}},
        {{0}, 1, {}},
        {{1, 7, 1, 'a', 2, 'b', 'c'}, 1, {"7:a/bc"}},
        {{1, 7, 0, 0}, 1, {"7:<null>/<null>"}},
        {{1, 7}, 0, {}},                                       // no first length
        {{1, 7, 2, 'a'}, 0, {}},                               // first text one short
        {{1, 7, 1, 'a'}, 0, {}},                               // no second length
        {{2, 7, 1, 'a', 1, 'b', 8, 0, 2, 'x'}, 0, {"7:a/b"}},  // second text one short
    };
    TCCommonTableDataParser parser;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.block.size());
        EXPECT_EQ(ParseExact(parser, c.block), c.result);
        std::vector<std::string> entries;
        for (const auto& e : parser.CommonList())
            entries.push_back(std::to_string(e.code) + ":" + Owned(e.firstText, e.firstLength) + "/" +
                              Owned(e.secondText, e.secondLength));
        EXPECT_EQ(entries, c.entries);
    }
    Bytes largest = Repeat(255, 'f', {1, 9, 255});
    largest.push_back(255);
    largest = Repeat(255, 's', largest);
    ASSERT_EQ(ParseExact(parser, largest), 1);
    EXPECT_EQ(Owned(parser.CommonList().front().secondText, 255), std::string(255, 's'));
}

namespace {

// A frequency information block: header bytes 0xA1 and 0xA3, the data length
// counted to the end of what is given unless forced.
Bytes FreqBlock(unsigned count, const Bytes& elements, int dataLength = -1)
{
    zumtest::ByteWriter w;
    w.U8(0xA1).U16(dataLength >= 0 ? static_cast<unsigned>(dataLength) : static_cast<unsigned>(elements.size() + 2));
    w.U8(0xA3).U16(0xF000 | count).Raw(elements);
    return w.Data();
}

// An element with a full byte list, two schedules (no detail, two details),
// one transmitter and three private bytes.
Bytes FullElement()
{
    zumtest::ByteWriter w;
    w.U16(0x1112).U16(0x2122).U8(0x33).U16(0x4445).U8(0x5F);
    for (unsigned i = 0; i < 15; ++i)
        w.U8(0x60 + i);
    w.U8(2);
    w.U16(0x7172).U8(0x73).U16(0);
    w.U16(0x8182).U8(0x83).U16(2);
    w.U24(0x910203).U24(0x940506).Raw({1, 2, 3, 4, 5, 6, 7});
    w.U24(0xFFFFFF).U24(0).Raw({8, 9, 10, 11, 12, 13, 14});
    w.U16(1).U24(0xA00001).U24(0xA00002).U8(0xA3).U8(0xA4);
    w.U8(3).Raw({0xB1, 0xB2, 0xB3});
    return w.Data();
}

// The smallest element: an empty byte list and no records.
const Bytes kSmallElement = {1, 2, 3, 4, 5, 6, 7, 0x90, 0, 0, 0, 0};

} // namespace

TEST(TableDataBlocks, FrequencyInformationHeaderAndTrailingBytes)
{
    // The block, Parse's answer, elements kept, trailing bytes.
    const struct { Bytes block; int result; size_t elements; Bytes trailing; } cases[] = {
        {{0xA1, 0, 2, 0xA3, 0xF0}, 0, 0, {}},
        {FreqBlock(0, {}), 1, 0, {}},
        {FreqBlock(0, {1, 2}, 5), 0, 0, {}},           // 8 bytes of 9
        {FreqBlock(0, {1, 2, 3}, 5), 1, 0, {1, 2, 3}},
        {FreqBlock(0, {9}, 2), 1, 0, {}},               // bytes behind the data are not read
        {FreqBlock(0, {}, 1), 0, 0, {}},                // a data length without room for the count
        {FreqBlock(0, {}, 0), 0, 0, {}},
        {FreqBlock(1, kSmallElement), 1, 1, {}},
        {FreqBlock(1, zumtest::Concat({kSmallElement, {0xEE, 0xEF}})), 1, 1, {0xEE, 0xEF}},
        {FreqBlock(1, kSmallElement, 13), 0, 1, {}},    // the element runs past the data
        {FreqBlock(2, kSmallElement), 0, 1, {}},        // the second element is missing
        {FreqBlock(0xFFF, kSmallElement), 0, 1, {}},
        {FreqBlock(2, zumtest::Concat({kSmallElement, FullElement()})), 1, 2, {}},
    };
    TCFrequencyInformationParser parser;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.block.size());
        EXPECT_EQ(ParseExact(parser, c.block), c.result);
        EXPECT_EQ(parser.FreqInfoList().size(), c.elements);
        EXPECT_EQ(parser.TrailingLength(), c.trailing.size());
        EXPECT_EQ(parser.TrailingBytes() == nullptr, c.trailing.empty());
        if (parser.TrailingBytes() != nullptr) {
            EXPECT_EQ(Bytes(parser.TrailingBytes(), parser.TrailingBytes() + parser.TrailingLength()), c.trailing);
        }
    }
    EXPECT_EQ(parser.HeaderByte0(), 0xA1);
    EXPECT_EQ(parser.HeaderByte3(), 0xA3);
}

TEST(TableDataBlocks, FrequencyInformationElementFields)
{
    const Bytes block = FreqBlock(1, FullElement());
    TCFrequencyInformationParser parser;
    ASSERT_EQ(ParseExact(parser, block), 1);
    EXPECT_EQ(parser.DataLength(), block.size() - 4);
    const auto& e = parser.FreqInfoList().front();
    EXPECT_EQ(std::make_tuple(e.firstWord, e.secondWord, e.thirdField, e.fourthField, e.fifthField, e.bytes.size(),
                              e.bytes.front(), e.bytes.back()),
              std::make_tuple(0x1112, 0x2122, 0x33, 0x4445, 0x5, 15u, 0x60, 0x6E));
    ASSERT_EQ(e.schedules.size(), 2u);
    const auto& empty = e.schedules.front();
    const auto& full = e.schedules.back();
    EXPECT_EQ(std::make_tuple(empty.firstWord, empty.secondField, empty.detailCount, empty.details.size()),
              std::make_tuple(0x7172, 0x73, 0, 0u));
    EXPECT_EQ(std::make_tuple(full.firstWord, full.secondField, full.detailCount, full.details.size()),
              std::make_tuple(0x8182, 0x83, 2, 2u));
    const auto& d = full.details.front();
    EXPECT_EQ(std::make_tuple(d.first, d.second, d.field[0], d.field[6]), std::make_tuple(0x910203u, 0x940506u, 1, 7));
    EXPECT_EQ(std::make_tuple(full.details.back().first, full.details.back().field[6]), std::make_tuple(0xFFFFFFu, 14));
    ASSERT_EQ(std::make_tuple(e.scheduleCount, e.transmitterCount, e.transmitters.size()), std::make_tuple(2, 1, 1u));
    const auto& t = e.transmitters.front();
    EXPECT_EQ(std::make_tuple(t.first, t.second, t.third, t.fourth), std::make_tuple(0xA00001u, 0xA00002u, 0xA3, 0xA4));
    EXPECT_EQ(Owned(e.privateBytes, e.privateLength), "\xB1\xB2\xB3");

    // Every block one or more bytes short of the element fails and keeps no element.
    for (size_t size = 6; size < block.size(); ++size) {
        SCOPED_TRACE(size);
        EXPECT_EQ(ParseExact(parser, Bytes(block.begin(), block.begin() + static_cast<long>(size))), 0);
        EXPECT_TRUE(parser.FreqInfoList().empty());
    }
}
