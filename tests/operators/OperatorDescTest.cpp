#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <typeindex>

#include <zum-platform/Dlog.h>
#include <zum-platform/UnicodeConverter.h>

#include "core/Descriptor.h"
#include "core/DescriptorHash.h"
#include "dvb/DescLoopProbe.h"
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

using svctest::Body;
using svctest::ExpectBodies;
using svctest::Join;
using zumtest::Bytes;
using zumtest::Desc;

namespace {

std::string Ascii(const std::basic_string<unsigned short>& text) { return std::string(text.begin(), text.end()); }

template <class C>
std::string List(const C& values)
{
    std::string out;
    for (const auto& v : values)
        out += (out.empty() ? "" : ",") + std::to_string(v);
    return out;
}

Bytes Pds(unsigned v) { return Desc(0x5F, {uint8_t(v >> 24), uint8_t(v >> 16), uint8_t(v >> 8), uint8_t(v)}); }

template <class T>
std::function<std::string(const TCBaseDesc&)> Show(std::function<std::string(const T&)> show)
{
    return [show](const TCBaseDesc& d) { return show(dynamic_cast<const T&>(d)); };
}

// One descriptor of an operator's loop: the class it must become and its fields.
struct Tagged { int tag; Bytes body; std::type_index type; std::function<std::string(const TCBaseDesc&)> show; std::string fields; };
// One operator: the binder's answers, the loop's own specifier (0 for none), the table, its descriptors.
struct Operator { const char* name; const char* country; unsigned op; unsigned binderPds; unsigned streamPds; unsigned char tableId; std::vector<Tagged> tags; };

const auto kMRP = Show<TCDescMRP>([](const TCDescMRP& d) { return Join(d.Price(), d.PrivateDataSpecifier()); });
const auto kGenres = Show<TCDescGTPLGenreList>([](const TCDescGTPLGenreList& d) {
    std::string out;
    for (const auto& g : d.GetGenreMap())
        out += Join(g.first, std::string(g.second.name, g.second.name + g.second.nameLength), g.second.trailing) + ";";
    return Join(d.Tag(), out);
});
const auto kCIService = Show<TCDescCIPlusService>([](const TCDescCIPlusService& d) {
    unsigned char name[16];
    unsigned char size = sizeof name;
    const bool ok = d.ServiceName(name, size);
    return Join(d.ServiceId(), d.ServiceType(), d.VisibleServiceFlag(), d.SelectableServiceFlag(),
                d.LogicalChannelNumber(), ok ? std::string(name, name + size) : "-");
});

} // namespace

