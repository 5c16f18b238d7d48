#include "inspect/TargetingView.h"

#include <cstring>
#include <list>
#include <string>
#include <vector>

#include "dvb/DVBRCTParser.h"
#include "dvb/DescCRID.h"
#include "dvb/DescImageIcon.h"
#include "dvb/DescSatelliteDeliverySystem.h"
#include "dvb/DescServiceProminence.h"
#include "dvb/DescTargetRegion.h"
#include "inspect/Describers.h"
#include "inspect/Renderers.h"
#include "program/RelatedContentLink.h"

namespace zuminspect {

namespace {

Json Bytes(const std::vector<unsigned char>& bytes)
{
    return bytes.empty() ? Json(nullptr) : Json(HexBytes(bytes.data(), bytes.size()));
}

Json ImageIcon(const TCDescImageIcon& d)
{
    Json out = {{"descriptorNumber", d.DescriptorNumber()},
                {"lastDescriptorNumber", d.LastDescriptorNumber()},
                {"iconId", d.IconId()}};
    if (d.IconId() == 0 || d.IconId() == 0xFF)
        return out;
    out["transportMode"] = d.TransportMode();
    if (d.PositionFlag())
        out["position"] = {{"coordinateSystem", d.CoordinateSystem()},
                           {"horizontalOrigin", d.HorizontalOrigin()},
                           {"verticalOrigin", d.VerticalOrigin()}};
    out["iconType"] = d.IconType();
    out["iconDataLength"] = d.IconDataLength();
    if (d.TransportMode() == 1) {
        out["url"] = d.URL();
        std::string path;
        out["path"] = d.GetPathSegment(path) ? Json(path) : Json(nullptr);
        unsigned int carousel = 0;
        unsigned short first = 0, second = 0, third = 0;
        if (d.GetCarouselInfo(carousel, first, second, third))
            out["locator"] = {{"originalNetworkId", first},
                              {"transportStreamId", second},
                              {"serviceId", third},
                              {"carouselId", carousel}};
    }
    return out;
}

Json Crids(const TCDescCRID& d)
{
    Json entries = Json::array();
    for (int i = 0; i < d.NumOfCRID(); ++i) {
        const unsigned index = static_cast<unsigned>(i);
        unsigned char type = 0;
        d.GetType(type, index);
        Json entry = {{"type", type}};
        std::string crid;
        unsigned short ref = 0;
        if (d.GetCRIDRef(ref, index))
            entry["reference"] = ref;
        else if (d.GetCRID(crid, index))
            entry["crid"] = crid;
        entries.push_back(entry);
    }
    return {{"valid", d.IsValid()}, {"privateDataSpecifier", Hex(d.PrivateDataSpecifier(), 8)}, {"crids", entries}};
}

Json NetworkChanges(const TCDescNetworkChangeNotify& d)
{
    Json cells = Json::array();
    TCDescNetworkChangeNotify::_TTCellData cell;
    for (unsigned i = 0; d.GetCellData(i, cell); ++i) {
        Json changes = Json::array();
        for (const auto& c : cell.changes) {
            Json change = {{"networkChangeId", c.networkChangeId},
                           {"networkChangeVersion", c.networkChangeVersion},
                           {"startTime", c.startTime},
                           {"changeDuration", c.changeDuration},
                           {"receiverCategory", c.receiverCategory},
                           {"changeType", c.changeType},
                           {"messageId", c.messageId}};
            if (c.invariantTSPresent)
                change["invariantTS"] = {{"transportStreamId", c.invariantTSTransportStreamId},
                                         {"originalNetworkId", c.invariantTSOriginalNetworkId}};
            changes.push_back(change);
        }
        cells.push_back({{"cellId", cell.cellId}, {"changes", changes}});
    }
    return {{"cells", cells}};
}

Json Region(unsigned int country, unsigned int depth, unsigned char primary, unsigned char secondary,
            unsigned short tertiary)
{
    Json out = {{"country", CodeText(country)}, {"depth", depth}, {"primary", primary}};
    if (depth >= 2)
        out["secondary"] = secondary;
    if (depth >= 3)
        out["tertiary"] = tertiary;
    return out;
}

Json TargetRegions(const TCDescTargetRegion& d)
{
    Json regions = Json::array();
    unsigned int country = 0, depth = 0;
    unsigned char primary = 0, secondary = 0;
    unsigned short tertiary = 0;
    for (unsigned i = 0; d.GetRegion(i, country, depth, primary, secondary, tertiary); ++i)
        regions.push_back(Region(country, depth, primary, secondary, tertiary));
    return {{"valid", d.IsValid()}, {"regions", regions}};
}

Json TargetRegionNames(const TCDescTargetRegionName& d, const TextDecoder& text)
{
    Json regions = Json::array();
    unsigned int country = 0, depth = 0;
    unsigned char primary = 0, secondary = 0;
    unsigned short tertiary = 0;
    unsigned char name[64];
    unsigned int size = sizeof name;
    for (unsigned i = 0; d.GetRegion(i, name, size, country, depth, primary, secondary, tertiary); ++i) {
        Json region = Region(country, depth, primary, secondary, tertiary);
        region["name"] = text.Decode(name, size);
        regions.push_back(region);
        size = sizeof name;
    }
    return {{"valid", d.IsValid()}, {"language", CodeText(d.Language())}, {"regions", regions}};
}

Json Prominence(const TCDescServiceProminence& d)
{
    Json sogis = Json::array();
    for (const auto& entry : d.SOGIs()) {
        const TCDescServiceProminence::TSSOGI& s = entry.second;
        Json regions = Json::array();
        for (const auto& r : s.targetRegions) {
            Json region = Region(r.countryCode, r.regionDepth, r.primaryRegionCode, r.secondaryRegionCode,
                                 r.tertiaryRegionCode);
            if (r.countryCode == 0)
                region["country"] = nullptr;
            regions.push_back(region);
        }
        sogis.push_back({{"serviceId", s.serviceId},
                         {"sogiFlag", s.sogiFlag},
                         {"sogiPriority", s.sogiPriority},
                         {"targetRegions", regions}});
    }
    return {{"sogis", sogis}, {"privateData", Bytes(d.PrivateData())}};
}

Json Relocated(const TCDescRelocatedTS& d)
{
    TCDescRelocatedTS::CableDeliveryMap info;
    d.GetCableDeliveryInfo(info);
    Json entries = Json::array();
    for (const auto& e : info)
        entries.push_back({{"firstId", e.first.first},
                           {"secondId", e.first.second},
                           {"frequency", e.second->Frequency()},
                           {"symbolRate", e.second->SymbolRate()},
                           {"modulation", e.second->ModulationCode()}});
    return {{"transports", entries}};
}

// The raw UTF-16 bytes of a link's text as UTF-8.
std::string LinkText(const std::string& raw)
{
    std::basic_string<unsigned short> utf16(raw.size() / 2, 0);
    std::memcpy(&utf16[0], raw.data(), utf16.size() * 2);
    return Utf16ToUtf8(utf16);
}

template <class Get>
Json LinkTexts(Get get)
{
    Json texts = Json::array();
    std::string raw;
    for (unsigned i = 0; get(i, raw); ++i)
        texts.push_back(LinkText(raw));
    return texts;
}

Json Link(const TCRelatedContentLink& link, const TextDecoder& text)
{
    Json out = {{"linkType", link.LinkType()}};
    std::string uri;
    if (link.GetInternalURI(uri))
        out["uri"] = uri;
    out["howRelated"] = link.HowRelated();
    out["iconId"] = link.IconId();
    out["defaultIcon"] = link.DefaultIcon();
    out["promotionalTexts"] =
        LinkTexts([&](unsigned i, std::string& s) { return link.GetInternalPromotionalText(i, s); });
    out["eventNames"] = LinkTexts([&](unsigned i, std::string& s) { return link.GetInternalEventName(i, s); });
    out["descriptors"] = DescribeLoop(link, text);
    return out;
}

} // namespace

Json DescribeTargeting(const TCBaseDesc& desc, const TextDecoder& text)
{
    if (auto* d = dynamic_cast<const TCDescImageIcon*>(&desc))
        return ImageIcon(*d);
    if (auto* d = dynamic_cast<const TCDescURILinkage*>(&desc))
        return {{"uriLinkageType", d->GetURILinkageType()},
                {"uri", d->GetURIString()},
                {"minPollingInterval", d->GetMinPollingInterval()},
                {"privateData", Bytes(d->GetPrivateData())}};
    if (auto* d = dynamic_cast<const TCDescCRID*>(&desc))
        return Crids(*d);
    if (auto* d = dynamic_cast<const TCDescDefaultAuthority*>(&desc)) {
        std::string authority;
        return {{"authority", d->GetAuthority(authority) ? Json(authority) : Json(nullptr)}};
    }
    if (auto* d = dynamic_cast<const TCDescContentIdentifier*>(&desc)) {
        char id[256];
        unsigned char size = 255;
        const bool has = d->ContentIdentifier(id, &size);
        return {{"type", d->Type()},
                {"id", has ? Json(HexBytes(reinterpret_cast<unsigned char*>(id), size)) : Json(nullptr)}};
    }
    if (auto* d = dynamic_cast<const TCDescNetworkChangeNotify*>(&desc))
        return NetworkChanges(*d);
    if (auto* d = dynamic_cast<const TCDescMessage*>(&desc)) {
        unsigned char buffer[256];
        unsigned short size = sizeof buffer;
        const bool has = d->TextChar(buffer, size);
        return {{"messageId", d->MessageId()},
                {"language", CodeText(d->Language())},
                {"text", has ? text.Decode(buffer, size) : std::string()}};
    }
    if (auto* d = dynamic_cast<const TCDescTargetRegion*>(&desc))
        return TargetRegions(*d);
    if (auto* d = dynamic_cast<const TCDescTargetRegionName*>(&desc))
        return TargetRegionNames(*d, text);
    if (auto* d = dynamic_cast<const TCDescServiceProminence*>(&desc))
        return Prominence(*d);
    if (auto* d = dynamic_cast<const TCDescRelocatedTS*>(&desc))
        return Relocated(*d);
    if (auto* d = dynamic_cast<const TCDescSOProperties*>(&desc))
        return {{"value", d->Value()}, {"first", d->FirstText()}, {"second", d->SecondText()}};
    return nullptr;
}

Json DescribeRct(const TCDVBRCTParser* rct, const TextDecoder& text)
{
    if (rct == nullptr)
        return nullptr;
    Json tables = Json::array();
    for (unsigned i = 0; const TCDVBRCTInstance* instance = rct->RCTInstanceOfIndex(i); ++i) {
        std::list<TCRelatedContentLink*> links;
        instance->GetInternalRelatedContentLinks(links);
        Json linkList = Json::array();
        for (const TCRelatedContentLink* link : links)
            linkList.push_back(Link(*link, text));
        tables.push_back({{"id", instance->Id()},
                          {"complete", instance->IsValid()},
                          {"links", linkList},
                          {"descriptors", DescribeLoop(*instance, text)}});
    }
    return {{"tables", tables}};
}

void RenderRctTree(const Json& rct, std::ostream& out)
{
    if (rct.is_null())
        return;
    out << "RCT  related content tables: " << rct["tables"].size() << '\n';
    for (const Json& table : rct["tables"]) {
        out << "  table " << table["id"].get<unsigned>() << ", links: " << table["links"].size()
            << (table["complete"].get<bool>() ? "" : " (incomplete)") << '\n';
        for (const Json& link : table["links"]) {
            Json fields = link;
            fields.erase("descriptors");
            RenderObject("link", fields, 2, out);
            RenderDescriptors(link["descriptors"], 3, out);
        }
        RenderDescriptors(table["descriptors"], 2, out);
    }
}

} // namespace zuminspect
