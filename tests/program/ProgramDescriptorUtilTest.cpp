#include <cstring>
#include <list>
#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include <zum-platform/Dlog.h>

#include "dvb/DVBEITParser.h"
#include "core/Descriptor.h"
#include "dvb/DescLinkage.h"
#include "inspect/GuideView.h"
#include "isdb/DescDigitalCopyControl.h"
#include "program/ProgramCommonUtil.h"
#include "program/ProgramDescriptorUtil.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zumtest::Bytes;
using zumtest::Concat;
using zumtest::Desc;

namespace {

zum_platform::BinderSettings Country(const char* code)
{
    zum_platform::BinderSettings s;
    s.countryCode = ZumPackCode(code);
    return s;
}

TCProgramData Record(const Bytes& loop, int tableId, unsigned int sourceKind = 0)
{
    TCProgramData record;
    record.SetDescriptorRawData(loop.data(), static_cast<unsigned short>(loop.size()), tableId);
    record.SetSourceKind(sourceKind);
    return record;
}

// One EIT section of events, each (event id, descriptor loop).
Bytes Eit(unsigned tableId, unsigned serviceId, const std::vector<std::pair<unsigned, Bytes>>& events)
{
    zumtest::SectionBuilder b(zumtest::LongHeader(tableId, serviceId, 1));
    b.U16(0x0441).U16(0x0001).U8(0).U8(tableId);
    for (const auto& e : events)
        b.U16(e.first).Raw({0xEA, 0x91, 0x20, 0x00, 0x00, 0x00, 0x30, 0x00}).Begin16(12, 0x8000).Raw(e.second).End();
    return b.Build();
}

// What a guide does with a section: the EIT parser tells it new, an item decodes its events, and each
// event's raw loop goes into a program record with the event's identity.
std::vector<TCProgramData> StoreEvents(const Bytes& section)
{
    TCDVBEITParser parser(section[0], kZUMDefaultHandle);
    EXPECT_TRUE(parser.Parse(0x12, section.data()));
    const auto sid = static_cast<unsigned short>((section[3] << 8) | section[4]);
    TCDVBEITItem item(0x0001, 0x0441, sid, kZUMDefaultHandle);
    EXPECT_TRUE(item.Parse(section.data(), static_cast<int>(section.size()), 1, 0, 0, section[0]));
    std::vector<TCProgramData> records(static_cast<size_t>(item.NumOfDVBEITItemEvent()));
    for (size_t i = 0; i < records.size(); ++i) {
        const TCDVBEITItemEvent* event = item.DVBEITItemEvent(static_cast<unsigned>(i));
        TCProgramId id;
        id.serviceId = sid;
        id.eventId = event->EventId();
        records[i].SetProgramId(id);
        records[i].SetOriginalNetworkId(0x0001);
        records[i].SetTransportStreamId(0x0441);
        records[i].SetDescriptorRawData(event->Descriptors(), event->DescriptorsLength(), event->TableId());
    }
    return records;
}

// Target event, link type, id type, user defined id, transport stream, network, service, simulcast.
using Link = std::tuple<unsigned, unsigned, unsigned, unsigned, unsigned, unsigned, unsigned, bool>;

std::vector<Link> Links(const std::list<CEXTEventLinkageInfo>& list)
{
    std::vector<Link> out;
    for (const CEXTEventLinkageInfo& i : list)
        out.emplace_back(i.TargetEventId(), i.LinkType(), i.TargetIdType(), i.UserDefinedId(),
                         i.TargetTransportStreamId(), i.TargetOriginalNetworkId(), i.TargetServiceId(),
                         i.EventSimulcast());
    return out;
}

constexpr unsigned kNone = 0xFFFFFFFF;

// Head of a linkage: transport stream 0x0002, network 0x0003, service 0x0004, then the type.
Bytes Linkage(unsigned type, const Bytes& rest)
{
    return Desc(0x4A, Concat({{0x00, 0x02, 0x00, 0x03, 0x00, 0x04, static_cast<uint8_t>(type)}, rest}));
}

// An extended event linkage of type 14: SD links (link type 1) of each target id type, one HD link.
const Bytes kExtendedLinkage = Linkage(0x0E, {23,
                                              0x00, 0x10, 0x40 | 0x10 | 0x00 | 0x02, 0x00, 0x33, // type 0, network
                                              0x00, 0x11, 0x10 | 0x04 | 0x01, 0x00, 0x44, 0x00, 0x55, // type 1, service
                                              0x00, 0x12, 0x10 | 0x08, // type 2
                                              0x00, 0x13, 0x10 | 0x0C, 0x07, 0x77, // type 3, user defined
                                              0x00, 0x14, 0x00}); // link type 0: not for type 14
const Bytes kSimulcastLinkage = Linkage(0x0D, {0x00, 0x05, 0x40});

} // namespace

