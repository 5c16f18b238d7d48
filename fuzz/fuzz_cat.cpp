// CAT over arbitrary sections: one loop across the sections of a version, CA
// descriptors with their private bytes.

#include <cstddef>
#include <cstdint>

#include <zum-platform/PlatformConfig.h>

#include "FuzzSection.h"
#include "psi/DVBCATParser.h"
#include "psi/DescCA.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 1)
        return 0;
    static const char* const kCountries[] = {"GBR", "BRA", "JPN", "USA"};
    zum_platform::BinderSettings settings;
    settings.countryCode = ZumPackCode(kCountries[data[0] & 3]);
    zum_platform::SetBinder(settings);

    TCDVBCATParser cat{ZUMHandle()};
    cat.Initialize();
    zumfuzz::ForEachSection(data + 1, size - 1, 0x01, [&](const zumfuzz::ExactSection& section) {
        cat.Parse(0x01, section.data());
        for (int i = 0; i < cat.NumOfDescriptors(0x09); ++i) {
            const auto* ca = dynamic_cast<const TCDescCA*>(cat.Descriptor(0x09, static_cast<unsigned>(i)));
            if (ca && ca->PrivateDataLength() > 0) {
                volatile unsigned char last = ca->PrivateData()[ca->PrivateDataLength() - 1];
                (void)last;
            }
        }
    });
    return 0;
}
