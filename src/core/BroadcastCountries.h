#ifndef ZUM_CORE_BROADCASTCOUNTRIES_H
#define ZUM_CORE_BROADCASTCOUNTRIES_H

#include <zum-platform/Codes.h>

// Internal: the countries of ISDB-T International (besides Japan, which has a
// system of its own here), whose receivers read the ISDB descriptor loop.
inline bool IsISDBCountry(ECountryCode code)
{
    switch (code) {
    case ZumPackCode('A', 'R', 'G'):
    case ZumPackCode('B', 'O', 'L'):
    case ZumPackCode('B', 'R', 'A'):
    case ZumPackCode('C', 'H', 'L'):
    case ZumPackCode('E', 'Q', 'U'):
    case ZumPackCode('P', 'A', 'R'):
    case ZumPackCode('P', 'E', 'R'):
    case ZumPackCode('U', 'R', 'U'):
    case ZumPackCode('c', 'r', 'i'): return true;
    default: return false;
    }
}

#endif
