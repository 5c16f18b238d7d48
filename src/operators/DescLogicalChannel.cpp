#include "DescLogicalChannel.h"

#include "../dvb/LCNDescParseHelper.h"

namespace {

const int kEntrySize = 4;
const unsigned int kNoNumber = 0xFFFFFFFF;
const std::size_t kWalkEnded = static_cast<std::size_t>(-1);

} // namespace

TCDescLogicalChannel::TCDescLogicalChannel(int tag, unsigned int privateDataSpecifier)
    : TCBaseDesc(tag), m_privateDataSpecifier(privateDataSpecifier)
{
}

TCDescLogicalChannel::~TCDescLogicalChannel()
{
    TCDescLogicalChannel::DeleteAll();
}

void TCDescLogicalChannel::DeleteAll()
{
    m_entries.Clear();
    m_readPosition = kWalkEnded;
}

TCBaseDesc* TCDescLogicalChannel::Fork() const
{
    return t_ForkAs(new TCDescLogicalChannel(m_tag, m_privateDataSpecifier));
}

int TCDescLogicalChannel::t_Parse(const unsigned char* payload, unsigned char length)
{
    const ILCNDescParseHelper& layout = LCNLayoutOf(m_privateDataSpecifier, m_tag);
    const int count = length / kEntrySize;
    m_entries.Reserve(m_entries.Size() + static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        const unsigned char* raw = payload + i * kEntrySize;
        _TTDescLCN entry = LCNEmptyEntry(layout.GetServiceId(raw));
        entry.channelNumber = layout.GetChannelNumber(raw);
        // Tag 0x82 carries no visible flag in its entries.
        entry.visibleFlag = (m_tag == 0x82 || layout.GetVisibleFlag(raw)) ? 1 : 0;
        t_AddEntry(entry);
    }
    return count * kEntrySize;
}

void TCDescLogicalChannel::t_AddEntry(const _TTDescLCN& entry)
{
    m_entries.Add(entry);
}

bool TCDescLogicalChannel::GetAvailableRegions(std::list<unsigned short>& /*regions*/) const
{
    return false;
}

unsigned int TCDescLogicalChannel::NumOfServices(unsigned short /*region*/) const
{
    return static_cast<unsigned int>(m_entries.Size());
}

bool TCDescLogicalChannel::CheckServiceId(unsigned short serviceId, ECountryCode /*country*/) const
{
    return m_entries.FirstOf(serviceId) != nullptr;
}

unsigned int TCDescLogicalChannel::LogicalChannelNumber(unsigned short serviceId) const
{
    const _TTDescLCN* entry = m_entries.FirstOf(serviceId);
    return entry ? entry->channelNumber : kNoNumber;
}

void TCDescLogicalChannel::GetLogicalChannelNumberList(unsigned short serviceId,
                                                       std::list<unsigned short>& numbers) const
{
    const TCLCNEntryList::Range range = m_entries.EntriesOf(serviceId);
    for (const _TTDescLCN* entry = range.first; entry != range.second; ++entry)
        numbers.push_back(entry->channelNumber);
}

bool TCDescLogicalChannel::FreesatServiceId(unsigned short /*serviceId*/, unsigned short& /*freesatId*/) const
{
    return false;
}

bool TCDescLogicalChannel::PolsatServiceId(unsigned short /*serviceId*/, std::list<unsigned short>& /*polsatIds*/) const
{
    return false;
}

bool TCDescLogicalChannel::CustomisableServiceFlag(unsigned short /*serviceId*/, unsigned short /*region*/) const
{
    return false;
}

bool TCDescLogicalChannel::VisibleServiceFlag(unsigned short serviceId, unsigned short /*region*/) const
{
    const _TTDescLCN* entry = m_entries.FirstOf(serviceId);
    return !entry || entry->visibleFlag != 0;
}

bool TCDescLogicalChannel::NumericSelectionFlag(unsigned short /*serviceId*/, unsigned short /*region*/) const
{
    return true;
}

const _TTDescLCN* TCDescLogicalChannel::First(unsigned short region)
{
    m_readPosition = 0;
    return Next(region);
}

const _TTDescLCN* TCDescLogicalChannel::Next(unsigned short /*region*/)
{
    if (m_readPosition >= m_entries.Size())
        return nullptr;
    return m_entries.Begin() + m_readPosition++;
}

bool TCDescLogicalChannel::ServiceIDList(std::set<unsigned short>& serviceIds) const
{
    for (const _TTDescLCN* entry = m_entries.Begin(); entry != m_entries.End(); ++entry)
        serviceIds.insert(entry->serviceId);
    return true;
}

bool TCDescLogicalChannel::GetDPIds(unsigned short /*serviceId*/, unsigned short& /*first*/,
                                    unsigned short& /*second*/) const
{
    return false;
}
