#include "inspect/IsdbEventView.h"

#include <vector>

#include "isdb/DescAbstractService.h"
#include "isdb/DescAudioComponent.h"
#include "isdb/DescBoardInformation.h"
#include "isdb/DescComponentGroup.h"
#include "isdb/DescDigitalCopyControl.h"
#include "isdb/DescEventGroup.h"
#include "isdb/DescScheduling.h"

namespace zuminspect {

namespace {

// A run that a copy accessor hands out, as text or as hex bytes.
template <class Char, class Size, class Copy>
std::vector<unsigned char> Copied(Copy copy)
{
    Char buffer[256];
    Size size = static_cast<Size>(sizeof buffer);
    if (!copy(buffer, &size) || size <= 0)
        return {};
    return std::vector<unsigned char>(buffer, buffer + size);
}

std::string AsText(const TextDecoder& text, const std::vector<unsigned char>& bytes)
{
    return text.Decode(bytes.data(), bytes.size());
}

std::string AsHex(const std::vector<unsigned char>& bytes)
{
    return HexBytes(bytes.data(), bytes.size());
}

Json AudioComponent(const TCDescAudioComponent& d, const TextDecoder& text)
{
    return {{"streamContent", d.StreamContent()},
            {"componentType", d.ComponentType()},
            {"componentTag", d.ComponentTag()},
            {"streamType", d.StreamType()},
            {"simulcastGroupTag", Hex(d.SimulcastGroupTag(), 2)},
            {"multiLingual", d.ESMultiLingualFlag()},
            {"mainComponent", d.MainComponentFlag()},
            {"qualityIndicator", d.QualityIndicator()},
            {"samplingRate", d.SamplingRate()},
            {"language", CodeText(d.ISO639LanguageCode())},
            {"language2", d.ESMultiLingualFlag() ? Json(CodeText(d.ISO639LanguageCode2())) : Json(nullptr)},
            {"text", AsText(text, Copied<char, int>([&](char* b, int* s) { return d.TextChar(b, s); }))}};
}

Json DataContent(const TCDescDataContent& d, const TextDecoder& text)
{
    return {{"dataComponentId", d.DataComponentId()},
            {"entryComponent", Hex(d.EntryComponent(), 2)},
            {"selector", AsHex(Copied<unsigned char, int>([&](unsigned char* b, int* s) { return d.SelectorByte(b, s); }))},
            {"componentRefs",
             AsHex(Copied<unsigned char, int>([&](unsigned char* b, int* s) { return d.ComponentRef(b, s); }))},
            {"language", CodeText(d.ISO639LanguageCode())},
            {"text", AsText(text, Copied<char, int>([&](char* b, int* s) { return d.TextChar(b, s); }))}};
}

Json DataComponent(const TCDescDataComponent& d)
{
    return {{"dataComponentId", d.DataComponentId()},
            {"additionalInfo", AsHex(Copied<unsigned char, int>(
                                   [&](unsigned char* b, int* s) { return d.AdditionalDataCompInfo(b, s); }))}};
}

Json ComponentGroup(const TCDescComponentGroup& d, const TextDecoder& text)
{
    Json groups = Json::array();
    for (int g = 0; g < d.NumOfGroup(); ++g) {
        const TCDescComponentGroup::ComponentGroup* group = d.Group(g);
        Json units = Json::array();
        for (int u = 0; u < group->NumOfCAUnit(); ++u) {
            const auto* unit = group->Unit(u);
            Json tags = Json::array();
            for (int t = 0; t < unit->NumOfComponent(); ++t)
                tags.push_back(Hex(unit->ComponentTag(t), 2));
            units.push_back({{"caUnitId", unit->CAUnitId()}, {"componentTags", tags}});
        }
        groups.push_back({{"nonZeroId", group->ComponentGroupId()},
                          {"caUnits", units},
                          {"totalBitRate", d.TotalBitRateFlag() ? Json(group->TotalBitRate()) : Json(nullptr)},
                          {"text", AsText(text, Copied<char, int>([&](char* b, int* s) {
                                        return group->TextChar(b, s);
                                    }))}});
    }
    return {{"multiView", d.ComponentGroupType()}, {"groups", groups}};
}

Json EventGroup(const TCDescEventGroup& d)
{
    Json events = Json::array();
    for (int i = 0; i < d.EventCount(); ++i)
        if (const auto* e = d.Group(i))
            events.push_back({{"serviceId", e->serviceId}, {"eventId", e->eventId}});
    Json others = Json::array();
    for (int i = 0; i < d.OtherNetworkCount(); ++i) {
        const auto* e = d.GroupOther(i);
        others.push_back({{"originalNetworkId", e->originalNetworkId},
                          {"transportStreamId", e->transportStreamId},
                          {"serviceId", e->serviceId},
                          {"eventId", e->eventId}});
    }
    std::vector<unsigned char> data(static_cast<size_t>(d.PrivateDataLength()) + 1);
    int size = d.PrivateDataLength();
    d.PrivateDataBytes(size, data.data());
    data.resize(static_cast<size_t>(size));
    return {{"groupType", d.GroupType()}, {"eventCount", d.EventCount()}, {"events", events},
            {"otherNetworkEvents", others}, {"privateData", AsHex(data)}};
}

Json Series(const TCDescSeries& d, const TextDecoder& text)
{
    unsigned char name[256];
    unsigned short size = sizeof name;
    const bool named = d.GetSeriesName(name, &size);
    return {{"seriesId", d.SeriesId()},
            {"repeatLabel", d.RepeatLabel()},
            {"programPattern", d.ProgramPattern()},
            {"expireDate", d.ExpireDateValidFlag() ? Json(IsoTimeSince1980(86400u * d.ExpireDate()).substr(0, 10))
                                                   : Json(nullptr)},
            {"episode", d.EpisodeNumber()},
            {"lastEpisode", d.LastEpisodeNumber()},
            {"name", named ? text.Decode(name, size) : std::string()}};
}

Json CopyRules(unsigned char recording, unsigned char copyType, unsigned char aps)
{
    return {{"digitalRecordingControl", recording}, {"copyControlType", copyType}, {"apsControl", aps}};
}

Json DigitalCopyControl(const TCDescDigitalCopyControl& d)
{
    Json out = CopyRules(d.DigitalRecordingControlData(), d.CopyControlType(), d.APSControlData());
    out["maximumBitrate"] = d.MaximumBitrateFlag() ? Json(d.MaximumBitrate()) : Json(nullptr);
    Json components = Json::array();
    std::vector<TCDescDigitalCopyControl::TTCompControl> list;
    d.GetComponentControlList(list);
    for (const auto& c : list) {
        Json entry = CopyRules(c.digitalRecordingControlData, c.copyControlType, c.apsControlData);
        entry["componentTag"] = c.componentTag;
        entry["maximumBitrate"] = c.maximumBitrateFlag ? Json(c.maximumBitrate) : Json(nullptr);
        components.push_back(entry);
    }
    out["components"] = components;
    return out;
}

Json ContentAvailability(const TCDescContentAvailability& d)
{
    return {{"copyRestrictionMode", d.CopyRestrictionMode()}, {"imageConstraintToken", d.ImageConstraintToken()},
            {"retentionMode", d.RetentionMode()},             {"retentionState", d.RetentionState()},
            {"encryptionMode", d.EncryptionMode()}};
}

// The descriptor converts its title and text itself, to big-endian 16-bit characters.
std::string BoardText(const TCDescBoardInformation& d, bool title)
{
    char buffer[512];
    int size = sizeof buffer;
    if (!(title ? d.Title(size, buffer) : d.Text(size, buffer)))
        return std::string();
    std::basic_string<unsigned short> units;
    for (int i = 0; i + 1 < size; i += 2)
        units.push_back(static_cast<unsigned short>((static_cast<unsigned char>(buffer[i]) << 8) |
                                                    static_cast<unsigned char>(buffer[i + 1])));
    return Utf16ToUtf8(units);
}

Json AbstractService(const TCDescAbstractService& d, const TextDecoder& text)
{
    unsigned char name[256];
    int size = sizeof name;
    const bool named = d.ServiceNameByte(name, &size) == 1;
    return {{"serviceId", d.ServiceId()}, {"autoSelect", d.AutoSelect()},
            {"name", named ? text.Decode(name, static_cast<size_t>(size)) : std::string()}};
}

Json PrivilegedCertificate(const TCDescPrivilegedCertificate& d)
{
    Json ids = Json::array();
    for (unsigned int i = 0; const unsigned char* id = d.CertificateIdentifierByte(i); ++i)
        ids.push_back(HexBytes(id, TCDescPrivilegedCertificate::kIdentifierSize));
    return {{"certificateIdentifiers", ids}};
}

Json EpgInformation(const TCDescEPGInformation& d)
{
    return {{"pushService", d.PushService() != 0},
            {"allowSurfing", d.AllowSurfing() != 0},
            {"allowSearchScan", d.AllowSearchScan() != 0},
            {"allowListing", d.AllowListing() != 0},
            {"genres", AsHex(Copied<unsigned char, int>([&](unsigned char* b, int* s) { return d.Genres(b, s); }))},
            {"spare", AsHex(Copied<char, int>([&](char* b, int* s) { return d.SpareEpgInfoBits(b, s); }))}};
}

Json Scheduling(const TCDescScheduling& d)
{
    return {{"startDateTime", Hex(d.StartDateTime(), 10)},
            {"endDateTime", Hex(d.EndDateTime(), 10)},
            {"finalAvailability", d.FinalAvailability()},
            {"periodic", d.PeriodicityFlag()},
            {"period", {{"unit", d.PeriodUnit()}, {"value", d.Period()}}},
            {"duration", {{"unit", d.DurationUnit()}, {"value", d.Duration()}}},
            {"estimatedCycleTime", {{"unit", d.EstimatedCycleTimeUnit()}, {"value", d.EstimatedCycleTime()}}},
            {"privateData", d.PrivateData() ? HexBytes(d.PrivateData(), static_cast<size_t>(d.PrivateLength()))
                                            : std::string()}};
}

Json ServiceAvailability(const TCDescServiceAvailability& d)
{
    Json cells = Json::array();
    for (int i = 0; i < d.Count() && d.CellId(i) != 0xFFFF; ++i)
        cells.push_back(Hex(d.CellId(i), 4));
    return {{"available", d.AvailabilityFlag()}, {"cellIds", cells}};
}

} // namespace

Json DescribeIsdbEventDescriptor(const TCBaseDesc& desc, const TextDecoder& text)
{
    if (const auto* d = dynamic_cast<const TCDescAudioComponent*>(&desc))
        return AudioComponent(*d, text);
    if (const auto* d = dynamic_cast<const TCDescDataContent*>(&desc))
        return DataContent(*d, text);
    if (const auto* d = dynamic_cast<const TCDescDataComponent*>(&desc))
        return DataComponent(*d);
    if (const auto* d = dynamic_cast<const TCDescComponentGroup*>(&desc))
        return ComponentGroup(*d, text);
    if (const auto* d = dynamic_cast<const TCDescEventGroup*>(&desc))
        return EventGroup(*d);
    if (const auto* d = dynamic_cast<const TCDescSeries*>(&desc))
        return Series(*d, text);
    if (const auto* d = dynamic_cast<const TCDescDigitalCopyControl*>(&desc))
        return DigitalCopyControl(*d);
    if (const auto* d = dynamic_cast<const TCDescContentAvailability*>(&desc))
        return ContentAvailability(*d);
    if (const auto* d = dynamic_cast<const TCDescBoardInformation*>(&desc))
        return {{"title", BoardText(*d, true)}, {"text", BoardText(*d, false)}};
    if (const auto* d = dynamic_cast<const TCDescAbstractService*>(&desc))
        return AbstractService(*d, text);
    if (const auto* d = dynamic_cast<const TCDescPrivilegedCertificate*>(&desc))
        return PrivilegedCertificate(*d);
    if (const auto* d = dynamic_cast<const TCDescEPGInformation*>(&desc))
        return EpgInformation(*d);
    if (const auto* d = dynamic_cast<const TCDescScheduling*>(&desc))
        return Scheduling(*d);
    if (const auto* d = dynamic_cast<const TCDescServiceAvailability*>(&desc))
        return ServiceAvailability(*d);
    if (const auto* d = dynamic_cast<const TCDescServiceIdentifier*>(&desc))
        return {{"identifier", d->ServiceIdentifier()}};
    return nullptr;
}

} // namespace zuminspect
