#include <gtest/gtest.h>

#include "core/BaseCheckSection.h"
#include "core/BaseSection.h"
#include "support/LogCapture.h"

namespace {

class Tracker : public TCBaseSection {
public:
    int deleted = 0;
    void DeleteAll() override { ++deleted; }
    int Check(int version, int section, int last, unsigned int crc)
    {
        return t_CheckVersion(version, section, last, crc);
    }
    bool Segment(int section, int last, int segmentLast) { return t_CheckSegment(section, last, segmentLast); }
    int Version() const { return m_version; }
    int LastSection() const { return m_lastSection; }
    unsigned int CrcOf(int s) const { return m_pSectionCrc ? m_pSectionCrc[s] : 0; }
};

std::string Flags(const Tracker& t, int count)
{
    std::string out;
    for (int s = 0; s < count; ++s)
        out += t.IsRecvSection(s) ? '1' : '0';
    return out;
}

} // namespace

// A sequence of sections through one tracker: each step's result, the
// completion state and how many times the owner had to drop its data.
TEST(BaseSection, CheckVersionSequences)
{
    struct Step {
        int version, section, last;
        unsigned int crc;
        int result;
        bool valid;
        int deleted;
    };
    struct Scenario {
        const char* name;
        std::vector<Step> steps;
    } scenarios[] = {
        {"single section table",
         {{1, 0, 0, 0xA, TABLE_FIRST, true, 0},
          {1, 0, 0, 0xA, TABLE_SAME, true, 0},
          {1, 0, 0, 0xB, TABLE_CHANGED, true, 1}}},
        {"out of order collection",
         {{3, 5, 10, 0x5, TABLE_FIRST, false, 0},
          {3, 1, 10, 0x1, TABLE_ADD, false, 0},
          {3, 1, 10, 0x1, TABLE_SAME, false, 0},
          {3, 0, 10, 0x0, TABLE_ADD, false, 0},
          {3, 2, 10, 0x2, TABLE_ADD, false, 0},
          {3, 3, 10, 0x3, TABLE_ADD, false, 0},
          {3, 4, 10, 0x4, TABLE_ADD, false, 0},
          {3, 6, 10, 0x6, TABLE_ADD, false, 0},
          {3, 7, 10, 0x7, TABLE_ADD, false, 0},
          {3, 8, 10, 0x8, TABLE_ADD, false, 0},
          {3, 9, 10, 0x9, TABLE_ADD, false, 0},
          {3, 10, 10, 0x10, TABLE_ADD, true, 0}}},
        {"last section number changes at same version",
         {{2, 0, 1, 0xA, TABLE_FIRST, false, 0}, {2, 1, 2, 0xB, TABLE_CHANGED, false, 1}}},
        {"older version is a change too",
         {{5, 0, 0, 0xA, TABLE_FIRST, true, 0}, {4, 0, 0, 0xA, TABLE_CHANGED, true, 1}}},
        {"new crc on a section not yet received is no change",
         {{1, 0, 1, 0xA, TABLE_FIRST, false, 0}, {1, 1, 1, 0xB, TABLE_ADD, true, 0}}},
        {"ignored section leaves an empty tracker empty",
         {{1, 2, 1, 0xA, TABLE_IGNORE, false, 0}, {1, 0, 1, 0xA, TABLE_FIRST, false, 0}}},
        {"ignored section leaves a full tracker full",
         {{1, 0, 0, 0xA, TABLE_FIRST, true, 0}, {1, 1, 0, 0xA, TABLE_IGNORE, true, 0}}},
    };
    for (const Scenario& sc : scenarios) {
        SCOPED_TRACE(sc.name);
        Tracker t;
        for (size_t i = 0; i < sc.steps.size(); ++i) {
            SCOPED_TRACE(i);
            const Step& st = sc.steps[i];
            EXPECT_EQ(t.Check(st.version, st.section, st.last, st.crc), st.result);
            EXPECT_EQ(t.IsValid(), st.valid);
            EXPECT_EQ(t.deleted, st.deleted);
        }
    }
}

