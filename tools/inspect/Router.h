#ifndef ZUM_TOOLS_INSPECT_ROUTER_H
#define ZUM_TOOLS_INSPECT_ROUTER_H

// Hands every section from the demultiplexer to the parser of its table id,
// the way a receiver's section filters would: the PAT on PID 0 names the PMT
// and network PIDs, the DVB SI tables come on their well-known PIDs, and a
// PMT's private-section streams carry the emergency warning table. Counts
// what went where, so that no section is lost without a trace.
// and network PIDs, the DVB SI tables come on their well-known PIDs. A file of
// sections has no PIDs: a table id that several tables share goes to a parser
// only when the receiver's country and the section's shape leave one reading.
// Counts what went where, so that no section is lost without a trace.

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>

#include <zum-platform/ZUMHandle.h>

#include "inspect/EitCollector.h"
#include "inspect/IsdbView.h"
#include "inspect/OperatorTablesView.h"

class TCSectionParser;
class TCPATParser;
class TCPMTParser;
class TCDVBNITParser;
class TCDVBSDTParser;
class TCDVBEITParser;
class TCDVBTDTParser;
class TCDVBTOTParser;
class TCDVBLCNParser;
class TCEWSParser;
class TCSITParser;
class TCAITParser;
class TCDVBSGTParser;
class TCDVBRCTParser;
class TCDVBTKGSParser;
class TCDVBBATParser;
class TCDVBCATParser;

namespace zuminspect {
class AtscTables;
}
class TCDVBFSatPostCodeParser;

namespace zuminspect {

constexpr uint16_t kPidPat = 0x0000;
constexpr uint16_t kPidCat = 0x0001;
constexpr uint16_t kPidNit = 0x0010;
constexpr uint16_t kPidSdt = 0x0011;
constexpr uint16_t kPidEit = 0x0012;
constexpr uint16_t kPidTime = 0x0014;
constexpr uint16_t kPidSit = 0x001F; // the SIT of a recorded (partial) stream

class Router {
public:
    using TableKey = std::pair<uint16_t, uint8_t>; // PID, table id
    struct TableCounts {
        uint64_t routed = 0;    // handed to a parser
        uint64_t noParser = 0;  // nothing parses this table id on this PID
        std::set<int> versions; // version_number of the long-form sections
    };
    template <class Parser>
    using ByTableId = std::map<uint8_t, std::unique_ptr<Parser>>;

    // `allPids`: collect sections on every PID, not only those a receiver filters,
    // and take a PMT on any of them.
    Router(const ZUMHandle& handle, bool allPids);
    ~Router();
    Router(const Router&) = delete;
    Router& operator=(const Router&) = delete;

    // One whole section, size section_length + 3, from the demultiplexer.
    void OnSection(uint16_t pid, const uint8_t* section, size_t size);
    // The demultiplexer's PID filter.
    bool Wants(uint16_t pid) const;

    const std::map<TableKey, TableCounts>& Counts() const { return m_counts; }
    uint64_t Routed() const { return m_routed; }
    uint64_t NoParser() const { return m_noParser; }
    // Class name of the parser that serves the table on that PID; empty for none.
    std::string ParserName(uint16_t pid, uint8_t tableId) const;
    // Whether that parser holds the whole table; nullopt when no parser serves it.
    std::optional<bool> Complete(uint16_t pid, uint8_t tableId) const;

    // The parsers; null, or absent from a map, when no section needed them.
    const TCPATParser* Pat() const { return m_pat.get(); }
    const TCPMTParser* Pmt() const { return m_pmt.get(); }
    const ByTableId<TCDVBNITParser>& Nits() const { return m_nits; }
    const ByTableId<TCDVBSDTParser>& Sdts() const { return m_sdts; }
    const TCDVBTDTParser* Tdt() const { return m_tdt.get(); }
    const TCDVBTOTParser* Tot() const { return m_tot.get(); }
    const TCDVBLCNParser* Lcn() const { return m_lcn.get(); }
    const std::set<uint16_t>& LcnPids() const { return m_lcnPids; }
    const TCDVBBATParser* Bat() const { return m_bat.get(); }
    const TCDVBCATParser* Cat() const { return m_cat.get(); }
    const EitCollector& Events() const { return m_events; }
    const TCEWSParser* Ews() const { return m_ews.get(); }
    const std::set<uint16_t>& EwsPids() const { return m_ewsPids; }

