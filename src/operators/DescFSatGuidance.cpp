#include "DescFSatGuidance.h"

#include <algorithm>
#include <cstring>

#include "../core/ByteReader.h"
#include "../dvb/DescText.h"

// ---------------------------------------------------------------- guidance

void TCDescGuidanceBase::DeleteAll()
{
    m_text = TTRawRun();
    m_type = 0;
    m_language = 0;
}

bool TCDescGuidanceBase::GetText(unsigned char* buffer, unsigned short& size) const
{
    const unsigned char* text = t_At(m_text);
    if (!buffer || size == 0 || !text) {
        size = 0;
        return false;
    }
    size = static_cast<unsigned short>(std::min<unsigned int>(size, m_text.length));
    std::memcpy(buffer, text, size);
    return true;
}

bool TCDescGuidanceBase::t_TakeLanguageAndText(TCByteReader& reader, const unsigned char* payload)
{
    if (!reader.Has(3))
        return false;
    m_language = reader.U24();
    m_text = zum_text::TakeRun<TTRawRun>(reader, payload, reader.Left());
    return true;
}

TCDescFSatGuidance::~TCDescFSatGuidance()
{
    DeleteAll();
}

TCBaseDesc* TCDescFSatGuidance::Fork() const
{
    return t_ForkAs(new TCDescFSatGuidance());
}

int TCDescFSatGuidance::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    TCByteReader reader(payload, length);
    if (!reader.Has(1))
        return 0;
    m_type = reader.U8() & 0x03;
    // Only type 0 carries a language and a text; a body too short for the language ends here.
    if (m_type == 0)
        t_TakeLanguageAndText(reader, payload);
    return length;
}

TCDescGuidance::~TCDescGuidance()
{
    TCDescGuidance::DeleteAll();
}

void TCDescGuidance::DeleteAll()
{
    TCDescGuidanceBase::DeleteAll();
    m_guidanceMode = 0;
}

TCBaseDesc* TCDescGuidance::Fork() const
{
    return t_ForkAs(new TCDescGuidance());
}

int TCDescGuidance::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    TCByteReader reader(payload, length);
    if (!reader.Has(1))
        return 0;
    m_type = reader.U8() & 0x03;
    if (m_type >= 2)
        return length;
    if (m_type == 1) {
        if (!reader.Has(1))
            return length;
        m_guidanceMode = reader.U8() & 0x01;
    }
    t_TakeLanguageAndText(reader, payload);
    return length;
}

// ---------------------------------------------------------------- content management

void TCDescContentManagementBase::DeleteAll()
{
    m_doNotScramble = false;
    m_controlRemoteAccess = 0;
    m_doNotApplyRevocation = false;
}

int TCDescContentManagementBase::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length < 1)
        return 0;
    m_doNotScramble = (payload[0] >> 3) & 1;
    m_controlRemoteAccess = static_cast<unsigned char>((payload[0] >> 1) & 0x03);
    m_doNotApplyRevocation = payload[0] & 1;
    return length;
}

TCDescFSatContentManagement::~TCDescFSatContentManagement()
{
    DeleteAll();
}

TCBaseDesc* TCDescFSatContentManagement::Fork() const
{
    return t_ForkAs(new TCDescFSatContentManagement());
}

TCDescFTAContentManagement::~TCDescFTAContentManagement()
{
    DeleteAll();
}

TCBaseDesc* TCDescFTAContentManagement::Fork() const
{
    return t_ForkAs(new TCDescFTAContentManagement());
}
