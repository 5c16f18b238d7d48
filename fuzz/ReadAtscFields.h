#ifndef ZUM_FUZZ_READATSCFIELDS_H
#define ZUM_FUZZ_READATSCFIELDS_H

// Reads every accessor of the PSIP descriptors, out-of-range indexes included.

#include <memory>
#include <string>
#include <vector>

#include "FuzzCast.h"
#include "atsc/DescATSCLinakge.h"
#include "atsc/DescCaptionService.h"
#include "atsc/DescComponentList.h"
#include "atsc/DescContentAdvisory.h"
#include "atsc/DescDaylightSavingTime.h"
#include "atsc/DescModulationParameters.h"
#include "atsc/DescTimeShiftedService.h"

namespace fuzzfields {

inline void ReadAtsc(TCBaseDesc* desc, volatile unsigned int& sink)
{
    if (auto* d = zumfuzz::As<TCDescContentAdvisory>(desc)) {
        for (int i = -1; i <= d->RatingRegionCount(); ++i) {
            sink = sink + d->RatingRegion(i) + d->RatingDescLength(i) + (d->GetRatingDescText(i) != nullptr);
            for (int j = -1; j <= d->RatingDemensions(i); ++j)
                sink = sink + d->RatingDimensionJ(i, j) + d->RatingValue(i, j);
        }
        // The strings path from the descriptor's own bytes.
        unsigned char raw[257];
        int size = sizeof raw;
        if (d->GetDescriptor(raw, &size) && size > 2) {
            TCDescContentAdvisory strings;
            strings.ParseATSC3({std::string(reinterpret_cast<const char*>(raw + 2), static_cast<size_t>(size - 2))},
                               raw[2] % 12);
            std::unique_ptr<TCBaseDesc> fork(strings.Fork());
        }
    }
    if (auto* d = zumfuzz::As<TCDescCaptionService>(desc))
        for (unsigned i = 0; d->NumberOfServices() && i <= d->NumberOfServices(); ++i) {
            const auto k = static_cast<unsigned char>(i);
            sink = sink + d->Language(k) + d->CcType(k) + d->Line21Field(k) + d->CaptionServiceNumber(k) +
                   d->EasyReader(k) + d->WideAspectRatio(k) + d->KoreanCode(k);
        }
    if (auto* d = zumfuzz::As<TCDescComponentList>(desc))
        for (int i = -1; i <= d->NumberOfComponet(); ++i) {
            TCDescComponentList::TTDescComponetList c;
            d->GetComponentList(i, c);
            TTStreoScopicVideoInfo s3d;
            TTAVCVideoInfo avc;
            d->GetStreamInfoDetailFor3D(i, &s3d);
            d->GetStreamInfoDetailForAVC(i, &avc);
            sink = sink + static_cast<unsigned>(c.detail.size()) + s3d.verticalUpsamplingFactor + avc.value3;
        }
    if (auto* d = zumfuzz::As<TCDescTimeShiftedService>(desc))
        for (int i = -1; i <= d->NumOfServices(); ++i)
            sink = sink + static_cast<unsigned>(d->TimeShift(i) + d->MajorChannelNumber(i) + d->MinorChannelNumber(i));
    if (auto* d = zumfuzz::As<TCDescInBandExceptionChannels>(desc))
        for (int i = -1; i <= d->ExceptionChannelCount(); ++i)
            sink = sink + static_cast<unsigned>(d->ExceptionRFChannel(i) + d->ExceptionProgramNumber(i));
    if (auto* d = zumfuzz::As<TCDescDaylightSavingTime>(desc))
        if (d->Length() > 2)
            sink = sink + static_cast<unsigned>(d->DSStatus() + d->DSDayOfMonth() + d->DSHour());
    if (auto* d = zumfuzz::As<TCDescATSCLinakge>(desc)) {
        char buffer[256];
        for (int capacity : {0, 3, 256}) {
            int length = capacity;
            sink = sink + d->GetURLByte(buffer, &length);
            length = capacity;
            sink = sink + d->GetProgramCode(buffer, &length);
        }
    }
    if (auto* d = zumfuzz::As<TCDescATSCPrivateInformation>(desc)) {
        TCDescATSCPrivateInformation::TTPrivateInfoDetail detail;
        for (int i = -1; i <= static_cast<int>(d->NumOfPrivateInfoDetail()); ++i)
            d->GetPrivateInfoDetail(i, detail);
        sink = sink + d->GetPrivateInfoDetailByType(TTA0_TYPE_2, detail) + detail.value[5];
    }
}

} // namespace fuzzfields

#endif
