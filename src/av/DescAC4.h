#ifndef ZUM_AV_DESCAC4_H
#define ZUM_AV_DESCAC4_H

#include <string>
#include <vector>

#include <zum-platform/Codes.h>

#include "../core/DescExtension.h"

// One audio choice of an AC-4 stream: its id, language and whether it is
// main audio.
class ZUM_EXPORT TCAC4Presentation {
public:
    // The language of no group, until a tag gives one.
    static constexpr ELanguageCode kNoLanguage = 0x7A7A7B;

    void SetPresentationId(unsigned char id);
    // A tag of two characters or more becomes the language; the tag itself is not kept.
    void SetLanguageTag(std::string tag);
    void SetMain(unsigned char main) { m_main = main; }

    bool HasId() const { return m_hasId; }
    unsigned char PresentationId() const { return m_presentationId; }
    const std::string& LanguageTag() const { return m_languageTag; }
    ELanguageCode Language() const { return m_language; }
    // Set when the content classifier is 0 or 1 (complete or music and effects).
    unsigned char Main() const { return m_main; }

private:
    bool m_hasId = false;
    unsigned char m_presentationId = 0;
    std::string m_languageTag;
    ELanguageCode m_language = kNoLanguage;
    unsigned char m_main = 0;
};

// AC4_descriptor (extension 0x15, tag 0x7F15). The toc bytes hold the
// decoder specific information; the walks read its presentations and throw
// std::out_of_range where the bytes end. t_Parse does not start them: the
// caller picks the walk by the first three bits of the toc, the DSI version.
class ZUM_EXPORT TCDescAC4 : public TCDescExtension {
public:
    TCDescAC4();
    ~TCDescAC4() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char ConfigFlag() const { return m_configFlag; }
    unsigned char TocFlag() const { return m_tocFlag; }
    unsigned char DialogEnhancementEnabled() const { return m_dialogEnhancementEnabled; }
    // 0 mono, 1 stereo, 2 multichannel, 3 reserved.
    unsigned char ChannelMode() const { return m_channelMode; }
    // ac4_toc_len as sent; the toc holds what of it the body carries.
    unsigned char TocLength() const { return m_tocLength; }
    int TocSize() const { return m_toc.length; }
    // Copies of the toc and of the additional info; refuse to truncate.
    bool GetToc(unsigned char* buffer, int* size) const;
    unsigned char AdditionalInfoLength() const { return m_additionalInfo.length; }
    bool GetAdditionalInfo(unsigned char* buffer, int* size) const;

    int NumOfPresentations() const { return static_cast<int>(m_presentations.size()); }
    // Null for an index outside the list.
    const TCAC4Presentation* Presentation(int index) const;

    // Bit readers over `length` bytes at `data`; positions in bits from the first byte.
    static unsigned int read_bits(int length, unsigned char* data, int& position, int count);
    static void align_bit_pos_to_byte(int& position);

    // The two walks over a DSI, version 0 and version 1: they append the
    // presentations that have an id.
    void m_ac4_dsi(int length, unsigned char* data);
    void m_ac4_dsi_v1(int length, unsigned char* data);
    int m_ac4_presentation_v0_dsi(int length, unsigned char* data, TCAC4Presentation& presentation, int& position);
    int m_ac4_presentation_v1_dsi(int length, unsigned char* data, TCAC4Presentation& presentation, int& position,
                                  int presentationBytes);
    void m_ac4_substream_dsi(int length, unsigned char* data, TCAC4Presentation& presentation, int& position);
    void m_ac4_substream_group_dsi(int length, unsigned char* data, TCAC4Presentation& presentation,
                                   int& position);
    void m_content_lang_desc(int length, unsigned char* data, TCAC4Presentation& presentation, int& position);
    void m_ac4_alternative_info(int length, unsigned char* data, int& position);
    static void m_ac4_bitrate_dsi(int& position);

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    using TTWalk = void (TCDescAC4::*)(int, unsigned char*, TCAC4Presentation&, int&);
    // The substream or group walks that presentation_config calls for; above 5 a counted run is passed over.
    void m_WalksByConfig(unsigned int config, TTWalk walk, int length, unsigned char* data,
                         TCAC4Presentation& presentation, int& position);
    // b_presentation_id and the id behind it.
    static void m_ReadPresentationId(int length, unsigned char* data, TCAC4Presentation& presentation,
                                     int& position);
    // Passes over a count of `countBits` times `unitBits`.
    static void m_SkipCounted(int length, unsigned char* data, int& position, int countBits, int unitBits);

    unsigned char m_configFlag = 0;
    unsigned char m_tocFlag = 0;
    unsigned char m_dialogEnhancementEnabled = 0;
    unsigned char m_channelMode = 0;
    unsigned char m_tocLength = 0;
    TTRawRun m_toc;
    TTRawRun m_additionalInfo;
    std::vector<TCAC4Presentation> m_presentations;
};

#endif
