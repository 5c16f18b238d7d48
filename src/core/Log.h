#ifndef ZUM_CORE_LOG_H
#define ZUM_CORE_LOG_H

// Internal: every log line of the library starts "<tag>: <function>(<line>) > ".

#include <zum-platform/Dlog.h>

#define ZUM_LOG_TAG "ZUM_PARSER"

#define ZUM_LOG(prio, fmt, ...) \
    __dlog_print(0, (prio), ZUM_LOG_TAG, "%s: %s(%d) > " fmt, ZUM_LOG_TAG, __func__, __LINE__, ##__VA_ARGS__)

#define ZUM_LOGD(fmt, ...) ZUM_LOG(DLOG_DEBUG, fmt, ##__VA_ARGS__)
#define ZUM_LOGI(fmt, ...) ZUM_LOG(DLOG_INFO, fmt, ##__VA_ARGS__)
#define ZUM_LOGE(fmt, ...) ZUM_LOG(DLOG_ERROR, fmt, ##__VA_ARGS__)

#endif
