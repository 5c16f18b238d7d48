#include <gtest/gtest.h>

#include <cstdio>
#include <map>
#include <memory>
#include <vector>
#include <string>

#include "core/Descriptor.h"
#include "core/DescriptorHash.h"
#include "dvb/DescLocalTimeOffset.h"
#include "dvb/DescSatelliteDeliverySystem.h"
#include "dvb/DescT2SystemDelivery.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zumtest::Bytes;
using zumtest::Desc;

namespace {

// Decodes `raw` into `d`; the result of Parse goes to `parsed`.
template <class T>
std::unique_ptr<T> Decoded(T* d, const Bytes& raw, int* parsed = nullptr)
{
    const int n = d->Parse(raw.data());
    if (parsed)
        *parsed = n;
    return std::unique_ptr<T>(d);
}

std::string Mismatch(int tag, int inLen, int outLen)
{
    char line[96];
    std::snprintf(line, sizeof line, "[Warning] Descriptor[0x%x] length mismatch!inLen=%d, outLen=%d", tag, inLen,
                  outLen);
    return line;
}

// 11.765 GHz (the last two digits dropped), 19.2 E, vertical, 8PSK,
// 27500 ksym/s, FEC 3/4.
const Bytes kSatellite = {0x01, 0x17, 0x65, 0x99, 0x01, 0x92, 0xA2, 0x02, 0x75, 0x00, 0x03};
// 346 MHz, FEC outer 2, 64-QAM, 6900 ksym/s, FEC inner 5.
const Bytes kCable = {0x03, 0x46, 0x00, 0x00, 0xFF, 0xF2, 0x03, 0x00, 0x69, 0x00, 0x05};
const Bytes kTerrestrial = {0x03, 0x37, 0xF9, 0x80, 0x5F, 0x9D, 0x93, 0xFF, 0xFF, 0xFF, 0xFF};

} // namespace

TEST(DescSatelliteDeliverySystem, FullBody)
{
    zumtest::LogCapture log;
    int parsed = 0;
    auto d = Decoded(new TCDescSatelliteDeliverySystem(0x43), Desc(0x43, kSatellite), &parsed);
    EXPECT_EQ(parsed, 13);
    EXPECT_EQ(d->Tag(), 0x43);
    EXPECT_EQ(d->Frequency(), 11765000u);
    EXPECT_EQ(d->OrbitalPosition(), 192);
    EXPECT_EQ(d->WestEastFlag(), 1);
    EXPECT_EQ(d->Polarization(), 1);
    EXPECT_EQ(d->Modulation(), 16);
    EXPECT_EQ(d->SymbolRate(), 27500);
    EXPECT_EQ(d->FecInner(), 2);
    EXPECT_TRUE(log.Lines().empty());

    // The clone decodes its raw copy again and keeps the constructor's tag.
    std::unique_ptr<TCBaseDesc> clone(d->Fork());
    auto* sat = dynamic_cast<TCDescSatelliteDeliverySystem*>(clone.get());
    ASSERT_NE(sat, nullptr);
    EXPECT_EQ(sat->Frequency(), 11765000u);
    EXPECT_EQ(sat->FecInner(), 2);

    auto other = Decoded(new TCDescSatelliteDeliverySystem(0xE3), Desc(0xE3, kSatellite));
    EXPECT_EQ(other->Tag(), 0xE3);
    std::unique_ptr<TCBaseDesc> otherClone(other->Fork());
    EXPECT_EQ(otherClone->Tag(), 0xE3);
}

TEST(DescSatelliteDeliverySystem, FlagsByteMapping)
{
    struct Case {
        unsigned char flags;
        int westEast, polarization, modulation;
    } cases[] = {
        {0x00, 0, 0, -1}, // horizontal, automatic
        {0x21, 0, 1, 7},  // vertical, QPSK
        {0x42, 0, 0, 16}, // circular left reads as horizontal
        {0xE3, 1, 1, 0},  // circular right reads as vertical, 16-QAM
        {0x9C, 1, 0, -1}, // roll-off and modulation system bits are not kept
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(static_cast<int>(c.flags));
        Bytes body = kSatellite;
        body[6] = c.flags;
        auto d = Decoded(new TCDescSatelliteDeliverySystem(0x43), Desc(0x43, body));
        EXPECT_EQ(d->WestEastFlag(), c.westEast);
        EXPECT_EQ(d->Polarization(), c.polarization);
        EXPECT_EQ(d->Modulation(), c.modulation);
    }
}

