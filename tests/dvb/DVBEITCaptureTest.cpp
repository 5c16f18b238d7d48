#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include <zum-platform/Dlog.h>

#include "dvb/DVBEITParser.h"
#include "support/LogCapture.h"

// Real EIT sections: every one is taken by the parser, every new one decodes
// into events that fill the section exactly, with sane times, and only a
// repeat is turned away.
TEST(DVBEITCapture, RecordedSectionsDecode)
{
    using Bytes = std::vector<unsigned char>;
    const std::string dir = ZUM_CAPTURES_DIR;
    // Czech p/f and schedule, Italian p/f among other tables, Brazilian ISDB-Tb p/f.
    const char* files[] = {"tsduck_tsduck-test__test-038.bin", "tsduck_tsduck-test__ref_test-002.tstables.bin",
                           "tsduck_tsduck-test__ref_test-170.tstables.bin"};
    if (!std::ifstream(dir + "/" + files[0]))
        GTEST_SKIP() << "no captures at " << dir;
    const unsigned int year2000 = 630720000u, year2040 = 1893024000u; // seconds since 6 January 1980
    int eitSections = 0, events = 0;
    for (const char* file : files) {
        SCOPED_TRACE(file);
        std::ifstream in(dir + "/" + file, std::ios::binary);
        const Bytes all((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
        TCDVBEITParser parser(0x4E, ZUMHandle());
        std::map<std::tuple<int, int, int, int>, std::unique_ptr<TCDVBEITItem>> items; // as a guide keeps them
        std::map<std::tuple<int, int, int, int>, std::set<Bytes>> seen;
        zumtest::LogCapture log;
        for (size_t at = 0, size = 0; at + 3 <= all.size(); at += size) {
            size = static_cast<size_t>(((all[at + 1] & 0x0F) << 8) | all[at + 2]) + 3;
            if (at + size > all.size())
                break;
            // Each vector holds exactly its section, so that a read past it shows.
            const Bytes s(all.begin() + static_cast<long>(at), all.begin() + static_cast<long>(at + size));
            if (s[0] < 0x4E || s[0] > 0x6F)
                continue;
            ++eitSections;
            ASSERT_GE(s.size(), 18u);
            parser.Parse(0x12, s.data());
            const auto sid = static_cast<unsigned short>((s[3] << 8) | s[4]);
            const auto tsid = static_cast<unsigned short>((s[8] << 8) | s[9]);
            const auto onid = static_cast<unsigned short>((s[10] << 8) | s[11]);
            EXPECT_NE(parser.EITInstance(TCServiceKey(onid, tsid, sid)), nullptr);
            const auto key = std::make_tuple(int(onid), int(tsid), int(sid), int(s[0]));
            std::unique_ptr<TCDVBEITItem>& item = items[key];
            if (!item)
                item.reset(new TCDVBEITItem(onid, tsid, sid, ZUMHandle()));
            const bool known = !seen[key].insert(s).second;
            if (!item->Parse(s.data(), static_cast<int>(s.size()), (s[5] >> 1) & 0x1F, s[6], s[7], s[0])) {
                EXPECT_TRUE(known) << "section " << int(s[6]) << " of service " << sid;
                continue;
            }
            size_t covered = 0;
            events += item->NumOfDVBEITItemEvent();
            for (int i = 0; i < item->NumOfDVBEITItemEvent(); ++i) {
                const TCDVBEITItemEvent* e = item->DVBEITItemEvent(static_cast<unsigned>(i));
                covered += 12u + e->DescriptorsLength();
                EXPECT_TRUE(e->StartTime() == 0xFFFFFFFFu || (e->StartTime() >= year2000 && e->StartTime() < year2040));
                EXPECT_TRUE(e->Duration() == 0xFFFFFFu || e->Duration() <= 7u * 86400u) << e->Duration();
            }
            EXPECT_EQ(covered, s.size() - 18) << "section " << int(s[6]) << " of service " << sid;
        }
        EXPECT_TRUE(log.Lines(DLOG_ERROR).empty());
    }
    EXPECT_GT(eitSections, 300);
    EXPECT_GT(events, 800);
}
