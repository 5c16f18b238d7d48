#ifndef ZUM_TOOLS_INSPECT_MODELBUILDER_H
#define ZUM_TOOLS_INSPECT_MODELBUILDER_H

// Reads the parsers behind a Router through their accessors and writes the
// one model that both renderers print. The schema is documented in Renderers.h.

#include <cstdint>

#include <zum-platform/Codes.h>
#include <zum-platform/ZUMHandle.h>

#include "inspect/Json.h"
#include "inspect/Names.h"

namespace zuminspect {

class Router;
struct DemuxStats;

struct ModelContext {
    ZUMHandle handle = kZUMDefaultHandle;
    ECountryCode country = 0;   // asked of the channel number lookup
    ELanguageCode language = 0; // hint for the text converter
    bool sectionsInput = false; // a file of sections, not a transport stream
    uint64_t bytes = 0;         // input size
    BroadcastSystem system = BroadcastSystem::Dvb; // whose names the model gives
    bool guide = false;         // each event with the guide's answers (GuideView.h)
};

Json BuildModel(const Router& router, const DemuxStats& stats, const ModelContext& context);

} // namespace zuminspect

#endif
