#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <zum-platform/Codes.h>
#include <zum-platform/Dlog.h>

#include "core/CompareISO8859Char.h"
#include "core/ParserTmpUtil.h"
#include "core/ParsingUtils.h"
#include "support/LogCapture.h"

namespace {

// The only line logged, at the given priority; none for an empty message.
void ExpectOnly(const zumtest::LogCapture& log, int priority, const std::string& message)
{
    EXPECT_EQ(log.Lines(priority), message.empty() ? std::vector<std::string>{} : std::vector<std::string>{message});
    EXPECT_EQ(log.Entries().size(), message.empty() ? 0u : 1u);
}

} // namespace

// Every entry of both maps, and codes outside them: the lookup is exact, so upper case misses.
TEST(ParsingUtils, MapsAndFallbacks)
{
    const std::pair<const char*, int> languages[] = {
        {"deu", 13},  {"ger", 13},  {"eng", 18},  {"ita", 16}, {"fra", 12},  {"pol", 19}, {"fre", 12},
        {"spa", 25},  {"swe", 107}, {"DEU", 107}, {"Eng", 107}, {"de", 107}, {"", 107},   {"dee", 107}};
    const std::pair<const char*, int> countries[] = {
        {"AUT", 24}, {"IRL", 30}, {"SVN", 53}, {"BEL", 25}, {"LUX", 52}, {"ESP", 3},  {"BGR", 11}, {"MCO", 33},
        {"SWE", 10}, {"CZE", 13}, {"NLD", 14}, {"CHE", 21}, {"HRV", 12}, {"NOR", 28}, {"TUR", 22}, {"DNK", 26},
        {"POL", 17}, {"GBR", 7},  {"EST", 44}, {"PRT", 18}, {"WSM", 90}, {"FIN", 27}, {"ROU", 19}, {"MDA", 89},
        {"FRA", 4},  {"RUS", 20}, {"MKD", 91}, {"DEU", 8},  {"BLR", 88}, {"BIH", 92}, {"GRC", 15}, {"SMR", 32},
        {"SCG", 93}, {"HUN", 16}, {"SRB", 31}, {"ALB", 94}, {"ITA", 9},  {"SVK", 38}, {"KOS", 95}, {"UGA", 96},
        {"ZMB", 97}, {"BRA", 78}, {"deu", 78}, {"KOR", 78}, {"GB", 78},  {"", 78}};
    TCParsingUtils utils;
    for (const auto& l : languages)
        EXPECT_EQ(utils.ConvertISO639LanguageCode(ZumPackCode(l.first)), l.second) << l.first;
    for (const auto& c : countries)
        EXPECT_EQ(utils.ConvertISO3166CountryCode(ZumPackCode(c.first)), c.second) << c.first;
    EXPECT_EQ(utils.ConvertISO639LanguageCode(0x01000000u | ZumPackCode("deu")), 107);
}

TEST(ParsingUtils, ReplaceLanguageCode)
{
    struct Case { const char* code; const char* replacement; bool replaced; } cases[] = {
        {"QAA", "und", false}, {"und", "fin", true},  {"eng", "fin", false}, {"qab", "UND", false},
        {"qac", "eng", true},  {"UND", "fin", true},  {"qAa", "FRA", true},  {"qad", "eng", false},
        {"und", "und", false}, {"qaa", "qab", true},
    };
    TCParsingUtils utils;
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.code) + " / " + c.replacement);
        const unsigned int code = ZumPackCode(c.code), replacement = ZumPackCode(c.replacement);
        zumtest::LogCapture log;
        EXPECT_EQ(utils.ReplaceISO639LanguageCode(code, replacement), c.replaced ? replacement : code);
        ExpectOnly(log, DLOG_DEBUG,
                   c.replaced ? "[TCParsingUtils::ReplaceISO639LanguageCode] Language code from descriptor replaced "
                                "from [" + std::to_string(code) + "] to [" + std::to_string(replacement) + "]"
                              : "");
    }
}

// Both directions between the platform's two country enumerations.
TEST(ParserTmpUtil, CountryEnumValues)
{
    // forward -1 and backward 0 are the answers for unsupported values, which log.
    struct Case { int in, forward, backward; bool backwardSupported; } cases[] = {
        {-1, -1, 0, false}, {0, 0, 0, true},    {57, 57, 57, true}, {58, 58, 58, true}, {59, -1, 0, false},
        {60, 60, 60, true}, {76, 76, 76, true}, {77, -1, 0, false}, {78, 78, 78, true}, {97, 97, 97, true},
        {98, 100, 0, false}, {99, -1, 0, false}, {100, -1, 98, true},
    };
    const std::string unsupported = " isn't supported by zum-api's country value";
    for (const Case& c : cases) {
        SCOPED_TRACE(c.in);
        const std::string line = "[TCServiceDataUtil::ConvertCountryEnumValue] " + std::to_string(c.in) + unsupported;
        zumtest::LogCapture log;
        auto value = static_cast<system_info_country_e>(12345);
        TCParserTmpUtil::ConvertCountryEnumValue(static_cast<ECountry>(c.in), value);
        EXPECT_EQ(value, c.forward);
        ExpectOnly(log, DLOG_ERROR, c.forward == -1 ? line : "");
        log.Clear();
        auto country = static_cast<ECountry>(12345);
        TCParserTmpUtil::ConvertCountryEnumValue(static_cast<system_info_country_e>(c.in), country);
        EXPECT_EQ(country, c.backward);
        ExpectOnly(log, DLOG_ERROR, c.backwardSupported ? "" : line);
    }
}

TEST(CompareISO8859Char, LowerCaseAndEquality)
{
    const std::pair<unsigned int, unsigned int> lower[] = {
        {0x454E47u, 0x656E67u}, {0x656E67u, 0x656E67u}, {0x415A61u, 0x617A61u},   {0x405B60u, 0x405B60u},
        {0x313233u, 0x313233u}, {0xC4D6DCu, 0xC4D6DCu}, {0xC14180u, 0xC16180u},   {0xFF454E47u, 0x656E67u},
        {0x454E00u, 0x656E00u}, {0x41000000u, 0x000000u}, // a letter in the top byte is dropped, not folded
    };
    for (const auto& c : lower)
        EXPECT_EQ(TCCompareISO8859Char::MakeLowerCase(c.first), c.second) << std::hex << c.first;

    const unsigned int equal[][3] = {{0x454E47u, 0x656E67u, 1}, {0x12454E47u, 0x656E67u, 1}, {0x454E47u, 0x454E48u, 0},
                                     {0xC4u, 0xE4u, 0},          {0x404040u, 0x606060u, 0}};
    for (const auto& c : equal)
        EXPECT_EQ(TCCompareISO8859Char::IsEqual(c[0], c[1]), c[2] == 1) << std::hex << c[0] << " " << c[1];
}
