#ifndef ZUM_OPERATORS_TKGSTEXT_H
#define ZUM_OPERATORS_TKGSTEXT_H

// Internal: the languages and texts of the TKGS stream and its descriptors.

#include <string>

#include <zum-platform/Codes.h>
#include <zum-platform/UnicodeConverter.h>
#include <zum-platform/ZUMHandle.h>

#include "../core/ByteReader.h"
#include "../core/CompareISO8859Char.h"

// Three ASCII letters at `at`, folded to lower case.
inline ELanguageCode TkgsLanguage(const unsigned char* at)
{
    return TCCompareISO8859Char::MakeLowerCase(ReadBE24(at));
}

// A text of the stream in UTF-16; the language decides the conversion. What
// the converter refuses comes back empty.
inline std::basic_string<unsigned short> TkgsText(const ZUMHandle& handle, const unsigned char* text, int length,
                                                 ELanguageCode language)
{
    std::basic_string<unsigned short> result;
    if (length <= 0)
        return result;
    unsigned short size = static_cast<unsigned short>(length);
    TCUnicodeConverter converter(handle);
    // The converter reads the bytes only; its signature is the platform's.
    converter.ConvertToUnicode(const_cast<unsigned char*>(text), size, result, false, language, true);
    return result;
}

#endif
