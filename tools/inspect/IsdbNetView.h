#ifndef ZUM_TOOLS_INSPECT_ISDBNETVIEW_H
#define ZUM_TOOLS_INSPECT_ISDBNETVIEW_H

// The ISDB network, conditional access, download and carousel descriptors,
// and an ISDB transport stream of the NIT as a receiver's scan reads it:
// remote control key, TS name, terrestrial frequencies, one-segment services.

#include <string>

#include "inspect/Json.h"
#include "inspect/Text.h"

class TCBaseDesc;
class IDescriptorContainer;

namespace zuminspect {

// The fields of one of these descriptors; null for a class of another family.
Json DescribeIsdbNetDescriptor(const TCBaseDesc& desc, const TextDecoder& text);

// What a scan takes from a transport stream's loop; null when the loop has no
// ISDB transport descriptor.
Json IsdbScan(const IDescriptorContainer& loop, const TextDecoder& text);

// The scan as one tree line: "remote control key 5, TS name ..., 3312 (473.143 MHz)".
std::string IsdbScanLine(const Json& scan);

} // namespace zuminspect

#endif
