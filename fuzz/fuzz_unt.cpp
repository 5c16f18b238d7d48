// UNT over arbitrary sections: instances by OUI, items with their
// compatibility bytes, platform loops with target and operational descriptors.

#include <cstddef>
#include <cstdint>

#include <zum-platform/PlatformConfig.h>

#include "FuzzSection.h"
#include "dvb/UNTParser.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 1)
        return 0;
    zum_platform::BinderSettings settings;
    settings.countryCode = ZumPackCode((data[0] & 1) ? "DEU" : "GBR");
    zum_platform::SetBinder(settings);

    TCUNTParser unt{ZUMHandle()};
    unt.Initialize();
    volatile unsigned sink = 0;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x4B, [&](const zumfuzz::ExactSection& section) {
        unt.Parse(0x20, section.data());
        for (int i = 0; i < unt.NumOfUNTIntance(); ++i) {
            const TCUNTInstance* instance = unt.UNTInstanceOfIndex(static_cast<unsigned>(i));
            for (int k = 0; k < instance->NumOfItem(); ++k) {
                const TCUNTItem* item = instance->UNTItem(static_cast<unsigned>(k));
                unsigned char buffer[64];
                unsigned short bytes = sizeof buffer;
                if (item->GetCompatibilityDescriptor(buffer, bytes))
                    sink = sink + buffer[bytes - 1];
                for (int e = 0; e < item->NumOfElementary(); ++e)
                    sink = sink + static_cast<unsigned>(
                                      item->UNTElementary(static_cast<unsigned>(e))->Descriptors().NumOfDescriptors());
            }
        }
    });
    return 0;
}
