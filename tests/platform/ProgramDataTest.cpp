#include <algorithm>
#include <iterator>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <zum-platform/ProgramData.h>

namespace {

using U16 = std::basic_string<unsigned short>;
using Comp = TCProgramData::TTComp;

U16 Text(const char* s) { return U16(s, s + std::char_traits<char>::length(s)); }

Comp MakeComp(unsigned char tag, const std::vector<unsigned char>& text)
{
    Comp comp;
    comp.componentTag = tag;
    comp.componentType = 0x03;
    comp.language = 0x6A706E;
    comp.qualityIndicator = 2;
    comp.SetText(text.data(), static_cast<unsigned short>(text.size()));
    return comp;
}

TCProgramId SampleId()
{
    TCProgramId id;
    id.serviceId = 0x1234567890ULL;
    id.eventId = 77;
    id.utcStartTime = 1700000000;
    id.utcDuration = 3600;
    id.eitTableId = 0x4E;
    id.eitNumber = 2;
    return id;
}

TCProgramData MakeRecord()
{
    TCProgramData record;
    record.SetProgramId(SampleId());
    record.SetOriginalNetworkId(0x2001);
    record.SetTransportStreamId(0x0402);
    const U16 title = Text("News");
    record.SetTitle(title.data(), static_cast<unsigned int>(title.size()));
    const unsigned char loop[] = {0x55, 0x04, 'G', 'B', 'R', 0x05};
    record.SetDescriptorRawData(loop, sizeof loop, 0x4E);
    record.SetSourceKind(3);
    return record;
}

std::vector<unsigned char> RawLoop(const TCProgramData& record, int* tableId = nullptr)
{
    unsigned char* data = nullptr;
    unsigned short length = 0;
    int table = -1;
    if (!record.GetDescriptorRawDataBuffer(data, length, table))
        return {};
    if (tableId)
        *tableId = table;
    return std::vector<unsigned char>(data, data + length);
}

U16 TitleOf(const TCProgramData& record)
{
    std::vector<unsigned short> buffer(64);
    unsigned int length = static_cast<unsigned int>(buffer.size());
    record.Title(buffer.data(), &length);
    return U16(buffer.data(), length);
}

TEST(ProgramData, RoundTrip)
{
    const TCProgramData record = MakeRecord();
    TCProgramId id;
    EXPECT_TRUE(record.GetProgramId(id));
    EXPECT_EQ(id, SampleId());
    EXPECT_EQ(record.OriginalNetworkId(), 0x2001);
    EXPECT_EQ(record.TransportStreamId(), 0x0402);
    EXPECT_EQ(record.TitleLength(), 4u);
    EXPECT_EQ(TitleOf(record), Text("News"));
    int tableId = 0;
    EXPECT_EQ(RawLoop(record, &tableId), (std::vector<unsigned char>{0x55, 0x04, 'G', 'B', 'R', 0x05}));
    EXPECT_EQ(tableId, 0x4E);
    EXPECT_EQ(record.SourceKind(), 3u);
}

TEST(ProgramData, EmptyRecordHasNoLoopAndNoComponents)
{
    const TCProgramData record;
    unsigned char* data = nullptr;
    unsigned short length = 9;
    int tableId = 9;
    EXPECT_FALSE(record.GetDescriptorRawDataBuffer(data, length, tableId));
    TCProgramData::TCProgCompData comps;
    comps.AddComponent(TCProgramData::COMP_TYPE_AUDIO, Comp());
    EXPECT_FALSE(record.GetProgCompData(comps));
    EXPECT_EQ(comps.NumOfComponent(TCProgramData::COMP_TYPE_AUDIO), 1);
}

TEST(ProgramData, TitleCutKeepsTerminatorInsideCapacity)
{
    const TCProgramData record = MakeRecord();
    unsigned short buffer[6] = {9, 9, 9, 9, 9, 9};
    unsigned int length = 5;
    EXPECT_TRUE(record.Title(buffer, &length));
    EXPECT_EQ(length, 4u);
    EXPECT_EQ(buffer[4], 0);

    std::fill(std::begin(buffer), std::end(buffer), 9);
    length = 3;
    EXPECT_FALSE(record.Title(buffer, &length));
    EXPECT_EQ(length, 2u);
    EXPECT_EQ(U16(buffer, 2), Text("Ne"));
    EXPECT_EQ(buffer[2], 0);
    EXPECT_EQ(buffer[3], 9);

    length = 0;
    EXPECT_FALSE(record.Title(buffer, &length));
    EXPECT_FALSE(record.Title(nullptr, &length));
}

TEST(ProgramData, CopiesAreIndependent)
{
    TCProgramData original = MakeRecord();
    TCProgramData::TCProgCompData comps;
    comps.AddComponent(TCProgramData::COMP_TYPE_VIDEO, MakeComp(0x00, {1, 2}));
    original.SetProgCompData(comps);

    const TCProgramData copy(original);
    TCProgramData assigned;
    assigned = original;

    unsigned char* copyLoop = nullptr;
    unsigned char* originalLoop = nullptr;
    unsigned short length = 0;
    int tableId = 0;
    ASSERT_TRUE(copy.GetDescriptorRawDataBuffer(copyLoop, length, tableId));
    ASSERT_TRUE(original.GetDescriptorRawDataBuffer(originalLoop, length, tableId));
    EXPECT_NE(copyLoop, originalLoop);

    const unsigned char other[] = {0x4A};
    original.SetDescriptorRawData(other, sizeof other, 0x50);
    const U16 title = Text("Film");
    original.SetTitle(title.data(), static_cast<unsigned int>(title.size()));
    TCProgramData::TCProgCompData more;
    more.AddComponent(TCProgramData::COMP_TYPE_DATA, MakeComp(0x40, {}));
    original.SetProgCompData(more);

    for (const TCProgramData* record : {&copy, static_cast<const TCProgramData*>(&assigned)}) {
        EXPECT_EQ(TitleOf(*record), Text("News"));
        EXPECT_EQ(RawLoop(*record).size(), 6u);
        TCProgramData::TCProgCompData got;
        ASSERT_TRUE(record->GetProgCompData(got));
        EXPECT_EQ(got.NumOfComponent(TCProgramData::COMP_TYPE_VIDEO), 1);
        EXPECT_EQ(got.NumOfComponent(TCProgramData::COMP_TYPE_DATA), 0);
    }
}

TEST(ProgramData, ComponentTextIsDeepCopied)
{
    Comp original = MakeComp(0x10, {'a', 'b', 'c'});
    Comp copy(original);
    Comp assigned;
    assigned = original;
    original.text[0] = 'z';
    for (const Comp* comp : {&copy, &assigned}) {
        ASSERT_EQ(comp->textLength, 3);
        EXPECT_NE(comp->text.get(), original.text.get());
        EXPECT_EQ(std::string(comp->text.get(), comp->text.get() + 3), "abc");
        EXPECT_EQ(comp->language, 0x6A706Eu);
    }
    const Comp& self = assigned;
    assigned = self;
    EXPECT_EQ(assigned.textLength, 3);
    const Comp empty = MakeComp(0x10, {});
    EXPECT_EQ(empty.text, nullptr);
    EXPECT_EQ(Comp(empty).text, nullptr);
}

TEST(ProgramData, ComponentsListedPerType)
{
    TCProgramData::TCProgCompData comps;
    EXPECT_TRUE(comps.AddComponent(TCProgramData::COMP_TYPE_AUDIO, MakeComp(0x10, {'j'})));
    EXPECT_TRUE(comps.AddComponent(TCProgramData::COMP_TYPE_AUDIO, MakeComp(0x11, {})));
    EXPECT_TRUE(comps.AddComponent(TCProgramData::COMP_TYPE_SUBTITLE, MakeComp(0x30, {})));
    EXPECT_FALSE(comps.AddComponent(static_cast<TCProgramData::EComponentType>(4), MakeComp(0x90, {})));
    EXPECT_FALSE(comps.AddComponent(TCProgramData::COMP_TYPE_INVALID, MakeComp(0x90, {})));

    EXPECT_EQ(comps.NumOfComponent(TCProgramData::COMP_TYPE_VIDEO), 0);
    EXPECT_EQ(comps.NumOfComponent(TCProgramData::COMP_TYPE_AUDIO), 2);
    EXPECT_EQ(comps.NumOfComponent(TCProgramData::COMP_TYPE_SUBTITLE), 1);
    EXPECT_EQ(comps.NumOfComponent(static_cast<TCProgramData::EComponentType>(7)), 0);

    Comp comp;
    EXPECT_TRUE(comps.GetComponent(TCProgramData::COMP_TYPE_AUDIO, 1, comp));
    EXPECT_EQ(comp.componentTag, 0x11);
    EXPECT_TRUE(comps.GetComponent(TCProgramData::COMP_TYPE_AUDIO, 0, comp));
    EXPECT_EQ(comp.componentTag, 0x10);
    ASSERT_EQ(comp.textLength, 1);
    EXPECT_EQ(comp.text[0], 'j');
    for (int index : {-1, 2})
        EXPECT_FALSE(comps.GetComponent(TCProgramData::COMP_TYPE_AUDIO, index, comp));
    EXPECT_FALSE(comps.GetComponent(static_cast<TCProgramData::EComponentType>(7), 0, comp));

    std::vector<Comp> list(5);
    EXPECT_TRUE(comps.GetComponentList(TCProgramData::COMP_TYPE_SUBTITLE, list));
    ASSERT_EQ(list.size(), 1u);
    EXPECT_EQ(list[0].componentTag, 0x30);
    EXPECT_FALSE(comps.GetComponentList(TCProgramData::COMP_TYPE_DATA, list));
    EXPECT_TRUE(list.empty());
}

struct CompTypeCase {
    unsigned char tag;
    unsigned int type;
};

void PrintTo(const CompTypeCase& c, std::ostream* os) { *os << "tag " << int(c.tag); }

class ISDBCompTypeTest : public ::testing::TestWithParam<CompTypeCase> {};

TEST_P(ISDBCompTypeTest, TagRange)
{
    EXPECT_EQ(static_cast<unsigned int>(TCProgramData::ISDBCompType(GetParam().tag)), GetParam().type);
}

INSTANTIATE_TEST_SUITE_P(Tags, ISDBCompTypeTest,
                         ::testing::Values(CompTypeCase{0x00, 0}, CompTypeCase{0x0F, 0}, CompTypeCase{0x10, 1},
                                           CompTypeCase{0x2F, 1}, CompTypeCase{0x30, 2}, CompTypeCase{0x3F, 2},
                                           CompTypeCase{0x40, 3}, CompTypeCase{0x7F, 3},
                                           CompTypeCase{0x80, 0xFFFFFFFFu}, CompTypeCase{0xFF, 0xFFFFFFFFu}));

} // namespace
