#include "ParsingUtils.h"

#include "CompareISO8859Char.h"
#include "Log.h"

namespace {

struct CodeValue {
    const char* code;
    int value;
};

constexpr CodeValue kLanguages[] = {
    {"deu", 13}, {"ger", 13}, {"eng", 18}, {"fra", 12},
    {"fre", 12}, {"ita", 16}, {"pol", 19}, {"spa", 25},
};

constexpr CodeValue kCountries[] = {
    {"AUT", 24}, {"BEL", 25}, {"BGR", 11}, {"CZE", 13}, {"HRV", 12}, {"DNK", 26},
    {"EST", 44}, {"FIN", 27}, {"FRA", 4},  {"DEU", 8},  {"GRC", 15}, {"HUN", 16},
    {"ITA", 9},  {"UGA", 96}, {"IRL", 30}, {"LUX", 52}, {"MCO", 33}, {"NLD", 14},
    {"NOR", 28}, {"POL", 17}, {"PRT", 18}, {"ROU", 19}, {"RUS", 20}, {"BLR", 88},
    {"SMR", 32}, {"SRB", 31}, {"SVK", 38}, {"ZMB", 97}, {"SVN", 53}, {"ESP", 3},
    {"SWE", 10}, {"CHE", 21}, {"TUR", 22}, {"GBR", 7},  {"WSM", 90}, {"MDA", 89},
    {"MKD", 91}, {"BIH", 92}, {"SCG", 93}, {"ALB", 94}, {"KOS", 95},
};

const ELanguage kLanguageOthers = static_cast<ELanguage>(107);
const system_info_country_e kCountryOthers = static_cast<system_info_country_e>(78);

} // namespace

TCParsingUtils::TCParsingUtils()
{
    for (const CodeValue& entry : kLanguages)
        m_Languages.emplace(ZumPackCode(entry.code), static_cast<ELanguage>(entry.value));
    for (const CodeValue& entry : kCountries)
        m_Countries.emplace(ZumPackCode(entry.code), static_cast<system_info_country_e>(entry.value));
}

ELanguage TCParsingUtils::ConvertISO639LanguageCode(ELanguageCode code) const
{
    const auto it = m_Languages.find(code);
    return it != m_Languages.end() ? it->second : kLanguageOthers;
}

system_info_country_e TCParsingUtils::ConvertISO3166CountryCode(ECountryCode code) const
{
    const auto it = m_Countries.find(code);
    return it != m_Countries.end() ? it->second : kCountryOthers;
}

unsigned int TCParsingUtils::ReplaceISO639LanguageCode(unsigned int code, unsigned int replacement) const
{
    const unsigned int lowerCode = TCCompareISO8859Char::MakeLowerCase(code);
    const unsigned int lowerReplacement = TCCompareISO8859Char::MakeLowerCase(replacement);
    // qaa..qac are "original language" placeholders, und is "undetermined": none names a language.
    const bool codeSaysNothing = lowerCode == ZumPackCode("qaa") || lowerCode == ZumPackCode("qab") ||
                                 lowerCode == ZumPackCode("qac") || lowerCode == ZumPackCode("und");
    if (!codeSaysNothing || lowerReplacement == ZumPackCode("und"))
        return code;
    ZUM_LOGD("[TCParsingUtils::%s] Language code from descriptor replaced from [%u] to [%u]", __func__, code,
             replacement);
    return replacement;
}
