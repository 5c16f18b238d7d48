#include "BenchTables.h"

#include <cstdio>
#include <map>

#include "atsc/OobTestKit.h"
#include "support/TkgsStream.h"

namespace zumbench {

namespace {

using zumtest::Concat;
using zumtest::Desc;
using zumtest::SectionBuilder;

constexpr unsigned kVersions[2] = {4, 5};

constexpr uint16_t kPidPat = 0x0000;
constexpr uint16_t kPidPmt = 0x0100;
constexpr uint16_t kPidNit = 0x0010;
constexpr uint16_t kPidSdt = 0x0011;
constexpr uint16_t kPidEit = 0x0012;
constexpr uint16_t kPidPsip = 0x1FFB;
constexpr uint16_t kPidOob = 0x1FFC;
constexpr uint16_t kPidSgt = 0x0100;
constexpr uint16_t kPidTkgs = 0x1FF0;
constexpr uint16_t kPidFastScan = 0x0384;

Bytes Text(const std::string& text)
{
    return Bytes(text.begin(), text.end());
}

Bytes U16(unsigned v)
{
    return {static_cast<uint8_t>(v >> 8), static_cast<uint8_t>(v)};
}

Bytes U32(unsigned v)
{
    return Concat({U16(v >> 16), U16(v)});
}

unsigned Bcd(unsigned value)
{
    return ((value / 10) << 4) | (value % 10);
}

// UTC start time as MJD and BCD hh mm ss; the 14th of November 2026 is MJD 61358.
Bytes StartTime(unsigned minutesIntoDay)
{
    const unsigned mjd = 61358 + minutesIntoDay / (24 * 60);
    const unsigned minutes = minutesIntoDay % (24 * 60);
    return Concat({U16(mjd), {static_cast<uint8_t>(Bcd(minutes / 60)), static_cast<uint8_t>(Bcd(minutes % 60)), 0x00}});
}

Bytes Duration(unsigned minutes)
{
    return {static_cast<uint8_t>(Bcd(minutes / 60)), static_cast<uint8_t>(Bcd(minutes % 60)), 0x00};
}

// ---- PAT: the network PID and 16 programs -----------------------------------

Bytes Pat(unsigned version)
{
    SectionBuilder s(zumtest::LongHeader(0x00, kTransportStreamId, version));
    s.U16(0x0000).U16(0xE000 | kPidNit);
    for (unsigned i = 0; i < static_cast<unsigned>(kPatPrograms); ++i)
        s.U16(kProgramNumber + i).U16(0xE000 | (kPidPmt + 0x10 * i));
    return s.Build();
}

// ---- PMT: HD video, two audio tracks, subtitles and teletext; 12 descriptors --

Bytes Pmt(unsigned version)
{
    SectionBuilder s(zumtest::LongHeader(0x02, kProgramNumber, version));
    s.U16(0xE000 | 0x0110); // PCR on the video
    s.Begin16();
    s.Descriptor(0x09, Concat({U16(0x0B00), U16(0xE000 | 0x01F0)})); // CA system and ECM PID
    s.Descriptor(0x09, Concat({U16(0x1800), U16(0xE000 | 0x01F1), {0x00, 0x01}}));
    s.End();

    auto stream = [&s](unsigned type, unsigned pid, const std::vector<Bytes>& descriptors) {
        s.U8(type).U16(0xE000 | pid).Begin16();
        for (const Bytes& d : descriptors)
            s.Raw(d);
        s.End();
    };
    stream(0x1B, 0x0110, {Desc(0x52, {0x01})});
    stream(0x11, 0x0111, {Desc(0x0A, Concat({Text("eng"), {0x00}})), Desc(0x52, {0x02})});
    stream(0x06, 0x0112, {Desc(0x0A, Concat({Text("deu"), {0x00}})), Desc(0x6A, {0x00}), Desc(0x52, {0x03})});
    stream(0x06, 0x0113,
           {Desc(0x59, Concat({Text("eng"), {0x10}, U16(0x0001), U16(0x0001), Text("deu"), {0x20}, U16(0x0002),
                               U16(0x0002)})),
            Desc(0x52, {0x04})});
    stream(0x06, 0x0114,
           {Desc(0x56, Concat({Text("eng"), {0x09, 0x00}, Text("deu"), {0x11, 0x50}})), Desc(0x52, {0x05})});
    return s.Build();
}

// ---- NIT: 20 transport streams over two sections ------------------------------

constexpr int kServicesPerTs = 6;

Bytes TransportStream(unsigned index)
{
    const unsigned tsId = kTransportStreamId + index;
    const uint32_t frequency = (474000000u + 8000000u * index) / 10; // units of 10 Hz
    zumtest::ByteWriter w;
    w.U16(tsId).U16(kOriginalNetworkId).Begin16();
    w.Descriptor(0x5A, Concat({U32(frequency),
                               {0x1F,   // 8 MHz, high priority, no time slicing, no MPE-FEC
                                0x82,   // 64-QAM, non-hierarchical, code rate 2/3
                                0x02},  // guard interval 1/32, 8k mode, no other frequency
                               U32(0xFFFFFFFF)}));
    Bytes serviceList, channels;
    for (unsigned j = 0; j < static_cast<unsigned>(kServicesPerTs); ++j) {
        const unsigned serviceId = ((index + 1) << 8) | (j + 1);
        const uint8_t type = j == kServicesPerTs - 1 ? 0x02 : (j % 2 ? 0x16 : 0x19);
        serviceList.insert(serviceList.end(), {static_cast<uint8_t>(serviceId >> 8), static_cast<uint8_t>(serviceId),
                                               type});
        const unsigned entry = 0xFC00 | (index * kServicesPerTs + j + 1); // visible, reserved bits set
        channels.insert(channels.end(), {static_cast<uint8_t>(serviceId >> 8), static_cast<uint8_t>(serviceId),
                                         static_cast<uint8_t>(entry >> 8), static_cast<uint8_t>(entry)});
    }
    w.Descriptor(0x41, serviceList);
    w.Descriptor(0x5F, U32(kPrivateDataSpecifier));
    w.Descriptor(0x83, channels);
    w.End();
    return w.Data();
}

// A NIT or BAT: its own loop `head` in each of two sections, then half of the
// 20 transport streams in each.
std::vector<Bytes> MuxLoopTable(unsigned tableId, unsigned extension, unsigned version, const Bytes& head)
{
    constexpr unsigned kSections = 2;
    constexpr unsigned kPerSection = kNitTransportStreams / kSections;
    std::vector<Bytes> sections;
    for (unsigned section = 0; section < kSections; ++section) {
        SectionBuilder s(zumtest::LongHeader(tableId, extension, version, section, kSections - 1, true));
        s.Begin16().Raw(head).End();
        s.Begin16();
        for (unsigned i = 0; i < kPerSection; ++i)
            s.Raw(TransportStream(section * kPerSection + i));
        s.End();
        sections.push_back(s.Build());
    }
    return sections;
}

std::vector<Bytes> Nit(unsigned version)
{
    return MuxLoopTable(0x40, kNetworkId, version, zumtest::Desc(0x40, Text("ZUM Benchmark Network")));
}

// ---- BAT: the same 20 transport streams in one bouquet ------------------------

std::vector<Bytes> Bat(unsigned version)
{
    // Bouquet name, and a linkage to the transport stream with the bouquet's complete SI.
    const Bytes linkage = Concat({U16(kTransportStreamId), U16(kOriginalNetworkId), U16(0x0000), {0x04}});
    return MuxLoopTable(0x4A, kBouquetId, version,
                        Concat({zumtest::Desc(0x47, Text("ZUM Benchmark Bouquet")), zumtest::Desc(0x4A, linkage)}));
}

// ---- SDT: 40 services over two sections ---------------------------------------

std::vector<Bytes> Sdt(unsigned version)
{
    constexpr unsigned kSections = 2;
    constexpr unsigned kPerSection = kSdtServices / kSections;
    const std::string provider = "ZUM Broadcast";
    std::vector<Bytes> sections;
    for (unsigned section = 0; section < kSections; ++section) {
        SectionBuilder s(zumtest::LongHeader(0x42, kTransportStreamId, version, section, kSections - 1, true));
        s.U16(kOriginalNetworkId).U8(0xFF);
        for (unsigned i = 0; i < kPerSection; ++i) {
            const unsigned n = section * kPerSection + i;
            char name[32];
            std::snprintf(name, sizeof name, "ZUM Channel %02u", n + 1);
            const uint8_t type = n % 8 == 7 ? 0x02 : (n % 2 ? 0x16 : 0x19);
            s.U16(0x0100 + n).U8(0xFC | 0x02 | 0x01); // EIT schedule and present/following
            s.Begin16(12, 4u << 13);                   // running, free to air
            s.Descriptor(0x48, Concat({{type}, {static_cast<uint8_t>(provider.size())}, Text(provider),
                                       {static_cast<uint8_t>(std::string(name).size())}, Text(name)}));
            s.End();
        }
        sections.push_back(s.Build());
    }
    return sections;
}

// ---- EIT -------------------------------------------------------------------

struct EventText {
    const char* title;
    const char* text;
};

const EventText kEventTexts[] = {
    {"Late News", "Headlines, the regions and the weather for the weekend ahead, with a look at the papers."},
    {"The Long Coast", "A lighthouse keeper and a stranded sailor wait out a winter storm on a rocky island."},
    {"Harbour Lives", "A year with the crews of a small fishing port, from the herring season to the gales."},
    {"World Business Report", "Markets in Asia as they open, the dollar, oil, and the week's company results."},
    {"Early Breakfast", "News, sport and weather, with the travel news every fifteen minutes from six."},
};

Bytes ShortEvent(unsigned index)
{
    const std::string title = kEventTexts[index % 5].title;
    const std::string text = kEventTexts[index % 5].text;
    return Desc(0x4D, Concat({Text("eng"), {static_cast<uint8_t>(title.size())}, Text(title),
                              {static_cast<uint8_t>(text.size())}, Text(text)}));
}

// Short event, two extended events, video and audio components, content and
// parental rating: what a present/following event of a DVB-T service carries.
Bytes RichEventLoop(unsigned index)
{
    zumtest::ByteWriter w;
    w.Raw(ShortEvent(index));
    for (unsigned number = 0; number < 2; ++number) {
        const std::string item = number == 0 ? "Director" : "Cast";
        const std::string value = number == 0 ? "A. Director" : "A. Actor, B. Actor, C. Actor";
        const std::string more = "Filmed on location over two winters; first shown in 2019. Subtitled.";
        w.Descriptor(0x4E, Concat({{static_cast<uint8_t>((number << 4) | 1)}, Text("eng"),
                                   {static_cast<uint8_t>(2 + item.size() + value.size())},
                                   {static_cast<uint8_t>(item.size())}, Text(item),
                                   {static_cast<uint8_t>(value.size())}, Text(value),
                                   {static_cast<uint8_t>(more.size())}, Text(more)}));
    }
    w.Descriptor(0x50, Concat({{0xF5, 0x0B, 0x01}, Text("eng"), Text("HD 1080i")})); // H.264 HD 16:9
    w.Descriptor(0x50, Concat({{0xF6, 0x01, 0x02}, Text("eng"), Text("Stereo")}));   // HE-AAC stereo
    w.Descriptor(0x54, {0x10, 0x00});
    w.Descriptor(0x55, Concat({Text("GBR"), {0x0C}}));
    return w.Data();
}

// Short event, a video component, content and parental rating: a schedule event.
Bytes ScheduleEventLoop(unsigned index)
{
    zumtest::ByteWriter w;
    w.Raw(ShortEvent(index));
    w.Descriptor(0x50, Concat({{0xF5, 0x0B, 0x01}, Text("eng")}));
    w.Descriptor(0x54, {static_cast<uint8_t>(0x10 + 0x10 * (index % 4)), 0x00});
    w.Descriptor(0x55, Concat({Text("GBR"), {0x00}}));
    return w.Data();
}

Bytes Event(unsigned eventId, unsigned startMinutes, unsigned durationMinutes, unsigned runningStatus,
            const Bytes& loop)
{
    zumtest::ByteWriter w;
    w.U16(eventId).Raw(StartTime(startMinutes)).Raw(Duration(durationMinutes));
    w.Begin16(12, runningStatus << 13); // free_CA_mode 0
    w.Raw(loop);
    w.End();
    return w.Data();
}

Bytes EitSection(unsigned tableId, unsigned version, unsigned section, unsigned lastSection, const Bytes& events)
{
    SectionBuilder s(zumtest::LongHeader(tableId, kEitServiceId, version, section, lastSection, true));
    s.U16(kTransportStreamId).U16(kOriginalNetworkId).U8(lastSection).U8(tableId).Raw(events);
    return s.Build();
}

std::vector<Bytes> EitPresentFollowing(unsigned version)
{
    constexpr unsigned kRunning = 4, kNotRunning = 1;
    return {EitSection(0x4E, version, 0, 1, Event(0x1002, 60, 105, kRunning, RichEventLoop(1))),
            EitSection(0x4E, version, 1, 1, Event(0x1003, 165, 75, kNotRunning, RichEventLoop(2)))};
}

// One segment of two sections with ten events each; compressed, the same
// event loops go through zlib under table id 0x80.
std::vector<Bytes> EitSchedule(unsigned version, bool compressed)
{
    const unsigned tableId = compressed ? 0x80 : 0x50;
    std::vector<Bytes> sections;
    for (unsigned section = 0; section < 2; ++section) {
        Bytes events;
        for (unsigned i = 0; i < static_cast<unsigned>(kEitScheduleEventsPerSection); ++i) {
            const unsigned n = section * kEitScheduleEventsPerSection + i;
            const Bytes e = Event(0x2000 + n, 60 * n, 60, 0, ScheduleEventLoop(n));
            events.insert(events.end(), e.begin(), e.end());
        }
        sections.push_back(EitSection(tableId, version, section, 1, compressed ? zumtest::Deflate(events) : events));
    }
    return sections;
}

// ---- ISDB EIT: a Japanese schedule, as a BS broadcaster sends it -----------

// Event names and texts in ARIB 8-unit code (kanji, kana and alphanumeric
// sets with their designations and shifts), as Japanese broadcasts carry them.
const char* const kAribTitles[] = {
    "1b7cc6ecd3b7e7c3d4f3b0382635663d6a0e5456b7e7c3d4f3b0",
    "456c4b4c3a320e54568920233232348a0f2121477a3e501b7ce6cbc3c8b3f3c8",
    "1b242b3b1d7a6a0e56414ec70f3e21c1474fb5acb7c6dfdebbf3ab89200e233736",
};
const char* const kAribText =
    "1b7cb8e5def3b889200e2d208afa1b7dbdeccfb3ce0f4024c73a47e2346d3831ca1b7cb2f9e00e210f21210e89313939358a0f472f3878332b";

Bytes FromHex(const char* hex)
{
    Bytes out;
    for (const char* p = hex; p[0] && p[1]; p += 2)
        out.push_back(static_cast<uint8_t>(std::stoi(std::string(p, 2), nullptr, 16)));
    return out;
}

// Short event, video component, audio component, data content, content,
// digital copy control and event group: the loop of a BS schedule event.
Bytes IsdbEventLoop(unsigned index)
{
    const Bytes title = FromHex(kAribTitles[index % 3]);
    const Bytes text = FromHex(kAribText);
    zumtest::ByteWriter w;
    w.Descriptor(0x4D, Concat({Text("jpn"), {static_cast<uint8_t>(title.size())}, title,
                               {static_cast<uint8_t>(text.size())}, text}));
    w.Descriptor(0x50, Concat({{0x01, 0xB3, 0x00}, Text("jpn")}));                         // 1080i 16:9
    w.Descriptor(0xC4, Concat({{0x02, 0x03, 0x10, 0x0F, 0xFF, 0x7E}, Text("jpn")}));       // AAC stereo, 48 kHz
    w.Descriptor(0xC7, Concat({{0x00, 0x0C, 0x40, 0x00, 0x00}, Text("jpn"), {0x00}}));     // data broadcast
    w.Descriptor(0x54, {static_cast<uint8_t>(0x10 * (index % 6)), 0xFF});
    w.Descriptor(0xC1, {0xC0 | 0x0C | 0x01});                                              // copy once
    w.Descriptor(0xD6, Concat({{0x11}, U16(kEitServiceId), U16(0x4000 + index)}));        // shared event
    return w.Data();
}

// One segment of two sections with ten events each.
std::vector<Bytes> IsdbEitSchedule(unsigned version)
{
    std::vector<Bytes> sections;
    for (unsigned section = 0; section < 2; ++section) {
        Bytes events;
        for (unsigned i = 0; i < static_cast<unsigned>(kEitScheduleEventsPerSection); ++i) {
            const unsigned n = section * kEitScheduleEventsPerSection + i;
            const Bytes e = Event(0x4D00 + n, 30 * n, 30, 0, IsdbEventLoop(n));
            events.insert(events.end(), e.begin(), e.end());
        }
        sections.push_back(EitSection(0x50, version, section, 1, events));
    }
    return sections;
}

// ---- PSIP: the MGT of a terrestrial station and its TVCT -----------------------

zumtest::SectionHeader PsipHeader(unsigned tableId, unsigned extension, unsigned version)
{
    zumtest::SectionHeader header = zumtest::LongHeader(tableId, extension, version);
    header.protocolVersion = 0;
    return header;
}

// TVCT, channel ETT, EIT-0..7, ETT-0..7 and the rating region table.
Bytes Mgt(unsigned version)
{
    std::vector<std::pair<unsigned, unsigned>> tables = {{0x0000, 0x1FFB}, {0x0004, 0x1E80}};
    for (unsigned i = 0; i < 8; ++i)
        tables.push_back({0x0100 + i, 0x1D00 + i});
    for (unsigned i = 0; i < 8; ++i)
        tables.push_back({0x0200 + i, 0x1E00 + i});
    tables.push_back({0x0301, 0x1FFB});
    SectionBuilder s(PsipHeader(0xC7, 0x0000, version));
    s.U16(static_cast<unsigned>(tables.size()));
    for (const auto& t : tables)
        s.U16(t.first).U16(0xE000 | t.second).U8(0xE0 | version).U32(0x400 + t.second).Begin16().End();
    s.Begin16().End();
    return s.Build();
}

// Eight channels 10.1 to 10.8, each with an English long name and the
// location of its video and two audio streams.
Bytes Tvct(unsigned version)
{
    SectionBuilder s(PsipHeader(0xC8, kTransportStreamId, version));
    s.U8(static_cast<unsigned>(kTvctChannels));
    for (unsigned i = 0; i < static_cast<unsigned>(kTvctChannels); ++i) {
        const std::string shortName = "KULX-" + std::to_string(i + 1);
        for (size_t c = 0; c < 7; ++c)
            s.U16(c < shortName.size() ? static_cast<unsigned char>(shortName[c]) : 0);
        s.U24(0xF00000u | (10u << 10) | (i + 1)).U8(0x04).U32(0).U16(kTransportStreamId).U16(i + 1);
        s.U8(0x0D).U8(0xC2).U16(i + 1); // ETM none, hide_guide 0, ATSC digital television
        const std::string name = "KULX Channel " + std::to_string(i + 1);
        const unsigned pid = 0x31 + 0x10 * i;
        s.Begin16(10, 0xFC00);
        s.Descriptor(0xA0, Concat({{0x01}, Text("eng"), {0x01, 0x00, 0x00, static_cast<uint8_t>(name.size())},
                                   Text(name)}));
        s.Descriptor(0xA1, Concat({U16(0xE000 | pid), {0x03},
                                   {0x02}, U16(0xE000 | pid), {0, 0, 0},
                                   {0x81}, U16(0xE000 | (pid + 3)), Text("eng"),
                                   {0x81}, U16(0xE000 | (pid + 4)), Text("spa")}));
        s.End();
    }
    s.Begin16(10, 0xFC00).End();
    return s.Build();
}

// Three hours of one channel's guide on EIT-0 in four sections: each event
// with an English title, a content advisory and a caption service.
std::vector<Bytes> PsipEit(unsigned version)
{
    std::vector<Bytes> sections;
    for (unsigned section = 0; section < static_cast<unsigned>(kPsipEitSections); ++section) {
        zumtest::SectionHeader header = PsipHeader(0xCB, kPsipEitSourceId, version);
        header.sectionNumber = section;
        header.lastSectionNumber = kPsipEitSections - 1;
        SectionBuilder s(header);
        s.U8(static_cast<unsigned>(kPsipEitEventsPerSection));
        for (unsigned i = 0; i < static_cast<unsigned>(kPsipEitEventsPerSection); ++i) {
            const unsigned n = section * kPsipEitEventsPerSection + i;
            const std::string title = "KULX Evening News " + std::to_string(n);
            s.U16(0xC000 | (n + 1)).U32(1447707600u + 1800u * n).U24(0xC00000u | (1u << 20) | 1800u);
            s.Begin8().Raw(Concat({{0x01}, Text("eng"), {0x01, 0x00, 0x00, static_cast<uint8_t>(title.size())},
                                   Text(title)})).End();
            s.Begin16(12, 0xF000);
            s.Descriptor(0x87, {0xC1, 0x01, 0x03, 0x00, 0x03, 0x01, 0x01, 0x02, 0x01, 0x00});
            s.Descriptor(0x86, Concat({{0xE1}, Text("eng"), {0x7E, 0x3F, 0xFF}}));
            s.End();
        }
        sections.push_back(s.Build());
    }
    return sections;
}

// ---- SVCT: a cable virtual channel map of 24 channels with their names -----
// Out-of-band sections carry no version: the two "versions" differ in their
// activation time, and so in their bytes.

Bytes Svct(unsigned version)
{
    zumtest::ByteWriter w;
    w.U8(0x01).U8(0x00).U16(0x1000);               // protocol 1, cable medium, VCM subtype, VCT id
    w.U8(0x20).U8(0x00).U32(version).U8(kSvctChannels); // descriptors included, activation time
    for (unsigned i = 0; i < kSvctChannels; ++i) {
        char name[16];
        std::snprintf(name, sizeof name, "ZUM %02u", i + 2);
        w.U16(0xF000 | (i + 2)).U8(0x00);          // channel number; MPEG-2, normal channel
        w.U16(0x1000 + i).U8(1 + i / 8);           // source id, carrier (CDS) index
        w.U16(0x0101 + i % 8).U8(2);               // program number, modulation (MMS) index
        const Bytes longName = Concat({{0x01}, Text("eng"), {0x01, 0x00, 0x00, static_cast<uint8_t>(std::string(name).size())},
                                       Text(name)});
        w.U8(1).Raw(Desc(0xA0, longName));
    }
    return zumtest::OobSection(0xC4, w.Data());
}

// ---- AEIT: a cable guide slot, 2 sections of 4 sources with 6 events each ---

std::vector<Bytes> Aeit(unsigned version)
{
    static const char* const kTitles[] = {"Evening News", "Weather", "Movie: The Long Road", "Late Show",
                                          "Documentary", "Sports Tonight"};
    std::vector<Bytes> sections;
    for (unsigned section = 0; section < 2; ++section) {
        SectionBuilder s(zumtest::LongHeader(0xD6, 0x0100, version, section, 1));
        s.U8(kAeitSources);
        for (unsigned src = 0; src < kAeitSources; ++src) {
            s.U16(0x1000 + section * kAeitSources + src).U8(kAeitEventsPerSource);
            for (unsigned e = 0; e < kAeitEventsPerSource; ++e) {
                const std::string title = kTitles[e];
                const Bytes mss = Concat({{0x01}, Text("eng"), {0x01, 0x00, 0x00, static_cast<uint8_t>(title.size())},
                                          Text(title)});
                s.U16(0xC000 | (e + 1)).U32(1'300'000'000 + e * 1800).U24(0xC00000 | (1u << 20) | 1800);
                s.U8(static_cast<unsigned>(mss.size())).Raw(mss);
                // Caption service: one line 21 service in English.
                s.Begin16().Descriptor(0x86, Concat({{0xC1}, Text("eng"), {0x3F, 0xFF, 0xFF}})).End();
            }
        }
        sections.push_back(s.Build());
    }
    return sections;
}

// ---- SGT: an Astra service list of 60 services over two sections ------------

std::vector<Bytes> Sgt(unsigned version)
{
    constexpr unsigned kSections = 2;
    constexpr unsigned kPerSection = kSgtServices / kSections;
    std::vector<Bytes> sections;
    for (unsigned section = 0; section < kSections; ++section) {
        SectionBuilder s(zumtest::LongHeader(0x91, 0x0007, version, section, kSections - 1));
        s.U16(0xFFFF).Begin16().Descriptor(0x88, Concat({Text("deu"), Text("HD+")})).End();
        s.Begin16(12, 0xF000);
        for (unsigned i = 0; i < kPerSection; ++i) {
            const unsigned n = section * kPerSection + i;
            s.U16(0x2000 + n).U16(0x0400 + n / 10).U16(0x0001);
            s.U16(((n + 1) << 2) | 0x02 | (n % 7 == 0 ? 1 : 0)).U16(0x0102); // channel number, visible, new
            s.Begin16().End();
        }
        s.End();
        sections.push_back(s.Build());
    }
    return sections;
}

// ---- FST: a fast-scan operator's 80 services over two sections, each named --

std::vector<Bytes> Fst(unsigned version)
{
    constexpr unsigned kSections = 2;
    constexpr unsigned kPerSection = kFstServices / kSections;
    std::vector<Bytes> sections;
    for (unsigned section = 0; section < kSections; ++section) {
        SectionBuilder s(zumtest::LongHeader(0xBD, 0x0100, version, section, kSections - 1));
        for (unsigned i = 0; i < kPerSection; ++i) {
            const unsigned n = section * kPerSection + i;
            s.U16(0x0001).U16(0x0400 + n / 10).U16(0x2000 + n);
            s.U16(0xE000 | (0x100 + n)).U16(0xE000 | (0x200 + n)).U16(0xFFFF).U16(0xFFFF).U16(0xE000 | (0x100 + n));
            s.Begin16().Descriptor(0x48, Concat({{0x01, 0x03}, Text("M7 "), {0x07}, Text("Channel")})).End();
        }
        sections.push_back(s.Build());
    }
    return sections;
}

// ---- TKGS: an operator's line-up, 4 transports of 6 services, 2 lists -------

Bytes TkgsSdt(unsigned tsid)
{
    SectionBuilder s(zumtest::LongHeader(0x42, tsid, 1));
    s.U16(0x0001).U8(0xFF);
    for (unsigned i = 0; i < 6; ++i) {
        s.U16(tsid + i).U8(0xFD).Begin16(12, 0x8000);
        s.Descriptor(0x48, Concat({{0x01, 4}, Text("TKGS"), {6}, Text("Kanal" + std::to_string(i))})).End();
    }
    return s.Build();
}

Bytes TkgsPmt(unsigned program)
{
    SectionBuilder s(zumtest::LongHeader(0x02, program, 1));
    s.U16(0xE100).Begin16().End();
    s.U8(0x1B).U16(0xE101).Begin16().End();
    s.U8(0x03).U16(0xE102).Begin16().Descriptor(0x0A, Concat({Text("tur"), {0x00}})).End();
    return s.Build();
}

std::vector<Bytes> Tkgs(unsigned version)
{
    const Bytes satellite = Desc(0x43, {0x01, 0x19, 0x20, 0x00, 0x00, 0x42, 0x81, 0x02, 0x75, 0x00, 0x03});
    zumtest::TkgsStream stream;
    stream.infoTexts = {{"tur", "TKGS"}};
    stream.sourceData = {0x01, 0x02};
    zumtest::TkgsServiceList national{{{"tur", "Ulusal"}, {"eng", "National"}}, {}};
    zumtest::TkgsServiceList news{{{"tur", "Haber"}}, {}};
    for (unsigned t = 0; t < kTkgsServices / 6; ++t) {
        const unsigned tsid = 0x100 * (t + 1);
        zumtest::TkgsTransport transport{satellite, {TkgsSdt(tsid)}, {}};
        for (unsigned i = 0; i < 6; ++i) {
            const unsigned id = t * 6 + i + 1;
            transport.pmts.push_back({id, TkgsPmt(tsid + i)});
            national.numbers.push_back({id, id});
            if (i == 0)
                news.numbers.push_back({t + 1, id});
        }
        stream.transports.push_back(transport);
    }
    stream.lists = {national, news};
    stream.categories = Desc(0x92, {0xF0, 0x05, 't', 'u', 'r', 5, 'H', 'a', 'b', 'e', 'r'});
    return zumtest::TkgsSections(zumtest::TkgsStreamBytes(stream), version, 1000);
}

Table Make(Family family)
{
    Table t;
    for (int v = 0; v < 2; ++v) {
        const unsigned version = kVersions[v];
        switch (family) {
        case Family::Pat: t.pid = kPidPat; t.tableId = 0x00; t.versions[v] = {Pat(version)}; break;
        case Family::Pmt: t.pid = kPidPmt; t.tableId = 0x02; t.versions[v] = {Pmt(version)}; break;
        case Family::Nit: t.pid = kPidNit; t.tableId = 0x40; t.versions[v] = Nit(version); break;
        case Family::Bat: t.pid = kPidSdt; t.tableId = 0x4A; t.versions[v] = Bat(version); break;
        case Family::Sdt: t.pid = kPidSdt; t.tableId = 0x42; t.versions[v] = Sdt(version); break;
        case Family::EitPf: t.pid = kPidEit; t.tableId = 0x4E; t.versions[v] = EitPresentFollowing(version); break;
        case Family::EitSchedule: t.pid = kPidEit; t.tableId = 0x50; t.versions[v] = EitSchedule(version, false); break;
        case Family::EitScheduleCompressed:
            t.pid = kPidEit;
            t.tableId = 0x80;
            t.versions[v] = EitSchedule(version, true);
            break;
        case Family::DescriptorLoop: t.pid = kPidEit; t.tableId = 0x4E; t.versions[v] = {RichEventLoop(1)}; break;
        case Family::Mgt: t.pid = kPidPsip; t.tableId = 0xC7; t.versions[v] = {Mgt(version)}; break;
        case Family::Tvct: t.pid = kPidPsip; t.tableId = 0xC8; t.versions[v] = {Tvct(version)}; break;
        case Family::EitIsdb: t.pid = kPidEit; t.tableId = 0x50; t.versions[v] = IsdbEitSchedule(version); break;
        case Family::PsipEit: t.pid = 0x1D00; t.tableId = 0xCB; t.versions[v] = PsipEit(version); break;
        case Family::Svct: t.pid = kPidOob; t.tableId = 0xC4; t.versions[v] = {Svct(version)}; break;
        case Family::Aeit: t.pid = kPidOob; t.tableId = 0xD6; t.versions[v] = Aeit(version); break;
        case Family::Sgt: t.pid = kPidSgt; t.tableId = 0x91; t.versions[v] = Sgt(version); break;
        case Family::Tkgs: t.pid = kPidTkgs; t.tableId = 0xA7; t.versions[v] = Tkgs(version); break;
        case Family::Fst: t.pid = kPidFastScan; t.tableId = 0xBD; t.versions[v] = Fst(version); break;
        }
    }
    return t;
}

} // namespace

size_t Table::TotalBytes() const
{
    size_t total = 0;
    for (const zumbench::Bytes& s : versions[0])
        total += s.size();
    return total;
}

const std::vector<Family>& AllFamilies()
{
    static const std::vector<Family> all = {Family::Pat,         Family::Pmt,
                                            Family::Nit,         Family::Bat,         Family::Sdt,
                                            Family::EitPf,       Family::EitSchedule,
                                            Family::EitScheduleCompressed, Family::DescriptorLoop,
                                            Family::Mgt,         Family::Tvct,        Family::EitIsdb,     Family::PsipEit,
                                            Family::Svct,        Family::Aeit,        Family::Sgt,         Family::Tkgs,
                                            Family::Fst};
    return all;
}

const char* FamilyName(Family family)
{
    switch (family) {
    case Family::Pat: return "PAT";
    case Family::Pmt: return "PMT";
    case Family::Nit: return "NIT";
    case Family::Bat: return "BAT";
    case Family::Sdt: return "SDT";
    case Family::EitPf: return "EIT-pf";
    case Family::EitSchedule: return "EIT-sched";
    case Family::EitScheduleCompressed: return "EIT-sched-zlib";
    case Family::DescriptorLoop: return "DescLoop";
    case Family::Mgt: return "MGT";
    case Family::Tvct: return "TVCT";
    case Family::EitIsdb: return "EIT-isdb";
    case Family::PsipEit: return "PSIP-EIT";
    case Family::Svct: return "SVCT";
    case Family::Aeit: return "AEIT";
    case Family::Sgt: return "SGT";
    case Family::Tkgs: return "TKGS";
    case Family::Fst: return "FST";
    }
    return "?";
}

int DecodedByPeers(Family family)
{
    switch (family) {
    case Family::Pat: return kPatPrograms;
    case Family::Pmt: return kPmtDescriptors - 3;          // CA twice and AC-3 stay raw
    case Family::Nit: return 2 + 4 * kNitTransportStreams; // network names; 0x5A, 0x41, 0x5F, 0x83 each
    case Family::Bat: return 4 + 4 * kNitTransportStreams; // bouquet names and linkages; the streams as the NIT's
    case Family::Sdt: return kSdtServices;
    case Family::EitPf: return 2 * kDescriptorLoopDescriptors;
    case Family::EitSchedule: return 2 * kEitScheduleEventsPerSection * 4;
    case Family::EitScheduleCompressed: return -1;
    case Family::DescriptorLoop: return kDescriptorLoopDescriptors;
    case Family::Mgt: return kMgtTables;
    case Family::Tvct: return kTvctChannels;
    case Family::EitIsdb: return 2 * kEitScheduleEventsPerSection * 3; // short event, component, content
    case Family::PsipEit: return kPsipEitSections * kPsipEitEventsPerSection;
    case Family::Svct:
    case Family::Aeit:
    case Family::Sgt:
    case Family::Tkgs:
    case Family::Fst: return -1;
    }
    return -1;
}

const Table& TableOf(Family family)
{
    static std::map<Family, Table> tables;
    auto it = tables.find(family);
    if (it == tables.end())
        it = tables.emplace(family, Make(family)).first;
    return it->second;
}

} // namespace zumbench
