#ifndef ZUM_ATSC_DESCATSCLINAKGE_H
#define ZUM_ATSC_DESCATSCLINAKGE_H

// The Korean additions to the program tables: a link to a program or a URL
// (0x37), and private information of format TTA0 (0xAD).

#include <vector>

#include "../core/BaseDesc.h"

class ZUM_EXPORT TCDescATSCLinakge : public TCBaseDesc {
public:
    TCDescATSCLinakge();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // 0xFF until decoded.
    unsigned char LinkType() const { return m_linkType; }
    // 0xFFFF until decoded.
    unsigned short ProgramNumber() const { return m_programNumber; }
    unsigned short URLLength() const { return m_url.length; }
    unsigned char ProgramCodeLength() const { return m_programCode.length; }
    // False for a null argument, *length 0 or no bytes; a smaller buffer gets
    // what fits and false.
    bool GetURLByte(char* url, int* length) const;
    bool GetProgramCode(char* code, int* length) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_linkType = 0xFF;
    unsigned short m_programNumber = 0xFFFF;
    TTRawRun m_url;
    TTRawRun m_programCode;
};

// Kinds of detail of the TTA0 private information; handed on as they come.
enum TTA0_TYPE : unsigned char {
    TTA0_TYPE_1 = 1,
    TTA0_TYPE_2 = 2,
};

class ZUM_EXPORT TCDescATSCPrivateInformation : public TCBaseDesc {
public:
    static constexpr unsigned int kFormatTTA0 = 0x54544130;

    struct TTPrivateInfoDetail {
        TTA0_TYPE type = TTA0_TYPE(0);
        unsigned char length = 0;
        unsigned char value[6] = {};
    };

    TCDescATSCPrivateInformation();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // 0xFFFFFFFF until decoded.
    unsigned int FormatIdentifier() const { return m_formatIdentifier; }
    unsigned char DetailCount() const { return m_detailCount; }
    unsigned int NumOfPrivateInfoDetail() const { return static_cast<unsigned int>(m_details.size()); }
    // An index out of range leaves `out` alone.
    void GetPrivateInfoDetail(int index, TTPrivateInfoDetail& out) const;
    // The first detail of the type.
    bool GetPrivateInfoDetailByType(TTA0_TYPE type, TTPrivateInfoDetail& out) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned int m_formatIdentifier = 0xFFFFFFFF;
    unsigned char m_detailCount = 0;
    std::vector<TTPrivateInfoDetail> m_details;
};

#endif
