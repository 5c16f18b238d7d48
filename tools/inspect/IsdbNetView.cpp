#include "inspect/IsdbNetView.h"

#include <cmath>
#include <cstdio>
#include <functional>
#include <typeindex>
#include <unordered_map>

#include "core/DescriptorContainer.h"
#include "isdb/DescARIBTerrestrialDeliverySystem.h"
#include "isdb/DescCAContractInfo.h"
#include "isdb/DescCarouselIdent.h"
#include "isdb/DescDownloadContent.h"
#include "isdb/DescExtendedBroadcaster.h"

namespace zuminspect {

namespace {

constexpr int kTagTSInformation = 0xCD;
constexpr int kTagTerrestrialDelivery = 0xFA;
constexpr int kTagPartialReception = 0xFB;

// The terrestrial frequency field counts 1/7 MHz; to the kHz.
double FrequencyMHz(unsigned short value)
{
    return std::round(static_cast<double>(value) * 1000.0 / 7.0) / 1000.0;
}

std::string MHzText(double mhz)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.3f MHz", mhz);
    return text;
}

Json Run(const unsigned char* data, int size)
{
    return data && size > 0 ? Json(HexBytes(data, static_cast<size_t>(size))) : Json(nullptr);
}

std::string TsName(const TCDescTSInformation& d, const TextDecoder& text)
{
    unsigned char name[64];
    unsigned short size = sizeof name;
    return d.TSNameChar(name, &size) ? text.Decode(name, size) : std::string();
}

Json TerrestrialDelivery(const TCDescARIBTerrestrialDeliverySystem& d, const TextDecoder&)
{
    static const char* const kGuard[] = {"1/32", "1/16", "1/8", "1/4"};
    static const char* const kMode[] = {"mode 1", "mode 2", "mode 3", "undefined"};
    Json frequencies = Json::array();
    for (int i = 0; i < d.NumOfFrequency(); ++i)
        frequencies.push_back({{"frequency", d.Frequency(i)}, {"frequencyMHz", FrequencyMHz(d.Frequency(i))}});
    return {{"areaCode", Hex(d.AreaCode(), 3)},
            {"guardInterval", d.GuardInterval()},
            {"guardIntervalName", kGuard[d.GuardInterval() & 3]},
            {"transmissionMode", d.TransmissionMode()},
            {"transmissionModeName", kMode[d.TransmissionMode() & 3]},
            {"frequencies", frequencies}};
}

Json PartialReception(const TCDescPartialReception& d, const TextDecoder&)
{
    Json ids = Json::array();
    for (unsigned char i = 0; i < d.Count(); ++i)
        ids.push_back(Hex(d.ServiceId(i), 4));
    return {{"serviceIds", ids}};
}

Json TSInformation(const TCDescTSInformation& d, const TextDecoder& text)
{
    Json types = Json::array();
    for (unsigned char r = 0; r < d.TransmissionTypeCount(); ++r) {
        Json ids = Json::array();
        for (unsigned char i = 0; i < d.NumOfService(r); ++i)
            ids.push_back(Hex(d.ServiceId(r, i), 4));
        types.push_back({{"transmissionTypeInfo", Hex(d.TransmissionTypeInfo(r), 2)}, {"serviceIds", ids}});
    }
    return {{"remoteControlKey", d.RemoteControlKeyId()},
            {"tsName", TsName(d, text)},
            {"transmissionTypes", types}};
}

Json HierarchicalTransmission(const TCDescHierarchicalTransmission& d, const TextDecoder&)
{
    return {{"qualityLevel", d.QualityLevel()}, {"referencePid", Hex(d.ReferencePID(), 4)}};
}

Json SystemManagement(const TCDescSystemManagement& d, const TextDecoder&)
{
    return {{"broadcastingFlag", d.BroadcastingFlag()},
            {"broadcastingIdentifier", d.BroadcastingIdentifier()},
            {"additionalBroadcastingIdentification", d.AdditionalBroadcastingIdentification()}};
}

Json ExtendedBroadcaster(const TCDescExtendedBroadcaster& d, const TextDecoder&)
{
    Json out = {{"broadcasterType", d.BroadcasterType()}};
    if (d.BroadcasterType() != 1 && d.BroadcasterType() != 2) {
        out["otherData"] = Run(d.OtherData(), d.OtherDataLength());
        return out;
    }
    Json affiliations = Json::array();
    for (int i = 0; i < d.NumOfAffiliationId(); ++i)
        affiliations.push_back(d.AffiliationId(i));
    Json broadcasters = Json::array();
    for (int i = 0; i < d.NumOfBroadcasterEntry(); ++i)
        broadcasters.push_back({{"originalNetworkId", Hex(d.BroadcasterEntry(i) & 0xFFFF, 4)},
                                {"broadcasterId", d.BroadcasterEntry(i) >> 16}});
    out["terrestrialBroadcasterId"] = Hex(d.TerrestrialBroadcasterId(), 4);
    out["affiliationIds"] = affiliations;
    out["broadcasters"] = broadcasters;
    out["privateData"] = Run(d.PrivateData(), d.PrivateDataLength());
    return out;
}

Json SIPrimeTS(const TCDescSIPrimeTS& d, const TextDecoder&)
{
    Json tables = Json::array();
    for (int i = 0; i < d.NumOfTableDescription(); ++i) {
        const _tagTTSIPrimeTSItem* item = d.TableDescription(i);
        tables.push_back({{"tableId", Hex(item->table_id, 2)},
                          {"description", Run(item->table_description, item->table_description_length)}});
    }
    return {{"parameterVersion", d.ParameterVersion()},
            {"updateTime", IsoTimeSince1980(d.UpdateTime())},
            {"networkId", Hex(d.SIPrimeTsNetworkId(), 4)},
            {"transportStreamId", Hex(d.SIPrimeTransportStreamId(), 4)},
            {"tables", tables}};
}

Json LogoTransmission(const TCDescLogoTransmission& d, const TextDecoder& text)
{
    Json out = {{"logoTransmissionType", d.LogoTransmissionType()}};
    if (d.LogoTransmissionType() == 1 || d.LogoTransmissionType() == 2)
        out["logoId"] = d.LogoId();
    if (d.LogoTransmissionType() == 1) {
        out["logoVersion"] = d.LogoVersion();
        out["downloadDataId"] = d.DownloadDataId();
    }
    if (d.LogoTransmissionType() == 3) {
        unsigned char chars[256];
        unsigned short size = sizeof chars;
        out["logoChar"] = d.LogoChar(chars, &size) ? text.Decode(chars, size) : std::string();
    }
    return out;
}

Json TargetRegion(const TCDescTargetRegionJPN& d, const TextDecoder&)
{
    return {{"regionSpecType", d.RegionSpecType()}, {"bitmap", Run(d.Bitmap(), d.BitmapLength())}};
}

Json CAContractInfo(const TCDescCAContractInfo& d, const TextDecoder&)
{
    Json tags = Json::array();
    for (int i = 0; i < d.NumOfComponent(); ++i)
        tags.push_back(Hex(static_cast<unsigned>(d.ComponentTag(i)), 2));
    std::vector<unsigned char> verification, fee;
    for (int i = 0; i < d.ContractVerificationInfoLength(); ++i)
        verification.push_back(static_cast<unsigned char>(d.ContractVerificationInfo(i)));
    for (int i = 0; i < d.FeeNameLength(); ++i)
        fee.push_back(static_cast<unsigned char>(d.FeeName(i)));
    return {{"caSystemId", Hex(d.CASystemId(), 4)},
            {"caUnitId", d.CAUnitId()},
            {"componentTags", tags},
            {"contractVerificationInfo", Run(verification.data(), static_cast<int>(verification.size()))},
            {"feeName", Run(fee.data(), static_cast<int>(fee.size()))}};
}

Json CAService(const TCDescCAService& d, const TextDecoder&)
{
    Json ids = Json::array();
    for (int i = 0; i < d.Count(); ++i)
        ids.push_back(Hex(static_cast<unsigned>(d.ServiceID(i)), 4));
    return {{"caSystemId", Hex(d.CASystemId(), 4)},
            {"caBroadcasterGroupId", d.CABroadcasterGroupId()},
            {"messageControl", d.MessageControl()},
            {"serviceIds", ids}};
}

Json CAEmmTs(const TCDescCA_EMM_TS& d, const TextDecoder&)
{
    return {{"caSystemId", Hex(d.CASystemId(), 4)},
            {"transportStreamId", Hex(d.TransportStreamId(), 4)},
            {"originalNetworkId", Hex(d.OriginalNetworkId(), 4)},
            {"powerSupplyPeriod", d.PowerSupplyPeriod()}};
}

Json Compatibility(const TCCompatibilityDescriptor& c)
{
    Json entries = Json::array();
    for (int i = 0; i < c.NumOfDescriptor(); ++i) {
        const TCCompatibilityDescriptor::TTDescriptor* e = c.Descriptor(i);
        entries.push_back({{"descriptorType", e->descriptorType},
                           {"specifierType", e->specifierType},
                           {"specifierData", HexBytes(e->specifierData, 3)},
                           {"model", Hex(e->model, 4)},
                           {"version", Hex(e->version, 4)},
                           {"subDescriptors", e->subDescriptors.size()}});
    }
    return {{"descriptorCount", c.DescriptorCount()}, {"descriptors", entries}};
}

Json DownloadContent(const TCDescDownloadContent& d, const TextDecoder& text)
{
    Json modules = Json::array();
    for (int i = 0; i < d.NumOfModuleList(); ++i) {
        const TCDescDownloadContent::_tagModule* m = d.Module(i);
        modules.push_back({{"moduleId", Hex(m->module_id, 4)},
                           {"moduleSize", m->module_size},
                           {"moduleInfo", Run(m->module_info, m->module_info_length)}});
    }
    Json out = {{"reboot", d.Reboot() != 0},
                {"addOn", d.AddOn() != 0},
                {"componentSize", d.ComponentSize()},
                {"downloadId", Hex(d.DownloadId(), 8)},
                {"timeOutValueDII", d.TimeOutValueDII()},
                {"leakRate", d.LeakRate()},
                {"componentTag", Hex(d.ComponentTag(), 2)}};
    if (d.CompatibilityFlag())
        out["compatibility"] = Compatibility(d.Compatibility());
    if (d.ModuleInfoFlag()) {
        out["numOfModules"] = d.NumOfModules();
        out["modules"] = modules;
    }
    out["privateData"] = Run(d.PrivateData(), d.PrivateDataLength());
    if (d.TextInfoFlag()) {
        out["language"] = CodeText(d.ISO639LanguageCode());
        out["text"] = d.Text() ? text.Decode(d.Text(), d.TextLength()) : std::string();
    }
    return out;
}

Json CarouselIdent(const TCDescCarouselIdent& d, const TextDecoder&)
{
    Json out = {{"carouselId", Hex(d.CarouselId(), 8)}, {"formatId", d.FormatId()}};
    if (d.FormatId() == 1) {
        const TCFormatSpecifier& f = d.FormatSpecifier();
        out["formatSpecifier"] = {{"moduleVersion", f.ModuleVersion()},
                                  {"moduleId", Hex(f.ModuleId(), 4)},
                                  {"blockSize", f.BlockSize()},
                                  {"moduleSize", f.ModuleSize()},
                                  {"compressionMethod", f.CompressionMethod()},
                                  {"originalSize", f.OriginalSize()},
                                  {"timeOut", f.TimeOut()},
                                  {"objectKey", Run(f.ObjectKey(), f.ObjectKeyLength())}};
    }
    out["privateData"] = Run(d.PrivateData(), d.PrivateDataLength());
    return out;
}

Json AssociationTag(const TCDescAssociationTag& d, const TextDecoder&)
{
    Json out = {{"associationTag", Hex(d.AssociationTag(), 4)},
                {"use", Hex(d.Use(), 4)},
                {"selector", Run(d.Selector(), d.Selector() ? d.SelectorByteLength() : 0)}};
    if (d.Use() == 0 && d.Selector() && d.SelectorByteLength() >= 8) {
        out["transactionId"] = Hex(d.TransactionId(), 8);
        out["timeout"] = d.Timeout();
    }
    out["privateData"] = Run(d.PrivateData(), d.PrivateDataLength());
    return out;
}

Json DeferredAssociationTags(const TCDescDeferredAssociationTags& d, const TextDecoder&)
{
    Json tags = Json::array();
    for (int i = 0; i < d.NumOfAssociationTag(); ++i)
        tags.push_back(Hex(d.AssociationTag(i), 4));
    return {{"associationTags", tags},
            {"transportStreamId", Hex(d.TransportStreamId(), 4)},
            {"programNumber", Hex(d.ProgramNumber(), 4)},
            {"originalNetworkId", Hex(d.OriginalNetworkId(), 4)},
            {"privateData", Run(d.PrivateData(), d.PrivateDataLength())}};
}

Json NPTReference(const TCDescNPTReference& d, const TextDecoder&)
{
    return {{"postDiscontinuity", d.PostDiscontinuityIndicator()},
            {"contentId", d.DsmContentId()},
            {"stcReference", d.STCReference()},
            {"nptReference", d.NPTReference()},
            {"scale", std::to_string(d.ScaleNumerator()) + "/" + std::to_string(d.ScaleDenominator())}};
}

Json StreamEvent(const TCDescStreamEvent& d, const TextDecoder&)
{
    return {{"eventId", Hex(d.EventId(), 4)},
            {"eventNpt", d.EventNPT()},
            {"privateData", Run(d.PrivateData(), d.PrivateDataLength())}};
}

using Describer = std::function<Json(const TCBaseDesc&, const TextDecoder&)>;

template <class T>
void Add(std::unordered_map<std::type_index, Describer>& table, Json (*fn)(const T&, const TextDecoder&))
{
    table[std::type_index(typeid(T))] = [fn](const TCBaseDesc& d, const TextDecoder& text) {
        return fn(static_cast<const T&>(d), text);
    };
}

std::unordered_map<std::type_index, Describer> MakeTable()
{
    std::unordered_map<std::type_index, Describer> t;
    Add(t, TerrestrialDelivery);
    Add(t, PartialReception);
    Add(t, TSInformation);
    Add(t, HierarchicalTransmission);
    Add(t, SystemManagement);
    Add(t, ExtendedBroadcaster);
    Add(t, SIPrimeTS);
    Add(t, LogoTransmission);
    Add(t, TargetRegion);
    Add(t, CAContractInfo);
    Add(t, CAService);
    Add(t, CAEmmTs);
    Add(t, DownloadContent);
    Add(t, CarouselIdent);
    Add(t, AssociationTag);
    Add(t, DeferredAssociationTags);
    Add(t, NPTReference);
    Add(t, StreamEvent);
    return t;
}

} // namespace

