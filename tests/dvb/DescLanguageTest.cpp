#include <gtest/gtest.h>

#include <typeindex>

#include "dvb/DescLanguage.h"
#include "dvb/DescLoopProbe.h"
#include "support/LogCapture.h"

using svctest::Bytes;
using svctest::Decode;
using zumtest::Desc;

TEST(DescLanguage, EntriesAndAudioTypes)
{
    struct Case {
        const char* name;
        Bytes body;
        int count;
        const char* warning;
    } cases[] = {
        {"two entries", {'e', 'n', 'g', 0x00, 'q', 'a', 'd', 0x03}, 2, nullptr},
        {"trailing bytes", {'e', 'n', 'g', 0x00, 'q', 'a', 'd', 0x03, 'x', 'y'}, 2, "inLen=10, outLen=8"},
        {"below one entry", {'e', 'n', 'g'}, 0, "inLen=3, outLen=0"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        zumtest::LogCapture log;
        auto d = Decode(new TCDescLanguage(), Desc(0x0A, c.body));
        ASSERT_EQ(d->Count(), c.count);
        ELanguageCode language = 0;
        EAudioType audioType = AUDIO_TYPE_UNDEFINED;
        if (c.count == 2) {
            ASSERT_TRUE(d->Language(0, &language, &audioType));
            EXPECT_EQ(language, 0x656E67u);
            EXPECT_EQ(audioType, AUDIO_TYPE_UNDEFINED);
            ASSERT_TRUE(d->Language(1, &language, &audioType));
            EXPECT_EQ(language, 0x716164u);
            EXPECT_EQ(audioType, AUDIO_TYPE_VISUAL_IMPAIRED_COMMENTARY);
        }
        if (c.warning)
            EXPECT_TRUE(log.Contains(c.warning));
        else
            EXPECT_FALSE(log.Contains("length mismatch"));
    }
}

// An index outside the entries asserts and answers false with nothing set.
TEST(DescLanguage, IndexOutsideAsserts)
{
    auto d = Decode(new TCDescLanguage(), Desc(0x0A, {'e', 'n', 'g', 0x01}));
    for (int index : {-1, 1}) {
        SCOPED_TRACE(index);
        zumtest::LogCapture log;
        ELanguageCode language = 7;
        EAudioType audioType = AUDIO_TYPE_HEARING_IMPAIRED;
        EXPECT_FALSE(d->Language(index, &language, &audioType));
        EXPECT_EQ(language, 7u);
        EXPECT_EQ(audioType, AUDIO_TYPE_HEARING_IMPAIRED);
        EXPECT_TRUE(log.Contains("Failed: 0"));
    }
    auto empty = Decode(new TCDescLanguage(), Desc(0x0A, {}));
    EXPECT_EQ(empty->Count(), 0);
}

TEST(DescTeletext, PagesAndTheirFields)
{
    struct Case {
        const char* name;
        Bytes body;
        int count;
        const char* warning;
    } cases[] = {
        {"two pages", {'d', 'e', 'u', 0x11, 0x50, 'e', 'n', 'g', 0x2F, 0x88}, 2, nullptr},
        {"length 7", {'d', 'e', 'u', 0x11, 0x50, 'e', 'n'}, 1, "inLen=7, outLen=5"},
        {"below one page", {'d', 'e', 'u', 0x11}, 0, nullptr},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        zumtest::LogCapture log;
        auto d = Decode(new TCDescTeletext(), Desc(0x56, c.body));
        ASSERT_EQ(d->Count(), c.count);
        if (c.count >= 1) {
            EXPECT_EQ(d->Iso639LangCode(0), 0x646575u);
            EXPECT_EQ(d->TeletextType(0), 0x02);
            EXPECT_EQ(d->TeletextMagzineNumber(0), 0x01);
            EXPECT_EQ(d->TeletextPageNumber(0), 0x50);
        }
        if (c.count == 2) {
            EXPECT_EQ(d->TeletextType(1), 0x05);
            EXPECT_EQ(d->TeletextMagzineNumber(1), 0x07);
            EXPECT_EQ(d->TeletextPageNumber(1), 0x88);
        }
        EXPECT_EQ(d->Iso639LangCode(c.count), 0u);
        EXPECT_EQ(d->TeletextType(c.count), 0);
        EXPECT_EQ(d->TeletextMagzineNumber(-1), 0);
        EXPECT_EQ(d->TeletextPageNumber(c.count), 0);
        if (c.warning)
            EXPECT_TRUE(log.Contains(c.warning));
        else
            EXPECT_FALSE(log.Contains("length mismatch"));
    }
}

TEST(DescSubtitling, ServicesAndTheirFields)
{
    struct Case {
        const char* name;
        Bytes body;
        int count;
        const char* warning;
    } cases[] = {
        {"two services", {'e', 'n', 'g', 0x10, 0x00, 0x01, 0x00, 0x02, 'f', 'r', 'a', 0x20, 0x12, 0x34, 0x56, 0x78},
         2, nullptr},
        {"cut service", {'e', 'n', 'g', 0x10, 0x00, 0x01, 0x00, 0x02, 'f', 'r', 'a'}, 1, "inLen=11, outLen=8"},
        {"below one service", {'e', 'n', 'g', 0x10}, 0, "inLen=4, outLen=0"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        zumtest::LogCapture log;
        auto d = Decode(new TCDescSubtitling(), Desc(0x59, c.body));
        ASSERT_EQ(d->Count(), c.count);
        if (c.count >= 1) {
            EXPECT_EQ(d->Iso639LangCode(0), 0x656E67u);
            EXPECT_EQ(d->SubtitlingType(0), 0x10);
            EXPECT_EQ(d->CompositionPageId(0), 0x0001);
            EXPECT_EQ(d->AncillaryPageId(0), 0x0002);
        }
        if (c.count == 2) {
            EXPECT_EQ(d->Iso639LangCode(1), 0x667261u);
            EXPECT_EQ(d->SubtitlingType(1), 0x20);
            EXPECT_EQ(d->CompositionPageId(1), 0x1234);
            EXPECT_EQ(d->AncillaryPageId(1), 0x5678);
        }
        EXPECT_EQ(d->Iso639LangCode(-1), 0u);
        EXPECT_EQ(d->SubtitlingType(c.count), 0);
        EXPECT_EQ(d->CompositionPageId(c.count), 0);
        EXPECT_EQ(d->AncillaryPageId(c.count), 0);
        if (c.warning)
            EXPECT_TRUE(log.Contains(c.warning));
        else
            EXPECT_FALSE(log.Contains("length mismatch"));
    }
    EXPECT_EQ(Decode(new TCDescSubtitling(), Desc(0x59, {}))->Count(), 0);
}

// These are stream descriptors: PMT rows in every system that has them, none in SI.
TEST(DescLanguage, FactoryRowsThroughLoops)
{
    const Bytes language = Desc(0x0A, {'e', 'n', 'g', 0});
    const Bytes teletext = Desc(0x56, {'d', 'e', 'u', 0x11, 0x50});
    const Bytes subtitling = Desc(0x59, {'e', 'n', 'g', 0x10, 0, 1, 0, 2});
    const svctest::Row rows[] = {
        {"GBR", 0x02, language, 0x0A, typeid(TCDescLanguage)},
        {"BRA", 0x02, language, 0x0A, typeid(TCDescLanguage)},
        {"USA", 0x02, language, 0x0A, typeid(TCDescLanguage)},
        {"GBR", 0x02, teletext, 0x56, typeid(TCDescTeletext)},
        {"BRA", 0x02, teletext, 0x56, typeid(TCDescTeletext)},
        {"USA", 0x02, teletext, 0x56, typeid(TCDescDefault)},
        {"GBR", 0x02, subtitling, 0x59, typeid(TCDescSubtitling)},
        {"GBR", 0x42, teletext, 0x56, typeid(TCDescDefault)},
        {"GBR", 0x4E, language, 0x0A, typeid(TCDescDefault)},
    };
    for (const svctest::Row& row : rows) {
        SCOPED_TRACE(testing::Message() << row.country << " 0x" << std::hex << int(row.tableId) << " tag "
                                        << row.tag);
        EXPECT_EQ(svctest::ClassOfRow(row), row.expected.name());
    }
}
