#ifndef ZUM_AV_DESCTTMLSUBTITLING_H
#define ZUM_AV_DESCTTMLSUBTITLING_H

#include <string>
#include <vector>

#include "../core/DescExtension.h"

// dvb_ttml_profile as sent; other values pass through.
enum ESBTTtmlProfile : unsigned char {
    TTML_PROFILE_NONE = 0x00,
    TTML_PROFILE_EBU_TT_D = 0x01,
    TTML_PROFILE_EBU_TT_D_BASIC_DE = 0x02,
};

// What GetTTMLInfo hands out: copies of everything the descriptor decoded.
struct ZUM_EXPORT TSTTMLInfo {
    int language = -1;
    unsigned char subtitlePurpose = 0;
    unsigned char ttsSuitability = 0;
    int qualifierField1 = 0;
    int qualifierField2 = 0;
    int qualifierField3 = 0;
    unsigned char qualifierFlag1 = 0;
    unsigned char qualifierFlag2 = 0;
    std::vector<ESBTTtmlProfile> profiles;
    std::vector<unsigned char> essentialFontIds;
    std::string serviceName;
};

// TTML_subtitling_descriptor (extension 0x20).
class ZUM_EXPORT TCDescTTMLSubtitling : public TCDescExtension {
public:
    TCDescTTMLSubtitling();
    ~TCDescTTMLSubtitling() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    int Language() const { return m_language; }
    unsigned char SubtitlePurpose() const { return m_subtitlePurpose; }
    unsigned char TTSSuitability() const { return m_ttsSuitability; }
    TSTTMLInfo GetTTMLInfo() const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    int m_language = -1;
    unsigned char m_subtitlePurpose = 0;
    unsigned char m_ttsSuitability = 0;
    // Profiles announced; those behind the body's end read as 0.
    unsigned char m_profileCount = 0;
    TTRawRun m_profiles;
    int m_qualifierField1 = 0;
    int m_qualifierField2 = 0;
    int m_qualifierField3 = 0;
    unsigned char m_qualifierFlag1 = 0;
    unsigned char m_qualifierFlag2 = 0;
    unsigned char m_fontCount = 0;
    TTRawRun m_fonts;
    TTRawRun m_serviceName;
};

#endif
