#include <gtest/gtest.h>

#include <list>
#include <vector>

#include "OobTestKit.h"
#include "atsc/DescRevisionDetection.h"
#include "atsc/SVCTParser.h"
#include "support/LogCapture.h"
#include "support/TestEnvironment.h"

using zumtest::Bytes;
using zumtest::Concat;
using zumtest::Desc;

namespace {

struct VC {
    unsigned number, sourceId, cds = 1, program = 1, mms = 2;
    unsigned transport = 0, channelType = 0, path = 0, app = 0, scrambled = 0, video = 0;
    Bytes descriptors = {};
    int descriptorCount = -1; // -1: as many as `descriptors` holds
};

Bytes VcmBody(const std::vector<VC>& records, bool withDescriptors = false, unsigned count = ~0u,
              const Bytes& tableDescriptors = {}, unsigned activation = 0)
{
    zumtest::ByteWriter w;
    w.U8(0x01).U8(0x00).U16(0x1000); // protocol 1, medium 0 / subtype 0, VCT id
    w.U8(withDescriptors ? 0x20 : 0).U8(0).U32(activation);
    w.U8(count == ~0u ? static_cast<unsigned>(records.size()) : count);
    for (const VC& r : records) {
        w.U16(0xF000 | r.number).U8((r.app << 7) | (r.path << 5) | (r.transport << 4) | r.channelType);
        w.U16(r.sourceId).U8(r.cds);
        if (r.transport == 0)
            w.U16(r.program).U8(r.mms);
        else
            w.U8((r.scrambled << 7) | r.video).U16(0);
        if (withDescriptors) {
            unsigned n = 0;
            for (size_t i = 0; i < r.descriptors.size(); i += r.descriptors[i + 1] + 2)
                ++n;
            w.U8(r.descriptorCount >= 0 ? static_cast<unsigned>(r.descriptorCount) : n).Raw(r.descriptors);
        }
    }
    w.Raw(tableDescriptors);
    return w.Data();
}

Bytes Vcm(const std::vector<VC>& records, bool withDescriptors = false, unsigned count = ~0u,
          const Bytes& tableDescriptors = {})
{
    return zumtest::OobSection(0xC4, VcmBody(records, withDescriptors, count, tableDescriptors));
}

Bytes Subtable(unsigned subtype, const Bytes& payload)
{
    zumtest::ByteWriter w;
    w.U8(0x01).U8(subtype).U16(0x1000).Raw(payload);
    return zumtest::OobSection(0xC4, w.Data());
}

zum_platform::BinderSettings Usa()
{
    zum_platform::BinderSettings s;
    s.countryCode = ZumPackCode("USA");
    return s;
}

} // namespace

TEST(SVCTParser, VirtualChannelRecordsDecode)
{
    zumtest::BinderScope binder(Usa());
    TCSVCTParser p(ZUMHandle{});
    const Bytes d = Desc(0xA0, {0x01, 'e', 'n', 'g', 0x01, 0x00, 0x00, 0x02, 'H', 'i'});
    p.Parse(0x1FFC, Vcm({{102, 0x1234, 3, 0x0102, 5, 0, 2, 1, 1, 0, 0, d},
                         {205, 0x4321, 7, 9, 9, 1, 1, 0, 0, 1, 3, Concat({d, Desc(0x80, {})})}},
                        true).data());
    ASSERT_NE(p.VCM(), nullptr);
    ASSERT_EQ(p.VCM()->VCSize(), 2);
    const TCSVCTParserVC* a = p.VCM()->VC(0);
    EXPECT_EQ(a->VirtualChannelNumber(), 102);
    EXPECT_EQ(a->SourceId(), 0x1234);
    EXPECT_EQ(a->CDSReference(), 3);
    EXPECT_EQ(a->ProgramNumber(), 0x0102);
    EXPECT_EQ(a->MMSReference(), 5);
    EXPECT_EQ(a->ChannelType(), 2);
    EXPECT_EQ(a->PathSelect(), 1);
    EXPECT_EQ(a->ApplicationVirtualChannel(), 1);
    EXPECT_EQ(a->NumOfDescriptors(0xA0), 1);
    const TCSVCTParserVC* b = p.VCM()->VC(1);
    EXPECT_EQ(b->TransportType(), 1);
    EXPECT_EQ(b->ProgramNumber(), 0);
    EXPECT_EQ(b->MMSReference(), 0);
    EXPECT_EQ(b->Scrambled(), 1);
    EXPECT_EQ(b->VideoStandard(), 3);
    EXPECT_EQ(b->DescriptorCount(), 2);
    EXPECT_EQ(b->NumOfDescriptors(), 2);
    EXPECT_EQ(p.VCM()->VC(2), nullptr);
    EXPECT_EQ(p.VCTId(), 0x1000);
    EXPECT_EQ(p.ProtocolVersion(), 1);
}

