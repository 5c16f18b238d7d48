#include <gtest/gtest.h>

#include <vector>

#include "atsc/AEITParser.h"
#include "atsc/AETTParser.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"

using zumtest::Bytes;

namespace {

struct Event {
    unsigned id, start = 1000, etm = 1, duration = 1800;
    Bytes title = {1, 'e', 'n', 'g', 1, 0, 0, 2, 'H', 'i'};
    Bytes descriptors = {};
};

struct Source {
    unsigned id;
    std::vector<Event> events;
};

Bytes Aeit(unsigned tag, unsigned version, unsigned section, unsigned last, const std::vector<Source>& sources,
           int cut = 0)
{
    zumtest::SectionBuilder b(zumtest::LongHeader(0xD6, tag, version, section, last));
    b.U8(static_cast<unsigned>(sources.size()));
    for (const Source& s : sources) {
        b.U16(s.id).U8(static_cast<unsigned>(s.events.size()));
        for (const Event& e : s.events) {
            b.U16(0xC000 | e.id).U32(e.start).U24(0xC00000 | (e.etm << 20) | e.duration);
            b.U8(static_cast<unsigned>(e.title.size())).Raw(e.title).Begin16().Raw(e.descriptors).End();
        }
    }
    Bytes out = b.Build();
    if (cut > 0) {
        // section_length shortened: the events at the end run past the section.
        const unsigned length = static_cast<unsigned>(out.size()) - 3 - static_cast<unsigned>(cut);
        out[1] = static_cast<unsigned char>((out[1] & 0xF0) | (length >> 8));
        out[2] = static_cast<unsigned char>(length);
    }
    return out;
}

struct Block {
    unsigned etmId;
    Bytes text;
    int lengthField = -1; // -1: the text's size
};

Bytes Aett(unsigned tag, unsigned version, unsigned section, const std::vector<Block>& blocks)
{
    zumtest::SectionBuilder b(zumtest::LongHeader(0xD7, tag, version, section, 0));
    b.U8(static_cast<unsigned>(blocks.size()));
    for (const Block& blk : blocks) {
        const unsigned length = blk.lengthField >= 0 ? static_cast<unsigned>(blk.lengthField)
                                                     : static_cast<unsigned>(blk.text.size());
        b.U32(blk.etmId).U16(0xF000 | length).Raw(blk.text);
    }
    return b.Build();
}

} // namespace

TEST(AEITParser, EventsBySectionAndSource)
{
    TCAEITParser p(ZUMHandle{});
    EXPECT_TRUE(p.Parse(0x1FFC, Aeit(0x0102, 1, 0, 1, {{0x1234, {{7, 5000, 2, 3600, {}, {0x80, 1, 9}}, {3}}},
                                                         {0x1234, {{7, 6000}}}})
                                    .data()));
    EXPECT_FALSE(p.AEITParserTag(2)->IsValid());
    EXPECT_TRUE(p.Parse(0x1FFC, Aeit(0x0102, 1, 1, 1, {{0x1234, {{9}}}, {0x5678, {}}}).data()));
    EXPECT_TRUE(p.AEITParserTag(2)->IsValid());
    EXPECT_EQ(p.LastTag(), 2);
    EXPECT_EQ(p.AEITParserTag(1), nullptr);

    const TCAEITSourceMap* s0 = p.AEITParserTag(2)->AEITParserSourceList(0);
    ASSERT_NE(s0, nullptr);
    ASSERT_EQ(s0->size(), 1u) << "one source twice in a section shares its store";
    const TCAEITParserSource* src = s0->at(0x1234).get();
    ASSERT_EQ(src->SizeOfAEITParserEvent(), 2);
    const TCAEITParserEvent* e = src->AEITParserEvent(1);
    EXPECT_EQ(e->EventId(), 7);
    EXPECT_EQ(e->StartTime(), 6000u) << "the same event again overwrites";
    EXPECT_EQ(e->ETMPresent(), 1);
    EXPECT_EQ(src->AEITParserEvent(2), nullptr);
    EXPECT_EQ(p.AEITParserTag(2)->AEITParserSourceList(1)->at(0x1234)->SizeOfAEITParserEvent(), 1);
    EXPECT_EQ(p.AEITParserTag(2)->AEITParserSourceList(1)->at(0x5678)->SizeOfAEITParserEvent(), 0);

    unsigned char text[16];
    int length = sizeof(text);
    ASSERT_TRUE(src->AEITParserEvent(0)->TitleText(text, &length));
    EXPECT_EQ(length, 10);
    length = 4;
    zumtest::LogCapture log;
    EXPECT_FALSE(src->AEITParserEvent(0)->TitleText(text, &length));
    EXPECT_EQ(log.Count("TCAEITParserEvent::TitleText length is invalid input = 4 , output = 10"), 1);
    EXPECT_FALSE(src->AEITParserEvent(0)->TitleText(nullptr, &length));
    EXPECT_EQ(log.Count("TCAEITParserEvent::text is NULL or titleLength is NULL"), 1);
}

