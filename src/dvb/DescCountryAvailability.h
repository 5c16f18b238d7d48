#ifndef ZUM_DVB_DESCCOUNTRYAVAILABILITY_H
#define ZUM_DVB_DESCCOUNTRYAVAILABILITY_H

#include <list>

#include <zum-platform/Codes.h>

#include "../core/BaseDesc.h"

// country_availability_descriptor (0x49): the countries where a service is,
// or is not, meant to be received.
class ZUM_EXPORT TCDescCountryAvailability : public TCBaseDesc {
public:
    TCDescCountryAvailability();
    ~TCDescCountryAvailability() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    bool Availability() const { return m_availability; }
    // The flag for a listed country, its inverse for any other.
    bool IsServiceAvailable(unsigned int countryCode) const;
    // Append the listed countries to `countries`; true when there is any.
    // As sent:
    bool Countries(std::list<ECountryCode>& countries) const;
    // As system_info_country_e values:
    bool Countries(std::list<int>& countries) const;
    // As the platform's ECountry:
    bool Countries(std::list<ECountry>& countries) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    // The country at `index`, read from the raw copy; 0 outside the list.
    ECountryCode m_Country(int index) const;

    bool m_availability = false;
    // Three-byte country codes behind the flag byte.
    int m_count = 0;
};

#endif
