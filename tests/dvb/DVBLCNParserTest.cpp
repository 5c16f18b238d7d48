#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <tuple>
#include <vector>

#include "dvb/DVBLCNParser.h"
#include "support/SectionBuilder.h"

using zumtest::Bytes;
using zumtest::SectionBuilder;
using zumtest::SectionHeader;

namespace {

struct Record {
    unsigned first, second, third;
    unsigned numberField; // all 16 bits as sent
    unsigned flagsByte;
    unsigned extra;
};

// The section in a heap block of its exact size, so that a read past it shows.
std::unique_ptr<unsigned char[]> Exact(const Bytes& b)
{
    std::unique_ptr<unsigned char[]> out(new unsigned char[b.size()]);
    std::memcpy(out.get(), b.data(), b.size());
    return out;
}

Bytes Lcn(unsigned version, unsigned section, unsigned last, const std::vector<Record>& records,
          unsigned h1 = 1, unsigned h2 = 2, unsigned h3 = 3, const Bytes& tail = {})
{
    SectionHeader h;
    h.tableId = 0x85;
    h.extension = 0x0101;
    h.version = version;
    h.sectionNumber = section;
    h.lastSectionNumber = last;
    SectionBuilder b(h);
    b.U16(h1).U16(h2).U16(h3).U16(0xFFFF);
    for (const Record& r : records)
        b.U16(r.first).U16(r.second).U16(r.third).U16(r.numberField).U8(r.flagsByte).U8(r.extra);
    b.Raw(tail);
    return b.Build();
}

using Row = std::tuple<int, int, int, int, unsigned, unsigned, unsigned, unsigned>;

std::vector<Row> Rows(const TCDVBLCNParser& p)
{
    std::vector<Row> rows;
    for (const auto& item : p.GetLCNInfo()) {
        const TCCacheLCNServiceKey& k = item.first;
        const TTLCNInfo& v = item.second;
        rows.emplace_back(k.m_first, k.m_second, k.m_third, k.m_fourth, v.m_logicalChannelNumber, v.m_visible,
                          v.m_extra, v.m_reserved);
    }
    return rows;
}

bool Feed(TCDVBLCNParser& p, const Bytes& section)
{
    const auto exact = Exact(section);
    return p.Parse(0x20, exact.get());
}

} // namespace

TEST(DVBLCNParser, RecordsOfOneSection)
{
    TCDVBLCNParser p{ZUMHandle()};
    p.Initialize();
    // Defaults stand before the first section.
    EXPECT_EQ(p.HeaderValue1(), 100);
    EXPECT_EQ(p.HeaderValue2(), 300);
    EXPECT_EQ(p.HeaderValue3(), 500);
    EXPECT_FALSE(p.IsRecv());

    const std::vector<Record> records = {
        {0x0001, 0x0002, 0x0300, 0xF123, 0x80, 0x00},  // reserved top bits of the number
        {0x0001, 0x0002, 0x0003, 0x0FFF, 0x7F, 0xFF},  // largest number, hidden despite low bits
        {0x0000, 0x0000, 0x0000, 0x0000, 0xFF, 0x01},  // number 0, visible
        {0x0001, 0x0002, 0x0003, 0x0005, 0x80, 0x02},  // same key again: stays behind
        {0xFFFF, 0xFFFF, 0xFFFF, 0xFFFF, 0x00, 0x7E},
    };
    EXPECT_TRUE(Feed(p, Lcn(4, 0, 0, records, 0x1234, 0xFFFF, 0)));
    EXPECT_TRUE(p.IsRecv());
    EXPECT_EQ(p.HeaderValue1(), 0x1234);
    EXPECT_EQ(p.HeaderValue2(), 0xFFFF);
    EXPECT_EQ(p.HeaderValue3(), 0);
    EXPECT_EQ(Rows(p), (std::vector<Row>{
                           Row{0, 0, 0, -1, 0, 1, 1, 0xFFFF},
                           Row{1, 2, 3, -1, 0xFFF, 0, 0xFF, 0xFFFF},
                           Row{1, 2, 3, -1, 5, 1, 2, 0xFFFF},
                           Row{1, 2, 0x300, -1, 0x123, 1, 0, 0xFFFF},
                           Row{0xFFFF, 0xFFFF, 0xFFFF, -1, 0xFFF, 0, 0x7E, 0xFFFF},
                       }));

    // The same section again is no news and changes nothing.
    EXPECT_FALSE(Feed(p, Lcn(4, 0, 0, records, 0x1234, 0xFFFF, 0)));
    EXPECT_EQ(p.GetLCNInfo().size(), 5u);

    // Initialize forgets the list, not the header values.
    p.Initialize();
    EXPECT_FALSE(p.IsRecv());
    EXPECT_TRUE(p.GetLCNInfo().empty());
    EXPECT_EQ(p.HeaderValue1(), 0x1234);
}

