#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include <zum-platform/Dlog.h>

#include "isdb/EWSParser.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"

using zumtest::Bytes;

namespace {

enum : unsigned { kTRDW = 1, kTCDW = 2, kTMDW = 3 };

Bytes Ews(unsigned extension, const Bytes& payload, unsigned version = 0, unsigned section = 0, unsigned last = 0)
{
    zumtest::SectionBuilder b(zumtest::LongHeader(0x80, extension, version, section, last));
    b.Raw(payload);
    return b.Build();
}

unsigned Crc(const Bytes& section)
{
    const size_t n = section.size();
    return (unsigned(section[n - 4]) << 24) | (section[n - 3] << 16) | (section[n - 2] << 8) | section[n - 1];
}

// From a heap block of the section's exact size, so that a read past it shows.
bool Feed(TCEWSParser& p, const Bytes& section)
{
    std::unique_ptr<unsigned char[]> exact(new unsigned char[section.size()]);
    std::memcpy(exact.get(), section.data(), section.size());
    return p.Parse(0x0901, exact.get());
}

// Header fields, then code:description:disaster/type/package of each location in order of arrival.
std::string Region(const TCEWSParser& p)
{
    std::ostringstream out;
    out << "D" << p.DisasterCode() << " T" << int(p.LocationTypeCode()) << " P" << int(p.PackageId());
    std::vector<TCEWSRegion::TSLocationCode*> list;
    p.Locations(list);
    for (TCEWSRegion::TSLocationCode* l : list) {
        out << " " << l->code << ":" << l->description << ":" << l->disasterCode << "/" << l->typeCode << "/"
            << l->packageId;
        delete l;
    }
    return out.str();
}

// code:byte0/byte1:text1|text2|text3|text4 of each record in code order.
std::string Codes(const TCEWSParser& p)
{
    std::ostringstream out;
    std::map<unsigned short, TCEWSCode::TSDisasterCode*> map;
    p.Disasters(map);
    for (const auto& e : map) {
        const TCEWSCode::TSDisasterCode& d = *e.second;
        out << (out.tellp() > 0 ? " " : "") << e.first << ":" << int(d.codeByte0) << "/" << int(d.codeByte1) << ":"
            << d.text1 << "|" << d.text2 << "|" << d.text3 << "|" << d.text4;
        delete e.second;
    }
    return out.str();
}

// Header byte, key, then the texts under their keys.
std::string Messages(const TCEWSParser& p)
{
    std::ostringstream out;
    out << "H" << int(p.MessageHeaderByte()) << " K" << int(p.MessageKey());
    std::multimap<unsigned short, std::string> byKey;
    p.InformationMessages(byKey);
    for (const auto& e : byKey)
        out << " " << e.first << "=" << e.second;
    return out.str();
}

struct Case { Bytes payload; std::string expected; };

template <class Show>
void ExpectPayloads(unsigned extension, Show show, std::initializer_list<Case> cases)
{
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(c.payload));
        TCEWSParser p;
        p.Initialize();
        EXPECT_TRUE(Feed(p, Ews(extension, c.payload)));
        EXPECT_EQ(show(p), c.expected);
    }
}

} // namespace

