#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "DescLoopProbe.h"
#include "dvb/DescCRID.h"
#include "dvb/DescImageIcon.h"

using namespace svctest;
using zumtest::Concat;

namespace {

Bytes Text(const std::string& s) { return Bytes(s.begin(), s.end()); }

std::string Carousel(const TCDescImageIcon& d)
{
    unsigned int carousel = 0;
    UShort first = 0, second = 0, third = 0;
    return d.GetCarouselInfo(carousel, first, second, third) ? Join(carousel, first, second, third) : "-";
}

std::string Icon(const TCDescImageIcon& d)
{
    std::string path = "-";
    d.GetPathSegment(path);
    return Join(d.DescriptorNumber(), d.LastDescriptorNumber(), d.IconId(), d.TransportMode(), d.PositionFlag(),
                d.CoordinateSystem(), d.HorizontalOrigin(), d.VerticalOrigin(), "[" + d.IconType() + "]",
                d.IconDataLength(), "[" + d.URL() + "]", path, Carousel(d));
}

// A first piece located by `url`, of type "png".
Bytes ByUrl(const std::string& url)
{
    return Concat({{0x00, 0x01, 0x01, 0x40, 3}, Text("png"), {static_cast<UChar>(url.size())}, Text(url)});
}

std::string Crids(const TCDescCRID& d)
{
    std::string out = Join(d.IsValid(), d.NumOfCRID());
    for (unsigned i = 0; i <= static_cast<unsigned>(d.NumOfCRID()); ++i) {
        UChar type = 0xEE;
        UShort ref = 0;
        std::string crid;
        const bool here = d.GetCRID(crid, i);
        const bool byRef = d.GetCRIDRef(ref, i);
        out += " | " + Join(d.GetType(type, i), type, d.ContentInCIT(i), here, "[" + crid + "]", byRef, ref);
    }
    return out;
}

} // namespace

TEST(DescImageIcon, PiecesPositionsAndLocators)
{
    ExpectBodies(0x7F, [] { return new TCDescImageIcon(); }, Icon, {
        {{0x00, 0x12, 0xF8}, "1 2 0 0 0 3 0 0 [] 0 [] - -"},  // icon id 0: nothing more is read
        {Concat({{0x00, 0x01, 0x01, 0x00, 9}, Text("image/png"), {3, 1, 2, 3}}),
         "0 1 1 0 0 3 0 0 [image/png] 3 [] - -"},
        // Position flag, coordinate system 5 stored as 3, origins 0x123 and 0x456.
        {{0x00, 0x01, 0x01, 0x34, 0x12, 0x34, 0x56, 0, 0}, "0 1 1 0 1 3 291 1110 [] 0 [] - -"},
        {{0x00, 0x11, 0x01, 2, 0xAA, 0xBB}, "1 1 1 0 0 3 0 0 [] 2 [] - -"},
        {{0x00, 0x11, 0x01, 5, 0xAA}, "1 1 1 0 0 3 0 0 [] 5 [] - -", "inLen=5, outLen=4"},
        {{0x00, 0x01, 0x01, 0x00, 9, 'a'}, "0 1 1 0 0 3 0 0 [] 0 [] - -", "inLen=6, outLen=5"},
        {{0x00, 0x01, 0x01, 0x00, 0, 4, 1}, "0 1 1 0 0 3 0 0 [] 4 [] - -", "inLen=7, outLen=6"},
        {{0x00, 0x01, 0x01, 0x80, 1, 'a', 0xEE}, "0 1 1 2 0 3 0 0 [a] 0 [] - -", "inLen=7, outLen=6"},
        {ByUrl("dvb://233a.1004.1044$2f/logo.png"),
         "0 1 1 1 0 3 0 0 [png] 0 [dvb://233a.1004.1044$2f/logo.png] /logo.png 47 9018 4100 4164"},
        {ByUrl("dvb:/logo.png"), "0 1 1 1 0 3 0 0 [png] 0 [dvb:/logo.png] /logo.png -"},
        {ByUrl("dvb://1.2.3/x"), "0 1 1 1 0 3 0 0 [png] 0 [dvb://1.2.3/x] /x 3 1 2 65535"},
        {ByUrl("http://a/b.png"), "0 1 1 1 0 3 0 0 [png] 0 [http://a/b.png] - -"},
        {{0x00, 0x01, 0x01, 0x40, 0, 9, 'd'}, "0 1 1 1 0 3 0 0 [] 0 [] - -", "inLen=7, outLen=6"},
        {{0x13, 0x01}, "0 0 255 0 0 3 0 0 [] 0 [] - -", "inLen=2, outLen=0"},
    });
}

TEST(DescImageIcon, ImagePartOnlyIntoItsExactSize)
{
    auto d = Decode(new TCDescImageIcon(), Desc(0x7F, {0x00, 0x11, 0x01, 2, 0xAA, 0xBB}));
    UChar buffer[4] = {0, 0, 0, 0};
    EXPECT_FALSE(d->GetImagePart(buffer, 3));
    EXPECT_FALSE(d->GetImagePart(buffer, 0));
    EXPECT_EQ(buffer[0], 0);
    EXPECT_TRUE(d->GetImagePart(buffer, 2));
    EXPECT_EQ(Join(buffer[0], buffer[1], buffer[2]), "170 187 0");
    auto none = Decode(new TCDescImageIcon(), Desc(0x7F, {0x00, 0x11, 0x01, 5, 0xAA}));
    EXPECT_FALSE(none->GetImagePart(buffer, 5));
}