// DVB end to end: a UK guide's events, with a simulcast and an extended event linkage under the UK
// specifier, HD video, subtitles and a rating.
TEST(ProgramDescriptorUtil, DvbEventsEndToEnd)
{
    const Bytes loop = Concat({Desc(0x5F, {0x00, 0x00, 0x23, 0x3A}), kSimulcastLinkage, kExtendedLinkage,
                               Desc(0x50, {0x05, 0x0B, 0x01, 'e', 'n', 'g', 'H', 'D'}),
                               Desc(0x50, {0x03, 0x10, 0x02, 'e', 'n', 'g'}), Desc(0x54, {0x10, 0x00}),
                               Desc(0x55, {'F', 'R', 'A', 0x09, 'G', 'B', 'R', 0x08}),
                               Desc(0x4D, {'e', 'n', 'g', 1, 'N', 0})});
    const Bytes section = Eit(0x4E, 0x0101, {{0x0A01, loop}, {0x0A02, Desc(0x4D, {'e', 'n', 'g', 0, 0})}});
    const Link simulcast{0x0005, 0xFF, 0xFF, 0, 0x0002, 0x0003, 0x0004, true};
    const Link typeZero{0x0010, 1, 0, 0, 0x0002, 0x0033, 0x0004, true};
    const Link typeOne{0x0011, 1, 1, 0, 0x0044, 0x0003, 0x0055, false};
    const Link typeTwo{0x0012, 1, 2, 0, kNone, 0x0003, 0x0004, false};
    const Link userDefined{0x0013, 1, 3, 0x0777, kNone, kNone, kNone, false};
    struct Case {
        const char* country;
        std::vector<Link> links;
    } cases[] = {{"GBR", {simulcast, typeZero, typeOne, typeTwo, userDefined}},
                 {"FRA", {simulcast, typeZero, typeOne, typeTwo}}}; // a user defined id is British
    for (const Case& c : cases) {
        SCOPED_TRACE(c.country);
        zumtest::BinderScope binder(Country(c.country));
        const std::vector<TCProgramData> records = StoreEvents(section);
        ASSERT_EQ(records.size(), 2u);
        TCProgramDescriptorUtil util(records[0]);
        EXPECT_EQ(util.SizeOfDescriptor(), 6); // the specifier and the short event are not kept
        EXPECT_EQ(util.Descriptor(0x4A, 2), nullptr);
        EXPECT_EQ(util.DescriptorByIndex(5)->Tag(), 0x55);
        EXPECT_EQ(std::make_tuple(util.IsHD(), util.IsSubtitleAvailable(), util.IsSignLanguageAvailable(),
                                  util.IsADAvailable()),
                  std::make_tuple(true, true, false, false));
        unsigned short ts = 0, network = 0, service = 0, event = 0;
        bool flag = false;
        ASSERT_TRUE(util.HDSimulcastEvent(ts, network, service, event, flag));
        EXPECT_EQ(std::make_tuple(ts, network, service, event, flag), std::make_tuple(2, 3, 4, 5, true));
        std::list<CEXTEventLinkageInfo> list;
        unsigned char linkageType = 0;
        EXPECT_TRUE(util.GetEventLinkageInfoList(list, linkageType));
        EXPECT_EQ(linkageType, 0x0E);
        EXPECT_EQ(Links(list), c.links);
        TSRatingInfo rating;
        ASSERT_TRUE(util.GetRatingInfo(rating));
        EXPECT_EQ(rating.ratingValue, c.country[0] == 'G' ? 8 : 9);
        EXPECT_EQ(util.NumOfComponent(TCProgramData::COMP_TYPE_VIDEO), 0); // no ISDB country: no components
        std::basic_string<unsigned short> text{'x'};
        EXPECT_TRUE(util.GetComponentText(0x01, 1, text));
        EXPECT_EQ(text, std::basic_string<unsigned short>{'H'});
        EXPECT_TRUE(util.GetComponentText(0x02, 10, text)); // no text: the caller's stays
        EXPECT_EQ(text, std::basic_string<unsigned short>{'H'});
        EXPECT_FALSE(util.GetComponentText(0x03, 10, text));

        TCProgramDescriptorUtil plain(records[1]);
        EXPECT_FALSE(plain.HDSimulcastEvent(ts, network, service, event, flag) || plain.GetRatingInfo(rating));
        EXPECT_TRUE(plain.GetEventLinkageInfoList(list, linkageType)); // the caller's entries count
    }
}

