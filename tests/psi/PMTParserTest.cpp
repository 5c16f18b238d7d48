#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <map>
#include <tuple>
#include <vector>

#include "psi/PMTParser.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zumtest::Bytes;
using zumtest::Desc;

namespace {

struct Stream { unsigned type, pid; Bytes descriptors; };
struct Program { unsigned number, version = 0, pcr = 0x100; Bytes descriptors; std::vector<Stream> streams;
                 unsigned section = 0, last = 0; };

using Pairs = std::vector<std::pair<int, int>>; // stream type, PID

Bytes Pmt(const Program& p)
{
    zumtest::SectionBuilder b(zumtest::LongHeader(0x02, p.number, p.version, p.section, p.last));
    b.U16(0xE000 | p.pcr).Begin16(12).Raw(p.descriptors).End();
    for (const Stream& s : p.streams)
        b.U8(s.type).U16(0xE000 | s.pid).Begin16(12).Raw(s.descriptors).End();
    return b.Build();
}

Pairs Streams(const TCPMTInstance* instance)
{
    Pairs out;
    for (int i = 0; i < instance->NumOfElementary(); ++i) {
        const TCPMTElementary* e = instance->PMTElementary(static_cast<unsigned>(i));
        out.emplace_back(e->StreamType(), e->ElementaryPID());
    }
    return out;
}

} // namespace

TEST(PMTParser, ProgramsFilterAndInitialize)
{
    zumtest::BinderScope binder;
    TCPMTParser pmt{ZUMHandle()};
    pmt.Initialize();
    const Program news{0x0101, 0, 0x0100, Desc(0x09, {0x0B, 0x00, 0xE1, 0x23}),
                       {{0x1B, 0x0100, Desc(0x52, {0x01})},
                        {0x04, 0x0101, zumtest::Concat({Desc(0x0A, {'e', 'n', 'g', 0}), Desc(0x52, {0x02})})},
                        {0x06, 0x0102, Desc(0x59, {'e', 'n', 'g', 0x10, 0, 1, 0, 2})}}};
    const Bytes s = Pmt(news);
    EXPECT_TRUE(pmt.Parse(0x1000, s.data()));
    EXPECT_TRUE(pmt.IsChannelListUpdateRequired());
    EXPECT_EQ(pmt.LastProgramNumber(), 0x0101);
    TCPMTInstance* program = pmt.PMTInstance(0x0101);
    ASSERT_NE(program, nullptr);
    EXPECT_EQ(std::make_tuple(program->Pid(), program->ProgramNumber(), program->PCRPid(), program->ProgramInfoLength(),
                              program->CurrentNextIndicator(), program->NumOfDescriptors(0x09)),
              std::make_tuple(0x1000, 0x0101, 0x0100, 6, true, 1));
    EXPECT_EQ(Streams(program), (Pairs{{0x1B, 0x100}, {0x04, 0x101}, {0x06, 0x102}}));
    const TCPMTElementary* audio = program->PMTElementary(1);
    EXPECT_EQ(std::make_tuple(audio->ESInfoLength(), audio->NumOfDescriptors(), audio->NumOfDescriptors(0x52),
                              audio->DescriptorByIndex(0)->TableId()),
              std::make_tuple(9, 2, 1, 0x02));
    EXPECT_EQ(program->PMTElementary(3), nullptr);

    // Instances are ordered by program number, whatever the order of arrival.
    EXPECT_TRUE(pmt.Parse(0x1003, Pmt({0x0300, 0, 0x0300, {}, {{0x03, 0x0301, {}}}}).data()));
    EXPECT_TRUE(pmt.Parse(0x1002, Pmt({0x0200, 0, 0x0200, {}, {{0x02, 0x0201, {}}}}).data()));
    ASSERT_EQ(pmt.NumOfPMTInstance(), 3);
    EXPECT_EQ(pmt.PMTInstanceOfIndex(0), program);
    EXPECT_EQ(pmt.PMTInstanceOfIndex(1)->ProgramNumber(), 0x0200);
    EXPECT_EQ(pmt.PMTInstanceOfIndex(2)->Pid(), 0x1003);
    EXPECT_EQ(pmt.PMTInstanceOfIndex(3), nullptr);

    // Initialize drops the memory of stream lists too: the first parse asks for an update again.
    pmt.Initialize();
    EXPECT_EQ(pmt.NumOfPMTInstance(), 0);
    EXPECT_EQ(pmt.LastProgramNumber(), 0xFFFF);
    EXPECT_TRUE(pmt.Parse(0x1000, s.data()));
    EXPECT_TRUE(pmt.IsChannelListUpdateRequired());

    // The filter keeps program 5 on PID 0x100 only.
    std::map<int, int> filter{{TCPMTParser::PMTKey(0x100, 5), 0}};
    EXPECT_EQ(TCPMTParser::PMTKey(0x100, 5), 0x01000005);
    // Computed in unsigned arithmetic: no undefined shift for a PID of 0x8000 and above, or a negative one.
    static_assert(TCPMTParser::PMTKey(0x8000, 5) == static_cast<int>(0x80000005u), "PID 0x8000");
    static_assert(TCPMTParser::PMTKey(-1, 5) == static_cast<int>(0xFFFF0005u), "PID of short -1");
    pmt.UpdatePMTElements(filter);
    const Program five{5, 0, 0x20, {}, {{0x02, 0x21, {}}}}, six{6, 0, 0x30, {}, {{0x02, 0x31, {}}}};
    EXPECT_TRUE(pmt.Parse(0x100, Pmt(five).data()));
    EXPECT_FALSE(pmt.Parse(0x101, Pmt(Program{5, 1, 0x20, {}, {}}).data()));
    EXPECT_FALSE(pmt.Parse(0x100, Pmt(six).data()));
    EXPECT_FALSE(pmt.IsChannelListUpdateRequired());
    EXPECT_EQ(pmt.LastProgramNumber(), 5);
    EXPECT_EQ(pmt.NumOfPMTInstance(), 2);
    EXPECT_EQ(pmt.PMTInstance(5)->NumOfElementary(), 1);
    pmt.ClearPMTElements();
    EXPECT_TRUE(pmt.Parse(0x100, Pmt(six).data()));
    pmt.UpdatePMTElements(filter);
    pmt.Initialize(); // empties the filter as well
    EXPECT_TRUE(pmt.Parse(0x100, Pmt(six).data()));
}