TEST(DVBLCNParser, BodyLengthsAroundTheHeaderAndRecords)
{
    struct Case {
        const char* name;
        int bodyBytes; // between the section header and the CRC_32
        size_t records;
        unsigned h1, h2, h3; // after the parse
    } cases[] = {
        {"nothing but the CRC_32: the first two values come from it", 0, 0, 0xAAAA, 0xAAAA, 500},
        {"header cut after two values", 4, 0, 0x0102, 0x0304, 0xAAAA},
        {"header cut by one byte", 7, 0, 0x0102, 0x0304, 0x0506},
        {"header alone", 8, 0, 0x0102, 0x0304, 0x0506},
        {"a record short by one byte", 17, 0, 0x0102, 0x0304, 0x0506},
        {"one record", 18, 1, 0x0102, 0x0304, 0x0506},
        {"one record and nine bytes", 27, 1, 0x0102, 0x0304, 0x0506},
        {"two records", 28, 2, 0x0102, 0x0304, 0x0506},
    };
    const unsigned char body[] = {1, 2, 3, 4, 5, 6, 7, 8, 0, 1, 0, 2, 0, 3, 0, 4, 0x80, 9,
                                  0, 1, 0, 2, 0, 3, 0, 4, 0x80, 9};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        SectionHeader h;
        h.tableId = 0x85;
        SectionBuilder b(h);
        for (int i = 0; i < c.bodyBytes; ++i)
            b.U8(body[i]);
        Bytes section = b.Build();
        // A fixed CRC_32 makes the values read out of it predictable.
        std::fill(section.end() - 4, section.end(), 0xAA);
        TCDVBLCNParser p{ZUMHandle()};
        EXPECT_TRUE(Feed(p, section)) << "a short body still counts as received";
        EXPECT_EQ(p.GetLCNInfo().size(), c.records);
        EXPECT_EQ(p.HeaderValue1(), c.h1);
        EXPECT_EQ(p.HeaderValue2(), c.h2);
        EXPECT_EQ(p.HeaderValue3(), c.h3);
    }
}

TEST(DVBLCNParser, SectionsReplaceAndVersionsRestart)
{
    const Record a{1, 1, 1, 10, 0x80, 0}, b{2, 2, 2, 20, 0x80, 0}, c{3, 3, 3, 30, 0x00, 0}, d{4, 4, 4, 40, 0x80, 0};
    struct Step {
        const char* name;
        unsigned version, section, last;
        std::vector<Record> records;
        bool result;
        std::vector<int> firstKeys; // m_first of the records held afterwards
        bool complete;
    } steps[] = {
        {"second section first", 1, 1, 1, {b}, false, {2}, false},
        {"first section completes, and alone stands", 1, 0, 1, {a, c}, true, {1, 3}, true},
        {"a repeat changes nothing", 1, 0, 1, {a, c}, false, {1, 3}, true},
        {"new version, section 1 of 2", 2, 1, 2, {d}, false, {4}, false},
        {"new version, section 0", 2, 0, 2, {c}, false, {3}, false},
        {"new version, section 2 completes", 2, 2, 2, {a, b}, true, {1, 2}, true},
        {"section number above the last is ignored", 2, 3, 2, {d}, false, {1, 2}, true},
        {"same version, new CRC_32: a change", 2, 0, 2, {b}, false, {2}, false},
    };
    TCDVBLCNParser p{ZUMHandle()};
    p.Initialize();
    for (const Step& s : steps) {
        SCOPED_TRACE(s.name);
        EXPECT_EQ(Feed(p, Lcn(s.version, s.section, s.last, s.records)), s.result);
        std::vector<int> keys;
        for (const auto& item : p.GetLCNInfo())
            keys.push_back(item.first.m_first);
        EXPECT_EQ(keys, s.firstKeys);
        EXPECT_EQ(p.IsRecv(), s.complete);
    }
}

TEST(DVBLCNParser, TooShortSectionIsRefusedBeforeTheBody)
{
    // section_length 4 cannot hold the long header: nothing is read.
    const unsigned char section[] = {0x85, 0xB0, 0x04, 0x00, 0x01, 0xC1, 0x00};
    std::unique_ptr<unsigned char[]> exact(new unsigned char[sizeof section]);
    std::memcpy(exact.get(), section, sizeof section);
    TCDVBLCNParser p{ZUMHandle()};
    EXPECT_FALSE(p.Parse(0, exact.get()));
    EXPECT_EQ(p.HeaderValue1(), 100);
    EXPECT_FALSE(p.IsRecv());
}
