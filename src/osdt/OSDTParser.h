#ifndef ZUM_OSDT_OSDTPARSER_H
#define ZUM_OSDT_OSDTPARSER_H

// IP service list: one XML document turned into plain records. Reading and the
// tree are Boost.PropertyTree's (header-only); its exceptions ptree_bad_path,
// ptree_bad_data and xml_parser_error leave Parse to the caller.

#include <cstdint>
#include <istream>
#include <list>
#include <map>
#include <string>
#include <utility>

#include <boost/property_tree/ptree.hpp>

#include "../core/Export.h"

namespace OSDT {

using ptree = boost::property_tree::ptree;

struct TSUniqueId {
    std::string serviceName;
    std::string domainName;
};

// Zero and not selectable for a service that names no channel number.
struct TSLcn {
    unsigned short lcn = 0;
    bool selectable = false;
};

struct TSAudioAttributes {
    std::string name;
    std::string href;
    unsigned int numOfChannels = 0;
};

struct TSVideoAttributes {
    std::string name;
    std::string href;
};

// The audio and the video side flat, audio first.
struct TSContentAttributes {
    std::string audioName;
    std::string audioHref;
    unsigned int audioNumOfChannels = 0;
    std::string videoName;
    std::string videoHref;
};

struct TSUriBasedLocation {
    std::string contentType;
    std::string uri;
};

struct TSDRMControlInformation {
    std::string drmSystemId;
    std::string drmContentId;
    std::string rightsIssuerUrl;
    std::string silentRightsUrl;
    std::string previewRightsUrl;
    bool doNotRecord = false;
    bool doNotTimeShift = false;
    std::string drmGenericData; // inner XML of the element
    std::string drmPrivateData; // inner XML of the element
};

struct TSServiceLocation {
    std::list<TSDRMControlInformation> drmControlInformation;
    TSContentAttributes contentAttributes;
    TSUriBasedLocation uriBasedLocation;
};

struct TSPrimaryRegion {
    std::list<std::string> regions;
    std::list<std::string> subregions;
};

struct TSRegionList {
    std::string countryCodes; // as written, not split
    std::list<TSPrimaryRegion> primaryRegions;
};

struct TSTargetRegions {
    std::list<TSRegionList> regionLists;
    bool accessibleOutOfRegion = true;
};

struct TSIPService {
    TSUniqueId uniqueId;
    std::list<TSServiceLocation> serviceLocations;
    TSLcn lcn;
    TSTargetRegions targetRegions;
    std::map<std::string, std::string> serviceNames; // language -> name, first of a language wins
};

// Each reads the property-tree node of the element it is named after.
ZUM_EXPORT TSIPService ParseIPService(const ptree& node);
ZUM_EXPORT TSUniqueId ParseUniqueId(const ptree& node);
ZUM_EXPORT TSServiceLocation ParseIPServiceLocation(const ptree& node);
ZUM_EXPORT TSDRMControlInformation ParseDRMControlInformation(const ptree& node);
ZUM_EXPORT TSContentAttributes ParseContentAttributes(const ptree& node);
ZUM_EXPORT TSAudioAttributes ParseAudioAttributes(const ptree& node);
ZUM_EXPORT TSVideoAttributes ParseVideoAttributes(const ptree& node);
ZUM_EXPORT TSUriBasedLocation ParseUriBasedLocation(const ptree& node);
ZUM_EXPORT TSLcn ParseLcn(const ptree& node);
ZUM_EXPORT TSTargetRegions ParseTargetRegions(const ptree& node);
ZUM_EXPORT TSRegionList ParseRegionList(const ptree& node);
ZUM_EXPORT TSPrimaryRegion ParsePrimaryRegion(const ptree& node);
// Language, then name.
ZUM_EXPORT std::pair<std::string, std::string> ParseServiceName(const ptree& node);

// True when `key`, without any namespace prefix, is the local name `name`.
ZUM_EXPORT bool matches(const std::string& key, const std::string& name);
// The element's content (text and child elements, not its own tag or
// attributes) written back as XML text on one line.
ZUM_EXPORT std::string xml_string(const ptree& node);

// More elements than this open at once end the read with xml_parser_error,
// before the recursive XML reader could run out of stack.
constexpr int kMaxElementDepth = 256;

class ZUM_EXPORT TCOSDTParser {
public:
    using ServiceList = std::list<TSIPService>;

    // Both return 1; any failure leaves by exception and keeps the former list.
    int32_t Parse(const std::string& document);
    int32_t Parse(std::istream& stream);

    // Valid until the next Parse or the end of the parser.
    const ServiceList& GetOSDT() const { return m_services; }

private:
    ServiceList m_services;
};

} // namespace OSDT

using OSDT::TCOSDTParser;

#endif
