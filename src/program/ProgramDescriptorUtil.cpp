#include "ProgramDescriptorUtil.h"

#include <algorithm>
#include <cstring>

#include <zum-platform/Binder.h>
#include <zum-platform/UnicodeConverter.h>

#include "../av/DescAC3.h"
#include "../core/Descriptor.h"
#include "../core/Diagnostics.h"
#include "../dvb/DescComponent.h"
#include "../dvb/DescContent.h"
#include "../dvb/DescLinkage.h"
#include "../isdb/DescComponentGroup.h"
#include "../isdb/DescEventGroup.h"
#include "ProgramCommonUtil.h"

namespace {

constexpr int kTagLinkage = 0x4A;
constexpr int kTagComponent = 0x50;
constexpr int kTagContent = 0x54;
constexpr int kTagParentalRating = 0x55;
constexpr int kTagAC3Audio = 0x81;
constexpr int kTagCaptionService = 0x86;
constexpr int kTagSeries = 0xD5;
constexpr int kTagEventGroup = 0xD6;
constexpr int kTagComponentGroup = 0xD9;

// Event group types of ARIB: common event, relay to an event, relay to an event of another network.
constexpr int kGroupCommon = 1;
constexpr int kGroupRelay = 2;
constexpr int kGroupRelayOther = 4;

constexpr unsigned char kLinkageSimulcast = 0x0D;
constexpr unsigned char kLinkageExtendedFirst = 0x0E;
constexpr unsigned char kLinkageExtendedLast = 0x1F;
constexpr unsigned char kBsmodVisuallyImpaired = 2;
constexpr unsigned int kUKSpecifier = 0x233A;
constexpr unsigned int kNotGiven = 0xFFFFFFFF;

const ZUMHandle kGuideHandle(1, 0, 0);

} // namespace

#define ZUM_PROGRAM_ID_FORMAT                                                                                      \
    "in_programId(serviceid=%llu, m_eventId=%d, utc_starttime=%lu, utc_duration=%lu, eit_table_id=%d, "         \
    "eit_number=%d)"
#define ZUM_PROGRAM_ID_ARGS(id) (id).serviceId, (id).eventId, (id).utcStartTime, (id).utcDuration, (id).eitTableId, \
                                (id).eitNumber
// The debug line that closes a query: its result and the event it was asked about.
#define ZUM_LOG_QUERY(ret)                                                                                         \
    do {                                                                                                           \
        TCProgramId id;                                                                                            \
        m_programData.GetProgramId(id);                                                                            \
        ZUM_LOGD("[TCProgramDescriptorUtil::%s] ret=%d, " ZUM_PROGRAM_ID_FORMAT, __func__, static_cast<int>(ret), \
                 ZUM_PROGRAM_ID_ARGS(id));                                                                         \
    } while (0)

TCProgramDescriptorUtil::TCProgramDescriptorUtil(const TCProgramData& programData) : m_programData(programData)
{
    m_descriptors.DeleteAll();
    unsigned char* data = nullptr;
    unsigned short length = 0;
    int tableId = -1;
    if (!m_programData.GetDescriptorRawDataBuffer(data, length, tableId))
        return;
    TCDescriptorHash parsed;
    TCDescriptor loop(kGuideHandle);
    loop.Parse(data, length, parsed, static_cast<unsigned char>(tableId & 0xFF));
    for (int i = 0; i < parsed.NumOfDescriptors(); ++i) {
        const TCBaseDesc* desc = parsed.DescriptorByIndex(static_cast<unsigned int>(i));
        if (desc != nullptr && t_IsAvailableDescriptor(desc->Tag()))
            m_descriptors.Add(desc->Fork());
    }
}

TCProgramDescriptorUtil::~TCProgramDescriptorUtil() = default;

bool TCProgramDescriptorUtil::t_IsAvailableDescriptor(int tag) const
{
    if (tag == kTagLinkage || tag == kTagComponent || tag == kTagContent)
        return true;
    switch (m_programData.SourceKind()) {
    case 0: return tag == kTagParentalRating || tag == kTagAC3Audio || tag == kTagCaptionService;
    case 3: return false;
    default: return tag == kTagParentalRating;
    }
}

int TCProgramDescriptorUtil::SizeOfDescriptor() const
{
    return m_descriptors.NumOfDescriptors();
}

