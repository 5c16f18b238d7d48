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
//             "serviceId": n|null, "simulcast"}]}

#include <cstdint>
#include <vector>

#include "inspect/Json.h"

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

Json GuideAnswers(const GuideEvent& event);

} // namespace zuminspect

#endif
