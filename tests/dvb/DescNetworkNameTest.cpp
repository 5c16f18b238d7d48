// Name descriptors: network and bouquet names, and the multilingual network, bouquet, service and component names.
#include <gtest/gtest.h>

#include "dvb/DescLoopProbe.h"
#include "dvb/DescMultilingualNetworkName.h"
#include "dvb/DescNetworkName.h"

using namespace svctest;

namespace {

constexpr unsigned int kEng = 0x656E67, kENG = 0x454E47, kDeu = 0x646575, kFra = 0x667261;

// A lookup whose size is output only: the buffer must hold any name.
template <class Fn>
std::string Found(Fn lookup)
{
    UChar buffer[255];
    UShort size = 1;
    return lookup(buffer, &size) ? std::string(buffer, buffer + size) : "<none>";
}

const Bytes kNetworkNames = {'e', 'n', 'g', 2, 'N', 'W', 'd', 'e', 'u', 0, 'f', 'r', 'a', 3, 'R', 'e', 's'};
// eng "ABC" with provider "P", deu "" with provider "Anbieter".
const Bytes kServiceNames = {'e', 'n', 'g', 1,   'P', 3,   'A', 'B', 'C', 'd', 'e',
                             'u', 8,   'A', 'n', 'b', 'i', 'e', 't', 'e', 'r', 0};

} // namespace

// Both names are the whole body; the copy cuts and says false.
TEST(DescNetworkName, WholeBodyAndTextCopy)
{
    ExpectBodies(0x40, [] { return new TCDescNetworkName(); },
                 [](const TCDescNetworkName& d) {
                     return Join(d.NetworkNameLength(), TextOf(d, &TCDescNetworkName::NetworkNameText));
                 },
                 {{{'A', 's', 't', 'r', 'a'}, "5 Astra"}, {{}, "0 <none>"}});
    ExpectBodies(0x47, [] { return new TCDescBouquetName(); },
                 [](const TCDescBouquetName& d) { return TextOf(d, &TCDescBouquetName::BouquetNameText); },
                 {{{'F', 'r', 'e', 'e'}, "Free"}, {{}, "<none>"}});

    auto d = Decode(new TCDescNetworkName(), Desc(0x40, {'A', 's', 't', 'r', 'a'}));
    ExpectCopies(*d, &TCDescNetworkName::NetworkNameText,
                 {{6, true, 5, "Astra###"}, {5, true, 5, "Astra##"}, {4, false, 4, "Astr##"}, {0, false, 0, "##"}});
    UChar buffer[8];
    EXPECT_FALSE(d->NetworkNameText(buffer, nullptr));
    UShort size = 8;
    EXPECT_FALSE(d->NetworkNameText(nullptr, &size));
    EXPECT_EQ(size, 8);
}

// Only the first language is kept; a name that runs over keeps its length without text; the entries behind the
// first draw no warning.
TEST(DescMultilingualBouquetName, FirstEntryOnly)
{
    auto make = [] { return new TCDescMultilingualBouquetName(); };
    ExpectBodies(0x5C, make, [](const TCDescMultilingualBouquetName& d) {
        return Join(d.Tag(), Code(d.Language()), d.BouquetNameLength(), TextOf(d, &TCDescBouquetName::BouquetNameText));
    }, {
        {{'e', 'n', 'g', 3, 'O', 'n', 'e', 'd', 'e', 'u', 3, 'E', 'i', 'n'}, "92 eng 3 One"},
        {{'f', 'r', 'a', 2, 'U', 'n'}, "92 fra 2 Un"},
        {{'f', 'r', 'a', 9, 'U', 'n'}, "92 fra 9 <none>", "inLen=6, outLen=4"},
        {{'f', 'r', 'a'}, "92 fra 0 <none>"},
        {{'f', 'r'}, "92 - 0 <none>", "inLen=2, outLen=0"},
    });
}

// A record reads no further than the descriptor: a name that claims more keeps the bytes there are, and an entry
// head cut short is not an entry. Lookups match languages in any case.
TEST(DescMultilingualNetworkName, EntriesAndLookup)
{
    auto make = [] { return new TCDescMultilingualNetworkName(); };
    ExpectBodies(0x5B, make, [](const TCDescMultilingualNetworkName& d) {
        std::string s = Join(d.NumOfNetworkName(), d.NetworkNameDesc(-1) != nullptr);
        for (int i = 0; d.NetworkNameDesc(i); ++i)
            s += " " + Code(d.NetworkNameDesc(i)->Language()) + ":" +
                 TextOf(*d.NetworkNameDesc(i), &CmultiNetworkNameDesc::NetworkNameChar);
        return s;
    }, {
        {kNetworkNames, "3 0 eng:NW deu:<none> fra:Res"},
        {{'e', 'n', 'g', 9, 'A', 'B'}, "1 0 eng:AB"},
        {{'e', 'n', 'g', 1, 'A', 'd', 'e'}, "1 0 eng:A", "inLen=7, outLen=5"},
        {{'e', 'n', 'g'}, "0 0", "inLen=3, outLen=0"},
    });
    auto d = Decode(make(), Desc(0x5B, kNetworkNames));
    const struct { unsigned int language; std::string name; } cases[] = {
        {kENG, "NW"}, {0x465241, "Res"}, {kDeu, ""}, {0x737061, "<none>"}};
    for (const auto& c : cases)
        EXPECT_EQ(Found([&](UChar* b, UShort* s) { return d->GetNetworkNameByLanguage(c.language, b, s); }), c.name);
    zumtest::LogCapture log;
    UShort size = 10;
    EXPECT_FALSE(d->GetNetworkNameByLanguage(kEng, nullptr, &size));
    EXPECT_TRUE(log.Contains("Failed: name != __null && size != __null"));
    ExpectCopies(*d->NetworkNameDesc(0), &CmultiNetworkNameDesc::NetworkNameChar, {{1, false, 1, "N##"}});
}