// Header bytes one by one, then location entries: the code's five BCD digits (a nibble above 9 enters the sum,
// the low nibble is ignored), a description of 0 to 255 bytes; an entry that does not fit ends the walk.
TEST(EWSParser, RegionPayloads)
{
    const Bytes jakarta = {0x12, 0x34, 0x5F, 7, 'J', 'a', 'k', 'a', 'r', 't', 'a'};
    Bytes longest = {0x01, 0x02, 0x03, 0x04, 1, 0x00, 0x00, 0x10, 0xFF};
    longest.insert(longest.end(), 255, 'x');
    ExpectPayloads(kTRDW, Region, {
        {{}, "D0 T0 P0"},
        {{0x01}, "D0 T0 P0"},
        {{0x01, 0x02}, "D258 T0 P0"},
        {{0x01, 0x02, 0x03}, "D258 T3 P0"},
        {{0x01, 0x02, 0x03, 0x04}, "D258 T3 P4"},
        {{0xFF, 0xFF, 0xFF, 0xFF, 0}, "D65535 T255 P255"},
        {zumtest::Concat({{0x01, 0x02, 0x03, 0x04, 3}, jakarta, {0x99, 0x99, 0x90, 0}, {0xAB, 0xCD, 0xE0, 2, 0, 'z'}}),
         "D258 T3 P4 12345:Jakarta:258/3/4 99999::258/3/4 112344:" + std::string("\0z", 2) + ":258/3/4"},
        {longest, "D258 T3 P4 1:" + std::string(255, 'x') + ":258/3/4"},
        // More entries announced than sent; a code of three bytes without its length; a description one short.
        {zumtest::Concat({{0, 9, 1, 1, 5}, jakarta}), "D9 T1 P1 12345:Jakarta:9/1/1"},
        {zumtest::Concat({{0, 9, 1, 1, 2}, jakarta, {0x00, 0x00, 0x10}}), "D9 T1 P1 12345:Jakarta:9/1/1"},
        {zumtest::Concat({{0, 9, 1, 1, 2}, jakarta, {0x00, 0x00, 0x10, 3, 'a', 'b'}}), "D9 T1 P1 12345:Jakarta:9/1/1"},
        {{0, 9, 1, 1, 1, 0x12, 0x34, 0x5F, 7, 'J', 'a', 'k', 'a', 'r', 't'}, "D9 T1 P1"},
    });
}

// A count of 0 ends the parse; an entry needs its four head bytes and four texts with their lengths.
TEST(EWSParser, CodePayloads)
{
    const Bytes flood = {0x0A, 0x0B, 0x00, 0x05, 5, 'F', 'l', 'o', 'o', 'd', 0, 2, 'i', 'd', 1, 0};
    ExpectPayloads(kTCDW, Codes, {
        {{}, ""},
        {{0, 0x0A, 0x0B, 0x00, 0x05, 0, 0, 0, 0}, ""},
        {zumtest::Concat({{2}, flood, {0xFF, 0xFE, 0xFF, 0xFF, 0, 0, 0, 0}}),
         "5:10/11:Flood||id|" + std::string(1, '\0') + " 65535:255/254:|||"},
        // The second record of a code is dropped, the first stays.
        {zumtest::Concat({{2}, flood, {0x01, 0x02, 0x00, 0x05, 1, 'X', 0, 0, 0}}), "5:10/11:Flood||id|" + std::string(1, '\0')},
        // Data ends in the head, before a length byte, inside a text: that record goes, earlier ones stay.
        {zumtest::Concat({{3}, flood, {0x01, 0x02, 0x00}}), "5:10/11:Flood||id|" + std::string(1, '\0')},
        {zumtest::Concat({{3}, flood, {0x01, 0x02, 0x00, 0x06, 0, 0, 0}}), "5:10/11:Flood||id|" + std::string(1, '\0')},
        {zumtest::Concat({{3}, flood, {0x01, 0x02, 0x00, 0x06, 0, 0, 3, 'a', 'b'}}),
         "5:10/11:Flood||id|" + std::string(1, '\0')},
    });
}

// Header byte, key, then 16-bit length texts: a length of 0 adds nothing, a lone last byte is ignored, a text
// that does not fit ends the walk.
TEST(EWSParser, MessagePayloads)
{
    ExpectPayloads(kTMDW, Messages, {
        {{}, "H0 K0"},
        {{0x81}, "H129 K0"},
        {{0x81, 0x07}, "H129 K7"},
        {{0x81, 0x07, 0, 2, 'h', 'i', 0, 0, 0, 3, 'a', 0, 'b', 0x44}, "H129 K7 7=hi 7=" + std::string("a\0b", 3)},
        {{0x81, 0x07, 0, 2, 'h', 'i', 0, 3, 'a', 'b'}, "H129 K7 7=hi"},
        {{0x81, 0xFF, 0xFF, 0xFF, 'a'}, "H129 K255"},
    });
}

