#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <sys/stat.h>
#include <tuple>
#include <vector>

#include <zum-platform/Dlog.h>

#include "dvb/DVBEITParser.h"
#include "support/LogCapture.h"

namespace {

using Bytes = std::vector<unsigned char>;

// Sections back to back, each from its table_id; a cut last one is dropped.
std::vector<Bytes> ReadSections(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    const Bytes all((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    std::vector<Bytes> out;
    size_t at = 0;
    while (at + 3 <= all.size()) {
        const size_t size = static_cast<size_t>(((all[at + 1] & 0x0F) << 8) | all[at + 2]) + 3;
        if (at + size > all.size())
            break;
        out.emplace_back(all.begin() + static_cast<long>(at), all.begin() + static_cast<long>(at + size));
        at += size;
    }
    return out;
}

bool IsEit(unsigned char tableId)
{
    return tableId >= 0x4E && tableId <= 0x6F;
}

// Tags and lengths of a raw loop add up to its length.
bool LoopWalks(const unsigned char* loop, int length)
{
    int at = 0;
    while (at + 2 <= length)
        at += 2 + loop[at + 1];
    return at == length;
}

unsigned int Crc(const Bytes& s)
{
    const size_t n = s.size();
    return (static_cast<unsigned int>(s[n - 4]) << 24) | (s[n - 3] << 16) | (s[n - 2] << 8) | s[n - 1];
}

} // namespace

// Real EIT sections: every one is taken by the parser, and every new one
// decodes into events that fill the section exactly, with sane times.
TEST(DVBEITCapture, RecordedSectionsDecode)
{
    const std::string dir = ZUM_CAPTURES_DIR;
    struct stat st {};
    if (stat(dir.c_str(), &st) != 0)
        GTEST_SKIP() << "no captures at " << dir;

    const char* files[] = {
        "tsduck_tsduck-test__test-038.bin",              // Czech p/f and schedule
        "tsduck_tsduck-test__ref_test-002.tstables.bin", // Italian p/f among other tables
        "tsduck_tsduck-test__ref_test-170.tstables.bin", // Brazilian ISDB-Tb p/f
    };
    // 1 January 2000 and 1 January 2040, in seconds since 6 January 1980.
    const unsigned int earliest = 630720000u, latest = 1893024000u;

    int eitSections = 0, events = 0;
    for (const char* file : files) {
        SCOPED_TRACE(file);
        const std::vector<Bytes> sections = ReadSections(dir + "/" + file);
        if (sections.empty())
            continue;
        TCDVBEITParser parser(0x4E, ZUMHandle());
        parser.Initialize();
        // One item per service and table, as a guide keeps them.
        std::map<std::tuple<int, int, int, int>, std::unique_ptr<TCDVBEITItem>> items;
        std::map<std::tuple<int, int, int, int>, std::set<unsigned int>> seen;
        zumtest::LogCapture log;
        for (const Bytes& s : sections) {
            if (!IsEit(s[0]))
                continue;
            ++eitSections;
            ASSERT_GE(s.size(), 18u);
            // Each vector holds exactly its section, so that a read past it shows.
            parser.Parse(0x12, s.data());

            const int sid = (s[3] << 8) | s[4], tsid = (s[8] << 8) | s[9], onid = (s[10] << 8) | s[11];
            TCDVBEITInstance* instance = parser.EITInstance(TCServiceKey(
                static_cast<unsigned short>(onid), static_cast<unsigned short>(tsid), static_cast<unsigned short>(sid)));
            ASSERT_NE(instance, nullptr);
            EXPECT_EQ(instance->TransportStreamId(), tsid);
            EXPECT_EQ(instance->OriginalNetworkId(), onid);

            const auto key = std::make_tuple(onid, tsid, sid, static_cast<int>(s[0]));
            std::unique_ptr<TCDVBEITItem>& item = items[key];
            if (!item)
                item = std::make_unique<TCDVBEITItem>(onid, tsid, sid, ZUMHandle());
            const bool fresh = item->Parse(s.data(), static_cast<int>(s.size()), (s[5] >> 1) & 0x1F, s[6],
                                           s[7], s[0]);
            const bool known = !seen[key].insert(Crc(s)).second;
            if (!fresh) {
                // Only a repeat of a section already held is turned away.
                EXPECT_TRUE(known) << "section " << int(s[6]) << " of service " << sid;
                continue;
            }
            size_t covered = 0;
            events += item->NumOfDVBEITItemEvent();
            for (int i = 0; i < item->NumOfDVBEITItemEvent(); ++i) {
                const TCDVBEITItemEvent* e = item->DVBEITItemEvent(static_cast<unsigned>(i));
                covered += 12u + e->DescriptorsLength();
                EXPECT_TRUE(e->StartTime() == 0xFFFFFFFFu || (e->StartTime() >= earliest && e->StartTime() < latest))
                    << e->StartTime();
                EXPECT_TRUE(e->Duration() == 0xFFFFFFu || e->Duration() <= 7u * 86400u) << e->Duration();
                EXPECT_TRUE(LoopWalks(e->Descriptors(), e->DescriptorsLength()));
                EXPECT_EQ(e->TableId(), s[0]);
            }
            EXPECT_EQ(covered, s.size() - 18) << "section " << int(s[6]) << " of service " << sid;
        }
        EXPECT_TRUE(log.Lines(DLOG_ERROR).empty());
    }
    EXPECT_GT(eitSections, 300);
    EXPECT_GT(events, 800);
}