int TCProgramDescriptorUtil::SizeOfDescriptor(int tag) const
{
    return m_descriptors.NumOfDescriptors(tag);
}

TCBaseDesc* TCProgramDescriptorUtil::Descriptor(int tag, int index)
{
    return m_descriptors.Descriptor(tag, static_cast<unsigned int>(index));
}

TCBaseDesc* TCProgramDescriptorUtil::DescriptorByIndex(int index) const
{
    return m_descriptors.DescriptorByIndex(static_cast<unsigned int>(index));
}

bool TCProgramDescriptorUtil::IsADAvailable()
{
    bool ret = false;
    for (int i = 0; i < m_descriptors.NumOfDescriptors() && !ret; ++i) {
        const TCBaseDesc* desc = m_descriptors.DescriptorByIndex(static_cast<unsigned int>(i));
        if (desc == nullptr)
            continue;
        if (desc->Tag() == kTagAC3Audio) {
            const auto* pDescComponent = dynamic_cast<const TCDescAC3Audio*>(desc);
            if (pDescComponent == nullptr) {
                ZUM_LOGE("[TCProgramDescriptorUtil] pDescComponent is null");
                continue;
            }
            ret = pDescComponent->Bsmod() == kBsmodVisuallyImpaired;
        } else if (desc->Tag() == kTagComponent) {
            const auto* component = dynamic_cast<const TCDescComponent*>(desc);
            ret = component != nullptr && component->IsAD();
        }
    }
    TCProgramId id;
    m_programData.GetProgramId(id);
    ZUM_LOGD("[TCProgramDescriptorUtil::%s] ret=%d, SizeOfDescriptor=%d, " ZUM_PROGRAM_ID_FORMAT, __func__,
             static_cast<int>(ret), SizeOfDescriptor(), ZUM_PROGRAM_ID_ARGS(id));
    return ret;
}

// Whether a component descriptor of the loop answers `test`.
template <class TTest>
static bool AnyComponent(const TCDescriptorHash& descriptors, TTest test)
{
    for (int i = 0; i < descriptors.NumOfDescriptors(kTagComponent); ++i) {
        const auto* component =
            dynamic_cast<const TCDescComponent*>(descriptors.Descriptor(kTagComponent, static_cast<unsigned int>(i)));
        if (component != nullptr && test(*component))
            return true;
    }
    return false;
}

bool TCProgramDescriptorUtil::IsSubtitleAvailable()
{
    const bool ret = m_descriptors.NumOfDescriptors(kTagCaptionService) > 0 ||
                     AnyComponent(m_descriptors, [](const TCDescComponent& c) { return c.IsSubtitle(); });
    ZUM_LOG_QUERY(ret);
    return ret;
}

bool TCProgramDescriptorUtil::IsSignLanguageAvailable()
{
    const bool ret = AnyComponent(m_descriptors, [](const TCDescComponent& c) { return c.IsSignLanguage(); });
    ZUM_LOG_QUERY(ret);
    return ret;
}

bool TCProgramDescriptorUtil::IsHD()
{
    const bool ret = AnyComponent(m_descriptors, [](const TCDescComponent& c) { return c.IsHD(); });
    ZUM_LOG_QUERY(ret);
    return ret;
}

bool TCProgramDescriptorUtil::HDSimulcastEvent(unsigned short& transportStreamId, unsigned short& originalNetworkId,
                                               unsigned short& serviceId, unsigned short& eventId, bool& simulcast)
{
    bool ret = false;
    for (int i = 0; i < m_descriptors.NumOfDescriptors(kTagLinkage) && !ret; ++i) {
        const auto* linkage =
            dynamic_cast<const TCDescLinkage*>(m_descriptors.Descriptor(kTagLinkage, static_cast<unsigned int>(i)));
        if (linkage == nullptr || linkage->LinkageType() != kLinkageSimulcast)
            continue;
        transportStreamId = linkage->TransportStreamId();
        originalNetworkId = linkage->OriginalNetworkId();
        serviceId = linkage->ServiceId();
        eventId = linkage->TargetId();
        simulcast = linkage->Simulcast() != 0;
        ret = true;
    }
    ZUM_LOG_QUERY(ret);
    return ret;
}

