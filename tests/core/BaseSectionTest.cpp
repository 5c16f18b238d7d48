#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

#include "core/BaseCheckSection.h"
#include "core/BaseSection.h"
#include "support/LogCapture.h"

namespace {

class Tracker : public TCBaseSection {
public:
    int deleted = 0;
    void DeleteAll() override { ++deleted; }
    int Check(int v, int s, int last, unsigned int crc) { return t_CheckVersion(v, s, last, crc); }
    bool Segment(int section, int last, int segmentLast) { return t_CheckSegment(section, last, segmentLast); }
    int Version() const { return m_version; }
    unsigned int CrcOf(int s) const { return m_pSectionCrc ? m_pSectionCrc[s] : 0; }
    std::string Flags(int from, int to) const
    {
        std::string out;
        for (int s = from; s < to; ++s)
            out += IsRecvSection(s) ? '1' : '0';
        return out;
    }
};

} // namespace

// A sequence of sections through one tracker: each step's result, the
// completion state and how many times the owner had to drop its data.
TEST(BaseSection, CheckVersionSequences)
{
    struct Step { int version, section, last; unsigned int crc; int result; bool valid; int deleted; };
    struct Scenario { const char* name; std::vector<Step> steps; } scenarios[] = {
        {"single section table", {{1, 0, 0, 0xA, TABLE_FIRST, true, 0}, {1, 0, 0, 0xA, TABLE_SAME, true, 0},
                                  {1, 0, 0, 0xB, TABLE_CHANGED, true, 1}}},
        {"out of order collection",
         {{3, 5, 10, 5, TABLE_FIRST, false, 0}, {3, 1, 10, 1, TABLE_ADD, false, 0}, {3, 1, 10, 1, TABLE_SAME, false, 0},
          {3, 0, 10, 0, TABLE_ADD, false, 0}, {3, 2, 10, 2, TABLE_ADD, false, 0}, {3, 3, 10, 3, TABLE_ADD, false, 0},
          {3, 4, 10, 4, TABLE_ADD, false, 0}, {3, 6, 10, 6, TABLE_ADD, false, 0}, {3, 7, 10, 7, TABLE_ADD, false, 0},
          {3, 8, 10, 8, TABLE_ADD, false, 0}, {3, 9, 10, 9, TABLE_ADD, false, 0}, {3, 10, 10, 10, TABLE_ADD, true, 0}}},
        {"last section number changes at same version",
         {{2, 0, 1, 0xA, TABLE_FIRST, false, 0}, {2, 1, 2, 0xB, TABLE_CHANGED, false, 1}}},
        {"older version is a change too",
         {{5, 0, 0, 0xA, TABLE_FIRST, true, 0}, {4, 0, 0, 0xA, TABLE_CHANGED, true, 1}}},
        {"new crc on a section not yet received is no change",
         {{1, 0, 1, 0xA, TABLE_FIRST, false, 0}, {1, 1, 1, 0xB, TABLE_ADD, true, 0}}},
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

TEST(BaseSection, ChangeRemoveAndReset)
{
    zumtest::LogCapture log;
    Tracker t;
    EXPECT_FALSE(t.IsValid());
    EXPECT_EQ(t.Check(0, 3, 2, 0), TABLE_IGNORE);
    EXPECT_EQ(log.Lines(3), (std::vector<std::string>{"TCBaseSection::IsValid, m_pMultiSectionFlag is NULL",
                                                      "TABLE_IGNORE :: sectionNum > lastSectionNum "}));
    EXPECT_EQ(t.Version(), -1);
    EXPECT_FALSE(t.RemoveSection(0));

    // An ignored section left the tracker empty; a change starts the table again from the section that showed it.
    EXPECT_EQ(t.Check(1, 0, 2, 0xA), TABLE_FIRST);
    t.Check(1, 1, 2, 0xB);
    EXPECT_EQ(t.Check(1, 1, 2, 0xC), TABLE_CHANGED);
    EXPECT_EQ(t.Flags(0, 3), "010");
    EXPECT_EQ(t.CrcOf(0), 0xFFFFFFFFu);
    EXPECT_EQ(t.CrcOf(1), 0xCu);

    // A removed section counts as new when it comes again.
    t.Check(1, 0, 2, 0xA);
    t.Check(1, 2, 2, 0xD);
    EXPECT_TRUE(t.IsValid());
    EXPECT_TRUE(t.RemoveSection(1));
    EXPECT_FALSE(t.RemoveSection(3));
    EXPECT_FALSE(t.IsValid());
    EXPECT_EQ(t.Check(1, 1, 2, 0xC), TABLE_ADD);
    EXPECT_TRUE(t.IsValid());
    EXPECT_EQ(t.deleted, 1);

    t.InitSection();
    EXPECT_EQ(t.Version(), -1);
    EXPECT_FALSE(t.IsRecvSection(0));
    EXPECT_EQ(t.deleted, 1);
    EXPECT_EQ(t.Check(1, 0, 0, 0xA), TABLE_FIRST);
}

TEST(BaseSection, SegmentsOfEightSections)
{
    // flags: sections 16..31 after the call
    struct Case { int section, last, segmentLast; bool result; std::string flags; } cases[] = {
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
        EXPECT_EQ(t.Flags(16, 32), c.flags); // the section itself was marked by t_CheckVersion
        EXPECT_EQ(t.CrcOf(19), 0xFFFFFFFFu);
        EXPECT_EQ(log.Count("TCBaseSection::t_CheckSegment=> Invalid Segment Last Section Number. return false"),
                  c.result ? 0 : 1);
    }

    Tracker t;
    EXPECT_FALSE(t.IsRecvSegment(0, 0));
    for (int s = 0; s < 3; ++s)
        t.Check(1, s, 3, 0);
    EXPECT_FALSE(t.IsRecvSegment(0, 0));
    t.Check(1, 3, 3, 0);
    EXPECT_TRUE(t.IsRecvSegment(0, 0));
    EXPECT_TRUE(t.IsRecvSegment(5, 4)); // past the table: nothing to look at
    Tracker big;
    for (int s = 8; s < 16; ++s)
        big.Check(1, s, 20, 0);
    EXPECT_TRUE(big.IsRecvSegment(1, 1));
    EXPECT_FALSE(big.IsRecvSegment(0, 1) || big.IsRecvSegment(2, 2));
    // Segment numbers far past the table are bounded by its last section (20, missing).
    EXPECT_FALSE(big.IsRecvSegment(INT_MAX, INT_MAX));
    EXPECT_TRUE(big.IsRecvSegment(1, INT_MIN));
}

// Each record compares the fields it takes from the body behind the short header.
TEST(BaseCheckSection, RecordsCompareByTheirFields)
{
    // id, length bytes, table fields, CRC_32 last; byte 5 holds the SVCT subtype.
    const std::vector<unsigned char> a = {0xC4, 0xF0, 0x20, 0, 0, 0x01, 0x02, 0x13, 0x01,
                                          0x22, 0,    0,    0, 0x7E, 0xDE, 0xAD, 0xBE, 0xEF};
    struct Case { unsigned char subtype; int byteChanged; bool baseEqual, nitEqual, nttEqual, svctEqual; } cases[] = {
        {0x01, 0, false, false, false, false},  {0x01, 2, false, false, false, false},
        {0x01, 17, false, false, false, false}, {0x01, 5, true, false, false, false},
        {0x01, 7, true, false, false, true},    {0x01, 9, true, true, false, false},
        {0x01, 13, true, true, true, true},     {0x01, 8, true, true, true, false},
        {0x02, 9, true, true, false, false},
        {0x10, 13, true, true, true, false},    {0x10, 9, true, true, false, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << int(c.subtype) << " " << c.byteChanged);
        std::vector<unsigned char> x = a, y = a;
        x[5] = y[5] = c.subtype;
        y[c.byteChanged] ^= 0x01;
        auto equal = [&](TCBaseCheckSection&& r1, TCBaseCheckSection&& r2) {
            return r1.SetData(x.data(), 18) && r2.SetData(y.data(), 18) && r1.FlagEqual(&r2);
        };
        EXPECT_EQ(equal(TCBaseCheckSection(), TCBaseCheckSection()), c.baseEqual);
        EXPECT_EQ(equal(TCNITCheckSection(), TCNITCheckSection()), c.nitEqual);
        EXPECT_EQ(equal(TCNTTCheckSection(), TCNTTCheckSection()), c.nttEqual);
        EXPECT_EQ(equal(TCSVCTCheckSection(), TCSVCTCheckSection()), c.svctEqual);
    }

    zumtest::LogCapture log;
    TCBaseCheckSection rec;
    const unsigned char one[] = {0x42};
    EXPECT_FALSE(rec.SetData(nullptr, 4) || rec.SetData(one, 0) || rec.FlagEqual(nullptr));
    EXPECT_TRUE(log.Contains("ASSERT!, Func:SetData, Line:"));
    EXPECT_TRUE(log.Contains("Failed: pData && len > 0"));
    EXPECT_TRUE(log.Contains("Func:FlagEqual"));
    // A body of 1 to 3 bytes takes its fingerprint from the last four bytes,
    // which reach back into the section's header in front of the body.
    const unsigned char sectionA[] = {0xC4, 0xF0, 0x02, 0x42, 0x00};
    const unsigned char sectionB[] = {0xC4, 0xF0, 0x03, 0x42, 0x00};
    for (int len : {1, 2}) {
        SCOPED_TRACE(len);
        TCBaseCheckSection a, a2, b;
        EXPECT_TRUE(a.SetData(sectionA + 3, len) && a2.SetData(sectionA + 3, len) && b.SetData(sectionB + 3, len));
        EXPECT_TRUE(a.FlagEqual(&a2));
        EXPECT_FALSE(a.FlagEqual(&b)); // only the header byte in front of the body differs
    }
}
