#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "core/Descriptor.h"
#include "core/DescriptorHash.h"
#include "operators/DescTKGSComponent.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zumtest::Bytes;
using zumtest::Desc;

namespace {

using Text16 = std::basic_string<unsigned short>;

Text16 U16(const std::u16string& s)
{
    return Text16(s.begin(), s.end());
}

// Parses from a heap block of the descriptor's exact size, so that a read past it shows.
void ParseExact(TCBaseDesc& d, const Bytes& raw)
{
    std::unique_ptr<unsigned char[]> exact(new unsigned char[raw.size()]);
    std::memcpy(exact.get(), raw.data(), raw.size());
    d.Parse(exact.get());
}

const std::string kWarning = "[Warning] Descriptor[0x";

} // namespace

TEST(DescTKGS, CategoryLabel)
{
    const ELanguageCode tur = ZumPackCode("tur"), eng = ZumPackCode("eng");
    using Names = std::map<ELanguageCode, Text16>;
    struct Case {
        Bytes body;
        unsigned categoryId;
        Names names;
        bool warning;
    };
    const Case cases[] = {
        {{0xF1, 0x23}, 0x123, {}, false},
        // Turkish text by its selector byte: 0x05 is ISO 8859-9.
        {{0x00, 0x07, 'T', 'U', 'R', 3, 0x05, 0xDD, 'z', 'e', 'n', 'g', 1, 'A'}, 7,
         {{tur, U16(u"\u0130z")}, {eng, U16(u"A")}}, false},
        {{0x00, 0x07, 't', 'u', 'r', 1, 'A', 't', 'u', 'r', 1, 'B'}, 7, {{tur, U16(u"B")}}, false},
        // A text longer than the body, then a language without its length byte.
        {{0x00, 0x07, 't', 'u', 'r', 4, 'A', 'B'}, 7, {}, true},
        {{0x00, 0x07, 't', 'u', 'r', 1, 'A', 'e', 'n', 'g'}, 7, {{tur, U16(u"A")}}, false},
        {{0x00}, 0, {}, true},
    };
    for (const Case& c : cases) {
        zumtest::LogCapture log;
        TCDescTKGSMultilingualCategoryLabel d{ZUMHandle(7, 0, 0)};
        ParseExact(d, Desc(0x92, c.body));
        EXPECT_EQ(d.CategoryId(), c.categoryId);
        Names names;
        d.GetCategoryNames(names);
        EXPECT_EQ(names, c.names);
        EXPECT_EQ(log.Contains(kWarning), c.warning);
        Text16 name;
        EXPECT_EQ(d.GetCategoryName(tur, name), c.names.count(tur) > 0);
        EXPECT_EQ(name, c.names.count(tur) ? c.names.at(tur) : Text16());
        EXPECT_FALSE(d.GetCategoryName(ZumPackCode("TUR"), name));
        std::unique_ptr<TCBaseDesc> copy(d.Fork());
        static_cast<TCDescTKGSMultilingualCategoryLabel&>(*copy).GetCategoryNames(names);
        EXPECT_EQ(names, c.names);
    }
}

TEST(DescTKGS, ExtendedServiceAndComponent)
{
    struct Case {
        Bytes body;
        std::vector<unsigned int> categories;
        bool warning;
    };
    const Case services[] = {
        {{1, 2, 3, 4, 5, 6}, {}, false},
        {{1, 2, 3}, {}, true},
        {{1, 2, 3, 4, 5, 6, 0xF1, 0x23, 0x04, 0x56}, {0x123, 0x456}, false},
        {{1, 2, 3, 4, 5, 6, 0xF1, 0x23, 0xF4}, {0x123, 0x400}, false},
    };
    for (const Case& c : services) {
        zumtest::LogCapture log;
        TCDescTKGSExtendedService d;
        ParseExact(d, Desc(0x95, c.body));
        std::vector<unsigned int> ids = {9};
        d.GetCategories(ids);
        EXPECT_EQ(ids, c.categories);
        EXPECT_EQ(d.CategoryId(d.NumOfCategories()), 0xFFFFFFFFu);
        EXPECT_EQ(log.Contains(kWarning), c.warning);
    }
    struct Flags {
        Bytes body;
        bool flag, found, warning;
    };
    const Flags components[] = {
        {{'T', 'K', 'G', 'S', 0x80}, true, true, false},
        {{'T', 'K', 'G', 'S', 0x7F, 0}, false, true, true},
        {{'T', 'K', 'G', 'X', 0x80}, false, false, false},
        {{'T', 'K', 'G', 'S'}, false, false, false},
    };
    for (const Flags& c : components) {
        zumtest::LogCapture log;
        TCDescTKGSComponent d;
        ParseExact(d, Desc(0x98, c.body));
        EXPECT_EQ(d.Flag(), c.flag);
        EXPECT_EQ(d.Found(), c.found);
        EXPECT_EQ(log.Contains(kWarning), c.warning);
    }
}

TEST(DescTKGS, Dispatch)
{
    struct Case {
        unsigned char tableId;
        const char* country;
        unsigned int binderPds;
        Bytes loop;
        std::vector<int> tags; // what the loop keeps
    };
    const Bytes label = Desc(0x92, {0, 1}), service = Desc(0x95, {1, 2, 3, 4, 5, 6, 0, 1});
    const Bytes component = Desc(0x98, {'T', 'K', 'G', 'S', 0});
    const Bytes tkgsPds = Desc(0x5F, {0x01, 0x1F, 0xFF, 0xFF});
    const Case cases[] = {
        {0xA7, "TUR", 0x011FFFFF, zumtest::Concat({label, service}), {0x92, 0x95}},
        {0x42, "GBR", 0, zumtest::Concat({tkgsPds, label, service}), {0x92, 0x95}},
        {0x42, "GBR", 0, zumtest::Concat({label, service}), {}},
        {0x02, "TUR", 0x011FFFFF, component, {0x98}},
        {0x02, "TUR", 0, component, {}},
        {0x02, "TUR", 0x011FFFFF, zumtest::Concat({tkgsPds, component}), {}},
        {0x02, "GBR", 0x011FFFFF, component, {}},
    };
    for (const Case& c : cases) {
        zum_platform::BinderSettings settings;
        settings.countryCode = ZumPackCode(c.country);
        settings.country = std::string(c.country) == "TUR" ? ECOUNTRY_TURKEY : ECOUNTRY_NONE;
        settings.privateDataSpecifier = c.binderPds;
        zumtest::BinderScope binder(settings);
        TCDescriptorHash hash;
        TCDescriptor loop{ZUMHandle()};
        loop.Parse(c.loop.data(), static_cast<int>(c.loop.size()), hash, c.tableId);
        std::vector<int> tags;
        for (int i = 0; i < hash.NumOfDescriptors(); ++i)
            if (hash.DescriptorByIndex(static_cast<unsigned>(i))->Tag() != 0x5F)
                tags.push_back(hash.DescriptorByIndex(static_cast<unsigned>(i))->Tag());
        EXPECT_EQ(tags, c.tags) << c.country << " " << int(c.tableId);
    }
}
