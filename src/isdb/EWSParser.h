#ifndef ZUM_ISDB_EWSPARSER_H
#define ZUM_ISDB_EWSPARSER_H

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "../core/BaseSection.h"
#include "../core/SectionParser.h"

// One sub-table of the emergency warning table 0x80: its own section tracker,
// and the CRC field of the last section offered to it, new or not.
class ZUM_EXPORT TCEWSBase : public TCBaseSection {
public:
    TCEWSBase() = default;
    // Empties the sub-table; the tracker stays.
    void DeleteAll() override;
    ~TCEWSBase() override;

    // `data` is the section's body behind last_section_number, `length` counts
    // to the end of the section with the CRC field. Always 1.
    int Parse(const unsigned char* data, int length, char version, unsigned char section, unsigned char lastSection,
              unsigned int crc);
    unsigned int CRC() const { return crc; }

protected:
    // The payload without the CRC field; a negative length holds nothing.
    virtual int t_Parse(const unsigned char* data, int length) = 0;
    virtual void t_DeleteAll() = 0;

    unsigned int crc = 0;
};

// TRDW: where the disaster applies, as five-digit location codes.
class ZUM_EXPORT TCEWSRegion : public TCEWSBase {
public:
    struct TSLocationCode {
        unsigned int code = 0;
        std::string description;
        unsigned int disasterCode = 0;
        unsigned int typeCode = 0;
        unsigned int packageId = 0;
    };

    ~TCEWSRegion() override;

    unsigned short DisasterCode() const { return disasterCode; }
    unsigned char LocationTypeCode() const { return locationTypeCode; }
    unsigned char PackageId() const { return packageId; }
    // Appends a copy of every location in order of arrival; the caller owns them.
    void Locations(std::vector<TSLocationCode*>& locations) const;
    // One entry per code, the later of two equal codes; overwrites the caller's entries.
    void Locations(std::map<unsigned int, TSLocationCode>& locations) const;

protected:
    int t_Parse(const unsigned char* data, int length) override;
    void t_DeleteAll() override;

private:
    unsigned short disasterCode = 0;
    unsigned char locationTypeCode = 0;
    unsigned char packageId = 0;
    std::vector<std::unique_ptr<TSLocationCode>> m_locations;
    std::map<unsigned int, TSLocationCode*> m_byCode; // borrows from m_locations
};

// TCDW: the disasters that the broadcaster names, each with four texts.
class ZUM_EXPORT TCEWSCode : public TCEWSBase {
public:
    struct TSDisasterCode {
        unsigned char codeByte0 = 0;
        unsigned char codeByte1 = 0;
        unsigned short disasterCode = 0;
        std::string text1;
        std::string text2;
        std::string text3;
        std::string text4;
    };

    ~TCEWSCode() override;

    // Adds a copy of each record whose code the caller's map lacks; the caller owns them.
    void Disasters(std::map<unsigned short, TSDisasterCode*>& disasters) const;
    // False, and `disaster` untouched, for an unknown code.
    bool Disaster(unsigned short code, TSDisasterCode& disaster) const;

protected:
    int t_Parse(const unsigned char* data, int length) override;
    void t_DeleteAll() override;

private:
    std::map<unsigned short, std::unique_ptr<TSDisasterCode>> m_disasters;
};

// TMDW: the texts to show the viewer.
class ZUM_EXPORT TCEWSMessage : public TCEWSBase {
public:
    ~TCEWSMessage() override;

    unsigned char HeaderByte() const { return headerByte; }
    unsigned char MessageKey() const { return messageKey; }
    // Replaces `messages` by the texts in order of arrival.
    void InformationMessages(std::vector<std::string>& messages) const;
    // Adds every text under the message key of its section.
    void InformationMessages(std::multimap<unsigned short, std::string>& messages) const;

protected:
    int t_Parse(const unsigned char* data, int length) override;
    void t_DeleteAll() override;

private:
    unsigned char headerByte = 0;
    unsigned char messageKey = 0;
    std::vector<std::string> m_messages;
    std::multimap<unsigned short, std::string> m_messagesByKey;
};

// Emergency warning table 0x80: three sub-tables by table id extension, 1
// TRDW, 2 TCDW, 3 TMDW, each tracked on its own. Parse answers true for every
// section of a known sub-table, new or not: the caller asks IsValidTRDW and
// its kin whether a sub-table is complete.
class ZUM_EXPORT TCEWSParser : public TCSectionParser {
public:
    TCEWSParser();
    ~TCEWSParser() override;

    // Empties all three sub-tables; their trackers stay.
    virtual void DeleteAll();

    void Locations(std::vector<TCEWSRegion::TSLocationCode*>& locations) const { m_region.Locations(locations); }
    void Locations(std::map<unsigned int, TCEWSRegion::TSLocationCode>& locations) const
    {
        m_region.Locations(locations);
    }
    void Disasters(std::map<unsigned short, TCEWSCode::TSDisasterCode*>& disasters) const
    {
        m_code.Disasters(disasters);
    }
    bool Disaster(unsigned short code, TCEWSCode::TSDisasterCode& disaster) const
    {
        return m_code.Disaster(code, disaster);
    }
    void InformationMessages(std::vector<std::string>& messages) const { m_message.InformationMessages(messages); }
    void InformationMessages(std::multimap<unsigned short, std::string>& messages) const
    {
        m_message.InformationMessages(messages);
    }

    unsigned short DisasterCode() const { return m_region.DisasterCode(); }
    unsigned char LocationTypeCode() const { return m_region.LocationTypeCode(); }
    unsigned char PackageId() const { return m_region.PackageId(); }
    // Byte 0 and the message key of the TMDW section parsed last.
    unsigned char MessageHeaderByte() const { return m_message.HeaderByte(); }
    unsigned char MessageKey() const { return m_message.MessageKey(); }

    bool IsValidTRDW() const { return m_region.IsValid(); }
    bool IsValidTCDW() const { return m_code.IsValid(); }
    bool IsValidTMDW() const { return m_message.IsValid(); }
    unsigned int TRDWCrc() const { return m_region.CRC(); }
    unsigned int TCDWCrc() const { return m_code.CRC(); }
    unsigned int TMDWCrc() const { return m_message.CRC(); }

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;

private:
    TCEWSRegion m_region;
    TCEWSCode m_code;
    TCEWSMessage m_message;
};

#endif
