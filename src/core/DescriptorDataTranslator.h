#ifndef ZUM_CORE_DESCRIPTORDATATRANSLATOR_H
#define ZUM_CORE_DESCRIPTORDATATRANSLATOR_H

#include <cstdint>

#include "Export.h"

// Bit reader for descriptor bodies whose fields are not byte-aligned; it
// never reads past the length it was given.
class ZUM_EXPORT TCDescriptorDataTranslator {
public:
    TCDescriptorDataTranslator(const unsigned char* data, unsigned char length);

    // The next `count` bits, most significant first; 0 and no move when they
    // are not all there.
    uint64_t GetBits(int count);
    void SkipBits(int count);
    // The byte that holds the position; continues at the next byte boundary.
    unsigned char GetUInt8();
    bool EndOfData() const;

    // The `count` bits (1 to 64) at bit `position` of `byteLength` bytes at
    // `data`, most significant first; false, and `value` untouched, when they
    // are not all there. The one bounded bit read, for readers that keep
    // their own position.
    static bool ReadBitsAt(const unsigned char* data, int byteLength, long long position, int count,
                           uint64_t& value);

private:
    const unsigned char* m_pData;
    unsigned char m_length;
    int m_bitCount;
    unsigned short m_position = 0;
    const unsigned char* m_pEnd;
};

#endif
