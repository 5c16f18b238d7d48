#ifndef ZUM_FUZZ_FUZZSECTION_H
#define ZUM_FUZZ_FUZZSECTION_H

// Turns fuzzer input into one section held in a heap buffer of exactly
// section_length + 3 bytes, so that AddressSanitizer sees any read past it.

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>

namespace zumfuzz {

struct ExactSection {
    std::unique_ptr<uint8_t[]> bytes;
    size_t size = 0;
    const uint8_t* data() const { return bytes.get(); }
};

// The input's section_length is lowered to what the input holds; the table id
// may be forced so that every input reaches the parser's own code.
inline bool MakeExactSection(const uint8_t* data, size_t size, ExactSection& out, int forceTableId = -1)
{
    if (size < 3)
        return false;
    size_t length = static_cast<size_t>(((data[1] & 0x0F) << 8) | data[2]);
    if (length > size - 3)
        length = size - 3;
    out.size = length + 3;
    out.bytes.reset(new uint8_t[out.size]);
    std::memcpy(out.bytes.get(), data, out.size);
    out.bytes[1] = static_cast<uint8_t>((out.bytes[1] & 0xF0) | ((length >> 8) & 0x0F));
    out.bytes[2] = static_cast<uint8_t>(length);
    if (forceTableId >= 0)
        out.bytes[0] = static_cast<uint8_t>(forceTableId);
    return true;
}

// Cuts the input into consecutive exactly-sized sections and hands each to `f`.
template <class F>
void ForEachSection(const uint8_t* data, size_t size, int forceTableId, F&& f)
{
    size_t offset = 0;
    while (offset < size) {
        ExactSection section;
        if (!MakeExactSection(data + offset, size - offset, section, forceTableId))
            break;
        f(section);
        offset += section.size;
    }
}

} // namespace zumfuzz

#endif
