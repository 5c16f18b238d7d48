#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "core/SectionParser.h"
#include "support/LogCapture.h"

using Bytes = std::vector<unsigned char>;
using Lines = std::vector<std::string>;

namespace {

// table_id, syntax, private, section_length, extension, version, current_next, section, last, CRC_32
using Header = std::tuple<int, int, int, int, int, int, int, int, int, unsigned>;

// Records what the base handed to the hook.
class ProbeParser : public TCSectionParser {
public:
    explicit ProbeParser(bool psip = false, int tableId = 0x42) : TCSectionParser(tableId, ZUMHandle()), m_psip(psip) {}
    int calls = 0, initCalls = 0, length = -1;
    const unsigned char* body = nullptr;

    Header Read() const
    {
        return Header{m_tableId, m_sectionSyntaxIndicator, m_privateIndicator, m_sectionLength, m_tableIdExtension,
                      m_versionNumber, m_currentNextIndicator, m_sectionNumber, m_lastSectionNumber, m_crc};
    }
    bool IsParsed() const { return m_isParsed; }
    const unsigned char* Data() const { return m_pData; }
    short Pid() const { return m_pid; }

protected:
    bool t_Parse(const unsigned char* b, int l) override { ++calls; body = b; length = l; return true; }
    void t_Initialize() override { ++initCalls; }
    bool t_CheckPSIPTable(unsigned char) override { return m_psip; }

private:
    bool m_psip;
};

// A long-form section of exactly L + 3 bytes, bytes counting up behind the
// three-byte head so that every field is recognisable; byte 5 sets all version bits.
Bytes LongSection(int L, unsigned char tableId = 0x42)
{
    Bytes s(static_cast<size_t>(L) + 3);
    s[0] = tableId;
    s[1] = static_cast<uint8_t>(0xB0 | ((L >> 8) & 0x0F));
    s[2] = static_cast<uint8_t>(L);
    for (int i = 3; i < L + 3; ++i)
        s[static_cast<size_t>(i)] = static_cast<uint8_t>(0x3A + i);
    return s;
}

unsigned Be32(const Bytes& s, int at) { return unsigned(s[at]) << 24 | s[at + 1] << 16 | s[at + 2] << 8 | s[at + 3]; }

} // namespace

// Every row of the short-length table: which header fields are read and
// where the CRC_32 comes from.
TEST(SectionParser, LongFormShortLengths)
{
    struct Row { int L; bool ext, version, section, last; int crcAt; /* -1: zero */ } rows[] = {
        {0, false, false, false, false, -1}, {1, false, false, false, false, 0}, {2, true, false, false, false, 1},
        {3, true, true, false, false, 2},    {4, true, true, true, false, 3},    {5, true, true, true, true, 4},
        {6, true, true, true, true, 5},      {4095, true, true, true, true, 4094},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.L);
        ProbeParser p;
        const Bytes s = LongSection(r.L);
        zumtest::LogCapture log;
        p.Parse(0, s.data());
        const Header expected{0x42, 1, 0, r.L, r.ext ? s[3] << 8 | s[4] : 0, r.version ? s[5] >> 1 & 0x1F : 0,
                              r.version ? s[5] & 1 : 0, r.section ? s[6] : 0, r.last ? s[7] : 0,
                              r.crcAt < 0 ? 0u : Be32(s, r.crcAt)};
        EXPECT_EQ(p.Read(), expected);
        const bool refused = r.L <= 4;
        EXPECT_EQ(p.calls, refused ? 0 : 1);
        EXPECT_EQ(p.body, refused ? nullptr : s.data() + 8);
        EXPECT_EQ(p.length, refused ? -1 : r.L - 5);
        const std::string line = "[TCSectionParser::Parse] dvb section too short, length:" + std::to_string(r.L);
        EXPECT_EQ(log.Lines(6), refused ? Lines{line} : Lines{});
        EXPECT_EQ(log.Lines().size(), refused ? 1u : 0u);
    }
}

