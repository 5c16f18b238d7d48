#include <gtest/gtest.h>

#include <string>

#include "apps/DescApplication.h"
#include "apps/DescApplicationSignalling.h"
#include "apps/DescTransportProtocol.h"
#include "dvb/DescContent.h"
#include "dvb/DescLoopProbe.h"

using namespace svctest;

namespace {

// The log lines of a case: the decoder's own, then the loop's length warning when there is one.
std::string Log(const std::string& line, const std::string& warning = "")
{
    std::vector<std::string> lines{line};
    if (!warning.empty())
        lines.push_back("[Warning] Descriptor[" + warning);
    return testing::PrintToString(lines);
}

std::string Mismatch(int in, int out)
{
    return "inLen=" + std::to_string(in) + ", outLen=" + std::to_string(out);
}

} // namespace

TEST(DescApplication, ProfilesFlagsAndLabels)
{
    ExpectBodies(0x00, [] { return new TCDescApplication(); },
                 [](const TCDescApplication& d) {
                     std::string profiles;
                     for (unsigned i = 0; i <= d.NumOfAppProfile(); ++i)
                         if (const TCAppProfile* p = d.AppProfile(i))
                             profiles += Join(p->ApplicationProfile(), p->VersionMajor(), p->VersionMinor(),
                                              p->VersionMicro()) + ";";
                     std::string labels;
                     for (unsigned i = 0; i < d.TransportProtocolLabelCount(); ++i)
                         labels += std::to_string(d.TransportProtocolLabel(i)) + ",";
                     return Join(d.ApplicationProfilesLength(), profiles, d.ServiceBoundFlag(), d.Visibility(),
                                 d.ApplicationPriority(), labels + "|");
                 },
                 {
                     // No profiles: the flags at bytes 1 and 2, no labels.
                     {{0x00, 0xE0, 0x05}, "0  1 3 5 |", Log(" DescApplication, parsedLen[3] >= t_descriptorLength[3]")},
                     {{0x05, 0x00, 0x10, 1, 2, 3, 0x60, 0x30, 0x01, 0x02}, "5 16 1 2 3; 0 3 48 1,2,|"},
                     // A profiles length of 6 reaches over into a second profile.
                     {{0x06, 0x00, 0x10, 1, 0, 0, 0x00, 0x11, 2, 0, 0, 0x80, 0x07, 0x09},
                      "6 16 1 0 0;17 2 0 0; 1 0 7 9,|"},
                     // A second profile that the body cuts off is not read; what is there still decodes.
                     {{0x0A, 0x00, 0x10, 1, 0, 0, 0x80}, "10 16 1 0 0; 1 0 0 |",
                      Log(" DescApplication, parsedLen[8] >= t_descriptorLength[7]")},
                 });
}

TEST(DescApplication, NamesAndTheirCapacity)
{
    ExpectBodies(0x01, [] { return new TCDescApplicationName(); },
                 [](const TCDescApplicationName& d) {
                     std::string out;
                     for (unsigned i = 0; i <= d.NumOfAppNameChar(); ++i)
                         if (const TCAppNameChar* n = d.AppNameChar(i)) {
                             const unsigned char* name = n->ApplicationNameChar(n->NameLength());
                             out += Code(n->Language()) + ":" +
                                    std::string(reinterpret_cast<const char*>(name ? name : (const unsigned char*)""),
                                                n->NameLength()) + ";";
                         }
                     return out;
                 },
                 {
                     {{'i', 't', 'a', 0}, "", Mismatch(4, 0)},
                     {{'i', 't', 'a', 2, 'T', 'V', 'e', 'n', 'g', 1, 'X'}, "ita:TV;eng:X;"},
                     // A name longer than the body keeps what is there.
                     {{'i', 't', 'a', 9, 'T', 'V'}, "ita:TV;", Mismatch(6, 13)},
                 });
    auto d = Decode(new TCDescApplicationName(), Desc(0x01, {'i', 't', 'a', 3, 'a', 'b', 'c'}));
    EXPECT_EQ(d->AppNameChar(0)->ApplicationNameChar(2), nullptr);
    EXPECT_NE(d->AppNameChar(0)->ApplicationNameChar(3), nullptr);
}

