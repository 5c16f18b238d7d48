// PSIP ETT over arbitrary sections: the texts by PID and ETM id, copied back.

#include <cstddef>
#include <cstdint>

#include <zum-platform/PlatformConfig.h>

#include "FuzzSection.h"
#include "atsc/ETTParser.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 1)
        return 0;
    TCETTParser ett{ZUMHandle()};
    ett.Initialize();
    const short pid = static_cast<short>(0x1E00 + (data[0] & 0x03));
    zumfuzz::ForEachSection(data + 1, size - 1, 0xCC, [&ett, pid](const zumfuzz::ExactSection& section) {
        ett.Parse(pid, section.data());
        const TCETTInstance* instance = ett.ETTInstance(pid);
        const TCETTItem* item = instance ? instance->ETTItem(ett.ETMId()) : nullptr;
        if (item) {
            unsigned char text[4096];
            for (unsigned short capacity : {1, 16, 4096}) {
                unsigned short length = capacity;
                item->ETTExtendTextMsg(text, &length);
            }
        }
    });
    return 0;
}
