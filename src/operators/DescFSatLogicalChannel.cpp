#include "DescFSatLogicalChannel.h"

#include <algorithm>

#include "../core/ByteReader.h"

namespace {

const int kHeadSize = 5;
const int kEntrySize = 4;

struct RegionBelow {
    bool operator()(const _TTDescLCN& entry, unsigned short region) const { return entry.regionId < region; }
    bool operator()(unsigned short region, const _TTDescLCN& entry) const { return region < entry.regionId; }
};

} // namespace

TCDescFSatLogicalChannel::TCDescFSatLogicalChannel() : TCBaseDesc(0xD3) {}

TCDescFSatLogicalChannel::~TCDescFSatLogicalChannel()
{
    TCDescFSatLogicalChannel::DeleteAll();
}

void TCDescFSatLogicalChannel::DeleteAll()
{
    m_entries.clear();
    m_freesatIds.clear();
    m_readPosition = 0;
    m_allRegionsPosition = 0;
    m_currentRegion = 0xFFFF;
}

TCBaseDesc* TCDescFSatLogicalChannel::Fork() const
{
    return t_ForkAs(new TCDescFSatLogicalChannel());
}

int TCDescFSatLogicalChannel::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    return m_Decode(payload, length);
}

int TCDescFSatLogicalChannel::m_Decode(const unsigned char* payload, int length)
{
    TCByteReader reader(payload, length);
    while (reader.Has(kHeadSize)) {
        const unsigned short serviceId = static_cast<unsigned short>(reader.U16());
        const unsigned short freesatId = static_cast<unsigned short>(reader.U16() & 0x7FFF);
        int loopLength = static_cast<int>(reader.U8());
        auto known = std::find_if(m_freesatIds.begin(), m_freesatIds.end(),
                                  [serviceId](const TTFreesatId& id) { return id.serviceId == serviceId; });
        if (known != m_freesatIds.end())
            known->freesatId = freesatId;
        else
            m_freesatIds.push_back({serviceId, freesatId});
        // Entries run until the loop's length is used up; the next head follows the last entry.
        for (; loopLength > 0 && reader.Has(kEntrySize); loopLength -= kEntrySize) {
            const unsigned int flagsAndNumber = reader.U16();
            _TTDescLCN entry = LCNEmptyEntry(serviceId);
            entry.numericSelectionFlag = static_cast<unsigned char>((flagsAndNumber >> 15) & 1);
            entry.visibleFlag = static_cast<unsigned char>((flagsAndNumber >> 14) & 1);
            entry.customisableFlag = static_cast<unsigned char>((flagsAndNumber >> 13) & 1);
            entry.channelNumber = static_cast<unsigned short>(flagsAndNumber & 0x0FFF);
            entry.regionId = static_cast<unsigned short>(reader.U16());
            entry.freesatServiceId = freesatId;
            m_entries.insert(std::upper_bound(m_entries.begin(), m_entries.end(), entry.regionId, RegionBelow()),
                             entry);
        }
    }
    // A head or entry that the end cuts off is not read.
    return reader.Consumed();
}

TCDescFSatLogicalChannel::Range TCDescFSatLogicalChannel::m_Region(unsigned short region) const
{
    const auto range = std::equal_range(m_entries.begin(), m_entries.end(), region, RegionBelow());
    return {static_cast<std::size_t>(range.first - m_entries.begin()),
            static_cast<std::size_t>(range.second - m_entries.begin())};
}

const _TTDescLCN* TCDescFSatLogicalChannel::m_Find(unsigned short serviceId, unsigned short region, bool last) const
{
    const Range range = m_Region(region);
    const _TTDescLCN* found = nullptr;
    for (std::size_t i = range.first; i < range.second; ++i) {
        if (m_entries[i].serviceId != serviceId)
            continue;
        found = &m_entries[i];
        if (!last)
            break;
    }
    return found;
}

bool TCDescFSatLogicalChannel::GetAvailableRegions(std::list<unsigned short>& regions) const
{
    for (std::size_t i = 0; i < m_entries.size(); ++i)
        if (i == 0 || m_entries[i].regionId != m_entries[i - 1].regionId)
            regions.push_back(m_entries[i].regionId);
    return true;
}

