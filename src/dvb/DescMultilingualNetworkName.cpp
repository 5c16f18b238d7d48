#include "DescMultilingualNetworkName.h"

#include "../core/ByteReader.h"
#include "../core/CompareISO8859Char.h"
#include "../core/Diagnostics.h"
#include "../core/RecordAt.h"
#include "DescText.h"

namespace {

// Copies of the service names: a cut text still answers true, and an empty
// copy answers whether there was nothing to copy.
bool ServiceNameCopy(const zum_text::TTText& text, unsigned char* buffer, unsigned short* size)
{
    if (!buffer || !size)
        return false;
    if (text.length == 0 || *size == 0)
        return !text.Data();
    return zum_text::Copy(text, buffer, size, true);
}

} // namespace

// ---------------------------------------------------------------- network name

int TCDescMultilingualNetworkName::CmultiNetworkNameDesc::Parse(const unsigned char* data)
{
    return data ? Parse(data, 4 + data[3]) : 0;
}

int TCDescMultilingualNetworkName::CmultiNetworkNameDesc::Parse(const unsigned char* data, int size)
{
    TCByteReader reader(data, size);
    m_language = reader.U24();
    m_networkName = zum_text::Take(reader, static_cast<int>(reader.U8()));
    return reader.Consumed();
}

bool TCDescMultilingualNetworkName::CmultiNetworkNameDesc::NetworkNameChar(unsigned char* buffer,
                                                                           unsigned short* size) const
{
    return zum_text::Copy(m_networkName, buffer, size);
}

TCDescMultilingualNetworkName::TCDescMultilingualNetworkName() : TCBaseDesc(0x5B) {}

TCDescMultilingualNetworkName::~TCDescMultilingualNetworkName()
{
    DeleteAll();
}

void TCDescMultilingualNetworkName::DeleteAll()
{
    m_names.Clear();
}

TCBaseDesc* TCDescMultilingualNetworkName::Fork() const
{
    return t_ForkAs(new TCDescMultilingualNetworkName());
}

int TCDescMultilingualNetworkName::t_Parse(const unsigned char* payload, unsigned char length)
{
    return m_names.Count(payload, length);
}

const std::vector<CmultiNetworkNameDesc>& TCDescMultilingualNetworkName::m_Names() const
{
    return m_names.All(t_Payload(), m_length);
}

const TCDescMultilingualNetworkName::CmultiNetworkNameDesc* TCDescMultilingualNetworkName::NetworkNameDesc(
    int index) const
{
    return RecordAt(m_Names(), index);
}

bool TCDescMultilingualNetworkName::GetNetworkNameByLanguage(unsigned int language, unsigned char* name,
                                                             unsigned short* size) const
{
    if (!ZUM_ASSERT(name != __null && size != __null))
        return false;
    for (const CmultiNetworkNameDesc& entry : m_Names()) {
        if (!TCCompareISO8859Char::IsEqual(entry.Language(), language))
            continue;
        *size = entry.NetworkNameLength();
        entry.NetworkNameChar(name, size);
        return true;
    }
    return false;
}

// ---------------------------------------------------------------- service name

int TCDescMultilingualServiceName::CmultiServiceNameDesc::Parse(const unsigned char* data, int size)
{
    TCByteReader reader(data, size);
    m_language = reader.U24();
    if (reader.Has(1))
        m_providerName = zum_text::Take(reader, static_cast<int>(reader.U8()));
    if (reader.Has(1))
        m_serviceName = zum_text::Take(reader, static_cast<int>(reader.U8()));
    return reader.Consumed();
}

bool TCDescMultilingualServiceName::CmultiServiceNameDesc::ServiceProviderNameChar(unsigned char* buffer,
                                                                                   unsigned short* size) const
{
    return ServiceNameCopy(m_providerName, buffer, size);
}

bool TCDescMultilingualServiceName::CmultiServiceNameDesc::ServiceNameChar(unsigned char* buffer,
                                                                           unsigned short* size) const
{
    return ServiceNameCopy(m_serviceName, buffer, size);
}

