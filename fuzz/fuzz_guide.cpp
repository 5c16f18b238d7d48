// One stored event's descriptor loop, as a guide keeps it, asked every guide
// question: country, table id, source kind and rating region come from the
// first three input bytes. The loop is also handed whole to the
// country's common utility, past the guide's filter.

#include <cstddef>
#include <cstdint>
#include <list>
#include <string>
#include <vector>

#include <zum-platform/PlatformConfig.h>
#include <zum-platform/ProgramData.h>

#include "FuzzSection.h"
#include "core/Descriptor.h"
#include "dvb/DescContent.h"
#include "dvb/DescLinkage.h"
#include "program/ProgramCommonUtil.h"
#include "program/ProgramDescriptorUtil.h"

namespace {

const char* const kCountries[] = {"GBR", "FRA", "JPN", "BRA", "ARG", "USA", "KOR", "cri"};
const unsigned char kTableIds[] = {0x4E, 0x4F, 0x50, 0x60, 0xCB, 0x12};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 3 || size > 0xFFFF)
        return 0;
    zum_platform::BinderSettings settings;
    settings.countryCode = ZumPackCode(kCountries[data[0] % (sizeof kCountries / sizeof kCountries[0])]);
    settings.country = static_cast<ECountry>(60 + (data[0] >> 4));
    settings.ratingRegion = (data[2] & 0x10) ? 8 : 0;
    zum_platform::SetBinder(settings);
    const int tableId = kTableIds[data[1] % sizeof kTableIds];

    // The record copies the loop: the buffer is exactly the loop's size.
    const std::vector<uint8_t> loop(data + 3, data + size);
    TCProgramData record;
    record.SetDescriptorRawData(loop.data(), static_cast<unsigned short>(loop.size()), tableId);
    record.SetSourceKind(data[2] & 0x03);

    TCProgramDescriptorUtil util(record);
    util.IsADAvailable();
    util.IsSubtitleAvailable();
    util.IsSignLanguageAvailable();
    util.IsHD();
    unsigned short ts = 0, network = 0, service = 0, event = 0;
    bool simulcast = false;
    util.HDSimulcastEvent(ts, network, service, event, simulcast);
    std::list<CEXTEventLinkageInfo> links;
    unsigned char linkageType = 0;
    util.GetEventLinkageInfoList(links, linkageType);
    util.DataServiceAvailable();
    for (int type = 0; type < TCProgramData::COMP_TYPE_MAX; ++type) {
        const auto t = static_cast<TCProgramData::EComponentType>(type);
        std::vector<TCProgramData::TTComp> list;
        TCProgramData::TTComp comp;
        util.GetComponent(t, util.NumOfComponent(t) - 1, comp);
        util.GetComponentList(t, list);
    }
    std::basic_string<unsigned short> text;
    for (int tag = 0; tag < 4; ++tag)
        util.GetComponentText(static_cast<unsigned char>(tag), data[2] >> 2, text);
    TSRatingInfo rating;
    util.GetRatingInfo(rating);
    for (int i = 0; i < util.SizeOfDescriptor(); ++i)
        util.Descriptor(util.DescriptorByIndex(i)->Tag(), 0);

    // The common utility on everything the loop holds.
    TCDescriptorHash hash;
    TCDescriptor(ZUMHandle()).Parse(loop.data(), static_cast<int>(loop.size()), hash,
                                    static_cast<unsigned char>(tableId));
    TCProgramCommonUtil common{ZUMHandle()};
    TCProgramData::TCProgCompData comps;
    common.MakeComponent(hash, comps);
    common.DataServiceAvailable(hash);
    for (int i = 0; i < hash.NumOfDescriptors(0x55); ++i)
        if (auto* parental = dynamic_cast<TCDescParentalRating*>(hash.Descriptor(0x55, i)))
            common.GetDigitalRatingInfo(parental, rating);
    return 0;
}
