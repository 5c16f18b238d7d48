#ifndef ZUM_AV_DESCAACAUDIO_H
#define ZUM_AV_DESCAACAUDIO_H

#include "../core/BaseDesc.h"
#include "../core/DescExtension.h"

// The audio descriptors beside AC-3: AAC, MPEG-4 audio, DRA and the
// supplementary audio extension.

// AAC_descriptor of DVB (0x7C).
class ZUM_EXPORT TCDescAACAudio : public TCBaseDesc {
public:
    TCDescAACAudio();
    ~TCDescAACAudio() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    int ProfileAndLevel() const { return m_profileAndLevel; }
    unsigned char AACTypeFlag() const { return m_aacTypeFlag; }
    unsigned char AACType() const { return m_aacType; }
    unsigned char AdditionalInfoLength() const { return m_additionalInfo.length; }
    // Copy that truncates and answers false.
    bool GetAdditionalInfo(unsigned char* data, int* length) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    int m_profileAndLevel = 0;
    unsigned char m_aacTypeFlag = 0;
    unsigned char m_aacType = 0;
    TTRawRun m_additionalInfo;
};

// MPEG-4_audio_descriptor (0x1C): one profile and level byte, -1 until read.
class ZUM_EXPORT TCDescMpeg4Audio : public TCBaseDesc {
public:
    TCDescMpeg4Audio();
    ~TCDescMpeg4Audio() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    int ProfileAndLevel() const { return m_profileAndLevel; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    int m_profileAndLevel = -1;
};

// registration_descriptor (0x05) in DVB program tables, where it names DRA.
class ZUM_EXPORT TCDescDRARegistration : public TCBaseDesc {
public:
    TCDescDRARegistration();
    ~TCDescDRARegistration() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned int FormatIdentifier() const { return m_formatIdentifier; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned int m_formatIdentifier = 0;
};

// DRA audio stream descriptor (0xA0, Chinese receivers).
class ZUM_EXPORT TCDescDRAAudioStream : public TCBaseDesc {
public:
    TCDescDRAAudioStream();
    ~TCDescDRAAudioStream() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char SampleRateIndex() const { return m_sampleRateIndex; }
    unsigned char NormalChannels() const { return m_normalChannels; }
    unsigned char LFEChannels() const { return m_lfeChannels; }
    unsigned char Bit3Flag() const { return m_bit3Flag; }
    unsigned char TextPresent() const { return m_textPresent; }
    unsigned char LanguagePresent() const { return m_languagePresent; }
    unsigned char Bit0Flag() const { return m_bit0Flag; }
    // In 16-bit units.
    unsigned char TextLength() const { return m_textLength; }
    unsigned int Language() const { return m_language; }
    unsigned char AdditionalInfoLength() const { return m_additionalInfo.length; }

    // 16-bit units, big-endian in the stream.
    bool Text(unsigned short* out, unsigned short* length) const;
    bool AdditionalInfo(unsigned char* out, unsigned short* length) const;
    // The audio type number of the channel layout; 11 for none known.
    int EncodeType() const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_sampleRateIndex = 0;
    unsigned char m_normalChannels = 0;
    unsigned char m_lfeChannels = 0;
    unsigned char m_bit3Flag = 0;
    unsigned char m_textPresent = 0;
    unsigned char m_languagePresent = 0;
    unsigned char m_bit0Flag = 0;
    unsigned char m_textLength = 0;
    // The units actually held by the body.
    TTRawRun m_text;
    unsigned int m_language = 0;
    TTRawRun m_additionalInfo;
};

// supplementary_audio_descriptor (extension 0x06).
class ZUM_EXPORT TCDescSupplementaryAudio : public TCDescExtension {
public:
    TCDescSupplementaryAudio();
    ~TCDescSupplementaryAudio() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // 1 for a complete (independent) stream.
    int MixType() const { return m_mixType; }
    // Values from 4 upward read as 4.
    int EditorialClassification() const { return m_editorialClassification; }
    int LanguagePresent() const { return m_languagePresent; }
    int Language() const { return m_language; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    int m_mixType = 0;
    int m_editorialClassification = 0;
    int m_languagePresent = 0;
    int m_language = 0;
};

#endif
