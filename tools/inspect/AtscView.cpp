#include "inspect/AtscView.h"

#include <list>
#include <vector>

#include <zum-platform/Binder.h>

#include "atsc/DescExtendedChannelName.h"
#include "atsc/DescServiceLocation.h"
#include "atsc/MGTParser.h"
#include "atsc/MultipleStringStruct.h"
#include "atsc/VCTParser.h"
#include "inspect/Describers.h"
#include "inspect/OobView.h"
#include "inspect/PsipView.h"
#include "inspect/Renderers.h"
#include "inspect/TsDemux.h"

namespace zuminspect {

namespace {

constexpr uint8_t kTidMgt = 0xC7;
constexpr uint8_t kTidTvct = 0xC8;
constexpr uint8_t kTidCvct = 0xC9;
constexpr int kTagExtendedChannelName = 0xA0;
// MGT table types of the current VCTs.
constexpr unsigned short kTypeTvctCurrent = 0x0000;
constexpr unsigned short kTypeCvctCurrent = 0x0002;
constexpr int kTextCapacity = 512;

bool IsAtscCountry(const ZUMHandle& handle)
{
    IBinder* binder = IBinder::Instance();
    if (binder == nullptr)
        return false;
    const ECountryCode country = binder->GetCountryCode(handle);
    return country == ZumPackCode("USA") || country == ZumPackCode("KOR");
}

// What the MGT's table types stand for.
std::string TableTypeName(unsigned type)
{
    switch (type) {
    case 0x0000: return "TVCT current";
    case 0x0001: return "TVCT next";
    case 0x0002: return "CVCT current";
    case 0x0003: return "CVCT next";
    case 0x0004: return "channel ETT";
    case 0x0005: return "DCCSCT";
    default: break;
    }
    if (type >= 0x0100 && type <= 0x017F)
        return "EIT-" + std::to_string(type - 0x0100);
    if (type >= 0x0200 && type <= 0x027F)
        return "event ETT-" + std::to_string(type - 0x0200);
    if (type >= 0x0301 && type <= 0x03FF)
        return "RRT region " + std::to_string(type - 0x0300);
    if (type >= 0x1400 && type <= 0x14FF)
        return "DCCT " + std::to_string(type - 0x1400);
    return "";
}

std::string Utf16BytesToUtf8(const unsigned char* data, size_t size)
{
    std::basic_string<unsigned short> units;
    for (size_t i = 0; i + 1 < size; i += 2)
        units.push_back(static_cast<unsigned short>((data[i] << 8) | data[i + 1]));
    return Utf16ToUtf8(units);
}

Json Channel(const TCVCTChannel& c, const TextDecoder& text)
{
    std::optional<std::string> name;
    if (const auto* d = dynamic_cast<const TCDescExtendedChannelName*>(c.Descriptor(kTagExtendedChannelName, 0)))
        if (d->ExtendedChannelNameString() != nullptr)
            name = RenderMultipleString(*d->ExtendedChannelNameString());
    const std::string shortName = ChannelShortName(c);
    const std::string number = std::to_string(c.MajorChannelNumber()) + "." + std::to_string(c.MinorChannelNumber());
    return {{"channel", number + " " + name.value_or(shortName)},
            {"major", c.MajorChannelNumber()},
            {"minor", c.MinorChannelNumber()},
            {"shortName", shortName},
            {"name", name ? Json(*name) : Json(nullptr)},
            {"modulation", c.ModulationMode()},
            {"carrierFrequency", c.CarrierFrequency()},
            {"channelTsid", c.ChannelTSID()},
            {"programNumber", c.ProgramNumber()},
            {"etmLocation", c.ETMLocation()},
            {"accessControlled", c.AccessControlled() != 0},
            {"hidden", c.Hidden() != 0},
            {"pathSelect", c.PathSelect()},
            {"hideGuide", c.HideGuide() != 0},
            {"serviceType", c.ServiceType()},
            {"sourceId", c.SourceId()},
            {"descriptors", DescribeLoop(c, text)}};
}

Json Mgt(const TCMGTParser& mgt, const TextDecoder& text)
{
    Json tables = Json::array();
    for (unsigned i = 0; i < mgt.NumOfTable(); ++i) {
        const TCMGTTable* t = mgt.MGTTableOfIndex(i);
        tables.push_back({{"tableType", t->TableType()},
                          {"type", TableTypeName(t->TableType())},
                          {"pid", t->PID()},
                          {"version", t->Version()},
                          {"numberBytes", t->NumberBytes()},
                          {"descriptors", DescribeLoop(*t, text)}});
    }
    return {{"tables", tables},
            {"eitCount", mgt.NumOfEIT()},
            {"ettCount", mgt.NumOfETT()},
            {"descriptors", DescribeLoop(mgt, text)}};
}

Json StringStructure(const TCMultipleStringStruct& mss)
{
    Json strings = Json::array();
    for (int i = 0; i < mss.NumOfStrings(); ++i) {
        const TCMultipleString* s = mss.String(i);
        if (s == nullptr)
            break;
        Json segments = Json::array();
        for (int k = 0; k < s->NumOfSegments(); ++k) {
            const TCMultipleStringSegment* segment = s->Segment(k);
            if (segment == nullptr)
                break;
            segments.push_back({{"compression", segment->CompressionType()},
                                {"mode", segment->Mode()},
                                {"bytes", segment->NumberBytes()}});
        }
        strings.push_back({{"language", CodeText(s->ISO639LanguageCode())}, {"segments", segments}});
    }
    const std::optional<std::string> rendered = RenderMultipleString(mss);
    return {{"text", rendered ? Json(*rendered) : Json(nullptr)}, {"strings", strings}};
}

} // namespace

std::string ChannelShortName(const TCVCTChannel& channel)
{
    std::string name = Utf16BytesToUtf8(channel.ShortName(), TCVCTChannel::kShortNameBytes);
    const size_t end = name.find_last_not_of(std::string(" \0", 2));
    return end == std::string::npos ? std::string() : name.substr(0, end + 1);
}

// ---- routing ----------------------------------------------------------------

AtscTables::AtscTables(const ZUMHandle& handle)
    : m_handle(handle), m_enabled(IsAtscCountry(handle)), m_oob(new OobTables(handle)), m_psip(new PsipTables(handle))
{
}

bool AtscTables::Wants(uint16_t pid) const
{
    return m_enabled && (pid == kPidAtscBase || OobTables::Wants(pid) || m_psip->Wants(pid));
}

AtscTables::~AtscTables() = default;

AtscTables::Kind AtscTables::m_KindOf(uint16_t pid, uint8_t tableId) const
{
    if (!m_enabled || (pid != kPidAtscBase && pid != kNoPid))
        return Kind::None;
    switch (tableId) {
    case kTidMgt: return Kind::Mgt;
    case kTidTvct: return Kind::Tvct;
    case kTidCvct: return Kind::Cvct;
    default: return Kind::None;
    }
}

TCSectionParser* AtscTables::Parser(uint16_t pid, uint8_t tableId)
{
    if (!m_enabled)
        return nullptr;
    if (TCSectionParser* oob = m_oob->Parser(pid, tableId))
        return oob;
    if (TCSectionParser* psip = m_psip->Parser(pid, tableId))
        return psip;
    switch (m_KindOf(pid, tableId)) {
    case Kind::Mgt: return MadeParser<TCMGTParser>(m_mgt, m_handle);
    case Kind::Tvct: MadeParser<TCTVCTParser>(m_tvct, m_handle); break;
    case Kind::Cvct: MadeParser<TCCVCTParser>(m_cvct, m_handle); break;
    case Kind::None: return nullptr;
    }
    // A VCT made after the MGT came learns its version too.
    m_HandMgtVersions();
    return tableId == kTidTvct ? m_tvct.get() : m_cvct.get();
}

void AtscTables::Parsed(uint16_t pid, uint8_t tableId)
{
    if (m_KindOf(pid, tableId) == Kind::Mgt) {
        m_HandMgtVersions();
        if (m_mgt)
            m_psip->Learn(*m_mgt);
    }
}

void AtscTables::m_HandMgtVersions()
{
    if (!m_mgt)
        return;
    // The caller's part of the VCT gate: the version the MGT announces.
    const std::pair<unsigned short, TCVCTParser*> vcts[] = {{kTypeTvctCurrent, m_tvct.get()},
                                                             {kTypeCvctCurrent, m_cvct.get()}};
    for (const auto& v : vcts) {
        const TCMGTTable* entry = m_mgt->MGTTable(v.first);
        if (entry != nullptr && v.second != nullptr)
            v.second->SetCurrentMGTVCTVersion(static_cast<char>(entry->Version()));
    }
}

std::string AtscTables::ParserName(uint16_t pid, uint8_t tableId) const
{
    if (!m_enabled)
        return std::string();
    const std::string oob = m_oob->ParserName(pid, tableId);
    if (!oob.empty())
        return oob;
    const std::string psip = m_psip->ParserName(pid, tableId);
    if (!psip.empty())
        return psip;
    switch (m_KindOf(pid, tableId)) {
    case Kind::Mgt: return "TCMGTParser";
    case Kind::Tvct: return "TCTVCTParser";
    case Kind::Cvct: return "TCCVCTParser";
    case Kind::None: break;
    }
    return std::string();
}

std::optional<bool> AtscTables::Complete(uint16_t pid, uint8_t tableId) const
{
    if (!m_enabled)
        return std::nullopt;
    if (const std::optional<bool> oob = m_oob->Complete(pid, tableId))
        return oob;
    if (const std::optional<bool> psip = m_psip->Complete(pid, tableId))
        return psip;
    switch (m_KindOf(pid, tableId)) {
    case Kind::Mgt: return m_mgt && m_mgt->IsValid();
    case Kind::Tvct: return m_tvct && m_tvct->IsRecv();
    case Kind::Cvct: return m_cvct && m_cvct->IsRecv();
    case Kind::None: break;
    }
    return std::nullopt;
}

const TCVCTParser* AtscTables::Vct(uint8_t tableId) const
{
    return tableId == kTidTvct ? m_tvct.get() : tableId == kTidCvct ? m_cvct.get() : nullptr;
}

// ---- model ------------------------------------------------------------------

std::optional<std::string> RenderMultipleString(const TCMultipleStringStruct& text)
{
    IBinder* binder = IBinder::Instance();
    const ZUMHandle handle = kZUMDefaultHandle;
    std::vector<char> buffer(kTextCapacity);
    int length = kTextCapacity;
    if (!text.GetMutipleText(binder ? binder->GetLanguageCode(handle) : 0,
                             binder ? binder->GetPreferredLanguage(handle) : 0,
                             binder ? binder->GetCountry(handle) : ECOUNTRY_NONE, buffer.data(), &length, nullptr))
        return std::nullopt;
    return Utf16BytesToUtf8(reinterpret_cast<const unsigned char*>(buffer.data()), static_cast<size_t>(length));
}

Json DescribeAtsc(const AtscTables& tables, const TextDecoder& text)
{
    if (!tables.Enabled())
        return nullptr;
    Json vcts = Json::array();
    for (uint8_t tableId : {kTidTvct, kTidCvct}) {
        const TCVCTParser* vct = tables.Vct(tableId);
        if (vct == nullptr)
            continue;
        Json channels = Json::array();
        for (unsigned i = 0; i < vct->NumOfVCTChannel(); ++i)
            channels.push_back(Channel(*vct->VCTChannel(i), text));
        vcts.push_back({{"tableId", Hex(tableId, 2)},
                        {"sectionChannels", vct->NumChannelsInSection()},
                        {"descriptors", DescribeLoop(*vct, text)},
                        {"channels", channels}});
    }
    return {{"mgt", tables.Mgt() ? Mgt(*tables.Mgt(), text) : Json(nullptr)},
            {"vcts", vcts},
            {"oob", DescribeOob(tables.Oob(), text)},
            {"psip", DescribePsip(tables.Psip(), tables.Vct(kTidTvct), tables.Vct(kTidCvct), text)}};
}

std::optional<Json> DescribeAtscDescriptor(const TCBaseDesc& desc)
{
    if (const auto* d = dynamic_cast<const TCDescMultipleStringName*>(&desc)) {
        if (d->NameStructure() == nullptr)
            return Json{{"text", nullptr}, {"strings", Json::array()}};
        return StringStructure(*d->NameStructure());
    }
    if (const auto* d = dynamic_cast<const TCDescServiceLocation*>(&desc)) {
        Json elements = Json::array();
        for (int i = 0; i < d->NumberElements(); ++i)
            elements.push_back({{"streamType", d->StreamType(i)},
                                {"pid", d->ElementaryPID(i)},
                                {"language", CodeText(d->ISO639LanguageCode(i))}});
        return Json{{"pcrPid", d->PCRPID()}, {"elements", elements}};
    }
    return DescribePsipDescriptor(desc);
}

void RenderAtscTree(const Json& atsc, std::ostream& out)
{
    if (atsc.is_null())
        return;
    auto line = [&out](int depth, const std::string& text) {
        out << std::string(static_cast<size_t>(depth * 2), ' ') << text << '\n';
    };
    const Json& mgt = atsc["mgt"];
    if (!mgt.is_null()) {
        line(0, "MGT  " + std::to_string(mgt["tables"].size()) + " tables, " + mgt["eitCount"].dump() + " EIT, " +
                    mgt["ettCount"].dump() + " ETT");
        RenderDescriptors(mgt["descriptors"], 1, out);
        for (const Json& t : mgt["tables"]) {
            const std::string type = t["type"].get<std::string>();
            line(1, "type " + Hex(t["tableType"].get<unsigned>(), 4) + (type.empty() ? "" : " " + type) + "  PID " +
                        Hex(t["pid"].get<unsigned>(), 4) + ", version " + t["version"].dump() + ", " +
                        t["numberBytes"].dump() + " bytes");
            RenderDescriptors(t["descriptors"], 2, out);
        }
    }
    for (const Json& vct : atsc["vcts"]) {
        line(0, "VCT " + vct["tableId"].get<std::string>() + "  " + std::to_string(vct["channels"].size()) +
                    " channels");
        RenderDescriptors(vct["descriptors"], 1, out);
        for (const Json& c : vct["channels"]) {
            line(1, c["channel"].get<std::string>() + "  program " + Hex(c["programNumber"].get<unsigned>(), 4) +
                        ", TSID " + Hex(c["channelTsid"].get<unsigned>(), 4) + ", source " +
                        Hex(c["sourceId"].get<unsigned>(), 4) + ", service type " +
                        Hex(c["serviceType"].get<unsigned>(), 2) + ", modulation " +
                        Hex(c["modulation"].get<unsigned>(), 2) + ", ETM " + c["etmLocation"].dump() +
                        ", access controlled " + (c["accessControlled"].get<bool>() ? "yes" : "no") + ", hidden " +
                        (c["hidden"].get<bool>() ? "yes" : "no") + ", hide guide " +
                        (c["hideGuide"].get<bool>() ? "yes" : "no"));
            RenderDescriptors(c["descriptors"], 2, out);
        }
    }
    RenderOobTree(atsc["oob"], out);
    RenderPsipTree(atsc["psip"], out);
}

} // namespace zuminspect
