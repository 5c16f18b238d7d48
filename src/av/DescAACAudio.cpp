#include "DescAACAudio.h"

#include <algorithm>

#include "../core/ByteReader.h"
#include "../core/Log.h"
#include "../dvb/DescText.h"

// ---------------------------------------------------------------- AAC

TCDescAACAudio::TCDescAACAudio() : TCBaseDesc(0x7C) {}

TCDescAACAudio::~TCDescAACAudio()
{
    DeleteAll();
}

void TCDescAACAudio::DeleteAll()
{
    m_profileAndLevel = 0;
    m_aacTypeFlag = 0;
    m_aacType = 0;
    m_additionalInfo = TTRawRun();
}

TCBaseDesc* TCDescAACAudio::Fork() const
{
    return t_ForkAs(new TCDescAACAudio());
}

int TCDescAACAudio::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length < 1)
        return 0;
    m_profileAndLevel = payload[0];
    if (length < 2)
        return 1;
    m_aacTypeFlag = payload[1] >> 7;
    int position = 2;
    if (m_aacTypeFlag && length > 2) {
        m_aacType = payload[2];
        position = 3;
    }
    if (position < length)
        m_additionalInfo = t_Run(payload, payload + position, length - position);
    return length;
}

bool TCDescAACAudio::GetAdditionalInfo(unsigned char* data, int* length) const
{
    return zum_text::Copy(t_At(m_additionalInfo), m_additionalInfo.length, data, length);
}

// ---------------------------------------------------------------- MPEG-4 audio

TCDescMpeg4Audio::TCDescMpeg4Audio() : TCBaseDesc(0x1C) {}

TCDescMpeg4Audio::~TCDescMpeg4Audio()
{
    DeleteAll();
}

void TCDescMpeg4Audio::DeleteAll()
{
    m_profileAndLevel = -1;
}

TCBaseDesc* TCDescMpeg4Audio::Fork() const
{
    return t_ForkAs(new TCDescMpeg4Audio());
}

int TCDescMpeg4Audio::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length != 1) {
        ZUM_LOGD("TCDescMpeg4Audio::t_Parse, len[%i] < STEREOSCOPIC_BODY_LEN[%i]", length, 1);
        return length;
    }
    m_profileAndLevel = payload[0];
    return 1;
}

// ---------------------------------------------------------------- DRA registration

TCDescDRARegistration::TCDescDRARegistration() : TCBaseDesc(0x05) {}

TCDescDRARegistration::~TCDescDRARegistration()
{
    DeleteAll();
}

void TCDescDRARegistration::DeleteAll()
{
    m_formatIdentifier = 0;
}

TCBaseDesc* TCDescDRARegistration::Fork() const
{
    return t_ForkAs(new TCDescDRARegistration());
}

int TCDescDRARegistration::t_Parse(const unsigned char* payload, unsigned char length)
{
    if (length != 4)
        return length;
    m_formatIdentifier = ReadBE32(payload);
    return 4;
}

// ---------------------------------------------------------------- DRA audio stream

TCDescDRAAudioStream::TCDescDRAAudioStream() : TCBaseDesc(0xA0) {}

TCDescDRAAudioStream::~TCDescDRAAudioStream()
{
    DeleteAll();
}

void TCDescDRAAudioStream::DeleteAll()
{
    m_sampleRateIndex = m_normalChannels = m_lfeChannels = 0;
    m_bit3Flag = m_textPresent = m_languagePresent = m_bit0Flag = 0;
    m_textLength = 0;
    m_text = TTRawRun();
    m_language = 0;
    m_additionalInfo = TTRawRun();
}

TCBaseDesc* TCDescDRAAudioStream::Fork() const
{
    return t_ForkAs(new TCDescDRAAudioStream());
}