TEST(DescTransportProtocol, SelectorByProtocolId)
{
    ExpectBodies(0x02, [] { return new TCDescTransportProtocol(); },
                 [](const TCDescTransportProtocol& d) {
                     std::string ext;
                     for (unsigned i = 0; i < d.NumOfURLExtension(); ++i)
                         ext += d.URLExtension(i) + ";";
                     return Join(d.ProtocolId(), d.TransportProtocolLabel(), d.RemoteConnection(),
                                 d.OriginalNetworkId(), d.TransportStreamId(), d.ServiceId(), d.ComponentTag(),
                                 d.AlignmentIndicator(), "[" + d.URLBase() + "]", ext + "|");
                 },
                 {
                     {{0x00, 0x01}, "0 0 0 0 0 0 0 0 [] |",
                      Log("TCDescTransportProtocol::t_Parse, len[2] < TRANS_PROTOCOL_BODY_LEN[3]",
                          "0x2] length mismatch!inLen=2, outLen=0")},
                     {{0x00, 0x01, 0x07}, "1 7 0 0 0 0 0 0 [] |"},
                     {{0x00, 0x01, 0x01, 0x00, 0x0A}, "1 1 0 0 0 0 10 0 [] |"},
                     {{0x00, 0x01, 0x01, 0x80, 0, 1, 0, 2, 0, 3, 0x0C}, "1 1 1 1 2 3 12 0 [] |"},
                     // remote_connection set but only six selector bytes: the ids stay unread.
                     {{0x00, 0x01, 0x01, 0x80, 0x0B, 0, 2, 0, 3}, "1 1 1 0 0 0 11 0 [] |"},
                     {{0x00, 0x02, 0x01, 0x80, 0, 1, 0, 2, 0, 3, 0x80}, "2 1 1 1 2 3 0 1 [] |"},
                     {{0x00, 0x03, 0x01, 4, 'h', 't', 't', 'p', 2, 1, 'a', 2, 'b', 'c'}, "3 1 0 0 0 0 0 0 [http] a;bc;|"},
                     {{0x00, 0x03, 0x01, 4, 'h', 't', 't', 'p', 0}, "3 1 0 0 0 0 0 0 [http] |"},
                     // An extension longer than the selector is cut; a base cut short ends the selector.
                     {{0x00, 0x03, 0x01, 1, 'h', 1, 9, 'x', 'y'}, "3 1 0 0 0 0 0 0 [h] xy;|"},
                     {{0x00, 0x03, 0x01, 9, 'h', 't'}, "3 1 0 0 0 0 0 0 [ht] |"},
                     {{0x01, 0x01, 0x01, 2, 'h', 't', 1, 1, 'x'}, "257 1 0 0 0 0 0 0 [ht] |"},
                     {{0x00, 0x04, 0x01, 2, 'h', 't'}, "4 1 0 0 0 0 0 0 [] |"},
                 });
}

TEST(DescApplication, FixedShapes)
{
    ExpectBodies(0x05, [] { return new TCDescExternalApplicationAuthrisation(); },
                 [](const TCDescExternalApplicationAuthrisation& d) {
                     std::string out;
                     for (unsigned i = 0; i <= d.NumOfExtAppAuth(); ++i)
                         if (const TCExtAppAuth* e = d.ExtAppAuth(i))
                             out += Join(e->OrganisationId(), e->ApplicationId(), e->ApplicationPriority()) + ";";
                     return out;
                 },
                 {{{0, 0, 0, 0x10, 0, 1, 5, 0, 1, 0, 0, 0, 2, 9, 0xFF}, "16 1 5;65536 2 9;"}});
    ExpectBodies(0x0B, [] { return new TCDescApplicationIcons(); },
                 [](const TCDescApplicationIcons& d) { return Join(d.IconLocatorText(), d.IconFlags()); },
                 {{{3, 'a', '/', 'b', 0x00, 0x05, 0xEE}, "a/b 5"}, {{5, 'a', '/'}, "a/ 0"}});
    ExpectBodies(0x10, [] { return new TCDescApplicationStorageCapability(); },
                 [](const TCDescApplicationStorageCapability& d) {
                     return Join(d.StorageProperty(), d.NotLaunchableFromBroadcast(),
                                 d.LaunchableCompletelyFromCache(), d.IsLaunchableWithOlderVersion(), d.Version(),
                                 d.Priority());
                 },
                 {{{1, 0xA0, 0xFF, 0xFF, 0xFF, 0xFE, 7}, "1 1 0 1 2147483646 7"},
                  {{1, 0xE0, 0, 0, 0, 1}, "0 0 0 0 0 0", Mismatch(6, 0)}});
    ExpectBodies(0x15, [] { return new TCDescApplicationSimpleLocation(); },
                 [](const TCDescApplicationSimpleLocation& d) { return d.InitialPath(); },
                 {{{'i', 'n', 'd', 'e', 'x'}, "index"}});
    ExpectBodies(0x16, [] { return new TCDescApplicationUsage(); },
                 [](const TCDescApplicationUsage& d) { return std::to_string(d.UsageType()); },
                 {{{0x01}, "1"}, {{0x01, 0x02}, "-1", Mismatch(2, 0)}});
    ExpectBodies(0x17, [] { return new TCDescApplicationBoundary(); },
                 [](const TCDescApplicationBoundary& d) {
                     std::string out;
                     for (unsigned i = 0; i <= d.NumOfBoundaryExtension(); ++i)
                         out += d.BoundaryExtension(i) + ";";
                     return out;
                 },
                 {{{0}, ";"},
                  {{2, 1, 'a', 2, 'b', 'c'}, "a;bc;;"},
                  {{3, 1, 'a', 5, 'b'}, "a;;", Mismatch(5, 3)}});
    ExpectBodies(0x67, [] { return new TCDescUnboundApplication(); },
                 [](const TCDescUnboundApplication& d) { return Join(d.Value24(), d.Value32()); },
                 {{{0, 1, 2, 0, 0, 1, 0}, "258 256"}});
    ExpectBodies(0x69, [] { return new TCDescApplicationStorage(); },
                 [](const TCDescApplicationStorage& d) { return Join(d.Value16(), d.Value8()); },
                 {{{1, 2, 3}, "258 3"}});
}

