// Delivery system descriptors: satellite, cable, terrestrial, frequency list, T2.
#include <gtest/gtest.h>

#include <map>

#include "dvb/DescLoopProbe.h"
#include "dvb/DescSatelliteDeliverySystem.h"
#include "dvb/DescT2SystemDelivery.h"

using namespace svctest;

namespace {

// 11.765 GHz (bytes 01 17 65 99: the last two digits dropped), 19.2 E, vertical, 8PSK, 27500 ksym/s, FEC 3/4.
const Bytes kSatellite = {0x01, 0x17, 0x65, 0x99, 0x01, 0x92, 0xA2, 0x02, 0x75, 0x00, 0x03};
// 346 MHz, FEC outer 2, 64-QAM, 6900 ksym/s, FEC inner 5.
const Bytes kCable = {0x03, 0x46, 0x00, 0x00, 0xFF, 0xF2, 0x03, 0x00, 0x69, 0x00, 0x05};
const Bytes kTerrestrial = {0x03, 0x37, 0xF9, 0x80, 0x5F, 0x9D, 0x93, 0xFF, 0xFF, 0xFF, 0xFF};

Bytes Cut(const Bytes& body, size_t length) { return Bytes(body.begin(), body.begin() + static_cast<long>(length)); }

Bytes With(Bytes body, size_t at, int value)
{
    body[at] = static_cast<unsigned char>(value);
    return body;
}

std::string Satellite(const TCDescSatelliteDeliverySystem& d)
{
    return Join(d.Frequency(), d.OrbitalPosition(), d.WestEastFlag(), d.Polarization(), d.Modulation(),
                d.SymbolRate(), d.FecInner());
}

} // namespace

// Frequency, orbital position, west/east, polarization, modulation, symbol rate, FEC. The hook answers its fixed
// size whatever the body held.
TEST(DescSatelliteDeliverySystem, Bodies)
{
    auto make = [] { return new TCDescSatelliteDeliverySystem(0x43); };
    ExpectBodies(0x43, make, Satellite, {
        {kSatellite, "11765000 192 1 1 16 27500 2"},
        {With(kSatellite, 6, 0x00), "11765000 192 0 0 -1 27500 2"}, // horizontal, automatic
        {With(kSatellite, 6, 0x21), "11765000 192 0 1 7 27500 2"},  // vertical, QPSK
        {With(kSatellite, 6, 0x42), "11765000 192 0 0 16 27500 2"}, // circular left reads as horizontal
        {With(kSatellite, 6, 0xE3), "11765000 192 1 1 0 27500 2"},  // circular right reads as vertical, 16-QAM
        {With(kSatellite, 6, 0x9C), "11765000 192 1 0 -1 27500 2"}, // roll-off and system bits not kept
        {Cut(kSatellite, 10), "11765000 192 1 1 16 27500 -1", "inLen=10, outLen=11"},
        {Cut(kSatellite, 7), "11765000 192 1 1 16 0 -1", "inLen=7, outLen=11"},
        {Cut(kSatellite, 6), "11765000 192 0 -1 -1 0 -1", "inLen=6, outLen=11"},
        {Cut(kSatellite, 3), "11765000 0 0 -1 -1 0 -1", "inLen=3, outLen=11"},
        {Cut(kSatellite, 2), "0 0 0 -1 -1 0 -1", "inLen=2, outLen=11"},
    });
    const int fec[16] = {-1, 0, 1, 2, 3, 4, 10, 8, 9, 11, -1, -1, -1, -1, -1, 12};
    for (int code = 0; code < 16; ++code) {
        // The high nibble of the byte is the symbol rate's.
        auto d = Decode(make(), Desc(0x43, With(kSatellite, 10, 0x50 | code)));
        EXPECT_EQ(d->FecInner(), fec[code]) << code;
        EXPECT_EQ(d->SymbolRate(), 27500);
    }
    // Tags 0xE3 and 0xED come through the constructor and stay in the clone.
    ExpectClone(*Decode(new TCDescSatelliteDeliverySystem(0xE3), Desc(0xE3, kSatellite)));
}

