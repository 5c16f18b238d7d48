#ifndef ZUM_TOOLS_INSPECT_TKGSVIEW_H
#define ZUM_TOOLS_INSPECT_TKGSVIEW_H

// The TKGS channel system of a Turkish operator as a receiver's channel list
// shows it: per TKGS PID, the service lists with their channel numbers and
// names, each channel with its DVB service (named from the stream's own SDT)
// and delivery system, and the categories.
//
// "tkgs": [{"pid", "complete", "interfaceVersion", "info": [{"language", "text"}],
//           "sources": [{"source": "satellite"|"cable"|"terrestrial", "tkgsServiceIds": [..]}],
//           "services": [{"tkgsServiceId", "originalNetworkId", "transportStreamId", "serviceId",
//                         "name": text|null, "type": n|null, "pmtStreams": n|null,
//                         "delivery": D|null}],
//           "serviceLists": [{"names": [{"language", "name"}],
//                             "channels": [{"channelNumber", "tkgsServiceId", "name": text|null}]}],
//           "descriptors": [D] (delivery and category descriptors, in stream order)}]

#include <ostream>

#include "inspect/Json.h"
#include "inspect/Text.h"

class TCDescTKGSComponent;
class TCDescTKGSExtendedService;
class TCDescTKGSMultilingualCategoryLabel;

namespace zuminspect {

class Router;

Json TkgsModel(const Router& router, const TextDecoder& text);
void RenderTkgsTree(const Json& tkgs, std::ostream& out);

// {"flag", "found"}
Json DescribeTkgsComponent(const TCDescTKGSComponent& d, const TextDecoder& text);
// {"categories": [ids]}
Json DescribeTkgsExtendedService(const TCDescTKGSExtendedService& d, const TextDecoder& text);
// {"categoryId", "names": [{"language", "name"}]}
Json DescribeTkgsCategoryLabel(const TCDescTKGSMultilingualCategoryLabel& d, const TextDecoder& text);

} // namespace zuminspect

#endif