TEST(SVCTParser, RecordLoopBoundaries)
{
    zumtest::BinderScope binder(Usa());
    const Bytes d = Desc(0x80, {1, 2, 3});
    struct Case {
        const char* name;
        Bytes section;
        int records;
    } cases[] = {
        {"count 0", Vcm({}), 0},
        {"count above what the section holds", Vcm({{1, 1}, {2, 2}}, false, 5), 2},
        {"descriptor count past the section", Vcm({{1, 1, 1, 1, 1, 0, 0, 0, 0, 0, 0, d}, {2, 2, 1, 1, 1, 0, 0, 0, 0, 0, 0, d, 9}}, true), 1},
        {"largest channel number", Vcm({{0x0FFF, 0xFFFF}}), 1},
    };
    for (const Case& c : cases) {
        TCSVCTParser p(ZUMHandle{});
        p.Parse(0x1FFC, c.section.data());
        EXPECT_EQ(p.VCM() ? p.VCM()->VCSize() : -1, c.records) << c.name;
    }
    TCSVCTParser p(ZUMHandle{});
    p.Parse(0x1FFC, Vcm({{0x0FFF, 0xFFFF}}).data());
    EXPECT_EQ(p.VCM()->VC(0)->VirtualChannelNumber(), 0x0FFF);
    EXPECT_EQ(p.VCM()->VC(0)->SourceId(), 0xFFFF);
}

TEST(SVCTParser, CompletesByRepetitionOnce)
{
    zumtest::BinderScope binder(Usa());
    TCSVCTParser p(ZUMHandle{});
    const Bytes s = Vcm({{102, 0x1234}, {103, 0x1235}});
    zumtest::LogCapture log;
    std::vector<bool> results;
    for (int i = 0; i < 5; ++i)
        results.push_back(p.Parse(0x1FFC, s.data()));
    EXPECT_EQ(results, (std::vector<bool>{false, false, false, true, false}));
    EXPECT_EQ(log.Count("TCSVCTParser::t_Parse t_CheckVersion is false"), 4);
    EXPECT_EQ(log.Count("TCOOBSectionParser::t_CheckExist Return false ... Table ID = 0xc4 , List Size = 0"), 1);
    EXPECT_EQ(log.Count("TCOOBSectionParser::t_CheckExist Return true ... Table ID = 0xc4 , List Size = 1"), 4);
    EXPECT_EQ(log.Count("SVCT type=0, count=0, completeCNT=3, check_ver=3"), 1);
}

