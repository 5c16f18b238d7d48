#include "DescContent.h"

#include "../core/ByteReader.h"
#include "../core/RecordAt.h"

namespace {

const int kContentEntrySize = 2;
const int kRatingEntrySize = 4;

} // namespace

// ---------------------------------------------------------------- content

TCDescContent::TCDescContent() : TCBaseDesc(0x54) {}

TCDescContent::~TCDescContent()
{
    DeleteAll();
}

void TCDescContent::DeleteAll()
{
    m_count = 0;
}

TCBaseDesc* TCDescContent::Fork() const
{
    TCDescContent* clone = new TCDescContent();
    // The loop's specifier is not in the raw bytes: it goes over before the decode.
    if (m_rawLength >= 1)
        clone->m_pds = m_pds;
    return t_ForkAs(clone);
}

int TCDescContent::t_Parse(const unsigned char* /*payload*/, unsigned char length)
{
    m_count = static_cast<unsigned char>(length / kContentEntrySize);
    return m_count * kContentEntrySize;
}

unsigned char TCDescContent::m_Nibble(int index, int which) const
{
    const unsigned char* entry = RawRecordAt(t_Payload(), m_count, kContentEntrySize, index);
    if (!entry)
        return 0;
    const unsigned char byte = entry[which / 2];
    return static_cast<unsigned char>(which % 2 == 0 ? byte >> 4 : byte & 0x0F);
}

unsigned char TCDescContent::ContentNibbleLevel1(int index) const
{
    return m_Nibble(index, 0);
}

unsigned char TCDescContent::ContentNibbleLevel2(int index) const
{
    return m_Nibble(index, 1);
}

unsigned char TCDescContent::UserNibble1(int index) const
{
    return m_Nibble(index, 2);
}

unsigned char TCDescContent::UserNibble2(int index) const
{
    return m_Nibble(index, 3);
}

// ---------------------------------------------------------------- parental rating

TCDescParentalRating::TCDescParentalRating() : TCBaseDesc(0x55) {}

TCDescParentalRating::~TCDescParentalRating()
{
    DeleteAll();
}

void TCDescParentalRating::DeleteAll()
{
    m_count = 0;
}

TCBaseDesc* TCDescParentalRating::Fork() const
{
    return t_ForkAs(new TCDescParentalRating());
}

int TCDescParentalRating::t_Parse(const unsigned char* /*payload*/, unsigned char length)
{
    m_count = static_cast<unsigned char>(length / kRatingEntrySize);
    return m_count * kRatingEntrySize;
}

unsigned int TCDescParentalRating::CountryCode(int index) const
{
    const unsigned char* entry = RawRecordAt(t_Payload(), m_count, kRatingEntrySize, index);
    return entry ? ReadBE24(entry) : 0;
}

unsigned char TCDescParentalRating::Rating(int index) const
{
    const unsigned char* entry = RawRecordAt(t_Payload(), m_count, kRatingEntrySize, index);
    return entry ? entry[3] : 0;
}
