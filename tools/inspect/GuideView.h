#ifndef ZUM_TOOLS_INSPECT_GUIDEVIEW_H
#define ZUM_TOOLS_INSPECT_GUIDEVIEW_H

// --guide: what a program guide that stored an event's raw descriptor loop
// learns from it through the guide utilities, beside the event.
//
// "guide": {"components": {"video"|"audio"|"subtitle"|"data": [{"componentTag", "componentType", "language",
//             "qualityIndicator", "text": text|null}]},
//           "audioDescription", "subtitles", "signLanguage", "hd", "dataService": bool,
//           "rating": null | {"type", "value", "extra"},
//           "hdSimulcast": null | {"transportStreamId", "originalNetworkId", "serviceId", "eventId", "simulcast"},
//           "linkageType": n|null (the last linkage's), "links": [{"targetEventId", "linkType": n|null,
//             "targetIdType": n|null, "userDefinedId", "transportStreamId": n|null, "originalNetworkId": n|null,
//             "serviceId": n|null, "simulcast"}],
//           "series": null | {"seriesId", "repeatLabel", "programPattern", "expireDate": days since 1980-01-06,
//             "episodeNumber", "lastEpisodeNumber", "name": text|null},
//           "relayedEvent": null | E, "commonEvents": [E],
//           "copyControl" (with a digital copy control descriptor): {"copyControlType", "digitalRecordingControl",
//             "audioOutput": n|null (Japan only)}}
// E: {"transportStreamId", "originalNetworkId", "serviceId", "eventId"}

#include <cstdint>
#include <vector>

#include <zum-platform/ProgramData.h>

#include "inspect/Json.h"
#include "program/ProgramDescriptorUtil.h"

namespace zuminspect {

// The event as a guide stores it.
struct GuideEvent {
    uint16_t originalNetworkId = 0;
    uint16_t transportStreamId = 0;
    uint16_t serviceId = 0;
    uint16_t eventId = 0;
    uint8_t tableId = 0; // the table id its loop is decoded under
    uint32_t startTime = 0;
    uint32_t duration = 0;
    const std::vector<uint8_t>* loop = nullptr;
};

// The guide utility of a guide that lists series and event groups as well:
// it keeps their descriptors beside those the record's source kind keeps, and
// the queries read whatever the object holds.
class GuideUtil : public TCProgramDescriptorUtil {
public:
    explicit GuideUtil(const TCProgramData& record);
};

Json GuideAnswers(const GuideEvent& event);

} // namespace zuminspect

#endif
