#include "MultipleStringStruct.h"

#include <algorithm>
#include <cstring>

#include <zum-platform/DtvHuffman.h>

#include "../core/CompareISO8859Char.h"
#include "../core/Diagnostics.h"
#include "../core/Log.h"

namespace {

constexpr unsigned int kEnd = 0xFFFFFFFF;
constexpr unsigned int kStructHeader = 1;
constexpr unsigned int kStringHeader = 4;
constexpr unsigned int kSegmentHeader = 3;
constexpr int kSegmentInput = 255;
constexpr int kWorkBuffer = 4096;
constexpr unsigned char kModeUtf16 = 0x3F;

// Language numbers of the defaults, members of eng, kor and por.
constexpr unsigned int kEnglishNumber = 2;
constexpr unsigned int kKoreanNumber = 1;
constexpr unsigned int kPortugueseNumber = 5;
constexpr unsigned int kOtherCountryNumber = 18;

struct TTDefaultLanguage {
    unsigned int code;
    unsigned int number;
};

// Menu language to the language number of its group, for countries without a fixed default.
const TTDefaultLanguage kDefaultLanguages[] = {
    {0x62756C, 6}, {0x637A65, 8}, {0x64616E, 9}, {0x647574, 10}, {0x66696E, 11}, {0x667265, 12}, {0x676572, 13},
    {0x677265, 14}, {0x68756E, 15}, {0x697461, 16}, {0x6E6F72, 17}, {0x706F6C, 19}, {0x706F72, 20}, {0x72756D, 21},
    {0x727573, 22}, {0x736C6B, 24}, {0x737061, 25}, {0x737765, 26}, {0x747572, 27}, {0x636869, 28}, {0x6A706E, 31},
    {0x6D616F, 32}, {0x636D6E, 33}, {0x797565, 34}, {0x68696E, 35}, {0x657374, 36}, {0x617261, 39}, {0x706572, 40},
    {0x716161, 41}, {0x616420, 42}, {0x636174, 43}, {0x76616C, 44}, {0x746861, 45}, {0x686562, 46}, {0x696E64, 47},
    {0x766965, 48}, {0x757264, 49}, {0x616672, 50}, {0x7A756C, 51}, {0x78686F, 52}, {0x796F72, 53}, {0x696762, 54},
    {0x686175, 55}, {0x737761, 56}, {0x737768, 57}, {0x616D68, 58}, {0x74616D, 59}, {0x697261, 60}, {0x66696C, 61},
    {0x736C76, 64}, {0x616C62, 65}, {0x756B72, 66}, {0x6B617A, 67}, {0x6D6B64, 68}, {0x6D6179, 69}, {0x616B61, 73},
    {0x747769, 74}, {0x657765, 75}, {0x676161, 76}, {0x6E7A69, 77}, {0x6E626C, 78}, {0x6E736F, 79}, {0x736F74, 80},
    {0x737377, 81}, {0x74736F, 82}, {0x74736E, 83}, {0x76656E, 84}, {0x646167, 99}, {0x78736D, 100}, {0x716162, 101},
    {0x716163, 102}, {0x6D7361, 103}, {0x736D69, 106},
};

// Modes that carry no text that this renderer knows how to place in UTF-16.
bool IsSkippedMode(unsigned char mode)
{
    return mode == 0x07 || (mode >= 0x11 && mode <= 0x1F) || (mode >= 0x28 && mode <= 0x2F) ||
           (mode >= 0x34 && mode <= 0x3E) || mode >= 0x40;
}

// Reads children of `header`-byte headers from `offset` until `count` are
// held. Answers the offset behind the last one, or, where a child's header no
// longer fits, an offset past `size`.
template <class Child>
unsigned int ReadChildren(std::vector<std::unique_ptr<Child>>& children, unsigned int count,
                          const unsigned char* data, unsigned int size, unsigned int offset, unsigned int header)
{
    children.reserve(count);
    for (;;) {
        if (size - offset < header)
            return offset + header;
        children.emplace_back(new Child);
        offset += children.back()->Set(data + offset, size - offset);
        if (children.size() == count)
            return offset;
    }
}

template <class Child>
void CopyChildren(std::vector<std::unique_ptr<Child>>& children, const std::vector<std::unique_ptr<Child>>& from)
{
    children.clear();
    children.reserve(from.size());
    for (const auto& child : from)
        children.emplace_back(new Child(*child));
}

} // namespace

