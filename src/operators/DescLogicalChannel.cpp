#include "DescLogicalChannel.h"

#include <memory>

#include "../dvb/LCNDescParseHelper.h"

namespace {

const int kEntrySize = 4;
const unsigned int kNoNumber = 0xFFFFFFFF;

} // namespace

TCDescLogicalChannel::TCDescLogicalChannel(int tag, unsigned int privateDataSpecifier)
    : TCBaseDesc(tag), m_privateDataSpecifier(privateDataSpecifier), m_readPosition(m_entries.end())
{
}

TCDescLogicalChannel::~TCDescLogicalChannel()
{
    TCDescLogicalChannel::DeleteAll();
}

void TCDescLogicalChannel::DeleteAll()
{
    m_entries.clear();
    m_readPosition = m_entries.end();
}

TCBaseDesc* TCDescLogicalChannel::Fork() const
{
    return t_ForkAs(new TCDescLogicalChannel(m_tag, m_privateDataSpecifier));
}

_TTDescLCN TCDescLogicalChannel::EmptyEntry(unsigned short serviceId)
{
    _TTDescLCN entry{};
    entry.serviceId = serviceId;
    entry.visibleFlag = 1;
    entry.numericSelectionFlag = 1;
    entry.polsatServiceId = 0xFFFF;
    return entry;
}

ILCNDescParseHelper* TCDescLogicalChannel::NewParseHelper(unsigned int privateDataSpecifier, int tag)
{
    switch (privateDataSpecifier) {
    case 0x00000014:
    case 0x00000022:
    case 0x00000029:
    case 0x00006003:
    case 0x000062E1:
    case 0xECCA0001:
    case 0xEFFFFFFF: return new TCLCNDescParseHelper_Nordig();
    case 0x000001A0:
    case 0x00006001:
    case 0x002FFFFF:
    case 0x007FFFFF: return new TCLCNDescParseHelper_Philips();
    case 0x000022C6:
    case 0x0000233A:
    case 0x00006002:
        if (tag == 0x88)
            return new TCLCNDescParseHelper_EBook();
        return new TCLCNDescParseHelper_DBook();
    case 0x010FFFFF: return new TCLCNDescParseHelper_M7();
    default: return new TCLCNDescParseHelper_EBook();
    }
}

int TCDescLogicalChannel::t_Parse(const unsigned char* payload, unsigned char length)
{
    const std::unique_ptr<ILCNDescParseHelper> helper(NewParseHelper(m_privateDataSpecifier, m_tag));
    const int count = length / kEntrySize;
    for (int i = 0; i < count; ++i) {
        const unsigned char* raw = payload + i * kEntrySize;
        _TTDescLCN entry = EmptyEntry(helper->GetServiceId(raw));
        entry.channelNumber = helper->GetChannelNumber(raw);
        // Tag 0x82 carries no visible flag in its entries.
        entry.visibleFlag = (m_tag == 0x82 || helper->GetVisibleFlag(raw)) ? 1 : 0;
        t_AddEntry(entry);
    }
    return count * kEntrySize;
}

void TCDescLogicalChannel::t_AddEntry(const _TTDescLCN& entry)
{
    m_entries.emplace(entry.serviceId, entry);
}

bool TCDescLogicalChannel::GetAvailableRegions(std::list<unsigned short>& /*regions*/) const
{
    return false;
}

unsigned int TCDescLogicalChannel::NumOfServices(unsigned short /*region*/) const
{
    return static_cast<unsigned int>(m_entries.size());
}

bool TCDescLogicalChannel::CheckServiceId(unsigned short serviceId, ECountryCode /*country*/) const
{
    return m_entries.find(serviceId) != m_entries.end();
}

unsigned int TCDescLogicalChannel::LogicalChannelNumber(unsigned short serviceId) const
{
    const auto it = m_entries.find(serviceId);
    return it == m_entries.end() ? kNoNumber : it->second.channelNumber;
}

void TCDescLogicalChannel::GetLogicalChannelNumberList(unsigned short serviceId,
                                                       std::list<unsigned short>& numbers) const
{
    const auto range = m_entries.equal_range(serviceId);
    for (auto it = range.first; it != range.second; ++it)
        numbers.push_back(it->second.channelNumber);
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
    const auto it = m_entries.find(serviceId);
    return it == m_entries.end() || it->second.visibleFlag != 0;
}

bool TCDescLogicalChannel::NumericSelectionFlag(unsigned short /*serviceId*/, unsigned short /*region*/) const
{
    return true;
}

const _TTDescLCN* TCDescLogicalChannel::First(unsigned short region)
{
    m_readPosition = m_entries.begin();
    return Next(region);
}

const _TTDescLCN* TCDescLogicalChannel::Next(unsigned short /*region*/)
{
    if (m_readPosition == m_entries.end())
        return nullptr;
    const _TTDescLCN* entry = &m_readPosition->second;
    ++m_readPosition;
    return entry;
}

bool TCDescLogicalChannel::ServiceIDList(std::set<unsigned short>& serviceIds) const
{
    for (const auto& item : m_entries)
        serviceIds.insert(item.first);
    return true;
}

bool TCDescLogicalChannel::GetDPIds(unsigned short /*serviceId*/, unsigned short& /*first*/,
                                    unsigned short& /*second*/) const
{
    return false;
}
