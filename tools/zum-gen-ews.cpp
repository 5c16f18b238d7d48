// Writes samples/ews.ts: the PAT and PMT of one service whose PMT announces an
// emergency warning stream (private sections) and carries an emergency
// information descriptor, and on that stream the three sub-tables of table
// 0x80 in two versions: an earthquake warning, then a tsunami warning that
// replaces it. Every value is named below.
// Usage: zum-gen-ews OUTPUT

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "SampleFile.h"
#include "inspect/TsMux.h"
#include "support/SectionBuilder.h"

namespace {

using zumtest::Bytes;
using zumtest::SectionBuilder;

// ---- PIDs, programs, table ids -------------------------------------------

constexpr uint16_t kPidPat = 0x0000;
constexpr uint16_t kPidPmt = 0x0100;
constexpr uint16_t kPidVideo = 0x0101;
constexpr uint16_t kPidEws = 0x0901;
constexpr unsigned kTransportStreamId = 0x0A01;
constexpr unsigned kProgram = 0x0101;

constexpr unsigned kTidPat = 0x00;
constexpr unsigned kTidPmt = 0x02;
constexpr unsigned kTidEws = 0x80;
constexpr unsigned kStreamTypeVideo = 0x1B;
constexpr unsigned kStreamTypePrivateSections = 0x05;

// Table id extensions of the sub-tables.
constexpr unsigned kTRDW = 1;
constexpr unsigned kTCDW = 2;
constexpr unsigned kTMDW = 3;

// ---- The emergency information descriptor of the PMT ----------------------

constexpr bool kStart = true;
constexpr bool kSignalLevel = true; // the second, stronger level
// Kanto wide area, then the prefecture that answers 23.
const std::vector<unsigned> kAreaCodes = {0x5A5, 0xAAC};

// ---- The warning -----------------------------------------------------------

struct Location {
    unsigned code; // five decimal digits
    std::string description;
};

struct Disaster {
    unsigned char byte0, byte1;
    unsigned code;
    std::string texts[4];
};

struct Warning {
    unsigned version;
    unsigned disasterCode, locationType, packageId;
    std::vector<std::vector<Location>> regionSections; // one list per TRDW section
    std::vector<Disaster> disasters;
    unsigned headerByte, messageKey;
    std::vector<std::string> messages;
};

const std::vector<Disaster> kDisasters = {
    {0x01, 0x00, 0x0001, {"Earthquake", "Strong shaking", "", ""}},
    {0x02, 0x00, 0x0002, {"Tsunami", "Waves above 3 m", "Move to high ground", ""}},
    {0x03, 0x01, 0x0003, {"Flood", "", "", ""}},
};

const Warning kFirst = {
    1, 0x0001, 0x01, 0x01,
    {{{31710, "Central Coast"}, {31720, "North Coast"}}, {{32730, "Highlands"}}},
    {kDisasters[0], kDisasters[1]},
    0x01, 0x01,
    {"Earthquake of magnitude 6.2 off the coast.", "Stay away from buildings and windows."},
};

const Warning kSecond = {
    2, 0x0002, 0x01, 0x02,
    {{{36010, "West Bay"}, {36020, "South Bay"}, {31720, "North Coast"}}},
    kDisasters,
    0x81, 0x02,
    {"Tsunami warning: move away from the coast now.", "Follow the signs to the evacuation routes."},
};

// ---- Sections --------------------------------------------------------------

Bytes Text(const std::string& s)
{
    return Bytes(s.begin(), s.end());
}

Bytes Pat()
{
    SectionBuilder s(zumtest::LongHeader(kTidPat, kTransportStreamId, 0));
    s.U16(kProgram).U16(0xE000 | kPidPmt);
    return s.Build();
}

Bytes EmergencyInformation()
{
    zumtest::ByteWriter w;
    w.U16(kProgram).U8((kStart ? 0x80 : 0) | (kSignalLevel ? 0x40 : 0) | 0x3F).Begin8();
    for (unsigned code : kAreaCodes)
        w.U16((code << 4) | 0x0F);
    w.End();
    return w.Data();
}

Bytes Pmt()
{
    SectionBuilder s(zumtest::LongHeader(kTidPmt, kProgram, 0));
    s.U16(0xE000 | kPidVideo).Begin16().Descriptor(0xFC, EmergencyInformation()).End();
    s.U8(kStreamTypeVideo).U16(0xE000 | kPidVideo).Begin16().End();
    s.U8(kStreamTypePrivateSections).U16(0xE000 | kPidEws).Begin16().End();
    return s.Build();
}

// Five digits in the upper 20 bits, the low nibble set.
unsigned LocationBytes(unsigned code)
{
    unsigned bcd = 0;
    for (unsigned divisor = 10000; divisor > 0; divisor /= 10)
        bcd = (bcd << 4) | (code / divisor % 10);
    return (bcd << 4) | 0x0F;
}

Bytes Region(const Warning& w, unsigned section)
{
    const unsigned last = static_cast<unsigned>(w.regionSections.size() - 1);
    SectionBuilder s(zumtest::LongHeader(kTidEws, kTRDW, w.version, section, last));
    const std::vector<Location>& locations = w.regionSections[section];
    s.U16(w.disasterCode).U8(w.locationType).U8(w.packageId).U8(static_cast<unsigned>(locations.size()));
    for (const Location& l : locations)
        s.U24(LocationBytes(l.code)).U8(static_cast<unsigned>(l.description.size())).Raw(Text(l.description));
    return s.Build();
}

Bytes Codes(const Warning& w)
{
    SectionBuilder s(zumtest::LongHeader(kTidEws, kTCDW, w.version));
    s.U8(static_cast<unsigned>(w.disasters.size()));
    for (const Disaster& d : w.disasters) {
        s.U8(d.byte0).U8(d.byte1).U16(d.code);
        for (const std::string& text : d.texts)
            s.U8(static_cast<unsigned>(text.size())).Raw(Text(text));
    }
    return s.Build();
}

Bytes Message(const Warning& w)
{
    SectionBuilder s(zumtest::LongHeader(kTidEws, kTMDW, w.version));
    s.U8(w.headerByte).U8(w.messageKey);
    for (const std::string& text : w.messages)
        s.U16(static_cast<unsigned>(text.size())).Raw(Text(text));
    return s.Build();
}

// The whole warning, twice, as a playout repeats it.
std::vector<Bytes> Carousel(const Warning& w)
{
    std::vector<Bytes> sections;
    for (int pass = 0; pass < 2; ++pass) {
        for (unsigned section = 0; section < w.regionSections.size(); ++section)
            sections.push_back(Region(w, section));
        sections.push_back(Codes(w));
        sections.push_back(Message(w));
    }
    return sections;
}

Bytes Sample()
{
    Bytes out;
    zuminspect::TsMux pat(kPidPat), pmt(kPidPmt), ews(kPidEws);
    for (const Warning* w : {&kFirst, &kSecond}) {
        pat.Add(Pat());
        pmt.Add(Pmt());
        for (const Bytes& section : Carousel(*w))
            ews.Add(section);
        // The PMT names the warning stream before it comes.
        for (zuminspect::TsMux* mux : {&pat, &pmt, &ews}) {
            const Bytes packets = mux->Flush();
            out.insert(out.end(), packets.begin(), packets.end());
        }
    }
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
