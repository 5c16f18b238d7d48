#ifndef ZUM_PLATFORM_DLOG_H
#define ZUM_PLATFORM_DLOG_H

// The platform's log entry point. Priorities: 3 DEBUG, 4 INFO, 6 ERROR.
enum {
    DLOG_DEBUG = 3,
    DLOG_INFO = 4,
    DLOG_WARN = 5,
    DLOG_ERROR = 6,
};

extern "C" int __dlog_print(int log_id, int prio, const char* tag, const char* fmt, ...)
    __attribute__((format(printf, 4, 5)));

#endif
