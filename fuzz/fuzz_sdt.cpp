// SDT actual and other over arbitrary sections: sub-tables by network key,
// services and their descriptor loops.

#include <cstddef>
#include <cstdint>

#include <zum-platform/PlatformConfig.h>

#include "FuzzSection.h"
#include "dvb/DVBSDTParser.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 1)
        return 0;
    zum_platform::BinderSettings settings;
    settings.countryCode = ZumPackCode((data[0] & 1) ? "GBR" : "BRA");
    settings.privateDataSpecifier = (data[0] & 2) ? 0x233A : 0;
    zum_platform::SetBinder(settings);
    const int tableId = (data[0] & 4) ? 0x46 : 0x42;

    TCDVBSDTParser sdt(tableId, ZUMHandle());
    sdt.Initialize();
    zumfuzz::ForEachSection(data + 1, size - 1, tableId, [&sdt](const zumfuzz::ExactSection& section) {
        sdt.Parse(0x11, section.data());
        for (int i = 0; i < sdt.NumOfDVBSDTInstance(); ++i) {
            const TCDVBSDTInstance* instance = sdt.DVBSDTInstanceOfIndex(static_cast<unsigned>(i));
            for (int s = 0; s < instance->NumOfDVBSDTItemService(); ++s)
                instance->DVBSDTItemServiceOfIndex(static_cast<unsigned>(s))->NumOfDescriptors();
            sdt.IsInstanceRecv(instance->TransportStreamId(), instance->OriginalNetworkId());
        }
    });
    return 0;
}
