// The library's own benchmarks: each pass hands the sections of one table
// version to a parser that holds the other version, as a receiver meets a
// version change; the parser drops the old table and decodes the new one.

#include <cstring>
#include <functional>
#include <memory>
#include <optional>

#include <zum-platform/PlatformConfig.h>

#include <zum-parser/atsc/EITParser.h>
#include <zum-parser/atsc/AEITParser.h>
#include <zum-parser/atsc/MGTParser.h>
#include <zum-parser/atsc/SVCTParser.h>
#include <zum-parser/atsc/SVCTParserVCM.h>
#include <zum-parser/atsc/VCTParser.h>
#include <zum-parser/core/Descriptor.h>
#include <zum-parser/core/DescriptorHash.h>
#include <zum-parser/dvb/DVBBATParser.h>
#include <zum-parser/dvb/DVBEITParser.h>
#include <zum-parser/dvb/DVBNITParser.h>
#include <zum-parser/dvb/DVBSDTParser.h>
#include <zum-parser/dvb/DVBFSTParser.h>
#include <zum-parser/dvb/DVBSGTParser.h>
#include <zum-parser/dvb/DVBTKGSParser.h>
#include <zum-parser/psi/PATParser.h>
#include <zum-parser/psi/PMTParser.h>

#include "BenchCommon.h"

