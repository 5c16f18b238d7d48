#include <gtest/gtest.h>

#include <list>
#include <string>
#include <vector>

#include <zum-platform/ServiceData.h>

#include "dvb/DVBSGTParser.h"
#include "operators/DescAstraServiceListName.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zumtest::Bytes;
using zumtest::Desc;

namespace {

struct Record { unsigned sid, tsid, onid, lcn; bool visible, isNew; unsigned genre = 0x0102; Bytes descriptors = {}; };

// An SGT section of one service list; `name` empty gives no service list name.
Bytes Sgt(unsigned listId, unsigned version, unsigned section, unsigned last, const std::string& name,
          const std::vector<Record>& records)
{
    zumtest::SectionBuilder b(zumtest::LongHeader(0x91, listId, version, section, last));
    b.U16(0xFFFF).Begin16();
    if (!name.empty())
        b.Descriptor(0x88, zumtest::Concat({{'d', 'e', 'u'}, Bytes(name.begin(), name.end())}));
    b.End().Begin16(12, 0xF000);
    for (const Record& r : records) {
        b.U16(r.sid).U16(r.tsid).U16(r.onid).U16((r.lcn << 2) | (r.visible ? 2 : 0) | (r.isNew ? 1 : 0)).U16(r.genre);
        b.Begin16().Raw(r.descriptors).End();
    }
    b.End();
    return b.Build();
}

std::string Services(const TCDVBSGTInstance* list)
{
    std::string out;
    for (int i = 0; list && i < list->NumOfServices(); ++i) {
        const TCDVBSGTItemService* s = list->Service(i);
        out += std::to_string(s->ServiceId()) + "/" + std::to_string(s->LogicalChannelNumber()) +
               (s->VisibleServiceFlag() ? "v" : "") + (s->NewServiceFlag() ? "n" : "") + " ";
    }
    return out;
}

} // namespace

TEST(DVBSGTParser, ListsServicesAndTracking)
{
    zumtest::BinderScope binder;
    binder->privateDataSpecifier = 1;
    TCDVBSGTParser sgt{ZUMHandle()};
    std::list<unsigned short> ids;
    EXPECT_FALSE(sgt.AllSubtablesReceived());
    EXPECT_FALSE(sgt.ServiceListsIds(ids));
    EXPECT_EQ(sgt.GetFirstInstance(), nullptr);

    const Record a{0x10, 1, 0x85, 11, false, true, 0x0102, Desc(0xD1, {0x00, 0x22})};
    const Record b{0x11, 1, 0x85, 1, true, false};
    // List 7 in two sections; list 3 without a name; list 9 named, one section.
    EXPECT_FALSE(sgt.Parse(0, Sgt(7, 1, 0, 1, "HD+", {a}).data()));
    EXPECT_TRUE(sgt.Parse(0, Sgt(7, 1, 1, 1, "", {b}).data()));
    EXPECT_TRUE(sgt.Parse(0, Sgt(3, 0, 0, 0, "", {b}).data()));
    EXPECT_FALSE(sgt.IsValid());
    EXPECT_TRUE(sgt.AllSubtablesReceived());
    EXPECT_TRUE(sgt.ServiceListsIds(ids));
    EXPECT_EQ(ids, (std::list<unsigned short>{7}));
    EXPECT_EQ(Services(sgt.Instance(7)), "16/11n 17/1v ");
    EXPECT_EQ(Services(sgt.Instance(3)), "17/1v ");
    EXPECT_EQ(sgt.GetFirstInstance(), sgt.Instance(7));
    EXPECT_EQ(sgt.Instance(7)->Service(0)->GenreCode(), 0x0102);
    EXPECT_EQ(sgt.Instance(7)->Service(0)->NumOfDescriptors(0xD1), 1);

    // A repeat of a complete list: refused, logged, and the flag now set.
    zumtest::LogCapture log;
    EXPECT_FALSE(sgt.Parse(0, Sgt(3, 0, 0, 0, "", {b}).data()));
    EXPECT_EQ(log.Count("[Astra HD+] All SGT subtables received."), 1);
    EXPECT_TRUE(sgt.IsValid());
    EXPECT_TRUE(sgt.Parse(0, Sgt(9, 0, 0, 0, "Extra", {}).data()));
    ids.clear();
    sgt.ServiceListsIds(ids);
    EXPECT_EQ(ids, (std::list<unsigned short>{7, 9}));

    // A new version drops the services and adds to the list-level loop.
    EXPECT_TRUE(sgt.Parse(0, Sgt(9, 1, 0, 0, "Extra", {a}).data()));
    EXPECT_EQ(Services(sgt.Instance(9)), "16/11n ");
    EXPECT_EQ(sgt.Instance(9)->NumOfDescriptors(0x88), 2);

    // Lists outlive an Initialize; Reset removes them.
    sgt.Initialize();
    EXPECT_NE(sgt.Instance(7), nullptr);
    sgt.Reset();
    EXPECT_EQ(sgt.Instance(7), nullptr);
    EXPECT_FALSE(sgt.IsValid());
}

TEST(DVBSGTParser, ServiceDataAndCutRecords)
{
    zumtest::BinderScope binder;
    TCDVBSGTParser sgt{ZUMHandle()};
    // The second record claims descriptors past the section: refused.
    Bytes section = Sgt(1, 0, 0, 0, "L", {{0x10, 2, 3, 11, false, true}, {0x11, 2, 3, 5, true, false, 0, Bytes(4, 0)}});
    const size_t lengthAt = section.size() - 4 - 4 - 2; // the second record's descriptors length
    section[lengthAt] = 0xF0;
    section[lengthAt + 1] = 0x40;
    EXPECT_TRUE(sgt.Parse(0, section.data()));
    ASSERT_EQ(sgt.Instance(1)->NumOfServices(), 1);

    TCServiceData data;
    sgt.Instance(1)->Service(0)->GetServiceData(&data);
    sgt.Instance(1)->Service(0)->GetServiceData(nullptr);
    std::string props;
    for (int id : data.PropertyObject().Order()) {
        long long v = 0;
        data.PropertyObject().GetProperty(id, v);
        props += std::to_string(id) + "=" + std::to_string(v) + " ";
    }
    EXPECT_EQ(props, "15=16 18=2 41=3 42=11 27=1 26=1 45=1 ");
}
