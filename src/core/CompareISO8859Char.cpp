#include "CompareISO8859Char.h"

unsigned int TCCompareISO8859Char::MakeLowerCase(unsigned int code)
{
    unsigned int result = 0;
    for (int shift = 16; shift >= 0; shift -= 8) {
        unsigned int byte = (code >> shift) & 0xFFu;
        // Only ASCII letters fold: ISO 8859 letters above 0x7F differ per part.
        if (byte >= 'A' && byte <= 'Z')
            byte += 'a' - 'A';
        result |= byte << shift;
    }
    return result;
}

bool TCCompareISO8859Char::IsEqual(unsigned int a, unsigned int b)
{
    return MakeLowerCase(a) == MakeLowerCase(b);
}
