// The ISDB tables through the inspector: routed on their PIDs by an ISDB
// receiver only, ECM and EMM on the PIDs that the PMT and the CAT name, and
// nothing of a packet flagged in error reaching a parser.

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "inspect/Renderers.h"
#include "inspect/Session.h"
#include "inspect/TsMux.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zuminspect::Json;
using zuminspect::TsMux;
using zumtest::Bytes;
using zumtest::Concat;
using zumtest::Desc;

namespace {

Bytes Section(unsigned tableId, unsigned extension, const Bytes& payload, unsigned version = 0)
{
    zumtest::SectionBuilder b(zumtest::LongHeader(tableId, extension, version));
    b.Raw(payload);
    return b.Build();
}

// A BIT of about 400 bytes, three packets: the broadcaster's loop is long.
Bytes Bit(unsigned version)
{
    const Bytes loop = Concat({Desc(0xD8, Bytes(200, 0x41)), Desc(0xD8, Bytes(180, 0x42))});
    return Section(0xC4, 0x0004,
                   Concat({{0xE0, 0x00}, {uint8_t(version + 1), uint8_t(0xF0 | (loop.size() >> 8)), uint8_t(loop.size())},
                           loop}),
                   version);
}

Json Inspect(const Bytes& stream, const char* country, std::string* tree = nullptr)
{
    zuminspect::InspectSettings settings;
    settings.country = country;
    zumtest::BinderScope binder(zuminspect::BinderSettingsFor(settings));
    zumtest::LogCapture log;
    zuminspect::Session session(zuminspect::InputKind::TransportStream, settings);
    session.Feed(stream.data(), stream.size());
    session.Finish();
    EXPECT_EQ(session.Stats().sections, session.Routing().Routed() + session.Routing().NoParser());
    const Json model = session.Model();
    std::ostringstream out;
    zuminspect::RenderTree(model, out);
    if (tree)
        *tree = out.str();
    return model;
}

Json Summary(const Json& model, unsigned pid, const std::string& tableId)
{
    for (const Json& t : model["summary"]["tables"])
        if (t["pid"] == pid && t["tableId"] == tableId)
            return t;
    return Json::object();
}

} // namespace

TEST(InspectIsdb, BitPacketsInErrorReachNoParser)
{
    TsMux mux(0x0024);
    mux.Add(Bit(0));
    Bytes stream = mux.Flush();
    const size_t firstVersion = stream.size();
    mux.Add(Bit(1));
    stream = Concat({stream, mux.Flush()});
    mux.Add(Bit(2));
    stream = Concat({stream, mux.Flush()});
    ASSERT_EQ(stream.size(), 9 * 188u);
    stream[firstVersion + 188 + 1] |= 0x80; // a middle packet of version 1
    stream[2 * firstVersion + 1] |= 0x80;   // the first packet of version 2

    std::string tree;
    const Json model = Inspect(stream, "JPN", &tree);
    const Json bit = model["isdb"]["bit"];
    ASSERT_EQ(bit.size(), 1u);
    // Only version 0 came whole: its broadcaster id 1 stands.
    EXPECT_EQ(bit[0]["broadcasters"][0]["broadcasterId"], 1);
    EXPECT_EQ(bit[0]["broadcasters"][0]["descriptors"].size(), 2u);
    const Json summary = Summary(model, 0x0024, "0xC4");
    EXPECT_EQ(summary["parser"], "TCISDBBITParser");
    EXPECT_EQ(summary["table"], "BIT");
    EXPECT_EQ(summary["sections"], 1);
    EXPECT_EQ(summary["complete"], true);
    EXPECT_NE(tree.find("BIT  originalNetworkId: 0x0004"), std::string::npos) << tree;

    // A DVB receiver filters no such PID.
    EXPECT_TRUE(Inspect(stream, "GBR")["isdb"].is_null());
}

TEST(InspectIsdb, TablesOnTheirPidsAndCaByPmtAndCat)
{
    const Bytes pat = Section(0x00, 1, {0x00, 0x01, 0xE1, 0x00});
    const Bytes pmt = Section(0x02, 1, Concat({{0xE1, 0x01, 0xF0, 0x06}, Desc(0x09, {0x00, 0x05, 0xE3, 0x00}),
                                               {0x02, 0xE1, 0x01, 0xF0, 0x00}}));
    const Bytes cat = Section(0x01, 0xFFFF, Desc(0x09, {0x00, 0x05, 0xE3, 0x01}));
    const Bytes ecm = Section(0x82, 1, Concat({Bytes(26, 0x11), {0xDE, 0xAD, 0xBE, 0xEF}}));
    const Bytes emm = Section(0x84, 0, Concat({{1, 2, 3, 4, 5, 6, 10}, Bytes(6, 0), {0xA0, 0xA1, 0xA2, 0xA3}}));
    const Bytes cdt = Section(0xC8, 0x0010, {0x00, 0x04, 0x01, 0xF0, 0x00, 5, 0xFE, 0x07, 0xF0, 1, 0, 2, 0xAB, 0xCD});
    const Bytes sdtt = Section(0xC3, 0x0102, {0x7F, 0xE0, 0x7E, 0x87, 0x04, 0x00, 0});
    const Bytes nbit = Section(0xC6, 0x0004, {0, 1, 0x4C, 0x55, 0, 0xF0, 0});
    const Bytes stream =
        Concat({TsMux::Packetize(0x0000, {pat}), TsMux::Packetize(0x0100, {pmt}), TsMux::Packetize(0x0001, {cat}),
                TsMux::Packetize(0x0300, {ecm}), TsMux::Packetize(0x0301, {emm}), TsMux::Packetize(0x0029, {cdt}),
                TsMux::Packetize(0x0023, {sdtt}), TsMux::Packetize(0x0025, {nbit}),
                // On a PID that no filter names, the ECM table id reaches nothing.
                TsMux::Packetize(0x0302, {ecm})});
    const Json model = Inspect(stream, "BRA");
    const Json& isdb = model["isdb"];
    EXPECT_EQ(Summary(model, 0x0300, "0x82")["parser"], "TCISDBECMParser");
    EXPECT_EQ(Summary(model, 0x0301, "0x84")["parser"], "TCISDBEMMParser");
    EXPECT_EQ(Summary(model, 0x0029, "0xC8")["parser"], "TCISDBCDTParser");
    EXPECT_EQ(Summary(model, 0x0023, "0xC3")["parser"], "TCSDTTParser");
    EXPECT_EQ(Summary(model, 0x0025, "0xC6")["parser"], "TCISDBNBITParser");
    EXPECT_TRUE(Summary(model, 0x0302, "0x82").empty());
    EXPECT_EQ(isdb["ecm"]["pids"], Json::array({0x0300}));
    EXPECT_EQ(isdb["ecm"]["authentication"], "0xDEADBEEF");
    EXPECT_EQ(isdb["emm"]["records"][0]["cardId"], "01 02 03 04 05 06");
    EXPECT_EQ(isdb["cdt"][0]["logos"][0]["logoId"], 7);
    EXPECT_EQ(isdb["cdt"][0]["logos"][0]["head"], "ab cd");
    EXPECT_EQ(isdb["sdtt"][0]["serviceId"], 0x0400);
    EXPECT_EQ(isdb["nbit"][0]["information"][0]["informationType"], 4);
}
