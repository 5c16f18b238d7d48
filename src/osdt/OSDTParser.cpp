#include "OSDTParser.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <sstream>
#include <streambuf>

#include <boost/property_tree/xml_parser.hpp>

#include "../core/Log.h"

namespace OSDT {

namespace {

namespace xml = boost::property_tree::xml_parser;
using Tables = boost::property_tree::detail::rapidxml::internal::lookup_tables<0>;

constexpr char kAttributes[] = "<xmlattr>";

// The character classes of the XML reader itself, so that the depth probe
// below reads the text exactly as it does.
bool IsSpace(char c) { return Tables::lookup_whitespace[static_cast<unsigned char>(c)] != 0; }
bool IsNameChar(char c) { return Tables::lookup_node_name[static_cast<unsigned char>(c)] != 0; }
bool IsAttributeNameChar(char c) { return Tables::lookup_attribute_name[static_cast<unsigned char>(c)] != 0; }

const char* SkipSpace(const char* p)
{
    while (IsSpace(*p))
        ++p;
    return p;
}

const char* SkipName(const char* p)
{
    while (IsNameChar(*p))
        ++p;
    return p;
}

// Just behind the first `terminator` from p; null at the end of the text.
const char* SkipPast(const char* p, const char* terminator)
{
    const char* found = std::strstr(p, terminator);
    return found ? found + std::strlen(terminator) : nullptr;
}

const char* SkipDoctype(const char* p)
{
    while (*p != '>') {
        if (*p == '\0')
            return nullptr;
        if (*p++ != '[')
            continue;
        for (int brackets = 1; brackets > 0; ++p) {
            if (*p == '\0')
                return nullptr;
            brackets += *p == '[' ? 1 : *p == ']' ? -1 : 0;
        }
    }
    return p + 1;
}

// One node from just behind its '<': declaration, instruction, comment, CDATA,
// DOCTYPE or the opening tag of an element (`opened` when it has content).
// Null where the reader stops with an error.
const char* SkipNode(const char* p, bool& opened)
{
    opened = false;
    if (*p == '?')
        return SkipPast(p + 1, "?>");
    if (*p == '!') {
        if (p[1] == '-' && p[2] == '-')
            return SkipPast(p + 3, "-->");
        if (std::strncmp(p + 1, "[CDATA[", 7) == 0)
            return SkipPast(p + 8, "]]>");
        if (std::strncmp(p + 1, "DOCTYPE", 7) == 0 && IsSpace(p[8]))
            return SkipDoctype(p + 9);
        return SkipPast(p + 1, ">");
    }
    const char* name = p;
    p = SkipName(p);
    if (p == name)
        return nullptr;
    p = SkipSpace(p);
    while (IsAttributeNameChar(*p)) {
        while (IsAttributeNameChar(*p))
            ++p;
        p = SkipSpace(p);
        if (*p != '=')
            return nullptr;
        p = SkipSpace(p + 1);
        if (*p != '"' && *p != '\'')
            return nullptr;
        p = std::strchr(p + 1, *p);
        if (p == nullptr)
            return nullptr;
        p = SkipSpace(p + 1);
    }
    if (*p == '>') {
        opened = true;
        return p + 1;
    }
    return p[0] == '/' && p[1] == '>' ? p + 2 : nullptr;
}

// The XML reader descends one call level per open element, so an absurdly deep
// document would exhaust the stack. Walks the text as the reader does, building
// nothing, and answers the '<' of the element that first opens with `limit`
// others open; null when none does before the end or the reader's first error.
const char* FindTooDeep(const char* p, int limit)
{
    if (std::strncmp(p, "\xEF\xBB\xBF", 3) == 0)
        p += 3;
    int depth = 0;
    while (p != nullptr) {
        if (depth == 0) {
            p = SkipSpace(p);
            if (*p != '<')
                return nullptr;
        } else {
            p = std::strchr(p, '<');
            if (p == nullptr)
                return nullptr;
            if (p[1] == '/') {
                p = SkipSpace(SkipName(p + 2));
                if (*p != '>')
                    return nullptr;
                ++p;
                --depth;
                continue;
            }
        }
        const char* node = p;
        bool opened = false;
        p = SkipNode(p + 1, opened);
        if (opened && ++depth > limit)
            return node;
    }
    return nullptr;
}

// Reads the text in place, without a further copy.
class TextBuffer : public std::streambuf {
public:
    explicit TextBuffer(std::string& text) { setg(&text[0], &text[0], &text[0] + text.size()); }
};

// read_xml with flags 0 and no file name, refusing documents nested too deep.
void ReadDocument(std::istream& stream, ptree& document)
{
    stream.unsetf(std::ios::skipws);
    std::string text{std::istreambuf_iterator<char>(stream.rdbuf()), std::istreambuf_iterator<char>()};
    if (!stream.good())
        BOOST_PROPERTY_TREE_THROW(xml::xml_parser_error("read error", std::string(), 0));
    if (const char* deep = FindTooDeep(text.c_str(), kMaxElementDepth)) {
        const long line = static_cast<long>(std::count(text.c_str(), deep, '\n')) + 1;
        BOOST_PROPERTY_TREE_THROW(xml::xml_parser_error(
            "elements nested deeper than " + std::to_string(kMaxElementDepth), std::string(), line));
    }
    TextBuffer buffer(text);
    std::istream in(&buffer);
    xml::read_xml(in, document, 0);
}

std::string OptionalText(const ptree& node, const char* path)
{
    const boost::optional<const ptree&> child = node.get_child_optional(path);
    return child ? child->data() : std::string();
}

} // namespace

bool matches(const std::string& key, const std::string& name)
{
    const std::string::size_type colon = key.rfind(':');
    return colon == std::string::npos ? key == name : key.compare(colon + 1, std::string::npos, name) == 0;
}

std::string xml_string(const ptree& node)
{
    std::stringstream out;
    xml::write_xml_element(out, std::string(), node, -1, xml::xml_writer_make_settings<std::string>(' ', 0, "utf-8"));
    return out.str();
}

TSUniqueId ParseUniqueId(const ptree& node)
{
    ZUM_LOGD("");
    TSUniqueId id;
    id.serviceName = node.get<std::string>("<xmlattr>.ServiceName");
    id.domainName = node.get_optional<std::string>("<xmlattr>.DomainName").value_or(std::string());
    return id;
}

TSLcn ParseLcn(const ptree& node)
{
    ZUM_LOGD("");
    TSLcn lcn;
    lcn.lcn = node.get<unsigned short>("<xmlattr>.LCN");
    lcn.selectable = node.get<bool>("<xmlattr>.selectable");
    return lcn;
}

std::pair<std::string, std::string> ParseServiceName(const ptree& node)
{
    ZUM_LOGD("");
    std::string language = node.get<std::string>("<xmlattr>.Language");
    return {std::move(language), node.get<std::string>(ptree::path_type())};
}

TSAudioAttributes ParseAudioAttributes(const ptree& node)
{
    ZUM_LOGD("");
    TSAudioAttributes audio;
    audio.href = node.get<std::string>("tva:Coding.<xmlattr>.href");
    audio.name = node.get<std::string>("tva:Coding.tva:Name");
    if (const boost::optional<const ptree&> channels = node.get_child_optional("tva:NumOfChannels"))
        audio.numOfChannels = channels->get_value<unsigned int>(0u);
    return audio;
}

TSVideoAttributes ParseVideoAttributes(const ptree& node)
{
    ZUM_LOGD("");
    TSVideoAttributes video;
    video.href = node.get<std::string>("tva:Coding.<xmlattr>.href");
    video.name = node.get<std::string>("tva:Coding.tva:Name");
    return video;
}

TSContentAttributes ParseContentAttributes(const ptree& node)
{
    ZUM_LOGD("");
    TSContentAttributes content;
    for (const ptree::value_type& child : node) {
        if (matches(child.first, "AudioAttributes")) {
            TSAudioAttributes audio = ParseAudioAttributes(child.second);
            content.audioName = std::move(audio.name);
            content.audioHref = std::move(audio.href);
            content.audioNumOfChannels = audio.numOfChannels;
        } else if (matches(child.first, "VideoAttributes")) {
            TSVideoAttributes video = ParseVideoAttributes(child.second);
            content.videoName = std::move(video.name);
            content.videoHref = std::move(video.href);
        } else {
            ZUM_LOGD("[MAJOR]unexpected node %s", child.first.c_str());
        }
    }
    return content;
}

TSUriBasedLocation ParseUriBasedLocation(const ptree& node)
{
    ZUM_LOGD("");
    TSUriBasedLocation location;
    for (const ptree::value_type& child : node) {
        if (child.first == kAttributes) {
            for (const ptree::value_type& attribute : child.second)
                if (matches(attribute.first, "contentType"))
                    location.contentType = attribute.second.data();
        } else if (matches(child.first, "URI")) {
            location.uri = child.second.data();
        }
    }
    return location;
}

TSDRMControlInformation ParseDRMControlInformation(const ptree& node)
{
    ZUM_LOGD("");
    TSDRMControlInformation drm;
    drm.drmSystemId = node.get<std::string>("DRMSystemID");
    drm.drmContentId = node.get<std::string>("DRMContentID");
    drm.rightsIssuerUrl = OptionalText(node, "RightsIssuerURL");
    drm.silentRightsUrl = OptionalText(node, "SilentRightsURL");
    drm.previewRightsUrl = OptionalText(node, "PreviewRightsURL");
    drm.doNotRecord = node.get_optional<bool>("DoNotRecord").value_or(false);
    drm.doNotTimeShift = node.get_optional<bool>("DoNotTimeShift").value_or(false);
    drm.drmGenericData = xml_string(node.get_child("DRMGenericData"));
    drm.drmPrivateData = xml_string(node.get_child("DRMPrivateData"));
    return drm;
}

TSServiceLocation ParseIPServiceLocation(const ptree& node)
{
    ZUM_LOGD("");
    TSServiceLocation location;
    for (const ptree::value_type& child : node) {
        if (matches(child.first, "DRMControlInformation"))
            location.drmControlInformation.push_back(ParseDRMControlInformation(child.second));
        else if (matches(child.first, "ContentAttributes"))
            location.contentAttributes = ParseContentAttributes(child.second);
        else if (matches(child.first, "UriBasedLocation"))
            location.uriBasedLocation = ParseUriBasedLocation(child.second);
        else
            ZUM_LOGD("[FAT] unexpected node %s", child.first.c_str());
    }
    return location;
}

TSPrimaryRegion ParsePrimaryRegion(const ptree& node)
{
    ZUM_LOGD("");
    TSPrimaryRegion region;
    for (const ptree::value_type& child : node) {
        if (matches(child.first, "Region"))
            region.regions.push_back(child.second.data());
        else if (matches(child.first, "Subregion"))
            region.subregions.push_back(child.second.data());
    }
    return region;
}

TSRegionList ParseRegionList(const ptree& node)
{
    ZUM_LOGD("");
    TSRegionList list;
    for (const ptree::value_type& child : node)
        if (matches(child.first, "PrimaryRegion"))
            list.primaryRegions.push_back(ParsePrimaryRegion(child.second));
    list.countryCodes = node.get_optional<std::string>("<xmlattr>.CountryCodes").value_or(std::string());
    return list;
}

TSTargetRegions ParseTargetRegions(const ptree& node)
{
    ZUM_LOGD("");
    TSTargetRegions regions;
    for (const ptree::value_type& child : node) {
        if (matches(child.first, "RegionList"))
            regions.regionLists.push_back(ParseRegionList(child.second));
        else if (matches(child.first, "AccessibleOutOfRegion"))
            regions.accessibleOutOfRegion = child.second.get_value<bool>();
    }
    return regions;
}

TSIPService ParseIPService(const ptree& node)
{
    ZUM_LOGD("");
    TSIPService service;
    for (const ptree::value_type& child : node) {
        const std::string& key = child.first;
        if (matches(key, "UniqueIdentifier"))
            service.uniqueId = ParseUniqueId(child.second);
        else if (matches(key, "ServiceLocation"))
            service.serviceLocations.push_back(ParseIPServiceLocation(child.second));
        else if (matches(key, "LCN"))
            service.lcn = ParseLcn(child.second);
        else if (matches(key, "TargetRegions"))
            service.targetRegions = ParseTargetRegions(child.second);
        else if (matches(key, "ServiceName"))
            service.serviceNames.insert(ParseServiceName(child.second));
        else
            ZUM_LOGD("[FAT] unexpected node %s", key.c_str());
    }
    return service;
}

int32_t TCOSDTParser::Parse(const std::string& document)
{
    std::stringstream stream(document, std::ios::in | std::ios::out);
    return Parse(stream);
}

int32_t TCOSDTParser::Parse(std::istream& stream)
{
    ZUM_LOGD("Parsing OSDT");
    ptree document;
    ReadDocument(stream, document);

    // Built aside, so that a failure anywhere leaves the former list.
    ServiceList services;
    for (const ptree::value_type& list : document) {
        if (!matches(list.first, "IPServiceList"))
            continue;
        for (const ptree::value_type& child : list.second) {
            if (child.first == kAttributes) {
                for (const ptree::value_type& attribute : child.second)
                    ZUM_LOGD("attr %s = %s", attribute.first.c_str(), attribute.second.data().c_str());
            } else if (matches(child.first, "IPService")) {
                services.push_back(ParseIPService(child.second));
            } else {
                ZUM_LOGD("[FAT] unexpected node %s", child.first.c_str());
            }
        }
    }
    m_services = std::move(services);
    return 1;
}

} // namespace OSDT