// Each operator's loop under its specifier, country and operator: every tag becomes its class and decodes.
TEST(OperatorDescriptors, EachOperatorLoopReachesItsClasses)
{
    const Bytes sat = {0x01, 0x19, 0x20, 0x00, 0x01, 0x92, 0x81, 0x02, 0x75, 0x00, 0x03};
    const std::vector<Operator> operators = {
        {"D-Smart", "TUR", 68, 0, 0x6001, 0x40, {
            {0xCE, {0x29, 0x00, 0x07, 0xAA, 0xBB, 0xCC, 0x40, 0x00, 0x08, 0x01}, typeid(TCDescDSmartIdentifier),
             Show<TCDescDSmartIdentifier>([](const TCDescDSmartIdentifier& d) {
                 std::vector<TCDescDSmartIdentifier::TSIdentifierInfo> list;
                 d.GetIdentifierInfoList(list);
                 std::string out;
                 for (const auto& i : list)
                     out += Join(i.type, i.id, List(i.data)) + ";";
                 return out;
             }), "1 7 170,187;2 8 1;"},
            {0xE3, zumtest::Concat({sat, {0x12, 0x34}}), typeid(TCDescDSmartSatelliteDeliverySystem),
             Show<TCDescDSmartSatelliteDeliverySystem>([](const TCDescDSmartSatelliteDeliverySystem& d) {
                 return Join(d.Tag(), d.Frequency(), d.PrivateValue());
             }), "227 11920000 4660"},
            {0xED, sat, typeid(TCDescDSmartSatelliteDeliverySystem),
             Show<TCDescDSmartSatelliteDeliverySystem>([](const TCDescDSmartSatelliteDeliverySystem& d) {
                 return Join(d.Tag(), d.PrivateValue());
             }), "237 65535"}}},
        {"Digiturk", "TUR", 0, 0, 0x2FFFFF, 0x42, {
            {0x96, {12}, typeid(TCDescDigiturkServiceTheme),
             Show<TCDescDigiturkServiceTheme>([](const TCDescDigiturkServiceTheme& d) { return Join(int(d.Theme())); }), "12"}}},
        {"Dish TV", "IND", 0, 0, 0xECCA0001, 0x42, {
            {0x54, {0x01, 0x02, 0x03, 0x04, 0x05}, typeid(TCDescDishTVGenre),
             Show<TCDescDishTVGenre>([](const TCDescDishTVGenre& d) { return List(d.Genres()); }), "258,772"},
            {0x86, {0x00, 0x2A}, typeid(TCDescDishTVSVL),
             Show<TCDescDishTVSVL>([](const TCDescDishTVSVL& d) { return Join(d.GetVersion()); }), "42"},
            {0x87, {0x00, 0x00, 0x00, 0x95, 0x32}, typeid(TCDescMRP), kMRP, "14950 3972661249"}}},
        {"GTPL", "IND", 0, 0, 0x62E1, 0x42, {
            {0x85, {0x01, 0x02, 'N', 'W', 0x09, 0x01, 0x01, 'X', 0x00}, typeid(TCDescGTPLGenreList), kGenres, "133 1 NW 9;"},
            {0x86, {0x02, 0x00, 0x07}, typeid(TCDescGTPLGenreList), kGenres, "133 2  7;"},
            {0xCC, {0xFF, 0x03, 0x05}, typeid(TCDescGTPLGenreOfService),
             Show<TCDescGTPLGenreOfService>([](const TCDescGTPLGenreOfService& d) { return List(d.GetGenreListOfService()); }), "3,5"},
            {0xBA, {0x01, '1', '4', '9', '.', '5', '0'}, typeid(TCDescMRP), kMRP, "14950 25313"}}},
        {"Telekom", "DEU", 0, 0x9FFFFF, 0, 0x41, {
            {0xE2, {0x00, 0x10, 0x00, 0x03, 0x00, 0x11, 0x00, 0x01, 0x00, 0x10, 0x00, 0x02}, typeid(TCDescTelekomGrid),
             Show<TCDescTelekomGrid>([](const TCDescTelekomGrid& d) {
                 std::list<unsigned short> positions;
                 std::set<unsigned short> ids;
                 d.GetGridPositionList(0x10, positions);
                 d.GetServiceIDSet(ids);
                 return Join(d.GridSize(), List(positions), List(ids));
             }), "3 3,2 16,17"}}},
        {"UK DTT", "GBR", 0, 0, 0x233A, 0x41, {
            {0x86, {0x10, 0x01, 0x01, 0x10, 0x02, 0x02, 0x10, 0x01, 0x03}, typeid(TCDescUKDTTServiceAttribute),
             Show<TCDescUKDTTServiceAttribute>([](const TCDescUKDTTServiceAttribute& d) {
                 return Join(d.NumOfDescLoop(), d.NumericSelectionFlag(0x1001), d.VisibleServiceFlag(0x1001),
                             d.NumericSelectionFlag(0x1002), d.VisibleServiceFlag(0x1002), d.VisibleServiceFlag(7));
             }), "2 0 1 1 0 1"}}},
        {"CI Plus", "DEU", 0, 0, 0x40, 0x42, {
            {0xCB, {0x01, 0x02, 'd', 'e', 'u', 'L', 'B'}, typeid(TCDescCIPlusContentLabel),
             Show<TCDescCIPlusContentLabel>([](const TCDescCIPlusContentLabel& d) {
                 unsigned char label[8];
                 unsigned char size = sizeof label;
                 d.ContentLabel(label, size);
                 return Join(d.FirstByte(), d.SecondByte(), svctest::Code(d.Language()), std::string(label, label + size));
             }), "1 2 deu LB"},
            {0xCC, {0x00, 0x05, 0x0D, 0xC0, 0x0B, 0x01, 'P', 0x02, 'S', 'N'}, typeid(TCDescCIPlusService), kCIService,
             "5 255 1 1 11 SN"},
            {0xCE, {0x40, 0x01, 0x12, 0x34, 0xEE}, typeid(TCDescCIPlusProtection),
             Show<TCDescCIPlusProtection>([](const TCDescCIPlusProtection& d) {
                 return Join(d.GetFreeCiModeFlag(), d.GetMatchBrandFlag(), List(d.GetCiCamBrandIdentifier()),
                             List(d.GetPrivateData()));
             }), "0 1 4660 238"},
            {0xD2, {0x00, 0x07, 0x01, 'P', 0x01, 'S', 0x00, 0x02, 'A', 'D'}, typeid(TCDescCICAMVirtualChannel),
             Show<TCDescCICAMVirtualChannel>([](const TCDescCICAMVirtualChannel& d) {
                 const std::vector<unsigned char> domain = d.AppDomainIdentifier();
                 return Join(d.LogicalChannelNumber(), d.ServiceName().size(), d.EventInformation().size(),
                             std::string(domain.begin(), domain.end()));
             }), "7 1 0 AD"},
            {0xD3, {0x00, 0x05, 0x19, 0x80, 0x02, 0x00, 0x01, 'S', 0x02, 0x09, 0x04, 0x19, 0x02}, typeid(TCDescCIPlusAdvancedService),
             Show<TCDescCIPlusAdvancedService>([](const TCDescCIPlusAdvancedService& d) {
                 std::string out;
                 for (const auto& c : d.Components())
                     out += Join(c.streamContent, c.streamContentExtension, c.componentType) + ";";
                 return Join(d.ServiceType(), d.LogicalChannelNumber(), out);
             }), "255 2 9 0 4;9 1 2;"}}},
        {"Tricolor", "RUS", 0, 0, 0x6FFFFF, 0x41, {
            {0x86, {0x00, 0x01, 0x00, 0x02, 0x00, 0x33, 0x09}, typeid(TCDescTricolorBouquetList),
             Show<TCDescTricolorBouquetList>([](const TCDescTricolorBouquetList& d) {
                 TCDescTricolorBouquetList::Bouquet b;
                 d.GetBouquet(0, b);
                 return Join(d.NumOfBouquets(), b.firstId, b.secondId, b.serviceId, d.ContainsServiceID(0x33),
                             d.ContainsServiceID(0x34));
             }), "1 1 2 51 1 0"},
            {0x88, {'R', 'U', 'S', 0x00, 'E', 'N', 'G', 0x07, 0x02, 'k', '1', 0x03, 'M', 'o', 's'},
             typeid(TCDescTricolorRegionName),
             Show<TCDescTricolorRegionName>([](const TCDescTricolorRegionName& d) {
                 TCDescTricolorRegionName::RegionData r;
                 d.GetRegionData(0, r);
                 return Join(d.NumOfRegions(), svctest::Code(r.language), r.key, Ascii(r.name));
             }), "1 eng k1 Mos"},
            {0xB2, {0x04, 'R', 'U', 'K', 'Z', 0x02, 0x01, 0x02, 0x02, 'B', 'Y', 0x01, 0x02}, typeid(TCDescTricolorListType),
             Show<TCDescTricolorListType>([](const TCDescTricolorListType& d) {
                 std::string out;
                 for (const auto& t : d.GetListTypes()) {
                     out += std::to_string(t.first) + ":";
                     for (const auto& c : t.second)
                         out += c;
                     out += ";";
                 }
                 return out;
             }), "1:KZRU;2:BYKZRU;"}}},
        {"Astra", "DEU", 0, 1, 0, 0x91, {
            {0x88, {'d', 'e', 'u', 'H', 'D', '+'}, typeid(TCDescAstraServiceListName),
             Show<TCDescAstraServiceListName>([](const TCDescAstraServiceListName& d) {
                 TCUnicodeConverter converter{ZUMHandle()};
                 ELanguageCode code = 0;
                 const std::string name = Ascii(d.GetName(converter, code));
                 return Join(name, svctest::Code(code));
             }), "HD+ deu"},
            {0x93, {0x02, 'A', 'B', 0x01, 'C'}, typeid(TCDescAstraBouquetList),
             Show<TCDescAstraBouquetList>([](const TCDescAstraBouquetList& d) {
                 std::list<unsigned char*> names;
                 const_cast<TCDescAstraBouquetList&>(d).Bouquets(names);
                 std::string out;
                 for (unsigned char* n : names)
                     out += std::string(reinterpret_cast<char*>(n)) + ";";
                 return out;
             }), "AB;C;"},
            {0xD1, {0x12, 0x34}, typeid(TCDescAstraVirtualServiceId),
             Show<TCDescAstraVirtualServiceId>([](const TCDescAstraVirtualServiceId& d) {
                 unsigned short id = 0;
                 d.VirtualServiceId(id);
                 return Join(id);
             }), "4660"}}},
    };
    for (const Operator& o : operators) {
        SCOPED_TRACE(o.name);
        zumtest::BinderScope binder;
        binder->countryCode = ZumPackCode(o.country);
        binder->operatorId = o.op;
        binder->privateDataSpecifier = o.binderPds;
        zumtest::ByteWriter loop;
        if (o.streamPds)
            loop.Raw(Pds(o.streamPds));
        for (const Tagged& t : o.tags)
            loop.Descriptor(static_cast<unsigned>(t.tag), t.body);
        TCDescriptorHash hash;
        TCDescriptor{ZUMHandle()}.Parse(loop.Data().data(), static_cast<int>(loop.Size()), hash, o.tableId);
        ASSERT_EQ(hash.NumOfDescriptors(), static_cast<int>(o.tags.size()));
        for (size_t i = 0; i < o.tags.size(); ++i) {
            const Tagged& t = o.tags[i];
            SCOPED_TRACE(testing::Message() << "tag 0x" << std::hex << t.tag);
            const TCBaseDesc* d = hash.DescriptorByIndex(static_cast<unsigned>(i));
            ASSERT_EQ(svctest::ClassOf(d), t.type.name());
            EXPECT_EQ(t.show(*d), t.fields);
            svctest::ExpectClone(*d);
        }
    }
}

