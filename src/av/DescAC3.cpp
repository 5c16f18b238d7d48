#include "DescAC3.h"

#include <cstdint>

#include "../core/ByteReader.h"
#include "../core/Diagnostics.h"
#include "../core/Log.h"
#include "../dvb/DescText.h"

namespace {

// One optional byte of the DVB forms; a byte past the body logs and leaves
// field and position.
void m_ReadByte(const unsigned char* payload, int length, int& position, unsigned char& field)
{
    if (position >= length) {
        ZUM_LOGD("[TCDescEnhancedAC3::%s] failed, pos[%d], len[%d]", "m_ReadByte", position, length);
        return;
    }
    field = payload[position++];
}

} // namespace

// ---------------------------------------------------------------- AC-3 (DVB)

TCDescAC3::TCDescAC3() : TCBaseDesc(0x6A) {}

TCDescAC3::~TCDescAC3()
{
    DeleteAll();
}

void TCDescAC3::DeleteAll()
{
    m_componentTypeFlag = m_bsidFlag = m_mainidFlag = m_asvcFlag = false;
    m_componentType = m_bsid = m_mainid = m_asvc = 0;
    m_additionalInfo = TTRawRun();
}

TCBaseDesc* TCDescAC3::Fork() const
{
    return t_ForkAs(new TCDescAC3());
}

int TCDescAC3::t_Parse(const unsigned char* payload, unsigned char length)
{
    m_additionalInfo = TTRawRun();
    if (length == 0)
        return 0;
    m_componentTypeFlag = payload[0] & 0x80;
    m_bsidFlag = payload[0] & 0x40;
    m_mainidFlag = payload[0] & 0x20;
    m_asvcFlag = payload[0] & 0x10;
    int position = 1;
    if (m_componentTypeFlag)
        m_ReadByte(payload, length, position, m_componentType);
    if (m_bsidFlag)
        m_ReadByte(payload, length, position, m_bsid);
    if (m_mainidFlag)
        m_ReadByte(payload, length, position, m_mainid);
    if (m_asvcFlag)
        m_ReadByte(payload, length, position, m_asvc);
    if (position >= length)
        return position;
    m_additionalInfo = t_Run(payload, payload + position, length - position);
    return length;
}

bool TCDescAC3::GetAdditionalInfo(char* data, int* length) const
{
    return zum_text::Copy(t_At(m_additionalInfo), m_additionalInfo.length, data, length);
}

// ---------------------------------------------------------------- E-AC-3 (DVB)

TCDescEnhancedAC3::TCDescEnhancedAC3() : TCBaseDesc(0x7A) {}

TCDescEnhancedAC3::~TCDescEnhancedAC3()
{
    DeleteAll();
}

void TCDescEnhancedAC3::DeleteAll()
{
    m_flags = m_substream1 = m_substream2 = m_substream3 = 0;
    m_componentType = m_bsid = m_mainid = m_asvc = 0;
    m_additionalInfo = TTRawRun();
}

TCBaseDesc* TCDescEnhancedAC3::Fork() const
{
    return t_ForkAs(new TCDescEnhancedAC3());
}

int TCDescEnhancedAC3::t_Parse(const unsigned char* payload, unsigned char length)
{
    m_additionalInfo = TTRawRun();
    if (length == 0)
        return 0;
    m_flags = payload[0];
    int position = 1;
    // mixinfoexists has no byte of its own.
    const struct {
        bool set;
        unsigned char& field;
    } reads[] = {{ComponentTypeFlag(), m_componentType}, {BsidFlag(), m_bsid},
                 {MainidFlag(), m_mainid},               {AsvcFlag(), m_asvc},
                 {Substream1Flag(), m_substream1},       {Substream2Flag(), m_substream2},
                 {Substream3Flag(), m_substream3}};
    for (const auto& read : reads)
        if (read.set)
            m_ReadByte(payload, length, position, read.field);
    if (position >= length)
        return position;
    m_additionalInfo = t_Run(payload, payload + position, length - position);
    return length;
}

