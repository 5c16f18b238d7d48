#ifndef ZUM_CORE_PARSINGUTILS_H
#define ZUM_CORE_PARSINGUTILS_H

#include <map>

#include <zum-platform/Codes.h>

#include "Export.h"

// Turns the three-letter codes of broadcast tables into the platform's
// enumerations, for the few languages and countries the library acts on.
// Built on the stack for each use.
class ZUM_EXPORT TCParsingUtils {
public:
    TCParsingUtils();

    // 107 for a code not in the table; the lookup is case-sensitive.
    ELanguage ConvertISO639LanguageCode(ELanguageCode code) const;
    // 78 for a code not in the table.
    system_info_country_e ConvertISO3166CountryCode(ECountryCode code) const;
    // The replacement when code says nothing (qaa, qab, qac, und) and the
    // replacement does; otherwise code.
    unsigned int ReplaceISO639LanguageCode(unsigned int code, unsigned int replacement) const;

private:
    std::map<ELanguageCode, ELanguage> m_Languages;
    std::map<ECountryCode, system_info_country_e> m_Countries;
};

#endif
