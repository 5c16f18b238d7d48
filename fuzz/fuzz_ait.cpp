// AIT over arbitrary sections: every instance, its applications and their
// descriptor loops read, and the table copied as a caller keeps it.

#include <cstddef>
#include <cstdint>

#include <zum-platform/PlatformConfig.h>

#include "FuzzSection.h"
#include "ReadDescFields.h"
#include "apps/AITParser.h"

namespace {

void ReadLoop(const IDescriptorContainer& loop)
{
    for (int i = 0; i < loop.NumOfDescriptors(); ++i)
        fuzzfields::Read(loop.DescriptorByIndex(static_cast<unsigned int>(i)));
}

void ReadTable(const TCAITParser& ait)
{
    for (int i = 0; i < ait.NumOfAITInstance(); ++i) {
        const TCAitInstance* instance = ait.AITInstanceOfIndex(static_cast<unsigned>(i));
        ReadLoop(*instance);
        for (int k = 0; k < instance->NumOfAITApplication(); ++k)
            ReadLoop(*instance->AITApplication(static_cast<unsigned>(k)));
        instance->AITApplicationByAppIdent(0x10, 1);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 1)
        return 0;
    zum_platform::BinderSettings settings;
    settings.countryCode = ZumPackCode((data[0] & 1) ? "ITA" : "DEU");
    zum_platform::SetBinder(settings);

    TCAITParser ait(0x74, ZUMHandle());
    ait.Initialize();
    TCAITParser kept(0x74, ZUMHandle());
    zumfuzz::ForEachSection(data + 1, size - 1, 0x74, [&](const zumfuzz::ExactSection& section) {
        ait.Parse(0x1EC5, section.data());
        kept = ait;
    });
    ait.Initialize();
    ReadTable(kept);
    return 0;
}