// A short-form section leaves the header fields of the last long one; Initialize
// forgets only the section in hand.
TEST(SectionParser, ShortFormAndInitialize)
{
    ProbeParser p(false, 0x1234);
    EXPECT_EQ(std::get<0>(p.Read()), 0x34);
    // Every entry counts as parsing, a null section included.
    EXPECT_FALSE(p.Parse(0, nullptr));
    EXPECT_TRUE(p.IsParsed());
    EXPECT_EQ(p.calls, 0);
    const Bytes longSection = LongSection(20);
    p.Parse(0x100, longSection.data());
    // The header of the long section with the fields that every section sets.
    const auto withHead = [before = p.Read()](int tableId, int syntax, int priv, int length) {
        Header h = before;
        std::tie(std::get<0>(h), std::get<1>(h), std::get<2>(h), std::get<3>(h)) =
            std::make_tuple(tableId, syntax, priv, length);
        return h;
    };
    for (int L : {0, 300}) {
        SCOPED_TRACE(L);
        Bytes s(static_cast<size_t>(L) + 3, 0xEE);
        s[0] = 0x70;
        s[1] = static_cast<uint8_t>((L ? 0x40 : 0) | 0x30 | (L >> 8)); // private bit with the longer one
        s[2] = static_cast<uint8_t>(L);
        p.calls = 0;
        EXPECT_TRUE(p.Parse(0x101, s.data()));
        EXPECT_EQ(p.calls, 1);
        EXPECT_EQ(p.body, s.data() + 3);
        EXPECT_EQ(p.length, L);
        EXPECT_EQ(p.Read(), withHead(0x70, 0, L ? 1 : 0, L));
    }
    EXPECT_TRUE(p.IsParsed());
    EXPECT_EQ(p.Pid(), 0x101);
    p.Initialize();
    EXPECT_EQ(p.initCalls, 1);
    EXPECT_FALSE(p.IsParsed());
    EXPECT_EQ(p.Data(), nullptr);
    EXPECT_EQ(p.Read(), withHead(0x70, 0, 1, 0));
}

// The PSIP shape, and current_next_indicator 0 which only the PSIP path refuses.
TEST(SectionParser, PsipPath)
{
    // line empty: the hook is reached
    struct Case { bool psip; int L, protocolVersion; bool currentNext; std::string line; int priority; } cases[] = {
        {true, 4, 0, true, "[TCSectionParser::Parse] psip section too short, length:4", 6},
        {true, 5, 0, true, "[TCSectionParser::Parse] psip section too short, length:5", 6},
        {true, 6, 0, true, "", 0},
        {true, 30, 0, true, "", 0},
        {true, 30, 1, true, "Protocol_Version error tid=0xc8, pv=1, cnid[1]", 3},
        {true, 30, 0, false, "Protocol_Version error tid=0xc8, pv=0, cnid[0]", 3},
        {false, 30, 0, false, "", 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.psip << " " << c.L << " " << c.protocolVersion << c.currentNext);
        Bytes s = LongSection(c.L, 0xC8);
        s[5] = static_cast<uint8_t>((s[5] & 0xFE) | (c.currentNext ? 1 : 0));
        if (c.L >= 6)
            s[8] = static_cast<uint8_t>(c.protocolVersion);
        ProbeParser p(c.psip);
        zumtest::LogCapture log;
        const bool reached = c.line.empty();
        EXPECT_EQ(p.Parse(0, s.data()), reached);
        EXPECT_EQ(p.calls, reached ? 1 : 0);
        EXPECT_EQ(std::get<6>(p.Read()), c.currentNext ? 1 : 0);
        EXPECT_EQ(p.body, reached ? s.data() + (c.psip ? 9 : 8) : nullptr);
        EXPECT_EQ(p.length, reached ? c.L - (c.psip ? 6 : 5) : -1);
        EXPECT_EQ(log.Lines(c.priority), reached ? Lines{} : Lines{c.line});
        EXPECT_EQ(log.Lines().size(), reached ? 0u : 1u);
    }
}