Json DescribeIsdbNetDescriptor(const TCBaseDesc& desc, const TextDecoder& text)
{
    static const std::unordered_map<std::type_index, Describer> table = MakeTable();
    const auto found = table.find(std::type_index(typeid(desc)));
    return found == table.end() ? Json(nullptr) : found->second(desc, text);
}

Json IsdbScan(const IDescriptorContainer& loop, const TextDecoder& text)
{
    const auto* info = dynamic_cast<const TCDescTSInformation*>(loop.Descriptor(kTagTSInformation, 0));
    const auto* delivery =
        dynamic_cast<const TCDescARIBTerrestrialDeliverySystem*>(loop.Descriptor(kTagTerrestrialDelivery, 0));
    const auto* partial = dynamic_cast<const TCDescPartialReception*>(loop.Descriptor(kTagPartialReception, 0));
    if (!info && !delivery && !partial)
        return nullptr;
    Json scan = {{"remoteControlKey", info ? Json(info->RemoteControlKeyId()) : Json(nullptr)},
                 {"tsName", info ? Json(TsName(*info, text)) : Json(nullptr)}};
    Json frequencies = Json::array();
    Json mhz = Json::array();
    for (int i = 0; delivery && i < delivery->NumOfFrequency(); ++i) {
        frequencies.push_back(delivery->Frequency(i));
        mhz.push_back(FrequencyMHz(delivery->Frequency(i)));
    }
    scan["frequencies"] = frequencies;
    scan["frequenciesMHz"] = mhz;
    Json oneSeg = Json::array();
    for (unsigned char i = 0; partial && i < partial->Count(); ++i)
        oneSeg.push_back(partial->ServiceId(i));
    scan["partialReceptionServiceIds"] = oneSeg;
    return scan;
}

std::string IsdbScanLine(const Json& scan)
{
    std::string line = "ISDB scan:";
    const char* separator = " ";
    if (!scan.at("remoteControlKey").is_null()) {
        line += separator + std::string("remote control key ") + std::to_string(scan["remoteControlKey"].get<int>());
        separator = ", ";
    }
    if (!scan.at("tsName").is_null()) {
        line += separator + std::string("TS name \"") + scan["tsName"].get<std::string>() + "\"";
        separator = ", ";
    }
    // The stream's number in 1/7 MHz, then what a tuner is given.
    const Json& frequencies = scan.at("frequencies");
    for (size_t i = 0; i < frequencies.size(); ++i) {
        line += separator + std::to_string(frequencies[i].get<unsigned>()) + " (" +
                MHzText(scan.at("frequenciesMHz")[i].get<double>()) + ")";
        separator = ", ";
    }
    std::string oneSeg;
    for (const Json& id : scan.at("partialReceptionServiceIds"))
        oneSeg += (oneSeg.empty() ? "" : " ") + Hex(id.get<unsigned>(), 4);
    if (!oneSeg.empty())
        line += separator + std::string("one-segment ") + oneSeg;
    return line;
}

} // namespace zuminspect
