#include "zum-platform/UnicodeConverter.h"

#include "zum-platform/Binder.h"
#include "zum-platform/PlatformConfig.h"

// libaribb24's headers declare C functions without saying so.
extern "C" {
#include <aribb24/aribb24.h>
#include <aribb24/decoder.h>
}
#include <iconv.h>

#include <algorithm>
#include <cstring>
#include <cerrno>
#include <limits>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

namespace {

// One presentable character and the source offset just behind it, so that a
// cut output can tell how much of the source it used; kOffsetByPrefix where
// only decoding a prefix again can tell it (ARIB text).
constexpr size_t kOffsetByPrefix = std::numeric_limits<size_t>::max();
struct TTDecodedChar {
    char32_t codePoint;
    size_t sourceEnd;
};
using TTDecodedText = std::vector<TTDecodedChar>;

enum class ETableKind { Unsupported, Latin6937, Iconv, Arib };

struct TTTextTable {
    ETableKind kind = ETableKind::Unsupported;
    std::string iconvName;
    size_t headerLength = 0; // selector bytes in front of the text
    size_t unitSize = 1;     // bytes skipped over a sequence the table does not know
};

TTTextTable IconvTable(std::string name, size_t headerLength, size_t unitSize = 1)
{
    return {ETableKind::Iconv, std::move(name), headerLength, unitSize};
}

TTTextTable Iso8859Table(unsigned int part, size_t headerLength)
{
    // 8859-12 was never published; 0 and anything above 15 are not parts.
    if (part == 0 || part == 12 || part > 15)
        return {};
    return IconvTable("ISO-8859-" + std::to_string(part), headerLength);
}

// The table of text without a selector byte: ISO/IEC 6937 unless the
// settings or the receiver's country give another.
TTTextTable DefaultTable()
{
    const ECountryCode country = IBinder::Instance() ? zum_platform::Binder().countryCode : 0;
    const std::string name = zum_platform::DefaultTableFor(country);
    if (name.compare(0, 9, "ISO-8859-") == 0)
        return IconvTable(name, 0);
    return {ETableKind::Latin6937, std::string(), 0, 1};
}

// Japanese broadcasts write all text in ARIB STD-B24 8-unit code, whose
// designations and shifts take the places of the DVB selector bytes. The
// other ISDB countries send Latin text (Brazil: see DefaultTableFor).
bool WritesAribText()
{
    return IBinder::Instance() && zum_platform::Binder().countryCode == ZumPackCode('J', 'P', 'N');
}

// The one place that maps the leading bytes of a text to its table.
TTTextTable SelectTable(const unsigned char* text, size_t length, ELanguageCode /*language*/)
{
    if (WritesAribText())
        return {ETableKind::Arib, std::string(), 0, 1};
    const unsigned char first = text[0];
    if (first >= 0x20)
        return DefaultTable();
    if (first >= 0x01 && first <= 0x0B)
        return Iso8859Table(first + 4u, 1);
    switch (first) {
    case 0x10:
        if (length < 3 || text[1] != 0x00)
            return {};
        return Iso8859Table(text[2], 3);
    case 0x11:
        return IconvTable("UTF-16BE", 1, 2);
    case 0x12:
        return IconvTable("EUC-KR", 1);
    case 0x13:
        return IconvTable("GB2312", 1);
    case 0x14:
        // "Big5 subset of ISO/IEC 10646" names the repertoire; the bytes are 10646's two-byte form.
        return IconvTable("UTF-16BE", 1, 2);
    case 0x15:
        return IconvTable("UTF-8", 1);
    default:
        return {}; // reserved selectors and 0x1F (encoding_type_id) are not read here
    }
}

// CR/LF of the broadcast control codes becomes a line break; emphasis and the
// other control codes, in their single-byte and their Unicode places, and NUL
// padding carry no text.
void Emit(TTDecodedText& out, char32_t codePoint, size_t sourceEnd)
{
    if (codePoint == 0)
        return;
    if ((codePoint >= 0x80 && codePoint <= 0x9F) || (codePoint >= 0xE080 && codePoint <= 0xE09F)) {
        if ((codePoint & 0xFF) != 0x8A)
            return;
        codePoint = U'\n';
    }
    out.push_back({codePoint, sourceEnd});
}

// Spacing characters of the default table from 0xA0 on; 0 is unassigned, and
// 0xC1..0xCF are the diacritics, handled apart. 0xA4 carries the euro sign.
constexpr char16_t kLatinUpper[96] = {
    0x00A0, 0x00A1, 0x00A2, 0x00A3, 0x20AC, 0x00A5, 0,      0x00A7, // A0
    0x00A4, 0x2018, 0x201C, 0x00AB, 0x2190, 0x2191, 0x2192, 0x2193, // A8
    0x00B0, 0x00B1, 0x00B2, 0x00B3, 0x00D7, 0x00B5, 0x00B6, 0x00B7, // B0
    0x00F7, 0x2019, 0x201D, 0x00BB, 0x00BC, 0x00BD, 0x00BE, 0x00BF, // B8
    0,      0,      0,      0,      0,      0,      0,      0,      // C0
    0,      0,      0,      0,      0,      0,      0,      0,      // C8
    0x2015, 0x00B9, 0x00AE, 0x00A9, 0x2122, 0x266A, 0x00AC, 0x00A6, // D0
    0,      0,      0,      0,      0x215B, 0x215C, 0x215D, 0x215E, // D8
    0x2126, 0x00C6, 0x0110, 0x00AA, 0x0126, 0,      0x0132, 0x013F, // E0
    0x0141, 0x00D8, 0x0152, 0x00BA, 0x00DE, 0x0166, 0x014A, 0x0149, // E8
    0x0138, 0x00E6, 0x0111, 0x00F0, 0x0127, 0x0131, 0x0133, 0x0140, // F0
    0x0142, 0x00F8, 0x0153, 0x00DF, 0x00FE, 0x0167, 0x014B, 0x00AD, // F8
};

// Combining marks for the diacritics 0xC1..0xCF (0xC9 and 0xCC are unassigned).
constexpr char16_t kCombiningMark[15] = {
    0x0300, 0x0301, 0x0302, 0x0303, 0x0304, 0x0306, 0x0307, 0x0308,
    0,      0x030A, 0x0327, 0,      0x030B, 0x0328, 0x030C,
};

struct TTComposed {
    unsigned char diacritic;
    char letter;
    char16_t codePoint;
};

// Precomposed forms of the letters in common use; other pairs stay letter
// plus combining mark.
constexpr TTComposed kComposed[] = {
    {0xC1, 'A', 0xC0}, {0xC1, 'E', 0xC8}, {0xC1, 'I', 0xCC}, {0xC1, 'O', 0xD2}, {0xC1, 'U', 0xD9},
    {0xC1, 'a', 0xE0}, {0xC1, 'e', 0xE8}, {0xC1, 'i', 0xEC}, {0xC1, 'o', 0xF2}, {0xC1, 'u', 0xF9},
    {0xC2, 'A', 0xC1}, {0xC2, 'E', 0xC9}, {0xC2, 'I', 0xCD}, {0xC2, 'O', 0xD3}, {0xC2, 'U', 0xDA},
    {0xC2, 'Y', 0xDD}, {0xC2, 'a', 0xE1}, {0xC2, 'e', 0xE9}, {0xC2, 'i', 0xED}, {0xC2, 'o', 0xF3},
    {0xC2, 'u', 0xFA}, {0xC2, 'y', 0xFD}, {0xC2, 'C', 0x106}, {0xC2, 'c', 0x107}, {0xC2, 'L', 0x139},
    {0xC2, 'l', 0x13A}, {0xC2, 'N', 0x143}, {0xC2, 'n', 0x144}, {0xC2, 'R', 0x154}, {0xC2, 'r', 0x155},
    {0xC2, 'S', 0x15A}, {0xC2, 's', 0x15B}, {0xC2, 'Z', 0x179}, {0xC2, 'z', 0x17A},
    {0xC3, 'A', 0xC2}, {0xC3, 'E', 0xCA}, {0xC3, 'I', 0xCE}, {0xC3, 'O', 0xD4}, {0xC3, 'U', 0xDB},
    {0xC3, 'a', 0xE2}, {0xC3, 'e', 0xEA}, {0xC3, 'i', 0xEE}, {0xC3, 'o', 0xF4}, {0xC3, 'u', 0xFB},
    {0xC3, 'C', 0x108}, {0xC3, 'c', 0x109}, {0xC3, 'G', 0x11C}, {0xC3, 'g', 0x11D}, {0xC3, 'H', 0x124},
    {0xC3, 'h', 0x125}, {0xC3, 'J', 0x134}, {0xC3, 'j', 0x135}, {0xC3, 'S', 0x15C}, {0xC3, 's', 0x15D},
    {0xC3, 'W', 0x174}, {0xC3, 'w', 0x175}, {0xC3, 'Y', 0x176}, {0xC3, 'y', 0x177},
    {0xC4, 'A', 0xC3}, {0xC4, 'N', 0xD1}, {0xC4, 'O', 0xD5}, {0xC4, 'a', 0xE3}, {0xC4, 'n', 0xF1},
    {0xC4, 'o', 0xF5}, {0xC4, 'I', 0x128}, {0xC4, 'i', 0x129}, {0xC4, 'U', 0x168}, {0xC4, 'u', 0x169},
    {0xC5, 'A', 0x100}, {0xC5, 'a', 0x101}, {0xC5, 'E', 0x112}, {0xC5, 'e', 0x113}, {0xC5, 'I', 0x12A},
    {0xC5, 'i', 0x12B}, {0xC5, 'O', 0x14C}, {0xC5, 'o', 0x14D}, {0xC5, 'U', 0x16A}, {0xC5, 'u', 0x16B},
    {0xC6, 'A', 0x102}, {0xC6, 'a', 0x103}, {0xC6, 'E', 0x114}, {0xC6, 'e', 0x115}, {0xC6, 'G', 0x11E},
    {0xC6, 'g', 0x11F}, {0xC6, 'I', 0x12C}, {0xC6, 'i', 0x12D}, {0xC6, 'O', 0x14E}, {0xC6, 'o', 0x14F},
    {0xC6, 'U', 0x16C}, {0xC6, 'u', 0x16D},
    {0xC7, 'C', 0x10A}, {0xC7, 'c', 0x10B}, {0xC7, 'E', 0x116}, {0xC7, 'e', 0x117}, {0xC7, 'G', 0x120},
    {0xC7, 'g', 0x121}, {0xC7, 'I', 0x130}, {0xC7, 'Z', 0x17B}, {0xC7, 'z', 0x17C},
    {0xC8, 'A', 0xC4}, {0xC8, 'E', 0xCB}, {0xC8, 'I', 0xCF}, {0xC8, 'O', 0xD6}, {0xC8, 'U', 0xDC},
    {0xC8, 'a', 0xE4}, {0xC8, 'e', 0xEB}, {0xC8, 'i', 0xEF}, {0xC8, 'o', 0xF6}, {0xC8, 'u', 0xFC},
    {0xC8, 'y', 0xFF}, {0xC8, 'Y', 0x178},
    {0xCA, 'A', 0xC5}, {0xCA, 'a', 0xE5}, {0xCA, 'U', 0x16E}, {0xCA, 'u', 0x16F},
    {0xCB, 'C', 0xC7}, {0xCB, 'c', 0xE7}, {0xCB, 'G', 0x122}, {0xCB, 'g', 0x123}, {0xCB, 'K', 0x136},
    {0xCB, 'k', 0x137}, {0xCB, 'L', 0x13B}, {0xCB, 'l', 0x13C}, {0xCB, 'N', 0x145}, {0xCB, 'n', 0x146},
    {0xCB, 'R', 0x156}, {0xCB, 'r', 0x157}, {0xCB, 'S', 0x15E}, {0xCB, 's', 0x15F}, {0xCB, 'T', 0x162},
    {0xCB, 't', 0x163},
    {0xCD, 'O', 0x150}, {0xCD, 'o', 0x151}, {0xCD, 'U', 0x170}, {0xCD, 'u', 0x171},
    {0xCE, 'A', 0x104}, {0xCE, 'a', 0x105}, {0xCE, 'E', 0x118}, {0xCE, 'e', 0x119}, {0xCE, 'I', 0x12E},
    {0xCE, 'i', 0x12F}, {0xCE, 'U', 0x172}, {0xCE, 'u', 0x173},
    {0xCF, 'C', 0x10C}, {0xCF, 'c', 0x10D}, {0xCF, 'D', 0x10E}, {0xCF, 'd', 0x10F}, {0xCF, 'E', 0x11A},
    {0xCF, 'e', 0x11B}, {0xCF, 'L', 0x13D}, {0xCF, 'l', 0x13E}, {0xCF, 'N', 0x147}, {0xCF, 'n', 0x148},
    {0xCF, 'R', 0x158}, {0xCF, 'r', 0x159}, {0xCF, 'S', 0x160}, {0xCF, 's', 0x161}, {0xCF, 'T', 0x164},
    {0xCF, 't', 0x165}, {0xCF, 'Z', 0x17D}, {0xCF, 'z', 0x17E},
};

void EmitComposed(TTDecodedText& out, unsigned char diacritic, unsigned char letter, size_t sourceEnd)
{
    for (const TTComposed& c : kComposed) {
        if (c.diacritic == diacritic && static_cast<unsigned char>(c.letter) == letter) {
            Emit(out, c.codePoint, sourceEnd);
            return;
        }
    }
    Emit(out, letter, sourceEnd);
    const char16_t mark = kCombiningMark[diacritic - 0xC1];
    if (mark != 0)
        Emit(out, mark, sourceEnd);
}

// The default table (ISO/IEC 6937 with the euro sign): a diacritic stands in
// front of the letter it marks.
void DecodeLatin(const unsigned char* text, size_t length, size_t pos, TTDecodedText& out)
{
    while (pos < length) {
        const unsigned char byte = text[pos++];
        if (byte >= 0xC1 && byte <= 0xCF) {
            // A mark with no printable letter behind it is dropped.
            if (pos < length && text[pos] >= 0x20 && text[pos] < 0x7F) {
                const unsigned char letter = text[pos++];
                EmitComposed(out, byte, letter, pos);
            }
            continue;
        }
        Emit(out, byte < 0xA0 ? char32_t(byte) : char32_t(kLatinUpper[byte - 0xA0]), pos);
    }
}

using IconvPtr = std::unique_ptr<std::remove_pointer_t<iconv_t>, int (*)(iconv_t)>;

// Converts one character per call so that each keeps its source offset. A
// sequence the table does not know is skipped, a cut one at the end dropped.
bool DecodeIconv(const TTTextTable& table, const unsigned char* text, size_t length, TTDecodedText& out)
{
    const iconv_t raw = iconv_open("UTF-32BE", table.iconvName.c_str());
    if (raw == reinterpret_cast<iconv_t>(-1))
        return false;
    const IconvPtr cd(raw, &iconv_close);

    size_t pos = table.headerLength;
    while (pos < length) {
        char* in = reinterpret_cast<char*>(const_cast<unsigned char*>(text + pos));
        size_t inLeft = length - pos;
        unsigned char unit[4];
        char* outPtr = reinterpret_cast<char*>(unit);
        size_t outLeft = sizeof unit;
        const size_t rc = iconv(cd.get(), &in, &inLeft, &outPtr, &outLeft);
        const int error = errno;
        if (outLeft == 0) {
            pos = length - inLeft;
            Emit(out, (char32_t(unit[0]) << 24) | (char32_t(unit[1]) << 16) | (char32_t(unit[2]) << 8) | unit[3],
                 pos);
        } else if (rc == static_cast<size_t>(-1) && error == EILSEQ) {
            pos += std::min(table.unitSize, length - pos);
        } else {
            break;
        }
    }
    return true;
}

// Appends the characters of UTF-8 text; a malformed sequence is skipped.
void AppendUtf8(const char* utf8, size_t size, size_t sourceEnd, TTDecodedText& out)
{
    for (size_t i = 0; i < size;) {
        const unsigned char lead = static_cast<unsigned char>(utf8[i]);
        const size_t count = lead < 0x80 ? 1 : lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 0;
        if (count == 0 || i + count > size) {
            ++i;
            continue;
        }
        char32_t codePoint = count == 1 ? lead : lead & (0x7F >> count);
        for (size_t k = 1; k < count; ++k)
            codePoint = (codePoint << 6) | (static_cast<unsigned char>(utf8[i + k]) & 0x3F);
        Emit(out, codePoint, sourceEnd);
        i += count;
    }
}

struct TTAribInstanceFree {
    void operator()(arib_instance_t* instance) const { arib_instance_destroy(instance); }
};

// ARIB 8-unit text through libaribb24, one decoder per thread. The decoder
// drops the line break APR (0x0D), so the text is decoded between line
// breaks, with the designations and shifts carried over, and '\n' put back.
bool DecodeArib(const unsigned char* text, size_t length, TTDecodedText& out)
{
    thread_local std::unique_ptr<arib_instance_t, TTAribInstanceFree> instance(arib_instance_new(nullptr));
    arib_decoder_t* decoder = instance ? arib_get_decoder(instance.get()) : nullptr;
    if (!decoder)
        return false;
    arib_initialize_decoder(decoder);
    // Room for the longest replacements (symbols spelled out) of every byte.
    std::vector<char> utf8(8 * length + 16);
    for (size_t start = 0; start < length;) {
        const unsigned char* lineEnd =
            static_cast<const unsigned char*>(std::memchr(text + start, 0x0D, length - start));
        const size_t end = lineEnd ? static_cast<size_t>(lineEnd - text) : length;
        if (end > start) {
            const size_t size = arib_decode_buffer(decoder, text + start, end - start, utf8.data(), utf8.size());
            AppendUtf8(utf8.data(), size, kOffsetByPrefix, out);
        }
        if (lineEnd)
            Emit(out, U'\n', end + 1);
        start = end + 1;
    }
    arib_finalize_decoder(decoder);
    return true;
}

bool Decode(const unsigned char* text, size_t length, ELanguageCode language, TTDecodedText& out)
{
    const TTTextTable table = SelectTable(text, length, language);
    switch (table.kind) {
    case ETableKind::Latin6937:
        DecodeLatin(text, length, table.headerLength, out);
        return true;
    case ETableKind::Iconv:
        return DecodeIconv(table, text, length, out);
    case ETableKind::Arib:
        return DecodeArib(text, length, out);
    case ETableKind::Unsupported:
        break;
    }
    return false;
}

// The source bytes behind the first `count` characters: the shortest prefix
// that decodes to as many, where the decoder tells no offsets of its own.
size_t SourceEndOf(const unsigned char* text, size_t length, ELanguageCode language, const TTDecodedText& chars,
                   size_t count)
{
    if (count == 0)
        return 0;
    if (chars[count - 1].sourceEnd != kOffsetByPrefix)
        return chars[count - 1].sourceEnd;
    size_t low = 1;
    size_t high = length;
    while (low < high) {
        const size_t middle = low + (high - low) / 2;
        TTDecodedText prefix;
        Decode(text, middle, language, prefix);
        if (prefix.size() >= count)
            high = middle;
        else
            low = middle + 1;
    }
    return low;
}

// Answers the number of 16-bit units, 1 or 2 (a surrogate pair).
int ToUtf16(char32_t codePoint, unsigned short (&units)[2])
{
    if (codePoint < 0x10000) {
        units[0] = static_cast<unsigned short>(codePoint);
        return 1;
    }
    const char32_t v = codePoint - 0x10000;
    units[0] = static_cast<unsigned short>(0xD800 + (v >> 10));
    units[1] = static_cast<unsigned short>(0xDC00 + (v & 0x3FF));
    return 2;
}

} // namespace

