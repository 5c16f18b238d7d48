// Astra SGT over arbitrary sections: service lists, their records and
// descriptor loops under Astra's specifier, read back through every accessor.

#include <cstddef>
#include <cstdint>
#include <list>

#include <zum-platform/PlatformConfig.h>
#include <zum-platform/ServiceData.h>

#include "FuzzSection.h"
#include "ReadDescFields.h"
#include "dvb/DVBSGTParser.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 1)
        return 0;
    zum_platform::BinderSettings settings;
    settings.countryCode = ZumPackCode("DEU");
    settings.privateDataSpecifier = (data[0] & 1) ? 1 : 0;
    zum_platform::SetBinder(settings);

    TCDVBSGTParser sgt{ZUMHandle()};
    zumfuzz::ForEachSection(data + 1, size - 1, 0x91, [&sgt](const zumfuzz::ExactSection& section) {
        sgt.Parse(0x0BB8, section.data());
        std::list<unsigned short> ids;
        sgt.ServiceListsIds(ids);
        for (unsigned short id : ids) {
            const TCDVBSGTInstance* list = sgt.Instance(id);
            for (int i = 0; i < list->NumOfDescriptors(); ++i)
                fuzzfields::Read(list->DescriptorByIndex(static_cast<unsigned>(i)));
            for (int i = 0; list->Service(i); ++i) {
                TCServiceData record;
                list->Service(i)->GetServiceData(&record);
                for (int d = 0; d < list->Service(i)->NumOfDescriptors(); ++d)
                    fuzzfields::Read(list->Service(i)->DescriptorByIndex(static_cast<unsigned>(d)));
            }
        }
        sgt.AllSubtablesReceived();
        sgt.GetFirstInstance();
    });
    return 0;
}
