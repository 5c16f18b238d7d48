#include <gtest/gtest.h>

#include <string>
#include <typeindex>

#include <zum-platform/Dlog.h>
#include <zum-platform/UnicodeConverter.h>

#include "dvb/DescLoopProbe.h"
#include "dvb/DescShortEvent.h"
#include "support/LogCapture.h"

using svctest::Bytes;
using svctest::Copied;
using svctest::CopyWith;
using svctest::Decode;
using zumtest::Desc;

namespace {

constexpr unsigned int kEng = 0x656E67;

std::string EventName(const TCDescShortEvent& d)
{
    unsigned char buffer[256];
    unsigned short size = sizeof buffer;
    return d.EventNameChar(buffer, &size) ? std::string(buffer, buffer + size) : "<none>";
}

std::string EventText(const TCDescShortEvent& d)
{
    unsigned char buffer[256];
    unsigned short size = sizeof buffer;
    return d.TextChar(buffer, &size) ? std::string(buffer, buffer + size) : "<none>";
}

// Items "Dir"/"Ann" and "Cast"/"Bo", 16 bytes.
Bytes Items()
{
    return {3, 'D', 'i', 'r', 3, 'A', 'n', 'n', 4, 'C', 'a', 's', 't', 2, 'B', 'o'};
}

Bytes ExtendedBody(unsigned char numbers, const Bytes& items, const std::string& text)
{
    zumtest::ByteWriter w;
    w.U8(numbers).Text("eng").U8(static_cast<unsigned>(items.size())).Raw(items);
    w.U8(static_cast<unsigned>(text.size())).Text(text);
    return w.Data();
}

std::string ItemText(const CitemDesc* item, bool description)
{
    char buffer[256];
    int size = sizeof buffer;
    const bool ok = description ? item->ItemDescriptionChar(buffer, &size) : item->ItemChar(buffer, &size);
    return ok ? std::string(buffer, buffer + size) : "<none>";
}

} // namespace