TEST(OperatorDescriptors, PricesOfBothFormats)
{
    const auto show = [](const TCDescMRP& d) { return Join(d.Price()); };
    ExpectBodies(0xBA, [] { return new TCDescMRP(0xBA, 0x62E1); }, show, {
        {{0x01, '1', '4', '9', '.'}, "14900"},
        {{0x01, '1', '5', '0', '0', '.', '5'}, "50005"},
        {{0x01, '7'}, "700"},
        {{0x00}, "-2"},
        {{0x01}, "-1"},
        {{0x02, '5'}, "-1"},
        {{}, "-1"},
    });
    ExpectBodies(0x87, [] { return new TCDescMRP(0x87, 0xECCA0001); }, show, {
        {{0x00, 0x01}, "-2"},
        {{0x01, 1, 2, 3}, "-1", "inLen=4, outLen=1"},
        {{0x00}, "-1"},
        {{0x00, 0x00, 0x00, 0x95}, "-1", "inLen=4, outLen=2"},
    });
    ExpectBodies(0x87, [] { return new TCDescMRP(0x87, 0x28); }, show, {{{0x00, 0x01}, "-1", "inLen=2, outLen=0"}});
    zumtest::LogCapture log;
    auto gtpl = svctest::Decode(new TCDescMRP(0xBA, 0x62E1), Desc(0xBA, {0x01, 'a', 'b', 'c'}));
    auto dish = svctest::Decode(new TCDescMRP(0x87, 0xECCA0001), Desc(0x87, {0x00, 0x00, 0x00, 0x95, 0x64}));
    EXPECT_EQ(Join(gtpl->Price(), dish->Price()), "-1 -1");
    EXPECT_EQ(log.Lines(DLOG_ERROR), (std::vector<std::string>{"TCDescMRP::m_ParseGTPL stoi stream data:[abc]",
                                                               "TCDescMRP::m_ParseDishTv Wrong value in price [149].[100] !!!"}));
}

