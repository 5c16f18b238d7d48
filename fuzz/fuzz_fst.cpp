// Fast-scan FST over arbitrary sections: sub-tables by operator network id,
// each service record with its loop read as table 0xBD.

#include <cstddef>
#include <cstdint>

#include <zum-platform/PlatformConfig.h>

#include "FuzzSection.h"
#include "dvb/DVBFSTParser.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 1)
        return 0;
    zum_platform::BinderSettings settings;
    settings.countryCode = ZumPackCode((data[0] & 1) ? "NLD" : "DEU");
    settings.privateDataSpecifier = (data[0] & 2) ? 0x10FFFFF : 0;
    zum_platform::SetBinder(settings);

    TCDVBFSTParser fst(0xBD, ZUMHandle());
    fst.Initialize();
    volatile unsigned sink = 0;
    zumfuzz::ForEachSection(data + 1, size - 1, 0xBD, [&](const zumfuzz::ExactSection& section) {
        fst.Parse(0x1F, section.data());
        const TCDVBFSTInstance* instance = fst.DVBFSTInstance(0xFFFF);
        const TCDVBFSTInstance* last = fst.DVBFSTInstance(fst.OperatorNetworkId());
        for (const TCDVBFSTInstance* i : {instance, last})
            for (int k = 0; i && k < i->NumOfDVBFSTItemService(); ++k) {
                const TCDVBFSTItemService* s = i->DVBFSTItemServiceOfIndex(static_cast<unsigned>(k));
                sink = sink + s->ServiceId() + s->DefaultPcrPid() + static_cast<unsigned>(s->NumOfDescriptors());
            }
    });
    return 0;
}
