#ifndef ZUM_DVB_DESCLANGUAGE_H
#define ZUM_DVB_DESCLANGUAGE_H

#include <zum-platform/Codes.h>

#include "../core/BaseDesc.h"

// audio_type of an ISO 639 language entry; other values pass through as sent.
enum EAudioType : int {
    AUDIO_TYPE_UNDEFINED = 0,
    AUDIO_TYPE_CLEAN_EFFECTS = 1,
    AUDIO_TYPE_HEARING_IMPAIRED = 2,
    AUDIO_TYPE_VISUAL_IMPAIRED_COMMENTARY = 3,
};

// ISO_639_language_descriptor (0x0A): language and audio type per entry.
class ZUM_EXPORT TCDescLanguage : public TCBaseDesc {
public:
    TCDescLanguage();
    ~TCDescLanguage() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned short Count() const { return m_count; }
    // Both set and true for an entry of the list.
    bool Language(int index, ELanguageCode* language, EAudioType* audioType) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    // The four-byte entries are read from the raw copy.
    unsigned short m_count = 0;
};

// teletext_descriptor (0x56): the teletext pages of a stream.
class ZUM_EXPORT TCDescTeletext : public TCBaseDesc {
public:
    TCDescTeletext();
    ~TCDescTeletext() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    int Count() const { return m_count; }
    // 0 for an index outside the entries.
    unsigned int Iso639LangCode(int index) const;
    unsigned char TeletextType(int index) const;
    unsigned char TeletextMagzineNumber(int index) const;
    unsigned char TeletextPageNumber(int index) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    const unsigned char* m_Page(int index) const;

    // Five-byte pages, read from the raw copy.
    int m_count = 0;
};

// subtitling_descriptor (0x59): the DVB subtitle services of a stream.
class ZUM_EXPORT TCDescSubtitling : public TCBaseDesc {
public:
    TCDescSubtitling();
    ~TCDescSubtitling() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    int Count() const { return m_count; }
    // 0 for an index outside the entries.
    unsigned int Iso639LangCode(int index) const;
    unsigned char SubtitlingType(int index) const;
    unsigned short CompositionPageId(int index) const;
    unsigned short AncillaryPageId(int index) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    const unsigned char* m_Subtitle(int index) const;

    // Eight-byte subtitle services, read from the raw copy.
    int m_count = 0;
};

#endif
