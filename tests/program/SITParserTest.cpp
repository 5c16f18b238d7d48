#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include <zum-platform/PlatformConfig.h>

#include "dvb/DescService.h"
#include "program/SITParser.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zumtest::Bytes;

namespace {

struct Program {
    unsigned number;
    unsigned kind = 1;
    unsigned start = 0, flag = 0, code = 0, duration = 0;
    std::string title = "", text1 = "", text2 = "", text3 = "";
};

void WriteProgram(zumtest::ByteWriter& b, const Program& p)
{
    b.U16(p.number).Begin8().Text(p.text3).End().U8(p.kind).U32(p.start).U8((p.flag << 7) | p.code);
    b.U8(0xF0 | (p.duration >> 16)).U16(p.duration & 0xFFFF);
    b.Begin8().Text(p.title).End();
    b.Begin16(12, 0xF000).Text(p.text1).End().Begin16(12, 0xF000).Text(p.text2).End();
}

// An SIT section of table id 0xD5.
Bytes Sit(unsigned version, unsigned section, unsigned last, const std::vector<Program>& programs,
          const Bytes& descriptors = {}, int protocolVersion = 0)
{
    zumtest::SectionHeader h = zumtest::LongHeader(0xD5, 0x0001, version, section, last);
    h.protocolVersion = protocolVersion;
    zumtest::SectionBuilder b(h);
    b.U8(static_cast<unsigned>(programs.size()));
    for (const Program& p : programs)
        WriteProgram(b, p);
    b.Begin16(12, 0xF000).Raw(descriptors).End();
    return b.Build();
}

std::vector<unsigned> Numbers(const TCSITParser& sit)
{
    std::vector<unsigned> numbers;
    for (unsigned i = 0; sit.Program(i) != nullptr; ++i)
        numbers.push_back(sit.Program(i)->ProgramNumber());
    return numbers;
}

std::string Text(const TCSITProgram& p, int type)
{
    char buffer[5000];
    int length = sizeof buffer;
    return p.GetText(buffer, &length, type) ? std::string(buffer, static_cast<size_t>(length)) : "<false>";
}

const Bytes kServiceDesc = zumtest::Desc(0x48, {0x01, 0, 2, 'T', 'V'});

} // namespace

TEST(SITParser, ProgramFieldsTextsAndLoop)
{
    zumtest::BinderScope binder;
    TCSITParser sit{ZUMHandle()};
    sit.Initialize();
    const Program full{0x1234, 5, 0x89ABCDEF, 1, 0x7F, 0xFFFFF, "Title", "one", "two", "three"};
    const Program bare{0xFFFF, 0, 0, 0, 0x55, 0x12345};
    EXPECT_TRUE(sit.Parse(0x1F, Sit(0, 0, 0, {full, bare}, kServiceDesc).data()));
    EXPECT_TRUE(sit.IsRecv());
    EXPECT_EQ(Numbers(sit), (std::vector<unsigned>{0x1234, 0xFFFF}));
    EXPECT_EQ(std::make_tuple(sit.ProgramCount(), sit.DescriptorsLength()), std::make_tuple(2, 7));
    const TCSITProgram& p = *sit.Program(0);
    EXPECT_EQ(std::make_tuple(p.ProgramKind(), p.StartTime(), p.Flag(), p.Code(), p.Duration()),
              std::make_tuple(5, 0x89ABCDEFu, true, 0x7F, 0xFFFFFu));
    EXPECT_EQ(std::make_tuple(Text(p, 0), Text(p, 1), Text(p, 2), Text(p, 3), Text(p, 4)),
              std::make_tuple("Title", "one", "two", "three", ""));
    const TCSITProgram& q = *sit.Program(1);
    EXPECT_EQ(std::make_tuple(q.ProgramKind(), q.Flag(), q.Code(), q.Duration(), q.TextLength(0), q.TextLength(3)),
              std::make_tuple(0, false, 0x55, 0x12345u, 0, 0));
    // The loop is decoded with the SIT's table id, which has the SI factory.
    ASSERT_EQ(sit.NumOfDescriptors(0x48), 1);
    EXPECT_NE(dynamic_cast<TCDescService*>(sit.Descriptor(0x48, 0)), nullptr);
    EXPECT_EQ(sit.Program(2), nullptr);

    // Protocol version 1 never reaches the table; count 0 reads only the loop.
    TCSITParser other(0xD5, ZUMHandle());
    EXPECT_FALSE(other.Parse(0x1F, Sit(0, 0, 0, {full}, {}, 1).data()));
    EXPECT_EQ(other.Program(0), nullptr);
    EXPECT_TRUE(other.Parse(0x1F, Sit(0, 0, 0, {}, kServiceDesc).data()));
    EXPECT_EQ(std::make_tuple(other.ProgramCount(), other.NumOfPrograms(), other.NumOfDescriptors()),
              std::make_tuple(0, 0, 1));
    sit.Initialize();
    EXPECT_EQ(std::make_tuple(sit.NumOfPrograms(), sit.NumOfDescriptors(), sit.ProgramCount(), sit.IsRecv()),
              std::make_tuple(0, 0, 0, false));
}

