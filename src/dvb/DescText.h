#ifndef ZUM_DVB_DESCTEXT_H
#define ZUM_DVB_DESCTEXT_H

// Internal: raw broadcast text as the service and event descriptors hold it,
// a run of the descriptor's raw copy, and the copy their accessors make.

#include <algorithm>
#include <cstring>

#include "../core/ByteReader.h"

namespace zum_text {

// A text where it stands in the raw copy; a record that is handed out by
// pointer keeps it so, a descriptor keeps a TTRawRun (see TakeRun).
struct TTText {
    const unsigned char* at = nullptr;
    int length = 0;
    // The first byte; null for an empty text.
    const unsigned char* Data() const { return length > 0 ? at : nullptr; }
};

// Takes a text of `length` bytes at the reader, cut to what the body still
// holds; the reader moves past it.
inline TTText Take(TCByteReader& reader, int length)
{
    TTText text;
    text.at = reader.Here();
    text.length = std::max(0, std::min(length, reader.Left()));
    reader.Skip(text.length);
    return text;
}

// The same as a run of `payload`, the payload that t_Parse got.
template <class Run>
Run TakeRun(TCByteReader& reader, const unsigned char* payload, int length)
{
    const TTText text = Take(reader, length);
    Run run;
    run.offset = static_cast<unsigned char>(text.at - payload);
    run.length = static_cast<unsigned char>(text.length);
    return run;
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

template <class Char, class Size>
bool Copy(const TTText& text, Char* buffer, Size* size, bool truncatedAnswer = false)
{
    return Copy(text.Data(), text.length, buffer, size, truncatedAnswer);
}

} // namespace zum_text

#endif
