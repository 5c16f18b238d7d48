#ifndef ZUM_TOOLS_INSPECT_AITVIEW_H
#define ZUM_TOOLS_INSPECT_AITVIEW_H

// The AITs of the announced AIT PIDs (streams of type 0x05 with an
// application signalling descriptor) as a receiver's application manager
// lists them, and the describers of the application descriptors.
//
// "ait": [{"pid": n|null, "complete",
//          "instances": [{"applicationType", "typeName", "testApplication", "descriptors": [D],
//            "applications": [{"organisationId", "applicationId", "controlCode", "control",
//              "url", "name", "line", "descriptors": [D]}]}]}]
// "line" is the application manager's line: "0x0010/0x0001 AUTOSTART HbbTV  http://...  'Name'".

#include <ostream>

#include "inspect/Json.h"
#include "inspect/Text.h"

class TCDescApplication;
class TCDescApplicationName;
class TCDescTransportProtocol;
class TCDescExternalApplicationAuthrisation;
class TCDescApplicationIcons;
class TCDescPrefetch;
class TCDescDIILocation;
class TCDescApplicationStorageCapability;
class TCDescApplicationSimpleLocation;
class TCDescApplicationUsage;
class TCDescApplicationBoundary;
class TCDescUnboundApplication;
class TCDescApplicationStorage;
class TCDescApplicationSignalling;

namespace zuminspect {

class Router;

Json AitModel(const Router& router, const TextDecoder& text);
void RenderAitTree(const Json& ait, std::ostream& out);

Json DescribeApplication(const TCDescApplication& d, const TextDecoder& text);
Json DescribeApplicationName(const TCDescApplicationName& d, const TextDecoder& text);
Json DescribeTransportProtocol(const TCDescTransportProtocol& d, const TextDecoder& text);
Json DescribeExternalApplicationAuthorisation(const TCDescExternalApplicationAuthrisation& d,
                                              const TextDecoder& text);
Json DescribeApplicationIcons(const TCDescApplicationIcons& d, const TextDecoder& text);
Json DescribePrefetch(const TCDescPrefetch& d, const TextDecoder& text);
Json DescribeDIILocation(const TCDescDIILocation& d, const TextDecoder& text);
Json DescribeApplicationStorageCapability(const TCDescApplicationStorageCapability& d, const TextDecoder& text);
Json DescribeApplicationSimpleLocation(const TCDescApplicationSimpleLocation& d, const TextDecoder& text);
Json DescribeApplicationUsage(const TCDescApplicationUsage& d, const TextDecoder& text);
Json DescribeApplicationBoundary(const TCDescApplicationBoundary& d, const TextDecoder& text);
Json DescribeUnboundApplication(const TCDescUnboundApplication& d, const TextDecoder& text);
Json DescribeApplicationStorage(const TCDescApplicationStorage& d, const TextDecoder& text);
Json DescribeApplicationSignalling(const TCDescApplicationSignalling& d, const TextDecoder& text);

} // namespace zuminspect

#endif
