#include "inspect/Describers.h"

#include <cxxabi.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <list>
#include <map>
#include <memory>
#include <typeindex>
#include <typeinfo>
#include <unordered_map>
#include <vector>

#include "apps/DescApplication.h"
#include "apps/DescApplicationSignalling.h"
#include "apps/DescTransportProtocol.h"
#include "core/BaseDesc.h"
#include "inspect/OperatorsView.h"
#include "operators/DescAstraServiceListName.h"
#include "operators/DescCIPlusService.h"
#include "operators/DescDSmartIdentifier.h"
#include "operators/DescDigiturkServiceTheme.h"
#include "operators/DescDishTVGenre.h"
#include "operators/DescGTPLGenreList.h"
#include "operators/DescMRP.h"
#include "operators/DescTelekomGrid.h"
#include "operators/DescTricolorRegionName.h"
#include "operators/DescUKDTTServiceAttribute.h"
#include "core/DescriptorContainer.h"
#include "dvb/DescCAIdentifier.h"
#include "inspect/AtscView.h"
#include "dvb/DescComponent.h"
#include "dvb/DescContent.h"
#include "dvb/DescCountryAvailability.h"
#include "dvb/DescLanguage.h"
#include "dvb/DescLinkage.h"
#include "dvb/DescLocalTimeOffset.h"
#include "dvb/DescMultilingualNetworkName.h"
#include "dvb/DescNetworkName.h"
#include "dvb/DescPrivateDataSpecifier.h"
#include "dvb/DescSatelliteDeliverySystem.h"
#include "dvb/DescService.h"
#include "dvb/DescServiceMove.h"
#include "dvb/DescShortEvent.h"
#include "dvb/DescT2SystemDelivery.h"
#include "inspect/AvView.h"
#include "inspect/AitView.h"
#include "inspect/AudioView.h"
#include "inspect/EwsView.h"
#include "inspect/IsdbNetView.h"
#include "av/DescAC4.h"
#include "av/DescAPD.h"
#include "inspect/TkgsView.h"
#include "inspect/FreesatView.h"
#include "inspect/IsdbEventView.h"
#include "inspect/TargetingView.h"
#include "isdb/DescEmergencyInformation.h"
#include "operators/DescLogicalChannel.h"
#include "inspect/OperatorTablesView.h"
#include "operators/DescADBLCNv2Activate.h"
#include "operators/DescChannelOrder.h"
#include "operators/DescDigiturkLogicalChannel.h"
#include "inspect/LinkageView.h"
#include "operators/DescLogicalChannelV2.h"
#include "operators/DescTKGSComponent.h"
#include "psi/DescCA.h"

#include "inspect/Names.h"

