#ifndef ZUM_TESTS_SUPPORT_TESTENVIRONMENT_H
#define ZUM_TESTS_SUPPORT_TESTENVIRONMENT_H

#include <string>

#include <zum-platform/PlatformConfig.h>

namespace zumtest {

// Files that stand in for "/dev/console" and "/etc/release" in tests.
const std::string& AssertConsolePath();
const std::string& AssertReleasePath();
// Assertions return (release file present) and report into AssertConsolePath().
void UseReleasedImage();

// Restores a present binder with default answers when the test ends.
class BinderScope {
public:
    BinderScope() { zum_platform::ResetBinder(); }
    explicit BinderScope(const zum_platform::BinderSettings& s) { zum_platform::SetBinder(s); }
    ~BinderScope() { zum_platform::ResetBinder(); }
    BinderScope(const BinderScope&) = delete;
    BinderScope& operator=(const BinderScope&) = delete;
    zum_platform::BinderSettings& operator*() { return zum_platform::Binder(); }
    zum_platform::BinderSettings* operator->() { return &zum_platform::Binder(); }
};

} // namespace zumtest

#endif
