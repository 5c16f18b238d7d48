#include "inspect/GuideView.h"

#include <list>
#include <string>

#include <zum-platform/ProgramData.h>

#include <zum-platform/ZUMHandle.h>

#include "core/Descriptor.h"
#include "dvb/DescLinkage.h"
#include "isdb/DescDigitalCopyControl.h"
#include "program/ProgramCommonUtil.h"
#include "inspect/Text.h"
#include "program/ProgramDescriptorUtil.h"

namespace zuminspect {

namespace {

constexpr unsigned int kNotGiven = 0xFFFFFFFF;

Json Given(unsigned int value)
{
    return value == kNotGiven ? Json(nullptr) : Json(value);
}

// Big-endian UTF-16 bytes, as the component records hold their text.
std::string ComponentText(const TCProgramData::TTComp& comp)
{
    std::basic_string<unsigned short> units;
    for (unsigned short i = 0; i + 1 < comp.textLength; i += 2)
        units.push_back(static_cast<unsigned short>((comp.text[i] << 8) | comp.text[i + 1]));
    return Utf16ToUtf8(units);
}

Json Components(TCProgramDescriptorUtil& util)
{
    static const char* const kTypes[] = {"video", "audio", "subtitle", "data"};
    Json out = Json::object();
    for (int type = TCProgramData::COMP_TYPE_VIDEO; type < TCProgramData::COMP_TYPE_MAX; ++type) {
        std::vector<TCProgramData::TTComp> list;
        util.GetComponentList(static_cast<TCProgramData::EComponentType>(type), list);
        Json comps = Json::array();
        for (const TCProgramData::TTComp& c : list)
            comps.push_back({{"componentTag", c.componentTag},
                             {"componentType", c.componentType},
                             {"language", CodeText(c.language)},
                             {"qualityIndicator", c.qualityIndicator},
                             {"text", c.text ? Json(ComponentText(c)) : Json(nullptr)}});
        out[kTypes[type]] = comps;
    }
    return out;
}

Json Links(TCProgramDescriptorUtil& util, Json& linkageType)
{
    std::list<CEXTEventLinkageInfo> list;
    unsigned char type = 0;
    const bool any = util.SizeOfDescriptor(0x4A) > 0;
    util.GetEventLinkageInfoList(list, type);
    linkageType = any ? Json(type) : Json(nullptr);
    Json out = Json::array();
    for (const CEXTEventLinkageInfo& l : list)
        out.push_back({{"targetEventId", l.TargetEventId()},
                       {"linkType", l.LinkType() == 0xFF ? Json(nullptr) : Json(l.LinkType())},
                       {"targetIdType", l.TargetIdType() == 0xFF ? Json(nullptr) : Json(l.TargetIdType())},
                       {"userDefinedId", l.UserDefinedId()},
                       {"transportStreamId", Given(l.TargetTransportStreamId())},
                       {"originalNetworkId", Given(l.TargetOriginalNetworkId())},
                       {"serviceId", Given(l.TargetServiceId())},
                       {"simulcast", l.EventSimulcast()}});
    return out;
}

Json EventInfo(const TCProgramData::TTEventInfo& e)
{
    return {{"transportStreamId", e.transportStreamId},
            {"originalNetworkId", e.originalNetworkId},
            {"serviceId", e.serviceId},
            {"eventId", e.eventId}};
}

Json Series(TCProgramDescriptorUtil& util)
{
    TCProgramData::TTSeriesItem item;
    if (!util.GetSeriesInfo(item, kZUMDefaultHandle))
        return nullptr;
    std::basic_string<unsigned short> name;
    for (unsigned short i = 0; i + 1 < item.seriesNameLength; i += 2)
        name.push_back(static_cast<unsigned short>((item.seriesName[i] << 8) | item.seriesName[i + 1]));
    return {{"seriesId", item.seriesId},
            {"repeatLabel", item.repeatLabel},
            {"programPattern", item.programPattern},
            {"expireDate", item.expireDate},
            {"episodeNumber", item.episodeNumber},
            {"lastEpisodeNumber", item.lastEpisodeNumber},
            {"name", item.seriesNameLength ? Json(Utf16ToUtf8(name)) : Json(nullptr)}};
}

// The copy rules of the event's digital copy control descriptor, as the country's utility reads them.
Json CopyControl(const TCDescriptorHash& loop)
{
    const auto* copy = dynamic_cast<const TCDescDigitalCopyControl*>(loop.Descriptor(0xC1, 0));
    if (copy == nullptr)
        return nullptr;
    TCProgramCommonUtil common(kZUMDefaultHandle);
    EDigitalCopyControl audio = EDIGITAL_COPY_FREE;
    const bool ruled =
        common.GetAudioOutputControl(copy->CopyControlType(), copy->DigitalRecordingControlData(), audio);
    return {{"copyControlType", copy->CopyControlType()},
            {"digitalRecordingControl", copy->DigitalRecordingControlData()},
            {"audioOutput", ruled ? Json(static_cast<int>(audio)) : Json(nullptr)}};
}

// The event's loop decoded as the guide utility decodes it.
void DecodeLoop(const TCProgramData& record, TCDescriptorHash& hash)
{
    unsigned char* data = nullptr;
    unsigned short length = 0;
    int tableId = -1;
    if (record.GetDescriptorRawDataBuffer(data, length, tableId))
        TCDescriptor(kZUMDefaultHandle).Parse(data, length, hash, static_cast<unsigned char>(tableId & 0xFF));
}

} // namespace

GuideUtil::GuideUtil(const TCProgramData& record) : TCProgramDescriptorUtil(record)
{
    TCDescriptorHash all;
    DecodeLoop(record, all);
    for (int i = 0; i < all.NumOfDescriptors(); ++i) {
        const TCBaseDesc* desc = all.DescriptorByIndex(static_cast<unsigned int>(i));
        // Series, event group and component group.
        if (desc->Tag() == 0xD5 || desc->Tag() == 0xD6 || desc->Tag() == 0xD9)
            m_descriptors.Add(desc->Fork());
    }
}

Json GuideAnswers(const GuideEvent& event)
{
    TCProgramData record;
    TCProgramId id;
    id.serviceId = event.serviceId;
    id.eventId = event.eventId;
    id.utcStartTime = event.startTime;
    id.utcDuration = event.duration;
    id.eitTableId = event.tableId;
    record.SetProgramId(id);
    record.SetOriginalNetworkId(event.originalNetworkId);
    record.SetTransportStreamId(event.transportStreamId);
    if (event.loop != nullptr && !event.loop->empty())
        record.SetDescriptorRawData(event.loop->data(), static_cast<unsigned short>(event.loop->size()),
                                    event.tableId);
    GuideUtil util(record);

    Json out = {{"components", Components(util)},
                {"audioDescription", util.IsADAvailable()},
                {"subtitles", util.IsSubtitleAvailable()},
                {"signLanguage", util.IsSignLanguageAvailable()},
                {"hd", util.IsHD()},
                {"dataService", util.DataServiceAvailable()}};
    TSRatingInfo rating;
    out["rating"] = util.GetRatingInfo(rating) ? Json{{"type", rating.ratingType},
                                                      {"value", rating.ratingValue},
                                                      {"extra", rating.ratingExtra}}
                                               : Json(nullptr);
    unsigned short ts = 0, network = 0, service = 0, target = 0;
    bool simulcast = false;
    out["hdSimulcast"] = util.HDSimulcastEvent(ts, network, service, target, simulcast)
                             ? Json{{"transportStreamId", ts},
                                    {"originalNetworkId", network},
                                    {"serviceId", service},
                                    {"eventId", target},
                                    {"simulcast", simulcast}}
                             : Json(nullptr);
    Json linkageType;
    out["links"] = Links(util, linkageType);
    out["linkageType"] = linkageType;
    out["series"] = Series(util);
    TCProgramData::TTEventInfo relayed;
    out["relayedEvent"] = util.GetRelayedEventInfo(relayed) ? EventInfo(relayed) : Json(nullptr);
    std::list<TCProgramData::TTEventInfo> common;
    util.GetCommonEvent(common);
    out["commonEvents"] = Json::array();
    for (const TCProgramData::TTEventInfo& e : common)
        out["commonEvents"].push_back(EventInfo(e));
    TCDescriptorHash loop;
    DecodeLoop(record, loop);
    const Json copy = CopyControl(loop);
    if (!copy.is_null())
        out["copyControl"] = copy;
    return out;
}

} // namespace zuminspect
