#ifndef ZUM_TESTS_DVB_DESCLOOPPROBE_H
#define ZUM_TESTS_DVB_DESCLOOPPROBE_H

// Helpers of the DVB descriptor tests: tables of bodies with their fields and length warning, text copies,
// clones and factory rows.

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <sstream>
#include <string>
#include <type_traits>
#include <typeindex>
#include <typeinfo>
#include <vector>

#include <zum-platform/Codes.h>

#include "core/BaseDesc.h"
#include "core/Descriptor.h"
#include "core/DescriptorHash.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

namespace svctest {

using zumtest::Bytes;
using zumtest::Desc;
using UChar = unsigned char;
using UShort = unsigned short;

template <class T>
std::unique_ptr<T> Decode(T* desc, const Bytes& raw)
{
    desc->Parse(raw.data());
    return std::unique_ptr<T>(desc);
}

// Fields joined by spaces: numbers in decimal, text as it is.
template <class... A>
std::string Join(const A&... fields)
{
    std::ostringstream out;
    auto put = [&out](const auto& f) {
        if (out.tellp() > 0)
            out << ' ';
        using F = std::decay_t<decltype(f)>;
        if constexpr (std::is_arithmetic<F>::value && sizeof(F) == 1)
            out << static_cast<int>(f);
        else
            out << f;
    };
    (put(fields), ...);
    return out.str();
}

// A packed three-letter code as its letters; "-" for 0.
inline std::string Code(unsigned int v)
{
    return v ? std::string{char(v >> 16), char(v >> 8), char(v)} : "-";
}

// A clone is of the same class and tag (which a constructor argument may give) and holds the same bytes.
inline std::string ClassOf(const TCBaseDesc* desc) { return desc ? typeid(*desc).name() : "none"; }

inline void ExpectClone(const TCBaseDesc& desc)
{
    std::unique_ptr<TCBaseDesc> clone(desc.Fork());
    EXPECT_EQ(ClassOf(clone.get()), ClassOf(&desc));
    EXPECT_EQ(clone->Tag(), desc.Tag());
    EXPECT_TRUE(clone->FlagEqual(&desc));
}

// One body of a table: the fields that `show` renders after decoding, and the length warning
// ("inLen=.., outLen=..") that is the only log line, or none. Every decoded object also clones.
struct Body { Bytes body; std::string fields; std::string warning = ""; };

template <class Make, class Show>
void ExpectBodies(int tag, Make make, Show show, std::initializer_list<Body> cases)
{
    for (const Body& c : cases) {
        SCOPED_TRACE(testing::PrintToString(c.body));
        zumtest::LogCapture log;
        auto d = Decode(make(), Desc(tag, c.body));
        EXPECT_EQ(show(*d), c.fields);
        const std::vector<std::string> lines = log.Lines();
        const size_t at = lines.size() == 1 ? lines[0].find("length mismatch!") : std::string::npos;
        const std::string got = lines.empty() ? "" : testing::PrintToString(lines);
        EXPECT_EQ(at == std::string::npos ? got : lines[0].substr(at + 16), c.warning);
        ExpectClone(*d);
    }
}

// Walks `loop` as a table parser does, for a receiver in `country`.
inline void Walk(const char* country, unsigned char tableId, const Bytes& loop, TCDescriptorHash& hash)
{
    zumtest::BinderScope binder;
    binder->countryCode = ZumPackCode(country);
    TCDescriptor descriptor{ZUMHandle()};
    descriptor.Parse(loop.data(), static_cast<int>(loop.size()), hash, tableId);
}

// Where a factory row leads: the class of the object that the loop keeps, in each of the (space-separated)
// countries of the row.
struct Row { std::string countries; unsigned char tableId; Bytes loop; int tag; std::type_index expected; };

inline void ExpectRows(std::initializer_list<Row> rows)
{
    for (const Row& row : rows) {
        std::istringstream countries(row.countries);
        for (std::string country; countries >> country;) {
            SCOPED_TRACE(testing::Message() << country << " table 0x" << std::hex << int(row.tableId) << " tag 0x"
                                            << row.tag);
            TCDescriptorHash hash;
            Walk(country.c_str(), row.tableId, row.loop, hash);
            EXPECT_EQ(ClassOf(hash.Descriptor(row.tag, 0)), row.expected.name());
        }
    }
}

// A text copy with `capacity` into a buffer two bytes longer, filled with '#', so that a write past the
// capacity shows in the bytes.
struct CopyCase { int capacity; bool result; int size; std::string bytes; };

template <class Char, class Size, class Fn>
void ExpectCopiesBy(Fn copy, std::initializer_list<CopyCase> cases)
{
    for (const CopyCase& c : cases) {
        SCOPED_TRACE(testing::Message() << "capacity " << c.capacity);
        std::vector<Char> buffer(static_cast<size_t>(c.capacity) + 2, Char('#'));
        Size size = static_cast<Size>(c.capacity);
        EXPECT_EQ(copy(buffer.data(), &size), c.result);
        EXPECT_EQ(static_cast<int>(size), c.size);
        EXPECT_EQ(std::string(buffer.begin(), buffer.end()), c.bytes);
    }
}

// The whole text through a copy into a large buffer, or "<none>" when it answers false.
template <class Char, class Size, class Fn>
std::string TextBy(Fn copy)
{
    Char buffer[256];
    Size size = sizeof buffer;
    return copy(buffer, &size) ? std::string(buffer, buffer + size) : "<none>";
}

// The same through a copy member of `d`.
template <class Obj, class T, class Char, class Size>
void ExpectCopies(const Obj& d, bool (T::*copy)(Char*, Size*) const, std::initializer_list<CopyCase> cases)
{
    ExpectCopiesBy<Char, Size>([&](Char* b, Size* s) { return (d.*copy)(b, s); }, cases);
}

template <class Obj, class T, class Char, class Size>
std::string TextOf(const Obj& d, bool (T::*copy)(Char*, Size*) const)
{
    return TextBy<Char, Size>([&](Char* b, Size* s) { return (d.*copy)(b, s); });
}

} // namespace svctest

#endif
