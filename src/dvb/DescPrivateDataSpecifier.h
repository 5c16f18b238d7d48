#ifndef ZUM_DVB_DESCPRIVATEDATASPECIFIER_H
#define ZUM_DVB_DESCPRIVATEDATASPECIFIER_H

#include "../core/BaseDesc.h"

// private_data_specifier_descriptor (0x5F): who defines the private tags behind it.
class ZUM_EXPORT TCDescPrivateDataSpecifier : public TCBaseDesc {
public:
    TCDescPrivateDataSpecifier();
    ~TCDescPrivateDataSpecifier() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned int PrivateDataSpecifier() const { return m_privateDataSpecifier; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned int m_privateDataSpecifier = 0;
};

#endif
