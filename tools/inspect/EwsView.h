#ifndef ZUM_TOOLS_INSPECT_EWSVIEW_H
#define ZUM_TOOLS_INSPECT_EWSVIEW_H

// The emergency warning table as a warning screen needs it: where (the
// locations of TRDW), which disaster (its TCDW record), what to tell the
// viewer (the TMDW texts); and the describer of the emergency information
// descriptor of ISDB PMTs.
//
// "ews": null | {"pids": [..], "complete": {"TRDW", "TCDW", "TMDW"}, "crc": {"TRDW", "TCDW", "TMDW"},
//                "disasterCode", "locationTypeCode", "packageId",
//                "disaster": null | {"disasterCode", "codeByte0", "codeByte1", "texts": [4 strings]},
//                "locations": [{"code", "description", "disasterCode", "typeCode", "packageId"}],
//                "message": {"headerByte", "messageKey", "texts": [..]},
//                "disasters": [every TCDW record as "disaster"]}

#include <ostream>

#include "inspect/Json.h"
#include "inspect/Text.h"

class TCDescEmergencyInformation;

namespace zuminspect {

class Router;

// null when no emergency warning section reached its parser.
Json EwsModel(const Router& router, const TextDecoder& text);
void RenderEwsTree(const Json& ews, std::ostream& out);

// {"loops": [{"serviceId", "startEnd", "signalLevel",
//             "areaCodes": [{"code", "wideArea": n|null, "prefecture": n|null}]}]}
Json DescribeEmergencyInformation(const TCDescEmergencyInformation& d, const TextDecoder& text);

} // namespace zuminspect

#endif
