#include "inspect/OperatorTablesView.h"

#include <algorithm>
#include <list>
#include <memory>
#include <vector>

#include <zum-platform/Binder.h>

#include "dvb/DVBBATParser.h"
#include "dvb/DVBFNTParser.h"
#include "dvb/DVBFSTParser.h"
#include "dvb/DVBNITParser.h"
#include "dvb/DescLinkage.h"
#include "dvb/DescService.h"
#include "dvb/UNTParser.h"
#include "inspect/Describers.h"
#include "inspect/Format.h"
#include "inspect/LazyParser.h"
#include "inspect/Renderers.h"
#include "inspect/TableIds.h"
#include "operators/DescADBLCNv2Activate.h"
#include "operators/DescChannelOrder.h"
#include "operators/DescDigiturkLogicalChannel.h"
#include "psi/PMTParser.h"

namespace zuminspect {

namespace {

constexpr uint8_t kTidUnt = 0x4B;
constexpr uint8_t kTidFnt = 0xBC;
constexpr uint8_t kTidFst = 0xBD;
constexpr uint16_t kNoPidHere = 0xFFFF;
constexpr int kTagLinkage = 0x4A;
constexpr int kTagDataBroadcastId = 0x66;
constexpr unsigned int kNoNumber = 0xFFFFFFFF;

// The PIDs that the M7 home transponder linkages of one loop name.
void LearnFastScanPids(const IDescriptorContainer& loop, std::set<uint16_t>& pids)
{
    for (int i = 0; i < loop.NumOfDescriptors(kTagLinkage); ++i) {
        const auto* linkage = dynamic_cast<const TCDescLinkage*>(loop.Descriptor(kTagLinkage, static_cast<unsigned>(i)));
        const M7HomeTPLinkageData* m7 = linkage ? linkage->M7HomeTPData() : nullptr;
        for (const auto& id : m7 ? m7->Operators() : std::vector<M7HomeTPLinkageData::TSOperatorID>{})
            pids.insert(static_cast<uint16_t>(m7->GetPID(id) & 0x1FFF));
    }
}

template <class Map>
auto Find(const Map& map, uint16_t pid) -> decltype(map.begin()->second.get())
{
    const auto it = map.find(pid);
    return it == map.end() ? nullptr : it->second.get();
}

Json Pid(uint16_t pid)
{
    return pid == kNoPidHere ? Json(nullptr) : Json(pid);
}

Json Tag(int tag)
{
    return Hex(static_cast<unsigned>(tag), 2);
}

std::string ServiceText(const TCDescService* service, bool name, const TextDecoder& text)
{
    unsigned char buffer[255];
    unsigned short size = sizeof buffer;
    const bool ok = name ? service->ServiceNameText(buffer, size) : service->ServiceProviderNameText(buffer, size);
    return text.Decode(buffer, ok ? size : 0);
}

Json Channel(const TCDVBFSTItemService& s, const TCDVBFNTInstance* network, ECountryCode country,
             const TextDecoder& text)
{
    const TCDVBItemMux* mux =
        network ? network->DVBItemMux(s.TransportStreamId(), s.OriginalNetworkId(), s.ServiceId()) : nullptr;
    const IDescLogicalChannel* lcn = mux ? mux->LCNDescriptorbyPriority(true, s.ServiceId(), country, true) : nullptr;
    const unsigned int number = lcn ? lcn->LogicalChannelNumber(s.ServiceId()) : kNoNumber;
    const auto* from = dynamic_cast<const TCBaseDesc*>(lcn);
    const auto* service = dynamic_cast<const TCDescService*>(s.Descriptor(0x48, 0));
    return {{"channelNumber", number != kNoNumber ? Json(number) : Json(nullptr)},
            {"channelNumberTag", from ? Tag(from->Tag()) : Json(nullptr)},
            {"name", service ? Json(ServiceText(service, true, text)) : Json(nullptr)},
            {"provider", service ? Json(ServiceText(service, false, text)) : Json(nullptr)},
            {"serviceId", s.ServiceId()},
            {"transportStreamId", s.TransportStreamId()},
            {"originalNetworkId", s.OriginalNetworkId()},
            {"videoPid", s.DefaultVideoPid() & 0x1FFF},
            {"audioPid", s.DefaultAudioPid() & 0x1FFF},
            {"videoEcmPid", s.DefaultVideoEcmPid() & 0x1FFF},
            {"audioEcmPid", s.DefaultAudioEcmPid() & 0x1FFF},
            {"pcrPid", s.DefaultPcrPid() & 0x1FFF},
            {"descriptors", DescribeLoop(s, text)}};
}

// One operator network id of one PID: the FNT's transports and the FST's services as a channel list.
Json FastScanList(uint16_t pid, unsigned short id, const TCDVBFNTParser* fnt, const TCDVBFSTParser* fst,
                  ECountryCode country, const TextDecoder& text)
{
    const TCDVBFNTInstance* network = fnt ? fnt->GetInstance(id) : nullptr;
    const TCDVBFSTInstance* services = fst ? fst->DVBFSTInstance(id) : nullptr;
    Json streams = Json::array();
    for (int i = 0; network && i < network->NumOfDVBItemMux(); ++i) {
        const TCDVBItemMux* mux = network->DVBItemMuxOfIndex(static_cast<unsigned>(i));
        streams.push_back({{"transportStreamId", mux->TransportStreamId()},
                           {"originalNetworkId", mux->OriginalNetworkId()},
                           {"descriptors", DescribeLoop(*mux, text)}});
    }
    std::vector<Json> channels;
    for (int i = 0; services && i < services->NumOfDVBFSTItemService(); ++i)
        channels.push_back(Channel(*services->DVBFSTItemServiceOfIndex(static_cast<unsigned>(i)), network, country, text));
    std::stable_sort(channels.begin(), channels.end(), [](const Json& a, const Json& b) {
        const Json& x = a["channelNumber"];
        const Json& y = b["channelNumber"];
        return !x.is_null() && (y.is_null() || x.get<unsigned>() < y.get<unsigned>());
    });
    const bool complete = (network && network->IsValid()) && (services && services->IsValid());
    return {{"operatorNetworkId", id},
            {"pid", Pid(pid)},
            {"complete", complete},
            {"networkDescriptors", network ? DescribeLoop(*network, text) : Json::array()},
            {"transportStreams", streams},
            {"channels", Json(channels)}};
}

// A channel number descriptor's entries, walked on a clone of its own.
Json Entries(const TCDescLogicalChannel& d, bool polsat, bool digiturk)
{
    const std::unique_ptr<TCBaseDesc> fork(d.Fork());
    auto* walker = static_cast<TCDescLogicalChannel*>(fork.get());
    Json entries = Json::array();
    for (const _TTDescLCN* e = walker->First(0); e != nullptr; e = walker->Next(0)) {
        Json entry = {{"serviceId", e->serviceId}, {"channelNumber", e->channelNumber}, {"visible", e->visibleFlag != 0}};
        if (polsat)
            entry["polsatServiceId"] = e->polsatServiceId;
        if (digiturk)
            entry["dpIds"] = Json::array({e->dpIdFirst, e->dpIdSecond});
        entries.push_back(entry);
    }
    return entries;
}

Json Descriptors(const TCDescriptorHash& loop, int from, int to, const TextDecoder& text)
{
    Json list = Json::array();
    for (int i = from; i < to; ++i)
        list.push_back(DescribeDescriptor(*loop.DescriptorByIndex(static_cast<unsigned>(i)), text));
    return list;
}

} // namespace

OperatorTables::OperatorTables(const ZUMHandle& handle) : m_handle(handle) {}

OperatorTables::~OperatorTables() = default;

void OperatorTables::Learn(const TCSectionParser& parser)
{
    if (const auto* nit = dynamic_cast<const TCDVBNITParser*>(&parser)) {
        std::list<unsigned short> ids;
        nit->NetworkIds(ids);
        for (unsigned short id : ids)
            LearnFastScanPids(*nit->GetInstance(id), m_fastScanPids);
    } else if (const auto* bat = dynamic_cast<const TCDVBBATParser*>(&parser)) {
        std::list<unsigned short> ids;
        bat->BouquetIds(ids);
        for (unsigned short id : ids)
            LearnFastScanPids(*bat->GetInstance(id), m_fastScanPids);
    } else if (const auto* pmt = dynamic_cast<const TCPMTParser*>(&parser)) {
        // An update is carried on the stream whose data broadcast id is system software update.
        for (int i = 0; i < pmt->NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt->PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int k = 0; k < program->NumOfElementary(); ++k) {
                const TCPMTElementary* stream = program->PMTElementary(static_cast<unsigned>(k));
                for (int d = 0; d < stream->NumOfDescriptors(kTagDataBroadcastId); ++d) {
                    const auto* id = dynamic_cast<const TCDescDataBroadcastId*>(
                        stream->Descriptor(kTagDataBroadcastId, static_cast<unsigned>(d)));
                    if (id && id->DataBroadcastId() == TCDescDataBroadcastId::kSystemSoftwareUpdate)
                        m_updatePids.insert(static_cast<uint16_t>(stream->ElementaryPID() & 0x1FFF));
                }
            }
        }
    }
}

