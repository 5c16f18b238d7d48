#ifndef ZUM_CORE_PARSERTMPUTIL_H
#define ZUM_CORE_PARSERTMPUTIL_H

#include <zum-platform/Codes.h>

#include "Export.h"

// Moves between the platform's two country enumerations.
class ZUM_EXPORT TCParserTmpUtil {
public:
    // A value with no counterpart is logged and gives -1.
    static void ConvertCountryEnumValue(ECountry country, system_info_country_e& value);
    // A value with no counterpart is logged and gives 0.
    static void ConvertCountryEnumValue(system_info_country_e value, ECountry& country);
};

#endif
