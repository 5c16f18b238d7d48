#include <memory>
#include <string>
#include <tuple>
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

TCDescriptorHash Loop(const Bytes& loop)
{
    TCDescriptorHash hash;
    TCDescriptor(kZUMDefaultHandle).Parse(loop.data(), static_cast<int>(loop.size()), hash, 0x4E);
    return hash;
}

// ISDB components: a component tag of no type adds nothing and the walk goes on; a bilingual audio stream gives
// two entries with one text; a data content gives its entry component with type 0. Texts are converted in the
// component's language group.
TEST(ProgramCommonUtil, ComponentsOfIsdbDescriptors)
{
    zumtest::BinderScope binder(Country("BRA"));
    const TCDescriptorHash hash = Loop(Concat({Desc(0x50, {0x01, 0xB3, 0x00, 'p', 'o', 'r', 0x15, 'H', 'D'}),
                                               Desc(0x50, {0x01, 0x03, 0x80, 'e', 'n', 'g', 'x'}),
                                               Desc(0xC4, {0x02, 0x03, 0x10, 0x0F, 0xFF, 0xEF, 'j', 'p', 'n', 'E', 'N',
                                                           'G', 0x15, 'D', 'u', 'o'}),
                                               Desc(0xC4, {0x02, 0x01, 0x11, 0x0F, 0xFF, 0x6F, 'p', 'o', 'r'}),
                                               Desc(0xC7, {0x00, 0x08, 0x30, 0x00, 0x00, 'p', 'o', 'r', 0x00})}));
    TCProgramData::TCProgCompData comps;
    EXPECT_TRUE(TCProgramCommonUtil(kZUMDefaultHandle).MakeComponent(hash, comps));
    // Type, tag, component type, language, quality, text.
    using Comp = std::tuple<int, int, int, std::string, unsigned, std::basic_string<unsigned short>>;
    std::vector<Comp> got;
    for (int type = 0; type < 4; ++type) {
        std::vector<TCProgramData::TTComp> list;
        comps.GetComponentList(static_cast<TCProgramData::EComponentType>(type), list);
        for (const TCProgramData::TTComp& c : list)
            got.emplace_back(type, c.componentTag, c.componentType,
                             std::string{char(c.language >> 16), char(c.language >> 8), char(c.language)},
                             c.qualityIndicator, Utf16(c.text.get(), c.textLength));
    }
    EXPECT_EQ(got, (std::vector<Comp>{{0, 0x00, 0xB3, "por", 0, U("HD")},
                                      {1, 0x10, 0x03, "jpn", 2, U("Duo")},
                                      {1, 0x10, 0x03, "eng", 2, U("Duo")},
                                      {1, 0x11, 0x01, "por", 2, U("")},
                                      {2, 0x30, 0x00, "por", 0, U("")}}));

    unsigned char in[] = {0x15, 'a', 'b', 'c'}, out[4];
    unsigned short outLength = sizeof out;
    EXPECT_FALSE(TCProgramCommonUtil(kZUMDefaultHandle).ConvertToUnicode(in, sizeof in, out, outLength, 0));
    EXPECT_EQ(Utf16(out, outLength), U("ab"));
}

// A data service: by its entry component, or in Japan by the selector of the first data coding that has one.
TEST(ProgramCommonUtil, DataServiceAvailable)
{
    auto content = [](unsigned id, unsigned entry, const Bytes& selector) {
        return Desc(0xC7, Concat({{0x00, static_cast<uint8_t>(id), static_cast<uint8_t>(entry),
                                   static_cast<uint8_t>(selector.size())},
                                  selector, {0x00, 'j', 'p', 'n', 0x00}}));
    };
    const struct {
        const char* country;
        Bytes loop;
        bool data;
    } cases[] = {
        {"BRA", Concat({content(12, 0x30, {0, 8}), content(12, 0x40, {})}), true},
        {"BRA", content(12, 0x30, {0, 8}), false},
        {"JPN", Concat({content(3, 0x40, {0, 8}), content(7, 0x30, {0x00, 0x08})}), true},
        {"JPN", Concat({content(12, 0x40, {0x00, 0xF7}), content(11, 0x40, {0x00, 0x08})}), false}, // the first decides
        {"JPN", Concat({content(11, 0x40, {0x08}), content(7, 0x40, {0x00, 0x08})}), false},       // no second byte
        {"JPN", content(3, 0x40, {0, 8}), false},
    };
    for (const auto& c : cases) {
        zumtest::BinderScope binder(Country(c.country));
        EXPECT_EQ(TCProgramCommonUtil(kZUMDefaultHandle).DataServiceAvailable(Loop(c.loop)), c.data)
            << "case " << (&c - cases);
    }
}