namespace zumbench {

namespace {

const ZUMHandle kHandle(1, 0, 0);

// Feeds the sections of pass n; true when the last one completed the table.
template <class Parser>
bool Feed(Parser& parser, const Table& table, uint64_t n)
{
    bool complete = false;
    for (const Bytes& section : table.Pass(n))
        complete = parser.Parse(static_cast<short>(table.pid), section.data());
    return complete;
}

// Two passes, one per version, must each complete the table before timing.
template <class Parser>
bool Prime(Parser& parser, const Table& table)
{
    return Feed(parser, table, 0) && Feed(parser, table, 1);
}

// The heap bytes a fresh parser holds once it has one whole version, parser
// object included: what a receiver keeps for hours.
template <class Parser, class... Args>
void ReportHeld(benchmark::State& state, const Table& table, Args... args)
{
    std::unique_ptr<Parser> held;
    state.counters["held_bytes"] = static_cast<double>(BytesHeldBy([&] {
        held = std::make_unique<Parser>(args...);
        held->Initialize();
        Feed(*held, table, 0);
    }));
}

void Pat(benchmark::State& state)
{
    const Table& table = TableOf(Family::Pat);
    ReportHeld<TCPATParser>(state, table, kHandle);
    TCPATParser parser(kHandle);
    parser.Initialize();
    if (!Prime(parser, table) || parser.NumOfProgramList() != kPatPrograms)
        return state.SkipWithError("PAT not decoded");
    // Per pass: header, version change, 16 program entries.
    RunPasses(state, table, [&](uint64_t n) { benchmark::DoNotOptimize(Feed(parser, table, n)); });
}

int PmtDescriptors(const TCPMTInstance& pmt)
{
    int count = pmt.NumOfDescriptors();
    for (int i = 0; i < pmt.NumOfElementary(); ++i)
        count += pmt.PMTElementary(static_cast<unsigned>(i))->NumOfDescriptors();
    return count;
}

void Pmt(benchmark::State& state)
{
    const Table& table = TableOf(Family::Pmt);
    ReportHeld<TCPMTParser>(state, table, kHandle);
    TCPMTParser parser(kHandle);
    parser.Initialize();
    if (!Prime(parser, table))
        return state.SkipWithError("PMT not decoded");
    const TCPMTInstance* pmt = parser.PMTInstance(kProgramNumber);
    if (!pmt || pmt->NumOfElementary() != kPmtStreams || PmtDescriptors(*pmt) != kPmtDescriptors)
        return state.SkipWithError("PMT incomplete");
    // Per pass: five streams and twelve descriptor objects, each loop through
    // its own TCDescriptor, and the channel list check.
    RunPasses(state, table, [&](uint64_t n) { benchmark::DoNotOptimize(Feed(parser, table, n)); });
}

void Nit(benchmark::State& state)
{
    const Table& table = TableOf(Family::Nit);
    ReportHeld<TCDVBNITParser>(state, table, 0x40, kHandle);
    TCDVBNITParser parser(0x40, kHandle);
    parser.Initialize();
    if (!Prime(parser, table) || parser.NumOfDVBItemMux(kNetworkId) != kNitTransportStreams)
        return state.SkipWithError("NIT not decoded");
    const TCDVBItemMux* mux = parser.DVBItemMuxOfIndex(0, kNetworkId);
    if (!mux || mux->NumOfDescriptors(0x5A) != 1 || mux->NumOfDescriptors(0x41) != 1 ||
        mux->NumOfDescriptors(0x83) != 1)
        return state.SkipWithError("NIT transport stream descriptors missing");
    // Per pass: two sections, 20 transport streams with delivery, service
    // list and (under the specifier) logical channel descriptors.
    RunPasses(state, table, [&](uint64_t n) { benchmark::DoNotOptimize(Feed(parser, table, n)); });
}

void Bat(benchmark::State& state)
{
    const Table& table = TableOf(Family::Bat);
    ReportHeld<TCDVBBATParser>(state, table, kHandle);
    TCDVBBATParser parser(kHandle);
    parser.Initialize();
    const TCDVBBATInstance* bouquet = nullptr;
    if (!Prime(parser, table) || !(bouquet = parser.GetInstance(kBouquetId)) ||
        bouquet->NumOfDVBItemMux() != kNitTransportStreams || bouquet->NumOfDescriptors(0x4A) != 2)
        return state.SkipWithError("BAT not decoded");
    const TCDVBItemMux* mux = bouquet->DVBItemMuxOfIndex(0);
    if (!mux || mux->NumOfDescriptors(0x41) != 1 || mux->NumOfDescriptors(0x83) != 1)
        return state.SkipWithError("BAT transport stream descriptors missing");
    // Per pass: two sections, bouquet names and linkages, 20 transport streams
    // with the NIT's descriptors.
    RunPasses(state, table, [&](uint64_t n) { benchmark::DoNotOptimize(Feed(parser, table, n)); });
}

void Sdt(benchmark::State& state)
{
    const Table& table = TableOf(Family::Sdt);
    ReportHeld<TCDVBSDTParser>(state, table, 0x42, kHandle);
    TCDVBSDTParser parser(0x42, kHandle);
    parser.Initialize();
    if (!Prime(parser, table))
        return state.SkipWithError("SDT not decoded");
    const TCDVBSDTInstance* sdt = parser.DVBSDTFirstInstance();
    if (!sdt || sdt->NumOfDVBSDTItemService() != kSdtServices ||
        sdt->DVBSDTItemServiceOfIndex(0)->NumOfDescriptors(0x48) != 1)
        return state.SkipWithError("SDT incomplete");
    // Per pass: two sections, 40 services with a service descriptor each.
    RunPasses(state, table, [&](uint64_t n) { benchmark::DoNotOptimize(Feed(parser, table, n)); });
}

// The receiver settings a family is read under, restored afterwards.
class BinderAs {
public:
    explicit BinderAs(const std::function<void(zum_platform::BinderSettings&)>& set) : m_saved(zum_platform::Binder())
    {
        set(zum_platform::Binder());
    }
    ~BinderAs() { zum_platform::SetBinder(m_saved); }
    BinderAs(const BinderAs&) = delete;
    BinderAs& operator=(const BinderAs&) = delete;

private:
    zum_platform::BinderSettings m_saved;
};

// The PSIP and out-of-band tables are read as a North American receiver reads
// them: under an ATSC country, which picks the PSIP descriptor factory.
class AtscCountry : public BinderAs {
public:
    AtscCountry() : BinderAs([](zum_platform::BinderSettings& b) { b.countryCode = ZumPackCode("USA"); }) {}
};

// The EIT road of a receiver: the parser says which section is new, the
// caller's item decodes its events; with `decodeLoops` each event's raw
// descriptor loop then goes through a TCDescriptor, as the guide does when it
// reads an event.
class EitReader {
public:
    EitReader(unsigned tableId, bool decodeLoops)
        : m_parser(static_cast<int>(tableId), kHandle),
          m_item(kOriginalNetworkId, kTransportStreamId, kEitServiceId, kHandle),
          m_decodeLoops(decodeLoops)
    {
        m_parser.Initialize();
    }