const unsigned int g_MTSSIGroup[][10] = {
    {0x656E67, 2, 18, 0x656E67, 0x656E6D, 0x616E67, 0x656E00, kEnd, kEnd, kEnd}, // eng
    {0x737061, 3, 25, 0x737061, 0x65736C, 0x657300, kEnd, kEnd, kEnd, kEnd}, // spa
    {0x667265, 12, 4, 0x667265, 0x667261, 0x66726D, 0x66726F, 0x667200, kEnd, kEnd}, // fre
    {0x6B6F72, 1, 0x6B6F72, 0x6B6F00, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // kor
    {0x6A706E, 31, 0x6A706E, 0x6A6100, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // jpn
    {0x636869, 28, 29, 30, 0x636869, 0x636F6E, 0x7A686F, 0x7A6800, kEnd, kEnd}, // chi
    {0x676572, 13, 0x676572, 0x646575, 0x676D68, 0x676F68, 0x67656D, 0x646500, kEnd, kEnd}, // ger
    {0x697461, 16, 0x697461, 0x697400, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // ita
    {0x727573, 22, 0x727573, 0x727500, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // rus
    {0x647574, 10, 0x647574, 0x6E6C61, 0x6E6C64, 0x6E6C00, kEnd, kEnd, kEnd, kEnd}, // dut
    {0x706F72, 5, 20, 0x706F72, 0x707400, 0x627261, kEnd, kEnd, kEnd, kEnd}, // por
    {0x737765, 26, 0x737765, 0x737665, 0x737600, kEnd, kEnd, kEnd, kEnd, kEnd}, // swe
    {0x62756C, 6, 0x62756C, 0x626700, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // bul
    {0x687276, 7, 0x736372, 0x687276, 0x687200, kEnd, kEnd, kEnd, kEnd, kEnd}, // hrv
    {0x637A65, 8, 0x637A65, 0x636573, 0x637300, kEnd, kEnd, kEnd, kEnd, kEnd}, // cze
    {0x677265, 14, 0x677265, 0x656C6C, 0x677263, 0x656C00, kEnd, kEnd, kEnd, kEnd}, // gre
    {0x68756E, 15, 0x68756E, 0x687500, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // hun
    {0x706F6C, 19, 0x706F6C, 0x706C00, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // pol
    {0x72756D, 21, 0x72756D, 0x726F6E, 0x726F00, kEnd, kEnd, kEnd, kEnd, kEnd}, // rum
    {0x747572, 27, 0x747572, 0x6F7461, 0x747200, kEnd, kEnd, kEnd, kEnd, kEnd}, // tur
    {0x64616E, 9, 0x64616E, 0x646100, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // dan
    {0x66696E, 11, 0x66696E, 0x666900, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // fin
    {0x6E6F72, 17, 0x6E6F72, 0x6E6E6F, 0x6E6F62, 0x6E6F00, kEnd, kEnd, kEnd, kEnd}, // nor
    {0x737270, 23, 0x737270, 0x736363, 0x737200, kEnd, kEnd, kEnd, kEnd, kEnd}, // srp
    {0x63796D, 0x63796D, 0x77656C, 0x637900, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // cym
    {0x676468, 0x676468, 0x676C61, 0x676165, 0x676400, kEnd, kEnd, kEnd, kEnd, kEnd}, // gdh
    {0x697269, 0x697269, 0x676169, 0x6D6761, 0x736761, 0x676C65, 0x676100, kEnd, kEnd, kEnd}, // iri
    {0x736C6B, 24, 0x736C6B, 0x736C6F, 0x736B00, kEnd, kEnd, kEnd, kEnd, kEnd}, // slk
    {0x6D616F, 32, 0x6D616F, 0x6D7269, 0x6D6900, kEnd, kEnd, kEnd, kEnd, kEnd}, // mao
    {0x636D6E, 33, 0x636D6E, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // cmn
    {0x797565, 34, 0x797565, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // yue
    {0x68696E, 35, 0x68696E, 0x686900, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // hin
    {0x716161, 41, 0x716161, 0x762E6F, 0x6F7279, 0x6F7267, kEnd, kEnd, kEnd, kEnd}, // qaa
    {0x716162, 101, 0x716162, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // qab
    {0x716163, 102, 0x716163, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // qac
    {0x616420, 42, 0x616420, 0x616400, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // ad(blank)
    {0x636174, 43, 0x636174, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // cat
    {0x76616C, 44, 0x76616C, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // val
    {0x636873, 0x636873, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // chs
    {0x676C67, 0x676C67, 0x676C00, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // glg
    {0x657573, 0x657573, 0x657500, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // eus
    {0x74616D, 59, 0x74616D, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // tam
    {0x657374, 36, 0x657374, 0x657400, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // est
    {0x617261, 39, 0x617261, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // ara
    {0x706572, 40, 0x706572, 0x666173, 0x70656F, kEnd, kEnd, kEnd, kEnd, kEnd}, // per
    {0x746861, 45, 0x746861, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // tha
    {0x686562, 46, 0x686562, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // heb
    {0x696E64, 47, 0x696E64, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // ind
    {0x766965, 48, 0x766965, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // vie
    {0x757264, 49, 0x757264, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // urd
    {0x616672, 50, 0x616672, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // afr
    {0x7A756C, 51, 0x7A756C, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // zul
    {0x78686F, 52, 0x78686F, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // xho
    {0x796F72, 53, 0x796F72, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // yor
    {0x696762, 54, 0x696762, 0x65626F, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // igb
    {0x686175, 55, 0x686175, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // hau
    {0x737761, 56, 0x737761, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // swa
    {0x737768, 57, 0x737768, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // swh
    {0x616D68, 58, 0x616D68, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // amh
    {0x697261, 60, 0x697261, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // ira
    {0x66696C, 61, 0x66696C, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // fil
    {0x6C6974, 62, 0x6C6974, 0x6C7400, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // lit
    {0x6C6176, 63, 0x6C6176, 0x6C7600, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // lav
    {0x736C76, 64, 0x736C76, 0x736C00, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // slv
    {0x616C62, 65, 0x616C62, 0x737169, 0x737100, kEnd, kEnd, kEnd, kEnd, kEnd}, // alb
    {0x756B72, 66, 0x756B72, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // ukr
    {0x6B617A, 67, 0x6B617A, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // kaz
    {0x6D6B64, 68, 0x6D6B64, 0x6D6163, 0x6D6B00, kEnd, kEnd, kEnd, kEnd, kEnd}, // mkd
    {0x6D6179, 69, 0x6D6179, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // may
    {0x6D7361, 103, 0x6D7361, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // msa
    {0x616B61, 73, 0x616B61, 0x616B00, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // aka
    {0x747769, 74, 0x747769, 0x747700, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // twi
    {0x657765, 75, 0x657765, 0x656500, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // ewe
    {0x676161, 76, 0x676161, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // gaa
    {0x6E7A69, 77, 0x6E7A69, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // nzi
    {0x6E626C, 78, 0x6E626C, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // nbl
    {0x6E736F, 79, 0x6E736F, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // nso
    {0x736F74, 80, 0x736F74, 0x737400, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // sot
    {0x737377, 81, 0x737377, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // ssw
    {0x74736F, 82, 0x74736F, 0x747300, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // tso
    {0x74736E, 83, 0x74736E, 0x746E00, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // tsn
    {0x76656E, 84, 0x76656E, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // ven
    {0x6D756C, 0x6D756C, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // mul
    {0x757A62, 85, 0x757A62, 0x757A00, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // uzb
    {0x617A65, 86, 0x617A65, 0x617A00, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // aze
    {0x6D6F6E, 87, 0x6D6F6E, 0x6D6E00, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // mon
    {0x626F73, 88, 0x626F73, 0x627300, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // bos
    {0x62656E, 89, 0x62656E, 0x626E00, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // ben
    {0x74656C, 90, 0x74656C, 0x746500, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // tel
    {0x6D6172, 91, 0x6D6172, 0x6D7200, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // mar
    {0x6B6F6B, 92, 0x6B6F6B, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // kok
    {0x67756A, 93, 0x67756A, 0x677500, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // guj
    {0x6B616E, 94, 0x6B616E, 0x6B6E00, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // kan
    {0x6D616C, 95, 0x6D616C, 0x6D6C00, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // mal
    {0x6F7269, 96, 0x6F7269, 0x6F7200, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // ori
    {0x70616E, 97, 0x70616E, 0x706100, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // pan
    {0x61736D, 98, 0x61736D, 0x617300, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // asm
    {0x646167, 99, 0x646167, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // dag
    {0x78736D, 100, 0x78736D, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // xsm
    {0x756E64, 0x756E64, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // und
    {0x383838, 0x383838, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // 888
    {0x676F73, 0x676F73, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // gos
    {0x736D6F, 105, 0x736D6F, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // smo
    {0x736D69, 106, 0x736D69, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd}, // smi
    {kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd, kEnd},
};

// ---------------------------------------------------------------- segment

TCMultipleStringSegment::~TCMultipleStringSegment()
{
    m_numberBytes = INVALID;
}

TCMultipleStringSegment& TCMultipleStringSegment::operator=(const TCMultipleStringSegment& other)
{
    if (this == &other)
        return *this;
    m_compressionType = other.m_compressionType;
    m_mode = other.m_mode;
    m_numberBytes = other.m_numberBytes;
    m_pBytes.reset();
    if (other.m_pBytes && other.m_numberBytes != INVALID) {
        m_pBytes.reset(new unsigned char[other.m_numberBytes]);
        std::memcpy(m_pBytes.get(), other.m_pBytes.get(), other.m_numberBytes);
    }
    return *this;
}

unsigned int TCMultipleStringSegment::Set(const unsigned char* data, unsigned int size)
{
    m_pBytes.reset();
    if (data == nullptr || size < kSegmentHeader) {
        // Not even the header is here: nothing is read.
        ZUM_LOGD("TCMultipleStringSegment::Set size error %d", static_cast<int>(kSegmentHeader));
        m_compressionType = 0;
        m_mode = 0;
        m_numberBytes = 0;
        return size;
    }
    m_compressionType = data[0];
    m_mode = data[1];
    const unsigned int numberBytes = data[2];
    m_numberBytes = static_cast<unsigned short>(numberBytes);
    if (size < numberBytes + kSegmentHeader) {
        ZUM_LOGD("TCMultipleStringSegment::Set size error %d", static_cast<int>(numberBytes + kSegmentHeader));
        m_numberBytes = static_cast<unsigned short>(size - kSegmentHeader);
    }
    if (m_numberBytes >= 1) {
        m_pBytes.reset(new unsigned char[m_numberBytes]);
        std::memcpy(m_pBytes.get(), data + kSegmentHeader, m_numberBytes);
    }
    return m_numberBytes + kSegmentHeader;
}

unsigned char TCMultipleStringSegment::CompressionType() const
{
    if (!ZUM_ASSERT(m_numberBytes != INVALID))
        return 0;
    return m_compressionType;
}

unsigned char TCMultipleStringSegment::Mode() const
{
    if (!ZUM_ASSERT(m_numberBytes != INVALID))
        return 0;
    return m_mode;
}

unsigned short TCMultipleStringSegment::NumberBytes() const
{
    if (!ZUM_ASSERT(m_numberBytes != INVALID))
        return 0;
    return m_numberBytes;
}

bool TCMultipleStringSegment::GetCompressedStringByte(unsigned char* pData, int* pSize) const
{
    if (!ZUM_ASSERT(m_numberBytes != INVALID && pData && pSize))
        return false;
    if (m_numberBytes < 1 || static_cast<int>(m_numberBytes) > *pSize)
        return false;
    std::memcpy(pData, m_pBytes.get(), m_numberBytes);
    *pSize = m_numberBytes;
    return true;
}

// ---------------------------------------------------------------- string

TCMultipleString::~TCMultipleString()
{
    m_numberSegments = INVALID;
}

TCMultipleString& TCMultipleString::operator=(const TCMultipleString& other)
{
    if (this == &other)
        return *this;
    m_language = other.m_language;
    m_numberSegments = other.m_numberSegments;
    CopyChildren(m_segments, other.m_segments);
    return *this;
}

unsigned int TCMultipleString::Set(const unsigned char* data, unsigned int size)
{
    m_DeleteSegments();
    if (data == nullptr || size < kStringHeader) {
        ZUM_LOGD("TCMultipleString::Set size error %d", static_cast<int>(kStringHeader));
        m_language = 0;
        m_numberSegments = 0;
        return size;
    }
    m_language = (static_cast<unsigned int>(data[0]) << 16) | (data[1] << 8) | data[2];
    m_numberSegments = data[3];
    if (m_numberSegments == 0)
        return kStringHeader;
    // A segment header that does not fit fails the string.
    const unsigned int offset = ReadChildren(m_segments, m_numberSegments, data, size, kStringHeader, kSegmentHeader);
    if (offset <= size)
        return offset;
    ZUM_LOGD("TCMultipleString::Set size error %d", static_cast<int>(offset));
    m_DeleteSegments();
    return size;
}

unsigned short TCMultipleString::NumOfSegments() const
{
    if (!ZUM_ASSERT(m_numberSegments != INVALID))
        return 0;
    return m_numberSegments;
}

TCMultipleStringSegment* TCMultipleString::Segment(int index) const
{
    if (!ZUM_ASSERT(m_numberSegments != INVALID))
        return nullptr;
    if (index < 0 || index >= m_numberSegments || index >= static_cast<int>(m_segments.size()))
        return nullptr;
    return m_segments[static_cast<size_t>(index)].get();
}

// ---------------------------------------------------------------- structure

TCMultipleStringStruct::~TCMultipleStringStruct()
{
    m_numberStrings = INVALID;
}

TCMultipleStringStruct& TCMultipleStringStruct::operator=(const TCMultipleStringStruct& other)
{
    if (this == &other)
        return *this;
    m_numberStrings = other.m_numberStrings;
    CopyChildren(m_strings, other.m_strings);
    return *this;
}

unsigned int TCMultipleStringStruct::Set(const unsigned char* data, unsigned int size)
{
    m_DeleteStrings();
    if (data == nullptr || size < kStructHeader) {
        ZUM_LOGD("TCMultipleStringStruct::Set size error %d", static_cast<int>(kStructHeader));
        m_numberStrings = 0;
        return size;
    }
    m_numberStrings = data[0];
    if (m_numberStrings == 0)
        return kStructHeader;
    // A string header that does not fit fails the structure.
    const unsigned int offset = ReadChildren(m_strings, m_numberStrings, data, size, kStructHeader, kStringHeader);
    if (offset <= size)
        return offset;
    ZUM_LOGD("TCMultipleStringStruct::Set size error %d", static_cast<int>(offset));
    m_DeleteStrings();
    return size;
}

unsigned short TCMultipleStringStruct::NumOfStrings() const
{
    if (!ZUM_ASSERT(m_numberStrings != INVALID))
        return 0;
    return m_numberStrings;
}

TCMultipleString* TCMultipleStringStruct::String(int index) const
{
    if (!ZUM_ASSERT(m_numberStrings != INVALID))
        return nullptr;
    if (index < 0 || index >= m_numberStrings || index >= static_cast<int>(m_strings.size()))
        return nullptr;
    return m_strings[static_cast<size_t>(index)].get();
}

unsigned int TCMultipleStringStruct::MultipleSound(unsigned int value)
{
    // A small language number is compared as it stands, a code case-blind.
    const unsigned int wanted = (value & 0x00FFFF00) == 0 ? value : TCCompareISO8859Char::MakeLowerCase(value);
    for (const unsigned int* row = g_MTSSIGroup[0]; row[0] != kEnd; row += 10)
        for (int member = 1; member < 10 && row[member] != kEnd; ++member)
            if (row[member] == wanted)
                return row[0];
    return kLanguageNoGroup;
}

unsigned int TCMultipleStringStruct::DefaultPreferLanguage(ELanguageCode osdLanguage, int country)
{
    unsigned int language = kOtherCountryNumber;
    if (country == 0 || country == 1) {
        language = kEnglishNumber;
    } else if (country == 2) {
        language = kKoreanNumber;
    } else if (country == 34) {
        language = kPortugueseNumber;
    } else {
        const auto it = std::find_if(std::begin(kDefaultLanguages), std::end(kDefaultLanguages),
                                     [osdLanguage](const TTDefaultLanguage& d) { return d.code == osdLanguage; });
        if (it != std::end(kDefaultLanguages))
            language = it->number;
    }
    ZUM_LOGD("TCMultipleStringStruct::DefaultPreferLanguage Default OSD Language = %d", static_cast<int>(language));
    return language;
}

bool TCMultipleStringStruct::GetMutipleText(ELanguageCode osdLanguage, unsigned int preferLanguage, ECountry country,
                                            char* text, int* length, unsigned int* language) const
{
    return GetMutipleText(osdLanguage, preferLanguage, static_cast<int>(country), text, length, language);
}

bool TCMultipleStringStruct::GetMutipleText(ELanguageCode osdLanguage, unsigned int preferLanguage, int country,
                                            char* text, int* length, unsigned int* language) const
{
    if (length == nullptr || *length < 1 || text == nullptr)
        return false;
    const unsigned int wanted = MultipleSound(preferLanguage);
    const unsigned int fallback = MultipleSound(DefaultPreferLanguage(osdLanguage, country));

    int chosen = -1;
    int fallbackIndex = -1;
    const int count = NumOfStrings();
    for (int i = 0; i < count; ++i) {
        const TCMultipleString* string = String(i);
        if (string == nullptr)
            return false;
        const unsigned int got = MultipleSound(string->ISO639LanguageCode());
        // An exact wish beats any earlier string of the default group.
        if (got == wanted && wanted != kLanguageNoGroup) {
            chosen = i;
            break;
        }
        if (fallbackIndex < 0 && got == fallback)
            fallbackIndex = i;
    }
    if (chosen < 0)
        chosen = fallbackIndex >= 0 ? fallbackIndex : 0;

    const TCMultipleString* string = String(chosen);
    if (string == nullptr) {
        *length = 0;
        return false;
    }
    const int rendered = m_GetMultiStringFromIndex(string, text, *length);
    if (language != nullptr)
        *language = MultipleSound(string->ISO639LanguageCode());
    if (rendered > 0) {
        *length = rendered;
        return true;
    }
    *length = 0;
    return false;
}

int TCMultipleStringStruct::m_GetMultiStringFromIndex(const TCMultipleString* string, char* text,
                                                      int capacity) const
{
    unsigned char* out = reinterpret_cast<unsigned char*>(text);
    TCDtvHuffman huffman;
    int written = 0;
    const int segments = string->NumOfSegments();
    for (int i = 0; i < segments && written < capacity; ++i) {
        const TCMultipleStringSegment* segment = string->Segment(i);
        if (segment == nullptr)
            continue;
        unsigned char input[kSegmentInput] = {};
        int inputLength = kSegmentInput;
        if (!segment->GetCompressedStringByte(input, &inputLength))
            continue;
        // Beyond the work buffer nothing more can be decoded.
        if (written >= kWorkBuffer)
            break;
        unsigned char work[kWorkBuffer] = {};
        unsigned int decoded = static_cast<unsigned int>(kWorkBuffer - written);
        if (!huffman.DecompressString(segment->CompressionType(), input, static_cast<unsigned char>(inputLength),
                                      work, &decoded))
            continue;
        const unsigned char mode = segment->Mode();
        if (IsSkippedMode(mode))
            continue;
        const int count = static_cast<int>(decoded);
        if (mode == kModeUtf16) {
            // UTF-16 on air: the bytes as they stand.
            if (written + count >= capacity) {
                std::memcpy(out + written, work, static_cast<size_t>(capacity - written));
                written = capacity;
                break;
            }
            std::memcpy(out + written, work, static_cast<size_t>(count));
            written += count;
            continue;
        }
        // The mode is the high byte of each character.
        const int characters = written + 2 * count >= capacity ? (capacity - written) / 2 : count;
        for (int c = 0; c < characters; ++c) {
            out[written++] = mode;
            out[written++] = work[c];
        }
    }
    return written;
}

// ---------------------------------------------------------------- multilingual text

void TCMultilingualText::Set(unsigned char mode, const unsigned char* text, unsigned char length)
{
    m_mode = mode;
    m_length = text ? length : 0;
    if (m_length > 0)
        std::memcpy(m_text, text, m_length);
}

int TCMultilingualText::GetSgment(unsigned char* out, unsigned char* size) const
{
    if (m_length == 0 || out == nullptr || size == nullptr)
        return 0;
    if (m_mode == kModeUtf16) {
        const unsigned char copied = std::min(*size, m_length);
        std::memcpy(out, m_text, copied);
        *size = copied;
        return 1;
    }
    // Here the high byte is 0, not the mode.
    const int characters = std::min<int>(*size / 2, m_length);
    for (int c = 0; c < characters; ++c) {
        out[2 * c] = 0x00;
        out[2 * c + 1] = m_text[c];
    }
    *size = static_cast<unsigned char>(2 * characters);
    return 1;
}

bool TCMultilingualTextString::Set(const unsigned char* data, int size)
{
    if (!ZUM_ASSERT(m_numberStrings == 0))
        return false;
    if (data == nullptr)
        return size <= 0;
    int offset = 0;
    // Mode, length, text; a record cut by the end keeps the text that is there.
    while (offset + 2 <= size) {
        const unsigned char mode = data[offset];
        const int length = std::min<int>(data[offset + 1], size - offset - 2);
        std::unique_ptr<TCMultilingualText> text(new TCMultilingualText);
        text->Set(mode, data + offset + 2, static_cast<unsigned char>(length));
        m_texts.push_back(std::move(text));
        ++m_numberStrings;
        offset += length + 2;
    }
    return true;
}

TCMultilingualText* TCMultilingualTextString::MultilingualText(unsigned int index) const
{
    return index < m_texts.size() ? m_texts[index].get() : nullptr;
}

// ---------------------------------------------------------------- UTF-16 block

TCUniCodeText::~TCUniCodeText() = default;

TCUniCodeText& TCUniCodeText::operator=(const TCUniCodeText& other)
{
    if (this == &other)
        return *this;
    DeleteAll();
    m_language = other.m_language;
    if (other.m_pText && other.m_length > 0) {
        m_pText.reset(new unsigned char[other.m_length]);
        std::memcpy(m_pText.get(), other.m_pText.get(), other.m_length);
        m_length = other.m_length;
    }
    return *this;
}

bool TCUniCodeText::SetUniCodeText(int language, unsigned char* text, unsigned short length)
{
    if (!ZUM_ASSERT(length > 0) || text == nullptr)
        return false;
    DeleteAll();
    m_language = language;
    m_pText.reset(new unsigned char[length]);
    std::memcpy(m_pText.get(), text, length);
    m_length = length;
    return true;
}

bool TCUniCodeText::UniCodeText(unsigned char* pString, unsigned short* length) const
{
    if (!ZUM_ASSERT(pString && length && *length > 0))
        return false;
    if (!m_pText) {
        *length = 0;
        return true;
    }
    if (m_length > *length) {
        ZUM_LOGD("UniCodeText leng does not correct... text length = %d , input length = %hu",
                 static_cast<int>(m_length), *length);
        std::memcpy(pString, m_pText.get(), *length);
        return false;
    }
    std::memcpy(pString, m_pText.get(), m_length);
    *length = static_cast<unsigned short>(m_length);
    return true;
}

void TCUniCodeText::DeleteAll()
{
    m_pText.reset();
    m_length = 0;
}
