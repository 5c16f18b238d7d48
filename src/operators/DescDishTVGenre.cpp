#include "DescDishTVGenre.h"

TCDescDishTVGenre::TCDescDishTVGenre() : TCBaseDesc(0x54) {}

void TCDescDishTVGenre::DeleteAll() {}

TCBaseDesc* TCDescDishTVGenre::Fork() const
{
    return t_ForkAs(new TCDescDishTVGenre());
}

int TCDescDishTVGenre::t_Parse(const unsigned char* /*payload*/, unsigned char length)
{
    return length;
}