bool OperatorTables::Wants(uint16_t pid) const
{
    return m_fastScanPids.count(pid) > 0 || m_updatePids.count(pid) > 0;
}

OperatorTables::Kind OperatorTables::m_KindOf(uint16_t pid, uint8_t tableId, bool allPids) const
{
    // Only a DVB receiver filters these tables.
    IBinder* binder = IBinder::Instance();
    if (binder && SystemOf(binder->GetCountryCode(m_handle), binder->GetOperator(m_handle)) != BroadcastSystem::Dvb)
        return Kind::None;
    // A file of sections has no PIDs: the table id alone decides.
    const bool any = pid == kNoPidHere || allPids;
    if ((tableId == kTidFnt || tableId == kTidFst) && (any || m_fastScanPids.count(pid) > 0))
        return tableId == kTidFnt ? Kind::Fnt : Kind::Fst;
    if (tableId == kTidUnt && (any || m_updatePids.count(pid) > 0))
        return Kind::Unt;
    return Kind::None;
}

TCSectionParser* OperatorTables::ParserFor(uint16_t pid, uint8_t tableId, bool allPids)
{
    switch (m_KindOf(pid, tableId, allPids)) {
    case Kind::Fnt: return Lazy(m_fnts[pid], static_cast<int>(tableId), m_handle);
    case Kind::Fst: return Lazy(m_fsts[pid], static_cast<int>(tableId), m_handle);
    case Kind::Unt: return Lazy(m_unts[pid], m_handle);
    case Kind::None: break;
    }
    return nullptr;
}

