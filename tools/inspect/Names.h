#ifndef ZUM_TOOLS_INSPECT_NAMES_H
#define ZUM_TOOLS_INSPECT_NAMES_H

// The names that the published standards give to code points, one table per
// code space, shared by the tree and the JSON (where a name is an extra field
// beside the number, the key with "Name" appended). Every lookup answers a
// name: a code that the standard leaves open reads "reserved" or "user
// defined" as the standard says.
//
// A family added to the inspector puts its tables here, beside these.

#include <string>

#include <zum-platform/Codes.h>

#include "inspect/TableIds.h"

namespace zuminspect {

// The broadcast system that the receiver's country picks, as the library's
// descriptor loops pick it.
const char* SystemName(BroadcastSystem system);

// ---- tables and streams (ISO/IEC 13818-1, EN 300 468, ATSC A/65, ARIB STD-B10)
// A table id on a PID; the PID tells the private tables of this receiver apart
// (0x85 is the channel number table off the EIT PID). kAnyPid: no PID known.
constexpr unsigned int kAnyPid = 0xFFFF;
std::string TableIdName(unsigned int tableId, BroadcastSystem system, unsigned int pid = kAnyPid);
// True when `text` names the table id, by its hex or decimal value, its full
// name or its first word ("eit" names every EIT), case aside.
bool TableMatches(const std::string& text, unsigned int tableId, BroadcastSystem system, unsigned int pid = kAnyPid);
std::string StreamTypeName(unsigned int streamType, BroadcastSystem system);

// ---- services and events (EN 300 468, ARIB STD-B10, ATSC A/65) ------------
std::string ServiceTypeName(unsigned int serviceType, BroadcastSystem system);
// -1, the library's value for a field not read, is "not given".
std::string RunningStatusName(int runningStatus);
// content_nibble_level_1 alone, and with content_nibble_level_2.
std::string ContentName(unsigned int level1, BroadcastSystem system);
std::string ContentName(unsigned int level1, unsigned int level2, BroadcastSystem system);
std::string ComponentName(unsigned int streamContent, unsigned int streamContentExt, unsigned int componentType);
std::string ParentalRatingName(unsigned int rating);
std::string TeletextTypeName(unsigned int type);
std::string AudioTypeName(unsigned int audioType);
std::string LinkageTypeName(unsigned int linkageType);
// control_remote_access_over_internet of the FTA content management descriptor.
std::string ControlRemoteAccessName(unsigned int code);
// CA_system_id by the ranges of ETSI TS 101 162.
std::string CaSystemName(unsigned int caSystemId);

// ---- delivery systems (EN 300 468) -----------------------------------------
// The library's front-end values: modulation and inner code rate as the
// satellite and T2 descriptors hand them out, bandwidth of the T2 descriptor.
std::string FrontEndModulationName(int modulation);
std::string FrontEndCodeRateName(int codeRate);
std::string FrontEndBandwidthName(int bandwidth);
// Code points as sent.
std::string PolarisationName(unsigned int code);
std::string RollOffName(unsigned int code);
std::string SatelliteModulationSystemName(unsigned int code);
std::string CableModulationName(unsigned int code);
std::string OuterFecName(unsigned int code);
std::string InnerFecName(unsigned int code);
std::string TerrestrialBandwidthName(unsigned int code);
std::string ConstellationName(unsigned int code);
std::string HierarchyName(unsigned int code);
std::string TerrestrialCodeRateName(unsigned int code);
std::string GuardIntervalName(unsigned int code);      // DVB-T
std::string TransmissionModeName(unsigned int code);   // DVB-T
std::string T2GuardIntervalName(unsigned int code);
std::string T2TransmissionModeName(unsigned int code);
std::string SisoMisoName(unsigned int code);

// ---- next-generation audio (EN 300 468 AC-4 and audio preselection) --------
std::string AC4ChannelModeName(unsigned int code);
std::string AudioRenderingIndicationName(unsigned int code);

// ---- ATSC (A/65) -----------------------------------------------------------
std::string AtscModulationName(unsigned int modulationMode);
std::string AtscServiceTypeName(unsigned int serviceType);

} // namespace zuminspect

#endif