bool TCProgramDescriptorUtil::GetEventLinkageInfoList(std::list<CEXTEventLinkageInfo>& list,
                                                      unsigned char& linkageType)
{
    for (int i = 0; i < m_descriptors.NumOfDescriptors(kTagLinkage); ++i) {
        const auto* linkage =
            dynamic_cast<const TCDescLinkage*>(m_descriptors.Descriptor(kTagLinkage, static_cast<unsigned int>(i)));
        if (linkage == nullptr)
            continue;
        linkageType = linkage->LinkageType();
        if (linkageType == kLinkageSimulcast) {
            CEXTEventLinkageInfo info;
            info.m_targetEventId = linkage->TargetId();
            info.m_targetTransportStreamId = linkage->TransportStreamId();
            info.m_targetOriginalNetworkId = linkage->OriginalNetworkId();
            info.m_targetServiceId = linkage->ServiceId();
            info.m_eventSimulcast = linkage->Simulcast() != 0;
            list.push_back(info);
            continue;
        }
        if (linkageType < kLinkageExtendedFirst || linkageType > kLinkageExtendedLast)
            continue;
        for (int k = 0; k < linkage->NumOfExtLinkageLoop(); ++k) {
            const CEXTEventLinkageInfo* entry = linkage->EXTEventLinkageInfoLoop(static_cast<unsigned int>(k));
            // Type 14 links to standard definition events, type 15 to HD ones.
            const bool wanted = entry != nullptr && ((linkageType == 0x0E && entry->LinkType() == 1) ||
                                                     (linkageType == 0x0F && entry->LinkType() == 0));
            if (!wanted)
                continue;
            CEXTEventLinkageInfo info;
            info.m_targetEventId = entry->TargetEventId();
            info.m_linkType = entry->LinkType();
            info.m_targetIdType = entry->TargetIdType();
            info.m_eventSimulcast = entry->EventSimulcast();
            if (entry->TargetIdType() == 3) {
                IBinder* pBinder = IBinder::Instance();
                if (pBinder == nullptr)
                    return false;
                // A user defined id means something only to UK receivers.
                if (pBinder->GetCountryCode(kGuideHandle) != ZumPackCode("GBR") || linkage->GetPDSD() != kUKSpecifier)
                    continue;
                info.m_userDefinedId = entry->UserDefinedId();
            } else {
                info.m_targetTransportStreamId = entry->TargetIdType() == 0   ? linkage->TransportStreamId()
                                                 : entry->TargetIdType() == 1 ? entry->TargetTransportStreamId()
                                                                              : kNotGiven;
                info.m_targetOriginalNetworkId = entry->TargetOriginalNetworkId() != kNotGiven
                                                     ? entry->TargetOriginalNetworkId()
                                                     : linkage->OriginalNetworkId();
                info.m_targetServiceId =
                    entry->TargetServiceId() != kNotGiven ? entry->TargetServiceId() : linkage->ServiceId();
            }
            list.push_back(info);
        }
    }
    const bool ret = !list.empty();
    TCProgramId id;
    m_programData.GetProgramId(id);
    ZUM_LOGD("[TCProgramDescriptorUtil::%s] ret=%d, " ZUM_PROGRAM_ID_FORMAT
             ", out_linkageType=%d, out_eventLinkageList.size()=%d",
             __func__, static_cast<int>(ret), ZUM_PROGRAM_ID_ARGS(id), linkageType, static_cast<int>(list.size()));
    return ret;
}

// The events of this network in a group, with the network of the record.
static void AppendGroup(const TCDescEventGroup& group, const TCProgramData& record,
                        std::list<TCProgramData::TTEventInfo>& list)
{
    for (int i = 0; i < group.EventCount(); ++i) {
        const TCDescEventGroup::TTEvent* event = group.Group(i);
        if (event == nullptr)
            continue;
        TCProgramData::TTEventInfo info;
        info.transportStreamId = record.TransportStreamId();
        info.originalNetworkId = record.OriginalNetworkId();
        info.serviceId = event->serviceId;
        info.eventId = event->eventId;
        list.push_back(info);
    }
}

