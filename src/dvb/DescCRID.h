#ifndef ZUM_DVB_DESCCRID_H
#define ZUM_DVB_DESCCRID_H

#include <string>
#include <vector>

#include "../core/BaseDesc.h"

// content_identifier_descriptor (0x76): CRIDs of an event, each in the
// descriptor (location 0) or by a reference into the CRID table (location 1).
// The entries are read from the raw copy on access. The loop's private data
// specifier is stored after decoding and goes over with a Fork.
class ZUM_EXPORT TCDescCRID : public TCBaseDesc {
public:
    TCDescCRID();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // The top 6 bits of the entry's first byte.
    bool GetType(unsigned char& type, unsigned int index) const;
    bool ContentInCIT(unsigned int index) const;
    // An invalid descriptor or an index behind the end answers true with an
    // empty `crid`; an entry by reference answers false.
    bool GetCRID(std::string& crid, unsigned int index) const;
    bool GetCRIDRef(unsigned short& ref, unsigned int index) const;

    bool IsValid() const { return m_valid; }
    int NumOfCRID() const { return static_cast<int>(m_entries.size()); }
    void SetPDSD(unsigned int pds) { m_pds = pds; }
    unsigned int PrivateDataSpecifier() const { return m_pds; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    // The first byte of the entry, or null.
    const unsigned char* m_Entry(unsigned int index) const;
    int m_Fail(int result);

    bool m_valid = false;
    unsigned int m_pds = 0;
    // Per entry, the position of its first byte in the raw copy.
    std::vector<unsigned short> m_entries;
};

// default_authority_descriptor (0x73): the authority of the CRIDs that follow.
class ZUM_EXPORT TCDescDefaultAuthority : public TCBaseDesc {
public:
    TCDescDefaultAuthority();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // The whole body as it stands; false for an empty descriptor.
    bool GetAuthority(std::string& authority) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;
};

// related_content_descriptor (0x74): marks a stream of related content tables.
// No factory makes it; it holds nothing but its raw copy.
class ZUM_EXPORT TCDescRelatedContent : public TCBaseDesc {
public:
    TCDescRelatedContent();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;
};

// Tag 0xB6 of program tables: a type byte, then an id of the length given.
class ZUM_EXPORT TCDescContentIdentifier : public TCBaseDesc {
public:
    TCDescContentIdentifier();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // The id into `buffer` if `*size` holds it; `*size` becomes its length,
    // and 0 when it does not fit or there is none.
    bool ContentIdentifier(char* buffer, unsigned char* size) const;
    unsigned char Type() const { return m_type; }
    unsigned char IdLength() const { return m_idLength; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_type = 0xFF;
    unsigned char m_idLength = 0;
    TTRawRun m_id;
};

#endif