TEST(AEITParser, BoundariesAndVersions)
{
    TCAEITParser p(ZUMHandle{});
    EXPECT_TRUE(p.Parse(0x1FFC, Aeit(5, 0, 0, 0, {}).data())) << "0 sources";
    ASSERT_NE(p.AEITParserTag(5)->AEITParserSourceList(0), nullptr);
    EXPECT_FALSE(p.Parse(0x1FFC, Aeit(5, 0, 0, 0, {}).data())) << "the same section again";

    // Title cut by the section's end: the event stays with an empty title.
    zumtest::LogCapture log;
    const Event e{4, 1, 0, 60, Bytes(20, 'x')};
    EXPECT_FALSE(p.Parse(0x1FFC, Aeit(6, 0, 0, 0, {{0x11, {{1}, e}}}, 12).data()));
    const TCAEITParserSource* src = p.AEITParserTag(6)->AEITParserSourceList(0)->at(0x11).get();
    ASSERT_EQ(src->SizeOfAEITParserEvent(), 2);
    EXPECT_EQ(src->AEITParserEvent(0)->TitleLength(), 10) << "the event before the fault stays";
    EXPECT_EQ(src->AEITParserEvent(1)->TitleLength(), 0);
    EXPECT_EQ(log.Count("TCAEITParserSource::Parse error... total size = 43 , parsed len = 23"), 1);

    // A new version clears the tag's sections.
    p.Parse(0x1FFC, Aeit(5, 1, 1, 1, {{0x22, {{1}}}}).data());
    EXPECT_EQ(p.AEITParserTag(5)->AEITParserSourceList(0), nullptr);
    p.Initialize();
    EXPECT_EQ(p.AEITParserTag(5), nullptr);
}

TEST(AETTParser, BlocksByKey)
{
    TCAETTParser p(ZUMHandle{});
    const Bytes text = {1, 'e', 'n', 'g', 1, 0, 0, 3, 'a', 'b', 'c'};
    EXPECT_TRUE(p.Parse(0x1FFC, Aett(0x0107, 0, 0, {{0x12340011, text}, {0x12340012, {}}}).data()));
    TCAETTItem* item = p.AETTItem(7);
    ASSERT_NE(item, nullptr);
    ASSERT_EQ(item->AETTParserSourceList(0)->size(), 1u) << "ETM ids differing in the low two bits share a block";
    TCAETTParserBlock* b = item->AETTParserBlock(0x12340004);
    ASSERT_NE(b, nullptr);
    EXPECT_EQ(b->ETMId(), 0x12340012u);
    unsigned char out[32];
    unsigned short length = sizeof(out);
    EXPECT_FALSE(b->ETTExtendTextMsg(out, &length)) << "text of length 0";
    EXPECT_EQ(item->AETTParserBlock(0x99), nullptr);

    // A block that runs past the section: true, the blocks before it stay.
    zumtest::LogCapture log;
    EXPECT_TRUE(p.Parse(0x1FFC, Aett(0x0108, 0, 0, {{0x00050004, text}, {0x00060004, text, 200}}).data()));
    TCAETTItem* other = p.AETTItem(8);
    ASSERT_NE(other->AETTParserBlock(0x00050001), nullptr);
    length = sizeof(out);
    EXPECT_TRUE(other->AETTParserBlock(0x00050001)->ETTExtendTextMsg(out, &length));
    EXPECT_EQ(length, 11);
    length = 5;
    EXPECT_FALSE(other->AETTParserBlock(0x00050001)->ETTExtendTextMsg(out, &length));
    EXPECT_EQ(log.Count("TCAETTParserBlock::TitleText length is invalid input = 5 , output = 11"), 1);
    EXPECT_EQ(other->AETTParserBlock(0x00060001)->TextLength(), 0);
    EXPECT_EQ(log.Count("TCAETTParserBlock::Parse error... total size = 17 , parsed len = 206"), 1);
}