bool TCDescEnhancedAC3::GetAdditionalInfo(char* data, int* length) const
{
    return zum_text::Copy(t_At(m_additionalInfo), m_additionalInfo.length, data, length);
}

// ---------------------------------------------------------------- AC-3 audio (ATSC)

TCDescAC3Audio::TCDescAC3Audio() : TCBaseDesc(0x81) {}

TCDescAC3Audio::~TCDescAC3Audio()
{
    DeleteAll();
}

void TCDescAC3Audio::DeleteAll()
{
    m_sampleRateCode = m_bsid = m_bitRateCode = m_surroundMode = 0xFF;
    m_bsmod = m_numChannels = m_fullService = 0xFF;
    m_languageCode = m_languageCode2 = 0;
    m_mainid = INVALID;
    m_asvcFlags = 0xFF;
    m_textCode = 0;
    m_text = TTRawRun();
    m_additionalInfo = TTRawRun();
    m_languageFlag = false;
    m_language = 0;
}

TCBaseDesc* TCDescAC3Audio::Fork() const
{
    return t_ForkAs(new TCDescAC3Audio());
}

int TCDescAC3Audio::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length < 1)
        return 0;
    m_sampleRateCode = (payload[0] >> 5) & 0x03;
    m_bsid = payload[0] & 0x1F;
    if (length == 1)
        return 1;
    m_bitRateCode = payload[1] >> 2;
    m_surroundMode = payload[1] & 0x03;
    if (length == 2)
        return 2;
    m_bsmod = (payload[2] >> 5) & 0x03;
    m_numChannels = (payload[2] >> 1) & 0x0F;
    m_fullService = payload[2] & 0x01;
    if (length == 3)
        return 3;
    m_languageCode = payload[3];
    if (length == 4)
        return 4;
    int n = 4;
    // Dual mono carries a second language code and moves the rest by one.
    if (m_numChannels == 0) {
        m_languageCode2 = payload[4];
        if (length == 5)
            return 5;
        n = 5;
    }
    if (payload[2] & 0x40) {
        m_mainid = 0;
        m_asvcFlags = payload[n];
    } else {
        m_mainid = (payload[n] >> 5) & 0x03;
    }
    if (length <= n + 1)
        return n + 2;
    const int textLength = payload[n + 1] >> 1;
    m_textCode = payload[n + 1] & 0x01;
    int position = n + 2;
    if (textLength > 0) {
        if (position >= length)
            return position;
        TCByteReader reader(payload + position, length - position);
        m_text = zum_text::TakeRun<TTRawRun>(reader, payload, textLength);
        position += m_text.length;
    }
    if (position < length) {
        m_languageFlag = payload[position] & 0x80;
        ++position;
        if (m_languageFlag && length - position > 2) {
            m_language = ReadBE24(payload + position);
            position += 3;
        }
    }
    if (position >= length)
        return position;
    m_additionalInfo = t_Run(payload, payload + position, length - position);
    return length;
}

unsigned char TCDescAC3Audio::AdditionalInfoLength() const
{
    if (!ZUM_ASSERT(m_mainid != (uint8_t)INVALID))
        return 0;
    return m_additionalInfo.length;
}

bool TCDescAC3Audio::GetAdditionalInfo(char* data, int* length) const
{
    const char* pData = data;
    if (!ZUM_ASSERT((m_mainid != (uint8_t)INVALID) && pData))
        return false;
    if (!length || m_additionalInfo.length == 0 || *length < m_additionalInfo.length)
        return false;
    return zum_text::Copy(t_At(m_additionalInfo), m_additionalInfo.length, data, length);
}

unsigned char TCDescAC3Audio::TextLen() const
{
    if (m_mainid == (uint8_t)INVALID) {
        ZUM_LOGD("[ASSERTION!!!] TCDescAC3Audio Line = %d", __LINE__);
        return 0;
    }
    return m_text.length;
}