// Sections of one program in a row: whether the caller must rebuild its
// channel list follows the stream types and their order only.
TEST(PMTParser, ChannelListUpdateFollowsStreamTypes)
{
    struct Step { const char* name; unsigned version, section, last; std::vector<Stream> es; bool parsed, update; };
    const Step steps[] = {
        {"first", 0, 0, 0, {{0x02, 0x101, {}}, {0x03, 0x102, {}}}, true, true},
        {"a PID changes", 1, 0, 0, {{0x02, 0x111, {}}, {0x03, 0x102, {}}}, true, false},
        {"descriptors change", 2, 0, 0, {{0x02, 0x111, Desc(0x52, {1})}, {0x03, 0x102, {}}}, true, false},
        {"two streams swap", 3, 0, 0, {{0x03, 0x102, {}}, {0x02, 0x111, {}}}, true, true},
        {"the same section again", 3, 0, 0, {{0x03, 0x102, {}}, {0x02, 0x111, {}}}, false, false},
        {"identical list again", 4, 0, 0, {{0x03, 0x102, {}}, {0x02, 0x111, {}}}, true, false},
        {"ignored section changes nothing", 5, 2, 1, {{0x03, 0x102, {}}, {0x02, 0x111, {}}}, false, false},
        {"a stream is added", 5, 0, 0, {{0x03, 0x102, {}}, {0x02, 0x111, {}}, {0x06, 0x113, {}}}, true, true},
        {"no streams", 6, 0, 0, {}, true, true},
        {"no streams again", 7, 0, 0, {}, true, true},
    };
    zumtest::BinderScope binder;
    TCPMTParser pmt{ZUMHandle()};
    for (const Step& st : steps) {
        SCOPED_TRACE(st.name);
        zumtest::LogCapture log;
        EXPECT_EQ(pmt.Parse(0x40, Pmt({7, st.version, 0x100, {}, st.es, st.section, st.last}).data()), st.parsed);
        EXPECT_EQ(pmt.IsChannelListUpdateRequired(), st.update);
        EXPECT_EQ(pmt.PMTInstance(7)->NumOfElementary(), static_cast<int>(st.es.size()));
        // The header fields are stored for every section, before any test.
        EXPECT_EQ(pmt.PMTInstance(7)->SectionNumber(), st.section);
        EXPECT_EQ(log.Count("PMT Section Ignored... "), st.section > st.last ? 1 : 0);
    }

    // A program of two sections is compared once it is complete.
    EXPECT_FALSE(pmt.Parse(0x40, Pmt({7, 8, 0x100, {}, {{0x02, 0x101, {}}}, 0, 1}).data()));
    EXPECT_FALSE(pmt.IsChannelListUpdateRequired());
    EXPECT_TRUE(pmt.Parse(0x40, Pmt({7, 8, 0x100, {}, {{0x04, 0x102, {}}}, 1, 1}).data()));
    EXPECT_TRUE(pmt.IsChannelListUpdateRequired());
    EXPECT_EQ(Streams(pmt.PMTInstance(7)), (Pairs{{0x02, 0x101}, {0x04, 0x102}}));
}

