#include "inspect/Renderers.h"

#include <array>
#include <cstdio>
#include <string>

#include "inspect/AitView.h"
#include "inspect/EwsView.h"
#include "inspect/IsdbView.h"
#include "inspect/IsdbNetView.h"
#include "inspect/OperatorTablesView.h"
#include "inspect/AtscView.h"
#include "inspect/Format.h"
#include "inspect/OperatorsView.h"
#include "inspect/FreesatView.h"
#include "inspect/TargetingView.h"
#include "inspect/Text.h"
#include "inspect/TkgsView.h"

namespace zuminspect {

namespace {

constexpr int kStep = 2;
// Columns of the two summary tables.
constexpr char kPidRow[] = "%-7s %9s %10s %10s %9s %10s %8s";
constexpr char kTableRow[] = "%-7s %-24s %9s %10s %9s %9s  %s";

std::string Value(const Json& v)
{
    if (v.is_null())
        return "-";
    if (v.is_boolean())
        return v.get<bool>() ? "yes" : "no";
    return v.dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::string HexOr(const Json& v, int digits)
{
    return v.is_number() ? Hex(v.get<unsigned long long>(), digits) : std::string("-");
}

bool EndsWith(const std::string& text, const std::string& tail)
{
    return text.size() >= tail.size() && text.compare(text.size() - tail.size(), tail.size(), tail) == 0;
}

// The field `key` of `object` as the tree shows it, with its name when the model has one.
std::string Field(const Json& object, const std::string& key)
{
    const Json& name = object.contains(key + "Name") ? object[key + "Name"] : Json();
    return TreeValue(key, object.contains(key) ? object[key] : Json(), name);
}


class Tree {
public:
    explicit Tree(std::ostream& out) : m_out(out) {}

    void Line(int depth, const std::string& text)
    {
        m_out << std::string(static_cast<size_t>(depth * kStep), ' ') << text << '\n';
    }

    // Scalars on the head line, lists and objects indented below it.
    void Object(int depth, const std::string& head, const Json& fields)
    {
        std::string line = head;
        const char* separator = head == "-" ? " " : "  ";
        for (const auto& item : fields.items()) {
            const std::string& key = item.key();
            // A name is shown beside its number.
            if (item.value().is_structured() ||
                (EndsWith(key, "Name") && fields.contains(key.substr(0, key.size() - 4))))
                continue;
            line += separator + key + ": " + Field(fields, key);
            separator = ", ";
        }
        Line(depth, line);
        for (const auto& item : fields.items()) {
            const Json& v = item.value();
            if (v.is_object()) {
                Object(depth + 1, item.key() + ":", v);
            } else if (v.is_array() && !v.empty() && v.front().is_structured()) {
                Line(depth + 1, item.key() + ":");
                for (const Json& element : v)
                    Object(depth + 2, "-", element.is_object() ? element : Json{{"values", element}});
            } else if (v.is_array()) {
                std::string list;
                for (const Json& element : v)
                    list += (list.empty() ? "" : ", ") + TreeValue(item.key(), element);
                Line(depth + 1, item.key() + ": " + (list.empty() ? "none" : list));
            }
        }
    }

    void Descriptors(int depth, const Json& list)
    {
        for (const Json& d : list) {
            const std::string head = "[" + d.at("tag").get<std::string>() + "] " + d.at("class").get<std::string>();
            if (d.contains("fields"))
                Object(depth, head, d.at("fields"));
            else
                Line(depth, head + "  raw: " + d.value("raw", std::string()));
        }
    }

    void Pat(const Json& pat)
    {
        if (pat.is_null())
            return;
        Line(0, "PAT  transport stream " + HexOr(pat["transportStreamId"], 4) + ", network PID " +
                    HexOr(pat["networkPid"], 4));
        for (const Json& p : pat["programs"])
            Line(1, "program " + HexOr(p["programNumber"], 4) + "  PMT PID " + HexOr(p["pmtPid"], 4));
    }

    void Pmts(const Json& pmts)
    {
        for (const Json& pmt : pmts) {
            Line(0, "PMT  program " + HexOr(pmt["programNumber"], 4) + " on PID " + HexOr(pmt["pid"], 4) +
                        ", version " + Value(pmt["version"]) + ", PCR PID " + HexOr(pmt["pcrPid"], 4));
            Descriptors(1, pmt["descriptors"]);
            for (const Json& s : pmt["streams"]) {
                const std::string summary = s.value("summary", std::string());
                Line(1, "stream type " + Field(s, "streamType") + "  PID " + HexOr(s["pid"], 4) +
                            (summary.empty() ? "" : "  " + summary));
                Descriptors(2, s["descriptors"]);
            }
        }
    }

    void Nits(const Json& nits)
    {
        for (const Json& nit : nits) {
            Line(0, "NIT " + nit["tableId"].get<std::string>() + "  network " + HexOr(nit["networkId"], 4));
            Descriptors(1, nit["descriptors"]);
            TransportStreams(1, nit["transportStreams"]);
        }
    }

    // Freesat's numbers of a service, region by region: ", region 1: 101, region 2: 952".
    static std::string RegionNumbers(const Json& service)
    {
        std::string out;
        if (service.contains("channelNumbersByRegion"))
            for (const Json& n : service["channelNumbersByRegion"])
                out += ", region " + Value(n["region"]) + ": " + Value(n["channelNumber"]);
        return out;
    }

    void TransportStreams(int depth, const Json& streams)
    {
        for (const Json& ts : streams) {
            Line(depth, "transport stream " + HexOr(ts["transportStreamId"], 4) + ", original network " +
                            HexOr(ts["originalNetworkId"], 4));
            if (ts.contains("isdbScan"))
                Line(depth + 1, IsdbScanLine(ts["isdbScan"]));
            Descriptors(depth + 1, ts["descriptors"]);
            for (const Json& s : ts["services"]) {
                const Json& tag = s["channelNumberTag"];
                Line(depth + 1, "service " + HexOr(s["serviceId"], 4) + "  type " + Field(s, "serviceType") +
                                    "  channel " + Value(s["channelNumber"]) +
                                    (tag.is_null() ? "" : " (from " + tag.get<std::string>() + ")") +
                                    RegionNumbers(s));
            }
        }
    }

    void Cat(const Json& cat)
    {
        if (cat.is_null())
            return;
        Line(0, "CAT  complete " + Value(cat["complete"]));
        Descriptors(1, cat["descriptors"]);
    }

    void Bats(const Json& bats)
    {
        for (const Json& bat : bats) {
            Line(0, "BAT  bouquet " + HexOr(bat["bouquetId"], 4) + ", complete " + Value(bat["complete"]));
            Descriptors(1, bat["descriptors"]);
            TransportStreams(1, bat["transportStreams"]);
        }
    }

    void Sdts(const Json& sdts)
    {
        for (const Json& sdt : sdts) {
            Line(0, "SDT " + sdt["tableId"].get<std::string>() + "  original network " +
                        HexOr(sdt["originalNetworkId"], 4) + ", transport stream " +
                        HexOr(sdt["transportStreamId"], 4) + ", version " + Value(sdt["version"]));
            for (const Json& s : sdt["services"]) {
                Line(1, "service " + HexOr(s["serviceId"], 4) + " " + Value(s["name"]) + "  type " +
                            TreeValue("serviceType", s["type"], s.value("typeName", Json())) + ", provider " +
                            Value(s["provider"]) + ", running " + Field(s, "runningStatus") + ", free CA " +
                            Value(s["freeCA"]));
                Descriptors(2, s["descriptors"]);
            }
        }
    }

    void Events(const Json& services)
    {
        for (const Json& service : services) {
            Line(0, "EIT  service " + HexOr(service["serviceId"], 4) + " (original network " +
                        HexOr(service["originalNetworkId"], 4) + ", transport stream " +
                        HexOr(service["transportStreamId"], 4) + ")");
            for (const Json& e : service["events"]) {
                Line(1, e["tableId"].get<std::string>() + " event " + HexOr(e["eventId"], 4) + "  " +
                            TimeAndLocalText(e["start"], e.value("startLocal", Json())) + "  " + Field(e, "duration") +
                            "  running " + Field(e, "runningStatus") + ", free CA " + Value(e["freeCA"]));
                Descriptors(2, e["descriptors"]);
                if (e.contains("undecoded"))
                    Line(2, "undecoded: " + e["undecoded"].get<std::string>());
                if (e.contains("guide"))
                    Object(2, "guide:", e["guide"]);
            }
        }
    }

    void Times(const Json& tdt, const Json& tot)
    {
        if (!tdt.is_null())
            Line(0, "TDT  " + TimeAndLocalText(tdt["time"], tdt.value("local", Json())));
        if (!tot.is_null()) {
            Line(0, "TOT  " + TimeAndLocalText(tot["time"], tot.value("local", Json())));
            Descriptors(1, tot["descriptors"]);
        }
    }

    void Lcn(const Json& lcn)
    {
        if (lcn.is_null())
            return;
        std::string pids;
        for (const Json& pid : lcn["pids"])
            pids += " " + HexOr(pid, 4);
        Line(0, "LCN table on PID" + pids);
        for (const Json& r : lcn["records"])
            Object(1, "record", r);
    }

    void Sit(const Json& sit)
    {
        if (sit.is_null())
            return;
        Line(0, "SIT  " + Value(sit["programCount"]) + " programs in the last section");
        Descriptors(1, sit["descriptors"]);
        for (const Json& p : sit["programs"])
            Object(1, "program", p);
    }

    void Summary(const Json& summary)
    {
        if (summary.is_null())
            return;
        const Json& d = summary["demux"];
        Line(0, "Summary");
        Line(1, "demux: " + Value(d["packets"]) + " packets of " + Value(d["packetSize"]) + " bytes, " +
                    Value(d["sections"]) + " sections, " + Value(d["syncLosses"]) + " sync losses, " +
                    Value(d["skippedBytes"]) + " bytes skipped, " + Value(d["continuityErrors"]) +
                    " continuity errors, " + Value(d["crcErrors"]) + " CRC errors, " + Value(d["droppedSections"]) +
                    " sections dropped, " + Value(d["truncatedPackets"]) + " truncated");
        Line(1, "routing: " + Value(summary["routing"]["routed"]) + " sections to parsers, " +
                    Value(summary["routing"]["noParser"]) + " without parser");
        Line(1, Format(kPidRow, {"PID", "packets", "CC errors", "TEI", "sections", "CRC errors", "dropped"}));
        for (const Json& p : summary["pids"])
            Line(1, Format(kPidRow, {HexOr(p["pid"], 4), Value(p["packets"]), Value(p["continuityErrors"]),
                                     Value(p["transportErrors"]), Value(p["sections"]), Value(p["crcErrors"]),
                                     Value(p["droppedSections"])}));
        Line(1, Format(kTableRow, {"PID", "table", "sections", "CRC errors", "complete", "versions", "parser"}));
        for (const Json& t : summary["tables"]) {
            std::string versions;
            for (const Json& v : t["versions"])
                versions += (versions.empty() ? "" : ",") + Value(v);
            const std::string name = t["table"].get<std::string>();
            const std::string table = t["tableId"].get<std::string>() + (name.empty() ? "" : " " + name);
            const std::string parser = t["parser"].is_null() ? "no parser" : t["parser"].get<std::string>();
            Line(1, Format(kTableRow, {HexOr(t["pid"], 4), table, Value(t["sections"]), Value(t["crcErrors"]),
                                       Value(t["complete"]), versions.empty() ? "-" : versions, parser}));
        }
    }

private:
    // Seven columns of a summary table.
    static std::string Format(const char* format, const std::array<std::string, 7>& c)
    {
        char buffer[256];
        std::snprintf(buffer, sizeof buffer, format, c[0].c_str(), c[1].c_str(), c[2].c_str(), c[3].c_str(),
                      c[4].c_str(), c[5].c_str(), c[6].c_str());
        return buffer;
    }

    std::ostream& m_out;
};

} // namespace

void RenderJson(const Json& model, std::ostream& out)
{
    out << model.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
}

void RenderObject(const std::string& head, const Json& fields, int depth, std::ostream& out)
{
    Tree(out).Object(depth, head, fields);
}

void RenderDescriptors(const Json& list, int depth, std::ostream& out)
{
    Tree(out).Descriptors(depth, list);
}

void RenderTree(const Json& model, std::ostream& out)
{
    Tree tree(out);
    const Json& input = model["input"];
    tree.Line(0, "Input  " + input["kind"].get<std::string>() + ", " + Value(input["bytes"]) + " bytes" +
                     (input.contains("system") ? ", " + input["system"].get<std::string>() + " names" : ""));
    // A view of the model may leave parts out.
    static const Json kAbsent;
    const auto part = [&](const char* key) -> const Json& { return model.contains(key) ? model[key] : kAbsent; };
    tree.Pat(part("pat"));
    tree.Pmts(part("pmts"));
    tree.Cat(part("cat"));
    tree.Nits(part("nits"));
    tree.Bats(part("bats"));
    tree.Sdts(part("sdts"));
    tree.Events(part("eit"));
    tree.Times(part("tdt"), part("tot"));
    tree.Lcn(part("lcn"));
    RenderEwsTree(part("ews"), out);
    RenderIsdbTree(part("isdb"), out);
    RenderFreesatPostCodesTree(part("freesatPostCodes"), out);
    tree.Sit(part("sit"));
    RenderAitTree(part("ait"), out);
    RenderSgtTree(part("sgt"), out);
    RenderRctTree(part("rct"), out);
    RenderTkgsTree(part("tkgs"), out);
    RenderAtscTree(part("atsc"), out);
    RenderFastScanTree(part("fastScan"), out);
    RenderUntTree(part("unt"), out);
    tree.Summary(part("summary"));
}

} // namespace zuminspect
