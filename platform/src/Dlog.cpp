#include <cstdarg>
#include <cstdio>
#include <string>

#include "zum-platform/Dlog.h"
#include "zum-platform/PlatformConfig.h"

namespace {

struct LogState {
    int threshold = DLOG_ERROR;
    zum_platform::LogSink sink;
};

LogState& State()
{
    static LogState state;
    return state;
}

} // namespace

extern "C" int __dlog_print(int /*log_id*/, int prio, const char* tag, const char* fmt, ...)
{
    LogState& state = State();
    const bool toSink = static_cast<bool>(state.sink);
    // Below the threshold and uncaptured: skip the formatting altogether.
    if (!toSink && prio < state.threshold)
        return 0;

    va_list args;
    va_start(args, fmt);
    va_list copy;
    va_copy(copy, args);
    const int needed = std::vsnprintf(nullptr, 0, fmt, copy);
    va_end(copy);
    std::string line(needed > 0 ? static_cast<size_t>(needed) : 0, '\0');
    if (needed > 0)
        std::vsnprintf(&line[0], line.size() + 1, fmt, args);
    va_end(args);

    if (toSink) {
        state.sink(prio, tag ? tag : "", line);
    } else {
        std::fprintf(stderr, "%s\n", line.c_str());
    }
    return static_cast<int>(line.size());
}

namespace zum_platform {

void SetLogThreshold(int priority) { State().threshold = priority; }

int LogThreshold() { return State().threshold; }

void SetLogSink(LogSink sink) { State().sink = std::move(sink); }

} // namespace zum_platform
