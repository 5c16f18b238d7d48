#ifndef ZUM_FUZZ_READISDBEVENTFIELDS_H
#define ZUM_FUZZ_READISDBEVENTFIELDS_H

// Reads every accessor of the ARIB event, component, service and guide
// descriptors, one index past each end.

#include <vector>

#include "FuzzCast.h"
#include "isdb/DescAbstractService.h"
#include "isdb/DescAudioComponent.h"
#include "isdb/DescBoardInformation.h"
#include "isdb/DescComponentGroup.h"
#include "isdb/DescDigitalCopyControl.h"
#include "isdb/DescEventGroup.h"
#include "isdb/DescScheduling.h"

namespace isdbeventfields {

inline volatile unsigned int g_sink;

inline void Take(unsigned long long v) { g_sink = g_sink + static_cast<unsigned int>(v); }

template <class Char, class Size, class Copy>
void Copies(Copy copy)
{
    Char buffer[256];
    for (Size size : {Size(0), Size(3), Size(sizeof buffer)}) {
        Size inOut = size;
        Take(copy(buffer, &inOut));
    }
}

inline void ReadEventFamily(const TCBaseDesc* desc)
{
    if (auto* d = zumfuzz::As<const TCDescAudioComponent>(desc)) {
        Take(d->StreamContent() + d->ISO639LanguageCode() + d->ISO639LanguageCode2() + d->TextLength());
        Copies<char, int>([&](char* b, int* s) { return d->TextChar(b, s); });
    }
    if (auto* d = zumfuzz::As<const TCDescDataContent>(desc)) {
        Copies<unsigned char, int>([&](unsigned char* b, int* s) { return d->SelectorByte(b, s); });
        Copies<unsigned char, int>([&](unsigned char* b, int* s) { return d->ComponentRef(b, s); });
        Copies<char, int>([&](char* b, int* s) { return d->TextChar(b, s); });
    }
    if (auto* d = zumfuzz::As<const TCDescDataComponent>(desc))
        Copies<unsigned char, int>([&](unsigned char* b, int* s) { return d->AdditionalDataCompInfo(b, s); });
    if (auto* d = zumfuzz::As<const TCDescComponentGroup>(desc)) {
        for (int g = -1; g <= d->NumOfGroup(); ++g) {
            const auto* group = d->Group(g);
            if (!group)
                continue;
            Copies<char, int>([&](char* b, int* s) { return group->TextChar(b, s); });
            for (int u = -1; u <= group->NumOfCAUnit(); ++u)
                if (const auto* unit = group->Unit(u))
                    for (int t = -1; t <= unit->NumOfComponent(); ++t)
                        Take(unit->ComponentTag(t));
        }
    }
    if (auto* d = zumfuzz::As<const TCDescEventGroup>(desc)) {
        for (int i = -1; i <= d->EventCount(); ++i)
            if (const auto* e = d->Group(i))
                Take(e->serviceId + e->eventId);
        for (int i = -1; i <= d->OtherNetworkCount(); ++i)
            if (const auto* e = d->GroupOther(i))
                Take(e->originalNetworkId + e->eventId);
        unsigned char buffer[256];
        int size = sizeof buffer;
        Take(d->PrivateDataBytes(size, buffer) + size);
    }
    if (auto* d = zumfuzz::As<const TCDescSeries>(desc))
        Copies<unsigned char, unsigned short>([&](unsigned char* b, unsigned short* s) { return d->GetSeriesName(b, s); });
    if (auto* d = zumfuzz::As<const TCDescDigitalCopyControl>(desc)) {
        std::vector<TCDescDigitalCopyControl::TTCompControl> list;
        Take(d->GetComponentControlList(list) + list.size());
        TCDescDigitalCopyControl::TTCompControl entry;
        for (int i = 0; i < d->NumOfComponentControl(); ++i)
            Take(d->ComponentControl(i, entry) + entry.maximumBitrate);
    }
    if (auto* d = zumfuzz::As<const TCDescBoardInformation>(desc)) {
        char buffer[512];
        int size = sizeof buffer;
        Take(d->Title(size, buffer) + d->TitleLength() + d->TextLength());
        size = 3;
        Take(d->Text(size, buffer));
    }
    if (auto* d = zumfuzz::As<const TCDescAbstractService>(desc)) {
        unsigned char buffer[256];
        int size = sizeof buffer;
        Take(d->ServiceNameByte(buffer, &size));
    }
    if (auto* d = zumfuzz::As<const TCDescPrivilegedCertificate>(desc))
        for (unsigned int i = 0; i <= d->NumOfCertificateIdentifierByte(); ++i)
            if (const unsigned char* id = d->CertificateIdentifierByte(i))
                Take(id[0] + id[19]);
    if (auto* d = zumfuzz::As<const TCDescEPGInformation>(desc)) {
        Copies<unsigned char, int>([&](unsigned char* b, int* s) { return d->Genres(b, s); });
        Copies<char, int>([&](char* b, int* s) { return d->SpareEpgInfoBits(b, s); });
    }
    if (auto* d = zumfuzz::As<const TCDescScheduling>(desc))
        if (const unsigned char* data = d->PrivateData())
            Take(data[0] + data[d->PrivateLength() - 1]);
    if (auto* d = zumfuzz::As<const TCDescServiceAvailability>(desc))
        for (int i = -1; i <= d->Count(); ++i)
            Take(d->CellId(i));
    if (auto* d = zumfuzz::As<const TCDescServiceIdentifier>(desc))
        Take(d->ServiceIdentifier().size());
}

} // namespace isdbeventfields

#endif
