#include <gtest/gtest.h>

#include <vector>

#include "core/SectionParser.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"

using zumtest::Bytes;

namespace {

// Records what the base handed to the hook.
class ProbeParser : public TCSectionParser {
public:
    explicit ProbeParser(bool psip = false, int tableId = 0x42)
        : TCSectionParser(tableId, ZUMHandle(7, 1, 2)), m_psip(psip)
    {
    }
    int calls = 0;
    const unsigned char* body = nullptr;
    int length = -1;
    int initCalls = 0;

    unsigned char TableId() const { return m_tableId; }
    unsigned short Extension() const { return m_tableIdExtension; }
    int Version() const { return m_versionNumber; }
    int CurrentNext() const { return m_currentNextIndicator; }
    int SectionNumber() const { return m_sectionNumber; }
    int LastSectionNumber() const { return m_lastSectionNumber; }
    unsigned int Crc() const { return m_crc; }
    int SectionLength() const { return m_sectionLength; }
    int Syntax() const { return m_sectionSyntaxIndicator; }
    int Private() const { return m_privateIndicator; }
    int ProtocolVersion() const { return m_protocolVersion; }
    bool IsParsed() const { return m_isParsed; }
    const unsigned char* Data() const { return m_pData; }
    short Pid() const { return m_pid; }
    ZUMHandle Handle() const { return m_handle; }

protected:
    bool t_Parse(const unsigned char* b, int l) override
    {
        ++calls;
        body = b;
        length = l;
        return true;
    }
    void t_Initialize() override { ++initCalls; }
    bool t_CheckPSIPTable(unsigned char) override { return m_psip; }

private:
    bool m_psip;
};

// A long-form section of exactly L + 3 bytes, bytes counting up from 0x10
// behind the three-byte head so that every field is recognisable.
Bytes LongSection(int L)
{
    Bytes s(static_cast<size_t>(L) + 3);
    s[0] = 0x42;
    s[1] = static_cast<uint8_t>(0xB0 | ((L >> 8) & 0x0F));
    s[2] = static_cast<uint8_t>(L);
    for (int i = 3; i < L + 3; ++i)
        s[static_cast<size_t>(i)] = static_cast<uint8_t>(0x10 + i);
    return s;
}

unsigned int Be32(const Bytes& s, int at)
{
    return (unsigned(s[at]) << 24) | (unsigned(s[at + 1]) << 16) | (unsigned(s[at + 2]) << 8) | s[at + 3];
}

} // namespace

TEST(SectionParser, ConstructionAndInitialize)
{
    ProbeParser p(false, 0x1234);
    EXPECT_EQ(p.TableId(), 0x34);
    EXPECT_FALSE(p.IsParsed());
    EXPECT_EQ(p.Data(), nullptr);
    EXPECT_EQ(p.Handle(), ZUMHandle(7, 1, 2));

    const Bytes s = LongSection(20);
    p.Parse(0x100, s.data());
    EXPECT_TRUE(p.IsParsed());
    EXPECT_EQ(p.Pid(), 0x100);
    p.Initialize();
    EXPECT_EQ(p.initCalls, 1);
    EXPECT_FALSE(p.IsParsed());
    EXPECT_EQ(p.Data(), nullptr);
    EXPECT_EQ(p.SectionLength(), 0);
    // The rest of the header stays as the last section set it.
    EXPECT_EQ(p.TableId(), 0x42);
    EXPECT_EQ(p.Crc(), Be32(s, 19));
}

// Every row of the short-length table: which header fields are read and
// where the CRC_32 comes from.
TEST(SectionParser, LongFormShortLengths)
{
    struct Row {
        int L;
        bool ext, version, section, last;
        int crcAt; // -1: zero
    } rows[] = {
        {0, false, false, false, false, -1}, {1, false, false, false, false, 0}, {2, true, false, false, false, 1},
        {3, true, true, false, false, 2},    {4, true, true, true, false, 3},    {5, true, true, true, true, 4},
        {6, true, true, true, true, 5},      {40, true, true, true, true, 39},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.L);
        ProbeParser p;
        Bytes s = LongSection(r.L);
        zumtest::LogCapture log;
        p.Parse(0, s.data());
        EXPECT_EQ(p.Syntax(), 1);
        EXPECT_EQ(p.Private(), 0);
        EXPECT_EQ(p.SectionLength(), r.L);
        EXPECT_EQ(p.Extension(), r.ext ? ((s[3] << 8) | s[4]) : 0);
        EXPECT_EQ(p.Version(), r.version ? ((s[5] >> 1) & 0x1F) : 0);
        EXPECT_EQ(p.CurrentNext(), r.version ? (s[5] & 1) : 0);
        EXPECT_EQ(p.SectionNumber(), r.section ? s[6] : 0);
        EXPECT_EQ(p.LastSectionNumber(), r.last ? s[7] : 0);
        EXPECT_EQ(p.Crc(), r.crcAt < 0 ? 0u : Be32(s, r.crcAt));
        if (r.L <= 4) {
            EXPECT_EQ(p.calls, 0);
            EXPECT_EQ(log.Lines(6), std::vector<std::string>{"[TCSectionParser::Parse] dvb section too short, length:" +
                                                             std::to_string(r.L)});
        } else {
            EXPECT_EQ(p.calls, 1);
            EXPECT_EQ(p.body, s.data() + 8);
            EXPECT_EQ(p.length, r.L - 5);
            EXPECT_TRUE(log.Lines().empty());
        }
    }
}

