#ifndef ZUM_ISDB_DESCCACONTRACTINFO_H
#define ZUM_ISDB_DESCCACONTRACTINFO_H

#include "../core/BaseDesc.h"

// Conditional access descriptors of ARIB program tables: the contract of a
// program, the services a CA broadcaster group serves, and where the EMMs
// of a CA system are sent. Data formats only: the bytes are split into fields.

// CA_contract_info_descriptor (0xCB).
class ZUM_EXPORT TCDescCAContractInfo : public TCBaseDesc {
public:
    TCDescCAContractInfo();
    ~TCDescCAContractInfo() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned short CASystemId() const { return m_caSystemId; }
    unsigned char CAUnitId() const { return m_caUnitId; }
    unsigned char NumOfComponent() const { return m_numOfComponent; }
    // Set with their bytes only.
    unsigned char ContractVerificationInfoLength() const { return m_contractVerificationInfo.length; }
    unsigned char FeeNameLength() const { return m_feeName.length; }
    // Each 0 for a negative index or one out of range.
    int ComponentTag(int index) const;
    int ContractVerificationInfo(int index) const;
    int FeeName(int index) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned short m_caSystemId = 0;
    unsigned char m_caUnitId = 0;
    unsigned char m_numOfComponent = 0;
    TTRawRun m_componentTags;
    TTRawRun m_contractVerificationInfo;
    TTRawRun m_feeName;
};

// CA_service_descriptor (0xCC) of a program table.
class ZUM_EXPORT TCDescCAService : public TCBaseDesc {
public:
    TCDescCAService();
    ~TCDescCAService() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned short CASystemId() const { return m_caSystemId; }
    unsigned char CABroadcasterGroupId() const { return m_caBroadcasterGroupId; }
    unsigned char MessageControl() const { return m_messageControl; }
    int Count() const { return m_count; }
    // 0 out of range.
    int ServiceID(int index) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned short m_caSystemId = 0;
    unsigned char m_caBroadcasterGroupId = 0;
    unsigned char m_messageControl = 0;
    // The ids are read from the raw copy, two bytes each from byte 4.
    int m_count = 0;
};

// CA_EMM_TS_descriptor (0xCA): all bits set until a whole body is read.
class ZUM_EXPORT TCDescCA_EMM_TS : public TCBaseDesc {
public:
    TCDescCA_EMM_TS();
    ~TCDescCA_EMM_TS() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned short CASystemId() const { return m_caSystemId; }
    unsigned short TransportStreamId() const { return m_transportStreamId; }
    unsigned short OriginalNetworkId() const { return m_originalNetworkId; }
    // Minutes the receiver stays powered for the EMMs.
    unsigned char PowerSupplyPeriod() const { return m_powerSupplyPeriod; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned short m_caSystemId = 0xFFFF;
    unsigned short m_transportStreamId = 0xFFFF;
    unsigned short m_originalNetworkId = 0xFFFF;
    unsigned char m_powerSupplyPeriod = 0xFF;
};

#endif
