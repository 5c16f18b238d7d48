#ifndef ZUM_FUZZ_READDESCFIELDS_H
#define ZUM_FUZZ_READDESCFIELDS_H

// Reads every accessor of the descriptor classes whose fields are read from
// the raw copy on access, one index past each end, so that the sanitizers
// see what an accessor touches.

#include <list>
#include <memory>
#include <stdexcept>
#include <map>
#include <set>
#include <vector>

#include "FuzzCast.h"
#include "ReadAtscFields.h"
#include "ReadAvFields.h"
#include "av/DescAC4.h"
#include "av/DescAPD.h"
#include "dvb/DescComponent.h"
#include "dvb/DescContent.h"
#include "dvb/DescCountryAvailability.h"
#include "dvb/DescLanguage.h"
#include "dvb/DescLocalTimeOffset.h"
#include "dvb/DescMultilingualNetworkName.h"
#include "dvb/DescNetworkName.h"
#include "dvb/DescSatelliteDeliverySystem.h"
#include "dvb/DescService.h"
#include "dvb/DescShortEvent.h"
#include "operators/DescLogicalChannelV2.h"
#include "ReadAppFields.h"
#include "ReadOperatorFields.h"
#include "operators/DescTKGSComponent.h"
#include "ReadFSatFields.h"
#include "ReadIsdbEventFields.h"
#include "ReadTargetingFields.h"
#include "ReadIsdbNetFields.h"

