#include <gtest/gtest.h>

#include <string>
#include <vector>

#include <zum-platform/Dlog.h>

#include "dvb/DescLoopProbe.h"
#include "isdb/DescAudioComponent.h"
#include "isdb/DescBoardInformation.h"
#include "isdb/DescComponentGroup.h"
#include "isdb/DescDigitalCopyControl.h"
#include "isdb/DescEventGroup.h"

using namespace svctest;

namespace {

template <class Obj, class Copy>
std::string TextIn(const Obj& d, Copy copy)
{
    return TextBy<char, int>([&](char* b, int* s) { return (d.*copy)(b, s); });
}

std::string ShowGroup(const TCDescComponentGroup& d)
{
    std::string out = Join(d.ComponentGroupType(), d.TotalBitRateFlag(), d.NumOfGroup());
    for (int g = 0; g < d.NumOfGroup(); ++g) {
        const auto* group = d.Group(g);
        out += " | " + Join(group->ComponentGroupId(), group->NumOfCAUnit(), group->TotalBitRate(),
                            group->TextLength(), TextIn(*group, &TCDescComponentGroup::ComponentGroup::TextChar));
        for (int u = 0; u < group->NumOfCAUnit(); ++u) {
            const auto* unit = group->Unit(u);
            out += " [" + std::to_string(unit->CAUnitId()) + ":";
            for (int t = 0; t < unit->NumOfComponent(); ++t)
                out += " " + std::to_string(unit->ComponentTag(t));
            out += "]";
        }
        EXPECT_EQ(group->Unit(group->NumOfCAUnit()), nullptr);
    }
    EXPECT_EQ(d.Group(-1), nullptr);
    EXPECT_EQ(d.Group(d.NumOfGroup()), nullptr);
    return out;
}

std::string ShowEventGroup(const TCDescEventGroup& d)
{
    std::string out = Join(d.GroupType(), d.EventCount(), d.OtherNetworkCount(), d.PrivateDataLength());
    for (int i = 0; i < d.EventCount(); ++i)
        out += " e" + Join(d.Group(i)->serviceId, d.Group(i)->eventId);
    for (int i = 0; i < d.OtherNetworkCount(); ++i) {
        const auto* o = d.GroupOther(i);
        out += " o" + Join(o->originalNetworkId, o->transportStreamId, o->serviceId, o->eventId);
    }
    return out;
}

std::string ShowCopyControl(const TCDescDigitalCopyControl& d)
{
    std::string out = Join(int(d.DigitalRecordingControlData()), int(d.MaximumBitrateFlag()),
                           int(d.ComponentControlFlag()), int(d.CopyControlType()), int(d.APSControlData()),
                           int(d.MaximumBitrate()), int(d.ComponentControlLength()));
    std::vector<TCDescDigitalCopyControl::TTCompControl> list;
    EXPECT_EQ(d.GetComponentControlList(list), d.NumOfComponentControl() > 0);
    for (const auto& e : list)
        out += " | " + Join(e.componentTag, e.digitalRecordingControlData, e.maximumBitrateFlag, e.copyControlType,
                            e.apsControlData, e.maximumBitrate);
    return out;
}

} // namespace

