#include "DescAstraServiceListName.h"

#include <algorithm>
#include <string>

#include <zum-platform/UnicodeConverter.h>

#include "../core/ByteReader.h"
#include "../core/ParsingUtils.h"

namespace {
constexpr ELanguageCode kNoLanguage = 0x7A7A7B;
}

// ---------------------------------------------------------------- service list name

TCDescAstraServiceListName::TCDescAstraServiceListName() : TCBaseDesc(0x88) {}

void TCDescAstraServiceListName::DeleteAll()
{
    m_language = kNoLanguage;
    m_name = TTRawRun();
}

TCBaseDesc* TCDescAstraServiceListName::Fork() const
{
    return t_ForkAs(new TCDescAstraServiceListName());
}

std::basic_string<unsigned short> TCDescAstraServiceListName::m_Convert(TCUnicodeConverter& converter) const
{
    std::basic_string<unsigned short> name;
    if (const unsigned char* at = t_At(m_name)) {
        unsigned short size = m_name.length;
        converter.ConvertToUnicode(const_cast<unsigned char*>(at), size, name, false, m_language, true);
    }
    return name;
}

std::basic_string<unsigned short> TCDescAstraServiceListName::GetName(TCUnicodeConverter& converter,
                                                                      ELanguage& language) const
{
    language = TCParsingUtils().ConvertISO639LanguageCode(m_language);
    return m_Convert(converter);
}

std::basic_string<unsigned short> TCDescAstraServiceListName::GetName(TCUnicodeConverter& converter,
                                                                      ELanguageCode& language) const
{
    language = m_language;
    return m_Convert(converter);
}

int TCDescAstraServiceListName::t_Parse(const unsigned char* payload, unsigned char length)
{
    if (length < 3)
        return 0;
    m_language = ReadBE24(payload);
    m_name = length > 3 ? t_Run(payload, payload + 3, length - 3) : TTRawRun();
    return length;
}

// ---------------------------------------------------------------- bouquet list

TCDescAstraBouquetList::TCDescAstraBouquetList() : TCBaseDesc(0x93) {}

void TCDescAstraBouquetList::DeleteAll()
{
    m_names.clear();
}

TCBaseDesc* TCDescAstraBouquetList::Fork() const
{
    return t_ForkAs(new TCDescAstraBouquetList());
}

bool TCDescAstraBouquetList::Bouquets(std::list<unsigned char*>& names)
{
    if (m_names.empty())
        return false;
    names.clear();
    for (size_t at = 0; at < m_names.size(); at += std::char_traits<char>::length(
                                                       reinterpret_cast<const char*>(&m_names[at])) + 1)
        names.push_back(&m_names[at]);
    return true;
}

int TCDescAstraBouquetList::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    m_names.reserve(length);
    int offset = 0;
    while (offset < length) {
        const int size = payload[offset++];
        // A name that runs past the body keeps what the body holds of it.
        const int held = std::min(size, length - offset);
        const unsigned char* name = payload + offset;
        // A name with a zero byte ends there, as its terminated copy does.
        const int shown = static_cast<int>(std::find(name, name + held, 0) - name);
        m_names.insert(m_names.end(), name, name + shown);
        m_names.push_back(0);
        offset += size;
    }
    return offset;
}

// ---------------------------------------------------------------- virtual service id

TCDescAstraVirtualServiceId::TCDescAstraVirtualServiceId() : TCBaseDesc(0xD1) {}

void TCDescAstraVirtualServiceId::DeleteAll()
{
    m_id = 0xFFFF;
}

TCBaseDesc* TCDescAstraVirtualServiceId::Fork() const
{
    return t_ForkAs(new TCDescAstraVirtualServiceId());
}

int TCDescAstraVirtualServiceId::t_Parse(const unsigned char* payload, unsigned char length)
{
    if (length >= 2)
        m_id = static_cast<unsigned short>(ReadBE16(payload));
    return length;
}
