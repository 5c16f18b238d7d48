#ifndef ZUM_TOOLS_INSPECT_RENDERERS_H
#define ZUM_TOOLS_INSPECT_RENDERERS_H

// The model and its two renderings. Keys below are stable: new keys may be
// added, none renamed or removed. Ids, PIDs and counts are JSON numbers;
// table ids and descriptor tags are hex strings ("0x4E"); times are ISO 8601
// UTC strings; a PID is null for input read as a file of sections.
// A code point with a name in the standards has the name beside it under the
// key with "Name" appended ("serviceType": 25, "serviceTypeName": "H.264/AVC HD
// digital television service"); the names come from tools/inspect/Names.h for the
// receiver's broadcast system, "input"."system". A value that the stream leaves
// at its reserved all-ones ("not given") is null. With a TOT whose local time
// offset is known, times have a local twin: "local", "startLocal" (ISO 8601 with
// the offset, "2026-11-14T02:00:00+01:00"). The tree shows ids and PIDs in hex,
// units as read (MHz, kSym/s, h:mm:ss), and each name in parentheses.
//
// {
//   "input":   {"kind": "transport stream"|"sections", "packetSize": 188|192|204|null, "bytes",
//               "system": "DVB"|"ATSC"|"ISDB"},
//   "pat":     null | {"transportStreamId", "networkPid": n|null, "programs": [{"programNumber", "pmtPid"}]},
//   "pmts":    [{"programNumber", "pid", "version", "pcrPid", "descriptors": [D],
//                "streams": [{"streamType", "streamTypeName", "pid", "descriptors": [D]}]}],
//   "nits":    [{"tableId", "networkId", "descriptors": [D],
//                "transportStreams": [{"transportStreamId", "originalNetworkId", "descriptors": [D],
//                  "services": [{"serviceId", "serviceType", "serviceTypeName", "channelNumber": n|null,
//                                "channelNumberTag": tag of the answering descriptor|null}]}]}],
//   "cat":     null | {"complete", "descriptors": [D]},
//   "bats":    [{"bouquetId", "complete", "descriptors": [D], "transportStreams": [as in "nits"]}],
//   "sdts":    [{"tableId", "originalNetworkId", "transportStreamId", "version",
//                "services": [{"serviceId", "type", "typeName", "provider", "name" (null without a service
//                  descriptor), "runningStatus", "runningStatusName", "freeCA", "eitSchedule", "eitPresentFollowing",
//                  "descriptors": [D]}]}],
//   "eit":     [{"originalNetworkId", "transportStreamId", "serviceId",
//                "events": [{"tableId", "section", "eventId", "start": time|null, "startLocal" (with a TOT),
//                  "duration": seconds|null, "runningStatus", "runningStatusName", "freeCA", "descriptors": [D],
//                  "undecoded": hex (only when the loop gave no descriptor),
//                  "guide" (with --guide, see GuideView.h)}]}],
//   "tdt":     null | {"time", "local" (with a TOT)},
//   "tot":     null | {"time", "local", "descriptors": [D]},
//   "lcn":     null | {"pids": [..], "header": [3 numbers],
//                      "records": [{"key": [3 numbers], "channelNumber", "visible", "extra"}]},
//   "ews":     null | the emergency warning table, schema in inspect/EwsView.h,
//   "sit":     see SitView.h,
//   "ait":     the AITs by PID, schema in inspect/AitView.h,
//   "tkgs":    the TKGS channel systems, schema in inspect/TkgsView.h,
//   "atsc":    null | the PSIP tables, see AtscView.h,
//   "freesatPostCodes": see FreesatView.h,
//   "fastScan", "unt": see OperatorTablesView.h,
//   "summary": {"demux": {"packetSize", "packets", "syncLosses", "skippedBytes", "truncatedPackets",
//                         "continuityErrors", "transportErrors", "duplicates", "sections", "crcErrors",
//                         "droppedSections", "unfinishedSections"},
//               "routing": {"routed", "noParser"},
//               "pids": [{"pid", "packets", "continuityErrors", "transportErrors", "sections", "crcErrors",
//                         "droppedSections"}],
//               "tables": [{"pid", "tableId", "table": name|"", "parser": class|null, "sections",
//                           "versions": [..], "complete": bool|null (null: no parser), "crcErrors"}]}
// }
//
// D, a descriptor: {"tag", "class", "fields": {...}} when a describer knows the class,
// else {"tag", "class", "raw": "hex bytes"}. A frequency that the stream sends as
// all ones (not given) is the string "not given" in place of its number.

#include <ostream>
#include <string>

#include "inspect/Json.h"

namespace zuminspect {

void RenderJson(const Json& model, std::ostream& out);
// The same model as an indented tree for reading.
void RenderTree(const Json& model, std::ostream& out);
// One object as the tree shows it: scalars on the head line, lists and
// objects indented below; for models of other inputs.
void RenderObject(const std::string& head, const Json& fields, int depth, std::ostream& out);
// A list of D as tree lines at `depth`.
void RenderDescriptors(const Json& list, int depth, std::ostream& out);

} // namespace zuminspect

#endif
