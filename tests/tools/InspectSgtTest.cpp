// The Astra SGT through the inspector: service lists as channel lists, with
// their services' numbers and flags, in the model and the tree.

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "inspect/Renderers.h"
#include "inspect/Session.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zuminspect::Json;
using zumtest::Bytes;

namespace {

struct Service { unsigned sid, lcn; bool visible, isNew; };

Bytes Sgt(unsigned listId, const std::string& name, const std::vector<Service>& services)
{
    zumtest::SectionBuilder b(zumtest::LongHeader(0x91, listId, 0, 0, 0, true));
    b.U16(0xFFFF).Begin16();
    if (!name.empty())
        b.Descriptor(0x88, zumtest::Concat({{'d', 'e', 'u'}, Bytes(name.begin(), name.end())}));
    b.End().Begin16();
    for (const Service& s : services)
        b.U16(s.sid).U16(0x0401).U16(0x0001).U16((s.lcn << 2) | (s.visible ? 2 : 0) | (s.isNew ? 1 : 0)).U16(0x0102).U16(0xF000);
    b.End();
    return b.Build();
}

} // namespace

TEST(InspectSgt, ServiceListsAsChannelLists)
{
    const Bytes sections = zumtest::Concat({Sgt(2, "HD+", {{0x10, 1, true, false}, {0x11, 11, false, true}}),
                                            Sgt(5, "", {{0x12, 7, true, true}})});
    zuminspect::InspectSettings settings;
    settings.country = "DEU";
    settings.privateDataSpecifier = 1;
    zumtest::BinderScope binder(zuminspect::BinderSettingsFor(settings));
    zuminspect::Session session(zuminspect::DetectInputKind(sections.data(), sections.size()), settings);
    session.Feed(sections.data(), sections.size());
    session.Finish();
    const Json model = session.Model();

    const Json& lists = model["sgt"]["lists"];
    ASSERT_EQ(lists.size(), 2u);
    EXPECT_EQ(lists[0]["name"], "HD+");
    EXPECT_EQ(lists[0]["language"], "deu");
    EXPECT_EQ(lists[1]["named"], false);
    std::vector<std::string> channels;
    for (const Json& list : lists)
        for (const Json& s : list["services"])
            channels.push_back(list["id"].dump() + ":" + s["channel"].dump() + "=" + s["serviceId"].dump() +
                               (s["visible"].get<bool>() ? " visible" : "") + (s["new"].get<bool>() ? " new" : ""));
    EXPECT_EQ(channels, (std::vector<std::string>{"2:1=16 visible", "2:11=17 new", "5:7=18 visible new"}));
    EXPECT_EQ(model["summary"]["tables"].at(0)["parser"], "TCDVBSGTParser");
    EXPECT_EQ(model["sgt"]["complete"], true);

    std::ostringstream tree;
    zuminspect::RenderTree(model, tree);
    EXPECT_NE(tree.str().find("SGT  Astra service lists: 2\n  list 2 \"HD+\"\n    channel 1  "), std::string::npos)
        << tree.str();
    EXPECT_NE(tree.str().find("  list 5 (no name)\n    channel 7  "), std::string::npos);
}
