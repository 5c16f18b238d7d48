#ifndef ZUM_AV_DESCAC3_H
#define ZUM_AV_DESCAC3_H

#include "../core/BaseDesc.h"

// AC-3 and E-AC-3 audio: the DVB forms (0x6A, 0x7A) and the ATSC forms
// (0x81, 0xCC). Whatever trails behind the fields is additional info, a run
// of the raw copy.

// AC-3_descriptor of DVB (0x6A): optional fields selected by four flags.
class ZUM_EXPORT TCDescAC3 : public TCBaseDesc {
public:
    TCDescAC3();
    ~TCDescAC3() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    bool ComponentTypeFlag() const { return m_componentTypeFlag; }
    bool BsidFlag() const { return m_bsidFlag; }
    bool MainidFlag() const { return m_mainidFlag; }
    bool AsvcFlag() const { return m_asvcFlag; }
    unsigned char ComponentType() const { return m_componentType; }
    unsigned char Bsid() const { return m_bsid; }
    unsigned char Mainid() const { return m_mainid; }
    unsigned char Asvc() const { return m_asvc; }
    unsigned char AdditionalInfoLength() const { return m_additionalInfo.length; }
    // Copy that truncates and answers false.
    bool GetAdditionalInfo(char* data, int* length) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    bool m_componentTypeFlag = false;
    bool m_bsidFlag = false;
    bool m_mainidFlag = false;
    bool m_asvcFlag = false;
    unsigned char m_componentType = 0;
    unsigned char m_bsid = 0;
    unsigned char m_mainid = 0;
    unsigned char m_asvc = 0;
    TTRawRun m_additionalInfo;
};

// enhanced_AC-3_descriptor of DVB (0x7A): eight flags, seven optional bytes.
class ZUM_EXPORT TCDescEnhancedAC3 : public TCBaseDesc {
public:
    TCDescEnhancedAC3();
    ~TCDescEnhancedAC3() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    bool ComponentTypeFlag() const { return m_flags & 0x80; }
    bool BsidFlag() const { return m_flags & 0x40; }
    bool MainidFlag() const { return m_flags & 0x20; }
    bool AsvcFlag() const { return m_flags & 0x10; }
    bool MixinfoExists() const { return m_flags & 0x08; }
    bool Substream1Flag() const { return m_flags & 0x04; }
    bool Substream2Flag() const { return m_flags & 0x02; }
    bool Substream3Flag() const { return m_flags & 0x01; }
    unsigned char Substream1() const { return m_substream1; }
    unsigned char Substream2() const { return m_substream2; }
    unsigned char Substream3() const { return m_substream3; }
    unsigned char ComponentType() const { return m_componentType; }
    unsigned char Bsid() const { return m_bsid; }
    unsigned char Mainid() const { return m_mainid; }
    unsigned char Asvc() const { return m_asvc; }
    unsigned char AdditionalInfoLength() const { return m_additionalInfo.length; }
    bool GetAdditionalInfo(char* data, int* length) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_flags = 0;
    unsigned char m_substream1 = 0;
    unsigned char m_substream2 = 0;
    unsigned char m_substream3 = 0;
    unsigned char m_componentType = 0;
    unsigned char m_bsid = 0;
    unsigned char m_mainid = 0;
    unsigned char m_asvc = 0;
    TTRawRun m_additionalInfo;
};

// AC-3 audio descriptor of ATSC (0x81).
class ZUM_EXPORT TCDescAC3Audio : public TCBaseDesc {
public:
    enum { INVALID = 0xFF };

    TCDescAC3Audio();
    ~TCDescAC3Audio() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char SampleRateCode() const { return m_sampleRateCode; }
    unsigned char Bsid() const { return m_bsid; }
    unsigned char BitRateCode() const { return m_bitRateCode; }
    unsigned char SurroundMode() const { return m_surroundMode; }
    unsigned char Bsmod() const { return m_bsmod; }
    unsigned char NumChannels() const { return m_numChannels; }
    unsigned char FullService() const { return m_fullService; }
    unsigned char LanguageCode() const { return m_languageCode; }
    unsigned char LanguageCode2() const { return m_languageCode2; }
    unsigned char Mainid() const { return m_mainid; }
    unsigned char AsvcFlags() const { return m_asvcFlags; }
    unsigned char TextCode() const { return m_textCode; }
    bool LanguageFlag() const { return m_languageFlag; }
    unsigned int Language() const { return m_language; }