// Frequency, FEC outer, modulation code, symbol rate in 100 sym/s and in ksym/s, FEC inner. The hook answers the
// descriptor's own length: no warning.
TEST(DescCableDeliverySystem, Bodies)
{
    auto make = [] { return new TCDescCableDeliverySystem(); };
    ExpectBodies(0x44, make, [](const TCDescCableDeliverySystem& d) {
        return Join(d.Frequency(), d.FecOuter(), d.ModulationCode(), d.SymbolRate100(), d.SymbolRate(), d.FecInner());
    }, {
        {kCable, "346000 2 3 69000 6900 5"},
        {{0x99, 0x99, 0x99, 0x99, 0xFF, 0xFF, 0x05, 0x99, 0x99, 0x99, 0x9F}, "9999999 15 5 9999999 999999 15"},
        {Cut(kCable, 10), "346000 2 3 0 0 0"},
        {Cut(kCable, 7), "346000 2 3 0 0 0"},
        {Cut(kCable, 6), "346000 2 0 0 0 0"},
        {Cut(kCable, 4), "346000 0 0 0 0 0"},
        {Cut(kCable, 3), "0 0 0 0 0 0"},
    });
    const int modulation[7] = {-1, 0, 15, 1, 2, 3, -1};
    for (int code : {0, 1, 2, 3, 4, 5, 6, 0xFF})
        EXPECT_EQ(Decode(make(), Desc(0x44, With(kCable, 6, code)))->Modulation(), code < 7 ? modulation[code] : -1);
}

// Centre frequency, bandwidth, constellation, hierarchy, code rates HP and LP, guard, mode, other frequency.
TEST(DescTerrestrialDeliverySystem, Bodies)
{
    ExpectBodies(0x5A, [] { return new TCDescTerrestrialDeliverySystem(); },
        [](const TCDescTerrestrialDeliverySystem& d) {
            return Join(d.CentreFrequency(), d.Bandwidth(), d.Constellation(), d.Hierarchy(), d.CodeRateHP(),
                        d.CodeRateLP(), d.GuardInterval(), d.TransmissionMode(), d.OtherFrequencyFlag());
        }, {
        {kTerrestrial, "54000000 2 2 3 5 4 2 1 1"},
        {Cut(kTerrestrial, 7), "54000000 2 2 3 5 4 2 1 1", "inLen=7, outLen=11"},
        {Cut(kTerrestrial, 6), "54000000 2 2 3 5 0 0 0 0", "inLen=6, outLen=11"},
        {Cut(kTerrestrial, 5), "54000000 2 0 0 0 0 0 0 0", "inLen=5, outLen=11"},
        {Cut(kTerrestrial, 3), "0 0 0 0 0 0 0 0 0", "inLen=3, outLen=11"},
    });
}

// Coding type, then the entries in MHz; the field is read as signed, and an index outside gives 0.
TEST(DescFrequencyList, Entries)
{
    auto make = [] { return new TCDescFrequencyList(); };
    ExpectBodies(0x62, make, [](const TCDescFrequencyList& d) {
        std::string s = Join(d.CodingType());
        for (int i = -1; i <= d.NumOfEntries(); ++i)
            s += " " + Join(d.CentreFrequency(i));
        return s;
    }, {
        {{0xFE, 0x02, 0xFA, 0xF0, 0x80, 0xFF, 0xFF, 0xFF, 0xF6}, "2 0 500 -0.0001 0"},
        {{0x03, 0x02, 0xFA, 0xF0, 0x80}, "3 0 500 0"},
        {{0x01, 0x02, 0xFA, 0xF0, 0x80, 0x01, 0x02}, "1 0 500 0", "inLen=7, outLen=5"},
        {{0x01, 0x02, 0xFA, 0xF0}, "1 0 0", "inLen=4, outLen=1"},
        {{0x01}, "1 0 0"},
        {{}, "0 0 0"},
    });
    // A second decode replaces the entries.
    auto d = Decode(make(), Desc(0x62, {0x01, 0, 0, 0, 1, 0, 0, 0, 2}));
    d->Parse(Desc(0x62, {0x01, 0, 0, 0, 1}).data());
    EXPECT_EQ(d->NumOfEntries(), 1);
}

namespace {

// plp_id 0x11, T2_system_id 0x2233, SISO/MISO 1, bandwidth code 1 (7 MHz), guard 5, mode 3, other frequency 1.
Bytes T2Head(bool tfs) { return {0x04, 0x11, 0x22, 0x33, 0x47, static_cast<unsigned char>(0xAE | (tfs ? 1 : 0))}; }

// Two cells without TFS: the first with two sub-cells, the second with none.
Bytes T2Cells()
{
    zumtest::ByteWriter w;
    w.Raw(T2Head(false));
    w.U16(0x0001).U32(0x0A0B0C0D).Begin8().U8(0x01).U32(0x11111111).U8(0x02).U32(0x22222222).End();
    w.U16(0x0002).U32(0x0E0F1011).Begin8().End();
    return w.Data();
}

// Tag in hex; plp_id, T2_system_id, SISO/MISO, bandwidth, guard, mode, other frequency, TFS; then in hex
// "cell:frequencies" and "cell/extension:frequency". The caller's maps are replaced, not merged into.
std::string T2(const TCDescT2SystemDelivery& d)
{
    std::map<unsigned short, std::vector<unsigned int>> cells{{0xFFFF, {}}};
    std::map<unsigned short, std::map<unsigned char, unsigned int>> subCells{{0xFFFF, {}}};
    d.GetCellIdMap(cells);
    d.GetSubCellIdMap(subCells);
    std::ostringstream s;
    s << std::hex << d.Tag() << ' ' << Join(d.PlpId(), d.T2SystemId(), d.SisoMiso(), d.Bandwidth(), d.GuardInterval(),
                                            d.TransmissionMode(), d.OtherFrequencyFlag(), d.TfsFlag());
    for (const auto& cell : cells) {
        s << ' ' << cell.first << ':';
        for (unsigned int f : cell.second)
            s << f << ',';
    }
    for (const auto& cell : subCells)
        for (const auto& sub : cell.second)
            s << ' ' << cell.first << '/' << int(sub.first) << ':' << sub.second;
    return s.str();
}

} // namespace

