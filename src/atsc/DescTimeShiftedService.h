#ifndef ZUM_ATSC_DESCTIMESHIFTEDSERVICE_H
#define ZUM_ATSC_DESCTIMESHIFTEDSERVICE_H

// The descriptors of a virtual channel's number and kind: time-shifted
// copies, two-part numbers, channel properties and the channel type.

#include <vector>

#include "../core/BaseDesc.h"

// time_shifted_service_descriptor (0xA2).
class ZUM_EXPORT TCDescTimeShiftedService : public TCBaseDesc {
public:
    TCDescTimeShiftedService();
    ~TCDescTimeShiftedService() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char NumOfServices() const { return static_cast<unsigned char>(m_services.size()); }
    // 0 when the index is not below the count.
    int TimeShift(int index) const;
    int MajorChannelNumber(int index) const;
    int MinorChannelNumber(int index) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    struct TTService {
        unsigned short timeShift;
        unsigned short major;
        unsigned short minor;
    };
    // Kept decoded: a body whose count does not match leaves the earlier parse in place.
    std::vector<TTService> m_services;
};

// two_part_channel_number_descriptor (0x94); no factory creates it.
class ZUM_EXPORT TCDescTwoPartChannel : public TCBaseDesc {
public:
    TCDescTwoPartChannel();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned short MajorChannelNumber() const { return m_major; }
    unsigned short MinorChannelNumber() const { return m_minor; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned short m_major = 0xFFFF;
    unsigned short m_minor = 0xFFFF;
};

// channel_properties_descriptor (0x95); no factory creates it.
class ZUM_EXPORT TCDescChannelProperities : public TCBaseDesc {
public:
    TCDescChannelProperities();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned short ChannelTSID() const { return m_channelTsid; }
    unsigned char OutOfBandChannel() const { return m_outOfBand; }
    unsigned char AccessControlled() const { return m_accessControlled; }
    unsigned char HideGuide() const { return m_hideGuide; }
    unsigned char ServiceType() const { return m_serviceType; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned short m_channelTsid = 0;
    unsigned char m_outOfBand = 0;
    unsigned char m_accessControlled = 0;
    unsigned char m_hideGuide = 0;
    unsigned char m_serviceType = 0;
};

// Channel type descriptor (0xE0): two flags and a type, which the caller reads.
class ZUM_EXPORT TCDescChannelType : public TCBaseDesc {
public:
    TCDescChannelType();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char Flag1() const { return m_flag1; }
    unsigned char Flag2() const { return m_flag2; }
    // 0xFF until a body of one byte came.
    unsigned char ChannelType() const { return m_type; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_flag1 = 0;
    unsigned char m_flag2 = 0;
    unsigned char m_type = 0xFF;
};

#endif
