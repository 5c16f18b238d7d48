#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "dvb/DVBLCNParser.h"
#include "dvb/LCNDescParseHelper.h"
#include "dvb/ServiceKey.h"

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
    const struct {
        int layout;
        unsigned char b0, b1, b2, b3;
        bool visible;
        unsigned short number;
    } cases[] = {
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

TEST(ServiceKey, DefaultOrderAndCopy)
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
}

TEST(CacheLCNServiceKey, FourthFieldSortsFirst)
{
    EXPECT_TRUE(TCCacheLCNServiceKey(1, 2, 3, 0) < TCCacheLCNServiceKey(0, 0, 0, 1));
    EXPECT_FALSE(TCCacheLCNServiceKey(0, 0, 0, 1) < TCCacheLCNServiceKey(1, 2, 3, 0));
    EXPECT_TRUE(TCCacheLCNServiceKey(0, 5, 5, 0) < TCCacheLCNServiceKey(1, 0, 0, 0));
    EXPECT_TRUE(TCCacheLCNServiceKey(1, 1, 5, 0) < TCCacheLCNServiceKey(1, 2, 0, 0));
    EXPECT_TRUE(TCCacheLCNServiceKey(1, 2, 3, -1) < TCCacheLCNServiceKey(1, 2, 3, 0));
    EXPECT_FALSE(TCCacheLCNServiceKey(1, 2, 3, 4) < TCCacheLCNServiceKey(1, 2, 3, 4));
    EXPECT_TRUE(TCCacheLCNServiceKey() == TCCacheLCNServiceKey(-1, -1, -1, -1));
    EXPECT_TRUE(TCCacheLCNServiceKey(1, 2, 3, 4) != TCCacheLCNServiceKey(1, 2, 3, 5));
}