    // Answers the events decoded in pass n.
    int Pass(const Table& table, uint64_t n)
    {
        int events = 0;
        for (const Bytes& s : table.Pass(n)) {
            if (!m_parser.Parse(static_cast<short>(table.pid), s.data()))
                continue;
            if (!m_item.Parse(s.data(), static_cast<int>(s.size()), (s[5] >> 1) & 0x1F, s[6], s[7], s[0]))
                continue;
            events += m_item.NumOfDVBEITItemEvent();
            if (m_decodeLoops)
                m_DecodeLoops(static_cast<unsigned char>(s[0]));
        }
        return events;
    }

    int LastDescriptorCount() const { return m_lastDescriptors; }

private:
    void m_DecodeLoops(unsigned char tableId)
    {
        for (int i = 0; i < m_item.NumOfDVBEITItemEvent(); ++i) {
            const TCDVBEITItemEvent* event = m_item.DVBEITItemEvent(static_cast<unsigned>(i));
            TCDescriptorHash hash;
            m_loop.Parse(event->Descriptors(), event->DescriptorsLength(), hash, tableId);
            m_lastDescriptors = hash.NumOfDescriptors();
        }
    }

    TCDVBEITParser m_parser;
    TCDVBEITItem m_item;
    // One loop walker for every event, as a guide keeps it: its factory is made once.
    TCDescriptor m_loop{kHandle};
    bool m_decodeLoops;
    int m_lastDescriptors = 0;
};

void Eit(benchmark::State& state, Family family, bool decodeLoops)
{
    // The ISDB schedule is read as a Japanese receiver reads it, by the ARIB factories.
    std::optional<BinderAs> japan;
    if (family == Family::EitIsdb)
        japan.emplace([](zum_platform::BinderSettings& b) { b.countryCode = ZumPackCode("JPN"); });
    const Table& table = TableOf(family);
    EitReader reader(table.tableId, decodeLoops);
    const int events = family == Family::EitPf ? 2 : 2 * kEitScheduleEventsPerSection;
    if (reader.Pass(table, 0) != events || reader.Pass(table, 1) != events ||
        (decodeLoops && reader.LastDescriptorCount() < 4))
        return state.SkipWithError("EIT not decoded");
    // Per pass: every section is new to the parser's tracker; the item
    // replaces its events (inflating the loop first for table id 0x80).
    RunPasses(state, table, [&](uint64_t n) { benchmark::DoNotOptimize(reader.Pass(table, n)); });
}

void DescriptorLoop(benchmark::State& state)
{
    const Table& table = TableOf(Family::DescriptorLoop);
    const Bytes& loopBytes = table.versions[0].front();
    auto decode = [&]() {
        TCDescriptorHash hash;
        TCDescriptor loop(kHandle);
        loop.Parse(loopBytes.data(), static_cast<int>(loopBytes.size()), hash, static_cast<unsigned char>(table.tableId));
        return hash.NumOfDescriptors();
    };
    if (decode() != kDescriptorLoopDescriptors)
        return state.SkipWithError("descriptor loop not decoded");
    // Per pass: one TCDescriptor with its factory, seven descriptor objects
    // with raw copies and decoded fields, the hash, and their destruction.
    RunPasses(state, table, [&](uint64_t) { benchmark::DoNotOptimize(decode()); });
}


void Mgt(benchmark::State& state)
{
    const AtscCountry country;
    const Table& table = TableOf(Family::Mgt);
    TCMGTParser parser(kHandle);
    parser.Initialize();
    if (!Prime(parser, table) || parser.NumOfTable() != static_cast<unsigned>(kMgtTables))
        return state.SkipWithError("MGT not decoded");
    // Per pass: a version change and 19 table entries with their (empty) loops.
    RunPasses(state, table, [&](uint64_t n) { benchmark::DoNotOptimize(Feed(parser, table, n)); });
}

void Tvct(benchmark::State& state)
{
    const AtscCountry country;
    const Table& table = TableOf(Family::Tvct);
    TCTVCTParser parser(kHandle);
    parser.Initialize();
    if (!Prime(parser, table) || parser.NumOfVCTChannel() != static_cast<unsigned>(kTvctChannels) ||
        parser.VCTChannel(0)->NumOfDescriptors(0xA0) != 1 || parser.VCTChannel(0)->NumOfDescriptors(0xA1) != 1)
        return state.SkipWithError("TVCT not decoded");
    // Per pass: a version change, eight channels, each with its long name read
    // into a multiple string structure and its service location.
    RunPasses(state, table, [&](uint64_t n) { benchmark::DoNotOptimize(Feed(parser, table, n)); });
}

// A guide receiver's EIT pass: the events of the source by PID, and with
// `decodeLoops` each event's descriptors decoded as the guide shows them.
void PsipEit(benchmark::State& state, bool decodeLoops)
{
    const AtscCountry country;
    const Table& table = TableOf(Family::PsipEit);
    TCEITParser parser(kHandle);
    parser.Initialize();
    auto pass = [&](uint64_t n) {
        Feed(parser, table, n);
        const TCEITItem* item = parser.EITInstance(static_cast<short>(table.pid))->EITItem(kPsipEitSourceId);
        int decoded = 0;
        for (unsigned i = 0; item && i < item->NumOfEITItemEvent(); ++i) {
            const TCEITItemEvent* e = item->EITItemEvent(i);
            if (decodeLoops) {
                TCDescriptorHash hash;
                TCDescriptor loop(kHandle);
                loop.Parse(e->Descriptors(), e->DescriptorsLength(), hash, 0xCB);
                decoded += hash.NumOfDescriptors() == 2;
            } else {
                decoded += e->TitleLength() > 0;
            }
        }
        return decoded;
    };
    const int events = kPsipEitSections * kPsipEitEventsPerSection;
    if (pass(0) != events || pass(1) != events)
        return state.SkipWithError("PSIP EIT not decoded");
    // Per pass: a version change of the source, 32 events with title and loop
    // copied (and decoded: a content advisory and a caption service each).
    RunPasses(state, table, [&](uint64_t n) { benchmark::DoNotOptimize(pass(n)); });
}

void Svct(benchmark::State& state)
{
    const AtscCountry country;
    const Table& table = TableOf(Family::Svct);
    TCSVCTParser parser(kHandle);
    auto pass = [&](uint64_t n) {
        // No version to change: a receiver re-acquiring the channel map starts afresh.
        parser.Initialize();
        Feed(parser, table, n);
        return parser.VCM() ? parser.VCM()->VCSize() : 0;
    };
    if (pass(0) != kSvctChannels || pass(1) != kSvctChannels)
        return state.SkipWithError("SVCT not decoded");
    // Per pass: 24 virtual channel records, each with its extended channel name.
    RunPasses(state, table, [&](uint64_t n) { benchmark::DoNotOptimize(pass(n)); });
}

void Aeit(benchmark::State& state)
{
    const AtscCountry country;
    const Table& table = TableOf(Family::Aeit);
    TCAEITParser parser(kHandle);
    parser.Initialize();
    const auto events = [&] {
        const TCAEITParserTag* tag = parser.AEITParserTag(0);
        const TCAEITSourceMap* sources = tag ? tag->AEITParserSourceList(1) : nullptr;
        return sources && !sources->empty() ? sources->begin()->second->SizeOfAEITParserEvent() : 0;
    };
    if (!Prime(parser, table) || events() != kAeitEventsPerSource)
        return state.SkipWithError("AEIT not decoded");
    // Per pass: a version change, 48 events of 8 sources, each keeping its
    // title and descriptor loop.
    RunPasses(state, table, [&](uint64_t n) { benchmark::DoNotOptimize(Feed(parser, table, n)); });
}

void Sgt(benchmark::State& state)
{
    const BinderAs astra([](zum_platform::BinderSettings& b) { b.privateDataSpecifier = 1; });
    const Table& table = TableOf(Family::Sgt);
    TCDVBSGTParser parser(kHandle);
    parser.Initialize();
    if (!Prime(parser, table) || !parser.Instance(0x0007) || parser.Instance(0x0007)->NumOfServices() != kSgtServices)
        return state.SkipWithError("SGT not decoded");
    // Per pass: a version change of one list, 60 services with channel numbers and flags.
    RunPasses(state, table, [&](uint64_t n) { benchmark::DoNotOptimize(Feed(parser, table, n)); });
}

void Fst(benchmark::State& state)
{
    const Table& table = TableOf(Family::Fst);
    ReportHeld<TCDVBFSTParser>(state, table, 0xBD, kHandle);
    TCDVBFSTParser parser(0xBD, kHandle);
    parser.Initialize();
    if (!Prime(parser, table) || !parser.DVBFSTInstance(0x0100) ||
        parser.DVBFSTInstance(0x0100)->NumOfDVBFSTItemService() != kFstServices)
        return state.SkipWithError("FST not decoded");
    // Per pass: a version change of one operator, 80 service records with their service descriptors.
    RunPasses(state, table, [&](uint64_t n) { benchmark::DoNotOptimize(Feed(parser, table, n)); });
}

void Tkgs(benchmark::State& state)
{
    const BinderAs turkey([](zum_platform::BinderSettings& b) {
        b.countryCode = ZumPackCode("TUR");
        b.country = ECOUNTRY_TURKEY;
        b.privateDataSpecifier = 0x011FFFFF;
    });
    const Table& table = TableOf(Family::Tkgs);
    TCDVBTKGSParser parser(kHandle);
    parser.Initialize();
    if (!Prime(parser, table) || parser.NumOfServiceLists() != static_cast<unsigned>(kTkgsLists) ||
        parser.ServiceKeys().size() != static_cast<size_t>(kTkgsServices))
        return state.SkipWithError("TKGS not decoded");
    // Per pass: a version change; the stream joined from its sections, four
    // transports with their SDT and six PMTs each fed to inner parsers, two lists.
    RunPasses(state, table, [&](uint64_t n) { benchmark::DoNotOptimize(Feed(parser, table, n)); });
}

} // namespace

void RegisterZum(Family family)
{
    switch (family) {
    case Family::Pat: Register(family, kZum, Pat); break;
    case Family::Pmt: Register(family, kZum, Pmt); break;
    case Family::Nit: Register(family, kZum, Nit); break;
    case Family::Bat: Register(family, kZum, Bat); break;
    case Family::Sdt: Register(family, kZum, Sdt); break;
    case Family::EitPf:
    case Family::EitSchedule:
    case Family::EitScheduleCompressed:
    case Family::EitIsdb:
        Register(family, kZum, [family](benchmark::State& state) { Eit(state, family, true); });
        Register(family, kZumRaw, [family](benchmark::State& state) { Eit(state, family, false); });
        break;
    case Family::DescriptorLoop: Register(family, kZum, DescriptorLoop); break;
    case Family::Mgt: Register(family, kZum, Mgt); break;
    case Family::Tvct: Register(family, kZum, Tvct); break;
    case Family::PsipEit:
        Register(family, kZum, [](benchmark::State& state) { PsipEit(state, true); });
        Register(family, kZumRaw, [](benchmark::State& state) { PsipEit(state, false); });
        break;
    case Family::Svct: Register(family, kZum, Svct); break;
    case Family::Aeit: Register(family, kZum, Aeit); break;
    case Family::Sgt: Register(family, kZum, Sgt); break;
    case Family::Tkgs: Register(family, kZum, Tkgs); break;
    case Family::Fst: Register(family, kZum, Fst); break;
    }
}

// The floor: copying each section's bytes once, the least any decoder does.
void RegisterFloor(Family family)
{
    Register(family, kFloor, [family](benchmark::State& state) {
        const Table& table = TableOf(family);
        static unsigned char buffer[4096];
        RunPasses(state, table, [&](uint64_t n) {
            for (const Bytes& s : table.Pass(n)) {
                std::memcpy(buffer, s.data(), s.size());
                benchmark::ClobberMemory();
            }
        });
    });
}

} // namespace zumbench
