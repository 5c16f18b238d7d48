#include "inspect/FreesatView.h"

#include <list>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "dvb/DVBFSatPostCodeParser.h"
#include "inspect/Names.h"
#include "operators/DescFSatGuidance.h"
#include "operators/DescFSatLinkage.h"
#include "operators/DescFSatLogicalChannel.h"
#include "operators/DescFSatRegionName.h"

namespace zuminspect {

namespace {

const unsigned int kEnglish = 0x656E67;

// The bytes of a descriptor's payload, for the walks over languages that no accessor lists.
std::vector<unsigned char> Payload(const TCBaseDesc& d)
{
    std::vector<unsigned char> raw(static_cast<size_t>(d.Length()));
    int size = static_cast<int>(raw.size());
    if (raw.size() < 2 || !d.GetDescriptor(raw.data(), &size) || size < 2)
        return {};
    return std::vector<unsigned char>(raw.begin() + 2, raw.begin() + size);
}

// Languages of a loop of (language 24 bits, length 8 bits, text) entries.
std::set<unsigned int> Languages(const unsigned char* p, size_t size)
{
    std::set<unsigned int> out;
    for (size_t at = 0; at + 4 <= size; at += 4u + p[at + 3])
        out.insert((static_cast<unsigned int>(p[at]) << 16) | (p[at + 1] << 8) | p[at + 2]);
    return out;
}

Json LogicalChannels(const TCDescFSatLogicalChannel& d)
{
    // The walks move read positions: they run on a clone of their own.
    const std::unique_ptr<TCBaseDesc> fork(d.Fork());
    auto* lcn = dynamic_cast<TCDescFSatLogicalChannel*>(fork.get());
    if (!lcn)
        return nullptr;
    std::list<unsigned short> regionIds;
    lcn->GetAvailableRegions(regionIds);
    Json regions = Json::array();
    std::map<unsigned short, unsigned short> services;
    for (unsigned short region : regionIds) {
        Json entries = Json::array();
        for (const _TTDescLCN* e = lcn->First(region); e; e = lcn->Next(region)) {
            services[e->serviceId] = e->freesatServiceId;
            entries.push_back({{"serviceId", e->serviceId},
                               {"channelNumber", e->channelNumber},
                               {"visible", e->visibleFlag != 0},
                               {"numericSelection", e->numericSelectionFlag != 0},
                               {"customisable", e->customisableFlag != 0}});
        }
        regions.push_back({{"region", region}, {"entries", entries}});
    }
    Json ids = Json::array();
    for (const auto& service : services)
        ids.push_back({{"serviceId", service.first}, {"freesatId", service.second}});
    return {{"services", ids}, {"regions", regions}};
}

Json RegionNames(const TCDescFSatRegionName& d, const TextDecoder& text)
{
    const std::vector<unsigned char> body = Payload(d);
    Json names = Json::array();
    unsigned char buffer[256];
    for (size_t at = 0; at + 6 <= body.size(); at += 6u + body[at + 5]) {
        const unsigned int region = (body[at] << 8) | body[at + 1];
        const unsigned int language = (body[at + 2] << 16) | (body[at + 3] << 8) | body[at + 4];
        unsigned int size = sizeof buffer;
        const int found = d.GetRegionName(region, language, buffer, size);
        names.push_back({{"region", region}, {"language", CodeText(language)},
                         {"name", found == 0 ? text.Decode(buffer, size) : std::string()}});
    }
    return {{"names", names}};
}

Json ShortServiceName(const TCDescFSatShortServiceName& d, const TextDecoder& text)
{
    const std::vector<unsigned char> body = Payload(d);
    Json names = Json::array();
    unsigned char buffer[256];
    for (unsigned int language : Languages(body.data(), body.size())) {
        unsigned short size = sizeof buffer;
        if (d.GetName(language, buffer, size) == 0)
            names.push_back({{"language", CodeText(language)}, {"name", text.Decode(buffer, size)}});
    }
    return {{"names", names}};
}

Json ServiceGroupName(const TCDescFSatServiceGroupName& d, const TextDecoder& text)
{
    Json groups = Json::array();
    unsigned char buffer[256];
    for (unsigned int i = 0; i < d.NumOfEntries(); ++i) {
        unsigned char type = 0;
        unsigned short groupId = 0;
        unsigned int size = sizeof buffer;
        d.GroupType(i, type);
        const int found = d.GetEntry(i, kEnglish, groupId, buffer, size);
        groups.push_back({{"groupType", type}, {"groupId", groupId},
                          {"name", found == 2 ? std::string() : text.Decode(buffer, size)}});
    }
    return {{"groups", groups}};
}

Json ServiceGroups(const TCDescFSatServiceGroup& d)
{
    Json groups = Json::array();
    TCDescFSatServiceGroup::ServiceGroup group;
    for (unsigned int i = 0; d.GetServiceGroup(i, group); ++i) {
        Json ids = Json::array();
        for (unsigned short id : group.freesatIds)
            ids.push_back(id);
        groups.push_back({{"groupId", group.groupId}, {"firstFlag", group.firstFlag},
                          {"secondFlag", group.secondFlag}, {"freesatIds", ids}});
    }
    return {{"groups", groups}};
}

Json Linkages(const TCDescFSatLinkage& d)
{
    Json out = Json::array();
    TCDescFSatLinkage::Linkage linkage;
    for (unsigned int i = 0; d.GetLinkage(i, linkage); ++i) {
        Json types = Json::array();
        for (unsigned int type : linkage.dataTypes)
            types.push_back(type);
        out.push_back({{"firstId", Hex(linkage.firstId, 4)}, {"secondId", Hex(linkage.secondId, 4)},
                       {"thirdId", Hex(linkage.thirdId, 4)}, {"dataTypes", types}});
    }
    return {{"linkages", out}};
}

Json Guidance(const IDescGuidance& d, const TextDecoder& text)
{
    unsigned char buffer[256];
    unsigned short size = sizeof buffer;
    const bool hasText = d.GetText(buffer, size);
    return {{"type", d.Type()}, {"language", CodeText(d.LanguageCode())},
            {"text", hasText ? text.Decode(buffer, size) : std::string()}};
}

Json Sizes(const std::map<unsigned short, unsigned int>& map)
{
    Json out = Json::array();
    for (const auto& entry : map)
        out.push_back({{"id", entry.first}, {"bytes", entry.second}});
    return out;
}

} // namespace

Json DescribeFreesat(const TCBaseDesc& desc, const TextDecoder& text)
{
    if (auto* d = dynamic_cast<const TCDescFSatLogicalChannel*>(&desc))
        return LogicalChannels(*d);
    if (auto* d = dynamic_cast<const TCDescFSatRegionName*>(&desc))
        return RegionNames(*d, text);
    if (auto* d = dynamic_cast<const TCDescFSatShortServiceName*>(&desc))
        return ShortServiceName(*d, text);
    if (auto* d = dynamic_cast<const TCDescFSatServiceGroupName*>(&desc))
        return ServiceGroupName(*d, text);
    if (auto* d = dynamic_cast<const TCDescFSatServiceGroup*>(&desc))
        return ServiceGroups(*d);
    if (auto* d = dynamic_cast<const TCDescFSatLinkage*>(&desc))
        return Linkages(*d);
    if (auto* d = dynamic_cast<const IDescGuidance*>(&desc)) {
        Json out = Guidance(*d, text);
        if (auto* dbook = dynamic_cast<const TCDescGuidance*>(&desc))
            out["guidanceMode"] = dbook->GuidanceMode();
        return out;
    }
    if (auto* d = dynamic_cast<const TCDescContentManagementBase*>(&desc))
        return {{"doNotScramble", d->DoNotScramble()},
                {"controlRemoteAccessOverInternet", d->ControlRemoteAccessOverInternet()},
                {"controlRemoteAccessOverInternetName", ControlRemoteAccessName(d->ControlRemoteAccessOverInternet())},
                {"doNotApplyRevocation", d->DoNotApplyRevocation()}};
    if (auto* d = dynamic_cast<const TCDescFSatTunnelledData*>(&desc)) {
        Json pairs = Json::array();
        unsigned int tag = 0;
        for (unsigned int type = 0; type < 256; ++type)
            if (d->ComponentTag(type, tag))
                pairs.push_back({{"dataType", type}, {"componentTag", Hex(tag, 2)}});
        return {{"entries", pairs}};
    }
    if (auto* d = dynamic_cast<const TCDescFSatAltTunnelledData*>(&desc)) {
        Json types = Json::array();
        for (unsigned int i = 0; i < d->NumOfEntries(); ++i)
            types.push_back(d->GetDataType(i));
        return {{"dataTypes", types}};
    }
    if (auto* d = dynamic_cast<const TCDescFSatInteractiveStorage*>(&desc)) {
        std::map<unsigned short, unsigned int> first, second;
        d->GetStorageAllocations(first, second);
        return {{"allocationUnit", d->AllocationUnit()}, {"first", Sizes(first)}, {"second", Sizes(second)}};
    }
    if (auto* d = dynamic_cast<const TCDescFSatInfoLocation*>(&desc)) {
        Json out = Json::array();
        for (unsigned int i = 0; i < d->NumOfEntries(); ++i) {
            const TCDescFSatInfoLocation::InfoLocation l = d->GetInfoLocation(i);
            out.push_back({{"firstId", Hex(l.firstId, 4)}, {"secondId", Hex(l.secondId, 4)},
                           {"thirdId", Hex(l.thirdId, 4)}});
        }
        return {{"locations", out}};
    }
    if (auto* d = dynamic_cast<const TCDescFSatInteractiveRestriction*>(&desc)) {
        std::list<unsigned short> services;
        d->GetRestrictedServices(services);
        Json ids = Json::array();
        for (unsigned short id : services)
            ids.push_back(Hex(id, 4));
        return {{"restrictedServices", ids}};
    }
    return nullptr;
}

Json FreesatNumbersByRegion(const IDescLogicalChannel* lcn, unsigned short serviceId)
{
    const auto* freesat = dynamic_cast<const TCDescFSatLogicalChannel*>(lcn);
    if (!freesat)
        return nullptr;
    std::list<unsigned short> regions;
    freesat->GetAvailableRegions(regions);
    Json numbers = Json::array();
    for (unsigned short region : regions) {
        std::list<_TTDescLCN> entries;
        freesat->LogicalChannelNumber(serviceId, region, entries);
        if (!entries.empty())
            numbers.push_back({{"region", region}, {"channelNumber", entries.front().channelNumber}});
    }
    return numbers;
}

void RenderFreesatPostCodesTree(const Json& postcodes, std::ostream& out)
{
    if (postcodes.is_null())
        return;
    const auto bytes = [](const Json& block) {
        return block["bytes"].is_null() ? std::string("incomplete") : std::to_string(block["bytes"].get<size_t>()) + " bytes";
    };
    out << "FREESAT POSTCODES  tree: " << bytes(postcodes["tree"]) << ", region keys: " << bytes(postcodes["regionKeys"])
        << '\n';
}

Json FreesatPostCodes(const TCDVBFSatPostCodeParser* postcodes)
{
    if (!postcodes)
        return nullptr;
    const auto block = [](const std::unique_ptr<std::vector<unsigned char>>& bytes) {
        return Json{{"bytes", bytes ? Json(bytes->size()) : Json(nullptr)}, {"complete", bytes != nullptr}};
    };
    return {{"tree", block(postcodes->GetPostCodeTreeTable())},
            {"regionKeys", block(postcodes->GetPostCodeRegionKeyTable())},
            {"valid", postcodes->IsValid()}};
}

} // namespace zuminspect
