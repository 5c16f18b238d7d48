// The IP service list over arbitrary text. Only the three exceptions of the
// property tree may leave the parser; anything else escapes and fails.

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

#include <boost/property_tree/exceptions.hpp>
#include <boost/property_tree/xml_parser.hpp>

#include "osdt/OSDTParser.h"

namespace {

// Touches every record, so that a bad one shows under the sanitizers.
size_t Walk(const OSDT::TCOSDTParser::ServiceList& services)
{
    size_t total = 0;
    for (const OSDT::TSIPService& s : services) {
        total += s.uniqueId.serviceName.size() + s.uniqueId.domainName.size() + s.lcn.lcn;
        for (const OSDT::TSServiceLocation& l : s.serviceLocations) {
            for (const OSDT::TSDRMControlInformation& d : l.drmControlInformation)
                total += d.drmGenericData.size() + d.drmPrivateData.size() + d.doNotRecord;
            total += l.contentAttributes.audioName.size() + l.uriBasedLocation.uri.size();
        }
        for (const OSDT::TSRegionList& r : s.targetRegions.regionLists)
            for (const OSDT::TSPrimaryRegion& p : r.primaryRegions)
                total += p.regions.size() + p.subregions.size();
        for (const auto& name : s.serviceNames)
            total += name.first.size() + name.second.size();
    }
    return total;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    OSDT::TCOSDTParser parser;
    try {
        // Both entries, the second over a parser that already holds a list.
        parser.Parse(text);
        std::istringstream stream(text);
        parser.Parse(stream);
    } catch (const boost::property_tree::ptree_bad_path&) {
    } catch (const boost::property_tree::ptree_bad_data&) {
    } catch (const boost::property_tree::xml_parser::xml_parser_error&) {
    }
    volatile size_t sink = Walk(parser.GetOSDT());
    (void)sink;
    return 0;
}
