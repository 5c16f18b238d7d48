#include "ParserTmpUtil.h"

#include "Log.h"

namespace {

// The two enumerations agree on these values; 59 and 77 exist in neither.
bool IsSharedValue(int value)
{
    return (value >= 0 && value <= 58) || (value >= 60 && value <= 76) || (value >= 78 && value <= 97);
}

// The one country that the two enumerations number differently.
constexpr int kCountryShifted = 98;
constexpr int kSystemInfoShifted = 100;

} // namespace

void TCParserTmpUtil::ConvertCountryEnumValue(ECountry country, system_info_country_e& value)
{
    const int in = static_cast<int>(country);
    if (IsSharedValue(in)) {
        value = static_cast<system_info_country_e>(in);
    } else if (in == kCountryShifted) {
        value = static_cast<system_info_country_e>(kSystemInfoShifted);
    } else {
        ZUM_LOGE("[TCServiceDataUtil::%s] %d isn't supported by zum-api's country value", __func__, in);
        value = static_cast<system_info_country_e>(-1);
    }
}

void TCParserTmpUtil::ConvertCountryEnumValue(system_info_country_e value, ECountry& country)
{
    const int in = static_cast<int>(value);
    if (IsSharedValue(in)) {
        country = static_cast<ECountry>(in);
    } else if (in == kSystemInfoShifted) {
        country = static_cast<ECountry>(kCountryShifted);
    } else {
        ZUM_LOGE("[TCServiceDataUtil::%s] %d isn't supported by zum-api's country value", __func__, in);
        country = static_cast<ECountry>(0);
    }
}