std::string OperatorTables::ParserName(uint16_t pid, uint8_t tableId) const
{
    if (tableId == kTidFnt && Find(m_fnts, pid))
        return "TCDVBFNTParser";
    if (tableId == kTidFst && Find(m_fsts, pid))
        return "TCDVBFSTParser";
    if (tableId == kTidUnt && Find(m_unts, pid))
        return "TCUNTParser";
    return "";
}

std::optional<bool> OperatorTables::Complete(uint16_t pid, uint8_t tableId) const
{
    if (tableId == kTidFnt && Find(m_fnts, pid))
        return Find(m_fnts, pid)->IsRecv();
    if (tableId == kTidFst) {
        if (const TCDVBFSTParser* fst = Find(m_fsts, pid)) {
            const TCDVBFSTInstance* first = fst->DVBFSTInstance(0xFFFF);
            return first && first->IsValid();
        }
    }
    if (tableId == kTidUnt) {
        if (const TCUNTParser* unt = Find(m_unts, pid)) {
            bool all = unt->NumOfUNTIntance() > 0;
            for (int i = 0; i < unt->NumOfUNTIntance(); ++i)
                all = all && unt->UNTInstanceOfIndex(static_cast<unsigned>(i))->IsValid();
            return all;
        }
    }
    return std::nullopt;
}