static TCProgramData::TTEventInfo OtherNetworkEvent(const TCDescEventGroup::TTOtherNetworkEvent& event)
{
    TCProgramData::TTEventInfo info;
    info.transportStreamId = event.transportStreamId;
    info.originalNetworkId = event.originalNetworkId;
    info.serviceId = event.serviceId;
    info.eventId = event.eventId;
    return info;
}

bool TCProgramDescriptorUtil::GetRelayedEventInfo(TCProgramData::TTEventInfo& info)
{
    for (int i = 0; i < m_descriptors.NumOfDescriptors(kTagEventGroup); ++i) {
        const auto* group = dynamic_cast<const TCDescEventGroup*>(
            m_descriptors.Descriptor(kTagEventGroup, static_cast<unsigned int>(i)));
        if (group == nullptr)
            continue;
        if (group->GroupType() == kGroupRelay && group->EventCount() >= 1 && group->Group(0) != nullptr) {
            info.serviceId = group->Group(0)->serviceId;
            info.eventId = group->Group(0)->eventId;
            info.originalNetworkId = m_programData.OriginalNetworkId();
            info.transportStreamId = m_programData.TransportStreamId();
            return true;
        }
        if (group->GroupType() == kGroupRelayOther && group->OtherNetworkCount() >= 1) {
            const TCProgramData::TTEventInfo other = OtherNetworkEvent(*group->GroupOther(0));
            info.transportStreamId = other.transportStreamId;
            info.originalNetworkId = other.originalNetworkId;
            info.serviceId = other.serviceId;
            info.eventId = other.eventId;
            return true;
        }
    }
    return false;
}

bool TCProgramDescriptorUtil::GetEventGroupInfoList(int groupType, std::list<TCProgramData::TTEventInfo>& list)
{
    for (int i = 0; i < m_descriptors.NumOfDescriptors(kTagEventGroup); ++i) {
        const auto* group = dynamic_cast<const TCDescEventGroup*>(
            m_descriptors.Descriptor(kTagEventGroup, static_cast<unsigned int>(i)));
        if (group == nullptr || group->GroupType() != groupType)
            continue;
        if (groupType == 2 || groupType == 3)
            AppendGroup(*group, m_programData, list);
        else if (groupType == 4 || groupType == 5)
            for (int k = 0; k < group->OtherNetworkCount(); ++k)
                list.push_back(OtherNetworkEvent(*group->GroupOther(k)));
        break;
    }
    return !list.empty();
}

bool TCProgramDescriptorUtil::GetCommonEvent(std::list<TCProgramData::TTEventInfo>& list)
{
    const size_t before = list.size();
    for (int i = 0; i < m_descriptors.NumOfDescriptors(kTagEventGroup); ++i) {
        const auto* group = dynamic_cast<const TCDescEventGroup*>(
            m_descriptors.Descriptor(kTagEventGroup, static_cast<unsigned int>(i)));
        if (group != nullptr && group->GroupType() == kGroupCommon)
            AppendGroup(*group, m_programData, list);
    }
    return list.size() > before;
}

bool TCProgramDescriptorUtil::GetSeriesInfo(TCProgramData::TTSeriesItem& item, const ZUMHandle& handle)
{
    const auto* series = dynamic_cast<const TCDescSeries*>(m_descriptors.Descriptor(kTagSeries, 0));
    if (series == nullptr)
        return false;
    item.seriesId = series->SeriesId();
    item.repeatLabel = series->RepeatLabel();
    item.expireDate = series->ExpireDate();
    item.programPattern = series->ProgramPattern();
    item.episodeNumber = series->EpisodeNumber();
    item.lastEpisodeNumber = series->LastEpisodeNumber();
    if (series->SeriesNameLength() > 0) {
        // A name is one descriptor's worth at most; a larger buffer takes it whole.
        unsigned char name[256];
        unsigned short nameLength = sizeof name;
        series->GetSeriesName(name, &nameLength);
        unsigned short outLength = TCProgramData::TTSeriesItem::kSeriesNameCapacity;
        TCUnicodeConverter converter(handle);
        const bool converted = converter.ConvertToUnicode(name, nameLength, item.seriesName, outLength, false,
                                                          static_cast<ELanguageCode>(-1), true);
        item.seriesNameLength = converted ? outLength : 0;
    } else {
        // The event's title stands in, with its terminating zero.
        unsigned short title[TCProgramData::TTSeriesItem::kSeriesNameCapacity / 2];
        unsigned int units = TCProgramData::TTSeriesItem::kSeriesNameCapacity / 2;
        // Title() cuts a long title and always ends it with a zero inside the capacity.
        m_programData.Title(title, &units);
        std::memcpy(item.seriesName, title, (units + 1) * sizeof title[0]);
        item.seriesNameLength = 0;
    }
    return true;
}

