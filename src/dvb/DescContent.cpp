#include "DescContent.h"

#include <cstddef>

#include "../core/ByteReader.h"

// ---------------------------------------------------------------- content

TCDescContent::TCDescContent() : TCBaseDesc(0x54) {}

TCDescContent::~TCDescContent()
{
    DeleteAll();
}

void TCDescContent::DeleteAll()
{
    m_nibbles.clear();
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

int TCDescContent::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    TCByteReader reader(payload, length);
    m_nibbles.reserve(length / 2 * 4);
    while (reader.Has(2)) {
        const unsigned int entry = reader.U16();
        m_nibbles.push_back(static_cast<unsigned char>(entry >> 12));
        m_nibbles.push_back(static_cast<unsigned char>((entry >> 8) & 0x0F));
        m_nibbles.push_back(static_cast<unsigned char>((entry >> 4) & 0x0F));
        m_nibbles.push_back(static_cast<unsigned char>(entry & 0x0F));
    }
    m_count = static_cast<unsigned char>(m_nibbles.size() / 4);
    return reader.Consumed();
}

unsigned char TCDescContent::m_Nibble(int index, int which) const
{
    if (index < 0 || index >= m_count)
        return 0;
    return m_nibbles[static_cast<std::size_t>(index) * 4 + static_cast<std::size_t>(which)];
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
    m_ratings.clear();
    m_count = 0;
}

TCBaseDesc* TCDescParentalRating::Fork() const
{
    return t_ForkAs(new TCDescParentalRating());
}

int TCDescParentalRating::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    TCByteReader reader(payload, length);
    while (reader.Has(4)) {
        TTRating entry;
        entry.countryCode = reader.U24();
        entry.rating = static_cast<unsigned char>(reader.U8());
        m_ratings.push_back(entry);
    }
    m_count = static_cast<unsigned char>(m_ratings.size());
    return reader.Consumed();
}

unsigned int TCDescParentalRating::CountryCode(int index) const
{
    return index >= 0 && index < m_count ? m_ratings[static_cast<std::size_t>(index)].countryCode : 0;
}

unsigned char TCDescParentalRating::Rating(int index) const
{
    return index >= 0 && index < m_count ? m_ratings[static_cast<std::size_t>(index)].rating : 0;
}