Json OperatorTables::FastScanModel(const TextDecoder& text) const
{
    IBinder* binder = IBinder::Instance();
    const ECountryCode country = binder ? binder->GetCountryCode(m_handle) : 0;
    std::set<uint16_t> pids;
    for (const auto& entry : m_fnts)
        pids.insert(entry.first);
    for (const auto& entry : m_fsts)
        pids.insert(entry.first);
    Json lists = Json::array();
    for (uint16_t pid : pids) {
        const TCDVBFNTParser* fnt = Find(m_fnts, pid);
        const TCDVBFSTParser* fst = Find(m_fsts, pid);
        std::list<unsigned short> both;
        if (fnt)
            fnt->NetworkIds(both);
        if (fst)
            fst->OperatorNetworkIds(both);
        const std::set<unsigned short> ids(both.begin(), both.end());
        for (unsigned short id : ids)
            lists.push_back(FastScanList(pid, id, fnt, fst, country, text));
    }
    return lists;
}

Json OperatorTables::UntModel(const TextDecoder& text) const
{
    Json tables = Json::array();
    for (const auto& entry : m_unts) {
        const TCUNTParser& unt = *entry.second;
        for (int i = 0; i < unt.NumOfUNTIntance(); ++i) {
            const TCUNTInstance* instance = unt.UNTInstanceOfIndex(static_cast<unsigned>(i));
            Json items = Json::array();
            for (int k = 0; k < instance->NumOfItem(); ++k) {
                const TCUNTItem* item = instance->UNTItem(static_cast<unsigned>(k));
                std::vector<unsigned char> buffer(item->CompatibilityDescriptorLength());
                unsigned short size = static_cast<unsigned short>(buffer.size());
                if (!item->GetCompatibilityDescriptor(buffer.data(), size))
                    size = 0;
                Json platforms = Json::array();
                for (int e = 0; e < item->NumOfElementary(); ++e) {
                    const TCUNTElementary* p = item->UNTElementary(static_cast<unsigned>(e));
                    const TCDescriptorHash& loop = p->Descriptors();
                    platforms.push_back({{"targets", Descriptors(loop, 0, p->NumOfTargetDescriptors(), text)},
                                         {"operational", Descriptors(loop, p->NumOfTargetDescriptors(),
                                                                     loop.NumOfDescriptors(), text)}});
                }
                items.push_back({{"compatibility", HexBytes(buffer.data(), size)}, {"platforms", platforms}});
            }
            tables.push_back({{"pid", Pid(entry.first)},
                              {"oui", Hex(instance->OUI(), 6)},
                              {"actionType", instance->ActionType()},
                              {"ouiHash", instance->OUIHash()},
                              {"processingOrder", instance->ProcessingOrder()},
                              {"complete", instance->IsValid()},
                              {"descriptors", DescribeLoop(*instance, text)},
                              {"items", items}});
        }
    }
    return tables;
}

void RenderFastScanTree(const Json& fastScan, std::ostream& out)
{
    if (!fastScan.is_array() || fastScan.empty())
        return;
    for (const Json& list : fastScan) {
        out << "FNT/FST  fast-scan channel list of operator network " << Hex(list["operatorNetworkId"].get<unsigned>(), 4)
            << (list["pid"].is_null() ? "" : " on PID " + Hex(list["pid"].get<unsigned>(), 4))
            << (list["complete"].get<bool>() ? "" : " (incomplete)") << '\n';
        RenderDescriptors(list["networkDescriptors"], 1, out);
        for (const Json& ts : list["transportStreams"]) {
            Json fields = ts;
            RenderObject("transport stream", fields, 1, out);
        }
        for (const Json& channel : list["channels"]) {
            Json fields = channel;
            fields.erase("channelNumber");
            const std::string number =
                channel["channelNumber"].is_null() ? "-" : std::to_string(channel["channelNumber"].get<unsigned>());
            RenderObject("channel " + number, fields, 1, out);
        }
    }
}

