// Service descriptors: service, service list, service move, country availability, CA identifier,
// private data specifier; and the factory rows of all the DVB descriptor classes.
#include <gtest/gtest.h>

#include <list>

#include <zum-platform/Dlog.h>
#include <zum-platform/PlatformConfig.h>

#include "dvb/DescCAIdentifier.h"
#include "dvb/DescComponent.h"
#include "dvb/DescContent.h"
#include "dvb/DescCountryAvailability.h"
#include "dvb/DescLanguage.h"
#include "dvb/DescLocalTimeOffset.h"
#include "dvb/DescLoopProbe.h"
#include "dvb/DescMultilingualNetworkName.h"
#include "dvb/DescNetworkName.h"
#include "dvb/DescPrivateDataSpecifier.h"
#include "operators/DescDishTVGenre.h"
#include "dvb/DescSatelliteDeliverySystem.h"
#include "dvb/DescService.h"
#include "dvb/DescServiceMove.h"
#include "dvb/DescShortEvent.h"
#include "dvb/DescT2SystemDelivery.h"
#include "dvb/ServiceKey.h"

using namespace svctest;

namespace {

Bytes ServiceBody(UChar type, const std::string& provider, const std::string& name)
{
    zumtest::ByteWriter w;
    w.U8(type).U8(static_cast<unsigned>(provider.size())).Text(provider);
    w.U8(static_cast<unsigned>(name.size())).Text(name);
    return w.Data();
}

// Type, provider name, service name.
std::string Service(const TCDescService& d)
{
    return Join(d.ServiceType(),
                TextBy<UChar, UShort>([&](UChar* b, UShort* s) { return d.ServiceProviderNameText(b, *s); }),
                TextBy<UChar, UShort>([&](UChar* b, UShort* s) { return d.ServiceNameText(b, *s); }));
}

TCDescService* NewService() { return new TCDescService(); }

constexpr unsigned int kGBR = 0x474252, kFRA = 0x465241;

} // namespace

// Names stay raw: a character table selector and 8-bit bytes reach the caller as sent. A body that ends early keeps
// what it got; a name that claims more than is left keeps the bytes that are there.
TEST(DescService, Bodies)
{
    zumtest::BinderScope binder;
    ExpectBodies(0x48, NewService, Service, {
        {ServiceBody(0x19, "BBC", "\x15" "Caf\xC3\xA9"), "25 BBC \x15" "Caf\xC3\xA9"},
        {{0x02, 0x00, 0x09, 'X', 'Y', 'Z'}, "2 <none> XYZ"},
        {{0x01, 0x01, 'A'}, "1 A <none>"},
        {{0x01, 0x05, 'A', 'B'}, "1 AB <none>"},
        {{0x01, 0x03}, "1 <none> <none>"},
        {{0x01}, "1 <none> <none>"},
        {{}, "0 <none> <none>"},
    });
    auto ten = Decode(NewService(), Desc(0x48, ServiceBody(0x01, "", "0123456789")));
    ExpectCopiesBy<UChar, UShort>([&](UChar* b, UShort* s) { return ten->ServiceNameText(b, *s); },
                                  {{10, true, 10, "0123456789##"}, {9, false, 9, "012345678##"}, {0, false, 0, "##"}});
    // Nothing to copy, or no buffer: false with size 0.
    ExpectCopiesBy<UChar, UShort>([&](UChar* b, UShort* s) { return ten->ServiceProviderNameText(b, *s); },
                                  {{8, false, 0, "##########"}});
    UShort size = 8;
    EXPECT_FALSE(ten->ServiceNameText(nullptr, size));
    EXPECT_EQ(size, 0);
}

// The receiver's list of service types: an unknown one reads 0xFF, with its names still stored; 0x90 depends on
// the Dolby certification mode.
TEST(DescService, ServiceTypeAsTheReceiverKnowsIt)
{
    const UChar known[] = {0x00, 0x0C, 0x0E, 0x20, 0x80, 0x82, 0x8A, 0x8C, 0x8D, 0x98,
                           0x9B, 0xA1, 0xA3, 0xA7, 0xC0, 0xD3, 0xF0, 0xF9};
    const UChar unknown[] = {0x0D, 0x21, 0x7F, 0x83, 0x8B, 0x8E, 0x97, 0x9C, 0xA0, 0xA2, 0xA8, 0xD2, 0xFF};
    zumtest::BinderScope binder;
    for (UChar type : known)
        EXPECT_EQ(Service(*Decode(NewService(), Desc(0x48, ServiceBody(type, "P", "N")))), Join(type, "P N"));
    for (UChar type : unknown)
        EXPECT_EQ(Service(*Decode(NewService(), Desc(0x48, ServiceBody(type, "P", "N")))), "255 P N") << int(type);
    const struct { UChar type; bool binder, dolby; UChar expected; const char* log; } cases[] = {
        {0x90, true, true, 0x90, "t_AllocateServiceType Dolby Cert Mode Enabled"},
        {0x90, true, false, 0xFF, "t_AllocateServiceType Dolby Cert Mode Disabled"},
        {0x90, false, false, 0x00, "ASSERT!, Func:t_AllocateServiceType"},
        {0x19, false, false, 0x19, nullptr},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << int(c.type) << " binder " << c.binder << " dolby " << c.dolby);
        zumtest::BinderScope scope;
        scope->dolbyCertMode = c.dolby;
        if (!c.binder)
            zum_platform::RemoveBinder();
        zumtest::LogCapture log;
        EXPECT_EQ(Decode(NewService(), Desc(0x48, ServiceBody(c.type, "P", "N")))->ServiceType(), c.expected);
        EXPECT_TRUE(c.log ? log.Contains(c.log) : log.Lines(DLOG_ERROR).empty());
    }
}

