// zum-bench: section throughput of the library, side by side with the peers
// found at build time and the copy floor, on the same sections. After the
// usual output a summary gives, per family, the time per section and the
// ratio of our time to each peer's and to the floor.

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <ostream>
#include <map>
#include <string>
#include <vector>

#include <zum-platform/Codes.h>
#include <zum-platform/PlatformConfig.h>

#include "BenchCommon.h"

namespace zumbench {

namespace {

// Console output as usual, and the median time per section of every
// benchmark kept for the summary printed at the end.
class SummaryReporter : public benchmark::ConsoleReporter {
public:
    explicit SummaryReporter(OutputOptions options) : ConsoleReporter(options) {}

    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.error_occurred) {
                m_failed = true;
                continue;
            }
            Times& times = m_times[run.run_name.function_name];
            if (run.run_type == Run::RT_Aggregate) {
                if (run.aggregate_name == "median")
                    times.median = run.GetAdjustedCPUTime();
            } else {
                times.runs.push_back(run.GetAdjustedCPUTime());
            }
        }
    }

    // A benchmark that could not decode its sections; speed never fails a run.
    bool Failed() const { return m_failed; }

    void Finalize() override
    {
        ConsoleReporter::Finalize();
        m_PrintSummary();
    }

private:
    struct Times {
        double median = -1;       // from the aggregate, when repetitions ran
        std::vector<double> runs; // otherwise the median of these
    };

    // Nanoseconds per section; negative when the benchmark did not run.
    double m_PerSection(Family family, const char* implementation) const
    {
        const auto it = m_times.find(std::string(FamilyName(family)) + "/" + implementation);
        if (it == m_times.end())
            return -1;
        double perPass = it->second.median;
        if (perPass < 0) {
            std::vector<double> runs = it->second.runs;
            if (runs.empty())
                return -1;
            std::sort(runs.begin(), runs.end());
            perPass = runs[runs.size() / 2];
        }
        return perPass / static_cast<double>(TableOf(family).Sections());
    }

    // printf-style output to the reporter's stream.
    template <class... Args>
    void m_Print(const char* format, Args... args)
    {
        char line[256];
        std::snprintf(line, sizeof line, format, args...);
        GetOutputStream() << line;
    }

    void m_Cell(double ns)
    {
        if (ns < 0)
            m_Print(" %10s", "-");
        else
            m_Print(" %10.1f", ns);
    }

    void m_Ratio(double ours, double other)
    {
        if (ours < 0 || other <= 0)
            m_Print(" %8s", "-");
        else
            m_Print(" %8.2f", ours / other);
    }

    void m_PrintSummary()
    {
        m_Print("\nSummary: median CPU time per section (ns), and zum's time over the other's"
                " (below 1: zum is faster)\n");
        m_Print("%-15s %10s %10s | %10s %8s | %10s %8s | %10s %8s\n", "family", "zum", "zum-raw", "gstreamer",
                "ratio", "dvbpsi", "ratio", "floor", "ratio");
        for (Family family : AllFamilies()) {
            const double zum = m_PerSection(family, kZum);
            if (zum < 0)
                continue;
            m_Print("%-15s", FamilyName(family));
            m_Cell(zum);
            m_Cell(m_PerSection(family, kZumRaw));
            for (const char* other : {kGStreamer, kDvbpsi, kFloor}) {
                m_Print(" |");
                m_Cell(m_PerSection(family, other));
                m_Ratio(zum, m_PerSection(family, other));
            }
            m_Print("\n");
        }
        GetOutputStream().flush();
    }

    std::map<std::string, Times> m_times;
    bool m_failed = false;
};

} // namespace

} // namespace zumbench

int main(int argc, char** argv)
{
    using namespace zumbench;

    // A DVB receiver in Germany that accepts every private data specifier.
    zum_platform::BinderSettings settings;
    settings.countryCode = ZumPackCode('D', 'E', 'U');
    zum_platform::SetBinder(settings);

    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;

    for (Family family : AllFamilies()) {
        RegisterZum(family);
#ifdef ZUM_BENCH_GSTREAMER
        RegisterGStreamer(family);
#endif
#ifdef ZUM_BENCH_DVBPSI
        RegisterDvbpsi(family);
#endif
        RegisterFloor(family);
    }

    SummaryReporter reporter(isatty(STDOUT_FILENO) ? benchmark::ConsoleReporter::OO_Defaults
                                                   : benchmark::ConsoleReporter::OO_Tabular);
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return reporter.Failed() ? 1 : 0;
}