    const TCSITParser* Sit() const { return m_sit.get(); }
    // One AIT parser per announced AIT PID (kNoPid for a file of sections).
    const std::map<uint16_t, std::unique_ptr<TCAITParser>>& Aits() const { return m_aits; }

    const TCDVBSGTParser* Sgt() const { return m_sgt.get(); }
    // The related content tables, from the streams that a PMT marks with a related content descriptor.
    const TCDVBRCTParser* Rct() const { return m_rct.get(); }
    // One TKGS table per PID that a PMT announces with a TKGS component.
    const std::map<uint16_t, std::unique_ptr<TCDVBTKGSParser>>& Tkgs() const { return m_tkgs; }
    // The PSIP tables on the base PID, with an ATSC country.
    const AtscTables& Atsc() const { return *m_atsc; }
    // The ISDB tables of an ISDB receiver (BIT, NBIT, LDT, PCAT, SDTT, CDT, ECM, EMM).
    const IsdbTables& Isdb() const { return *m_isdb; }
    const TCDVBFSatPostCodeParser* FSatPostCodes() const { return m_fsatPostCodes.get(); }
    // The fast-scan tables and the update notification table.
    const OperatorTables& Operators() const { return *m_operators; }

private:
    enum class Kind { None, Pat, Pmt, Nit, Sdt, Eit, Tdt, Tot, Lcn, Ews, Sit, Bat, Cat, Ait, Sgt, Tkgs, FSatPostCode, Rct };

    Kind m_KindOf(uint16_t pid, uint8_t tableId) const;
    // As above, deciding a shared table id of a file of sections by country and section shape.
    Kind m_KindOfSection(uint16_t pid, const uint8_t* section, size_t size) const;
    // The kind that the summary names for a table.
    Kind m_KindFor(uint16_t pid, uint8_t tableId) const;
    TCSectionParser* m_Parser(Kind kind, uint8_t tableId);
    void m_LearnPids();
    void m_LearnPrivateSectionPids();
    void m_LearnTkgsPids();

    ZUMHandle m_handle;
    bool m_allPids;
    std::set<uint16_t> m_pmtPids;
    int m_networkPid = -1;

    std::unique_ptr<TCPATParser> m_pat;
    std::unique_ptr<TCPMTParser> m_pmt;
    ByTableId<TCDVBNITParser> m_nits;
    ByTableId<TCDVBSDTParser> m_sdts;
    ByTableId<TCDVBEITParser> m_eits;
    std::unique_ptr<TCDVBTDTParser> m_tdt;
    std::unique_ptr<TCDVBTOTParser> m_tot;
    std::unique_ptr<TCDVBLCNParser> m_lcn;
    std::set<uint16_t> m_lcnPids;
    std::unique_ptr<TCDVBBATParser> m_bat;
    std::unique_ptr<TCDVBCATParser> m_cat;
    std::set<uint8_t> m_timeTablesTaken;
    EitCollector m_events;
    std::unique_ptr<TCEWSParser> m_ews;
    std::set<uint16_t> m_privateSectionPids; // streams of type 0x05 in a PMT
    std::set<uint16_t> m_ewsPids;
    std::unique_ptr<TCSITParser> m_sit;
    // Streams of type 0x05 whose PMT entry has an application signalling descriptor.
    std::set<uint16_t> m_aitPids;
    std::map<uint16_t, std::unique_ptr<TCAITParser>> m_aits;
    std::unique_ptr<TCDVBSGTParser> m_sgt;
    std::set<uint16_t> m_rctPids;
    std::unique_ptr<TCDVBRCTParser> m_rct;
    std::set<uint16_t> m_tkgsPids;
    std::map<uint16_t, std::unique_ptr<TCDVBTKGSParser>> m_tkgs;
    uint16_t m_sectionPid = 0; // the PID of the section in hand
    std::unique_ptr<AtscTables> m_atsc;
    std::unique_ptr<IsdbTables> m_isdb;
    std::unique_ptr<TCDVBFSatPostCodeParser> m_fsatPostCodes;
    std::unique_ptr<OperatorTables> m_operators;

    // Without PIDs, the kind that sections of a shared table id went to.
    std::map<uint8_t, Kind> m_sharedKinds;
    std::map<TableKey, TableCounts> m_counts;
    uint64_t m_routed = 0;
    uint64_t m_noParser = 0;
};

} // namespace zuminspect

#endif