TEST(OperatorDescriptors, BoundariesOfTheBodies)
{
    const auto service = [](const TCDescCIPlusService& d) { return Join(d.ServiceType(), d.LogicalChannelNumber()); };
    ExpectBodies(0xCC, [] { return new TCDescCIPlusService(); }, service, {
        {{0x00, 0x01, 12, 0x00, 0x01, 0x00, 0x00}, "12 1"},
        {{0x00, 0x01, 14, 0x00, 0x01, 0x00, 0x00}, "14 1"},
        {{0x00, 0x01, 0xA4, 0x00, 0x01, 0x00, 0x00}, "255 1"},
        {{0x00, 0x01, 0xF9, 0x00}, "249 65535", "inLen=4, outLen=7"},
    });
    const auto protection = [](const TCDescCIPlusProtection& d) {
        return Join(d.GetFreeCiModeFlag(), List(d.GetCiCamBrandIdentifier()), List(d.GetPrivateData()));
    };
    ExpectBodies(0xCE, [] { return new TCDescCIPlusProtection(); }, protection, {
        {{0x80, 1, 2, 3}, "1  1,2,3"},
        {{0x40, 0x02, 0x00, 0x07, 0x09}, "0 7 ", ""},
        {{0x40}, "0  "},
    });
    const auto channel = [](const TCDescCICAMVirtualChannel& d) {
        return Join(d.ServiceProviderName().size(), d.ServiceName().size(), d.EventInformation().size());
    };
    ExpectBodies(0xD2, [] { return new TCDescCICAMVirtualChannel(); }, channel, {
        {{0x00, 0x01, 0x01, 'P', 0x01, 'S', 0x05, 'E'}, "1 1 0", "inLen=8, outLen=0"},
        {{0x00, 0x01}, "0 0 0", "inLen=2, outLen=0"},
    });
    // A label of none, and a name copy cut at the caller's room.
    auto label = svctest::Decode(new TCDescCIPlusContentLabel(), Desc(0xCB, {1, 2, 'e', 'n', 'g'}));
    unsigned char buffer[8] = {};
    unsigned char size = sizeof buffer;
    EXPECT_FALSE(label->ContentLabel(buffer, size));
    EXPECT_EQ(size, 0);
    auto named = svctest::Decode(new TCDescCIPlusService(), Desc(0xCC, {0, 1, 1, 0, 1, 0, 5, 'A', 'B', 'C', 'D', 'E'}));
    size = 3;
    EXPECT_FALSE(named->ServiceName(buffer, size));
    EXPECT_EQ(Join(int(size), std::string(buffer, buffer + 3)), "3 ABC");

    ExpectBodies(0x96, [] { return new TCDescDigiturkServiceTheme(); },
                 [](const TCDescDigiturkServiceTheme& d) { return Join(int(d.Theme())); }, {{{9}, "0"}, {{13}, "13"}});
    ExpectBodies(0x85, [] { return new TCDescGTPLGenreList(0x86); },
                 [](const TCDescGTPLGenreList& d) { return Join(d.GetGenreMap().size()); },
                 {{{}, "0"}, {{0x01, 0x05, 'A'}, "0", "inLen=3, outLen=2"}});
    ExpectBodies(0xE2, [] { return new TCDescTelekomGrid(); },
                 [](const TCDescTelekomGrid& d) {
                     std::list<unsigned short> positions;
                     return Join(d.GridSize(), d.GetGridPositionList(9, positions));
                 },
                 {{{0, 1, 0}, "0 0", "inLen=3, outLen=0"}, {{0, 9, 0, 1, 0}, "1 1", "inLen=5, outLen=4"}});
    ExpectBodies(0x88, [] { return new TCDescTricolorRegionName(ZUMHandle()); },
                 [](const TCDescTricolorRegionName& d) { return Join(d.NumOfRegions()); },
                 {{{'r', 'u', 's', 0x04, 0x01, 'k', 0x05, 'n'}, "0", "inLen=8, outLen=7"},
                  {{'r', 'u', 's', 0x09, 0x01}, "0", "inLen=5, outLen=4"},
                  {{'r', 'u'}, "0", "inLen=2, outLen=0"}});
    ExpectBodies(0xB2, [] { return new TCDescTricolorListType(); },
                 [](const TCDescTricolorListType& d) { return Join(d.GetListTypes().size()); },
                 {{{0x04, 'R', 'U'}, "0", "inLen=3, outLen=1"}, {{0x02, 'R', 'U'}, "0", "inLen=3, outLen=1"},
                  {{0x02, 'R', 'U', 0x00}, "0"}});
    EXPECT_FALSE(TCDescTricolorBouquetList().ContainsServiceID(0));

    ExpectBodies(0x88, [] { return new TCDescAstraServiceListName(); },
                 [](const TCDescAstraServiceListName& d) {
                     TCUnicodeConverter converter{ZUMHandle()};
                     ELanguage language = ELanguage(0);
                     const std::string name = Ascii(d.GetName(converter, language));
                     return Join(svctest::Code(d.LanguageCode()), "[" + name + "]");
                 },
                 {{{'d', 'e', 'u'}, "deu []"}, {{'d', 'e'}, "zz{ []", "inLen=2, outLen=0"}});
    ExpectBodies(0x93, [] { return new TCDescAstraBouquetList(); },
                 [](TCDescAstraBouquetList& d) {
                     std::list<unsigned char*> names{nullptr};
                     return Join(d.Bouquets(names), names.size());
                 },
                 {{{}, "0 1"}, {{0x03, 'A'}, "1 1", "inLen=2, outLen=4"}});
    unsigned short id = 0;
    TCDescAstraVirtualServiceId().VirtualServiceId(id);
    EXPECT_EQ(id, 0xFFFF);
}

