#include "DescLanguage.h"

#include "../core/ByteReader.h"
#include "../core/Diagnostics.h"
#include "../core/RecordAt.h"

// ---------------------------------------------------------------- language

TCDescLanguage::TCDescLanguage() : TCBaseDesc(0x0A) {}

TCDescLanguage::~TCDescLanguage()
{
    DeleteAll();
}

void TCDescLanguage::DeleteAll()
{
    m_entries.clear();
    m_count = 0;
}

TCBaseDesc* TCDescLanguage::Fork() const
{
    return t_ForkAs(new TCDescLanguage());
}

int TCDescLanguage::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    m_count = static_cast<unsigned short>(length / 4);
    m_entries.assign(payload, payload + m_count * 4);
    return m_count * 4;
}

bool TCDescLanguage::Language(int index, ELanguageCode* language, EAudioType* audioType) const
{
    if (index < 0 || index >= m_count) {
        static_cast<void>(ZUM_ASSERT(0));
        return false;
    }
    if (!language || !audioType)
        return false;
    TCByteReader reader(m_entries.data() + static_cast<size_t>(index) * 4, 4);
    *language = reader.U24();
    *audioType = static_cast<EAudioType>(reader.U8());
    return true;
}

// ---------------------------------------------------------------- teletext

TCDescTeletext::TCDescTeletext() : TCBaseDesc(0x56) {}

TCDescTeletext::~TCDescTeletext()
{
    DeleteAll();
}

void TCDescTeletext::DeleteAll()
{
    m_pages.clear();
}

TCBaseDesc* TCDescTeletext::Fork() const
{
    return t_ForkAs(new TCDescTeletext());
}

int TCDescTeletext::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    TCByteReader reader(payload, length);
    m_pages.reserve(length / 5);
    while (reader.Has(5)) {
        TTPage page;
        page.language = reader.U24();
        const unsigned int typeAndMagazine = reader.U8();
        page.type = static_cast<unsigned char>(typeAndMagazine >> 3);
        page.magazine = static_cast<unsigned char>(typeAndMagazine & 0x07);
        page.page = static_cast<unsigned char>(reader.U8());
        m_pages.push_back(page);
    }
    // A body too short for one page is taken as a whole.
    return m_pages.empty() ? length : reader.Consumed();
}

unsigned int TCDescTeletext::Iso639LangCode(int index) const
{
    return FieldAt(m_pages, index, &TTPage::language);
}

unsigned char TCDescTeletext::TeletextType(int index) const
{
    return FieldAt(m_pages, index, &TTPage::type);
}

unsigned char TCDescTeletext::TeletextMagzineNumber(int index) const
{
    return FieldAt(m_pages, index, &TTPage::magazine);
}

unsigned char TCDescTeletext::TeletextPageNumber(int index) const
{
    return FieldAt(m_pages, index, &TTPage::page);
}

// ---------------------------------------------------------------- subtitling

TCDescSubtitling::TCDescSubtitling() : TCBaseDesc(0x59) {}

TCDescSubtitling::~TCDescSubtitling()
{
    DeleteAll();
}

void TCDescSubtitling::DeleteAll()
{
    m_subtitles.clear();
}

TCBaseDesc* TCDescSubtitling::Fork() const
{
    return t_ForkAs(new TCDescSubtitling());
}

int TCDescSubtitling::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    TCByteReader reader(payload, length);
    m_subtitles.reserve(length / 8);
    while (reader.Has(8)) {
        TTSubtitle subtitle;
        subtitle.language = reader.U24();
        subtitle.type = static_cast<unsigned char>(reader.U8());
        subtitle.compositionPageId = static_cast<unsigned short>(reader.U16());
        subtitle.ancillaryPageId = static_cast<unsigned short>(reader.U16());
        m_subtitles.push_back(subtitle);
    }
    return reader.Consumed();
}

unsigned int TCDescSubtitling::Iso639LangCode(int index) const
{
    return FieldAt(m_subtitles, index, &TTSubtitle::language);
}

unsigned char TCDescSubtitling::SubtitlingType(int index) const
{
    return FieldAt(m_subtitles, index, &TTSubtitle::type);
}

unsigned short TCDescSubtitling::CompositionPageId(int index) const
{
    return FieldAt(m_subtitles, index, &TTSubtitle::compositionPageId);
}

unsigned short TCDescSubtitling::AncillaryPageId(int index) const
{
    return FieldAt(m_subtitles, index, &TTSubtitle::ancillaryPageId);
}
