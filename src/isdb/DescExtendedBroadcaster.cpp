#include "DescExtendedBroadcaster.h"

#include "../core/ByteReader.h"
#include "../core/RecordAt.h"
#include "../dvb/DescText.h"

namespace {

// original_network_id and broadcaster_id.
const int kBroadcasterEntrySize = 3;
// Days from MJD 0 to the library's epoch.
const unsigned int kEpochMjd = 44244;

} // namespace

// ---------------------------------------------------------------- extended broadcaster

TCDescExtendedBroadcaster::TCDescExtendedBroadcaster() : TCBaseDesc(0xCE) {}

TCDescExtendedBroadcaster::~TCDescExtendedBroadcaster()
{
    DeleteAll();
}

void TCDescExtendedBroadcaster::DeleteAll()
{
    m_broadcasterType = 0;
    m_terrestrialBroadcasterId = 0;
    m_numberOfAffiliationIdLoop = 0;
    m_numberOfBroadcasterIdLoop = 0;
    m_affiliationIds = TTRawRun();
    m_broadcasterEntries = TTRawRun();
    m_numOfBroadcasterEntry = 0;
    m_privateData = TTRawRun();
    m_otherData = TTRawRun();
}

TCBaseDesc* TCDescExtendedBroadcaster::Fork() const
{
    return t_ForkAs(new TCDescExtendedBroadcaster());
}

int TCDescExtendedBroadcaster::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length == 0)
        return 0;
    m_broadcasterType = payload[0] >> 4;
    if (m_broadcasterType != 1 && m_broadcasterType != 2) {
        if (length > 1)
            m_otherData = t_Run(payload, payload + 1, length - 1);
        return length;
    }
    if (length < 4)
        return 1;
    m_terrestrialBroadcasterId = static_cast<unsigned short>(ReadBE16(payload + 1));
    m_numberOfAffiliationIdLoop = payload[3] >> 4;
    m_numberOfBroadcasterIdLoop = payload[3] & 0x0F;
    const int affiliations = m_numberOfAffiliationIdLoop;
    const int entries = m_numberOfBroadcasterIdLoop;
    if (4 + affiliations + kBroadcasterEntrySize * entries > length)
        return 4;
    const unsigned char* at = payload + 4;
    m_affiliationIds = t_Run(payload, at, affiliations);
    at += affiliations;
    m_broadcasterEntries = t_Run(payload, at, kBroadcasterEntrySize * entries);
    m_numOfBroadcasterEntry = entries;
    at += kBroadcasterEntrySize * entries;
    if (at < payload + length)
        m_privateData = t_Run(payload, at, static_cast<int>(payload + length - at));
    return length;
}

unsigned char TCDescExtendedBroadcaster::AffiliationId(int index) const
{
    const unsigned char* at = RawRecordAt(t_At(m_affiliationIds), m_affiliationIds.length, 1, index);
    return at ? *at : 0;
}

unsigned int TCDescExtendedBroadcaster::BroadcasterEntry(int index) const
{
    const unsigned char* at =
        RawRecordAt(t_At(m_broadcasterEntries), m_numOfBroadcasterEntry, kBroadcasterEntrySize, index);
    return at ? (ReadBE16(at) | (static_cast<unsigned int>(at[2]) << 16)) : 0;
}

// ---------------------------------------------------------------- SI prime TS

TCDescSIPrimeTS::TCDescSIPrimeTS() : TCBaseDesc(0xDA) {}

TCDescSIPrimeTS::~TCDescSIPrimeTS()
{
    DeleteAll();
}

void TCDescSIPrimeTS::DeleteAll()
{
    m_parameterVersion = 0;
    m_updateTime = 0;
    m_siPrimeTsNetworkId = 0;
    m_siPrimeTransportStreamId = 0;
    m_items.clear();
}

TCBaseDesc* TCDescSIPrimeTS::Fork() const
{
    return t_ForkAs(new TCDescSIPrimeTS());
}

