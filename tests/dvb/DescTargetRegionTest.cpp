#include <gtest/gtest.h>

#include <string>
#include <typeindex>

#include "DescLoopProbe.h"
#include "core/DescExtension.h"
#include "dvb/DescCRID.h"
#include "dvb/DescImageIcon.h"
#include "dvb/DescSatelliteDeliverySystem.h"
#include "dvb/DescServiceProminence.h"
#include "dvb/DescTargetRegion.h"

using namespace svctest;
using zumtest::Concat;

namespace {

std::string Cells(const TCDescNetworkChangeNotify& d)
{
    std::string out = Join(d.NumOfCellData());
    TCDescNetworkChangeNotify::_TTCellData cell;
    for (unsigned i = 0; d.GetCellData(i, cell); ++i) {
        out += " | " + Join(cell.cellId, cell.loopLength);
        for (const auto& c : cell.changes)
            out += " (" + Join(c.networkChangeId, c.networkChangeVersion, c.startTime, c.changeDuration,
                               c.receiverCategory, c.invariantTSPresent, c.changeType, c.messageId,
                               c.invariantTSTransportStreamId, c.invariantTSOriginalNetworkId) + ")";
    }
    return out;
}

// A change of 12 bytes: start MJD 0xACD5 at 00:00:01, one hour and a half, then the flags byte.
Bytes Change(UChar id, UChar flags, const Bytes& invariant = {})
{
    return Concat({{id, 3, 0xAC, 0xD5, 0x00, 0x00, 0x01, 0x01, 0x30, 0x00, flags, 9}, invariant});
}

Bytes Cell(unsigned cellId, const Bytes& changes, int loopLength = -1)
{
    const UChar length = static_cast<UChar>(loopLength < 0 ? changes.size() : static_cast<size_t>(loopLength));
    return Concat({{static_cast<UChar>(cellId >> 8), static_cast<UChar>(cellId), length}, changes});
}

template <class D>
std::string Regions(const D& d)
{
    std::string out = Join(d.Size(), d.IsValid());
    for (unsigned i = 0; i < d.Size() + 1; ++i) {
        unsigned country = 0, depth = 0;
        UChar primary = 0, secondary = 0;
        UShort tertiary = 0;
        bool found;
        std::string name;
        if constexpr (std::is_same<D, TCDescTargetRegionName>::value) {
            UChar buffer[64];
            unsigned size = 3;
            found = d.GetRegion(i, buffer, size, country, depth, primary, secondary, tertiary);
            name = found ? std::string(buffer, buffer + size) : "";
        } else {
            found = d.GetRegion(i, country, depth, primary, secondary, tertiary);
        }
        if (found)
            out += " | " + Join(Code(country), depth, primary, secondary, tertiary) + (name.empty() ? "" : " " + name);
    }
    return out;
}

std::string Prominence(const TCDescServiceProminence& d)
{
    std::string out = Join(d.SOGIs().size(), d.PrivateData().size());
    for (const auto& entry : d.SOGIs()) {
        const auto& s = entry.second;
        out += " | " + Join(entry.first, s.sogiFlag, s.serviceId, s.sogiPriority);
        for (const auto& r : s.targetRegions)
            out += " (" + Join(Code(r.countryCode), r.regionDepth, r.primaryRegionCode, r.secondaryRegionCode,
                               r.tertiaryRegionCode) + ")";
    }
    return out;
}

} // namespace

TEST(DescNetworkChangeNotify, CellsAndChanges)
{
    ExpectBodies(0x7F, [] { return new TCDescNetworkChangeNotify(); }, Cells, {
        {{0x07}, "0"},
        // Category 5 is stored as 2, change types 5 and 13 as 12, type 9 as 9.
        {Concat({{0x07}, Cell(0x0102, Concat({Change(1, 0xA5), Change(2, 0x0D), Change(3, 0x29)}))}),
         "1 | 258 36 (1 3 86401 5400 2 0 12 9 0 0) (2 3 86401 5400 0 0 12 9 0 0) (3 3 86401 5400 1 0 9 9 0 0)"},
        {Concat({{0x07}, Cell(7, Change(1, 0x10, {0x00, 0x05, 0x00, 0x06}))}),
         "1 | 7 16 (1 3 86401 5400 0 1 0 9 5 6)"},
        {Concat({{0x07}, Cell(7, Bytes(11, 0))}), "0", "inLen=15, outLen=4"},
        // The loop runs past the body: it is cut there, and the change behind it is not handed out.
        {Concat({{0x07}, Cell(7, Concat({Change(1, 0), {1, 2}}), 40)}), "1 | 7 40 (1 3 86401 5400 0 0 0 9 0 0)"},
        {{0x07, 0x00}, "0", "inLen=2, outLen=1"},
        {{0x08, 0x00, 0x01, 12}, "0", "inLen=4, outLen=0"},
    });
}

