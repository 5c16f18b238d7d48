#ifndef ZUM_TOOLS_INSPECT_SITVIEW_H
#define ZUM_TOOLS_INSPECT_SITVIEW_H

// The SIT of a recorded (partial) stream in the model:
//   "sit": null | {"programCount", "descriptorsLength", "descriptors": [D],
//                  "programs": [{"programNumber", "kind", "startTime", "flag", "code", "duration",
//                                "texts": [5 strings, by text type; 0 is the title]}]}
// The start time, duration, kind and code are the broadcaster's values, as carried.

#include "inspect/Json.h"
#include "inspect/Text.h"

class TCSITParser;

namespace zuminspect {

Json DescribeSit(const TCSITParser* sit, const TextDecoder& text);

} // namespace zuminspect

#endif
