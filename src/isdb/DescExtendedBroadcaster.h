#ifndef ZUM_ISDB_DESCEXTENDEDBROADCASTER_H
#define ZUM_ISDB_DESCEXTENDEDBROADCASTER_H

#include <vector>

#include "../core/BaseDesc.h"

// ARIB descriptors of a broadcaster: its identity and affiliations, the
// transport stream that carries its SI, its logo, and the region a program
// is meant for.

// extended_broadcaster_descriptor (0xCE).
class ZUM_EXPORT TCDescExtendedBroadcaster : public TCBaseDesc {
public:
    TCDescExtendedBroadcaster();
    ~TCDescExtendedBroadcaster() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char BroadcasterType() const { return m_broadcasterType; }
    // Types 1 and 2 (digital terrestrial television and sound) only.
    unsigned short TerrestrialBroadcasterId() const { return m_terrestrialBroadcasterId; }
    unsigned char NumberOfAffiliationIdLoop() const { return m_numberOfAffiliationIdLoop; }
    unsigned char NumberOfBroadcasterIdLoop() const { return m_numberOfBroadcasterIdLoop; }
    // What was stored: 0 when the loops did not fit.
    int NumOfAffiliationId() const { return m_affiliationIds.length; }
    int NumOfBroadcasterEntry() const { return m_numOfBroadcasterEntry; }
    // 0 for an index out of range.
    unsigned char AffiliationId(int index) const;
    // original_network_id in bits 15..0, broadcaster_id in bits 23..16; 0 out of range.
    unsigned int BroadcasterEntry(int index) const;
    // What follows the entries; null when nothing does.
    int PrivateDataLength() const { return m_privateData.length; }
    const unsigned char* PrivateData() const { return t_At(m_privateData); }
    // Any other broadcaster type: every byte behind the type.
    int OtherDataLength() const { return m_otherData.length; }
    const unsigned char* OtherData() const { return t_At(m_otherData); }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_broadcasterType = 0;
    unsigned short m_terrestrialBroadcasterId = 0;
    unsigned char m_numberOfAffiliationIdLoop = 0;
    unsigned char m_numberOfBroadcasterIdLoop = 0;
    TTRawRun m_affiliationIds;
    // The entries are read from the raw copy, three bytes each.
    TTRawRun m_broadcasterEntries;
    int m_numOfBroadcasterEntry = 0;
    TTRawRun m_privateData;
    TTRawRun m_otherData;
};

// One table description of an SI prime TS descriptor; the bytes stay in the
// descriptor's raw copy.
struct _tagTTSIPrimeTSItem {
    unsigned char table_id = 0;
    unsigned char table_description_length = 0;
    // Null for a length of 0.
    const unsigned char* table_description = nullptr;
};

// SI_prime_TS_descriptor (0xDA): where the SI of a network is sent in full.
class ZUM_EXPORT TCDescSIPrimeTS : public TCBaseDesc {
public:
    TCDescSIPrimeTS();
    ~TCDescSIPrimeTS() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char ParameterVersion() const { return m_parameterVersion; }
    // Seconds since MJD 44244 (1980-01-06) of the date given.
    unsigned int UpdateTime() const { return m_updateTime; }
    unsigned short SIPrimeTsNetworkId() const { return m_siPrimeTsNetworkId; }
    unsigned short SIPrimeTransportStreamId() const { return m_siPrimeTransportStreamId; }
    int NumOfTableDescription() const { return static_cast<int>(m_items.size()); }
    // Null for an index out of range.
    const _tagTTSIPrimeTSItem* TableDescription(int index) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    // The date field as two bytes in stream order read low byte first: swapped, from MJD 44244, in seconds.
    static unsigned int m_ConvertMJD(unsigned short date);

    unsigned char m_parameterVersion = 0;
    unsigned int m_updateTime = 0;
    unsigned short m_siPrimeTsNetworkId = 0;
    unsigned short m_siPrimeTransportStreamId = 0;
    std::vector<_tagTTSIPrimeTSItem> m_items;
};

// logo_transmission_descriptor (0xCF): how a service's logo is found, or
// its logo as characters.
class ZUM_EXPORT TCDescLogoTransmission : public TCBaseDesc {
public:
    TCDescLogoTransmission();
    ~TCDescLogoTransmission() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char LogoTransmissionType() const { return m_logoTransmissionType; }
    // Types 1 and 2; 0xFFFF otherwise.
    unsigned short LogoId() const { return m_logoId; }
    // Type 1.
    unsigned short LogoVersion() const { return m_logoVersion; }
    unsigned short DownloadDataId() const { return m_downloadDataId; }
    // Type 3.
    int NumOfLogoChar() const { return m_logoChars.length; }
    // Text copy, as TCDescTSInformation::TSNameChar.
    bool LogoChar(unsigned char* buffer, unsigned short* size) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_logoTransmissionType = 0;
    unsigned short m_logoId = 0xFFFF;
    unsigned short m_logoVersion = 0;
    unsigned short m_downloadDataId = 0;
    TTRawRun m_logoChars;
};

// target_region_descriptor of ARIB (0xC6): for type 1, the bitmap of the
// prefectures a program is meant for.
class ZUM_EXPORT TCDescTargetRegionJPN : public TCBaseDesc {
public:
    TCDescTargetRegionJPN();
    ~TCDescTargetRegionJPN() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char RegionSpecType() const { return m_regionSpecType; }
    unsigned char BitmapLength() const { return m_bitmap.length; }
    // Null unless the type is 1 and a bitmap follows.
    const unsigned char* Bitmap() const { return t_At(m_bitmap); }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_regionSpecType = 0;
    TTRawRun m_bitmap;
};

#endif
