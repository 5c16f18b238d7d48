#include "DescCountryAvailability.h"

#include <algorithm>

#include "../core/ByteReader.h"
#include "../core/ParserTmpUtil.h"
#include "../core/ParsingUtils.h"

TCDescCountryAvailability::TCDescCountryAvailability() : TCBaseDesc(0x49) {}

TCDescCountryAvailability::~TCDescCountryAvailability()
{
    DeleteAll();
}

void TCDescCountryAvailability::DeleteAll()
{
    m_countries.clear();
}

TCBaseDesc* TCDescCountryAvailability::Fork() const
{
    return t_ForkAs(new TCDescCountryAvailability());
}

int TCDescCountryAvailability::t_Parse(const unsigned char* payload, unsigned char length)
{
    m_countries.clear();
    TCByteReader reader(payload, length);
    m_availability = (reader.U8() & 0x80) != 0;
    while (reader.Has(3))
        m_countries.push_back(reader.U24());
    return reader.Consumed();
}

bool TCDescCountryAvailability::IsServiceAvailable(unsigned int countryCode) const
{
    const bool listed = std::find(m_countries.begin(), m_countries.end(), countryCode) != m_countries.end();
    return listed ? m_availability : !m_availability;
}

bool TCDescCountryAvailability::Countries(std::list<ECountryCode>& countries) const
{
    countries.insert(countries.end(), m_countries.begin(), m_countries.end());
    return !m_countries.empty();
}

bool TCDescCountryAvailability::Countries(std::list<int>& countries) const
{
    TCParsingUtils utils;
    for (ECountryCode code : m_countries)
        countries.push_back(utils.ConvertISO3166CountryCode(code));
    return !m_countries.empty();
}

bool TCDescCountryAvailability::Countries(std::list<ECountry>& countries) const
{
    TCParsingUtils utils;
    for (ECountryCode code : m_countries) {
        ECountry country = ECOUNTRY_NONE;
        TCParserTmpUtil::ConvertCountryEnumValue(utils.ConvertISO3166CountryCode(code), country);
        countries.push_back(country);
    }
    return !m_countries.empty();
}
