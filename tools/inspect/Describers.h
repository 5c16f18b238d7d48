#ifndef ZUM_TOOLS_INSPECT_DESCRIBERS_H
#define ZUM_TOOLS_INSPECT_DESCRIBERS_H

// Descriptor objects to the model: tag, class, and the fields a receiver
// engineer reads, or the raw bytes where no describer knows the class.

#include <string>

#include "inspect/Json.h"
#include "inspect/Text.h"

class TCBaseDesc;
class IDescriptorContainer;

namespace zuminspect {

// The dynamic class of the object, demangled ("TCDescService").
std::string ClassName(const TCBaseDesc& desc);

// {"tag": "0x48", "class": ..., "fields": {...}} for a described class,
// {"tag", "class", "raw": "48 0e ..."} for any other.
Json DescribeDescriptor(const TCBaseDesc& desc, const TextDecoder& text);

// Every descriptor of one loop, in order of arrival.
Json DescribeLoop(const IDescriptorContainer& loop, const TextDecoder& text);

} // namespace zuminspect

#endif
