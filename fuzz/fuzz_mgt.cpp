// MGT over arbitrary sections: the table type list, its descriptor loops and
// the version and section tracking.

#include <cstddef>
#include <cstdint>

#include <zum-platform/PlatformConfig.h>

#include "FuzzSection.h"
#include "atsc/MGTParser.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 1)
        return 0;
    zum_platform::BinderSettings settings;
    settings.countryCode = ZumPackCode((data[0] & 1) ? "USA" : "KOR");
    zum_platform::SetBinder(settings);

    TCMGTParser mgt{ZUMHandle()};
    mgt.Initialize();
    zumfuzz::ForEachSection(data + 1, size - 1, 0xC7, [&mgt](const zumfuzz::ExactSection& section) {
        mgt.Parse(0x1FFB, section.data());
        for (unsigned i = 0; i < mgt.NumOfTable(); ++i) {
            const TCMGTTable* table = mgt.MGTTableOfIndex(i);
            if (mgt.MGTTable(table->TableType()) != table)
                __builtin_trap();
            table->NumOfDescriptors();
        }
        mgt.NumOfDescriptors();
    });
    return 0;
}