bool TCDescAC3Audio::GetText(char* data, int* length) const
{
    if (m_mainid == (uint8_t)INVALID || !data) {
        ZUM_LOGD("[ASSERTION!!!] TCDescAC3Audio Line = %d", __LINE__);
        return false;
    }
    if (!length || m_text.length == 0 || *length < m_text.length)
        return false;
    return zum_text::Copy(t_At(m_text), m_text.length, data, length);
}

// ---------------------------------------------------------------- E-AC-3 (ATSC)

TCDescATSCEnhancedAC3::TCDescATSCEnhancedAC3() : TCBaseDesc(0xCC) {}

TCDescATSCEnhancedAC3::~TCDescATSCEnhancedAC3()
{
    DeleteAll();
}

void TCDescATSCEnhancedAC3::DeleteAll()
{
    m_bsidFlag = m_mainidFlag = m_asvcFlag = m_mixinfoExists = 0;
    m_substream1Flag = m_substream2Flag = m_substream3Flag = 0;
    m_fullService = m_audioServiceType = m_numChannels = m_languageFlag = m_languageFlag2 = 0;
    m_bsid = m_priority = m_mainid = m_asvc = m_substream1 = m_substream2 = m_substream3 = 0;
    m_language = m_language2 = m_substream1Language = m_substream2Language = m_substream3Language = 0;
    m_additionalInfo = TTRawRun();
}

TCBaseDesc* TCDescATSCEnhancedAC3::Fork() const
{
    return t_ForkAs(new TCDescATSCEnhancedAC3());
}

int TCDescATSCEnhancedAC3::t_Parse(const unsigned char* payload, unsigned char length)
{
    m_additionalInfo = TTRawRun();
    if (length == 0)
        return 1;
    m_bsidFlag = (payload[0] >> 6) & 1;
    m_mainidFlag = (payload[0] >> 5) & 1;
    m_asvcFlag = (payload[0] >> 4) & 1;
    m_mixinfoExists = (payload[0] >> 3) & 1;
    m_substream1Flag = (payload[0] >> 2) & 1;
    m_substream2Flag = (payload[0] >> 1) & 1;
    m_substream3Flag = payload[0] & 1;
    if (length == 1)
        return 2;
    m_fullService = (payload[1] >> 6) & 1;
    m_audioServiceType = (payload[1] >> 3) & 0x03;
    m_numChannels = payload[1] & 0x03;
    if (length == 2)
        return 3;
    m_languageFlag = (payload[2] >> 7) & 1;
    m_languageFlag2 = (payload[2] >> 6) & 1;
    if (m_bsidFlag)
        m_bsid = payload[2] & 0x1F;
    int position = 3;
    if (m_mainidFlag) {
        if (length == 3)
            return 4;
        m_priority = (payload[3] >> 3) & 0x03;
        m_mainid = payload[3] & 0x07;
        position = 4;
    }
    // A field that would pass the body is not read; the position still moves.
    const struct {
        unsigned char set;
        unsigned char& field;
    } bytes[] = {{m_asvcFlag, m_asvc},
                 {m_substream1Flag, m_substream1},
                 {m_substream2Flag, m_substream2},
                 {m_substream3Flag, m_substream3}};
    for (const auto& read : bytes) {
        if (!read.set)
            continue;
        if (position + 1 > length)
            return position + 1;
        read.field = payload[position++];
    }
    const struct {
        unsigned char set;
        unsigned int& field;
    } languages[] = {{m_languageFlag, m_language},
                     {m_languageFlag2, m_language2},
                     {m_substream1Flag, m_substream1Language},
                     {m_substream2Flag, m_substream2Language},
                     {m_substream3Flag, m_substream3Language}};
    for (const auto& read : languages) {
        if (!read.set)
            continue;
        if (position + 3 > length)
            return position + 3;
        read.field = ReadBE24(payload + position);
        position += 3;
    }
    if (position < length)
        m_additionalInfo = t_Run(payload, payload + position, length - position);
    return length;
}

bool TCDescATSCEnhancedAC3::GetAdditionalInfo(char* data, int* length) const
{
    return zum_text::Copy(t_At(m_additionalInfo), m_additionalInfo.length, data, length);
}