int TCDescDRAAudioStream::t_Parse(const unsigned char* payload, unsigned char length)
{
    if (!payload || length < 2)
        return 0;
    m_sampleRateIndex = payload[0] >> 4;
    m_normalChannels = static_cast<unsigned char>(((payload[0] & 0x0F) << 2) | (payload[1] >> 6));
    m_lfeChannels = (payload[1] >> 4) & 0x03;
    m_bit3Flag = (payload[1] >> 3) & 1;
    m_textPresent = (payload[1] >> 2) & 1;
    m_languagePresent = (payload[1] >> 1) & 1;
    m_bit0Flag = payload[1] & 1;

    // The language is read only where the body holds all three bytes.
    auto language = [&](int at) {
        if (at + 3 <= length)
            m_language = ReadBE24(payload + at);
        return at + 3;
    };
    int position = 2;
    if (!m_textPresent) {
        if (m_languagePresent) {
            if (length == 2)
                return 2;
            position = language(2);
        }
    } else {
        if (length < 3)
            return 3;
        m_textLength = payload[2];
        if (m_textLength == 0) {
            position = 3;
            if (m_languagePresent) {
                if (length < 4)
                    return 3;
                position = language(3);
            }
        } else {
            if (length < 4)
                return 3;
            const int units = std::min<int>(m_textLength, (length - 3) / 2);
            m_text = t_Run(payload, payload + 3, units * 2);
            position = 2 * m_textLength + 3;
            if (m_languagePresent) {
                if (position >= length)
                    return position;
                position = language(position);
            }
        }
    }
    if (position >= length)
        return position;
    m_additionalInfo = t_Run(payload, payload + position, length - position);
    return length;
}

bool TCDescDRAAudioStream::Text(unsigned short* out, unsigned short* length) const
{
    const unsigned char* text = t_At(m_text);
    const int stored = m_text.length / 2;
    if (!out || !length || !text || stored == 0)
        return false;
    const int count = stored < *length ? stored : *length;
    for (int i = 0; i < count; ++i)
        out[i] = static_cast<unsigned short>(ReadBE16(text + 2 * i));
    if (stored < *length)
        *length = static_cast<unsigned short>(stored);
    return true;
}

bool TCDescDRAAudioStream::AdditionalInfo(unsigned char* out, unsigned short* length) const
{
    const unsigned char* info = t_At(m_additionalInfo);
    const int stored = m_additionalInfo.length;
    if (!out || !length || !info || stored == 0)
        return false;
    const int count = stored < *length ? stored : *length;
    std::copy(info, info + count, out);
    if (stored < *length)
        *length = static_cast<unsigned short>(stored);
    return true;
}

int TCDescDRAAudioStream::EncodeType() const
{
    // Mono and stereo up to 4.1, by LFE + 10 x normal channels.
    static const unsigned char kTypes[42] = {
        16, 11, 11, 11, 11, 11, 11, 11, 11, 11, // 0 normal
        17, 18, 11, 11, 11, 11, 11, 11, 11, 11, // 1
        19, 20, 11, 11, 11, 11, 11, 11, 11, 11, // 2
        21, 22, 11, 11, 11, 11, 11, 11, 11, 11, // 3
        23, 24,                                 // 4
    };
    const int index = m_lfeChannels + 10 * m_normalChannels;
    return index > 41 ? 11 : kTypes[index];
}

// ---------------------------------------------------------------- supplementary audio

TCDescSupplementaryAudio::TCDescSupplementaryAudio() = default;

TCDescSupplementaryAudio::~TCDescSupplementaryAudio()
{
    DeleteAll();
}

void TCDescSupplementaryAudio::DeleteAll() {}

TCBaseDesc* TCDescSupplementaryAudio::Fork() const
{
    return t_ForkAs(new TCDescSupplementaryAudio());
}

int TCDescSupplementaryAudio::t_Parse(const unsigned char* payload, unsigned char length)
{
    if (length < 1 || payload[0] != 0x06)
        return 0;
    if (length < 2)
        return 1;
    m_mixType = (payload[1] & 0x80) ? 0 : 1;
    m_editorialClassification = std::min((payload[1] >> 2) & 0x1F, 4);
    m_languagePresent = payload[1] & 0x01;
    if (m_languagePresent && length >= 5)
        m_language = static_cast<int>(ReadBE24(payload + 2));
    // The private data bytes are not kept.
    return length;
}
