#ifndef ZUM_BENCH_BENCHTABLES_H
#define ZUM_BENCH_BENCHTABLES_H

// The sections every benchmark of a family decodes: realistic tables of a
// DVB-T multiplex, built with the test kit's section builder. Each table comes
// in two versions that differ only in version_number (and so in CRC_32), fed
// alternately, so that every pass is a real change and never a repetition.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "support/SectionBuilder.h"

namespace zumbench {

using zumtest::Bytes;

enum class Family {
    Pat, Pmt, Nit, Bat, Sdt, EitPf, EitSchedule, EitScheduleCompressed, DescriptorLoop, Mgt, Tvct, EitIsdb, PsipEit,
    // Tables no peer decodes: timed against the floor only.
    Svct, Aeit, Sgt, Tkgs, Fst,
};

const std::vector<Family>& AllFamilies();
const char* FamilyName(Family family);

struct Table {
    uint16_t pid = 0;
    unsigned tableId = 0;
    // versions[0] and versions[1]: the same sections, version 4 and version 5.
    std::vector<Bytes> versions[2];

    size_t Sections() const { return versions[0].size(); }
    size_t TotalBytes() const;
    // The sections of pass `pass`: even passes version 4, odd passes version 5.
    const std::vector<Bytes>& Pass(uint64_t pass) const { return versions[pass & 1]; }
};

// For the descriptor loop family the one "section" is the bare loop.
const Table& TableOf(Family family);

// Identifiers the tables use, for the decoders that are set up per table.
constexpr unsigned kTransportStreamId = 0x1001;
constexpr unsigned kOriginalNetworkId = 0x3001;
constexpr unsigned kNetworkId = 0x3001;
constexpr unsigned kBouquetId = 0x6252;
constexpr unsigned kProgramNumber = 0x0101;
constexpr unsigned kEitServiceId = 0x0101;
constexpr unsigned kPrivateDataSpecifier = 0x00000028;

// What one version of each table holds, for the checks that precede timing.
constexpr int kPatPrograms = 16;
constexpr int kPmtStreams = 5;
constexpr int kPmtDescriptors = 12;
constexpr int kNitTransportStreams = 20;
constexpr int kSdtServices = 40;
constexpr int kEitScheduleEventsPerSection = 10;
// The ISDB schedule (EIT-isdb) has as many events, each with seven descriptors.
constexpr int kIsdbEventDescriptors = 7;
constexpr int kDescriptorLoopDescriptors = 7;
constexpr int kMgtTables = 19;
constexpr int kTvctChannels = 8;
constexpr int kPsipEitSections = 4;
constexpr int kPsipEitEventsPerSection = 8;
constexpr unsigned kPsipEitSourceId = 0x0003;
constexpr int kSvctChannels = 24;
constexpr int kAeitSources = 4;
constexpr int kAeitEventsPerSource = 6;
constexpr int kSgtServices = 60;
constexpr int kFstServices = 80;
constexpr int kTkgsServices = 24;
constexpr int kTkgsLists = 2;

// What a peer's pass must decode, so that no benchmark times a refusal: the
// descriptors that the library decodes into objects (the PAT: its programs;
// the MGT, TVCT and PSIP EIT: their table entries, channels and events, since
// GStreamer decodes no PSIP descriptor).
int DecodedByPeers(Family family);

} // namespace zumbench

#endif