unsigned int TCDescSIPrimeTS::m_ConvertMJD(unsigned short date)
{
    const unsigned int mjd = ((date & 0xFFu) << 8) | (date >> 8);
    // A date before the epoch wraps in 32 bits; the standard gives none.
    return (mjd - kEpochMjd) * 86400u;
}

int TCDescSIPrimeTS::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length < 7)
        return 0;
    m_parameterVersion = payload[0];
    m_updateTime = m_ConvertMJD(static_cast<unsigned short>(payload[1] | (payload[2] << 8)));
    m_siPrimeTsNetworkId = static_cast<unsigned short>(ReadBE16(payload + 3));
    m_siPrimeTransportStreamId = static_cast<unsigned short>(ReadBE16(payload + 5));
    int position = 7;
    while (position < length) {
        if (length - position < 2)
            break;
        _tagTTSIPrimeTSItem item;
        item.table_id = payload[position];
        item.table_description_length = payload[position + 1];
        position += 2;
        if (item.table_description_length > length - position)
            break;
        if (item.table_description_length != 0)
            item.table_description = payload + position;
        m_items.push_back(item);
        position += item.table_description_length;
    }
    return position;
}

const _tagTTSIPrimeTSItem* TCDescSIPrimeTS::TableDescription(int index) const
{
    return RecordAt(m_items, index);
}

// ---------------------------------------------------------------- logo transmission

TCDescLogoTransmission::TCDescLogoTransmission() : TCBaseDesc(0xCF) {}

TCDescLogoTransmission::~TCDescLogoTransmission()
{
    DeleteAll();
}

void TCDescLogoTransmission::DeleteAll()
{
    m_logoTransmissionType = 0;
    m_logoId = 0xFFFF;
    m_logoVersion = 0;
    m_downloadDataId = 0;
    m_logoChars = TTRawRun();
}

TCBaseDesc* TCDescLogoTransmission::Fork() const
{
    return t_ForkAs(new TCDescLogoTransmission());
}

int TCDescLogoTransmission::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    m_logoTransmissionType = payload[0];
    switch (m_logoTransmissionType) {
    case 1:
    case 2: {
        // A body too short for its type stops where it ends.
        if (length < 3)
            return 1;
        m_logoId = static_cast<unsigned short>(ReadBE16(payload + 1) & 0x01FF);
        if (m_logoTransmissionType == 2)
            return 3;
        if (length < 5)
            return 3;
        m_logoVersion = static_cast<unsigned short>(ReadBE16(payload + 3) & 0x0FFF);
        if (length < 7)
            return 5;
        m_downloadDataId = static_cast<unsigned short>(ReadBE16(payload + 5));
        return 7;
    }
    case 3:
        if (length > 1)
            m_logoChars = t_Run(payload, payload + 1, length - 1);
        return length;
    default: return length;
    }
}

bool TCDescLogoTransmission::LogoChar(unsigned char* buffer, unsigned short* size) const
{
    return zum_text::Copy(t_At(m_logoChars), m_logoChars.length, buffer, size);
}

// ---------------------------------------------------------------- target region

TCDescTargetRegionJPN::TCDescTargetRegionJPN() : TCBaseDesc(0xC6) {}

TCDescTargetRegionJPN::~TCDescTargetRegionJPN()
{
    DeleteAll();
}

void TCDescTargetRegionJPN::DeleteAll()
{
    m_regionSpecType = 0;
    m_bitmap = TTRawRun();
}

TCBaseDesc* TCDescTargetRegionJPN::Fork() const
{
    return t_ForkAs(new TCDescTargetRegionJPN());
}

int TCDescTargetRegionJPN::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    m_regionSpecType = payload[0];
    if (m_regionSpecType == 1 && length > 1)
        m_bitmap = t_Run(payload, payload + 1, length - 1);
    return length;
}