// Two locations with one code: the list keeps both, the map the later, and overwrites what the caller held
// under that code with one log line per entry; Disasters keeps the caller's record.
TEST(EWSParser, LocationMapAndDisasterLookup)
{
    TCEWSParser p;
    p.Initialize();
    Feed(p, Ews(kTRDW, {0x01, 0x02, 3, 7, 3, 0x12, 0x34, 0x5F, 1, 'a', 0x00, 0x00, 0x20, 0, 0x12, 0x34, 0x50, 1, 'b'}));
    EXPECT_EQ(Region(p), "D258 T3 P7 12345:a:258/3/7 2::258/3/7 12345:b:258/3/7");

    std::map<unsigned int, TCEWSRegion::TSLocationCode> byCode;
    byCode[12345].description = "old";
    byCode[1].description = "kept";
    zumtest::LogCapture log;
    p.Locations(byCode);
    EXPECT_EQ(log.Lines(DLOG_ERROR),
              (std::vector<std::string>{
                  "[TCEWSRegion::Locations] delivered location: code [2] description [] disaster [258] typeCode [3] "
                  "packageId [7]",
                  "[TCEWSRegion::Locations] delivered location: code [12345] description [b] disaster [258] "
                  "typeCode [3] packageId [7]"}));
    EXPECT_EQ(byCode.size(), 3u);
    EXPECT_EQ(byCode[12345].description, "b");
    EXPECT_EQ(byCode[1].description, "kept");

    Feed(p, Ews(kTCDW, {1, 1, 2, 0x00, 0x05, 1, 'F', 0, 0, 0}));
    TCEWSCode::TSDisasterCode mine;
    mine.text1 = "mine";
    std::map<unsigned short, TCEWSCode::TSDisasterCode*> disasters{{5, &mine}};
    p.Disasters(disasters);
    EXPECT_EQ(disasters.size(), 1u);
    EXPECT_EQ(disasters[5]->text1, "mine");

    TCEWSCode::TSDisasterCode found;
    EXPECT_FALSE(p.Disaster(6, found));
    EXPECT_EQ(found.text1, "");
    EXPECT_TRUE(p.Disaster(5, found));
    EXPECT_EQ(found.text1 + std::to_string(found.codeByte1), "F2");
}

