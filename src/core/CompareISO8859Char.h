#ifndef ZUM_CORE_COMPAREISO8859CHAR_H
#define ZUM_CORE_COMPAREISO8859CHAR_H

#include "Export.h"

// Case-blind handling of packed three-letter codes (first letter in bits 23..16).
class ZUM_EXPORT TCCompareISO8859Char {
public:
    // Lower-cases the ASCII letters of the three low bytes; the top byte is dropped.
    static unsigned int MakeLowerCase(unsigned int code);
    static bool IsEqual(unsigned int a, unsigned int b);
};

#endif
