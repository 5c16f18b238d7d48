// The demultiplexer over the real broadcast captures beside the project, when
// they are there.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "inspect/TsDemux.h"
#include "support/Crc32.h"

namespace fs = std::filesystem;
using zuminspect::InputKind;
using zuminspect::TsDemux;

namespace {

using Counts = std::map<std::pair<uint16_t, uint8_t>, uint64_t>; // (PID, table id) -> sections

struct CaptureRun {
    InputKind kind;
    zuminspect::DemuxStats stats;
    Counts counts;
};

CaptureRun DemuxFile(const fs::path& path)
{
    std::ifstream in(path, std::ios::binary);
    const std::vector<uint8_t> data((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    CaptureRun run{zuminspect::DetectInputKind(data.data(), data.size()), {}, {}};
    TsDemux demux(
        [&run, &path](uint16_t pid, const uint8_t* section, size_t size) {
            ASSERT_EQ(size, static_cast<size_t>(((section[1] & 0x0F) << 8) | section[2]) + 3) << path;
            if (section[1] & 0x80) {
                EXPECT_EQ(zumtest::Crc32Mpeg(section, size), 0u) << path;
            }
            ++run.counts[{pid, section[0]}];
        },
        run.kind);
    // In pieces, as a file is read.
    for (size_t pos = 0; pos < data.size(); pos += 4096)
        demux.Feed(data.data() + pos, std::min<size_t>(4096, data.size() - pos));
    demux.Finish();
    run.stats = demux.Stats();
    return run;
}

fs::path CapturesDir()
{
    return fs::path(ZUM_CAPTURES_DIR);
}

} // namespace

TEST(Captures, EveryFileDemultiplexes)
{
    if (!fs::is_directory(CapturesDir()))
        GTEST_SKIP() << "no captures at " << CapturesDir();
    int files = 0;
    for (const fs::directory_entry& entry : fs::directory_iterator(CapturesDir())) {
        const std::string extension = entry.path().extension().string();
        if (extension != ".ts" && extension != ".bin")
            continue;
        ++files;
        const CaptureRun run = DemuxFile(entry.path());
        EXPECT_EQ(run.kind, extension == ".ts" ? InputKind::TransportStream : InputKind::Sections) << entry.path();
        if (extension == ".ts") {
            EXPECT_EQ(run.stats.packetSize, 188u) << entry.path();
            EXPECT_EQ(run.stats.syncLosses, 0u) << entry.path();
        }
        EXPECT_GT(run.stats.sections, 0u) << entry.path();
    }
    EXPECT_GT(files, 0);
}

TEST(Captures, SectionCountsMatchTheManifest)
{
    if (!fs::is_directory(CapturesDir()))
        GTEST_SKIP() << "no captures at " << CapturesDir();
    const uint16_t none = zuminspect::kNoPid;
    // Files whose every section is whole: the manifest counts them exactly.
    const std::vector<std::pair<std::string, Counts>> expectations = {
        {"tsduck_tsduck-test__test-018.ts", // Italian DVB-T mux with AIT, TDT and TOT
         {{{0x0000, 0x00}, 9}, {{0x0010, 0x40}, 2}, {{0x0011, 0x42}, 2}, {{0x0014, 0x70}, 4}, {{0x0014, 0x73}, 3},
          {{0x0100, 0x02}, 17}, {{0x0101, 0x02}, 18}, {{0x1EC5, 0x74}, 2}, {{0x1EC6, 0x74}, 2},
          {{0x1EC7, 0x74}, 2}}},
        {"tsduck_tsduck-test__test-012.ts", // one service with video and audio PIDs around its PAT and PMT
         {{{0x0000, 0x00}, 78}, {{0x00A0, 0x02}, 77}}},
        {"petrj_MPEGTS__TestData.China_stream-2021-10-05-06-36-43.ts", // three continuity breaks
         {{{0x0000, 0x00}, 322}, {{0x0010, 0x40}, 19}, {{0x0011, 0x42}, 19}, {{0x0012, 0x4E}, 132},
          {{0x0012, 0x50}, 262}, {{0x0012, 0x51}, 65}, {{0x1392, 0x02}, 116}}},
        {"petrj_MPEGTS__SDT.CA3.ts", {{{0x0011, 0x42}, 26}, {{0x0011, 0x4A}, 5}}},
        {"tsduck_tsduck__psi_nit_tntv23_packets.ts", {{{0x0010, 0x40}, 1}}}, // one NIT over six packets
        {"tsduck_tsduck-test__test-101.ts", // ISDB-S
         {{{0x0000, 0x00}, 1}, {{0x0010, 0x40}, 1}, {{0x0012, 0x4F}, 1}, {{0x0012, 0x60}, 2},
          {{0x0101, 0x02}, 1}, {{0x0201, 0x02}, 1}, {{0x0203, 0x02}, 1}}},
        {"phpbg_dvbpsi__2_mpegts_tot_packets.ts", {{{0x0014, 0x73}, 2}}}, // the same packet twice
        {"tsduck_tsduck-test__test-038.bin", {{{none, 0x4E}, 64}, {{none, 0x50}, 263}}},
    };
    for (const auto& expectation : expectations) {
        const fs::path path = CapturesDir() / expectation.first;
        if (!fs::exists(path))
            continue;
        const CaptureRun run = DemuxFile(path);
        EXPECT_EQ(run.counts, expectation.second) << expectation.first;
        EXPECT_EQ(run.stats.crcErrors, 0u) << expectation.first;
    }
}

TEST(Captures, ReceptionErrorsAreCountedNotDelivered)
{
    // PID 0x0112 of this capture carries EIT sections damaged on air.
    const fs::path path = CapturesDir() / "tsduck_tsduck-test__test-030.ts";
    if (!fs::exists(path))
        GTEST_SKIP() << "no " << path;
    const CaptureRun run = DemuxFile(path);
    const zuminspect::PidStats& eit = run.stats.pids.at(0x0112);
    EXPECT_GT(eit.crcErrors + eit.droppedSections, 0u);
    EXPECT_GT(eit.continuityErrors + eit.transportErrors, 0u);
    // The other PIDs are untouched by it.
    EXPECT_EQ((run.counts.at({0x0000, 0x00})), 35u);
    EXPECT_EQ((run.counts.at({0x0001, 0x01})), 35u);
    EXPECT_EQ((run.counts.at({0x0012, 0x4E})), 57u);
}
