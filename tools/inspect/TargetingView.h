#ifndef ZUM_TOOLS_INSPECT_TARGETINGVIEW_H
#define ZUM_TOOLS_INSPECT_TARGETINGVIEW_H

// The content and targeting descriptors as fields: image icons (type, size,
// locator), URI linkage, CRIDs, default authority, content identifier,
// network change notices, messages, target regions by country and code,
// their names, relocated transports, SO properties and service prominence.
// And the related content table: {"tables": [{"id", "complete", "links": [...],
// "descriptors"}]}.

#include <ostream>

#include "inspect/Json.h"
#include "inspect/Text.h"

class TCBaseDesc;
class TCDVBRCTParser;

namespace zuminspect {

// The fields of a descriptor of this family; null for any other class.
Json DescribeTargeting(const TCBaseDesc& desc, const TextDecoder& text);

// The related content tables; null without a parser.
Json DescribeRct(const TCDVBRCTParser* rct, const TextDecoder& text);
void RenderRctTree(const Json& rct, std::ostream& out);

} // namespace zuminspect

#endif
