#include "DescRevisionDetection.h"

TCDescRevisionDetection::TCDescRevisionDetection() : TCBaseDesc(0x93) {}

void TCDescRevisionDetection::DeleteAll()
{
    m_tableVersion = m_sectionNumber = m_lastSectionNumber = 0;
}

TCBaseDesc* TCDescRevisionDetection::Fork() const
{
    return t_ForkAs(new TCDescRevisionDetection());
}

int TCDescRevisionDetection::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    // A short body keeps what it has; the missing fields stay 0.
    if (length >= 1)
        m_tableVersion = payload[0] & 0x1F;
    if (length >= 2)
        m_sectionNumber = payload[1];
    if (length >= 3)
        m_lastSectionNumber = payload[2];
    return 3;
}
