// AC-4 descriptor: the fields of each body, the bit reader's bounds and
// messages, and the two DSI walks over toc bytes written bit by bit.

#include <gtest/gtest.h>

#include <stdexcept>

#include "av/DescAC4.h"
#include "av/DescAPD.h"
#include "dvb/DescLoopProbe.h"

using namespace svctest;

namespace {

// Writes fields of any width, most significant bit first.
class BitWriter {
public:
    BitWriter& Put(unsigned long long value, int bits)
    {
        for (int i = bits - 1; i >= 0; --i) {
            if (m_bit % 8 == 0)
                m_bytes.push_back(0);
            m_bytes.back() = static_cast<unsigned char>(m_bytes.back() | (((value >> i) & 1u) << (7 - m_bit % 8)));
            ++m_bit;
        }
        return *this;
    }
    BitWriter& Zeros(int bits) { return bits > 0 ? Put(0, 1).Zeros(bits - 1) : *this; }
    BitWriter& Align() { return Zeros((8 - m_bit % 8) % 8); }
    template <class Chars>
    BitWriter& Text(const Chars& chars) { for (auto c : chars) Put(static_cast<unsigned char>(c), 8); return *this; }
    const zumtest::Bytes& Data() const { return m_bytes; }

private:
    zumtest::Bytes m_bytes;
    int m_bit = 0;
};

// content_type with its classifier and, when given, a language tag.
void ContentLanguage(BitWriter& w, unsigned classifier, const std::string& tag)
{
    w.Put(1, 1).Put(classifier, 3).Put(tag.empty() ? 0 : 1, 1);
    if (!tag.empty())
        w.Put(tag.size(), 6).Text(tag);
}

// A substream: channel mode, two bits, no rate flag, the content description.
void Substream(BitWriter& w, unsigned classifier, const std::string& tag)
{
    w.Put(0x11, 5).Zeros(2).Put(0, 1);
    ContentLanguage(w, classifier, tag);
}

// Id, language and main of each presentation the walk kept.
std::string Presentations(const TCDescAC4& d)
{
    std::string s;
    for (int i = 0; i < d.NumOfPresentations(); ++i)
        s += (s.empty() ? "" : " | ") + Join(d.Presentation(i)->PresentationId(), Code(d.Presentation(i)->Language()),
                                            d.Presentation(i)->Main());
    return s;
}

// Runs a walk over `toc`; the message of what it threw, or "".
template <class Fn>
std::string Walk(TCDescAC4& d, zumtest::Bytes toc, Fn walk)
{
    try {
        (d.*walk)(static_cast<int>(toc.size()), toc.data());
    } catch (const std::out_of_range& e) {
        return e.what();
    }
    return "";
}

// Version 0: an id-3 single substream in en-US as main audio, an id-7 presentation of two substreams
// of which the first is Spanish commentary, and one without id in French.
zumtest::Bytes DsiV0()
{
    BitWriter w;
    w.Put(0, 3).Zeros(12).Put(3, 9);
    w.Put(1, 1).Put(0, 5).Zeros(8).Put(1, 1).Put(3, 5).Zeros(17);
    Substream(w, 0, "en-US");
    w.Align();
    w.Put(0, 1).Put(1, 5).Zeros(8).Put(1, 1).Put(7, 5).Zeros(17).Zeros(1);
    w.Put(0, 5).Zeros(2).Put(1, 1).Zeros(5);
    ContentLanguage(w, 2, "es");
    w.Put(0, 5).Zeros(2).Put(0, 1).Put(0, 1);
    w.Zeros(1).Put(1, 1).Put(2, 7).Zeros(30);
    w.Align();
    w.Put(1, 1).Put(0, 5).Zeros(8).Put(0, 1).Zeros(17);
    Substream(w, 0, "fr");
    w.Align();
    return w.Data();
}

} // namespace

