#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <zum-platform/Dlog.h>

#include "core/Descriptor.h"
#include "dvb/DescContent.h"
#include "program/ProgramCommonUtil.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zumtest::Bytes;
using zumtest::Concat;
using zumtest::Desc;

namespace {

zum_platform::BinderSettings Country(const char* code, int country = 0, unsigned int region = 0)
{
    zum_platform::BinderSettings s;
    s.countryCode = ZumPackCode(code);
    s.country = static_cast<ECountry>(country);
    s.ratingRegion = region;
    return s;
}

// A parental rating descriptor of (code, rating) entries; a code keeps its case and blanks.
std::unique_ptr<TCDescParentalRating> Rating(const std::vector<std::pair<std::string, int>>& entries)
{
    Bytes body;
    for (const auto& e : entries) {
        body.insert(body.end(), e.first.begin(), e.first.end());
        body.push_back(static_cast<unsigned char>(e.second));
    }
    auto rating = std::make_unique<TCDescParentalRating>();
    const Bytes raw = Desc(0x55, body);
    rating->Parse(raw.data());
    return rating;
}

std::basic_string<unsigned short> Utf16(const unsigned char* text, unsigned short length)
{
    std::basic_string<unsigned short> out;
    for (unsigned short i = 0; i + 1 < length; i += 2)
        out.push_back(static_cast<unsigned short>((text[i] << 8) | text[i + 1]));
    return out;
}

std::basic_string<unsigned short> U(const std::string& ascii)
{
    return std::basic_string<unsigned short>(ascii.begin(), ascii.end());
}

} // namespace

// The country picks the implementation: only ISDB countries make components, only Japan rules copies.
TEST(ProgramCommonUtil, ImplementationByCountry)
{
    zumtest::UseReleasedImage();
    struct Case {
        const char* code;
        bool components, copyControl;
    } cases[] = {{"KOR", false, false}, {"GBR", false, false}, {"BRA", true, false}, {"cri", true, false},
                 {"CRI", false, false}, {"ZAF", true, false}, {"TWN", true, false}, {"JPN", true, true}};
    TCDescriptorHash empty;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.code);
        zumtest::BinderScope binder(Country(c.code));
        TCProgramCommonUtil util(ZUMHandle(7, 1, 2));
        EXPECT_EQ(zum_platform::LastBinderHandle(), ZUMHandle(7, 1, 2));
        TCProgramData::TCProgCompData comps;
        EXPECT_EQ(util.MakeComponent(empty, comps), c.components);
        EDigitalCopyControl out = static_cast<EDigitalCopyControl>(9);
        EXPECT_EQ(util.GetDigitalCopyControl(EISDB_SERVICE_TYPE_DIGITAL_TV, 0, 0, out), c.copyControl);
        EXPECT_EQ(out, c.copyControl ? EDIGITAL_COPY_NEVER : 9);
        EXPECT_EQ(util.GetAudioOutputControl(0, 0, out), c.copyControl);
        EXPECT_FALSE(util.DataServiceAvailable(empty));
        TSRatingInfo info;
        EXPECT_TRUE(util.GetDigitalRatingInfo(Rating({{"GBR", 4}}).get(), info)); // every implementation answers the rating
    }
    zumtest::BinderScope binder;
    zum_platform::RemoveBinder();
    zumtest::LogCapture log;
    TCProgramCommonUtil util(ZUMHandle(1, 0, 0));
    TCProgramData::TCProgCompData comps;
    TCDescriptorHash hash;
    EXPECT_FALSE(util.MakeComponent(hash, comps));
    EXPECT_EQ(log.Lines(DLOG_ERROR).size(), 1u);
    EXPECT_TRUE(log.Contains("Failed: pBinder"));
}

TEST(ProgramCommonUtil, JapaneseCopyAndAudioOutputRules)
{
    zumtest::BinderScope binder(Country("JPN"));
    TCProgramCommonUtil util(kZUMDefaultHandle);
    // service type, copy control type, digital recording control, expected
    const int copy[][4] = {{1, 0, 3, 4},   {161, 2, 0, 4},  {1, 1, 3, 4},   {161, 1, 2, 2},  {1, 1, 1, 0},
                           {163, 1, 3, 4}, {170, 1, 2, 2},  {192, 1, 0, 0}, {163, 3, 3, 5},  {170, 3, 2, 3},
                           {192, 3, 1, 0}, {163, 0, 3, 5},  {192, 2, 2, 5}, {2, 1, 3, 0},   {0xA2, 3, 3, 0}};
    for (const auto& c : copy) {
        EDigitalCopyControl out = static_cast<EDigitalCopyControl>(9);
        EXPECT_TRUE(util.GetDigitalCopyControl(static_cast<EISDBServiceType>(c[0]), static_cast<unsigned char>(c[1]),
                                               static_cast<unsigned char>(c[2]), out));
        EXPECT_EQ(out, c[3]) << c[0] << " " << c[1] << " " << c[2];
    }
    const int audio[][3] = {{0, 3, 6}, {2, 0, 6}, {1, 1, 4}, {3, 3, 4}, {1, 2, 2}, {3, 0, 0}, {4, 3, 0}, {255, 2, 0}};
    for (const auto& a : audio) {
        EDigitalCopyControl out = static_cast<EDigitalCopyControl>(9);
        EXPECT_TRUE(util.GetAudioOutputControl(static_cast<unsigned char>(a[0]), static_cast<unsigned char>(a[1]), out));
        EXPECT_EQ(out, a[2]) << a[0] << " " << a[1];
    }
}

