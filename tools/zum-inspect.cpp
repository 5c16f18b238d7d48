// zum-inspect: decodes a transport stream, or a file of sections, with the
// library's table parsers and prints what a receiver would learn from it.

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include <zum-platform/PlatformConfig.h>

#include "inspect/OsdtView.h"
#include "inspect/PsipView.h"
#include "inspect/Renderers.h"
#include "inspect/Session.h"
#include "inspect/Views.h"

namespace {

constexpr size_t kChunk = 64 * 1024;
constexpr int kLogDebug = 3;

const char kUsage[] =
    "usage: zum-inspect [options] [FILE|-]\n"
    "Decodes an MPEG transport stream (188-, 192- or 204-byte packets) or a file of\n"
    "sections back to back, read from FILE or standard input, and prints its tables.\n"
    "\n"
    "  --json              print the model (or the view) as JSON instead of a tree\n"
    "  --pid N             only the tables seen on PID N\n"
    "  --table T           only table T, by id (0x42) or name (\"SDT actual\", \"EIT\", \"PMT\")\n"
    "  --service S         only service S, by id (0x0101) or name (\"ZUM One\")\n"
    "  --summary           only the input and the summary (demux, routing, PIDs, tables)\n"
    "  --services          one line per service, as a scan lists them\n"
    "  --events            one line per event, by service and start time\n"
    "  --guide             beside each event, what a guide that stored it learns: components,\n"
    "                      rating, links, series\n"
    "  --country XXX       receiver country, three letters (e.g. GBR, TUR, USA, JPN)\n"
    "  --operator N        receiver operator number\n"
    "  --pds 0xNNNNNNNN    receiver private data specifier (TUR without --operator:\n"
    "                      0x011FFFFF, the TKGS channel system, unless given)\n"
    "  --language xxx      receiver language, three letters (e.g. eng)\n"
    "  --timezone Z        zone of the ATSC program guide: EST (default), CST, MST,\n"
    "                      PST, AKST, HST or UTC; daylight time as the STT says\n"
    "  --osdt FILE         read FILE as an XML IP service list and print its services\n"
    "  --all-pids          collect sections on every PID, not only the SI PIDs and the\n"
    "                      PMT PIDs of the PAT, and take a PMT on any PID\n"
    "  --charset NAME      table of text without a selector byte: ISO-8859-N, ISO6937,\n"
    "                      or country (what the country's broadcasters send, e.g.\n"
    "                      ISO-8859-15 in FRA and ITA); default: ISO6937 in DVB\n"
    "                      countries, the country's own table where its rules give one\n"
    "  --quiet-progress    no progress line on standard error\n"
    "  -v                  library log lines from DEBUG up on standard error\n"
    "  --help              this text\n";

enum class View { Model, Summary, Services, Events };

struct Options {
    zuminspect::InspectSettings settings;
    std::string path = "-";
    std::string osdtPath;
    std::string charset;
    bool json = false;
    View view = View::Model;
    std::optional<unsigned int> pid;
    std::string table;
    std::string service;
    bool quietProgress = false;
    bool verbose = false;
};

bool ParseNumber(const char* text, unsigned int& value)
{
    char* end = nullptr;
    const unsigned long long v = std::strtoull(text, &end, 0);
    if (end == text || *end != '\0' || v > 0xFFFFFFFFULL)
        return false;
    value = static_cast<unsigned int>(v);
    return true;
}

bool IsCode(const std::string& text, size_t minLength)
{
    return text.size() >= minLength && text.size() <= 3;
}

// Nullopt after printing why the command line is wrong (or the help).
std::optional<Options> ParseCommandLine(int argc, char** argv, int& exitCode)
{
    Options o;
    bool havePath = false;
    unsigned int pid = 0;
    exitCode = 2;
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        const bool hasValue = i + 1 < argc;
        if (arg == "--help" || arg == "-h") {
            std::fputs(kUsage, stdout);
            exitCode = 0;
            return std::nullopt;
        } else if (arg == "--json") {
            o.json = true;
        } else if ((arg == "--summary" || arg == "--services" || arg == "--events") && o.view == View::Model) {
            o.view = arg == "--summary" ? View::Summary : arg == "--services" ? View::Services : View::Events;
        } else if (arg == "--pid" && hasValue && ParseNumber(argv[i + 1], pid) && pid <= 0x1FFF) {
            o.pid = pid;
            ++i;
        } else if (arg == "--table" && hasValue && *argv[i + 1] != '\0') {
            o.table = argv[++i];
        } else if (arg == "--service" && hasValue && *argv[i + 1] != '\0') {
            o.service = argv[++i];
        } else if (arg == "--quiet-progress") {
            o.quietProgress = true;
        } else if (arg == "--guide") {
            o.settings.guide = true;
        } else if (arg == "--all-pids") {
            o.settings.allPids = true;
        } else if (arg == "-v") {
            o.verbose = true;
        } else if (arg == "--osdt" && hasValue) {
            o.osdtPath = argv[++i];
        } else if (arg == "--country" && hasValue && IsCode(argv[i + 1], 3)) {
            o.settings.country = argv[++i];
        } else if (arg == "--language" && hasValue && IsCode(argv[i + 1], 2)) {
            o.settings.language = argv[++i];
        } else if (arg == "--timezone" && hasValue && zuminspect::SetGuideTimeZone(argv[i + 1])) {
            ++i;
        } else if (arg == "--charset" && hasValue && zuminspect::IsKnownCharset(argv[i + 1])) {
            o.charset = argv[++i];
        } else if (arg == "--operator" && hasValue && ParseNumber(argv[i + 1], o.settings.operatorId)) {
            ++i;
        } else if (arg == "--pds" && hasValue && ParseNumber(argv[i + 1], o.settings.privateDataSpecifier)) {
            ++i;
        } else if ((arg == "-" || arg[0] != '-') && !havePath) {
            o.path = arg;
            havePath = true;
        } else {
            std::fprintf(stderr, "zum-inspect: bad argument \"%s\"\n%s", arg.c_str(), kUsage);
            return std::nullopt;
        }
    }
    return o;
}

