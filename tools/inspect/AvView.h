#ifndef ZUM_TOOLS_INSPECT_AVVIEW_H
#define ZUM_TOOLS_INSPECT_AVVIEW_H

// Audio and video components as a person reads them: one line per PMT
// stream ("HEVC Main 10 2160p", "E-AC-3 multichannel eng", "AAC-LC stereo"),
// and the fields of the audio and video component descriptors.

#include <string>

#include "inspect/Json.h"

class TCBaseDesc;
class IDescriptorContainer;

namespace zuminspect {

// What the stream's descriptors say of its content beyond the stream type's
// name; empty when they say nothing more.
std::string StreamSummary(int streamType, const IDescriptorContainer& loop);

// The fields of an audio or video component descriptor; null for a class
// of another family.
Json DescribeAvDescriptor(const TCBaseDesc& desc);

} // namespace zuminspect

#endif