TEST(BaseSection, ChangeResetsTrackerToTheNewSection)
{
    Tracker t;
    t.Check(1, 0, 2, 0xA);
    t.Check(1, 1, 2, 0xB);
    EXPECT_EQ(t.Check(1, 1, 2, 0xC), TABLE_CHANGED);
    EXPECT_EQ(Flags(t, 3), "010");
    EXPECT_EQ(t.CrcOf(0), 0xFFFFFFFFu);
    EXPECT_EQ(t.CrcOf(1), 0xCu);
    EXPECT_EQ(t.Version(), 1);
}

TEST(BaseSection, IgnoreLogsAndInvalidLogs)
{
    zumtest::LogCapture log;
    Tracker t;
    EXPECT_FALSE(t.IsValid());
    EXPECT_EQ(t.Check(0, 3, 2, 0), TABLE_IGNORE);
    EXPECT_EQ(log.Lines(3), (std::vector<std::string>{"TCBaseSection::IsValid, m_pMultiSectionFlag is NULL",
                                                      "TABLE_IGNORE :: sectionNum > lastSectionNum "}));
    EXPECT_EQ(t.Version(), -1);
}

TEST(BaseSection, RemoveSectionMakesItNewAgain)
{
    Tracker t;
    EXPECT_FALSE(t.RemoveSection(0));
    t.Check(1, 0, 1, 0xA);
    t.Check(1, 1, 1, 0xB);
    EXPECT_TRUE(t.RemoveSection(1));
    EXPECT_FALSE(t.RemoveSection(2));
    EXPECT_FALSE(t.IsValid());
    EXPECT_EQ(t.Check(1, 1, 1, 0xB), TABLE_ADD);
    EXPECT_TRUE(t.IsValid());
    EXPECT_EQ(t.deleted, 0);
}

TEST(BaseSection, InitSectionEmptiesWithoutDeleteAll)
{
    Tracker t;
    t.Check(4, 0, 0, 1);
    t.InitSection();
    EXPECT_EQ(t.Version(), -1);
    EXPECT_EQ(t.LastSection(), 0);
    EXPECT_FALSE(t.IsRecvSection(0));
    EXPECT_EQ(t.deleted, 0);
    EXPECT_EQ(t.Check(4, 0, 0, 1), TABLE_FIRST);
}

TEST(BaseSection, CheckSegmentMarksSectionsBehindTheSegmentEnd)
{
    struct Case {
        int section, last, segmentLast;
        bool result;
        std::string flags; // sections 16..31 after the call
    } cases[] = {
        {17, 40, 18, true, "0101111100000000"}, {17, 40, 17, true, "0111111100000000"},
        {17, 40, 23, true, "0100000000000000"}, {17, 20, 18, true, "0101100000000000"},
        {17, 40, 15, false, "0100000000000000"}, {17, 40, 24, false, "0100000000000000"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.segmentLast);
        Tracker t;
        t.Check(1, c.section, c.last, 0xAA);
        zumtest::LogCapture log;
        EXPECT_EQ(t.Segment(c.section, c.last, c.segmentLast), c.result);
        std::string flags;
        for (int s = 16; s < 32; ++s)
            flags += t.IsRecvSection(s) ? '1' : '0';
        // The section itself was marked by t_CheckVersion.
        EXPECT_EQ(flags, c.flags);
        EXPECT_EQ(t.CrcOf(19), 0xFFFFFFFFu);
        EXPECT_EQ(log.Count("TCBaseSection::t_CheckSegment=> Invalid Segment Last Section Number. return false"),
                  c.result ? 0 : 1);
    }
}

TEST(BaseSection, IsRecvSegment)
{
    Tracker empty;
    EXPECT_FALSE(empty.IsRecvSegment(0, 0));

    Tracker t;
    t.Check(1, 0, 3, 0);
    EXPECT_FALSE(t.IsRecvSegment(0, 0));
    t.Check(1, 1, 3, 0);
    t.Check(1, 2, 3, 0);
    EXPECT_FALSE(t.IsRecvSegment(0, 0));
    t.Check(1, 3, 3, 0);
    EXPECT_TRUE(t.IsRecvSegment(0, 0));
    // Past the table: nothing to look at.
    EXPECT_TRUE(t.IsRecvSegment(5, 4));

    Tracker big;
    big.Check(1, 8, 20, 0);
    for (int s = 9; s < 16; ++s)
        big.Check(1, s, 20, 0);
    EXPECT_TRUE(big.IsRecvSegment(1, 1));
    EXPECT_FALSE(big.IsRecvSegment(0, 1));
    EXPECT_FALSE(big.IsRecvSegment(2, 2));
}

