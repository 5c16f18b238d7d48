#include <string>
#include <utility>

#include <gtest/gtest.h>

#include <zum-platform/Codes.h>
#include <zum-platform/Dlog.h>

#include "core/CompareISO8859Char.h"
#include "core/ParserTmpUtil.h"
#include "core/ParsingUtils.h"
#include "support/LogCapture.h"

namespace {

// One line "<tag>: <function>(<line>) > <message>"; all but the source line number is checked.
void ExpectOneLine(const zumtest::LogCapture& log, int priority, const std::string& function,
                   const std::string& message)
{
    ASSERT_EQ(log.Entries().size(), 1u);
    const zumtest::LogLine& line = log.Entries()[0];
    EXPECT_EQ(line.priority, priority);
    const std::string head = "ZUM_PARSER: " + function + "(";
    EXPECT_EQ(line.text.compare(0, head.size(), head), 0) << line.text;
    EXPECT_EQ(line.message, message);
}

struct CodeCase {
    const char* code;
    int expected;
};

TEST(ParsingUtilsTest, LanguageTableEntries)
{
    const CodeCase cases[] = {
        {"deu", 13}, {"ger", 13}, {"eng", 18}, {"ita", 16},
        {"fra", 12}, {"pol", 19}, {"fre", 12}, {"spa", 25},
    };
    TCParsingUtils utils;
    for (const CodeCase& c : cases)
        EXPECT_EQ(utils.ConvertISO639LanguageCode(ZumPackCode(c.code)), c.expected) << c.code;
}

TEST(ParsingUtilsTest, LanguageOutsideTableFallsBack)
{
    // Upper case must miss: the lookup is exact.
    const char* codes[] = {"swe", "DEU", "Eng", "de", "", "dee"};
    TCParsingUtils utils;
    for (const char* code : codes)
        EXPECT_EQ(utils.ConvertISO639LanguageCode(ZumPackCode(code)), 107) << code;
    EXPECT_EQ(utils.ConvertISO639LanguageCode(0x01000000u | ZumPackCode("deu")), 107);
}

TEST(ParsingUtilsTest, CountryTableEntries)
{
    const CodeCase cases[] = {
        {"AUT", 24}, {"IRL", 30}, {"SVN", 53}, {"BEL", 25}, {"LUX", 52}, {"ESP", 3},
        {"BGR", 11}, {"MCO", 33}, {"SWE", 10}, {"CZE", 13}, {"NLD", 14}, {"CHE", 21},
        {"HRV", 12}, {"NOR", 28}, {"TUR", 22}, {"DNK", 26}, {"POL", 17}, {"GBR", 7},
        {"EST", 44}, {"PRT", 18}, {"WSM", 90}, {"FIN", 27}, {"ROU", 19}, {"MDA", 89},
        {"FRA", 4},  {"RUS", 20}, {"MKD", 91}, {"DEU", 8},  {"BLR", 88}, {"BIH", 92},
        {"GRC", 15}, {"SMR", 32}, {"SCG", 93}, {"HUN", 16}, {"SRB", 31}, {"ALB", 94},
        {"ITA", 9},  {"SVK", 38}, {"KOS", 95}, {"UGA", 96}, {"ZMB", 97},
    };
    ASSERT_EQ(sizeof(cases) / sizeof(cases[0]), 41u);
    TCParsingUtils utils;
    for (const CodeCase& c : cases)
        EXPECT_EQ(utils.ConvertISO3166CountryCode(ZumPackCode(c.code)), c.expected) << c.code;
}

TEST(ParsingUtilsTest, CountryOutsideTableFallsBack)
{
    const char* codes[] = {"BRA", "deu", "KOR", "GB", ""};
    TCParsingUtils utils;
    for (const char* code : codes)
        EXPECT_EQ(utils.ConvertISO3166CountryCode(ZumPackCode(code)), 78) << code;
}

TEST(ParsingUtilsTest, ReplaceLanguageCode)
{
    struct Case {
        const char* code;
        const char* replacement;
        bool replaced;
    };
    const Case cases[] = {
        {"QAA", "und", false}, {"und", "fin", true},  {"eng", "fin", false}, {"qab", "UND", false},
        {"qac", "eng", true},  {"UND", "fin", true},  {"qAa", "FRA", true},  {"qad", "eng", false},
        {"und", "und", false}, {"qaa", "qab", true},
    };
    TCParsingUtils utils;
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.code) + " / " + c.replacement);
        const unsigned int code = ZumPackCode(c.code);
        const unsigned int replacement = ZumPackCode(c.replacement);
        zumtest::LogCapture log;
        EXPECT_EQ(utils.ReplaceISO639LanguageCode(code, replacement), c.replaced ? replacement : code);
        if (c.replaced) {
            ExpectOneLine(log, DLOG_DEBUG, "ReplaceISO639LanguageCode",
                          "[TCParsingUtils::ReplaceISO639LanguageCode] Language code from descriptor replaced from [" +
                              std::to_string(code) + "] to [" + std::to_string(replacement) + "]");
        } else {
            EXPECT_TRUE(log.Entries().empty());
        }
    }
}

