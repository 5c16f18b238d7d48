#include "inspect/OobView.h"

#include <cstdio>

#include "atsc/AEITParser.h"
#include "atsc/AETTParser.h"
#include "atsc/MultipleStringStruct.h"
#include "atsc/NITParser.h"
#include "atsc/NTTParser.h"
#include "atsc/SVCTParser.h"
#include "inspect/AtscView.h"
#include "inspect/Describers.h"
#include "inspect/Renderers.h"
#include "inspect/TsDemux.h"

namespace zuminspect {

namespace {

constexpr uint8_t kTidNit = 0xC2;
constexpr uint8_t kTidNtt = 0xC3;
constexpr uint8_t kTidSvct = 0xC4;
constexpr uint8_t kTidAeit = 0xD6;
constexpr uint8_t kTidAett = 0xD7;

template <class Parser>
TCSectionParser* Made(std::unique_ptr<Parser>& slot, const ZUMHandle& handle)
{
    if (!slot) {
        slot.reset(new Parser(handle));
        slot->Initialize();
    }
    return slot.get();
}

// The name text of an NTT record: its multilingual text segments in UTF-8.
std::optional<std::string> SourceName(const TCNTTRecord& record)
{
    TCMultilingualTextString text;
    if (!record.GetSourceName(&text))
        return std::nullopt;
    std::basic_string<unsigned short> units;
    for (unsigned i = 0; i < text.NumOfMultilingualText(); ++i) {
        unsigned char buffer[255];
        unsigned char size = sizeof(buffer);
        if (text.MultilingualText(i)->GetSgment(buffer, &size) == 0)
            continue;
        for (unsigned k = 0; k + 1 < size; k += 2)
            units.push_back(static_cast<unsigned short>((buffer[k] << 8) | buffer[k + 1]));
    }
    return Utf16ToUtf8(units);
}

std::optional<std::string> RawStructure(const unsigned char* data, size_t size)
{
    if (data == nullptr || size == 0)
        return std::nullopt;
    TCMultipleStringStruct mss;
    mss.Set(data, static_cast<unsigned int>(size));
    return RenderMultipleString(mss);
}

Json OrNull(const std::optional<std::string>& s)
{
    return s ? Json(*s) : Json(nullptr);
}

std::string Mhz(float frequency)
{
    char buffer[32];
    std::snprintf(buffer, sizeof(buffer), "%.3f MHz", static_cast<double>(frequency));
    return buffer;
}

Json Channels(const OobTables& t, const TextDecoder& text)
{
    Json channels = Json::array();
    const TCSVCTParserVCM* vcm = t.Svct() ? t.Svct()->VCM() : nullptr;
    if (vcm == nullptr)
        return channels;
    for (int i = 0; i < vcm->VCSize(); ++i) {
        const TCSVCTParserVC& vc = *vcm->VC(static_cast<unsigned>(i));
        float frequency = 0;
        const bool hasFrequency = t.Nit() && t.Nit()->CDSRefence(vc.CDSReference(), &frequency);
        unsigned char format = 0;
        const bool hasModulation = t.Nit() && t.Nit()->MMSRefence(vc.MMSReference(), &format);
        std::optional<std::string> name;
        if (t.Ntt() != nullptr)
            if (const TCNTTRecord* r = t.Ntt()->SNS()->SourceId(vc.SourceId()))
                name = SourceName(*r);
        std::string line = "channel " + std::to_string(vc.VirtualChannelNumber()) + " -> source " +
                           Hex(vc.SourceId(), 4) + ", CDS carrier " + std::to_string(vc.CDSReference());
        if (hasFrequency)
            line += ", " + Mhz(frequency);
        if (hasModulation && !ModulationName(format).empty())
            line += ", " + ModulationName(format);
        if (name)
            line += " \"" + *name + "\"";
        channels.push_back({{"channel", line},
                            {"number", vc.VirtualChannelNumber()},
                            {"sourceId", vc.SourceId()},
                            {"name", OrNull(name)},
                            {"cds", vc.CDSReference()},
                            {"frequencyMHz", hasFrequency ? Json(frequency) : Json(nullptr)},
                            {"mms", vc.MMSReference()},
                            {"modulation", hasModulation ? Json(ModulationName(format)) : Json(nullptr)},
                            {"programNumber", vc.ProgramNumber()},
                            {"transportType", vc.TransportType()},
                            {"channelType", vc.ChannelType()},
                            {"descriptors", DescribeLoop(vc, text)}});
    }
    return channels;
}

Json Nit(const TCNITParser* nit)
{
    if (nit == nullptr)
        return nullptr;
    Json carriers = Json::array();
    for (int slot = 0; slot < TCNITParser::kSlots; ++slot) {
        float frequency = 0;
        if (nit->CDSRefence(static_cast<unsigned char>(slot), &frequency))
            carriers.push_back({{"reference", slot}, {"frequencyMHz", frequency}});
    }
    Json modulations = Json::array();
    for (const auto& entry : nit->MMSRecords()) {
        const auto& m = static_cast<const TCNITParserMMS&>(*entry.second);
        modulations.push_back({{"reference", entry.first},
                               {"transmissionSystem", m.TransmissionSystem()},
                               {"innerCoding", m.InnerCodingMode()},
                               {"modulation", ModulationName(m.ModulationFormat())},
                               {"symbolRate", m.SymbolRate()}});
    }
    return {{"carriers", carriers}, {"modulations", modulations}};
}

Json Ntt(const TCNTTParser* ntt)
{
    if (ntt == nullptr)
        return nullptr;
    Json names = Json::array();
    for (unsigned i = 0; i < ntt->SNS()->Size(); ++i) {
        const TCNTTRecord& r = *ntt->SNS()->GetNttRecord(i);
        names.push_back({{r.ApplicationType() ? "applicationId" : "sourceId", r.Id()}, {"name", OrNull(SourceName(r))}});
    }
    return {{"language", CodeText(ntt->Language())}, {"names", names}};
}

Json Icm(const TCSVCTParser* svct)
{
    Json records = Json::array();
    const TCSVCTParserICM* icm = svct ? svct->ICM() : nullptr;
    for (int i = 0; icm != nullptr && i < icm->RecordSize(); ++i) {
        const auto* r = icm->Record(static_cast<unsigned>(i));
        records.push_back({{"index", r->index}, {"sourceId", r->sourceId}, {"channel", r->virtualChannelNumber}});
    }
    return records;
}

Json Aeit(const TCAEITParser* aeit)
{
    Json events = Json::array();
    for (int tag = 0; aeit != nullptr && tag < 256; ++tag) {
        const TCAEITParserTag* t = aeit->AEITParserTag(static_cast<unsigned char>(tag));
        for (int section = 0; t != nullptr && section < 256; ++section) {
            const TCAEITSourceMap* sources = t->AEITParserSourceList(section);
            if (sources == nullptr)
                continue;
            for (const auto& s : *sources) {
                for (int i = 0; i < s.second->SizeOfAEITParserEvent(); ++i) {
                    const TCAEITParserEvent* e = s.second->AEITParserEvent(static_cast<unsigned>(i));
                    events.push_back({{"tag", tag},
                                      {"section", section},
                                      {"sourceId", s.first},
                                      {"eventId", e->EventId()},
                                      {"start", IsoTimeSince1980(e->StartTime())},
                                      {"duration", e->Duration()},
                                      {"title", OrNull(RawStructure(e->Title(), e->TitleLength()))}});
                }
            }
        }
    }
    return events;
}

Json Aett(const TCAETTParser* aett)
{
    Json texts = Json::array();
    for (int tag = 0; aett != nullptr && tag < 256; ++tag) {
        const TCAETTItem* item = aett->AETTItem(static_cast<unsigned char>(tag));
        for (int section = 0; item != nullptr && section < 256; ++section) {
            const TCAETTBlockMap* blocks = item->AETTParserSourceList(section);
            if (blocks == nullptr)
                continue;
            for (const auto& b : *blocks)
                texts.push_back({{"tag", tag},
                                 {"section", section},
                                 {"etmId", Hex(b.second->ETMId(), 8)},
                                 {"text", OrNull(RawStructure(b.second->Text(), b.second->TextLength()))}});
        }
    }
    return texts;
}

} // namespace

OobTables::OobTables(const ZUMHandle& handle) : m_handle(handle) {}

OobTables::~OobTables() = default;

TCSectionParser* OobTables::Parser(uint16_t pid, uint8_t tableId)
{
    if (pid != kPidOob && pid != kNoPid)
        return nullptr;
    switch (tableId) {
    case kTidNit: return Made(m_nit, m_handle);
    case kTidNtt: return Made(m_ntt, m_handle);
    case kTidSvct: return Made(m_svct, m_handle);
    case kTidAeit: return Made(m_aeit, m_handle);
    case kTidAett: return Made(m_aett, m_handle);
    default: return nullptr;
    }
}

std::string OobTables::ParserName(uint16_t pid, uint8_t tableId) const
{
    if (pid != kPidOob && pid != kNoPid)
        return std::string();
    switch (tableId) {
    case kTidNit: return "TCNITParser";
    case kTidNtt: return "TCNTTParser";
    case kTidSvct: return "TCSVCTParser";
    case kTidAeit: return "TCAEITParser";
    case kTidAett: return "TCAETTParser";
    default: return std::string();
    }
}

std::optional<bool> OobTables::Complete(uint16_t pid, uint8_t tableId) const
{
    if (pid != kPidOob && pid != kNoPid)
        return std::nullopt;
    switch (tableId) {
    case kTidNit: return m_nit && m_nit->IsCompleted();
    case kTidNtt: return m_ntt && m_ntt->IsCompleted();
    case kTidSvct: return m_svct && m_svct->IsCompleted();
    case kTidAeit: {
        const TCAEITParserTag* tag = m_aeit ? m_aeit->AEITParserTag(m_aeit->LastTag()) : nullptr;
        return tag != nullptr && tag->IsValid();
    }
    case kTidAett: {
        const TCAETTItem* item = m_aett ? m_aett->AETTItem(m_aett->LastTag()) : nullptr;
        return item != nullptr && item->IsValid();
    }
    default: return std::nullopt;
    }
}

std::string ModulationName(unsigned format)
{
    static const char* const kNames[] = {"",       "QPSK",   "BPSK",   "OQPSK",  "VSB8",   "VSB16",  "QAM16",
                                         "QAM32",  "QAM64",  "QAM80",  "QAM96",  "QAM112", "QAM128", "QAM160",
                                         "QAM192", "QAM224", "QAM256", "QAM320", "QAM384", "QAM448", "QAM512",
                                         "QAM640", "QAM768", "QAM896", "QAM1024"};
    return format < sizeof(kNames) / sizeof(kNames[0]) ? kNames[format] : "";
}

Json DescribeOob(const OobTables& t, const TextDecoder& text)
{
    if (!t.Nit() && !t.Ntt() && !t.Svct() && !t.Aeit() && !t.Aett())
        return nullptr;
    return {{"channels", Channels(t, text)}, {"nit", Nit(t.Nit())}, {"ntt", Ntt(t.Ntt())},
            {"icm", Icm(t.Svct())},          {"aeit", Aeit(t.Aeit())}, {"aett", Aett(t.Aett())}};
}

void RenderOobTree(const Json& oob, std::ostream& out)
{
    if (oob.is_null())
        return;
    auto line = [&out](int depth, const std::string& text) {
        out << std::string(static_cast<size_t>(depth * 2), ' ') << text << '\n';
    };
    line(0, "Out of band  " + std::to_string(oob["channels"].size()) + " channels");
    for (const Json& c : oob["channels"]) {
        line(1, c["channel"].get<std::string>());
        RenderDescriptors(c["descriptors"], 2, out);
    }
    if (!oob["nit"].is_null()) {
        for (const Json& c : oob["nit"]["carriers"])
            line(1, "CDS carrier " + c["reference"].dump() + ": " + Mhz(c["frequencyMHz"].get<float>()));
        for (const Json& m : oob["nit"]["modulations"])
            line(1, "MMS " + m["reference"].dump() + ": " + m["modulation"].get<std::string>() + ", " +
                        m["symbolRate"].dump() + " symbols/s");
    }
    if (!oob["ntt"].is_null())
        line(1, "NTT " + oob["ntt"]["language"].get<std::string>() + ", " +
                    std::to_string(oob["ntt"]["names"].size()) + " names");
    for (const Json& r : oob["icm"])
        line(1, "ICM " + r["index"].dump() + ": source " + Hex(r["sourceId"].get<unsigned>(), 4) + " -> channel " +
                    r["channel"].dump());
    for (const Json& e : oob["aeit"])
        line(1, "AEIT tag " + e["tag"].dump() + " source " + Hex(e["sourceId"].get<unsigned>(), 4) + " event " +
                    e["eventId"].dump() + " " + e["start"].get<std::string>() + ", " + e["duration"].dump() + " s" +
                    (e["title"].is_null() ? "" : " \"" + e["title"].get<std::string>() + "\""));
    for (const Json& x : oob["aett"])
        line(1, "AETT tag " + x["tag"].dump() + " ETM " + x["etmId"].get<std::string>() +
                    (x["text"].is_null() ? "" : " \"" + x["text"].get<std::string>() + "\""));
}

} // namespace zuminspect
