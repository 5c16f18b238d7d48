#ifndef ZUM_DVB_DESCTEXT_H
#define ZUM_DVB_DESCTEXT_H

// Internal: raw broadcast text as the service and event descriptors keep it
// (an owned array with a separate length) and the copy their accessors make.

#include <algorithm>
#include <cstring>
#include <memory>

#include "../core/ByteReader.h"

namespace zum_text {

// A fresh copy of `length` bytes; none for an empty run.
inline std::unique_ptr<unsigned char[]> Keep(const unsigned char* data, int length)
{
    if (!data || length <= 0)
        return nullptr;
    std::unique_ptr<unsigned char[]> copy(new unsigned char[static_cast<size_t>(length)]);
    std::memcpy(copy.get(), data, static_cast<size_t>(length));
    return copy;
}

// Takes a text of `length` bytes at the reader, cut to what the body still
// holds; answers the bytes taken.
inline int Take(TCByteReader& reader, int length, std::unique_ptr<unsigned char[]>& text)
{
    const int taken = std::max(0, std::min(length, reader.Left()));
    text = Keep(reader.Here(), taken);
    reader.Skip(taken);
    return taken;
}

// The text copy: nothing to copy into or from gives false; a buffer that
// holds the text gets all of it and the size becomes the text's length; a
// smaller one gets its size's worth, the size stays, and the answer is
// `truncatedAnswer`.
template <class Char, class Size>
bool Copy(const unsigned char* text, int stored, Char* buffer, Size* size, bool truncatedAnswer = false)
{
    if (!buffer || !size || !text || stored <= 0 || *size <= 0)
        return false;
    const bool whole = *size >= stored;
    const int count = whole ? stored : static_cast<int>(*size);
    std::memcpy(buffer, text, static_cast<size_t>(count));
    if (whole)
        *size = static_cast<Size>(stored);
    return whole || truncatedAnswer;
}

} // namespace zum_text

#endif
