#ifndef ZUM_TOOLS_INSPECT_OPERATORTABLESVIEW_H
#define ZUM_TOOLS_INSPECT_OPERATORTABLESVIEW_H

// The fast-scan tables of an operator's home transponder (FNT 0xBC and FST
// 0xBD on the PIDs that an M7 home transponder linkage of the NIT or BAT
// names), the update notification table (0x4B on the streams whose PMT entry
// announces system software update), and the operators' channel number descriptors.
//
// "fastScan": [{"operatorNetworkId", "pid", "complete", "networkDescriptors": [D],
//               "transportStreams": [{"transportStreamId", "originalNetworkId", "descriptors": [D]}],
//               "channels": [{"channelNumber": n|null, "channelNumberTag": tag|null, "name": s|null, "provider": s|null,
//                 "serviceId", "transportStreamId", "originalNetworkId", "videoPid", "audioPid", "videoEcmPid",
//                 "audioEcmPid", "pcrPid", "descriptors": [D]}]}]
//   One entry per operator network id and PID; the channels by number (those without one last), then as sent.
// "unt": [{"pid", "oui", "actionType", "ouiHash", "processingOrder", "complete", "descriptors": [D],
//          "items": [{"compatibility": hex, "platforms": [{"targets": [D], "operational": [D]}]}]}]

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <ostream>
#include <set>
#include <string>

#include <zum-platform/ZUMHandle.h>

#include "inspect/Json.h"
#include "inspect/Text.h"

class TCSectionParser;
class TCDVBFNTParser;
class TCDVBFSTParser;
class TCUNTParser;
class TCDescDigiturkLogicalChannel;
class TCDescPolsatLogicalChannel;
class TCDescTelekartaLogicalChannel;
class TCDescPolsatChannelListInfo;
class TCDescEutelsatChannelNumber;
class TCDescSogecablePrivateChannelList;
class TCDescNXTServiceOrder;
class TCDescOtauChannelOrder;
class TCDescADBLCNv2Activate;

namespace zuminspect {

class OperatorTables {
public:
    explicit OperatorTables(const ZUMHandle& handle);
    ~OperatorTables();
    OperatorTables(const OperatorTables&) = delete;
    OperatorTables& operator=(const OperatorTables&) = delete;

    // Learns the fast-scan PIDs from a NIT or BAT, the update PIDs from a PMT.
    void Learn(const TCSectionParser& parser);
    bool Wants(uint16_t pid) const;
    // The parser of the table on that PID, made on first use; null when none of these tables is there.
    TCSectionParser* ParserFor(uint16_t pid, uint8_t tableId, bool allPids);
    std::string ParserName(uint16_t pid, uint8_t tableId) const;
    std::optional<bool> Complete(uint16_t pid, uint8_t tableId) const;

    Json FastScanModel(const TextDecoder& text) const;
    Json UntModel(const TextDecoder& text) const;

private:
    enum class Kind { None, Fnt, Fst, Unt };
    Kind m_KindOf(uint16_t pid, uint8_t tableId, bool allPids) const;

    ZUMHandle m_handle;
    std::set<uint16_t> m_fastScanPids;
    std::set<uint16_t> m_updatePids;
    std::map<uint16_t, std::unique_ptr<TCDVBFNTParser>> m_fnts;
    std::map<uint16_t, std::unique_ptr<TCDVBFSTParser>> m_fsts;
    std::map<uint16_t, std::unique_ptr<TCUNTParser>> m_unts;
};

void RenderFastScanTree(const Json& fastScan, std::ostream& out);
void RenderUntTree(const Json& unt, std::ostream& out);

// The fields of the operators' channel number descriptors.
Json DescribeDigiturkLogicalChannel(const TCDescDigiturkLogicalChannel& d, const TextDecoder& text);
Json DescribePolsatLogicalChannel(const TCDescPolsatLogicalChannel& d, const TextDecoder& text);
Json DescribeTelekartaLogicalChannel(const TCDescTelekartaLogicalChannel& d, const TextDecoder& text);
Json DescribePolsatChannelListInfo(const TCDescPolsatChannelListInfo& d, const TextDecoder& text);
Json DescribeEutelsatChannelNumber(const TCDescEutelsatChannelNumber& d, const TextDecoder& text);
Json DescribeSogecablePrivateChannelList(const TCDescSogecablePrivateChannelList& d, const TextDecoder& text);
Json DescribeNXTServiceOrder(const TCDescNXTServiceOrder& d, const TextDecoder& text);
Json DescribeOtauChannelOrder(const TCDescOtauChannelOrder& d, const TextDecoder& text);
Json DescribeADBLCNv2Activate(const TCDescADBLCNv2Activate& d, const TextDecoder& text);

} // namespace zuminspect

#endif
