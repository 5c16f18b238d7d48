#ifndef ZUM_TOOLS_INSPECT_FREESATVIEW_H
#define ZUM_TOOLS_INSPECT_FREESATVIEW_H

// The Freesat descriptors (0xD0 to 0xDC under FSAT) and their public relatives
// (guidance 0x89, FTA content management 0x7E) as fields:
//   0xD3: {"services": [{"serviceId", "freesatId"}],
//          "regions": [{"region", "entries": [{"serviceId", "channelNumber", "visible",
//                                              "numericSelection", "customisable"}]}]}
//   names: {"names": [{"language", "name", ...}]}; the others their fields by name.

#include <ostream>

#include "inspect/Json.h"
#include "inspect/Text.h"

class TCBaseDesc;
class IDescLogicalChannel;
class TCDVBFSatPostCodeParser;

namespace zuminspect {

// The fields of a Freesat or guidance descriptor; null for any other class.
Json DescribeFreesat(const TCBaseDesc& desc, const TextDecoder& text);

// A service's Freesat numbers, [{"region", "channelNumber"}], when `lcn` is
// Freesat's region-based descriptor; null otherwise.
Json FreesatNumbersByRegion(const IDescLogicalChannel* lcn, unsigned short serviceId);

// The postcode tables: null | {"tree": {"bytes", "complete"} , "regionKeys": {...}}.
Json FreesatPostCodes(const TCDVBFSatPostCodeParser* postcodes);
void RenderFreesatPostCodesTree(const Json& postcodes, std::ostream& out);

} // namespace zuminspect

#endif