TEST(DescMessage, TextCopy)
{
    auto d = Decode(new TCDescMessage(), Desc(0x7F, {0x08, 5, 'e', 'n', 'g', 'H', 'i', '!'}));
    EXPECT_EQ(Join(d->MessageId(), Code(d->Language())), "5 eng");
    UChar buffer[8] = {};
    UShort size = 2;
    EXPECT_FALSE(d->TextChar(buffer, size));
    EXPECT_EQ(Join(size, std::string(buffer, buffer + 3)), std::string("2 Hi") + '\0');
    size = 8;
    EXPECT_TRUE(d->TextChar(buffer, size));
    EXPECT_EQ(std::string(buffer, buffer + size), "Hi!");
    zumtest::LogCapture log;
    EXPECT_FALSE(d->TextChar(nullptr, size));
    EXPECT_TRUE(log.Contains("pData"));
    auto empty = Decode(new TCDescMessage(), Desc(0x7F, {0x08, 5, 'e', 'n', 'g'}));
    size = 8;
    EXPECT_FALSE(empty->TextChar(buffer, size));
    EXPECT_EQ(size, 0);
}

TEST(DescTargetRegion, EntriesDepthsAndCountry)
{
    ExpectBodies(0x7F, [] { return new TCDescTargetRegion(); }, Regions<TCDescTargetRegion>, {
        {{0x09, 'G', 'B', 'R', 0x01, 1, 0x02, 1, 2, 0x03, 1, 2, 0x01, 0x00}, "3 1 | GBR 1 1 0 0 | GBR 2 1 2 0 | GBR 3 1 2 256"},
        // Depth 0 in the second entry.
        {{0x09, 'G', 'B', 'R', 0x01, 1, 0x00, 2}, "1 0"},
        // A country in the last entry stands for all.
        {{0x09, 'G', 'B', 'R', 0x01, 1, 0x05, 'F', 'R', 'A', 2}, "2 1 | FRA 1 1 0 0 | FRA 1 2 0 0"},
        {{0x09, 'G', 'B', 'R', 0x01, 1, 0x03, 1, 2, 0x01}, "1 0"},
        {{0x09, 'G', 'B'}, "0 0"},
        {{0x0A, 'G', 'B', 'R'}, "0 0", "inLen=4, outLen=0"},
    });
}

TEST(DescTargetRegionName, NamesCutToTheCallersSize)
{
    ExpectBodies(0x7F, [] { return new TCDescTargetRegionName(); }, Regions<TCDescTargetRegionName>, {
        {{0x0A, 'G', 'B', 'R', 'e', 'n', 'g', 0x45, 'W', 'a', 'l', 'e', 's', 3, 0x82, 'N', 'I', 4, 5},
         "2 1 | GBR 1 3 0 0 Wal | GBR 2 4 5 0 NI"},
        {{0x0A, 'G', 'B', 'R', 'e', 'n', 'g', 0x02, 'N', 'I', 4}, "0 0"},
        {{0x0A, 'G', 'B', 'R', 'e', 'n', 'g', 0x45, 'W', 'a'}, "0 0"},
    });
}

TEST(DescRelocatedTS, FirstCableDeliveryOfEachPair)
{
    const Bytes cableA = Desc(0x44, {0x03, 0x46, 0x00, 0x00, 0xFF, 0xF2, 0x03, 0x06, 0x87, 0x50, 0x05});
    const Bytes cableB = Desc(0x44, {0x04, 0x46, 0x00, 0x00, 0xFF, 0xF2, 0x03, 0x06, 0x87, 0x50, 0x05});
    auto show = [](const TCDescRelocatedTS& d) {
        TCDescRelocatedTS::CableDeliveryMap info;
        d.GetCableDeliveryInfo(info);
        std::string out = Join(info.size());
        for (const auto& e : info)
            out += " | " + Join(e.first.first, e.first.second, e.second->Frequency());
        return out;
    };
    ExpectBodies(0xAA, [] { return new TCDescRelocatedTS(); }, show, {
        {Concat({{0, 1, 0, 2, 29}, Desc(0x40, {'x'}), cableA, cableB, {0, 3, 0, 4, 13}, cableB}),
         "2 | 1 2 346000 | 3 4 446000"},
        {Concat({{0, 1, 0, 2, 13}, cableA, {0, 1, 0, 2, 13}, cableB}), "1 | 1 2 346000"},
        {Concat({{0, 1, 0, 2, 13}, Bytes(cableA.begin(), cableA.end() - 1)}), "0"},
        {{0, 1, 0, 2}, "0"},
    });
}

