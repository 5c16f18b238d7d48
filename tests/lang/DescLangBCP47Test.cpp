// BCP 47 tags to three-letter codes: every key of the map, and the rules
// that pick a subtag.

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "lang/DescLangBCP47.h"

namespace {

ELanguageCode Code(const std::string& tag)
{
    TCDescLangBCP47 bcp47;
    EXPECT_EQ(bcp47.Parse(reinterpret_cast<const unsigned char*>(tag.data()), static_cast<unsigned char>(tag.size())),
              static_cast<int>(tag.size()));
    return bcp47.GetELanguageCodeISO639();
}

ELanguageCode Packed(const char* code)
{
    return (static_cast<ELanguageCode>(code[0]) << 16) | (static_cast<ELanguageCode>(code[1]) << 8) |
           static_cast<ELanguageCode>(code[2]);
}

} // namespace

TEST(DescLangBCP47, EveryKeyOfTheMap)
{
    // "code: keys", as the list is published.
    const char* const kMap[] = {
        "kor: ko", "eng: en", "spa: es", "fre: fr", "jpn: ja",
        "chi: zh ltc och zhx cdo cjy cpx czh czo gan hak hsn lzh mnp nan wuu", "ger: de", "ita: it",
        "rus: ru orv", "dut: nl", "por: pt", "swe: sv", "bul: bg", "scr: sh-hr hr sh", "cze: cs",
        "gre: el cpg gmy grk rge", "hun: hu ohu", "pol: pl", "rum: rup", "tur: tr", "dan: da rmd",
        "fin: fi fit fkv", "nor: no", "srp: sr sh-sr", "cym: cy", "gdh: gd", "iri: ga", "slk: sk", "mao: mi",
        "cmn: cmn", "yue: hks yue", "hin: hi hca hif", "qaa: qaa", "qab: qab", "qac: qac", "nar: nar", "cat: csc",
        "val: ca-valencia", "glg: gl", "eus: eu", "tam: ta", "est: et ekk",
        ("ara: ar ajt aju jrb jye sqr xaa xna xrb yhd yud aao abh abv acm acq acw acx acy adf aeb aec afb ajp apc "
        "apd arb arq ars ary arz avl ayh ayl ayn ayp bbz pga shu ssh"),
        "per: fa", "tha: th cth nod pht soa sou tts", "heb: he iw hbo",
        "ind: id in bdl bhz bnd bvt bzq kbv kvd lhh lti mhs mqa mxn pea spb tmn twe wmm", "vie: vi", "urd: ur",
        "afr: af", "zul: zu", "xho: xh", "yor: yo", "igb: ig", "hau: ha", "swa: sw ccl swc", "swh: swh",
        "amh: am", "ira: ira", "fil: fil", "lit: lt olt", "lav: lv lvs", "slv: sl",
        "alb: sq aae aat aln als sqj", "ukr: uk", "kaz: kk", "mkd: mk xmk", "may: ilm mxr", "aka: ak",
        "twi: tw", "ewe: ee", "gaa: gaa ttb", "nzi: nzi", "nbl: nd nr", "nso: nso", "sot: st", "ssw: ss",
        "tso: ts", "tsn: tn", "ven: ve", "uzb: uz auz uzn uzs", "aze: az azb azj",
        "mon: mn cmg khk mvf xgn xng", "bos: bs", "ben: bn", "tel: te", "mar: mr omr", "kok: kok gom knn",
        "guj: gu", "kan: kn kfi", "mal: ml", "ori: or ory", "pan: pa", "asm: as", "dag: dag", "xsm: xsm",
        "msa: ms zlm", "gos: gos", "smo: sm", "smi: smi"};
    int keys = 0;
    for (const char* row : kMap) {
        std::istringstream in(row);
        std::string code;
        std::string key;
        in >> code;
        while (in >> key) {
            ++keys;
            // A key with a dash is a primary and a second subtag; "x-" puts the others second.
            const bool joined = key.find('-') != std::string::npos;
            EXPECT_EQ(Code(joined ? key : key + "-ZZ"), Packed(code.c_str())) << key;
            if (key.size() >= 2 && !joined) {
                EXPECT_EQ(Code("x-" + key), Packed(code.c_str())) << key;
            }
        }
    }
    EXPECT_EQ(keys, 225);
}

TEST(DescLangBCP47, SubtagRules)
{
    const struct {
        const char* tag;
        ELanguageCode code;
    } kCases[] = {
        {"en", 0x656E67},          {"en-GB", 0x656E67},       {"EN", 0xFFFFFFFF},   {"sh", 0x736372},
        {"sh-hr", 0x736372},       {"sh-sr", 0x737270},       {"ca-valencia", 0x76616C}, {"ca", 0xFFFFFFFF},
        {"ro", 0xFFFFFFFF},        {"zh-cmn-Hans", 0x636D6E}, {"zh-yue", 0x797565}, {"es-ar", 0x617261},
        {"en-in", 0x696E64},       {"x-a", 0xFFFFFFFF},       {"hr-a", 0x736372},   {"", 0xFFFFFFFF},
        {"-en", 0x656E67},         {"de--en", 0x676572},      {"ca-valencia-x", 0x76616C},
    };
    for (const auto& c : kCases)
        EXPECT_EQ(Code(c.tag), c.code) << c.tag;
}

TEST(DescLangBCP47, ParsingAgainStartsEmpty)
{
    TCDescLangBCP47 bcp47;
    bcp47.Parse(reinterpret_cast<const unsigned char*>("zh-yue"), 6);
    EXPECT_EQ(bcp47.GetELanguageCodeISO639(), 0x797565u);
    bcp47.Parse(reinterpret_cast<const unsigned char*>("de"), 2);
    EXPECT_EQ(bcp47.GetELanguageCodeISO639(), 0x676572u);
    bcp47.Parse(nullptr, 0);
    EXPECT_EQ(bcp47.GetELanguageCodeISO639(), 0xFFFFFFFFu);
}
