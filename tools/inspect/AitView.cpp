#include "inspect/AitView.h"

#include <string>

#include "apps/AITParser.h"
#include "apps/DescApplication.h"
#include "apps/DescApplicationSignalling.h"
#include "apps/DescTransportProtocol.h"
#include "inspect/Describers.h"
#include "inspect/Renderers.h"
#include "inspect/Router.h"
#include "inspect/TsDemux.h"

namespace zuminspect {

namespace {

constexpr int kTagApplicationName = 0x01;
constexpr int kTagTransportProtocol = 0x02;
constexpr int kTagSimpleLocation = 0x15;

std::string ControlName(unsigned code)
{
    switch (code) {
    case 0x01: return "AUTOSTART";
    case 0x02: return "PRESENT";
    case 0x03: return "DESTROY";
    case 0x04: return "KILL";
    case 0x05: return "PREFETCH";
    case 0x06: return "REMOTE";
    case 0x07: return "DISABLED";
    case 0x08: return "PLAYBACK_AUTOSTART";
    default: return "CONTROL_" + Hex(code, 2);
    }
}

std::string TypeName(unsigned type)
{
    switch (type) {
    case 0x0001: return "DVB-J";
    case 0x0002: return "DVB-HTML";
    case 0x0010: return "HbbTV";
    default: return "type " + Hex(type, 4);
    }
}

std::string Text(const unsigned char* data, size_t size, const TextDecoder& text)
{
    return data ? text.Decode(data, size) : std::string();
}

// Where the application starts: the transport's base (its own loop first,
// then the common loop) followed by the initial path.
std::string Url(const TCAITApplication& app, const TCAitInstance& instance)
{
    const auto* transport = dynamic_cast<const TCDescTransportProtocol*>(app.Descriptor(kTagTransportProtocol, 0));
    if (!transport)
        transport = dynamic_cast<const TCDescTransportProtocol*>(instance.Descriptor(kTagTransportProtocol, 0));
    const auto* location = dynamic_cast<const TCDescApplicationSimpleLocation*>(app.Descriptor(kTagSimpleLocation, 0));
    const std::string path = location ? location->InitialPath() : std::string();
    if (!transport)
        return path;
    switch (transport->ProtocolId()) {
    case TCDescTransportProtocol::PROTOCOL_HTTP:
    case TCDescTransportProtocol::PROTOCOL_URL: return transport->URLBase() + path;
    case TCDescTransportProtocol::PROTOCOL_OBJECT_CAROUSEL:
        return "carousel " + Hex(transport->ComponentTag(), 2) + " /" + path;
    default: return "protocol " + Hex(transport->ProtocolId(), 4) + " " + path;
    }
}

std::string Name(const TCAITApplication& app, const TextDecoder& text)
{
    const auto* names = dynamic_cast<const TCDescApplicationName*>(app.Descriptor(kTagApplicationName, 0));
    const TCAppNameChar* name = names ? names->AppNameChar(0) : nullptr;
    return name ? Text(name->ApplicationNameChar(0xFF), name->NameLength(), text) : std::string();
}

Json Application(const TCAITApplication& app, const TCAitInstance& instance, const TextDecoder& text)
{
    const std::string control = ControlName(app.ApplicationControlCode());
    const std::string url = Url(app, instance);
    const std::string name = Name(app, text);
    const std::string line = Hex(app.OrganisationId(), 4) + "/" + Hex(app.ApplicationId(), 4) + " " + control + " " +
                             TypeName(instance.ApplicationType()) + "  " + url + "  '" + name + "'";
    return {{"organisationId", app.OrganisationId()},
            {"applicationId", app.ApplicationId()},
            {"controlCode", app.ApplicationControlCode()},
            {"control", control},
            {"url", url},
            {"name", name},
            {"line", line},
            {"descriptors", DescribeLoop(app, text)}};
}

Json Instance(const TCAitInstance& instance, const TextDecoder& text)
{
    Json applications = Json::array();
    for (int i = 0; i < instance.NumOfAITApplication(); ++i)
        applications.push_back(Application(*instance.AITApplication(static_cast<unsigned>(i)), instance, text));
    return {{"applicationType", instance.ApplicationType()},
            {"typeName", TypeName(instance.ApplicationType())},
            {"testApplication", instance.TestApplicationFlag() != 0},
            {"descriptors", DescribeLoop(instance, text)},
            {"applications", applications}};
}

} // namespace

Json AitModel(const Router& router, const TextDecoder& text)
{
    Json tables = Json::array();
    for (const auto& entry : router.Aits()) {
        Json instances = Json::array();
        for (int i = 0; i < entry.second->NumOfAITInstance(); ++i)
            instances.push_back(Instance(*entry.second->AITInstanceOfIndex(static_cast<unsigned>(i)), text));
        const std::optional<bool> complete = router.Complete(entry.first, 0x74);
        tables.push_back({{"pid", entry.first == kNoPid ? Json(nullptr) : Json(entry.first)},
                          {"complete", complete.value_or(false)},
                          {"instances", instances}});
    }
    return tables;
}

void RenderAitTree(const Json& ait, std::ostream& out)
{
    for (const Json& table : ait) {
        const std::string pid = table["pid"].is_null() ? "sections" : "PID " + Hex(table["pid"].get<unsigned>(), 4);
        out << "AIT  on " << pid << "  (" << (table["complete"].get<bool>() ? "complete" : "incomplete") << ")\n";
        for (const Json& instance : table["instances"]) {
            out << "  " << instance["typeName"].get<std::string>() << " applications"
                << (instance["testApplication"].get<bool>() ? " (test)" : "") << "\n";
            for (const Json& d : instance["descriptors"])
                RenderObject(d["tag"].get<std::string>() + " " + d["class"].get<std::string>(),
                             d.contains("fields") ? d["fields"] : Json::object({{"raw", d["raw"]}}), 2, out);
            for (const Json& app : instance["applications"]) {
                out << "    " << app["line"].get<std::string>() << "\n";
                for (const Json& d : app["descriptors"])
                    RenderObject(d["tag"].get<std::string>() + " " + d["class"].get<std::string>(),
                                 d.contains("fields") ? d["fields"] : Json::object({{"raw", d["raw"]}}), 3, out);
            }
        }
    }
}

// ---- describers ------------------------------------------------------------

Json DescribeApplication(const TCDescApplication& d, const TextDecoder&)
{
    Json profiles = Json::array();
    for (unsigned i = 0; i < d.NumOfAppProfile(); ++i) {
        const TCAppProfile* p = d.AppProfile(i);
        profiles.push_back({{"profile", Hex(p->ApplicationProfile(), 4)},
                            {"version", std::to_string(p->VersionMajor()) + "." + std::to_string(p->VersionMinor()) +
                                            "." + std::to_string(p->VersionMicro())}});
    }
    Json labels = Json::array();
    for (unsigned i = 0; i < d.TransportProtocolLabelCount(); ++i)
        labels.push_back(d.TransportProtocolLabel(i));
    return {{"profiles", profiles},
            {"serviceBound", d.ServiceBoundFlag() != 0},
            {"visibility", d.Visibility()},
            {"priority", d.ApplicationPriority()},
            {"transportProtocolLabels", labels}};
}

Json DescribeApplicationName(const TCDescApplicationName& d, const TextDecoder& text)
{
    Json names = Json::array();
    for (unsigned i = 0; i < d.NumOfAppNameChar(); ++i) {
        const TCAppNameChar* n = d.AppNameChar(i);
        names.push_back({{"language", CodeText(n->Language())},
                         {"name", Text(n->ApplicationNameChar(0xFF), n->NameLength(), text)}});
    }
    return {{"names", names}};
}

Json DescribeTransportProtocol(const TCDescTransportProtocol& d, const TextDecoder&)
{
    Json out = {{"protocolId", Hex(d.ProtocolId(), 4)}, {"label", d.TransportProtocolLabel()}};
    switch (d.ProtocolId()) {
    case TCDescTransportProtocol::PROTOCOL_OBJECT_CAROUSEL:
    case TCDescTransportProtocol::PROTOCOL_IP_MPE:
        out["remoteConnection"] = d.RemoteConnection() != 0;
        if (d.RemoteConnection())
            out["service"] = {d.OriginalNetworkId(), d.TransportStreamId(), d.ServiceId()};
        if (d.ProtocolId() == TCDescTransportProtocol::PROTOCOL_OBJECT_CAROUSEL)
            out["componentTag"] = d.ComponentTag();
        else
            out["alignmentIndicator"] = d.AlignmentIndicator();
        break;
    case TCDescTransportProtocol::PROTOCOL_HTTP:
    case TCDescTransportProtocol::PROTOCOL_URL: {
        out["urlBase"] = d.URLBase();
        Json extensions = Json::array();
        for (unsigned i = 0; i < d.NumOfURLExtension(); ++i)
            extensions.push_back(d.URLExtension(i));
        out["urlExtensions"] = extensions;
        break;
    }
    default: break;
    }
    return out;
}

Json DescribeExternalApplicationAuthorisation(const TCDescExternalApplicationAuthrisation& d, const TextDecoder&)
{
    Json entries = Json::array();
    for (unsigned i = 0; i < d.NumOfExtAppAuth(); ++i) {
        const TCExtAppAuth* e = d.ExtAppAuth(i);
        entries.push_back({{"organisationId", e->OrganisationId()},
                           {"applicationId", e->ApplicationId()},
                           {"priority", e->ApplicationPriority()}});
    }
    return {{"applications", entries}};
}

Json DescribeApplicationIcons(const TCDescApplicationIcons& d, const TextDecoder&)
{
    return {{"iconLocator", d.IconLocatorText()}, {"iconFlags", Hex(d.IconFlags(), 4)}};
}

Json DescribePrefetch(const TCDescPrefetch& d, const TextDecoder&)
{
    Json labels = Json::array();
    for (unsigned i = 0; i < d.NumOfPrefetchLabelChar(); ++i) {
        const TCPrefetchLabelChar* l = d.PrefetchLabelChar(i);
        const char* label = reinterpret_cast<const char*>(l->Label());
        labels.push_back({{"label", label ? std::string(label, l->LabelLength()) : std::string()},
                          {"priority", l->PrefetchPriority()}});
    }
    return {{"transportProtocolLabel", d.TransportProtocolLabel()}, {"labels", labels}};
}

Json DescribeDIILocation(const TCDescDIILocation& d, const TextDecoder&)
{
    Json fields = Json::array();
    for (unsigned i = 0; i < d.NumOfDIISubField(); ++i)
        fields.push_back({{"diiIdentification", d.DIISubField(i)->DIIIdentification()},
                          {"associationTag", Hex(d.DIISubField(i)->AssociationTag(), 4)}});
    return {{"transportProtocolLabel", d.TransportProtocolLabel()}, {"modules", fields}};
}

Json DescribeApplicationStorageCapability(const TCDescApplicationStorageCapability& d, const TextDecoder&)
{
    return {{"storageProperty", d.StorageProperty()},
            {"notLaunchableFromBroadcast", d.NotLaunchableFromBroadcast() != 0},
            {"launchableCompletelyFromCache", d.LaunchableCompletelyFromCache() != 0},
            {"launchableWithOlderVersion", d.IsLaunchableWithOlderVersion() != 0},
            {"version", d.Version()},
            {"priority", d.Priority()}};
}

Json DescribeApplicationSimpleLocation(const TCDescApplicationSimpleLocation& d, const TextDecoder&)
{
    return {{"initialPath", d.InitialPath()}};
}

Json DescribeApplicationUsage(const TCDescApplicationUsage& d, const TextDecoder&)
{
    return {{"usageType", d.UsageType() < 0 ? Json(nullptr) : Json(Hex(static_cast<unsigned>(d.UsageType()), 2))}};
}

Json DescribeApplicationBoundary(const TCDescApplicationBoundary& d, const TextDecoder&)
{
    Json extensions = Json::array();
    for (unsigned i = 0; i < d.NumOfBoundaryExtension(); ++i)
        extensions.push_back(d.BoundaryExtension(i));
    return {{"boundaries", extensions}};
}

Json DescribeUnboundApplication(const TCDescUnboundApplication& d, const TextDecoder&)
{
    return {{"value24", Hex(d.Value24(), 6)}, {"value32", Hex(d.Value32(), 8)}};
}

Json DescribeApplicationStorage(const TCDescApplicationStorage& d, const TextDecoder&)
{
    return {{"value16", Hex(d.Value16(), 4)}, {"value8", Hex(d.Value8(), 2)}};
}

Json DescribeApplicationSignalling(const TCDescApplicationSignalling& d, const TextDecoder&)
{
    Json types = Json::array();
    for (unsigned i = 0; i < d.NumOfAppType(); ++i)
        types.push_back({{"applicationType", Hex(d.AppType(i), 4)}, {"aitVersion", d.AITVersion(i)}});
    return {{"applications", types}};
}

} // namespace zuminspect
