// PSIP EIT over arbitrary sections on a few PIDs: the store by PID, source
// and event, every event's fields and title copies read back.

#include <cstddef>
#include <cstdint>

#include <zum-platform/PlatformConfig.h>

#include "FuzzSection.h"
#include "atsc/EITParser.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 1)
        return 0;
    zum_platform::BinderSettings settings;
    settings.countryCode = ZumPackCode("USA");
    zum_platform::SetBinder(settings);

    TCEITParser eit{ZUMHandle()};
    eit.Initialize();
    const short pid = static_cast<short>(0x1D00 + (data[0] & 0x03));
    zumfuzz::ForEachSection(data + 1, size - 1, 0xCB, [&eit, pid](const zumfuzz::ExactSection& section) {
        eit.Parse(pid, section.data());
        for (short p : eit.PIDs()) {
            const TCEITInstance* instance = eit.EITInstance(p);
            for (unsigned s = 0; s < instance->NumOfSourceId(); ++s) {
                const TCEITItem* item = instance->EITItemOfIndex(s);
                if (instance->EITItem(item->SourceId()) == nullptr)
                    __builtin_trap();
                for (unsigned k = 0; k <= item->NumOfEITItemEvent(); ++k)
                    if (const TCEITItemEvent* e = item->EITItemEvent(k)) {
                        unsigned char title[256];
                        for (int capacity : {1, 8, 256}) {
                            int length = capacity;
                            e->TitleText(title, &length);
                        }
                        volatile unsigned sink = e->EventId() + e->StartTime() + e->LengthInSeconds();
                        if (e->DescriptorsLength())
                            sink = sink + e->Descriptors()[e->DescriptorsLength() - 1];
                        (void)sink;
                    }
            }
        }
    });
    return 0;
}
