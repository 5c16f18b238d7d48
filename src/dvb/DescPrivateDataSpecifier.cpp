#include "DescPrivateDataSpecifier.h"

#include "../core/ByteReader.h"

TCDescPrivateDataSpecifier::TCDescPrivateDataSpecifier() : TCBaseDesc(0x5F) {}

TCDescPrivateDataSpecifier::~TCDescPrivateDataSpecifier()
{
    DeleteAll();
}

void TCDescPrivateDataSpecifier::DeleteAll() {}

TCBaseDesc* TCDescPrivateDataSpecifier::Fork() const
{
    return t_ForkAs(new TCDescPrivateDataSpecifier());
}

int TCDescPrivateDataSpecifier::t_Parse(const unsigned char* payload, unsigned char length)
{
    TCByteReader reader(payload, length);
    m_privateDataSpecifier = reader.U32();
    return reader.Consumed();
}
