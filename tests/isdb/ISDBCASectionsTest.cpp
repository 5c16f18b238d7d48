// ECM, EMM and EMM message sections: fields and byte runs kept as they stand.
#include <gtest/gtest.h>

#include "isdb/ISDBECMParser.h"
#include "isdb/ISDBEMMMessageParser.h"
#include "isdb/ISDBEMMParser.h"
#include "support/LogCapture.h"
#include "IsdbFeed.h"

using zumtest::Bytes;
using zumtest::Concat;
using zumtest::FeedExact;
using zumtest::Section;

namespace {

const ZUMHandle kHandle(7, 0, 0);

Bytes Ecm(const Bytes& variable)
{
    return Concat({{0x01, 0x02, 0x03},
                   {0x11, 0x12, 0x13, 0x14, 0x15, 0x16, 0x17, 0x18},
                   {0x21, 0x22, 0x23, 0x24, 0x25, 0x26, 0x27, 0x28},
                   {0x30, 0xC0, 0x79, 0x12, 0x34, 0x56, 0x40},
                   variable,
                   {0xDE, 0xAD, 0xBE, 0xEF}});
}

} // namespace

TEST(ISDBECMParser, FieldsAndByteAccessors)
{
    TCISDBECMParser p(kHandle);
    // Length 34: an empty variable part, the authentication field at 26.
    EXPECT_TRUE(FeedExact(p, Section(0x82, 1, Ecm({}))));
    EXPECT_EQ(p.VariablePartSize(), 0);
    EXPECT_EQ(p.AuthenticationField(), 0xDEADBEEFu);
    EXPECT_EQ(p.DateTime(), 49273u * 86400u + 472285696u + 45296u);
    EXPECT_EQ(p.PayloadSize(), 30);

    unsigned char out[32] = {};
    int length = 4;
    EXPECT_TRUE(p.GetScramblingKeyOdd(length, out));
    EXPECT_EQ(length, 4);
    EXPECT_EQ(Bytes(out, out + 4), (Bytes{0x11, 0x12, 0x13, 0x14}));
    length = 20;
    EXPECT_TRUE(p.GetScramblingKeyEven(length, out));
    EXPECT_EQ(length, 8);
    EXPECT_EQ(out[7], 0x28);
    length = 0;
    EXPECT_FALSE(p.GetPayload(length, out));
    length = 5;
    EXPECT_FALSE(p.GetPayload(length, nullptr));
    EXPECT_EQ(length, 0);

    EXPECT_TRUE(FeedExact(p, Section(0x82, 1, Ecm({0xA1, 0xA2}), 1)));
    length = 32;
    EXPECT_TRUE(p.GetVariablePart(length, out));
    EXPECT_EQ(Bytes(out, out + length), (Bytes{0xA1, 0xA2}));
    // Shorter than 34: refused.
    EXPECT_FALSE(FeedExact(p, Section(0x82, 1, Bytes(29, 0), 2)));
}

TEST(ISDBEMMParser, Records)
{
    TCISDBEMMParser p(kHandle);
    const Bytes card = {1, 2, 3, 4, 5, 6};
    // A below 11: 17 bytes; A of 13: 3 bytes of variable part.
    const Bytes r1 = Concat({card, {9, 0x07, 0x08, 0x00, 0x09, 0x00, 0x0B}, {0xA0, 0xA1, 0xA2, 0xA3}});
    const Bytes r2 = Concat({card, {13, 0, 0, 0, 0, 0, 0}, {0x71, 0x72, 0x73}, {0xB0, 0xB1, 0xB2, 0xB3}});
    EXPECT_TRUE(FeedExact(p, Section(0x84, 0, Concat({r1, r2}))));
    ASSERT_EQ(p.NumOfPayload(), 2);
    const TCISDBEMMPayload* e = p.PayloadOfIndex(0);
    EXPECT_EQ(e->VariablePartSize(), 0);
    EXPECT_EQ(e->ProtocolNumber(), 7);
    EXPECT_EQ(e->ExpirationDate(), 0x0B);
    EXPECT_EQ(e->AuthenticationField(), 0xA0A1A2A3u);
    unsigned char out[64];
    int length = 64;
    EXPECT_TRUE(e->GetPayload(length, out));
    EXPECT_EQ(Bytes(out, out + length), r1);
    length = 64;
    EXPECT_TRUE(p.PayloadOfIndex(1)->GetVariablePart(length, out));
    EXPECT_EQ(Bytes(out, out + length), (Bytes{0x71, 0x72, 0x73}));
    length = 64;
    EXPECT_TRUE(p.PayloadOfIndex(1)->CardID(length, out));
    EXPECT_EQ(Bytes(out, out + length), card);
}

TEST(ISDBEMMMessageParser, CommonAndIndividual)
{
    zumtest::LogCapture log;
    TCISDBEMMMessageParser p(kHandle);
    // Common: message length 3 matches; then one that does not is refused, nothing stored.
    EXPECT_TRUE(FeedExact(p, Section(0x85, 0x0042, {0x11, 1, 2, 3, 4, 5, 6, 0x00, 0x03, 'a', 'b', 'c'})));
    ASSERT_EQ(p.NumOfMessage(), 1);
    EXPECT_EQ(p.MessageOfIndex(0)->MessagePresetTextNumber(), 0x42);
    EXPECT_EQ(p.MessageOfIndex(0)->StoredByte(), 0x11);
    unsigned char out[16];
    int length = 16;
    EXPECT_TRUE(p.MessageOfIndex(0)->GetMessageArea(length, out));
    EXPECT_EQ(Bytes(out, out + length), (Bytes{'a', 'b', 'c'}));
    EXPECT_FALSE(FeedExact(p, Section(0x85, 0x0043, {0x11, 1, 2, 3, 4, 5, 6, 0x00, 0x04, 'a', 'b', 'c'})));
    EXPECT_EQ(log.Count("TCISDBEMMCommonMessage::Parse return!message_length_=4 len_in=16, pos=9"), 1);

    // Individual: one message of 2 bytes, then one whose area runs over: the walk ends, still valid.
    TCISDBEMMMessageParser q(kHandle);
    const Bytes m1 = {1, 2, 3, 4, 5, 6, 0x00, 0x06, 0x08, 0x09, 0x0A, 0x0B, 'x', 'y'};
    const Bytes m2 = {1, 2, 3, 4, 5, 6, 0x00, 0x40, 0x08, 0x09, 0x0A, 0x0B, 'z', 'z'};
    EXPECT_TRUE(FeedExact(q, Section(0x85, 0, Concat({m1, m2}))));
    ASSERT_EQ(q.NumOfMessage(), 1);
    EXPECT_EQ(q.MessageOfIndex(0)->MessagePresetTextNumber(), 0);
    EXPECT_EQ(q.MessageOfIndex(0)->MessageLength(), 2);
    EXPECT_EQ(log.Count("TCISDBEMMIndividualMessage::Parse   message_length_=2 len_in=32, len_out=18"), 1);
    EXPECT_EQ(log.Count("TCISDBEMMIndividualMessage::Parse return!message_length_=60 len_in=18, pos=12"), 1);
}
