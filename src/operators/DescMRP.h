#ifndef ZUM_OPERATORS_DESCMRP_H
#define ZUM_OPERATORS_DESCMRP_H

#include "../core/BaseDesc.h"

// The maximum retail price of a service, as Dish TV (0x87 under 0xECCA0001)
// and GTPL (0xBA under 0x62E1) send it, each in a format of its own.
class ZUM_EXPORT TCDescMRP : public TCBaseDesc {
public:
    static constexpr int kNoPrice = -1;
    static constexpr int kFree = -2;

    TCDescMRP(int tag, unsigned int privateDataSpecifier);
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // Hundredths of the currency unit, or kNoPrice, or kFree.
    int Price() const { return m_price; }
    unsigned int PrivateDataSpecifier() const { return m_pds; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    int m_ParseDishTv(const unsigned char* payload, int length);
    int m_ParseGTPL(const unsigned char* payload, int length);

    unsigned int m_pds;
    int m_price = kNoPrice;
};

#endif
