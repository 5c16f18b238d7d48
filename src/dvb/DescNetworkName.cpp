#include "DescNetworkName.h"

#include "../core/ByteReader.h"
#include "DescText.h"

// ---------------------------------------------------------------- network name

TCDescNetworkName::TCDescNetworkName() : TCBaseDesc(0x40) {}

TCDescNetworkName::~TCDescNetworkName()
{
    DeleteAll();
}

void TCDescNetworkName::DeleteAll()
{
    m_networkName = TTRawRun();
}

TCBaseDesc* TCDescNetworkName::Fork() const
{
    return t_ForkAs(new TCDescNetworkName());
}

int TCDescNetworkName::t_Parse(const unsigned char* payload, unsigned char length)
{
    m_networkName = t_Run(payload, payload, length);
    return length;
}

bool TCDescNetworkName::NetworkNameText(unsigned char* buffer, unsigned short* size) const
{
    return zum_text::Copy(t_At(m_networkName), m_networkName.length, buffer, size);
}

// ---------------------------------------------------------------- bouquet name

TCDescBouquetName::TCDescBouquetName() : TCBaseDesc(0x47) {}

TCDescBouquetName::TCDescBouquetName(int tag) : TCBaseDesc(tag) {}

TCDescBouquetName::~TCDescBouquetName()
{
    TCDescBouquetName::DeleteAll();
}

void TCDescBouquetName::DeleteAll()
{
    m_bouquetName = TTRawRun();
    m_bouquetNameLength = 0;
}

TCBaseDesc* TCDescBouquetName::Fork() const
{
    return t_ForkAs(new TCDescBouquetName());
}

int TCDescBouquetName::t_Parse(const unsigned char* payload, unsigned char length)
{
    m_bouquetName = t_Run(payload, payload, length);
    m_bouquetNameLength = length;
    return length;
}

bool TCDescBouquetName::BouquetNameText(unsigned char* buffer, unsigned short* size) const
{
    return zum_text::Copy(t_At(m_bouquetName), m_bouquetName.length, buffer, size);
}

// ---------------------------------------------------------------- multilingual bouquet name

TCDescMultilingualBouquetName::TCDescMultilingualBouquetName() : TCDescBouquetName(0x5C) {}

TCDescMultilingualBouquetName::~TCDescMultilingualBouquetName()
{
    TCDescMultilingualBouquetName::DeleteAll();
}

void TCDescMultilingualBouquetName::DeleteAll()
{
    TCDescBouquetName::DeleteAll();
    m_language = 0;
}

TCBaseDesc* TCDescMultilingualBouquetName::Fork() const
{
    return t_ForkAs(new TCDescMultilingualBouquetName());
}

int TCDescMultilingualBouquetName::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    TCByteReader reader(payload, length);
    if (!reader.Has(3))
        return 0;
    m_language = reader.U24();
    if (!reader.Has(1))
        return reader.Consumed();
    m_bouquetNameLength = static_cast<unsigned char>(reader.U8());
    // A name that claims more than the body holds keeps its length but no text.
    if (!reader.Has(m_bouquetNameLength))
        return reader.Consumed();
    m_bouquetName = t_Run(payload, reader.Here(), m_bouquetNameLength);
    // The entries of the other languages are not kept, and are no fault.
    return length;
}