// The service name matches in any case, the provider name only exactly. The record copies say true also when they
// cut; an empty copy says whether there was no text.
TEST(DescMultilingualServiceName, EntriesAndLookups)
{
    auto make = [] { return new TCDescMultilingualServiceName(); };
    ExpectBodies(0x5D, make, [](const TCDescMultilingualServiceName& d) {
        std::string s = Join(d.NumOfServiceName());
        for (int i = 0; d.ServiceNameDesc(i); ++i)
            s += " " + Join(Code(d.ServiceNameDesc(i)->Language()), d.ServiceNameDesc(i)->ServiceProviderNameLength(),
                            d.ServiceNameDesc(i)->ServiceNameLength());
        return s;
    }, {
        {kServiceNames, "2 eng 1 3 deu 8 0"},
        {{'e', 'n', 'g', 7, 'P', 'Q'}, "1 eng 2 0"},
        {{'e', 'n', 'g', 1, 'P', 5, 'S'}, "1 eng 1 1"},
        {{'e', 'n', 'g', 0}, "1 eng 0 0"},
        {{'e', 'n'}, "0", "inLen=2, outLen=0"},
    });
    auto d = Decode(make(), Desc(0x5D, kServiceNames));
    const struct { bool provider; unsigned int language; std::string text; } cases[] = {
        {false, kEng, "ABC"}, {false, kENG, "ABC"},     {true, kEng, "P"},        {true, kENG, "<none>"},
        {false, kDeu, ""},    {true, kDeu, "Anbieter"}, {false, kFra, "<none>"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Found([&](UChar* b, UShort* s) {
                      return c.provider ? d->GetServiceProviderNameByLanguage(c.language, b, s)
                                        : d->GetServiceNameByLanguage(c.language, b, s);
                  }), c.text) << c.provider << " " << Code(c.language);
    unsigned int language = 0;
    EXPECT_EQ(Found([&](UChar* b, UShort* s) { return d->GetServiceNameByIndex(0, &language, b, s); }), "ABC");
    EXPECT_EQ(language, kEng);
    EXPECT_EQ(Found([&](UChar* b, UShort* s) { return d->GetServiceNameByIndex(2, &language, b, s); }), "<none>");
    UShort size = 0;
    EXPECT_FALSE(d->GetServiceNameByLanguage(kEng, nullptr, &size));

    ExpectCopies(*d->ServiceNameDesc(0), &CmultiServiceNameDesc::ServiceNameChar, {{2, true, 2, "AB##"}});
    ExpectCopies(*d->ServiceNameDesc(1), &CmultiServiceNameDesc::ServiceNameChar, {{0, true, 0, "##"}});
}

// Component tag, count, then language:text of each entry.
TEST(DescMultilingualComponent, TagAndTexts)
{
    auto make = [] { return new TCDescMultilingualComponent(); };
    ExpectBodies(0x5E, make, [](const TCDescMultilingualComponent& d) {
        std::string s = Join(d.ComponentTag(), d.NumOfComponentText());
        for (int i = 0; d.ComponentDesc(i); ++i)
            s += " " + Code(d.ComponentDesc(i)->Language()) + ":" +
                 TextOf(*d.ComponentDesc(i), &CmultiComponentDesc::TextDescChar);
        return s;
    }, {
        {{0x07, 'e', 'n', 'g', 2, 'H', 'D', 'd', 'e', 'u', 0}, "7 2 eng:HD deu:<none>"},
        {{0x07, 'e', 'n', 'g', 6, 'H'}, "7 1 eng:H"},
        {{0x07, 'e', 'n'}, "7 0", "inLen=3, outLen=1"},
        {{0x07}, "7 0"},
    });
    auto d = Decode(make(), Desc(0x5E, {0x07, 'e', 'n', 'g', 2, 'H', 'D'}));
    ExpectCopies(*d->ComponentDesc(0), &CmultiComponentDesc::TextDescChar, {{1, false, 1, "H##"}});
}