TCUnicodeConverter::TCUnicodeConverter(const ZUMHandle& handle) : m_handle(handle) {}

bool TCUnicodeConverter::ConvertToUnicode(unsigned char* source, unsigned short& sourceLength,
                                          std::basic_string<unsigned short>& target, bool, ELanguageCode language,
                                          bool)
{
    target.clear();
    TTDecodedText chars;
    if (source == nullptr || sourceLength == 0 || !Decode(source, sourceLength, language, chars)) {
        sourceLength = 0;
        return false;
    }
    for (const TTDecodedChar& c : chars) {
        unsigned short units[2];
        target.append(units, ToUtf16(c.codePoint, units));
    }
    return true;
}

bool TCUnicodeConverter::ConvertToUnicode(unsigned char* source, unsigned short& sourceLength, unsigned char* target,
                                          unsigned short& targetLength, bool, ELanguageCode language, bool)
{
    const size_t capacity = targetLength;
    targetLength = 0;
    TTDecodedText chars;
    if (source == nullptr || sourceLength == 0 || target == nullptr || capacity == 0 ||
        !Decode(source, sourceLength, language, chars)) {
        sourceLength = 0;
        return false;
    }
    size_t written = 0;
    for (size_t index = 0; index < chars.size(); ++index) {
        unsigned short units[2];
        const int count = ToUtf16(chars[index].codePoint, units);
        // A surrogate pair goes whole or not at all.
        if (written + 2 * static_cast<size_t>(count) > capacity) {
            targetLength = static_cast<unsigned short>(written);
            sourceLength = static_cast<unsigned short>(SourceEndOf(source, sourceLength, language, chars, index));
            return false;
        }
        for (int i = 0; i < count; ++i) {
            target[written++] = static_cast<unsigned char>(units[i] >> 8);
            target[written++] = static_cast<unsigned char>(units[i] & 0xFF);
        }
    }
    targetLength = static_cast<unsigned short>(written);
    return true;
}
