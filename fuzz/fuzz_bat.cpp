// BAT over arbitrary sections: sub-tables by bouquet id, the bouquet loop with
// its linkages, transport streams and channel numbers by priority.

#include <cstddef>
#include <cstdint>
#include <list>

#include <zum-platform/PlatformConfig.h>

#include "FuzzSection.h"
#include "dvb/DVBBATParser.h"
#include "dvb/DescLinkage.h"
#include "operators/DescLogicalChannel.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 1)
        return 0;
    static const char* const kCountries[] = {"GBR", "ITA", "FRA", "FIN"};
    static const unsigned int kSpecifiers[] = {0, 0x28, 0xBE, 0x29};
    zum_platform::BinderSettings settings;
    settings.countryCode = ZumPackCode(kCountries[data[0] & 3]);
    settings.privateDataSpecifier = kSpecifiers[(data[0] >> 2) & 3];
    settings.operatorId = (data[0] & 0x10) ? 70 : 0;
    zum_platform::SetBinder(settings);

    TCDVBBATParser bat{ZUMHandle()};
    bat.Initialize();
    zumfuzz::ForEachSection(data + 1, size - 1, 0x4A, [&](const zumfuzz::ExactSection& section) {
        bat.Parse(0x11, section.data());
        bat.AllSubtablesReceived();
        std::list<unsigned short> ids;
        bat.BouquetIds(ids);
        for (unsigned short id : ids) {
            const TCDVBBATInstance* bouquet = bat.GetInstance(id);
            for (int i = 0; i < bouquet->NumOfDescriptors(0x4A); ++i) {
                const auto* linkage = dynamic_cast<const TCDescLinkage*>(bouquet->Descriptor(0x4A, static_cast<unsigned>(i)));
                if (linkage && linkage->M7HomeTPData())
                    linkage->M7HomeTPData()->Operators();
            }
            for (int i = 0; i < bouquet->NumOfDVBItemMux(); ++i) {
                const TCDVBItemMux* mux = bouquet->DVBItemMuxOfIndex(static_cast<unsigned>(i));
                IDescLogicalChannel* lcn =
                    mux->LCNDescriptorbyPriority(true, 0x0101, settings.countryCode, (data[0] & 0x40) != 0);
                if (lcn)
                    lcn->LogicalChannelNumber(0x0101);
                bouquet->DVBItemMux(mux->TransportStreamId(), mux->OriginalNetworkId());
            }
            bat.IsRecv(id);
        }
    });
    return 0;
}
