// Test entry: assertions report into a file of the test's own and return, as
// on a released image, so that every fallback can be exercised.

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "core/Diagnostics.h"
#include "support/TestEnvironment.h"

namespace zumtest {

const std::string& AssertConsolePath()
{
    static const std::string path = ::testing::TempDir() + "zum_assert_console.txt";
    return path;
}

const std::string& AssertReleasePath()
{
    static const std::string path = ::testing::TempDir() + "zum_release";
    return path;
}

void UseReleasedImage()
{
    std::FILE* f = std::fopen(AssertReleasePath().c_str(), "w");
    if (f)
        std::fclose(f);
    f = std::fopen(AssertConsolePath().c_str(), "a");
    if (f)
        std::fclose(f);
    zum_diag::SetAssertFiles(AssertConsolePath().c_str(), AssertReleasePath().c_str());
}

} // namespace zumtest

int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    zumtest::UseReleasedImage();
    return RUN_ALL_TESTS();
}
