#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "AtscCapture.h"
#include "atsc/DescContentAdvisory.h"
#include "atsc/DescDaylightSavingTime.h"
#include "atsc/EASParser.h"
#include "atsc/RRTParser.h"
#include "atsc/STTParser.h"
#include "core/Descriptor.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zumtest::Bytes;

namespace {

zum_platform::BinderSettings Usa()
{
    zum_platform::BinderSettings s;
    s.countryCode = ZumPackCode("USA");
    return s;
}

Bytes Psip(unsigned tableId, unsigned extension, unsigned version, const Bytes& body, unsigned section = 0,
           unsigned last = 0)
{
    zumtest::SectionHeader header = zumtest::LongHeader(tableId, extension, version, section, last);
    header.protocolVersion = 0;
    zumtest::SectionBuilder b(header);
    b.Raw(body);
    return b.Build();
}

Bytes OobStt(unsigned time, unsigned offset, const Bytes& descriptors)
{
    zumtest::SectionHeader header;
    header.tableId = 0xC5;
    header.syntax = false;
    zumtest::SectionBuilder b(header);
    b.U8(0).U8(0).U32(time).U8(offset).Raw(descriptors).Raw({0, 0, 0, 0});
    return b.Build();
}

// The sections of one PID in a file of 188-byte packets.
std::vector<Bytes> TsSections(const std::string& file, unsigned pid)
{
    std::ifstream in(std::string(ZUM_CAPTURES_DIR) + "/" + file, std::ios::binary);
    const Bytes ts((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    std::vector<Bytes> sections;
    Bytes pending;
    for (size_t at = 0; at + 188 <= ts.size(); at += 188) {
        const uint8_t* p = &ts[at];
        if (p[0] != 0x47 || static_cast<unsigned>(((p[1] & 0x1F) << 8) | p[2]) != pid || !(p[3] & 0x10))
            continue;
        size_t payload = 4 + ((p[3] & 0x20) ? 1 + p[4] : 0);
        if (p[1] & 0x40) {
            pending.clear();
            payload += 1 + p[payload];
        } else if (pending.empty()) {
            continue;
        }
        if (payload < 188)
            pending.insert(pending.end(), p + payload, p + 188);
        if (pending.size() >= 3) {
            const size_t size = 3 + (((pending[1] & 0x0F) << 8) | pending[2]);
            if (pending.size() >= size) {
                sections.emplace_back(pending.begin(), pending.begin() + static_cast<long>(size));
                pending.clear();
            }
        }
    }
    return sections;
}

} // namespace

TEST(PsipSTT, InBandAndOutOfBandLayouts)
{
    zumtest::BinderScope binder(Usa());
    zumtest::UseReleasedImage();
    const Bytes dst = zumtest::Desc(0x96, {0x80 | 14, 2});
    TCSTTParser stt(ZUMHandle{});
    stt.Initialize();
    EXPECT_TRUE(stt.Parse(0x1FFB, Psip(0xCD, 0, 0, {0x4E, 0x1A, 0x2B, 0x3C, 18, 0x80 | 14, 2}).data()));
    EXPECT_TRUE(stt.Parse(0x1FFB, Psip(0xCD, 0, 0, zumtest::Concat({Bytes{0, 0, 0, 9, 17, 0x00, 0x00}, dst})).data()));
    EXPECT_EQ(stt.SystemTime(), 9u); // the second of two
    EXPECT_EQ(stt.GPSUTCOffset(), 17);
    EXPECT_EQ(stt.DaylightSavings(), 0);
    // In band, tag 0x96 is no PSIP row.
    EXPECT_EQ(stt.NumOfDescriptors(0x96), 1);
    EXPECT_EQ(dynamic_cast<TCDescDaylightSavingTime*>(stt.Descriptor(0x96, 0)), nullptr);
    // Too short for its fixed part: refused, nothing read.
    EXPECT_FALSE(stt.Parse(0x1FFB, Psip(0xCD, 0, 0, {1, 2, 3}).data()));

    TCOOBSTTParser oob(ZUMHandle{});
    oob.Initialize();
    EXPECT_TRUE(oob.Parse(0x1FFC, OobStt(0x12345678, 18, dst).data()));
    EXPECT_EQ(oob.SystemTime(), 0x12345678u);
    EXPECT_EQ(oob.GPSUTCOffset(), 18);
    EXPECT_EQ(oob.DaylightSavings(), 0);
    const auto* ds = dynamic_cast<TCDescDaylightSavingTime*>(oob.Descriptor(0x96, 0));
    ASSERT_NE(ds, nullptr);
    EXPECT_EQ(ds->DSStatus(), 1);
    EXPECT_EQ(ds->DSDayOfMonth(), 14);
    EXPECT_EQ(ds->DSHour(), 2);
    oob.Initialize();
    EXPECT_EQ(oob.SystemTime(), 0u);
    EXPECT_EQ(oob.NumOfDescriptors(), 0);

    const std::vector<Bytes> capture = atsctest::CaptureSections(0xCD);
    if (capture.empty())
        return;
    ASSERT_TRUE(stt.Parse(0x1FFB, capture[0].data()));
    EXPECT_GT(stt.SystemTime(), 1000000000u); // after 2011
    EXPECT_GE(stt.GPSUTCOffset(), 15);
}

TEST(PsipEAS, KeepsTheLastNewSectionWhole)
{
    TCEASParser eas(ZUMHandle{});
    eas.Initialize();
    unsigned char buffer[64];
    int length = sizeof buffer;
    EXPECT_FALSE(eas.GetSection(buffer, &length));
    const Bytes first = Psip(0xD8, 0, 1, {0, 1, 'W', 'X', 'R'});
    EXPECT_TRUE(eas.Parse(0x1FFB, first.data()));
    EXPECT_FALSE(eas.Parse(0x1FFB, Psip(0xD8, 0, 1, {9, 9}).data())); // a repeat of the version: kept as it was
    length = static_cast<int>(first.size()) - 1;
    EXPECT_FALSE(eas.GetSection(buffer, &length));
    length = static_cast<int>(first.size());
    ASSERT_TRUE(eas.GetSection(buffer, &length));
    EXPECT_EQ(Bytes(buffer, buffer + length), first);
    const Bytes second = Psip(0xD8, 0, 2, {0, 2});
    EXPECT_TRUE(eas.Parse(0x1FFB, second.data()));
    length = sizeof buffer;
    ASSERT_TRUE(eas.GetSection(buffer, &length));
    EXPECT_EQ(length, static_cast<int>(second.size()));
}

TEST(PsipRRT, RegionFiveWithDimensionsAndValues)
{
    zumtest::BinderScope binder(Usa());
    zumtest::LogCapture log;
    const Bytes name = {1, 'e', 'n', 'g', 1, 0, 0, 2, 'U', 'S'};           // 10 bytes
    const Bytes shortText = {1, 'e', 'n', 'g', 0, 0, 0, 0};                // 8 bytes: no structure
    zumtest::ByteWriter body;
    body.Begin8().Raw(name).End().U8(2);
    body.Begin8().Raw(shortText).End().U8(0xF0 | 0x10 | 2);                // graduated, two values
    body.Begin8().Raw(name).End().Begin8().Raw(name).End();
    body.Begin8().End().Begin8().Raw(shortText).End();
    body.Begin8().Raw(name).End().U8(0xE0);                                // no values
    body.Begin16(10, 0xFC00).Raw(zumtest::Desc(0x87, {0xC0})).End();

    TCRRTParser rrt(ZUMHandle{});
    rrt.Initialize();
    EXPECT_TRUE(rrt.Parse(0x1FFB, Psip(0xCA, 0xFF01, 0, body.Data()).data()));
    EXPECT_EQ(rrt.RRTInstance(RRT_REGION_US), nullptr);
    EXPECT_TRUE(rrt.Parse(0x1FFB, Psip(0xCA, 0xFF05, 0, body.Data()).data()));
    EXPECT_FALSE(rrt.Parse(0x1FFB, Psip(0xCA, 0xFF05, 0, body.Data()).data()));
    const TCRRTInstance* region = rrt.RRTInstance(RRT_REGION_KEPT);
    ASSERT_NE(region, nullptr);
    EXPECT_EQ(region->RatingRegionNameLength(), 10);
    ASSERT_NE(region->RatingRegionNameText(), nullptr);
    ASSERT_EQ(region->NumOfDimension(), 2u);
    const TCRRTItemDimension* d0 = region->RRTItemDimension(0);
    EXPECT_EQ(d0->DimensionNameText(), nullptr);
    EXPECT_EQ(d0->GraduatedScale(), 1);
    ASSERT_EQ(d0->NumOfAbbrev(), 2u);
    EXPECT_NE(d0->RRTItemAbbrev(0)->AbbrevRatingValueText(), nullptr);
    EXPECT_EQ(d0->RRTItemAbbrev(1)->AbbrevRatingValueLength(), 0);
    EXPECT_EQ(d0->RRTItemAbbrev(1)->RatingValueText(), nullptr);
    EXPECT_EQ(d0->RRTItemAbbrev(2), nullptr);
    EXPECT_EQ(region->RRTItemDimension(1)->NumOfAbbrev(), 0u);
    EXPECT_EQ(region->NumOfDescriptors(0x87), 1);
    EXPECT_NE(region->CRC(), 0u);

    // A value whose text runs past the section: the walk stops at the section's end.
    Bytes cut = Psip(0xCA, 0xFF05, 1, body.Data());
    cut[9 + 1 + name.size() + 1 + 1 + shortText.size() + 1] = 0xFF;
    log.Clear();
    EXPECT_TRUE(rrt.Parse(0x1FFB, cut.data()));
    EXPECT_TRUE(log.Contains("TCRRTItemDimension::Parse error... parsed len = "));
    EXPECT_TRUE(log.Contains("TCRRTInstance::t_Parse error... parsed len = "));
    EXPECT_EQ(region->NumOfDimension(), 0u);

    const std::vector<Bytes> capture = TsSections("tsduck_tsduck-test__test-052.ts", 0x1FFB);
    for (const Bytes& s : capture)
        if (s[0] == 0xCA) {
            TCRRTParser real(ZUMHandle{});
            real.Initialize();
            EXPECT_TRUE(real.Parse(0x1FFB, s.data()));
            // Region 1 on air: answered, not kept.
            EXPECT_EQ(s[4], 0x01);
            EXPECT_EQ(real.RRTInstance(RRT_REGION_US), nullptr);
        }
}

TEST(ContentAdvisory, BroadcastBytes)
{
    struct Case {
        const char* name;
        Bytes body;
        int consumed, regions;
        std::vector<int> pairs; // region, dimension, value of each pair of region 0
        int descLength;
    };
    const Bytes desc = {1, 'e', 'n', 'g', 1, 0, 0, 4, 'T', 'V', '-', 'G'};
    const Case cases[] = {
        {"no regions", {0xC0}, 1, 0, {}, 0},
        {"two pairs and a text", zumtest::Concat({Bytes{0xC1, 1, 2, 0, 0xF3, 1, 0xF1, 12}, desc}), 20, 1, {1, 0, 3, 1, 1}, 12},
        {"no dimensions", {0xC2, 1, 0, 0, 2, 0, 0}, 7, 2, {1}, 0},
        {"pairs past the end", {0xC1, 1, 3, 0, 1}, 10, 1, {1, 0, 1}, 0},
        {"text past the end", {0xC1, 1, 0, 20, 1, 'e'}, 24, 1, {1}, 20},
    };
    for (const Case& c : cases) {
        TCDescContentAdvisory d;
        const Bytes raw = zumtest::Desc(0x87, c.body);
        d.Parse(raw.data());
        EXPECT_EQ(d.CurrentService(), TCDescContentAdvisory::OTHERS) << c.name;
        EXPECT_EQ(d.RatingRegionCount(), c.regions) << c.name;
        if (c.regions == 0)
            continue;
        EXPECT_EQ(d.RatingRegion(0), c.pairs[0]) << c.name;
        const int pairs = static_cast<int>(c.pairs.size() - 1) / 2;
        EXPECT_EQ(d.RatingDemensions(0), pairs) << c.name;
        for (int j = 0; j < pairs; ++j) {
            EXPECT_EQ(d.RatingDimensionJ(0, j), c.pairs[1 + 2 * j]) << c.name;
            EXPECT_EQ(d.RatingValue(0, j), c.pairs[2 + 2 * j]) << c.name;
        }
        EXPECT_EQ(d.RatingDescLength(0), c.descLength) << c.name;
        EXPECT_EQ(d.GetRatingDescText(0) != nullptr, c.descLength > 0) << c.name;
        EXPECT_EQ(d.RatingValue(0, pairs), 0) << c.name;
        EXPECT_EQ(d.GetRatingDescText(5), nullptr) << c.name;
        std::unique_ptr<TCBaseDesc> fork(d.Fork());
        EXPECT_EQ(static_cast<TCDescContentAdvisory*>(fork.get())->RatingRegionCount(), c.regions) << c.name;
    }
    TCDescContentAdvisory never;
    EXPECT_EQ(never.Fork(), nullptr);
    // An empty body in a loop is never decoded, yet a copy of its container keeps it.
    zumtest::BinderScope binder(Usa());
    const Bytes loop = zumtest::Desc(0x87, {});
    TCDescriptorHash hash, copy;
    TCDescriptor(ZUMHandle{}).Parse(loop.data(), static_cast<int>(loop.size()), hash, 0xCB);
    copy = hash;
    EXPECT_EQ(copy.NumOfDescriptors(0x87), 1);
    EXPECT_TRUE(copy == hash);
}

TEST(ContentAdvisory, RatingStrings)
{
    zumtest::UseReleasedImage();
    struct Case {
        std::string text;
        std::vector<int> values; // region, then the value of each group
    };
    const Case cases[] = {
        {"1 {0 'TV-14'}{1 'D'}{2 'L'}{3 'S'}{4 'V'}", {1, 4, 1, 1, 1, 1}},
        {"1 {0 'TV-PGX'}{5 'TV-Y7'}{5 'TV-Y7X'}{5 'TV-Y7 '}{5 'TV-Y'}{6 'FV'}", {1, 3, 2, 0, 2, 1, 1}},
        {"1 {7 'PG-13'}{7 'PG'}{7 'N/A'}{7 'NC-17'}{7 'NR'}{7 'X'}{7 'R'}{7 'G'}{0 'None'}", {1, 4, 3, 1, 6, 8, 7, 5, 2, 1}},
        {"2 {0 'C8+'}{0 'C'}{0 'E'}{0 'G'}{0 'PG'}{0 '14+'}{0 '18+'}{1 '13+'}{1 '16'}{1 '8+'}{3 'G'}", {2, 2, 1, 0, 3, 4, 5, 6, 3, 4, 2, 0}},
        {"3 {0 'TV-14'}{1 ''}", {3, 0, 0}},
        {"1 {9 'X'}{0 'TV-MA'}", {1, 0, 5}},
    };
    for (const Case& c : cases) {
        TCDescContentAdvisory d;
        ASSERT_TRUE(d.ParseATSC3({c.text}, 1)) << c.text;
        EXPECT_EQ(d.RatingRegion(0), c.values[0]) << c.text;
        ASSERT_EQ(d.RatingDemensions(0), c.values.size() - 1) << c.text;
        for (size_t j = 1; j < c.values.size(); ++j)
            EXPECT_EQ(d.RatingValue(0, static_cast<int>(j - 1)), c.values[j]) << c.text << " group " << j;
        std::unique_ptr<TCBaseDesc> fork(d.Fork());
        EXPECT_EQ(static_cast<TCDescContentAdvisory*>(fork.get())->RatingValue(0, 0), d.RatingValue(0, 0));
    }
    zumtest::LogCapture log;
    TCDescContentAdvisory d;
    EXPECT_FALSE(d.ParseATSC3(std::vector<std::string>(11, "1 {0 'TV-G'}"), 11));
    EXPECT_EQ(log.Count("[TCDescContentAdvisory::ParseATSC3] String Count is too large number."), 1);
    EXPECT_EQ(d.CurrentService(), TCDescContentAdvisory::ATSC3);
    EXPECT_TRUE(d.ParseATSC3(std::vector<std::string>(10, "1 {0 'TV-G'}"), 10));
    EXPECT_EQ(d.RatingRegionCount(), 10);
    EXPECT_FALSE(d.ParseATSC3({"1 TV-G", "x"}, 2));
    EXPECT_EQ(log.Count("[TCDescContentAdvisory::ParseATSC3] No dimensions"), 1);
    EXPECT_EQ(d.RatingRegionCount(), 0);
    EXPECT_TRUE(d.ParseATSC3({"x {0 'TV-G'}"}, 1));
    EXPECT_TRUE(log.Contains("ratingRegion[72] is wrong"));
    EXPECT_TRUE(log.Contains("] Region[1] Dim[0] Val[TV-G:2]"));
    EXPECT_TRUE(d.ParseATSC3({}, 0));
    std::unique_ptr<TCBaseDesc> empty(d.Fork());
    ASSERT_NE(empty, nullptr);
    log.Clear();
    d.ParseATSC3({"1 {0 'TV-G'}"}, 1);
    d.Dump();
    EXPECT_TRUE(log.Contains("m_ratingDimensionJ:0, m_ratingValue:2"));
    EXPECT_TRUE(log.Contains("m_curSvc:0"));
}
