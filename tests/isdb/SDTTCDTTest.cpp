// SDTT download contents and CDT logos: fields, schedules, and logo bytes at their boundaries.
#include <gtest/gtest.h>

#include <list>

#include "isdb/ISDBCDTParser.h"
#include "isdb/SDTTParser.h"
#include "support/LogCapture.h"
#include "IsdbFeed.h"

using zumtest::Bytes;
using zumtest::Concat;
using zumtest::Desc;
using zumtest::FeedExact;
using zumtest::Section;

namespace {

const ZUMHandle kHandle(7, 0, 0);

// group 3, target 0x123, new 0x456, `level`, indicator 2, the lengths, time shift 5.
Bytes Content(unsigned level, unsigned contentLength, unsigned scheduleLength, const Bytes& rest)
{
    Bytes c = {0x31, 0x23, 0x45, uint8_t(0x60 | (level << 2) | 2), uint8_t(contentLength >> 4),
               uint8_t(contentLength << 4), uint8_t(scheduleLength >> 4), uint8_t((scheduleLength << 4) | 5)};
    c.insert(c.end(), rest.begin(), rest.end());
    return c;
}

Bytes Logo(unsigned type, unsigned id, unsigned version, unsigned declaredSize, const Bytes& data)
{
    Bytes r = {uint8_t(type), uint8_t(0xFE | (id >> 8)), uint8_t(id), 0xF0, uint8_t(version),
               uint8_t(declaredSize >> 8), uint8_t(declaredSize)};
    r.insert(r.end(), data.begin(), data.end());
    return r;
}

Bytes Cdt(const Bytes& logos, const Bytes& loop = {})
{
    Bytes head = {0x00, 0x04, 0x01, uint8_t(0xF0 | (loop.size() >> 8)), uint8_t(loop.size())};
    return Concat({head, loop, logos});
}

std::list<CLogoData*> Logos(const TCCDTInstance& i)
{
    std::list<CLogoData*> list;
    i.GetLogoDataList(list);
    return list;
}

} // namespace

TEST(SDTTParser, ContentsAndSchedule)
{
    TCSDTTParser p(kHandle);
    const Bytes head = {0x7F, 0xE0, 0x7E, 0x87, 0x04, 0x00};
    // num_of_contents 0: valid, no record.
    EXPECT_TRUE(FeedExact(p, Section(0xC3, 0x0102, Concat({head, {0}}))));
    EXPECT_EQ(p.SDTTInstance(0x0102)->NumOfContent(), 0);
    EXPECT_EQ(p.SDTTInstance(0x0999), nullptr);

    // Level 1 with one entry (length 12), descriptors of 4 bytes at byte 16; then level 2.
    const Bytes entry = {0xC0, 0x79, 0x12, 0x34, 0x56, 0x01, 0x30, 0x00};
    const Bytes c1 = Content(1, 16, 12, Concat({entry, Desc(0xC1, {1, 2})}));
    const Bytes c2 = Content(2, 0, 0, {});
    EXPECT_TRUE(FeedExact(p, Section(0xC3, 0x0103, Concat({head, {2}, c1, c2}))));
    TCSDTTInstance* i = p.SDTTInstance(0x0103);
    EXPECT_EQ(i->TransportStreamId(), 0x7FE0);
    EXPECT_EQ(i->ServiceId(), 0x0400);
    ASSERT_EQ(i->NumOfContent(), 2);
    const SDContent* s = i->ContentOfIndex(0);
    EXPECT_EQ(s->Group(), 3);
    EXPECT_EQ(s->TargetVersion(), 0x123);
    EXPECT_EQ(s->NewVersion(), 0x456);
    EXPECT_EQ(s->DownloadLevel(), 1);
    EXPECT_EQ(s->VersionIndicator(), 2);
    EXPECT_EQ(s->ScheduleTimeShift(), 5);
    ASSERT_EQ(s->Schedule().size(), 1u);
    EXPECT_EQ(s->Schedule().front().startTime, 49273u * 86400u + 472285696u + 45296u);
    EXPECT_EQ(s->Schedule().front().duration, 0x013000u); // BCD as it stands, not 5400
    EXPECT_EQ(i->ContentOfIndex(1)->DownloadLevel(), -1);  // 2 sets nothing

    // A schedule longer than the section: false, the line with its site, the section stays received.
    zumtest::LogCapture log;
    EXPECT_FALSE(FeedExact(p, Section(0xC3, 0x0104, Concat({head, {1}, Content(0, 80, 80, {})}))));
    EXPECT_EQ(log.Count("TCSDTTInstance::Parse return false : 2"), 1);
    EXPECT_TRUE(p.SDTTInstance(0x0104)->IsValid());
}

