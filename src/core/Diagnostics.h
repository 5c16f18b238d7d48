#ifndef ZUM_CORE_DIAGNOSTICS_H
#define ZUM_CORE_DIAGNOSTICS_H

#include "Export.h"
#include "Log.h"

// Reports a failed assertion on the console. Returns on a released image (one
// that has the release file); otherwise ends the process.
ZUM_EXPORT void _TCParserAssert(const char* expression, const char* file, unsigned int line);

// Logging aids for long texts: cut into lines and logged at DEBUG.
ZUM_EXPORT void PrintSignalMessage(char* message, int size);
ZUM_EXPORT void PrintXmlFormat(char* xml, int size);

namespace zum_diag {
// Where the assertion report goes and which file marks a released image.
// Tests point these at files of their own.
void SetAssertFiles(const char* consolePath, const char* releasePath);
} // namespace zum_diag

// Evaluates to the condition; on failure logs, reports, and yields false so
// that the call site runs its fallback:  if (!ZUM_ASSERT(p)) return false;
#define ZUM_ASSERT(cond)                                                                         \
    ((cond) ? true                                                                               \
            : (ZUM_LOGE("ASSERT!, Func:%s, Line:%d, Failed: %s", __func__, __LINE__, #cond),      \
               _TCParserAssert(#cond, __FILE__, __LINE__), false))

#endif
