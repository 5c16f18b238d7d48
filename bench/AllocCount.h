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
};

AllocCounts CurrentAllocCounts();

} // namespace zumbench

#endif
