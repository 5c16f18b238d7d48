#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "OobTestKit.h"
#include "atsc/MultipleStringStruct.h"
#include "atsc/NITParser.h"
#include "atsc/NTTParser.h"
#include "support/LogCapture.h"
#include "support/TestEnvironment.h"

using zumtest::Bytes;
using zumtest::Desc;

namespace {

zum_platform::BinderSettings Usa(unsigned preferred = 0)
{
    zum_platform::BinderSettings s;
    s.countryCode = ZumPackCode("USA");
    s.preferredLanguage = preferred;
    return s;
}

// CDS record: carriers, spacing in 10 or 125 kHz units, first frequency likewise.
struct Cds {
    unsigned carriers, spacingUnit, spacing, frequencyUnit, first;
    Bytes descriptors = {};
};

Bytes Nit(const std::vector<Cds>& records, unsigned firstIndex, unsigned count = ~0u)
{
    zumtest::ByteWriter w;
    w.U8(0).U8(firstIndex).U8(count == ~0u ? static_cast<unsigned>(records.size()) : count).U8(0x01);
    for (const Cds& r : records) {
        w.U8(r.carriers).U16((r.spacingUnit << 15) | r.spacing).U16((r.frequencyUnit << 15) | r.first);
        w.U8(r.descriptors.empty() ? 0 : 1).Raw(r.descriptors);
    }
    return zumtest::OobSection(0xC2, w.Data());
}

Bytes Mms(unsigned firstIndex, const std::vector<unsigned>& modulations)
{
    zumtest::ByteWriter w;
    w.U8(0).U8(firstIndex).U8(static_cast<unsigned>(modulations.size())).U8(0x02);
    for (unsigned m : modulations)
        w.U8(0x21).U8(0x80 | m).U24(0x1ABCDE).U8(0xFF).U8(0);
    return zumtest::OobSection(0xC2, w.Data());
}

float Slot(const TCNITParser& p, int reference)
{
    float f = 0;
    return p.CDSRefence(static_cast<unsigned char>(reference), &f) ? f : -1.0f;
}

} // namespace

TEST(NITParser, CarrierDefinitionsFillSlots)
{
    zumtest::BinderScope binder(Usa());
    TCNITParser p(ZUMHandle{});
    // 3 carriers at 10 from 100 MHz every 6 MHz; a record of 0 carriers; then index 13.
    p.Parse(0x1FFC, Nit({{3, 1, 48, 1, 800}, {0, 0, 0, 0, 0}, {1, 0, 0, 0, 15000}}, 10).data());
    EXPECT_EQ(Slot(p, 9), -1.0f);
    EXPECT_EQ(Slot(p, 10), 100.0f);
    EXPECT_EQ(Slot(p, 11), 106.0f);
    EXPECT_EQ(Slot(p, 12), 112.0f);
    EXPECT_EQ(Slot(p, 13), 150.0f);
    EXPECT_EQ(p.CDSRecords().size(), 2u);
    // Reference 0, 125 kHz units; carriers beyond slot 255 are dropped.
    p.Parse(0x1FFC, Nit({{1, 0, 0, 1, 1200}}, 0).data());
    EXPECT_EQ(Slot(p, 0), 150.0f);
    p.Parse(0x1FFC, Nit({{3, 1, 48, 1, 800, Desc(0x80, {1})}}, 254).data());
    EXPECT_EQ(Slot(p, 255), 106.0f);
    EXPECT_EQ(p.CDSRecords().at(254)->NumOfDescriptors(), 1);
    // Records cut by the section's end end the loop.
    TCNITParser q(ZUMHandle{});
    q.Parse(0x1FFC, Nit({{1, 0, 0, 0, 15000}}, 0, 4).data());
    EXPECT_EQ(q.CDSRecords().size(), 1u);
}

TEST(NITParser, ChangedCarrierOrModulationResets)
{
    zumtest::BinderScope binder(Usa());
    zumtest::LogCapture log;
    TCNITParser p(ZUMHandle{});
    p.Parse(0x1FFC, Nit({{1, 0, 0, 0, 15000}}, 3).data());
    EXPECT_FALSE(p.Parse(0x1FFC, Nit({{1, 0, 0, 0, 16000}}, 3).data()));
    EXPECT_EQ(log.Count("NIT CDS Version Changed"), 1);
    EXPECT_EQ(Slot(p, 3), -1.0f);

    unsigned char modulation = 0;
    p.Parse(0x1FFC, Mms(0, {8, 16}).data());
    ASSERT_TRUE(p.MMSRefence(1, &modulation));
    EXPECT_EQ(modulation, 16);
    const auto* mms = static_cast<const TCNITParserMMS*>(p.MMSRecords().at(0).get());
    EXPECT_EQ(mms->TransmissionSystem(), 2);
    EXPECT_EQ(mms->InnerCodingMode(), 1);
    EXPECT_EQ(mms->SplitBitstreamMode(), 1);
    EXPECT_EQ(mms->SymbolRate(), 0x1ABCDEu);
    EXPECT_FALSE(p.MMSRefence(2, &modulation));
    EXPECT_FALSE(p.Parse(0x1FFC, Mms(1, {8}).data()));
    EXPECT_EQ(log.Count("MMS CDS Version Changed"), 1);
    EXPECT_FALSE(p.MMSRefence(0, &modulation));
}