// The record's source kind decides which descriptors are kept, and so what the queries see.
TEST(ProgramDescriptorUtil, SourceKindFilter)
{
    struct Case {
        const char* country;
        int tableId;
        unsigned int kind;
        int kept;
        bool ad, subtitle, rating;
        int nullLogs; // "pDescComponent is null"
    } cases[] = {
        // DVB: a private 0x81 that is no AC-3 audio (Digiturk's channel numbers), an AD component, a rating.
        {"GBR", 0x4E, 0, 4, true, false, true, 1},
        {"GBR", 0x4E, 1, 3, true, false, true, 0},
        {"GBR", 0x4E, 3, 2, true, false, false, 0},
        // PSIP: AC-3 audio for the visually impaired and a caption service.
        {"USA", 0xCB, 0, 2, true, true, false, 0},
        {"USA", 0xCB, 2, 0, false, false, false, 0},
    };
    const Bytes dvb = Concat({Desc(0x5F, {0x00, 0x2F, 0xFF, 0xFF}), Desc(0x81, {0x00, 0x00, 0x40}), Desc(0x50, {0x02, 0x47, 0x01, 'e', 'n', 'g'}),
                              Desc(0x54, {0x10, 0x00}), Desc(0x55, {'G', 'B', 'R', 0x05})});
    const Bytes psip = Concat({Desc(0x81, {0x00, 0x00, 0x40}), Desc(0x86, {0xC0})});
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.country) + " kind " + std::to_string(c.kind));
        zumtest::BinderScope binder(Country(c.country));
        zumtest::LogCapture log;
        TCProgramDescriptorUtil util(Record(c.tableId == 0xCB ? psip : dvb, c.tableId, c.kind));
        EXPECT_EQ(util.SizeOfDescriptor(), c.kept);
        EXPECT_EQ(util.IsADAvailable(), c.ad);
        EXPECT_EQ(util.IsSubtitleAvailable(), c.subtitle);
        TSRatingInfo info;
        EXPECT_EQ(util.GetRatingInfo(info), c.rating);
        EXPECT_EQ(log.Count("[TCProgramDescriptorUtil] pDescComponent is null"), c.nullLogs);
    }
    // A record without a loop is an empty object.
    TCProgramDescriptorUtil empty{TCProgramData()};
    std::list<CEXTEventLinkageInfo> list;
    unsigned char type = 7;
    EXPECT_FALSE(empty.GetEventLinkageInfoList(list, type));
    EXPECT_EQ(type, 7);
    EXPECT_EQ(empty.DescriptorByIndex(0), nullptr);
}

// The closing debug lines carry the event's identity.
TEST(ProgramDescriptorUtil, QueryLogLines)
{
    zumtest::BinderScope binder(Country("GBR"));
    TCProgramData record = Record(Concat({kSimulcastLinkage, kExtendedLinkage}), 0x4E);
    TCProgramId id;
    id.serviceId = 0x100000001ULL;
    id.eventId = 7;
    id.utcStartTime = 1000;
    id.utcDuration = 60;
    id.eitTableId = 0x4E;
    id.eitNumber = 2;
    record.SetProgramId(id);
    TCProgramDescriptorUtil util(record);
    zumtest::LogCapture log;
    util.IsADAvailable();
    util.IsHD();
    std::list<CEXTEventLinkageInfo> list;
    unsigned char type = 0;
    util.GetEventLinkageInfoList(list, type);
    const std::string programId = "in_programId(serviceid=4294967297, m_eventId=7, utc_starttime=1000, "
                                  "utc_duration=60, eit_table_id=78, eit_number=2)";
    EXPECT_EQ(log.Lines(DLOG_DEBUG),
              (std::vector<std::string>{
                  "[TCProgramDescriptorUtil::IsADAvailable] ret=0, SizeOfDescriptor=2, " + programId,
                  "[TCProgramDescriptorUtil::IsHD] ret=0, " + programId,
                  "[TCProgramDescriptorUtil::GetEventLinkageInfoList] ret=1, " + programId +
                      ", out_linkageType=14, out_eventLinkageList.size()=4"}));
}

