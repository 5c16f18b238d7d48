#include "DescServiceMove.h"

#include "../core/ByteReader.h"
#include "ServiceKey.h"

TCDescServiceMove::TCDescServiceMove() : TCBaseDesc(0x60) {}

TCDescServiceMove::~TCDescServiceMove()
{
    DeleteAll();
}

void TCDescServiceMove::DeleteAll()
{
    m_newOriginalNetworkId = 0xFFFF;
    m_newTransportStreamId = 0xFFFF;
    m_newServiceId = 0xFFFF;
}

TCBaseDesc* TCDescServiceMove::Fork() const
{
    return t_ForkAs(new TCDescServiceMove());
}

int TCDescServiceMove::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    TCByteReader reader(payload, length);
    if (reader.Has(2))
        m_newOriginalNetworkId = static_cast<unsigned short>(reader.U16());
    if (reader.Has(2))
        m_newTransportStreamId = static_cast<unsigned short>(reader.U16());
    if (reader.Has(2))
        m_newServiceId = static_cast<unsigned short>(reader.U16());
    return reader.Consumed();
}

void TCDescServiceMove::GetNewServiceLocation(TCServiceKey& key) const
{
    const TCServiceKey location(m_newOriginalNetworkId, m_newTransportStreamId, m_newServiceId);
    key.Set(&location);
}
