#include "DescCA.h"

#include "../core/ByteReader.h"

TCDescCA::TCDescCA() : TCBaseDesc(0x09) {}

TCDescCA::~TCDescCA()
{
    DeleteAll();
}

void TCDescCA::DeleteAll()
{
    m_caSystemId = 0;
    m_caPid = 0;
    m_privateData = TTRawRun();
}

TCBaseDesc* TCDescCA::Fork() const
{
    return t_ForkAs(new TCDescCA());
}

int TCDescCA::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    TCByteReader reader(payload, length);
    m_caSystemId = static_cast<unsigned short>(reader.U16());
    m_caPid = static_cast<unsigned short>(reader.U16() & 0x1FFF);
    if (length > 4)
        m_privateData = t_Run(payload, payload + 4, length - 4);
    return length;
}
