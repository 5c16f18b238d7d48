// Terrestrial, cable and gate-free VCT over arbitrary sections: channels,
// their descriptors (channel names rendered for a viewer), the version gate;
// and the same bytes read as one multiple string structure.

#include <cstddef>
#include <cstdint>
#include <list>
#include <memory>

#include <zum-platform/PlatformConfig.h>

#include "FuzzSection.h"
#include "atsc/DescExtendedChannelName.h"
#include "atsc/DescServiceLocation.h"
#include "atsc/MultipleStringStruct.h"
#include "atsc/VCTParser.h"

namespace {

void Render(const TCMultipleStringStruct& mss, unsigned int prefer, int capacity)
{
    char text[4096];
    int length = capacity;
    unsigned int language = 0;
    mss.GetMutipleText(ZumPackCode("eng"), prefer, 7, text, &length, &language);
    if (length < 0 || length > capacity)
        __builtin_trap();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 2)
        return 0;
    zum_platform::BinderSettings settings;
    settings.countryCode = ZumPackCode((data[0] & 1) ? "USA" : "KOR");
    zum_platform::SetBinder(settings);

    std::unique_ptr<TCVCTParser> vct;
    switch ((data[0] >> 1) & 3) {
    case 0: vct.reset(new TCTVCTParser(ZUMHandle())); break;
    case 1: vct.reset(new TCCVCTParser(ZUMHandle())); break;
    default: vct.reset(new TCLVCTParser(ZUMHandle())); break;
    }
    vct->Initialize();
    vct->SetSelectedVCTVersion(static_cast<char>((data[1] & 0x1F) - (data[1] & 0x20 ? 1 : 0)));
    vct->SetCurrentMGTVCTVersion(static_cast<char>(data[1] >> 3));
    vct->SetMatchedVersion(data[0] & 0x08);
    const int capacity = 1 + data[1] * 16;
    const int tableId = (data[0] & 2) ? 0xC9 : 0xC8;

    zumfuzz::ForEachSection(data + 2, size - 2, tableId, [&](const zumfuzz::ExactSection& section) {
        vct->Parse(0x1FFB, section.data());
        std::list<TCVCTChannel*> channels;
        for (unsigned i = 0; i < vct->NumOfVCTChannel(); ++i) {
            const TCVCTChannel* channel = vct->VCTChannel(i);
            vct->VCTChannelBySourceId(channel->SourceId(), &channels);
            for (int d = 0; d < channel->NumOfDescriptors(); ++d) {
                const TCBaseDesc* desc = channel->DescriptorByIndex(static_cast<unsigned>(d));
                if (const auto* name = dynamic_cast<const TCDescExtendedChannelName*>(desc)) {
                    if (name->ExtendedChannelNameString())
                        Render(*name->ExtendedChannelNameString(), ZumPackCode("eng"), capacity);
                } else if (const auto* location = dynamic_cast<const TCDescServiceLocation*>(desc)) {
                    for (int e = 0; e < location->NumberElements(); ++e)
                        location->ElementaryPID(e);
                }
            }
        }
        vct->IsRecv();

        TCMultipleStringStruct mss;
        mss.Set(section.data(), static_cast<unsigned int>(section.size));
        const TCMultipleStringStruct copy(mss);
        Render(copy, section.data()[0], capacity);
    });
    return 0;
}
