// Writes samples/sample.ts: one pass of PAT, PMTs, NIT, SDT, EIT
// present/following, an EIT schedule (plain and zlib-compressed), TDT and TOT
// of a small fictional DVB-T network, from the values named below.
// Usage: zum-gen-sample [--megabytes N] OUTPUT   ("-" for standard output)
// With --megabytes, a long stream of about N MB for throughput and memory
// checks: the sample's tables again and again, each pass followed by packets on
// the elementary PIDs, as a multiplex carries mostly audio and video.

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "inspect/TsMux.h"
#include "support/Crc32.h"
#include "support/SectionBuilder.h"

namespace {

using zumtest::Bytes;
using zumtest::Desc;
using zumtest::SectionBuilder;
using zumtest::SectionHeader;

// ---- Network ---------------------------------------------------------------

constexpr unsigned kNetworkId = 0x3001;
constexpr unsigned kOriginalNetworkId = 0x3001;
constexpr unsigned kTsActual = 0x1001;
constexpr unsigned kTsOther = 0x1002;
const std::string kNetworkName = "ZUM Test Network";
const std::string kProvider = "ZUM Broadcast";
constexpr uint32_t kPdsEacem = 0x00000028;

// Centre frequencies in units of 10 Hz: UHF channels 22 and 23.
constexpr uint32_t kFrequencyActual = 48200000; // 482 MHz
constexpr uint32_t kFrequencyOther = 49000000;  // 490 MHz

// ---- PIDs and versions -----------------------------------------------------

constexpr uint16_t kPidPat = 0x0000;
constexpr uint16_t kPidNit = 0x0010;
constexpr uint16_t kPidSdt = 0x0011;
constexpr uint16_t kPidEit = 0x0012;
constexpr uint16_t kPidTime = 0x0014;

constexpr unsigned kPatVersion = 1;
constexpr unsigned kPmtVersion = 1;
constexpr unsigned kNitVersion = 3;
constexpr unsigned kSdtVersion = 2;
constexpr unsigned kEitPfVersion = 5;
constexpr unsigned kEitScheduleVersion = 2;

// ---- Table ids -------------------------------------------------------------

constexpr unsigned kTidPat = 0x00;
constexpr unsigned kTidPmt = 0x02;
constexpr unsigned kTidNitActual = 0x40;
constexpr unsigned kTidSdtActual = 0x42;
constexpr unsigned kTidEitPfActual = 0x4E;
constexpr unsigned kTidEitScheduleActual = 0x50;
constexpr unsigned kTidEitScheduleCompressed = 0x80; // the zlib form of 0x50
constexpr unsigned kTidTdt = 0x70;
constexpr unsigned kTidTot = 0x73;

// ---- Time ------------------------------------------------------------------

struct DateTime {
    int year, month, day, hour, minute, second;
};

// Saturday night, UTC; in November the UK keeps GMT.
constexpr DateTime kNow{2026, 11, 14, 1, 20, 0};
// Clocks go forward an hour at 01:00 UTC on the last Sunday of March.
constexpr DateTime kTimeOfChange{2027, 3, 28, 1, 0, 0};
const std::string kOffsetCountry = "GBR";
constexpr unsigned kLocalTimeOffset = 0x0000; // hhmm BCD
constexpr unsigned kNextTimeOffset = 0x0100;

// ---- Services --------------------------------------------------------------

enum class Kind { Video, Audio, Subtitles };

struct Stream {
    Kind kind;
    unsigned streamType;
    uint16_t pid;
    unsigned componentTag;
    std::string language; // audio and subtitles
};

struct Service {
    unsigned id;
    uint16_t pmtPid;
    unsigned serviceType;
    std::string name; // DVB text bytes, a leading selector byte included
    unsigned lcn;
    bool schedule;    // EIT schedule carried for it
    std::vector<Stream> streams;
};

constexpr unsigned kTypeTvSd = 0x01;
constexpr unsigned kTypeRadio = 0x02;
constexpr unsigned kTypeAvcSd = 0x16;
constexpr unsigned kTypeAvcHd = 0x19;

constexpr unsigned kStreamMpeg2Video = 0x02;
constexpr unsigned kStreamMpeg1Audio = 0x03;
constexpr unsigned kStreamPrivatePes = 0x06; // DVB subtitles
constexpr unsigned kStreamAacLatm = 0x11;
constexpr unsigned kStreamAvc = 0x1B;

// Selector byte of ISO/IEC 8859-9 (Latin-5, Turkish) text.
const std::string kLatin5 = "\x05";

const std::vector<Service> kServices = {
    {0x0101, 0x0100, kTypeAvcHd, "ZUM One", 1, true,
     {{Kind::Video, kStreamAvc, 0x0110, 0x01, ""},
      {Kind::Audio, kStreamAacLatm, 0x0111, 0x02, "eng"},
      {Kind::Subtitles, kStreamPrivatePes, 0x0112, 0x03, "eng"}}},
    {0x0102, 0x0200, kTypeTvSd, "ZUM Two", 2, false,
     {{Kind::Video, kStreamMpeg2Video, 0x0210, 0x01, ""},
      {Kind::Audio, kStreamMpeg1Audio, 0x0211, 0x02, "eng"},
      {Kind::Subtitles, kStreamPrivatePes, 0x0212, 0x03, "eng"}}},
    // "Türkçe Haber"
    {0x0103, 0x0300, kTypeAvcSd, kLatin5 + "T\xFC" "rk\xE7" "e Haber", 3, false,
     {{Kind::Video, kStreamAvc, 0x0310, 0x01, ""},
      {Kind::Audio, kStreamMpeg1Audio, 0x0311, 0x02, "tur"},
      {Kind::Subtitles, kStreamPrivatePes, 0x0312, 0x03, "tur"}}},
};

// Services of the other transport stream, announced in the NIT only.
struct ListedService {
    unsigned id;
    unsigned serviceType;
    unsigned lcn;
};
const std::vector<ListedService> kOtherServices = {
    {0x0201, kTypeAvcHd, 4},
    {0x0202, kTypeRadio, 700},
};

// ---- Events ----------------------------------------------------------------

struct Event {
    unsigned id;
    DateTime start;
    int hours, minutes;  // duration
    std::string language;
    std::string title;   // DVB text bytes
    std::string text;
    unsigned content;    // content_nibble_level_1 and _2
    std::string ratingCountry;
    unsigned rating;     // minimum age - 3
};

constexpr unsigned kContentMovie = 0x10;
constexpr unsigned kContentNews = 0x20;
constexpr unsigned kContentDocumentary = 0x23;
constexpr unsigned kContentSports = 0x40;
constexpr unsigned kContentShopping = 0xA6;
constexpr unsigned kContentEconomics = 0x84;

constexpr unsigned kUndefined = 0; // running status as schedules carry it
constexpr unsigned kNotRunning = 1;
constexpr unsigned kRunning = 4;

// ZUM One, 0x0101: the night's schedule; present and following come from it.
const std::vector<Event> kScheduleSegment0 = {
    {0x1001, {2026, 11, 14, 0, 0, 0}, 1, 0, "eng", "Late News", "Headlines and the weather for the weekend.",
     kContentNews, "GBR", 0x00},
    {0x1002, {2026, 11, 14, 1, 0, 0}, 1, 45, "eng", "The Long Coast",
     "A lighthouse keeper and a stranded sailor wait out a winter storm.", kContentMovie, "GBR", 0x0C},
    {0x1003, {2026, 11, 14, 2, 45, 0}, 1, 15, "eng", "Harbour Lives", "A year with the crews of a fishing port.",
     kContentDocumentary, "GBR", 0x00},
};
const std::vector<Event> kScheduleSegment1 = {
    {0x1004, {2026, 11, 14, 4, 0, 0}, 1, 0, "eng", "World Business Report", "Markets in Asia as they open.",
     kContentEconomics, "GBR", 0x00},
    {0x1005, {2026, 11, 14, 5, 0, 0}, 1, 0, "eng", "Early Breakfast", "News, sport and weather.", kContentNews,
     "GBR", 0x00},
};

struct PresentFollowing {
    unsigned serviceId;
    Event present;
    Event following;
};

const std::vector<PresentFollowing> kPresentFollowing = {
    {0x0101, kScheduleSegment0[1], kScheduleSegment0[2]},
    {0x0102,
     {0x2001, {2026, 11, 14, 0, 30, 0}, 2, 0, "eng", "Snooker: UK Championship", "Second round, evening session.",
      kContentSports, "GBR", 0x00},
     {0x2002, {2026, 11, 14, 2, 30, 0}, 3, 30, "eng", "Teleshopping", "Offers for the home.", kContentShopping,
      "GBR", 0x00}},
    {0x0103,
     // "Gece Haberleri" / "Günün özeti."
     {0x3001, {2026, 11, 14, 1, 0, 0}, 1, 0, "tur", kLatin5 + "Gece Haberleri", kLatin5 + "G\xFCn\xFCn \xF6zeti.",
      kContentNews, "TUR", 0x04},
     // "Belgesel: Anadolu" / "Kapadokya'nın vadileri."
     {0x3002, {2026, 11, 14, 2, 0, 0}, 1, 0, "tur", kLatin5 + "Belgesel: Anadolu",
      kLatin5 + "Kapadokya'n\xFDn vadileri.", kContentDocumentary, "TUR", 0x04}},
};

// Sections 0 and 8 open the first two 3-hour segments of the day.
constexpr unsigned kSegment0Section = 0;
constexpr unsigned kSegment1Section = 8;

// ---- Encoding helpers ------------------------------------------------------

unsigned Bcd(unsigned value)
{
    return ((value / 10) << 4) | (value % 10);
}

unsigned ModifiedJulianDate(int year, int month, int day)
{
    const int leap = (month == 1 || month == 2) ? 1 : 0;
    return static_cast<unsigned>(14956 + day + (year - 1900 - leap) * 36525 / 100 +
                                 (month + 1 + leap * 12) * 306001 / 10000);
}

Bytes DvbTime(const DateTime& t)
{
    const unsigned mjd = ModifiedJulianDate(t.year, t.month, t.day);
    return {static_cast<uint8_t>(mjd >> 8), static_cast<uint8_t>(mjd),
            static_cast<uint8_t>(Bcd(static_cast<unsigned>(t.hour))),
            static_cast<uint8_t>(Bcd(static_cast<unsigned>(t.minute))),
            static_cast<uint8_t>(Bcd(static_cast<unsigned>(t.second)))};
}

Bytes Text(const std::string& text)
{
    return Bytes(text.begin(), text.end());
}

SectionHeader ShortHeader(unsigned tableId)
{
    SectionHeader header;
    header.tableId = tableId;
    header.syntax = false;
    header.privateBit = true;
    return header;
}

// ---- Tables ----------------------------------------------------------------

Bytes Pat()
{
    SectionBuilder s(zumtest::LongHeader(kTidPat, kTsActual, kPatVersion));
    s.U16(0x0000).U16(0xE000 | kPidNit);
    for (const Service& service : kServices)
        s.U16(service.id).U16(0xE000 | service.pmtPid);
    return s.Build();
}

Bytes Pmt(const Service& service)
{
    SectionBuilder s(zumtest::LongHeader(kTidPmt, service.id, kPmtVersion));
    s.U16(0xE000 | service.streams.front().pid); // PCR rides on the video
    s.Begin16().End();                          // no program descriptors
    for (const Stream& stream : service.streams) {
        s.U8(stream.streamType).U16(0xE000 | stream.pid).Begin16();
        if (stream.kind != Kind::Video)
            s.Descriptor(0x0A, zumtest::Concat({Text(stream.language), {0x00}})); // audio_type undefined
        s.Descriptor(0x52, {static_cast<uint8_t>(stream.componentTag)});
        if (stream.kind == Kind::Subtitles)
            s.Descriptor(0x59, zumtest::Concat({Text(stream.language), {0x10, 0x00, 0x01, 0x00, 0x01}}));
        s.End();
    }
    return s.Build();
}

Bytes TerrestrialDelivery(uint32_t frequency)
{
    return Desc(0x5A, {static_cast<uint8_t>(frequency >> 24), static_cast<uint8_t>(frequency >> 16),
                       static_cast<uint8_t>(frequency >> 8), static_cast<uint8_t>(frequency),
                       0x1F,   // 8 MHz, high priority, no time slicing, no MPE-FEC
                       0x82,   // 64-QAM, non-hierarchical, code rate 2/3
                       0x02,   // guard interval 1/32, 8k mode, no other frequency
                       0xFF, 0xFF, 0xFF, 0xFF});
}

template <class List>
void TransportStream(SectionBuilder& s, unsigned tsId, uint32_t frequency, const List& services)
{
    s.U16(tsId).U16(kOriginalNetworkId).Begin16();
    s.Raw(TerrestrialDelivery(frequency));
    Bytes serviceList, channels;
    for (const auto& service : services) {
        serviceList.insert(serviceList.end(), {static_cast<uint8_t>(service.id >> 8), static_cast<uint8_t>(service.id),
                                               static_cast<uint8_t>(service.serviceType)});
        const unsigned entry = 0xFC00 | service.lcn; // visible, reserved bits set
        channels.insert(channels.end(), {static_cast<uint8_t>(service.id >> 8), static_cast<uint8_t>(service.id),
                                         static_cast<uint8_t>(entry >> 8), static_cast<uint8_t>(entry)});
    }
    s.Descriptor(0x41, serviceList);
    s.Descriptor(0x5F, {static_cast<uint8_t>(kPdsEacem >> 24), static_cast<uint8_t>(kPdsEacem >> 16),
                        static_cast<uint8_t>(kPdsEacem >> 8), static_cast<uint8_t>(kPdsEacem)});
    s.Descriptor(0x83, channels);
    s.End();
}

Bytes Nit()
{
    SectionBuilder s(zumtest::LongHeader(kTidNitActual, kNetworkId, kNitVersion, 0, 0, true));
    s.Begin16().Descriptor(0x40, Text(kNetworkName)).End();
    s.Begin16();
    TransportStream(s, kTsActual, kFrequencyActual, kServices);
    TransportStream(s, kTsOther, kFrequencyOther, kOtherServices);
    s.End();
    return s.Build();
}

Bytes Sdt()
{
    SectionBuilder s(zumtest::LongHeader(kTidSdtActual, kTsActual, kSdtVersion, 0, 0, true));
    s.U16(kOriginalNetworkId).U8(0xFF);
    for (const Service& service : kServices) {
        s.U16(service.id).U8(0xFC | (service.schedule ? 0x02 : 0x00) | 0x01); // present/following always
        s.Begin16(12, kRunning << 13);
        s.Descriptor(0x48, zumtest::Concat({{static_cast<uint8_t>(service.serviceType)},
                                            {static_cast<uint8_t>(kProvider.size())}, Text(kProvider),
                                            {static_cast<uint8_t>(service.name.size())}, Text(service.name)}));
        s.End();
    }
    return s.Build();
}

Bytes EventLoop(const std::vector<Event>& events, unsigned runningStatus)
{
    zumtest::ByteWriter w;
    for (const Event& e : events) {
        w.U16(e.id).Raw(DvbTime(e.start));
        w.U8(Bcd(static_cast<unsigned>(e.hours))).U8(Bcd(static_cast<unsigned>(e.minutes))).U8(0x00);
        w.Begin16(12, runningStatus << 13); // free_CA_mode 0
        w.Descriptor(0x4D, zumtest::Concat({Text(e.language), {static_cast<uint8_t>(e.title.size())}, Text(e.title),
                                            {static_cast<uint8_t>(e.text.size())}, Text(e.text)}));
        w.Descriptor(0x54, {static_cast<uint8_t>(e.content), 0x00});
        w.Descriptor(0x55, zumtest::Concat({Text(e.ratingCountry), {static_cast<uint8_t>(e.rating)}}));
        w.End();
    }
    return w.Data();
}

Bytes EitSection(unsigned tableId, unsigned serviceId, unsigned version, unsigned section, unsigned lastSection,
                 unsigned segmentLastSection, unsigned lastTableId, const Bytes& events)
{
    SectionHeader header = zumtest::LongHeader(tableId, serviceId, version, 0, 0, true);
    header.sectionNumber = section;
    header.lastSectionNumber = lastSection;
    SectionBuilder s(header);
    s.U16(kTsActual).U16(kOriginalNetworkId).U8(segmentLastSection).U8(lastTableId).Raw(events);
    return s.Build();
}

std::vector<Bytes> EitPresentFollowing()
{
    std::vector<Bytes> sections;
    for (const PresentFollowing& pf : kPresentFollowing) {
        sections.push_back(EitSection(kTidEitPfActual, pf.serviceId, kEitPfVersion, 0, 1, 1, kTidEitPfActual,
                                      EventLoop({pf.present}, kRunning)));
        sections.push_back(EitSection(kTidEitPfActual, pf.serviceId, kEitPfVersion, 1, 1, 1, kTidEitPfActual,
                                      EventLoop({pf.following}, kNotRunning)));
    }
    return sections;
}

// The schedule of the service that has one, as plain sections or with its
// event loops compressed.
std::vector<Bytes> EitSchedule(bool compressed)
{
    const unsigned tableId = compressed ? kTidEitScheduleCompressed : kTidEitScheduleActual;
    const unsigned serviceId = kPresentFollowing.front().serviceId;
    std::vector<Bytes> sections;
    for (const auto& segment : {std::make_pair(kSegment0Section, &kScheduleSegment0),
                                std::make_pair(kSegment1Section, &kScheduleSegment1)}) {
        const Bytes events = EventLoop(*segment.second, kUndefined);
        sections.push_back(EitSection(tableId, serviceId, kEitScheduleVersion, segment.first, kSegment1Section,
                                      segment.first, tableId, compressed ? zumtest::Deflate(events) : events));
    }
    return sections;
}

Bytes Tdt()
{
    SectionBuilder s(ShortHeader(kTidTdt));
    s.Raw(DvbTime(kNow));
    return s.Build();
}

Bytes Tot()
{
    SectionBuilder s(ShortHeader(kTidTot));
    s.Raw(DvbTime(kNow)).Begin16();
    Bytes offset = zumtest::Concat({Text(kOffsetCountry), {0x02}, // region 0, polarity positive
                                    {static_cast<uint8_t>(kLocalTimeOffset >> 8), static_cast<uint8_t>(kLocalTimeOffset)},
                                    DvbTime(kTimeOfChange),
                                    {static_cast<uint8_t>(kNextTimeOffset >> 8), static_cast<uint8_t>(kNextTimeOffset)}});
    s.Descriptor(0x58, offset).End();
    s.U32(0); // room for the CRC_32, which the short form does not add by itself
    Bytes section = s.Build();
    const uint32_t crc = zumtest::Crc32Mpeg(section.data(), section.size() - 4);
    for (int i = 0; i < 4; ++i)
        section[section.size() - 4 + static_cast<size_t>(i)] = static_cast<uint8_t>(crc >> (24 - 8 * i));
    return section;
}

Bytes Packets(uint16_t pid, const std::vector<Bytes>& sections)
{
    return zuminspect::TsMux::Packetize(pid, sections);
}

Bytes Sample()
{
    Bytes out = Packets(kPidPat, {Pat()});
    for (const Service& service : kServices) {
        const Bytes packets = Packets(service.pmtPid, {Pmt(service)});
        out.insert(out.end(), packets.begin(), packets.end());
    }
    std::vector<Bytes> eit = EitPresentFollowing();
    for (bool compressed : {false, true})
        for (Bytes& section : EitSchedule(compressed))
            eit.push_back(std::move(section));
    for (const Bytes& packets : {Packets(kPidNit, {Nit()}), Packets(kPidSdt, {Sdt()}), Packets(kPidEit, eit),
                                 Packets(kPidTime, {Tdt(), Tot()})})
        out.insert(out.end(), packets.begin(), packets.end());
    return out;
}

constexpr size_t kPacket = 188;
// Audio and video packets after each pass of the tables: about 1.5 % of the
// stream is SI, as in a broadcast multiplex.
constexpr int kPesPacketsPerPass = 1000;
// Each elementary stream's PES packets span this many TS packets.
constexpr int kPacketsPerPes = 20;

// Sets the continuity counter of a packet to the next one of its PID.
void Count(uint8_t* packet, std::map<uint16_t, uint8_t>& counters)
{
    const uint16_t pid = static_cast<uint16_t>(((packet[1] & 0x1F) << 8) | packet[2]);
    uint8_t& cc = counters[pid];
    packet[3] = static_cast<uint8_t>((packet[3] & 0xF0) | cc);
    cc = static_cast<uint8_t>((cc + 1) & 0x0F);
}

// Passes of the sample's packets and of payload packets on the elementary
// PIDs, whole passes only, until at least `bytes`; the continuity counters run on.
bool WriteLong(FILE* file, unsigned long long bytes)
{
    const Bytes sample = Sample();
    std::vector<std::pair<uint16_t, uint8_t>> pids; // PID, PES stream_id
    for (const Service& service : kServices)
        for (const Stream& stream : service.streams)
            pids.emplace_back(stream.pid, stream.kind == Kind::Video   ? 0xE0
                                          : stream.kind == Kind::Audio ? 0xC0
                                                                       : 0xBD);
    std::map<uint16_t, uint8_t> counters;
    Bytes pass;
    unsigned long long written = 0;
    while (written < bytes) {
        pass = sample;
        for (int i = 0; i < kPesPacketsPerPass; ++i) {
            const auto& stream = pids[static_cast<size_t>(i) % pids.size()];
            const bool start = (i / static_cast<int>(pids.size())) % kPacketsPerPes == 0;
            uint8_t packet[kPacket];
            std::memset(packet, static_cast<int>(i & 0xFF), sizeof packet);
            packet[0] = 0x47;
            packet[1] = static_cast<uint8_t>((start ? 0x40 : 0x00) | (stream.first >> 8));
            packet[2] = static_cast<uint8_t>(stream.first);
            packet[3] = 0x10; // payload only
            if (start) {
                // A PES header without timestamps: start code, stream_id, length 0 (unbounded), flags.
                const uint8_t header[] = {0x00, 0x00, 0x01, stream.second, 0x00, 0x00, 0x80, 0x00, 0x00};
                std::memcpy(packet + 4, header, sizeof header);
            }
            pass.insert(pass.end(), packet, packet + kPacket);
        }
        for (size_t at = 0; at < pass.size(); at += kPacket)
            Count(&pass[at], counters);
        if (std::fwrite(pass.data(), 1, pass.size(), file) != pass.size())
            return false;
        written += pass.size();
    }
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    unsigned long long megabytes = 0;
    if (argc == 4 && std::strcmp(argv[1], "--megabytes") == 0)
        megabytes = std::strtoull(argv[2], nullptr, 10);
    if ((argc != 2 && argc != 4) || (argc == 4 && megabytes == 0)) {
        std::fprintf(stderr, "usage: %s [--megabytes N] OUTPUT   (\"-\" for standard output)\n", argv[0]);
        return 2;
    }
    const std::string path = argv[argc - 1];
    FILE* file = path == "-" ? stdout : std::fopen(path.c_str(), "wb");
    if (file == nullptr) {
        std::perror(path.c_str());
        return 1;
    }
    bool written = false;
    if (megabytes > 0) {
        written = WriteLong(file, megabytes * 1000000ULL);
    } else {
        const Bytes sample = Sample();
        written = std::fwrite(sample.data(), 1, sample.size(), file) == sample.size();
    }
    const bool closed = file == stdout ? std::fflush(file) == 0 : std::fclose(file) == 0;
    if (!written || !closed) {
        std::fprintf(stderr, "%s: write failed\n", path.c_str());
        return 1;
    }
    return 0;
}
