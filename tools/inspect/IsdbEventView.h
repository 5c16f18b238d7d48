#ifndef ZUM_TOOLS_INSPECT_ISDBEVENTVIEW_H
#define ZUM_TOOLS_INSPECT_ISDBEVENTVIEW_H

// The ARIB descriptors of events, components, services and guides to the
// model, their text converted by the receiver's country (ARIB text in Japan).

#include "inspect/Json.h"
#include "inspect/Text.h"

class TCBaseDesc;

namespace zuminspect {

// The fields of a descriptor of this family; null for any other class.
Json DescribeIsdbEventDescriptor(const TCBaseDesc& desc, const TextDecoder& text);

} // namespace zuminspect

#endif
