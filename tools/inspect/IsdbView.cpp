#include "inspect/IsdbView.h"

#include <functional>
#include <list>
#include <vector>

#include <zum-platform/Binder.h>

#include "core/ByteReader.h"
#include "inspect/Describers.h"
#include "inspect/Renderers.h"
#include "inspect/TableIds.h"
#include "inspect/TsDemux.h"
#include "isdb/ISDBBITParser.h"
#include "isdb/ISDBCDTParser.h"
#include "isdb/ISDBECMParser.h"
#include "isdb/ISDBEMMMessageParser.h"
#include "isdb/ISDBEMMParser.h"
#include "isdb/ISDBLDTParser.h"
#include "isdb/ISDBNBITParser.h"
#include "isdb/ISDBPCATParser.h"
#include "isdb/SDTTParser.h"

namespace zuminspect {

namespace {

constexpr uint16_t kPidCat = 0x0001;
constexpr uint16_t kPidPcat = 0x0022;
constexpr uint16_t kPidSdtt = 0x0023;
constexpr uint16_t kPidBit = 0x0024;
constexpr uint16_t kPidNbitLdt = 0x0025;
constexpr uint16_t kPidCdt = 0x0029;
constexpr uint8_t kTagCa = 0x09;

template <class Parser, class... Args>
Parser* Made(std::unique_ptr<Parser>& slot, const Args&... args)
{
    if (!slot) {
        slot = std::make_unique<Parser>(args...);
        slot->Initialize();
    }
    return slot.get();
}

// The CA_PID of every CA descriptor in a loop.
void CaPids(const uint8_t* loop, size_t size, std::set<uint16_t>& pids)
{
    for (size_t at = 0; at + 2 <= size;) {
        const size_t length = loop[at + 1];
        if (at + 2 + length > size)
            break;
        if (loop[at] == kTagCa && length >= 4)
            pids.insert(static_cast<uint16_t>(ReadBE16(loop + at + 4) & 0x1FFF));
        at += 2 + length;
    }
}

// Seconds since 1980 as ISO text, or null for an empty list.
Json Schedule(const std::vector<unsigned int>& starts, const std::vector<unsigned int>& durations)
{
    Json list = Json::array();
    for (size_t i = 0; i < starts.size(); ++i)
        list.push_back({{"start", IsoTimeSince1980(starts[i])}, {"duration", durations[i]}});
    return list;
}

std::string Bytes(int size, const std::function<bool(int&, unsigned char*)>& get)
{
    std::vector<unsigned char> out(static_cast<size_t>(size > 0 ? size : 1));
    int length = size;
    if (!get(length, out.data()))
        return std::string();
    return HexBytes(out.data(), static_cast<size_t>(length));
}

template <class Map, class Each>
Json List(const Map& instances, Each each)
{
    Json list = Json::array();
    for (const auto& entry : instances)
        list.push_back(each(entry.first, *entry.second));
    return list;
}

} // namespace

bool IsdbReceiver(const ZUMHandle& handle)
{
    IBinder* binder = IBinder::Instance();
    return binder && SystemOf(binder->GetCountryCode(handle), binder->GetOperator(handle)) == BroadcastSystem::Isdb;
}

bool IsIsdbEitPid(const ZUMHandle& handle, uint16_t pid)
{
    return (pid == 0x0026 || pid == 0x0027) && IsdbReceiver(handle);
}

IsdbTables::IsdbTables(const ZUMHandle& handle) : m_handle(handle) {}

IsdbTables::~IsdbTables() = default;

void IsdbTables::Learn(uint16_t pid, const uint8_t* section, size_t size)
{
    if (section == nullptr || size < 16 || (section[1] & 0x80) == 0)
        return;
    const size_t end = size - 4;
    if (section[0] == 0x01 && (pid == kPidCat || pid == kNoPid)) {
        CaPids(section + 8, end - 8, m_emmPids);
    } else if (section[0] == 0x02) {
        size_t at = 12 + (ReadBE16(section + 10) & 0x0FFF);
        if (at > end)
            return;
        CaPids(section + 12, at - 12, m_ecmPids);
        while (at + 5 <= end) {
            const size_t length = ReadBE16(section + at + 3) & 0x0FFF;
            if (at + 5 + length > end)
                break;
            CaPids(section + at + 5, length, m_ecmPids);
            at += 5 + length;
        }
    }
}

bool IsdbTables::Wants(uint16_t pid) const
{
    if (!IsdbReceiver(m_handle))
        return false;
    return pid == kPidCat || pid == kPidPcat || pid == kPidSdtt || pid == kPidBit || pid == kPidNbitLdt ||
           pid == kPidCdt || pid == 0x0026 || pid == 0x0027 || m_ecmPids.count(pid) > 0 || m_emmPids.count(pid) > 0;
}

IsdbTables::Kind IsdbTables::m_KindOf(uint16_t pid, uint8_t tableId) const
{
    if (!IsdbReceiver(m_handle))
        return Kind::None;
    const bool any = pid == kNoPid;
    switch (tableId) {
    case 0xC5:
    case 0xC6: return any || pid == kPidNbitLdt ? Kind::Nbit : Kind::None;
    case 0xC7: return any || pid == kPidNbitLdt ? Kind::Ldt : Kind::None;
    case 0xC2: return any || pid == kPidPcat ? Kind::Pcat : Kind::None;
    case 0xC4: return any || pid == kPidBit ? Kind::Bit : Kind::None;
    case 0xC3: return any || pid == kPidSdtt ? Kind::Sdtt : Kind::None;
    case 0xC8: return any || pid == kPidCdt ? Kind::Cdt : Kind::None;
    // Only the PIDs that a PMT or the CAT names carry them: a file of sections has none.
    case 0x82: return m_ecmPids.count(pid) > 0 ? Kind::Ecm : Kind::None;
    case 0x84: return m_emmPids.count(pid) > 0 ? Kind::Emm : Kind::None;
    case 0x85: return m_emmPids.count(pid) > 0 ? Kind::EmmMessage : Kind::None;
    default: return Kind::None;
    }
}

TCSectionParser* IsdbTables::ParserFor(uint16_t pid, uint8_t tableId)
{
    switch (m_KindOf(pid, tableId)) {
    case Kind::Nbit: return Made(m_nbits[tableId], tableId, m_handle);
    case Kind::Ldt: return Made(m_ldt, m_handle);
    case Kind::Pcat: return Made(m_pcat, m_handle);
    case Kind::Bit: return Made(m_bit, m_handle);
    case Kind::Sdtt: return Made(m_sdtt, m_handle);
    case Kind::Cdt: return Made(m_cdt, m_handle);
    case Kind::Ecm: return Made(m_ecm, m_handle);
    case Kind::Emm: return Made(m_emm, m_handle);
    case Kind::EmmMessage: return Made(m_emmMessages, m_handle);
    case Kind::None: break;
    }
    return nullptr;
}

std::string IsdbTables::ParserName(uint16_t pid, uint8_t tableId) const
{
    switch (m_KindOf(pid, tableId)) {
    case Kind::Nbit: return "TCISDBNBITParser";
    case Kind::Ldt: return "TCISDBLDTParser";
    case Kind::Pcat: return "TCISDBPCATParser";
    case Kind::Bit: return "TCISDBBITParser";
    case Kind::Sdtt: return "TCSDTTParser";
    case Kind::Cdt: return "TCISDBCDTParser";
    case Kind::Ecm: return "TCISDBECMParser";
    case Kind::Emm: return "TCISDBEMMParser";
    case Kind::EmmMessage: return "TCISDBEMMMessageParser";
    case Kind::None: break;
    }
    return std::string();
}

std::optional<bool> IsdbTables::Complete(uint16_t pid, uint8_t tableId) const
{
    // Every instance that the table has holds all its sections.
    const auto all = [](const auto* parser, auto instance) {
        bool any = false;
        for (unsigned int id = 0; parser && id <= 0xFFFF; ++id) {
            const auto* i = instance(*parser, static_cast<unsigned short>(id));
            if (i == nullptr)
                continue;
            any = true;
            if (!i->IsValid())
                return false;
        }
        return any;
    };
    switch (m_KindOf(pid, tableId)) {
    case Kind::Nbit: {
        const auto it = m_nbits.find(tableId);
        return all(it == m_nbits.end() ? nullptr : it->second.get(),
                   [](const TCISDBNBITParser& p, unsigned short id) { return p.NBITInstance(id); });
    }
    case Kind::Ldt: return all(m_ldt.get(), [](const TCISDBLDTParser& p, unsigned short id) { return p.LDTInstance(id); });
    case Kind::Pcat:
        return all(m_pcat.get(), [](const TCISDBPCATParser& p, unsigned short id) { return p.PCATInstance(id); });
    case Kind::Bit: return all(m_bit.get(), [](const TCISDBBITParser& p, unsigned short id) { return p.BITInstance(id); });
    case Kind::Sdtt: return all(m_sdtt.get(), [](const TCSDTTParser& p, unsigned short id) { return p.SDTTInstance(id); });
    case Kind::Cdt: return all(m_cdt.get(), [](const TCISDBCDTParser& p, unsigned short id) { return p.CDTInstance(id); });
    case Kind::Ecm: return m_ecm && m_ecm->IsValid();
    case Kind::Emm: return m_emm && m_emm->IsValid();
    case Kind::EmmMessage: return m_emmMessages && m_emmMessages->IsValid();
    case Kind::None: break;
    }
    return std::nullopt;
}

Json IsdbTables::Model(const TextDecoder& text) const
{
    if (!m_ldt && !m_pcat && !m_bit && !m_sdtt && !m_cdt && !m_ecm && !m_emm && !m_emmMessages && m_nbits.empty())
        return nullptr;
    Json nbit = Json::array();
    for (const auto& parser : m_nbits) {
        for (unsigned int id = 0; id <= 0xFFFF; ++id) {
            const TCISDBNBITInstance* i = parser.second->NBITInstance(static_cast<unsigned short>(id));
            if (i == nullptr)
                continue;
            Json records = Json::array();
            for (int n = 0; n < i->NumOfInformation(); ++n) {
                const TCISDBNBITInformation* r = i->InformationOfIndex(static_cast<unsigned int>(n));
                records.push_back({{"informationId", r->InformationId()},
                                   {"informationType", r->InformationType()},
                                   {"descriptionBodyLocation", r->DescriptionBodyLocation()},
                                   {"userDefined", r->UserDefined()},
                                   {"keyIds", r->KeyIds()},
                                   {"descriptors", DescribeLoop(*r, text)}});
            }
            nbit.push_back({{"tableId", parser.first},
                            {"originalNetworkId", id},
                            {"complete", i->IsValid()},
                            {"information", records}});
        }
    }
    Json ldt = Json::array();
    Json pcat = Json::array();
    Json bit = Json::array();
    Json sdtt = Json::array();
    for (unsigned int id = 0; id <= 0xFFFF; ++id) {
        const unsigned short key = static_cast<unsigned short>(id);
        if (const TCISDBLDTInstance* i = m_ldt ? m_ldt->LDTInstance(key) : nullptr) {
            Json records = Json::array();
            for (int n = 0; n < i->NumOfDescription(); ++n) {
                const TCISDBLDTDescription* r = i->DescriptionOfIndex(static_cast<unsigned int>(n));
                records.push_back({{"descriptionId", r->DescriptionId()}, {"descriptors", DescribeLoop(*r, text)}});
            }
            ldt.push_back({{"originalServiceId", id},
                           {"transportStreamId", i->TransportStreamId()},
                           {"originalNetworkId", i->OriginalNetworkId()},
                           {"complete", i->IsValid()},
                           {"descriptions", records}});
        }
        if (const TCISDBPCATInstance* i = m_pcat ? m_pcat->PCATInstance(key) : nullptr) {
            Json records = Json::array();
            for (int n = 0; n < i->NumOfContentVersion(); ++n) {
                const TCISDBPCATContentVersion* r = i->ContentVersionOfIndex(static_cast<unsigned int>(n));
                records.push_back({{"contentVersion", r->ContentVersion()},
                                   {"contentMinorVersion", r->ContentMinorVersion()},
                                   {"versionIndicator", r->VersionIndicator()},
                                   {"schedule", Schedule(r->StartTimes(), r->Durations())},
                                   {"descriptors", DescribeLoop(*r, text)}});
            }
            pcat.push_back({{"serviceId", id},
                            {"transportStreamId", i->TransportStreamId()},
                            {"originalNetworkId", i->OriginalNetworkId()},
                            {"contentId", i->ContentId()},
                            {"complete", i->IsValid()},
                            {"contentVersions", records}});
        }
        if (const TCISDBBITInstance* i = m_bit ? m_bit->BITInstance(key) : nullptr) {
            Json records = Json::array();
            for (int n = 0; n < i->NumOfBroadcaster(); ++n) {
                const TCISDBBITBroadcaster* r = i->BroadcasterOfIndex(static_cast<unsigned int>(n));
                records.push_back({{"broadcasterId", r->BroadcasterId()}, {"descriptors", DescribeLoop(*r, text)}});
            }
            bit.push_back({{"originalNetworkId", id},
                           {"broadcastViewPropriety", i->BroadcastViewPropriety()},
                           {"complete", i->IsValid()},
                           {"descriptors", DescribeLoop(*i, text)},
                           {"broadcasters", records}});
        }
        if (const TCSDTTInstance* i = m_sdtt ? m_sdtt->SDTTInstance(key) : nullptr) {
            Json records = Json::array();
            for (int n = 0; n < i->NumOfContent(); ++n) {
                const SDContent* c = i->ContentOfIndex(static_cast<unsigned int>(n));
                Json schedule = Json::array();
                for (const SDContent::TTSchedule& s : c->Schedule())
                    schedule.push_back({{"start", IsoTimeSince1980(s.startTime)}, {"duration", Hex(s.duration, 6)}});
                records.push_back({{"group", c->Group()},
                                   {"targetVersion", c->TargetVersion()},
                                   {"newVersion", c->NewVersion()},
                                   {"downloadLevel", c->DownloadLevel() < 0 ? Json(nullptr) : Json(c->DownloadLevel())},
                                   {"versionIndicator", c->VersionIndicator()},
                                   {"scheduleTimeShift", c->ScheduleTimeShift()},
                                   {"schedule", schedule},
                                   {"descriptors", DescribeLoop(*c, text)}});
            }
            sdtt.push_back({{"makerModel", Hex(id, 4)},
                            {"transportStreamId", i->TransportStreamId()},
                            {"originalNetworkId", i->OriginalNetworkId()},
                            {"serviceId", i->ServiceId()},
                            {"complete", i->IsValid()},
                            {"contents", records}});
        }
    }
    Json cdt = Json::array();
    for (int n = 0; m_cdt && n < m_cdt->NumOfCDTInstance(); ++n) {
        const TCCDTInstance* i = m_cdt->CDTInstanceOfIndex(static_cast<unsigned int>(n));
        std::list<CLogoData*> logos;
        i->GetLogoDataList(logos);
        Json list = Json::array();
        for (CLogoData* l : logos) {
            list.push_back({{"logoType", l->LogoType()},
                            {"logoId", l->LogoId()},
                            {"logoVersion", l->LogoVersion()},
                            {"dataSize", l->DataSize()},
                            {"head", HexBytes(l->Data(), l->DataSize() < 8 ? l->DataSize() : 8)}});
            delete l;
        }
        cdt.push_back({{"downloadDataId", i->DownloadDataId()},
                       {"originalNetworkId", i->OriginalNetworkId()},
                       {"dataType", i->DataType()},
                       {"complete", i->IsValid()},
                       {"descriptors", DescribeLoop(*i, text)},
                       {"logos", list}});
    }
    Json ecm = nullptr;
    if (m_ecm)
        ecm = {{"pids", m_ecmPids},
               {"dateTime", IsoTimeSince1980(m_ecm->DateTime())},
               {"variablePartSize", m_ecm->VariablePartSize()},
               {"authentication", Hex(m_ecm->AuthenticationField(), 8)}};
    Json emm = nullptr;
    if (m_emm) {
        Json records = Json::array();
        for (int n = 0; n < m_emm->NumOfPayload(); ++n) {
            const TCISDBEMMPayload* r = m_emm->PayloadOfIndex(static_cast<unsigned int>(n));
            records.push_back({{"cardId", Bytes(6, [r](int& l, unsigned char* o) { return r->CardID(l, o); })},
                               {"variablePartSize", r->VariablePartSize()},
                               {"authentication", Hex(r->AuthenticationField(), 8)}});
        }
        emm = {{"pids", m_emmPids}, {"records", records}};
    }
    Json messages = nullptr;
    if (m_emmMessages) {
        Json records = Json::array();
        for (int n = 0; n < m_emmMessages->NumOfMessage(); ++n) {
            const TCISDBEMMMessagePayload* m = m_emmMessages->MessageOfIndex(static_cast<unsigned int>(n));
            records.push_back({{"kind", m->Kind() == TCISDBEMMMessagePayload::kCommon ? "common" : "individual"},
                               {"presetTextNumber", m->MessagePresetTextNumber()},
                               {"messageLength", m->MessageLength()}});
        }
        messages = {{"messages", records}};
    }
    return {{"nbit", nbit}, {"ldt", ldt},  {"pcat", pcat}, {"bit", bit},          {"sdtt", sdtt},
            {"cdt", cdt},   {"ecm", ecm},  {"emm", emm},   {"emmMessages", messages}};
}

void RenderIsdbTree(const Json& isdb, std::ostream& out)
{
    if (isdb.is_null())
        return;
    static const std::map<std::string, std::string> heads = {
        {"nbit", "NBIT"}, {"ldt", "LDT"}, {"pcat", "PCAT"}, {"bit", "BIT"}, {"sdtt", "SDTT"},
        {"cdt", "CDT"},   {"ecm", "ECM"}, {"emm", "EMM"},   {"emmMessages", "EMM message"}};
    for (const auto& item : isdb.items()) {
        const std::string& head = heads.at(item.key());
        if (item.value().is_array()) {
            for (const Json& instance : item.value())
                RenderObject(head, instance, 0, out);
        } else if (item.value().is_object()) {
            RenderObject(head, item.value(), 0, out);
        }
    }
}

} // namespace zuminspect