// Components are made once per object: the copy of the record keeps them. A type outside 0..3 asserts.
TEST(ProgramDescriptorUtil, ComponentsAreMadeOnce)
{
    zumtest::UseReleasedImage();
    zumtest::BinderScope binder(Country("BRA"));
    const Bytes loop = Concat({Desc(0x50, {0x01, 0xB3, 0x00, 'p', 'o', 'r'}), Desc(0x50, {0x02, 0x03, 0x10, 'p', 'o', 'r'}),
                               Desc(0x50, {0x02, 0x03, 0x11, 'e', 'n', 'g'})});
    const TCProgramData record = Record(loop, 0x4E);
    TCProgramDescriptorUtil util(record);
    EXPECT_EQ(util.NumOfComponent(TCProgramData::COMP_TYPE_AUDIO), 2);
    binder->countryCode = ZumPackCode("GBR"); // no components here any more, but they were made
    std::vector<TCProgramData::TTComp> list;
    EXPECT_TRUE(util.GetComponentList(TCProgramData::COMP_TYPE_AUDIO, list));
    EXPECT_EQ(list.size() == 2 ? list[1].componentTag : 0, 0x11);
    TCProgramData::TTComp comp;
    EXPECT_TRUE(util.GetComponent(TCProgramData::COMP_TYPE_VIDEO, 0, comp) &&
                !util.GetComponent(TCProgramData::COMP_TYPE_VIDEO, 1, comp));
    // The caller's record is not touched.
    EXPECT_EQ(TCProgramDescriptorUtil(record).NumOfComponent(TCProgramData::COMP_TYPE_AUDIO), 0);

    zumtest::LogCapture log;
    EXPECT_EQ(util.NumOfComponent(static_cast<TCProgramData::EComponentType>(4)), 0);
    EXPECT_FALSE(util.GetComponent(static_cast<TCProgramData::EComponentType>(7), 0, comp));
    EXPECT_FALSE(util.GetComponentList(TCProgramData::COMP_TYPE_INVALID, list));
    int asserts = 0;
    for (const std::string& line : log.Lines(DLOG_ERROR))
        asserts += line.find("Failed: type > TCProgramData::COMP_TYPE_INVALID && type < "
                             "TCProgramData::COMP_TYPE_MAX") != std::string::npos;
    EXPECT_EQ(asserts, 3);
}

namespace {

using Event = std::tuple<unsigned, unsigned, unsigned, unsigned>; // transport stream, network, service, event

std::vector<Event> Events(const std::list<TCProgramData::TTEventInfo>& list)
{
    std::vector<Event> out;
    for (const TCProgramData::TTEventInfo& e : list)
        out.emplace_back(e.transportStreamId, e.originalNetworkId, e.serviceId, e.eventId);
    return out;
}

} // namespace

