#ifndef ZUM_BENCH_ALLOCCOUNT_H
#define ZUM_BENCH_ALLOCCOUNT_H

// Heap allocations made by the process, counted by a replaced global
// operator new and by malloc/calloc/realloc wrappers, so that the C peers
// count too. Plain counters: the benchmarks run on one thread.

#include <cstdint>

namespace zumbench {

struct AllocCounts {
    uint64_t news = 0;    // operator new and new[]
    uint64_t mallocs = 0; // malloc, calloc, realloc: every heap block, operator new's included
    uint64_t liveBytes = 0; // bytes in blocks not yet freed
};

AllocCounts CurrentAllocCounts();

// Heap bytes that `hold` leaves behind: what a parser keeps of its table.
template <class Fn>
uint64_t BytesHeldBy(Fn&& hold)
{
    const uint64_t before = CurrentAllocCounts().liveBytes;
    hold();
    return CurrentAllocCounts().liveBytes - before;
}

} // namespace zumbench

#endif
