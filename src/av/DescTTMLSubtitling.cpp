#include "DescTTMLSubtitling.h"

#include "../core/ByteReader.h"
#include "../dvb/DescText.h"

TCDescTTMLSubtitling::TCDescTTMLSubtitling() = default;

TCDescTTMLSubtitling::~TCDescTTMLSubtitling()
{
    DeleteAll();
}

void TCDescTTMLSubtitling::DeleteAll()
{
    m_language = -1;
    m_subtitlePurpose = m_ttsSuitability = 0;
    m_profileCount = 0;
    m_profiles = TTRawRun();
    m_qualifierField1 = m_qualifierField2 = m_qualifierField3 = 0;
    m_qualifierFlag1 = m_qualifierFlag2 = 0;
    m_fontCount = 0;
    m_fonts = TTRawRun();
    m_serviceName = TTRawRun();
}

TCBaseDesc* TCDescTTMLSubtitling::Fork() const
{
    return t_ForkAs(new TCDescTTMLSubtitling());
}

int TCDescTTMLSubtitling::t_Parse(const unsigned char* payload, unsigned char length)
{
    if (length < 7 || payload[0] != 0x20)
        return 0;
    DeleteAll();
    TCByteReader reader(payload + 1, length - 1);
    m_language = static_cast<int>(reader.U24());
    const unsigned int purpose = reader.U8();
    m_subtitlePurpose = static_cast<unsigned char>(purpose >> 2);
    m_ttsSuitability = static_cast<unsigned char>(purpose & 0x03);
    const unsigned int flags = reader.U8();
    const bool fontFlag = flags & 0x80;
    const bool qualifierFlag = flags & 0x40;
    m_profileCount = static_cast<unsigned char>(flags & 0x0F);
    m_profiles = zum_text::TakeRun<TTRawRun>(reader, payload, m_profileCount);
    if (m_profiles.length < m_profileCount)
        return 1 + reader.Consumed();
    if (qualifierFlag) {
        if (!reader.Has(4))
            return 1 + reader.Consumed();
        const unsigned int q0 = reader.U8();
        const unsigned int q1 = reader.U8();
        reader.Skip(2);
        m_qualifierField1 = static_cast<int>(q0 >> 4);
        m_qualifierField2 = static_cast<int>(q0 & 0x0F);
        m_qualifierField3 = static_cast<int>((q1 >> 2) & 0x0F);
        m_qualifierFlag1 = (q1 >> 7) & 1;
        m_qualifierFlag2 = (q1 >> 6) & 1;
    }
    if (fontFlag) {
        if (reader.Left() <= 0)
            return 1 + reader.Consumed();
        m_fontCount = static_cast<unsigned char>(reader.U8());
        m_fonts = zum_text::TakeRun<TTRawRun>(reader, payload, m_fontCount);
        if (m_fonts.length < m_fontCount)
            return 1 + reader.Consumed();
    }
    if (reader.Left() <= 0)
        return 1 + reader.Consumed();
    const int nameLength = static_cast<int>(reader.U8());
    // Bytes behind the name are ignored.
    m_serviceName = zum_text::TakeRun<TTRawRun>(reader, payload, nameLength);
    return 1 + reader.Consumed();
}

TSTTMLInfo TCDescTTMLSubtitling::GetTTMLInfo() const
{
    TSTTMLInfo info;
    info.language = m_language;
    info.subtitlePurpose = m_subtitlePurpose;
    info.ttsSuitability = m_ttsSuitability;
    info.qualifierField1 = m_qualifierField1;
    info.qualifierField2 = m_qualifierField2;
    info.qualifierField3 = m_qualifierField3;
    info.qualifierFlag1 = m_qualifierFlag1;
    info.qualifierFlag2 = m_qualifierFlag2;
    info.profiles.assign(m_profileCount, TTML_PROFILE_NONE);
    const unsigned char* profiles = t_At(m_profiles);
    for (int i = 0; i < m_profiles.length; ++i)
        info.profiles[static_cast<size_t>(i)] = static_cast<ESBTTtmlProfile>(profiles[i]);
    info.essentialFontIds.assign(m_fontCount, 0);
    const unsigned char* fonts = t_At(m_fonts);
    for (int i = 0; i < m_fonts.length; ++i)
        info.essentialFontIds[static_cast<size_t>(i)] = fonts[i] & 0x7F;
    const unsigned char* name = t_At(m_serviceName);
    if (name)
        info.serviceName.assign(reinterpret_cast<const char*>(name), m_serviceName.length);
    return info;
}