void RenderUntTree(const Json& unt, std::ostream& out)
{
    if (!unt.is_array() || unt.empty())
        return;
    for (const Json& table : unt) {
        out << "UNT  update notification of OUI " << table["oui"].get<std::string>()
            << (table["complete"].get<bool>() ? "" : " (incomplete)") << '\n';
        Json head = table;
        head.erase("oui");
        head.erase("items");
        RenderObject("table", head, 1, out);
        for (const Json& item : table["items"]) {
            out << "  compatibility " << item["compatibility"].get<std::string>() << '\n';
            for (const Json& platform : item["platforms"]) {
                out << "    platform\n";
                out << "      targets\n";
                RenderDescriptors(platform["targets"], 4, out);
                out << "      operational\n";
                RenderDescriptors(platform["operational"], 4, out);
            }
        }
    }
}

// ---- descriptors -----------------------------------------------------------

Json DescribeDigiturkLogicalChannel(const TCDescDigiturkLogicalChannel& d, const TextDecoder&)
{
    return {{"head", d.HeadValue() == kNoNumber ? Json(nullptr) : Json(d.HeadValue())},
            {"headFlag", d.HeadFlag() == kNoNumber ? Json(nullptr) : Json(d.HeadFlag())},
            {"entries", Entries(d, false, true)}};
}

Json DescribePolsatLogicalChannel(const TCDescPolsatLogicalChannel& d, const TextDecoder&)
{
    return {{"entries", Entries(d, true, false)}};
}

Json DescribeTelekartaLogicalChannel(const TCDescTelekartaLogicalChannel& d, const TextDecoder&)
{
    return {{"entries", Entries(d, false, false)}};
}

Json DescribePolsatChannelListInfo(const TCDescPolsatChannelListInfo& d, const TextDecoder&)
{
    const TCDescPolsatChannelListInfo::TSChannelListInfo info = d.GetChannelListInfo();
    return {{"version", info.version}, {"firstOther", info.firstOther}, {"secondOther", info.secondOther},
            {"update", info.update}};
}

Json DescribeEutelsatChannelNumber(const TCDescEutelsatChannelNumber& d, const TextDecoder&)
{
    std::multimap<TCServiceKey, unsigned short> services;
    d.GetServices(services);
    Json entries = Json::array();
    for (const auto& s : services)
        entries.push_back({{"originalNetworkId", s.first.m_originalNetworkId},
                           {"transportStreamId", s.first.m_transportStreamId},
                           {"serviceId", s.first.m_serviceId},
                           {"channelNumber", s.second}});
    return {{"entries", entries}};
}

Json DescribeSogecablePrivateChannelList(const TCDescSogecablePrivateChannelList& d, const TextDecoder&)
{
    Json entries = Json::array();
    for (int i = 0; i < d.NumOfEntries(); ++i)
        entries.push_back({{"serviceId", d.ServiceId(i)}, {"channelNumber", d.ChannelNumber(i)}});
    return {{"entries", entries}};
}

Json DescribeNXTServiceOrder(const TCDescNXTServiceOrder& d, const TextDecoder&)
{
    Json entries = Json::array();
    for (int i = 0; i < static_cast<int>(d.Count()); ++i)
        entries.push_back({{"serviceId", d.ServiceId(i)}, {"order", d.ServiceOrder(i)}});
    return {{"entries", entries}};
}

Json DescribeOtauChannelOrder(const TCDescOtauChannelOrder& d, const TextDecoder&)
{
    Json entries = Json::array();
    for (int i = 0; i < d.NumOfEntries(); ++i)
        entries.push_back({{"serviceId", d.ServiceId(i)}, {"order", d.Order(i)}});
    return {{"entries", entries}};
}

Json DescribeADBLCNv2Activate(const TCDescADBLCNv2Activate& d, const TextDecoder&)
{
    const auto value = [](unsigned int v) { return v == kNoNumber ? Json(nullptr) : Json(v); };
    return {{"firstByte", value(d.FirstByte())}, {"secondByte", value(d.SecondByte())}, {"id", value(d.ID())}};
}

} // namespace zuminspect
