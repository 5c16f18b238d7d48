// Stream language descriptors: ISO 639 language, teletext, subtitling.
#include <gtest/gtest.h>

#include "dvb/DescLanguage.h"
#include "dvb/DescLoopProbe.h"

using namespace svctest;

// Count, then language and audio type of each entry (3 is visual impaired commentary).
TEST(DescLanguage, EntriesAndAudioTypes)
{
    ExpectBodies(0x0A, [] { return new TCDescLanguage(); }, [](const TCDescLanguage& d) {
        std::string s = Join(d.Count());
        ELanguageCode language = 0;
        EAudioType audioType = AUDIO_TYPE_UNDEFINED;
        for (int i = 0; i < d.Count() && d.Language(i, &language, &audioType); ++i)
            s += " " + Code(language) + ":" + Join(static_cast<int>(audioType));
        return s;
    }, {
        {{'e', 'n', 'g', 0x00, 'q', 'a', 'd', 0x03}, "2 eng:0 qad:3"},
        {{'e', 'n', 'g', 0x00, 'q', 'a', 'd', 0x03, 'x', 'y'}, "2 eng:0 qad:3", "inLen=10, outLen=8"},
        {{'e', 'n', 'g'}, "0", "inLen=3, outLen=0"},
        {{}, "0"},
    });
    // An index outside the entries asserts and answers false with nothing set.
    auto d = Decode(new TCDescLanguage(), Desc(0x0A, {'e', 'n', 'g', 0x01}));
    for (int index : {-1, 1}) {
        zumtest::LogCapture log;
        ELanguageCode language = 7;
        EAudioType audioType = AUDIO_TYPE_HEARING_IMPAIRED;
        EXPECT_FALSE(d->Language(index, &language, &audioType));
        EXPECT_EQ(language, 7u);
        EXPECT_EQ(audioType, AUDIO_TYPE_HEARING_IMPAIRED);
        EXPECT_TRUE(log.Contains("Failed: 0")) << index;
    }
}

// Count, then language, type, magazine and page from index -1 to the count: zeros outside.
TEST(DescTeletext, PagesAndTheirFields)
{
    ExpectBodies(0x56, [] { return new TCDescTeletext(); }, [](const TCDescTeletext& d) {
        std::string s = Join(d.Count());
        for (int i = -1; i <= d.Count(); ++i)
            s += ", " + Join(Code(d.Iso639LangCode(i)), d.TeletextType(i), d.TeletextMagzineNumber(i),
                             d.TeletextPageNumber(i));
        return s;
    }, {
        {{'d', 'e', 'u', 0x11, 0x50, 'e', 'n', 'g', 0x2F, 0x88}, "2, - 0 0 0, deu 2 1 80, eng 5 7 136, - 0 0 0"},
        {{'d', 'e', 'u', 0x11, 0x50, 'e', 'n'}, "1, - 0 0 0, deu 2 1 80, - 0 0 0", "inLen=7, outLen=5"},
        {{'d', 'e', 'u', 0x11}, "0, - 0 0 0, - 0 0 0"},
        {{}, "0, - 0 0 0, - 0 0 0"},
    });
}

// Count, then language, type, composition and ancillary page from index -1 to the count: zeros outside.
TEST(DescSubtitling, ServicesAndTheirFields)
{
    ExpectBodies(0x59, [] { return new TCDescSubtitling(); }, [](const TCDescSubtitling& d) {
        std::string s = Join(d.Count());
        for (int i = -1; i <= d.Count(); ++i)
            s += ", " + Join(Code(d.Iso639LangCode(i)), d.SubtitlingType(i), d.CompositionPageId(i),
                             d.AncillaryPageId(i));
        return s;
    }, {
        {{'e', 'n', 'g', 0x10, 0x00, 0x01, 0x00, 0x02, 'f', 'r', 'a', 0x20, 0x12, 0x34, 0x56, 0x78},
         "2, - 0 0 0, eng 16 1 2, fra 32 4660 22136, - 0 0 0"},
        {{'e', 'n', 'g', 0x10, 0x00, 0x01, 0x00, 0x02, 'f', 'r', 'a'}, "1, - 0 0 0, eng 16 1 2, - 0 0 0",
         "inLen=11, outLen=8"},
        {{'e', 'n', 'g', 0x10}, "0, - 0 0 0, - 0 0 0", "inLen=4, outLen=0"},
        {{}, "0, - 0 0 0, - 0 0 0"},
    });
}

// Stream descriptors: program table rows in every system that has them, none in SI.
TEST(LanguageDescriptors, FactoryRows)
{
    const Bytes language = Desc(0x0A, {'e', 'n', 'g', 0}), teletext = Desc(0x56, {'d', 'e', 'u', 0x11, 0x50});
    ExpectRows({
        {"GBR", 0x02, language, 0x0A, typeid(TCDescLanguage)},
        {"BRA", 0x02, language, 0x0A, typeid(TCDescLanguage)},
        {"USA", 0x02, language, 0x0A, typeid(TCDescLanguage)},
        {"GBR", 0x02, teletext, 0x56, typeid(TCDescTeletext)},
        {"BRA", 0x02, teletext, 0x56, typeid(TCDescTeletext)},
        {"USA", 0x02, teletext, 0x56, typeid(TCDescDefault)},
        {"GBR", 0x02, Desc(0x59, {'e', 'n', 'g', 0x10, 0, 1, 0, 2}), 0x59, typeid(TCDescSubtitling)},
        {"GBR", 0x42, teletext, 0x56, typeid(TCDescDefault)},
        {"GBR", 0x4E, language, 0x0A, typeid(TCDescDefault)},
    });
}
