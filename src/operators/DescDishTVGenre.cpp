#include "DescDishTVGenre.h"

#include "../core/ByteReader.h"

TCDescDishTVGenre::TCDescDishTVGenre() : TCBaseDesc(0x54) {}

// The genres of earlier parses stay: a second parse adds to them.
void TCDescDishTVGenre::DeleteAll() {}

TCBaseDesc* TCDescDishTVGenre::Fork() const
{
    return t_ForkAs(new TCDescDishTVGenre());
}

int TCDescDishTVGenre::t_Parse(const unsigned char* payload, unsigned char length)
{
    if (length < 2)
        return 0;
    const int count = length / 2;
    m_genres.reserve(m_genres.size() + static_cast<size_t>(count));
    for (int i = 0; i < count; ++i)
        m_genres.push_back(static_cast<unsigned short>(ReadBE16(payload + 2 * i)));
    return count * 2;
}

TCDescDishTVSVL::TCDescDishTVSVL() : TCBaseDesc(0x86) {}

void TCDescDishTVSVL::DeleteAll()
{
    m_version = 0xFFFF;
}

TCBaseDesc* TCDescDishTVSVL::Fork() const
{
    return t_ForkAs(new TCDescDishTVSVL());
}

int TCDescDishTVSVL::t_Parse(const unsigned char* payload, unsigned char length)
{
    if (length < 2)
        return 0;
    m_version = static_cast<unsigned short>(ReadBE16(payload));
    return 2;
}
