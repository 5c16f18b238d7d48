// Related content tables over arbitrary sections: instances, their links
// with texts and descriptor loops, read back through every accessor.

#include <cstddef>
#include <cstdint>
#include <list>
#include <string>

#include <zum-platform/PlatformConfig.h>

#include "FuzzSection.h"
#include "ReadDescFields.h"
#include "atsc/MultipleStringStruct.h"
#include "dvb/DVBRCTParser.h"
#include "program/RelatedContentLink.h"

namespace {

void ReadLink(const TCRelatedContentLink& link)
{
    std::string bytes;
    TCUniCodeText text;
    for (unsigned int i = 0; i <= link.NumOfEventNames(); ++i)
        fuzzfields::Take(link.GetInternalEventName(i, bytes) + link.GetInternalEventName(i, text));
    for (unsigned int i = 0; i <= link.NumOfPromotionalTexts(); ++i)
        fuzzfields::Take(link.GetInternalPromotionalText(i, bytes) + link.GetInternalPromotionalText(i, text));
    fuzzfields::Take(link.GetInternalURI(bytes));
    for (int i = 0; i < link.NumOfDescriptors(); ++i)
        fuzzfields::Read(link.DescriptorByIndex(static_cast<unsigned>(i)));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 1)
        return 0;
    zum_platform::BinderSettings settings;
    settings.countryCode = ZumPackCode((data[0] & 1) ? "GBR" : "JPN");
    zum_platform::SetBinder(settings);

    TCDVBRCTParser rct{ZUMHandle()};
    rct.Initialize();
    zumfuzz::ForEachSection(data + 1, size - 1, 0x76, [&rct](const zumfuzz::ExactSection& section) {
        rct.Parse(0x0200, section.data());
        for (unsigned int i = 0; i <= static_cast<unsigned int>(rct.NumOfRCTInstance()); ++i) {
            const TCDVBRCTInstance* instance = rct.RCTInstanceOfIndex(i);
            if (!instance)
                continue;
            std::list<TCRelatedContentLink*> links;
            instance->GetInternalRelatedContentLinks(links);
            for (const TCRelatedContentLink* link : links)
                ReadLink(*link);
            for (int d = 0; d < instance->NumOfDescriptors(); ++d)
                fuzzfields::Read(instance->DescriptorByIndex(static_cast<unsigned>(d)));
        }
        rct.GetRCTInstance(0xFFFF);
    });
    return 0;
}
