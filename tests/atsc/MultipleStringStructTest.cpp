#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include <zum-platform/Codes.h>

#include "atsc/MultipleStringStruct.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"

using zumtest::Bytes;
using zumtest::Concat;

namespace {

struct Seg {
    unsigned compression, mode;
    Bytes bytes;
};

Bytes Str(const char* language, const std::vector<Seg>& segments)
{
    zumtest::ByteWriter w;
    w.Raw({static_cast<uint8_t>(language[0]), static_cast<uint8_t>(language[1]), static_cast<uint8_t>(language[2])});
    w.U8(static_cast<unsigned>(segments.size()));
    for (const Seg& s : segments)
        w.U8(s.compression).U8(s.mode).Begin8().Raw(s.bytes).End();
    return w.Data();
}

Bytes Mss(const std::vector<Bytes>& strings)
{
    Bytes out{static_cast<uint8_t>(strings.size())};
    for (const Bytes& s : strings)
        out.insert(out.end(), s.begin(), s.end());
    return out;
}

Bytes Ascii(const std::string& text)
{
    return Bytes(text.begin(), text.end());
}

// Big-endian UTF-16 of ASCII text, high byte `high`.
Bytes Utf16(const std::string& text, uint8_t high = 0)
{
    Bytes out;
    for (char c : text) {
        out.push_back(high);
        out.push_back(static_cast<uint8_t>(c));
    }
    return out;
}

struct Rendered {
    bool ok;
    Bytes text;
    unsigned int language;
};

Rendered Render(const TCMultipleStringStruct& mss, unsigned int prefer, int country = 0, int capacity = 64,
                ELanguageCode osd = ZumPackCode("eng"))
{
    std::vector<char> text(static_cast<size_t>(std::max(capacity, 1)), '\x7E');
    int length = capacity;
    unsigned int language = 0xDEAD;
    const bool ok = mss.GetMutipleText(osd, prefer, country, text.data(), &length, &language);
    return {ok, Bytes(text.begin(), text.begin() + length), language};
}

// "The next" under the title table.
const Bytes kTheNext = {0x43, 0x28, 0xDC, 0x84, 0xD4};

} // namespace

