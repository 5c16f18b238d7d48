#ifndef ZUM_FUZZ_FUZZCAST_H
#define ZUM_FUZZ_FUZZCAST_H

// dynamic_cast with its answer kept per dynamic type. The field readers ask
// a descriptor for a hundred classes; libstdc++ answers each failed cast with
// strcmp on type names, and the fuzzer's strcmp hook made that most of a run.

#include <cstddef>
#include <cstdint>
#include <limits>
#include <type_traits>
#include <typeinfo>

namespace zumfuzz {

// Kept out of the coverage map: its probes are not the library's.
template <class T, class B>
__attribute__((no_sanitize("coverage"))) T* As(B* object)
{
    if (object == nullptr)
        return nullptr;
    constexpr std::ptrdiff_t kNotA = std::numeric_limits<std::ptrdiff_t>::min();
    using Byte = std::conditional_t<std::is_const_v<B>, const char, char>;
    // For one most-derived type the T inside it always sits at the same
    // offset. Open addressing over a fixed table: a few hundred classes exist.
    struct Known {
        const std::type_info* type;
        std::ptrdiff_t offset;
    };
    static Known known[1024];
    const std::type_info* type = &typeid(*object);
    size_t slot = (reinterpret_cast<uintptr_t>(type) >> 4) % 1024;
    while (known[slot].type != nullptr && known[slot].type != type)
        slot = (slot + 1) % 1024;
    if (known[slot].type == nullptr) {
        T* cast = dynamic_cast<T*>(object);
        known[slot] = {type, cast ? reinterpret_cast<Byte*>(cast) - reinterpret_cast<Byte*>(object) : kNotA};
    }
    if (known[slot].offset == kNotA)
        return nullptr;
    return reinterpret_cast<T*>(reinterpret_cast<Byte*>(object) + known[slot].offset);
}

} // namespace zumfuzz

#endif
