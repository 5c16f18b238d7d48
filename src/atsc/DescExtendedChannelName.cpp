#include "DescExtendedChannelName.h"

#include "../core/Diagnostics.h"

TCDescMultipleStringName::TCDescMultipleStringName(int tag) : TCBaseDesc(tag) {}

TCDescMultipleStringName::~TCDescMultipleStringName()
{
    DeleteAll();
}

void TCDescMultipleStringName::DeleteAll()
{
    m_pNameString.reset();
    m_nameLength = 0;
}

int TCDescMultipleStringName::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length == 0)
        return 0;
    m_pNameString.reset(new TCMultipleStringStruct);
    m_pNameString->Set(payload, length);
    m_nameLength = length;
    return length;
}

TCDescExtendedChannelName::TCDescExtendedChannelName() : TCDescMultipleStringName(0xA0) {}

TCBaseDesc* TCDescExtendedChannelName::Fork() const
{
    return t_ForkAs(new TCDescExtendedChannelName());
}

TCDescComponentName::TCDescComponentName() : TCDescMultipleStringName(0xA3) {}

TCBaseDesc* TCDescComponentName::Fork() const
{
    return t_ForkAs(new TCDescComponentName());
}

TCMultipleStringStruct* TCDescComponentName::ComponentNameString() const
{
    // Named as the assertion reports it.
    const TCMultipleStringStruct* m_componentNameString = m_pNameString.get();
    if (!ZUM_ASSERT(m_componentNameString))
        return nullptr;
    return m_pNameString.get();
}
