#ifndef ZUM_BENCH_BENCHCOMMON_H
#define ZUM_BENCH_BENCHCOMMON_H

// What all benchmarks share: the registration of one implementation's
// benchmark of a family, and the timing loop with its counters.

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>
#include <utility>

#include "AllocCount.h"
#include "BenchTables.h"

namespace zumbench {

// Names: "<family>/<implementation>"; the summary pairs them by family.
constexpr const char* kZum = "zum";
constexpr const char* kZumRaw = "zum-raw"; // EIT events without their descriptors decoded
constexpr const char* kGStreamer = "gstreamer";
constexpr const char* kDvbpsi = "dvbpsi";
constexpr const char* kFloor = "floor";

// Each implementation registers its benchmark of a family, when it has one.
void RegisterZum(Family family);
void RegisterFloor(Family family);
void RegisterGStreamer(Family family);
void RegisterDvbpsi(Family family);

template <class Fn>
void Register(Family family, const char* implementation, Fn&& fn)
{
    const std::string name = std::string(FamilyName(family)) + "/" + implementation;
    benchmark::RegisterBenchmark(name.c_str(), std::forward<Fn>(fn))->Unit(benchmark::kNanosecond);
}

// The timing loop: `pass(n)` decodes every section of pass n (version 4 on
// even, 5 on odd passes). Reports sections and section bytes per second and
// heap allocations per section. Never inlined, so that a profiler can collect
// the timed passes alone (callgrind --toggle-collect='void zumbench::RunPasses*').
template <class Pass>
__attribute__((noinline)) void RunPasses(benchmark::State& state, const Table& table, Pass&& pass)
{
    uint64_t n = 0;
    const AllocCounts before = CurrentAllocCounts();
    for (auto _ : state)
        pass(n++);
    const AllocCounts after = CurrentAllocCounts();
    const int64_t sections = state.iterations() * static_cast<int64_t>(table.Sections());
    state.SetItemsProcessed(sections);
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(table.TotalBytes()));
    if (sections > 0) {
        state.counters["allocs/section"] = static_cast<double>(after.mallocs - before.mallocs) / sections;
        state.counters["new/section"] = static_cast<double>(after.news - before.news) / sections;
    }
}

} // namespace zumbench

#endif
