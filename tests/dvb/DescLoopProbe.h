#ifndef ZUM_TESTS_DVB_DESCLOOPPROBE_H
#define ZUM_TESTS_DVB_DESCLOOPPROBE_H

// Helpers of the service and event descriptor tests: decode one descriptor
// on its own, or walk a loop the way a table parser does.

#include <memory>
#include <string>
#include <typeindex>
#include <typeinfo>
#include <vector>

#include <zum-platform/Codes.h>

#include "core/BaseDesc.h"
#include "core/Descriptor.h"
#include "core/DescriptorHash.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

namespace svctest {

using zumtest::Bytes;

// Decodes `raw` (tag, length, body) into `desc`; `parsed` receives Parse's answer.
template <class T>
std::unique_ptr<T> Decode(T* desc, const Bytes& raw, int* parsed = nullptr)
{
    const int n = desc->Parse(raw.data());
    if (parsed)
        *parsed = n;
    return std::unique_ptr<T>(desc);
}

// Walks `loop` for a receiver in `country` under `tableId`; the hash keeps the objects.
inline void Walk(const char* country, unsigned char tableId, const Bytes& loop, TCDescriptorHash& hash)
{
    zumtest::BinderScope binder;
    binder->countryCode = ZumPackCode(country);
    TCDescriptor descriptor{ZUMHandle()};
    descriptor.Parse(loop.data(), static_cast<int>(loop.size()), hash, tableId);
}

// Where a factory row leads: the class of the object that the loop keeps.
struct Row {
    const char* country;
    unsigned char tableId;
    Bytes loop;
    int tag;
    std::type_index expected;
};

inline std::string ClassOf(const TCBaseDesc* desc)
{
    return desc ? typeid(*desc).name() : "none";
}

inline std::string ClassOfRow(const Row& row)
{
    TCDescriptorHash hash;
    Walk(row.country, row.tableId, row.loop, hash);
    return ClassOf(hash.Descriptor(row.tag, 0));
}

// A text copy with capacity `capacity` into a buffer two bytes longer,
// filled with '#', so that a write past the capacity shows in `bytes`.
struct Copied {
    bool result;
    int size;
    std::string bytes;
};

template <class Char, class Size, class Fn>
Copied CopyWith(int capacity, Fn copy)
{
    std::vector<Char> buffer(static_cast<size_t>(capacity) + 2, Char('#'));
    Size size = static_cast<Size>(capacity);
    const bool result = copy(buffer.data(), &size);
    return {result, static_cast<int>(size), std::string(buffer.begin(), buffer.end())};
}

} // namespace svctest

#endif
