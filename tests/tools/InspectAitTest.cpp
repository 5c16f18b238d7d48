// The Italian multiplex of test-018 through the inspector: its three AIT PIDs,
// announced by the PMTs, and the applications an application manager lists.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "inspect/Renderers.h"
#include "inspect/Router.h"
#include "inspect/Session.h"
#include "support/TestEnvironment.h"

using zuminspect::Json;

TEST(InspectAit, ApplicationsOfTheItalianMultiplex)
{
    const std::filesystem::path file =
        std::filesystem::path(ZUM_CAPTURES_DIR) / "tsduck_tsduck-test__test-018.ts";
    if (!std::filesystem::exists(file))
        GTEST_SKIP() << "no capture at " << file;
    std::ifstream in(file, std::ios::binary);
    const std::vector<uint8_t> stream((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());

    zuminspect::InspectSettings settings;
    settings.country = "ITA";
    zumtest::BinderScope binder(zuminspect::BinderSettingsFor(settings));
    zuminspect::Session session(zuminspect::InputKind::TransportStream, settings);
    session.Feed(stream.data(), stream.size());
    session.Finish();
    const Json model = session.Model();

    std::vector<std::string> lines;
    for (const Json& table : model["ait"]) {
        EXPECT_TRUE(table["complete"].get<bool>());
        for (const Json& instance : table["instances"])
            for (const Json& app : instance["applications"])
                lines.push_back(std::to_string(table["pid"].get<int>()) + " " + app["line"].get<std::string>());
    }
    const std::vector<std::string> expected = {
        "7877 0x000B/0x1AB5 PRESENT DVB-J  http://mhp.dgtv.mediaset.it/appl/ProgrammiTvSat/  'Programmi TV BB SAT'",
        "7878 0x000B/0x1AB6 AUTOSTART DVB-J  carousel 0x0A /  'Launcher SAT'",
        "7879 0x000B/0x1AB7 PRESENT DVB-J  carousel 0x0E /  'Programmi TV SAT'",
    };
    EXPECT_EQ(lines, expected);

    const Json& http = model["ait"][0]["instances"][0]["applications"][0]["descriptors"];
    ASSERT_EQ(http.size(), 5u);
    EXPECT_EQ(http[4]["fields"]["urlExtensions"], Json::array({"ProgrammiTvSat.zip"}));
    EXPECT_EQ(http[0]["fields"]["profiles"][0]["version"], "1.1.1");
    for (const Json& t : model["summary"]["tables"])
        if (t["tableId"] == "0x74") {
            EXPECT_EQ(t["parser"], "TCAITParser");
        }

    std::ostringstream tree;
    zuminspect::RenderTree(model, tree);
    EXPECT_NE(tree.str().find("AIT  on PID 0x1EC6  (complete)\n  DVB-J applications\n"
                              "    0x000B/0x1AB6 AUTOSTART DVB-J  carousel 0x0A /  'Launcher SAT'\n"),
              std::string::npos);
}
