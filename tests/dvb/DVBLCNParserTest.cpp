#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "dvb/DVBLCNParser.h"
#include "dvb/LCNDescParseHelper.h"
#include "dvb/ServiceKey.h"
#include "support/SectionBuilder.h"

using zumtest::Bytes;

namespace {

// Records of 10 bytes: three key fields, the number field, flags, extra.
Bytes Lcn(unsigned version, unsigned section, unsigned last, const Bytes& records, unsigned h1 = 1, unsigned h2 = 2,
          unsigned h3 = 3)
{
    zumtest::SectionBuilder b({0x85, true, false, 3, 0x0101, version, true, section, last});
    b.U16(h1).U16(h2).U16(h3).U16(0xFFFF).Raw(records);
    return b.Build();
}

// Parses from a heap block of the section's exact size, so that a read past it shows.
bool Feed(TCDVBLCNParser& p, const Bytes& section)
{
    std::unique_ptr<unsigned char[]> exact(new unsigned char[section.size()]);
    std::memcpy(exact.get(), section.data(), section.size());
    return p.Parse(0x20, exact.get());
}

std::tuple<unsigned, unsigned, unsigned> Headers(const TCDVBLCNParser& p)
{
    return std::make_tuple(p.HeaderValue1(), p.HeaderValue2(), p.HeaderValue3());
}

using Row = std::tuple<int, int, int, int, unsigned, unsigned, unsigned, unsigned>;

std::vector<Row> Rows(const TCDVBLCNParser& p)
{
    std::vector<Row> rows;
    for (const auto& i : p.GetLCNInfo())
        rows.emplace_back(i.first.m_first, i.first.m_second, i.first.m_third, i.first.m_fourth,
                          i.second.m_logicalChannelNumber, i.second.m_visible, i.second.m_extra, i.second.m_reserved);
    return rows;
}

} // namespace

TEST(DVBLCNParser, RecordsOfOneSection)
{
    TCDVBLCNParser p{ZUMHandle()};
    EXPECT_EQ(Headers(p), std::make_tuple(100u, 300u, 500u));
    const Bytes section = Lcn(4, 0, 0,
                              {0, 1, 0, 2, 3, 0, 0xF1, 0x23, 0x80, 0x00,  // reserved top bits of the number
                               0, 1, 0, 2, 0, 3, 0x0F, 0xFF, 0x7F, 0xFF,  // largest number, hidden
                               0, 0, 0, 0, 0, 0, 0x00, 0x00, 0xFF, 0x01,  // number 0, visible
                               0, 1, 0, 2, 0, 3, 0x00, 0x05, 0x80, 0x02,  // same key again: stays behind
                               0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00, 0x7E},
                              0x1234, 0xFFFF, 0);
    EXPECT_TRUE(Feed(p, section));
    EXPECT_TRUE(p.IsRecv());
    EXPECT_EQ(Headers(p), std::make_tuple(0x1234u, 0xFFFFu, 0u));
    EXPECT_EQ(Rows(p), (std::vector<Row>{Row{0, 0, 0, -1, 0, 1, 1, 0xFFFF}, Row{1, 2, 3, -1, 0xFFF, 0, 0xFF, 0xFFFF},
                                         Row{1, 2, 3, -1, 5, 1, 2, 0xFFFF}, Row{1, 2, 0x300, -1, 0x123, 1, 0, 0xFFFF},
                                         Row{0xFFFF, 0xFFFF, 0xFFFF, -1, 0xFFF, 0, 0x7E, 0xFFFF}}));
    EXPECT_FALSE(Feed(p, section)) << "a repeat is no news";
    EXPECT_EQ(p.GetLCNInfo().size(), 5u);
    p.Initialize();
    EXPECT_FALSE(p.IsRecv());
    EXPECT_TRUE(p.GetLCNInfo().empty());
    EXPECT_EQ(p.HeaderValue1(), 0x1234) << "Initialize forgets the list, not the header values";
}

