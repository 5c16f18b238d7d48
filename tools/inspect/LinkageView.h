#ifndef ZUM_TOOLS_INSPECT_LINKAGEVIEW_H
#define ZUM_TOOLS_INSPECT_LINKAGEVIEW_H

// The "fields" of the linkage family (linkage, data broadcast, data broadcast
// id, SSU location) and of the CA descriptor: linkage types by name, target
// ids, update OUIs and fast-scan operators.

#include "inspect/Json.h"
#include "inspect/Text.h"

class TCDescLinkage;
class TCDescDataBroadcast;
class TCDescDataBroadcastId;
class TCDescSSULocation;
class TCDescCA;

namespace zuminspect {

Json LinkageFields(const TCDescLinkage& d, const TextDecoder& text);
Json DataBroadcastFields(const TCDescDataBroadcast& d, const TextDecoder& text);
Json DataBroadcastIdFields(const TCDescDataBroadcastId& d, const TextDecoder& text);
Json SSULocationFields(const TCDescSSULocation& d, const TextDecoder& text);
Json CAFields(const TCDescCA& d, const TextDecoder& text);

} // namespace zuminspect

#endif
