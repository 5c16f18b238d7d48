#ifndef ZUM_LANG_TABLEDATABYTES_H
#define ZUM_LANG_TABLEDATABYTES_H

// Internal: the byte runs that the table data block parsers keep as owned copies.

#include <climits>
#include <cstring>
#include <list>
#include <memory>

#include "../core/ByteReader.h"

namespace zumtabledata {

// A reader over a whole block; a block beyond INT_MAX bytes is read as far as that.
inline TCByteReader BlockReader(const unsigned char* data, unsigned int size)
{
    return TCByteReader(data, size > static_cast<unsigned int>(INT_MAX) ? INT_MAX : static_cast<int>(size));
}

// Copies `size` bytes at the reader's position into `out` (null for 0) and
// steps over them; false, with nothing copied, when they run past the end.
inline bool TakeBytes(TCByteReader& reader, unsigned int size, std::unique_ptr<unsigned char[]>& out)
{
    const unsigned char* at = reader.Here();
    if (!reader.Skip(static_cast<int>(size)))
        return false;
    if (size > 0) {
        out.reset(new unsigned char[size]);
        std::memcpy(out.get(), at, size);
    }
    return true;
}

// A block of a count byte and that many entries, each read by
// `read(reader, entry)`: 1 when all are read, 0 for an empty block or an entry
// cut short, which is not added; the entries before it stay in `entries`.
template <class Entry, class Read>
int ParseCountedBlock(std::list<Entry>& entries, const unsigned char* data, unsigned int size, Read read)
{
    if (data == nullptr || size == 0)
        return 0;
    TCByteReader reader = BlockReader(data, size);
    const unsigned int count = reader.U8();
    for (unsigned int i = 0; i < count; ++i) {
        Entry entry;
        if (!read(reader, entry))
            return 0;
        entries.push_back(std::move(entry));
    }
    return 1;
}

} // namespace zumtabledata

#endif
