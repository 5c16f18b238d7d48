#include "zum-platform/PlatformConfig.h"

namespace zum_platform {

namespace {

constexpr char kStandardTable[] = "ISO6937";

TextSettings& State()
{
    static TextSettings settings;
    return settings;
}

// Countries whose own rules give text without a selector a table of its own.
const char* RuleTableOf(ECountryCode country)
{
    switch (country) {
    case ZumPackCode('B', 'R', 'A'): return "ISO-8859-15";
    default: return nullptr;
    }
}

// DVB countries whose broadcasters send ISO 8859 text without a selector.
const char* PracticeTableOf(ECountryCode country)
{
    switch (country) {
    case ZumPackCode('F', 'R', 'A'):
    case ZumPackCode('I', 'T', 'A'): return "ISO-8859-15";
    default: return nullptr;
    }
}

} // namespace

void SetTextSettings(const TextSettings& settings) { State() = settings; }

TextSettings& Text() { return State(); }

bool IsKnownDefaultTable(const std::string& name)
{
    if (name == kStandardTable)
        return true;
    const std::string prefix = "ISO-8859-";
    if (name.compare(0, prefix.size(), prefix) != 0 || name.size() <= prefix.size() || name.size() > prefix.size() + 2)
        return false;
    const std::string digits = name.substr(prefix.size());
    if (digits.find_first_not_of("0123456789") != std::string::npos || digits[0] == '0')
        return false;
    const int part = std::stoi(digits);
    return part >= 1 && part <= 16 && part != 12;
}

std::string DefaultTableFor(ECountryCode country)
{
    const TextSettings& settings = State();
    if (!settings.defaultTable.empty())
        return settings.defaultTable;
    if (const char* table = RuleTableOf(country))
        return table;
    if (settings.dvbCountryTables) {
        if (const char* table = PracticeTableOf(country))
            return table;
    }
    return kStandardTable;
}

} // namespace zum_platform