TEST(ProgramCommonUtil, DigitalRatingByCountryAndRegion)
{
    zumtest::UseReleasedImage();
    struct Case {
        const char* code;
        int country;
        unsigned int region;
        std::vector<std::pair<std::string, int>> entries;
        int expected; // -1: no answer
    } cases[] = {
        {"GBR", 0, 0, {{"FRA", 5}, {"GBR", 7}}, 7},
        {"GBR", 0, 0, {{"FRA", 5}}, 5},      // the first entry stands in
        {"GBR", 0, 8, {{"FRA", 5}}, -1},     // not in these rating regions
        {"GBR", 0, 12, {{"FRA", 5}}, -1},
        {"ARG", 64, 0, {{"ARG", 3}, {"BRA", 9}}, 9}, // the Brazil group looks for BRA
        {"ARG", 72, 0, {{"ARG", 3}}, -1},
        {"ARG", 66, 0, {{"BOL", 2}, {"ARG", 3}}, 3}, // 66 is outside the group
        {"DEU", 0, 0, {{"FRA", 1}, {"deu", 4}}, 4}, // case of the entry aside
        {"POL", 0, 0, {{"FRA", 1}, {"PL ", 6}}, 6},
        {"POL", 0, 8, {{"pl ", 6}}, -1},
        {"GBR", 0, 0, {{"PL ", 6}, {"GBR", 2}}, 2},
        {"GBR", 0, 0, {}, -1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.code) + " " + std::to_string(c.country) + " " + std::to_string(c.region));
        zumtest::BinderScope binder(Country(c.code, c.country, c.region));
        TCProgramCommonUtil util(kZUMDefaultHandle);
        TSRatingInfo info;
        info.ratingExtra = 1;
        ASSERT_EQ(util.GetDigitalRatingInfo(Rating(c.entries).get(), info), c.expected >= 0);
        if (c.expected >= 0) {
            EXPECT_EQ(info.ratingType, 8);
            EXPECT_EQ(info.ratingValue, c.expected);
            EXPECT_EQ(info.ratingExtra, 0);
        }
    }
    zumtest::BinderScope binder(Country("GBR"));
    TCProgramCommonUtil util(kZUMDefaultHandle);
    TSRatingInfo info;
    zumtest::LogCapture log;
    EXPECT_FALSE(util.GetDigitalRatingInfo(nullptr, info));
    EXPECT_TRUE(log.Contains("Failed: pRating"));
    zum_platform::RemoveBinder();
    EXPECT_FALSE(util.GetDigitalRatingInfo(Rating({{"GBR", 3}}).get(), info));
    EXPECT_TRUE(log.Contains("Failed: pBinder"));
}

// ISDB components from the component descriptors of a loop: a tag of no type adds nothing and the
// walk goes on; the text is converted in the component's language group.
TEST(ProgramCommonUtil, ComponentsFromComponentDescriptors)
{
    zumtest::BinderScope binder(Country("BRA"));
    const Bytes loop = Concat({Desc(0x50, {0x01, 0xB3, 0x00, 'p', 'o', 'r', 0x15, 'H', 'D'}),
                               Desc(0x50, {0x01, 0x03, 0x80, 'e', 'n', 'g', 'x'}),
                               Desc(0x50, {0x02, 0x03, 0x10, 'E', 'N', 'G'}),
                               Desc(0x4D, {'p', 'o', 'r', 0, 0})});
    TCDescriptorHash hash;
    TCDescriptor(kZUMDefaultHandle).Parse(loop.data(), static_cast<int>(loop.size()), hash, 0x4E);
    ASSERT_EQ(hash.NumOfDescriptors(0x50), 3);
    TCProgramData::TCProgCompData comps;
    TCProgramCommonUtil util(kZUMDefaultHandle);
    EXPECT_TRUE(util.MakeComponent(hash, comps));
    const int counts[] = {1, 1, 0, 0};
    for (int type = 0; type < 4; ++type)
        EXPECT_EQ(comps.NumOfComponent(static_cast<TCProgramData::EComponentType>(type)), counts[type]) << type;
    TCProgramData::TTComp video, audio;
    ASSERT_TRUE(comps.GetComponent(TCProgramData::COMP_TYPE_VIDEO, 0, video));
    EXPECT_EQ(video.componentTag, 0x00);
    EXPECT_EQ(video.componentType, 0xB3);
    EXPECT_EQ(video.language, ZumPackCode("por"));
    EXPECT_EQ(video.qualityIndicator, 0u);
    EXPECT_EQ(Utf16(video.text.get(), video.textLength), U("HD"));
    ASSERT_TRUE(comps.GetComponent(TCProgramData::COMP_TYPE_AUDIO, 0, audio));
    EXPECT_EQ(audio.componentTag, 0x10);
    EXPECT_EQ(audio.language, ZumPackCode("eng")); // upper case on air, the group key here
    EXPECT_EQ(audio.text, nullptr);
    EXPECT_EQ(audio.textLength, 0);

    unsigned char in[] = {0x15, 'a', 'b', 'c'}, out[4];
    unsigned short outLength = sizeof out;
    EXPECT_FALSE(util.ConvertToUnicode(in, sizeof in, out, outLength, ZumPackCode("eng")));
    EXPECT_EQ(Utf16(out, outLength), U("ab"));
}

