#include "inspect/OperatorsView.h"

#include <list>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include <zum-platform/UnicodeConverter.h>

#include "dvb/DVBSGTParser.h"
#include "inspect/Describers.h"
#include "inspect/Renderers.h"
#include "operators/DescAstraServiceListName.h"
#include "operators/DescCIPlusService.h"
#include "operators/DescDSmartIdentifier.h"
#include "operators/DescDigiturkServiceTheme.h"
#include "operators/DescDishTVGenre.h"
#include "operators/DescGTPLGenreList.h"
#include "operators/DescMRP.h"
#include "operators/DescTelekomGrid.h"
#include "operators/DescTricolorRegionName.h"
#include "operators/DescUKDTTServiceAttribute.h"

namespace zuminspect {

namespace {

constexpr int kServiceListNameTag = 0x88;

// A text through a copy into a buffer of 255 bytes (the largest a descriptor holds).
template <class Copy>
std::string Copied(const TextDecoder& text, Copy copy)
{
    unsigned char buffer[255];
    unsigned char size = sizeof buffer;
    if (!copy(buffer, size))
        size = 0;
    return text.Decode(buffer, size);
}

std::string Bytes(const std::vector<unsigned char>& bytes, const TextDecoder& text)
{
    return text.Decode(bytes.data(), bytes.size());
}

Json ServiceFields(const TCDescCIPlusService& d, const TextDecoder& text)
{
    return {{"serviceId", d.ServiceId()},
            {"serviceType", d.ServiceType()},
            {"visible", d.VisibleServiceFlag()},
            {"selectable", d.SelectableServiceFlag()},
            {"logicalChannelNumber", d.LogicalChannelNumber()},
            {"providerName", Copied(text, [&d](unsigned char* b, unsigned char& s) { return d.ServiceProviderName(b, s); })},
            {"serviceName", Copied(text, [&d](unsigned char* b, unsigned char& s) { return d.ServiceName(b, s); })}};
}

} // namespace

// ---- the SGT ---------------------------------------------------------------

Json DescribeSgt(const TCDVBSGTParser* sgt, const TextDecoder& text)
{
    if (sgt == nullptr)
        return nullptr;
    Json lists = Json::array();
    for (unsigned id = 0; id <= 0xFFFF; ++id) {
        const TCDVBSGTInstance* list = sgt->Instance(static_cast<unsigned short>(id));
        if (list == nullptr)
            continue;
        Json name = nullptr;
        Json language = nullptr;
        if (const auto* n = dynamic_cast<const TCDescAstraServiceListName*>(list->Descriptor(kServiceListNameTag, 0))) {
            TCUnicodeConverter converter{ZUMHandle()};
            ELanguageCode code = 0;
            name = Utf16ToUtf8(n->GetName(converter, code));
            language = CodeText(code);
        }
        Json services = Json::array();
        for (int i = 0; list->Service(i) != nullptr; ++i) {
            const TCDVBSGTItemService& s = *list->Service(i);
            services.push_back({{"channel", s.LogicalChannelNumber()},
                                {"serviceId", s.ServiceId()},
                                {"transportStreamId", s.TransportStreamId()},
                                {"originalNetworkId", s.OriginalNetworkId()},
                                {"visible", s.VisibleServiceFlag()},
                                {"new", s.NewServiceFlag()},
                                {"genre", s.GenreCode()},
                                {"descriptors", DescribeLoop(s, text)}});
        }
        lists.push_back({{"id", id},
                         {"name", name},
                         {"language", language},
                         {"named", list->ServiceListValid()},
                         {"complete", list->IsValid()},
                         {"descriptors", DescribeLoop(*list, text)},
                         {"services", services}});
    }
    return {{"complete", sgt->AllSubtablesReceived()}, {"lists", lists}};
}

void RenderSgtTree(const Json& sgt, std::ostream& out)
{
    if (sgt.is_null())
        return;
    out << "SGT  Astra service lists: " << sgt["lists"].size() << '\n';
    for (const Json& list : sgt["lists"]) {
        const std::string name = list["name"].is_null() ? "(no name)" : "\"" + list["name"].get<std::string>() + "\"";
        out << "  list " << list["id"].get<unsigned>() << " " << name
            << (list["complete"].get<bool>() ? "" : " (incomplete)") << '\n';
        for (const Json& s : list["services"]) {
            Json fields = s;
            fields.erase("channel");
            RenderObject("channel " + std::to_string(s["channel"].get<unsigned>()), fields, 2, out);
        }
    }
}

// ---- descriptors -----------------------------------------------------------

Json DescribeAstraServiceListName(const TCDescAstraServiceListName& d, const TextDecoder&)
{
    TCUnicodeConverter converter{ZUMHandle()};
    ELanguageCode code = 0;
    const std::string name = Utf16ToUtf8(d.GetName(converter, code));
    return {{"language", CodeText(code)}, {"name", name}};
}

Json DescribeAstraBouquetList(const TCDescAstraBouquetList& d, const TextDecoder& text)
{
    // Bouquets hands out the names it keeps; a clone serves this const view.
    std::unique_ptr<TCBaseDesc> fork(d.Fork());
    std::list<unsigned char*> names;
    Json list = Json::array();
    if (static_cast<TCDescAstraBouquetList*>(fork.get())->Bouquets(names))
        for (unsigned char* n : names)
            list.push_back(text.Decode(n, std::char_traits<char>::length(reinterpret_cast<char*>(n))));
    return {{"bouquets", list}};
}

Json DescribeAstraVirtualServiceId(const TCDescAstraVirtualServiceId& d, const TextDecoder&)
{
    unsigned short id = 0;
    d.VirtualServiceId(id);
    return {{"virtualServiceId", id}};
}

Json DescribeCIPlusContentLabel(const TCDescCIPlusContentLabel& d, const TextDecoder& text)
{
    return {{"firstByte", d.FirstByte()},
            {"secondByte", d.SecondByte()},
            {"language", d.Language() == 0xFFFFFFFF ? Json(nullptr) : Json(CodeText(d.Language()))},
            {"label", Copied(text, [&d](unsigned char* b, unsigned char& s) { return d.ContentLabel(b, s); })}};
}

Json DescribeCIPlusProtection(const TCDescCIPlusProtection& d, const TextDecoder&)
{
    return {{"freeCiMode", d.GetFreeCiModeFlag()},
            {"matchBrand", d.GetMatchBrandFlag()},
            {"brands", d.GetCiCamBrandIdentifier()},
            {"privateData", d.GetPrivateData()}};
}

Json DescribeCIPlusService(const TCDescCIPlusService& d, const TextDecoder& text)
{
    return ServiceFields(d, text);
}

Json DescribeCIPlusAdvancedService(const TCDescCIPlusAdvancedService& d, const TextDecoder& text)
{
    Json fields = ServiceFields(d, text);
    Json components = Json::array();
    for (const auto& c : d.Components())
        components.push_back({{"streamContent", c.streamContent},
                              {"streamContentExtension", c.streamContentExtension},
                              {"componentType", c.componentType}});
    fields["components"] = components;
    return fields;
}

Json DescribeCICAMVirtualChannel(const TCDescCICAMVirtualChannel& d, const TextDecoder& text)
{
    return {{"logicalChannelNumber", d.LogicalChannelNumber()},
            {"providerName", Bytes(d.ServiceProviderName(), text)},
            {"serviceName", Bytes(d.ServiceName(), text)},
            {"eventInformation", Bytes(d.EventInformation(), text)},
            {"appDomainIdentifier", Bytes(d.AppDomainIdentifier(), text)}};
}

Json DescribeDSmartIdentifier(const TCDescDSmartIdentifier& d, const TextDecoder&)
{
    std::vector<TCDescDSmartIdentifier::TSIdentifierInfo> list;
    d.GetIdentifierInfoList(list);
    Json out = Json::array();
    for (const auto& i : list)
        out.push_back({{"type", i.type}, {"id", i.id}, {"data", i.data}});
    return {{"identifiers", out}};
}

Json DescribeDSmartSatelliteDelivery(const TCDescDSmartSatelliteDeliverySystem& d, const TextDecoder&)
{
    return {{"frequencyKHz", d.Frequency()},
            {"symbolRate", d.SymbolRate()},
            {"orbitalPosition", d.OrbitalPosition()},
            {"westEast", d.WestEastFlag()},
            {"polarization", d.Polarization()},
            {"modulation", d.Modulation()},
            {"fecInner", d.FecInner()},
            {"privateValue", d.PrivateValue()}};
}

Json DescribeDigiturkServiceTheme(const TCDescDigiturkServiceTheme& d, const TextDecoder&)
{
    return {{"theme", static_cast<int>(d.Theme())}};
}

Json DescribeDishTVGenre(const TCDescDishTVGenre& d, const TextDecoder&)
{
    return {{"genres", d.Genres()}};
}

Json DescribeDishTVSVL(const TCDescDishTVSVL& d, const TextDecoder&)
{
    return {{"version", d.GetVersion()}};
}

Json DescribeGTPLGenreList(const TCDescGTPLGenreList& d, const TextDecoder& text)
{
    Json genres = Json::array();
    for (const auto& g : d.GetGenreMap())
        genres.push_back({{"id", g.first}, {"name", text.Decode(g.second.name, g.second.nameLength)},
                          {"trailing", g.second.trailing}});
    return {{"genres", genres}};
}

Json DescribeGTPLGenreOfService(const TCDescGTPLGenreOfService& d, const TextDecoder&)
{
    return {{"genres", d.GetGenreListOfService()}};
}

Json DescribeMRP(const TCDescMRP& d, const TextDecoder&)
{
    Json price = d.Price();
    if (d.Price() == TCDescMRP::kNoPrice)
        price = nullptr;
    else if (d.Price() == TCDescMRP::kFree)
        price = "free";
    return {{"specifier", Hex(d.PrivateDataSpecifier(), 8)}, {"priceHundredths", price}};
}

Json DescribeTelekomGrid(const TCDescTelekomGrid& d, const TextDecoder&)
{
    std::set<unsigned short> ids;
    d.GetServiceIDSet(ids);
    Json grid = Json::array();
    for (unsigned short id : ids) {
        std::list<unsigned short> positions;
        d.GetGridPositionList(id, positions);
        grid.push_back({{"serviceId", id}, {"positions", positions}});
    }
    return {{"entries", d.GridSize()}, {"grid", grid}};
}

Json DescribeTricolorBouquetList(const TCDescTricolorBouquetList& d, const TextDecoder&)
{
    Json list = Json::array();
    TCDescTricolorBouquetList::Bouquet b;
    for (int i = 0; d.GetBouquet(i, b); ++i)
        list.push_back({{"firstId", b.firstId}, {"secondId", b.secondId}, {"serviceId", b.serviceId}});
    return {{"bouquets", list}};
}

Json DescribeTricolorRegionName(const TCDescTricolorRegionName& d, const TextDecoder&)
{
    Json list = Json::array();
    TCDescTricolorRegionName::RegionData r;
    for (int i = 0; d.GetRegionData(i, r); ++i)
        list.push_back({{"language", CodeText(r.language)}, {"key", r.key}, {"name", Utf16ToUtf8(r.name)}});
    return {{"regions", list}};
}

Json DescribeTricolorListType(const TCDescTricolorListType& d, const TextDecoder&)
{
    Json types = Json::array();
    for (const auto& t : d.GetListTypes())
        types.push_back({{"listType", t.first}, {"codes", t.second}});
    return {{"listTypes", types}};
}

Json DescribeUKDTTServiceAttribute(const TCDescUKDTTServiceAttribute& d, const TextDecoder&)
{
    // The services as the raw copy lists them, each once.
    Json services = Json::array();
    std::set<unsigned short> seen;
    int size = 257;
    unsigned char raw[257];
    if (d.GetDescriptor(raw, &size))
        for (int at = 2; at + 3 <= size; at += 3) {
            const unsigned short id = static_cast<unsigned short>((raw[at] << 8) | raw[at + 1]);
            if (seen.insert(id).second)
                services.push_back({{"serviceId", id},
                                    {"numericSelection", d.NumericSelectionFlag(id)},
                                    {"visible", d.VisibleServiceFlag(id)}});
        }
    return {{"count", d.NumOfDescLoop()}, {"services", services}};
}

} // namespace zuminspect