// The operators' own log lines, with what the body gave.
TEST(OperatorDescriptors, LogLines)
{
    struct Case { TCBaseDesc* desc; Bytes raw; std::string line; };
    const std::vector<Case> cases = {
        {new TCDescDSmartIdentifier(), Desc(0xCE, {0x18, 0x00, 0x01, 0xAA, 0x01, 0x00, 0x01, 0xAA}),
         "TCDescDSmartIdentifier::t_Parse Size Of IdentifierInfo List =  1"},
        {new TCDescDSmartIdentifier(), Desc(0xCE, {0x00}), "TCDescDSmartIdentifier::t_Parse Size Of IdentifierInfo List =  0"},
        {new TCDescDSmartSatelliteDeliverySystem(0xE3), Desc(0xE3, Bytes(14, 0)),
         "[DSmart] Wrong length of DSmart private satellite delivery system descriptor, length = 14."},
        {new TCDescDigiturkServiceTheme(), Desc(0x96, {7, 7}), "[Digiturk] Wrong length of service theme descriptor, length = 2."},
        {new TCDescMRP(0x87, 0xECCA0001), Desc(0x87, {0x01, 1, 2, 3, 4, 5, 6, 7, 0x00, 0x00, 0x0A, 0x05}),
         "TCDescMRP::m_ParseDishTv parsed[1005] from [12]"},
    };
    for (const Case& c : cases) {
        std::unique_ptr<TCBaseDesc> d(c.desc);
        zumtest::LogCapture log;
        d->Parse(c.raw.data());
        ASSERT_FALSE(log.Lines().empty());
        EXPECT_EQ(log.Lines()[0], c.line);
    }
}
