#include <gtest/gtest.h>

#include <list>
#include <string>

#include "atsc/MultipleStringStruct.h"
#include "dvb/DVBRCTParser.h"
#include "program/RelatedContentLink.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zumtest::Bytes;
using zumtest::Concat;
using zumtest::Desc;

namespace {

Bytes Text(const std::string& s) { return Bytes(s.begin(), s.end()); }

// A link of `type` in scheme 2 with `term`; the URI, promotional items (language and text), and the loop.
Bytes Link(unsigned type, unsigned term, const std::string& uri, const std::vector<std::string>& items = {},
           const Bytes& loop = {}, unsigned itemsByte = 0xFF)
{
    zumtest::ByteWriter w;
    w.U8(type << 4).U8(0x20 | (term >> 8)).U8(term & 0xFF).U8(0x11);
    w.Begin8().Text(uri).End();
    w.U8(itemsByte == 0xFF ? items.size() : itemsByte);
    for (const std::string& item : items)
        w.Text(item.substr(0, 3)).Begin8().Text(item.substr(3)).End();
    w.Begin16(12, 0xD000).Raw(loop).End(); // default icon, icon id 5
    return w.Data();
}

Bytes Rct(unsigned id, unsigned version, const std::vector<Bytes>& links, const Bytes& loop = {})
{
    zumtest::SectionBuilder b(zumtest::LongHeader(0x76, id, version));
    b.U16(0).U8(links.size());
    for (const Bytes& link : links)
        b.Begin16().Raw(link).End();
    b.Begin16().Raw(loop).End();
    return b.Build();
}

std::string Utf16(const std::basic_string<unsigned short>& s)
{
    return std::string(reinterpret_cast<const char*>(s.data()), s.size() * 2);
}

std::list<TCRelatedContentLink*> Links(const TCDVBRCTInstance* instance)
{
    std::list<TCRelatedContentLink*> links;
    if (instance)
        instance->GetInternalRelatedContentLinks(links);
    return links;
}

} // namespace

TEST(DVBRCTParser, LinksTextsAndLoops)
{
    zumtest::BinderScope binder;
    TCDVBRCTParser rct{ZUMHandle()};
    rct.Initialize();
    const Bytes event = Desc(0x4D, Concat({Text("eng"), {2}, Text("Ev"), {0}}));
    const Bytes section = Rct(5, 1, {Link(0, 2, "crid://a", {"engHi", "deuOk"}, event), {}, {0x10, 0, 0}},
                              Desc(0x73, Text("bbc")));
    zumtest::LogCapture log;
    EXPECT_TRUE(rct.Parse(0x100, section.data()));
    EXPECT_TRUE(log.Contains("TCDVBRCTInstance::Parse Called, CRC["));
    const TCDVBRCTInstance* instance = rct.GetRCTInstance(5);
    ASSERT_NE(instance, nullptr);
    EXPECT_EQ(instance->NumOfDescriptors(0x73), 1);
    const std::list<TCRelatedContentLink*> links = Links(instance);
    ASSERT_EQ(links.size(), 2u);
    const TCRelatedContentLink& uri = *links.front();
    std::string text;
    EXPECT_TRUE(uri.GetInternalURI(text));
    EXPECT_EQ(text, "crid://a");
    EXPECT_EQ(uri.HowRelated(), 49);
    EXPECT_EQ(uri.IconId(), 5);
    EXPECT_TRUE(uri.DefaultIcon());
    EXPECT_TRUE(uri.GetInternalPromotionalText(1, text));
    EXPECT_EQ(text, Utf16({'O', 'k'}));
    EXPECT_FALSE(uri.GetInternalPromotionalText(2, text));
    TCUniCodeText name;
    EXPECT_TRUE(uri.GetInternalEventName(0, name));
    EXPECT_EQ(name.Language(), 0x656E67);
    EXPECT_EQ(uri.NumOfDescriptors(0x4D), 1);
    EXPECT_EQ(links.back()->LinkType(), 1);
    EXPECT_FALSE(links.back()->GetInternalURI(text));

    // The same section again is no news; a version change replaces the links.
    EXPECT_FALSE(rct.Parse(0x100, section.data()));
    EXPECT_TRUE(rct.Parse(0x100, Rct(5, 2, {}).data()));
    EXPECT_EQ(Links(rct.GetRCTInstance(5)).size(), 0u);
    EXPECT_EQ(rct.GetRCTInstance(5)->NumOfDescriptors(), 0);
}