TEST(SVCTParser, GrowthChangeAndEquality)
{
    zumtest::BinderScope binder(Usa());
    // Two sections of new channels are both recorded; three repeats complete.
    TCSVCTParser p(ZUMHandle{});
    const Bytes s1 = Vcm({{102, 0x1234}});
    const Bytes s2 = Vcm({{103, 0x1235}});
    p.Parse(0x1FFC, s1.data());
    p.Parse(0x1FFC, s2.data());
    std::vector<bool> results;
    for (int i = 0; i < 4; ++i)
        results.push_back(p.Parse(0x1FFC, (i % 2 ? s2 : s1).data()));
    EXPECT_EQ(results, (std::vector<bool>{false, false, true, false}));
    EXPECT_EQ(p.VCM()->VCSize(), 2);

    // Known key with another CDS reference: everything dropped.
    TCSVCTParser q(ZUMHandle{});
    q.Parse(0x1FFC, Vcm({{102, 0x1234, 3}}).data());
    EXPECT_FALSE(q.Parse(0x1FFC, Vcm({{102, 0x1234, 4}}).data()));
    EXPECT_EQ(q.VCM(), nullptr);

    // Program number is not compared; one number with two sources is two
    // entries, in the order of the signed key (source ids from 0x8000 first).
    TCSVCTParser r(ZUMHandle{});
    r.Parse(0x1FFC, Vcm({{102, 0x1234, 3, 7}, {102, 0x9999}}).data());
    r.Parse(0x1FFC, Vcm({{102, 0x1234, 3, 8}}).data());
    ASSERT_NE(r.VCM(), nullptr);
    ASSERT_EQ(r.VCM()->VCSize(), 2);
    EXPECT_EQ(r.VCM()->VC(0)->SourceId(), 0x9999);
    EXPECT_EQ(r.VCM()->VC(1)->ProgramNumber(), 7);
}

TEST(SVCTParser, NewChannelAfterCompletionStartsAgain)
{
    zumtest::BinderScope binder(Usa());
    TCSVCTParser p(ZUMHandle{});
    const Bytes s = Vcm({{102, 0x1234}});
    for (int i = 0; i < 4; ++i)
        p.Parse(0x1FFC, s.data());
    // Another section with known content sets status 1; then a new key drops all.
    p.Parse(0x1FFC, Vcm({{102, 0x1234, 1, 9}}).data());
    EXPECT_FALSE(p.Parse(0x1FFC, Vcm({{104, 0x2000}}).data()));
    EXPECT_EQ(p.VCM(), nullptr);
    std::vector<bool> results;
    for (int i = 0; i < 4; ++i)
        results.push_back(p.Parse(0x1FFC, s.data()));
    EXPECT_EQ(results, (std::vector<bool>{false, false, false, true}));
}

TEST(SVCTParser, RevisionDetectionDecides)
{
    zumtest::BinderScope binder(Usa());
    TCSVCTParser p(ZUMHandle{});
    const Bytes s0 = Vcm({{102, 0x1234}}, false, ~0u, Desc(0x93, {0xE4, 0x00, 0x01}));
    const Bytes s1 = Vcm({{103, 0x1235}}, false, ~0u, Desc(0x93, {0xE4, 0x01, 0x01}));
    EXPECT_FALSE(p.Parse(0x1FFC, s0.data()));
    auto* rd = dynamic_cast<TCDescRevisionDetection*>(p.Descriptor(0x93, 0));
    ASSERT_NE(rd, nullptr);
    EXPECT_EQ(rd->TableVersion(), 4);
    EXPECT_EQ(rd->LastSectionNumber(), 1);
    // The first revision descriptor of the loop is the one consulted: it
    // names section 0 again, which the tracker holds, so repetition decides.
    EXPECT_FALSE(p.Parse(0x1FFC, s1.data()));
    EXPECT_EQ(p.NumOfDescriptors(0x93), 2);
    // Last section 0 leaves the decision to repetition.
    TCSVCTParser q(ZUMHandle{});
    EXPECT_FALSE(q.Parse(0x1FFC, Vcm({{102, 0x1234}}, false, ~0u, Desc(0x93, {0xE4, 0, 0})).data()));
}

