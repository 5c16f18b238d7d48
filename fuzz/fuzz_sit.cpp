// SIT over arbitrary sections: program records, their texts and the
// descriptor loop, in a DVB or a North American country.

#include <cstddef>
#include <cstdint>

#include <zum-platform/PlatformConfig.h>

#include "FuzzSection.h"
#include "program/SITParser.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 1)
        return 0;
    zum_platform::BinderSettings settings;
    settings.countryCode = ZumPackCode((data[0] & 1) ? "USA" : "GBR");
    zum_platform::SetBinder(settings);

    TCSITParser sit{ZUMHandle()};
    sit.Initialize();
    zumfuzz::ForEachSection(data + 1, size - 1, 0xD5, [&sit](const zumfuzz::ExactSection& section) {
        sit.Parse(0x1F, section.data());
        char text[64];
        for (unsigned i = 0; sit.Program(i) != nullptr; ++i) {
            for (int type = TCSITProgram::TEXT_TYPE_TITLE; type < TCSITProgram::MAX_TEXT_TYPE; ++type) {
                int length = sizeof text;
                sit.Program(i)->GetText(text, &length, type);
            }
        }
        sit.NumOfDescriptors();
    });
    return 0;
}
