#ifndef ZUM_OPERATORS_DESCDSMARTIDENTIFIER_H
#define ZUM_OPERATORS_DESCDSMARTIDENTIFIER_H

#include <vector>

#include "../dvb/DescSatelliteDeliverySystem.h"

// D-Smart's identifier descriptor (0xCE under specifier 0x6001, operator 68):
// typed ids with one to four data bytes each.
class ZUM_EXPORT TCDescDSmartIdentifier : public TCBaseDesc {
public:
    struct TSIdentifierInfo {
        unsigned char type = 0;
        unsigned short id = 0;
        std::vector<unsigned char> data;
    };

    TCDescDSmartIdentifier();
    ~TCDescDSmartIdentifier() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // Replaces `list` with the records, read from the raw copy.
    void GetIdentifierInfoList(std::vector<TSIdentifierInfo>& list) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;
};

// D-Smart's satellite delivery system (0xE3, 0xED): the standard body and a
// 16-bit value behind it.
class ZUM_EXPORT TCDescDSmartSatelliteDeliverySystem : public TCDescSatelliteDeliverySystem {
public:
    explicit TCDescDSmartSatelliteDeliverySystem(int tag);
    TCBaseDesc* Fork() const override;
    void DeleteAll() override;

    // 0xFFFF until a whole body was read.
    unsigned short PrivateValue() const { return m_value; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned short m_value = 0xFFFF;
};

#endif
