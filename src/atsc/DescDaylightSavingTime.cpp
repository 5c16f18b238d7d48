#include "DescDaylightSavingTime.h"

#include "../core/Diagnostics.h"

TCDescDaylightSavingTime::TCDescDaylightSavingTime() : TCBaseDesc(0x96) {}

void TCDescDaylightSavingTime::DeleteAll()
{
    m_dSStatus = static_cast<char>(INVALID);
    m_dayOfMonth = 0;
    m_hour = 0;
}

TCBaseDesc* TCDescDaylightSavingTime::Fork() const
{
    return t_ForkAs(new TCDescDaylightSavingTime());
}

int TCDescDaylightSavingTime::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length >= 1) {
        m_dSStatus = static_cast<char>((payload[0] >> 7) & 0x01);
        m_dayOfMonth = payload[0] & 0x1F;
    }
    if (length >= 2)
        m_hour = payload[1];
    return length;
}

int TCDescDaylightSavingTime::DSStatus() const
{
    if (!ZUM_ASSERT(m_dSStatus != (char)INVALID))
        return 0;
    return m_dSStatus;
}

int TCDescDaylightSavingTime::DSDayOfMonth() const
{
    if (!ZUM_ASSERT(m_dSStatus != (char)INVALID))
        return 0;
    return m_dayOfMonth;
}

int TCDescDaylightSavingTime::DSHour() const
{
    if (!ZUM_ASSERT(m_dSStatus != (char)INVALID))
        return 0;
    return m_hour;
}
