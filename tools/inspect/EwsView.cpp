#include "inspect/EwsView.h"

#include <map>
#include <string>
#include <vector>

#include "inspect/Router.h"
#include "isdb/DescEmergencyInformation.h"
#include "isdb/EWSParser.h"

namespace zuminspect {

namespace {

std::string Decoded(const TextDecoder& text, const std::string& raw)
{
    return text.Decode(reinterpret_cast<const unsigned char*>(raw.data()), raw.size());
}

Json Disaster(const TCEWSCode::TSDisasterCode& d, const TextDecoder& text)
{
    return {{"disasterCode", d.disasterCode},
            {"codeByte0", d.codeByte0},
            {"codeByte1", d.codeByte1},
            {"texts", {Decoded(text, d.text1), Decoded(text, d.text2), Decoded(text, d.text3), Decoded(text, d.text4)}}};
}

std::string Quoted(const Json& s)
{
    return s.dump(-1, ' ', false, Json::error_handler_t::replace);
}

// The texts that are there, quoted, one after the other.
std::string Texts(const Json& texts)
{
    std::string out;
    for (const Json& t : texts)
        if (!t.get<std::string>().empty())
            out += (out.empty() ? "" : " / ") + Quoted(t);
    return out.empty() ? "(no text)" : out;
}

std::string HexOf(const Json& v, int digits)
{
    return Hex(v.get<unsigned long long>(), digits);
}

void Line(std::ostream& out, int depth, const std::string& text)
{
    out << std::string(static_cast<size_t>(depth * 2), ' ') << text << '\n';
}

std::string DisasterLine(const Json& d)
{
    return HexOf(d["disasterCode"], 4) + " " + Texts(d["texts"]) + "  (code bytes " + HexOf(d["codeByte0"], 2) + " " +
           HexOf(d["codeByte1"], 2) + ")";
}

} // namespace

Json EwsModel(const Router& router, const TextDecoder& text)
{
    const TCEWSParser* ews = router.Ews();
    if (ews == nullptr)
        return nullptr;
    Json pids = Json::array();
    for (uint16_t pid : router.EwsPids())
        pids.push_back(pid);

    std::vector<TCEWSRegion::TSLocationCode*> list;
    ews->Locations(list);
    Json locations = Json::array();
    for (TCEWSRegion::TSLocationCode* l : list) {
        locations.push_back({{"code", l->code},
                             {"description", Decoded(text, l->description)},
                             {"disasterCode", l->disasterCode},
                             {"typeCode", l->typeCode},
                             {"packageId", l->packageId}});
        delete l;
    }

    std::map<unsigned short, TCEWSCode::TSDisasterCode*> records;
    ews->Disasters(records);
    Json disasters = Json::array();
    for (const auto& entry : records) {
        disasters.push_back(Disaster(*entry.second, text));
        delete entry.second;
    }
    TCEWSCode::TSDisasterCode current;
    const bool known = ews->Disaster(ews->DisasterCode(), current);

    std::vector<std::string> messages;
    ews->InformationMessages(messages);
    Json texts = Json::array();
    for (const std::string& m : messages)
        texts.push_back(Decoded(text, m));

    return {{"pids", pids},
            {"complete", {{"TRDW", ews->IsValidTRDW()}, {"TCDW", ews->IsValidTCDW()}, {"TMDW", ews->IsValidTMDW()}}},
            {"crc", {{"TRDW", ews->TRDWCrc()}, {"TCDW", ews->TCDWCrc()}, {"TMDW", ews->TMDWCrc()}}},
            {"disasterCode", ews->DisasterCode()},
            {"locationTypeCode", ews->LocationTypeCode()},
            {"packageId", ews->PackageId()},
            {"disaster", known ? Disaster(current, text) : Json(nullptr)},
            {"locations", locations},
            {"message", {{"headerByte", ews->MessageHeaderByte()}, {"messageKey", ews->MessageKey()}, {"texts", texts}}},
            {"disasters", disasters}};
}

void RenderEwsTree(const Json& ews, std::ostream& out)
{
    if (ews.is_null())
        return;
    std::string pids;
    for (const Json& pid : ews["pids"])
        pids += " " + HexOf(pid, 4);
    std::string state;
    for (const auto& item : ews["complete"].items())
        state += (state.empty() ? "" : ", ") + item.key() + (item.value().get<bool>() ? " complete" : " incomplete");
    Line(out, 0, "EMERGENCY WARNING  on PID" + pids + "  (" + state + ")");
    const Json& disaster = ews["disaster"];
    Line(out, 1, "disaster " + (disaster.is_null() ? HexOf(ews["disasterCode"], 4) + " (not in TCDW)"
                                                    : DisasterLine(disaster)));
    Line(out, 1, "where  (location type " + HexOf(ews["locationTypeCode"], 2) + ", package " +
                     HexOf(ews["packageId"], 2) + ")");
    for (const Json& l : ews["locations"])
        Line(out, 2, std::to_string(l["code"].get<unsigned>()) + " " + Quoted(l["description"]));
    const Json& message = ews["message"];
    Line(out, 1, "message  (key " + HexOf(message["messageKey"], 2) + ", header " + HexOf(message["headerByte"], 2) +
                     ")");
    for (const Json& t : message["texts"])
        Line(out, 2, Quoted(t));
    Line(out, 1, "known disasters");
    for (const Json& d : ews["disasters"])
        Line(out, 2, DisasterLine(d));
}

Json DescribeEmergencyInformation(const TCDescEmergencyInformation& d, const TextDecoder& /*text*/)
{
    Json loops = Json::array();
    unsigned short serviceId = 0;
    for (unsigned long i = 0; i < d.NumOfDescLoop() && d.GetServiceID(i, serviceId); ++i) {
        bool startEnd = false, signalLevel = false;
        unsigned char count = 0;
        d.GetStartEndFlag(i, startEnd);
        d.GetSignalLevel(i, signalLevel);
        d.GetAreaCodeLength(i, count);
        Json areas = Json::array();
        for (unsigned long a = 0; a < count; ++a) {
            unsigned short code = 0;
            EJapanWideArea wide = EJAPAN_WIDE_AREA_NONE;
            EJapanPrefecture prefecture = EJAPAN_PREFECTURE_NONE;
            d.GetAreaCode(i, a, code);
            const bool mapped = d.GetAreaCode(i, a, wide, prefecture);
            areas.push_back({{"code", Hex(code, 3)},
                             {"wideArea", mapped ? Json(static_cast<int>(wide)) : Json(nullptr)},
                             {"prefecture", mapped ? Json(static_cast<int>(prefecture)) : Json(nullptr)}});
        }
        loops.push_back(
            {{"serviceId", serviceId}, {"startEnd", startEnd}, {"signalLevel", signalLevel}, {"areaCodes", areas}});
    }
    return {{"loops", loops}};
}

} // namespace zuminspect
