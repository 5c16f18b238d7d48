#include "DescLogicalChannel.h"

#include "../core/RecordAt.h"
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
    m_rawEntries = 0;
    m_readPosition = kWalkEnded;
}

TCBaseDesc* TCDescLogicalChannel::Fork() const
{
    return t_ForkAs(new TCDescLogicalChannel(m_tag, m_privateDataSpecifier));
}

int TCDescLogicalChannel::t_Parse(const unsigned char* /*payload*/, unsigned char length)
{
    m_rawEntries = length / kEntrySize;
    return m_rawEntries * kEntrySize;
}

void TCDescLogicalChannel::t_AddEntry(const _TTDescLCN& entry)
{
    m_entries.Add(entry);
}

int TCDescLogicalChannel::m_RawCount() const
{
    return t_Payload() ? m_rawEntries : 0;
}

_TTDescLCN TCDescLogicalChannel::m_RawEntry(int index) const
{
    const ILCNDescParseHelper& layout = LCNLayoutOf(m_privateDataSpecifier, m_tag);
    const unsigned char* raw = RawRecordAt(t_Payload(), m_RawCount(), kEntrySize, index);
    _TTDescLCN entry = LCNEmptyEntry(layout.GetServiceId(raw));
    entry.channelNumber = layout.GetChannelNumber(raw);
    // Tag 0x82 carries no visible flag in its entries.
    entry.visibleFlag = (m_tag == 0x82 || layout.GetVisibleFlag(raw)) ? 1 : 0;
    return entry;
}

bool TCDescLogicalChannel::m_First(unsigned short serviceId, _TTDescLCN& entry) const
{
    for (int i = 0; i < m_RawCount(); ++i) {
        entry = m_RawEntry(i);
        if (entry.serviceId == serviceId)
            return true;
    }
    if (const _TTDescLCN* added = m_entries.FirstOf(serviceId)) {
        entry = *added;
        return true;
    }
    return false;
}

bool TCDescLogicalChannel::GetAvailableRegions(std::list<unsigned short>& /*regions*/) const
{
    return false;
}

unsigned int TCDescLogicalChannel::NumOfServices(unsigned short /*region*/) const
{
    return static_cast<unsigned int>(m_entries.Size()) + static_cast<unsigned int>(m_RawCount());
}

bool TCDescLogicalChannel::CheckServiceId(unsigned short serviceId, ECountryCode /*country*/) const
{
    _TTDescLCN entry{};
    return m_First(serviceId, entry);
}

unsigned int TCDescLogicalChannel::LogicalChannelNumber(unsigned short serviceId) const
{
    _TTDescLCN entry{};
    return m_First(serviceId, entry) ? entry.channelNumber : kNoNumber;
}

void TCDescLogicalChannel::GetLogicalChannelNumberList(unsigned short serviceId,
                                                       std::list<unsigned short>& numbers) const
{
    for (int i = 0; i < m_RawCount(); ++i) {
        const _TTDescLCN entry = m_RawEntry(i);
        if (entry.serviceId == serviceId)
            numbers.push_back(entry.channelNumber);
    }
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
    _TTDescLCN entry{};
    return !m_First(serviceId, entry) || entry.visibleFlag != 0;
}

bool TCDescLogicalChannel::NumericSelectionFlag(unsigned short /*serviceId*/, unsigned short /*region*/) const
{
    return true;
}

const _TTDescLCN* TCDescLogicalChannel::First(unsigned short region)
{
    // The walk hands entries out by pointer: those of the raw copy are read
    // into the list once, and stay there until DeleteAll.
    const int raw = m_RawCount();
    m_entries.Reserve(m_entries.Size() + static_cast<std::size_t>(raw));
    for (int i = 0; i < raw; ++i)
        m_entries.Add(m_RawEntry(i));
    m_rawEntries = 0;
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
    for (int i = 0; i < m_RawCount(); ++i)
        serviceIds.insert(m_RawEntry(i).serviceId);
    for (const _TTDescLCN* entry = m_entries.Begin(); entry != m_entries.End(); ++entry)
        serviceIds.insert(entry->serviceId);
    return true;
}

bool TCDescLogicalChannel::GetDPIds(unsigned short /*serviceId*/, unsigned short& /*first*/,
                                    unsigned short& /*second*/) const
{
    return false;
}
