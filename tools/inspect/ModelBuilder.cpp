#include "inspect/ModelBuilder.h"

#include <list>
#include <set>

#include "core/Descriptor.h"
#include "dvb/DVBBATParser.h"
#include "dvb/DVBLCNParser.h"
#include "dvb/DVBNITParser.h"
#include "dvb/DVBSDTParser.h"
#include "dvb/DVBTDTParser.h"
#include "dvb/DVBTOTParser.h"
#include "dvb/DescService.h"
#include "dvb/DescLocalTimeOffset.h"
#include "inspect/AtscView.h"
#include "inspect/AvView.h"
#include "inspect/Describers.h"
#include "inspect/AitView.h"
#include "inspect/EwsView.h"
#include "inspect/IsdbView.h"
#include "inspect/IsdbNetView.h"
#include "inspect/Format.h"
#include "inspect/GuideView.h"
#include "inspect/Names.h"
#include "inspect/Router.h"
#include "inspect/SitView.h"
#include "inspect/OperatorsView.h"
#include "inspect/FreesatView.h"
#include "inspect/TargetingView.h"
#include "inspect/TableIds.h"
#include "inspect/TkgsView.h"
#include "inspect/TsDemux.h"
#include "operators/DescLogicalChannel.h"
#include "psi/DVBCATParser.h"
#include "psi/PATParser.h"
#include "psi/PMTParser.h"

namespace zuminspect {

namespace {

constexpr int kTagServiceList = 0x41;
constexpr int kTagService = 0x48;
constexpr int kTagLocalTimeOffset = 0x58;
constexpr uint32_t kUndefinedTime = 0xFFFFFFFF;
constexpr uint32_t kUndefinedDuration = 0xFFFFFF;
constexpr unsigned int kNoChannelNumber = 0xFFFFFFFF;

struct Builder {
    const Router& router;
    const DemuxStats& stats;
    const ModelContext& context;
    TextDecoder text;
    LocalClock clock;