// ARIB audio and data content components: a bilingual stream gives two audio entries with one text, a data
// content its entry component with type 0; a data service is found by its entry component or, in Japan, by
// the selector of the first data coding that has one.
TEST(ProgramCommonUtil, AudioAndDataContentComponents)
{
    const Bytes bilingual = Desc(0xC4, {0x02, 0x03, 0x10, 0x0F, 0xFF, 0xEF, 'j', 'p', 'n', 'E', 'N', 'G', 0x15, 'D', 'u', 'o'});
    const Bytes mono = Desc(0xC4, {0x02, 0x01, 0x11, 0x0F, 0xFF, 0x6F, 'j', 'p', 'n'});
    const Bytes captions = Desc(0xC7, {0x00, 0x08, 0x30, 0x00, 0x00, 'p', 'o', 'r', 0x00});
    auto dataContent = [](unsigned id, unsigned entry, const Bytes& selector) {
        Bytes body{static_cast<uint8_t>(id >> 8), static_cast<uint8_t>(id), static_cast<uint8_t>(entry),
                   static_cast<uint8_t>(selector.size())};
        body.insert(body.end(), selector.begin(), selector.end());
        return Desc(0xC7, Concat({body, {0x00, 'j', 'p', 'n', 0x00}}));
    };
    zumtest::BinderScope binder(Country("BRA"));
    const Bytes loop = Concat({bilingual, mono, captions});
    TCDescriptorHash hash;
    TCDescriptor(kZUMDefaultHandle).Parse(loop.data(), static_cast<int>(loop.size()), hash, 0x4E);
    TCProgramData::TCProgCompData comps;
    TCProgramCommonUtil(kZUMDefaultHandle).MakeComponent(hash, comps);
    std::vector<TCProgramData::TTComp> audio, subtitles;
    ASSERT_TRUE(comps.GetComponentList(TCProgramData::COMP_TYPE_AUDIO, audio));
    ASSERT_EQ(audio.size(), 3u);
    EXPECT_EQ(audio[0].language, ZumPackCode("jpn"));
    EXPECT_EQ(audio[1].language, ZumPackCode("eng"));
    for (int i : {0, 1}) {
        EXPECT_EQ(audio[i].componentTag, 0x10);
        EXPECT_EQ(audio[i].componentType, 0x03);
        EXPECT_EQ(audio[i].qualityIndicator, 2u);
        EXPECT_EQ(Utf16(audio[i].text.get(), audio[i].textLength), U("Duo"));
    }
    EXPECT_EQ(audio[2].componentTag, 0x11);
    EXPECT_EQ(audio[2].text, nullptr);
    ASSERT_TRUE(comps.GetComponentList(TCProgramData::COMP_TYPE_SUBTITLE, subtitles));
    EXPECT_EQ(subtitles[0].componentTag, 0x30);
    EXPECT_EQ(subtitles[0].componentType, 0);
    EXPECT_EQ(subtitles[0].language, ZumPackCode("por"));

    struct Case {
        const char* country;
        std::vector<Bytes> descriptors;
        bool data;
    } cases[] = {
        {"BRA", {dataContent(12, 0x30, {0, 8}), dataContent(12, 0x40, {})}, true},
        {"BRA", {dataContent(12, 0x30, {0, 8})}, false},
        {"JPN", {dataContent(12, 0x40, {0x00, 0x08})}, true},
        {"JPN", {dataContent(3, 0x40, {0, 8}), dataContent(7, 0x30, {0x00, 0x08})}, true},
        {"JPN", {dataContent(12, 0x40, {0x00, 0xF7}), dataContent(11, 0x40, {0x00, 0x08})}, false}, // the first decides
        {"JPN", {dataContent(11, 0x40, {0x08}), dataContent(7, 0x40, {0x00, 0x08})}, false},       // no second byte
        {"JPN", {dataContent(3, 0x40, {0, 8})}, false},
    };
    for (const Case& c : cases) {
        binder->countryCode = ZumPackCode(c.country);
        Bytes data;
        for (const Bytes& d : c.descriptors)
            data.insert(data.end(), d.begin(), d.end());
        TCDescriptorHash contents;
        TCDescriptor(kZUMDefaultHandle).Parse(data.data(), static_cast<int>(data.size()), contents, 0x4E);
        EXPECT_EQ(TCProgramCommonUtil(kZUMDefaultHandle).DataServiceAvailable(contents), c.data)
            << "case " << (&c - cases);
    }
}
