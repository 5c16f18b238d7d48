#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <zum-platform/ProgramData.h>

namespace {

using Bytes = std::vector<unsigned char>;
using Comp = TCProgramData::TTComp;
using Type = TCProgramData::EComponentType;

Comp MakeComp(unsigned char tag, const Bytes& text)
{
    Comp comp;
    comp.componentTag = tag;
    comp.SetText(text.data(), static_cast<unsigned short>(text.size()));
    return comp;
}

Bytes RawLoop(const TCProgramData& record, int& tableId)
{
    unsigned char* data = nullptr;
    unsigned short length = 0;
    return record.GetDescriptorRawDataBuffer(data, length, tableId) ? Bytes(data, data + length) : Bytes();
}

} // namespace

// Copies hold their own title, loop and components; an empty record has none of them.
TEST(ProgramData, RecordCopiesAndTitleCut)
{
    TCProgramData original;
    const std::basic_string<unsigned short> news{'N', 'e', 'w', 's'};
    original.SetTitle(news.data(), 4);
    const Bytes loop{0x55, 0x04, 'G', 'B', 'R', 0x05};
    original.SetDescriptorRawData(loop.data(), static_cast<unsigned short>(loop.size()), 0x4E);
    TCProgramData::TCProgCompData comps;
    comps.AddComponent(TCProgramData::COMP_TYPE_VIDEO, MakeComp(0x00, {1, 2}));
    original.SetProgCompData(comps);
    const TCProgramData copy(original);
    TCProgramData assigned;
    assigned = original;
    for (const TCProgramData* record : {&copy, static_cast<const TCProgramData*>(&assigned)}) {
        int tableId = 0;
        EXPECT_EQ(RawLoop(*record, tableId), loop);
        EXPECT_EQ(tableId, 0x4E);
        TCProgramData::TCProgCompData got;
        EXPECT_TRUE(record->GetProgCompData(got));
        EXPECT_EQ(got.NumOfComponent(TCProgramData::COMP_TYPE_VIDEO), 1);
    }
    const TCProgramData empty;
    int tableId = 0;
    EXPECT_TRUE(RawLoop(empty, tableId).empty());
    EXPECT_FALSE(empty.GetProgCompData(comps));
    EXPECT_EQ(comps.NumOfComponent(TCProgramData::COMP_TYPE_VIDEO), 1); // left as it was

    // The title is cut so that its terminator stays inside the capacity.
    for (unsigned int capacity : {5u, 3u, 0u}) {
        SCOPED_TRACE(capacity);
        unsigned short buffer[6] = {9, 9, 9, 9, 9, 9};
        unsigned int length = capacity;
        EXPECT_EQ(assigned.Title(buffer, &length), capacity == 5);
        EXPECT_EQ(length, capacity ? capacity - 1 : 0);
        EXPECT_EQ(std::basic_string<unsigned short>(buffer, length), news.substr(0, length));
        EXPECT_EQ(buffer[length], capacity ? 0 : 9);
        EXPECT_EQ(buffer[capacity], 9);
    }
    unsigned int length = 4;
    EXPECT_FALSE(copy.Title(nullptr, &length));
}

TEST(ProgramData, ComponentsPerTypeWithTheirOwnText)
{
    Comp original = MakeComp(0x10, {'a', 'b', 'c'});
    Comp copy(original), assigned;
    assigned = original;
    original.text[0] = 'z';
    for (const Comp* comp : {&copy, &assigned})
        EXPECT_EQ(std::string(comp->text.get(), comp->text.get() + comp->textLength), "abc");
    EXPECT_EQ(Comp(MakeComp(0x10, {})).text, nullptr);

    TCProgramData::TCProgCompData comps;
    for (int type : {1, 1, 2, -1, 4})
        EXPECT_EQ(comps.AddComponent(static_cast<Type>(type), MakeComp(0x10 * type, {})), type >= 0 && type < 4);
    const int counts[] = {0, 0, 2, 1, 0, 0}; // types -1 to 4
    for (int type = -1; type <= 4; ++type)
        EXPECT_EQ(comps.NumOfComponent(static_cast<Type>(type)), counts[type + 1]) << type;
    comps.AddComponent(TCProgramData::COMP_TYPE_AUDIO, original);
    Comp comp;
    EXPECT_TRUE(comps.GetComponent(TCProgramData::COMP_TYPE_AUDIO, 2, comp));
    EXPECT_EQ(std::string(comp.text.get(), comp.text.get() + comp.textLength), "zbc");
    for (int index : {-1, 3})
        EXPECT_FALSE(comps.GetComponent(TCProgramData::COMP_TYPE_AUDIO, index, comp));
    EXPECT_FALSE(comps.GetComponent(static_cast<Type>(7), 0, comp));
    std::vector<Comp> list(5);
    EXPECT_TRUE(comps.GetComponentList(TCProgramData::COMP_TYPE_SUBTITLE, list));
    ASSERT_EQ(list.size(), 1u);
    EXPECT_EQ(list[0].componentTag, 0x20);
    EXPECT_FALSE(comps.GetComponentList(TCProgramData::COMP_TYPE_DATA, list));
    EXPECT_TRUE(list.empty());

    const unsigned char tags[] = {0x00, 0x0F, 0x10, 0x2F, 0x30, 0x3F, 0x40, 0x7F, 0x80, 0xFF};
    const unsigned int types[] = {0, 0, 1, 1, 2, 2, 3, 3, 0xFFFFFFFFu, 0xFFFFFFFFu};
    for (size_t i = 0; i < sizeof tags; ++i)
        EXPECT_EQ(static_cast<unsigned int>(TCProgramData::ISDBCompType(tags[i])), types[i]) << int(tags[i]);
}
