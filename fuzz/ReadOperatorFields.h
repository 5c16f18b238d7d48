#ifndef ZUM_FUZZ_READOPERATORFIELDS_H
#define ZUM_FUZZ_READOPERATORFIELDS_H

// Reads the accessors of the operators' private descriptors, which walk
// their raw copy on access.

#include <list>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <zum-platform/UnicodeConverter.h>

#include "FuzzCast.h"
#include "operators/DescADBLCNv2Activate.h"
#include "operators/DescAstraServiceListName.h"
#include "operators/DescChannelOrder.h"
#include "operators/DescCIPlusService.h"
#include "operators/DescDSmartIdentifier.h"
#include "operators/DescGTPLGenreList.h"
#include "operators/DescTelekomGrid.h"
#include "operators/DescTricolorRegionName.h"
#include "operators/DescUKDTTServiceAttribute.h"

namespace fuzzfields {

inline volatile size_t g_sinkOperator;

template <class Obj, class Copy>
void OperatorText(const Obj& d, Copy copy)
{
    unsigned char buffer[256];
    for (unsigned char size : {0, 3, 255}) {
        unsigned char inOut = size;
        g_sinkOperator += (d.*copy)(buffer, inOut) + inOut;
    }
}

inline void ReadOperator(TCBaseDesc* desc)
{
    if (auto* d = zumfuzz::As<TCDescDSmartIdentifier>(desc)) {
        std::vector<TCDescDSmartIdentifier::TSIdentifierInfo> list;
        d->GetIdentifierInfoList(list);
        for (const auto& i : list)
            g_sinkOperator += i.id + i.data.back();
    }
    if (auto* d = zumfuzz::As<TCDescGTPLGenreList>(desc))
        for (const auto& g : d->GetGenreMap())
            g_sinkOperator += g.second.nameLength ? g.second.name[g.second.nameLength - 1] : 0;
    if (auto* d = zumfuzz::As<TCDescGTPLGenreOfService>(desc))
        g_sinkOperator += d->GetGenreListOfService().size();
    if (auto* d = zumfuzz::As<TCDescTelekomGrid>(desc)) {
        std::set<unsigned short> ids;
        d->GetServiceIDSet(ids);
        for (unsigned short id : ids) {
            std::list<unsigned short> positions;
            g_sinkOperator += d->GetGridPositionList(id, positions);
        }
    }
    if (auto* d = zumfuzz::As<TCDescUKDTTServiceAttribute>(desc))
        for (unsigned short id : {0, 1, 0xFFFF})
            g_sinkOperator += d->NumericSelectionFlag(id) + d->VisibleServiceFlag(id) + d->NumOfDescLoop();
    if (auto* d = zumfuzz::As<TCDescCIPlusContentLabel>(desc))
        OperatorText(*d, &TCDescCIPlusContentLabel::ContentLabel);
    if (auto* d = zumfuzz::As<TCDescCIPlusProtection>(desc))
        g_sinkOperator += d->GetCiCamBrandIdentifier().size() + d->GetPrivateData().size();
    if (auto* d = zumfuzz::As<TCDescCIPlusService>(desc)) {
        OperatorText(*d, &TCDescCIPlusService::ServiceName);
        OperatorText(*d, &TCDescCIPlusService::ServiceProviderName);
    }
    if (auto* d = zumfuzz::As<TCDescCICAMVirtualChannel>(desc))
        g_sinkOperator += d->ServiceProviderName().size() + d->ServiceName().size() + d->EventInformation().size() +
                          d->AppDomainIdentifier().size();
    if (auto* d = zumfuzz::As<TCDescTricolorBouquetList>(desc))
        g_sinkOperator += d->ContainsServiceID(1);
    if (auto* d = zumfuzz::As<TCDescTricolorRegionName>(desc)) {
        TCDescTricolorRegionName::RegionData region;
        for (int i = -1; d->GetRegionData(i + 1, region); ++i)
            g_sinkOperator += region.key.size() + region.name.size();
    }
    if (auto* d = zumfuzz::As<TCDescTricolorListType>(desc))
        g_sinkOperator += d->GetListTypes().size();
    if (auto* d = zumfuzz::As<TCDescAstraServiceListName>(desc)) {
        TCUnicodeConverter converter{ZUMHandle()};
        ELanguage language;
        g_sinkOperator += d->GetName(converter, language).size();
    }
    if (auto* d = zumfuzz::As<TCDescPolsatChannelListInfo>(desc))
        g_sinkOperator += d->GetChannelListInfo().update;
    if (auto* d = zumfuzz::As<TCDescEutelsatChannelNumber>(desc)) {
        std::multimap<TCServiceKey, unsigned short> services;
        d->GetServices(services);
        for (const auto& s : services)
            g_sinkOperator += s.second;
    }
    if (auto* d = zumfuzz::As<TCDescSogecablePrivateChannelList>(desc)) {
        unsigned short number = 0;
        for (unsigned short id : {0, 1, 0xFFFF})
            g_sinkOperator += d->GetChannelNumber(id, number) + number;
    }
    if (auto* d = zumfuzz::As<TCDescNXTServiceOrder>(desc))
        for (int i = 0; i <= static_cast<int>(d->Count()); ++i)
            g_sinkOperator += d->ServiceId(i) + d->ServiceOrder(i);
    if (auto* d = zumfuzz::As<TCDescOtauChannelOrder>(desc))
        for (unsigned short id : {0, 1, 0xFFFF})
            g_sinkOperator += d->GetOrder(id);
    if (auto* d = zumfuzz::As<TCDescADBLCNv2Activate>(desc))
        g_sinkOperator += d->FirstByte() + d->SecondByte() + d->ID();
    if (auto* d = zumfuzz::As<TCDescAstraBouquetList>(desc)) {
        std::list<unsigned char*> names;
        if (d->Bouquets(names))
            for (unsigned char* name : names)
                g_sinkOperator += std::string(reinterpret_cast<char*>(name)).size();
    }
}

} // namespace fuzzfields

#endif