int TCProgramDescriptorUtil::NumOfComponentGroup()
{
    if (!t_IsAvailableDescriptor(kTagComponentGroup))
        return 0;
    const auto* groups = dynamic_cast<const TCDescComponentGroup*>(m_descriptors.Descriptor(kTagComponentGroup, 0));
    return groups != nullptr ? groups->NumOfGroup() : 0;
}

bool TCProgramDescriptorUtil::DataServiceAvailable()
{
    TCProgramCommonUtil util(kGuideHandle);
    return util.DataServiceAvailable(m_descriptors);
}

void TCProgramDescriptorUtil::m_CompData(TCProgramData::TCProgCompData& compData)
{
    if (m_programData.GetProgCompData(compData))
        return;
    TCProgramCommonUtil util(kGuideHandle);
    util.MakeComponent(m_descriptors, compData);
    m_programData.SetProgCompData(compData);
}

int TCProgramDescriptorUtil::NumOfComponent(TCProgramData::EComponentType type)
{
    if (!ZUM_ASSERT(type > TCProgramData::COMP_TYPE_INVALID && type < TCProgramData::COMP_TYPE_MAX))
        return 0;
    TCProgramData::TCProgCompData compData;
    m_CompData(compData);
    return compData.NumOfComponent(type);
}

bool TCProgramDescriptorUtil::GetComponent(TCProgramData::EComponentType type, int index,
                                           TCProgramData::TTComp& comp)
{
    if (!ZUM_ASSERT(type > TCProgramData::COMP_TYPE_INVALID && type < TCProgramData::COMP_TYPE_MAX))
        return false;
    TCProgramData::TCProgCompData compData;
    m_CompData(compData);
    return compData.GetComponent(type, index, comp);
}

bool TCProgramDescriptorUtil::GetComponentList(TCProgramData::EComponentType type,
                                               std::vector<TCProgramData::TTComp>& list)
{
    if (!ZUM_ASSERT(type > TCProgramData::COMP_TYPE_INVALID && type < TCProgramData::COMP_TYPE_MAX))
        return false;
    TCProgramData::TCProgCompData compData;
    m_CompData(compData);
    return compData.GetComponentList(type, list);
}

bool TCProgramDescriptorUtil::GetComponentText(unsigned char componentTag, int maxLength,
                                               std::basic_string<unsigned short>& text)
{
    if (!t_IsAvailableDescriptor(kTagComponent))
        return false;
    const TCDescComponent* found = nullptr;
    for (int i = 0; i < m_descriptors.NumOfDescriptors(kTagComponent) && found == nullptr; ++i) {
        const auto* component =
            dynamic_cast<const TCDescComponent*>(m_descriptors.Descriptor(kTagComponent, static_cast<unsigned int>(i)));
        if (component != nullptr && component->ComponentTag() == componentTag)
            found = component;
    }
    if (found == nullptr)
        return false;
    if (found->TextLength() == 0)
        return true;
    // A component text is one descriptor's worth at most.
    char source[256];
    int size = std::max(0, std::min(maxLength, found->TextLength()));
    if (size > 0)
        found->TextChar(source, &size);
    unsigned short sourceLength = static_cast<unsigned short>(size);
    TCUnicodeConverter converter(kGuideHandle);
    converter.ConvertToUnicode(reinterpret_cast<unsigned char*>(source), sourceLength, text, false,
                               static_cast<ELanguageCode>(-1), true);
    return true;
}

bool TCProgramDescriptorUtil::GetRatingInfo(TSRatingInfo& info)
{
    if (!t_IsAvailableDescriptor(kTagParentalRating))
        return false;
    auto* rating = dynamic_cast<TCDescParentalRating*>(m_descriptors.Descriptor(kTagParentalRating, 0));
    if (rating == nullptr)
        return false;
    TCProgramCommonUtil util(kGuideHandle);
    return util.GetDigitalRatingInfo(rating, info);
}