TEST(DescSatelliteDeliverySystem, FecInnerMapping)
{
    const int expected[16] = {-1, 0, 1, 2, 3, 4, 10, 8, 9, 11, -1, -1, -1, -1, -1, 12};
    for (int code = 0; code < 16; ++code) {
        SCOPED_TRACE(code);
        Bytes body = kSatellite;
        body[10] = static_cast<unsigned char>(0x50 | code); // the high nibble is the symbol rate's
        auto d = Decoded(new TCDescSatelliteDeliverySystem(0x43), Desc(0x43, body));
        EXPECT_EQ(d->FecInner(), expected[code]);
        EXPECT_EQ(d->SymbolRate(), 27500);
    }
}

TEST(DescSatelliteDeliverySystem, ShortBodiesKeepWhatTheyHold)
{
    struct Case {
        int length;
        unsigned int frequency;
        int orbital, polarization, modulation, symbolRate, fec;
    } cases[] = {
        {2, 0, 0, -1, -1, 0, -1},
        {3, 11765000, 0, -1, -1, 0, -1},
        {6, 11765000, 192, -1, -1, 0, -1},
        {7, 11765000, 192, 1, 16, 0, -1},
        {10, 11765000, 192, 1, 16, 27500, -1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.length);
        zumtest::LogCapture log;
        int parsed = 0;
        auto d = Decoded(new TCDescSatelliteDeliverySystem(0x43),
                         Desc(0x43, Bytes(kSatellite.begin(), kSatellite.begin() + c.length)), &parsed);
        EXPECT_EQ(parsed, c.length + 2);
        EXPECT_EQ(d->Frequency(), c.frequency);
        EXPECT_EQ(d->OrbitalPosition(), c.orbital);
        EXPECT_EQ(d->Polarization(), c.polarization);
        EXPECT_EQ(d->Modulation(), c.modulation);
        EXPECT_EQ(d->SymbolRate(), c.symbolRate);
        EXPECT_EQ(d->FecInner(), c.fec);
        // The hook answers its fixed size whatever the body held.
        EXPECT_EQ(log.Count(Mismatch(0x43, c.length, 11)), 1);
    }
}

TEST(DescCableDeliverySystem, FullBody)
{
    zumtest::LogCapture log;
    auto d = Decoded(new TCDescCableDeliverySystem(), Desc(0x44, kCable));
    EXPECT_EQ(d->Tag(), 0x44);
    EXPECT_EQ(d->Frequency(), 346000u);
    EXPECT_EQ(d->FecOuter(), 2);
    EXPECT_EQ(d->ModulationCode(), 3);
    EXPECT_EQ(d->Modulation(), 1);
    EXPECT_EQ(d->SymbolRate100(), 69000u);
    EXPECT_EQ(d->SymbolRate(), 6900u);
    EXPECT_EQ(d->FecInner(), 5);
    EXPECT_TRUE(log.Lines().empty());

    std::unique_ptr<TCBaseDesc> clone(d->Fork());
    auto* cable = dynamic_cast<TCDescCableDeliverySystem*>(clone.get());
    ASSERT_NE(cable, nullptr);
    EXPECT_EQ(cable->SymbolRate100(), 69000u);
}

