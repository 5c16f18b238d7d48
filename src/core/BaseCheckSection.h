#ifndef ZUM_CORE_BASECHECKSECTION_H
#define ZUM_CORE_BASECHECKSECTION_H

#include "Export.h"

// Identity record of a section that has no section numbers (out-of-band
// tables): a section whose record is already held is skipped. SetData takes
// the body that t_Parse received, behind the three-byte short header.
class ZUM_EXPORT TCBaseCheckSection {
public:
    TCBaseCheckSection() = default;
    virtual ~TCBaseCheckSection();
    virtual bool FlagEqual(const TCBaseCheckSection* other) const;
    virtual bool SetData(const unsigned char* data, int len);

protected:
    // Byte `i` of the body, or 0 where the body is shorter.
    static unsigned char t_At(const unsigned char* data, int len, int i) { return i < len ? data[i] : 0; }

    unsigned char m_tableId = 0xFF;
    unsigned short m_length = 0xFFFF;
    unsigned int m_crc = 0xFFFFFFFF;
};

class ZUM_EXPORT TCNITCheckSection : public TCBaseCheckSection {
public:
    bool FlagEqual(const TCBaseCheckSection* other) const override;
    bool SetData(const unsigned char* data, int len) override;

private:
    unsigned char m_first = 0xFF;
    unsigned char m_second = 0xFF;
    unsigned char m_third = 0xFF;
};

class ZUM_EXPORT TCNTTCheckSection : public TCBaseCheckSection {
public:
    bool FlagEqual(const TCBaseCheckSection* other) const override;
    bool SetData(const unsigned char* data, int len) override;

private:
    unsigned int m_word = 0xFFFFFFFF;
    unsigned char m_byte = 0xFF;
};

class ZUM_EXPORT TCSVCTCheckSection : public TCBaseCheckSection {
public:
    bool FlagEqual(const TCBaseCheckSection* other) const override;
    bool SetData(const unsigned char* data, int len) override;

private:
    unsigned char m_subtype = 0xFF;
    unsigned short m_vcmWord = 0xFFFF;
    unsigned char m_vcmByte = 0xFF;
    unsigned short m_dcmWord = 0xFFFF;
    unsigned char m_dcmByte = 0xFF;
    unsigned char m_icmByte = 0xFF;
};

#endif
