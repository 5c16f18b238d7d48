#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <vector>

#include "psi/PMTParser.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zumtest::Bytes;
using zumtest::Desc;
using zumtest::SectionBuilder;
using zumtest::SectionHeader;

namespace {

struct Stream {
    unsigned type;
    unsigned pid;
    Bytes descriptors;
};

struct Program {
    unsigned number;
    unsigned version = 0;
    unsigned pcr = 0x100;
    Bytes descriptors;
    std::vector<Stream> streams;
    unsigned section = 0;
    unsigned last = 0;
};

Bytes Pmt(const Program& p)
{
    SectionHeader h;
    h.tableId = 0x02;
    h.extension = p.number;
    h.version = p.version;
    h.sectionNumber = p.section;
    h.lastSectionNumber = p.last;
    SectionBuilder b(h);
    b.U16(0xE000 | p.pcr).Begin16(12).Raw(p.descriptors).End();
    for (const Stream& s : p.streams)
        b.U8(s.type).U16(0xE000 | s.pid).Begin16(12).Raw(s.descriptors).End();
    return b.Build();
}

std::vector<std::pair<int, int>> Streams(const TCPMTInstance* instance)
{
    std::vector<std::pair<int, int>> out;
    for (int i = 0; i < instance->NumOfElementary(); ++i) {
        const TCPMTElementary* e = instance->PMTElementary(static_cast<unsigned>(i));
        out.emplace_back(e->StreamType(), e->ElementaryPID());
    }
    return out;
}

const Program kNews{0x0101, 0, 0x0100, Desc(0x09, {0x0B, 0x00, 0xE1, 0x23}),
                    {{0x1B, 0x0100, Desc(0x52, {0x01})},
                     {0x04, 0x0101, zumtest::Concat({Desc(0x0A, {'e', 'n', 'g', 0}), Desc(0x52, {0x02})})},
                     {0x06, 0x0102, Desc(0x59, {'e', 'n', 'g', 0x10, 0, 1, 0, 2})}}};

} // namespace

TEST(PMTParser, ProgramWithStreamsAndDescriptors)
{
    zumtest::BinderScope binder;
    TCPMTParser pmt{ZUMHandle()};
    pmt.Initialize();
    const Bytes s = Pmt(kNews);
    EXPECT_TRUE(pmt.Parse(0x1000, s.data()));
    EXPECT_TRUE(pmt.IsChannelListUpdateRequired());
    EXPECT_EQ(pmt.LastProgramNumber(), 0x0101);
    ASSERT_EQ(pmt.NumOfPMTInstance(), 1);
    TCPMTInstance* program = pmt.PMTInstance(0x0101);
    ASSERT_NE(program, nullptr);
    EXPECT_EQ(program, pmt.PMTInstanceOfIndex(0));
    EXPECT_EQ(pmt.PMTInstanceOfIndex(1), nullptr);
    EXPECT_EQ(program->Pid(), 0x1000);
    EXPECT_EQ(program->ProgramNumber(), 0x0101);
    EXPECT_EQ(program->PCRPid(), 0x0100);
    EXPECT_EQ(program->ProgramInfoLength(), 6);
    EXPECT_TRUE(program->CurrentNextIndicator());
    EXPECT_EQ(program->NumOfDescriptors(0x09), 1);
    EXPECT_EQ(Streams(program), (std::vector<std::pair<int, int>>{{0x1B, 0x100}, {0x04, 0x101}, {0x06, 0x102}}));
    const TCPMTElementary* audio = program->PMTElementary(1);
    EXPECT_EQ(audio->ESInfoLength(), 9);
    EXPECT_EQ(audio->NumOfDescriptors(), 2);
    EXPECT_EQ(audio->NumOfDescriptors(0x52), 1);
    EXPECT_EQ(audio->DescriptorByIndex(0)->TableId(), 0x02);
    EXPECT_EQ(program->PMTElementary(3), nullptr);

    // The same section again: nothing new, no update.
    EXPECT_FALSE(pmt.Parse(0x1000, s.data()));
    EXPECT_FALSE(pmt.IsChannelListUpdateRequired());
    EXPECT_EQ(program->NumOfElementary(), 3);
}

TEST(PMTParser, SeveralProgramsOrderedByNumber)
{
    zumtest::BinderScope binder;
    TCPMTParser pmt{ZUMHandle()};
    Program radio{0x0300, 0, 0x0300, {}, {{0x03, 0x0301, {}}}};
    Program tv{0x0200, 0, 0x0200, {}, {{0x02, 0x0201, {}}, {0x03, 0x0202, {}}}};
    EXPECT_TRUE(pmt.Parse(0x1003, Pmt(radio).data()));
    EXPECT_TRUE(pmt.Parse(0x1002, Pmt(tv).data()));
    EXPECT_TRUE(pmt.Parse(0x1001, Pmt(kNews).data()));
    ASSERT_EQ(pmt.NumOfPMTInstance(), 3);
    EXPECT_EQ(pmt.PMTInstanceOfIndex(0)->ProgramNumber(), 0x0101);
    EXPECT_EQ(pmt.PMTInstanceOfIndex(1)->ProgramNumber(), 0x0200);
    EXPECT_EQ(pmt.PMTInstanceOfIndex(2)->Pid(), 0x1003);

    pmt.Initialize();
    EXPECT_EQ(pmt.NumOfPMTInstance(), 0);
    EXPECT_EQ(pmt.LastProgramNumber(), 0xFFFF);
    // The memory of stream lists went too: the first parse asks for an update again.
    EXPECT_TRUE(pmt.Parse(0x1003, Pmt(radio).data()));
    EXPECT_TRUE(pmt.IsChannelListUpdateRequired());
}

