#include <gtest/gtest.h>

#include "av/DescAC3.h"
#include "dvb/DescLoopProbe.h"

using namespace svctest;

namespace {

std::string Info(const TCBaseDesc& d, bool (*copy)(const TCBaseDesc&, char*, int*))
{
    char buffer[64];
    int size = sizeof buffer;
    return copy(d, buffer, &size) ? std::string(buffer, buffer + size) : "-";
}

template <class T>
std::string InfoOf(const T& d)
{
    return Info(d, [](const TCBaseDesc& b, char* p, int* n) { return static_cast<const T&>(b).GetAdditionalInfo(p, n); });
}

} // namespace

TEST(DescAC3, DvbFormsReadTheFlaggedBytes)
{
    const char* readLog = "m_ReadByte";
    ExpectBodies(
        0x6A, [] { return new TCDescAC3(); },
        [](const TCDescAC3& d) {
            return Join(d.ComponentTypeFlag(), d.BsidFlag(), d.MainidFlag(), d.AsvcFlag(), d.ComponentType(),
                        d.Bsid(), d.Mainid(), d.Asvc(), InfoOf(d));
        },
        {{{0xF0, 1, 2, 3, 4, 'x', 'y'}, "1 1 1 1 1 2 3 4 xy"},
         {{0x50, 9, 7}, "0 1 0 1 0 9 0 7 -"},
         {{0x00, 'a'}, "0 0 0 0 0 0 0 0 a"}});
    // A flagged byte past the body: one log line, the field stays, the result is the position.
    zumtest::LogCapture log;
    auto d = Decode(new TCDescAC3(), Desc(0x6A, {0x40}));
    EXPECT_EQ(std::make_tuple(d->BsidFlag(), int(d->Bsid()), log.Lines().size()), std::make_tuple(true, 0, size_t(1)));
    EXPECT_TRUE(log.Contains(std::string("[TCDescEnhancedAC3::") + readLog + "] failed, pos[1], len[1]"));

    ExpectBodies(
        0x7A, [] { return new TCDescEnhancedAC3(); },
        [](const TCDescEnhancedAC3& d) {
            return Join(d.MixinfoExists(), d.ComponentType(), d.Bsid(), d.Mainid(), d.Asvc(), d.Substream1(),
                        d.Substream2(), d.Substream3(), InfoOf(d));
        },
        {{{0xFF, 1, 2, 3, 4, 5, 6, 7, 'z'}, "1 1 2 3 4 5 6 7 z"},
         {{0x08}, "1 0 0 0 0 0 0 0 -"},
         {{0x05, 0x11, 0x33}, "0 0 0 0 0 17 0 51 -"}});
}

TEST(DescAC3, AtscAudioMovesBehindDualMonoAndCutsText)
{
    auto show = [](const TCDescAC3Audio& d) {
        char text[32];
        int size = sizeof text;
        const bool hasText = d.GetText(text, &size);
        return Join(int(d.SampleRateCode()), int(d.Bsid()), int(d.BitRateCode()), int(d.SurroundMode()),
                    int(d.Bsmod()), int(d.NumChannels()), int(d.FullService()), int(d.LanguageCode()),
                    int(d.LanguageCode2()), int(d.Mainid()), int(d.AsvcFlags()), int(d.TextLen()),
                    hasText ? std::string(text, text + size) : "-", d.LanguageFlag(), Code(d.Language()),
                    InfoOf(d));
    };
    ExpectBodies(0x81, [] { return new TCDescAC3Audio(); }, show,
                 {// 2/0 stereo, main id 2, text "ab", language, additional info.
                  {{0x48, 0x30, 0x0A, 0x01, 0x40, 0x04, 'a', 'b', 0x80, 'e', 'n', 'g', 'Q'},
                   "2 8 12 0 0 5 0 1 0 2 255 2 ab 1 eng Q"},
                  // Dual mono: byte 4 is the second language code, everything else one later; bit 6 of byte 2
                  // gives main id 0 and the asvc flags; a text of 10 with 4 bytes left keeps 4.
                  {{0x00, 0x00, 0x40, 0x01, 0x02, 0x3C, 0x14, 'w', 'x', 'y', 'z'},
                   "0 0 0 0 2 0 0 1 2 0 60 4 wxyz 0 - -"},
                  {{0x00, 0x00, 0x0A, 0x01, 0x00}, "0 0 0 0 0 5 0 1 0 0 255 0 - 0 - -",
                   "inLen=5, outLen=6"}});
    // Length 1: no main id, so the text accessors refuse with their log line.
    zumtest::LogCapture log;
    auto d = Decode(new TCDescAC3Audio(), Desc(0x81, {0x48}));
    EXPECT_EQ(std::make_tuple(int(d->Bsid()), int(d->Mainid()), int(d->TextLen())), std::make_tuple(8, 0xFF, 0));
    EXPECT_TRUE(log.Contains("[ASSERTION!!!] TCDescAC3Audio Line = "));
    EXPECT_EQ(d->AdditionalInfoLength(), 0);
    EXPECT_TRUE(log.Contains("Failed: m_mainid != (uint8_t)INVALID"));
}

TEST(DescAC3, AtscEnhancedReadsLanguagesInOrder)
{
    auto show = [](const TCDescATSCEnhancedAC3& d) {
        return Join(int(d.FullService()), int(d.AudioServiceType()), int(d.NumChannels()), int(d.Bsid()),
                    int(d.Priority()), int(d.Mainid()), int(d.Asvc()), int(d.Substream1()), int(d.Substream3()),
                    Code(d.Language()), Code(d.Language2()), Code(d.Substream1Language()),
                    Code(d.Substream2Language()), Code(d.Substream3Language()), InfoOf(d));
    };
    ExpectBodies(0xCC, [] { return new TCDescATSCEnhancedAC3(); }, show,
                 {{{0x77, 0x4A, 0xD0 | 0x10, 0x0A, 0x21, 0x22, 0x23, 0x24, 'e', 'n', 'g', 's', 'p', 'a', 'f', 'r',
                    'a', 'd', 'e', 'u', 'i', 't', 'a', 'X', 'Y'},
                   "1 1 2 16 1 2 33 34 36 eng spa fra deu ita XY"},
                  {{0x00, 0x43, 0x00}, "1 0 3 0 0 0 0 0 0 - - - - - -"},
                  {{0x00}, "0 0 0 0 0 0 0 0 0 - - - - - -", "inLen=1, outLen=2"},
                  // A language that would pass the body is not read.
                  {{0x00, 0x00, 0x80, 'e', 'n'}, "0 0 0 0 0 0 0 0 0 - - - - - -",
                   "inLen=5, outLen=6"}});
}

TEST(DescAC3, AdditionalInfoCopies)
{
    auto dvb = Decode(new TCDescAC3(), Desc(0x6A, {0x00, 'a', 'b', 'c'}));
    ExpectCopies(*dvb, &TCDescAC3::GetAdditionalInfo,
                 {{3, true, 3, "abc##"}, {2, false, 2, "ab##"}, {0, false, 0, "##"}});
    auto atsc = Decode(new TCDescAC3Audio(), Desc(0x81, {0, 0, 0x0A, 1, 0x40, 0x00, 0x00, 'a', 'b', 'c'}));
    ExpectCopies(*atsc, &TCDescAC3Audio::GetAdditionalInfo, {{3, true, 3, "abc##"}, {2, false, 2, "####"}});
}
