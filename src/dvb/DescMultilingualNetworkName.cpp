#include "DescMultilingualNetworkName.h"

#include <utility>

#include "../core/ByteReader.h"
#include "../core/CompareISO8859Char.h"
#include "../core/Diagnostics.h"
#include "../core/RecordAt.h"
#include "DescText.h"

namespace {

// Every entry starts with a language and a length byte.
constexpr int kEntryHead = 4;

template <class Record>
int ParseRecords(TCByteReader& reader, std::vector<Record>& records)
{
    while (reader.Has(kEntryHead)) {
        Record record;
        const int taken = record.Parse(reader.Here(), reader.Left());
        records.push_back(std::move(record));
        if (taken <= 0 || !reader.Skip(taken))
            break;
    }
    return reader.Consumed();
}

// Copies of the service names: a cut text still answers true, and an empty
// copy answers whether there was nothing to copy.
bool ServiceNameCopy(const std::unique_ptr<unsigned char[]>& text, unsigned char length, unsigned char* buffer,
                     unsigned short* size)
{
    if (!buffer || !size)
        return false;
    if (length == 0 || *size == 0)
        return !text;
    return zum_text::Copy(text.get(), length, buffer, size, true);
}

} // namespace

// ---------------------------------------------------------------- network name

int TCDescMultilingualNetworkName::CmultiNetworkNameDesc::Parse(const unsigned char* data, int size)
{
    TCByteReader reader(data, size);
    m_language = reader.U24();
    m_networkNameLength = static_cast<unsigned char>(zum_text::Take(reader, static_cast<int>(reader.U8()),
                                                                    m_pNetworkName));
    return reader.Consumed();
}

bool TCDescMultilingualNetworkName::CmultiNetworkNameDesc::NetworkNameChar(unsigned char* buffer,
                                                                           unsigned short* size) const
{
    return zum_text::Copy(m_pNetworkName.get(), m_networkNameLength, buffer, size);
}

TCDescMultilingualNetworkName::TCDescMultilingualNetworkName() : TCBaseDesc(0x5B) {}

TCDescMultilingualNetworkName::~TCDescMultilingualNetworkName()
{
    DeleteAll();
}

void TCDescMultilingualNetworkName::DeleteAll()
{
    m_names.clear();
}

TCBaseDesc* TCDescMultilingualNetworkName::Fork() const
{
    return t_ForkAs(new TCDescMultilingualNetworkName());
}

int TCDescMultilingualNetworkName::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    TCByteReader reader(payload, length);
    return ParseRecords(reader, m_names);
}

const TCDescMultilingualNetworkName::CmultiNetworkNameDesc* TCDescMultilingualNetworkName::NetworkNameDesc(
    int index) const
{
    return RecordAt(m_names, index);
}

bool TCDescMultilingualNetworkName::GetNetworkNameByLanguage(unsigned int language, unsigned char* name,
                                                             unsigned short* size) const
{
    if (!ZUM_ASSERT(name != __null && size != __null))
        return false;
    for (const CmultiNetworkNameDesc& entry : m_names) {
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
        m_providerNameLength = static_cast<unsigned char>(zum_text::Take(reader, static_cast<int>(reader.U8()),
                                                                         m_pProviderName));
    if (reader.Has(1))
        m_serviceNameLength = static_cast<unsigned char>(zum_text::Take(reader, static_cast<int>(reader.U8()),
                                                                        m_pServiceName));
    return reader.Consumed();
}

bool TCDescMultilingualServiceName::CmultiServiceNameDesc::ServiceProviderNameChar(unsigned char* buffer,
                                                                                   unsigned short* size) const
{
    return ServiceNameCopy(m_pProviderName, m_providerNameLength, buffer, size);
}

bool TCDescMultilingualServiceName::CmultiServiceNameDesc::ServiceNameChar(unsigned char* buffer,
                                                                           unsigned short* size) const
{
    return ServiceNameCopy(m_pServiceName, m_serviceNameLength, buffer, size);
}

TCDescMultilingualServiceName::TCDescMultilingualServiceName() : TCBaseDesc(0x5D) {}

TCDescMultilingualServiceName::~TCDescMultilingualServiceName()
{
    DeleteAll();
}

void TCDescMultilingualServiceName::DeleteAll()
{
    m_names.clear();
}

TCBaseDesc* TCDescMultilingualServiceName::Fork() const
{
    return t_ForkAs(new TCDescMultilingualServiceName());
}

int TCDescMultilingualServiceName::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    TCByteReader reader(payload, length);
    return ParseRecords(reader, m_names);
}

const TCDescMultilingualServiceName::CmultiServiceNameDesc* TCDescMultilingualServiceName::ServiceNameDesc(
    int index) const
{
    return RecordAt(m_names, index);
}

bool TCDescMultilingualServiceName::GetServiceNameByLanguage(unsigned int language, unsigned char* name,
                                                             unsigned short* size) const
{
    if (!name || !size)
        return false;
    for (const CmultiServiceNameDesc& entry : m_names) {
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
    for (const CmultiServiceNameDesc& entry : m_names) {
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
    if (!language || !name || !size || index >= m_names.size())
        return false;
    const CmultiServiceNameDesc& entry = m_names[index];
    *language = entry.Language();
    *size = entry.ServiceNameLength();
    return entry.ServiceNameChar(name, size);
}

// ---------------------------------------------------------------- component

int TCDescMultilingualComponent::CmultiComponentDesc::Parse(const unsigned char* data, int size)
{
    TCByteReader reader(data, size);
    m_language = reader.U24();
    m_textLength = static_cast<unsigned char>(zum_text::Take(reader, static_cast<int>(reader.U8()), m_pText));
    return reader.Consumed();
}

bool TCDescMultilingualComponent::CmultiComponentDesc::TextDescChar(char* buffer, int* size) const
{
    return zum_text::Copy(m_pText.get(), m_textLength, buffer, size);
}

TCDescMultilingualComponent::TCDescMultilingualComponent() : TCBaseDesc(0x5E) {}

TCDescMultilingualComponent::~TCDescMultilingualComponent()
{
    DeleteAll();
}

void TCDescMultilingualComponent::DeleteAll()
{
    m_texts.clear();
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
    return ParseRecords(reader, m_texts);
}

const TCDescMultilingualComponent::CmultiComponentDesc* TCDescMultilingualComponent::ComponentDesc(int index) const
{
    return RecordAt(m_texts, index);
}
