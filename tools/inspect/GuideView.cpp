#include "inspect/GuideView.h"

#include <list>
#include <string>

#include <zum-platform/ProgramData.h>

#include "dvb/DescLinkage.h"
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

} // namespace

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
    TCProgramDescriptorUtil util(record);

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
    return out;
}

} // namespace zuminspect