// Programs gather over the sections of a version; a new version or a refused
// program drops them, while the tracker keeps the sections marked.
TEST(SITParser, TrackingAndRefusedProgram)
{
    const struct { unsigned version, section, last; std::vector<unsigned> kinds; bool result;
                   std::vector<unsigned> listed; int descriptors; bool valid; } steps[] = {
        {1, 1, 2, {0, 1}, false, {100, 101}, 1, false},
        {1, 1, 2, {0, 1}, false, {100, 101}, 1, false},
        {1, 0, 2, {2}, false, {100, 101, 100}, 2, false},
        {1, 2, 2, {5, 6, 1}, false, {}, 2, true},
        {2, 0, 1, {3}, false, {100}, 1, false},
        {2, 1, 1, {4}, true, {100, 100}, 2, true},
        {2, 5, 1, {4}, false, {100, 100}, 2, true},
    };
    zumtest::BinderScope binder;
    TCSITParser sit{ZUMHandle()};
    int i = 0;
    for (const auto& st : steps) {
        SCOPED_TRACE(i++);
        std::vector<Program> programs;
        for (unsigned kind : st.kinds)
            programs.push_back(Program{100 + static_cast<unsigned>(programs.size()), kind});
        EXPECT_EQ(sit.Parse(0x1F, Sit(st.version, st.section, st.last, programs, kServiceDesc).data()), st.result);
        EXPECT_EQ(Numbers(sit), st.listed);
        EXPECT_EQ(sit.NumOfDescriptors(), st.descriptors);
        EXPECT_EQ(sit.IsValid(), st.valid);
    }
}

// Length fields at their limits, and sections that end too soon.
TEST(SITParser, LengthBoundaries)
{
    zumtest::BinderScope binder;
    const Program big{7, 1, 0, 0, 0, 0, std::string(255, 'T'), std::string(3000, 'a'), "zz", std::string(255, 'c')};
    const Bytes whole = Sit(0, 0, 0, {Program{6}, big}, kServiceDesc);
    // Bytes are cut off the payload's end, in front of the CRC_32.
    const size_t payloadEnd = whole.size() - 4;
    const struct { size_t cut; int loopLengthDelta; std::vector<unsigned> numbers; int descriptors; } cases[] = {
        {0, 0, {6, 7}, 1},
        {1, 0, {6, 7}, 0},  // the descriptor runs over the section: dropped
        {7, 0, {6, 7}, 0},  // the loop length claims bytes that are not there
        {8, 0, {6, 7}, 0},  // half a loop length
        {9, 0, {6, 7}, 0},  // no loop length
        {10, 0, {6}, 0},    // the last text one byte short: that program is not kept
        {0, 1, {6, 7}, 1},  // a loop length past the payload is cut at its end
        {0, -1, {6, 7}, 0}, // one byte short of the descriptor
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.cut * 10 + c.loopLengthDelta);
        Bytes payload(whole.begin() + 9, whole.begin() + static_cast<long>(payloadEnd - c.cut));
        if (c.cut == 0) {
            const size_t at = payload.size() - kServiceDesc.size() - 2;
            const unsigned length = 7 + c.loopLengthDelta;
            payload[at] = static_cast<uint8_t>(0xF0 | (length >> 8));
            payload[at + 1] = static_cast<uint8_t>(length);
        }
        zumtest::SectionHeader h = zumtest::LongHeader(0xD5, 1);
        h.protocolVersion = 0;
        zumtest::SectionBuilder b(h);
        b.Raw(payload);
        TCSITParser sit{ZUMHandle()};
        EXPECT_TRUE(sit.Parse(0x1F, b.Build().data()));
        EXPECT_EQ(Numbers(sit), c.numbers);
        EXPECT_EQ(sit.NumOfDescriptors(), c.descriptors);
        if (c.numbers.size() == 2) {
            EXPECT_EQ(std::make_tuple(sit.Program(1)->TextLength(0), sit.Program(1)->TextLength(1),
                                      sit.Program(1)->TextLength(2), sit.Program(1)->TextLength(3)),
                      std::make_tuple(255, 3000, 2, 255));
        }
    }
    // Outside a DVB country the SIT's table id has no factory: no descriptor.
    zumtest::BinderScope usa;
    usa->countryCode = ZumPackCode("USA");
    TCSITParser sit{ZUMHandle()};
    EXPECT_TRUE(sit.Parse(0x1F, whole.data()));
    EXPECT_EQ(std::make_tuple(sit.NumOfPrograms(), sit.NumOfDescriptors()), std::make_tuple(2, 0));
}

TEST(SITParser, TextAccess)
{
    TCSITProgram p;
    char title[] = "News";
    p.SetText(title, 4, TCSITProgram::TEXT_TYPE_TITLE);
    p.SetText(title, 2, 4);
    // Capacity on entry, the answer, the length on return, the bytes written.
    const struct { int capacity; int type; bool result; int length; std::string bytes; } cases[] = {
        {10, 0, true, 4, "News"},
        {4, 0, true, 4, "News"},
        {3, 0, true, 3, "New"},  // cut, the length stays
        {0, 0, false, 0, ""},
        {8, 4, true, 2, "Ne"},
        {8, 2, true, 0, ""},     // empty text
        {8, 5, false, 8, ""},    // bad slot
        {8, -1, false, 8, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.capacity * 10 + c.type);
        char buffer[16] = "xxxxxxxxxxxxxxx";
        int length = c.capacity;
        EXPECT_EQ(p.GetText(buffer, &length, c.type), c.result);
        EXPECT_EQ(length, c.length);
        EXPECT_EQ(std::string(buffer, c.bytes.size()), c.bytes);
    }
    int length = 8;
    EXPECT_FALSE(p.GetText(nullptr, &length, 0));

    zumtest::LogCapture log;
    p.SetText(title, 4, 5);
    EXPECT_EQ(p.TextLength(-1), 0);
    EXPECT_EQ(p.TextLength(4), 2);
    ASSERT_EQ(log.Lines().size(), 2u);
    for (const std::string& line : log.Lines())
        EXPECT_NE(line.find("Failed: type >= TEXT_TYPE_TITLE && type < MAX_TEXT_TYPE"), std::string::npos) << line;
}
