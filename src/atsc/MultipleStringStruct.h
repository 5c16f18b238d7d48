#ifndef ZUM_ATSC_MULTIPLESTRINGSTRUCT_H
#define ZUM_ATSC_MULTIPLESTRINGSTRUCT_H

// The text model of the North American tables: the multiple string structure
// (strings by language, each of segments), its choice of one string for the
// viewer and its rendering to big-endian UTF-16 without terminator; beside it
// the mode-and-length text of the cable tables and a plain UTF-16 block.

#include <memory>
#include <vector>

#include <zum-platform/Codes.h>

#include "../core/Export.h"

// Group key of a language that belongs to no group.
constexpr unsigned int kLanguageNoGroup = 0x7A7A7B;

// Rows of the language groups: key, then up to nine members (small language
// numbers or packed codes), ended by 0xFFFFFFFF; a key of 0xFFFFFFFF ends the
// table. Internal: the shared library exports classes only, so callers reach
// the groups through TCMultipleStringStruct::MultipleSound.
extern const unsigned int g_MTSSIGroup[][10];

// One segment: compression type, mode and the compressed bytes.
class ZUM_EXPORT TCMultipleStringSegment {
public:
    static constexpr unsigned short INVALID = 0xFFFF;

    TCMultipleStringSegment() = default;
    ~TCMultipleStringSegment();
    TCMultipleStringSegment(const TCMultipleStringSegment& other) { *this = other; }
    TCMultipleStringSegment& operator=(const TCMultipleStringSegment& other);

    // Returns the bytes consumed; a segment cut by the end keeps what arrived.
    unsigned int Set(const unsigned char* data, unsigned int size);

    unsigned char CompressionType() const;
    unsigned char Mode() const;
    unsigned short NumberBytes() const;
    // *pSize is the capacity on entry; refuses to truncate.
    bool GetCompressedStringByte(unsigned char* pData, int* pSize) const;

private:
    unsigned char m_compressionType = 0;
    unsigned char m_mode = 0;
    unsigned short m_numberBytes = INVALID;
    std::unique_ptr<unsigned char[]> m_pBytes;
};

// One string: its language and segments.
class ZUM_EXPORT TCMultipleString {
public:
    static constexpr unsigned short INVALID = 0xFFFF;

    TCMultipleString() = default;
    ~TCMultipleString();
    TCMultipleString(const TCMultipleString& other) { *this = other; }
    TCMultipleString& operator=(const TCMultipleString& other);

    unsigned int Set(const unsigned char* data, unsigned int size);

    unsigned int ISO639LanguageCode() const { return m_language; }
    unsigned short NumOfSegments() const;
    TCMultipleStringSegment* Segment(int index) const;

private:
    void m_DeleteSegments() { m_segments.clear(); }

    unsigned int m_language = 0;
    unsigned short m_numberSegments = INVALID;
    std::vector<std::unique_ptr<TCMultipleStringSegment>> m_segments;
};

class ZUM_EXPORT TCMultipleStringStruct {
public:
    static constexpr unsigned short INVALID = 0xFFFF;

    TCMultipleStringStruct() = default;
    ~TCMultipleStringStruct();
    TCMultipleStringStruct(const TCMultipleStringStruct& other) { *this = other; }
    TCMultipleStringStruct& operator=(const TCMultipleStringStruct& other);

    // Returns the bytes consumed; a caller walking a run of structures advances by it.
    unsigned int Set(const unsigned char* data, unsigned int size);

    unsigned short NumOfStrings() const;
    TCMultipleString* String(int index) const;

    // Picks the string of the viewer's language group, else of the default
    // group, else the first, and renders it as big-endian UTF-16 into `text`;
    // *length is the capacity in bytes on entry and the bytes written on
    // return. `language` receives the group key of the chosen string.
    bool GetMutipleText(ELanguageCode osdLanguage, unsigned int preferLanguage, ECountry country, char* text,
                        int* length, unsigned int* language) const;
    bool GetMutipleText(ELanguageCode osdLanguage, unsigned int preferLanguage, int country, char* text, int* length,
                        unsigned int* language) const;

    // The group key of a language number or packed code; kLanguageNoGroup for none.
    static unsigned int MultipleSound(unsigned int value);
    // The language number to fall back on when the viewer's choice is not on air.
    static unsigned int DefaultPreferLanguage(ELanguageCode osdLanguage, int country);

private:
    int m_GetMultiStringFromIndex(const TCMultipleString* string, char* text, int capacity) const;
    void m_DeleteStrings() { m_strings.clear(); }

    unsigned short m_numberStrings = INVALID;
    std::vector<std::unique_ptr<TCMultipleString>> m_strings;
};

// One record of mode-and-length text.
class ZUM_EXPORT TCMultilingualText {
public:
    void Set(unsigned char mode, const unsigned char* text, unsigned char length);
    // UTF-16 into `out`, *size the capacity in bytes on entry and the bytes
    // written on return; 0 for an empty record, else 1.
    int GetSgment(unsigned char* out, unsigned char* size) const;

    unsigned char Mode() const { return m_mode; }
    unsigned char Length() const { return m_length; }

private:
    unsigned char m_mode = 0;
    unsigned char m_length = 0;
    unsigned char m_text[256] = {};
};

class ZUM_EXPORT TCMultilingualTextString {
public:
    TCMultilingualTextString() = default;
    TCMultilingualTextString(const TCMultilingualTextString&) = delete;
    TCMultilingualTextString& operator=(const TCMultilingualTextString&) = delete;

    // Reads mode, length and text records up to `size`; once per object.
    bool Set(const unsigned char* data, int size);
    TCMultilingualText* MultilingualText(unsigned int index) const;
    unsigned int NumOfMultilingualText() const { return m_numberStrings; }

private:
    std::vector<std::unique_ptr<TCMultilingualText>> m_texts;
    unsigned int m_numberStrings = 0;
};

// An owned block of UTF-16 text with the language the caller gave it.
class ZUM_EXPORT TCUniCodeText {
public:
    TCUniCodeText() = default;
    TCUniCodeText(const TCUniCodeText& other) { *this = other; }
    virtual ~TCUniCodeText();
    virtual TCUniCodeText& operator=(const TCUniCodeText& other);

    bool SetUniCodeText(int language, unsigned char* text, unsigned short length);
    // *length is the capacity on entry; truncates and answers false.
    bool UniCodeText(unsigned char* pString, unsigned short* length) const;
    void DeleteAll();
    int Language() const { return m_language; }

private:
    int m_language = 0;
    std::unique_ptr<unsigned char[]> m_pText;
    unsigned int m_length = 0;
};

#endif
