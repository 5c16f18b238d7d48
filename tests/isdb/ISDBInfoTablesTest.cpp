// NBIT, LDT, PCAT and BIT: instance maps keyed by table id extension and the records of each.
#include <gtest/gtest.h>

#include "isdb/ISDBBITParser.h"
#include "isdb/ISDBLDTParser.h"
#include "isdb/ISDBNBITParser.h"
#include "isdb/ISDBPCATParser.h"
#include "support/LogCapture.h"
#include "support/TestEnvironment.h"
#include "IsdbFeed.h"

using zumtest::Bytes;
using zumtest::Concat;
using zumtest::Desc;
using zumtest::FeedExact;
using zumtest::Section;

namespace {

const ZUMHandle kHandle(7, 0, 0);

// An NBIT record: id, type/location, user byte, the keys, and a loop of `loop`.
Bytes NbitRecord(unsigned id, unsigned keys, const Bytes& loop)
{
    Bytes r = {uint8_t(id >> 8), uint8_t(id), 0x4C /* type 4, location 3 */, 0x55, uint8_t(keys)};
    for (unsigned k = 0; k < keys; ++k) {
        r.push_back(0x10);
        r.push_back(uint8_t(k + 1));
    }
    r.push_back(uint8_t(0xF0 | (loop.size() >> 8)));
    r.push_back(uint8_t(loop.size()));
    r.insert(r.end(), loop.begin(), loop.end());
    return r;
}

Bytes Loop12(const Bytes& loop, unsigned top = 0xF0)
{
    Bytes r = {uint8_t(top | (loop.size() >> 8)), uint8_t(loop.size())};
    r.insert(r.end(), loop.begin(), loop.end());
    return r;
}

} // namespace

TEST(ISDBNBITParser, RecordsKeysAndTracking)
{
    zumtest::BinderScope binder;
    binder->countryCode = ZumPackCode("JPN");
    const Bytes loop = Desc(0xC1, {0x01, 0x02});

    TCISDBNBITParser p(0xC5, kHandle);
    // Keys 0 and 2 read; the descriptors of a key-less record start at byte 7.
    const Bytes s1 = Section(0xC5, 0x0004, Concat({NbitRecord(0x0101, 0, loop), NbitRecord(0x0102, 2, {})}));
    EXPECT_TRUE(FeedExact(p, s1));
    EXPECT_FALSE(FeedExact(p, s1)); // same CRC field: nothing added
    TCISDBNBITInstance* i = p.NBITInstance(0x0004);
    ASSERT_NE(i, nullptr);
    EXPECT_EQ(p.NBITInstance(0x0005), nullptr);
    ASSERT_EQ(i->NumOfInformation(), 2);
    const TCISDBNBITInformation* r0 = i->InformationOfIndex(0);
    EXPECT_EQ(r0->InformationId(), 0x0101);
    EXPECT_EQ(r0->InformationType(), 4);
    EXPECT_EQ(r0->DescriptionBodyLocation(), 3);
    EXPECT_EQ(r0->UserDefined(), 0x55);
    EXPECT_EQ(r0->DescriptorsLength(), 4);
    EXPECT_EQ(r0->NumOfDescriptors(), 1);
    const TCISDBNBITInformation* r1 = i->InformationOfIndex(1);
    EXPECT_EQ(r1->KeyIds(), (std::vector<unsigned short>{0x1001, 0x1002}));
    EXPECT_EQ(i->InformationOfIndex(2), nullptr);

    // Three keys refuse the record: the section answers false, records before it stay.
    const Bytes s2 = Section(0xC5, 0x0007, Concat({NbitRecord(0x0201, 1, {}), NbitRecord(0x0202, 3, {})}));
    EXPECT_FALSE(FeedExact(p, s2));
    ASSERT_NE(p.NBITInstance(0x0007), nullptr);
    EXPECT_EQ(p.NBITInstance(0x0007)->NumOfInformation(), 1);
    EXPECT_EQ(i->NumOfInformation(), 2); // the other network keeps its own

    // A record that declares a loop longer than the section is read to its end only.
    Bytes overrun = NbitRecord(0x0301, 0, loop);
    overrun[6] = 0xFF;
    EXPECT_TRUE(FeedExact(p, Section(0xC5, 0x0008, overrun)));

    // A new version empties the instance.
    EXPECT_TRUE(FeedExact(p, Section(0xC5, 0x0004, NbitRecord(0x0103, 1, {}), 1)));
    EXPECT_EQ(i->NumOfInformation(), 1);
    p.Initialize();
    EXPECT_EQ(p.NBITInstance(0x0004), nullptr);
}