TEST(DescURILinkage, PollingIntervalOnlyForTypesZeroAndOne)
{
    auto show = [](const TCDescURILinkage& d) {
        return Join(d.GetURILinkageType(), "[" + d.GetURIString() + "]", d.GetMinPollingInterval(),
                    d.GetPrivateData().size());
    };
    ExpectBodies(0x7F, [] { return new TCDescURILinkage(); }, show, {
        {{0x13, 0x00, 3, 'a', 'b', 'c', 0x01, 0x2C}, "0 [abc] 300 0"},
        {{0x13, 0x01, 1, 'a', 0x00, 0x10, 7, 8}, "1 [a] 16 2"},
        {{0x13, 0x02, 1, 'a', 0x01, 0x2C}, "2 [a] 0 2"},
        {{0x13, 0x03, 9, 'a'}, "3 [a] 0 0"},
        {{0x13, 0x00, 0, 0x01}, "0 [] 0 0"},
        {{0x00, 0x00, 0}, "0 [] 0 0", "inLen=3, outLen=0"},
    });
}

TEST(DescCRID, EntriesHereAndByReference)
{
    ExpectBodies(0x76, [] { return new TCDescCRID(); }, Crids, {
        {Concat({{(5 << 2) | 1, 0x12, 0x34, (3 << 2) | 0, 3}, Text("a/b")}),
         "1 2 | 1 5 1 0 [] 1 4660 | 1 3 0 1 [a/b] 0 0 | 0 238 0 1 [] 0 0"},
        {{0x02}, "0 0 | 0 238 0 1 [] 0 0"},
        {{0x01, 0x12, 0x34, 0x00, 5, 'a'}, "0 0 | 0 238 0 1 [] 0 0", "inLen=6, outLen=5"},
        {{0x01, 0x12}, "0 0 | 0 238 0 1 [] 0 0", "inLen=2, outLen=1"},
        {{0x00}, "0 0 | 0 238 0 1 [] 0 0", "inLen=1, outLen=2"},
    });
}

// The loop's specifier reaches the CRID after decoding, a cached one first; a clone keeps it.
TEST(DescCRID, SpecifierOfTheLoop)
{
    const Bytes loop = Concat({Desc(0x5F, {0x00, 0x00, 0x23, 0x3A}), Desc(0x76, {0x01, 0x00, 0x07})});
    for (unsigned cached : {0xFFFFFFFFu, 0x1234u}) {
        zumtest::BinderScope binder;
        TCDescriptorHash hash;
        TCDescriptor descriptor{ZUMHandle()};
        descriptor.SetCachedPDSD(cached);
        descriptor.Parse(loop.data(), static_cast<int>(loop.size()), hash, 0x4E);
        auto* crid = dynamic_cast<TCDescCRID*>(hash.Descriptor(0x76, 0));
        ASSERT_NE(crid, nullptr);
        const unsigned expected = cached == 0x1234 ? 0x1234 : 0x233A;
        EXPECT_EQ(crid->PrivateDataSpecifier(), expected);
        std::unique_ptr<TCBaseDesc> clone(crid->Fork());
        EXPECT_EQ(static_cast<TCDescCRID*>(clone.get())->PrivateDataSpecifier(), expected);
    }
}

TEST(DescContentIdentifier, IdOfItsLengthOnly)
{
    zumtest::LogCapture log;
    auto refused = Decode(new TCDescContentIdentifier(), Desc(0xB6, {7, 3, 'a', 'b'}));
    EXPECT_TRUE(log.Contains("[TCDescContentIdentifier::t_Parse] wrong desc size m_idLength=3, len=4"));
    char buffer[8] = {};
    UChar size = 8;
    EXPECT_FALSE(refused->ContentIdentifier(buffer, &size));
    EXPECT_EQ(size, 0);

    auto kept = Decode(new TCDescContentIdentifier(), Desc(0xB6, {7, 3, 'a', 'b', 'c'}));
    size = 2;
    EXPECT_FALSE(kept->ContentIdentifier(buffer, &size));
    EXPECT_EQ(size, 0);
    size = 3;
    EXPECT_TRUE(kept->ContentIdentifier(buffer, &size));
    EXPECT_EQ(std::string(buffer, size), "abc");
    ExpectClone(*kept);
}

TEST(DescDefaultAuthority, WholeBodyOrNothing)
{
    std::string authority = "old";
    auto empty = Decode(new TCDescDefaultAuthority(), Desc(0x73, {}));
    EXPECT_FALSE(empty->GetAuthority(authority));
    EXPECT_EQ(authority, "");
    auto d = Decode(new TCDescDefaultAuthority(), Desc(0x73, Text("bbc.co.uk")));
    EXPECT_TRUE(d->GetAuthority(authority));
    EXPECT_EQ(authority, "bbc.co.uk");
    ExpectBodies(0x74, [] { return new TCDescRelatedContent(); }, [](const TCBaseDesc& r) { return Join(r.Tag()); },
                 {{{1, 2}, "116"}, {{1, 2, 3}, "116", "inLen=3, outLen=2"}});
}