TEST(DescCableDeliverySystem, ModulationAndDigits)
{
    const struct {
        unsigned char code;
        int modulation;
    } modulations[] = {{0, -1}, {1, 0}, {2, 15}, {3, 1}, {4, 2}, {5, 3}, {6, -1}, {0xFF, -1}};
    for (const auto& m : modulations) {
        SCOPED_TRACE(static_cast<int>(m.code));
        Bytes body = kCable;
        body[6] = m.code;
        auto d = Decoded(new TCDescCableDeliverySystem(), Desc(0x44, body));
        EXPECT_EQ(d->ModulationCode(), m.code);
        EXPECT_EQ(d->Modulation(), m.modulation);
    }

    // Eight frequency digits in 100 Hz and seven symbol rate digits in 100 sym/s.
    const Bytes top = {0x99, 0x99, 0x99, 0x99, 0xFF, 0xFF, 0x05, 0x99, 0x99, 0x99, 0x9F};
    auto d = Decoded(new TCDescCableDeliverySystem(), Desc(0x44, top));
    EXPECT_EQ(d->Frequency(), 9999999u);
    EXPECT_EQ(d->FecOuter(), 15);
    EXPECT_EQ(d->SymbolRate100(), 9999999u);
    EXPECT_EQ(d->SymbolRate(), 999999u);
    EXPECT_EQ(d->FecInner(), 15);
}

TEST(DescCableDeliverySystem, ShortBodiesKeepWhatTheyHold)
{
    struct Case {
        int length;
        unsigned int frequency;
        int fecOuter, modulationCode;
        unsigned int symbolRate100;
        int fecInner;
    } cases[] = {
        {3, 0, 0, 0, 0, 0},
        {4, 346000, 0, 0, 0, 0},
        {6, 346000, 2, 0, 0, 0},
        {7, 346000, 2, 3, 0, 0},
        {10, 346000, 2, 3, 0, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.length);
        zumtest::LogCapture log;
        auto d = Decoded(new TCDescCableDeliverySystem(),
                         Desc(0x44, Bytes(kCable.begin(), kCable.begin() + c.length)));
        EXPECT_EQ(d->Frequency(), c.frequency);
        EXPECT_EQ(d->FecOuter(), c.fecOuter);
        EXPECT_EQ(d->ModulationCode(), c.modulationCode);
        EXPECT_EQ(d->SymbolRate100(), c.symbolRate100);
        EXPECT_EQ(d->FecInner(), c.fecInner);
        // The hook answers the descriptor's own length.
        EXPECT_TRUE(log.Lines().empty());
    }
}

TEST(DescTerrestrialDeliverySystem, FullAndShortBodies)
{
    struct Case {
        int length;
        unsigned int centre;
        int bandwidth, constellation, hierarchy, hp, lp, guard, mode, other;
    } cases[] = {
        {11, 0x0337F980, 2, 2, 3, 5, 4, 2, 1, 1},
        {7, 0x0337F980, 2, 2, 3, 5, 4, 2, 1, 1},
        {6, 0x0337F980, 2, 2, 3, 5, 0, 0, 0, 0},
        {5, 0x0337F980, 2, 0, 0, 0, 0, 0, 0, 0},
        {3, 0, 0, 0, 0, 0, 0, 0, 0, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.length);
        zumtest::LogCapture log;
        auto d = Decoded(new TCDescTerrestrialDeliverySystem(),
                         Desc(0x5A, Bytes(kTerrestrial.begin(), kTerrestrial.begin() + c.length)));
        EXPECT_EQ(d->Tag(), 0x5A);
        EXPECT_EQ(d->CentreFrequency(), c.centre);
        EXPECT_EQ(d->Bandwidth(), c.bandwidth);
        EXPECT_EQ(d->Constellation(), c.constellation);
        EXPECT_EQ(d->Hierarchy(), c.hierarchy);
        EXPECT_EQ(d->CodeRateHP(), c.hp);
        EXPECT_EQ(d->CodeRateLP(), c.lp);
        EXPECT_EQ(d->GuardInterval(), c.guard);
        EXPECT_EQ(d->TransmissionMode(), c.mode);
        EXPECT_EQ(d->OtherFrequencyFlag(), c.other);
        EXPECT_EQ(log.Count(Mismatch(0x5A, c.length, 11)), c.length == 11 ? 0 : 1);
    }
}

