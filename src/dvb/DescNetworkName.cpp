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
    m_pNetworkName.reset();
    m_networkNameLength = 0;
}

TCBaseDesc* TCDescNetworkName::Fork() const
{
    return t_ForkAs(new TCDescNetworkName());
}

int TCDescNetworkName::t_Parse(const unsigned char* payload, unsigned char length)
{
    m_pNetworkName = zum_text::Keep(payload, length);
    m_networkNameLength = m_pNetworkName ? length : 0;
    return m_networkNameLength;
}

bool TCDescNetworkName::NetworkNameText(unsigned char* buffer, unsigned short* size) const
{
    return zum_text::Copy(m_pNetworkName.get(), m_networkNameLength, buffer, size);
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
    m_pBouquetName.reset();
    m_bouquetNameLength = 0;
}

TCBaseDesc* TCDescBouquetName::Fork() const
{
    return t_ForkAs(new TCDescBouquetName());
}

int TCDescBouquetName::t_Parse(const unsigned char* payload, unsigned char length)
{
    m_pBouquetName = zum_text::Keep(payload, length);
    m_bouquetNameLength = m_pBouquetName ? length : 0;
    return m_bouquetNameLength;
}

bool TCDescBouquetName::BouquetNameText(unsigned char* buffer, unsigned short* size) const
{
    return zum_text::Copy(m_pBouquetName.get(), m_bouquetNameLength, buffer, size);
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
    m_pBouquetName = zum_text::Keep(reader.Here(), m_bouquetNameLength);
    // The entries of the other languages are not kept, and are no fault.
    return length;
}