namespace zuminspect {

namespace {

// Runs a copy accessor of the library into a buffer of the announced length
// and decodes what it wrote. `copy(buffer, &size)` follows the library's
// contract: capacity in, bytes written out.
// The descriptor as sent, tag and length first; empty when it cannot be copied.
std::vector<unsigned char> RawBytes(const TCBaseDesc& desc)
{
    std::vector<unsigned char> raw(static_cast<size_t>(std::max(desc.Length(), 0)));
    int size = static_cast<int>(raw.size());
    if (raw.empty() || !desc.GetDescriptor(raw.data(), &size) || size <= 0)
        return {};
    raw.resize(std::min(raw.size(), static_cast<size_t>(size)));
    return raw;
}

template <class Char, class Size, class Copy>
std::string CopiedText(const TextDecoder& text, long length, Copy copy)
{
    if (length <= 0)
        return std::string();
    std::vector<Char> buffer(static_cast<size_t>(length));
    Size size = static_cast<Size>(length);
    if (!copy(buffer.data(), &size) || size <= 0)
        return std::string();
    const size_t written = std::min(static_cast<size_t>(size), buffer.size());
    return text.Decode(reinterpret_cast<const unsigned char*>(buffer.data()), written);
}

// ---- names and services ----------------------------------------------------

Json NetworkName(const TCDescNetworkName& d, const TextDecoder& text)
{
    return {{"name", CopiedText<unsigned char, unsigned short>(text, d.NetworkNameLength(), [&](auto* b, auto* s) {
                 return d.NetworkNameText(b, s);
             })}};
}

std::string BouquetNameOf(const TCDescBouquetName& d, const TextDecoder& text)
{
    return CopiedText<unsigned char, unsigned short>(text, d.BouquetNameLength(),
                                                     [&](auto* b, auto* s) { return d.BouquetNameText(b, s); });
}

Json BouquetName(const TCDescBouquetName& d, const TextDecoder& text)
{
    return {{"name", BouquetNameOf(d, text)}};
}

Json MultilingualBouquetName(const TCDescMultilingualBouquetName& d, const TextDecoder& text)
{
    return {{"language", CodeText(d.Language())}, {"name", BouquetNameOf(d, text)}};
}

Json Service(const TCDescService& d, const TextDecoder& text)
{
    return {{"serviceType", d.ServiceType()},
            {"serviceTypeName", ServiceTypeName(d.ServiceType(), text.System())},
            {"provider", CopiedText<unsigned char, unsigned short>(text, d.ServiceProviderNameLength(),
                                                                   [&](auto* b, auto* s) {
                                                                       return d.ServiceProviderNameText(b, *s);
                                                                   })},
            {"name", CopiedText<unsigned char, unsigned short>(text, d.ServiceNameLength(), [&](auto* b, auto* s) {
                 return d.ServiceNameText(b, *s);
             })}};
}

Json ServiceList(const TCDescServiceList& d, const TextDecoder& text)
{
    Json services = Json::array();
    for (int i = 0; i < d.NumberOfLoop(); ++i)
        services.push_back({{"serviceId", d.ServiceId(i)},
                            {"serviceType", d.ServiceType(i)},
                            {"serviceTypeName", ServiceTypeName(d.ServiceType(i), text.System())}});
    return {{"services", services}};
}

Json ServiceMove(const TCDescServiceMove& d, const TextDecoder&)
{
    return {{"newOriginalNetworkId", d.NewOriginalNetworkId()},
            {"newTransportStreamId", d.NewTransportStreamId()},
            {"newServiceId", d.NewServiceId()}};
}

Json MultilingualNetworkName(const TCDescMultilingualNetworkName& d, const TextDecoder& text)
{
    Json names = Json::array();
    for (int i = 0; i < d.NumOfNetworkName(); ++i) {
        const CmultiNetworkNameDesc* n = d.NetworkNameDesc(i);
        names.push_back({{"language", CodeText(n->Language())},
                         {"name", CopiedText<unsigned char, unsigned short>(
                                      text, n->NetworkNameLength(),
                                      [&](auto* b, auto* s) { return n->NetworkNameChar(b, s); })}});
    }
    return {{"names", names}};
}

Json MultilingualServiceName(const TCDescMultilingualServiceName& d, const TextDecoder& text)
{
    Json names = Json::array();
    for (int i = 0; i < d.NumOfServiceName(); ++i) {
        const CmultiServiceNameDesc* n = d.ServiceNameDesc(i);
        names.push_back({{"language", CodeText(n->Language())},
                         {"provider", CopiedText<unsigned char, unsigned short>(
                                          text, n->ServiceProviderNameLength(),
                                          [&](auto* b, auto* s) { return n->ServiceProviderNameChar(b, s); })},
                         {"name", CopiedText<unsigned char, unsigned short>(
                                      text, n->ServiceNameLength(),
                                      [&](auto* b, auto* s) { return n->ServiceNameChar(b, s); })}});
    }
    return {{"names", names}};
}

// ---- delivery systems ------------------------------------------------------

// A frequency that the stream sends as all ones is not given: null, which the tree shows as "not given".
template <class T>
Json FrequencyOrNotGiven(T value, bool notGiven)
{
    return notGiven ? Json(nullptr) : Json(value);
}

// Whether the four payload bytes from `at` of the raw descriptor are all ones.
bool AllOnesAt(const TCBaseDesc& d, int at)
{
    unsigned char raw[257];
    int size = sizeof raw;
    if (!d.GetDescriptor(raw, &size) || size < 2 + at + 4)
        return false;
    return std::all_of(raw + 2 + at, raw + 2 + at + 4, [](unsigned char b) { return b == 0xFF; });
}

Json SatelliteDelivery(const TCDescSatelliteDeliverySystem& d, const TextDecoder&)
{
    Json out = {{"frequencyKHz", FrequencyOrNotGiven(d.Frequency(), AllOnesAt(d, 0))},
                {"symbolRateKsps", d.SymbolRate()},
                {"orbitalPosition", d.OrbitalPosition()},
                {"east", d.WestEastFlag() != 0},
                {"polarization", d.Polarization()},
                {"modulation", d.Modulation()},
                {"modulationName", FrontEndModulationName(d.Modulation())},
                {"fecInner", d.FecInner()},
                {"fecInnerName", FrontEndCodeRateName(d.FecInner())}};
    // The library keeps one polarisation bit and neither roll-off nor system: the byte as sent tells them.
    const std::vector<unsigned char> raw = RawBytes(d);
    if (raw.size() > 8) {
        const unsigned char flags = raw[8];
        out["polarizationName"] = PolarisationName((flags >> 5) & 0x03);
        out["modulationSystem"] = (flags >> 2) & 0x01;
        out["modulationSystemName"] = SatelliteModulationSystemName((flags >> 2) & 0x01);
        if ((flags & 0x04) != 0) {
            out["rollOff"] = (flags >> 3) & 0x03;
            out["rollOffName"] = RollOffName((flags >> 3) & 0x03);
        }
    }
    return out;
}

Json CableDelivery(const TCDescCableDeliverySystem& d, const TextDecoder&)
{
    return {{"frequencyKHz", FrequencyOrNotGiven(d.Frequency(), AllOnesAt(d, 0))},
            {"modulation", d.ModulationCode()},
            {"modulationName", CableModulationName(d.ModulationCode())},
            {"symbolRateKsps", d.SymbolRate()},
            {"fecOuter", d.FecOuter()},
            {"fecOuterName", OuterFecName(d.FecOuter())},
            {"fecInner", d.FecInner()},
            {"fecInnerName", InnerFecName(d.FecInner())}};
}

Json TerrestrialDelivery(const TCDescTerrestrialDeliverySystem& d, const TextDecoder&)
{
    return {{"centreFrequencyHz", FrequencyOrNotGiven(10ULL * d.CentreFrequency(), d.CentreFrequency() == 0xFFFFFFFF)},
            {"bandwidth", d.Bandwidth()},
            {"bandwidthName", TerrestrialBandwidthName(d.Bandwidth())},
            {"constellation", d.Constellation()},
            {"constellationName", ConstellationName(d.Constellation())},
            {"hierarchy", d.Hierarchy()},
            {"hierarchyName", HierarchyName(d.Hierarchy())},
            {"codeRateHP", d.CodeRateHP()},
            {"codeRateHPName", TerrestrialCodeRateName(d.CodeRateHP())},
            {"codeRateLP", d.CodeRateLP()},
            {"codeRateLPName", TerrestrialCodeRateName(d.CodeRateLP())},
            {"guardInterval", d.GuardInterval()},
            {"guardIntervalName", GuardIntervalName(d.GuardInterval())},
            {"transmissionMode", d.TransmissionMode()},
            {"transmissionModeName", TransmissionModeName(d.TransmissionMode())},
            {"otherFrequency", d.OtherFrequencyFlag() != 0}};
}

Json T2Delivery(const TCDescT2SystemDelivery& d, const TextDecoder&)
{
    std::map<unsigned short, std::vector<unsigned int>> cells;
    d.GetCellIdMap(cells);
    Json cellList = Json::array();
    for (const auto& cell : cells) {
        Json frequencies = Json::array();
        for (unsigned int f : cell.second)
            frequencies.push_back(FrequencyOrNotGiven(f, f == 0xFFFFFFFF));
        cellList.push_back({{"cellId", cell.first}, {"centreFrequencies", frequencies}});
    }
    return {{"plpId", d.PlpId()},
            {"t2SystemId", d.T2SystemId()},
            {"sisoMiso", d.SisoMiso()},
            {"sisoMisoName", SisoMisoName(d.SisoMiso())},
            {"bandwidth", d.Bandwidth()},
            {"bandwidthName", FrontEndBandwidthName(d.Bandwidth())},
            {"guardInterval", d.GuardInterval()},
            {"guardIntervalName", T2GuardIntervalName(d.GuardInterval())},
            {"transmissionMode", d.TransmissionMode()},
            {"transmissionModeName", T2TransmissionModeName(d.TransmissionMode())},
            {"otherFrequency", d.OtherFrequencyFlag() != 0},
            {"tfs", d.TfsFlag() != 0},
            {"cells", cellList}};
}

Json FrequencyList(const TCDescFrequencyList& d, const TextDecoder&)
{
    Json frequencies = Json::array();
    for (int i = 0; i < d.NumOfEntries(); ++i)
        frequencies.push_back(FrequencyOrNotGiven(d.CentreFrequency(i), AllOnesAt(d, 1 + 4 * i)));
    return {{"codingType", d.CodingType()}, {"frequenciesMHz", frequencies}};
}

// ---- events and components -------------------------------------------------

Json ShortEvent(const TCDescShortEvent& d, const TextDecoder& text)
{
    return {{"language", CodeText(d.Language())},
            {"name", CopiedText<unsigned char, unsigned short>(
                         text, d.EventNameLength(), [&](auto* b, auto* s) { return d.EventNameChar(b, s); })},
            {"text", CopiedText<unsigned char, unsigned short>(text, d.TextLength(),
                                                               [&](auto* b, auto* s) { return d.TextChar(b, s); })}};
}

Json ExtendedEvent(const TCDescExtendedEvent& d, const TextDecoder& text)
{
    Json items = Json::array();
    for (unsigned int i = 0; i < d.SizeOfItem(); ++i) {
        const CitemDesc* item = d.Item(i);
        items.push_back({{"description", CopiedText<char, int>(text, item->ItemDescriptionLength(),
                                                               [&](auto* b, auto* s) {
                                                                   return item->ItemDescriptionChar(b, s);
                                                               })},
                         {"item", CopiedText<char, int>(text, item->ItemLength(),
                                                        [&](auto* b, auto* s) { return item->ItemChar(b, s); })}});
    }
    return {{"number", d.DescriptorNumber()},
            {"lastNumber", d.LastDescriptorNumber()},
            {"language", CodeText(d.Language())},
            {"items", items},
            {"text", CopiedText<unsigned char, unsigned short>(text, d.TextLength(),
                                                               [&](auto* b, auto* s) { return d.TextChar(b, s); })}};
}

Json Component(const TCDescComponent& d, const TextDecoder& text)
{
    return {{"streamContent", d.StreamContent()},
            {"streamContentExt", d.StreamContentExt()},
            {"componentType", d.ComponentType()},
            {"componentTypeName", ComponentName(d.StreamContent(), d.StreamContentExt(), d.ComponentType())},
            {"componentTag", d.ComponentTag()},
            {"language", CodeText(d.Language())},
            {"text", CopiedText<char, int>(text, d.TextLength(), [&](auto* b, auto* s) { return d.TextChar(b, s); })}};
}

Json MultilingualComponent(const TCDescMultilingualComponent& d, const TextDecoder& text)
{
    Json texts = Json::array();
    for (int i = 0; i < d.NumOfComponentText(); ++i) {
        const CmultiComponentDesc* c = d.ComponentDesc(i);
        texts.push_back({{"language", CodeText(c->Language())},
                         {"text", CopiedText<char, int>(text, c->TextLength(),
                                                        [&](auto* b, auto* s) { return c->TextDescChar(b, s); })}});
    }
    return {{"componentTag", d.ComponentTag()}, {"texts", texts}};
}

Json StreamIdentifier(const TCDescStreamIdentifier& d, const TextDecoder&)
{
    return {{"componentTag", d.ComponentTag()}};
}

Json Content(const TCDescContent& d, const TextDecoder& text)
{
    Json entries = Json::array();
    for (int i = 0; i < d.Count(); ++i)
        entries.push_back({{"level1", d.ContentNibbleLevel1(i)},
                           {"level1Name", ContentName(d.ContentNibbleLevel1(i), text.System())},
                           {"level2", d.ContentNibbleLevel2(i)},
                           {"level2Name", ContentName(d.ContentNibbleLevel1(i), d.ContentNibbleLevel2(i), text.System())},
                           {"user1", d.UserNibble1(i)},
                           {"user2", d.UserNibble2(i)}});
    return {{"entries", entries}};
}

Json ParentalRating(const TCDescParentalRating& d, const TextDecoder&)
{
    Json ratings = Json::array();
    for (int i = 0; i < d.Count(); ++i)
        ratings.push_back({{"country", CodeText(d.CountryCode(i))},
                           {"rating", d.Rating(i)},
                           {"ratingName", ParentalRatingName(d.Rating(i))}});
    return {{"ratings", ratings}};
}

// ---- languages, subtitles, teletext ----------------------------------------

Json Language(const TCDescLanguage& d, const TextDecoder&)
{
    Json languages = Json::array();
    for (int i = 0; i < d.Count(); ++i) {
        ELanguageCode language = 0;
        EAudioType audioType = AUDIO_TYPE_UNDEFINED;
        if (d.Language(i, &language, &audioType))
            languages.push_back({{"language", CodeText(language)},
                                 {"audioType", static_cast<int>(audioType)},
                                 {"audioTypeName", AudioTypeName(static_cast<unsigned>(audioType))}});
    }
    return {{"languages", languages}};
}

Json Teletext(const TCDescTeletext& d, const TextDecoder&)
{
    Json pages = Json::array();
    for (int i = 0; i < d.Count(); ++i)
        pages.push_back({{"language", CodeText(d.Iso639LangCode(i))},
                         {"type", d.TeletextType(i)},
                         {"typeName", TeletextTypeName(d.TeletextType(i))},
                         {"magazine", d.TeletextMagzineNumber(i)},
                         {"page", d.TeletextPageNumber(i)}});
    return {{"pages", pages}};
}

Json Subtitling(const TCDescSubtitling& d, const TextDecoder&)
{
    Json subtitles = Json::array();
    for (int i = 0; i < d.Count(); ++i)
        subtitles.push_back({{"language", CodeText(d.Iso639LangCode(i))},
                             {"type", d.SubtitlingType(i)},
                             {"typeName", ComponentName(0x3, 0, d.SubtitlingType(i))},
                             {"compositionPageId", d.CompositionPageId(i)},
                             {"ancillaryPageId", d.AncillaryPageId(i)}});
    return {{"subtitles", subtitles}};
}

// ---- time, countries, access -----------------------------------------------

Json LocalTimeOffset(const TCDescLocalTimeOffset& d, const TextDecoder&)
{
    Json offsets = Json::array();
    for (int i = 0; i < d.NumOfEntries(); ++i)
        offsets.push_back({{"country", CodeText(d.CountryCode(i))},
                           {"region", d.CountryRegionId(i)},
                           {"negative", d.LocalTimeOffsetPolarity(i) != 0},
                           {"offsetMinutes", d.LocalTimeOffset(i)},
                           {"timeOfChange", IsoTimeSince1980(d.TimeOfChange(i))},
                           {"nextOffsetMinutes", d.NextTimeOffset(i)}});
    return {{"offsets", offsets}};
}

Json CountryAvailability(const TCDescCountryAvailability& d, const TextDecoder&)
{
    std::list<ECountryCode> codes;
    d.Countries(codes);
    Json countries = Json::array();
    for (ECountryCode code : codes)
        countries.push_back(CodeText(code));
    return {{"available", d.Availability()}, {"countries", countries}};
}

Json PrivateDataSpecifier(const TCDescPrivateDataSpecifier& d, const TextDecoder&)
{
    return {{"privateDataSpecifier", Hex(d.PrivateDataSpecifier(), 8)}};
}

Json CAIdentifier(const TCDescCAIdentifier& d, const TextDecoder&)
{
    Json ids = Json::array();
    Json names = Json::array();
    for (unsigned short id : d.CASystemIds()) {
        ids.push_back(Hex(id, 4));
        names.push_back(CaSystemName(id));
    }
    return {{"caSystemIds", ids}, {"caSystemNames", names}};
}

// ---- logical channels ------------------------------------------------------

Json LcnEntry(const _TTDescLCN& e)
{
    return {{"serviceId", e.serviceId}, {"channelNumber", e.channelNumber}, {"visible", e.visibleFlag != 0}};
}

Json LogicalChannel(const TCDescLogicalChannel& d, const TextDecoder&)
{
    // The walk moves a read position: it runs on a clone of its own.
    const std::unique_ptr<TCBaseDesc> fork(d.Fork());
    auto* walker = dynamic_cast<TCDescLogicalChannel*>(fork.get());
    Json entries = Json::array();
    for (const _TTDescLCN* e = walker ? walker->First(0) : nullptr; e != nullptr; e = walker->Next(0))
        entries.push_back(LcnEntry(*e));
    return {{"privateDataSpecifier", Hex(d.PrivateDataSpecifier(), 8)}, {"entries", entries}};
}

Json LogicalChannelV2(const TCDescLogicalChannelV2& d, const TextDecoder& text)
{
    std::map<unsigned int, std::string> names;
    d.GetChannelLists(names);
    Json lists = Json::array();
    for (const auto& list : names) {
        TCDescLogicalChannelV2::EntryMap map;
        d.GetLogicalChannelMapForChList(list.first, map);
        Json entries = Json::array();
        for (const auto& entry : map)
            entries.push_back(LcnEntry(entry.second));
        lists.push_back({{"id", list.first},
                         {"name", text.Decode(reinterpret_cast<const unsigned char*>(list.second.data()),
                                              list.second.size())},
                         {"entries", entries}});
    }
    ECountryCode country = 0;
    int selected = -1;
    Json result;
    if (d.GetChannelListCountryId(country, selected))
        result = {{"selectedList", selected}, {"selectedCountry", CodeText(country)}};
    else
        result = {{"selectedList", nullptr}, {"selectedCountry", nullptr}};
    result["lists"] = lists;
    return result;
}

// ---- the table -------------------------------------------------------------

using Describer = std::function<Json(const TCBaseDesc&, const TextDecoder&)>;
using DescriberTable = std::unordered_map<std::type_index, Describer>;

// Keyed by the exact class: a subclass without an entry of its own shows raw.
template <class T, class Fn>
void Register(DescriberTable& table, Fn fn)
{
    table[std::type_index(typeid(T))] = [fn](const TCBaseDesc& d, const TextDecoder& text) {
        return fn(static_cast<const T&>(d), text);
    };
}

DescriberTable MakeTable()
{
    DescriberTable t;
    Register<TCDescNetworkName>(t, NetworkName);
    Register<TCDescBouquetName>(t, BouquetName);
    Register<TCDescMultilingualBouquetName>(t, MultilingualBouquetName);
    Register<TCDescService>(t, Service);
    Register<TCDescServiceList>(t, ServiceList);
    Register<TCDescServiceMove>(t, ServiceMove);
    Register<TCDescMultilingualNetworkName>(t, MultilingualNetworkName);
    Register<TCDescMultilingualServiceName>(t, MultilingualServiceName);
    Register<TCDescSatelliteDeliverySystem>(t, SatelliteDelivery);
    Register<TCDescCableDeliverySystem>(t, CableDelivery);
    Register<TCDescTerrestrialDeliverySystem>(t, TerrestrialDelivery);
    Register<TCDescT2SystemDelivery>(t, T2Delivery);
    Register<TCDescFrequencyList>(t, FrequencyList);
    Register<TCDescShortEvent>(t, ShortEvent);
    Register<TCDescShortEventISDB>(t, ShortEvent);
    Register<TCDescExtendedEvent>(t, ExtendedEvent);
    Register<TCDescComponent>(t, Component);
    Register<TCDescMultilingualComponent>(t, MultilingualComponent);
    Register<TCDescStreamIdentifier>(t, StreamIdentifier);
    Register<TCDescContent>(t, Content);
    Register<TCDescParentalRating>(t, ParentalRating);
    Register<TCDescLanguage>(t, Language);
    Register<TCDescTeletext>(t, Teletext);
    Register<TCDescSubtitling>(t, Subtitling);
    Register<TCDescLocalTimeOffset>(t, LocalTimeOffset);
    Register<TCDescCountryAvailability>(t, CountryAvailability);
    Register<TCDescPrivateDataSpecifier>(t, PrivateDataSpecifier);
    Register<TCDescCAIdentifier>(t, CAIdentifier);
    Register<TCDescLogicalChannel>(t, LogicalChannel);
    Register<TCDescLogicalChannelV2>(t, LogicalChannelV2);
    Register<TCDescEmergencyInformation>(t, DescribeEmergencyInformation);
    Register<TCDescApplication>(t, DescribeApplication);
    Register<TCDescApplicationName>(t, DescribeApplicationName);
    Register<TCDescTransportProtocol>(t, DescribeTransportProtocol);
    Register<TCDescExternalApplicationAuthrisation>(t, DescribeExternalApplicationAuthorisation);
    Register<TCDescApplicationIcons>(t, DescribeApplicationIcons);
    Register<TCDescPrefetch>(t, DescribePrefetch);
    Register<TCDescDIILocation>(t, DescribeDIILocation);
    Register<TCDescApplicationStorageCapability>(t, DescribeApplicationStorageCapability);
    Register<TCDescApplicationSimpleLocation>(t, DescribeApplicationSimpleLocation);
    Register<TCDescApplicationUsage>(t, DescribeApplicationUsage);
    Register<TCDescApplicationBoundary>(t, DescribeApplicationBoundary);
    Register<TCDescUnboundApplication>(t, DescribeUnboundApplication);
    Register<TCDescApplicationStorage>(t, DescribeApplicationStorage);
    Register<TCDescApplicationSignalling>(t, DescribeApplicationSignalling);
    Register<TCDescAC4>(t, DescribeAC4);
    Register<TCDescAPD>(t, DescribeAPD);
    Register<TCDescTKGSComponent>(t, DescribeTkgsComponent);
    Register<TCDescTKGSExtendedService>(t, DescribeTkgsExtendedService);
    Register<TCDescTKGSMultilingualCategoryLabel>(t, DescribeTkgsCategoryLabel);
    Register<TCDescLinkage>(t, LinkageFields);
    Register<TCDescDataBroadcast>(t, DataBroadcastFields);
    Register<TCDescDataBroadcastId>(t, DataBroadcastIdFields);
    Register<TCDescSSULocation>(t, SSULocationFields);
    Register<TCDescCA>(t, CAFields);
    Register<TCDescAstraServiceListName>(t, DescribeAstraServiceListName);
    Register<TCDescAstraBouquetList>(t, DescribeAstraBouquetList);
    Register<TCDescAstraVirtualServiceId>(t, DescribeAstraVirtualServiceId);
    Register<TCDescCIPlusContentLabel>(t, DescribeCIPlusContentLabel);
    Register<TCDescCIPlusProtection>(t, DescribeCIPlusProtection);
    Register<TCDescCIPlusService>(t, DescribeCIPlusService);
    Register<TCDescCIPlusAdvancedService>(t, DescribeCIPlusAdvancedService);
    Register<TCDescCICAMVirtualChannel>(t, DescribeCICAMVirtualChannel);
    Register<TCDescDSmartIdentifier>(t, DescribeDSmartIdentifier);
    Register<TCDescDSmartSatelliteDeliverySystem>(t, DescribeDSmartSatelliteDelivery);
    Register<TCDescDigiturkServiceTheme>(t, DescribeDigiturkServiceTheme);
    Register<TCDescDishTVGenre>(t, DescribeDishTVGenre);
    Register<TCDescDishTVSVL>(t, DescribeDishTVSVL);
    Register<TCDescGTPLGenreList>(t, DescribeGTPLGenreList);
    Register<TCDescGTPLGenreOfService>(t, DescribeGTPLGenreOfService);
    Register<TCDescMRP>(t, DescribeMRP);
    Register<TCDescTelekomGrid>(t, DescribeTelekomGrid);
    Register<TCDescTricolorBouquetList>(t, DescribeTricolorBouquetList);
    Register<TCDescTricolorRegionName>(t, DescribeTricolorRegionName);
    Register<TCDescTricolorListType>(t, DescribeTricolorListType);
    Register<TCDescUKDTTServiceAttribute>(t, DescribeUKDTTServiceAttribute);
    Register<TCDescDigiturkLogicalChannel>(t, DescribeDigiturkLogicalChannel);
    Register<TCDescPolsatLogicalChannel>(t, DescribePolsatLogicalChannel);
    Register<TCDescTelekartaLogicalChannel>(t, DescribeTelekartaLogicalChannel);
    Register<TCDescPolsatChannelListInfo>(t, DescribePolsatChannelListInfo);
    Register<TCDescEutelsatChannelNumber>(t, DescribeEutelsatChannelNumber);
    Register<TCDescSogecablePrivateChannelList>(t, DescribeSogecablePrivateChannelList);
    Register<TCDescNXTServiceOrder>(t, DescribeNXTServiceOrder);
    Register<TCDescOtauChannelOrder>(t, DescribeOtauChannelOrder);
    Register<TCDescADBLCNv2Activate>(t, DescribeADBLCNv2Activate);
    return t;
}

const DescriberTable& Describers()
{
    static const DescriberTable table = MakeTable();
    return table;
}

std::string RawHex(const TCBaseDesc& desc)
{
    const std::vector<unsigned char> raw = RawBytes(desc);
    return HexBytes(raw.data(), raw.size());
}

} // namespace

std::string ClassName(const TCBaseDesc& desc)
{
    const char* mangled = typeid(desc).name();
    int status = 0;
    std::unique_ptr<char, void (*)(void*)> demangled(abi::__cxa_demangle(mangled, nullptr, nullptr, &status),
                                                     std::free);
    return status == 0 && demangled ? std::string(demangled.get()) : std::string(mangled);
}

Json DescribeDescriptor(const TCBaseDesc& desc, const TextDecoder& text)
{
    // An extension object without its extension byte answers -1: show the tag it came with.
    const int tag = desc.Tag() >= 0 ? desc.Tag() : 0x7F;
    Json out = {{"tag", Hex(static_cast<unsigned>(tag), tag > 0xFF ? 4 : 2)}, {"class", ClassName(desc)}};
    const auto describer = Describers().find(std::type_index(typeid(desc)));
    Json freesat;
    if (describer != Describers().end())
        out["fields"] = describer->second(desc, text);
    else if (std::optional<Json> atsc = DescribeAtscDescriptor(desc))
        out["fields"] = *atsc;
    else if (Json av = DescribeAvDescriptor(desc); !av.is_null())
        out["fields"] = av;
    else if (!(freesat = DescribeFreesat(desc, text)).is_null())
        out["fields"] = freesat;
    else if (Json targeting = DescribeTargeting(desc, text); !targeting.is_null())
        out["fields"] = targeting;
    else if (Json isdb = DescribeIsdbEventDescriptor(desc, text); !isdb.is_null())
        out["fields"] = isdb;
    else if (Json isdbNet = DescribeIsdbNetDescriptor(desc, text); !isdbNet.is_null())
        out["fields"] = isdbNet;
    else
        out["raw"] = RawHex(desc);
    return out;
}

Json DescribeLoop(const IDescriptorContainer& loop, const TextDecoder& text)
{
    Json out = Json::array();
    for (int i = 0; i < loop.NumOfDescriptors(); ++i)
        if (const TCBaseDesc* desc = loop.DescriptorByIndex(static_cast<unsigned int>(i)))
            out.push_back(DescribeDescriptor(*desc, text));
    return out;
}

} // namespace zuminspect