TEST(SectionParser, ShortFormKeepsLastLongHeader)
{
    ProbeParser p;
    const Bytes longSection = LongSection(20);
    p.Parse(0, longSection.data());
    const unsigned int crc = p.Crc();
    const int version = p.Version();

    struct Case {
        int L;
        bool privateBit;
    } cases[] = {{0, false}, {1, true}, {300, false}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.L);
        Bytes s(static_cast<size_t>(c.L) + 3, 0xEE);
        s[0] = 0x70;
        s[1] = static_cast<uint8_t>((c.privateBit ? 0x40 : 0) | 0x30 | (c.L >> 8));
        s[2] = static_cast<uint8_t>(c.L);
        p.calls = 0;
        EXPECT_TRUE(p.Parse(0, s.data()));
        EXPECT_EQ(p.calls, 1);
        EXPECT_EQ(p.body, s.data() + 3);
        EXPECT_EQ(p.length, c.L);
        EXPECT_EQ(p.Syntax(), 0);
        EXPECT_EQ(p.Private(), c.privateBit ? 1 : 0);
        EXPECT_EQ(p.TableId(), 0x70);
        EXPECT_EQ(p.Crc(), crc);
        EXPECT_EQ(p.Version(), version);
    }
}

TEST(SectionParser, PsipPath)
{
    struct Case {
        int L;
        int protocolVersion;
        bool currentNext;
        bool reachesHook;
        std::string line;
        int priority;
    } cases[] = {
        {4, 0, true, false, "[TCSectionParser::Parse] psip section too short, length:4", 6},
        {5, 0, true, false, "[TCSectionParser::Parse] psip section too short, length:5", 6},
        {6, 0, true, true, "", 0},
        {30, 0, true, true, "", 0},
        {30, 1, true, false, "Protocol_Version error tid=0xc8, pv=1, cnid[1]", 3},
        {30, 0, false, false, "Protocol_Version error tid=0xc8, pv=0, cnid[0]", 3},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.L);
        Bytes s = LongSection(c.L);
        s[0] = 0xC8;
        if (c.L >= 3)
            s[5] = static_cast<uint8_t>((s[5] & 0xFE) | (c.currentNext ? 1 : 0));
        if (c.L >= 6)
            s[8] = static_cast<uint8_t>(c.protocolVersion);
        ProbeParser p(true);
        zumtest::LogCapture log;
        const bool result = p.Parse(0, s.data());
        EXPECT_EQ(result, c.reachesHook);
        EXPECT_EQ(p.calls, c.reachesHook ? 1 : 0);
        if (c.reachesHook) {
            EXPECT_EQ(p.body, s.data() + 9);
            EXPECT_EQ(p.length, c.L - 6);
            EXPECT_TRUE(log.Lines().empty());
        } else {
            EXPECT_EQ(log.Lines(c.priority), std::vector<std::string>{c.line});
        }
    }
}

TEST(SectionParser, CurrentNextZeroReachesPlainParser)
{
    Bytes s = LongSection(30);
    s[5] &= 0xFE;
    ProbeParser plain(false);
    EXPECT_TRUE(plain.Parse(0, s.data()));
    EXPECT_EQ(plain.CurrentNext(), 0);
    EXPECT_EQ(plain.calls, 1);
}

TEST(SectionParser, LargestLengthAndNull)
{
    const Bytes s = LongSection(4095);
    ProbeParser p;
    EXPECT_TRUE(p.Parse(0, s.data()));
    EXPECT_EQ(p.SectionLength(), 4095);
    EXPECT_EQ(p.length, 4090);
    EXPECT_EQ(p.Crc(), Be32(s, 4094));

    ProbeParser q;
    EXPECT_FALSE(q.Parse(0, nullptr));
    EXPECT_EQ(q.calls, 0);
}
