#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "AtscCapture.h"
#include "atsc/EITParser.h"
#include "atsc/ETTParser.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zumtest::Bytes;

namespace {

struct Event {
    unsigned id, start, etm, seconds;
    Bytes title;
    Bytes descriptors = {};
};

Bytes Eit(unsigned source, unsigned version, const std::vector<Event>& events, unsigned section = 0,
          unsigned last = 0)
{
    zumtest::SectionHeader header = zumtest::LongHeader(0xCB, source, version, section, last);
    header.protocolVersion = 0;
    zumtest::SectionBuilder b(header);
    b.U8(static_cast<unsigned>(events.size()));
    for (const Event& e : events) {
        b.U16(0xC000 | e.id).U32(e.start).U24(0xC00000 | e.etm << 20 | e.seconds);
        b.Begin8().Raw(e.title).End();
        b.Begin16(12, 0xF000).Raw(e.descriptors).End();
    }
    return b.Build();
}

Bytes Ett(unsigned etmId, unsigned version, const Bytes& text)
{
    zumtest::SectionHeader header = zumtest::LongHeader(0xCC, 0, version);
    header.protocolVersion = 0;
    zumtest::SectionBuilder b(header);
    b.U32(etmId).Raw(text);
    return b.Build();
}

const Bytes kTitle = {1, 'e', 'n', 'g', 1, 0, 0, 5, 'T', 'i', 't', 'l', 'e'};

} // namespace

TEST(PsipEIT, EventsBySourceAndPidWithTheirOwnVersions)
{
    zumtest::UseReleasedImage();
    zumtest::LogCapture log;
    TCEITParser eit(ZUMHandle{});
    eit.Initialize();
    // Before any section: the assertion and null.
    EXPECT_EQ(eit.EITInstance(0x1D00), nullptr);
    EXPECT_EQ(eit.SourceId(), 0xFFFFFFFFu);
    EXPECT_TRUE(log.Contains("Failed: m_sourceId != INVALID"));

    const Event e1{0x3FFF, 0x4E1A2B3C, 2, 0xFFFFF, kTitle, zumtest::Desc(0x87, {0xC1, 1, 2, 0, 3, 1, 0})};
    const Event e2{7, 100, 1, 3600, {}};
    EXPECT_TRUE(eit.Parse(0x1D00, Eit(0x0001, 3, {e1, e2}).data()));
    EXPECT_TRUE(eit.Parse(0x1D00, Eit(0x0002, 0, {}).data()));            // no events: still received
    EXPECT_TRUE(eit.Parse(0x1D01, Eit(0x0001, 9, {e2}).data()));          // same source, next time slot
    EXPECT_FALSE(eit.Parse(0x1D00, Eit(0x0001, 3, {e1, e2}).data()));     // a repeat
    EXPECT_EQ(eit.SourceId(), 1u);

    TCEITInstance* slot0 = eit.EITInstance(0x1D00);
    ASSERT_NE(slot0, nullptr);
    EXPECT_EQ(slot0->NumOfSourceId(), 2u);
    EXPECT_EQ(slot0->EITItem(3), nullptr);
    TCEITItem* source1 = slot0->EITItem(1);
    ASSERT_EQ(source1->NumOfEITItemEvent(), 2u);
    EXPECT_EQ(source1->EITItemEvent(2), nullptr);
    const TCEITItemEvent* a = source1->EITItemEvent(0);
    EXPECT_EQ(a->EventId(), 0x3FFF);
    EXPECT_EQ(a->StartTime(), 0x4E1A2B3Cu);
    EXPECT_EQ(a->ETMLocation(), 2);
    EXPECT_EQ(a->LengthInSeconds(), 0xFFFFFu);
    EXPECT_EQ(a->TitleLength(), kTitle.size());
    EXPECT_EQ(Bytes(a->Title(), a->Title() + a->TitleLength()), kTitle);
    EXPECT_EQ(a->DescriptorsLength(), 9);
    EXPECT_EQ(a->Descriptors()[0], 0x87);
    EXPECT_EQ(slot0->EITItem(2)->NumOfEITItemEvent(), 0u);
    EXPECT_TRUE(slot0->EITItem(2)->IsValid());
    EXPECT_EQ(eit.EITInstance(0x1D01)->EITItem(1)->NumOfEITItemEvent(), 1u);

    // A new version of source 2 leaves source 1 alone; source 1's new version replaces its events.
    EXPECT_TRUE(eit.Parse(0x1D00, Eit(0x0002, 1, {e2}).data()));
    EXPECT_EQ(slot0->EITItem(1)->NumOfEITItemEvent(), 2u);
    EXPECT_TRUE(eit.Parse(0x1D00, Eit(0x0001, 4, {e2}).data()));
    EXPECT_EQ(slot0->EITItem(1)->NumOfEITItemEvent(), 1u);

    // Two sections of one source: complete only with both.
    EXPECT_FALSE(eit.Parse(0x1D02, Eit(0x0005, 0, {e1}, 0, 1).data()));
    EXPECT_TRUE(eit.Parse(0x1D02, Eit(0x0005, 0, {e2}, 1, 1).data()));
    EXPECT_EQ(eit.EITInstance(0x1D02)->EITItem(5)->EITItemEvent(1)->SectionNumber(), 1);

    eit.Initialize();
    EXPECT_EQ(eit.EITInstance(0x1D00), nullptr);
}

