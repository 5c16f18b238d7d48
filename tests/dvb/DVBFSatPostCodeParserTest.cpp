#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "dvb/DVBFSatPostCodeParser.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"

using zumtest::Bytes;

namespace {

Bytes Section(unsigned extension, unsigned version, unsigned section, unsigned last, const Bytes& body)
{
    zumtest::SectionBuilder b(zumtest::LongHeader(0xD2, extension, version, section, last, true));
    b.Raw(body);
    return b.Build();
}

Bytes Block(const std::unique_ptr<std::vector<unsigned char>>& block) { return block ? *block : Bytes{0xEE}; }

} // namespace

TEST(DVBFSatPostCodeParser, JoinsEachSubtableInSectionOrder)
{
    TCDVBFSatPostCodeParser parser{ZUMHandle()};
    parser.Initialize();
    // Before any section the blocks are empty, not null.
    ASSERT_NE(parser.GetPostCodeTreeTable(), nullptr);
    EXPECT_TRUE(parser.GetPostCodeTreeTable()->empty());

    EXPECT_FALSE(parser.Parse(0x20, Section(0, 1, 1, 1, {'C', 'D'}).data()));
    EXPECT_FALSE(parser.Parse(0x20, Section(0, 1, 0, 1, {'A', 'B'}).data()));
    // The tree is complete, the keys are not.
    EXPECT_EQ(Block(parser.GetPostCodeTreeTable()), (Bytes{'A', 'B', 'C', 'D'}));
    EXPECT_FALSE(parser.IsValid());
    EXPECT_FALSE(parser.Parse(0x20, Section(2, 1, 0, 0, {'X'}).data()));
    EXPECT_TRUE(parser.Parse(0x20, Section(1, 1, 0, 0, {'K'}).data()));
    EXPECT_EQ(Block(parser.GetPostCodeRegionKeyTable()), (Bytes{'K'}));
    EXPECT_TRUE(parser.IsValid());
    // A new version of the keys starts them afresh.
    EXPECT_FALSE(parser.Parse(0x20, Section(1, 2, 2, 2, {'M'}).data()));
    EXPECT_FALSE(parser.Parse(0x20, Section(1, 2, 0, 2, {'L'}).data()));
    EXPECT_EQ(parser.GetPostCodeRegionKeyTable(), nullptr);
    parser.Initialize();
    EXPECT_TRUE(parser.GetPostCodeTreeTable()->empty());
}

TEST(DVBFSatPostCodeParser, EmptySectionIsRefused)
{
    zumtest::LogCapture log;
    TCDVBFSatPostCodeParser parser{ZUMHandle()};
    parser.Initialize();
    EXPECT_FALSE(parser.Parse(0x20, Section(1, 0, 0, 0, {}).data()));
    EXPECT_EQ(log.Count("[TCDVBFSatPostCodeTree::Parse] invalid section size[0]"), 1);
    EXPECT_TRUE(parser.GetPostCodeRegionKeyTable()->empty());
}