// Japan end to end: rating, video components, copy control of the stored loop, and, for a guide that keeps
// them (the inspector's), the series and the event groups. The guide's filter alone keeps none of the ARIB event descriptors.
TEST(ProgramDescriptorUtil, JapaneseEventsEndToEnd)
{
    zumtest::BinderScope binder(Country("JPN"));
    const Bytes loop = Concat({Desc(0x50, {0x01, 0xB3, 0x00, 'j', 'p', 'n'}),
                               Desc(0x55, {'J', 'P', 'N', 0x0D}), Desc(0xC1, {0x84}),
                               Desc(0xD5, {0x01, 0x23, 0x55, 0xEA, 0x91, 0x00, 0x50, 0x0C, 0x0E, 'S', 'e', 'r'}),
                               Desc(0xD6, {0x21, 0x02, 0x00, 0x03, 0x00}),
                               Desc(0xD6, {0x12, 0x01, 0x00, 0x00, 0x11, 0x02, 0x00, 0x00, 0x12}),
                               Desc(0xD6, {0x40, 0x00, 0x07, 0x00, 0x08, 0x00, 0x09, 0x00, 0x0A}),
                               Desc(0xD9, {0x01, 0x01, 0x11, 0x00, 0x00})});
    const std::vector<TCProgramData> records = StoreEvents(Eit(0x4E, 0x0400, {{0x0B01, loop}}));
    ASSERT_EQ(records.size(), 1u);

    TCProgramDescriptorUtil util(records[0]);
    EXPECT_EQ(util.SizeOfDescriptor(), 2);
    TSRatingInfo rating;
    ASSERT_TRUE(util.GetRatingInfo(rating));
    EXPECT_EQ(rating.ratingValue, 0x0D);
    EXPECT_EQ(util.NumOfComponent(TCProgramData::COMP_TYPE_VIDEO), 1);
    TCProgramData::TTSeriesItem series;
    TCProgramData::TTEventInfo relayed;
    std::list<TCProgramData::TTEventInfo> list;
    EXPECT_FALSE(util.GetSeriesInfo(series, kZUMDefaultHandle) || util.GetRelayedEventInfo(relayed) ||
                 util.GetCommonEvent(list) || util.GetEventGroupInfoList(2, list));
    EXPECT_EQ(util.NumOfComponentGroup(), 0);

    // Copy control: read from the stored loop as the guide decodes it (copy once, digital TV).
    unsigned char* data = nullptr;
    unsigned short length = 0;
    int tableId = 0;
    TCDescriptorHash all;
    if (records[0].GetDescriptorRawDataBuffer(data, length, tableId))
        TCDescriptor(kZUMDefaultHandle).Parse(data, length, all, static_cast<unsigned char>(tableId));
    const auto* copy = dynamic_cast<const TCDescDigitalCopyControl*>(all.Descriptor(0xC1, 0));
    ASSERT_NE(copy, nullptr);
    TCProgramCommonUtil common(kZUMDefaultHandle);
    EDigitalCopyControl copyControl = EDIGITAL_COPY_FREE, audioOutput = EDIGITAL_COPY_FREE;
    common.GetDigitalCopyControl(EISDB_SERVICE_TYPE_DIGITAL_TV, copy->CopyControlType(),
                                 copy->DigitalRecordingControlData(), copyControl);
    common.GetAudioOutputControl(copy->CopyControlType(), copy->DigitalRecordingControlData(), audioOutput);
    EXPECT_EQ(std::make_pair(copyControl, audioOutput), std::make_pair(EDIGITAL_COPY_ONCE, EDIGITAL_COPY_ONCE));

    zuminspect::GuideUtil guide(records[0]);
    ASSERT_TRUE(guide.GetSeriesInfo(series, kZUMDefaultHandle));
    EXPECT_EQ(std::make_tuple(series.seriesId, series.repeatLabel, series.programPattern, series.expireDate,
                              series.episodeNumber, series.lastEpisodeNumber),
              std::make_tuple(0x0123, 5, 2, 60049 - 44244, 5, 12));
    EXPECT_EQ(std::string(series.seriesName, series.seriesName + series.seriesNameLength),
              std::string("\xFF\x33\xFF\x45\xFF\x52", 6)); // ARIB alphanumerics, full width
    ASSERT_TRUE(guide.GetRelayedEventInfo(relayed));
    EXPECT_EQ(Events({relayed}), (std::vector<Event>{{0x0441, 0x0001, 0x0200, 0x0300}}));
    EXPECT_TRUE(guide.GetCommonEvent(list));
    EXPECT_EQ(Events(list), (std::vector<Event>{{0x0441, 0x0001, 0x0100, 0x0011}, {0x0441, 0x0001, 0x0200, 0x0012}}));
    list.clear();
    EXPECT_TRUE(guide.GetEventGroupInfoList(4, list));
    EXPECT_EQ(Events(list), (std::vector<Event>{{0x0008, 0x0007, 0x0009, 0x000A}}));
    EXPECT_FALSE(guide.GetEventGroupInfoList(3, list = {}));
    EXPECT_EQ(guide.NumOfComponentGroup(), 0); // component groups are never asked for under this filter

    // Without a series name the title stands in, with its terminating zero, and no length.
    TCProgramData titled = Record(Desc(0xD5, {0x00, 0x01, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00}), 0x4E);
    const unsigned short title[] = {'T', 'V'};
    titled.SetTitle(title, 2);
    TCProgramData::TTSeriesItem untitled;
    untitled.seriesNameLength = 9;
    untitled.seriesName[4] = 0xFF;
    ASSERT_TRUE(zuminspect::GuideUtil(titled).GetSeriesInfo(untitled, kZUMDefaultHandle));
    unsigned short got[3];
    std::memcpy(got, untitled.seriesName, sizeof got);
    EXPECT_EQ(std::basic_string<unsigned short>(got, 3), (std::basic_string<unsigned short>{'T', 'V', 0}));
    EXPECT_EQ(untitled.seriesNameLength, 0);
    EXPECT_EQ(untitled.expireDate, 0);
}
