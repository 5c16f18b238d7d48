#include "inspect/Format.h"

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <set>

#include "inspect/Text.h"

namespace zuminspect {

namespace {

// 1980-01-06 00:00:00 UTC on the Unix clock.
constexpr long long kEpoch1980 = 315964800;

// A number with up to three decimals, trailing zeros dropped: "482", "11.765".
std::string Trimmed(double value)
{
    char buffer[48];
    std::snprintf(buffer, sizeof buffer, "%.3f", value);
    std::string text = buffer;
    text.erase(text.find_last_not_of('0') + 1);
    if (!text.empty() && text.back() == '.')
        text.pop_back();
    return text;
}

bool EndsWith(const std::string& text, const std::string& tail)
{
    return text.size() >= tail.size() && text.compare(text.size() - tail.size(), tail.size(), tail) == 0;
}

// Code points that the standards write in hex, two digits.
bool IsByteCode(const std::string& key)
{
    static const std::set<std::string> keys = {"serviceType", "streamType",  "componentType", "componentTag",
                                               "plpId",       "linkageType", "tableId",       "descriptorTag"};
    return keys.count(key) > 0;
}

// Ids and PIDs: 16 bits (13 for a PID), four hex digits.
bool IsId(const std::string& key)
{
    return EndsWith(key, "Id") || EndsWith(key, "Pid") || key == "pid" || key == "programNumber" ||
           EndsWith(key, "Ids");
}

// Fields whose null means that the stream left them at the reserved all-ones.
bool IsGivenOrNot(const std::string& key)
{
    static const std::set<std::string> keys = {"centreFrequencyHz", "frequencyKHz", "start", "duration",
                                               "time",              "startLocal",   "local"};
    return keys.count(key) > 0;
}

std::string Number(const std::string& key, const Json& value)
{
    const double v = value.get<double>();
    if (value.is_number_integer() || value.is_number_unsigned()) {
        const long long n = value.get<long long>();
        if (n >= 0 && IsByteCode(key))
            return Hex(static_cast<unsigned long long>(n), n > 0xFF ? 4 : 2);
        if (n >= 0 && IsId(key))
            return Hex(static_cast<unsigned long long>(n), n > 0xFFFF ? 8 : 4);
    }
    if (key == "frequencyKHz")
        return FrequencyText(v * 1e3);
    if (key == "centreFrequencyHz")
        return FrequencyText(v);
    if (key == "frequenciesMHz")
        return FrequencyText(v * 1e6);
    if (key == "centreFrequencies") // T2 cells, in units of 10 Hz
        return FrequencyText(v * 10);
    if (key == "symbolRateKsps")
        return SymbolRateText(v);
    if (key == "duration" && v >= 0)
        return DurationText(static_cast<uint64_t>(v));
    if (key == "orbitalPosition") // tenths of a degree
    {
        char buffer[32];
        std::snprintf(buffer, sizeof buffer, "%.1f\xC2\xB0", v / 10);
        return buffer;
    }
    return value.dump();
}

} // namespace

std::string FrequencyText(double hertz)
{
    if (hertz >= 1e9)
        return Trimmed(hertz / 1e9) + " GHz";
    if (hertz >= 1e6)
        return Trimmed(hertz / 1e6) + " MHz";
    return Trimmed(hertz / 1e3) + " kHz";
}

std::string SymbolRateText(double kiloSymbolsPerSecond)
{
    return Trimmed(kiloSymbolsPerSecond) + " kSym/s";
}

std::string DurationText(uint64_t seconds)
{
    char buffer[40];
    std::snprintf(buffer, sizeof buffer, "%llu:%02llu:%02llu", static_cast<unsigned long long>(seconds / 3600),
                  static_cast<unsigned long long>(seconds / 60 % 60), static_cast<unsigned long long>(seconds % 60));
    return buffer;
}

std::string OffsetText(int minutes)
{
    const int magnitude = std::abs(minutes);
    char buffer[16];
    std::snprintf(buffer, sizeof buffer, "%c%02d:%02d", minutes < 0 ? '-' : '+', magnitude / 60 % 100,
                  magnitude % 60);
    return buffer;
}

std::string TimeText(const std::string& iso)
{
    // yyyy-mm-ddThh:mm:ss followed by Z or an offset.
    if (iso.size() < 20 || iso[4] != '-' || iso[7] != '-' || iso[10] != 'T' || iso[13] != ':')
        return iso;
    const std::string rest = iso.substr(19);
    return iso.substr(0, 10) + " " + iso.substr(11, 8) + (rest == "Z" ? " UTC" : " " + rest);
}

std::string TimeAndLocalText(const Json& utc, const Json& local)
{
    if (!utc.is_string())
        return "not given";
    const std::string when = TimeText(utc.get<std::string>());
    if (!local.is_string())
        return when;
    // The local date only where it differs from the UTC one.
    std::string there = TimeText(local.get<std::string>());
    if (there.compare(0, 11, when, 0, 11) == 0)
        there.erase(0, 11);
    return when + " (local " + there + ")";
}

std::string IsoLocalTimeSince1980(uint32_t seconds, int offsetMinutes)
{
    const std::time_t local = static_cast<std::time_t>(kEpoch1980 + seconds + offsetMinutes * 60LL);
    std::tm fields{};
    char buffer[32];
    if (gmtime_r(&local, &fields) == nullptr || std::strftime(buffer, sizeof buffer, "%Y-%m-%dT%H:%M:%S", &fields) == 0)
        return std::string();
    return buffer + OffsetText(offsetMinutes);
}

LocalClock::LocalClock(const std::string& country, int offset, uint32_t timeOfChange, int nextOffset)
    : m_known(true), m_country(country), m_offset(offset), m_nextOffset(nextOffset), m_change(timeOfChange)
{
}

int LocalClock::OffsetAt(uint32_t secondsSince1980) const
{
    return secondsSince1980 >= m_change ? m_nextOffset : m_offset;
}

std::string LocalClock::Local(uint32_t secondsSince1980) const
{
    return m_known ? IsoLocalTimeSince1980(secondsSince1980, OffsetAt(secondsSince1980)) : std::string();
}

std::string TreeValue(const std::string& key, const Json& value, const Json& name)
{
    std::string text;
    if (value.is_null())
        text = IsGivenOrNot(key) ? "not given" : "-";
    else if (value.is_boolean())
        text = value.get<bool>() ? "yes" : "no";
    else if (value.is_string())
        text = TimeText(value.get<std::string>());
    else if (value.is_number())
        text = Number(key, value);
    else
        text = value.dump(-1, ' ', false, Json::error_handler_t::replace);
    if (value.is_string() && text == value.get<std::string>())
        text = value.dump(-1, ' ', false, Json::error_handler_t::replace); // quoted, as the tree shows text
    if (name.is_string())
        text += " (" + name.get<std::string>() + ")";
    return text;
}

} // namespace zuminspect
