// Event and stream descriptors: short and extended event, component, stream identifier, content, parental rating;
// ISO 639 language, teletext, subtitling.
#include <gtest/gtest.h>

#include <zum-platform/Dlog.h>

#include "dvb/DescComponent.h"
#include "dvb/DescContent.h"
#include "dvb/DescLanguage.h"
#include "dvb/DescLoopProbe.h"
#include "dvb/DescMultilingualNetworkName.h"
#include "dvb/DescShortEvent.h"
#include "operators/DescLogicalChannel.h"

using namespace svctest;

namespace {

// Language, event name, text, text length.
std::string ShortEvent(const TCDescShortEvent& d)
{
    return Join(Code(d.Language()), TextOf(d, &TCDescShortEvent::EventNameChar), TextOf(d, &TCDescShortEvent::TextChar),
                d.TextLength());
}

Bytes ExtendedBody(UChar numbers, const Bytes& items, const std::string& text)
{
    zumtest::ByteWriter w;
    w.U8(numbers).Text("eng").U8(static_cast<unsigned>(items.size())).Raw(items);
    w.U8(static_cast<unsigned>(text.size())).Text(text);
    return w.Data();
}

// Descriptor numbers, language, length of items, item count, description/item of each, text.
std::string ExtendedEvent(const TCDescExtendedEvent& d)
{
    std::string s = Join(d.DescriptorNumber(), d.LastDescriptorNumber(), Code(d.Language()), d.LengthOfItems(),
                         d.SizeOfItem());
    for (unsigned int i = 0; d.Item(i); ++i)
        s += " " + TextOf(*d.Item(i), &CitemDesc::ItemDescriptionChar) + "/" + TextOf(*d.Item(i), &CitemDesc::ItemChar);
    return s + " " + TextOf(d, &TCDescExtendedEvent::TextChar);
}

// Items "Dir"/"Ann" and "Cast"/"Bo", 16 bytes.
const Bytes kItems = {3, 'D', 'i', 'r', 3, 'A', 'n', 'n', 4, 'C', 'a', 's', 't', 2, 'B', 'o'};

std::string Nibbles(const TCDescContent& d)
{
    std::string s = Join(d.Count());
    for (int i = -1; i <= d.Count(); ++i)
        s += " " + Join(d.ContentNibbleLevel1(i), d.ContentNibbleLevel2(i), d.UserNibble1(i), d.UserNibble2(i));
    return s;
}

} // namespace

// The DVB hook stops where the body's own lengths say the text cannot be read; the ISDB one takes what the body
// holds.
TEST(DescShortEvent, BodiesOfBothSystems)
{
    ExpectBodies(0x4D, [] { return new TCDescShortEvent(); }, ShortEvent, {
        {{'e', 'n', 'g', 4, 'N', 'e', 'w', 's', 5, 'T', 'o', 'd', 'a', 'y'}, "eng News Today 5"},
        {{'e', 'n', 'g', 0, 0}, "eng <none> <none> 0"},
        {{'e', 'n', 'g', 3, 'A', 'B', 'C'}, "eng ABC <none> 0"},
        {{'e', 'n', 'g', 9, 'A', 'B'}, "eng AB <none> 0"},
        // One byte over: the hook answers the position of the text length.
        {{'e', 'n', 'g', 1, 'A', 3, 'x', 'y'}, "eng A <none> 3", "inLen=8, outLen=5"},
        {{'e', 'n', 'g'}, "eng <none> <none> 0"},
        {{'e', 'n'}, "- <none> <none> 0"}, // no name length: 4 reaches the end, the hook answers the length
    });
    ExpectBodies(0x4D, [] { return new TCDescShortEventISDB(); }, ShortEvent, {
        {{'e', 'n', 'g', 3, 'A', 'B', 'C'}, "eng ABC <none> 0"},
        {{'e', 'n', 'g', 1, 'A', 9, 'x', 'y'}, "eng A xy 2"},
        {{'e', 'n'}, "- <none> <none> 0", "inLen=2, outLen=0"},
    });
    auto d = Decode(new TCDescShortEvent(), Desc(0x4D, {'e', 'n', 'g', 4, 'N', 'e', 'w', 's', 0}));
    ExpectCopies(*d, &TCDescShortEvent::EventNameChar, {{3, false, 3, "New##"}});
}