// Count, then id/type of every entry from index -1 to the count: all bits set outside.
TEST(DescServiceList, EntriesAndServiceMove)
{
    ExpectBodies(0x41, [] { return new TCDescServiceList(); }, [](const TCDescServiceList& d) {
        std::string s = Join(d.NumberOfLoop());
        for (int i = -1; i <= d.NumberOfLoop(); ++i)
            s += " " + Join(d.ServiceId(i)) + "/" + Join(d.ServiceType(i));
        return s;
    }, {
        {{0x10, 0x01, 0x01, 0x10, 0x02, 0x19}, "2 65535/255 4097/1 4098/25 65535/255"},
        {{0x10, 0x01, 0x01, 0x10, 0x02, 0x19, 0xAA}, "2 65535/255 4097/1 4098/25 65535/255", "inLen=7, outLen=6"},
        {{0x10, 0x01}, "0 65535/255 65535/255", "inLen=2, outLen=0"},
    });
    // Original network, transport stream and service ids, by the accessors and through the key.
    auto make = [] { return new TCDescServiceMove(); };
    ExpectBodies(0x60, make, [](const TCDescServiceMove& d) {
        TCServiceKey key(1, 2, 3);
        d.GetNewServiceLocation(key);
        return Join(d.NewOriginalNetworkId(), d.NewTransportStreamId(), d.NewServiceId(), key.m_originalNetworkId,
                    key.m_transportStreamId, key.m_serviceId);
    }, {
        {{0x00, 0x02, 0x04, 0x10, 0x12, 0x34}, "2 1040 4660 2 1040 4660"},
        {{0x00, 0x02, 0x04, 0x10, 0x12}, "2 1040 65535 2 1040 65535", "inLen=5, outLen=4"},
        {{0x00, 0x02}, "2 65535 65535 2 65535 65535"},
        {{}, "65535 65535 65535 65535 65535 65535"},
    });
    // A second decode of a shorter body does not keep the ids of the first.
    auto d = Decode(make(), Desc(0x60, {0x00, 0x02, 0x04, 0x10, 0x12, 0x34}));
    d->Parse(Desc(0x60, {0x00, 0x05}).data());
    EXPECT_EQ(Join(d->NewTransportStreamId(), d->NewServiceId()), "65535 65535");
}

// Countries() answer and list (behind the caller's own entry), then IsServiceAvailable for GBR and FRA.
TEST(DescCountryAvailability, FlagAndList)
{
    auto make = [] { return new TCDescCountryAvailability(); };
    ExpectBodies(0x49, make, [](const TCDescCountryAvailability& d) {
        std::list<ECountryCode> got{ZumPackCode("XXX")};
        std::string s = Join(d.Countries(got));
        for (ECountryCode code : got)
            s += " " + Code(code);
        return s + " " + Join(d.IsServiceAvailable(kGBR), d.IsServiceAvailable(kFRA));
    }, {
        {{0x80, 'G', 'B', 'R', 'I', 'R', 'L'}, "1 XXX GBR IRL 1 0"},
        {{0x7F, 'G', 'B', 'R'}, "1 XXX GBR 0 1"},
        {{0x80}, "0 XXX 0 0"},
        {{0x00}, "0 XXX 1 1"},
        {{0x80, 'G', 'B', 'R', 'I', 'R'}, "1 XXX GBR 1 0", "inLen=6, outLen=4"},
    });
    // The enumerations come through the platform's tables; a country outside them is "others" (78).
    auto d = Decode(make(), Desc(0x49, {0x80, 'G', 'B', 'R', 'B', 'R', 'A', 'Z', 'M', 'B'}));
    std::list<int> values;
    std::list<ECountry> countries;
    EXPECT_TRUE(d->Countries(values));
    EXPECT_TRUE(d->Countries(countries));
    EXPECT_EQ(values, (std::list<int>{7, 78, 97}));
    EXPECT_EQ(countries, (std::list<ECountry>{ECountry(7), ECountry(78), ECountry(97)}));
    auto none = Decode(make(), Desc(0x49, {0x80}));
    EXPECT_FALSE(none->Countries(values));
    EXPECT_FALSE(none->Countries(countries));
    EXPECT_EQ(values.size(), 3u);

    // A second decode replaces the list rather than adding to it.
    d->Parse(Desc(0x49, {0x80, 'I', 'R', 'L'}).data());
    std::list<ECountryCode> codes;
    d->Countries(codes);
    EXPECT_EQ(codes, (std::list<ECountryCode>{0x49524C}));
}

