// Carousel and stream event descriptors of program tables.
#include <gtest/gtest.h>

#include "dvb/DescLoopProbe.h"
#include "isdb/DescCarouselIdent.h"

using namespace svctest;

namespace {

Bytes Cat(Bytes head, const Bytes& tail)
{
    head.insert(head.end(), tail.begin(), tail.end());
    return head;
}

// Version 3, module 7, block 4096, size 4096, no compression, original 4096, timeout 5, then the key length.
Bytes Specifier(unsigned char keyLength)
{
    return {3, 0, 7, 0x10, 0, 0, 0, 0x10, 0, 0, 0, 0, 0x10, 0, 5, keyLength};
}

} // namespace

// FormatId 1 reads the format specifier; a key that does not fit is counted but not kept, and leaves no
// private data.
TEST(DescCarouselIdent, Bodies)
{
    auto show = [](const TCDescCarouselIdent& d) {
        const TCFormatSpecifier& f = d.FormatSpecifier();
        return Join(d.CarouselId(), d.FormatId(), f.ModuleVersion(), f.ModuleId(), f.ModuleSize(), f.TimeOut(),
                    f.ObjectKeyLength(), f.ObjectKey() ? int(f.ObjectKey()[1]) : -1, d.PrivateDataLength(),
                    d.PrivateData() ? int(d.PrivateData()[0]) : -1);
    };
    const Bytes id = {0, 0, 0, 1};
    ExpectBodies(0x13, [] { return new TCDescCarouselIdent(); }, show, {
        {id, "1 0 0 0 0 0 0 -1 0 -1"},
        {Cat(id, {0, 0xAA, 0xBB}), "1 0 0 0 0 0 0 -1 2 170"},
        {Cat(id, {1}), "1 1 0 0 0 0 0 -1 0 -1"},
        {Cat(Cat(id, {1}), Cat(Specifier(2), {0x11, 0x22, 0xEE})), "1 1 3 7 4096 5 2 34 1 238"},
        {Cat(Cat(id, {1}), Cat(Specifier(9), {0x11, 0x22})), "1 1 3 7 4096 5 9 -1 0 -1", "inLen=23, outLen=30"},
        {Cat(Cat(id, {1}), Bytes(15, 0x44)), "1 1 0 0 0 0 0 -1 15 68"},
        {{0, 0, 1}, "0 0 0 0 0 0 0 -1 0 -1", "inLen=3, outLen=0"},
    });
    zumtest::LogCapture log;
    auto d = Decode(new TCDescCarouselIdent(), Desc(0x13, Cat(id, {2, 0xAA})));
    EXPECT_EQ(d->PrivateDataLength(), 0);
    EXPECT_EQ(log.Lines(), (std::vector<std::string>{" TCDescCarouselIdent::t_Parse FormatID = 2",
                                                     "[Warning] Descriptor[0x13] length mismatch!inLen=6, outLen=5"}));
}

// The selector is kept only when it fits; transaction id and timeout only for use 0 and 8 bytes or more.
TEST(DescAssociationTag, Bodies)
{
    auto show = [](const TCDescAssociationTag& d) {
        return Join(d.AssociationTag(), d.Use(), d.SelectorByteLength(), d.Selector() ? 1 : 0, d.PrivateDataLength(),
                    d.TransactionId(), d.Timeout());
    };
    const Bytes selector = {0x80, 0, 0, 2, 0, 0, 0xFF, 0xFF};
    ExpectBodies(0x14, [] { return new TCDescAssociationTag(); }, show, {
        {Cat({0, 0x0A, 0, 0, 8}, Cat(selector, {0xEE})), "10 0 8 1 1 2147483650 65535"},
        {Cat({0, 0x0A, 0x01, 0x00, 8}, selector), "10 256 8 1 0 0 0"},
        {Cat({0, 0x0A, 0, 0, 7}, Bytes(selector.begin(), selector.begin() + 7)), "10 0 7 1 0 0 0"},
        {{0, 0x0A, 0, 0, 3, 1, 2}, "10 0 3 0 0 0 0", "inLen=7, outLen=5"},
        {{0, 0x0A, 0, 1, 0, 0xEE}, "10 1 0 0 0 0 0", "inLen=6, outLen=5"},
        {{0, 0x0A, 0, 1}, "0 0 0 0 0 0 0"},
    });
}

// The loop, then the three identifiers behind the whole tags; a body that cannot hold them keeps loop length 0.
TEST(DescDeferredAssociationTags, Bodies)
{
    ExpectBodies(0x15, [] { return new TCDescDeferredAssociationTags(); },
        [](const TCDescDeferredAssociationTags& d) {
            return Join(d.AssociationTagsLoopLength(), d.NumOfAssociationTag(), d.AssociationTag(-1),
                        d.AssociationTag(0), d.AssociationTag(1), d.AssociationTag(2), d.TransportStreamId(),
                        d.ProgramNumber(), d.OriginalNetworkId(), d.PrivateDataLength());
        }, {
            {{4, 0, 1, 0, 2, 0x7F, 0xE0, 0x5C, 0x38, 0x7F, 0xE1, 0xEE}, "4 2 0 1 2 0 32736 23608 32737 1"},
            {{0, 0, 1, 0, 2, 0, 3}, "0 0 0 0 0 0 1 2 3 0"},
            {{0, 0, 1, 0, 2, 0}, "0 0 0 0 0 0 0 0 0 0", "inLen=6, outLen=1"},
            {{4, 0, 1, 0, 2, 0, 1, 0, 2, 0}, "0 0 0 0 0 0 0 0 0 0", "inLen=10, outLen=1"},
            // An odd loop length: the identifiers start on its odd byte.
            {{3, 0, 1, 0xAA, 0, 1, 0, 2, 0, 3}, "3 1 0 1 0 0 43520 256 512 1"},
        });
}

TEST(DescNPTReference, Bodies)
{
    const Bytes body = {0x85, 0xFF, 0, 0, 0, 2, 0xFF, 0xFF, 0xFF, 0xFE, 0, 0, 0x10, 0, 0, 1, 0, 3};
    ExpectBodies(0x18, [] { return new TCDescNPTReference(); },
        [](const TCDescNPTReference& d) {
            return Join(d.PostDiscontinuityIndicator(), d.DsmContentId(), d.STCReference(), d.NPTReference(),
                        d.ScaleNumerator(), d.ScaleDenominator());
        }, {
            {body, "1 5 4294967298 4096 1 3"},
            {Cat(body, {0xEE}), "1 5 4294967298 4096 1 3"},
            {Bytes(body.begin(), body.end() - 1), "0 0 0 0 0 0", "inLen=17, outLen=0"},
        });
}

TEST(DescStreamEvent, Bodies)
{
    const Bytes body = {0x12, 0x34, 0xFF, 0xFF, 0xFF, 0xFF, 0, 0, 0, 1};
    ExpectBodies(0x21, [] { return new TCDescStreamEvent(); },
        [](const TCDescStreamEvent& d) {
            return Join(d.EventId(), d.EventNPT(), d.PrivateDataLength(), d.PrivateData() ? int(d.PrivateData()[1]) : -1);
        }, {
            {Cat(body, {0xEE, 0xEF}), "4660 4294967297 2 239"},
            {body, "4660 4294967297 0 -1"},
            {Bytes(body.begin(), body.end() - 1), "0 0 0 -1", "inLen=9, outLen=0"},
        });
}