TEST(PsipEIT, BadEventRecordsAndTitleCopies)
{
    zumtest::LogCapture log;
    TCEITParser eit(ZUMHandle{});
    eit.Initialize();
    const Event e{1, 0, 0, 60, kTitle};
    struct Case {
        const char* name;
        Bytes section;
        unsigned kept;
    };
    Bytes claimsTwo = Eit(0x10, 0, {e});
    claimsTwo[9] = 2; // num_events_in_section says 2, one follows
    Bytes titlePastEnd = Eit(0x11, 0, {e});
    titlePastEnd[19] = 0xF0;
    const Case cases[] = {{"one more than sent", claimsTwo, 1}, {"title past the section", titlePastEnd, 0}};
    for (const Case& c : cases) {
        log.Clear();
        EXPECT_FALSE(eit.Parse(0x1D00, c.section.data())) << c.name;
        EXPECT_TRUE(log.Contains("TCEITItem::m_Parse.. Parsing Error... current index = ")) << c.name;
        const TCEITItem* item = eit.EITInstance(0x1D00)->EITItem(static_cast<unsigned short>(c.section[4]));
        EXPECT_EQ(item->NumOfEITItemEvent(), c.kept) << c.name;
        // The section counts as received: a repeat does not heal it.
        EXPECT_FALSE(eit.Parse(0x1D00, c.section.data())) << c.name;
    }

    ASSERT_TRUE(eit.Parse(0x1D00, Eit(0x20, 0, {e, {2, 0, 0, 1, {}}}).data()));
    const TCEITItem* item = eit.EITInstance(0x1D00)->EITItem(0x20);
    unsigned char buffer[32] = {};
    const int whole = static_cast<int>(kTitle.size());
    struct Copy {
        int event, capacity;
        bool result;
        int length;
    };
    for (const Copy& c : {Copy{0, whole, true, whole}, Copy{0, 40, true, whole}, Copy{0, whole - 1, false, whole - 1},
                          Copy{0, 0, false, 0}, Copy{1, 40, false, 40}}) {
        int length = c.capacity;
        EXPECT_EQ(item->EITItemEvent(c.event)->TitleText(buffer, &length), c.result) << c.capacity;
        EXPECT_EQ(length, c.length) << c.capacity;
    }
    EXPECT_EQ(Bytes(buffer, buffer + whole - 1), Bytes(kTitle.begin(), kTitle.end() - 1));
    EXPECT_TRUE(log.Contains("TCEITItemEvent::TitleText length is invalid input = 12 , output = 13"));
    int length = 4;
    EXPECT_FALSE(item->EITItemEvent(0)->TitleText(nullptr, &length));
    EXPECT_EQ(log.Count("TCEITItemEvent::text is NULL or titleLength is NULL"), 1);
}

