#include "inspect/Text.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

#include <zum-platform/UnicodeConverter.h>

namespace zuminspect {

namespace {

// 1980-01-06 00:00:00 UTC on the Unix clock.
constexpr long long kEpoch1980 = 315964800;
constexpr char32_t kReplacement = 0xFFFD;

void AppendUtf8(std::string& out, char32_t c)
{
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (c >> 18));
        out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

bool IsHighSurrogate(unsigned short u) { return u >= 0xD800 && u <= 0xDBFF; }
bool IsLowSurrogate(unsigned short u) { return u >= 0xDC00 && u <= 0xDFFF; }

std::string Escaped(const unsigned char* data, size_t size)
{
    std::string out;
    char buffer[8];
    for (size_t i = 0; i < size; ++i) {
        if (data[i] >= 0x20 && data[i] < 0x7F) {
            out += static_cast<char>(data[i]);
        } else {
            std::snprintf(buffer, sizeof buffer, "\\x%02X", data[i]);
            out += buffer;
        }
    }
    return out;
}

} // namespace

std::string Utf16ToUtf8(const std::basic_string<unsigned short>& text)
{
    std::string out;
    out.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        const unsigned short u = text[i];
        if (IsHighSurrogate(u) && i + 1 < text.size() && IsLowSurrogate(text[i + 1])) {
            AppendUtf8(out, 0x10000 + ((static_cast<char32_t>(u - 0xD800) << 10) | (text[i + 1] - 0xDC00)));
            ++i;
        } else {
            AppendUtf8(out, IsHighSurrogate(u) || IsLowSurrogate(u) ? kReplacement : u);
        }
    }
    return out;
}

std::string TextDecoder::Decode(const unsigned char* data, size_t size) const
{
    if (data == nullptr || size == 0)
        return std::string();
    // The converter wants a writable source and a 16-bit length.
    std::vector<unsigned char> source(data, data + std::min<size_t>(size, 0xFFFF));
    unsigned short length = static_cast<unsigned short>(source.size());
    std::basic_string<unsigned short> text;
    TCUnicodeConverter converter(m_handle);
    if (!converter.ConvertToUnicode(source.data(), length, text, false, m_language, false))
        return Escaped(data, size);
    return Utf16ToUtf8(text);
}

std::string CodeText(unsigned int code)
{
    const unsigned char letters[3] = {static_cast<unsigned char>(code >> 16), static_cast<unsigned char>(code >> 8),
                                      static_cast<unsigned char>(code)};
    const bool printable = code <= 0xFFFFFF && std::all_of(letters, letters + 3, [](unsigned char c) {
                               return c >= 0x20 && c < 0x7F;
                           });
    return printable ? std::string(letters, letters + 3) : Hex(code, 6);
}

std::string Hex(unsigned long long value, int digits)
{
    char buffer[24];
    std::snprintf(buffer, sizeof buffer, "0x%0*llX", digits, value);
    return buffer;
}

std::string HexBytes(const unsigned char* data, size_t size)
{
    static const char kDigits[] = "0123456789abcdef";
    std::string out;
    out.reserve(size * 3);
    for (size_t i = 0; i < size; ++i) {
        if (i > 0)
            out += ' ';
        out += kDigits[data[i] >> 4];
        out += kDigits[data[i] & 0x0F];
    }
    return out;
}

std::string IsoTimeSince1980(uint32_t seconds)
{
    const std::time_t unixTime = static_cast<std::time_t>(kEpoch1980 + seconds);
    std::tm utc{};
    char buffer[32];
    if (gmtime_r(&unixTime, &utc) == nullptr || std::strftime(buffer, sizeof buffer, "%Y-%m-%dT%H:%M:%SZ", &utc) == 0)
        return std::string();
    return buffer;
}

} // namespace zuminspect