TEST(PMTParser, FilterByPidAndProgram)
{
    zumtest::BinderScope binder;
    TCPMTParser pmt{ZUMHandle()};
    std::map<int, int> filter{{TCPMTParser::PMTKey(0x100, 5), 0}};
    EXPECT_EQ(TCPMTParser::PMTKey(0x100, 5), 0x01000005);
    pmt.UpdatePMTElements(filter);
    Program five{5, 0, 0x20, {}, {{0x02, 0x21, {}}}};
    Program six{6, 0, 0x30, {}, {{0x02, 0x31, {}}}};

    EXPECT_TRUE(pmt.Parse(0x100, Pmt(five).data()));
    EXPECT_EQ(pmt.LastProgramNumber(), 5);
    // Program 5 on another PID, and program 6 on the right PID, are dropped.
    EXPECT_FALSE(pmt.Parse(0x101, Pmt(Program{5, 1, 0x20, {}, {}}).data()));
    EXPECT_FALSE(pmt.Parse(0x100, Pmt(six).data()));
    EXPECT_FALSE(pmt.IsChannelListUpdateRequired());
    EXPECT_EQ(pmt.LastProgramNumber(), 5);
    EXPECT_EQ(pmt.NumOfPMTInstance(), 1);
    EXPECT_EQ(pmt.PMTInstance(5)->NumOfElementary(), 1);

    pmt.ClearPMTElements();
    EXPECT_TRUE(pmt.Parse(0x100, Pmt(six).data()));
    EXPECT_EQ(pmt.NumOfPMTInstance(), 2);
}

// Versions of one program in a row: whether the caller must rebuild its
// channel list follows the stream types and their order only.
TEST(PMTParser, ChannelListUpdateFollowsStreamTypes)
{
    struct Step {
        const char* name;
        std::vector<Stream> streams;
        bool parsed;
        bool update;
    } steps[] = {
        {"first", {{0x02, 0x101, {}}, {0x03, 0x102, {}}}, true, true},
        {"a PID changes", {{0x02, 0x111, {}}, {0x03, 0x102, {}}}, true, false},
        {"descriptors change", {{0x02, 0x111, Desc(0x52, {1})}, {0x03, 0x102, {}}}, true, false},
        {"two streams swap", {{0x03, 0x102, {}}, {0x02, 0x111, {}}}, true, true},
        {"identical list again", {{0x03, 0x102, {}}, {0x02, 0x111, {}}}, true, false},
        {"a stream is added", {{0x03, 0x102, {}}, {0x02, 0x111, {}}, {0x06, 0x113, {}}}, true, true},
        {"no streams", {}, true, true},
        {"no streams again", {}, true, true},
    };
    zumtest::BinderScope binder;
    TCPMTParser pmt{ZUMHandle()};
    unsigned version = 0;
    for (const Step& st : steps) {
        SCOPED_TRACE(st.name);
        Program p{7, version++ % 32, 0x100, {}, st.streams};
        EXPECT_EQ(pmt.Parse(0x40, Pmt(p).data()), st.parsed);
        EXPECT_EQ(pmt.IsChannelListUpdateRequired(), st.update);
        EXPECT_EQ(pmt.PMTInstance(7)->NumOfElementary(), static_cast<int>(st.streams.size()));
    }
}

TEST(PMTParser, MultiSectionProgramComparedWhenComplete)
{
    zumtest::BinderScope binder;
    TCPMTParser pmt{ZUMHandle()};
    Program first{9, 0, 0x100, {}, {{0x02, 0x101, {}}}, 0, 1};
    Program second{9, 0, 0x100, {}, {{0x04, 0x102, {}}}, 1, 1};
    EXPECT_FALSE(pmt.Parse(0x40, Pmt(first).data()));
    EXPECT_FALSE(pmt.IsChannelListUpdateRequired());
    EXPECT_TRUE(pmt.Parse(0x40, Pmt(second).data()));
    EXPECT_TRUE(pmt.IsChannelListUpdateRequired());
    EXPECT_EQ(Streams(pmt.PMTInstance(9)), (std::vector<std::pair<int, int>>{{0x02, 0x101}, {0x04, 0x102}}));
}

