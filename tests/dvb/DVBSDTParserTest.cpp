#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>
#include <tuple>
#include <vector>

#include "dvb/DVBSDTParser.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zumtest::Bytes;
using zumtest::Desc;

namespace {

struct Service {
    unsigned id;
    unsigned runningStatus = 4;
    bool freeCa = false, schedule = true, presentFollowing = true;
    Bytes descriptors = {};
};

Bytes Sdt(unsigned tableId, unsigned onid, unsigned tsid, unsigned version, unsigned section, unsigned last,
          const std::vector<Service>& services)
{
    zumtest::SectionBuilder b(zumtest::LongHeader(tableId, tsid, version, section, last));
    b.U16(onid).U8(0xFF);
    for (const Service& s : services) {
        b.U16(s.id).U8(0xFC | (s.schedule ? 2 : 0) | (s.presentFollowing ? 1 : 0));
        b.Begin16(12, (s.runningStatus << 13) | (s.freeCa ? 0x1000 : 0)).Raw(s.descriptors).End();
    }
    return b.Build();
}

std::vector<unsigned> Ids(const TCDVBSDTInstance* instance)
{
    std::vector<unsigned> ids;
    for (int i = 0; i < instance->NumOfDVBSDTItemService(); ++i)
        ids.push_back(instance->DVBSDTItemServiceOfIndex(static_cast<unsigned>(i))->ServiceId());
    return ids;
}

// Type 1, no provider name, service name "TV".
const Bytes kServiceDesc = Desc(0x48, {0x01, 0, 2, 'T', 'V'});

} // namespace

TEST(DVBSDTParser, ServiceFieldsAndDescriptors)
{
    zumtest::BinderScope binder;
    TCDVBSDTParser sdt(0x42, ZUMHandle());
    sdt.Initialize();
    EXPECT_FALSE(sdt.IsInstanceRecv(0, 0));
    const std::vector<Service> services = {
        {0x0001, 4, false, true, true, kServiceDesc},
        {0x0002, 1, true, false, false, zumtest::Concat({kServiceDesc, Desc(0x5F, {0, 0, 0, 0x28})})},
        {0xFFFF, 7, true, true, false, {}},
    };
    EXPECT_TRUE(sdt.Parse(0x11, Sdt(0x42, 0x2000, 0x0440, 3, 0, 0, services).data()));
    EXPECT_TRUE(sdt.IsInstanceRecv(0, 0));
    const TCDVBSDTInstance* instance = sdt.DVBSDTInstance(0x0440, 0x2000);
    ASSERT_NE(instance, nullptr);
    EXPECT_EQ(instance, sdt.DVBSDTFirstInstance());
    EXPECT_EQ(std::make_tuple(instance->TransportStreamId(), instance->OriginalNetworkId(), instance->VersionNumber()),
              std::make_tuple(0x0440, 0x2000, 3));
    EXPECT_EQ(Ids(instance), (std::vector<unsigned>{1, 2, 0xFFFF}));
    // Running status, free CA, schedule, present/following, descriptors kept.
    const std::tuple<int, int, int, int, int> expected[] = {{4, 0, 1, 1, 1}, {1, 1, 0, 0, 1}, {7, 1, 1, 0, 0}};
    for (unsigned i = 0; i < 3; ++i) {
        const TCDVBSDTItemService* s = instance->DVBSDTItemServiceOfIndex(i);
        EXPECT_EQ(std::make_tuple(s->RunningStatus(), s->FreeCAMode(), s->EITScheduleFlag(),
                                  s->EITPresentFollowingFlag(), s->NumOfDescriptors()),
                  expected[i]) << i;
    }
    // The specifier descriptor is not kept; the service descriptor is, with the loop's table id.
    EXPECT_EQ(instance->DVBSDTItemServiceBySID(2)->NumOfDescriptors(0x48), 1);
    EXPECT_EQ(instance->DVBSDTItemServiceBySID(2)->DescriptorByIndex(0)->TableId(), 0x42);
    EXPECT_EQ(instance->IndexOfDVBSDTItemServiceBySID(0xFFFF), 2);
    EXPECT_EQ(instance->IndexOfDVBSDTItemServiceBySID(3), -1);
    EXPECT_EQ(instance->DVBSDTItemServiceBySID(3), nullptr);
    EXPECT_EQ(instance->DVBSDTItemServiceOfIndex(3), nullptr);

    // An SDT without services (length 7 at the parser's hook) counts as received.
    const Bytes empty = Sdt(0x42, 1, 2, 0, 0, 0, {});
    ASSERT_EQ(empty[2], 12);
    EXPECT_TRUE(sdt.Parse(0x11, empty.data()));
    EXPECT_EQ(sdt.DVBSDTInstance(2, 1)->NumOfDVBSDTItemService(), 0);
    EXPECT_TRUE(sdt.IsInstanceRecv(9, 9));
    EXPECT_EQ(sdt.DVBSDTFirstInstance(), sdt.DVBSDTInstance(2, 1)) << "the instance of the section parsed last";
}