TEST(SVCTParser, DefinedAndInverseChannelMaps)
{
    zumtest::BinderScope binder(Usa());
    TCSVCTParser p(ZUMHandle{});
    const Bytes dcm = Subtable(1, {0xF0, 0x64, 0x01, 0x83});
    EXPECT_FALSE(p.Parse(0x1FFC, dcm.data()));
    EXPECT_FALSE(p.Parse(0x1FFC, dcm.data()));
    EXPECT_EQ(p.DCM(), nullptr);

    // ICM: count 0 is status 4; records by running index; a changed record drops the map.
    TCSVCTParser q(ZUMHandle{});
    q.Parse(0x1FFC, Subtable(2, {0xF0, 0x0A, 0x02, 0x12, 0x34, 0xF0, 0x66, 0x12, 0x35, 0xF0, 0x67}).data());
    ASSERT_NE(q.ICM(), nullptr);
    ASSERT_EQ(q.ICM()->RecordSize(), 2);
    EXPECT_EQ(q.ICM()->RecordByIndex(11)->sourceId, 0x1235);
    EXPECT_EQ(q.ICM()->RecordByIndex(11)->virtualChannelNumber, 0x67);
    TCSVCTParserICM icm;
    int status = 0;
    const unsigned char empty[] = {0xF0, 0x00, 0x80};
    EXPECT_EQ(icm.Parse(empty, &status, 3), 3);
    EXPECT_EQ(status, 4);
    const unsigned char one[] = {0xF0, 0x00, 0x01, 0x00, 0x01, 0x00, 0x05};
    EXPECT_EQ(icm.Parse(one, &status, 7), 7);
    EXPECT_EQ(status, 3);
    EXPECT_EQ(icm.Parse(one, &status, 7), 7);
    EXPECT_EQ(status, 1);
    const unsigned char other[] = {0xF0, 0x00, 0x02, 0x00, 0x02, 0x00, 0x05, 0, 3, 0, 6};
    EXPECT_EQ(icm.Parse(other, &status, 9), 7) << "a record past the end is not read";
    EXPECT_EQ(status, 2);
    EXPECT_EQ(icm.RecordSize(), 0);
}

TEST(SVCTParserDCM, CycleEndsWhenEveryChannelCameAgain)
{
    TCSVCTParserDCM dcm;
    int status = 0;
    // Channel 100: 2 defined, 3 undefined, 0 passed over, 1 defined -> 100, 101, 105.
    const unsigned char a[] = {0xF0, 0x64, 0x04, 0x82, 0x03, 0x00, 0x81};
    std::list<int*> list;
    EXPECT_EQ(dcm.Parse(a, &status, 7), 7);
    EXPECT_FALSE(dcm.GetDCMChannelList(&list));
    dcm.Parse(a, &status, 7);
    EXPECT_EQ(status, 1);
    ASSERT_TRUE(dcm.GetDCMChannelList(&list));
    std::vector<int> got;
    for (int* c : list) {
        got.push_back(*c);
        delete c;
    }
    EXPECT_EQ(got, (std::vector<int>{100, 101, 105}));
    dcm.Parse(a, &status, 7);
    dcm.Parse(a, &status, 7);
    EXPECT_EQ(status, 1) << "the same cycle again";
    const unsigned char b[] = {0xF0, 0x64, 0x01, 0x81};
    dcm.Parse(b, &status, 4);
    dcm.Parse(b, &status, 4);
    EXPECT_EQ(status, 2);
    EXPECT_EQ(dcm.ChannelCount(), 0);
    // From channel 4094 a run of 127: only 4094 and 4095 are channels.
    const unsigned char c[] = {0xFF, 0xFE, 0x02, 0xFF, 0x81};
    TCSVCTParserDCM high;
    status = 0;
    high.Parse(c, &status, 5);
    high.Parse(c, &status, 5);
    EXPECT_EQ(status, 1);
    EXPECT_EQ(high.ChannelCount(), 2);
}

TEST(OOBSectionParser, OnlyOutOfBandTablesKeepRecords)
{
    struct Probe : TCOOBSectionParser {
        explicit Probe(int id) : TCOOBSectionParser(id, ZUMHandle{}) {}
        bool t_Parse(const unsigned char* d, int n) override { return t_CheckRecieved(d, n); }
        void t_Initialize() override { t_ClearAllVersionList(); }
    };
    const Bytes body = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14};
    for (unsigned id : {0xC2u, 0xC3u, 0xC4u, 0xC5u}) {
        Probe p(static_cast<int>(id));
        const Bytes s = zumtest::OobSection(id, body);
        EXPECT_FALSE(p.Parse(0x1FFC, s.data())) << id;
        EXPECT_EQ(p.Parse(0x1FFC, s.data()), id != 0xC5) << id;
        // A byte the record does not look at, same last four bytes: the same section.
        Bytes t = s;
        t[3 + 11] ^= 0xFF;
        EXPECT_EQ(p.Parse(0x1FFC, t.data()), id != 0xC5) << id;
    }
}