TEST(PMTParser, InnerLengthsAgainstTheSection)
{
    zumtest::BinderScope binder;
    struct Case {
        const char* name;
        Bytes section;
        bool result;
        std::vector<std::pair<int, int>> streams;
        int lastEsInfoLength;
        std::string log;
    };
    auto build = [](const std::function<void(SectionBuilder&)>& body) {
        SectionHeader h;
        h.tableId = 0x02;
        h.extension = 1;
        SectionBuilder b(h);
        body(b);
        return b.Build();
    };
    const Case cases[] = {
        {"program_info_length beyond the section",
         build([](SectionBuilder& b) { b.U16(0xE100).U16(0xF000 | 40).Raw(Desc(0x09, {1, 2})); }), true, {}, 0,
         "TCPMTInstance::m_Parse, m_programInfoLength[40] Error"},
        {"ES_info_length passing the end is cut",
         build([](SectionBuilder& b) {
             b.U16(0xE100).U16(0xF000).U8(0x02).U16(0xE101).U16(0xF000 | 30).Raw(Desc(0x52, {1}));
         }),
         true, {{0x02, 0x101}}, 3, ""},
        {"fewer than five bytes in front of the CRC",
         build([](SectionBuilder& b) { b.U16(0xE100).U16(0xF000).U8(0x1B).U16(0xE1FF); }), true, {{0x1B, 0x1FF}},
         -2, "[Warning] TCDescriptorBase::Parse total len is not correct!inLen=-2, outLen=0"},
        {"no stream at all", build([](SectionBuilder& b) { b.U16(0xE100).U16(0xF000); }), true, {}, 0, ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        TCPMTParser pmt{ZUMHandle()};
        zumtest::LogCapture log;
        EXPECT_EQ(pmt.Parse(0x50, c.section.data()), c.result);
        TCPMTInstance* program = pmt.PMTInstance(1);
        ASSERT_NE(program, nullptr);
        EXPECT_EQ(program->PCRPid(), 0x100);
        EXPECT_EQ(Streams(program), c.streams);
        if (!c.streams.empty()) {
            EXPECT_EQ(program->PMTElementary(program->NumOfElementary() - 1)->ESInfoLength(), c.lastEsInfoLength);
        }
        if (!c.log.empty()) {
            EXPECT_EQ(log.Count(c.log), 1);
        }
    }
}

TEST(PMTParser, IgnoredSectionAndUnparsedStream)
{
    zumtest::BinderScope binder;
    TCPMTParser pmt{ZUMHandle()};
    Program bad{3, 0, 0x100, {}, {}, 2, 1};
    zumtest::LogCapture log;
    EXPECT_FALSE(pmt.Parse(0x50, Pmt(bad).data()));
    EXPECT_EQ(log.Count("PMT Section Ignored... "), 1);
    // The instance keeps the header fields of what it was given.
    EXPECT_EQ(pmt.PMTInstance(3)->SectionNumber(), 2);

    TCPMTElementary fresh{ZUMHandle()};
    EXPECT_EQ(fresh.StreamType(), 0);
    EXPECT_EQ(fresh.ElementaryPID(), 0);
    EXPECT_TRUE(log.Contains("Failed: m_elementary_PID != INVALID"));
}

TEST(PMTParser, RealCaptureSections)
{
    const char* files[] = {"tsduck_tsduck__psi_pmt_hevc_sections.0.PMT.bin",
                           "tsduck_tsduck__psi_pmt_planete_sections.0.PMT.bin",
                           "cablelabs_mpegtssections-js__pmt_etv.PMT.bin"};
    int seen = 0;
    for (const char* name : files) {
        SCOPED_TRACE(name);
        const std::string path = std::string(ZUM_CAPTURES_DIR) + "/" + name;
        FILE* f = std::fopen(path.c_str(), "rb");
        if (!f)
            continue;
        Bytes s(4096);
        s.resize(std::fread(s.data(), 1, s.size(), f));
        std::fclose(f);
        ++seen;
        ASSERT_GE(s.size(), 3u);
        ASSERT_EQ(s.size(), 3u + (((s[1] & 0x0F) << 8) | s[2]));
        zumtest::BinderScope binder;
        TCPMTParser pmt{ZUMHandle()};
        zumtest::LogCapture log;
        EXPECT_TRUE(pmt.Parse(0x100, s.data()));
        const TCPMTInstance* program = pmt.PMTInstanceOfIndex(0);
        ASSERT_NE(program, nullptr);
        EXPECT_GT(program->NumOfElementary(), 0);
        // A well-formed broadcast section walks every loop to its announced end.
        EXPECT_FALSE(log.Contains("not correct")) << log.Lines().front();
        for (int i = 0; i < program->NumOfElementary(); ++i) {
            EXPECT_LE(program->PMTElementary(static_cast<unsigned>(i))->ElementaryPID(), 0x1FFF);
        }
    }
    if (seen == 0)
        GTEST_SKIP() << "captures not present";
}
