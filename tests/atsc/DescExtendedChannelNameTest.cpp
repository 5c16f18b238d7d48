#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "atsc/DescExtendedChannelName.h"
#include "atsc/DescServiceLocation.h"
#include "core/Descriptor.h"
#include "core/DescriptorHash.h"
#include "support/LogCapture.h"
#include "support/SectionBuilder.h"
#include "support/TestEnvironment.h"

using zumtest::Bytes;
using zumtest::Desc;

namespace {

// "HD" in English.
const Bytes kName = {0x01, 'e', 'n', 'g', 0x01, 0x00, 0x00, 0x02, 'H', 'D'};

std::string Rendered(const TCMultipleStringStruct* mss)
{
    char text[16];
    int length = sizeof text;
    if (mss == nullptr || !mss->GetMutipleText(0, 2, 0, text, &length, nullptr))
        return "";
    std::string out;
    for (int i = 1; i < length; i += 2)
        out += text[i];
    return out;
}

} // namespace

TEST(DescMultipleStringName, FactoriesOfTheAtscCountries)
{
    struct Case { const char* country; unsigned tableId, tag; const char* expected; } cases[] = {
        {"USA", 0xC8, 0xA0, "TCDescExtendedChannelName"}, {"KOR", 0xC9, 0xA0, "TCDescExtendedChannelName"},
        {"USA", 0xC8, 0xA1, "TCDescServiceLocation"},     {"USA", 0x02, 0xA3, "TCDescComponentName"},
        {"KOR", 0x02, 0xA3, "TCDescComponentName"},       {"USA", 0x74, 0xA3, "TCDescComponentName"},
        {"USA", 0xC8, 0xA3, "TCDescDefault"},             {"GBR", 0x02, 0xA3, "TCDescDefault"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.country) + " " + std::to_string(c.tableId) + " " + std::to_string(c.tag));
        zum_platform::BinderSettings settings;
        settings.countryCode = ZumPackCode(c.country);
        zumtest::BinderScope binder(settings);
        const Bytes loop = Desc(c.tag, kName);
        TCDescriptorHash hash;
        TCDescriptor(ZUMHandle{}).Parse(loop.data(), static_cast<int>(loop.size()), hash,
                                        static_cast<unsigned char>(c.tableId));
        ASSERT_EQ(hash.NumOfDescriptors(), 1);
        const TCBaseDesc* desc = hash.DescriptorByIndex(0);
        const bool isName = dynamic_cast<const TCDescMultipleStringName*>(desc) != nullptr;
        EXPECT_EQ(isName ? (c.tag == 0xA0 ? "TCDescExtendedChannelName" : "TCDescComponentName")
                         : dynamic_cast<const TCDescServiceLocation*>(desc) ? "TCDescServiceLocation"
                                                                             : "TCDescDefault",
                  std::string(c.expected));
        if (isName) {
            EXPECT_EQ(Rendered(static_cast<const TCDescMultipleStringName*>(desc)->NameStructure()), "HD");
        }
    }
}

TEST(DescMultipleStringName, EmptyBodyAndClone)
{
    zumtest::LogCapture log;
    TCDescComponentName empty;
    const Bytes none = Desc(0xA3, {});
    empty.Parse(none.data());
    EXPECT_EQ(empty.ComponentNameLength(), 0);
    EXPECT_EQ(empty.ComponentNameString(), nullptr);
    EXPECT_TRUE(log.Contains("Failed: m_componentNameString"));

    TCDescExtendedChannelName name;
    const Bytes raw = Desc(0xA0, kName);
    EXPECT_EQ(name.Parse(raw.data()), 12);
    std::unique_ptr<TCBaseDesc> clone(name.Fork());
    name.DeleteAll();
    EXPECT_EQ(Rendered(static_cast<TCDescExtendedChannelName*>(clone.get())->ExtendedChannelNameString()), "HD");
    EXPECT_EQ(static_cast<TCDescExtendedChannelName*>(clone.get())->ExtendedChannelNameLength(), 10);
}
