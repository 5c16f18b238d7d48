#include "inspect/Router.h"

#include <list>

#include <zum-platform/Binder.h>

#include "apps/AITParser.h"
#include "dvb/DVBBATParser.h"
#include "dvb/DVBEITParser.h"
#include "dvb/DVBLCNParser.h"
#include "dvb/DVBNITParser.h"
#include "dvb/DVBSDTParser.h"
#include "dvb/DVBSGTParser.h"
#include "dvb/DVBRCTParser.h"
#include "dvb/DVBTDTParser.h"
#include "dvb/DVBTOTParser.h"
#include "dvb/DVBTKGSParser.h"
#include "inspect/LazyParser.h"
#include "inspect/TableIds.h"
#include "inspect/AtscView.h"
#include "inspect/TsDemux.h"
#include "isdb/EWSParser.h"
#include "operators/DescTKGSComponent.h"
#include "program/SITParser.h"
#include "psi/DVBCATParser.h"
#include "dvb/DVBFSatPostCodeParser.h"
#include "psi/PATParser.h"
#include "psi/PMTParser.h"

namespace zuminspect {

namespace {

constexpr uint8_t kTidPat = 0x00;
constexpr uint8_t kTidPmt = 0x02;
constexpr uint8_t kTidLcn = 0x85;
constexpr uint8_t kTidEws = 0x80;
constexpr int kStreamTypePrivateSections = 0x05;
constexpr uint8_t kTidSit = 0xD5;
constexpr uint8_t kTidAit = 0x74;
constexpr int kTagApplicationSignalling = 0x6F;
constexpr uint8_t kTidSgt = 0x91;
constexpr uint8_t kTidRct = 0x76;
constexpr int kTagRelatedContent = 0x74;
constexpr uint8_t kTidTkgs = 0xA7;
constexpr int kTagTkgsComponent = 0x98;
constexpr uint8_t kTidFSatPostCode = 0xD2;
constexpr unsigned int kPdsFreesat = 0x46534154;

bool IsEit(uint8_t tableId)
{
    return (tableId >= 0x4E && tableId <= 0x6F) || (tableId >= 0x80 && tableId <= 0x9F);
}

template <class Range, class Valid>
bool AllValid(const Range& range, Valid valid)
{
    bool any = false;
    for (const auto& item : range) {
        any = true;
        if (!valid(item))
            return false;
    }
    return any;
}

} // namespace

Router::Router(const ZUMHandle& handle, bool allPids)
    : m_handle(handle), m_allPids(allPids), m_events(handle), m_atsc(new AtscTables(handle)),
      m_isdb(std::make_unique<IsdbTables>(handle)), m_operators(std::make_unique<OperatorTables>(handle))
{
}

Router::~Router() = default;

bool Router::Wants(uint16_t pid) const
{
    return m_allPids || pid == kPidPat || pid == kPidCat || pid == kPidNit || pid == kPidSdt || pid == kPidEit ||
           pid == kPidTime || pid == kPidSit || pid == kNoPid || m_pmtPids.count(pid) > 0 || pid == m_networkPid ||
           m_privateSectionPids.count(pid) > 0 || m_atsc->Wants(pid) || m_isdb->Wants(pid) ||
           m_tkgsPids.count(pid) > 0 || m_operators->Wants(pid);
}

Router::Kind Router::m_KindOf(uint16_t pid, uint8_t tableId) const
{
    // Sections read from a file of sections have no PID: the table id alone decides.
    const bool any = pid == kNoPid;
    if (tableId == kTidPat && (any || pid == kPidPat))
        return Kind::Pat;
    // Collecting every PID, a PMT is taken wherever it comes, PAT or not.
    if (tableId == kTidPmt && (any || m_allPids || m_pmtPids.count(pid) > 0))
        return Kind::Pmt;
    if ((tableId == 0x40 || tableId == 0x41) && (any || pid == kPidNit || pid == m_networkPid))
        return Kind::Nit;
    if ((tableId == 0x42 || tableId == 0x46) && (any || pid == kPidSdt))
        return Kind::Sdt;
    // 0x80 is a compressed EIT on the EIT PID, the emergency warning table on a private-section stream.
    if (tableId == kTidEws && pid != kPidEit && m_privateSectionPids.count(pid) > 0)
        return Kind::Ews;
    if (tableId == 0x4A && (any || pid == kPidSdt))
        return Kind::Bat;
    if (tableId == 0x01 && (any || pid == kPidCat))
        return Kind::Cat;
    // Astra's service lists come on a private-section stream of the PMT.
    if (tableId == kTidSgt && pid != kPidEit && m_privateSectionPids.count(pid) > 0)
        return Kind::Sgt;
    // 0x85 is a compressed EIT on the EIT PID and the channel number table anywhere else.
    if (IsEit(tableId) && (pid == kPidEit || (any && tableId != kTidLcn)))
    // 0x85 is a compressed EIT on the EIT PID and the channel number table
    // anywhere else; without a PID the section decides (m_KindOfSection).
    if (IsEit(tableId) && (pid == kPidEit || IsIsdbEitPid(m_handle, pid) || (any && !IsCompressedEitRange(tableId))))
        return Kind::Eit;
    if (tableId == 0x70 && (any || pid == kPidTime))
        return Kind::Tdt;
    if (tableId == 0x73 && (any || pid == kPidTime))
        return Kind::Tot;
    if (tableId == kTidLcn && !any)
        return Kind::Lcn;
    if (tableId == kTidSit && (any || pid == kPidSit))
        return Kind::Sit;
    if (tableId == kTidAit && (any || m_aitPids.count(pid) > 0))
        return Kind::Ait;
    if (tableId == kTidRct && (any || m_rctPids.count(pid) > 0))
        return Kind::Rct;
    // TKGS comes on the stream whose PMT entry carries the TKGS component.
    if (tableId == kTidTkgs && (any || m_allPids || m_tkgsPids.count(pid) > 0))
        return Kind::Tkgs;
    // Only a Freesat receiver filters its postcode tables.
    IBinder* binder = IBinder::Instance();
    if (tableId == kTidFSatPostCode && binder && binder->GetPrivateDataSpecification(m_handle) == kPdsFreesat)
        return Kind::FSatPostCode;
    return Kind::None;
}

Router::Kind Router::m_KindOfSection(uint16_t pid, const uint8_t* section, size_t size) const
{
    const uint8_t tableId = section[0];
    if (pid != kNoPid || !IsCompressedEitRange(tableId))
        return m_KindOf(pid, tableId);
    // Compressed EIT, the channel number table, the Astra SGT, ISDB conditional access ...:
    // only a DVB receiver reads the first two, and the zlib stream tells the EIT.
    IBinder* binder = IBinder::Instance();
    const BroadcastSystem system =
        binder ? SystemOf(binder->GetCountryCode(m_handle), binder->GetOperator(m_handle)) : BroadcastSystem::Dvb;
    if (system != BroadcastSystem::Dvb)
        return Kind::None;
    if (HasCompressedEitShape(section, size))
        return Kind::Eit;
    if (tableId == kTidSgt)
        return Kind::Sgt;
    return tableId == kTidLcn ? Kind::Lcn : Kind::None;
}

Router::Kind Router::m_KindFor(uint16_t pid, uint8_t tableId) const
{
    if (pid != kNoPid || !IsCompressedEitRange(tableId))
        return m_KindOf(pid, tableId);
    const auto it = m_sharedKinds.find(tableId);
    return it == m_sharedKinds.end() ? Kind::None : it->second;
}

TCSectionParser* Router::m_Parser(Kind kind, uint8_t tableId)
{
    switch (kind) {
    case Kind::Pat: return Lazy(m_pat, m_handle);
    case Kind::Pmt: return Lazy(m_pmt, m_handle);
    case Kind::Nit: return Lazy(m_nits[tableId], static_cast<int>(tableId), m_handle);
    case Kind::Sdt: return Lazy(m_sdts[tableId], static_cast<int>(tableId), m_handle);
    case Kind::Eit: return Lazy(m_eits[tableId], static_cast<int>(tableId), m_handle);
    case Kind::Tdt: return Lazy(m_tdt, m_handle);
    case Kind::Tot: return Lazy(m_tot, m_handle);
    case Kind::Lcn: return Lazy(m_lcn, m_handle);
    case Kind::Ews: return Lazy(m_ews);
    case Kind::Sit: return Lazy(m_sit, static_cast<int>(tableId), m_handle);
    case Kind::Ait: break; // by PID, see OnSection
    case Kind::Tkgs: return Lazy(m_tkgs[m_sectionPid], m_handle);
    case Kind::Bat: return Lazy(m_bat, m_handle);
    case Kind::Cat: return Lazy(m_cat, m_handle);
    case Kind::Sgt: return Lazy(m_sgt, m_handle);
    case Kind::Rct: return Lazy(m_rct, m_handle);
    case Kind::FSatPostCode: return Lazy(m_fsatPostCodes, m_handle);
    case Kind::None: break;
    }
    return nullptr;
}

void Router::OnSection(uint16_t pid, const uint8_t* section, size_t size)
{
    if (section == nullptr || size < 3)
        return;
    const uint8_t tableId = section[0];
    TableCounts& counts = m_counts[{pid, tableId}];
    if ((section[1] & 0x80) != 0 && size >= 8)
        counts.versions.insert((section[5] >> 1) & 0x1F);

    m_isdb->Learn(pid, section, size);
    const Kind kind = m_KindOfSection(pid, section, size);
    m_sectionPid = pid;
    // Each AIT PID carries the table of its own service: one parser per PID.
    TCSectionParser* parser =
        kind == Kind::Ait ? Lazy(m_aits[pid], static_cast<int>(tableId), m_handle) : m_Parser(kind, tableId);
    if (parser == nullptr)
        parser = m_atsc->Parser(pid, tableId);
    if (parser == nullptr)
        parser = m_isdb->ParserFor(pid, tableId);
    if (parser == nullptr)
        parser = m_operators->ParserFor(pid, tableId, m_allPids);
    if (parser == nullptr) {
        ++counts.noParser;
        ++m_noParser;
        return;
    }
    ++counts.routed;
    ++m_routed;
    if (pid == kNoPid && IsCompressedEitRange(tableId))
        m_sharedKinds.emplace(tableId, kind);
    const bool taken = parser->Parse(static_cast<short>(pid), section);
    if (kind == Kind::Nit || kind == Kind::Bat || kind == Kind::Pmt)
        m_operators->Learn(*parser);
    if (kind == Kind::Pat)
        m_LearnPids();
    else if (kind == Kind::Eit && taken)
        m_events.Take(section, size);
    else if ((kind == Kind::Tdt || kind == Kind::Tot) && taken)
        m_timeTablesTaken.insert(tableId);
    else if (kind == Kind::Lcn)
        m_lcnPids.insert(pid);
    else if (kind == Kind::Pmt) {
        m_LearnPrivateSectionPids();
        m_LearnTkgsPids();
    }
    else if (kind == Kind::Ews)
        m_ewsPids.insert(pid);
    else if (kind == Kind::None)
        m_atsc->Parsed(pid, tableId);
}

void Router::m_LearnPrivateSectionPids()
{
    for (int i = 0; i < m_pmt->NumOfPMTInstance(); ++i) {
        const TCPMTInstance* program = m_pmt->PMTInstanceOfIndex(static_cast<unsigned>(i));
        for (int k = 0; k < program->NumOfElementary(); ++k) {
            const TCPMTElementary* stream = program->PMTElementary(static_cast<unsigned>(k));
            if (stream->StreamType() == kStreamTypePrivateSections)
                m_privateSectionPids.insert(static_cast<uint16_t>(stream->ElementaryPID() & 0x1FFF));
            if (stream->StreamType() == kStreamTypePrivateSections &&
                stream->NumOfDescriptors(kTagApplicationSignalling) > 0)
                m_aitPids.insert(static_cast<uint16_t>(stream->ElementaryPID() & 0x1FFF));
            if (stream->StreamType() == kStreamTypePrivateSections && stream->NumOfDescriptors(kTagRelatedContent) > 0)
                m_rctPids.insert(static_cast<uint16_t>(stream->ElementaryPID() & 0x1FFF));
        }
    }
}

void Router::m_LearnTkgsPids()
{
    for (int i = 0; i < m_pmt->NumOfPMTInstance(); ++i) {
        const TCPMTInstance* program = m_pmt->PMTInstanceOfIndex(static_cast<unsigned>(i));
        for (int k = 0; k < program->NumOfElementary(); ++k) {
            const TCPMTElementary* stream = program->PMTElementary(static_cast<unsigned>(k));
            for (int d = 0; d < stream->NumOfDescriptors(kTagTkgsComponent); ++d) {
                const auto* component = dynamic_cast<const TCDescTKGSComponent*>(
                    stream->Descriptor(kTagTkgsComponent, static_cast<unsigned>(d)));
                if (component && component->Found())
                    m_tkgsPids.insert(static_cast<uint16_t>(stream->ElementaryPID() & 0x1FFF));
            }
        }
    }
}

void Router::m_LearnPids()
{
    for (int i = 0; i < m_pat->NumOfProgramList(); ++i) {
        const int pid = m_pat->ProgramPID(static_cast<unsigned short>(m_pat->ProgramNumber(static_cast<unsigned>(i))));
        if (pid >= 0)
            m_pmtPids.insert(static_cast<uint16_t>(pid & 0x1FFF));
    }
    if (m_pat->ZeroProgramPid() >= 0)
        m_networkPid = m_pat->ZeroProgramPid() & 0x1FFF;
}

std::string Router::ParserName(uint16_t pid, uint8_t tableId) const
{
    switch (m_KindFor(pid, tableId)) {
    case Kind::Pat: return "TCPATParser";
    case Kind::Pmt: return "TCPMTParser";
    case Kind::Nit: return "TCDVBNITParser";
    case Kind::Sdt: return "TCDVBSDTParser";
    case Kind::Eit: return "TCDVBEITParser";
    case Kind::Tdt: return "TCDVBTDTParser";
    case Kind::Tot: return "TCDVBTOTParser";
    case Kind::Lcn: return "TCDVBLCNParser";
    case Kind::Ews: return "TCEWSParser";
    case Kind::Sit: return "TCSITParser";
    case Kind::Ait: return "TCAITParser";
    case Kind::Tkgs: return "TCDVBTKGSParser";
    case Kind::Bat: return "TCDVBBATParser";
    case Kind::Cat: return "TCDVBCATParser";
    case Kind::Sgt: return "TCDVBSGTParser";
    case Kind::Rct: return "TCDVBRCTParser";
    case Kind::FSatPostCode: return "TCDVBFSatPostCodeParser";
    case Kind::None: break;
    }
    const std::string atsc = m_atsc->ParserName(pid, tableId);
    const std::string isdb = !atsc.empty() ? atsc : m_isdb->ParserName(pid, tableId);
    return !isdb.empty() ? isdb : m_operators->ParserName(pid, tableId);
}

std::optional<bool> Router::Complete(uint16_t pid, uint8_t tableId) const
{
    switch (m_KindFor(pid, tableId)) {
    case Kind::Pat: return m_pat && m_pat->IsRecv();
    case Kind::Pmt: {
        if (!m_pmt)
            return false;
        std::list<const TCPMTInstance*> ofPid;
        for (int i = 0; i < m_pmt->NumOfPMTInstance(); ++i) {
            const TCPMTInstance* instance = m_pmt->PMTInstanceOfIndex(static_cast<unsigned>(i));
            if (pid == kNoPid || static_cast<uint16_t>(instance->Pid()) == pid)
                ofPid.push_back(instance);
        }
        return AllValid(ofPid, [](const TCPMTInstance* p) { return p->IsValid(); });
    }
    case Kind::Nit: {
        const auto it = m_nits.find(tableId);
        if (it == m_nits.end())
            return false;
        std::list<unsigned short> ids;
        it->second->NetworkIds(ids);
        return AllValid(ids, [&](unsigned short id) { return it->second->GetInstance(id)->IsValid(); });
    }
    case Kind::Sdt: {
        const auto it = m_sdts.find(tableId);
        if (it == m_sdts.end())
            return false;
        std::list<const TCDVBSDTInstance*> instances;
        for (int i = 0; i < it->second->NumOfDVBSDTInstance(); ++i)
            instances.push_back(it->second->DVBSDTInstanceOfIndex(static_cast<unsigned>(i)));
        return AllValid(instances, [](const TCDVBSDTInstance* p) { return p->IsValid(); });
    }
    case Kind::Eit: return m_events.Complete(tableId);
    // The time tables keep no section state: one good section is the whole table.
    case Kind::Tdt:
    case Kind::Tot: return m_timeTablesTaken.count(tableId) > 0;
    case Kind::Lcn: return m_lcn && m_lcn->IsRecv();
    case Kind::Ews: return m_ews && m_ews->IsValidTRDW() && m_ews->IsValidTCDW() && m_ews->IsValidTMDW();
    case Kind::Sit: return m_sit && m_sit->IsRecv();
    case Kind::Ait: {
        const auto it = m_aits.find(pid);
        if (it == m_aits.end())
            return false;
        std::list<const TCAitInstance*> instances;
        for (int i = 0; i < it->second->NumOfAITInstance(); ++i)
            instances.push_back(it->second->AITInstanceOfIndex(static_cast<unsigned>(i)));
        return AllValid(instances, [](const TCAitInstance* p) { return p->IsValid(); });
    }
    case Kind::Tkgs: {
        const auto it = m_tkgs.find(pid);
        return it != m_tkgs.end() && it->second->IsComplete();
    }
    case Kind::Bat: {
        std::list<unsigned short> ids;
        if (m_bat)
            m_bat->BouquetIds(ids);
        return AllValid(ids, [&](unsigned short id) { return m_bat->GetInstance(id)->IsValid(); });
    }
    case Kind::Cat: return m_cat && m_cat->IsValid();
    case Kind::Sgt: return m_sgt && m_sgt->AllSubtablesReceived();
    case Kind::Rct: {
        std::list<const TCDVBRCTInstance*> instances;
        for (int i = 0; m_rct && i < m_rct->NumOfRCTInstance(); ++i)
            instances.push_back(m_rct->RCTInstanceOfIndex(static_cast<unsigned>(i)));
        return AllValid(instances, [](const TCDVBRCTInstance* p) { return p->IsValid(); });
    }
    case Kind::FSatPostCode: return m_fsatPostCodes && m_fsatPostCodes->IsValid();
    case Kind::None: break;
    }
    if (const std::optional<bool> atsc = m_atsc->Complete(pid, tableId))
        return atsc;
    if (const std::optional<bool> isdb = m_isdb->Complete(pid, tableId))
        return isdb;
    return m_operators->Complete(pid, tableId);
}

} // namespace zuminspect
