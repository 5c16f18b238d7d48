#ifndef ZUM_TOOLS_INSPECT_SESSION_H
#define ZUM_TOOLS_INSPECT_SESSION_H

// One inspection: input bytes in, through the demultiplexer and the router,
// the model out. The command line and the tests drive it the same way.

#include <cstddef>
#include <cstdint>
#include <string>

#include <zum-platform/PlatformConfig.h>

#include "inspect/Json.h"
#include "inspect/Router.h"
#include "inspect/TsDemux.h"

namespace zuminspect {

// What the receiver is told to be.
struct InspectSettings {
    std::string country;          // three letters, e.g. "GBR"; empty for none
    unsigned int operatorId = 0;
    unsigned int privateDataSpecifier = 0;
    std::string language;         // three letters, e.g. "eng"; empty for none
    bool allPids = false;         // collect sections on every PID, a PMT on any of them
    bool guide = false;           // each event with the answers of the guide utilities
};

// The platform answers for these settings; the caller hands them to zum_platform::SetBinder.
zum_platform::BinderSettings BinderSettingsFor(const InspectSettings& settings);
// The text converter's settings for a table of text without a selector byte:
// "ISO-8859-N", "ISO6937", "country" (what the country's broadcasters send), or
// empty for the standards' reading; the caller hands them to zum_platform::SetTextSettings.
zum_platform::TextSettings TextSettingsFor(const std::string& charset);
// Whether TextSettingsFor takes `charset`.
bool IsKnownCharset(const std::string& charset);

class Session {
public:
    Session(InputKind kind, const InspectSettings& settings);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    void Feed(const uint8_t* data, size_t size);
    // End of input; call once, before Model.
    void Finish();

    Json Model() const;
    const Router& Routing() const { return m_router; }
    const DemuxStats& Stats() const { return m_demux.Stats(); }

private:
    InputKind m_kind;
    InspectSettings m_settings;
    Router m_router;
    TsDemux m_demux;
    uint64_t m_bytes = 0;
};

} // namespace zuminspect

#endif
