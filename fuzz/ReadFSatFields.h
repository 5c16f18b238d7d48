#ifndef ZUM_FUZZ_READFSATFIELDS_H
#define ZUM_FUZZ_READFSATFIELDS_H

// Reads every accessor of the Freesat descriptors and their public relatives,
// in every region and language, one index past each end where that is no assertion.

#include <list>
#include <map>

#include "FuzzCast.h"
#include "operators/DescFSatGuidance.h"
#include "operators/DescFSatLinkage.h"
#include "operators/DescFSatLogicalChannel.h"
#include "operators/DescFSatRegionName.h"

namespace fsatfields {

inline volatile unsigned int g_sink;

inline void Take(unsigned int v) { g_sink = g_sink + v; }

inline void Read(TCBaseDesc* desc)
{
    unsigned char buffer[256];
    const unsigned int languages[] = {0, 0x656E67, 0xFFFFFF};
    if (auto* d = zumfuzz::As<TCDescFSatLogicalChannel>(desc)) {
        std::list<unsigned short> regions;
        d->GetAvailableRegions(regions);
        regions.push_back(0xFFFF);
        for (unsigned short region : regions) {
            for (const _TTDescLCN* e = d->First(region); e; e = d->Next(region)) {
                std::list<_TTDescLCN> entries;
                d->LogicalChannelNumber(e->serviceId, region, entries);
                Take(d->CustomisableServiceFlag(e->serviceId, region) + d->NumericSelectionFlag(e->serviceId, region) +
                     static_cast<unsigned int>(entries.size()));
            }
        }
        for (const _TTDescLCN* e = d->FirstAllRegions(); e; e = d->NextAllRegions())
            Take(e->channelNumber + e->freesatServiceId);
    }
    if (auto* d = zumfuzz::As<IDescGuidance>(desc)) {
        for (unsigned short size : {0, 3, 256}) {
            unsigned short room = size;
            Take(d->GetText(buffer, room) + room + d->Length() + d->Type() + d->LanguageCode());
        }
    }
    if (auto* d = zumfuzz::As<TCDescContentManagementBase>(desc))
        Take(d->DoNotScramble() + d->ControlRemoteAccessOverInternet() + d->DoNotApplyRevocation());
    if (auto* d = zumfuzz::As<TCDescFSatTunnelledData>(desc)) {
        unsigned int tag = 0;
        for (unsigned int type = 0; type < 256; ++type)
            Take(d->ComponentTag(type, tag) + tag + d->NumOfEntries());
    }
    if (auto* d = zumfuzz::As<TCDescFSatAltTunnelledData>(desc))
        for (unsigned int i = 0; i < d->NumOfEntries(); ++i)
            Take(d->GetDataType(i));
    if (auto* d = zumfuzz::As<TCDescFSatLinkage>(desc)) {
        TCDescFSatLinkage::Linkage linkage;
        for (unsigned int i = 0; i <= d->NumOfEntries(); ++i)
            Take(d->GetLinkage(i, linkage) + static_cast<unsigned int>(linkage.dataTypes.size()));
    }
    if (auto* d = zumfuzz::As<TCDescFSatInteractiveStorage>(desc)) {
        std::map<unsigned short, unsigned int> first, second;
        d->GetStorageAllocations(first, second);
        Take(static_cast<unsigned int>(first.size() + second.size()));
    }
    if (auto* d = zumfuzz::As<TCDescFSatInfoLocation>(desc))
        for (unsigned int i = 0; i < d->NumOfEntries(); ++i)
            Take(d->GetInfoLocation(i).thirdId);
    if (auto* d = zumfuzz::As<TCDescFSatInteractiveRestriction>(desc)) {
        std::list<unsigned short> services;
        d->GetRestrictedServices(services);
        Take(static_cast<unsigned int>(services.size()));
    }
    if (auto* d = zumfuzz::As<TCDescFSatRegionName>(desc)) {
        for (unsigned int region : {0u, 1u, 0xFFFFu})
            for (unsigned int language : languages) {
                unsigned int size = sizeof buffer;
                Take(static_cast<unsigned int>(d->GetRegionName(region, language, buffer, size)) + size +
                     d->ContainsRegionID(static_cast<unsigned short>(region)));
            }
    }
    if (auto* d = zumfuzz::As<TCDescFSatServiceGroup>(desc)) {
        TCDescFSatServiceGroup::ServiceGroup group;
        for (unsigned int i = 0; i <= d->NumOfEntries(); ++i)
            Take(d->GetServiceGroup(i, group) + static_cast<unsigned int>(group.freesatIds.size()));
    }
    if (auto* d = zumfuzz::As<TCDescFSatServiceGroupName>(desc)) {
        for (unsigned int i = 0; i <= d->NumOfEntries(); ++i)
            for (unsigned int language : languages) {
                unsigned short groupId = 0;
                unsigned char type = 0;
                unsigned int size = 3;
                Take(static_cast<unsigned int>(d->GetEntry(i, language, groupId, buffer, size)) + size +
                     d->GroupType(i, type));
            }
    }
    if (auto* d = zumfuzz::As<TCDescFSatShortServiceName>(desc)) {
        for (unsigned int language : languages) {
            unsigned short size = sizeof buffer;
            Take(static_cast<unsigned int>(d->GetName(language, buffer, size)) + size);
        }
    }
}

} // namespace fsatfields

#endif