TEST(DescFrequencyList, Entries)
{
    struct Case {
        Bytes body;
        int codingType;
        std::vector<float> mhz;
        int hookResult;
    } cases[] = {
        // 500 MHz, then a negative number: the field is read as signed.
        {{0xFE, 0x02, 0xFA, 0xF0, 0x80, 0xFF, 0xFF, 0xFF, 0xF6}, 2, {500.0f, -0.0001f}, 9},
        {{0x03, 0x02, 0xFA, 0xF0, 0x80}, 3, {500.0f}, 5},
        // A partial entry is left undecoded.
        {{0x01, 0x02, 0xFA, 0xF0, 0x80, 0x01, 0x02}, 1, {500.0f}, 5},
        {{0x01, 0x02, 0xFA, 0xF0}, 1, {}, 1},
        {{0x01}, 1, {}, 1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.body.size());
        zumtest::LogCapture log;
        auto d = Decoded(new TCDescFrequencyList(), Desc(0x62, c.body));
        EXPECT_EQ(d->Tag(), 0x62);
        EXPECT_EQ(d->CodingType(), c.codingType);
        ASSERT_EQ(d->NumOfEntries(), static_cast<int>(c.mhz.size()));
        for (size_t i = 0; i < c.mhz.size(); ++i)
            EXPECT_FLOAT_EQ(d->CentreFrequency(static_cast<int>(i)), c.mhz[i]);
        EXPECT_EQ(d->CentreFrequency(d->NumOfEntries()), 0.0f);
        EXPECT_EQ(d->CentreFrequency(-1), 0.0f);
        const int inLen = static_cast<int>(c.body.size());
        EXPECT_EQ(log.Count(Mismatch(0x62, inLen, c.hookResult)), inLen == c.hookResult ? 0 : 1);
    }

    // A clone holds the same entries; a second decode replaces them.
    auto d = Decoded(new TCDescFrequencyList(), Desc(0x62, cases[0].body));
    std::unique_ptr<TCBaseDesc> clone(d->Fork());
    EXPECT_FLOAT_EQ(static_cast<TCDescFrequencyList*>(clone.get())->CentreFrequency(0), 500.0f);
    d->Parse(Desc(0x62, cases[1].body).data());
    EXPECT_EQ(d->NumOfEntries(), 1);
}

TEST(DeliverySystemDescriptors, LengthZeroRunsNoHook)
{
    struct Case {
        TCBaseDesc* desc;
        int tag;
    } cases[] = {
        {new TCDescSatelliteDeliverySystem(0x43), 0x43}, {new TCDescCableDeliverySystem(), 0x44},
        {new TCDescTerrestrialDeliverySystem(), 0x5A},   {new TCDescFrequencyList(), 0x62},
        {new TCDescT2SystemDelivery(), 0x7F},            {new TCDescLocalTimeOffset(), 0x58},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.tag);
        std::unique_ptr<TCBaseDesc> d(c.desc);
        zumtest::LogCapture log;
        EXPECT_EQ(d->Parse(Desc(c.tag, {}).data()), 2);
        EXPECT_TRUE(log.Lines().empty());
        EXPECT_EQ(d->Length(), 2);
    }
    auto sat = Decoded(new TCDescSatelliteDeliverySystem(0x43), Desc(0x43, {}));
    EXPECT_EQ(sat->Frequency(), 0u);
    EXPECT_EQ(sat->Polarization(), -1);
    EXPECT_EQ(sat->Modulation(), -1);
    EXPECT_EQ(sat->FecInner(), -1);
    auto cable = Decoded(new TCDescCableDeliverySystem(), Desc(0x44, {}));
    EXPECT_EQ(cable->Modulation(), -1);
    EXPECT_EQ(cable->SymbolRate(), 0u);
    auto list = Decoded(new TCDescFrequencyList(), Desc(0x62, {}));
    EXPECT_EQ(list->NumOfEntries(), 0);
    auto t2 = Decoded(new TCDescT2SystemDelivery(), Desc(0x7F, {}));
    EXPECT_EQ(t2->Tag(), -1);
    EXPECT_EQ(t2->T2SystemId(), 0);
    auto lto = Decoded(new TCDescLocalTimeOffset(), Desc(0x58, {}));
    EXPECT_EQ(lto->NumOfEntries(), 0);
}