namespace fuzzfields {

inline volatile unsigned int g_sink;

inline void Take(unsigned int v) { g_sink = g_sink + v; }

template <class Char, class Size, class Obj, class Copy>
void Text(const Obj& d, Copy copy)
{
    Char buffer[256];
    for (Size size : {Size(0), Size(3), Size(sizeof buffer)}) {
        Size inOut = size;
        Take((d.*copy)(buffer, &inOut));
    }
}

inline void ReadLcn(IDescLogicalChannel& d)
{
    std::list<unsigned short> numbers;
    std::set<unsigned short> ids;
    std::list<unsigned short> polsatIds;
    for (unsigned short id : {0, 1, 7, 0xFFFF}) {
        Take(d.CheckServiceId(id, 0xFFFF00) + d.LogicalChannelNumber(id) + d.VisibleServiceFlag(id, 0));
        d.GetLogicalChannelNumberList(id, numbers);
        unsigned short first = 0, second = 0;
        Take(d.GetDPIds(id, first, second) + first + second + d.PolsatServiceId(id, polsatIds) + polsatIds.size());
    }
    d.ServiceIDList(ids);
    Take(d.NumOfServices(0));
    for (const _TTDescLCN* e = d.First(0); e; e = d.Next(0))
        Take(e->serviceId + e->channelNumber);
}

// Both DSI walks over the toc, on clones, as a player picks one; a walk stops with out_of_range.
inline void ReadAC4(const TCDescAC4& d)
{
    std::vector<unsigned char> toc(static_cast<size_t>(d.TocSize()) + 1);
    int size = d.TocSize();
    if (!d.GetToc(toc.data(), &size))
        size = 0;
    for (int version = 0; version < 2; ++version) {
        std::unique_ptr<TCBaseDesc> clone(d.Fork());
        auto* walker = static_cast<TCDescAC4*>(clone.get());
        try {
            if (version == 0)
                walker->m_ac4_dsi(size, toc.data());
            else
                walker->m_ac4_dsi_v1(size, toc.data());
        } catch (const std::out_of_range&) {
        }
        for (int i = -1; i <= walker->NumOfPresentations(); ++i)
            if (const TCAC4Presentation* p = walker->Presentation(i))
                Take(p->PresentationId() + p->Language() + p->Main());
    }
    Take(d.AdditionalInfoLength() + d.TocLength() + d.ChannelMode());
}

inline void ReadAPD(const TCDescAPD& d)
{
    std::vector<CAudioPreselection> out(static_cast<size_t>(d.NumOfPreselections()) + 1);
    if (!d.GetPreselections(out.data(), d.NumOfPreselections()))
        return;
    for (const CAudioPreselection& p : out) {
        CAudioPreselection copy;
        copy = p;
        for (int i = 0; i < copy.AuxComponentsLength(); ++i)
            Take(copy.AuxComponents()[i]);
        for (int i = 0; i < copy.FutureExtensionBytesLength(); ++i)
            Take(copy.FutureExtensionBytes()[i]);
        Take(copy.language + copy.numAuxComponents);
    }
}

inline void Read(TCBaseDesc* desc)
{
    ReadApp(desc);
    targetfields::Read(desc);
    if (auto* d = zumfuzz::As<TCDescAC4>(desc))
        ReadAC4(*d);
    if (auto* d = zumfuzz::As<TCDescAPD>(desc))
        ReadAPD(*d);
    if (auto* d = zumfuzz::As<TCDescNetworkName>(desc))
        Text<unsigned char, unsigned short>(*d, &TCDescNetworkName::NetworkNameText);
    if (auto* d = zumfuzz::As<TCDescBouquetName>(desc))
        Text<unsigned char, unsigned short>(*d, &TCDescBouquetName::BouquetNameText);
    if (auto* d = zumfuzz::As<TCDescService>(desc)) {
        unsigned char buffer[256];
        unsigned short size = sizeof buffer;
        Take(d->ServiceNameText(buffer, size) + d->ServiceProviderNameText(buffer, size));
    }
    if (auto* d = zumfuzz::As<TCDescServiceList>(desc))
        for (int i = -1; i <= d->NumberOfLoop(); ++i)
            Take(d->ServiceId(i) + d->ServiceType(i));
    if (auto* d = zumfuzz::As<TCDescShortEvent>(desc)) {
        Text<unsigned char, unsigned short>(*d, &TCDescShortEvent::EventNameChar);
        Text<unsigned char, unsigned short>(*d, &TCDescShortEvent::TextChar);
    }
    if (auto* d = zumfuzz::As<TCDescExtendedEvent>(desc)) {
        Text<unsigned char, unsigned short>(*d, &TCDescExtendedEvent::TextChar);
        for (unsigned int i = 0; i <= d->SizeOfItem(); ++i)
            if (const CitemDesc* item = d->Item(i)) {
                Text<char, int>(*item, &CitemDesc::ItemDescriptionChar);
                Text<char, int>(*item, &CitemDesc::ItemChar);
            }
    }
    if (auto* d = zumfuzz::As<TCDescComponent>(desc))
        Text<char, int>(*d, &TCDescComponent::TextChar);
    if (auto* d = zumfuzz::As<TCDescMultilingualNetworkName>(desc)) {
        for (int i = -1; i <= d->NumOfNetworkName(); ++i)
            if (const CmultiNetworkNameDesc* n = d->NetworkNameDesc(i))
                Text<unsigned char, unsigned short>(*n, &CmultiNetworkNameDesc::NetworkNameChar);
        unsigned char name[256];
        unsigned short size = 0;
        Take(d->GetNetworkNameByLanguage(0x656E67, name, &size));
    }
    if (auto* d = zumfuzz::As<TCDescMultilingualServiceName>(desc)) {
        unsigned char name[256];
        unsigned short size = 0;
        unsigned int language = 0;
        for (int i = 0; i <= d->NumOfServiceName(); ++i)
            Take(d->GetServiceNameByIndex(static_cast<unsigned int>(i), &language, name, &size));
        Take(d->GetServiceNameByLanguage(0x656E67, name, &size) +
             d->GetServiceProviderNameByLanguage(0x656E67, name, &size));
    }
    if (auto* d = zumfuzz::As<TCDescMultilingualComponent>(desc))
        for (int i = -1; i <= d->NumOfComponentText(); ++i)
            if (const CmultiComponentDesc* c = d->ComponentDesc(i))
                Text<char, int>(*c, &CmultiComponentDesc::TextDescChar);
    if (auto* d = zumfuzz::As<TCDescContent>(desc))
        for (int i = -1; i <= d->Count(); ++i)
            Take(d->ContentNibbleLevel1(i) + d->ContentNibbleLevel2(i) + d->UserNibble1(i) + d->UserNibble2(i));
    if (auto* d = zumfuzz::As<TCDescParentalRating>(desc))
        for (int i = -1; i <= d->Count(); ++i)
            Take(d->CountryCode(i) + d->Rating(i));
    if (auto* d = zumfuzz::As<TCDescCountryAvailability>(desc)) {
        std::list<ECountryCode> codes;
        Take(d->Countries(codes) + d->IsServiceAvailable(0x474252));
    }
    if (auto* d = zumfuzz::As<TCDescLanguage>(desc)) {
        ELanguageCode language = 0;
        EAudioType type = AUDIO_TYPE_UNDEFINED;
        for (int i = 0; i < d->Count(); ++i)
            Take(d->Language(i, &language, &type) + language);
    }
    if (auto* d = zumfuzz::As<TCDescTeletext>(desc))
        for (int i = -1; i <= d->Count(); ++i)
            Take(d->Iso639LangCode(i) + d->TeletextType(i) + d->TeletextMagzineNumber(i) + d->TeletextPageNumber(i));
    if (auto* d = zumfuzz::As<TCDescSubtitling>(desc))
        for (int i = -1; i <= d->Count(); ++i)
            Take(d->Iso639LangCode(i) + d->SubtitlingType(i) + d->CompositionPageId(i) + d->AncillaryPageId(i));
    if (auto* d = zumfuzz::As<TCDescLocalTimeOffset>(desc))
        for (int i = -1; i <= d->NumOfEntries(); ++i)
            Take(d->CountryCode(i) + d->TimeOfChange(i) + static_cast<unsigned int>(d->NextTimeOffset(i)));
    if (auto* d = zumfuzz::As<TCDescFrequencyList>(desc))
        for (int i = -1; i <= d->NumOfEntries(); ++i)
            Take(d->CentreFrequency(i) != 0.0f);
    ReadAv(desc, g_sink);
    ReadAtsc(desc, g_sink);
    if (auto* d = zumfuzz::As<IDescLogicalChannel>(desc))
        ReadLcn(*d);
    if (auto* d = zumfuzz::As<TCDescLogicalChannelV2>(desc)) {
        std::map<unsigned int, std::string> lists;
        d->GetChannelLists(lists);
        for (const auto& list : lists) {
            TCDescLogicalChannelV2::EntryMap entries;
            d->GetLogicalChannelMapForChList(list.first, entries);
            Take(d->SelectChannelList(list.first));
            ReadLcn(*d);
        }
    }
    ReadOperator(desc);
    if (auto* d = zumfuzz::As<TCDescTKGSMultilingualCategoryLabel>(desc)) {
        std::map<ELanguageCode, std::basic_string<unsigned short>> names;
        d->GetCategoryNames(names);
        std::basic_string<unsigned short> name;
        for (const auto& entry : names)
            Take(d->GetCategoryName(entry.first, name) + static_cast<unsigned int>(name.size()));
        Take(d->CategoryId());
    }
    if (auto* d = zumfuzz::As<TCDescTKGSExtendedService>(desc)) {
        std::vector<unsigned int> ids;
        d->GetCategories(ids);
        for (int i = -1; i <= d->NumOfCategories(); ++i)
            Take(d->CategoryId(i));
    }
    if (auto* d = zumfuzz::As<TCDescTKGSComponent>(desc))
        Take(d->Flag() + d->Found());
    fsatfields::Read(desc);
    isdbeventfields::ReadEventFamily(desc);
    isdbnetfields::Read(desc);
}

} // namespace fuzzfields

#endif