TEST(DescAC4, Bodies)
{
    // Config flag, toc flag, dialog enhancement, channel mode, toc length, toc bytes, additional info.
    auto show = [](const TCDescAC4& d) {
        return Join(d.ConfigFlag(), d.TocFlag(), d.DialogEnhancementEnabled(), d.ChannelMode(), d.TocLength(),
                    d.TocSize(), d.AdditionalInfoLength());
    };
    ExpectBodies(0x7F, [] { return new TCDescAC4(); }, show,
                 {
                     {{0x14, 0xC0, 0xA0}, "0 0 0 0 0 0 0", "inLen=3, outLen=0"},
                     {{0x15}, "0 0 0 0 0 0 0"},
                     {{0x15, 0x80}, "1 0 0 0 0 0 0"},
                     {{0x15, 0xC0, 0xA0}, "1 1 1 1 0 0 0"},
                     {{0x15, 0x40}, "0 1 0 0 0 0 0"},
                     {{0x15, 0x40, 0x02, 0xAA, 0xBB}, "0 1 0 0 2 2 0"},
                     {{0x15, 0x40, 0x00}, "0 1 0 0 0 0 0"},
                     // A toc length past the body: the toc is what is there.
                     {{0x15, 0x40, 0x05, 0xAA}, "0 1 0 0 5 1 0"},
                     {{0x15, 0xC0, 0x40, 0x01, 0xAA, 0x11, 0x22}, "1 1 0 2 1 1 2"},
                     {{0x15, 0x00, 0x11}, "0 0 0 0 0 0 1"},
                 });
    auto d = Decode(new TCDescAC4(), Desc(0x7F, {0x15, 0xC0, 0x40, 0x01, 0xAA, 0x11, 0x22}));
    EXPECT_EQ(TextOf(*d, &TCDescAC4::GetToc), "\xAA");
    EXPECT_EQ(TextOf(*d, &TCDescAC4::GetAdditionalInfo), "\x11\x22");
    ExpectCopies(*d, &TCDescAC4::GetAdditionalInfo, {{1, false, 1, "\x11##"}, {2, true, 2, "\x11\x22##"}});
}

TEST(DescAC4, ReadBitsBoundsAndMessages)
{
    unsigned char data[2] = {0xA5, 0x0F};
    int position = 0;
    EXPECT_EQ(TCDescAC4::read_bits(2, data, position, 4), 0xAu);
    EXPECT_EQ(TCDescAC4::read_bits(2, data, position, 12), 0x50Fu);
    EXPECT_EQ(position, 16);
    // What each call threw, and the position after it; a failed read leaves it.
    const std::vector<std::pair<std::pair<int, int>, std::string>> kCases = {
        {{-1, 1}, "Out of range Bits -index dataByteLen=2, bitIndex=-1, bitCount=1 @-1"},
        {{0, 0}, "Bits nothing to readdataByteLen=2, bitIndex=0, bitCount=0 @0"},
        {{10, 7}, "Out of range Bits index+bitCount to highdataByteLen=2, bitIndex=10, bitCount=7 @10"},
        {{13, 3}, " @16"},
    };
    for (const auto& c : kCases) {
        int at = c.first.first;
        std::string message;
        try {
            TCDescAC4::read_bits(2, data, at, c.first.second);
        } catch (const std::out_of_range& e) {
            message = e.what();
        }
        EXPECT_EQ(message + " @" + std::to_string(at), c.second);
    }
    position = 13;
    TCDescAC4::align_bit_pos_to_byte(position);
    EXPECT_EQ(position, 16);
}

TEST(DescAC4, DsiVersion0)
{
    TCDescAC4 d;
    const zumtest::Bytes toc = DsiV0();
    EXPECT_EQ(Walk(d, toc, &TCDescAC4::m_ac4_dsi), "");
    EXPECT_EQ(Presentations(d), "3 eng 1 | 7 spa 0");
    // The walks append; a clone starts with none.
    EXPECT_EQ(Walk(d, toc, &TCDescAC4::m_ac4_dsi), "");
    EXPECT_EQ(d.NumOfPresentations(), 4);

    // Cut inside the second presentation: the first stays.
    TCDescAC4 cut;
    const std::string message = Walk(cut, zumtest::Bytes(toc.begin(), toc.begin() + 20), &TCDescAC4::m_ac4_dsi);
    EXPECT_EQ(message.rfind("Out of range Bits index+bitCount to high", 0), 0u) << message;
    EXPECT_EQ(Presentations(cut), "3 eng 1");

    TCDescAC4 none;
    EXPECT_EQ(Walk(none, {0x00, 0x00, 0x00}, &TCDescAC4::m_ac4_dsi), "");
    EXPECT_EQ(none.NumOfPresentations(), 0);

    // Tags of 1 and 43 bytes are refused, 2 and 42 pass.
    for (int bytes : {1, 2, 42, 43}) {
        BitWriter w;
        w.Zeros(15).Put(1, 9).Put(1, 1).Put(0, 5).Zeros(8).Put(1, 1).Put(1, 5).Zeros(17);
        w.Put(0, 5).Zeros(2).Put(0, 1).Put(1, 1).Put(0, 3).Put(1, 1).Put(bytes, 6).Text(std::string(bytes, 'a'));
        TCDescAC4 tag;
        const bool valid = bytes >= 2 && bytes <= 42;
        EXPECT_EQ(Walk(tag, w.Data(), &TCDescAC4::m_ac4_dsi),
                  valid ? "" : "Invalid n_language_tag_bytes[" + std::to_string(bytes) + "]");
        EXPECT_EQ(tag.NumOfPresentations(), valid ? 1 : 0);
    }
}