// Where the lengths of the body do not add up, the header stays and neither items nor text are kept. Each item
// takes what the items area leaves: a description that fills it reads no item, and both lengths are cut at its end.
TEST(DescExtendedEvent, Bodies)
{
    Bytes textOver = ExtendedBody(0x01, kItems, "abc");
    textOver[textOver.size() - 4] = 4; // one byte more than the body holds
    ExpectBodies(0x4E, [] { return new TCDescExtendedEvent(); }, ExtendedEvent, {
        {ExtendedBody(0x12, kItems, "Long text"), "1 2 eng 16 2 Dir/Ann Cast/Bo Long text"},
        {textOver, "0 1 eng 16 0 <none>", "inLen=25, outLen=21"}, // where the text length stands
        {{0x01, 'e', 'n', 'g', 2, 1, 'A'}, "0 1 eng 2 0 <none>", "inLen=7, outLen=5"},
        {{0x01, 'e', 'n', 'g', 0}, "0 1 eng 0 0 <none>"},
        {{0x01, 'e', 'n'}, "0 1 - 0 0 <none>", "inLen=3, outLen=1"},
        {{}, "0 0 - 0 0 <none>"},
        {ExtendedBody(0x00, {3, 'D', 'i', 'r'}, "t"), "0 0 eng 4 1 Dir/<none> t"},
        {ExtendedBody(0x00, {2, 'D', 'i', 7, 'X'}, "t"), "0 0 eng 5 1 Di/X t"},
        {ExtendedBody(0x00, {9, 'D'}, "t"), "0 0 eng 2 1 D/<none> t"},
        {ExtendedBody(0x00, {1, 'D', 0}, "t"), "0 0 eng 3 1 D/<none> t"},
    });
    auto d = Decode(new TCDescExtendedEvent(), Desc(0x4E, ExtendedBody(0x00, {}, "Long text")));
    EXPECT_EQ(d->TextLength(), 9u);
    // The long text is copied with true also when cut.
    ExpectCopies(*d, &TCDescExtendedEvent::TextChar, {{8, true, 8, "Long tex##"}});

    zumtest::LogCapture log;
    CitemDesc item;
    const UChar data[] = {1, 'A'};
    EXPECT_EQ(item.Parse(data, 0), 0);
    EXPECT_EQ(item.Parse(nullptr, 5), 5);
    ASSERT_EQ(log.Lines(DLOG_ERROR).size(), 2u);
    EXPECT_EQ(log.Lines(DLOG_ERROR)[0].rfind("ERROR!, Func:Parse, Line:", 0), 0u);
    EXPECT_TRUE(log.Contains("len: 0"));
}

// Pieces of one text differ in number; the same piece matches whatever the case of its language.
TEST(DescExtendedEvent, FlagEqualFindsTheSamePiece)
{
    auto piece = [](UChar numbers, const char* language) {
        zumtest::ByteWriter w;
        w.U8(numbers).Text(language).U8(0).U8(1).Text("x");
        return Decode(new TCDescExtendedEvent(), Desc(0x4E, w.Data()));
    };
    auto first = piece(0x01, "eng");
    const struct { UChar numbers; const char* language; bool equal; } cases[] = {
        {0x01, "ENG", true}, {0x11, "eng", false}, {0x02, "eng", false}, {0x01, "deu", false}};
    for (const auto& c : cases)
        EXPECT_EQ(first->FlagEqual(piece(c.numbers, c.language).get()), c.equal) << int(c.numbers) << c.language;
    EXPECT_FALSE(first->FlagEqual(static_cast<const TCDescExtendedEvent*>(nullptr)));
}

