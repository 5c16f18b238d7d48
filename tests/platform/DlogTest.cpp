#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <zum-platform/Dlog.h>
#include <zum-platform/PlatformConfig.h>

#include "support/LogCapture.h"

// Without a sink only lines at or above the threshold reach standard error; a sink takes every line instead.
TEST(Dlog, ThresholdAndSink)
{
    const int before = zum_platform::LogThreshold();
    zum_platform::SetLogThreshold(DLOG_INFO);
    testing::internal::CaptureStderr();
    __dlog_print(0, DLOG_DEBUG, "T", "dropped %d", 1);
    __dlog_print(0, DLOG_INFO, "T", "kept %d", 2);
    {
        zumtest::LogCapture log;
        __dlog_print(0, DLOG_DEBUG, "T", "captured %s", "x");
        __dlog_print(0, DLOG_ERROR, "T", "%s", "");
        EXPECT_EQ(log.Lines(), (std::vector<std::string>{"captured x", ""}));
        EXPECT_EQ(log.Entries()[0].tag, "T");
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "kept 2\n");
    zum_platform::SetLogThreshold(before);
}
