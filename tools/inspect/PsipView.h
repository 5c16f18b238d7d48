#ifndef ZUM_TOOLS_INSPECT_PSIPVIEW_H
#define ZUM_TOOLS_INSPECT_PSIPVIEW_H

// The guide side of PSIP in the inspector: the EITs and ETTs on the PIDs the
// MGT announces (any PID for a file of sections), the system time, the rating
// region table and the cable emergency alert. The guide shows one line per
// event as a receiver's grid does:
//   "KULX-HD 10.1  2026-11-14 19:00 EST  60 min  Title  [TV-PG D L]  CC1 eng"
// with local time in the --timezone (EST by default), daylight time when the
// STT says it is in effect, and GPS seconds turned to UTC by the STT's offset.
//
// Model key "atsc"."psip":
//   {"stt": null | {"systemTime", "utc", "gpsUtcOffset", "daylightSavings", "descriptors": [D]},
//    "rrt": null | {"region", "name": text|null, "dimensions": [{"name", "graduated", "values": [{"abbrev", "text"}]}],
//                   "descriptors": [D]},
//    "eas": null | {"eventId", "originator", "eventCode", "natureOfActivation": text|null, "timeRemaining",
//                   "startTime", "duration", "priority", "alertText": text|null, "locations": [text],
//                   "sectionLength"},
//    "guide": [{"line", "channel", "sourceId", "pid", "eventId", "start", "startTime", "duration",
//               "title": text|null, "rating": text|null, "captions": text|null, "etmLocation",
//               "extendedText": text|null, "descriptors": [D]}]}

#include <cstdint>
#include <memory>
#include <optional>
#include <ostream>
#include <set>
#include <string>

#include <zum-platform/ZUMHandle.h>

#include "inspect/Json.h"
#include "inspect/Text.h"

class TCBaseDesc;
class TCSectionParser;
class TCMGTParser;
class TCVCTParser;
class TCEITParser;
class TCETTParser;
class TCSTTParser;
class TCRRTParser;
class TCEASParser;

namespace zuminspect {

// The time zone the guide shows: its standard name, its daylight name and
// its offset from UTC in hours; false for a name it does not know.
bool SetGuideTimeZone(const std::string& name);

class PsipTables {
public:
    explicit PsipTables(const ZUMHandle& handle);
    ~PsipTables();
    PsipTables(const PsipTables&) = delete;
    PsipTables& operator=(const PsipTables&) = delete;

    // The EIT and ETT PIDs of the MGT; called when an MGT came.
    void Learn(const TCMGTParser& mgt);
    bool Wants(uint16_t pid) const { return m_eitPids.count(pid) > 0 || m_ettPids.count(pid) > 0; }
    const std::set<uint16_t>& EttPids() const { return m_ettPids; }
    TCSectionParser* Parser(uint16_t pid, uint8_t tableId);
    std::string ParserName(uint16_t pid, uint8_t tableId) const;
    std::optional<bool> Complete(uint16_t pid, uint8_t tableId) const;

    const TCEITParser* Eit() const { return m_eit.get(); }
    const TCETTParser* Ett() const { return m_ett.get(); }
    const TCSTTParser* Stt() const { return m_stt ? m_stt.get() : m_oobStt.get(); }
    const TCRRTParser* Rrt() const { return m_rrt.get(); }
    const TCEASParser* Eas() const { return m_eas.get(); }

private:
    enum class Kind { None, Eit, Ett, Stt, OobStt, Rrt, Eas };
    Kind m_KindOf(uint16_t pid, uint8_t tableId) const;

    ZUMHandle m_handle;
    std::set<uint16_t> m_eitPids;
    std::set<uint16_t> m_ettPids;
    std::unique_ptr<TCEITParser> m_eit;
    std::unique_ptr<TCETTParser> m_ett;
    std::unique_ptr<TCSTTParser> m_stt;
    std::unique_ptr<TCSTTParser> m_oobStt;
    std::unique_ptr<TCRRTParser> m_rrt;
    std::unique_ptr<TCEASParser> m_eas;
};

// The "psip" part; the VCTs name the channels of the guide.
Json DescribePsip(const PsipTables& tables, const TCVCTParser* tvct, const TCVCTParser* cvct, const TextDecoder& text);
// Fields of the PSIP event, rating, caption and channel descriptor classes; nullopt for any other class.
std::optional<Json> DescribePsipDescriptor(const TCBaseDesc& desc);
void RenderPsipTree(const Json& psip, std::ostream& out);

} // namespace zuminspect

#endif