TEST(DescSOProperties, ValueAndTwoTexts)
{
    auto show = [](const TCDescSOProperties& d) { return Join(d.Value(), d.FirstText(), d.SecondText()); };
    ExpectBodies(0xE2, [] { return new TCDescSOProperties(); }, show, {
        {{7, 2, 'a', 'b', 1, 'c'}, "7 ab c"},
        {{7, 2, 'a', 'b', 5, 'c'}, "7 ab c"},
        {{7, 9}, "0  "},
    });
}

TEST(DescServiceProminence, SOGIRecordsByService)
{
    ExpectBodies(0x7F, [] { return new TCDescServiceProminence(); }, Prominence, {
        {{0x21, 4, 0x0F, 0xFF}, "0 0", "inLen=4, outLen=0"},
        {{0x22, 1, 0x0F, 0xFF, 9}, "0 3"},
        {{0x22, 2, 0x0F, 0xFF}, "1 0 | 0 0 0 4095"},
        // Services 0x0103 then 0x0102: keys in numeric order; a second 0x0103 replaces the first.
        {{0x22, 18, 0xA0, 0x01, 0x01, 0x03, 0x20, 0x02, 0x01, 0x02, 0x60, 0x05, 0x01, 0x03, 3, 0x02, 7, 8, 0xEE},
         "2 1 | 258 0 258 2 | 259 0 259 5 (- 2 7 8 0)"},
        {{0x22, 12, 0x40, 0x01, 11, 0x07, 'G', 'B', 'R', 1, 2, 0x01, 0x00, 0x01, 4}, "1 0 | 0 0 0 1 (GBR 3 1 2 256) (- 1 4 0 0)"},
        {{0x22, 9, 0x40, 0x01, 9, 0x07, 'G', 'B', 'R', 1}, "1 0 | 0 0 0 1 (GBR 3 1 0 0)"},
    });
}

// Every extension tag with a class is made by the extension factory, in the SI and program tables alike.
TEST(DescTargetRegion, FactoryRows)
{
    ExpectRows({
        {"DEU", 0x42, Desc(0x7F, {0x00, 0x01, 0x00}), 0x7F00, typeid(TCDescImageIcon)},
        {"DEU", 0x02, Desc(0x7F, {0x07}), 0x7F07, typeid(TCDescNetworkChangeNotify)},
        {"DEU", 0x40, Desc(0x7F, {0x08}), 0x7F08, typeid(TCDescMessage)},
        {"DEU", 0x40, Desc(0x7F, {0x09}), 0x7F09, typeid(TCDescTargetRegion)},
        {"DEU", 0x40, Desc(0x7F, {0x0A}), 0x7F0A, typeid(TCDescTargetRegionName)},
        {"DEU", 0x42, Desc(0x7F, {0x13}), 0x7F13, typeid(TCDescURILinkage)},
        {"GBR", 0x42, Desc(0x7F, {0x22}), 0x7F22, typeid(TCDescServiceProminence)},
        {"DEU", 0x42, Desc(0x7F, {0x23}), 0x7F23, typeid(TCDescExtension)},
        {"DEU", 0x4E, Desc(0x76, {0x01, 0, 0}), 0x76, typeid(TCDescCRID)},
        {"DEU", 0x4E, Desc(0x73, {'a'}), 0x73, typeid(TCDescDefaultAuthority)},
        {"DEU", 0x02, Desc(0xB6, {1, 0, 0}), 0xB6, typeid(TCDescContentIdentifier)},
        {"USA", 0xC8, Desc(0xE2, {1, 0, 0}), 0xE2, typeid(TCDescSOProperties)},
        {"DEU", 0x40, Concat({Desc(0x5F, {0x4A, 0x4F, 0x4A, 0x4F}), Desc(0xAA, {})}), 0xAA, typeid(TCDescRelocatedTS)},
    });
}
