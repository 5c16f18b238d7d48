#ifndef ZUM_TOOLS_INSPECT_TEXT_H
#define ZUM_TOOLS_INSPECT_TEXT_H

// Text and number formatting shared by the describers, the model builder and
// the renderers. Everything here returns valid UTF-8.

#include <cstddef>
#include <cstdint>
#include <string>

#include <zum-platform/Codes.h>
#include <zum-platform/ZUMHandle.h>

#include "inspect/Names.h"

namespace zuminspect {

// UTF-16 code units to UTF-8; a lone surrogate becomes U+FFFD.
std::string Utf16ToUtf8(const std::basic_string<unsigned short>& text);

// Broadcast text (DVB/ISDB selector bytes first) to UTF-8 through the
// platform's converter. What the converter refuses comes back with every byte
// outside printable ASCII written as \xNN, so that nothing is hidden.
// It also tells the describers which system's names to give.
class TextDecoder {
public:
    TextDecoder(const ZUMHandle& handle, ELanguageCode language, BroadcastSystem system = BroadcastSystem::Dvb)
        : m_handle(handle), m_language(language), m_system(system)
    {
    }
    std::string Decode(const unsigned char* data, size_t size) const;
    BroadcastSystem System() const { return m_system; }

private:
    ZUMHandle m_handle;
    ELanguageCode m_language;
    BroadcastSystem m_system;
};

// A packed three-letter country or language code as its letters ("eng");
// a code that is not printable ASCII comes back in hex.
std::string CodeText(unsigned int code);
// "0x" and `digits` upper-case hex digits.
std::string Hex(unsigned long long value, int digits);
// Bytes as two hex digits each, separated by spaces.
std::string HexBytes(const unsigned char* data, size_t size);
// Seconds since 1980-01-06 00:00:00 UTC as ISO 8601 UTC ("2026-11-14T01:20:00Z").
std::string IsoTimeSince1980(uint32_t seconds);

} // namespace zuminspect

#endif
