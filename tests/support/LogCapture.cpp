#include "LogCapture.h"

#include <zum-platform/PlatformConfig.h>

namespace zumtest {

LogCapture::LogCapture()
{
    zum_platform::SetLogSink([this](int priority, const char* tag, const std::string& line) {
        const size_t head = line.find(" > ");
        m_entries.push_back({priority, tag, line, head == std::string::npos ? line : line.substr(head + 3)});
    });
}

LogCapture::~LogCapture()
{
    zum_platform::SetLogSink(nullptr);
}

std::vector<std::string> LogCapture::Lines() const
{
    std::vector<std::string> out;
    for (const auto& e : m_entries)
        out.push_back(e.message);
    return out;
}

std::vector<std::string> LogCapture::Lines(int priority) const
{
    std::vector<std::string> out;
    for (const auto& e : m_entries)
        if (e.priority == priority)
            out.push_back(e.message);
    return out;
}

bool LogCapture::Contains(const std::string& substring) const
{
    for (const auto& e : m_entries)
        if (e.text.find(substring) != std::string::npos)
            return true;
    return false;
}

int LogCapture::Count(const std::string& message) const
{
    int n = 0;
    for (const auto& e : m_entries)
        n += e.message == message ? 1 : 0;
    return n;
}

} // namespace zumtest
