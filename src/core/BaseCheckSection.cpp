#include "BaseCheckSection.h"

#include "ByteReader.h"
#include "Diagnostics.h"

TCBaseCheckSection::~TCBaseCheckSection() = default;

bool TCBaseCheckSection::SetData(const unsigned char* pData, int len)
{
    if (!ZUM_ASSERT(pData && len > 0))
        return false;
    const unsigned char* data = pData;
    m_tableId = data[0];
    m_length = static_cast<unsigned short>(((t_At(data, len, 1) & 0x0F) << 8) | t_At(data, len, 2));
    // The fingerprint is the last four bytes; for a body of 1 to 3 bytes they
    // reach back into the section's own header, which lies in front of `data`.
    m_crc = ReadBE32(data + len - 4);
    return true;
}

bool TCBaseCheckSection::FlagEqual(const TCBaseCheckSection* pData) const
{
    if (!ZUM_ASSERT(pData))
        return false;
    const TCBaseCheckSection* other = pData;
    return m_tableId == other->m_tableId && m_length == other->m_length && m_crc == other->m_crc;
}

bool TCNITCheckSection::SetData(const unsigned char* data, int len)
{
    if (!TCBaseCheckSection::SetData(data, len))
        return false;
    m_first = t_At(data, len, 5);
    m_second = t_At(data, len, 6);
    m_third = t_At(data, len, 7) & 0x0F;
    return true;
}

bool TCNITCheckSection::FlagEqual(const TCBaseCheckSection* pData) const
{
    if (!ZUM_ASSERT(pData))
        return false;
    const TCBaseCheckSection* other = pData;
    const auto* o = dynamic_cast<const TCNITCheckSection*>(other);
    if (!o || m_first != o->m_first || m_second != o->m_second || m_third != o->m_third)
        return false;
    return TCBaseCheckSection::FlagEqual(other);
}

bool TCNTTCheckSection::SetData(const unsigned char* data, int len)
{
    if (!TCBaseCheckSection::SetData(data, len))
        return false;
    m_word = (static_cast<unsigned int>(t_At(data, len, 5)) << 16) |
             (static_cast<unsigned int>(t_At(data, len, 6)) << 8) | t_At(data, len, 7);
    m_byte = t_At(data, len, 9);
    return true;
}

bool TCNTTCheckSection::FlagEqual(const TCBaseCheckSection* pData) const
{
    if (!ZUM_ASSERT(pData))
        return false;
    const TCBaseCheckSection* other = pData;
    const auto* o = dynamic_cast<const TCNTTCheckSection*>(other);
    if (!o || m_word != o->m_word || m_byte != o->m_byte)
        return false;
    return TCBaseCheckSection::FlagEqual(other);
}

bool TCSVCTCheckSection::SetData(const unsigned char* data, int len)
{
    if (!TCBaseCheckSection::SetData(data, len))
        return false;
    m_subtype = t_At(data, len, 5) & 0x0F;
    const unsigned short word = static_cast<unsigned short>(((t_At(data, len, 8) & 0x0F) << 8) | t_At(data, len, 9));
    const unsigned char byte = t_At(data, len, 9);
    if (m_subtype == 1) {
        m_vcmWord = word;
        m_vcmByte = byte;
    } else if (m_subtype == 2) {
        m_dcmWord = word;
        m_dcmByte = byte;
    } else if (m_subtype == 0) {
        m_icmByte = t_At(data, len, 13);
    }
    return true;
}

bool TCSVCTCheckSection::FlagEqual(const TCBaseCheckSection* pData) const
{
    if (!ZUM_ASSERT(pData))
        return false;
    const TCBaseCheckSection* other = pData;
    const auto* o = dynamic_cast<const TCSVCTCheckSection*>(other);
    if (!o || m_subtype != o->m_subtype)
        return false;
    const bool same = m_subtype == 1   ? m_vcmWord == o->m_vcmWord && m_vcmByte == o->m_vcmByte
                      : m_subtype == 2 ? m_dcmWord == o->m_dcmWord && m_dcmByte == o->m_dcmByte
                      : m_subtype == 0 ? m_icmByte == o->m_icmByte
                                       : true;
    return same && TCBaseCheckSection::FlagEqual(other);
}
