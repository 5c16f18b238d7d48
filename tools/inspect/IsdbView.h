#ifndef ZUM_TOOLS_INSPECT_ISDBVIEW_H
#define ZUM_TOOLS_INSPECT_ISDBVIEW_H

// The ISDB tables of a receiver in an ISDB country (Japan, Brazil and the
// other ISDB-Tb countries): their section filters (BIT 0x24, NBIT and LDT
// 0x25, PCAT 0x22, SDTT 0x23, CDT 0x29, ECM and EMM on the PIDs that the PMT
// and the CAT name), their parsers, and their model and tree.
//
// "isdb": null | {"nbit": [{"tableId", "originalNetworkId", "complete", "information": [{"informationId",
//                   "informationType", "descriptionBodyLocation", "userDefined", "keyIds", "descriptors"}]}],
//                 "ldt": [{"originalServiceId", "transportStreamId", "originalNetworkId", "complete",
//                   "descriptions": [{"descriptionId", "descriptors"}]}],
//                 "pcat": [{"serviceId", "transportStreamId", "originalNetworkId", "contentId", "complete",
//                   "contentVersions": [{"contentVersion", "contentMinorVersion", "versionIndicator",
//                   "schedule": [{"start", "duration"}], "descriptors"}]}],
//                 "bit": [{"originalNetworkId", "broadcastViewPropriety", "complete", "descriptors",
//                   "broadcasters": [{"broadcasterId", "descriptors"}]}],
//                 "sdtt": [{"makerModel", "transportStreamId", "originalNetworkId", "serviceId", "complete",
//                   "contents": [{"group", "targetVersion", "newVersion", "downloadLevel", "versionIndicator",
//                   "scheduleTimeShift", "schedule": [{"start", "duration"}], "descriptors"}]}],
//                 "cdt": [{"downloadDataId", "originalNetworkId", "dataType", "complete", "descriptors",
//                   "logos": [{"logoType", "logoId", "logoVersion", "dataSize", "head"}]}],
//                 "ecm": null | {"pids", "dateTime", "variablePartSize", "authentication"},
//                 "emm": null | {"pids", "records": [{"cardId", "variablePartSize", "authentication"}]},
//                 "emmMessages": null | {"messages": [{"kind", "presetTextNumber", "messageLength"}]}}

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>

#include <zum-platform/ZUMHandle.h>

#include "inspect/Json.h"
#include "inspect/Text.h"

class TCSectionParser;
class TCISDBNBITParser;
class TCISDBLDTParser;
class TCISDBPCATParser;
class TCISDBBITParser;
class TCSDTTParser;
class TCISDBCDTParser;
class TCISDBECMParser;
class TCISDBEMMParser;
class TCISDBEMMMessageParser;

namespace zuminspect {

// Whether the receiver's country picks ISDB.
bool IsdbReceiver(const ZUMHandle& handle);
// The extra EIT PIDs of ISDB (0x26, 0x27) for an ISDB receiver.
bool IsIsdbEitPid(const ZUMHandle& handle, uint16_t pid);

class IsdbTables {
public:
    explicit IsdbTables(const ZUMHandle& handle);
    ~IsdbTables();
    IsdbTables(const IsdbTables&) = delete;
    IsdbTables& operator=(const IsdbTables&) = delete;

    // Learns the ECM PIDs of PMT sections and the EMM PIDs of the CAT.
    void Learn(uint16_t pid, const uint8_t* section, size_t size);
    bool Wants(uint16_t pid) const;
    // The parser of the table on that PID, made on first use; null when no ISDB table is there.
    TCSectionParser* ParserFor(uint16_t pid, uint8_t tableId);
    std::string ParserName(uint16_t pid, uint8_t tableId) const;
    std::optional<bool> Complete(uint16_t pid, uint8_t tableId) const;

    Json Model(const TextDecoder& text) const;

private:
    enum class Kind { None, Nbit, Ldt, Pcat, Bit, Sdtt, Cdt, Ecm, Emm, EmmMessage };
    Kind m_KindOf(uint16_t pid, uint8_t tableId) const;

    ZUMHandle m_handle;
    std::set<uint16_t> m_ecmPids;
    std::set<uint16_t> m_emmPids;
    std::map<uint8_t, std::unique_ptr<TCISDBNBITParser>> m_nbits;
    std::unique_ptr<TCISDBLDTParser> m_ldt;
    std::unique_ptr<TCISDBPCATParser> m_pcat;
    std::unique_ptr<TCISDBBITParser> m_bit;
    std::unique_ptr<TCSDTTParser> m_sdtt;
    std::unique_ptr<TCISDBCDTParser> m_cdt;
    std::unique_ptr<TCISDBECMParser> m_ecm;
    std::unique_ptr<TCISDBEMMParser> m_emm;
    std::unique_ptr<TCISDBEMMMessageParser> m_emmMessages;
};

void RenderIsdbTree(const Json& isdb, std::ostream& out);

} // namespace zuminspect

#endif