TEST(DescAC4, DsiVersion1)
{
    // Version 1 presentation, config 31: id 9, one channel-coded substream group in de-DE.
    BitWriter a;
    a.Put(31, 5).Zeros(3).Put(1, 1).Put(9, 5).Zeros(19).Put(0, 1).Put(0, 1).Put(0, 1);
    a.Zeros(2).Put(1, 1).Put(1, 8).Zeros(2).Put(0, 1).Zeros(24);
    ContentLanguage(a, 1, "de-DE");
    a.Zeros(1).Put(0, 1).Put(0, 1).Put(1, 1).Align().Put(3, 16).Text("abc").Put(2, 5).Zeros(22).Align();
    // Version 0 presentation, config 5: id 2, one substream in fr, an EMDF count of 1.
    BitWriter c;
    c.Put(5, 5).Zeros(3).Put(1, 1).Put(2, 5).Zeros(42);
    Substream(c, 0, "fr");
    c.Zeros(1).Put(1, 1).Put(1, 7).Zeros(15).Align();

    BitWriter w;
    w.Put(1, 3).Put(2, 7).Zeros(5).Put(4, 9).Put(1, 1).Put(0xBEEF, 16).Put(0, 1).Zeros(66).Align();
    w.Put(1, 8).Put(a.Data().size() + 2, 8).Text(a.Data()).Put(0x3F, 6).Put(1, 1).Zeros(9);
    // Unknown version, 255 + 1 bytes, passed over.
    w.Put(7, 8).Put(255, 8).Put(1, 16).Text(zumtest::Bytes(256, 0xFF));
    // Two bytes more than the presentation reads.
    w.Put(0, 8).Put(c.Data().size() + 2, 8).Text(c.Data()).Put(0xFFFF, 16);
    // A presentation without id is dropped, whatever its language.
    w.Put(0, 8).Put(8, 8).Put(5, 5).Zeros(3).Put(0, 1).Zeros(42);
    Substream(w, 0, "it");
    w.Zeros(1).Put(0, 1).Align();
    TCDescAC4 d;
    EXPECT_EQ(Walk(d, w.Data(), &TCDescAC4::m_ac4_dsi_v1), "");
    EXPECT_EQ(Presentations(d), "9 ger 1 | 2 fre 1");

    BitWriter bad;
    bad.Put(1, 3).Put(0, 7).Zeros(5).Put(1, 9).Zeros(66).Align().Put(1, 8).Put(20, 8);
    // Config 6, no EMDF, no bit rate, an alternative name of 40 bytes that are not there.
    bad.Put(6, 5).Put(0, 7).Put(0, 1).Put(1, 1).Align().Put(40, 16);
    TCDescAC4 alternative;
    EXPECT_EQ(Walk(alternative, bad.Data(), &TCDescAC4::m_ac4_dsi_v1),
              "m_ac4_alternative_info invalid value: name_len[" + std::to_string(bad.Data().size()) + "]");
}

TEST(DescAC4, ForkStartsEmptyAndExtensionRows)
{
    auto d = Decode(new TCDescAC4(), Desc(0x7F, {0x15, 0x40, 0x00}));
    EXPECT_EQ(Walk(*d, DsiV0(), &TCDescAC4::m_ac4_dsi), "");
    std::unique_ptr<TCBaseDesc> clone(d->Fork());
    EXPECT_EQ(static_cast<TCDescAC4*>(clone.get())->NumOfPresentations(), 0);
    ExpectRows({
        {"GBR DEU", 0x02, Desc(0x7F, {0x15, 0x00}), 0x7F15, typeid(TCDescAC4)},
        {"GBR", 0x42, Desc(0x7F, {0x15, 0x00}), 0x7F15, typeid(TCDescAC4)},
        {"GBR DEU", 0x02, Desc(0x7F, {0x19, 0x00}), 0x7F19, typeid(TCDescAPD)},
        {"GBR", 0x42, Desc(0x7F, {0x19, 0x00}), 0x7F19, typeid(TCDescAPD)},
    });
}
