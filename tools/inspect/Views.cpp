#include "inspect/Views.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <map>
#include <tuple>
#include <utility>
#include <vector>

#include "inspect/Format.h"
#include "inspect/Names.h"
#include "inspect/Text.h"

namespace zuminspect {

namespace {

constexpr unsigned int kTagContent = 0x54;
constexpr unsigned int kTagParentalRating = 0x55;
constexpr unsigned int kTagShortEvent = 0x4D;
constexpr unsigned int kTagCAIdentifier = 0x53;
constexpr unsigned int kTagCA = 0x09;

// Top-level entries whose table the filter knows without a "tableId" of their own.
const std::map<std::string, unsigned int> kKnownTables = {
    {"pat", 0x00}, {"pmts", 0x02}, {"tdt", 0x70}, {"tot", 0x73}, {"lcn", 0x85}, {"ews", 0x80}, {"sit", 0xD5},
    {"freesatPostCodes", 0xD2},
    // The fast-scan channel list is the FST's services, numbered by the FNT.
    {"unt", 0x4B}, {"fastScan", 0xBD},
};

BroadcastSystem SystemOfModel(const Json& model)
{
    const std::string name = model["input"].value("system", std::string("DVB"));
    return name == "ATSC" ? BroadcastSystem::Atsc : name == "ISDB" ? BroadcastSystem::Isdb : BroadcastSystem::Dvb;
}

unsigned int TableIdOf(const Json& hex)
{
    return hex.is_string() ? static_cast<unsigned int>(std::strtoul(hex.get<std::string>().c_str(), nullptr, 16))
                           : 0x100;
}

unsigned int PidOf(const Json& pid)
{
    return pid.is_number() ? pid.get<unsigned int>() : kAnyPid;
}

std::string Lower(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

// Which (PID, table id) pairs the PID and table filters keep.
class TableSelection {
public:
    TableSelection(const Json& model, const ModelFilter& filter)
        : m_filter(filter), m_system(SystemOfModel(model))
    {
        for (const Json& t : model["summary"]["tables"]) {
            const unsigned int pid = PidOf(t["pid"]);
            const unsigned int tableId = TableIdOf(t["tableId"]);
            if (Selected(pid, tableId))
                m_tableIds.insert(tableId);
        }
    }

    bool Active() const { return m_filter.pid.has_value() || !m_filter.table.empty(); }

    bool Selected(unsigned int pid, unsigned int tableId) const
    {
        if (m_filter.pid && *m_filter.pid != pid)
            return false;
        return m_filter.table.empty() || TableMatches(m_filter.table, tableId, m_system, pid);
    }

    // A table id seen on a selected PID and selected by the table filter.
    bool Selected(unsigned int tableId) const { return !Active() || m_tableIds.count(tableId) > 0; }

private:
    const ModelFilter& m_filter;
    BroadcastSystem m_system;
    std::set<unsigned int> m_tableIds;
};

// Elements of `list` that `keep` answers true for.
template <class Keep>
Json Kept(const Json& list, Keep keep)
{
    Json out = Json::array();
    for (const Json& element : list)
        if (keep(element))
            out.push_back(element);
    return out;
}

Json FilterTables(const Json& model, const TableSelection& tables)
{
    Json out = Json::object();
    for (const auto& item : model.items()) {
        const std::string& key = item.key();
        const Json& v = item.value();
        if (key == "input" || !tables.Active()) {
            out[key] = v;
        } else if (key == "summary") {
            Json summary = v;
            summary["pids"] = Kept(v["pids"], [&](const Json& p) {
                for (const Json& t : v["tables"])
                    if (t["pid"] == p["pid"] && tables.Selected(PidOf(t["pid"]), TableIdOf(t["tableId"])))
                        return true;
                return false;
            });
            summary["tables"] = Kept(v["tables"], [&](const Json& t) {
                return tables.Selected(PidOf(t["pid"]), TableIdOf(t["tableId"]));
            });
            out[key] = summary;
        } else if (key == "pmts") {
            out[key] = Kept(v, [&](const Json& p) { return tables.Selected(PidOf(p["pid"]), 0x02); });
        } else if (key == "eit") {
            Json services = Json::array();
            for (const Json& service : v) {
                Json kept = service;
                kept["events"] = Kept(service["events"], [&](const Json& e) { return tables.Selected(TableIdOf(e["tableId"])); });
                if (!kept["events"].empty())
                    services.push_back(kept);
            }
            out[key] = services;
        } else if (kKnownTables.count(key) > 0) {
            out[key] = tables.Selected(kKnownTables.at(key)) ? v : (v.is_array() ? Json::array() : Json());
        } else if (v.is_object() && v.contains("tableId")) {
            out[key] = tables.Selected(TableIdOf(v["tableId"])) ? v : Json();
        } else if (v.is_array()) {
            out[key] = Kept(v, [&](const Json& e) { return e.is_object() && tables.Selected(TableIdOf(e.value("tableId", Json()))); });
        } else {
            out[key] = v.is_array() ? Json::array() : Json();
        }
    }
    return out;
}

// Drops, at any depth below the top, the list elements of other services.
Json FilterServices(const Json& v, const std::set<unsigned int>& ids, bool top)
{
    if (v.is_object()) {
        Json out = Json::object();
        for (const auto& item : v.items())
            out[item.key()] = (top && (item.key() == "input" || item.key() == "summary"))
                                  ? item.value()
                                  : FilterServices(item.value(), ids, false);
        return out;
    }
    if (!v.is_array())
        return v;
    Json out = Json::array();
    for (const Json& element : v) {
        if (element.is_object()) {
            const Json& id = element.contains("serviceId") ? element["serviceId"] : element.value("programNumber", Json());
            if (id.is_number() && ids.count(id.get<unsigned int>()) == 0)
                continue;
        }
        Json kept = FilterServices(element, ids, false);
        // A transport stream of the NIT, an SDT: gone when none of its services stays.
        if (kept.is_object() && kept.contains("services") && kept["services"].empty() && element.contains("services") &&
            !element["services"].empty())
            continue;
        out.push_back(kept);
    }
    return out;
}

// The first descriptor with that tag in a described loop; null when none.
const Json* DescriptorOf(const Json& loop, unsigned int tag)
{
    for (const Json& d : loop)
        if (d.contains("fields") && TableIdOf(d["tag"]) == tag)
            return &d["fields"];
    return nullptr;
}

// CA_system_ids of a descriptor loop: CA descriptors (0x09), raw or described, and CA identifiers (0x53).
void CollectCaSystems(const Json& loop, std::set<unsigned int>& ids)
{
    for (const Json& d : loop) {
        const unsigned int tag = TableIdOf(d["tag"]);
        if (tag == kTagCAIdentifier && d.contains("fields"))
            for (const Json& id : d["fields"].value("caSystemIds", Json::array()))
                ids.insert(TableIdOf(id));
        if (tag != kTagCA)
            continue;
        if (d.contains("fields") && d["fields"].contains("caSystemId")) {
            const Json& id = d["fields"]["caSystemId"];
            ids.insert(id.is_number() ? id.get<unsigned int>() : TableIdOf(id));
        } else if (d.contains("raw")) {
            // "09 04 18 3d ...": tag, length, then the 16-bit CA_system_id.
            const std::string raw = d["raw"].get<std::string>();
            if (raw.size() >= 11)
                ids.insert(static_cast<unsigned int>(std::strtoul((raw.substr(6, 2) + raw.substr(9, 2)).c_str(), nullptr, 16)));
        }
    }
}

using ServiceKey = std::tuple<unsigned int, unsigned int, unsigned int>;

ServiceKey KeyOf(const Json& onid, const Json& tsid, unsigned int sid)
{
    return {onid.is_number() ? onid.get<unsigned int>() : 0x10000u, tsid.is_number() ? tsid.get<unsigned int>() : 0x10000u,
            sid};
}

// Display width of UTF-8 text: one column per code point.
size_t Columns(const std::string& text)
{
    size_t n = 0;
    for (unsigned char c : text)
        n += (c & 0xC0) != 0x80;
    return n;
}

std::string Padded(const std::string& text, size_t width)
{
    const size_t columns = Columns(text);
    return text + std::string(columns < width ? width - columns : 0, ' ');
}

std::string TextOr(const Json& v, const char* otherwise = "-")
{
    return v.is_string() ? v.get<std::string>() : otherwise;
}

std::string Right(const std::string& text, size_t width)
{
    const size_t columns = Columns(text);
    return std::string(columns < width ? width - columns : 0, ' ') + text;
}

} // namespace

std::set<unsigned int> ResolveServices(const Json& model, const std::string& text)
{
    char* end = nullptr;
    const unsigned long number = std::strtoul(text.c_str(), &end, 0);
    if (!text.empty() && end != text.c_str() && *end == '\0')
        return {static_cast<unsigned int>(number)};
    std::set<unsigned int> exact, partial;
    const std::string wanted = Lower(text);
    for (const Json& sdt : model["sdts"])
        for (const Json& s : sdt["services"]) {
            const std::string name = Lower(TextOr(s["name"], ""));
            if (name == wanted)
                exact.insert(s["serviceId"].get<unsigned int>());
            else if (!wanted.empty() && name.find(wanted) != std::string::npos)
                partial.insert(s["serviceId"].get<unsigned int>());
        }
    return exact.empty() ? partial : exact;
}

Json FilterModel(const Json& model, const ModelFilter& filter)
{
    Json out = FilterTables(model, TableSelection(model, filter));
    if (!filter.serviceIds.empty())
        out = FilterServices(out, filter.serviceIds, true);
    return out;
}

Json SummaryOnly(const Json& model)
{
    return {{"input", model["input"]}, {"summary", model["summary"]}};
}

Json ServiceList(const Json& model)
{
    // Channel numbers of the NIT, by the full key and by service id alone.
    std::map<ServiceKey, Json> numbers;
    std::map<unsigned int, Json> numbersById;
    for (const Json& nit : model["nits"])
        for (const Json& ts : nit["transportStreams"])
            for (const Json& s : ts["services"]) {
                if (!s["channelNumber"].is_number())
                    continue;
                const unsigned int sid = s["serviceId"].get<unsigned int>();
                numbers.emplace(KeyOf(ts["originalNetworkId"], ts["transportStreamId"], sid), s["channelNumber"]);
                numbersById.emplace(sid, s["channelNumber"]);
            }
    const auto numberOf = [&](const ServiceKey& key) {
        const auto full = numbers.find(key);
        if (full != numbers.end())
            return full->second;
        const auto byId = numbersById.find(std::get<2>(key));
        return byId != numbersById.end() ? byId->second : Json();
    };

    // CA systems of each program, from its PMT.
    std::map<unsigned int, std::set<unsigned int>> programCa;
    for (const Json& pmt : model["pmts"]) {
        std::set<unsigned int>& ids = programCa[pmt["programNumber"].get<unsigned int>()];
        CollectCaSystems(pmt["descriptors"], ids);
        for (const Json& stream : pmt["streams"])
            CollectCaSystems(stream["descriptors"], ids);
    }
    const auto caOf = [&](const Json* loop, unsigned int sid, bool actual) {
        std::set<unsigned int> ids;
        if (loop)
            CollectCaSystems(*loop, ids);
        if (actual && programCa.count(sid))
            ids.insert(programCa[sid].begin(), programCa[sid].end());
        Json out = Json::array();
        for (unsigned int id : ids)
            out.push_back({{"caSystemId", id}, {"caSystemName", CaSystemName(id)}});
        return out;
    };

    std::vector<Json> services;
    std::set<unsigned int> named; // service ids of the SDT actual
    for (const Json& sdt : model["sdts"])
        for (const Json& s : sdt["services"]) {
            const unsigned int sid = s["serviceId"].get<unsigned int>();
            if (sdt["tableId"] == "0x42")
                named.insert(sid);
            services.push_back({{"channelNumber", numberOf(KeyOf(sdt["originalNetworkId"], sdt["transportStreamId"], sid))},
                                {"originalNetworkId", sdt["originalNetworkId"]},
                                {"transportStreamId", sdt["transportStreamId"]},
                                {"serviceId", sid},
                                {"name", s["name"]},
                                {"type", s["type"]},
                                {"typeName", s.value("typeName", Json())},
                                {"provider", s["provider"]},
                                {"runningStatus", s["runningStatus"]},
                                {"runningStatusName", s.value("runningStatusName", Json())},
                                {"freeCA", s["freeCA"]},
                                {"caSystems", caOf(&s["descriptors"], sid, sdt["tableId"] == "0x42")}});
        }
    const Json& pat = model["pat"];
    if (pat.is_object())
        for (const Json& p : pat["programs"]) {
            const unsigned int sid = p["programNumber"].get<unsigned int>();
            if (sid == 0 || named.count(sid) > 0)
                continue;
            services.push_back({{"channelNumber", numberOf(KeyOf(Json(), pat["transportStreamId"], sid))},
                                {"originalNetworkId", nullptr},
                                {"transportStreamId", pat["transportStreamId"]},
                                {"serviceId", sid},
                                {"name", nullptr},
                                {"type", nullptr},
                                {"typeName", nullptr},
                                {"provider", nullptr},
                                {"runningStatus", nullptr},
                                {"runningStatusName", nullptr},
                                {"freeCA", nullptr},
                                {"caSystems", caOf(nullptr, sid, true)}});
        }
    const auto order = [](const Json& s) {
        const Json& n = s["channelNumber"];
        return std::make_tuple(n.is_number() ? n.get<unsigned long long>() : ~0ULL,
                               KeyOf(s["originalNetworkId"], s["transportStreamId"], s["serviceId"].get<unsigned int>()));
    };
    std::stable_sort(services.begin(), services.end(),
                     [&](const Json& a, const Json& b) { return order(a) < order(b); });
    return Json(services);
}

Json EventList(const Json& model)
{
    std::map<unsigned int, Json> names; // service names of the SDTs, the actual one first
    std::map<ServiceKey, Json> namesByKey;
    for (const Json& sdt : model["sdts"])
        for (const Json& s : sdt["services"]) {
            namesByKey.emplace(KeyOf(sdt["originalNetworkId"], sdt["transportStreamId"], s["serviceId"].get<unsigned int>()),
                               s["name"]);
            names.emplace(s["serviceId"].get<unsigned int>(), s["name"]);
        }
    std::vector<Json> events;
    std::set<std::tuple<ServiceKey, unsigned int, std::string>> seen;
    for (const Json& service : model["eit"]) {
        const unsigned int sid = service["serviceId"].get<unsigned int>();
        const ServiceKey key = KeyOf(service["originalNetworkId"], service["transportStreamId"], sid);
        const auto byKey = namesByKey.find(key);
        const Json name = byKey != namesByKey.end() ? byKey->second : names.count(sid) ? names[sid] : Json();
        for (const Json& e : service["events"]) {
            // The same event in p/f and schedule tables is one line: the first, p/f, tells most.
            const std::string start = TextOr(e["start"], "");
            if (!seen.emplace(key, e["eventId"].get<unsigned int>(), start).second)
                continue;
            Json title, genre, rating;
            if (const Json* shortEvent = DescriptorOf(e["descriptors"], kTagShortEvent))
                title = shortEvent->value("name", Json());
            if (const Json* content = DescriptorOf(e["descriptors"], kTagContent))
                if (!content->value("entries", Json::array()).empty()) {
                    const Json& first = (*content)["entries"][0];
                    // Level 2 names are whole ("news/weather report"); level 1 stands in where level 2 has none.
                    const std::string level2 = first.value("level2Name", std::string());
                    genre = level2.rfind("reserved", 0) == 0 || level2 == "user defined" || level2.empty()
                                ? first.value("level1Name", std::string())
                                : level2;
                }
            if (const Json* ratings = DescriptorOf(e["descriptors"], kTagParentalRating))
                if (!ratings->value("ratings", Json::array()).empty())
                    rating = (*ratings)["ratings"][0].value("ratingName", Json());
            Json line = {{"originalNetworkId", service["originalNetworkId"]},
                         {"transportStreamId", service["transportStreamId"]},
                         {"serviceId", sid},
                         {"service", name},
                         {"eventId", e["eventId"]},
                         {"tableId", e["tableId"]},
                         {"start", e["start"]}};
            if (e.contains("startLocal"))
                line["startLocal"] = e["startLocal"];
            line.update(Json{{"duration", e["duration"]},
                             {"runningStatus", e["runningStatus"]},
                             {"runningStatusName", e.value("runningStatusName", Json())},
                             {"name", title},
                             {"genre", genre},
                             {"rating", rating}});
            events.push_back(line);
        }
    }
    const auto order = [](const Json& e) {
        // ISO 8601 UTC strings sort as times; an event without a start goes last.
        return std::make_tuple(KeyOf(e["originalNetworkId"], e["transportStreamId"], e["serviceId"].get<unsigned int>()),
                               e["start"].is_string() ? e["start"].get<std::string>() : std::string("~"),
                               e["eventId"].get<unsigned int>());
    };
    std::stable_sort(events.begin(), events.end(), [&](const Json& a, const Json& b) { return order(a) < order(b); });
    return Json(events);
}

void RenderServiceLines(const Json& services, std::ostream& out)
{
    out << "  LCN  ONID    TSID    service  " << Padded("name", 24) << "  " << Padded("type", 46) << "  "
        << Padded("provider", 20) << "  CA\n";
    for (const Json& s : services) {
        std::string ca = s["freeCA"].is_boolean() ? (s["freeCA"].get<bool>() ? "scrambled" : "free") : "-";
        const char* separator = " ";
        for (const Json& id : s["caSystems"]) {
            ca += separator + TreeValue("caSystemId", id["caSystemId"]) + " " + TextOr(id["caSystemName"], "");
            separator = ", ";
        }
        const std::string type =
            s["type"].is_number() ? TreeValue("serviceType", s["type"]) + " " + TextOr(s["typeName"], "") : "-";
        out << Right(s["channelNumber"].is_number() ? std::to_string(s["channelNumber"].get<unsigned long long>()) : "-", 5)
            << "  " << Padded(TreeValue("originalNetworkId", s["originalNetworkId"]), 6) << "  "
            << Padded(TreeValue("transportStreamId", s["transportStreamId"]), 6) << "  "
            << Padded(TreeValue("serviceId", s["serviceId"]), 7) << "  " << Padded(TextOr(s["name"]), 24) << "  "
            << Padded(type, 46) << "  " << Padded(TextOr(s["provider"]), 20) << "  " << ca << '\n';
    }
}

void RenderEventLines(const Json& events, std::ostream& out)
{
    for (const Json& e : events) {
        std::string line = TreeValue("serviceId", e["serviceId"]) + " " + Padded(TextOr(e["service"]), 16) + "  " +
                           TimeAndLocalText(e["start"], e.value("startLocal", Json())) + "  " +
                           Right(TreeValue("duration", e["duration"]), 8) + "  " +
                           Padded(TextOr(e["runningStatusName"]), 11) + "  " + TextOr(e["name"]);
        if (e["genre"].is_string())
            line += "  [" + e["genre"].get<std::string>() + "]";
        if (e["rating"].is_string())
            line += "  (" + e["rating"].get<std::string>() + ")";
        out << line << '\n';
    }
}

} // namespace zuminspect