// An SDT actual over several sections with a version change half way.
TEST(DVBSDTParser, SectionsInAnyOrderAndVersionChange)
{
    // The services of the section, Parse's answer, all services listed afterwards, IsInstanceRecv.
    const struct { unsigned version, section, last; std::vector<unsigned> ids; bool result;
                   std::vector<unsigned> listed; bool recv; } steps[] = {
        {1, 1, 2, {20, 21}, false, {20, 21}, false},
        {1, 0, 2, {10}, false, {10, 20, 21}, false},
        {1, 0, 2, {10}, false, {10, 20, 21}, false},
        {1, 2, 2, {30}, true, {10, 20, 21, 30}, true},
        {2, 1, 1, {25}, false, {25}, false},
        {2, 0, 1, {15}, true, {15, 25}, true},
    };
    zumtest::BinderScope binder;
    TCDVBSDTParser sdt(0x42, ZUMHandle());
    int i = 0;
    for (const auto& st : steps) {
        SCOPED_TRACE(i++);
        std::vector<Service> services;
        for (unsigned id : st.ids)
            services.push_back(Service{id});
        EXPECT_EQ(sdt.Parse(0x11, Sdt(0x42, 0x2000, 0x0440, st.version, st.section, st.last, services).data()),
                  st.result);
        EXPECT_EQ(Ids(sdt.DVBSDTInstance(0x0440, 0x2000)), st.listed);
        EXPECT_EQ(sdt.IsInstanceRecv(0, 0), st.recv);
    }
}

// A section offered again after RemoveSection adds its services behind those
// it brought before: nothing a caller holds is freed before the next version.
TEST(DVBSDTParser, SectionParsedAgainAppends)
{
    zumtest::BinderScope binder;
    TCDVBSDTParser sdt(0x42, ZUMHandle());
    const Bytes s0 = Sdt(0x42, 0x2000, 0x0440, 1, 0, 1, {{10}, {11}});
    sdt.Parse(0x11, s0.data());
    sdt.Parse(0x11, Sdt(0x42, 0x2000, 0x0440, 1, 1, 1, {{20}}).data());
    TCDVBSDTInstance* instance = sdt.DVBSDTInstance(0x0440, 0x2000);
    const TCDVBSDTItemService* held = instance->DVBSDTItemServiceOfIndex(0);
    EXPECT_TRUE(instance->RemoveSection(0));
    EXPECT_TRUE(sdt.Parse(0x11, s0.data()));
    EXPECT_EQ(Ids(instance), (std::vector<unsigned>{10, 11, 10, 11, 20}));
    EXPECT_EQ(instance->DVBSDTItemServiceOfIndex(0), held);
    EXPECT_EQ(held->ServiceId(), 10);
    EXPECT_EQ(instance->IndexOfDVBSDTItemServiceBySID(20), 4);
}

// The entry parser keeps the one-argument form beside the bounded one.
TEST(DVBSDTParser, ServiceEntryParseForms)
{
    zumtest::BinderScope binder;
    const Bytes entry = zumtest::Concat({{0x00, 0x07, 0xFD, 0x80, 0x07}, kServiceDesc});
    int (TCDVBSDTItemService::*whole)(const unsigned char*) = &TCDVBSDTItemService::Parse;
    TCDVBSDTItemService a{ZUMHandle()}, b{ZUMHandle()};
    EXPECT_EQ((a.*whole)(entry.data()), 12);
    EXPECT_EQ(b.Parse(entry.data(), 8), 12); // the loop cut after 3 bytes loses the descriptor
    EXPECT_EQ(std::make_tuple(a.ServiceId(), a.NumOfDescriptors(0x48), b.NumOfDescriptors()),
              std::make_tuple(7, 1, 0));
}

