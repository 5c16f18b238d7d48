#ifndef ZUM_ISDB_DESCAUDIOCOMPONENT_H
#define ZUM_ISDB_DESCAUDIOCOMPONENT_H

#include "../core/BaseDesc.h"

// audio_component_descriptor of ARIB (0xC4): one audio stream of the event,
// its coding, languages and a raw text.
class ZUM_EXPORT TCDescAudioComponent : public TCBaseDesc {
public:
    TCDescAudioComponent();
    ~TCDescAudioComponent() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char StreamContent() const { return m_streamContent; }
    unsigned char ComponentType() const { return m_componentType; }
    unsigned char ComponentTag() const { return m_componentTag; }
    unsigned char StreamType() const { return m_streamType; }
    unsigned char SimulcastGroupTag() const { return m_simulcastGroupTag; }
    bool ESMultiLingualFlag() const { return m_esMultiLingualFlag; }
    bool MainComponentFlag() const { return m_mainComponentFlag; }
    unsigned char QualityIndicator() const { return m_qualityIndicator; }
    unsigned char SamplingRate() const { return m_samplingRate; }
    unsigned int ISO639LanguageCode() const { return m_language; }
    // Present only with ES_multi_lingual_flag.
    unsigned int ISO639LanguageCode2() const { return m_language2; }
    unsigned char TextLength() const { return m_text.length; }
    // Text copy.
    bool TextChar(char* buffer, int* size) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_streamContent = 0;
    unsigned char m_componentType = 0;
    unsigned char m_componentTag = 0;
    unsigned char m_streamType = 0;
    unsigned char m_simulcastGroupTag = 0;
    bool m_esMultiLingualFlag = false;
    bool m_mainComponentFlag = false;
    unsigned char m_qualityIndicator = 0;
    unsigned char m_samplingRate = 0;
    unsigned int m_language = 0;
    unsigned int m_language2 = 0;
    TTRawRun m_text;
};

// data_content_descriptor of ARIB (0xC7): a data broadcast of the event,
// its selector, the components it refers to and a raw text.
class ZUM_EXPORT TCDescDataContent : public TCBaseDesc {
public:
    TCDescDataContent();
    ~TCDescDataContent() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned short DataComponentId() const { return m_dataComponentId; }
    unsigned char EntryComponent() const { return m_entryComponent; }
    // The lengths as the stream gives them; a run cut by the descriptor's end copies what is there.
    unsigned char SelectorLength() const { return m_selectorLength; }
    unsigned char NumOfComponentRef() const { return m_numOfComponentRef; }
    unsigned int ISO639LanguageCode() const { return m_language; }
    unsigned char TextLength() const { return m_textLength; }
    // Text copies of the three runs.
    bool SelectorByte(unsigned char* buffer, int* size) const;
    bool ComponentRef(unsigned char* buffer, int* size) const;
    bool TextChar(char* buffer, int* size) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned short m_dataComponentId = 0;
    unsigned char m_entryComponent = 0;
    unsigned char m_selectorLength = 0;
    unsigned char m_numOfComponentRef = 0;
    unsigned char m_textLength = 0;
    unsigned int m_language = 0;
    TTRawRun m_selector;
    TTRawRun m_componentRefs;
    TTRawRun m_text;
};

// data_component_descriptor of ARIB (0xFD), in a PMT: the data coding of a
// stream and what that coding adds.
class ZUM_EXPORT TCDescDataComponent : public TCBaseDesc {
public:
    TCDescDataComponent();
    ~TCDescDataComponent() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned short DataComponentId() const { return m_dataComponentId; }
    int AdditionalDataCompInfoLength() const { return m_info.length; }
    // Text copy.
    bool AdditionalDataCompInfo(unsigned char* buffer, int* size) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned short m_dataComponentId = 0;
    TTRawRun m_info;
};

#endif