// The fixed part, the second language with the multi-lingual flag, the text as the rest; short bodies stop.
TEST(DescIsdbEvent, AudioAndDataComponents)
{
    const Bytes head = {0xF2, 0x03, 0x10, 0x0F, 0xFF};
    auto show = [](const TCDescAudioComponent& d) {
        return Join(d.StreamContent(), d.ComponentType(), d.ComponentTag(), d.StreamType(), d.SimulcastGroupTag(),
                    d.ESMultiLingualFlag(), d.MainComponentFlag(), d.QualityIndicator(), d.SamplingRate(),
                    Code(d.ISO639LanguageCode()), Code(d.ISO639LanguageCode2()),
                    TextIn(d, &TCDescAudioComponent::TextChar));
    };
    ExpectBodies(0xC4, [] { return new TCDescAudioComponent(); }, show, {
        {zumtest::Concat({head, {0x7E, 'j', 'p', 'n', 'A', 'B'}}), "2 3 16 15 255 0 1 3 7 jpn - AB"},
        {zumtest::Concat({head, {0xAF, 'j', 'p', 'n', 'e', 'n', 'g'}}), "2 3 16 15 255 1 0 2 7 jpn eng <none>"},
        {zumtest::Concat({head, {0x80, 'j', 'p', 'n', 'e', 'n'}}), "2 3 16 15 255 1 0 0 0 jpn - <none>",
         "inLen=11, outLen=9"},
        {{0x02, 0x03}, "2 3 0 0 0 0 0 0 0 - - <none>"},
    });
    auto data = [](const TCDescDataContent& d) {
        unsigned char b[16];
        int s = sizeof b;
        const std::string sel = d.SelectorByte(b, &s) ? std::string(b, b + s) : "-";
        s = sizeof b;
        const std::string refs = d.ComponentRef(b, &s) ? std::string(b, b + s) : "-";
        return Join(d.DataComponentId(), d.EntryComponent(), d.SelectorLength(), sel, d.NumOfComponentRef(), refs,
                    Code(d.ISO639LanguageCode()), d.TextLength(), TextIn(d, &TCDescDataContent::TextChar));
    };
    ExpectBodies(0xC7, [] { return new TCDescDataContent(); }, data, {
        {{0x00, 0x0C, 0x40, 2, 'S', 'L', 1, 'R', 'j', 'p', 'n', 2, 'T', 'x'}, "12 64 2 SL 1 R jpn 2 Tx"},
        {{0x00, 0x0C, 0x40, 0, 0, 'j', 'p', 'n', 0}, "12 64 0 - 0 - jpn 0 <none>"},
        // A selector that runs over keeps what is there and ends the decoding.
        {{0x00, 0x0C, 0x40, 9, 'S'}, "12 64 9 S 0 - - 0 <none>"},
        {{0x00}, "0 0 0 - 0 - - 0 <none>", "inLen=1, outLen=0"},
    });
    auto comp = [](const TCDescDataComponent& d) {
        unsigned char b[8];
        int s = sizeof b;
        return Join(d.DataComponentId(), d.AdditionalDataCompInfoLength(),
                    d.AdditionalDataCompInfo(b, &s) ? std::string(b, b + s) : "-");
    };
    ExpectBodies(0xFD, [] { return new TCDescDataComponent(); }, comp, {
        {{0x00, 0x08, 'a', 'b', 'c'}, "8 3 abc"},
        {{0x00, 0x08}, "8 0 -"},
        {{0x07}, "0 0 -", "inLen=1, outLen=0"},
    });
    // The text copy: a smaller buffer gets its size's worth and false.
    auto d = Decode(new TCDescAudioComponent(), Desc(0xC4, zumtest::Concat({head, {0x00, 'j', 'p', 'n', 'A', 'B', 'C'}})));
    ExpectCopies(*d, &TCDescAudioComponent::TextChar,
                 {{0, false, 0, "##"}, {2, false, 2, "AB##"}, {3, true, 3, "ABC##"}, {4, true, 3, "ABC###"}});
}

// Groups and CA units by their counts; a unit cut short keeps its count, a group that fails ends the count.
TEST(DescIsdbEvent, ComponentGroups)
{
    ExpectBodies(0xD9, [] { return new TCDescComponentGroup(); }, ShowGroup, {
        {{0x00}, "0 0 0"},
        // Type 1 with bit rates: two groups, the second with two units, one of id 5 which reads as 2.
        {{0x32, 0x01, 0x12, 0x10, 0x11, 0x30, 2, 'G', '1', 0x12, 0x01, 0x40, 0x51, 0x41, 0x55, 0},
         "1 1 2 | 0 1 48 2 G1 [1: 16 17] | 1 2 85 0 <none> [0: 64] [2: 65]"},
        // A text that the descriptor cuts short keeps its declared length.
        {{0x01, 0x00, 5, 'a', 'b'}, "0 0 1 | 0 0 0 5 ab"},
        // Three groups whose second fails in its second unit: two groups, the second with two units.
        {{0x03, 0x00, 0, 0x02, 0x02, 0x11, 0x12}, "0 0 2 | 0 0 0 0 <none> | 0 2 0 0 <none> [0: 17 18] [0:]"},
        // A unit whose tags the descriptor cuts keeps its count; the missing tags read 0.
        {{0x01, 0x01, 0x13, 0x07}, "0 0 1 | 0 1 0 0 <none> [1: 7 0 0]"},
        {{0x1F}, "0 1 1 | 0 0 0 0 <none>"},
    });
}

