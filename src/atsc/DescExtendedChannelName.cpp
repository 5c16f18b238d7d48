#include "DescExtendedChannelName.h"

TCDescExtendedChannelName::TCDescExtendedChannelName() : TCBaseDesc(0xA0) {}

TCDescExtendedChannelName::~TCDescExtendedChannelName()
{
    DeleteAll();
}

void TCDescExtendedChannelName::DeleteAll()
{
    m_pNameString.reset();
    m_nameLength = 0;
}

TCBaseDesc* TCDescExtendedChannelName::Fork() const
{
    return t_ForkAs(new TCDescExtendedChannelName());
}

int TCDescExtendedChannelName::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length == 0)
        return 0;
    m_pNameString.reset(new TCMultipleStringStruct);
    m_pNameString->Set(payload, length);
    m_nameLength = length;
    return length;
}