// What came before the end of the body stays; the maps grow over decodes of the same object.
TEST(DescT2SystemDelivery, Bodies)
{
    const Bytes full = T2Cells();
    Bytes overrun = full; // a second cell whose sub-cell loop claims more than is there
    overrun.back() = 5;
    zumtest::ByteWriter tfs, tfsCut, tfsNoSubLength;
    tfs.Raw(T2Head(true)).U16(0x0003).Begin8().U32(0xAAAAAAAA).U32(0xBBBBBBBB).End();
    tfs.Begin8().U8(0x07).U32(0xCCCCCCCC).U8(0x07).U32(0xDDDDDDDD).End();
    tfs.U16(0x0004).Begin8().U32(0xEEEEEEEE).End().Begin8().End();
    tfsCut.Raw(T2Head(true)).U16(0x0003).U8(8).U32(0xAAAAAAAA).U16(0xBBBB);
    tfsNoSubLength.Raw(T2Head(true)).U16(0x0003).U8(4).U32(0xAAAAAAAA);
    auto make = [] { return new TCDescT2SystemDelivery(); };
    ExpectBodies(0x7F, make, T2, {
        {full, "7f04 17 8755 1 2 5 3 1 0 1:a0b0c0d, 2:e0f1011, 1/1:11111111 1/2:22222222"},
        {tfs.Data(), "7f04 17 8755 1 2 5 3 1 1 3:aaaaaaaa,bbbbbbbb, 4:eeeeeeee, 3/7:dddddddd"},
        {overrun, "7f04 17 8755 1 2 5 3 1 0 1:a0b0c0d, 2:e0f1011, 1/1:11111111 1/2:22222222"},
        {Cut(full, 13), "7f04 17 8755 1 2 5 3 1 0 1:a0b0c0d,"},
        {Cut(full, 12), "7f04 17 8755 1 2 5 3 1 0 1:", "inLen=12, outLen=8"}, // no room for the sub-cell length
        {Cut(full, 9), "7f04 17 8755 1 2 5 3 1 0 1:", "inLen=9, outLen=8"},
        {Cut(full, 7), "7f04 17 8755 1 2 5 3 1 0", "inLen=7, outLen=6"},
        {Cut(full, 6), "7f04 17 8755 0 0 0 0 0 0", "inLen=6, outLen=4"},
        {Cut(full, 4), "7f04 17 8755 0 0 0 0 0 0"},
        {Cut(full, 2), "7f04 17 0 0 0 0 0 0 0"},
        {Cut(full, 1), "7f04 0 0 0 0 0 0 0 0"},
        {tfsCut.Data(), "7f04 17 8755 1 2 5 3 1 1 3:aaaaaaaa,", "inLen=15, outLen=13"},
        {tfsNoSubLength.Data(), "7f04 17 8755 1 2 5 3 1 1 3:", "inLen=13, outLen=8"},
        {{0x05, 0x11, 0x22, 0x33, 0x47, 0xAE, 0, 1}, "7f05 0 0 0 0 0 0 0 0", "inLen=8, outLen=0"},
    });
    auto d = Decode(make(), Desc(0x7F, tfs.Data()));
    d->Parse(Desc(0x7F, full).data());
    EXPECT_EQ(T2(*d), "7f04 17 8755 1 2 5 3 1 0 1:a0b0c0d, 2:e0f1011, 3:aaaaaaaa,bbbbbbbb, 4:eeeeeeee, "
                      "1/1:11111111 1/2:22222222 3/7:dddddddd");

    const int bandwidth[16] = {3, 2, 1, 0, 4, 5, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1};
    for (int code = 0; code < 16; ++code) {
        auto b = Decode(make(), Desc(0x7F, With(Cut(full, 7), 4, 0xC3 | (code << 2))));
        EXPECT_EQ(b->Bandwidth(), bandwidth[code]) << code;
        EXPECT_EQ(b->SisoMiso(), 3);
    }
}