// System, content ext and content, type, tag, language, text length and text.
TEST(DescComponent, Bodies)
{
    auto make = [] { return new TCDescComponent(0); };
    ExpectBodies(0x50, make, [](const TCDescComponent& d) {
        return Join(d.System(), d.StreamContentExt(), d.StreamContent(), d.ComponentType(), d.ComponentTag(),
                    Code(d.Language()), d.TextLength(), TextOf(d, &TCDescComponent::TextChar));
    }, {
        {{0xE5, 0x0B, 0x42, 'd', 'e', 'u', 'H', 'D', 'T', 'V'}, "0 14 5 11 66 deu 4 HDTV"},
        {{0x01, 0x03, 0x07, 'e', 'n', 'g'}, "0 0 1 3 7 eng 0 <none>"},
        {{0x01, 0x03, 0x07, 'e', 'n'}, "0 0 1 3 7 - 0 <none>", "inLen=5, outLen=3"},
        {{0x01, 0x03}, "0 0 1 3 0 - 0 <none>"},
        {{0x01}, "0 0 1 0 0 - 0 <none>"},
        {{}, "0 0 0 0 0 - 0 <none>"},
    });
    auto d = Decode(make(), Desc(0x50, {0xE5, 0x0B, 0x42, 'd', 'e', 'u', 'H', 'D', 'T', 'V'}));
    ExpectCopies(*d, &TCDescComponent::TextChar, {{3, false, 3, "HDT##"}});
    // The clone keeps the system, which only the constructor knows.
    auto hd = Decode(new TCDescComponent(1), Desc(0x50, {0x01, 0xB1, 0, 'e', 'n', 'g'}));
    std::unique_ptr<TCBaseDesc> clone(hd->Fork());
    auto* isdb = dynamic_cast<TCDescComponent*>(clone.get());
    ASSERT_NE(isdb, nullptr);
    EXPECT_EQ(isdb->System(), 1);
    EXPECT_TRUE(isdb->IsHD());
}

// The receiver's classification of a component. ext -1 means that it does not matter: such a row runs with 0 and 0xF.
TEST(DescComponent, ClassificationAndStreamIdentifier)
{
    const struct { int system, ext; UChar content, type, tag; const char* flags; } cases[] = {
        {0, -1, 0x1, 0x01, 0, ""},           {0, -1, 0x1, 0x09, 0, " HD"},        {0, -1, 0x1, 0x10, 0, " HD"},
        {0, -1, 0x1, 0x11, 0, ""},           {0, -1, 0x1, 0xB1, 0, ""},           {1, -1, 0x1, 0xB1, 0, " HD"},
        {1, -1, 0x1, 0xC4, 0, " HD"},        {1, -1, 0x1, 0xB2, 0, ""},           {0, -1, 0x5, 0x0B, 0, " HD"},
        {0, -1, 0x5, 0x10, 0, " HD"},        {0, -1, 0x5, 0x01, 0, ""},           {0, 0, 0x9, 0x03, 0, " HD"},
        {0, 0, 0x9, 0x04, 0, " UHD"},        {0, 1, 0x9, 0x04, 0, ""},            {0, -1, 0x3, 0x10, 0, " SUB"},
        {0, -1, 0x3, 0x14, 0, " SUB"},       {0, -1, 0x3, 0x15, 0, ""},           {0, -1, 0x3, 0x24, 0, " SUB"},
        {0, -1, 0x3, 0x30, 0, " SIGN"},      {0, -1, 0x6, 0x44, 0, " AD"},        {0, -1, 0x6, 0x45, 0, ""},
        {0, -1, 0x2, 0x47, 0, " AD"},        {0, -1, 0x2, 0x44, 0, ""},           {0, 1, 0x9, 0x06, 0, " AD"},
        {0, 1, 0x9, 0x07, 0, " AD DE"},      {0, 1, 0x9, 0x01, 0, " DE"},         {0, 1, 0x9, 0x00, 0, ""},
        {0, 1, 0x9, 0x0E, 0, ""},            {0, 2, 0x9, 0x00, 0, " TTML"},       {0, 0xE, 0xB, 0x00, 0x04, " AD"},
        {0, 0xE, 0xB, 0x00, 0x08, " SPS"},   {0, 0xE, 0xB, 0x00, 0x10, " DE"},    {0, 0xE, 0xB, 0x1C, 0x00, ""},
        {0, 0xD, 0xB, 0x00, 0x1C, ""},
    };
    for (const auto& c : cases) {
        for (int ext : c.ext < 0 ? std::vector<int>{0x0, 0xF} : std::vector<int>{c.ext}) {
            SCOPED_TRACE(testing::Message() << c.system << " ext " << ext << " content " << int(c.content) << " type "
                                            << int(c.type) << " tag " << int(c.tag));
            auto d = Decode(new TCDescComponent(c.system),
                            Desc(0x50, {UChar(ext << 4 | c.content), c.type, c.tag, 'e', 'n', 'g'}));
            const std::string flags = std::string(d->IsHD() ? " HD" : "") + (d->IsUHD() ? " UHD" : "") +
                                      (d->IsSubtitle() ? " SUB" : "") + (d->IsSignLanguage() ? " SIGN" : "") +
                                      (d->IsAD() ? " AD" : "") + (d->IsDE() ? " DE" : "") + (d->IsSpS() ? " SPS" : "") +
                                      (d->IsTTML() ? " TTML" : "");
            EXPECT_EQ(flags, c.flags);
        }
    }
    // The stream identifier carries the component tag alone.
    ExpectBodies(0x52, [] { return new TCDescStreamIdentifier(); },
                 [](const TCDescStreamIdentifier& d) { return Join(d.ComponentTag()); },
                 {{{0x21}, "33"}, {{0x21, 0x00}, "33", "inLen=2, outLen=1"}, {{}, "0"}});
}