TEST(ISDBNBITParser, IgnoredSectionLogLines)
{
    zumtest::LogCapture log;
    TCISDBNBITParser nbit(0xC6, kHandle);
    TCISDBBITParser bit(kHandle);
    TCISDBLDTParser ldt(kHandle);
    TCISDBPCATParser pcat(kHandle);
    // A section number above last_section_number is not tracked.
    FeedExact(nbit, Section(0xC6, 1, {}, 0, 2, 1));
    FeedExact(bit, Section(0xC4, 1, {0xF0, 0x00}, 0, 2, 1));
    FeedExact(ldt, Section(0xC7, 1, {}, 0, 2, 1));
    FeedExact(pcat, Section(0xC2, 1, {}, 0, 2, 1));
    EXPECT_EQ(log.Count("ISDBNBIT Section ignored..."), 1);
    EXPECT_EQ(log.Count("ISDBBIT Section ignored..."), 1);
    EXPECT_EQ(log.Count("ISDBLDT Section ignored..."), 1);
    EXPECT_EQ(log.Count("ISDBPCAT Section ignored..."), 1);
}

TEST(ISDBLDTParser, DescriptionsAndTheCrcEnding)
{
    TCISDBLDTParser p(kHandle);
    // No description: length 8, the first pass sees 4 bytes and answers false.
    EXPECT_FALSE(FeedExact(p, Section(0xC7, 0x0301, {0x7F, 0xE0, 0x7E, 0x87})));
    TCISDBLDTInstance* i = p.LDTInstance(0x0301);
    ASSERT_NE(i, nullptr);
    EXPECT_TRUE(i->IsValid());
    EXPECT_EQ(i->TransportStreamId(), 0x7FE0);
    EXPECT_EQ(i->OriginalNetworkId(), 0x7E87);
    EXPECT_EQ(i->NumOfDescription(), 0);

    const Bytes d1 = Concat({{0x00, 0x11, 0xFF}, Loop12(Desc(0xC1, {0x01}))});
    const Bytes d2 = Concat({{0x00, 0x12, 0xFF}, Loop12({})});
    EXPECT_FALSE(FeedExact(p, Section(0xC7, 0x0302, Concat({{0, 1, 0, 2}, d1, d2}))));
    i = p.LDTInstance(0x0302);
    ASSERT_EQ(i->NumOfDescription(), 2);
    EXPECT_EQ(i->DescriptionOfIndex(0)->DescriptionId(), 0x11);
    EXPECT_EQ(i->DescriptionOfIndex(0)->DescriptorsLength(), 3);
    EXPECT_EQ(i->DescriptionOfIndex(0)->Size(), 8);
    EXPECT_EQ(i->DescriptionOfIndex(1)->DescriptionId(), 0x12);
    EXPECT_TRUE(i->IsValid());
}

