#ifndef ZUM_TOOLS_INSPECT_OSDTVIEW_H
#define ZUM_TOOLS_INSPECT_OSDTVIEW_H

// An IP service list read by the library, as a model of its own:
//
// {"input": {"kind": "IP service list", "file"},
//  "services": [{"uniqueId": {"serviceName", "domainName"}, "lcn": {"lcn", "selectable"},
//                "serviceNames": {language: name},
//                "serviceLocations": [{"drmControlInformation": [{"drmSystemId", "drmContentId",
//                    "rightsIssuerUrl", "silentRightsUrl", "previewRightsUrl", "doNotRecord",
//                    "doNotTimeShift", "drmGenericData", "drmPrivateData"}],
//                  "contentAttributes": {"audioName", "audioHref", "audioNumOfChannels", "videoName", "videoHref"},
//                  "uriBasedLocation": {"contentType", "uri"}}],
//                "targetRegions": {"regionLists": [{"countryCodes", "primaryRegions": [{"regions", "subregions"}]}],
//                  "accessibleOutOfRegion"}}]}

#include <ostream>
#include <string>

#include "inspect/Json.h"
#include "osdt/OSDTParser.h"

namespace zuminspect {

Json OsdtModel(const std::string& file, const OSDT::TCOSDTParser::ServiceList& services);
void RenderOsdtTree(const Json& model, std::ostream& out);

// Reads the list in `file` and prints it as a tree or JSON: 0. A file that
// cannot be opened or that the parser refuses: 1, with the reason on `err`.
int InspectOsdt(const std::string& file, bool json, std::ostream& out, std::ostream& err);

} // namespace zuminspect

#endif
