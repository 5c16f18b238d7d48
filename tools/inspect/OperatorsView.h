#ifndef ZUM_TOOLS_INSPECT_OPERATORSVIEW_H
#define ZUM_TOOLS_INSPECT_OPERATORSVIEW_H

// The operators' private tables and descriptors in the model.
//
// The Astra SGT as a channel list:
// "sgt": null | {"complete": bool, "lists": [{"id", "name", "language", "named": bool, "complete": bool,
//                "descriptors": [D], "services": [{"channel", "serviceId", "transportStreamId",
//                "originalNetworkId", "visible", "new", "genre", "descriptors": [D]}]}]}
// The lists in ascending id, named or not; the services in stream order.

#include <ostream>

#include "inspect/Json.h"
#include "inspect/Text.h"

class TCDVBSGTParser;
class TCDescAstraServiceListName;
class TCDescAstraBouquetList;
class TCDescAstraVirtualServiceId;
class TCDescCICAMVirtualChannel;
class TCDescCIPlusAdvancedService;
class TCDescCIPlusContentLabel;
class TCDescCIPlusProtection;
class TCDescCIPlusService;
class TCDescDSmartIdentifier;
class TCDescDSmartSatelliteDeliverySystem;
class TCDescDigiturkServiceTheme;
class TCDescDishTVGenre;
class TCDescDishTVSVL;
class TCDescGTPLGenreList;
class TCDescGTPLGenreOfService;
class TCDescMRP;
class TCDescTelekomGrid;
class TCDescTricolorBouquetList;
class TCDescTricolorListType;
class TCDescTricolorRegionName;
class TCDescUKDTTServiceAttribute;

namespace zuminspect {

Json DescribeSgt(const TCDVBSGTParser* sgt, const TextDecoder& text);
void RenderSgtTree(const Json& sgt, std::ostream& out);

// The fields of the operators' private descriptors.
Json DescribeAstraServiceListName(const TCDescAstraServiceListName& d, const TextDecoder& text);
Json DescribeAstraBouquetList(const TCDescAstraBouquetList& d, const TextDecoder& text);
Json DescribeAstraVirtualServiceId(const TCDescAstraVirtualServiceId& d, const TextDecoder& text);
Json DescribeCIPlusContentLabel(const TCDescCIPlusContentLabel& d, const TextDecoder& text);
Json DescribeCIPlusProtection(const TCDescCIPlusProtection& d, const TextDecoder& text);
Json DescribeCIPlusService(const TCDescCIPlusService& d, const TextDecoder& text);
Json DescribeCIPlusAdvancedService(const TCDescCIPlusAdvancedService& d, const TextDecoder& text);
Json DescribeCICAMVirtualChannel(const TCDescCICAMVirtualChannel& d, const TextDecoder& text);
Json DescribeDSmartIdentifier(const TCDescDSmartIdentifier& d, const TextDecoder& text);
Json DescribeDSmartSatelliteDelivery(const TCDescDSmartSatelliteDeliverySystem& d, const TextDecoder& text);
Json DescribeDigiturkServiceTheme(const TCDescDigiturkServiceTheme& d, const TextDecoder& text);
Json DescribeDishTVGenre(const TCDescDishTVGenre& d, const TextDecoder& text);
Json DescribeDishTVSVL(const TCDescDishTVSVL& d, const TextDecoder& text);
Json DescribeGTPLGenreList(const TCDescGTPLGenreList& d, const TextDecoder& text);
Json DescribeGTPLGenreOfService(const TCDescGTPLGenreOfService& d, const TextDecoder& text);
Json DescribeMRP(const TCDescMRP& d, const TextDecoder& text);
Json DescribeTelekomGrid(const TCDescTelekomGrid& d, const TextDecoder& text);
Json DescribeTricolorBouquetList(const TCDescTricolorBouquetList& d, const TextDecoder& text);
Json DescribeTricolorRegionName(const TCDescTricolorRegionName& d, const TextDecoder& text);
Json DescribeTricolorListType(const TCDescTricolorListType& d, const TextDecoder& text);
Json DescribeUKDTTServiceAttribute(const TCDescUKDTTServiceAttribute& d, const TextDecoder& text);

} // namespace zuminspect

#endif
