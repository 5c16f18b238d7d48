#ifndef ZUM_TOOLS_INSPECT_VIEWS_H
#define ZUM_TOOLS_INSPECT_VIEWS_H

// What the command line asks for beside the whole model: filters that keep
// the parts of the model of one PID, table or service, and the short views,
// the summary alone, a scan result of one line per service, and a guide of
// one line per event. All of them read the model only, so a family that
// lands in the model is filtered by the same rules:
//  - a top-level entry, or an element of a top-level list, with a "tableId"
//    is kept when a table of that id on a selected PID is selected; "pat",
//    "pmts", "tdt", "tot", "lcn" and "eit" (per event) by their known tables;
//    any other entry goes when a PID or table filter is set;
//  - under a service filter, elements with a "serviceId" (or a PAT or PMT
//    "programNumber") of another service go, and so do lists left empty.

#include <optional>
#include <ostream>
#include <set>
#include <string>

#include "inspect/Json.h"

namespace zuminspect {

struct ModelFilter {
    std::optional<unsigned int> pid;
    std::string table;                  // id or name; empty for all
    std::set<unsigned int> serviceIds;  // empty for all
};

// The service ids that `text` names: a number, else the SDT names equal to it
// (case aside), else those that contain it. Empty when none does.
std::set<unsigned int> ResolveServices(const Json& model, const std::string& text);

Json FilterModel(const Json& model, const ModelFilter& filter);

// {"input", "summary"} of the model.
Json SummaryOnly(const Json& model);

// [{"channelNumber": n|null, "originalNetworkId": n|null, "transportStreamId": n|null, "serviceId",
//   "name": text|null, "type": n|null, "typeName", "provider", "runningStatus": n|null, "runningStatusName",
//   "freeCA": bool|null, "caSystems": [{"caSystemId", "caSystemName"}]}], sorted by channel number, then
// by ids. From the SDTs, with channel numbers from the NIT, CA systems from the CA identifier of the
// SDT and the CA descriptors of the PMT, and the PAT's programs that no SDT names.
Json ServiceList(const Json& model);
// [{"originalNetworkId", "transportStreamId", "serviceId", "service": name|null, "eventId", "tableId",
//   "start": time|null, "startLocal" (with a TOT), "duration": seconds|null, "runningStatus",
//   "runningStatusName", "name": text|null, "genre": text|null, "rating": text|null}],
// one per event however many EIT tables carry it, sorted by service and start.
Json EventList(const Json& model);

void RenderServiceLines(const Json& services, std::ostream& out);
void RenderEventLines(const Json& events, std::ostream& out);

} // namespace zuminspect

#endif
