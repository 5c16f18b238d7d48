#include "inspect/LinkageView.h"

#include <vector>

#include "dvb/DescLinkage.h"
#include "inspect/Names.h"
#include "psi/DescCA.h"

namespace zuminspect {

namespace {

// Runs a byte copy accessor of the library into a buffer of `length`; the
// bytes it wrote, none when it refuses.
template <class Copy>
std::vector<unsigned char> Copied(int length, Copy copy)
{
    if (length <= 0)
        return {};
    std::vector<char> buffer(static_cast<size_t>(length));
    int size = length;
    if (!copy(buffer.data(), &size) || size <= 0)
        return {};
    return std::vector<unsigned char>(buffer.begin(), buffer.begin() + std::min(size, length));
}

template <class Copy>
Json HexOrNull(int length, Copy copy)
{
    const std::vector<unsigned char> bytes = Copied(length, copy);
    return bytes.empty() ? Json(nullptr) : Json(HexBytes(bytes.data(), bytes.size()));
}

Json Undefined(unsigned int value)
{
    return value == 0xFFFFFFFF ? Json(nullptr) : Json(value);
}

Json ExtendedEventTargets(const TCDescLinkage& d)
{
    Json targets = Json::array();
    for (int i = 0; i < d.NumOfExtLinkageLoop(); ++i) {
        const CEXTEventLinkageInfo* e = d.EXTEventLinkageInfoLoop(static_cast<unsigned>(i));
        Json target = {{"targetEventId", e->TargetEventId()},
                       {"linkType", e->LinkType()},
                       {"targetIdType", e->TargetIdType()},
                       {"eventSimulcast", e->EventSimulcast()}};
        if (e->TargetIdType() == 3)
            target["userDefinedId"] = e->UserDefinedId();
        target["targetTransportStreamId"] = Undefined(e->TargetTransportStreamId());
        target["targetOriginalNetworkId"] = Undefined(e->TargetOriginalNetworkId());
        target["targetServiceId"] = Undefined(e->TargetServiceId());
        targets.push_back(target);
    }
    return targets;
}

Json HomeTransponders(const M7HomeTPLinkageData& m7)
{
    Json operators = Json::array();
    for (const M7HomeTPLinkageData::TSOperatorID& id : m7.Operators()) {
        Json transponders = Json::array();
        for (const auto& tp : m7.GetHomeTransponders(id))
            transponders.push_back({{"originalNetworkId", tp.first}, {"transportStreamId", tp.second}});
        operators.push_back({{"operatorNetworkId", id.operatorNetworkId},
                             {"sublistId", id.sublistId},
                             {"pid", m7.GetPID(id)},
                             {"version", m7.GetVersion(id)},
                             {"homeTransponders", transponders}});
    }
    return operators;
}

} // namespace

Json LinkageFields(const TCDescLinkage& d, const TextDecoder&)
{
    const unsigned int type = d.LinkageType();
    Json out = {{"linkageType", Hex(type, 2)},
                {"linkageName", LinkageTypeName(type)},
                {"transportStreamId", d.TransportStreamId()},
                {"originalNetworkId", d.OriginalNetworkId()},
                {"serviceId", d.ServiceId()},
                {"privateDataSpecifier", Hex(d.GetPDSD(), 8)}};
    if (type == 0x08) {
        out["handOverType"] = d.HandOverType();
        out["originType"] = d.OriginType();
        out["networkId"] = d.NetworkId();
        out["initialServiceId"] = d.InitialServiceId();
    } else if (type == 0x09) {
        Json ouis = Json::array();
        for (int i = 0; i < d.NumOfSSULinkLoop(); ++i) {
            const CSSULinkLoop* loop = d.SSULinkLoop(static_cast<unsigned>(i));
            ouis.push_back({{"oui", Hex(loop->OUI(), 6)},
                            {"selector", HexOrNull(loop->SelectorLength(),
                                                   [&](char* b, int* s) { return loop->SelectorByte(b, s); })}});
        }
        out["ouis"] = ouis;
    } else if (type == 0x0A) {
        out["tableType"] = d.TableType();
    } else if (type == 0x0D) {
        out["targetEventId"] = d.TargetId();
        out["simulcast"] = d.Simulcast() != 0;
    } else if (type >= 0x0E && type <= 0x1F) {
        out["targets"] = ExtendedEventTargets(d);
    } else if (type == 0x85) {
        out["lcnTablePid"] = d.LCNTablePID();
    } else if (const M7HomeTPLinkageData* m7 = d.M7HomeTPData()) {
        out["operators"] = HomeTransponders(*m7);
    }
    if (d.NumOfPrivateDataByte() > 0)
        out["privateData"] =
            HexOrNull(d.NumOfPrivateDataByte(), [&](char* b, int* s) { return d.PrivateDataByte(b, s); });
    return out;
}

Json DataBroadcastFields(const TCDescDataBroadcast& d, const TextDecoder& text)
{
    const std::vector<unsigned char> chars =
        Copied(d.TextLength(), [&](char* b, int* s) { return d.TextChar(b, s); });
    return {{"dataBroadcastId", Hex(d.DataBroadcastId(), 4)},
            {"componentTag", d.ComponentTag()},
            {"selector", HexOrNull(d.SelectorLength(), [&](char* b, int* s) { return d.SelectorByte(b, s); })},
            {"language", d.Language() ? Json(CodeText(d.Language())) : Json(nullptr)},
            {"text", text.Decode(chars.data(), chars.size())}};
}

Json DataBroadcastIdFields(const TCDescDataBroadcastId& d, const TextDecoder&)
{
    Json out = {{"dataBroadcastId", Hex(d.DataBroadcastId(), 4)}};
    if (d.DataBroadcastId() != TCDescDataBroadcastId::kSystemSoftwareUpdate) {
        out["idSelector"] =
            HexOrNull(d.NumOfIDSelectorByte(), [&](char* b, int* s) { return d.IDSelectorByte(b, s); });
        return out;
    }
    Json ouis = Json::array();
    for (int i = 0; i < d.NumOfSSUInfoLoop(); ++i) {
        const CSSUInfoLoop* loop = d.SSUInfoLoop(static_cast<unsigned>(i));
        ouis.push_back({{"oui", Hex(loop->OUI(), 6)},
                        {"updateType", loop->UpdateType()},
                        {"updateVersioningFlag", loop->UpdateVersioningFlag() != 0},
                        {"updateVersion", loop->UpdateVersion()},
                        {"selector", HexOrNull(loop->SelectorLength(),
                                               [&](char* b, int* s) { return loop->SelectorByte(b, s); })}});
    }
    out["ouis"] = ouis;
    out["privateData"] =
        HexOrNull(d.NumOfPrivateDataByte(), [&](char* b, int* s) { return d.PrivateDataByte(b, s); });
    return out;
}

Json SSULocationFields(const TCDescSSULocation& d, const TextDecoder&)
{
    return {{"dataBroadcastId", Hex(d.DataBroadcastId(), 4)},
            {"associationTag", d.AssociationTag()},
            {"privateData",
             HexOrNull(d.NumOfPrivateDataByte(), [&](char* b, int* s) { return d.PrivateDataByte(b, s); })}};
}

Json CAFields(const TCDescCA& d, const TextDecoder&)
{
    return {{"caSystemId", Hex(d.CASystemId(), 4)},
            {"caPid", d.CAPid()},
            {"privateData", d.PrivateDataLength() > 0
                                ? Json(HexBytes(d.PrivateData(), static_cast<size_t>(d.PrivateDataLength())))
                                : Json(nullptr)}};
}

} // namespace zuminspect
