#ifndef ZUM_OPERATORS_DESCCHANNELORDER_H
#define ZUM_OPERATORS_DESCCHANNELORDER_H

// Channel numbers and orders of operators that answer through interfaces of
// their own. The entries are fixed-size records, read from the raw copy on access.

#include <map>

#include "../core/BaseDesc.h"
#include "../dvb/ServiceKey.h"

// Polsat's channel list info (0xD1 under the receiver's 0x4FFFFF): one record of 8 bytes.
class ZUM_EXPORT TCDescPolsatChannelListInfo : public TCBaseDesc {
public:
    static constexpr int DESCRIPTOR_DEFAULT_VERSION = 255;
    static constexpr int DESCRIPTOR_DEFAULT_OTHER = 1000;
    static constexpr int DESCRIPTOR_DEFAULT_UPDATE = 262144;
    static constexpr int DESCRIPTOR_VERSION_LENGTH = 1;
    static constexpr int DESCRIPTOR_OTHER_LENGTH = 2;
    static constexpr int DESCRIPTOR_UPDATE_LENGTH = 3;

    struct TSChannelListInfo {
        unsigned int version = DESCRIPTOR_DEFAULT_VERSION;
        unsigned int firstOther = DESCRIPTOR_DEFAULT_OTHER;
        unsigned int secondOther = DESCRIPTOR_DEFAULT_OTHER;
        unsigned int update = DESCRIPTOR_DEFAULT_UPDATE;
    };

    TCDescPolsatChannelListInfo();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    TSChannelListInfo GetChannelListInfo() const { return m_info; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    TSChannelListInfo m_info;
};

// Fransat's channel numbers (0x83 under 0x55F): DVB triplet and number, 8 bytes an entry.
class ZUM_EXPORT TCDescEutelsatChannelNumber : public TCBaseDesc {
public:
    TCDescEutelsatChannelNumber();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // Replaces `services` with the entries; equal triplets in the order sent.
    void GetServices(std::multimap<TCServiceKey, unsigned short>& services) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    int m_count = 0;
};

// Digital+'s private channel list (0x82 and 0x84 under 0x1FFFFF): service id and number.
class ZUM_EXPORT TCDescSogecablePrivateChannelList : public TCBaseDesc {
public:
    explicit TCDescSogecablePrivateChannelList(int tag);
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // The first entry of the service wins; `number` is untouched without one.
    bool GetChannelNumber(unsigned short serviceId, unsigned short& number) const;
    // The entries as sent; 0 for an index outside them.
    int NumOfEntries() const { return m_count; }
    unsigned short ServiceId(int index) const;
    unsigned short ChannelNumber(int index) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    int m_count = 0;
};

// NXT's service order (0x93 under 0x6002 and 0x6003): service id and order pairs.
class ZUM_EXPORT TCDescNXTServiceOrder : public TCBaseDesc {
public:
    TCDescNXTServiceOrder();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned int Count() const { return m_count; }
    // 0 for an index not below the count.
    unsigned short ServiceId(int index) const;
    unsigned short ServiceOrder(int index) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned int m_count = 0;
};

// Otau's channel order (0xE4 under the receiver's 0x3FFFFF): service id and a 12-bit order, 5 bytes an entry.
class ZUM_EXPORT TCDescOtauChannelOrder : public TCBaseDesc {
public:
    TCDescOtauChannelOrder();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // The last order sent for the service; 0xFFFFFFFF when it is absent.
    unsigned int GetOrder(unsigned short serviceId) const;
    // The whole entries as sent; 0 for an index outside them.
    int NumOfEntries() const { return m_count; }
    unsigned short ServiceId(int index) const;
    unsigned short Order(int index) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    int m_count = 0;
};

#endif
