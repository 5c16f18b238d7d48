#ifndef ZUM_OPERATORS_DESCADBLCNV2ACTIVATE_H
#define ZUM_OPERATORS_DESCADBLCNV2ACTIVATE_H

#include "../core/BaseDesc.h"

// ADB's activation of version-2 channel numbers: extension 0xA3 of tag 0x7F
// under specifier 0x41444250 (tag 0x7FA3). Two bytes, then text holding "ID=" and a number.
class ZUM_EXPORT TCDescADBLCNv2Activate : public TCBaseDesc {
public:
    TCDescADBLCNv2Activate();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // 0xFFFFFFFF until the body sends them.
    unsigned int FirstByte() const { return m_firstByte; }
    unsigned int SecondByte() const { return m_secondByte; }
    // The number behind "ID=", or -1 (0xFFFFFFFF).
    unsigned int ID() const { return m_id; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned int m_firstByte = 0xFFFFFFFF;
    unsigned int m_secondByte = 0xFFFFFFFF;
    unsigned int m_id = 0xFFFFFFFF;
};

#endif