TEST(DVBLCNParser, BodyLengthsAroundTheHeaderAndRecords)
{
    // Bytes between the section header and the CRC_32; with none, the first two values come from the CRC_32.
    const struct { int bodyBytes; size_t records; unsigned h1, h2, h3; } cases[] = {
        {0, 0, 0xAAAA, 0xAAAA, 500},     {4, 0, 0x0102, 0x0304, 0xAAAA},  {7, 0, 0x0102, 0x0304, 0x0506},
        {8, 0, 0x0102, 0x0304, 0x0506},  {17, 0, 0x0102, 0x0304, 0x0506}, {18, 1, 0x0102, 0x0304, 0x0506},
    };
    const unsigned char body[] = {1, 2, 3, 4, 5, 6, 7, 8, 0, 1, 0, 2, 0, 3, 0, 4, 0x80, 9};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.bodyBytes);
        zumtest::SectionBuilder b({0x85});
        b.Raw(Bytes(body, body + c.bodyBytes));
        Bytes section = b.Build();
        std::fill(section.end() - 4, section.end(), 0xAA); // so that values read out of it are known
        TCDVBLCNParser p{ZUMHandle()};
        EXPECT_TRUE(Feed(p, section)) << "a short body still counts as received";
        EXPECT_EQ(p.GetLCNInfo().size(), c.records);
        EXPECT_EQ(Headers(p), std::make_tuple(c.h1, c.h2, c.h3));
    }
}

TEST(DVBLCNParser, SectionsReplaceAndVersionsRestart)
{
    auto rec = [](std::initializer_list<uint8_t> keys) {
        Bytes out;
        for (uint8_t k : keys)
            out = zumtest::Concat({out, {0, k, 0, k, 0, k, 0, static_cast<uint8_t>(k * 10), 0x80, 0}});
        return out;
    };
    // firstKeys: the first key field of the records held afterwards.
    const struct { const char* name; unsigned version, section, last; Bytes records; bool result;
                   std::vector<int> firstKeys; bool complete; } steps[] = {
        {"second section first", 1, 1, 1, rec({2}), false, {2}, false},
        {"first section completes, and alone stands", 1, 0, 1, rec({1, 3}), true, {1, 3}, true},
        {"a repeat changes nothing", 1, 0, 1, rec({1, 3}), false, {1, 3}, true},
        {"new version, section 1 of 2", 2, 1, 2, rec({4}), false, {4}, false},
        {"new version, section 0", 2, 0, 2, rec({3}), false, {3}, false},
        {"new version, section 2 completes", 2, 2, 2, rec({1, 2}), true, {1, 2}, true},
        {"section number above the last is ignored", 2, 3, 2, rec({4}), false, {1, 2}, true},
        {"same version, new CRC_32: a change", 2, 0, 2, rec({2}), false, {2}, false},
    };
    TCDVBLCNParser p{ZUMHandle()};
    for (const auto& s : steps) {
        SCOPED_TRACE(s.name);
        EXPECT_EQ(Feed(p, Lcn(s.version, s.section, s.last, s.records)), s.result);
        std::vector<int> keys;
        for (const auto& item : p.GetLCNInfo())
            keys.push_back(item.first.m_first);
        EXPECT_EQ(keys, s.firstKeys);
        EXPECT_EQ(p.IsRecv(), s.complete);
    }
    // section_length 4 cannot hold the long header: nothing is read.
    TCDVBLCNParser fresh{ZUMHandle()};
    EXPECT_FALSE(Feed(fresh, {0x85, 0xB0, 0x04, 0x00, 0x01, 0xC1, 0x00}));
    EXPECT_EQ(fresh.HeaderValue1(), 100);
}

