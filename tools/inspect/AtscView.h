#ifndef ZUM_TOOLS_INSPECT_ATSCVIEW_H
#define ZUM_TOOLS_INSPECT_ATSCVIEW_H

// The North American side of the inspector: with an ATSC country the PSIP
// base PID is filtered, the MGT read, and the virtual channel tables taken at
// the versions the MGT announces; channels show as "10.1 KULX-HD", their
// names rendered from the multiple string structure for the binder's viewer.
//
// Model key "atsc": null without an ATSC country, else
//   {"mgt": null | {"tables": [{"tableType", "type", "pid", "version", "numberBytes", "descriptors": [D]}],
//                   "eitCount", "ettCount", "descriptors": [D]},
//    "vcts": [{"tableId", "sectionChannels", "descriptors": [D],
//              "channels": [{"channel": "10.1 KULX-HD", "major", "minor", "shortName", "name": text|null,
//                            "modulation", "carrierFrequency", "channelTsid", "programNumber", "etmLocation",
//                            "accessControlled", "hidden", "pathSelect", "hideGuide", "serviceType",
//                            "sourceId", "descriptors": [D]}]}],
//    "oob": the out-of-band tables (OobView.h), "psip": the guide, time, ratings and alerts (PsipView.h)}

#include <cstdint>
#include <memory>
#include <optional>
#include <ostream>
#include <string>

#include <zum-platform/ZUMHandle.h>

#include "inspect/Json.h"
#include "inspect/Text.h"

class TCBaseDesc;
class TCSectionParser;
class TCMGTParser;
class TCVCTParser;
class TCMultipleStringStruct;
class TCVCTChannel;

namespace zuminspect {

class OobTables;
class PsipTables;

constexpr uint16_t kPidAtscBase = 0x1FFB;

class AtscTables {
public:
    // ATSC when the binder's country is one whose descriptors are read the ATSC way (USA, KOR).
    explicit AtscTables(const ZUMHandle& handle);
    ~AtscTables();
    AtscTables(const AtscTables&) = delete;
    AtscTables& operator=(const AtscTables&) = delete;

    bool Enabled() const { return m_enabled; }
    // The base PID, and the out-of-band PID of the cable control channel.
    bool Wants(uint16_t pid) const;
    // The parser of this table on this PID (any PID for a file of sections); null when none.
    TCSectionParser* Parser(uint16_t pid, uint8_t tableId);
    // After a section went to Parser's answer: the MGT hands its VCT versions on.
    void Parsed(uint16_t pid, uint8_t tableId);
    std::string ParserName(uint16_t pid, uint8_t tableId) const;
    std::optional<bool> Complete(uint16_t pid, uint8_t tableId) const;

    const TCMGTParser* Mgt() const { return m_mgt.get(); }
    const TCVCTParser* Vct(uint8_t tableId) const;
    const OobTables& Oob() const { return *m_oob; }
    const PsipTables& Psip() const { return *m_psip; }

private:
    enum class Kind { None, Mgt, Tvct, Cvct };
    Kind m_KindOf(uint16_t pid, uint8_t tableId) const;
    void m_HandMgtVersions();

    ZUMHandle m_handle;
    bool m_enabled;
    std::unique_ptr<TCMGTParser> m_mgt;
    std::unique_ptr<TCVCTParser> m_tvct;
    std::unique_ptr<TCVCTParser> m_cvct;
    std::unique_ptr<OobTables> m_oob;
    std::unique_ptr<PsipTables> m_psip;
};

// The short name of a virtual channel, blanks behind it cut ("KULX-HD").
std::string ChannelShortName(const TCVCTChannel& channel);

// The parser in `slot`, made and initialized on first use.
template <class Parser, class Slot>
TCSectionParser* MadeParser(std::unique_ptr<Slot>& slot, const ZUMHandle& handle)
{
    if (!slot) {
        slot.reset(new Parser(handle));
        slot->Initialize();
    }
    return slot.get();
}

// A multiple string structure as the binder's viewer reads it, in UTF-8;
// nullopt when no string renders.
std::optional<std::string> RenderMultipleString(const TCMultipleStringStruct& text);

// The "atsc" model part.
Json DescribeAtsc(const AtscTables& tables, const TextDecoder& text);
// Fields of the PSIP descriptor classes; nullopt for any other class.
std::optional<Json> DescribeAtscDescriptor(const TCBaseDesc& desc);
// Its tree lines.
void RenderAtscTree(const Json& atsc, std::ostream& out);

} // namespace zuminspect

#endif
