// The single-table PSIP parsers over arbitrary sections, one picked by the
// first byte of each: STT in band and out of band with their descriptors,
// the RRT with its dimensions and values, and the EAS copy read back.

#include <cstddef>
#include <cstdint>
#include <vector>

#include <zum-platform/PlatformConfig.h>

#include "FuzzSection.h"
#include "ReadDescFields.h"
#include "atsc/EASParser.h"
#include "atsc/RRTParser.h"
#include "atsc/STTParser.h"

namespace {

void ReadText(const TCMultipleStringStruct* text)
{
    if (text == nullptr)
        return;
    char buffer[256];
    int length = sizeof buffer;
    text->GetMutipleText(0x656E67, 0, 0, buffer, &length, nullptr);
}

void ReadLoop(const IDescriptorContainer& loop)
{
    for (int i = 0; i < loop.NumOfDescriptors(); ++i)
        fuzzfields::Read(loop.DescriptorByIndex(static_cast<unsigned int>(i)));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    zum_platform::BinderSettings settings;
    settings.countryCode = ZumPackCode("USA");
    zum_platform::SetBinder(settings);

    TCSTTParser stt{ZUMHandle()};
    TCOOBSTTParser oobStt{ZUMHandle()};
    TCRRTParser rrt{ZUMHandle()};
    TCEASParser eas{ZUMHandle()};
    stt.Initialize();
    oobStt.Initialize();
    rrt.Initialize();
    eas.Initialize();
    static const unsigned char kTables[] = {0xCD, 0xC5, 0xCA, 0xD8};
    size_t offset = 0;
    while (offset < size) {
        const unsigned char tableId = kTables[data[offset] & 0x03];
        zumfuzz::ExactSection section;
        if (!zumfuzz::MakeExactSection(data + offset, size - offset, section, tableId))
            break;
        offset += section.size;
        switch (tableId) {
        case 0xCD: stt.Parse(0x1FFB, section.data()); ReadLoop(stt); break;
        case 0xC5: oobStt.Parse(0x1FFC, section.data()); ReadLoop(oobStt); break;
        case 0xCA:
            rrt.Parse(0x1FFB, section.data());
            if (const TCRRTInstance* region = rrt.RRTInstance(RRT_REGION_KEPT)) {
                ReadText(region->RatingRegionNameText());
                ReadLoop(*region);
                for (unsigned i = 0; i <= region->NumOfDimension(); ++i)
                    if (const TCRRTItemDimension* d = region->RRTItemDimension(i)) {
                        ReadText(d->DimensionNameText());
                        for (unsigned k = 0; k <= d->NumOfAbbrev(); ++k)
                            if (const TCRRTItemAbbrev* a = d->RRTItemAbbrev(k)) {
                                ReadText(a->AbbrevRatingValueText());
                                ReadText(a->RatingValueText());
                            }
                    }
            }
            break;
        default: {
            eas.Parse(0x1FFB, section.data());
            std::vector<unsigned char> copy(static_cast<size_t>(eas.SectionLength()) + 1);
            int length = static_cast<int>(copy.size());
            eas.GetSection(copy.data(), &length);
            break;
        }
        }
    }
    return 0;
}
