#ifndef ZUM_TOOLS_INSPECT_OOBVIEW_H
#define ZUM_TOOLS_INSPECT_OOBVIEW_H

// The cable control channel (out-of-band PID 0x1FFC) for an ATSC country: the
// short-form channel map joined with the carriers and modulations of the
// out-of-band NIT and the source names of the NTT, shown as
// "channel 102 -> source 0x1234, CDS carrier 3, 561.000 MHz, QAM256", and the
// aggregate event and text tables.
//
// Model key "oob" inside "atsc": null when nothing came on the PID, else
//   {"channels": [{"channel": line, "number", "sourceId", "name": text|null, "cds", "frequencyMHz": n|null,
//                  "mms", "modulation": text|null, "programNumber", "transportType", "channelType",
//                  "descriptors": [D]}],
//    "nit": {"carriers": [{"reference", "frequencyMHz"}], "modulations": [{"reference", "transmissionSystem",
//            "innerCoding", "modulation", "symbolRate"}]} | null,
//    "ntt": {"language", "names": [{"sourceId"|"applicationId", "name"}]} | null,
//    "icm": [{"index", "sourceId", "channel"}],
//    "aeit": [{"tag", "section", "sourceId", "eventId", "start", "duration", "title"}],
//    "aett": [{"tag", "section", "etmId", "text"}]}

#include <cstdint>
#include <memory>
#include <optional>
#include <ostream>
#include <string>

#include <zum-platform/ZUMHandle.h>

#include "inspect/Json.h"
#include "inspect/Text.h"

class TCSectionParser;
class TCNITParser;
class TCNTTParser;
class TCSVCTParser;
class TCAEITParser;
class TCAETTParser;

namespace zuminspect {

constexpr uint16_t kPidOob = 0x1FFC;

class OobTables {
public:
    explicit OobTables(const ZUMHandle& handle);
    ~OobTables();
    OobTables(const OobTables&) = delete;
    OobTables& operator=(const OobTables&) = delete;

    static bool Wants(uint16_t pid) { return pid == kPidOob; }
    // The parser of an out-of-band table on its PID (any PID for a file of sections); null when none.
    TCSectionParser* Parser(uint16_t pid, uint8_t tableId);
    std::string ParserName(uint16_t pid, uint8_t tableId) const;
    std::optional<bool> Complete(uint16_t pid, uint8_t tableId) const;

    const TCNITParser* Nit() const { return m_nit.get(); }
    const TCNTTParser* Ntt() const { return m_ntt.get(); }
    const TCSVCTParser* Svct() const { return m_svct.get(); }
    const TCAEITParser* Aeit() const { return m_aeit.get(); }
    const TCAETTParser* Aett() const { return m_aett.get(); }

private:
    ZUMHandle m_handle;
    std::unique_ptr<TCNITParser> m_nit;
    std::unique_ptr<TCNTTParser> m_ntt;
    std::unique_ptr<TCSVCTParser> m_svct;
    std::unique_ptr<TCAEITParser> m_aeit;
    std::unique_ptr<TCAETTParser> m_aett;
};

// "QAM256" and the like for a modulation_format; empty for an unknown one.
std::string ModulationName(unsigned format);

Json DescribeOob(const OobTables& tables, const TextDecoder& text);
void RenderOobTree(const Json& oob, std::ostream& out);

} // namespace zuminspect

#endif