    // With no main id decoded these refuse (assertion or log line).
    unsigned char AdditionalInfoLength() const;
    bool GetAdditionalInfo(char* data, int* length) const;
    unsigned char TextLen() const;
    bool GetText(char* data, int* length) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_sampleRateCode = 0xFF;
    unsigned char m_bsid = 0xFF;
    unsigned char m_bitRateCode = 0xFF;
    unsigned char m_surroundMode = 0xFF;
    unsigned char m_bsmod = 0xFF;
    unsigned char m_numChannels = 0xFF;
    unsigned char m_fullService = 0xFF;
    unsigned char m_languageCode = 0;
    unsigned char m_languageCode2 = 0;
    unsigned char m_mainid = INVALID;
    unsigned char m_asvcFlags = 0xFF;
    unsigned char m_textCode = 0;
    TTRawRun m_text;
    TTRawRun m_additionalInfo;
    bool m_languageFlag = false;
    unsigned int m_language = 0;
};

// E-AC-3 audio descriptor of ATSC (0xCC).
class ZUM_EXPORT TCDescATSCEnhancedAC3 : public TCBaseDesc {
public:
    TCDescATSCEnhancedAC3();
    ~TCDescATSCEnhancedAC3() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char BsidFlag() const { return m_bsidFlag; }
    unsigned char MainidFlag() const { return m_mainidFlag; }
    unsigned char AsvcFlag() const { return m_asvcFlag; }
    unsigned char MixinfoExists() const { return m_mixinfoExists; }
    unsigned char Substream1Flag() const { return m_substream1Flag; }
    unsigned char Substream2Flag() const { return m_substream2Flag; }
    unsigned char Substream3Flag() const { return m_substream3Flag; }
    unsigned char FullService() const { return m_fullService; }
    unsigned char AudioServiceType() const { return m_audioServiceType; }
    unsigned char NumChannels() const { return m_numChannels; }
    unsigned char LanguageFlag() const { return m_languageFlag; }
    unsigned char LanguageFlag2() const { return m_languageFlag2; }
    unsigned char Bsid() const { return m_bsid; }
    unsigned char Priority() const { return m_priority; }
    unsigned char Mainid() const { return m_mainid; }
    unsigned char Asvc() const { return m_asvc; }
    unsigned char Substream1() const { return m_substream1; }
    unsigned char Substream2() const { return m_substream2; }
    unsigned char Substream3() const { return m_substream3; }
    unsigned int Language() const { return m_language; }
    unsigned int Language2() const { return m_language2; }
    unsigned int Substream1Language() const { return m_substream1Language; }
    unsigned int Substream2Language() const { return m_substream2Language; }
    unsigned int Substream3Language() const { return m_substream3Language; }
    unsigned char AdditionalInfoLength() const { return m_additionalInfo.length; }
    bool GetAdditionalInfo(char* data, int* length) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_bsidFlag = 0;
    unsigned char m_mainidFlag = 0;
    unsigned char m_asvcFlag = 0;
    unsigned char m_mixinfoExists = 0;
    unsigned char m_substream1Flag = 0;
    unsigned char m_substream2Flag = 0;
    unsigned char m_substream3Flag = 0;
    unsigned char m_fullService = 0;
    unsigned char m_audioServiceType = 0;
    unsigned char m_numChannels = 0;
    unsigned char m_languageFlag = 0;
    unsigned char m_languageFlag2 = 0;
    unsigned char m_bsid = 0;
    unsigned char m_priority = 0;
    unsigned char m_mainid = 0;
    unsigned char m_asvc = 0;
    unsigned char m_substream1 = 0;
    unsigned char m_substream2 = 0;
    unsigned char m_substream3 = 0;
    unsigned int m_language = 0;
    unsigned int m_language2 = 0;
    unsigned int m_substream1Language = 0;
    unsigned int m_substream2Language = 0;
    unsigned int m_substream3Language = 0;
    TTRawRun m_additionalInfo;
};

#endif
