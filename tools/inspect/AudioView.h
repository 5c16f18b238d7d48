#ifndef ZUM_TOOLS_INSPECT_AUDIOVIEW_H
#define ZUM_TOOLS_INSPECT_AUDIOVIEW_H

// Next-generation audio on a PMT's streams: the AC-4 descriptor with the
// presentations of its toc, and the audio preselections, each with a summary
// line a listener would read ("AC-4, 2 presentations: eng (main), spa; stereo + DE").
//
// AC-4:  {"summary", "configFlag", "tocFlag", "dialogEnhancement", "channelMode": n|null,
//         "channelModeName": "mono"|"stereo"|"multichannel"|"reserved"|null, "tocLength",
//         "toc": hex, "additionalInfo": hex, "dsiVersion": n|null,
//         "dsiError": text (only when the walk stopped),
//         "presentations": [{"id", "language": "eng"|"-"|"?", "main"}]}
// APD:   {"summary", "preselections": [{"id", "renderingIndication", "renderingIndicationName",
//         "audioDescription", "spokenSubtitles", "dialogueEnhancement", "interactivityEnabled",
//         "language": "eng"|null, "messageId": n|null, "auxComponents": hex|null,
//         "futureExtension": hex|null}]}

#include "inspect/Json.h"
#include "inspect/Text.h"

class TCDescAC4;
class TCDescAPD;

namespace zuminspect {

Json DescribeAC4(const TCDescAC4& d, const TextDecoder& text);
Json DescribeAPD(const TCDescAPD& d, const TextDecoder& text);

} // namespace zuminspect

#endif
