#include "DescLangBCP47.h"

#include <unordered_map>

namespace {

const ELanguageCode kNoCode = 0xFFFFFFFF;

struct TTCodeKeys {
    const char* code;
    // Space-separated keys that give the code.
    const char* keys;
};

// By result: every key that maps to it. Keys are lower case, as tags are sent.
const TTCodeKeys kCodeKeys[] = {
    {"kor", "ko"},
    {"eng", "en"},
    {"spa", "es"},
    {"fre", "fr"},
    {"jpn", "ja"},
    {"chi", "zh ltc och zhx cdo cjy cpx czh czo gan hak hsn lzh mnp nan wuu"},
    {"ger", "de"},
    {"ita", "it"},
    {"rus", "ru orv"},
    {"dut", "nl"},
    {"por", "pt"},
    {"swe", "sv"},
    {"bul", "bg"},
    {"scr", "sh-hr hr sh"},
    {"cze", "cs"},
    {"gre", "el cpg gmy grk rge"},
    {"hun", "hu ohu"},
    {"pol", "pl"},
    {"rum", "rup"},
    {"tur", "tr"},
    {"dan", "da rmd"},
    {"fin", "fi fit fkv"},
    {"nor", "no"},
    {"srp", "sr sh-sr"},
    {"cym", "cy"},
    {"gdh", "gd"},
    {"iri", "ga"},
    {"slk", "sk"},
    {"mao", "mi"},
    {"cmn", "cmn"},
    {"yue", "hks yue"},
    {"hin", "hi hca hif"},
    {"qaa", "qaa"},
    {"qab", "qab"},
    {"qac", "qac"},
    {"nar", "nar"},
    {"cat", "csc"},
    {"val", "ca-valencia"},
    {"glg", "gl"},
    {"eus", "eu"},
    {"tam", "ta"},
    {"est", "et ekk"},
    {"ara", "ar ajt aju jrb jye sqr xaa xna xrb yhd yud aao abh abv acm acq acw acx acy adf aeb aec afb ajp "
            "apc apd arb arq ars ary arz avl ayh ayl ayn ayp bbz pga shu ssh"},
    {"per", "fa"},
    {"tha", "th cth nod pht soa sou tts"},
    {"heb", "he iw hbo"},
    {"ind", "id in bdl bhz bnd bvt bzq kbv kvd lhh lti mhs mqa mxn pea spb tmn twe wmm"},
    {"vie", "vi"},
    {"urd", "ur"},
    {"afr", "af"},
    {"zul", "zu"},
    {"xho", "xh"},
    {"yor", "yo"},
    {"igb", "ig"},
    {"hau", "ha"},
    {"swa", "sw ccl swc"},
    {"swh", "swh"},
    {"amh", "am"},
    {"ira", "ira"},
    {"fil", "fil"},
    {"lit", "lt olt"},
    {"lav", "lv lvs"},
    {"slv", "sl"},
    {"alb", "sq aae aat aln als sqj"},
    {"ukr", "uk"},
    {"kaz", "kk"},
    {"mkd", "mk xmk"},
    {"may", "ilm mxr"},
    {"aka", "ak"},
    {"twi", "tw"},
    {"ewe", "ee"},
    {"gaa", "gaa ttb"},
    {"nzi", "nzi"},
    {"nbl", "nd nr"},
    {"nso", "nso"},
    {"sot", "st"},
    {"ssw", "ss"},
    {"tso", "ts"},
    {"tsn", "tn"},
    {"ven", "ve"},
    {"uzb", "uz auz uzn uzs"},
    {"aze", "az azb azj"},
    {"mon", "mn cmg khk mvf xgn xng"},
    {"bos", "bs"},
    {"ben", "bn"},
    {"tel", "te"},
    {"mar", "mr omr"},
    {"kok", "kok gom knn"},
    {"guj", "gu"},
    {"kan", "kn kfi"},
    {"mal", "ml"},
    {"ori", "or ory"},
    {"pan", "pa"},
    {"asm", "as"},
    {"dag", "dag"},
    {"xsm", "xsm"},
    {"msa", "ms zlm"},
    {"gos", "gos"},
    {"smo", "sm"},
    {"smi", "smi"},
};

ELanguageCode Pack(const char* code)
{
    return (static_cast<ELanguageCode>(static_cast<unsigned char>(code[0])) << 16) |
           (static_cast<ELanguageCode>(static_cast<unsigned char>(code[1])) << 8) |
           static_cast<unsigned char>(code[2]);
}

using TTMapping = std::unordered_map<std::string, ELanguageCode>;

TTMapping BuildMapping()
{
    TTMapping mapping;
    mapping.reserve(256);
    for (const TTCodeKeys& entry : kCodeKeys) {
        const ELanguageCode code = Pack(entry.code);
        std::string key;
        for (const char* p = entry.keys;; ++p) {
            if (*p == ' ' || *p == '\0') {
                mapping.emplace(key, code);
                key.clear();
                if (*p == '\0')
                    break;
            } else {
                key += *p;
            }
        }
    }
    return mapping;
}

ELanguageCode Find(const TTMapping& mapping, const std::string& key)
{
    const auto found = mapping.find(key);
    return found == mapping.end() ? kNoCode : found->second;
}

} // namespace

void TCDescLangBCP47::DeleteAll()
{
    m_primary.clear();
    m_secondary.clear();
}

int TCDescLangBCP47::Parse(const unsigned char* tag, unsigned char length)
{
    DeleteAll();
    m_primary.reserve(length);
    m_secondary.reserve(length);
    if (!tag)
        return length;
    std::string* subtag = &m_primary;
    for (int i = 0; i < length; ++i) {
        if (tag[i] == '-') {
            // A third subtag and all behind it are dropped.
            if (subtag == &m_secondary)
                break;
            subtag = &m_secondary;
            continue;
        }
        *subtag += static_cast<char>(tag[i]);
    }
    return length;
}

ELanguageCode TCDescLangBCP47::GetELanguageCodeISO639() const
{
    // Built once per process; a function-local static is safe on a concurrent first use.
    static const TTMapping mapping = BuildMapping();
    if (m_secondary.size() >= 2) {
        // An extended language subtag carries the meaning: zh-yue is yue.
        ELanguageCode code = Find(mapping, m_secondary);
        if (code != kNoCode)
            return code;
        code = Find(mapping, m_primary + "-" + m_secondary);
        if (code != kNoCode)
            return code;
    }
    return Find(mapping, m_primary);
}
