#include "Diagnostics.h"

#include <execinfo.h>
#include <fcntl.h>
#include <pthread.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <exception>
#include <string>
#include <vector>

namespace {

struct AssertFiles {
    std::string console = "/dev/console";
    std::string release = "/etc/release";
};

AssertFiles& Files()
{
    static AssertFiles files;
    return files;
}

void WriteReport(FILE* out, const char* expression, const char* file, unsigned int line)
{
    char name[17] = {0};
    prctl(PR_GET_NAME, name, 0, 0, 0);
    const long tid = syscall(SYS_gettid);

    std::fprintf(out, "Assertion failed: %s (%u) - %s\n", file, line, expression);
    std::fprintf(out, "Debug information:\n");
    std::fprintf(out, "Posix Thread ID: 0x%08x\n",
                 static_cast<unsigned int>(reinterpret_cast<unsigned long>(pthread_self()) & 0xFFFFFFFFu));
    std::fprintf(out, "Linux Thread ID:   %8d (%s)\n", static_cast<int>(tid), name);

    void* frames[100];
    const int count = backtrace(frames, 100);
    char** symbols = backtrace_symbols(frames, count);
    if (symbols) {
        std::fprintf(out, "Callstack:\n");
        for (int i = 1; i < count; ++i)
            std::fprintf(out, "%s\n", symbols[i]);
        std::free(symbols);
    }
}

void Sleep100ms()
{
    timespec remaining{0, 100 * 1000 * 1000};
    while (nanosleep(&remaining, &remaining) == -1 && errno == EINTR) {
    }
}

} // namespace

namespace zum_diag {
void SetAssertFiles(const char* consolePath, const char* releasePath)
{
    Files().console = consolePath ? consolePath : "/dev/console";
    Files().release = releasePath ? releasePath : "/etc/release";
}
} // namespace zum_diag

void _TCParserAssert(const char* expression, const char* file, unsigned int line)
{
    if (!expression)
        expression = "";
    if (!file)
        file = "";

    // The report goes to the console through stdout's descriptor, which is
    // restored after; opening first keeps stdout intact when there is no console.
    std::fflush(stdout);
    fpos_t position;
    const bool havePosition = std::fgetpos(stdout, &position) == 0;
    const int saved = dup(STDOUT_FILENO);
    const int console = open(Files().console.c_str(), O_WRONLY | O_APPEND | O_CLOEXEC);

    if (console >= 0 && saved >= 0 && dup2(console, STDOUT_FILENO) >= 0) {
        WriteReport(stdout, expression, file, line);
        std::fflush(stdout);
        dup2(saved, STDOUT_FILENO);
    }
    if (console >= 0)
        close(console);
    if (saved >= 0)
        close(saved);
    std::clearerr(stdout);
    if (havePosition)
        std::fsetpos(stdout, &position);

    struct stat st;
    if (stat(Files().release.c_str(), &st) == 0)
        return;

    Sleep100ms();
    std::terminate();
}

void PrintSignalMessage(char* message, int size)
{
    ZUM_LOGD("[PrintSignalMessage] Start !!!");
    ZUM_LOGD("SIGNAL BEGIN -->");
    if (message && size > 0) {
        // Works on a copy: the caller's text is not ours to terminate.
        const std::string text(message, static_cast<size_t>(size));
        const size_t kMaxLine = 150;
        int number = 0;
        size_t start = 0;
        while (start < text.size()) {
            size_t end = start;
            while (end < text.size() && end - start < kMaxLine) {
                if (text[end++] == '\n')
                    break;
            }
            ZUM_LOGD("[SIGNAL %d] %s", number++, text.substr(start, end - start).c_str());
            start = end;
        }
    }
    ZUM_LOGD("SIGNAL END <--");
    ZUM_LOGD("[PrintSignalMessage] End !!!");
}

void PrintXmlFormat(char* xml, int size)
{
    ZUM_LOGD("[PrintXmlFormat] Start !!!");
    ZUM_LOGD("[PrintXmlFormat] XML size = %d", size);
    ZUM_LOGD("XML BEGIN -->");
    if (xml && size > 0) {
        const std::string text(xml, static_cast<size_t>(size));
        // A closing tag ("</") or a one-letter empty element ("<a/") stays with
        // the text before it, so that an element and its value share a line.
        auto cutsBefore = [&text](size_t i) {
            if (text[i] != '<')
                return false;
            const char next = i + 1 < text.size() ? text[i + 1] : '\0';
            const char after = i + 2 < text.size() ? text[i + 2] : '\0';
            return next != '/' && after != '/';
        };
        int index = 1;
        size_t start = 0;
        for (size_t i = 1; i <= text.size(); ++i) {
            if (i == text.size() || cutsBefore(i)) {
                const std::string piece = text.substr(start, i - start);
                ZUM_LOGD("[index:%04d] Size[%04d] %s", index++, static_cast<int>(piece.size()), piece.c_str());
                start = i;
            }
        }
    }
    ZUM_LOGD("[PrintXmlFormat] End !!!");
}