// Events, other-network events for types 4 and 5, private data otherwise.
TEST(DescIsdbEvent, EventGroupsAndSeries)
{
    ExpectBodies(0xD6, [] { return new TCDescEventGroup(); }, ShowEventGroup, {
        {{0x22, 0x04, 0x00, 0x12, 0x34, 0x00, 0x05, 0x00, 0x06, 0xEE}, "2 2 0 1 e1024 4660 e5 6"},
        {{0x41, 0x00, 0x01, 0x00, 0x02, 0x7E, 0xD0, 0x7E, 0xD1, 0x00, 0x03, 0x00, 0x04, 0xFF},
         "4 1 1 0 e1 2 o32464 32465 3 4", "inLen=14, outLen=13"},
        {{0x50, 1, 2, 3, 4, 5, 6, 7}, "5 0 0 0", "inLen=8, outLen=1"},
        {{0x60, 0xAA, 0xBB}, "0 0 0 2"},
    });
    // Events that the descriptor cuts off count but are not there; the rest is private data.
    auto d = Decode(new TCDescEventGroup(), Desc(0xD6, {0x32, 0x00, 0x01, 0x00, 0x02, 'p', 'q', 'r'}));
    zumtest::LogCapture log;
    EXPECT_EQ(d->Group(1), nullptr);
    EXPECT_EQ(d->GroupOther(0), nullptr);
    EXPECT_EQ(log.Lines(DLOG_DEBUG), (std::vector<std::string>{"TCDescEventGroup::Groupwrong index = 1",
                                                               "TCDescEventGroup::GroupOther index = 0"}));
    unsigned char buffer[8] = {};
    int size = 2;
    EXPECT_TRUE(d->PrivateDataBytes(size, buffer));
    EXPECT_EQ(std::string(buffer, buffer + size), "pq");
    size = 8;
    EXPECT_TRUE(d->PrivateDataBytes(size, buffer));
    EXPECT_EQ(size, 3);
    size = 0;
    EXPECT_FALSE(d->PrivateDataBytes(size, buffer));

    auto series = [](const TCDescSeries& s) {
        unsigned char name[16];
        unsigned short size = sizeof name;
        return Join(s.SeriesId(), s.RepeatLabel(), s.ProgramPattern(), s.ExpireDateValidFlag(), s.ExpireDate(),
                    s.EpisodeNumber(), s.LastEpisodeNumber(),
                    s.GetSeriesName(name, &size) ? std::string(name, name + size) : "<none>");
    };
    ExpectBodies(0xD5, [] { return new TCDescSeries(); }, series, {
        // MJD 44245 is day 1; episodes 0x123 of 0x456.
        {{0x12, 0x34, 0x5B, 0xAC, 0xD5, 0x12, 0x34, 0x56, 'N', 'm'}, "4660 5 5 1 1 291 1110 Nm"},
        {{0x00, 0x01, 0x00, 0xAC, 0xD3, 0xFF, 0xFF, 0xFF}, "1 0 0 0 0 4095 4095 <none>"},
        {{0x00, 0x01, 0x00, 0xAC}, "1 0 0 0 0 0 0 <none>", "inLen=4, outLen=3"},
    });
    auto s = Decode(new TCDescSeries(), Desc(0xD5, {0, 1, 0, 0, 0, 0, 0, 0, 'A', 'B', 'C'}));
    ExpectCopiesBy<unsigned char, unsigned short>(
        [&](unsigned char* b, unsigned short* n) { return s->GetSeriesName(b, n); },
        {{0, false, 0, "##"}, {2, false, 2, "AB##"}, {3, false, 3, "ABC##"}, {4, true, 3, "ABC###"}});
}

// The copy rules of the service and of each component; the entry loop runs to the end of the descriptor.
TEST(DescIsdbEvent, CopyControlAndAvailability)
{
    ExpectBodies(0xC1, [] { return new TCDescDigitalCopyControl(); }, ShowCopyControl, {
        {{0x8F, 0x00, 0x00}, "2 0 0 3 3 0 0"},
        {{0xE2}, "3 1 0 0 0 0 0"},
        // Both flags: the bit rate, the length (not the loop's bound), then entries of two and three bytes.
        {{0x3D, 0x50, 0x01, 0x10, 0x83, 0x11, 0x26, 0x99, 0x12, 0x00},
         "0 1 1 3 1 80 1 | 16 2 0 0 0 0 | 17 0 1 1 2 153 | 18 0 0 0 0 0"},
        // An entry whose flags or bit rate byte lies behind the end is not added.
        {{0x10, 0x04, 0x10, 0x80, 0x11}, "0 0 1 0 0 0 4 | 16 2 0 0 0 0"},
        {{0x10, 0x04, 0x10, 0xA0}, "0 0 1 0 0 0 4"},
        {{0x10}, "0 0 1 0 0 0 0"},
    });
    auto d = Decode(new TCDescDigitalCopyControl(), Desc(0xC1, {0x10, 0x02, 0x10, 0x8E}));
    TCDescDigitalCopyControl::TTCompControl entry;
    entry.componentTag = 7;
    zumtest::UseReleasedImage();
    zumtest::LogCapture log;
    EXPECT_TRUE(d->ComponentControl(0, entry));
    EXPECT_EQ(Join(entry.componentTag, entry.copyControlType, entry.apsControlData), "16 3 2");
    EXPECT_FALSE(d->ComponentControl(1, entry));
    EXPECT_FALSE(d->ComponentControl(-1, entry));
    EXPECT_EQ(entry.componentTag, 16);
    EXPECT_TRUE(log.Contains("Failed: index >= 0 && (unsigned int)index < m_compControlList.size()"));

    auto avail = [](const TCDescContentAvailability& c) {
        return Join(c.CopyRestrictionMode(), c.ImageConstraintToken(), c.RetentionMode(), c.RetentionState(),
                    c.EncryptionMode());
    };
    ExpectBodies(0xDE, [] { return new TCDescContentAvailability(); }, avail, {
        {{0x7F}, "1 1 1 7 1"},
        {{0x4A, 0xFF, 0xFF}, "1 0 0 5 0"},
    });
}

