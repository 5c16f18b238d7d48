#ifndef ZUM_FUZZ_READAVFIELDS_H
#define ZUM_FUZZ_READAVFIELDS_H

// Reads the copies of the audio and video component descriptors, whose runs
// are read from the raw copy on access.

#include <string>

#include "FuzzCast.h"
#include "av/DescAACAudio.h"
#include "av/DescAC3.h"
#include "av/DescAudioFile.h"
#include "av/DescDTCP.h"
#include "av/DescMetadata.h"
#include "av/DescTTMLSubtitling.h"

namespace fuzzfields {

template <class Obj, class Char, class Size>
void Copies(const Obj& d, bool (Obj::*copy)(Char*, Size*) const, volatile unsigned int& sink)
{
    Char buffer[256];
    for (Size size : {Size(0), Size(3), Size(sizeof buffer / sizeof(Char))}) {
        Size inOut = size;
        sink = sink + (d.*copy)(buffer, &inOut) + static_cast<unsigned int>(inOut);
    }
}

inline void ReadAv(TCBaseDesc* desc, volatile unsigned int& sink)
{
    if (auto* d = zumfuzz::As<TCDescAC3>(desc))
        Copies(*d, &TCDescAC3::GetAdditionalInfo, sink);
    if (auto* d = zumfuzz::As<TCDescEnhancedAC3>(desc))
        Copies(*d, &TCDescEnhancedAC3::GetAdditionalInfo, sink);
    if (auto* d = zumfuzz::As<TCDescATSCEnhancedAC3>(desc))
        Copies(*d, &TCDescATSCEnhancedAC3::GetAdditionalInfo, sink);
    // Without a main id these accessors assert, which a debug image stops on.
    if (auto* d = zumfuzz::As<TCDescAC3Audio>(desc); d && d->Mainid() != TCDescAC3Audio::INVALID) {
        Copies(*d, &TCDescAC3Audio::GetAdditionalInfo, sink);
        Copies(*d, &TCDescAC3Audio::GetText, sink);
    }
    if (auto* d = zumfuzz::As<TCDescAACAudio>(desc))
        Copies(*d, &TCDescAACAudio::GetAdditionalInfo, sink);
    if (auto* d = zumfuzz::As<TCDescDRAAudioStream>(desc)) {
        Copies(*d, &TCDescDRAAudioStream::Text, sink);
        Copies(*d, &TCDescDRAAudioStream::AdditionalInfo, sink);
        sink = sink + static_cast<unsigned int>(d->EncodeType());
    }
    if (auto* d = zumfuzz::As<TCDescAudioFile>(desc))
        for (int i = -1; i <= d->NumberOfSources(); ++i) {
            TCAudioSource source;
            if (d->AudioSource(i, &source) && source.FileName())
                sink = sink + source.FileName()[source.FileNameLength() - 1];
        }
    if (auto* d = zumfuzz::As<TCDescRedistributionControl>(desc))
        Copies(*d, &TCDescRedistributionControl::GetRCInformation, sink);
    if (auto* d = zumfuzz::As<TCDescContentLabeling>(desc)) {
        Copies(*d, &TCDescContentLabeling::ContentReferenceIdByte, sink);
        Copies(*d, &TCDescContentLabeling::PrivateData, sink);
    }
    if (auto* d = zumfuzz::As<TCDescMetadata>(desc)) {
        sink = sink + static_cast<unsigned int>(d->DecoderConfig().size() + d->PrivateData().size() + d->RootDir().size());
        const TCDescMetadataExtension extension(d->PrivateData());
        sink = sink + static_cast<unsigned int>(extension.Values().size() + extension.ThirdString().size());
    }
    if (auto* d = zumfuzz::As<TCDescMetadataPointer>(desc)) {
        std::string locator;
        TCServiceKey key;
        sink = sink + d->GetLocatorRec(locator) + d->GetTriplet(key) + static_cast<unsigned int>(locator.size());
    }
    if (auto* d = zumfuzz::As<TCDescTTMLSubtitling>(desc)) {
        const TSTTMLInfo info = d->GetTTMLInfo();
        sink = sink + static_cast<unsigned int>(info.profiles.size() + info.essentialFontIds.size() +
                                                info.serviceName.size());
    }
}

} // namespace fuzzfields

#endif