    Json Pat() const;
    Json Pmts() const;
    Json Nits() const;
    Json Bats() const;
    Json Cat() const;
    Json TransportStream(const TCDVBItemMux& mux) const;
    Json Sdts() const;
    Json SdtService(const TCDVBSDTItemService& service) const;
    Json Events() const;
    Json Event(const EitCollector::Event& event) const;
    Json TimeObject(uint32_t time) const;
    Json Tdt() const;
    Json Tot() const;
    Json Lcn() const;
    Json Summary() const;
};

Json PidValue(uint16_t pid)
{
    return pid == kNoPid ? Json(nullptr) : Json(pid);
}

Json HexId(int tableId)
{
    return Hex(static_cast<unsigned>(tableId), 2);
}

// The offset of the receiver's country in the TOT, else of the TOT's first entry.
LocalClock ClockOf(const TCDVBTOTParser* tot, ECountryCode country)
{
    const auto* offsets = tot ? dynamic_cast<const TCDescLocalTimeOffset*>(tot->Descriptor(kTagLocalTimeOffset, 0))
                              : nullptr;
    if (offsets == nullptr || offsets->NumOfEntries() == 0)
        return LocalClock();
    int entry = 0;
    for (int i = 0; i < offsets->NumOfEntries(); ++i)
        if (static_cast<ECountryCode>(offsets->CountryCode(i)) == country) {
            entry = i;
            break;
        }
    const int sign = offsets->LocalTimeOffsetPolarity(entry) != 0 ? -1 : 1;
    return LocalClock(CodeText(offsets->CountryCode(entry)), sign * offsets->LocalTimeOffset(entry),
                      offsets->TimeOfChange(entry), sign * offsets->NextTimeOffset(entry));
}

Json Builder::Pat() const
{
    const TCPATParser* pat = router.Pat();
    if (pat == nullptr)
        return nullptr;
    Json programs = Json::array();
    for (int i = 0; i < pat->NumOfProgramList(); ++i) {
        const int number = pat->ProgramNumber(static_cast<unsigned>(i));
        const int pmtPid = pat->ProgramPID(static_cast<unsigned short>(number));
        programs.push_back({{"programNumber", number}, {"pmtPid", pmtPid}});
    }
    return {{"transportStreamId", pat->TransportStreamId()},
            {"networkPid", pat->ZeroProgramPid() >= 0 ? Json(pat->ZeroProgramPid()) : Json(nullptr)},
            {"programs", programs}};
}

Json Builder::Pmts() const
{
    Json pmts = Json::array();
    const TCPMTParser* pmt = router.Pmt();
    for (int i = 0; pmt != nullptr && i < pmt->NumOfPMTInstance(); ++i) {
        const TCPMTInstance* program = pmt->PMTInstanceOfIndex(static_cast<unsigned>(i));
        Json streams = Json::array();
        for (int k = 0; k < program->NumOfElementary(); ++k) {
            const TCPMTElementary* stream = program->PMTElementary(static_cast<unsigned>(k));
            streams.push_back({{"streamType", stream->StreamType()},
                               {"streamTypeName", StreamTypeName(stream->StreamType(), context.system)},
                               {"pid", stream->ElementaryPID()},
                               {"summary", StreamSummary(stream->StreamType(), *stream)},
                               {"descriptors", DescribeLoop(*stream, text)}});
        }
        pmts.push_back({{"programNumber", program->ProgramNumber()},
                        {"pid", PidValue(static_cast<uint16_t>(program->Pid()))},
                        {"version", static_cast<int>(program->VersionNumber())},
                        {"pcrPid", program->PCRPid()},
                        {"descriptors", DescribeLoop(*program, text)},
                        {"streams", streams}});
    }
    return pmts;
}

Json Builder::TransportStream(const TCDVBItemMux& mux) const
{
    Json services = Json::array();
    for (int k = 0; k < mux.NumOfDescriptors(kTagServiceList); ++k) {
        const auto* list =
            dynamic_cast<const TCDescServiceList*>(mux.Descriptor(kTagServiceList, static_cast<unsigned>(k)));
        for (int s = 0; list != nullptr && s < list->NumberOfLoop(); ++s) {
            const unsigned short serviceId = list->ServiceId(s);
            const IDescLogicalChannel* lcn = mux.LCNDescriptorbyPriority(true, serviceId, context.country, true);
            const unsigned int number = lcn ? lcn->LogicalChannelNumber(serviceId) : kNoChannelNumber;
            const auto* from = dynamic_cast<const TCBaseDesc*>(lcn);
            services.push_back({{"serviceId", serviceId},
                                {"serviceType", list->ServiceType(s)},
                                {"serviceTypeName", ServiceTypeName(list->ServiceType(s), context.system)},
                                {"channelNumber", number != kNoChannelNumber ? Json(number) : Json(nullptr)},
                                {"channelNumberTag", from ? HexId(from->Tag()) : Json(nullptr)}});
            const Json byRegion = FreesatNumbersByRegion(lcn, serviceId);
            if (!byRegion.is_null())
                services.back()["channelNumbersByRegion"] = byRegion;
        }
    }
    Json out = {{"transportStreamId", mux.TransportStreamId()},
                {"originalNetworkId", mux.OriginalNetworkId()},
                {"descriptors", DescribeLoop(mux, text)},
                {"services", services}};
    if (Json scan = IsdbScan(mux, text); !scan.is_null())
        out["isdbScan"] = scan;
    return out;
}

Json Builder::Nits() const
{
    Json nits = Json::array();
    for (const auto& entry : router.Nits()) {
        std::list<unsigned short> ids;
        entry.second->NetworkIds(ids);
        for (unsigned short id : ids) {
            const TCDVBNITInstance* network = entry.second->GetInstance(id);
            Json streams = Json::array();
            for (int i = 0; i < network->NumOfDVBItemMux(); ++i)
                streams.push_back(TransportStream(*network->DVBItemMuxOfIndex(static_cast<unsigned>(i))));
            nits.push_back({{"tableId", HexId(entry.first)},
                            {"networkId", id},
                            {"descriptors", DescribeLoop(*network, text)},
                            {"transportStreams", streams}});
        }
    }
    return nits;
}

Json Builder::Bats() const
{
    Json bats = Json::array();
    const TCDVBBATParser* bat = router.Bat();
    std::list<unsigned short> ids;
    if (bat != nullptr)
        bat->BouquetIds(ids);
    for (unsigned short id : ids) {
        const TCDVBBATInstance* bouquet = bat->GetInstance(id);
        Json streams = Json::array();
        for (int i = 0; i < bouquet->NumOfDVBItemMux(); ++i)
            streams.push_back(TransportStream(*bouquet->DVBItemMuxOfIndex(static_cast<unsigned>(i))));
        bats.push_back({{"bouquetId", id},
                        {"complete", bouquet->IsValid()},
                        {"descriptors", DescribeLoop(*bouquet, text)},
                        {"transportStreams", streams}});
    }
    return bats;
}

Json Builder::Cat() const
{
    const TCDVBCATParser* cat = router.Cat();
    if (cat == nullptr)
        return nullptr;
    return {{"complete", cat->IsValid()}, {"descriptors", DescribeLoop(*cat, text)}};
}

Json Builder::SdtService(const TCDVBSDTItemService& service) const
{
    Json out = {{"serviceId", service.ServiceId()},
                {"type", nullptr},
                {"typeName", nullptr},
                {"provider", nullptr},
                {"name", nullptr}};
    if (const auto* d = dynamic_cast<const TCDescService*>(service.Descriptor(kTagService, 0))) {
        const Json described = DescribeDescriptor(*d, text);
        const Json& fields = described.at("fields");
        out["type"] = fields.at("serviceType");
        out["typeName"] = fields.at("serviceTypeName");
        out["provider"] = fields.at("provider");
        out["name"] = fields.at("name");
    }
    out["runningStatus"] = service.RunningStatus();
    out["runningStatusName"] = RunningStatusName(service.RunningStatus());
    out["freeCA"] = service.FreeCAMode() != 0;
    out["eitSchedule"] = service.EITScheduleFlag() != 0;
    out["eitPresentFollowing"] = service.EITPresentFollowingFlag() == 1;
    out["descriptors"] = DescribeLoop(service, text);
    return out;
}

Json Builder::Sdts() const
{
    Json sdts = Json::array();
    for (const auto& entry : router.Sdts()) {
        for (int i = 0; i < entry.second->NumOfDVBSDTInstance(); ++i) {
            const TCDVBSDTInstance* ts = entry.second->DVBSDTInstanceOfIndex(static_cast<unsigned>(i));
            Json services = Json::array();
            for (int k = 0; k < ts->NumOfDVBSDTItemService(); ++k)
                services.push_back(SdtService(*ts->DVBSDTItemServiceOfIndex(static_cast<unsigned>(k))));
            sdts.push_back({{"tableId", HexId(entry.first)},
                            {"originalNetworkId", ts->OriginalNetworkId()},
                            {"transportStreamId", ts->TransportStreamId()},
                            {"version", static_cast<int>(ts->VersionNumber())},
                            {"services", services}});
        }
    }
    return sdts;
}

Json Builder::Event(const EitCollector::Event& event) const
{
    // Events keep their loop raw; it is decoded here as a guide would, under the
    // table id that the factories serve for the event's whole schedule family.
    TCDescriptorHash hash;
    TCDescriptor loop(context.handle);
    if (!event.descriptors.empty())
        loop.Parse(event.descriptors.data(), static_cast<int>(event.descriptors.size()), hash,
                   EventLoopTableId(event.tableId));
    const bool timed = event.startTime != kUndefinedTime;
    Json out = {{"tableId", HexId(event.tableId)},
                {"section", event.section},
                {"eventId", event.eventId},
                {"start", timed ? Json(IsoTimeSince1980(event.startTime)) : Json(nullptr)}};
    if (clock.Known())
        out["startLocal"] = timed ? Json(clock.Local(event.startTime)) : Json(nullptr);
    out.update(Json{{"duration", event.duration == kUndefinedDuration ? Json(nullptr) : Json(event.duration)},
                {"runningStatus", event.runningStatus},
                {"runningStatusName", RunningStatusName(event.runningStatus)},
                {"freeCA", event.freeCaMode != 0},
                {"descriptors", DescribeLoop(hash, text)}});
    if (hash.NumOfDescriptors() == 0 && !event.descriptors.empty())
        out["undecoded"] = HexBytes(event.descriptors.data(), event.descriptors.size());
    return out;
}

Json Builder::Events() const
{
    Json services = Json::array();
    for (const auto& entry : router.Events().EventsByService()) {
        Json events = Json::array();
        for (const EitCollector::Event* event : entry.second) {
            events.push_back(Event(*event));
            if (context.guide)
                events.back()["guide"] = GuideAnswers({std::get<0>(entry.first), std::get<1>(entry.first),
                                                       std::get<2>(entry.first), event->eventId,
                                                       EventLoopTableId(event->tableId), event->startTime,
                                                       event->duration, &event->descriptors});
        }
        services.push_back({{"originalNetworkId", std::get<0>(entry.first)},
                            {"transportStreamId", std::get<1>(entry.first)},
                            {"serviceId", std::get<2>(entry.first)},
                            {"events", events}});
    }
    return services;
}

Json Builder::TimeObject(uint32_t time) const
{
    Json out = {{"time", IsoTimeSince1980(time)}};
    if (clock.Known())
        out["local"] = clock.Local(time);
    return out;
}

Json Builder::Tdt() const
{
    if (router.Tdt() == nullptr || !router.Complete(kNoPid, 0x70).value_or(false))
        return nullptr;
    return TimeObject(router.Tdt()->Time());
}

Json Builder::Tot() const
{
    const TCDVBTOTParser* tot = router.Tot();
    if (tot == nullptr || !router.Complete(kNoPid, 0x73).value_or(false))
        return nullptr;
    Json out = TimeObject(tot->Time());
    out["descriptors"] = DescribeLoop(*tot, text);
    return out;
}

Json Builder::Lcn() const
{
    const TCDVBLCNParser* lcn = router.Lcn();
    if (lcn == nullptr)
        return nullptr;
    Json records = Json::array();
    for (const auto& record : lcn->GetLCNInfo())
        records.push_back({{"key", {record.first.m_first, record.first.m_second, record.first.m_third}},
                           {"channelNumber", record.second.m_logicalChannelNumber},
                           {"visible", record.second.m_visible != 0},
                           {"extra", record.second.m_extra}});
    Json pids = Json::array();
    for (uint16_t pid : router.LcnPids())
        pids.push_back(PidValue(pid));
    return {{"pids", pids},
            {"header", {lcn->HeaderValue1(), lcn->HeaderValue2(), lcn->HeaderValue3()}},
            {"records", records}};
}

Json Builder::Summary() const
{
    Json demux = {{"packetSize", stats.packetSize},
                  {"packets", stats.packets},
                  {"syncLosses", stats.syncLosses},
                  {"skippedBytes", stats.skippedBytes},
                  {"truncatedPackets", stats.truncatedPackets},
                  {"continuityErrors", stats.continuityErrors},
                  {"transportErrors", stats.transportErrors},
                  {"duplicates", stats.duplicates},
                  {"sections", stats.sections},
                  {"crcErrors", stats.crcErrors},
                  {"droppedSections", stats.droppedSections},
                  {"unfinishedSections", stats.unfinishedSections}};
    Json pids = Json::array();
    Json tables = Json::array();
    for (const auto& entry : stats.pids) {
        const uint16_t pid = entry.first;
        const PidStats& p = entry.second;
        pids.push_back({{"pid", PidValue(pid)},
                        {"packets", p.packets},
                        {"continuityErrors", p.continuityErrors},
                        {"transportErrors", p.transportErrors},
                        {"sections", p.sections},
                        {"crcErrors", p.crcErrors},
                        {"droppedSections", p.droppedSections}});
        std::set<uint8_t> tableIds;
        for (const auto& t : p.sectionsByTable)
            tableIds.insert(t.first);
        for (const auto& t : p.crcErrorsByTable)
            tableIds.insert(t.first);
        for (uint8_t tableId : tableIds) {
            const auto counts = router.Counts().find({pid, tableId});
            const auto sections = p.sectionsByTable.find(tableId);
            const auto crcErrors = p.crcErrorsByTable.find(tableId);
            const std::string parser = router.ParserName(pid, tableId);
            const std::optional<bool> complete = router.Complete(pid, tableId);
            Json versions = Json::array();
            if (counts != router.Counts().end())
                versions = counts->second.versions;
            tables.push_back({{"pid", PidValue(pid)},
                              {"tableId", HexId(tableId)},
                              {"table", parser == "TCEWSParser" ? "emergency warning"
                                                                 : TableIdName(tableId, context.system, pid)},
                              {"parser", parser.empty() ? Json(nullptr) : Json(parser)},
                              {"sections", sections != p.sectionsByTable.end() ? sections->second : 0},
                              {"versions", versions},
                              {"complete", complete ? Json(*complete) : Json(nullptr)},
                              {"crcErrors", crcErrors != p.crcErrorsByTable.end() ? crcErrors->second : 0}});
        }
    }
    return {{"demux", demux},
            {"routing", {{"routed", router.Routed()}, {"noParser", router.NoParser()}}},
            {"pids", pids},
            {"tables", tables}};
}

} // namespace

Json BuildModel(const Router& router, const DemuxStats& stats, const ModelContext& context)
{
    const Builder b{router, stats, context, TextDecoder(context.handle, context.language, context.system),
                    router.Tot() && router.Complete(kNoPid, 0x73).value_or(false) ? ClockOf(router.Tot(), context.country)
                                                                                   : LocalClock()};
    return {{"input",
             {{"kind", context.sectionsInput ? "sections" : "transport stream"},
              {"packetSize", stats.packetSize != 0 ? Json(stats.packetSize) : Json(nullptr)},
              {"bytes", context.bytes},
              {"system", SystemName(context.system)}}},
            {"pat", b.Pat()},
            {"pmts", b.Pmts()},
            {"cat", b.Cat()},
            {"nits", b.Nits()},
            {"bats", b.Bats()},
            {"sdts", b.Sdts()},
            {"eit", b.Events()},
            {"tdt", b.Tdt()},
            {"tot", b.Tot()},
            {"lcn", b.Lcn()},
            {"ews", EwsModel(router, b.text)},
            {"isdb", router.Isdb().Model(b.text)},
            {"sit", DescribeSit(router.Sit(), b.text)},
            {"ait", AitModel(router, b.text)},
            {"sgt", DescribeSgt(router.Sgt(), b.text)},
            {"rct", DescribeRct(router.Rct(), b.text)},
            {"tkgs", TkgsModel(router, b.text)},
            {"atsc", DescribeAtsc(router.Atsc(), b.text)},
            {"freesatPostCodes", FreesatPostCodes(router.FSatPostCodes())},
            {"fastScan", router.Operators().FastScanModel(b.text)},
            {"unt", router.Operators().UntModel(b.text)},
            {"summary", b.Summary()}};
}

} // namespace zuminspect