TEST(DescTransportProtocol, PrefetchAndDIILocation)
{
    ExpectBodies(0x0C, [] { return new TCDescPrefetch(); },
                 [](const TCDescPrefetch& d) {
                     std::string out = std::to_string(d.TransportProtocolLabel()) + ":";
                     for (unsigned i = 0; i <= d.NumOfPrefetchLabelChar(); ++i)
                         if (const TCPrefetchLabelChar* l = d.PrefetchLabelChar(i))
                             out += Join(int(l->LabelLength()), l->Label() ? std::string((const char*)l->Label(),
                                                                                          l->LabelLength())
                                                                            : "<null>",
                                         l->PrefetchPriority()) + ";";
                     return out;
                 },
                 {{{7, 2}, "7:", Mismatch(2, 1)},
                  {{7, 2, 'a', 'b', 9, 1, 'c', 4}, "7:2 ab 9;1 c 4;"},
                  // The last entry claims more than remains: kept without its bytes, and the walk ends.
                  {{7, 1, 'a', 9, 5, 'x'}, "7:1 a 9;5 <null> 0;", Log("TCDescPrefetch::t_Parse, parsedLen[11] > len[6]",
                                                "0xc] length mismatch!inLen=6, outLen=4")}});
    ExpectBodies(0x0D, [] { return new TCDescDIILocation(); },
                 [](const TCDescDIILocation& d) {
                     std::string out = std::to_string(d.TransportProtocolLabel()) + ":";
                     for (unsigned i = 0; i <= d.NumOfDIISubField(); ++i)
                         if (const TCDIISubField* f = d.DIISubField(i))
                             out += Join(f->DIIIdentification(), f->AssociationTag()) + ";";
                     return out;
                 },
                 {{{1, 0xFF, 0xFF, 0, 2}, "1:32767 2;"},
                  {{1, 0, 1, 0, 2, 0, 3, 0, 4}, "1:1 2;3 4;"},
                  {{1, 0, 1, 0}, "1:", Mismatch(4, 1)}});
}

TEST(DescApplicationSignalling, TypesAndVersions)
{
    ExpectBodies(0x6F, [] { return new TCDescApplicationSignalling(); },
                 [](const TCDescApplicationSignalling& d) {
                     char version = -2;
                     const bool hbbtv = d.IsAppTypePresent(0x0010, &version);
                     return Join(d.NumOfAppType(), hbbtv, int(version), d.IsAppTypePresent(0x0001, nullptr),
                                 d.AppType(d.NumOfAppType()));
                 },
                 {{{0x80, 0x10}, "0 0 -2 0 65535", Mismatch(2, 0)},
                  // A type listed twice answers its last version; the top bits are not part of it.
                  {{0x80, 0x10, 0xE3, 0x00, 0x01, 0x01, 0x00, 0x10, 0xE7, 0xFF}, "3 1 7 1 65535", Mismatch(10, 9)}});
}

TEST(DescApplication, FactoryRows)
{
    ExpectRows({
        {"ITA DEU GBR", 0x74, Desc(0x00, {0, 0, 1}), 0x00, typeid(TCDescApplication)},
        {"ITA", 0x74, Desc(0x01, {}), 0x01, typeid(TCDescApplicationName)},
        {"ITA", 0x74, Desc(0x02, {}), 0x02, typeid(TCDescTransportProtocol)},
        {"ITA", 0x74, Desc(0x05, {}), 0x05, typeid(TCDescExternalApplicationAuthrisation)},
        {"ITA", 0x74, Desc(0x0B, {}), 0x0B, typeid(TCDescApplicationIcons)},
        {"ITA", 0x74, Desc(0x0C, {}), 0x0C, typeid(TCDescPrefetch)},
        {"ITA", 0x74, Desc(0x0D, {}), 0x0D, typeid(TCDescDIILocation)},
        {"ITA", 0x74, Desc(0x10, {}), 0x10, typeid(TCDescApplicationStorageCapability)},
        {"ITA", 0x74, Desc(0x15, {}), 0x15, typeid(TCDescApplicationSimpleLocation)},
        {"ITA", 0x74, Desc(0x16, {}), 0x16, typeid(TCDescApplicationUsage)},
        {"ITA", 0x74, Desc(0x17, {}), 0x17, typeid(TCDescApplicationBoundary)},
        {"ITA", 0x74, Desc(0x55, {}), 0x55, typeid(TCDescParentalRating)},
        {"ITA", 0x74, Desc(0xAF, {}), 0xAF, typeid(TCDescUnboundApplication)},
        {"ITA", 0x74, Desc(0xB0, {}), 0xB0, typeid(TCDescApplicationStorage)},
        {"ITA", 0x74, Desc(0x03, {}), 0x03, typeid(TCDescDefault)},
        {"ITA GBR", 0x02, Desc(0x6F, {0, 0x10, 1}), 0x6F, typeid(TCDescApplicationSignalling)},
    });
}
