// NIT actual and other over arbitrary sections: sub-tables by network id,
// transport streams and their loops, channel numbers by priority.

#include <cstddef>
#include <cstdint>
#include <list>

#include <zum-platform/PlatformConfig.h>

#include "FuzzSection.h"
#include "dvb/DVBNITParser.h"
#include "operators/DescLogicalChannel.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 1)
        return 0;
    static const char* const kCountries[] = {"GBR", "FIN", "FRA", "BRA"};
    static const unsigned int kSpecifiers[] = {0, 0x28, 0x233A, 0x29};
    zum_platform::BinderSettings settings;
    settings.countryCode = ZumPackCode(kCountries[data[0] & 3]);
    settings.privateDataSpecifier = kSpecifiers[(data[0] >> 2) & 3];
    settings.operatorId = (data[0] & 0x10) ? 86 : 0;
    zum_platform::SetBinder(settings);
    const int tableId = (data[0] & 0x20) ? 0x41 : 0x40;

    TCDVBNITParser nit(tableId, ZUMHandle());
    nit.Initialize();
    zumfuzz::ForEachSection(data + 1, size - 1, tableId, [&](const zumfuzz::ExactSection& section) {
        nit.Parse(0x10, section.data());
        std::list<unsigned short> ids;
        nit.NetworkIds(ids);
        for (unsigned short id : ids) {
            const TCDVBNITInstance* instance = nit.GetInstance(id);
            for (int i = 0; i < instance->NumOfDVBItemMux(); ++i) {
                const TCDVBItemMux* mux = instance->DVBItemMuxOfIndex(static_cast<unsigned>(i));
                IDescLogicalChannel* lcn =
                    mux->LCNDescriptorbyPriority(true, 0x0101, settings.countryCode, (data[0] & 0x40) != 0);
                if (lcn)
                    lcn->LogicalChannelNumber(0x0101);
                mux->LCNDescriptor(0x0101, 0x88, 0xFFFF00);
            }
            nit.IsRecv(id);
        }
    });
    return 0;
}
