#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "dvb/DVBLCNParser.h"
#include "dvb/LCNDescParseHelper.h"
#include "dvb/ServiceKey.h"

namespace {

struct Layout {
    const char* name;
    std::unique_ptr<ILCNDescParseHelper> (*make)();
};

template <class T>
std::unique_ptr<ILCNDescParseHelper> Make()
{
    return std::unique_ptr<ILCNDescParseHelper>(new T());
}

} // namespace

// Each layout at the edges of its bits: flags set and clear, number 0, the
// largest number, and the bits that are not its own set.
TEST(LCNDescParseHelper, EntryLayoutsAtTheirBoundaries)
{
    struct Case {
        const char* layout;
        unsigned char b2, b3;
        bool visible;
        unsigned short number;
    } cases[] = {
        // EBook: top bit visible, 10-bit number; bits 6..2 are reserved.
        {"EBook", 0x80, 0x00, true, 0},
        {"EBook", 0x00, 0x00, false, 0},
        {"EBook", 0x83, 0xFF, true, 0x3FF},
        {"EBook", 0x7C, 0x01, false, 1},
        {"EBook", 0xFF, 0xFF, true, 0x3FF},
        // DBook: never hidden, same number.
        {"DBook", 0x00, 0x00, true, 0},
        {"DBook", 0x7F, 0xFF, true, 0x3FF},
        {"DBook", 0xFC, 0x05, true, 5},
        // Nordig: top bit visible, 14-bit number; bit 6 is a number bit.
        {"Nordig", 0x80, 0x00, true, 0},
        {"Nordig", 0x00, 0x00, false, 0},
        {"Nordig", 0xBF, 0xFF, true, 0x3FFF},
        {"Nordig", 0x40, 0x00, false, 0},
        {"Nordig", 0x7F, 0xFF, false, 0x3FFF},
        // M7: bit 6 hides; the top bit is neither flag nor number.
        {"M7", 0x40, 0x07, false, 7},
        {"M7", 0x00, 0x07, true, 7},
        {"M7", 0x80, 0x00, true, 0},
        {"M7", 0xC0, 0x00, false, 0},
        {"M7", 0xBF, 0xFF, true, 0x3FFF},
        // Philips: never hidden, all 16 bits are the number.
        {"Philips", 0x00, 0x00, true, 0},
        {"Philips", 0xFF, 0xFF, true, 0xFFFF},
        {"Philips", 0x80, 0x01, true, 0x8001},
    };
    const Layout layouts[] = {
        {"EBook", &Make<TCLCNDescParseHelper_EBook>},   {"DBook", &Make<TCLCNDescParseHelper_DBook>},
        {"Nordig", &Make<TCLCNDescParseHelper_Nordig>}, {"M7", &Make<TCLCNDescParseHelper_M7>},
        {"Philips", &Make<TCLCNDescParseHelper_Philips>},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.layout) + " " + std::to_string(c.b2) + " " + std::to_string(c.b3));
        std::unique_ptr<ILCNDescParseHelper> helper;
        for (const Layout& l : layouts)
            if (std::string(l.name) == c.layout)
                helper = l.make();
        ASSERT_NE(helper, nullptr);
        // Exactly four bytes: a read past the entry shows under the sanitizers.
        std::unique_ptr<unsigned char[]> entry(new unsigned char[4]{0xAB, 0xCD, c.b2, c.b3});
        EXPECT_EQ(helper->GetServiceId(entry.get()), 0xABCD);
        EXPECT_EQ(helper->GetVisibleFlag(entry.get()), c.visible);
        EXPECT_EQ(helper->GetChannelNumber(entry.get()), c.number);
    }
}

TEST(LCNDescParseHelper, ServiceIdTakesBothBytes)
{
    const unsigned char entries[][4] = {{0x00, 0x00, 0, 0}, {0xFF, 0xFF, 0, 0}, {0x01, 0x00, 0, 0}, {0x00, 0x01, 0, 0}};
    const unsigned short ids[] = {0, 0xFFFF, 0x100, 1};
    TCLCNDescParseHelper_Philips philips;
    TCLCNDescParseHelper_M7 m7;
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(philips.GetServiceId(entries[i]), ids[i]);
        EXPECT_EQ(m7.GetServiceId(entries[i]), ids[i]);
    }
}

TEST(ServiceKey, DefaultOrderAndCopy)
{
    const TCServiceKey none;
    EXPECT_EQ(none.m_originalNetworkId, 0xFFFF);
    EXPECT_EQ(none.m_transportStreamId, 0xFFFF);
    EXPECT_EQ(none.m_serviceId, 0xFFFF);

    struct Case {
        TCServiceKey a, b;
        bool less, equal;
    } cases[] = {
        {{1, 0xFFFF, 0xFFFF}, {2, 0, 0}, true, false},
        {{1, 2, 0xFFFF}, {1, 3, 0}, true, false},
        {{1, 2, 3}, {1, 2, 4}, true, false},
        {{1, 2, 3}, {1, 2, 3}, false, true},
        {{2, 0, 0}, {1, 9, 9}, false, false},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.a < c.b, c.less);
        EXPECT_EQ(c.a == c.b, c.equal);
        EXPECT_EQ(c.a != c.b, !c.equal);
    }

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