// "read 1.2 MiB / 4.0 MiB (30%), 180.0 MB/s, 5120 sections" on one refreshed line,
// at most every 200 ms.
class Progress {
public:
    Progress(bool enabled, long long total)
        : m_enabled(enabled), m_total(total), m_start(std::chrono::steady_clock::now())
    {
    }

    void Update(unsigned long long done, unsigned long long sections)
    {
        const auto now = std::chrono::steady_clock::now();
        if (!m_enabled || now - m_last < std::chrono::milliseconds(200))
            return;
        m_last = now;
        const double seconds = std::chrono::duration<double>(now - m_start).count();
        const double rate = seconds > 0 ? done / 1e6 / seconds : 0;
        if (m_total > 0)
            std::fprintf(stderr, "\rzum-inspect: %.1f / %.1f MiB (%d%%), %.1f MB/s, %llu sections\033[K",
                         done / 1048576.0, m_total / 1048576.0,
                         static_cast<int>(done * 100 / static_cast<unsigned long long>(m_total)), rate, sections);
        else
            std::fprintf(stderr, "\rzum-inspect: %.1f MiB, %.1f MB/s, %llu sections\033[K", done / 1048576.0, rate,
                         sections);
        m_shown = true;
    }

    void Clear()
    {
        if (m_shown)
            std::fputs("\r\033[K", stderr);
    }

private:
    bool m_enabled;
    long long m_total;
    bool m_shown = false;
    std::chrono::steady_clock::time_point m_start;
    std::chrono::steady_clock::time_point m_last{};
};

long long FileSize(FILE* file)
{
    struct stat st;
    return fstat(fileno(file), &st) == 0 && S_ISREG(st.st_mode) ? static_cast<long long>(st.st_size) : -1;
}

} // namespace

int main(int argc, char** argv)
{
    int exitCode = 0;
    const std::optional<Options> options = ParseCommandLine(argc, argv, exitCode);
    if (!options)
        return exitCode;

    zum_platform::SetBinder(zuminspect::BinderSettingsFor(options->settings));
    zum_platform::SetTextSettings(zuminspect::TextSettingsFor(options->charset));
    if (options->verbose)
        zum_platform::SetLogThreshold(kLogDebug);
    if (!options->osdtPath.empty())
        return zuminspect::InspectOsdt(options->osdtPath, options->json, std::cout, std::cerr);

    const bool fromStdin = options->path == "-";
    FILE* file = fromStdin ? stdin : std::fopen(options->path.c_str(), "rb");
    if (file == nullptr) {
        std::fprintf(stderr, "zum-inspect: %s: %s\n", options->path.c_str(), std::strerror(errno));
        return 1;
    }

    std::vector<uint8_t> chunk(kChunk);
    size_t got = std::fread(chunk.data(), 1, chunk.size(), file);
    zuminspect::Session session(zuminspect::DetectInputKind(chunk.data(), got), options->settings);
    Progress progress(!options->quietProgress && isatty(STDERR_FILENO), FileSize(file));
    unsigned long long done = 0;
    while (got > 0) {
        session.Feed(chunk.data(), got);
        done += got;
        progress.Update(done, session.Stats().sections);
        got = std::fread(chunk.data(), 1, chunk.size(), file);
    }
    progress.Clear();
    const bool readError = std::ferror(file) != 0;
    if (!fromStdin)
        std::fclose(file);
    if (readError) {
        std::fprintf(stderr, "zum-inspect: %s: read error\n", options->path.c_str());
        return 1;
    }
    session.Finish();

    const zuminspect::Json whole = session.Model();
    zuminspect::ModelFilter filter;
    filter.pid = options->pid;
    filter.table = options->table;
    if (!options->service.empty()) {
        filter.serviceIds = zuminspect::ResolveServices(whole, options->service);
        if (filter.serviceIds.empty()) {
            std::fprintf(stderr, "zum-inspect: no service named \"%s\"\n", options->service.c_str());
            return 1;
        }
    }
    const zuminspect::Json model = zuminspect::FilterModel(whole, filter);
    // What the view shows, and how the tree prints it.
    zuminspect::Json shown;
    void (*tree)(const zuminspect::Json&, std::ostream&) = zuminspect::RenderTree;
    switch (options->view) {
    case View::Model: shown = model; break;
    case View::Summary: shown = zuminspect::SummaryOnly(model); break;
    case View::Services:
        shown = zuminspect::ServiceList(model);
        tree = zuminspect::RenderServiceLines;
        break;
    case View::Events:
        shown = zuminspect::EventList(model);
        tree = zuminspect::RenderEventLines;
        break;
    }
    if (options->json)
        zuminspect::RenderJson(shown, std::cout);
    else
        tree(shown, std::cout);
    return std::cout.flush() ? 0 : 1;
}
