#ifndef ZUM_PLATFORM_UNICODECONVERTER_H
#define ZUM_PLATFORM_UNICODECONVERTER_H

// Broadcast text to 16-bit characters. The first byte(s) of the text pick the
// character table the way DVB text does: no selector is the default table
// (ISO/IEC 6937, or what zum_platform::TextSettings gives for the binder's
// country, see PlatformConfig.h), 0x01..0x0B ISO 8859-5..15, 0x10 0x00 0xNN ISO 8859-NN,
// 0x11 UTF-16BE, 0x12 KS X 1001, 0x13 GB2312, 0x14 UTF-16BE (the Big5 repertoire), 0x15 UTF-8.
// The control code CR/LF (0x8A, U+E08A) becomes '\n'; the other control codes
// (0x80..0x9F, U+E080..U+E09F) and NUL are dropped. The output is UTF-16.
// In Japan (the binder's country JPN) all text is ARIB STD-B24 8-unit code
// (kanji, kana and alphanumeric sets with designations and shifts), decoded by
// libaribb24; the line break APR (0x0D) becomes '\n'.
// The language hint is not consulted yet: the leading bytes alone decide.
//
// Both overloads answer false for a null pointer, an empty source or a table
// they cannot read; the target is then empty. sourceLength on return is the
// number of source bytes consumed; no byte at or behind sourceLength is read.

#include <string>

#include "Codes.h"
#include "ZUMHandle.h"

class TCUnicodeConverter {
public:
    explicit TCUnicodeConverter(const ZUMHandle& handle);

    // Replaces target with the text. The two flags are passed the same way by
    // every caller and do not change the result.
    bool ConvertToUnicode(unsigned char* source, unsigned short& sourceLength,
                          std::basic_string<unsigned short>& target, bool, ELanguageCode language, bool);

    // Writes the text as big-endian byte pairs. targetLength is the capacity in
    // bytes on entry and the bytes written on return. A text that does not fit
    // is cut after the last whole character that does, and the answer is false.
    bool ConvertToUnicode(unsigned char* source, unsigned short& sourceLength, unsigned char* target,
                          unsigned short& targetLength, bool, ELanguageCode language, bool);

private:
    ZUMHandle m_handle;
};

#endif