// The SI factory's rows, reached through a loop of an NIT in a DVB country
// and in an ISDB one (whose SI factory falls back to the DVB rows).
TEST(DeliverySystemDescriptors, FactoryRows)
{
    const Bytes loop = zumtest::Concat({
        Desc(0x43, kSatellite),
        Desc(0x44, kCable),
        Desc(0x58, Bytes(13, 0)),
        Desc(0x5A, kTerrestrial),
        Desc(0x62, {0x03, 0x02, 0xFA, 0xF0, 0x80}),
        Desc(0x7F, {0x04, 0x00, 0x12, 0x34}),
    });
    for (const char* country : {"GBR", "BRA"}) {
        for (unsigned char tableId : {0x40, 0x41, 0x73}) {
            SCOPED_TRACE(std::string(country) + " " + std::to_string(tableId));
            zumtest::BinderScope binder;
            binder->countryCode = ZumPackCode(country);
            TCDescriptorHash hash;
            TCDescriptor(ZUMHandle()).Parse(loop.data(), static_cast<int>(loop.size()), hash, tableId);
            ASSERT_EQ(hash.NumOfDescriptors(), 6);
            auto* sat = dynamic_cast<TCDescSatelliteDeliverySystem*>(hash.Descriptor(0x43, 0));
            ASSERT_NE(sat, nullptr);
            EXPECT_EQ(sat->SymbolRate(), 27500);
            EXPECT_EQ(sat->TableId(), tableId);
            auto* cable = dynamic_cast<TCDescCableDeliverySystem*>(hash.Descriptor(0x44, 0));
            ASSERT_NE(cable, nullptr);
            EXPECT_EQ(cable->Frequency(), 346000u);
            EXPECT_NE(dynamic_cast<TCDescLocalTimeOffset*>(hash.Descriptor(0x58, 0)), nullptr);
            EXPECT_NE(dynamic_cast<TCDescTerrestrialDeliverySystem*>(hash.Descriptor(0x5A, 0)), nullptr);
            EXPECT_NE(dynamic_cast<TCDescFrequencyList*>(hash.Descriptor(0x62, 0)), nullptr);
            auto* t2 = dynamic_cast<TCDescT2SystemDelivery*>(hash.Descriptor(0x7F04, 0));
            ASSERT_NE(t2, nullptr);
            EXPECT_EQ(t2->T2SystemId(), 0x1234);
        }
    }
}

namespace {

using CellMap = std::map<unsigned short, std::vector<unsigned int>>;
using SubCellMap = std::map<unsigned short, std::map<unsigned char, unsigned int>>;

// plp_id 0x11, T2_system_id 0x2233, SISO/MISO 1, bandwidth code 1 (7 MHz),
// guard 5, mode 3, other frequency 1; `tfs` in bit 0.
Bytes T2Head(bool tfs)
{
    return {0x04, 0x11, 0x22, 0x33, 0x47, static_cast<unsigned char>(0xAE | (tfs ? 1 : 0))};
}

// Two cells without TFS: the first with two sub-cells, the second with none.
Bytes T2Cells()
{
    zumtest::ByteWriter w;
    w.Raw(T2Head(false));
    w.U16(0x0001).U32(0x0A0B0C0D).Begin8().U8(0x01).U32(0x11111111).U8(0x02).U32(0x22222222).End();
    w.U16(0x0002).U32(0x0E0F1011).Begin8().End();
    return w.Data();
}

Bytes Cut(const Bytes& body, size_t length)
{
    return Bytes(body.begin(), body.begin() + static_cast<long>(length));
}

CellMap Cells(const TCDescT2SystemDelivery& d)
{
    CellMap m{{0xFFFF, {}}}; // replaced, not merged into
    d.GetCellIdMap(m);
    return m;
}

SubCellMap SubCells(const TCDescT2SystemDelivery& d)
{
    SubCellMap m{{0xFFFF, {}}};
    d.GetSubCellIdMap(m);
    return m;
}

} // namespace

