// Writes samples/oob.ts: the cable control channel of a small cable system on
// the out-of-band PID 0x1FFC, repeated as a head end's carousel repeats it:
// the out-of-band NIT (carrier definitions and modulation modes), the NTT
// with the source names in English, the short-form VCT (virtual channel map
// and inverse channel map), and an aggregate event and text table.
// Every value is named below. Usage: zum-gen-oob OUTPUT

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "inspect/TsMux.h"
#include "support/Crc32.h"
#include "support/SectionBuilder.h"

namespace {

using zumtest::Bytes;

constexpr uint16_t kPidOob = 0x1FFC;
constexpr unsigned kTidNit = 0xC2, kTidNtt = 0xC3, kTidSvct = 0xC4, kTidAeit = 0xD6, kTidAett = 0xD7;
constexpr unsigned kVctId = 0x0101;
constexpr int kCarouselPasses = 5;

// Carriers from 555 MHz every 6 MHz, CDS references 2, 3 and 4; units of 125 kHz.
constexpr unsigned kFirstCarrierReference = 2;
constexpr unsigned kCarriers = 3;
constexpr unsigned kFirstCarrier125kHz = 555000 / 125;
constexpr unsigned kSpacing125kHz = 6000 / 125;

struct Mode {
    unsigned reference, modulationFormat, symbolRate;
};
// modulation_format 8 is QAM64, 16 QAM256; transmission system 2, inner coding 15 (none).
const std::vector<Mode> kModes = {{1, 8, 5056941}, {2, 16, 5360537}};

struct Source {
    unsigned id;
    std::string name;
};
const std::vector<Source> kSources = {{0x1234, "KXYZ"}, {0x1235, "WABC"}, {0x1236, "Cable News"}};

struct Channel {
    unsigned number, sourceId, cds, program, mms;
};
const std::vector<Channel> kChannels = {
    {102, 0x1234, 3, 1, 2}, {103, 0x1235, 2, 2, 1}, {104, 0x1236, 4, 3, 2}};

struct Event {
    unsigned sourceId, eventId, start, duration;
    std::string title;
};
// Start times in GPS seconds.
const std::vector<Event> kEvents = {{0x1234, 1, 1400000000, 1800, "Evening News"},
                                    {0x1234, 2, 1400001800, 3600, "Late Movie"},
                                    {0x1235, 1, 1400000000, 3600, "Ball Game"}};
const std::string kExtendedText = "Highlights of the day, weather and sports.";

// The short-form sections carry a CRC_32 behind their body like the long form.
Bytes Short(unsigned tableId, const Bytes& body)
{
    zumtest::SectionHeader header;
    header.tableId = tableId;
    header.syntax = false;
    zumtest::SectionBuilder b(header);
    b.Raw(body);
    Bytes out = b.Build();
    // section_length then covers the CRC_32 as well.
    const unsigned length = static_cast<unsigned>(out.size()) - 3 + 4;
    out[1] = static_cast<uint8_t>((out[1] & 0xF0) | (length >> 8));
    out[2] = static_cast<uint8_t>(length);
    const uint32_t crc = zumtest::Crc32Mpeg(out.data(), out.size());
    for (int shift = 24; shift >= 0; shift -= 8)
        out.push_back(static_cast<uint8_t>(crc >> shift));
    return out;
}

// One English string of one uncompressed segment.
Bytes English(const std::string& text)
{
    zumtest::ByteWriter w;
    w.U8(1).Text("eng").U8(1).U8(0).U8(0).U8(static_cast<unsigned>(text.size())).Text(text);
    return w.Data();
}

Bytes NitCds()
{
    zumtest::ByteWriter w;
    w.U8(0).U8(kFirstCarrierReference).U8(1).U8(0x01);
    w.U8(kCarriers).U16(0x8000 | kSpacing125kHz).U16(0x8000 | kFirstCarrier125kHz).U8(0);
    return Short(kTidNit, w.Data());
}

Bytes NitMms()
{
    zumtest::ByteWriter w;
    w.U8(0).U8(kModes.front().reference).U8(static_cast<unsigned>(kModes.size())).U8(0x02);
    for (const Mode& m : kModes)
        w.U8(0x2F).U8(m.modulationFormat).U32(m.symbolRate).U8(0);
    return Short(kTidNit, w.Data());
}

Bytes Ntt()
{
    zumtest::ByteWriter w;
    w.U8(0).Text("eng").U8(0x06).U8(static_cast<unsigned>(kSources.size()));
    for (const Source& s : kSources) {
        zumtest::ByteWriter name;
        name.U8(0).U8(static_cast<unsigned>(s.name.size())).Text(s.name);
        w.U8(0).U16(s.id).U8(static_cast<unsigned>(name.Size())).Raw(name.Data()).U8(0);
    }
    return Short(kTidNtt, w.Data());
}

Bytes Vcm()
{
    zumtest::ByteWriter w;
    w.U8(0).U8(0x00).U16(kVctId).U8(0).U8(0).U32(0).U8(static_cast<unsigned>(kChannels.size()));
    for (const Channel& c : kChannels)
        w.U16(0xF000 | c.number).U8(0x01).U16(c.sourceId).U8(c.cds).U16(c.program).U8(c.mms);
    return Short(kTidSvct, w.Data());
}

Bytes Icm()
{
    zumtest::ByteWriter w;
    w.U8(0).U8(0x02).U16(kVctId).U16(0xF000).U8(static_cast<unsigned>(kChannels.size()));
    for (const Channel& c : kChannels)
        w.U16(c.sourceId).U16(0xF000 | c.number);
    return Short(kTidSvct, w.Data());
}

Bytes Aeit()
{
    zumtest::SectionBuilder b(zumtest::LongHeader(kTidAeit, 0x0000, 0));
    std::vector<unsigned> sources;
    for (const Event& e : kEvents)
        if (sources.empty() || sources.back() != e.sourceId)
            sources.push_back(e.sourceId);
    b.U8(static_cast<unsigned>(sources.size()));
    for (unsigned source : sources) {
        unsigned count = 0;
        for (const Event& e : kEvents)
            count += e.sourceId == source;
        b.U16(source).U8(count);
        for (const Event& e : kEvents) {
            if (e.sourceId != source)
                continue;
            const Bytes title = English(e.title);
            b.U16(0xC000 | e.eventId).U32(e.start).U24(0xC00000 | (1u << 20) | e.duration);
            b.U8(static_cast<unsigned>(title.size())).Raw(title).Begin16().End();
        }
    }
    return b.Build();
}

Bytes Aett()
{
    zumtest::SectionBuilder b(zumtest::LongHeader(kTidAett, 0x0000, 0));
    const Bytes text = English(kExtendedText);
    b.U8(1).U32((kEvents.front().sourceId << 16) | (kEvents.front().eventId << 2) | 0x2);
    b.U16(0xF000 | static_cast<unsigned>(text.size())).Raw(text);
    return b.Build();
}

Bytes Sample()
{
    zuminspect::TsMux oob(kPidOob);
    for (int pass = 0; pass < kCarouselPasses; ++pass)
        for (const Bytes& section : {NitCds(), NitMms(), Ntt(), Vcm(), Icm(), Aeit(), Aett()})
            oob.Add(section);
    return oob.Flush();
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s OUTPUT\n", argv[0]);
        return 2;
    }
    const Bytes sample = Sample();
    std::ofstream file(argv[1], std::ios::binary);
    file.write(reinterpret_cast<const char*>(sample.data()), static_cast<std::streamsize>(sample.size()));
    file.close();
    if (!file) {
        std::perror(argv[1]);
        return 1;
    }
    return 0;
}
