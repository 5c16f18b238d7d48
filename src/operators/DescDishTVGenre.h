#ifndef ZUM_OPERATORS_DESCDISHTVGENRE_H
#define ZUM_OPERATORS_DESCDISHTVGENRE_H

#include <vector>

#include "../core/BaseDesc.h"

// Dish TV's genre descriptor (tag 0x54 under specifier 0xECCA0001): 16-bit
// genres. A parse adds to the genres held, so they are kept as numbers.
class ZUM_EXPORT TCDescDishTVGenre : public TCBaseDesc {
public:
    TCDescDishTVGenre();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    const std::vector<unsigned short>& Genres() const { return m_genres; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    std::vector<unsigned short> m_genres;
};

// Dish TV's service list version (0x86 under specifier 0xECCA0001).
class ZUM_EXPORT TCDescDishTVSVL : public TCBaseDesc {
public:
    TCDescDishTVSVL();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // 0xFFFF until a body of two bytes was read.
    unsigned short GetVersion() const { return m_version; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned short m_version = 0xFFFF;
};

#endif
