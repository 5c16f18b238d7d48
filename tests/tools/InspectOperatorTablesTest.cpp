// Fast scan and the update notification table through the inspector: FNT and
// FST on the PID that the NIT's home transponder linkage names, shown as the
// operator's channel list; a UNT with its targets.

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "inspect/Renderers.h"
#include "inspect/Session.h"
#include "inspect/TsMux.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zuminspect::Json;
using zumtest::Bytes;
using zumtest::Concat;
using zumtest::Desc;

namespace {

constexpr unsigned kHomePid = 0x0384;

Json Inspect(const Bytes& input, const zuminspect::InspectSettings& settings)
{
    zumtest::BinderScope binder(zuminspect::BinderSettingsFor(settings));
    zuminspect::Session session(zuminspect::DetectInputKind(input.data(), input.size()), settings);
    session.Feed(input.data(), input.size());
    session.Finish();
    return session.Model();
}

std::string Tree(const Json& model)
{
    std::ostringstream tree;
    zuminspect::RenderTree(model, tree);
    return tree.str();
}

std::string Parser(const Json& model, unsigned pid, const std::string& tableId)
{
    for (const Json& t : model["summary"]["tables"])
        if (t["tableId"] == tableId && (t["pid"].is_null() || t["pid"] == pid))
            return t["parser"].is_null() ? "none" : t["parser"].get<std::string>();
    return "absent";
}

} // namespace

TEST(InspectOperatorTables, FastScanHomeTransponderAsChannelList)
{
    // The NIT names operator network 0x0100's tables on PID 0x384 (linkage type 0x88, marker 0x7701).
    const Bytes linkage = Desc(0x4A, {0x00, 0x01, 0x00, 0x01, 0x00, 0x00, 0x88, 0x77, 0x01, 0x01, 0x00, 0x00,
                                      0x00, 0x01, 0x04, 0x00, 0x00, 0x01, 0x04, 0x01, 0x03, 0x84, 0xE1});
    zumtest::SectionBuilder nit(zumtest::LongHeader(0x40, 0x0001, 0, 0, 0, true));
    nit.Begin16().Raw(linkage).End().Begin16().End();

    // Numbers under the M7 specifier, as the FNT's transport carries them.
    const Bytes numbers = Concat({Desc(0x5F, {0x01, 0x0F, 0xFF, 0xFF}), Desc(0x41, {0x00, 0x11, 0x01, 0x00, 0x12, 0x01}),
                                  Desc(0x83, {0x00, 0x11, 0x00, 0x02, 0x00, 0x12, 0x00, 0x01})});
    zumtest::SectionBuilder fnt(zumtest::LongHeader(0xBC, 0x0100, 0, 0, 0, true));
    fnt.Begin16().Raw(Desc(0x40, {'O', 'P'})).End().Begin16().U16(0x0400).U16(0x0001).Begin16().Raw(numbers).End().End();
    zumtest::SectionBuilder fst(zumtest::LongHeader(0xBD, 0x0100, 0, 0, 0, true));
    for (unsigned sid : {0x11, 0x12, 0x13}) {
        fst.U16(0x0001).U16(0x0400).U16(sid).U16(0xE100 + sid).U16(0xE200 + sid).U16(0x1FFF).U16(0x1FFF).U16(0xE100 + sid);
        fst.Begin16().Descriptor(0x48, {0x01, 0x02, 'O', 'p', 0x03, 'C', 'h', static_cast<uint8_t>('0' + sid - 0x10)}).End();
    }
    zuminspect::TsMux nitMux(0x0010), homeMux(kHomePid), otherMux(0x0385);
    nitMux.Add(nit.Build());
    homeMux.Add(fnt.Build());
    homeMux.Add(fst.Build());
    otherMux.Add(fst.Build());
    const Bytes stream = Concat({nitMux.Flush(), homeMux.Flush(), otherMux.Flush()});

    const Json model = Inspect(stream, {"NLD", 0, 0, "", false});
    ASSERT_EQ(model["fastScan"].size(), 1u) << model["fastScan"].dump(1);
    const Json& list = model["fastScan"][0];
    EXPECT_EQ(list["operatorNetworkId"], 0x100);
    EXPECT_EQ(list["pid"], kHomePid);
    EXPECT_EQ(list["complete"], true);
    std::vector<std::string> channels;
    for (const Json& c : list["channels"])
        channels.push_back(c["channelNumber"].dump() + " " + c["name"].get<std::string>() + " " + c["videoPid"].dump());
    EXPECT_EQ(channels, (std::vector<std::string>{"1 Ch2 274", "2 Ch1 273", "null Ch3 275"}));
    EXPECT_EQ(Parser(model, kHomePid, "0xBC"), "TCDVBFNTParser");
    EXPECT_EQ(Parser(model, kHomePid, "0xBD"), "TCDVBFSTParser");
    // A PID that no linkage names is not filtered.
    EXPECT_EQ(Parser(model, 0x0385, "0xBD"), "absent");
    const std::string tree = Tree(model);
    EXPECT_NE(tree.find("FNT/FST  fast-scan channel list of operator network 0x0100 on PID 0x0384\n"), std::string::npos)
        << tree;
    EXPECT_NE(tree.find("  channel 1  "), std::string::npos) << tree;
}

TEST(InspectOperatorTables, UpdateNotificationWithTargets)
{
    zumtest::SectionBuilder unt(zumtest::LongHeader(0x4B, 0x015B, 0, 0, 0, true));
    unt.U24(0x00015A).U8(0x00).Begin16().End();
    unt.Begin16(16, 0).Raw({0x00, 0x01, 0x02}).End().Begin16(16, 0);
    unt.Begin16().Descriptor(0x0C, {0xC0, 0xA8, 0x00, 0x01}).End().Begin16().Descriptor(0x03, {0x00, 0x0A, 0x12, 0x34}).End();
    unt.End();
    const Json model = Inspect(unt.Build(), {"DEU", 0, 0, "", false});
    ASSERT_EQ(model["unt"].size(), 1u);
    const Json& table = model["unt"][0];
    EXPECT_EQ(table["oui"], "0x00015A");
    EXPECT_EQ(table["items"][0]["compatibility"], "00 01 02");
    const Json& platform = table["items"][0]["platforms"][0];
    ASSERT_EQ(platform["targets"].size(), 1u);
    EXPECT_EQ(platform["targets"][0]["tag"], "0x0C");
    EXPECT_EQ(platform["operational"][0]["class"], "TCDescSSULocation");
    EXPECT_EQ(platform["operational"][0]["fields"]["associationTag"], 0x1234);
    EXPECT_EQ(Parser(model, 0, "0x4B"), "TCUNTParser");
    const std::string tree = Tree(model);
    EXPECT_NE(tree.find("UNT  update notification of OUI 0x00015A\n"), std::string::npos) << tree;
    EXPECT_NE(tree.find("      targets\n"), std::string::npos);
}