TEST(DVBSDTParser, OtherTableKeepsInstancesApart)
{
    zumtest::BinderScope binder;
    TCDVBSDTParser other(0x46, ZUMHandle());
    EXPECT_TRUE(other.Parse(0x11, Sdt(0x46, 0x1000, 0x0001, 0, 0, 0, {{1}}).data()));
    EXPECT_FALSE(other.Parse(0x11, Sdt(0x46, 0x1000, 0x0002, 0, 0, 1, {{2}}).data()));
    EXPECT_EQ(other.NumOfDVBSDTInstance(), 2);
    EXPECT_EQ(other.DVBSDTFirstInstance()->TransportStreamId(), 0x0002);
    EXPECT_EQ(Ids(other.DVBSDTInstance(0x0001, 0x1000)), std::vector<unsigned>{1});
    EXPECT_TRUE(other.IsInstanceRecv(0x0001, 0x1000));
    EXPECT_FALSE(other.IsInstanceRecv(0x0002, 0x1000));
    EXPECT_TRUE(other.IsInstanceRecv(0x0003, 0x1000));

    // An actual parser looks at the lowest key, whatever it is asked.
    TCDVBSDTParser actual(0x42, ZUMHandle());
    actual.Parse(0x11, Sdt(0x42, 0x1000, 0x0002, 0, 0, 1, {{2}}).data());
    actual.Parse(0x11, Sdt(0x42, 0x1000, 0x0001, 0, 0, 0, {{1}}).data());
    EXPECT_TRUE(actual.IsInstanceRecv(0x0002, 0x1000));
    // A parser of another table id answers false.
    TCDVBSDTParser odd(0x4A, ZUMHandle());
    odd.Parse(0x11, Sdt(0x4A, 0x1000, 0x0001, 0, 0, 0, {{1}}).data());
    EXPECT_FALSE(odd.IsInstanceRecv(0x0001, 0x1000));

    other.Initialize();
    EXPECT_EQ(other.NumOfDVBSDTInstance(), 0);
    EXPECT_EQ(other.DVBSDTFirstInstance(), nullptr);
    EXPECT_FALSE(other.IsInstanceRecv(0x0003, 0x1000));
}

TEST(DVBSDTParser, LoopLongerThanTheSectionIsReadToItsEnd)
{
    zumtest::BinderScope binder;
    zumtest::SectionBuilder b(zumtest::LongHeader(0x42, 1));
    // One service whose descriptor loop claims 200 bytes; 7 follow.
    b.U16(1).U8(0xFF).U16(5).U8(0xFD).U16(0x8000 | 200).Raw(kServiceDesc);
    TCDVBSDTParser sdt(0x42, ZUMHandle());
    EXPECT_TRUE(sdt.Parse(0x11, b.Build().data()));
    const TCDVBSDTItemService* service = sdt.DVBSDTInstance(1, 1)->DVBSDTItemServiceOfIndex(0);
    ASSERT_NE(service, nullptr);
    EXPECT_EQ(service->ServiceId(), 5);
    EXPECT_EQ(service->NumOfDescriptors(0x48), 1);
}

TEST(DVBSDTParser, RealCaptureSection)
{
    std::ifstream in(std::string(ZUM_CAPTURES_DIR) + "/tsduck_tsduck__psi_sdt_r3_sections.0.SDT.bin",
                     std::ios::binary);
    if (!in)
        GTEST_SKIP() << "captures not present";
    const Bytes s((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    ASSERT_EQ(s.size(), 3u + (((s[1] & 0x0F) << 8) | s[2]));
    zumtest::BinderScope binder;
    TCDVBSDTParser sdt(s[0], ZUMHandle());
    sdt.Parse(0x11, s.data());
    const TCDVBSDTInstance* instance = sdt.DVBSDTFirstInstance();
    ASSERT_NE(instance, nullptr);
    EXPECT_EQ(instance->OriginalNetworkId(), (s[8] << 8) | s[9]);
    ASSERT_GT(instance->NumOfDVBSDTItemService(), 0);
    for (int i = 0; i < instance->NumOfDVBSDTItemService(); ++i)
        EXPECT_EQ(instance->DVBSDTItemServiceOfIndex(static_cast<unsigned>(i))->NumOfDescriptors(0x48), 1) << i;
}