// The DVB hook stops where the body's own lengths say the text cannot be
// read; the ISDB one takes what the body holds. The hook result shows in the
// length warning.
TEST(DescShortEvent, BodiesOfBothSystems)
{
    struct Case {
        const char* name;
        Bytes body;
        bool isdb;
        unsigned int language;
        std::string eventName;
        std::string text;
        int textLength;
        const char* warning; // the mismatch line, or null for none
    } cases[] = {
        {"full", {'e', 'n', 'g', 4, 'N', 'e', 'w', 's', 5, 'T', 'o', 'd', 'a', 'y'}, false, kEng, "News", "Today", 5,
         nullptr},
        {"full, ISDB", {'e', 'n', 'g', 4, 'N', 'e', 'w', 's', 5, 'T', 'o', 'd', 'a', 'y'}, true, kEng, "News",
         "Today", 5, nullptr},
        {"empty name and text", {'e', 'n', 'g', 0, 0}, false, kEng, "<none>", "<none>", 0, nullptr},
        {"name reaches the end", {'e', 'n', 'g', 3, 'A', 'B', 'C'}, false, kEng, "ABC", "<none>", 0, nullptr},
        {"name reaches the end, ISDB", {'e', 'n', 'g', 3, 'A', 'B', 'C'}, true, kEng, "ABC", "<none>", 0, nullptr},
        {"name runs over", {'e', 'n', 'g', 9, 'A', 'B'}, false, kEng, "AB", "<none>", 0, nullptr},
        {"text runs over", {'e', 'n', 'g', 1, 'A', 9, 'x', 'y'}, false, kEng, "A", "<none>", 9,
         "inLen=8, outLen=6"},
        {"text runs over, ISDB", {'e', 'n', 'g', 1, 'A', 9, 'x', 'y'}, true, kEng, "A", "xy", 2, nullptr},
        {"language only", {'e', 'n', 'g'}, false, kEng, "<none>", "<none>", 0, nullptr},
        {"language cut", {'e', 'n'}, false, 0, "<none>", "<none>", 0, "inLen=2, outLen=0"},
        {"language cut, ISDB", {'e', 'n'}, true, 0, "<none>", "<none>", 0, "inLen=2, outLen=0"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        zumtest::LogCapture log;
        TCDescShortEvent* raw = c.isdb ? new TCDescShortEventISDB() : new TCDescShortEvent();
        auto d = Decode(raw, Desc(0x4D, c.body));
        EXPECT_EQ(d->Tag(), 0x4D);
        EXPECT_EQ(d->Language(), c.language);
        EXPECT_EQ(EventName(*d), c.eventName);
        EXPECT_EQ(EventText(*d), c.text);
        EXPECT_EQ(d->TextLength(), c.textLength);
        if (c.warning)
            EXPECT_TRUE(log.Contains(c.warning));
        else
            EXPECT_FALSE(log.Contains("length mismatch"));
    }
}

TEST(DescShortEvent, LengthZeroRunsNoHook)
{
    for (bool isdb : {false, true}) {
        int parsed = 0;
        zumtest::LogCapture log;
        TCDescShortEvent* raw = isdb ? new TCDescShortEventISDB() : new TCDescShortEvent();
        auto d = Decode(raw, Desc(0x4D, {}), &parsed);
        EXPECT_EQ(parsed, 2);
        EXPECT_EQ(EventName(*d), "<none>");
        EXPECT_TRUE(log.Lines().empty());
    }
}

TEST(DescShortEvent, TextCopyAtItsBoundaries)
{
    auto d = Decode(new TCDescShortEvent(), Desc(0x4D, {'e', 'n', 'g', 4, 'N', 'e', 'w', 's', 0}));
    struct Case {
        int capacity;
        bool result;
        int size;
        std::string bytes;
    } cases[] = {
        {5, true, 4, "News###"},
        {4, true, 4, "News##"},
        {3, false, 3, "New##"},
        {0, false, 0, "##"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.capacity);
        Copied got = CopyWith<unsigned char, unsigned short>(
            c.capacity, [&](unsigned char* b, unsigned short* s) { return d->EventNameChar(b, s); });
        EXPECT_EQ(got.result, c.result);
        EXPECT_EQ(got.size, c.size);
        EXPECT_EQ(got.bytes, c.bytes);
    }
}

// An event name with a character table selector reaches the converter intact.
TEST(DescShortEvent, NameConvertsWithItsSelector)
{
    auto d = Decode(new TCDescShortEvent(), Desc(0x4D, {'t', 'u', 'r', 4, 0x05, 'D', 0xF0, 'a', 0}));
    unsigned char buffer[256];
    unsigned short size = sizeof buffer;
    ASSERT_TRUE(d->EventNameChar(buffer, &size));
    TCUnicodeConverter converter(kZUMDefaultHandle);
    std::basic_string<unsigned short> text;
    ASSERT_TRUE(converter.ConvertToUnicode(buffer, size, text, false, d->Language(), true));
    EXPECT_EQ(text, (std::basic_string<unsigned short>{'D', 0x11F, 'a'}));
}

TEST(DescExtendedEvent, DecodesHeaderItemsAndText)
{
    zumtest::LogCapture log;
    auto d = Decode(new TCDescExtendedEvent(), Desc(0x4E, ExtendedBody(0x12, Items(), "Long text")));
    EXPECT_FALSE(log.Contains("length mismatch"));
    EXPECT_EQ(d->DescriptorNumber(), 1);
    EXPECT_EQ(d->LastDescriptorNumber(), 2);
    EXPECT_EQ(d->Language(), kEng);
    EXPECT_EQ(d->LengthOfItems(), 16);
    EXPECT_EQ(d->TextLength(), 9u);
    ASSERT_EQ(d->SizeOfItem(), 2u);
    EXPECT_EQ(ItemText(d->Item(0), true), "Dir");
    EXPECT_EQ(ItemText(d->Item(0), false), "Ann");
    EXPECT_EQ(ItemText(d->Item(1), true), "Cast");
    EXPECT_EQ(ItemText(d->Item(1), false), "Bo");
    EXPECT_EQ(d->Item(2), nullptr);
}

// Where the lengths of the body do not add up, the header stays and neither
// items nor text are kept.
TEST(DescExtendedEvent, BodiesThatDoNotAddUp)
{
    // A text length that claims one byte more than the body holds.
    Bytes textOver = ExtendedBody(0x01, Items(), "abc");
    textOver[textOver.size() - 4] = 4;
    struct Case {
        const char* name;
        Bytes body;
        const char* warning;
    } cases[] = {
        {"text runs over", textOver, "inLen=25, outLen=22"},
        {"items reach the end", {0x01, 'e', 'n', 'g', 2, 1, 'A'}, "inLen=7, outLen=5"},
        {"header only", {0x01, 'e', 'n', 'g', 0}, nullptr},
        {"header cut", {0x01, 'e', 'n'}, "inLen=3, outLen=1"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        zumtest::LogCapture log;
        auto d = Decode(new TCDescExtendedEvent(), Desc(0x4E, c.body));
        EXPECT_EQ(d->DescriptorNumber(), 0);
        EXPECT_EQ(d->LastDescriptorNumber(), 1);
        EXPECT_EQ(d->Language(), c.body.size() >= 4 ? kEng : 0u);
        EXPECT_EQ(d->SizeOfItem(), 0u);
        unsigned char buffer[64];
        unsigned short size = sizeof buffer;
        EXPECT_FALSE(d->TextChar(buffer, &size));
        if (c.warning)
            EXPECT_TRUE(log.Contains(c.warning));
        else
            EXPECT_FALSE(log.Contains("length mismatch"));
    }
}

// Each item takes what the items area leaves: a description that fills it
// reads no item, and both lengths are cut at its end.
TEST(DescExtendedEvent, ItemsCutAtTheItemsArea)
{
    struct Case {
        const char* name;
        Bytes items;
        std::string description;
        std::string item;
    } cases[] = {
        {"description fills the area", {3, 'D', 'i', 'r'}, "Dir", "<none>"},
        {"item cut", {2, 'D', 'i', 7, 'X'}, "Di", "X"},
        {"description cut", {9, 'D'}, "D", "<none>"},
        {"empty item", {1, 'D', 0}, "D", "<none>"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        auto d = Decode(new TCDescExtendedEvent(), Desc(0x4E, ExtendedBody(0x00, c.items, "t")));
        ASSERT_EQ(d->SizeOfItem(), 1u);
        EXPECT_EQ(ItemText(d->Item(0), true), c.description);
        EXPECT_EQ(ItemText(d->Item(0), false), c.item);
    }
}

TEST(DescExtendedEvent, ItemParseRefusesNothingToRead)
{
    zumtest::LogCapture log;
    CitemDesc item;
    const unsigned char data[] = {1, 'A'};
    EXPECT_EQ(item.Parse(data, 0), 0);
    EXPECT_EQ(item.Parse(nullptr, 5), 5);
    ASSERT_EQ(log.Lines(DLOG_ERROR).size(), 2u);
    EXPECT_EQ(log.Lines(DLOG_ERROR)[0].rfind("ERROR!, Func:Parse, Line:", 0), 0u);
    EXPECT_TRUE(log.Contains("len: 0"));
}

TEST(DescExtendedEvent, LengthZeroRunsNoHook)
{
    zumtest::LogCapture log;
    int parsed = 0;
    auto d = Decode(new TCDescExtendedEvent(), Desc(0x4E, {}), &parsed);
    EXPECT_EQ(parsed, 2);
    EXPECT_EQ(d->SizeOfItem(), 0u);
    EXPECT_TRUE(log.Lines().empty());
}

// The long text is copied with true also when cut.
TEST(DescExtendedEvent, TextCopyAnswersTrueWhenCut)
{
    auto d = Decode(new TCDescExtendedEvent(), Desc(0x4E, ExtendedBody(0x00, {}, "Long text")));
    struct Case {
        int capacity;
        bool result;
        int size;
        std::string bytes;
    } cases[] = {
        {9, true, 9, "Long text##"},
        {8, true, 8, "Long tex##"},
        {0, false, 0, "##"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.capacity);
        Copied got = CopyWith<unsigned char, unsigned short>(
            c.capacity, [&](unsigned char* b, unsigned short* s) { return d->TextChar(b, s); });
        EXPECT_EQ(got.result, c.result);
        EXPECT_EQ(got.size, c.size);
        EXPECT_EQ(got.bytes, c.bytes);
    }
}

// Pieces of one text differ in number; the same piece matches whatever the
// case of its language.
TEST(DescExtendedEvent, FlagEqualFindsTheSamePiece)
{
    auto piece = [](unsigned char numbers, const char* language) {
        zumtest::ByteWriter w;
        w.U8(numbers).Text(language).U8(0).U8(1).Text("x");
        return Decode(new TCDescExtendedEvent(), Desc(0x4E, w.Data()));
    };
    auto first = piece(0x01, "eng");
    struct Case {
        const char* name;
        unsigned char numbers;
        const char* language;
        bool equal;
    } cases[] = {
        {"same", 0x01, "eng", true},
        {"other case", 0x01, "ENG", true},
        {"next piece", 0x11, "eng", false},
        {"other last number", 0x02, "eng", false},
        {"other language", 0x01, "deu", false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(first->FlagEqual(piece(c.numbers, c.language).get()), c.equal);
    }
    EXPECT_FALSE(first->FlagEqual(static_cast<const TCDescExtendedEvent*>(nullptr)));
}

TEST(DescShortEvent, FactoryRowsThroughLoops)
{
    const Bytes shortEvent = Desc(0x4D, {'e', 'n', 'g', 0, 0});
    const Bytes extendedEvent = Desc(0x4E, ExtendedBody(0x00, {}, "t"));
    const svctest::Row rows[] = {
        {"GBR", 0x4E, shortEvent, 0x4D, typeid(TCDescShortEvent)},
        {"GBR", 0x4E, extendedEvent, 0x4E, typeid(TCDescExtendedEvent)},
        {"BRA", 0x4E, shortEvent, 0x4D, typeid(TCDescShortEventISDB)},
        {"BRA", 0x4E, extendedEvent, 0x4E, typeid(TCDescExtendedEvent)},
        {"JPN", 0x4E, shortEvent, 0x4D, typeid(TCDescShortEventISDB)},
    };
    for (const svctest::Row& row : rows) {
        SCOPED_TRACE(row.expected.name());
        EXPECT_EQ(svctest::ClassOfRow(row), row.expected.name());
    }
}
