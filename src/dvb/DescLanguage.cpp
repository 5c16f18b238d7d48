#include "DescLanguage.h"

#include "../core/ByteReader.h"
#include "../core/Diagnostics.h"
#include "../core/RecordAt.h"

namespace {

const int kLanguageEntrySize = 4;
const int kPageSize = 5;
const int kSubtitleSize = 8;

} // namespace

// ---------------------------------------------------------------- language

TCDescLanguage::TCDescLanguage() : TCBaseDesc(0x0A) {}

TCDescLanguage::~TCDescLanguage()
{
    DeleteAll();
}

void TCDescLanguage::DeleteAll()
{
    m_count = 0;
}

TCBaseDesc* TCDescLanguage::Fork() const
{
    return t_ForkAs(new TCDescLanguage());
}

int TCDescLanguage::t_Parse(const unsigned char* /*payload*/, unsigned char length)
{
    m_count = static_cast<unsigned short>(length / kLanguageEntrySize);
    return m_count * kLanguageEntrySize;
}

bool TCDescLanguage::Language(int index, ELanguageCode* language, EAudioType* audioType) const
{
    const unsigned char* entry = RawRecordAt(t_Payload(), m_count, kLanguageEntrySize, index);
    if (!entry) {
        static_cast<void>(ZUM_ASSERT(0));
        return false;
    }
    if (!language || !audioType)
        return false;
    *language = ReadBE24(entry);
    *audioType = static_cast<EAudioType>(entry[3]);
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
    m_count = 0;
}

TCBaseDesc* TCDescTeletext::Fork() const
{
    return t_ForkAs(new TCDescTeletext());
}

int TCDescTeletext::t_Parse(const unsigned char* /*payload*/, unsigned char length)
{
    m_count = length / kPageSize;
    // A body too short for one page is taken as a whole.
    return m_count == 0 ? length : m_count * kPageSize;
}

const unsigned char* TCDescTeletext::m_Page(int index) const
{
    return RawRecordAt(t_Payload(), m_count, kPageSize, index);
}

unsigned int TCDescTeletext::Iso639LangCode(int index) const
{
    const unsigned char* page = m_Page(index);
    return page ? ReadBE24(page) : 0;
}

unsigned char TCDescTeletext::TeletextType(int index) const
{
    const unsigned char* page = m_Page(index);
    return page ? static_cast<unsigned char>(page[3] >> 3) : 0;
}

unsigned char TCDescTeletext::TeletextMagzineNumber(int index) const
{
    const unsigned char* page = m_Page(index);
    return page ? static_cast<unsigned char>(page[3] & 0x07) : 0;
}

unsigned char TCDescTeletext::TeletextPageNumber(int index) const
{
    const unsigned char* page = m_Page(index);
    return page ? page[4] : 0;
}

// ---------------------------------------------------------------- subtitling

TCDescSubtitling::TCDescSubtitling() : TCBaseDesc(0x59) {}

TCDescSubtitling::~TCDescSubtitling()
{
    DeleteAll();
}

void TCDescSubtitling::DeleteAll()
{
    m_count = 0;
}

TCBaseDesc* TCDescSubtitling::Fork() const
{
    return t_ForkAs(new TCDescSubtitling());
}

int TCDescSubtitling::t_Parse(const unsigned char* /*payload*/, unsigned char length)
{
    m_count = length / kSubtitleSize;
    return m_count * kSubtitleSize;
}

const unsigned char* TCDescSubtitling::m_Subtitle(int index) const
{
    return RawRecordAt(t_Payload(), m_count, kSubtitleSize, index);
}

unsigned int TCDescSubtitling::Iso639LangCode(int index) const
{
    const unsigned char* subtitle = m_Subtitle(index);
    return subtitle ? ReadBE24(subtitle) : 0;
}

unsigned char TCDescSubtitling::SubtitlingType(int index) const
{
    const unsigned char* subtitle = m_Subtitle(index);
    return subtitle ? subtitle[3] : 0;
}

unsigned short TCDescSubtitling::CompositionPageId(int index) const
{
    const unsigned char* subtitle = m_Subtitle(index);
    return subtitle ? static_cast<unsigned short>(ReadBE16(subtitle + 4)) : 0;
}

unsigned short TCDescSubtitling::AncillaryPageId(int index) const
{
    const unsigned char* subtitle = m_Subtitle(index);
    return subtitle ? static_cast<unsigned short>(ReadBE16(subtitle + 6)) : 0;
}
