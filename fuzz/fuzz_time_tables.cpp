// TDT and TOT parsers over arbitrary sections, several in a row, each in an
// exactly-sized buffer; the offsets of every TOT are read back from clones.

#include <cstddef>
#include <cstdint>
#include <list>

#include <zum-platform/PlatformConfig.h>

#include "FuzzSection.h"
#include "dvb/DVBTDTParser.h"
#include "dvb/DVBTOTParser.h"
#include "dvb/DescLocalTimeOffset.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    zum_platform::BinderSettings settings;
    settings.countryCode = ZumPackCode("GBR");
    zum_platform::SetBinder(settings);

    TCDVBTDTParser tdt{ZUMHandle()};
    TCDVBTOTParser tot{ZUMHandle()};
    size_t offset = 0;
    while (offset < size) {
        // Bit 0 of byte 0 picks the parser, whose own table id is then forced,
        // so that the TOT loop always reaches the SI factory.
        const bool isTot = data[offset] & 0x01;
        zumfuzz::ExactSection section;
        if (!zumfuzz::MakeExactSection(data + offset, size - offset, section, isTot ? 0x73 : 0x70))
            break;
        if (isTot)
            tot.Parse(0x14, section.data());
        else
            tdt.Parse(0x14, section.data());
        tdt.Time();
        tot.Time();
        std::list<TCBaseDesc*> offsets;
        tot.GetLocalTimeOffsetDescList(&offsets);
        for (TCBaseDesc* desc : offsets) {
            const auto* lto = dynamic_cast<const TCDescLocalTimeOffset*>(desc);
            for (int i = 0; lto && i <= lto->NumOfEntries(); ++i) {
                lto->CountryCode(i);
                lto->LocalTimeOffsetPolarity(i);
                lto->LocalTimeOffset(i);
                lto->TimeOfChange(i);
                lto->NextTimeOffset(i);
            }
            delete desc;
        }
        for (int i = 0; i < tot.NumOfDescriptors(); ++i)
            tot.DescriptorByIndex(static_cast<unsigned int>(i));
        offset += section.size;
    }
    return 0;
}