TEST(ISDBCDTParser, LogosHeldByteForByte)
{
    TCISDBCDTParser p(kHandle);
    EXPECT_EQ(p.CDTInstanceOfIndex(0), nullptr);
    const Bytes png = {0x89, 0x50, 0x4E, 0x47, 0x0D};
    // Three logos in order: 5 bytes, size 0 (null data, the next 7 bytes on), then 1 byte.
    EXPECT_TRUE(FeedExact(p, Section(0xC8, 0x0010,
                                     Cdt(Concat({Logo(5, 0x1FF, 3, 5, png), Logo(2, 1, 0, 0, {}), Logo(1, 2, 9, 1, {0x42})}),
                                         Desc(0xC1, {0})))));
    TCCDTInstance* i = p.CDTInstance(0x0010);
    ASSERT_NE(i, nullptr);
    EXPECT_EQ(i->OriginalNetworkId(), 0x0004);
    EXPECT_EQ(i->DataType(), 0x01);
    ASSERT_EQ(i->NumOfLogoData(), 3);
    std::list<CLogoData*> logos = Logos(*i);
    auto it = logos.begin();
    EXPECT_EQ((*it)->LogoType(), 5);
    EXPECT_EQ((*it)->LogoId(), 0x1FF);
    EXPECT_EQ((*it)->LogoVersion(), 3);
    EXPECT_EQ(Bytes((*it)->Data(), (*it)->Data() + (*it)->DataSize()), png);
    ++it;
    EXPECT_EQ((*it)->DataSize(), 0);
    EXPECT_EQ((*it)->Data(), nullptr);
    ++it;
    EXPECT_EQ(Bytes((*it)->Data(), (*it)->Data() + (*it)->DataSize()), Bytes{0x42});
    for (CLogoData* l : logos)
        delete l;

    // One byte short: the data takes the first byte of the CRC field and no more.
    const Bytes shortSection = Section(0xC8, 0x0011, Cdt(Logo(1, 3, 0, 6, png)));
    EXPECT_TRUE(FeedExact(p, shortSection));
    logos = Logos(*p.CDTInstance(0x0011));
    ASSERT_EQ(logos.size(), 1u);
    Bytes expected = png;
    expected.push_back(shortSection[shortSection.size() - 4]);
    EXPECT_EQ(Bytes(logos.front()->Data(), logos.front()->Data() + logos.front()->DataSize()), expected);
    delete logos.front();

    // The largest size: cut at the end of the section.
    const Bytes big(4000, 0x5A);
    EXPECT_TRUE(FeedExact(p, Section(0xC8, 0x0012, Cdt(Logo(1, 4, 0, 0xFFFF, big)))));
    logos = Logos(*p.CDTInstance(0x0012));
    ASSERT_EQ(logos.size(), 1u);
    EXPECT_EQ(logos.front()->DataSize(), 4004);
    EXPECT_TRUE(std::equal(big.begin(), big.end(), logos.front()->Data()));
    delete logos.front();

    // Ascending order of id; an empty instance gives no list.
    EXPECT_EQ(p.NumOfCDTInstance(), 3);
    EXPECT_EQ(p.CDTInstanceOfIndex(2)->DownloadDataId(), 0x0012);
    EXPECT_EQ(p.CDTInstanceOfIndex(3), nullptr);
    EXPECT_TRUE(FeedExact(p, Section(0xC8, 0x0013, Cdt({}))));
    std::list<CLogoData*> none;
    EXPECT_FALSE(p.CDTInstance(0x0013)->GetLogoDataList(none));
    EXPECT_TRUE(none.empty());

    // A change empties the list; the same section again is refused with its line.
    zumtest::LogCapture log;
    EXPECT_FALSE(FeedExact(p, Section(0xC8, 0x0013, Cdt({}))));
    EXPECT_EQ(log.Count("TCCDTInstance::Parse t_CheckVersion return value is false"), 1);
    EXPECT_TRUE(FeedExact(p, Section(0xC8, 0x0010, Cdt(Logo(1, 2, 0, 0, {})), 1)));
    EXPECT_EQ(p.CDTInstance(0x0010)->NumOfLogoData(), 1);
}
