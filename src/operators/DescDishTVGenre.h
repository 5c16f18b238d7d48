#ifndef ZUM_OPERATORS_DESCDISHTVGENRE_H
#define ZUM_OPERATORS_DESCDISHTVGENRE_H

#include "../core/BaseDesc.h"

// Dish TV's genre descriptor (tag 0x54 under specifier 0xECCA0001). Its fields
// come with the Dish TV descriptors; until then it keeps the raw bytes only,
// which is what lets the loop tell it from a foreign class under 0x54.
class ZUM_EXPORT TCDescDishTVGenre : public TCBaseDesc {
public:
    TCDescDishTVGenre();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;
};

#endif