// Each layout at the edges of its bits: flags set and clear, number 0, the
// largest number, and the bits that are not its own set.
TEST(LCNDescParseHelper, EntryLayoutsAtTheirBoundaries)
{
    enum { EBook, DBook, Nordig, M7, Philips };
    const TCLCNDescParseHelper_EBook ebook;
    const TCLCNDescParseHelper_DBook dbook;
    const TCLCNDescParseHelper_Nordig nordig;
    const TCLCNDescParseHelper_M7 m7;
    const TCLCNDescParseHelper_Philips philips;
    const ILCNDescParseHelper* helpers[] = {&ebook, &dbook, &nordig, &m7, &philips};
    const struct { int layout; unsigned char b0, b1, b2, b3; bool visible; unsigned short number; } cases[] = {
        {EBook, 0, 0, 0x80, 0x00, true, 0},        {EBook, 0xFF, 0xFF, 0x00, 0x00, false, 0},
        {EBook, 1, 0, 0x83, 0xFF, true, 0x3FF},    {EBook, 0, 1, 0x7C, 0x01, false, 1},
        {EBook, 0, 0, 0xFF, 0xFF, true, 0x3FF},    {DBook, 0, 0, 0x00, 0x00, true, 0},
        {DBook, 0, 0, 0x7F, 0xFF, true, 0x3FF},    {DBook, 0, 0, 0xFC, 0x05, true, 5},
        {Nordig, 0, 0, 0x80, 0x00, true, 0},       {Nordig, 0, 0, 0x00, 0x00, false, 0},
        {Nordig, 0, 0, 0xBF, 0xFF, true, 0x3FFF},  {Nordig, 0, 0, 0x40, 0x00, false, 0},
        {Nordig, 0, 0, 0x7F, 0xFF, false, 0x3FFF}, {M7, 0xFF, 0xFF, 0x40, 0x07, false, 7},
        {M7, 1, 0, 0x00, 0x07, true, 7},           {M7, 0, 1, 0x80, 0x00, true, 0},
        {M7, 0, 0, 0xC0, 0x00, false, 0},          {M7, 0, 0, 0xBF, 0xFF, true, 0x3FFF},
        {Philips, 0, 0, 0x00, 0x00, true, 0},      {Philips, 0xFF, 0xFF, 0xFF, 0xFF, true, 0xFFFF},
        {Philips, 1, 0, 0x80, 0x01, true, 0x8001}, {Philips, 0, 1, 0x7F, 0x00, true, 0x7F00},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::to_string(c.layout) + " " + std::to_string(c.b2) + " " + std::to_string(c.b3));
        // Exactly four bytes: a read past the entry shows under the sanitizers.
        std::unique_ptr<unsigned char[]> entry(new unsigned char[4]{c.b0, c.b1, c.b2, c.b3});
        const ILCNDescParseHelper& helper = *helpers[c.layout];
        EXPECT_EQ(helper.GetServiceId(entry.get()), (c.b0 << 8) | c.b1);
        EXPECT_EQ(helper.GetVisibleFlag(entry.get()), c.visible);
        EXPECT_EQ(helper.GetChannelNumber(entry.get()), c.number);
    }
}

TEST(ServiceKeys, OrderEqualityAndCopy)
{
    const TCServiceKey none;
    EXPECT_EQ(none, TCServiceKey(0xFFFF, 0xFFFF, 0xFFFF));
    // Field order: original network id, transport stream id, service id.
    EXPECT_TRUE(TCServiceKey(1, 0xFFFF, 0xFFFF) < TCServiceKey(2, 0, 0));
    EXPECT_TRUE(TCServiceKey(1, 2, 0xFFFF) < TCServiceKey(1, 3, 0));
    EXPECT_TRUE(TCServiceKey(1, 2, 3) < TCServiceKey(1, 2, 4) && TCServiceKey(1, 2, 3) != TCServiceKey(1, 2, 4));
    EXPECT_FALSE(TCServiceKey(1, 2, 3) < TCServiceKey(1, 2, 3) || TCServiceKey(1, 2, 3) != TCServiceKey(1, 2, 3));
    TCServiceKey key(4, 5, 6);
    key.Set(nullptr);
    EXPECT_EQ(key, TCServiceKey(4, 5, 6));
    key.Set(&none);
    EXPECT_EQ(key, none);
    // The cache key sorts by its fourth field first, then by the others in order.
    EXPECT_TRUE(TCCacheLCNServiceKey(1, 2, 3, 0) < TCCacheLCNServiceKey(0, 0, 0, 1));
    EXPECT_FALSE(TCCacheLCNServiceKey(0, 0, 0, 1) < TCCacheLCNServiceKey(1, 2, 3, 0));
    EXPECT_TRUE(TCCacheLCNServiceKey(0, 5, 5, 0) < TCCacheLCNServiceKey(1, 0, 0, 0));
    EXPECT_TRUE(TCCacheLCNServiceKey(1, 1, 5, 0) < TCCacheLCNServiceKey(1, 2, 0, 0));
    EXPECT_TRUE(TCCacheLCNServiceKey(1, 2, 3, -1) < TCCacheLCNServiceKey(1, 2, 3, 0));
    EXPECT_FALSE(TCCacheLCNServiceKey(1, 2, 3, 4) < TCCacheLCNServiceKey(1, 2, 3, 4));
    EXPECT_TRUE(TCCacheLCNServiceKey() == TCCacheLCNServiceKey(-1, -1, -1, -1));
    EXPECT_TRUE(TCCacheLCNServiceKey(1, 2, 3, 4) != TCCacheLCNServiceKey(1, 2, 3, 5));
}
