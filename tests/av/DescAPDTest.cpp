// Audio preselection descriptor: the records of each body, the cut ones,
// the copy out and the independence of assigned records.

#include <gtest/gtest.h>

#include "av/DescAPD.h"
#include "dvb/DescLoopProbe.h"
#include "inspect/Text.h"

using namespace svctest;

namespace {

std::string Hex(const unsigned char* bytes, int length)
{
    return length > 0 ? zuminspect::HexBytes(bytes, static_cast<size_t>(length)) : "-";
}

// Count, then per record: id, rendering, the eight flags, language, message id, aux count and tags,
// future extension length and bytes. "nolist" when the copy out is refused.
std::string Show(const TCDescAPD& d)
{
    std::vector<CAudioPreselection> out(d.NumOfPreselections() + 1u);
    if (!d.GetPreselections(out.data(), d.NumOfPreselections()))
        return Join(d.NumOfPreselections(), "nolist");
    out.pop_back();
    std::string s = Join(d.NumOfPreselections());
    for (const CAudioPreselection& p : out)
        s += " | " + Join(p.preselectionId, p.audioRenderingIndication, p.audioDescription, p.spokenSubtitles,
                          p.dialogueEnhancement, p.interactivityEnabled, p.languageCodePresent, p.textLabelPresent,
                          p.multiStreamInfoPresent, p.futureExtension, Code(p.language), p.messageId,
                          p.numAuxComponents, Hex(p.AuxComponents(), p.AuxComponentsLength()),
                          p.futureExtensionLength, Hex(p.FutureExtensionBytes(), p.FutureExtensionBytesLength()));
    return s;
}

} // namespace

TEST(DescAPD, Bodies)
{
    std::string kEmpty30;
    for (int i = 0; i < 30; ++i)
        kEmpty30 += " | 0 0 0 0 0 0 0 0 0 0 - 0 0 - 0 -";
    ExpectBodies(0x7F, [] { return new TCDescAPD(); }, Show,
                 {
                     {{0x19}, "0 nolist", "inLen=1, outLen=0"},
                     {{0x18, 0x08, 0x1A, 0x08}, "0 nolist", "inLen=4, outLen=0"},
                     {{0x19, 0x00}, "0"},
                     // id 3 rendering 2 with every part; id 4 rendering 0 with a language only.
                     {{0x19, 0x10, 0x1A, 0xAF, 'e', 'n', 'g', 0x05, 0x40, 0x21, 0x22, 0x01, 0x99, 0x20, 0x08, 's',
                       'p', 'a'},
                      "2 | 3 2 1 0 1 0 1 1 1 1 eng 5 2 21 22 1 99 | 4 0 0 0 0 0 1 0 0 0 spa 0 0 - 0 -"},
                     // Two aux tags announced, one left: the count stays, no block, the position stays.
                     {{0x19, 0x08, 0x08, 0x02, 0x40, 0x21}, "1 | 1 0 0 0 0 0 0 0 1 0 - 0 2 - 0 -",
                      "inLen=6, outLen=5"},
                     // A language announced at the end of the body; a second record with nothing left.
                     {{0x19, 0x10, 0x08, 0x08}, "2 | 1 0 0 0 0 0 1 0 0 0 - 0 0 - 0 - | 0 0 0 0 0 0 0 0 0 0 - 0 0 - 0 -"},
                     // A future extension of 5 bytes with 2 left takes the 2.
                     {{0x19, 0x08, 0x00, 0x01, 0x05, 0xAA, 0xBB}, "1 | 0 0 0 0 0 0 0 0 0 1 - 0 0 - 5 aa bb"},
                     // 31 preselections announced: the largest count, one record there.
                     {{0x19, 0xF8, 0xF9, 0x00}, "31 | 31 1 0 0 0 0 0 0 0 0 - 0 0 - 0 -" + kEmpty30},
                 });
}

TEST(DescAPD, CopyOutAndIndependentBlocks)
{
    auto d = Decode(new TCDescAPD(),
                    Desc(0x7F, {0x19, 0x10, 0x08, 0x02, 0x40, 0x21, 0x22, 0x10, 0x00}));
    CAudioPreselection out[3];
    out[2].messageId = 77;
    EXPECT_FALSE(d->GetPreselections(out, 3));
    EXPECT_EQ(out[2].messageId, 77);
    EXPECT_FALSE(d->GetPreselections(nullptr, 1));
    EXPECT_TRUE(d->GetPreselections(out, 0));
    ASSERT_TRUE(d->GetPreselections(out, 2));
    EXPECT_EQ(out[1].preselectionId, 2);

    // Assigned records hold blocks of their own; a copy made by construction shares them.
    CAudioPreselection a;
    CAudioPreselection b;
    a = out[0];
    b = out[0];
    const CAudioPreselection shared(out[0]);
    ASSERT_EQ(a.AuxComponentsLength(), 2);
    EXPECT_NE(a.AuxComponents(), b.AuxComponents());
    EXPECT_NE(a.AuxComponents(), out[0].AuxComponents());
    EXPECT_EQ(shared.AuxComponents(), out[0].AuxComponents());
    EXPECT_EQ(Hex(b.AuxComponents(), 2), "21 22");
    a = CAudioPreselection();
    EXPECT_EQ(a.AuxComponents(), nullptr);
    EXPECT_EQ(Hex(b.AuxComponents(), 2), "21 22");
}