TCDescMultilingualServiceName::TCDescMultilingualServiceName() : TCBaseDesc(0x5D) {}

TCDescMultilingualServiceName::~TCDescMultilingualServiceName()
{
    DeleteAll();
}

void TCDescMultilingualServiceName::DeleteAll()
{
    m_names.Clear();
}

TCBaseDesc* TCDescMultilingualServiceName::Fork() const
{
    return t_ForkAs(new TCDescMultilingualServiceName());
}

int TCDescMultilingualServiceName::t_Parse(const unsigned char* payload, unsigned char length)
{
    return m_names.Count(payload, length);
}

const std::vector<CmultiServiceNameDesc>& TCDescMultilingualServiceName::m_Names() const
{
    return m_names.All(t_Payload(), m_length);
}

const TCDescMultilingualServiceName::CmultiServiceNameDesc* TCDescMultilingualServiceName::ServiceNameDesc(
    int index) const
{
    return RecordAt(m_Names(), index);
}

bool TCDescMultilingualServiceName::GetServiceNameByLanguage(unsigned int language, unsigned char* name,
                                                             unsigned short* size) const
{
    if (!name || !size)
        return false;
    for (const CmultiServiceNameDesc& entry : m_Names()) {
        if (TCCompareISO8859Char::IsEqual(entry.Language(), language)) {
            *size = entry.ServiceNameLength();
            return entry.ServiceNameChar(name, size);
        }
    }
    return false;
}

bool TCDescMultilingualServiceName::GetServiceProviderNameByLanguage(unsigned int language, unsigned char* name,
                                                                     unsigned short* size) const
{
    if (!name || !size)
        return false;
    for (const CmultiServiceNameDesc& entry : m_Names()) {
        if (entry.Language() == language) {
            *size = entry.ServiceProviderNameLength();
            return entry.ServiceProviderNameChar(name, size);
        }
    }
    return false;
}

bool TCDescMultilingualServiceName::GetServiceNameByIndex(unsigned int index, unsigned int* language,
                                                          unsigned char* name, unsigned short* size) const
{
    if (!language || !name || !size || index >= static_cast<unsigned int>(NumOfServiceName()))
        return false;
    const CmultiServiceNameDesc* entry = RecordAt(m_Names(), static_cast<int>(index));
    if (!entry)
        return false;
    *language = entry->Language();
    *size = entry->ServiceNameLength();
    return entry->ServiceNameChar(name, size);
}

// ---------------------------------------------------------------- component

int TCDescMultilingualComponent::CmultiComponentDesc::Parse(const unsigned char* data, int size)
{
    TCByteReader reader(data, size);
    m_language = reader.U24();
    m_text = zum_text::Take(reader, static_cast<int>(reader.U8()));
    return reader.Consumed();
}

bool TCDescMultilingualComponent::CmultiComponentDesc::TextDescChar(char* buffer, int* size) const
{
    return zum_text::Copy(m_text, buffer, size);
}

TCDescMultilingualComponent::TCDescMultilingualComponent() : TCBaseDesc(0x5E) {}

TCDescMultilingualComponent::~TCDescMultilingualComponent()
{
    DeleteAll();
}

void TCDescMultilingualComponent::DeleteAll()
{
    m_texts.Clear();
}

TCBaseDesc* TCDescMultilingualComponent::Fork() const
{
    return t_ForkAs(new TCDescMultilingualComponent());
}

int TCDescMultilingualComponent::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    TCByteReader reader(payload, length);
    m_componentTag = static_cast<unsigned char>(reader.U8());
    // A body of the tag alone holds no entry.
    if (length < 2)
        return reader.Consumed();
    return reader.Consumed() + m_texts.Count(reader.Here(), reader.Left());
}

const TCDescMultilingualComponent::CmultiComponentDesc* TCDescMultilingualComponent::ComponentDesc(int index) const
{
    const unsigned char* payload = t_Payload();
    return payload && m_length >= 2 ? m_texts.At(payload + 1, m_length - 1, index) : nullptr;
}
