// The shipped sample stream: what zum-gen-sample writes, checked through the
// demultiplexer (the byte-for-byte comparison with the generator runs in ctest).

#include <gtest/gtest.h>
#include <zlib.h>

#include <fstream>
#include <iterator>
#include <map>
#include <utility>
#include <vector>

#include "inspect/TsDemux.h"

using Bytes = std::vector<uint8_t>;

namespace {

struct Sample {
    zuminspect::DemuxStats stats;
    std::map<std::pair<uint16_t, uint8_t>, std::vector<Bytes>> sections;
};

Sample ReadSample()
{
    std::ifstream in(ZUM_SOURCE_DIR "/samples/sample.ts", std::ios::binary);
    const Bytes data((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    Sample sample;
    zuminspect::TsDemux demux([&sample](uint16_t pid, const uint8_t* section, size_t size) {
        sample.sections[{pid, section[0]}].push_back(Bytes(section, section + size));
    });
    demux.Feed(data.data(), data.size());
    demux.Finish();
    sample.stats = demux.Stats();
    return sample;
}

} // namespace

TEST(Sample, HoldsEveryTableWhole)
{
    const Sample sample = ReadSample();
    ASSERT_GT(sample.stats.packets, 0u) << "samples/sample.ts missing";
    EXPECT_LE(sample.stats.packets * 188, 64u * 1024);
    const std::map<std::pair<uint16_t, uint8_t>, size_t> expected = {
        {{0x0000, 0x00}, 1}, {{0x0100, 0x02}, 1}, {{0x0200, 0x02}, 1}, {{0x0300, 0x02}, 1},
        {{0x0010, 0x40}, 1}, {{0x0011, 0x42}, 1}, {{0x0012, 0x4E}, 6}, {{0x0012, 0x50}, 2},
        {{0x0012, 0x80}, 2}, {{0x0014, 0x70}, 1}, {{0x0014, 0x73}, 1},
    };
    std::map<std::pair<uint16_t, uint8_t>, size_t> seen;
    for (const auto& entry : sample.sections)
        seen[entry.first] = entry.second.size();
    EXPECT_EQ(seen, expected);
    EXPECT_EQ(sample.stats.crcErrors + sample.stats.continuityErrors + sample.stats.droppedSections +
                  sample.stats.truncatedPackets + sample.stats.unfinishedSections,
              0u);
}

TEST(Sample, CompressedScheduleOpensToThePlainOne)
{
    const Sample sample = ReadSample();
    const auto plain = sample.sections.find({0x0012, 0x50});
    const auto compressed = sample.sections.find({0x0012, 0x80});
    ASSERT_NE(plain, sample.sections.end());
    ASSERT_NE(compressed, sample.sections.end());
    ASSERT_EQ(plain->second.size(), compressed->second.size());
    for (size_t i = 0; i < plain->second.size(); ++i) {
        const Bytes& p = plain->second[i];
        const Bytes& c = compressed->second[i];
        // Same header but for the table ids; the event loop sits between byte 14 and the CRC_32.
        EXPECT_EQ(Bytes(c.begin() + 3, c.begin() + 13), Bytes(p.begin() + 3, p.begin() + 13));
        EXPECT_EQ(c[13], 0x80);
        Bytes events(4096);
        uLongf size = events.size();
        ASSERT_EQ(uncompress(events.data(), &size, c.data() + 14, c.size() - 18), Z_OK);
        events.resize(size);
        EXPECT_EQ(events, Bytes(p.begin() + 14, p.end() - 4)) << "section " << i;
    }
}