// Count, then the four nibbles of each entry from index -1 to the count: zeros outside.
TEST(DescContent, NibblesPerEntryAndParentalRatings)
{
    ExpectBodies(0x54, [] { return new TCDescContent(); }, Nibbles, {
        {{0x12, 0x34, 0xAB, 0xCD}, "2 0 0 0 0 1 2 3 4 10 11 12 13 0 0 0 0"},
        {{0x12, 0x34, 0xAB, 0xCD, 0xEF}, "2 0 0 0 0 1 2 3 4 10 11 12 13 0 0 0 0", "inLen=5, outLen=4"},
        {{0x12}, "0 0 0 0 0 0 0 0 0", "inLen=1, outLen=0"},
    });
    // The specifier that the loop stored is not in the raw bytes: the clone must take it over.
    auto d = Decode(new TCDescContent(), Desc(0x54, {0x12, 0x34}));
    EXPECT_EQ(d->PDSD(), 0u);
    d->SetPDSD(0x233A);
    std::unique_ptr<TCBaseDesc> clone(d->Fork());
    auto* content = dynamic_cast<TCDescContent*>(clone.get());
    ASSERT_NE(content, nullptr);
    EXPECT_EQ(content->PDSD(), 0x233Au);
    EXPECT_EQ(Nibbles(*content), Nibbles(*d));
    // Count, then country code and rating from index -1 to the count; codes keep the case they were sent in.
    ExpectBodies(0x55, [] { return new TCDescParentalRating(); }, [](const TCDescParentalRating& d) {
        std::string s = Join(d.Count());
        for (int i = -1; i <= d.Count(); ++i)
            s += " " + Code(d.CountryCode(i)) + ":" + Join(d.Rating(i));
        return s;
    }, {
        {{'G', 'B', 'R', 0x0C, 'f', 'r', 'a', 0x05}, "2 -:0 GBR:12 fra:5 -:0"},
        {{'G', 'B', 'R', 0x0C, 'f', 'r', 'a'}, "1 -:0 GBR:12 -:0", "inLen=7, outLen=4"},
        {{'G', 'B', 'R'}, "0 -:0 -:0", "inLen=3, outLen=0"},
    });
}

