#include "BaseDesc.h"

#include <cstring>

#include "Diagnostics.h"

TCBaseDesc::TCBaseDesc(int tag) : m_tag(tag) {}

TCBaseDesc::~TCBaseDesc()
{
    m_FreeRaw();
}

void TCBaseDesc::m_FreeRaw()
{
    if (m_ownsRaw)
        delete[] m_pRaw;
    m_pRaw = nullptr;
    m_ownsRaw = false;
    m_rawLength = 0;
}

int TCBaseDesc::Tag() const
{
    return m_tag;
}

int TCBaseDesc::t_Parse(const unsigned char* payload, unsigned char length)
{
    return t_Parse(const_cast<unsigned char*>(payload), length);
}

int TCBaseDesc::t_Parse(unsigned char* /*payload*/, unsigned char /*length*/)
{
    return 0;
}

int TCBaseDesc::Parse(const unsigned char* data)
{
    if (!data)
        return 0;
    m_FreeRaw();
    m_length = data[1];
    if (m_length == 0)
        return 2;
    m_rawLength = m_length + 2;
    unsigned char* copy = new unsigned char[static_cast<size_t>(m_rawLength)];
    std::memcpy(copy, data, static_cast<size_t>(m_rawLength));
    m_pRaw = copy;
    m_ownsRaw = true;
    return m_Decode();
}

int TCBaseDesc::m_ParseInPlace(const unsigned char* data)
{
    m_FreeRaw();
    m_length = data[1];
    if (m_length == 0)
        return 2;
    m_rawLength = m_length + 2;
    m_pRaw = data;
    return m_Decode();
}

int TCBaseDesc::m_Decode()
{
    const int consumed = t_Parse(m_pRaw + 2, m_length);
    if (consumed != m_length)
        ZUM_LOGD("[Warning] Descriptor[0x%x] length mismatch!inLen=%d, outLen=%d", Tag(), m_length, consumed);
    return m_length + 2;
}

bool TCBaseDesc::GetDescriptor(unsigned char* pBuff, int* size) const
{
    if (!ZUM_ASSERT(pBuff))
        return false;
    if (!size)
        return false;
    if (!m_pRaw) {
        *size = 0;
        return false;
    }
    if (m_rawLength > *size)
        return false;
    std::memcpy(pBuff, m_pRaw, static_cast<size_t>(m_rawLength));
    *size = m_rawLength;
    return true;
}

bool TCBaseDesc::FlagEqual(const TCBaseDesc* pInDesc) const
{
    if (!ZUM_ASSERT(pInDesc))
        return false;
    const TCBaseDesc* other = pInDesc;
    if (m_rawLength != other->m_rawLength)
        return false;
    if (!m_pRaw || !other->m_pRaw)
        return true;
    return std::memcmp(m_pRaw, other->m_pRaw, static_cast<size_t>(m_rawLength)) == 0;
}

TCDescDefault::TCDescDefault(int tag) : TCBaseDesc(tag) {}

void TCDescDefault::DeleteAll() {}

TCBaseDesc* TCDescDefault::Fork() const
{
    return t_ForkAs(new TCDescDefault(m_tag));
}

int TCDescDefault::t_Parse(const unsigned char* /*payload*/, unsigned char /*length*/)
{
    return m_length;
}
