#ifndef ZUM_PLATFORM_PLATFORMCONFIG_H
#define ZUM_PLATFORM_PLATFORMCONFIG_H

// Configuration of the stand-in platform: what IBinder answers, whether it is
// up at all, and where log lines go. Used by tests, tools and examples.

#include <functional>
#include <string>

#include "Codes.h"
#include "ZUMHandle.h"

namespace zum_platform {

struct BinderSettings {
    ECountryCode countryCode = 0;
    ECountry country = ECOUNTRY_NONE;
    unsigned int operatorId = 0;
    unsigned int privateDataSpecifier = 0;
    // Decides IsValidPrivateDataSpecification; empty accepts every specifier.
    std::function<bool(unsigned int pds)> acceptSpecifier;
    ELanguageCode languageCode = 0;
    unsigned int preferredLanguage = 0;
    unsigned int ratingRegion = 0;
    bool dolbyCertMode = false;
};

// Makes the binder present with these answers.
void SetBinder(const BinderSettings& settings);
// Instance() answers null until SetBinder or ResetBinder.
void RemoveBinder();
// Present again, with default answers.
void ResetBinder();
// The answers in force (present or not); changes take effect at once.
BinderSettings& Binder();
// The handle of the last binder call that took one.
ZUMHandle LastBinderHandle();

// How TCUnicodeConverter reads text that starts without a selector byte.
// By default as the standards say: ISO/IEC 6937 (with the euro sign) in DVB
// countries, the country's own table where its rules give one (Brazil: ISO 8859-15).
struct TextSettings {
    // The table for such text in every country: "ISO-8859-N" (N of 1..11, 13..16)
    // or "ISO6937". Empty: by the rules below.
    std::string defaultTable;
    // Also take the table that broadcasters of a DVB country send in practice
    // (France, Italy: ISO 8859-15) instead of ISO/IEC 6937. Off by default.
    bool dvbCountryTables = false;
};

void SetTextSettings(const TextSettings& settings);
// The settings in force; changes take effect at once.
TextSettings& Text();
// Whether `name` is a table that TextSettings::defaultTable takes.
bool IsKnownDefaultTable(const std::string& name);
// The table for text without a selector byte in `country` under the settings in force.
std::string DefaultTableFor(ECountryCode country);

// Lines at or above this priority go to standard error; default 6 (ERROR).
// kLogSilent lets none through, and none is formatted.
constexpr int kLogSilent = 100;
void SetLogThreshold(int priority);
int LogThreshold();

// While a sink is set every line goes to it, whatever its priority, and
// nothing to standard error. An empty function removes the sink.
using LogSink = std::function<void(int priority, const char* tag, const std::string& line)>;
void SetLogSink(LogSink sink);

} // namespace zum_platform

#endif