unsigned int TCDescFSatLogicalChannel::NumOfServices(unsigned short region) const
{
    const Range range = m_Region(region);
    return static_cast<unsigned int>(range.second - range.first);
}

bool TCDescFSatLogicalChannel::CheckServiceId(unsigned short serviceId, ECountryCode /*country*/) const
{
    unsigned short unused = 0;
    return FreesatServiceId(serviceId, unused);
}

unsigned int TCDescFSatLogicalChannel::LogicalChannelNumber(unsigned short /*serviceId*/) const
{
    // One service has a number per region, none for all of them.
    return s_invalid_lcn;
}

void TCDescFSatLogicalChannel::LogicalChannelNumber(unsigned short serviceId, unsigned short region,
                                                    std::list<_TTDescLCN>& entries) const
{
    const Range range = m_Region(region);
    for (std::size_t i = range.first; i < range.second; ++i)
        if (m_entries[i].serviceId == serviceId)
            entries.push_back(m_entries[i]);
}

void TCDescFSatLogicalChannel::GetLogicalChannelNumberList(unsigned short /*serviceId*/,
                                                           std::list<unsigned short>& /*numbers*/) const
{
}

bool TCDescFSatLogicalChannel::FreesatServiceId(unsigned short serviceId, unsigned short& freesatId) const
{
    for (const TTFreesatId& id : m_freesatIds) {
        if (id.serviceId == serviceId) {
            freesatId = id.freesatId;
            return true;
        }
    }
    return false;
}

bool TCDescFSatLogicalChannel::PolsatServiceId(unsigned short /*serviceId*/, std::list<unsigned short>& /*ids*/) const
{
    return false;
}

bool TCDescFSatLogicalChannel::CustomisableServiceFlag(unsigned short serviceId, unsigned short region) const
{
    const _TTDescLCN* entry = m_Find(serviceId, region, true);
    return entry ? entry->customisableFlag != 0 : true;
}

bool TCDescFSatLogicalChannel::VisibleServiceFlag(unsigned short serviceId, unsigned short region) const
{
    const _TTDescLCN* entry = m_Find(serviceId, region, false);
    return (entry ? entry->visibleFlag : s_default_visible_flag) != 0;
}

bool TCDescFSatLogicalChannel::NumericSelectionFlag(unsigned short serviceId, unsigned short region) const
{
    const _TTDescLCN* entry = m_Find(serviceId, region, false);
    return entry ? entry->numericSelectionFlag != 0 : true;
}

const _TTDescLCN* TCDescFSatLogicalChannel::First(unsigned short region)
{
    m_currentRegion = region;
    m_readPosition = m_Region(region).first;
    return Next(region);
}

const _TTDescLCN* TCDescFSatLogicalChannel::Next(unsigned short region)
{
    if (region != m_currentRegion)
        return First(region);
    if (m_readPosition >= m_entries.size() || m_entries[m_readPosition].regionId != region)
        return nullptr;
    return &m_entries[m_readPosition++];
}

const _TTDescLCN* TCDescFSatLogicalChannel::FirstAllRegions()
{
    m_allRegionsPosition = 0;
    return NextAllRegions();
}

const _TTDescLCN* TCDescFSatLogicalChannel::NextAllRegions()
{
    if (m_allRegionsPosition >= m_entries.size())
        return nullptr;
    return &m_entries[m_allRegionsPosition++];
}

void TCDescFSatLogicalChannel::Merge(TCDescFSatLogicalChannel& other)
{
    if (other.t_Payload())
        m_Decode(other.t_Payload(), other.m_length);
}

bool TCDescFSatLogicalChannel::ServiceIDList(std::set<unsigned short>& /*serviceIds*/) const
{
    return false;
}

bool TCDescFSatLogicalChannel::GetDPIds(unsigned short /*serviceId*/, unsigned short& /*first*/,
                                        unsigned short& /*second*/) const
{
    return false;
}
