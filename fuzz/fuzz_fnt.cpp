// Fast-scan FNT over arbitrary sections: sub-tables by operator network id,
// the network loop and the transports, a service looked up in each.

#include <cstddef>
#include <cstdint>
#include <list>

#include <zum-platform/PlatformConfig.h>

#include "FuzzSection.h"
#include "dvb/DVBFNTParser.h"
#include "operators/DescLogicalChannel.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 1)
        return 0;
    static const char* const kCountries[] = {"NLD", "BEL", "AUT", "CZE"};
    static const unsigned int kSpecifiers[] = {0, 0x10FFFFF, 0x28, 0x29};
    zum_platform::BinderSettings settings;
    settings.countryCode = ZumPackCode(kCountries[data[0] & 3]);
    settings.privateDataSpecifier = kSpecifiers[(data[0] >> 2) & 3];
    zum_platform::SetBinder(settings);

    TCDVBFNTParser fnt(0xBC, ZUMHandle());
    fnt.Initialize();
    zumfuzz::ForEachSection(data + 1, size - 1, 0xBC, [&](const zumfuzz::ExactSection& section) {
        fnt.Parse(0x1F, section.data());
        fnt.IsRecv();
        fnt.Descriptor(0x40);
        std::list<TCBaseDesc*> clones;
        fnt.GetDescriptor(&clones);
        for (TCBaseDesc* clone : clones)
            delete clone;
        std::list<unsigned short> ids;
        fnt.NetworkIds(ids);
        for (unsigned short id : ids) {
            const TCDVBFNTInstance* network = fnt.GetInstance(id);
            for (int i = 0; i < network->NumOfDVBItemMux(); ++i) {
                const TCDVBItemMux* mux = network->DVBItemMuxOfIndex(static_cast<unsigned>(i));
                network->DVBItemMux(mux->TransportStreamId(), mux->OriginalNetworkId(), 0x0101);
                if (IDescLogicalChannel* lcn = mux->LCNDescriptorbyPriority(true, 0x0101, settings.countryCode, true))
                    lcn->LogicalChannelNumber(0x0101);
            }
        }
    });
    return 0;
}
