#ifndef ZUM_TESTS_SUPPORT_LOGCAPTURE_H
#define ZUM_TESTS_SUPPORT_LOGCAPTURE_H

// Captures the library's log lines for the life of the object.

#include <string>
#include <vector>

namespace zumtest {

struct LogLine {
    int priority;
    std::string tag;
    std::string text;    // the whole line, head included
    std::string message; // what follows the "<tag>: <function>(<line>) > " head
};

class LogCapture {
public:
    LogCapture();
    ~LogCapture();
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    const std::vector<LogLine>& Entries() const { return m_entries; }
    // Messages only (head stripped), in order.
    std::vector<std::string> Lines() const;
    // Messages only, of one priority.
    std::vector<std::string> Lines(int priority) const;
    bool Contains(const std::string& substring) const;
    // How many messages equal `message` exactly.
    int Count(const std::string& message) const;
    void Clear() { m_entries.clear(); }

private:
    std::vector<LogLine> m_entries;
};

} // namespace zumtest

#endif
