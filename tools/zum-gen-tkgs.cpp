// Writes samples/tkgs.ts: the channel system of a Turkish operator as TKGS
// carries it. The PAT and PMT of the operator's home service announce two
// private-section streams, each marked with a TKGS component; on the first
// comes the satellite line-up (three transports of Türksat 42°E), on the
// second the cable line-up. Each stream holds its transports' SDT and PMT
// sections, service lists with Turkish and English names, and category
// labels; the satellite stream is cut into several sections, sent out of
// order. Every value is named below.
// Usage: zum-gen-tkgs OUTPUT

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "SampleFile.h"
#include "inspect/TsMux.h"
#include "support/SectionBuilder.h"
#include "support/TkgsStream.h"

namespace {

using zumtest::Bytes;
using zumtest::Desc;
using zumtest::SectionBuilder;
using zumtest::TkgsStream;

// ---- The home service and its streams -------------------------------------

constexpr uint16_t kPidPat = 0x0000;
constexpr uint16_t kPidPmt = 0x0100;
constexpr uint16_t kPidTkgsSatellite = 0x0A00;
constexpr uint16_t kPidTkgsCable = 0x0A01;
constexpr unsigned kHomeTransportStreamId = 0x0001;
constexpr unsigned kHomeProgram = 0x0FA0;
constexpr unsigned kStreamTypePrivateSections = 0x05;
constexpr unsigned kStreamTypeVideo = 0x1B;
constexpr unsigned kStreamTypeAudio = 0x04;
constexpr unsigned kTkgsVersion = 3;
// Stream bytes per section: the satellite stream takes several sections.
constexpr size_t kSectionChunk = 400;

// "TKGS" and the flag byte.
const Bytes kTkgsComponent = Desc(0x98, {'T', 'K', 'G', 'S', 0x80});
const Bytes kTkgsSpecifier = Desc(0x5F, {0x01, 0x1F, 0xFF, 0xFF});

// ---- The line-up -------------------------------------------------------------

// ISO 8859-9 text, as Turkish broadcasters send it: the 0x05 selector first.
std::string Latin5(const std::string& text)
{
    return "\x05" + text;
}

struct Channel {
    unsigned tkgsServiceId;
    unsigned serviceId;
    std::string name; // ISO 8859-9
    unsigned serviceType;
    std::vector<unsigned> categories;
};

struct Transport {
    unsigned originalNetworkId, transportStreamId;
    Bytes delivery;
    std::vector<Channel> channels;
};

// Satellite: frequency (BCD, 10 kHz), 42.0°E, polarization, DVB-S2 8PSK or DVB-S QPSK, 30 Msym/s.
Bytes Satellite(unsigned frequencyBcd, bool vertical, bool s2)
{
    return Desc(0x43, {static_cast<uint8_t>(frequencyBcd >> 24), static_cast<uint8_t>(frequencyBcd >> 16),
                       static_cast<uint8_t>(frequencyBcd >> 8), static_cast<uint8_t>(frequencyBcd), 0x04, 0x20,
                       static_cast<uint8_t>(0x80 | (vertical ? 0x20 : 0x00) | (s2 ? 0x06 : 0x01)), 0x03, 0x00, 0x00,
                       0x03});
}

// Cable: frequency (BCD, 100 Hz), 256-QAM, 6.9 Msym/s.
Bytes Cable(unsigned frequencyBcd)
{
    return Desc(0x44, {static_cast<uint8_t>(frequencyBcd >> 24), static_cast<uint8_t>(frequencyBcd >> 16),
                       static_cast<uint8_t>(frequencyBcd >> 8), static_cast<uint8_t>(frequencyBcd), 0xFF, 0xF2,
                       0x05, 0x00, 0x69, 0x00, 0x0F});
}

constexpr unsigned kNews = 1, kChildren = 2, kSports = 3, kMusic = 4;

const std::vector<Transport> kSatellite = {
    {0x0001, 0x0001, Satellite(0x01105400, false, false),
     {{1, 0x0101, "TRT 1", 0x01, {}},
      {2, 0x0102, "TRT Haber", 0x01, {kNews}},
      {3, 0x0103, Latin5("TRT \xC7ocuk"), 0x01, {kChildren}}}},
    {0x0001, 0x0002, Satellite(0x01191600, true, true),
     {{4, 0x0201, "TRT Spor", 0x19, {kSports}},
      {5, 0x0202, Latin5("TRT M\xFCzik"), 0x19, {kMusic}}}},
    {0x0046, 0x0003, Satellite(0x01205000, false, true),
     {{6, 0x0301, Latin5("TBMM TV"), 0x19, {}},
      {7, 0x0302, Latin5("TRT T\xFCrk"), 0x19, {}}}},
};

const std::vector<Transport> kCable = {
    {0x0210, 0x0011, Cable(0x03120000),
     {{1, 0x1101, "TRT 1", 0x01, {}}, {2, 0x1102, "TRT Haber", 0x01, {kNews}}}},
    {0x0210, 0x0012, Cable(0x03200000), {{3, 0x1201, "TRT Spor", 0x19, {kSports}}}},
};

// ---- Sections ----------------------------------------------------------------

Bytes Sdt(const Transport& t)
{
    SectionBuilder s(zumtest::LongHeader(0x42, t.transportStreamId, 1));
    s.U16(t.originalNetworkId).U8(0xFF);
    for (const Channel& c : t.channels) {
        s.U16(c.serviceId).U8(0xFD).Begin16(12, 0x8000);
        zumtest::ByteWriter service;
        service.U8(c.serviceType).U8(3).Text("TRT").U8(static_cast<unsigned>(c.name.size())).Text(c.name);
        s.Descriptor(0x48, service.Data());
        if (!c.categories.empty()) {
            zumtest::ByteWriter extended;
            extended.Raw({0, 0, 0, 0, 0, 0});
            for (unsigned category : c.categories)
                extended.U16(0xF000 | category);
            s.Raw(kTkgsSpecifier).Descriptor(0x95, extended.Data());
        }
        s.End();
    }
    return s.Build();
}

Bytes Pmt(const Channel& c)
{
    const unsigned video = 0x0100 + (c.serviceId & 0xFF) * 0x10;
    SectionBuilder s(zumtest::LongHeader(0x02, c.serviceId, 1));
    s.U16(0xE000 | video).Begin16().End();
    s.U8(kStreamTypeVideo).U16(0xE000 | video).Begin16().End();
    s.U8(kStreamTypeAudio).U16(0xE000 | (video + 1)).Begin16().Descriptor(0x0A, {'t', 'u', 'r', 0}).End();
    return s.Build();
}

// A category label: id and its names.
Bytes Label(unsigned id, const std::string& turkish, const std::string& english)
{
    zumtest::ByteWriter w;
    w.U16(0xF000 | id).Text("tur").U8(static_cast<unsigned>(turkish.size())).Text(turkish);
    w.Text("eng").U8(static_cast<unsigned>(english.size())).Text(english);
    return Desc(0x92, w.Data());
}

TkgsStream Stream(unsigned sourceTag, const std::vector<Transport>& transports)
{
    TkgsStream s;
    s.infoTexts = {{"tur", Latin5("T\xFCrksat Kanal G\xFCncelleme Sistemi")}, {"eng", "Turksat channel update system"}};
    s.sourceTag = sourceTag;
    s.sourceData = {0x00, 0x01};
    for (const Transport& t : transports) {
        zumtest::TkgsTransport out;
        out.delivery = t.delivery;
        out.sdts = {Sdt(t)};
        for (const Channel& c : t.channels)
            out.pmts.push_back({c.tkgsServiceId, Pmt(c)});
        s.transports.push_back(out);
    }
    s.categories = zumtest::Concat({kTkgsSpecifier, Label(kNews, "Haber", "News"),
                                    Label(kChildren, Latin5("\xC7ocuk"), "Children"), Label(kSports, "Spor", "Sports"),
                                    Label(kMusic, Latin5("M\xFCzik"), "Music")});
    return s;
}

TkgsStream SatelliteStream()
{
    TkgsStream s = Stream(0xA0, kSatellite);
    s.lists = {{{{"tur", Latin5("Ulusal Kanallar")}, {"eng", "National channels"}},
                {{1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 5}, {6, 6}, {7, 7}}},
               {{{"tur", "Haber ve Spor"}, {"eng", "News and sports"}}, {{1, 2}, {2, 4}}}};
    return s;
}

TkgsStream CableStream()
{
    TkgsStream s = Stream(0xA1, kCable);
    s.lists = {{{{"tur", Latin5("Kablo Kanallar\xFD")}, {"eng", "Cable channels"}}, {{101, 1}, {102, 2}, {103, 3}}}};
    return s;
}

Bytes Pat()
{
    SectionBuilder s(zumtest::LongHeader(0x00, kHomeTransportStreamId, 0));
    s.U16(kHomeProgram).U16(0xE000 | kPidPmt);
    return s.Build();
}

Bytes HomePmt()
{
    SectionBuilder s(zumtest::LongHeader(0x02, kHomeProgram, 0));
    s.U16(0xFFFF).Begin16().End();
    for (uint16_t pid : {kPidTkgsSatellite, kPidTkgsCable})
        s.U8(kStreamTypePrivateSections).U16(0xE000 | pid).Begin16().Raw(kTkgsComponent).End();
    return s.Build();
}

void Append(Bytes& out, zuminspect::TsMux& mux)
{
    const Bytes packets = mux.Flush();
    out.insert(out.end(), packets.begin(), packets.end());
}

Bytes Sample()
{
    Bytes out;
    zuminspect::TsMux pat(kPidPat), pmt(kPidPmt), satellite(kPidTkgsSatellite), cable(kPidTkgsCable);
    pat.Add(Pat());
    pmt.Add(HomePmt());
    Append(out, pat);
    Append(out, pmt);
    const std::vector<Bytes> sat =
        zumtest::TkgsSections(zumtest::TkgsStreamBytes(SatelliteStream()), kTkgsVersion, kSectionChunk);
    // The carousel is tuned into mid-way: the last section comes first.
    satellite.Add(sat.back());
    for (size_t i = 0; i + 1 < sat.size(); ++i)
        satellite.Add(sat[i]);
    for (const Bytes& section : zumtest::TkgsSections(zumtest::TkgsStreamBytes(CableStream()), kTkgsVersion, 4000))
        cable.Add(section);
    Append(out, satellite);
    Append(out, cable);
    return out;
}

} // namespace

int main(int argc, char** argv)
{
    return zumtools::WriteSample(argc, argv, [] () -> const Bytes& {
        static const Bytes sample = Sample();
        return sample;
    });
}