struct EnumCase {
    int in;
    int out;
    bool supported;
};

std::string UnsupportedLine(int value)
{
    return "[TCServiceDataUtil::ConvertCountryEnumValue] " + std::to_string(value) +
           " isn't supported by zum-api's country value";
}

TEST(ParserTmpUtilTest, CountryToSystemInfo)
{
    const EnumCase cases[] = {
        {-1, -1, false}, {0, 0, true},   {57, 57, true},  {58, 58, true},   {59, -1, false},
        {60, 60, true},  {76, 76, true}, {77, -1, false}, {78, 78, true},   {97, 97, true},
        {98, 100, true}, {99, -1, false}, {100, -1, false},
    };
    for (const EnumCase& c : cases) {
        SCOPED_TRACE(c.in);
        zumtest::LogCapture log;
        auto value = static_cast<system_info_country_e>(12345);
        TCParserTmpUtil::ConvertCountryEnumValue(static_cast<ECountry>(c.in), value);
        EXPECT_EQ(value, c.out);
        if (c.supported)
            EXPECT_TRUE(log.Entries().empty());
        else
            ExpectOneLine(log, DLOG_ERROR, "ConvertCountryEnumValue", UnsupportedLine(c.in));
    }
}

TEST(ParserTmpUtilTest, SystemInfoToCountry)
{
    const EnumCase cases[] = {
        {-1, 0, false}, {0, 0, true},   {57, 57, true},  {58, 58, true},  {59, 0, false},
        {60, 60, true}, {76, 76, true}, {77, 0, false},  {78, 78, true},  {97, 97, true},
        {98, 0, false}, {99, 0, false}, {100, 98, true},
    };
    for (const EnumCase& c : cases) {
        SCOPED_TRACE(c.in);
        zumtest::LogCapture log;
        auto country = static_cast<ECountry>(12345);
        TCParserTmpUtil::ConvertCountryEnumValue(static_cast<system_info_country_e>(c.in), country);
        EXPECT_EQ(country, c.out);
        if (c.supported)
            EXPECT_TRUE(log.Entries().empty());
        else
            ExpectOneLine(log, DLOG_ERROR, "ConvertCountryEnumValue", UnsupportedLine(c.in));
    }
}

TEST(CompareISO8859CharTest, MakeLowerCase)
{
    const std::pair<unsigned int, unsigned int> cases[] = {
        {0x454E47u, 0x656E67u},   // ENG
        {0x656E67u, 0x656E67u},   // already lower
        {0x415A61u, 0x617A61u},   // A, Z, a
        {0x405B60u, 0x405B60u},   // neighbours of A..Z stay
        {0x313233u, 0x313233u},   // digits
        {0xC4D6DCu, 0xC4D6DCu},   // bytes above 0x7F
        {0xC14180u, 0xC16180u},   // mixed
        {0xFF454E47u, 0x656E67u}, // top byte dropped
        {0x41000000u, 0x000000u}, // a letter in the top byte is dropped, not folded
        {0x454E00u, 0x656E00u},   // two-letter code
    };
    for (const auto& c : cases)
        EXPECT_EQ(TCCompareISO8859Char::MakeLowerCase(c.first), c.second) << std::hex << c.first;
}

TEST(CompareISO8859CharTest, IsEqual)
{
    struct Case {
        unsigned int a;
        unsigned int b;
        bool equal;
    };
    const Case cases[] = {
        {0x454E47u, 0x656E67u, true},
        {0x12454E47u, 0x656E67u, true},
        {0x454E47u, 0x454E48u, false},
        {0xC4u, 0xE4u, false},
        {0x404040u, 0x606060u, false},
    };
    for (const Case& c : cases)
        EXPECT_EQ(TCCompareISO8859Char::IsEqual(c.a, c.b), c.equal) << std::hex << c.a << " " << c.b;
}

} // namespace
