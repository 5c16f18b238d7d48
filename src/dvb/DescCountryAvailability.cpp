#include "DescCountryAvailability.h"

#include "../core/ByteReader.h"
#include "../core/ParserTmpUtil.h"
#include "../core/ParsingUtils.h"
#include "../core/RecordAt.h"

namespace {

const int kCountrySize = 3;

} // namespace

TCDescCountryAvailability::TCDescCountryAvailability() : TCBaseDesc(0x49) {}

TCDescCountryAvailability::~TCDescCountryAvailability()
{
    DeleteAll();
}

void TCDescCountryAvailability::DeleteAll()
{
    m_count = 0;
}

TCBaseDesc* TCDescCountryAvailability::Fork() const
{
    return t_ForkAs(new TCDescCountryAvailability());
}

int TCDescCountryAvailability::t_Parse(const unsigned char* payload, unsigned char length)
{
    m_count = 0;
    if (length < 1)
        return 0;
    m_availability = (payload[0] & 0x80) != 0;
    m_count = (length - 1) / kCountrySize;
    return 1 + m_count * kCountrySize;
}

ECountryCode TCDescCountryAvailability::m_Country(int index) const
{
    const unsigned char* payload = t_Payload();
    const unsigned char* code = RawRecordAt(payload ? payload + 1 : nullptr, m_count, kCountrySize, index);
    return code ? ReadBE24(code) : 0;
}

bool TCDescCountryAvailability::IsServiceAvailable(unsigned int countryCode) const
{
    bool listed = false;
    for (int i = 0; i < m_count && !listed; ++i)
        listed = m_Country(i) == countryCode;
    return listed ? m_availability : !m_availability;
}

bool TCDescCountryAvailability::Countries(std::list<ECountryCode>& countries) const
{
    for (int i = 0; i < m_count; ++i)
        countries.push_back(m_Country(i));
    return m_count > 0;
}

bool TCDescCountryAvailability::Countries(std::list<int>& countries) const
{
    TCParsingUtils utils;
    for (int i = 0; i < m_count; ++i)
        countries.push_back(utils.ConvertISO3166CountryCode(m_Country(i)));
    return m_count > 0;
}

bool TCDescCountryAvailability::Countries(std::list<ECountry>& countries) const
{
    TCParsingUtils utils;
    for (int i = 0; i < m_count; ++i) {
        ECountry country = ECOUNTRY_NONE;
        TCParserTmpUtil::ConvertCountryEnumValue(utils.ConvertISO3166CountryCode(m_Country(i)), country);
        countries.push_back(country);
    }
    return m_count > 0;
}