TEST(DescCAIdentifier, SystemIdsAndSpecifier)
{
    ExpectBodies(0x53, [] { return new TCDescCAIdentifier(); }, [](const TCDescCAIdentifier& d) {
        std::string s;
        for (unsigned short id : d.CASystemIds())
            s += Join(id) + " ";
        return s;
    }, {
        {{0x09, 0x63, 0x18, 0x02}, "2403 6146 "},
        {{0x09, 0x63, 0x18}, "2403 6144 "}, // the lone last byte is the high byte of an id whose low byte is missing
        {{0x05}, "1280 "},
        {{}, ""},
    });
    // The specifier: four bytes, big-endian.
    ExpectBodies(0x5F, [] { return new TCDescPrivateDataSpecifier(); },
                 [](const TCDescPrivateDataSpecifier& d) { return Join(d.PrivateDataSpecifier()); }, {
        {{0xEC, 0xCA, 0x00, 0x01}, "3972661249"},
        {{0x00, 0x00, 0x00, 0x28, 0xFF}, "40", "inLen=5, outLen=4"},
        {{0x00, 0x00, 0x22}, "0", "inLen=3, outLen=0"},
    });
}

// Which class each factory makes, by country and table scope: SI tables, program tables (0x02) and the
// application table (0x74). An ISDB country's SI factory falls back to the DVB rows.
TEST(DVBDescriptorFactories, Rows)
{
    const Bytes move = Desc(0x60, {0, 2, 4, 0x10, 0x12, 0x34}), stream = Desc(0x52, {0x01});
    const Bytes shortEvent = Desc(0x4D, {'e', 'n', 'g', 0, 0}), content = Desc(0x54, {0x12, 0x34});
    const Bytes rating = Desc(0x55, {'B', 'R', 'A', 2}), language = Desc(0x0A, {'e', 'n', 'g', 0});
    const Bytes teletext = Desc(0x56, {'d', 'e', 'u', 0x11, 0x50});
    ExpectRows({
        {"GBR BRA", 0x40, Desc(0x43, Bytes(11, 0)), 0x43, typeid(TCDescSatelliteDeliverySystem)},
        {"GBR BRA", 0x40, Desc(0x44, Bytes(11, 0)), 0x44, typeid(TCDescCableDeliverySystem)},
        {"GBR BRA", 0x41, Desc(0x5A, Bytes(11, 0)), 0x5A, typeid(TCDescTerrestrialDeliverySystem)},
        {"GBR BRA", 0x41, Desc(0x62, Bytes(5, 0)), 0x62, typeid(TCDescFrequencyList)},
        {"GBR BRA", 0x40, Desc(0x7F, {0x04, 0x00, 0x12, 0x34}), 0x7F04, typeid(TCDescT2SystemDelivery)},
        {"GBR BRA", 0x73, Desc(0x58, Bytes(13, 0)), 0x58, typeid(TCDescLocalTimeOffset)},
        {"GBR DEU", 0x41, Desc(0x40, {'N'}), 0x40, typeid(TCDescNetworkName)},
        {"GBR", 0x4A, Desc(0x47, {'B'}), 0x47, typeid(TCDescBouquetName)},
        {"GBR", 0x4A, Desc(0x5C, {'e', 'n', 'g', 1, 'B'}), 0x5C, typeid(TCDescMultilingualBouquetName)},
        {"GBR", 0x40, Desc(0x5B, {'e', 'n', 'g', 1, 'N'}), 0x5B, typeid(TCDescMultilingualNetworkName)},
        {"GBR", 0x42, Desc(0x5D, {'e', 'n', 'g', 0, 0}), 0x5D, typeid(TCDescMultilingualServiceName)},
        {"GBR", 0x4E, Desc(0x5E, {0x07, 'e', 'n', 'g', 0}), 0x5E, typeid(TCDescDefault)}, // no factory makes it
        {"GBR BRA", 0x42, Desc(0x48, ServiceBody(1, "", "A")), 0x48, typeid(TCDescService)},
        {"GBR", 0x40, Desc(0x41, {0, 1, 1}), 0x41, typeid(TCDescServiceList)},
        {"GBR BRA", 0x02, move, 0x60, typeid(TCDescServiceMove)},
        {"GBR", 0x42, move, 0x60, typeid(TCDescDefault)},
        {"GBR BRA", 0x42, Desc(0x49, {0x80, 'G', 'B', 'R'}), 0x49, typeid(TCDescCountryAvailability)},
        {"GBR", 0x42, Desc(0x53, {0x09, 0x63}), 0x53, typeid(TCDescDefault)}, // no SI factory makes it
        {"GBR", 0x4E, shortEvent, 0x4D, typeid(TCDescShortEvent)},
        {"BRA JPN", 0x4E, shortEvent, 0x4D, typeid(TCDescShortEventISDB)},
        {"GBR BRA", 0x4E, Desc(0x4E, {0x00, 'e', 'n', 'g', 0, 1, 't'}), 0x4E, typeid(TCDescExtendedEvent)},
        {"GBR BRA USA", 0x02, stream, 0x52, typeid(TCDescStreamIdentifier)},
        {"GBR", 0x42, stream, 0x52, typeid(TCDescDefault)}, // in SI tables the stream identifier has no row
        {"GBR BRA", 0x4E, content, 0x54, typeid(TCDescContent)},
        // Under the Dish TV specifier the genre descriptor keeps its raw bytes.
        {"GBR", 0x4E, zumtest::Concat({Desc(0x5F, {0xEC, 0xCA, 0x00, 0x01}), content}), 0x54, typeid(TCDescDishTVGenre)},
        {"GBR BRA", 0x4E, rating, 0x55, typeid(TCDescParentalRating)},
        {"BRA", 0x02, rating, 0x55, typeid(TCDescParentalRating)}, // of the program tables only the ISDB one has it
        {"GBR", 0x02, rating, 0x55, typeid(TCDescDefault)},
        {"GBR USA", 0x74, rating, 0x55, typeid(TCDescParentalRating)}, // the application table has it everywhere
        {"GBR BRA USA", 0x02, language, 0x0A, typeid(TCDescLanguage)},
        {"GBR", 0x4E, language, 0x0A, typeid(TCDescDefault)},
        {"GBR BRA", 0x02, teletext, 0x56, typeid(TCDescTeletext)},
        {"USA", 0x02, teletext, 0x56, typeid(TCDescDefault)},
        {"GBR", 0x42, teletext, 0x56, typeid(TCDescDefault)},
        {"GBR", 0x02, Desc(0x59, {'e', 'n', 'g', 0x10, 0, 1, 0, 2}), 0x59, typeid(TCDescSubtitling)},
    });
    // Both factories make the component class, with a system argument of their own: the ISDB one classifies
    // ISDB HD types.
    for (const char* country : {"GBR", "BRA"}) {
        TCDescriptorHash hash;
        Walk(country, 0x4E, Desc(0x50, {0x01, 0xB1, 0x01, 'p', 'o', 'r'}), hash);
        auto* d = dynamic_cast<TCDescComponent*>(hash.Descriptor(0x50, 0));
        EXPECT_TRUE(d && d->IsHD() == (std::string(country) == "BRA")) << country;
    }
    // Under 0x54 only the content and Dish TV genre classes stay: a program or conditional access table drops it.
    for (UChar tableId : {0x01, 0x02}) {
        TCDescriptorHash hash;
        Walk("GBR", tableId, content, hash);
        EXPECT_EQ(hash.NumOfDescriptors(0x54), 0) << int(tableId);
    }
    // Only the specifier 0x22C6 stays as a descriptor in SI loops; a PMT filters the same way, but not in ISDB.
    const struct { const char* country; UChar tableId, low, high; bool kept; } specifiers[] = {
        {"GBR", 0x40, 0x22, 0xC6, 1}, {"GBR", 0x40, 0x00, 0x28, 0}, {"GBR", 0x02, 0x22, 0xC6, 1},
        {"GBR", 0x02, 0x23, 0x3A, 0}, {"BRA", 0x02, 0x23, 0x3A, 1},
    };
    for (const auto& c : specifiers) {
        SCOPED_TRACE(testing::Message() << c.country << " table " << int(c.tableId) << " " << int(c.high));
        TCDescriptorHash hash;
        Walk(c.country, c.tableId, Desc(0x5F, {0, 0, c.low, c.high}), hash);
        auto* d = dynamic_cast<TCDescPrivateDataSpecifier*>(hash.Descriptor(0x5F, 0));
        EXPECT_EQ(d ? Join(d->PrivateDataSpecifier()) : "none", c.kept ? Join(c.low << 8 | c.high) : "none");
    }
}
