// The inspector's parts on their own: text helpers, describers, the routing
// rules and the event store across versions.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/Descriptor.h"
#include "inspect/Describers.h"
#include "inspect/Router.h"
#include "inspect/Text.h"
#include "inspect/TsDemux.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zuminspect::Json;
using zuminspect::kNoPid;
using zuminspect::Router;
using zumtest::Bytes;

TEST(InspectText, Utf16TimesCodesAndUnreadableText)
{
    const std::vector<std::pair<std::basic_string<unsigned short>, std::string>> cases = {
        {{'Z', 0xFC, 0x20AC}, "Z\xC3\xBC\xE2\x82\xAC"},
        {{0xD83D, 0xDCFA}, "\xF0\x9F\x93\xBA"},           // a pair: U+1F4FA
        {{0xD83D, 'a'}, "\xEF\xBF\xBD" "a"},              // lone high surrogate
        {{0xDCFA}, "\xEF\xBF\xBD"},                        // lone low surrogate
        {{}, ""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(zuminspect::Utf16ToUtf8(c.first), c.second);
    EXPECT_EQ(zuminspect::IsoTimeSince1980(0), "1980-01-06T00:00:00Z");
    EXPECT_EQ(zuminspect::IsoTimeSince1980(86401), "1980-01-07T00:00:01Z");
    EXPECT_EQ(zuminspect::IsoTimeSince1980(0xFFFFFFFE), "2116-02-12T06:28:14Z");
    EXPECT_EQ(zuminspect::CodeText(0x656E67), "eng");
    EXPECT_EQ(zuminspect::CodeText(0x00FF41), "0x00FF41");
    zumtest::BinderScope binder;
    const zuminspect::TextDecoder text(kZUMDefaultHandle, 0);
    const unsigned char latin5[] = {0x05, 'T', 0xFC, 'r'};
    EXPECT_EQ(text.Decode(latin5, sizeof latin5), "T\xC3\xBCr");
    // A selector no table answers to: the bytes stay visible.
    const unsigned char unknown[] = {0x1F, 'a', 0x80};
    EXPECT_EQ(text.Decode(unknown, sizeof unknown), "\\x1Fa\\x80");
}

TEST(InspectDescribers, FieldsForKnownClassesRawForTheRest)
{
    zumtest::BinderScope binder;
    struct Case {
        Bytes descriptor;
        const char* tag;
        const char* className;
        const char* field; // pointer into "fields", or null for raw bytes
        Json value;
    };
    const std::vector<Case> cases = {
        {zumtest::Desc(0x40, {'N', 'e', 't'}), "0x40", "TCDescNetworkName", "/name", "Net"},
        // The one specifier that the loop keeps as an object of its own.
        {zumtest::Desc(0x5F, {0, 0, 0x22, 0xC6}), "0x5F", "TCDescPrivateDataSpecifier", "/privateDataSpecifier",
         "0x000022C6"},
        {zumtest::Desc(0x4B, {0x01}), "0x4B", "TCDescDefault", nullptr, "4b 01 01"},
        {zumtest::Desc(0x4A, {0, 1, 0, 2, 0, 3, 0x09, 4, 0x00, 0x01, 0x5A, 0}), "0x4A", "TCDescLinkage",
         "/ouis/0/oui", "0x00015A"},
        {zumtest::Desc(0x4A, {0, 1, 0, 2, 0, 3, 0x0D, 0x12, 0x34, 0x40}), "0x4A", "TCDescLinkage", "/linkageName",
         "event linkage"},
        {zumtest::Desc(0x7F, {0x04, 0x00, 0x12, 0x34}), "0x7F04", "TCDescT2SystemDelivery", "/t2SystemId", 0x1234},
        {zumtest::Desc(0x7F, {0x17, 0xAA}), "0x7F17", "TCDescExtension", nullptr, "7f 02 17 aa"},
        // All ones: the centre frequency is not given.
        {zumtest::Desc(0x5A, {0xFF, 0xFF, 0xFF, 0xFF, 0x1F, 0x92, 0x41, 0xFF, 0xFF, 0xFF, 0xFF}), "0x5A",
         "TCDescTerrestrialDeliverySystem", "/centreFrequencyHz", nullptr},
        // 11.765 GHz east, circular left, roll-off 0.25, DVB-S2 8PSK, 3/4: names from the byte as sent.
        {zumtest::Desc(0x43, {0x01, 0x17, 0x65, 0x00, 0x01, 0x92, 0xCE, 0x02, 0x75, 0x00, 0x03}), "0x43",
         "TCDescSatelliteDeliverySystem", "/polarizationName", "circular left"},
        {zumtest::Desc(0x43, {0x01, 0x17, 0x65, 0x00, 0x01, 0x92, 0xCE, 0x02, 0x75, 0x00, 0x03}), "0x43",
         "TCDescSatelliteDeliverySystem", "/rollOffName", "0.25"},
        {zumtest::Desc(0x43, {0x01, 0x17, 0x65, 0x00, 0x01, 0x92, 0xCE, 0x02, 0x75, 0x00, 0x03}), "0x43",
         "TCDescSatelliteDeliverySystem", "/modulationName", "8PSK"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.className);
        TCDescriptorHash hash;
        TCDescriptor loop(kZUMDefaultHandle);
        loop.Parse(c.descriptor.data(), static_cast<int>(c.descriptor.size()), hash, 0x40);
        const Json described = zuminspect::DescribeLoop(hash, zuminspect::TextDecoder(kZUMDefaultHandle, 0));
        ASSERT_EQ(described.size(), 1u);
        const Json& d = described[0];
        EXPECT_EQ(d["tag"], c.tag);
        EXPECT_EQ(d["class"], c.className);
        if (c.field)
            EXPECT_EQ(d.at("fields").at(Json::json_pointer(c.field)), c.value) << c.className;
        else
            EXPECT_EQ(d.at("raw"), c.value) << c.className;
    }
}

namespace {

// An EIT p/f section of service 1 with one event per entry of `eventIds`.
Bytes Eit(unsigned version, unsigned section, const std::vector<unsigned>& eventIds)
{
    zumtest::SectionBuilder s(zumtest::LongHeader(0x4E, 1, version, section, 1, true));
    s.U16(2).U16(3).U8(1).U8(0x4E);
    for (unsigned id : eventIds)
        s.U16(id).Raw({0xE4, 0x77, 0x01, 0x20, 0x00}).Raw({0x01, 0x00, 0x00}).Begin16(12, 4u << 13).End();
    return s.Build();
}

std::vector<unsigned> EventIds(const Router& router)
{
    std::vector<unsigned> ids;
    for (const auto& service : router.Events().EventsByService())
        for (const auto* e : service.second)
            ids.push_back(e->eventId);
    return ids;
}

} // namespace

TEST(InspectRouter, RoutesLikeReceiverFiltersAndKeepsEventsOfTheCurrentVersion)
{
    zumtest::BinderScope binder;
    Router router(kZUMDefaultHandle, false);
    struct Case {
        uint16_t pid;
        uint8_t tableId;
        const char* parser; // empty: no parser
    };
    const std::vector<Case> beforePat = {
        {0x0000, 0x00, "TCPATParser"},    {0x0100, 0x02, ""},               {0x0012, 0x85, "TCDVBEITParser"},
        // Without a PID a shared table id names a parser only once a section decided it.
        {0x0030, 0x85, "TCDVBLCNParser"}, {kNoPid, 0x85, ""},               {kNoPid, 0x9F, ""},
        {0x0011, 0x4A, "TCDVBBATParser"}, {0x0011, 0x46, "TCDVBSDTParser"}, {0x0012, 0x42, ""},
        {0x0001, 0x01, "TCDVBCATParser"}, {0x0012, 0x4A, ""},               {0x0011, 0x01, ""},
        {0x0014, 0x73, "TCDVBTOTParser"}, {0x0020, 0x41, ""},               {0x0012, 0x70, ""},
    };
    for (const Case& c : beforePat)
        EXPECT_EQ(router.ParserName(c.pid, c.tableId), c.parser) << c.pid << " " << int(c.tableId);
    EXPECT_FALSE(router.Wants(0x0100));

    zumtest::SectionBuilder pat(zumtest::LongHeader(0x00, 1)); // network PID 0x0020, program 5 on 0x0100
    pat.U16(0).U16(0xE020).U16(5).U16(0xE100);
    const Bytes patSection = pat.Build();
    router.OnSection(0x0000, patSection.data(), patSection.size());
    EXPECT_TRUE(router.Wants(0x0100));
    EXPECT_TRUE(router.Wants(0x0020));
    EXPECT_FALSE(router.Wants(0x0101));
    EXPECT_EQ(router.ParserName(0x0100, 0x02), "TCPMTParser");
    EXPECT_EQ(router.ParserName(0x0020, 0x41), "TCDVBNITParser");
    EXPECT_EQ(router.ParserName(0x0101, 0x02), "");
    EXPECT_EQ(router.Complete(0x0000, 0x00), true);
    EXPECT_EQ(router.Complete(0x0100, 0x02), false); // no PMT yet
    EXPECT_EQ(router.Complete(0x0012, 0x4A), std::nullopt);
    EXPECT_EQ(router.Complete(0x0011, 0x4A), false); // no bouquet yet

    Router everything(kZUMDefaultHandle, true);
    EXPECT_TRUE(everything.Wants(0x1234));
    EXPECT_EQ(everything.ParserName(0x1234, 0x02), "TCPMTParser");

    const auto feed = [&](const Bytes& s) { router.OnSection(0x0012, s.data(), s.size()); };
    feed(Eit(1, 0, {10}));
    feed(Eit(1, 1, {11, 12}));
    feed(Eit(1, 1, {11, 12})); // a repetition adds nothing
    EXPECT_EQ(EventIds(router), (std::vector<unsigned>{10, 11, 12}));
    EXPECT_EQ(router.Complete(0x0012, 0x4E), true);
    feed(Eit(2, 0, {20})); // the new version drops what the old one said
    EXPECT_EQ(EventIds(router), (std::vector<unsigned>{20}));
    EXPECT_EQ(router.Complete(0x0012, 0x4E), false);
    const auto events = router.Events().EventsByService();
    ASSERT_EQ(events.size(), 1u);
    EXPECT_EQ(events.begin()->first, std::make_tuple(uint16_t{3}, uint16_t{2}, uint16_t{1}));
    EXPECT_EQ(events.begin()->second.front()->duration, 3600u);
    EXPECT_EQ(router.Routed(), 5u); // the PAT and the EIT sections
}
