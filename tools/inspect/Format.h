#ifndef ZUM_TOOLS_INSPECT_FORMAT_H
#define ZUM_TOOLS_INSPECT_FORMAT_H

// Values as a person reads them, in one place: the tree renders every field
// through TreeValue, and the views through the helpers below it. The JSON
// keeps the numbers; these only shape the text.

#include <cstdint>
#include <string>

#include "inspect/Json.h"

namespace zuminspect {

// "482 MHz", "11.765 GHz", "950 kHz".
std::string FrequencyText(double hertz);
// "27500 kSym/s".
std::string SymbolRateText(double kiloSymbolsPerSecond);
// "1:45:00".
std::string DurationText(uint64_t seconds);
// "+01:00", "-03:30".
std::string OffsetText(int minutes);
// An ISO 8601 time of the model ("2026-11-14T01:00:00Z", "2026-11-14T02:00:00+01:00")
// as "2026-11-14 01:00:00 UTC", "2026-11-14 02:00:00 +01:00"; other text unchanged.
std::string TimeText(const std::string& iso);
// A UTC time of the model and, when the TOT gave an offset, the local time beside
// it: "2026-11-14 01:00:00 UTC (local 02:00:00 +01:00)", the local date only where it differs; null is "not given".
std::string TimeAndLocalText(const Json& utc, const Json& local);
// Seconds since 1980-01-06 00:00:00 UTC as ISO 8601 local time with its offset.
std::string IsoLocalTimeSince1980(uint32_t seconds, int offsetMinutes);

// The local time offset that a TOT announces, for one country: the offset in
// force at a moment, switching at the time of change.
class LocalClock {
public:
    // No offset known: local time is not shown.
    LocalClock() = default;
    // One entry of a local_time_offset_descriptor, offsets signed in minutes.
    LocalClock(const std::string& country, int offset, uint32_t timeOfChange, int nextOffset);
    bool Known() const { return m_known; }
    const std::string& Country() const { return m_country; }
    int OffsetAt(uint32_t secondsSince1980) const;
    // IsoLocalTimeSince1980 at the offset in force; empty when no offset is known.
    std::string Local(uint32_t secondsSince1980) const;

private:
    bool m_known = false;
    std::string m_country;
    int m_offset = 0;
    int m_nextOffset = 0;
    uint32_t m_change = 0;
};

// A field of the model as the tree shows it, chosen by its key: ids and PIDs
// in hex, code points in hex where the standards write them so, frequencies,
// symbol rates, durations and times in their units, "not given" for a value
// the stream leaves at its reserved all-ones (null in the model). `name`, the
// field's "...Name" sibling, follows in parentheses.
std::string TreeValue(const std::string& key, const Json& value, const Json& name = Json());

} // namespace zuminspect

#endif
