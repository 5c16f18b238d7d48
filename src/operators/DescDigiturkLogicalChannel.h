#ifndef ZUM_OPERATORS_DESCDIGITURKLOGICALCHANNEL_H
#define ZUM_OPERATORS_DESCDIGITURKLOGICALCHANNEL_H

// Channel numbers of operators whose descriptor is not a loop of four-byte
// entries: each decodes its own body and answers through IDescLogicalChannel.

#include "DescLogicalChannel.h"

// Digiturk (0x83 under 0x2FFFFF): a head, then entries of 8 bytes with the
// two Digiturk ids of each service.
class ZUM_EXPORT TCDescDigiturkLogicalChannel : public TCDescLogicalChannel {
public:
    explicit TCDescDigiturkLogicalChannel(unsigned int privateDataSpecifier);
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    bool GetDPIds(unsigned short serviceId, unsigned short& first, unsigned short& second) const override;
    // The head value times 1000, and its flag; 0xFFFFFFFF until a body is taken.
    unsigned int HeadValue() const { return m_headValue; }
    unsigned int HeadFlag() const { return m_headFlag; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned int m_headValue = 0xFFFFFFFF;
    unsigned int m_headFlag = 0xFFFFFFFF;
};

// Polsat (0x81 under the receiver's 0x4FFFFF): entries of 6 bytes, each with
// Polsat's own service id.
class ZUM_EXPORT TCDescPolsatLogicalChannel : public TCDescLogicalChannel {
public:
    static constexpr unsigned int SYSTEM_INVALID_CP_SRV_ID = 0xFFFFFFFF;
    // Width in bytes of each of the three fields of an entry.
    static constexpr int DESCRIPTOR_DATA_LENGTH = 2;

    explicit TCDescPolsatLogicalChannel(unsigned int privateDataSpecifier);
    TCBaseDesc* Fork() const override;

    bool PolsatServiceId(unsigned short serviceId, std::list<unsigned short>& polsatIds) const override;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;
};

// Telekarta (0x83 under 0x5FFFFF): one service id, then 16-bit blocks; the
// first block of package 0 gives the service its number.
class ZUM_EXPORT TCDescTelekartaLogicalChannel : public TCDescLogicalChannel {
public:
    static constexpr int DESCRIPTOR_PACKAGE = 0;
    static constexpr int DESCRIPTOR_DATA_BLOCK_LENGTH = 2;
    static constexpr int DESCRIPTOR_SERIVCE_ID_LENGTH = 2;

    explicit TCDescTelekartaLogicalChannel(unsigned int privateDataSpecifier);
    TCBaseDesc* Fork() const override;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    struct TTBlock {
        bool visible;
        bool second;
        int package;
        unsigned short number;
    };
    static TTBlock m_ParseBlockData(unsigned int block);
};

#endif