TEST(PMTParser, InnerLengthsAgainstTheSection)
{
    zumtest::BinderScope binder;
    // The body behind the header: PCR_PID, program_info_length, ...
    const auto section = [](const Bytes& body) {
        zumtest::SectionBuilder b(zumtest::LongHeader(0x02, 1));
        b.Raw(body);
        return b.Build();
    };
    struct Case { const char* name; Bytes section; Pairs streams; int lastEsInfoLength; std::string log; } cases[] = {
        {"program_info_length beyond the section",
         section(zumtest::Concat({{0xE1, 0x00, 0xF0, 40}, Desc(0x09, {1, 2})})), {}, 0,
         "TCPMTInstance::m_Parse, m_programInfoLength[40] Error"},
        {"ES_info_length passing the end is cut",
         section(zumtest::Concat({{0xE1, 0x00, 0xF0, 0x00, 0x02, 0xE1, 0x01, 0xF0, 30}, Desc(0x52, {1})})),
         {{0x02, 0x101}}, 3, ""},
        {"fewer than five bytes in front of the CRC", section({0xE1, 0x00, 0xF0, 0x00, 0x1B, 0xE1, 0xFF}),
         {{0x1B, 0x1FF}}, -2, "[Warning] TCDescriptorBase::Parse total len is not correct!inLen=-2, outLen=0"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        TCPMTParser pmt{ZUMHandle()};
        zumtest::LogCapture log;
        EXPECT_TRUE(pmt.Parse(0x50, c.section.data()));
        TCPMTInstance* program = pmt.PMTInstance(1);
        ASSERT_NE(program, nullptr);
        EXPECT_EQ(program->PCRPid(), 0x100);
        EXPECT_EQ(Streams(program), c.streams);
        const int n = program->NumOfElementary();
        EXPECT_EQ(n ? program->PMTElementary(n - 1)->ESInfoLength() : 0, c.lastEsInfoLength);
        EXPECT_EQ(log.Count(c.log), c.log.empty() ? 0 : 1);
    }

    TCPMTElementary fresh{ZUMHandle()};
    zumtest::LogCapture log;
    EXPECT_EQ(fresh.StreamType(), 0);
    EXPECT_EQ(fresh.ElementaryPID(), 0);
    EXPECT_TRUE(log.Contains("Failed: m_elementary_PID != INVALID"));
}

TEST(PMTParser, RealCaptureSections)
{
    int seen = 0;
    for (const char* name : {"tsduck_tsduck__psi_pmt_hevc_sections.0.PMT.bin",
                             "tsduck_tsduck__psi_pmt_planete_sections.0.PMT.bin",
                             "cablelabs_mpegtssections-js__pmt_etv.PMT.bin"}) {
        SCOPED_TRACE(name);
        std::ifstream in(std::string(ZUM_CAPTURES_DIR) + "/" + name, std::ios::binary);
        const Bytes s((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
        if (s.empty())
            continue;
        ++seen;
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
    }
    if (seen == 0)
        GTEST_SKIP() << "captures not present";
}