// A link that ends early ends the table: the links before it stand, the table's loop is not read.
TEST(DVBRCTParser, LinkEndingEarlyEndsTheTable)
{
    zumtest::BinderScope binder;
    TCDVBRCTParser rct{ZUMHandle()};
    rct.Initialize();
    Bytes shortUri = Link(0, 5, "crid://b");
    shortUri[4] = 40;
    rct.Parse(0x100, Rct(7, 0, {Link(0, 5, "x"), shortUri, Link(0, 5, "y")}, Desc(0x73, Text("a"))).data());
    const TCDVBRCTInstance* instance = rct.GetRCTInstance(7);
    ASSERT_EQ(Links(instance).size(), 1u);
    EXPECT_EQ(Links(instance).front()->HowRelated(), 50);
    EXPECT_EQ(instance->NumOfDescriptors(), 0);
}

TEST(DVBRCTParser, InstanceByIdAndIndex)
{
    zumtest::BinderScope binder;
    struct Case { std::vector<unsigned> ids; int of7; } cases[] = {
        {{5, 0xFFFF}, 0xFFFF}, {{5, 7}, 7}, {{5}, -1}};
    for (const Case& c : cases) {
        TCDVBRCTParser rct{ZUMHandle()};
        rct.Initialize();
        for (unsigned id : c.ids)
            rct.Parse(0x100, Rct(id, 0, {}).data());
        const TCDVBRCTInstance* of7 = rct.GetRCTInstance(7);
        EXPECT_EQ(of7 ? of7->Id() : -1, c.of7);
        EXPECT_EQ(rct.NumOfRCTInstance(), static_cast<int>(c.ids.size()));
        EXPECT_EQ(rct.RCTInstanceOfIndex(0)->Id(), 5);
        EXPECT_EQ(rct.RCTInstanceOfIndex(static_cast<unsigned>(c.ids.size())), nullptr);
    }
}

// What a link reports taken, by kind and by where it ends.
TEST(RelatedContentLink, ParseResults)
{
    zumtest::BinderScope binder;
    Bytes uriPast = Link(0, 2, "abc");
    uriPast[4] = 20;
    struct Case { Bytes link; int result; int howRelated; unsigned items; } cases[] = {
        {Link(1, 2, "abc"), -1, 52, 0},
        {Link(0, 3, "abc"), -1, 52, 0},
        {uriPast, 5, 49, 0},
        {Link(0, 2, "", {}), -1, 49, 0},
        {Link(0, 2, "u", {"engA", "engB"}, {}, 0xC2), -1, 49, 2},
        {Concat({Link(0, 2, "u", {"engA"}, {}, 2)}), 12, 49, 1},
        {{0x00, 0x20}, -1, 52, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(c.link));
        TCRelatedContentLink link{ZUMHandle()};
        const int result = link.Parse(c.link.data(), static_cast<unsigned>(c.link.size()));
        EXPECT_EQ(result, c.result < 0 ? static_cast<int>(c.link.size()) : c.result);
        EXPECT_EQ(link.HowRelated(), c.howRelated);
        EXPECT_EQ(link.NumOfPromotionalTexts(), c.items);
    }
    TCRelatedContentLink empty{ZUMHandle()};
    std::string text;
    EXPECT_FALSE(empty.GetInternalEventName(0, text));
}
