#include "DescCAContractInfo.h"

#include "../core/ByteReader.h"
#include "../core/RecordAt.h"

namespace {

const int kServiceIdSize = 2;

// The byte at `index` of a run; 0 out of range.
int ByteOf(const unsigned char* run, int count, int index)
{
    const unsigned char* at = RawRecordAt(run, count, 1, index);
    return at ? *at : 0;
}

} // namespace

// ---------------------------------------------------------------- CA contract info

TCDescCAContractInfo::TCDescCAContractInfo() : TCBaseDesc(0xCB) {}

TCDescCAContractInfo::~TCDescCAContractInfo()
{
    DeleteAll();
}

void TCDescCAContractInfo::DeleteAll()
{
    m_caSystemId = 0;
    m_caUnitId = 0;
    m_numOfComponent = 0;
    m_componentTags = TTRawRun();
    m_contractVerificationInfo = TTRawRun();
    m_feeName = TTRawRun();
}

TCBaseDesc* TCDescCAContractInfo::Fork() const
{
    return t_ForkAs(new TCDescCAContractInfo());
}

int TCDescCAContractInfo::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length < 5)
        return 0;
    m_caSystemId = static_cast<unsigned short>(ReadBE16(payload));
    m_caUnitId = payload[2] >> 4;
    m_numOfComponent = payload[2] & 0x0F;
    if (length - 3 < m_numOfComponent)
        return 0;
    int position = 3;
    m_componentTags = t_Run(payload, payload + position, m_numOfComponent);
    position += m_numOfComponent;
    // Each length byte, then its bytes: a length byte that is not there, or
    // bytes that are not, refuse the rest.
    for (TTRawRun* run : {&m_contractVerificationInfo, &m_feeName}) {
        if (position >= length)
            return 0;
        const int size = payload[position++];
        if (size > length - position)
            return 0;
        *run = t_Run(payload, payload + position, size);
        position += size;
    }
    return position;
}

int TCDescCAContractInfo::ComponentTag(int index) const
{
    return ByteOf(t_At(m_componentTags), m_componentTags.length, index);
}

int TCDescCAContractInfo::ContractVerificationInfo(int index) const
{
    return ByteOf(t_At(m_contractVerificationInfo), m_contractVerificationInfo.length, index);
}

int TCDescCAContractInfo::FeeName(int index) const
{
    return ByteOf(t_At(m_feeName), m_feeName.length, index);
}

// ---------------------------------------------------------------- CA service

TCDescCAService::TCDescCAService() : TCBaseDesc(0xCC) {}

TCDescCAService::~TCDescCAService()
{
    DeleteAll();
}

void TCDescCAService::DeleteAll()
{
    m_caSystemId = 0;
    m_caBroadcasterGroupId = 0;
    m_messageControl = 0;
    m_count = 0;
}

TCBaseDesc* TCDescCAService::Fork() const
{
    return t_ForkAs(new TCDescCAService());
}

int TCDescCAService::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length < 4)
        return 0;
    m_caSystemId = static_cast<unsigned short>(ReadBE16(payload));
    m_caBroadcasterGroupId = payload[2];
    m_messageControl = payload[3];
    // An odd last byte is left unread.
    m_count = length / kServiceIdSize - 2;
    return 4 + kServiceIdSize * m_count;
}

int TCDescCAService::ServiceID(int index) const
{
    const unsigned char* payload = t_Payload();
    const unsigned char* at = RawRecordAt(payload ? payload + 4 : nullptr, m_count, kServiceIdSize, index);
    return at ? static_cast<int>(ReadBE16(at)) : 0;
}

// ---------------------------------------------------------------- CA EMM TS

TCDescCA_EMM_TS::TCDescCA_EMM_TS() : TCBaseDesc(0xCA) {}

TCDescCA_EMM_TS::~TCDescCA_EMM_TS()
{
    DeleteAll();
}

void TCDescCA_EMM_TS::DeleteAll()
{
    m_caSystemId = 0xFFFF;
    m_transportStreamId = 0xFFFF;
    m_originalNetworkId = 0xFFFF;
    m_powerSupplyPeriod = 0xFF;
}

TCBaseDesc* TCDescCA_EMM_TS::Fork() const
{
    return t_ForkAs(new TCDescCA_EMM_TS());
}

int TCDescCA_EMM_TS::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length < 7)
        return 0;
    m_caSystemId = static_cast<unsigned short>(ReadBE16(payload));
    m_transportStreamId = static_cast<unsigned short>(ReadBE16(payload + 2));
    m_originalNetworkId = static_cast<unsigned short>(ReadBE16(payload + 4));
    m_powerSupplyPeriod = payload[6];
    return 7;
}