// Title and text as lengths and bytes; what does not fit is not kept; the accessors hand out converted text.
TEST(DescIsdbEvent, BoardInformation)
{
    zumtest::BinderScope binder;
    auto show = [](const TCDescBoardInformation& d) {
        char buffer[64];
        int size = sizeof buffer;
        std::string title = d.Title(size, buffer) ? std::to_string(size) : "-";
        size = sizeof buffer;
        std::string text = d.Text(size, buffer) ? std::to_string(size) : "-";
        return Join(title, text, d.TitleLength(), d.TextLength());
    };
    const std::pair<Bytes, std::string> cases[] = {
        {{2, 'T', 'i', 3, 'a', 'b', 'c'}, "4 6 4 6"},
        {{2, 'T', 'i', 0}, "4 - 4 0"},
        // The title leaves no room for the text length; then a text that runs over.
        {{2, 'T', 'i'}, "- - 0 0"},
        {{1, 'T', 5, 'a'}, "2 - 2 0"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(show(*Decode(new TCDescBoardInformation(), Desc(0xDB, c.first))), c.second);
    auto d = Decode(new TCDescBoardInformation(), Desc(0xDB, {1, 'T', 2, 'a', 'b'}));
    zumtest::LogCapture log;
    char buffer[8];
    int size = 8;
    EXPECT_TRUE(d->Title(size, buffer));
    size = 2;
    EXPECT_TRUE(d->Text(size, buffer));
    EXPECT_EQ(size, 2);
    size = 0;
    EXPECT_FALSE(d->Text(size, buffer));
    EXPECT_EQ(log.Lines(DLOG_DEBUG), (std::vector<std::string>{
                                         "TCDescBoardInformation::Text len_in_out[8] title_length_[1]",
                                         "TCDescBoardInformation::Text len_in_out[2] text_length_[2]",
                                         "TCDescBoardInformation::Text invalid length"}));
}

// The ISDB tables make the audio and data content classes, Japan's also the event classes; the PMT's ISDB
// factory makes the copy rules and the data component.
TEST(DescIsdbEvent, FactoryRows)
{
    ExpectRows({
        {"JPN BRA", 0x4E, Desc(0xC4, Bytes(9, 0)), 0xC4, typeid(TCDescAudioComponent)},
        {"JPN BRA", 0x42, Desc(0xC7, Bytes(8, 0)), 0xC7, typeid(TCDescDataContent)},
        {"JPN", 0x4E, Desc(0xC1, {0}), 0xC1, typeid(TCDescDigitalCopyControl)},
        {"JPN", 0x4E, Desc(0xD5, Bytes(8, 0)), 0xD5, typeid(TCDescSeries)},
        {"JPN", 0x4E, Desc(0xD6, {0}), 0xD6, typeid(TCDescEventGroup)},
        {"JPN", 0x4E, Desc(0xD9, {0}), 0xD9, typeid(TCDescComponentGroup)},
        {"JPN", 0x4E, Desc(0xDB, {0}), 0xDB, typeid(TCDescBoardInformation)},
        {"JPN", 0x42, Desc(0xDE, {0}), 0xDE, typeid(TCDescContentAvailability)},
        {"BRA", 0x4E, Desc(0xD5, Bytes(8, 0)), 0xD5, typeid(TCDescDefault)},
        {"JPN BRA", 0x02, Desc(0xC1, {0}), 0xC1, typeid(TCDescDigitalCopyControl)},
        {"JPN BRA", 0x02, Desc(0xDE, {0}), 0xDE, typeid(TCDescContentAvailability)},
        {"JPN BRA", 0x02, Desc(0xFD, {0, 8}), 0xFD, typeid(TCDescDataComponent)},
    });
}