// Each sub-table keeps its own tracker and CRC field; a change empties only its own sub-table, and an
// unknown extension touches none.
TEST(EWSParser, TrackingPerSubTable)
{
    TCEWSParser p;
    p.Initialize();
    const Bytes r0 = Ews(kTRDW, {0, 1, 1, 1, 1, 0x00, 0x00, 0x10, 0}, 4, 0, 1);
    const Bytes r1 = Ews(kTRDW, {0, 2, 2, 2, 1, 0x00, 0x00, 0x20, 0}, 4, 1, 1);
    const Bytes c0 = Ews(kTCDW, {1, 0, 0, 0, 9, 0, 0, 0, 0}, 1);
    const Bytes m0 = Ews(kTMDW, {1, 2, 0, 1, 'm'}, 7);
    const Bytes m0b = Ews(kTMDW, {0, 3, 0, 1, 'n'}, 7);

    EXPECT_TRUE(Feed(p, r0));
    EXPECT_FALSE(p.IsValidTRDW());
    EXPECT_TRUE(Feed(p, r1));
    EXPECT_TRUE(p.IsValidTRDW());
    EXPECT_EQ(Region(p), "D2 T2 P2 1::1/1/1 2::2/2/2") << "content accumulates; the header is the last section's";
    EXPECT_TRUE(Feed(p, c0));
    EXPECT_TRUE(Feed(p, m0));
    EXPECT_TRUE(p.IsValidTCDW() && p.IsValidTMDW());

    EXPECT_TRUE(Feed(p, r1)) << "a repeat is still answered true";
    EXPECT_EQ(Region(p), "D2 T2 P2 1::1/1/1 2::2/2/2");
    EXPECT_EQ(p.TRDWCrc(), Crc(r1));
    EXPECT_EQ(p.TCDWCrc(), Crc(c0));
    EXPECT_EQ(p.TMDWCrc(), Crc(m0));

    for (unsigned extension : {0u, 4u, 0xFFFFu}) {
        EXPECT_FALSE(Feed(p, Ews(extension, {0, 9, 9, 9, 0}, 9)));
        EXPECT_EQ(p.TRDWCrc(), Crc(r1));
    }
    EXPECT_TRUE(Feed(p, Ews(kTRDW, {}, 4, 2, 1))) << "section number above the last is ignored";
    EXPECT_EQ(Region(p), "D2 T2 P2 1::1/1/1 2::2/2/2");

    // A new CRC field at the same version and section number is a change: that section alone, CRC field 0.
    EXPECT_TRUE(Feed(p, m0b));
    EXPECT_EQ(Messages(p), "H0 K3 3=n");
    EXPECT_EQ(p.TMDWCrc(), 0u);
    EXPECT_TRUE(p.IsValidTMDW());
    EXPECT_EQ(Region(p), "D2 T2 P2 1::1/1/1 2::2/2/2");
    EXPECT_EQ(Codes(p), "9:0/0:|||");

    // A new version of TRDW starts collecting again; the others stay.
    EXPECT_TRUE(Feed(p, Ews(kTRDW, {0, 3, 3, 3, 0}, 5, 1, 1)));
    EXPECT_FALSE(p.IsValidTRDW());
    EXPECT_EQ(Region(p), "D3 T3 P3");
    EXPECT_TRUE(p.IsValidTCDW() && p.IsValidTMDW());

    // DeleteAll empties all three and leaves the trackers: a repeat is not parsed again.
    p.DeleteAll();
    EXPECT_EQ(Codes(p), "");
    EXPECT_EQ(p.TCDWCrc(), 0u);
    EXPECT_TRUE(Feed(p, c0));
    EXPECT_EQ(Codes(p), "");
    EXPECT_EQ(p.TCDWCrc(), Crc(c0));

    p.Initialize();
    EXPECT_FALSE(p.IsValidTRDW() || p.IsValidTCDW() || p.IsValidTMDW());
    EXPECT_TRUE(Feed(p, c0));
    EXPECT_EQ(Codes(p), "9:0/0:|||");
}

// Sections shorter than their header and CRC field: the sub-table is marked, nothing parsed; the shortest are
// refused before the sub-table is chosen.
TEST(EWSParser, ShortSections)
{
    for (unsigned sectionLength : {5u, 6u, 8u}) {
        SCOPED_TRACE(sectionLength);
        TCEWSParser p;
        p.Initialize();
        Bytes section = Ews(kTMDW, {0x81, 0x07, 0, 1, 'x'});
        section.resize(sectionLength + 3);
        section[2] = static_cast<unsigned char>(sectionLength);
        EXPECT_TRUE(Feed(p, section));
        EXPECT_TRUE(p.IsValidTMDW());
        EXPECT_EQ(Messages(p), "H0 K0");
    }
    TCEWSParser p;
    Bytes section = Ews(kTRDW, {});
    section.resize(7);
    section[2] = 4;
    zumtest::LogCapture log;
    EXPECT_FALSE(Feed(p, section));
    EXPECT_EQ(log.Lines(DLOG_ERROR),
              std::vector<std::string>{"[TCSectionParser::Parse] dvb section too short, length:4"});
    EXPECT_FALSE(p.IsValidTRDW());
}