TEST(NITParser, CompletesOnTheThirdRepeatWithBothSubtables)
{
    zumtest::BinderScope binder(Usa());
    TCNITParser p(ZUMHandle{});
    const Bytes cds = Nit({{2, 1, 48, 1, 800}}, 0);
    const Bytes mms = Mms(0, {8});
    // While a table grows the record list starts anew; repeats count once both are stable.
    std::vector<bool> results;
    for (const Bytes* s : {&cds, &cds, &mms, &mms, &cds, &cds, &cds})
        results.push_back(p.Parse(0x1FFC, s->data()));
    EXPECT_EQ(results, (std::vector<bool>{false, false, false, false, false, true, false}));
}

namespace {

struct Src {
    unsigned app, id;
    std::string name;
};

Bytes Ntt(const char* language, const std::vector<Src>& records, unsigned subtype = 6)
{
    zumtest::ByteWriter w;
    w.U8(0).Text(language).U8(subtype).U8(static_cast<unsigned>(records.size()));
    for (const Src& r : records) {
        zumtest::ByteWriter name;
        name.U8(0).U8(static_cast<unsigned>(r.name.size())).Text(r.name);
        w.U8(r.app << 7).U16(r.id).U8(static_cast<unsigned>(name.Size())).Raw(name.Data()).U8(0);
    }
    return zumtest::OobSection(0xC3, w.Data());
}

} // namespace

TEST(NTTParser, AcceptsTheViewersLanguagesOnly)
{
    // Spanish preferred; the country's default is English.
    zumtest::BinderScope binder(Usa(ZumPackCode("spa")));
    struct Case {
        const char* language;
        bool taken;
    } cases[] = {{"spa", true}, {"eng", true}, {"fre", false}, {"esl", false}};
    for (const Case& c : cases) {
        TCNTTParser p(ZUMHandle{});
        p.Parse(0x1FFC, Ntt(c.language, {{0, 0x1234, "KXYZ"}}).data());
        EXPECT_EQ(p.SNS()->Size(), c.taken ? 1u : 0u) << c.language;
        EXPECT_EQ(p.Language(), c.taken ? ZumPackCode(c.language) : 0u) << c.language;
    }
}

TEST(NTTParser, SourceNamesAndCompletion)
{
    zumtest::BinderScope binder(Usa());
    zumtest::LogCapture log;
    TCNTTParser p(ZUMHandle{});
    const Bytes s = Ntt("eng", {{1, 0x0007, "App"}, {0, 0x1234, "KXYZ"}});
    std::vector<bool> results;
    for (int i = 0; i < 6; ++i)
        results.push_back(p.Parse(0x1FFC, s.data()));
    EXPECT_EQ(results, (std::vector<bool>{false, false, false, false, true, false}));
    ASSERT_EQ(p.SNS()->Size(), 2u);
    EXPECT_EQ(p.SNS()->GetNttRecord(0)->Id(), 0x1234) << "source records first";
    ASSERT_NE(p.SNS()->ApplicationId(7), nullptr);
    EXPECT_EQ(p.SNS()->SourceId(7), nullptr);
    TCMultilingualTextString name;
    ASSERT_TRUE(p.SNS()->SourceId(0x1234)->GetSourceName(&name));
    ASSERT_EQ(name.NumOfMultilingualText(), 1u);
    EXPECT_EQ(name.MultilingualText(0)->Length(), 4);
    EXPECT_EQ(log.Count("NTT Parser Receiving..........  Receiving Count = 4 "), 1);

    // A new source after completion drops the store, which can then complete again.
    EXPECT_FALSE(p.Parse(0x1FFC, Ntt("eng", {{0, 0x2000, "New"}}).data()));
    EXPECT_EQ(p.SNS()->Size(), 0u);
    // Another name for a held id drops the store too; a wrong subtype is refused.
    TCNTTParser q(ZUMHandle{});
    q.Parse(0x1FFC, Ntt("eng", {{0, 0x1234, "KXYZ"}}).data());
    q.Parse(0x1FFC, Ntt("eng", {{0, 0x1234, "KABC"}}).data());
    EXPECT_EQ(q.SNS()->Size(), 0u);
    EXPECT_FALSE(q.Parse(0x1FFC, Ntt("eng", {}, 5).data()));
    EXPECT_EQ(log.Count("NTT Parser Receiving..........  Return Fasle SubType Error "), 1);
}
