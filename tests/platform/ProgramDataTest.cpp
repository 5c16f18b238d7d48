#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <zum-platform/ProgramData.h>

namespace {

using Bytes = std::vector<unsigned char>;
using Comp = TCProgramData::TTComp;
using Type = TCProgramData::EComponentType;

Comp MakeComp(unsigned char tag, const std::string& text)
{
    Comp comp;
    comp.componentTag = tag;
    comp.SetText(reinterpret_cast<const unsigned char*>(text.data()), static_cast<unsigned short>(text.size()));
    return comp;
}

std::string Text(const Comp& c) { return c.text ? std::string(c.text.get(), c.text.get() + c.textLength) : "-"; }

} // namespace

TEST(ProgramData, LoopTitleAndComponents)
{
    TCProgramData record;
    unsigned char* data = nullptr;
    unsigned short size = 0;
    int tableId = 0;
    EXPECT_FALSE(record.GetDescriptorRawDataBuffer(data, size, tableId));
    const Bytes loop{0x55, 0x04, 'G', 'B', 'R', 0x05};
    record.SetDescriptorRawData(loop.data(), static_cast<unsigned short>(loop.size()), 0x4E);
    ASSERT_TRUE(record.GetDescriptorRawDataBuffer(data, size, tableId));
    EXPECT_EQ(Bytes(data, data + size), loop);
    EXPECT_EQ(tableId, 0x4E);

    // The title is cut so that its terminator stays inside the capacity.
    const std::basic_string<unsigned short> news{'N', 'e', 'w', 's'};
    record.SetTitle(news.data(), 4);
    for (unsigned int capacity : {5u, 3u, 0u}) {
        SCOPED_TRACE(capacity);
        unsigned short buffer[6] = {9, 9, 9, 9, 9, 9};
        unsigned int length = capacity;
        EXPECT_EQ(record.Title(buffer, &length), capacity == 5);
        EXPECT_EQ(std::basic_string<unsigned short>(buffer, length), news.substr(0, capacity ? capacity - 1 : 0));
        EXPECT_EQ(buffer[length], capacity ? 0 : 9);
        EXPECT_EQ(buffer[capacity], 9);
    }
    unsigned int length = 4;
    EXPECT_FALSE(record.Title(nullptr, &length));

    // Components are values with their own text, kept per type; a record without them leaves the caller's.
    Comp original = MakeComp(0x10, "abc"), assigned;
    const Comp copy(original);
    assigned = original;
    original.text[0] = 'z';
    EXPECT_EQ(Text(copy) + Text(assigned) + Text(Comp(MakeComp(0x10, ""))), "abcabc-");
    TCProgramData::TCProgCompData comps, got;
    got.AddComponent(TCProgramData::COMP_TYPE_DATA, original);
    EXPECT_FALSE(record.GetProgCompData(got));
    for (int type : {1, 1, 2, -1, 4})
        EXPECT_EQ(comps.AddComponent(static_cast<Type>(type), MakeComp(0x10 * type, "")), type >= 0 && type < 4);
    comps.AddComponent(TCProgramData::COMP_TYPE_AUDIO, original);
    EXPECT_EQ(got.NumOfComponent(TCProgramData::COMP_TYPE_DATA), 1);
    record.SetProgCompData(comps);
    ASSERT_TRUE(record.GetProgCompData(got));
    const int counts[] = {0, 0, 3, 1, 0, 0}; // types -1 to 4
    for (int type = -1; type <= 4; ++type)
        EXPECT_EQ(got.NumOfComponent(static_cast<Type>(type)), counts[type + 1]) << type;
    Comp comp;
    EXPECT_TRUE(got.GetComponent(TCProgramData::COMP_TYPE_AUDIO, 2, comp));
    EXPECT_EQ(Text(comp), "zbc");
    EXPECT_FALSE(got.GetComponent(TCProgramData::COMP_TYPE_AUDIO, -1, comp) ||
                 got.GetComponent(TCProgramData::COMP_TYPE_AUDIO, 3, comp) || got.GetComponent(Type(7), 0, comp));
    std::vector<Comp> list(5);
    EXPECT_TRUE(got.GetComponentList(TCProgramData::COMP_TYPE_SUBTITLE, list));
    EXPECT_EQ(list.size() == 1 ? list[0].componentTag : -1, 0x20);
    EXPECT_FALSE(got.GetComponentList(TCProgramData::COMP_TYPE_DATA, list));
    EXPECT_TRUE(list.empty());

    const unsigned char tags[] = {0x00, 0x0F, 0x10, 0x2F, 0x30, 0x3F, 0x40, 0x7F, 0x80, 0xFF};
    const int types[] = {0, 0, 1, 1, 2, 2, 3, 3, -1, -1};
    for (size_t i = 0; i < sizeof tags; ++i)
        EXPECT_EQ(TCProgramData::ISDBCompType(tags[i]), types[i]) << int(tags[i]);
}
