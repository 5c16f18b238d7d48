#ifndef ZUM_FUZZ_READTARGETINGFIELDS_H
#define ZUM_FUZZ_READTARGETINGFIELDS_H

// Reads every accessor of the image icon, CRID, targeting and prominence
// descriptors, one index past each end, in every buffer size that matters.

#include <string>

#include "FuzzCast.h"
#include "dvb/DescCRID.h"
#include "dvb/DescImageIcon.h"
#include "dvb/DescSatelliteDeliverySystem.h"
#include "dvb/DescServiceProminence.h"
#include "dvb/DescTargetRegion.h"

namespace targetfields {

inline volatile unsigned int g_sink;

inline void Take(unsigned int v) { g_sink = g_sink + v; }

inline void Read(TCBaseDesc* desc)
{
    unsigned char buffer[256];
    std::string text;
    if (auto* d = zumfuzz::As<TCDescImageIcon>(desc)) {
        for (unsigned short size : {0, 1, static_cast<int>(d->IconDataLength()), 255})
            Take(d->GetImagePart(buffer, size));
        unsigned int carousel = 0;
        unsigned short a = 0, b = 0, c = 0;
        Take(d->GetPathSegment(text) + d->GetCarouselInfo(carousel, a, b, c) + d->IconType().size() + d->URL().size());
    }
    if (auto* d = zumfuzz::As<TCDescURILinkage>(desc))
        Take(d->GetURIString().size() + d->GetPrivateData().size() + d->GetMinPollingInterval());
    if (auto* d = zumfuzz::As<TCDescCRID>(desc))
        for (unsigned int i = 0; i <= static_cast<unsigned int>(d->NumOfCRID()); ++i) {
            unsigned char type = 0;
            unsigned short ref = 0;
            Take(d->GetType(type, i) + d->ContentInCIT(i) + d->GetCRID(text, i) + d->GetCRIDRef(ref, i) + ref);
        }
    if (auto* d = zumfuzz::As<TCDescDefaultAuthority>(desc))
        Take(d->GetAuthority(text));
    if (auto* d = zumfuzz::As<TCDescContentIdentifier>(desc))
        for (unsigned char size : {0, 1, 255}) {
            unsigned char inOut = size;
            Take(d->ContentIdentifier(reinterpret_cast<char*>(buffer), &inOut));
        }
    if (auto* d = zumfuzz::As<TCDescNetworkChangeNotify>(desc)) {
        TCDescNetworkChangeNotify::_TTCellData cell;
        for (unsigned int i = 0; i <= d->NumOfCellData(); ++i)
            if (d->GetCellData(i, cell))
                for (const auto& change : cell.changes)
                    Take(change.startTime + change.invariantTSOriginalNetworkId);
    }
    if (auto* d = zumfuzz::As<TCDescMessage>(desc))
        for (unsigned short size : {0, 3, 256}) {
            unsigned short inOut = size;
            Take(d->TextChar(buffer, inOut));
        }
    unsigned int country = 0, depth = 0, size = 0;
    unsigned char primary = 0, secondary = 0;
    unsigned short tertiary = 0;
    if (auto* d = zumfuzz::As<TCDescTargetRegion>(desc))
        for (unsigned int i = 0; i <= d->Size(); ++i)
            Take(d->GetRegion(i, country, depth, primary, secondary, tertiary));
    if (auto* d = zumfuzz::As<TCDescTargetRegionName>(desc))
        for (unsigned int i = 0; i <= d->Size(); ++i) {
            size = i == 0 ? 0 : sizeof buffer;
            Take(d->GetRegion(i, buffer, size, country, depth, primary, secondary, tertiary));
        }
    if (auto* d = zumfuzz::As<TCDescRelocatedTS>(desc)) {
        TCDescRelocatedTS::CableDeliveryMap info;
        d->GetCableDeliveryInfo(info);
        for (const auto& entry : info)
            Take(entry.second->Frequency());
    }
    if (auto* d = zumfuzz::As<TCDescSOProperties>(desc))
        Take(d->FirstText().size() + d->SecondText().size());
    if (auto* d = zumfuzz::As<TCDescServiceProminence>(desc)) {
        for (const auto& entry : d->SOGIs())
            for (const auto& region : entry.second.targetRegions)
                Take(region.countryCode + region.tertiaryRegionCode);
        Take(d->PrivateData().size());
    }
}

} // namespace targetfields

#endif