TEST(ISDBPCATParser, ScheduleAndContentVersions)
{
    TCISDBPCATParser p(kHandle);
    // Version 1: one schedule entry (length 12 holds one), 4 bytes of descriptors at byte 16.
    const Bytes v1 = Concat({{0x00, 0x01, 0x00, 0x02},
                             {0x80 | 0x00, 16}, // indicator 2, content descriptor length 16
                             {0xF0, 12},
                             {0xC0, 0x79, 0x12, 0x34, 0x56, 0x01, 0x30, 0x00}, // MJD 49273 12:34:56, 1h30
                             Desc(0xC1, {0x01, 0x02}), {0xAA, 0xBB, 0xCC, 0xDD}});
    // Version 2 starts 8 + 16 bytes behind the first: no schedule, no descriptors.
    const Bytes v2 = {0x00, 0x03, 0x00, 0x04, 0x00, 0x00, 0xF0, 0x00};
    const Bytes head = {0x7F, 0xE0, 0x7E, 0x87, 0x01, 0x02, 0x03, 0x04, 2};
    EXPECT_TRUE(FeedExact(p, Section(0xC2, 0x0400, Concat({head, v1, v2}))));
    TCISDBPCATInstance* i = p.PCATInstance(0x0400);
    ASSERT_NE(i, nullptr);
    EXPECT_EQ(i->ContentId(), 0x01020304u);
    EXPECT_EQ(i->NumOfContentVersions(), 2);
    ASSERT_EQ(i->NumOfContentVersion(), 2);
    const TCISDBPCATContentVersion* c = i->ContentVersionOfIndex(0);
    EXPECT_EQ(c->VersionIndicator(), 2);
    EXPECT_EQ(c->ContentDescriptorLength(), 16);
    EXPECT_EQ(c->ScheduleCount(), 1);
    EXPECT_EQ(c->Size(), 24);
    EXPECT_EQ(c->StartTimes(), (std::vector<unsigned int>{49273u * 86400u + 472285696u + 45296u}));
    EXPECT_EQ(c->Durations(), (std::vector<unsigned int>{5400}));
    EXPECT_EQ(i->ContentVersionOfIndex(1)->ContentVersion(), 3);
    EXPECT_EQ(i->ContentVersionOfIndex(1)->ContentMinorVersion(), 4);

    // A count of versions that the section cannot hold answers false with what fits kept.
    Bytes cut = head;
    cut[8] = 3;
    EXPECT_FALSE(FeedExact(p, Section(0xC2, 0x0401, Concat({cut, v2}))));
    EXPECT_EQ(p.PCATInstance(0x0401)->NumOfContentVersion(), 1);
}

TEST(ISDBBITParser, FirstLoopAndBroadcasters)
{
    zumtest::BinderScope binder;
    binder->countryCode = ZumPackCode("JPN");
    TCISDBBITParser p(kHandle);
    // No first loop and no broadcaster: empty containers.
    EXPECT_TRUE(FeedExact(p, Section(0xC4, 0x0004, {0xE0, 0x00})));
    TCISDBBITInstance* i = p.BITInstance(0x0004);
    ASSERT_NE(i, nullptr);
    EXPECT_FALSE(i->BroadcastViewPropriety());
    EXPECT_EQ(i->NumOfDescriptors(), 0);
    EXPECT_EQ(i->NumOfBroadcaster(), 0);

    const Bytes first = Desc(0xD7, {0x01, 0x02});
    const Bytes b1 = Concat({{0x05}, Loop12(Desc(0xD8, {0x41}))});
    const Bytes b2 = Concat({{0x06}, Loop12({})});
    EXPECT_TRUE(FeedExact(p, Section(0xC4, 0x0004, Concat({Loop12(first, 0xF0), b1, b2}), 1)));
    EXPECT_TRUE(i->BroadcastViewPropriety());
    EXPECT_EQ(i->FirstDescriptorsLength(), 4);
    EXPECT_EQ(i->NumOfDescriptors(), 1);
    ASSERT_EQ(i->NumOfBroadcaster(), 2);
    EXPECT_EQ(i->BroadcasterOfIndex(0)->BroadcasterId(), 5);
    EXPECT_EQ(i->BroadcasterOfIndex(0)->DescriptorsLength(), 3);
    EXPECT_EQ(i->BroadcasterOfIndex(0)->NumOfDescriptors(), 1);
    EXPECT_EQ(i->BroadcasterOfIndex(1)->BroadcasterId(), 6);

    // A change of version drops the first loop too.
    EXPECT_TRUE(FeedExact(p, Section(0xC4, 0x0004, {0xE0, 0x00}, 2)));
    EXPECT_EQ(i->NumOfDescriptors(), 0);
    EXPECT_EQ(i->NumOfBroadcaster(), 0);
}
