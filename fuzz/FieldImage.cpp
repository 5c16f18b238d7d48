// Linked into every fuzz target: the library runs as in a receiver in the
// field.
// - The log is silenced: its lines would fill gigabytes in a long run and
//   slow it to a crawl, and libFuzzer's own report is what counts. Nothing is
//   formatted below the threshold (a target that sets a sink of its own still
//   formats every line, on purpose).
// - Assertions return, as in a released image. Some guard broadcast data
//   (a rating dimension above 7, say) and stop a development image on
//   purpose; a fault that matters shows as a sanitizer report instead.

#include <zum-platform/PlatformConfig.h>

#include "core/Diagnostics.h"

namespace {

const bool kFieldImage = (zum_platform::SetLogThreshold(zum_platform::kLogSilent),
                          // Any file that exists stands for the released image's marker.
                          zum_diag::SetAssertFiles("/dev/null", "/dev/null"), true);

} // namespace
