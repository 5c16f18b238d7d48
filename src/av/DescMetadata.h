#ifndef ZUM_AV_DESCMETADATA_H
#define ZUM_AV_DESCMETADATA_H

#include <set>
#include <string>

#include "../core/BaseDesc.h"
#include "../dvb/ServiceKey.h"

// The metadata family: where a program's metadata lives (pointer, SI
// tables), how it is decoded (metadata, program tables), and the private
// data of a metadata descriptor. A descriptor is "recognised" when it names
// the receiver's own metadata service (format 0x0101, 0x3F, service 0xFF).

// The identification that both descriptors open with.
struct TTMetadataFormat {
    unsigned short applicationFormat = 0;
    unsigned int applicationFormatIdentifier = 0;
    unsigned char metadataFormat = 0;
    unsigned int metadataFormatIdentifier = 0;
    unsigned char metadataServiceId = 0;
};

// metadata_descriptor (0x26).
class ZUM_EXPORT TCDescMetadata : public TCBaseDesc {
public:
    TCDescMetadata();
    ~TCDescMetadata() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned short ApplicationFormat() const { return m_format.applicationFormat; }
    unsigned int ApplicationFormatIdentifier() const { return m_format.applicationFormatIdentifier; }
    unsigned char MetadataFormat() const { return m_format.metadataFormat; }
    unsigned int MetadataFormatIdentifier() const { return m_format.metadataFormatIdentifier; }
    unsigned char MetadataServiceId() const { return m_format.metadataServiceId; }
    unsigned char DecoderConfigFlags() const { return m_decoderConfigFlags; }
    unsigned char DSMCCFlag() const { return m_dsmccFlag; }
    std::string DecoderConfig() const { return m_RunText(m_decoderConfig); }
    std::string PrivateData() const { return m_RunText(m_privateData); }
    bool Recognised() const { return m_recognised; }
    // The service identification record of a recognised descriptor, else "".
    const std::string& RootDir() const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    std::string m_RunText(TTRawRun run) const;

    TTMetadataFormat m_format;
    unsigned char m_decoderConfigFlags = 0;
    unsigned char m_dsmccFlag = 0;
    // Handed out by reference, so held as a string.
    std::string m_serviceIdentificationRecord;
    TTRawRun m_decoderConfig;
    TTRawRun m_privateData;
    bool m_recognised = false;
};

// metadata_pointer_descriptor (0x25).
class ZUM_EXPORT TCDescMetadataPointer : public TCBaseDesc {
public:
    TCDescMetadataPointer();
    ~TCDescMetadataPointer() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned short ApplicationFormat() const { return m_format.applicationFormat; }
    unsigned int ApplicationFormatIdentifier() const { return m_format.applicationFormatIdentifier; }
    unsigned char MetadataFormat() const { return m_format.metadataFormat; }
    unsigned int MetadataFormatIdentifier() const { return m_format.metadataFormatIdentifier; }
    unsigned char MetadataServiceId() const { return m_format.metadataServiceId; }
    unsigned char MPEGCarriageFlags() const { return m_mpegCarriageFlags; }
    unsigned char LocatorRecordFlag() const { return m_locatorRecordFlag; }
    bool Recognised() const { return m_recognised; }

    // Each answers the recognised flag and fills `out` only when it is set.
    bool GetLocatorRec(std::string& out) const;
    bool GetTriplet(TCServiceKey& out) const;
    const std::string& UserData() const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    TTMetadataFormat m_format;
    unsigned char m_mpegCarriageFlags = 0;
    unsigned char m_locatorRecordFlag = 0;
    TTRawRun m_locatorRecord;
    TCServiceKey m_key;
    // Handed out by reference, so held as a string.
    std::string m_privateData;
    bool m_recognised = false;
};

// The private data of a metadata descriptor, decoded at construction.
class ZUM_EXPORT TCDescMetadataExtension {
public:
    explicit TCDescMetadataExtension(const std::string& data);
    virtual ~TCDescMetadataExtension();
    virtual void DeleteAll();

    unsigned char Version() const { return m_version; }
    unsigned char SecondFlag() const { return m_secondFlag; }
    int FirstFlag() const { return m_firstFlag; }
    const std::set<unsigned short>& Values() const { return m_values; }
    const std::string& FirstString() const { return m_firstString; }
    const std::string& SecondString() const { return m_secondString; }
    unsigned char TrailerByte() const { return m_trailerByte; }
    const std::string& ThirdString() const { return m_thirdString; }
    unsigned char TrailerFlag0() const { return m_trailerFlag0; }
    unsigned char TrailerFlag1() const { return m_trailerFlag1; }

protected:
    void t_Parse(const std::string& data);

private:
    unsigned char m_version = 0;
    unsigned char m_secondFlag = 0;
    int m_firstFlag = 0;
    std::set<unsigned short> m_values;
    std::string m_firstString;
    std::string m_secondString;
    unsigned char m_trailerByte = 0;
    std::string m_thirdString;
    unsigned char m_trailerFlag0 = 0;
    unsigned char m_trailerFlag1 = 0;
};

#endif
