#include "inspect/PsipView.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

#include "atsc/DescATSCLinakge.h"
#include "atsc/DescCaptionService.h"
#include "atsc/DescComponentList.h"
#include "atsc/DescContentAdvisory.h"
#include "atsc/DescDaylightSavingTime.h"
#include "atsc/DescModulationParameters.h"
#include "atsc/DescTimeShiftedService.h"
#include "atsc/EASParser.h"
#include "atsc/EITParser.h"
#include "atsc/ETTParser.h"
#include "atsc/MGTParser.h"
#include "atsc/MultipleStringStruct.h"
#include "atsc/RRTParser.h"
#include "atsc/STTParser.h"
#include "atsc/VCTParser.h"
#include "core/ByteReader.h"
#include "core/Descriptor.h"
#include "inspect/AtscView.h"
#include "inspect/Describers.h"
#include "inspect/OobView.h"
#include "inspect/Renderers.h"
#include "inspect/TsDemux.h"

namespace zuminspect {

namespace {

constexpr uint8_t kTidEit = 0xCB;
constexpr uint8_t kTidEtt = 0xCC;
constexpr uint8_t kTidStt = 0xCD;
constexpr uint8_t kTidOobStt = 0xC5;
constexpr uint8_t kTidRrt = 0xCA;
constexpr uint8_t kTidEas = 0xD8;
// 1980-01-06 00:00:00 UTC, the GPS epoch, in Unix seconds.
constexpr long long kGpsEpoch = 315964800;
// What the GPS clock has run ahead of UTC since 2017, for a stream without an STT.
constexpr int kDefaultGpsUtcOffset = 18;

struct TimeZone {
    const char* standard;
    const char* daylight;
    int hours;
};

const TimeZone kZones[] = {{"EST", "EDT", -5}, {"CST", "CDT", -6}, {"MST", "MDT", -7}, {"PST", "PDT", -8},
                           {"AKST", "AKDT", -9}, {"HST", "HST", -10}, {"UTC", "UTC", 0}};
TimeZone g_zone = kZones[0];

std::string FormatTime(long long unixSeconds, int offsetHours, const char* zone, bool seconds)
{
    const std::time_t t = static_cast<std::time_t>(unixSeconds + offsetHours * 3600LL);
    std::tm tm{};
    gmtime_r(&t, &tm);
    char buffer[64];
    std::strftime(buffer, sizeof buffer, seconds ? "%Y-%m-%d %H:%M:%S" : "%Y-%m-%d %H:%M", &tm);
    return std::string(buffer) + " " + zone;
}

std::optional<std::string> MultipleText(const unsigned char* data, int length)
{
    if (data == nullptr || length <= 0)
        return std::nullopt;
    TCMultipleStringStruct text;
    text.Set(data, static_cast<unsigned int>(length));
    return RenderMultipleString(text);
}

Json TextOrNull(const std::optional<std::string>& text)
{
    return text ? Json(*text) : Json(nullptr);
}

Json TextOrNull(const TCMultipleStringStruct* text)
{
    return text ? TextOrNull(RenderMultipleString(*text)) : Json(nullptr);
}

// Abbreviations of the US rating region, by dimension and value.
const std::vector<std::vector<const char*>>& UsRatings()
{
    static const std::vector<std::vector<const char*>> names = {
        {"", "None", "TV-G", "TV-PG", "TV-14", "TV-MA"},
        {"", "D"},
        {"", "L"},
        {"", "S"},
        {"", "V"},
        {"", "TV-Y", "TV-Y7"},
        {"", "FV"},
        {"", "N/A", "G", "PG", "PG-13", "R", "NC-17", "X", "NR"}};
    return names;
}

// "TV-PG D L" for a US region; else the broadcaster's description text.
std::optional<std::string> RatingText(const TCDescContentAdvisory& advisory)
{
    for (int i = 0; i < advisory.RatingRegionCount(); ++i) {
        if (advisory.RatingRegion(i) != 1) {
            if (std::optional<std::string> text =
                    advisory.GetRatingDescText(i) ? RenderMultipleString(*advisory.GetRatingDescText(i)) : std::nullopt)
                return text;
            continue;
        }
        std::string text;
        for (int j = 0; j < advisory.RatingDemensions(i); ++j) {
            const unsigned dimension = advisory.RatingDimensionJ(i, j);
            const unsigned value = advisory.RatingValue(i, j);
            if (dimension < UsRatings().size() && value < UsRatings()[dimension].size() &&
                *UsRatings()[dimension][value] != '\0')
                text += (text.empty() ? "" : " ") + std::string(UsRatings()[dimension][value]);
        }
        if (!text.empty())
            return text;
    }
    return std::nullopt;
}

// "CC1 eng", "CS1 eng" for each caption service.
std::optional<std::string> CaptionText(const TCDescCaptionService& captions)
{
    std::string text;
    for (unsigned char i = 0; i < captions.NumberOfServices(); ++i) {
        if (captions.CcType(i) == TCDescCaptionService::kAbsent)
            break;
        const std::string service = captions.CcType(i) ? "CS" + std::to_string(captions.CaptionServiceNumber(i))
                                                       : (captions.Line21Field(i) ? "CC3" : "CC1");
        text += (text.empty() ? "" : ", ") + service + " " + CodeText(captions.Language(i));
    }
    return text.empty() ? std::nullopt : std::optional<std::string>(text);
}

const TCVCTChannel* ChannelOf(const TCVCTParser* vct, unsigned sourceId)
{
    for (unsigned i = 0; vct != nullptr && i < vct->NumOfVCTChannel(); ++i)
        if (vct->VCTChannel(i)->SourceId() == sourceId)
            return vct->VCTChannel(i);
    return nullptr;
}

Json Stt(const TCSTTParser& stt, const TextDecoder& text)
{
    return {{"systemTime", stt.SystemTime()},
            {"utc", FormatTime(kGpsEpoch + stt.SystemTime() - stt.GPSUTCOffset(), 0, "UTC", true)},
            {"gpsUtcOffset", stt.GPSUTCOffset()},
            {"daylightSavings", Hex(stt.DaylightSavings(), 4)},
            {"descriptors", DescribeLoop(stt, text)}};
}

Json Rrt(const TCRRTInstance& rrt, const TextDecoder& text)
{
    Json dimensions = Json::array();
    for (unsigned i = 0; i < rrt.NumOfDimension(); ++i) {
        const TCRRTItemDimension* d = rrt.RRTItemDimension(i);
        Json values = Json::array();
        for (unsigned k = 0; k < d->NumOfAbbrev(); ++k)
            values.push_back({{"abbrev", TextOrNull(d->RRTItemAbbrev(k)->AbbrevRatingValueText())},
                              {"text", TextOrNull(d->RRTItemAbbrev(k)->RatingValueText())}});
        dimensions.push_back(
            {{"name", TextOrNull(d->DimensionNameText())}, {"graduated", d->GraduatedScale() != 0}, {"values", values}});
    }
    return {{"region", static_cast<int>(rrt.Region())},
            {"name", TextOrNull(rrt.RatingRegionNameText())},
            {"dimensions", dimensions},
            {"descriptors", DescribeLoop(rrt, text)}};
}

// The cable emergency alert, from the whole section the parser keeps.
Json Eas(const TCEASParser& eas)
{
    std::vector<unsigned char> section(static_cast<size_t>(eas.SectionLength()));
    int length = eas.SectionLength();
    if (length < 9 || !eas.GetSection(section.data(), &length))
        return nullptr;
    // Behind protocol_version; the CRC_32 is not alert data.
    TCByteReader r(section.data() + 9, length - 9 - 4);
    Json out;
    out["sectionLength"] = length;
    out["eventId"] = r.U16();
    const unsigned originator = r.U24();
    out["originator"] = CodeText(originator);
    const int codeLength = static_cast<int>(r.U8());
    out["eventCode"] = std::string(reinterpret_cast<const char*>(r.Here()),
                                   static_cast<size_t>(std::max(0, std::min(codeLength, r.Left()))));
    r.Skip(std::min(codeLength, r.Left()));
    const int natureLength = static_cast<int>(r.U8());
    out["natureOfActivation"] = TextOrNull(MultipleText(r.Here(), std::min(natureLength, r.Left())));
    r.Skip(std::min(natureLength, r.Left()));
    out["timeRemaining"] = r.U8();
    out["startTime"] = r.U32();
    out["duration"] = r.U16();
    out["priority"] = r.U16() & 0x0F;
    r.Skip(8); // details channel and audio source
    const int alertLength = static_cast<int>(r.U16());
    out["alertText"] = TextOrNull(MultipleText(r.Here(), std::min(alertLength, r.Left())));
    r.Skip(std::min(alertLength, r.Left()));
    Json locations = Json::array();
    for (unsigned i = 0, count = r.U8(); i < count && r.Has(3); ++i) {
        const unsigned state = r.U8();
        const unsigned county = r.U16();
        locations.push_back("state " + std::to_string(state) + ", county " + std::to_string(county & 0x03FF) +
                            ", subdivision " + std::to_string(county >> 12));
    }
    out["locations"] = locations;
    return out;
}

struct GuideEvent {
    std::string channel;
    long long start;
    Json json;
};

Json Guide(const PsipTables& tables, const TCVCTParser* tvct, const TCVCTParser* cvct, const TextDecoder& text)
{
    const TCEITParser* eit = tables.Eit();
    if (eit == nullptr || eit->PIDs().empty())
        return Json::array();
    const int gpsUtcOffset = tables.Stt() ? tables.Stt()->GPSUTCOffset() : kDefaultGpsUtcOffset;
    const bool daylight = tables.Stt() && (tables.Stt()->DaylightSavings() & 0x8000) != 0;
    const int zoneHours = g_zone.hours + (daylight && g_zone.hours != 0 && g_zone.hours != -10 ? 1 : 0);
    const char* zoneName = daylight ? g_zone.daylight : g_zone.standard;
    std::vector<GuideEvent> events;
    for (short pid : eit->PIDs()) {
        const TCEITInstance* instance = eit->EITInstance(pid);
        for (unsigned s = 0; s < instance->NumOfSourceId(); ++s) {
            const TCEITItem* item = instance->EITItemOfIndex(s);
            const TCVCTChannel* channel = ChannelOf(tvct, item->SourceId());
            if (channel == nullptr)
                channel = ChannelOf(cvct, item->SourceId());
            const std::string name =
                channel ? ChannelShortName(*channel) + " " + std::to_string(channel->MajorChannelNumber()) + "." +
                              std::to_string(channel->MinorChannelNumber())
                        : "source " + Hex(item->SourceId(), 4);
            for (unsigned k = 0; k < item->NumOfEITItemEvent(); ++k) {
                const TCEITItemEvent* e = item->EITItemEvent(k);
                TCDescriptorHash loop;
                if (e->DescriptorsLength() > 0) {
                    TCDescriptor walker(kZUMDefaultHandle);
                    walker.Parse(e->Descriptors(), e->DescriptorsLength(), loop, kTidEit);
                }
                std::optional<std::string> rating, captions;
                if (const auto* d = dynamic_cast<const TCDescContentAdvisory*>(loop.Descriptor(0x87, 0)))
                    rating = RatingText(*d);
                if (const auto* d = dynamic_cast<const TCDescCaptionService*>(loop.Descriptor(0x86, 0)))
                    captions = CaptionText(*d);
                const std::optional<std::string> title = MultipleText(e->Title(), e->TitleLength());
                std::optional<std::string> extended;
                const unsigned etmId = TCETTParser::EventETMId(item->SourceId(), e->EventId());
                std::vector<uint16_t> ettPids(tables.EttPids().begin(), tables.EttPids().end());
                ettPids.push_back(kNoPid);
                for (uint16_t ettPid : ettPids)
                    if (const TCETTInstance* ett =
                            tables.Ett() ? tables.Ett()->ETTInstance(static_cast<short>(ettPid)) : nullptr)
                        if (const TCETTItem* t = ett->ETTItem(etmId); t && !extended)
                            extended = MultipleText(t->Text(), t->TextLength());
                const long long start = kGpsEpoch + e->StartTime() - gpsUtcOffset;
                const std::string when = FormatTime(start, zoneHours, zoneName, false);
                std::string line = name + "  " + when + "  " + std::to_string((e->LengthInSeconds() + 30) / 60) +
                                   " min  " + title.value_or("(no title)");
                if (rating)
                    line += "  [" + *rating + "]";
                if (captions)
                    line += "  " + *captions;
                events.push_back({name,
                                  start,
                                  {{"line", line},
                                   {"channel", name},
                                   {"sourceId", item->SourceId()},
                                   {"pid", static_cast<uint16_t>(pid)},
                                   {"eventId", e->EventId()},
                                   {"start", when},
                                   {"startTime", e->StartTime()},
                                   {"duration", e->LengthInSeconds()},
                                   {"title", TextOrNull(title)},
                                   {"rating", TextOrNull(rating)},
                                   {"captions", TextOrNull(captions)},
                                   {"etmLocation", e->ETMLocation()},
                                   {"extendedText", TextOrNull(extended)},
                                   {"descriptors", DescribeLoop(loop, text)}}});
            }
        }
    }
    std::stable_sort(events.begin(), events.end(), [](const GuideEvent& a, const GuideEvent& b) {
        return a.channel != b.channel ? a.channel < b.channel : a.start < b.start;
    });
    Json guide = Json::array();
    for (GuideEvent& e : events)
        guide.push_back(std::move(e.json));
    return guide;
}

} // namespace

bool SetGuideTimeZone(const std::string& name)
{
    for (const TimeZone& zone : kZones)
        if (name == zone.standard) {
            g_zone = zone;
            return true;
        }
    return false;
}

// ---- routing ----------------------------------------------------------------

PsipTables::PsipTables(const ZUMHandle& handle) : m_handle(handle) {}

PsipTables::~PsipTables() = default;

void PsipTables::Learn(const TCMGTParser& mgt)
{
    for (unsigned i = 0; i < mgt.NumOfTable(); ++i) {
        const TCMGTTable* t = mgt.MGTTableOfIndex(i);
        if (t->TableType() >= 0x0100 && t->TableType() <= 0x017F)
            m_eitPids.insert(t->PID());
        else if (t->TableType() == 0x0004 || (t->TableType() >= 0x0200 && t->TableType() <= 0x027F))
            m_ettPids.insert(t->PID());
    }
}

PsipTables::Kind PsipTables::m_KindOf(uint16_t pid, uint8_t tableId) const
{
    const bool any = pid == kNoPid;
    switch (tableId) {
    case kTidEit: return any || m_eitPids.count(pid) ? Kind::Eit : Kind::None;
    case kTidEtt: return any || m_ettPids.count(pid) ? Kind::Ett : Kind::None;
    case kTidStt: return any || pid == kPidAtscBase ? Kind::Stt : Kind::None;
    case kTidOobStt: return any || pid == kPidOob ? Kind::OobStt : Kind::None;
    case kTidRrt: return any || pid == kPidAtscBase ? Kind::Rrt : Kind::None;
    case kTidEas: return any || pid == kPidAtscBase || pid == kPidOob ? Kind::Eas : Kind::None;
    default: return Kind::None;
    }
}

TCSectionParser* PsipTables::Parser(uint16_t pid, uint8_t tableId)
{
    switch (m_KindOf(pid, tableId)) {
    case Kind::Eit: return MadeParser<TCEITParser>(m_eit, m_handle);
    case Kind::Ett: return MadeParser<TCETTParser>(m_ett, m_handle);
    case Kind::Stt: return MadeParser<TCSTTParser>(m_stt, m_handle);
    case Kind::OobStt: return MadeParser<TCOOBSTTParser>(m_oobStt, m_handle);
    case Kind::Rrt: return MadeParser<TCRRTParser>(m_rrt, m_handle);
    case Kind::Eas: return MadeParser<TCEASParser>(m_eas, m_handle);
    case Kind::None: break;
    }
    return nullptr;
}

std::string PsipTables::ParserName(uint16_t pid, uint8_t tableId) const
{
    switch (m_KindOf(pid, tableId)) {
    case Kind::Eit: return "TCEITParser";
    case Kind::Ett: return "TCETTParser";
    case Kind::Stt: return "TCSTTParser";
    case Kind::OobStt: return "TCOOBSTTParser";
    case Kind::Rrt: return "TCRRTParser";
    case Kind::Eas: return "TCEASParser";
    case Kind::None: break;
    }
    return std::string();
}

std::optional<bool> PsipTables::Complete(uint16_t pid, uint8_t tableId) const
{
    const short key = static_cast<short>(pid);
    switch (m_KindOf(pid, tableId)) {
    case Kind::Eit: {
        // Only once a section reached the parser does it have a source to ask about.
        if (!m_eit || m_eit->PIDs().empty() || !m_eit->EITInstance(key))
            return false;
        const TCEITItem* item = m_eit->EITInstance(key)->EITItem(static_cast<unsigned short>(m_eit->SourceId()));
        return item && item->IsValid();
    }
    case Kind::Ett: {
        const TCETTInstance* instance = m_ett ? m_ett->ETTInstance(key) : nullptr;
        const TCETTItem* item = instance ? instance->ETTItem(m_ett->ETMId()) : nullptr;
        return item && item->IsValid();
    }
    case Kind::Stt: return m_stt && m_stt->SystemTime() != 0;
    case Kind::OobStt: return m_oobStt && m_oobStt->SystemTime() != 0;
    case Kind::Rrt: {
        // Regions other than the kept one are answered and dropped.
        const TCRRTInstance* instance = m_rrt ? m_rrt->RRTInstance(RRT_REGION_KEPT) : nullptr;
        return m_rrt && (!instance || instance->IsValid());
    }
    case Kind::Eas: return m_eas && m_eas->IsValid();
    case Kind::None: break;
    }
    return std::nullopt;
}

// ---- model ------------------------------------------------------------------

Json DescribePsip(const PsipTables& tables, const TCVCTParser* tvct, const TCVCTParser* cvct, const TextDecoder& text)
{
    const TCRRTInstance* rrt = tables.Rrt() ? tables.Rrt()->RRTInstance(RRT_REGION_KEPT) : nullptr;
    return {{"stt", tables.Stt() && tables.Stt()->SystemTime() != 0 ? Stt(*tables.Stt(), text) : Json(nullptr)},
            {"rrt", rrt ? Rrt(*rrt, text) : Json(nullptr)},
            {"eas", tables.Eas() ? Eas(*tables.Eas()) : Json(nullptr)},
            {"guide", Guide(tables, tvct, cvct, text)}};
}

std::optional<Json> DescribePsipDescriptor(const TCBaseDesc& desc)
{
    if (const auto* d = dynamic_cast<const TCDescContentAdvisory*>(&desc)) {
        Json regions = Json::array();
        for (int i = 0; i < d->RatingRegionCount(); ++i) {
            Json pairs = Json::array();
            for (int j = 0; j < d->RatingDemensions(i); ++j)
                pairs.push_back({{"dimension", d->RatingDimensionJ(i, j)}, {"value", d->RatingValue(i, j)}});
            regions.push_back({{"region", d->RatingRegion(i)},
                               {"dimensions", pairs},
                               {"description", TextOrNull(d->GetRatingDescText(i))}});
        }
        const std::optional<std::string> rating = RatingText(*d);
        return Json{{"rating", TextOrNull(rating)}, {"regions", regions}};
    }
    if (const auto* d = dynamic_cast<const TCDescCaptionService*>(&desc)) {
        Json services = Json::array();
        for (unsigned char i = 0; i < d->NumberOfServices() && d->CcType(i) != TCDescCaptionService::kAbsent; ++i)
            services.push_back({{"language", CodeText(d->Language(i))},
                                {"digital", d->CcType(i) != 0},
                                {"line21Field", d->Line21Field(i)},
                                {"serviceNumber", d->CaptionServiceNumber(i)},
                                {"easyReader", d->EasyReader(i) != 0},
                                {"wideAspectRatio", d->WideAspectRatio(i) != 0},
                                {"koreanCode", d->KoreanCode(i) != 0}});
        const std::optional<std::string> summary = CaptionText(*d);
        return Json{{"captions", TextOrNull(summary)}, {"services", services}};
    }
    if (const auto* d = dynamic_cast<const TCDescComponentList*>(&desc)) {
        Json components = Json::array();
        for (int i = 0; i < d->NumberOfComponet(); ++i) {
            TCDescComponentList::TTDescComponetList c;
            d->GetComponentList(i, c);
            components.push_back({{"streamType", Hex(c.streamType, 2)},
                                  {"formatIdentifier", Hex(c.formatIdentifier, 8)},
                                  {"detail", HexBytes(c.detail.data(), c.detail.size())}});
        }
        return Json{{"components", components}};
    }
    if (const auto* d = dynamic_cast<const TCDescTimeShiftedService*>(&desc)) {
        Json services = Json::array();
        for (int i = 0; i < d->NumOfServices(); ++i)
            services.push_back({{"timeShift", d->TimeShift(i)},
                                {"channel", std::to_string(d->MajorChannelNumber(i)) + "." +
                                                std::to_string(d->MinorChannelNumber(i))}});
        return Json{{"services", services}};
    }
    if (const auto* d = dynamic_cast<const TCDescTwoPartChannel*>(&desc))
        return Json{{"major", d->MajorChannelNumber()}, {"minor", d->MinorChannelNumber()}};
    if (const auto* d = dynamic_cast<const TCDescChannelProperities*>(&desc))
        return Json{{"channelTsid", d->ChannelTSID()}, {"outOfBand", d->OutOfBandChannel() != 0},
                    {"accessControlled", d->AccessControlled() != 0}, {"hideGuide", d->HideGuide() != 0},
                    {"serviceType", d->ServiceType()}};
    if (const auto* d = dynamic_cast<const TCDescChannelType*>(&desc))
        return Json{{"flag1", d->Flag1()}, {"flag2", d->Flag2()}, {"channelType", d->ChannelType()}};
    if (const auto* d = dynamic_cast<const TCDescDaylightSavingTime*>(&desc)) {
        const bool decoded = desc.Length() > 2;
        return Json{{"inEffect", decoded ? Json(d->DSStatus() != 0) : Json(nullptr)},
                    {"dayOfMonth", decoded ? Json(d->DSDayOfMonth()) : Json(nullptr)},
                    {"hour", decoded ? Json(d->DSHour()) : Json(nullptr)}};
    }
    if (const auto* d = dynamic_cast<const TCDescFrequencySpecification*>(&desc))
        return Json{{"unit", d->FrequencyUnit() ? "kHz x 125" : "kHz x 10"}, {"frequency", d->CarrierFrequency()}};
    if (const auto* d = dynamic_cast<const TCDescModulationParameters*>(&desc))
        return Json{{"transmissionSystem", d->TransmissionSystem()}, {"innerCodingMode", d->InnerCodingMode()},
                    {"splitBitstreamMode", d->SplitBitstreamMode()},
                    {"modulation", ModulationName(d->ModulationFormat())}, {"symbolRate", d->SymbolRate()}};
    if (const auto* d = dynamic_cast<const TCDescInBandDetailsChannel*>(&desc))
        return Json{{"rfChannel", d->RFChannel()}, {"programNumber", d->ProgramNumber()}};
    if (const auto* d = dynamic_cast<const TCDescInBandExceptionChannels*>(&desc)) {
        Json channels = Json::array();
        for (int i = 0; i < d->ExceptionChannelCount(); ++i)
            channels.push_back({{"rfChannel", d->ExceptionRFChannel(i)},
                                {"programNumber", d->ExceptionProgramNumber(i)}});
        return Json{{"exceptions", channels}};
    }
    if (const auto* d = dynamic_cast<const TCDescATSCLinakge*>(&desc)) {
        char buffer[256];
        int length = sizeof buffer;
        const std::string url = d->GetURLByte(buffer, &length) ? std::string(buffer, static_cast<size_t>(length)) : "";
        length = sizeof buffer;
        const std::string code =
            d->GetProgramCode(buffer, &length) ? std::string(buffer, static_cast<size_t>(length)) : "";
        return Json{{"linkType", d->LinkType()}, {"programNumber", d->ProgramNumber()}, {"url", url},
                    {"programCode", code}};
    }
    if (const auto* d = dynamic_cast<const TCDescATSCPrivateInformation*>(&desc)) {
        Json details = Json::array();
        for (unsigned i = 0; i < d->NumOfPrivateInfoDetail(); ++i) {
            TCDescATSCPrivateInformation::TTPrivateInfoDetail detail;
            d->GetPrivateInfoDetail(static_cast<int>(i), detail);
            details.push_back({{"type", static_cast<int>(detail.type)},
                               {"length", detail.length},
                               {"values", HexBytes(detail.value, sizeof detail.value)}});
        }
        return Json{{"formatIdentifier", Hex(d->FormatIdentifier(), 8)}, {"details", details}};
    }
    return std::nullopt;
}

void RenderPsipTree(const Json& psip, std::ostream& out)
{
    if (psip.is_null())
        return;
    auto line = [&out](int depth, const std::string& text) {
        out << std::string(static_cast<size_t>(depth * 2), ' ') << text << '\n';
    };
    if (const Json& stt = psip["stt"]; !stt.is_null()) {
        line(0, "STT  " + stt["utc"].get<std::string>() + ", GPS-UTC offset " + stt["gpsUtcOffset"].dump() +
                    " s, daylight savings " + stt["daylightSavings"].get<std::string>());
        RenderDescriptors(stt["descriptors"], 1, out);
    }
    if (const Json& rrt = psip["rrt"]; !rrt.is_null()) {
        line(0, "RRT region " + rrt["region"].dump() + "  " + rrt["name"].dump());
        for (const Json& d : rrt["dimensions"]) {
            std::string values;
            for (const Json& v : d["values"])
                values += (values.empty() ? "" : ", ") + (v["abbrev"].is_null() ? "-" : v["abbrev"].get<std::string>());
            line(1, d["name"].dump() + (d["graduated"].get<bool>() ? " (graduated)" : "") + ": " + values);
        }
        RenderDescriptors(rrt["descriptors"], 1, out);
    }
    if (const Json& eas = psip["eas"]; !eas.is_null()) {
        line(0, "EAS  event " + eas["eventId"].dump() + ", " + eas["originator"].get<std::string>() + " " +
                    eas["eventCode"].get<std::string>() + ", priority " + eas["priority"].dump() + ", " +
                    eas["duration"].dump() + " min");
        if (!eas["natureOfActivation"].is_null())
            line(1, eas["natureOfActivation"].get<std::string>());
        if (!eas["alertText"].is_null())
            line(1, "\"" + eas["alertText"].get<std::string>() + "\"");
        for (const Json& l : eas["locations"])
            line(1, l.get<std::string>());
    }
    if (!psip["guide"].empty()) {
        line(0, "Program guide  " + std::to_string(psip["guide"].size()) + " events");
        for (const Json& e : psip["guide"]) {
            line(1, e["line"].get<std::string>());
            if (!e["extendedText"].is_null())
                line(2, e["extendedText"].get<std::string>());
        }
    }
}

} // namespace zuminspect
