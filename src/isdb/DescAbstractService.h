#ifndef ZUM_ISDB_DESCABSTRACTSERVICE_H
#define ZUM_ISDB_DESCABSTRACTSERVICE_H

#include "../core/BaseDesc.h"

// abstract_service_descriptor of application signalling (0x66, also met as
// 0xAE): a service made of applications, with its raw name.
class ZUM_EXPORT TCDescAbstractService : public TCBaseDesc {
public:
    TCDescAbstractService();
    ~TCDescAbstractService() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned int ServiceId() const { return m_serviceId; }
    unsigned char AutoSelect() const { return m_autoSelect; }
    int ServiceNameLength() const { return m_name.length; }
    // 1 with the whole name in a buffer that holds it; 0, nothing copied,
    // for any smaller buffer (no truncated copy) or no name.
    int ServiceNameByte(unsigned char* pBuff, int* size) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned int m_serviceId = 0;
    unsigned char m_autoSelect = 0;
    TTRawRun m_name;
};

// privileged_certificate_descriptor of application signalling (0x68, also
// met as 0xB1): identifiers of 20 bytes each, read from the raw copy.
class ZUM_EXPORT TCDescPrivilegedCertificate : public TCBaseDesc {
public:
    static const int kIdentifierSize = 20;

    TCDescPrivilegedCertificate();
    ~TCDescPrivilegedCertificate() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned long long NumOfCertificateIdentifierByte() const { return m_count; }
    // The 20 bytes of one identifier; null for an index outside the list.
    const unsigned char* CertificateIdentifierByte(unsigned int index) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned long long m_count = 0;
};

// The AirTel guide information descriptor (0xCC under its specifier): what
// the guide may do with a service, its genres and spare bytes.
class ZUM_EXPORT TCDescEPGInformation : public TCBaseDesc {
public:
    TCDescEPGInformation();
    ~TCDescEPGInformation() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // One-bit signed fields: 0, or 0xFF for a set flag.
    unsigned char PushService() const { return m_pushService ? 0xFF : 0; }
    unsigned char AllowSurfing() const { return m_allowSurfing ? 0xFF : 0; }
    unsigned char AllowSearchScan() const { return m_allowSearchScan ? 0xFF : 0; }
    unsigned char AllowListing() const { return m_allowListing ? 0xFF : 0; }
    unsigned char NumGenres() const { return m_numGenres; }
    // Counts bytes, not bits.
    int NumSpareBits() const { return m_spare.length; }
    // True with the genres (spare bytes) copied up to the size, which a larger
    // buffer lowers to their number; false for no buffer or nothing stored.
    bool Genres(unsigned char* buffer, int* size) const;
    bool SpareEpgInfoBits(char* buffer, int* size) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    bool m_pushService = false;
    bool m_allowSurfing = false;
    bool m_allowSearchScan = false;
    bool m_allowListing = false;
    unsigned char m_numGenres = 0;
    TTRawRun m_genres;
    TTRawRun m_spare;
};

#endif