// Count, then language and audio type of each entry (3 is visual impaired commentary).
TEST(DescLanguage, EntriesTeletextPagesAndSubtitles)
{
    ExpectBodies(0x0A, [] { return new TCDescLanguage(); }, [](const TCDescLanguage& d) {
        std::string s = Join(d.Count());
        ELanguageCode language = 0;
        EAudioType audioType = AUDIO_TYPE_UNDEFINED;
        for (int i = 0; i < d.Count() && d.Language(i, &language, &audioType); ++i)
            s += " " + Code(language) + ":" + Join(static_cast<int>(audioType));
        return s;
    }, {
        {{'e', 'n', 'g', 0x00, 'q', 'a', 'd', 0x03}, "2 eng:0 qad:3"},
        {{'e', 'n', 'g', 0x00, 'q', 'a', 'd', 0x03, 'x', 'y'}, "2 eng:0 qad:3", "inLen=10, outLen=8"},
        {{'e', 'n', 'g'}, "0", "inLen=3, outLen=0"},
    });
    // An index outside the entries asserts and answers false with nothing set.
    auto d = Decode(new TCDescLanguage(), Desc(0x0A, {'e', 'n', 'g', 0x01}));
    for (int index : {-1, 1}) {
        zumtest::LogCapture log;
        ELanguageCode language = 7;
        EAudioType audioType = AUDIO_TYPE_HEARING_IMPAIRED;
        EXPECT_FALSE(d->Language(index, &language, &audioType));
        EXPECT_TRUE(language == 7u && audioType == AUDIO_TYPE_HEARING_IMPAIRED && log.Contains("Failed: 0")) << index;
    }
    // Count, then language, type, magazine and page from index -1 to the count: zeros outside.
    ExpectBodies(0x56, [] { return new TCDescTeletext(); }, [](const TCDescTeletext& d) {
        std::string s = Join(d.Count());
        for (int i = -1; i <= d.Count(); ++i)
            s += ", " + Join(Code(d.Iso639LangCode(i)), d.TeletextType(i), d.TeletextMagzineNumber(i),
                             d.TeletextPageNumber(i));
        return s;
    }, {
        {{'d', 'e', 'u', 0x11, 0x50, 'e', 'n', 'g', 0x2F, 0x88}, "2, - 0 0 0, deu 2 1 80, eng 5 7 136, - 0 0 0"},
        {{'d', 'e', 'u', 0x11, 0x50, 'e', 'n'}, "1, - 0 0 0, deu 2 1 80, - 0 0 0", "inLen=7, outLen=5"},
        {{'d', 'e', 'u', 0x11}, "0, - 0 0 0, - 0 0 0"},
    });
    // Count, then language, type, composition and ancillary page from index -1 to the count: zeros outside.
    ExpectBodies(0x59, [] { return new TCDescSubtitling(); }, [](const TCDescSubtitling& d) {
        std::string s = Join(d.Count());
        for (int i = -1; i <= d.Count(); ++i)
            s += ", " + Join(Code(d.Iso639LangCode(i)), d.SubtitlingType(i), d.CompositionPageId(i),
                             d.AncillaryPageId(i));
        return s;
    }, {
        {{'e', 'n', 'g', 0x10, 0x00, 0x01, 0x00, 0x02, 'f', 'r', 'a', 0x20, 0x12, 0x34, 0x56, 0x78},
         "2, - 0 0 0, eng 16 1 2, fra 32 4660 22136, - 0 0 0"},
        {{'e', 'n', 'g', 0x10, 0x00, 0x01, 0x00, 0x02, 'f', 'r', 'a'}, "1, - 0 0 0, eng 16 1 2, - 0 0 0",
         "inLen=11, outLen=8"},
        {{'e', 'n', 'g', 0x10}, "0, - 0 0 0, - 0 0 0", "inLen=4, outLen=0"},
    });
}

// Texts, items and entries read from the object's own raw copy: a loop's objects outlive the caller's buffer (their
// bytes live in the container), and a clone outlives its source.
TEST(DescriptorViews, OutliveTheLoopBufferAndTheirSource)
{
    const Bytes loop = zumtest::Concat({Desc(0x4D, {'e', 'n', 'g', 4, 'N', 'e', 'w', 's', 1, 'T'}),
                                        Desc(0x4E, ExtendedBody(0x12, kItems, "Long text")),
                                        Desc(0x5D, {'e', 'n', 'g', 1, 'P', 2, 'S', 'v'}), Desc(0x5F, {0, 0, 0, 0x28}),
                                        Desc(0x83, {0x00, 0x07, 0x80, 0x05})});
    auto fields = [](const TCDescriptorHash& hash) {
        std::string s;
        if (auto* d = dynamic_cast<const TCDescShortEvent*>(hash.Descriptor(0x4D, 0)))
            s += ShortEvent(*d);
        if (auto* d = dynamic_cast<const TCDescExtendedEvent*>(hash.Descriptor(0x4E, 0)))
            s += " | " + ExtendedEvent(*d);
        if (auto* d = dynamic_cast<const TCDescMultilingualServiceName*>(hash.Descriptor(0x5D, 0)))
            s += " | " + TextOf(*d->ServiceNameDesc(0), &CmultiServiceNameDesc::ServiceNameChar);
        if (auto* d = dynamic_cast<IDescLogicalChannel*>(hash.Descriptor(0x83, 0)))
            s += " | " + Join(d->LogicalChannelNumber(7), d->First(0)->channelNumber);
        return s;
    };
    const struct { unsigned char tableId; const char* expected; } cases[] = {
        {0x4E, "eng News T 1 | 1 2 eng 16 2 Dir/Ann Cast/Bo Long text"}, {0x42, " | Sv"}, {0x40, " | 5 5"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(int(c.tableId));
        Bytes buffer = loop;
        TCDescriptorHash hash, copies;
        Walk("GBR", c.tableId, buffer, hash);
        const std::string before = fields(hash);
        EXPECT_NE(before.find(c.expected), std::string::npos) << before;
        std::fill(buffer.begin(), buffer.end(), 0xEE);
        EXPECT_EQ(fields(hash), before);
        copies = hash;
        hash.DeleteAll();
        EXPECT_EQ(fields(copies), before);
    }
}
