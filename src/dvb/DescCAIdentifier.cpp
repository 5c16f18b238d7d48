#include "DescCAIdentifier.h"

#include "../core/ByteReader.h"

TCDescCAIdentifier::TCDescCAIdentifier() : TCBaseDesc(0x53) {}

TCDescCAIdentifier::~TCDescCAIdentifier()
{
    DeleteAll();
}

void TCDescCAIdentifier::DeleteAll()
{
    m_caSystemIds.clear();
}

TCBaseDesc* TCDescCAIdentifier::Fork() const
{
    return t_ForkAs(new TCDescCAIdentifier());
}

int TCDescCAIdentifier::t_Parse(const unsigned char* payload, unsigned char length)
{
    TCByteReader reader(payload, length);
    while (reader.Has(2))
        m_caSystemIds.push_back(static_cast<unsigned short>(reader.U16()));
    // An odd body ends in a lone byte: it is kept as the high byte of a last id.
    if (reader.Has(1))
        m_caSystemIds.push_back(static_cast<unsigned short>(reader.U8() << 8));
    return reader.Consumed();
}