TEST(DescT2SystemDelivery, FullBodyWithoutTfs)
{
    zumtest::LogCapture log;
    auto d = Decoded(new TCDescT2SystemDelivery(), Desc(0x7F, T2Cells()));
    EXPECT_EQ(d->Tag(), 0x7F04);
    EXPECT_EQ(d->PlpId(), 0x11);
    EXPECT_EQ(d->T2SystemId(), 0x2233);
    EXPECT_EQ(d->SisoMiso(), 1);
    EXPECT_EQ(d->Bandwidth(), 2);
    EXPECT_EQ(d->GuardInterval(), 5);
    EXPECT_EQ(d->TransmissionMode(), 3);
    EXPECT_EQ(d->OtherFrequencyFlag(), 1);
    EXPECT_EQ(d->TfsFlag(), 0);
    EXPECT_EQ(Cells(*d), (CellMap{{1, {0x0A0B0C0D}}, {2, {0x0E0F1011}}}));
    EXPECT_EQ(SubCells(*d), (SubCellMap{{1, {{1, 0x11111111}, {2, 0x22222222}}}}));
    EXPECT_TRUE(log.Lines().empty());

    std::unique_ptr<TCBaseDesc> clone(d->Fork());
    auto* t2 = dynamic_cast<TCDescT2SystemDelivery*>(clone.get());
    ASSERT_NE(t2, nullptr);
    EXPECT_EQ(clone->Tag(), 0x7F04);
    EXPECT_EQ(Cells(*t2), Cells(*d));
    EXPECT_EQ(SubCells(*t2), SubCells(*d));
}

TEST(DescT2SystemDelivery, TfsCellsAndRepeatedExtensions)
{
    zumtest::ByteWriter w;
    w.Raw(T2Head(true));
    w.U16(0x0003).Begin8().U32(0xAAAAAAAA).U32(0xBBBBBBBB).End();
    w.Begin8().U8(0x07).U32(0xCCCCCCCC).U8(0x07).U32(0xDDDDDDDD).End();
    w.U16(0x0004).Begin8().U32(0xEEEEEEEE).End().Begin8().End();
    zumtest::LogCapture log;
    auto d = Decoded(new TCDescT2SystemDelivery(), Desc(0x7F, w.Data()));
    EXPECT_EQ(d->TfsFlag(), 1);
    EXPECT_EQ(Cells(*d), (CellMap{{3, {0xAAAAAAAA, 0xBBBBBBBB}}, {4, {0xEEEEEEEE}}}));
    EXPECT_EQ(SubCells(*d), (SubCellMap{{3, {{7, 0xDDDDDDDD}}}}));
    EXPECT_TRUE(log.Lines().empty());

    // The maps grow over a second decode of the same object.
    d->Parse(Desc(0x7F, T2Cells()).data());
    EXPECT_EQ(d->TfsFlag(), 0);
    EXPECT_EQ(Cells(*d),
              (CellMap{{1, {0x0A0B0C0D}}, {2, {0x0E0F1011}}, {3, {0xAAAAAAAA, 0xBBBBBBBB}}, {4, {0xEEEEEEEE}}}));
    EXPECT_EQ(SubCells(*d).size(), 2u);
}

TEST(DescT2SystemDelivery, BandwidthMapping)
{
    const int expected[16] = {3, 2, 1, 0, 4, 5, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1};
    for (int code = 0; code < 16; ++code) {
        SCOPED_TRACE(code);
        Bytes body = T2Head(false);
        body[4] = static_cast<unsigned char>(0xC3 | (code << 2));
        body.push_back(0x00); // the flags are read from seven bytes on
        auto d = Decoded(new TCDescT2SystemDelivery(), Desc(0x7F, body));
        EXPECT_EQ(d->Bandwidth(), expected[code]);
        EXPECT_EQ(d->SisoMiso(), 3);
    }
}

