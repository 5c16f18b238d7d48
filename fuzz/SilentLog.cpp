// Linked into every fuzz target: the library's log lines would fill gigabytes
// in a long run and slow it to a crawl, and libFuzzer's own report is what
// counts. Nothing is formatted below the threshold (a target that sets a sink
// of its own still formats every line, on purpose).

#include <zum-platform/PlatformConfig.h>

namespace {

const bool kLogSilenced = (zum_platform::SetLogThreshold(zum_platform::kLogSilent), true);

} // namespace
