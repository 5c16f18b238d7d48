#include "AllocCount.h"

#include <cstddef>
#include <cstdlib>
#include <malloc.h>
#include <new>

// glibc's own entry points, under the names it exports for wrappers like these.
extern "C" void* __libc_malloc(size_t size);
extern "C" void* __libc_calloc(size_t count, size_t size);
extern "C" void* __libc_realloc(void* pointer, size_t size);
extern "C" void __libc_free(void* pointer);

namespace {

uint64_t g_news = 0;
uint64_t g_mallocs = 0;
// Bytes in live blocks, as the allocator sized them.
uint64_t g_liveBytes = 0;

void* NewBlock(size_t size)
{
    ++g_news;
    if (void* p = std::malloc(size == 0 ? 1 : size))
        return p;
    throw std::bad_alloc();
}

} // namespace

namespace zumbench {

AllocCounts CurrentAllocCounts()
{
    return {g_news, g_mallocs, g_liveBytes};
}

} // namespace zumbench

extern "C" void* malloc(size_t size)
{
    ++g_mallocs;
    void* p = __libc_malloc(size);
    g_liveBytes += malloc_usable_size(p);
    return p;
}

extern "C" void* calloc(size_t count, size_t size)
{
    ++g_mallocs;
    void* p = __libc_calloc(count, size);
    g_liveBytes += malloc_usable_size(p);
    return p;
}

extern "C" void* realloc(void* pointer, size_t size)
{
    ++g_mallocs;
    g_liveBytes -= malloc_usable_size(pointer);
    void* p = __libc_realloc(pointer, size);
    g_liveBytes += malloc_usable_size(p);
    return p;
}

extern "C" void free(void* pointer)
{
    g_liveBytes -= malloc_usable_size(pointer);
    __libc_free(pointer);
}

void* operator new(size_t size)
{
    return NewBlock(size);
}

void* operator new[](size_t size)
{
    return NewBlock(size);
}

void* operator new(size_t size, const std::nothrow_t&) noexcept
{
    ++g_news;
    return std::malloc(size == 0 ? 1 : size);
}

void* operator new[](size_t size, const std::nothrow_t&) noexcept
{
    ++g_news;
    return std::malloc(size == 0 ? 1 : size);
}

void operator delete(void* pointer) noexcept
{
    std::free(pointer);
}

void operator delete[](void* pointer) noexcept
{
    std::free(pointer);
}

void operator delete(void* pointer, size_t) noexcept
{
    std::free(pointer);
}

void operator delete[](void* pointer, size_t) noexcept
{
    std::free(pointer);
}