TEST(DescT2SystemDelivery, ShortBodiesKeepWhatCameBefore)
{
    const Bytes full = T2Cells();
    // A second cell whose sub-cell loop claims more than is there.
    Bytes overrun = full;
    overrun.back() = 5;
    zumtest::ByteWriter tfs;
    tfs.Raw(T2Head(true)).U16(0x0003).U8(8).U32(0xAAAAAAAA).U16(0xBBBB);
    zumtest::ByteWriter tfsNoSubLength;
    tfsNoSubLength.Raw(T2Head(true)).U16(0x0003).U8(4).U32(0xAAAAAAAA);

    struct Case {
        const char* name;
        Bytes body;
        int plp, systemId, bandwidth;
        CellMap cells;
        SubCellMap subCells;
        int hookResult;
    } cases[] = {
        {"extension byte only", Cut(full, 1), 0, 0, 0, {}, {}, 1},
        {"plp only", Cut(full, 2), 0x11, 0, 0, {}, {}, 2},
        {"ids only", Cut(full, 4), 0x11, 0x2233, 0, {}, {}, 4},
        {"flags present but under seven bytes", Cut(full, 6), 0x11, 0x2233, 0, {}, {}, 4},
        {"one byte behind the flags", Cut(full, 7), 0x11, 0x2233, 2, {}, {}, 6},
        {"cell id without room for a frequency", Cut(full, 9), 0x11, 0x2233, 2, {{1, {}}}, {}, 8},
        {"sub-cell loop past the end", Cut(full, 13), 0x11, 0x2233, 2, {{1, {0x0A0B0C0D}}}, {}, 13},
        {"second cell's sub-cell loop past the end",
         overrun,
         0x11,
         0x2233,
         2,
         {{1, {0x0A0B0C0D}}, {2, {0x0E0F1011}}},
         {{1, {{1, 0x11111111}, {2, 0x22222222}}}},
         30},
        {"TFS frequency past the end", tfs.Data(), 0x11, 0x2233, 2, {{3, {0xAAAAAAAA}}}, {}, 13},
        {"TFS without the sub-cell length", tfsNoSubLength.Data(), 0x11, 0x2233, 2, {{3, {}}}, {}, 8},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        zumtest::LogCapture log;
        int parsed = 0;
        auto d = Decoded(new TCDescT2SystemDelivery(), Desc(0x7F, c.body), &parsed);
        const int inLen = static_cast<int>(c.body.size());
        EXPECT_EQ(parsed, inLen + 2);
        EXPECT_EQ(d->Tag(), 0x7F04);
        EXPECT_EQ(d->PlpId(), c.plp);
        EXPECT_EQ(d->T2SystemId(), c.systemId);
        EXPECT_EQ(d->Bandwidth(), c.bandwidth);
        EXPECT_EQ(Cells(*d), c.cells);
        EXPECT_EQ(SubCells(*d), c.subCells);
        EXPECT_EQ(log.Count(Mismatch(0x7F04, inLen, c.hookResult)), inLen == c.hookResult ? 0 : 1);
    }
}

TEST(DescT2SystemDelivery, OtherExtensionStoresNothing)
{
    zumtest::LogCapture log;
    auto d = Decoded(new TCDescT2SystemDelivery(), Desc(0x7F, {0x05, 0x11, 0x22, 0x33, 0x47, 0xAE, 0, 1}));
    EXPECT_EQ(d->Tag(), 0x7F05);
    EXPECT_EQ(d->PlpId(), 0);
    EXPECT_EQ(d->T2SystemId(), 0);
    EXPECT_EQ(d->GuardInterval(), 0);
    EXPECT_EQ(Cells(*d), CellMap{});
    EXPECT_EQ(log.Count(Mismatch(0x7F05, 8, 0)), 1);
}
