#include "inspect/TkgsView.h"

#include <map>
#include <string>
#include <vector>

#include "dvb/DVBSDTParser.h"
#include "dvb/DVBTKGSParser.h"
#include "dvb/DescService.h"
#include "inspect/Describers.h"
#include "inspect/Router.h"
#include "inspect/TsDemux.h"
#include "operators/DescTKGSComponent.h"
#include "psi/PMTParser.h"

namespace zuminspect {

namespace {

constexpr int kTagService = 0x48;
constexpr int kTagExtendedService = 0x95;

const char* SourceName(EAntennaMode mode)
{
    switch (mode) {
    case EANTENNA_MODE_SATELLITE: return "satellite";
    case EANTENNA_MODE_CABLE: return "cable";
    case EANTENNA_MODE_AIR: return "terrestrial";
    }
    return "unknown";
}

Json Texts(const std::map<ELanguageCode, std::basic_string<unsigned short>>& texts, const char* key)
{
    Json out = Json::array();
    for (const auto& entry : texts)
        out.push_back({{"language", CodeText(entry.first)}, {key, Utf16ToUtf8(entry.second)}});
    return out;
}

// The service's name and type from the stream's own SDT, null when it has none.
Json Service(const TCDVBTKGSParser& tkgs, unsigned int id, const TCServiceKey& key, const TextDecoder& text)
{
    Json out = {{"tkgsServiceId", id},
                {"originalNetworkId", key.m_originalNetworkId},
                {"transportStreamId", key.m_transportStreamId},
                {"serviceId", key.m_serviceId},
                {"name", nullptr},
                {"type", nullptr},
                {"pmtStreams", nullptr},
                {"categories", Json::array()},
                {"delivery", nullptr}};
    const TCDVBSDTInstance* ts = tkgs.SDTParser()->DVBSDTInstance(key.m_transportStreamId, key.m_originalNetworkId);
    const TCDVBSDTItemService* service = ts ? ts->DVBSDTItemServiceBySID(key.m_serviceId) : nullptr;
    if (const auto* d = service ? dynamic_cast<const TCDescService*>(service->Descriptor(kTagService, 0)) : nullptr) {
        const Json fields = DescribeDescriptor(*d, text).at("fields");
        out["name"] = fields.at("name");
        out["type"] = fields.at("serviceType");
    }
    if (const auto* d = service ? dynamic_cast<const TCDescTKGSExtendedService*>(
                                      service->Descriptor(kTagExtendedService, 0))
                                : nullptr) {
        std::vector<unsigned int> ids;
        d->GetCategories(ids);
        out["categories"] = ids;
    }
    if (const TCPMTInstance* program = tkgs.PMTParser()->PMTInstance(key.m_serviceId))
        out["pmtStreams"] = program->NumOfElementary();
    unsigned int index = 0;
    if (tkgs.GetDeliverySystemIndex(id, index) && tkgs.DescriptorByIndex(index))
        out["delivery"] = DescribeDescriptor(*tkgs.DescriptorByIndex(index), text);
    return out;
}

Json Table(uint16_t pid, const TCDVBTKGSParser& tkgs, const TextDecoder& text)
{
    Json sources = Json::array();
    for (const auto& entry : tkgs.ServicesBySource())
        sources.push_back({{"source", SourceName(entry.first)}, {"tkgsServiceIds", entry.second}});
    Json services = Json::array();
    std::map<unsigned int, Json> names;
    for (const auto& entry : tkgs.ServiceKeys()) {
        services.push_back(Service(tkgs, entry.first, entry.second, text));
        names[entry.first] = services.back()["name"];
    }
    Json lists = Json::array();
    for (unsigned int i = 0; i < tkgs.NumOfServiceLists(); ++i) {
        std::map<ELanguageCode, std::basic_string<unsigned short>> listNames;
        std::map<unsigned int, unsigned short> numbers;
        tkgs.GetServiceListTranslationByIndex(i, listNames);
        tkgs.GetServicLcnByIndex(i, numbers);
        // In channel number order, as the list is shown.
        std::multimap<unsigned short, unsigned int> byNumber;
        for (const auto& n : numbers)
            byNumber.emplace(n.second, n.first);
        Json channels = Json::array();
        for (const auto& c : byNumber) {
            const auto name = names.find(c.second);
            channels.push_back({{"channelNumber", c.first},
                                {"tkgsServiceId", c.second},
                                {"name", name != names.end() ? name->second : Json(nullptr)}});
        }
        lists.push_back({{"names", Texts(listNames, "name")}, {"channels", channels}});
    }
    return {{"pid", pid == kNoPid ? Json(nullptr) : Json(pid)},
            {"complete", tkgs.IsComplete()},
            {"interfaceVersion", tkgs.InterfaceVersion()},
            {"info", Texts(tkgs.InfoTexts(), "text")},
            {"sources", sources},
            {"services", services},
            {"serviceLists", lists},
            {"descriptors", DescribeLoop(tkgs, text)}};
}

void Line(std::ostream& out, int depth, const std::string& text)
{
    out << std::string(static_cast<size_t>(depth * 2), ' ') << text << '\n';
}

std::string Str(const Json& v)
{
    return v.is_string() ? v.get<std::string>() : v.dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::string Names(const Json& names)
{
    std::string out;
    for (const Json& n : names)
        out += (out.empty() ? "" : " / ") + Str(n["language"]) + " \"" + Str(n.contains("name") ? n["name"] : n["text"]) + "\"";
    return out.empty() ? "(no name)" : out;
}

} // namespace

Json TkgsModel(const Router& router, const TextDecoder& text)
{
    Json tables = Json::array();
    for (const auto& entry : router.Tkgs())
        tables.push_back(Table(entry.first, *entry.second, text));
    return tables;
}

void RenderTkgsTree(const Json& tkgs, std::ostream& out)
{
    for (const Json& t : tkgs) {
        Line(out, 0, "TKGS  PID " + (t["pid"].is_null() ? std::string("-") : Hex(t["pid"].get<unsigned>(), 4)) +
                         ", interface version " + Str(t["interfaceVersion"]) + ", complete " +
                         (t["complete"].get<bool>() ? "yes" : "no"));
        Line(out, 1, "info: " + Names(t["info"]));
        for (const Json& s : t["sources"])
            Line(out, 1, "source " + Str(s["source"]) + ": " + std::to_string(s["tkgsServiceIds"].size()) + " services");
        std::map<unsigned, const Json*> services;
        for (const Json& s : t["services"])
            services[s["tkgsServiceId"].get<unsigned>()] = &s;
        for (const Json& list : t["serviceLists"]) {
            Line(out, 1, "service list " + Names(list["names"]));
            for (const Json& c : list["channels"]) {
                std::string line = std::to_string(c["channelNumber"].get<unsigned>()) + "  " +
                                   (c["name"].is_null() ? std::string("-") : Str(c["name"]));
                const auto s = services.find(c["tkgsServiceId"].get<unsigned>());
                if (s != services.end()) {
                    const Json& v = *s->second;
                    line += "  (service " + Hex(v["serviceId"].get<unsigned>(), 4) + ", transport stream " +
                            Hex(v["transportStreamId"].get<unsigned>(), 4) + ", original network " +
                            Hex(v["originalNetworkId"].get<unsigned>(), 4) + ")";
                    if (v["delivery"].is_object() && v["delivery"].contains("fields"))
                        for (const char* key : {"frequencyKHz", "polarization"})
                            if (v["delivery"]["fields"].contains(key))
                                line += std::string(" ") + key + " " + Str(v["delivery"]["fields"][key]);
                    if (!v["categories"].empty())
                        line += " categories " + Str(v["categories"]);
                }
                Line(out, 2, line);
            }
        }
        Line(out, 1, "descriptors:");
        for (const Json& d : t["descriptors"]) {
            std::string line = "[" + Str(d["tag"]) + "] " + Str(d["class"]);
            if (d.contains("fields"))
                for (const auto& f : d["fields"].items())
                    line += "  " + f.key() + ": " + Str(f.value());
            else
                line += "  raw: " + Str(d["raw"]);
            Line(out, 2, line);
        }
    }
}

Json DescribeTkgsComponent(const TCDescTKGSComponent& d, const TextDecoder&)
{
    return {{"flag", d.Flag()}, {"found", d.Found()}};
}

Json DescribeTkgsExtendedService(const TCDescTKGSExtendedService& d, const TextDecoder&)
{
    std::vector<unsigned int> ids;
    d.GetCategories(ids);
    return {{"categories", ids}};
}

Json DescribeTkgsCategoryLabel(const TCDescTKGSMultilingualCategoryLabel& d, const TextDecoder&)
{
    std::map<ELanguageCode, std::basic_string<unsigned short>> names;
    d.GetCategoryNames(names);
    return {{"categoryId", d.CategoryId()}, {"names", Texts(names, "name")}};
}

} // namespace zuminspect