TEST(MultipleStringStruct, SetConsumesWhatItReadsAndKeepsCutSegments)
{
    struct Case {
        const char* name;
        Bytes data;
        unsigned consumed, numberStrings;
        bool firstHeld;
        int segments;
        std::string log;
    } cases[] = {
        {"empty structure", {0x00}, 1, 0, false, -1, ""},
        {"one segment", Mss({Str("eng", {{0, 0, Ascii("AB")}})}), 10, 1, true, 1, ""},
        {"no segments", Mss({Str("eng", {})}), 5, 1, true, 0, ""},
        {"number_bytes 0", Mss({Str("eng", {{0, 0, {}}})}), 8, 1, true, 1, ""},
        {"segment cut by the end", {0x01, 'e', 'n', 'g', 0x01, 0, 0, 0x05, 'A', 'B'}, 10, 1, true, 1,
         "TCMultipleStringSegment::Set size error 8"},
        {"second string missing", {0x02, 'e', 'n', 'g', 0x01, 0, 0, 0x01, 'A'}, 9, 2, false, -1,
         "TCMultipleStringStruct::Set size error 13"},
        {"segment header cut", {0x01, 'e', 'n', 'g', 0x02, 0, 0, 0x01, 'A', 0x00}, 10, 1, true, 2,
         "TCMultipleString::Set size error 11"},
        {"nothing at all", {}, 0, 0, false, -1, "TCMultipleStringStruct::Set size error 1"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        zumtest::LogCapture log;
        TCMultipleStringStruct mss;
        EXPECT_EQ(mss.Set(c.data.data(), static_cast<unsigned>(c.data.size())), c.consumed);
        EXPECT_EQ(mss.NumOfStrings(), c.numberStrings);
        ASSERT_EQ(mss.String(0) != nullptr, c.firstHeld);
        if (c.firstHeld) {
            EXPECT_EQ(mss.String(0)->ISO639LanguageCode(), ZumPackCode("eng"));
            EXPECT_EQ(mss.String(0)->NumOfSegments(), c.segments);
        }
        EXPECT_EQ(log.Lines(), c.log.empty() ? std::vector<std::string>{} : std::vector<std::string>{c.log});
    }
    // The cut segment keeps the two bytes that arrived; a cut string header keeps no segment.
    TCMultipleStringStruct cut;
    const Bytes shortSegment = {0x01, 'e', 'n', 'g', 0x01, 0, 0, 0x05, 'A', 'B'};
    cut.Set(shortSegment.data(), static_cast<unsigned>(shortSegment.size()));
    unsigned char bytes[8];
    int size = 1;
    EXPECT_FALSE(cut.String(0)->Segment(0)->GetCompressedStringByte(bytes, &size));
    size = 2;
    EXPECT_TRUE(cut.String(0)->Segment(0)->GetCompressedStringByte(bytes, &size));
    EXPECT_EQ(Bytes(bytes, bytes + size), Ascii("AB"));
    EXPECT_EQ(cut.String(1), nullptr);
    EXPECT_EQ(cut.String(-1), nullptr);
}

TEST(MultipleStringStruct, ChoosesTheViewersGroupThenTheDefaultThenTheFirst)
{
    const unsigned kEng = ZumPackCode("eng"), kFre = ZumPackCode("fre"), kKor = ZumPackCode("kor");
    struct Case {
        const char* name;
        std::vector<const char*> languages;
        unsigned int prefer;
        int country;
        ELanguageCode osd;
        char text;
        unsigned int key;
    } cases[] = {
        {"fra finds fre", {"eng", "fre", "kor"}, ZumPackCode("fra"), 0, 0, 'F', kFre},
        {"en finds eng", {"fre", "eng"}, ZumPackCode("en"), 2, 0, 'E', kEng},
        {"number 2 finds eng", {"fre", "eng"}, 2, 2, 0, 'E', kEng},
        {"number 18 finds eng", {"fre", "eng"}, 18, 2, 0, 'E', kEng},
        {"upper case on air", {"spa", "ENG"}, ZumPackCode("eng"), 2, 0, 'E', kEng},
        {"unknown wish, Korea's default", {"fre", "kor", "eng"}, ZumPackCode("xyz"), 2, 0, 'K', kKor},
        {"unknown wish, default of the menu language", {"kor", "fre"}, 0x999, 7, ZumPackCode("fre"), 'F', kFre},
        {"no group string never matches an unknown wish", {"xyz", "eng"}, ZumPackCode("qqq"), 7, 0, 'E', kEng},
        {"nothing matches: the first", {"ger", "ita"}, ZumPackCode("fre"), 2, 0, 'G', ZumPackCode("ger")},
        {"the wish beats an earlier default", {"eng", "fre"}, ZumPackCode("fre"), 0, 0, 'F', kFre},
        {"default group first among several", {"ita", "eng", "eng"}, ZumPackCode("rus"), 1, 0, 'E', kEng},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        std::vector<Bytes> strings;
        for (const char* language : c.languages)
            strings.push_back(Str(language, {{0, 0, {static_cast<uint8_t>(language[0] & ~0x20)}}}));
        const Bytes data = Mss(strings);
        TCMultipleStringStruct mss;
        mss.Set(data.data(), static_cast<unsigned>(data.size()));
        const Rendered r = Render(mss, c.prefer, c.country, 64, c.osd);
        EXPECT_TRUE(r.ok);
        EXPECT_EQ(r.text, Bytes({0, static_cast<uint8_t>(c.text)}));
        EXPECT_EQ(r.language, c.key);
    }
}

TEST(MultipleStringStruct, RendersSegmentsByModeWithinTheCapacity)
{
    struct Case {
        const char* name;
        std::vector<Seg> segments;
        int capacity;
        bool ok;
        Bytes text;
    } cases[] = {
        {"mode 0", {{0, 0, Ascii("AB")}}, 64, true, Utf16("AB")},
        {"mode is the high byte", {{0, 0x01, Ascii("A")}, {0, 0x33, Ascii("B")}}, 64, true,
         Concat({Utf16("A", 0x01), Utf16("B", 0x33)})},
        {"UTF-16 on air, odd length as it stands", {{0, 0x3F, {0x30, 0x42, 0x30}}}, 64, true, {0x30, 0x42, 0x30}},
        {"capacity 1 writes no character", {{0, 0, Ascii("AB")}}, 1, false, {}},
        {"capacity 2 writes one character", {{0, 0, Ascii("AB")}, {0, 0, Ascii("C")}}, 2, true, Utf16("A")},
        {"a cut character leaves room for UTF-16 bytes", {{0, 0, Ascii("AB")}, {0, 0x3F, Ascii("XY")}}, 3, true,
         {0x00, 'A', 'X'}},
        {"UTF-16 cut at the capacity", {{0, 0x3F, Ascii("WXYZ")}, {0, 0, Ascii("A")}}, 3, true, Ascii("WXY")},
        {"skipped modes leave the others", {{0, 0, Ascii("A")}, {0, 0x07, Ascii("B")}, {0, 0x11, Ascii("B")},
          {0, 0x28, Ascii("B")}, {0, 0x34, Ascii("B")}, {0, 0x40, Ascii("B")}, {0, 0x10, Ascii("C")}}, 64, true,
         Concat({Utf16("A"), Utf16("C", 0x10)})},
        {"title Huffman", {{1, 0, kTheNext}}, 64, true, Utf16("The next")},
        {"unknown compression skipped", {{5, 0, Ascii("X")}, {0, 0, Ascii("Y")}}, 64, true, Utf16("Y")},
        {"only empty segments", {{0, 0, {}}}, 64, false, {}},
        {"no segments", {}, 64, false, {}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const Bytes data = Mss({Str("eng", c.segments)});
        TCMultipleStringStruct mss;
        mss.Set(data.data(), static_cast<unsigned>(data.size()));
        const Rendered r = Render(mss, ZumPackCode("eng"), 0, c.capacity);
        EXPECT_EQ(r.ok, c.ok);
        EXPECT_EQ(r.text, c.text);
        // The key is written also when the text comes out empty.
        EXPECT_EQ(r.language, ZumPackCode("eng"));
    }
}

TEST(MultipleStringStruct, RefusesWithoutStringsOrBuffer)
{
    const Bytes empty = {0x00};
    TCMultipleStringStruct mss;
    mss.Set(empty.data(), 1);
    Rendered r = Render(mss, 2);
    EXPECT_FALSE(r.ok);
    EXPECT_TRUE(r.text.empty());
    EXPECT_EQ(r.language, 0xDEADu);

    const Bytes one = Mss({Str("eng", {{0, 0, Ascii("A")}})});
    mss.Set(one.data(), static_cast<unsigned>(one.size()));
    char text[4] = {'x', 'x', 'x', 'x'};
    int length = 0;
    EXPECT_FALSE(mss.GetMutipleText(0, 2, 0, text, &length, nullptr));
    length = 4;
    EXPECT_FALSE(mss.GetMutipleText(0, 2, 0, nullptr, &length, nullptr));
    EXPECT_EQ(length, 4);
    EXPECT_TRUE(mss.GetMutipleText(0, 2, ECOUNTRY_NONE, text, &length, nullptr));
    EXPECT_EQ(length, 2);

    // Never set: the assertion of each accessor, and its fallback.
    zumtest::LogCapture log;
    TCMultipleStringStruct fresh;
    EXPECT_EQ(fresh.NumOfStrings(), 0);
    EXPECT_EQ(fresh.String(0), nullptr);
    EXPECT_EQ(TCMultipleString().NumOfSegments(), 0);
    TCMultipleStringSegment segment;
    EXPECT_EQ(segment.Mode(), 0);
    unsigned char bytes[4];
    int size = 4;
    EXPECT_FALSE(segment.GetCompressedStringByte(bytes, &size));
    for (const char* failed : {"m_numberStrings != INVALID", "m_numberSegments != INVALID",
                               "m_numberBytes != INVALID && pData && pSize"})
        EXPECT_TRUE(log.Contains(std::string("Failed: ") + failed)) << failed;
}

TEST(MultipleStringStruct, CopiesDeeply)
{
    const Bytes data = Mss({Str("fre", {{0, 0, Ascii("Bonjour")}}), Str("eng", {{1, 0, kTheNext}})});
    auto source = std::make_unique<TCMultipleStringStruct>();
    source->Set(data.data(), static_cast<unsigned>(data.size()));
    TCMultipleStringStruct copy(*source);
    TCMultipleStringStruct assigned;
    assigned = *source;
    source.reset();
    EXPECT_EQ(Render(copy, ZumPackCode("eng")).text, Utf16("The next"));
    EXPECT_EQ(Render(assigned, ZumPackCode("fre")).text, Utf16("Bonjour"));
    EXPECT_EQ(assigned.NumOfStrings(), 2);
}

TEST(MultipleStringStruct, LanguageGroupsAndDefaults)
{
    struct Sound { unsigned int value, key; } sounds[] = {
        {ZumPackCode("ENM"), ZumPackCode("eng")}, {ZumPackCode("v.o"), ZumPackCode("qaa")},
        {0x616420, 0x616420},                      {0x616400, 0x616420},
        {ZumPackCode("888"), ZumPackCode("888")},  {29, ZumPackCode("chi")},
        {ZumPackCode("smi"), ZumPackCode("smi")},  {999, kLanguageNoGroup},
        {ZumPackCode("xyz"), kLanguageNoGroup},
    };
    for (const Sound& s : sounds)
        EXPECT_EQ(TCMultipleStringStruct::MultipleSound(s.value), s.key) << std::hex << s.value;

    struct Default { int country; ELanguageCode osd; unsigned int number; } defaults[] = {
        {0, ZumPackCode("ger"), 2},  {1, 0, 2},  {2, 0, 1},  {34, 0, 5},  {7, ZumPackCode("ger"), 13},
        {7, 0x616420, 42},           {7, ZumPackCode("smi"), 106},       {7, ZumPackCode("kor"), 18},
        {7, ZumPackCode("srp"), 18}, {7, ZumPackCode("GER"), 18},
    };
    for (const Default& d : defaults) {
        zumtest::LogCapture log;
        EXPECT_EQ(TCMultipleStringStruct::DefaultPreferLanguage(d.osd, d.country), d.number) << d.country;
        EXPECT_EQ(log.Lines(), std::vector<std::string>{"TCMultipleStringStruct::DefaultPreferLanguage Default OSD "
                                                        "Language = " + std::to_string(d.number)});
    }
    // 104 rows before the terminator.
    int rows = 0;
    for (const unsigned int* row = g_MTSSIGroup[0]; row[0] != 0xFFFFFFFF; row += 10)
        ++rows;
    EXPECT_EQ(rows, 104);
}

TEST(MultilingualText, RecordsAndTheirUtf16)
{
    const Bytes data = {0x00, 0x02, 'H', 'i', 0x3F, 0x03, 0x30, 0x42, 0x30, 0x05, 0x00, 0x01, 0x04, 'c', 'u'};
    TCMultilingualTextString texts;
    EXPECT_TRUE(texts.Set(data.data(), static_cast<int>(data.size())));
    ASSERT_EQ(texts.NumOfMultilingualText(), 4u);
    EXPECT_EQ(texts.MultilingualText(4), nullptr);
    struct Case { unsigned index; unsigned char capacity; int result; Bytes out; } cases[] = {
        {0, 10, 1, Utf16("Hi")},  {0, 3, 1, Utf16("H")},           {1, 10, 1, {0x30, 0x42, 0x30}},
        {1, 2, 1, {0x30, 0x42}},  {2, 10, 0, {}},                  {3, 10, 1, Utf16("cu")},
    };
    for (const Case& c : cases) {
        unsigned char out[16] = {};
        unsigned char size = c.capacity;
        EXPECT_EQ(texts.MultilingualText(c.index)->GetSgment(out, &size), c.result) << c.index;
        EXPECT_EQ(Bytes(out, out + (c.result ? size : 0)), c.out) << c.index;
    }
    zumtest::LogCapture log;
    EXPECT_FALSE(texts.Set(data.data(), 2));
    EXPECT_TRUE(log.Contains("Failed: m_numberStrings == 0"));
}

TEST(UniCodeText, CopiesInAndOut)
{
    zumtest::LogCapture log;
    TCUniCodeText text;
    unsigned char in[] = {0, 'A', 0, 'B'};
    unsigned char out[4] = {};
    unsigned short length = 4;
    EXPECT_TRUE(text.UniCodeText(out, &length));
    EXPECT_EQ(length, 0);
    EXPECT_FALSE(text.SetUniCodeText(1, in, 0));
    EXPECT_TRUE(log.Contains("Failed: length > 0"));
    EXPECT_TRUE(text.SetUniCodeText(7, in, 4));
    TCUniCodeText copy;
    copy = text;
    text.DeleteAll();
    length = 3;
    EXPECT_FALSE(copy.UniCodeText(out, &length));
    EXPECT_TRUE(log.Contains("UniCodeText leng does not correct... text length = 4 , input length = 3"));
    length = 4;
    EXPECT_TRUE(copy.UniCodeText(out, &length));
    EXPECT_EQ(Bytes(out, out + length), Utf16("AB"));
    EXPECT_EQ(copy.Language(), 7);
    length = 0;
    EXPECT_FALSE(copy.UniCodeText(out, &length));
    EXPECT_TRUE(log.Contains("Failed: pString && length && *length > 0"));
}
