#include "inspect/OsdtView.h"

#include <fstream>

#include <boost/property_tree/exceptions.hpp>
#include <boost/property_tree/xml_parser.hpp>

#include "inspect/Renderers.h"

namespace zuminspect {

namespace {

Json Strings(const std::list<std::string>& list)
{
    Json array = Json::array();
    for (const std::string& s : list)
        array.push_back(s);
    return array;
}

Json Drm(const OSDT::TSDRMControlInformation& d)
{
    return {{"drmSystemId", d.drmSystemId},         {"drmContentId", d.drmContentId},
            {"rightsIssuerUrl", d.rightsIssuerUrl}, {"silentRightsUrl", d.silentRightsUrl},
            {"previewRightsUrl", d.previewRightsUrl}, {"doNotRecord", d.doNotRecord},
            {"doNotTimeShift", d.doNotTimeShift},   {"drmGenericData", d.drmGenericData},
            {"drmPrivateData", d.drmPrivateData}};
}

Json Location(const OSDT::TSServiceLocation& l)
{
    Json drm = Json::array();
    for (const OSDT::TSDRMControlInformation& d : l.drmControlInformation)
        drm.push_back(Drm(d));
    const OSDT::TSContentAttributes& c = l.contentAttributes;
    return {{"drmControlInformation", drm},
            {"contentAttributes",
             {{"audioName", c.audioName}, {"audioHref", c.audioHref}, {"audioNumOfChannels", c.audioNumOfChannels},
              {"videoName", c.videoName}, {"videoHref", c.videoHref}}},
            {"uriBasedLocation", {{"contentType", l.uriBasedLocation.contentType}, {"uri", l.uriBasedLocation.uri}}}};
}

Json TargetRegions(const OSDT::TSTargetRegions& t)
{
    Json lists = Json::array();
    for (const OSDT::TSRegionList& r : t.regionLists) {
        Json primary = Json::array();
        for (const OSDT::TSPrimaryRegion& p : r.primaryRegions)
            primary.push_back({{"regions", Strings(p.regions)}, {"subregions", Strings(p.subregions)}});
        lists.push_back({{"countryCodes", r.countryCodes}, {"primaryRegions", primary}});
    }
    return {{"regionLists", lists}, {"accessibleOutOfRegion", t.accessibleOutOfRegion}};
}

Json Service(const OSDT::TSIPService& s)
{
    Json locations = Json::array();
    for (const OSDT::TSServiceLocation& l : s.serviceLocations)
        locations.push_back(Location(l));
    Json names = Json::object();
    for (const auto& name : s.serviceNames)
        names[name.first] = name.second;
    return {{"uniqueId", {{"serviceName", s.uniqueId.serviceName}, {"domainName", s.uniqueId.domainName}}},
            {"lcn", {{"lcn", s.lcn.lcn}, {"selectable", s.lcn.selectable}}},
            {"serviceNames", names},
            {"serviceLocations", locations},
            {"targetRegions", TargetRegions(s.targetRegions)}};
}

} // namespace

Json OsdtModel(const std::string& file, const OSDT::TCOSDTParser::ServiceList& services)
{
    Json list = Json::array();
    for (const OSDT::TSIPService& s : services)
        list.push_back(Service(s));
    return {{"input", {{"kind", "IP service list"}, {"file", file}}}, {"services", list}};
}

void RenderOsdtTree(const Json& model, std::ostream& out)
{
    const Json& services = model["services"];
    out << "IP service list  " << model["input"]["file"].get<std::string>() << ", " << services.size()
        << " services (TCOSDTParser)\n";
    for (const Json& s : services)
        RenderObject("service " + s["uniqueId"]["serviceName"].dump(-1, ' ', false, Json::error_handler_t::replace), s, 1, out);
}

int InspectOsdt(const std::string& file, bool json, std::ostream& out, std::ostream& err)
{
    std::ifstream in(file, std::ios::binary);
    if (!in) {
        err << "zum-inspect: " << file << ": cannot open\n";
        return 1;
    }
    OSDT::TCOSDTParser parser;
    try {
        parser.Parse(in);
    } catch (const boost::property_tree::ptree_error& e) {
        // Any of the three the parser lets through: a missing part, a bad value, bad XML.
        err << "zum-inspect: " << file << ": " << e.what() << '\n';
        return 1;
    }
    const Json model = OsdtModel(file, parser.GetOSDT());
    if (json)
        RenderJson(model, out);
    else
        RenderOsdtTree(model, out);
    return out.flush() ? 0 : 1;
}

} // namespace zuminspect