TEST(PsipETT, TextsByEtmIdOnePerVersion)
{
    zumtest::LogCapture log;
    TCETTParser ett(ZUMHandle{});
    ett.Initialize();
    EXPECT_EQ(ett.ETTInstance(0x1E00), nullptr);
    const unsigned id = TCETTParser::EventETMId(0x0001, 0x0007);
    EXPECT_EQ(id, 0x0001001Eu);
    EXPECT_TRUE(ett.Parse(0x1E00, Ett(id, 0, kTitle).data()));
    EXPECT_FALSE(ett.Parse(0x1E00, Ett(id, 0, kTitle).data()));
    EXPECT_TRUE(ett.Parse(0x1E00, Ett(0x00010001, 0, {}).data())); // size 8: no text, still complete
    EXPECT_TRUE(ett.Parse(0x1E01, Ett(id, 2, {1, 2, 3}).data()));
    EXPECT_EQ(ett.NumOfInstance(), 2u);
    EXPECT_EQ(ett.ETMId(), id);

    TCETTInstance* texts = ett.ETTInstance(0x1E00);
    EXPECT_EQ(texts->Value(), -1);
    EXPECT_EQ(texts->NumOfETTItem(), 2u);
    EXPECT_EQ(texts->ETTItem(0x12345678), nullptr);
    EXPECT_EQ(texts->ETTItem(0x00010001)->TextLength(), 0);
    EXPECT_TRUE(texts->ETTItem(0x00010001)->IsValid());
    // A new version replaces the text.
    EXPECT_TRUE(ett.Parse(0x1E00, Ett(id, 1, {9, 9}).data()));
    const TCETTItem* item = texts->ETTItem(id);
    unsigned char buffer[8] = {};
    unsigned short length = 1;
    EXPECT_FALSE(item->ETTExtendTextMsg(buffer, &length));
    EXPECT_EQ(buffer[0], 9);
    EXPECT_TRUE(log.Contains("TCETTItem::TitleText length is invalid input = 1 , output = 2"));
    length = 8;
    EXPECT_TRUE(item->ETTExtendTextMsg(buffer, &length));
    EXPECT_EQ(length, 2);
    EXPECT_FALSE(item->ETTExtendTextMsg(buffer, nullptr));
    EXPECT_EQ(log.Count("TCETTItem::text is NULL or  length is NULL"), 1);
}

TEST(PsipEIT, KulxCaptureDecodes)
{
    const std::vector<Bytes> sections =
        atsctest::CaptureSections(0xCB, "tsduck_tsduck-test__ref_test-051.tstables.bin");
    if (sections.empty())
        GTEST_SKIP() << "captures not present";
    EXPECT_EQ(sections.size(), 16u);
    TCEITParser eit(ZUMHandle{});
    eit.Initialize();
    unsigned events = 0;
    for (const Bytes& s : sections) {
        eit.Parse(0x1D00, s.data());
        const TCEITItem* item = eit.EITInstance(0x1D00)->EITItem(static_cast<unsigned short>(eit.SourceId()));
        ASSERT_NE(item, nullptr);
        EXPECT_TRUE(item->IsRecvSection(s[6]));
    }
    const TCEITInstance* instance = eit.EITInstance(0x1D00);
    for (unsigned i = 0; i < instance->NumOfSourceId(); ++i) {
        const TCEITItem* item = instance->EITItemOfIndex(i);
        for (unsigned k = 0; k < item->NumOfEITItemEvent(); ++k, ++events) {
            const TCEITItemEvent* e = item->EITItemEvent(k);
            EXPECT_GT(e->TitleLength(), 8) << "source " << item->SourceId();
            EXPECT_GT(e->LengthInSeconds(), 0u);
        }
    }
    EXPECT_GT(events, 16u);
}