TEST(BaseCheckSection, RecordsCompareByTheirFields)
{
    // Body behind the short header: id, length bytes, then table fields, CRC_32 last.
    const unsigned char a[] = {0xC4, 0xF0, 0x20, 0, 0, 0x01, 0x02, 0x13, 0x01, 0x22, 0, 0, 0, 0x7E, 0xDE, 0xAD, 0xBE, 0xEF};
    unsigned char b[sizeof a];
    std::copy(a, a + sizeof a, b);

    TCBaseCheckSection base1, base2;
    EXPECT_TRUE(base1.SetData(a, sizeof a));
    EXPECT_TRUE(base2.SetData(b, sizeof b));
    EXPECT_TRUE(base1.FlagEqual(&base2));
    b[sizeof b - 1] = 0xEE;
    base2.SetData(b, sizeof b);
    EXPECT_FALSE(base1.FlagEqual(&base2));
    std::copy(a, a + sizeof a, b);

    struct Case {
        int byteChanged;
        bool nitEqual, nttEqual, svctEqual;
    } cases[] = {
        {5, false, false, false}, // subtype / first byte
        {7, false, false, true},  // NIT low nibble and NTT word; SVCT subtype 1 reads bytes 8 and 9
        {9, true, false, false},  // NTT byte and SVCT subtype-1 fields
        {13, true, true, true},   // only SVCT subtype 0 looks here
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.byteChanged);
        unsigned char x[sizeof a];
        std::copy(a, a + sizeof a, x);
        x[c.byteChanged] ^= 0x01;
        TCNITCheckSection n1, n2;
        n1.SetData(a, sizeof a);
        n2.SetData(x, sizeof x);
        EXPECT_EQ(n1.FlagEqual(&n2), c.nitEqual);
        TCNTTCheckSection t1, t2;
        t1.SetData(a, sizeof a);
        t2.SetData(x, sizeof x);
        EXPECT_EQ(t1.FlagEqual(&t2), c.nttEqual);
        TCSVCTCheckSection s1, s2;
        s1.SetData(a, sizeof a);
        s2.SetData(x, sizeof x);
        EXPECT_EQ(s1.FlagEqual(&s2), c.svctEqual);
    }

    // Subtype 0 looks at byte 13 only.
    unsigned char z[sizeof a], z2[sizeof a];
    std::copy(a, a + sizeof a, z);
    z[5] = 0x10;
    std::copy(z, z + sizeof z, z2);
    z2[13] ^= 0xFF;
    TCSVCTCheckSection i1, i2;
    i1.SetData(z, sizeof z);
    i2.SetData(z2, sizeof z2);
    EXPECT_FALSE(i1.FlagEqual(&i2));
    z2[13] = z[13];
    z2[9] ^= 0xFF;
    i2.SetData(z2, sizeof z2);
    EXPECT_TRUE(i1.FlagEqual(&i2));
}

TEST(BaseCheckSection, BadArgumentsAssertAndFail)
{
    zumtest::LogCapture log;
    TCBaseCheckSection rec;
    const unsigned char one[] = {0x42};
    EXPECT_FALSE(rec.SetData(nullptr, 4));
    EXPECT_FALSE(rec.SetData(one, 0));
    EXPECT_FALSE(rec.FlagEqual(nullptr));
    EXPECT_TRUE(log.Contains("ASSERT!, Func:SetData, Line:"));
    EXPECT_TRUE(log.Contains("Failed: pData && len > 0"));
    EXPECT_TRUE(log.Contains("Func:FlagEqual"));
    // A one-byte body is read no further than its end.
    EXPECT_TRUE(rec.SetData(one, 1));
    TCBaseCheckSection same;
    same.SetData(one, 1);
    EXPECT_TRUE(rec.FlagEqual(&same));
}
