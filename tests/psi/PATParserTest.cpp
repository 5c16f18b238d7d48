#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <tuple>
#include <utility>
#include <vector>

#include "psi/PATParser.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"

using zumtest::Bytes;

namespace {

using Programs = std::vector<std::pair<unsigned, unsigned>>; // number, PID

Bytes Pat(unsigned tsid, unsigned version, unsigned section, unsigned last, const Programs& programs)
{
    zumtest::SectionBuilder b(zumtest::LongHeader(0x00, tsid, version, section, last));
    for (const auto& p : programs)
        b.U16(p.first).U16(0xE000 | p.second);
    return b.Build();
}

Programs Listed(const TCPATParser& pat)
{
    Programs out;
    for (int i = 0; i < pat.NumOfProgramList(); ++i) {
        const int n = pat.ProgramNumber(static_cast<unsigned>(i));
        out.emplace_back(n, pat.ProgramPID(static_cast<unsigned short>(n)));
    }
    return out;
}

Bytes ReadFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return Bytes(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

} // namespace

TEST(PATParser, SectionsAccumulateVersionsReplaceAndInitializeForgets)
{
    struct Step { unsigned tsid, version, section, last; Programs programs; bool result; Programs listed; } steps[] = {
        {9, 1, 1, 1, {{20, 0x200}}, false, {{20, 0x200}}},
        {9, 1, 1, 1, {{20, 0x200}}, false, {{20, 0x200}}}, // the same section again is no news
        // A repeated number is listed twice; ProgramPID answers the entry inserted first.
        {9, 1, 0, 1, {{10, 0x100}, {20, 0x201}}, true, {{10, 0x100}, {20, 0x200}, {20, 0x200}}},
        // A new CRC_32 at the same version: the table starts again from that section.
        {9, 1, 0, 1, {{11, 0x110}}, false, {{11, 0x110}}},
        // Listed by number, not by arrival; program 0 names the network PID and is no entry.
        {0x441, 2, 0, 0, {{0x203, 0x102}, {0, 0x1FFE}, {0x101, 0x1FFF}}, true, {{0x101, 0x1FFF}, {0x203, 0x102}}},
        {0x442, 2, 1, 0, {{40, 0x400}}, false, {{0x101, 0x1FFF}, {0x203, 0x102}}}, // section above the last
    };
    TCPATParser pat{ZUMHandle()};
    pat.Initialize();
    EXPECT_FALSE(pat.IsRecv());
    zumtest::LogCapture log;
    for (size_t i = 0; i < sizeof steps / sizeof steps[0]; ++i) {
        SCOPED_TRACE(i);
        const Step& st = steps[i];
        EXPECT_EQ(pat.Parse(0, Pat(st.tsid, st.version, st.section, st.last, st.programs).data()), st.result);
        EXPECT_EQ(Listed(pat), st.listed);
    }
    for (const char* line : {"PAT Section Ignored... ", "Program Number is ZERO!!(SIT..)", "Program Number[515]",
                             "PMT PID[258]"})
        EXPECT_EQ(log.Count(line), 1) << line;
    EXPECT_TRUE(pat.IsRecv());
    EXPECT_EQ(std::make_tuple(pat.TransportStreamId(), pat.ZeroProgramPid(), pat.ProgramNumber(2),
                              pat.ProgramPID(0x9999)),
              std::make_tuple(0x441, 0x1FFE, -1, -1));
    pat.Initialize();
    EXPECT_FALSE(pat.IsRecv());
    EXPECT_EQ(std::make_tuple(pat.NumOfProgramList(), pat.ZeroProgramPid(), pat.TransportStreamId()),
              std::make_tuple(0, -1, 0));
}

TEST(PATParser, EmptyTablesAtTheLengthBoundaries)
{
    // section_length 9 (CRC only) to 12: no entry; 13 reads one.
    for (unsigned extra = 0; extra <= 4; ++extra) {
        SCOPED_TRACE(extra);
        zumtest::SectionBuilder b{zumtest::SectionHeader()};
        for (unsigned i = 0; i < extra; ++i)
            b.U8(i == 0 ? 0x00 : 0x01);
        const Bytes s = b.Build();
        ASSERT_EQ(((s[1] & 0x0F) << 8 | s[2]), static_cast<int>(9 + extra));
        TCPATParser pat{ZUMHandle()};
        EXPECT_TRUE(pat.Parse(0, s.data()));
        EXPECT_TRUE(pat.IsRecv());
        EXPECT_EQ(pat.NumOfProgramList(), extra == 4 ? 1 : 0);
    }
}

TEST(PATParser, RealCaptureAndShippedSample)
{
    EXPECT_EQ(ReadFile(std::string(ZUM_SOURCE_DIR) + "/samples/pat.sec"),
              Pat(0x0001, 0, 0, 0, {{0, 0x0010}, {0x0101, 0x0100}, {0x0102, 0x0110}, {0x0103, 0x0120}}));

    const Bytes s = ReadFile(std::string(ZUM_CAPTURES_DIR) + "/tsduck_tsduck__psi_pat_r4_sections.0.PAT.bin");
    if (s.empty())
        GTEST_SKIP() << "captures not present";
    ASSERT_EQ(s.size(), 3u + (((s[1] & 0x0F) << 8) | s[2]));
    TCPATParser pat{ZUMHandle()};
    EXPECT_TRUE(pat.Parse(0, s.data()));
    // Every program of the section is listed.
    EXPECT_EQ(pat.NumOfProgramList() + (pat.ZeroProgramPid() >= 0 ? 1 : 0), static_cast<int>((s.size() - 12) / 4));
}
