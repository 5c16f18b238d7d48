#include "DescLogicalChannelV2.h"

#include <algorithm>

#include <zum-platform/Binder.h>

#include "../core/ByteReader.h"
#include "../core/Diagnostics.h"
#include "../dvb/LCNDescParseHelper.h"

namespace {

const int kEntrySize = 4;
// Country code and services loop length behind a list's name.
const int kListTailSize = 4;
const ECountryCode kAnyCountry = 0xFFFF00;

// Lower-case letters count as upper-case.
unsigned int CountryLetter(unsigned int c)
{
    return c > 0x60 ? c - 0x20 : c;
}

} // namespace

TCDescLogicalChannelV2::TCDescLogicalChannelV2(const ZUMHandle& handle) : TCBaseDesc(0x87), m_handle(handle) {}

TCDescLogicalChannelV2::~TCDescLogicalChannelV2()
{
    TCDescLogicalChannelV2::DeleteAll();
}

void TCDescLogicalChannelV2::DeleteAll()
{
    m_lists.clear();
    m_listNames.clear();
    m_walkList = nullptr;
}

TCBaseDesc* TCDescLogicalChannelV2::Fork() const
{
    return t_ForkAs(new TCDescLogicalChannelV2(m_handle));
}

int TCDescLogicalChannelV2::t_Parse(const unsigned char* payload, unsigned char length)
{
    IBinder* pBinder = IBinder::Instance();
    if (!ZUM_ASSERT(pBinder))
        return 0;
    const ECountryCode receiverCountry = pBinder->GetCountryCode(m_handle);
    const TCLCNDescParseHelper_EBook layout;

    TCByteReader reader(payload, length);
    int consumed = 0;
    while (reader.Left() > 0) {
        if (!reader.Has(2))
            break;
        const unsigned int listId = reader.U8();
        const int nameLength = static_cast<int>(reader.U8());
        if (!reader.Has(nameLength + kListTailSize))
            break;
        m_listNames[listId].assign(reinterpret_cast<const char*>(reader.Here()), static_cast<size_t>(nameLength));
        reader.Skip(nameLength);
        const unsigned int c0 = CountryLetter(reader.U8());
        const unsigned int c1 = CountryLetter(reader.U8());
        const unsigned int c2 = CountryLetter(reader.U8());
        m_listCountries[listId] = (c0 << 16) | (c1 << 8) | c2;
        EntryMap& entries = m_lists[listId];
        m_UpdateSelection(listId, receiverCountry);

        const int loopLength = static_cast<int>(reader.U8());
        const int present = std::min(loopLength, reader.Left());
        for (int offset = 0; offset + kEntrySize <= present; offset += kEntrySize) {
            const unsigned char* raw = reader.Here() + offset;
            _TTDescLCN entry = TCDescLogicalChannel::EmptyEntry(layout.GetServiceId(raw));
            entry.channelNumber = layout.GetChannelNumber(raw);
            entry.visibleFlag = layout.GetVisibleFlag(raw) ? 1 : 0;
            entries.emplace(entry.serviceId, entry);
        }
        if (loopLength > present) {
            // The body ends inside this loop: keep its whole entries and stop.
            return reader.Consumed() + present - present % kEntrySize;
        }
        reader.Skip(loopLength);
        consumed = reader.Consumed();
    }
    return consumed;
}

void TCDescLogicalChannelV2::m_UpdateSelection(unsigned int listId, ECountryCode receiverCountry)
{
    if (m_selectedList == s_invalid_channel_id) {
        m_selectedList = listId;
        return;
    }
    const bool listAtHome = m_CountryOf(listId) == receiverCountry;
    const bool selectedAtHome = m_CountryOf(m_selectedList) == receiverCountry;
    // The receiver's country first, then the lowest list id.
    if (listAtHome != selectedAtHome) {
        if (listAtHome)
            m_selectedList = listId;
        return;
    }
    if (listId < m_selectedList)
        m_selectedList = listId;
}

const TCDescLogicalChannelV2::EntryMap* TCDescLogicalChannelV2::m_SelectedEntries() const
{
    if (m_selectedList == s_invalid_channel_id)
        return nullptr;
    const auto it = m_lists.find(m_selectedList);
    return it == m_lists.end() ? nullptr : &it->second;
}

ECountryCode TCDescLogicalChannelV2::m_CountryOf(unsigned int listId) const
{
    const auto it = m_listCountries.find(listId);
    return it == m_listCountries.end() ? 0 : it->second;
}

bool TCDescLogicalChannelV2::GetAvailableRegions(std::list<unsigned short>& /*regions*/) const
{
    return false;
}

unsigned int TCDescLogicalChannelV2::NumOfServices(unsigned short /*region*/) const
{
    const EntryMap* entries = m_SelectedEntries();
    return entries ? static_cast<unsigned int>(entries->size()) : 0;
}

bool TCDescLogicalChannelV2::CheckServiceId(unsigned short serviceId, ECountryCode country) const
{
    if (m_selectedList == s_invalid_channel_id)
        return false;
    if (country != kAnyCountry && country != m_CountryOf(m_selectedList))
        return false;
    const EntryMap* entries = m_SelectedEntries();
    return entries && entries->find(serviceId) != entries->end();
}

unsigned int TCDescLogicalChannelV2::LogicalChannelNumber(unsigned short serviceId) const
{
    const EntryMap* entries = m_SelectedEntries();
    if (!entries)
        return s_invalid_lcn;
    const auto it = entries->find(serviceId);
    return it == entries->end() ? s_invalid_lcn : it->second.channelNumber;
}

void TCDescLogicalChannelV2::GetLogicalChannelNumberList(unsigned short serviceId,
                                                         std::list<unsigned short>& numbers) const
{
    const EntryMap* entries = m_SelectedEntries();
    if (!entries)
        return;
    const auto range = entries->equal_range(serviceId);
    for (auto it = range.first; it != range.second; ++it)
        numbers.push_back(it->second.channelNumber);
}

bool TCDescLogicalChannelV2::FreesatServiceId(unsigned short /*serviceId*/, unsigned short& /*freesatId*/) const
{
    return false;
}

bool TCDescLogicalChannelV2::PolsatServiceId(unsigned short /*serviceId*/,
                                             std::list<unsigned short>& /*polsatIds*/) const
{
    return false;
}

bool TCDescLogicalChannelV2::CustomisableServiceFlag(unsigned short /*serviceId*/, unsigned short /*region*/) const
{
    return false;
}

bool TCDescLogicalChannelV2::VisibleServiceFlag(unsigned short serviceId, unsigned short /*region*/) const
{
    const EntryMap* entries = m_SelectedEntries();
    if (!entries)
        return s_default_visible_flag != 0;
    const auto it = entries->find(serviceId);
    return it == entries->end() ? s_default_visible_flag != 0 : it->second.visibleFlag != 0;
}

bool TCDescLogicalChannelV2::NumericSelectionFlag(unsigned short /*serviceId*/, unsigned short /*region*/) const
{
    return true;
}

const _TTDescLCN* TCDescLogicalChannelV2::First(unsigned short region)
{
    m_walkList = m_SelectedEntries();
    if (!m_walkList)
        return nullptr;
    m_readPosition = m_walkList->begin();
    return Next(region);
}

const _TTDescLCN* TCDescLogicalChannelV2::Next(unsigned short /*region*/)
{
    if (m_selectedList == s_invalid_channel_id || !m_walkList || m_readPosition == m_walkList->end())
        return nullptr;
    const _TTDescLCN* entry = &m_readPosition->second;
    ++m_readPosition;
    return entry;
}

bool TCDescLogicalChannelV2::ServiceIDList(std::set<unsigned short>& serviceIds) const
{
    if (const EntryMap* entries = m_SelectedEntries()) {
        for (const auto& item : *entries)
            serviceIds.insert(item.first);
    }
    return true;
}

bool TCDescLogicalChannelV2::GetDPIds(unsigned short /*serviceId*/, unsigned short& /*first*/,
                                      unsigned short& /*second*/) const
{
    return false;
}

void TCDescLogicalChannelV2::GetChannelLists(std::map<unsigned int, std::string>& lists) const
{
    lists = m_listNames;
}

bool TCDescLogicalChannelV2::SelectChannelList(unsigned int listId)
{
    if (m_lists.find(listId) == m_lists.end())
        return false;
    m_selectedList = listId;
    return true;
}

bool TCDescLogicalChannelV2::GetChannelListCountryId(ECountryCode& country, int& listId) const
{
    if (m_selectedList == s_invalid_channel_id) {
        country = 0;
        listId = -1;
        return false;
    }
    country = m_CountryOf(m_selectedList);
    listId = static_cast<int>(m_selectedList);
    return true;
}

void TCDescLogicalChannelV2::GetLogicalChannelMapForChList(unsigned int listId, EntryMap& entries) const
{
    if (listId == s_invalid_channel_id)
        return;
    const auto it = m_lists.find(listId);
    if (it != m_lists.end())
        entries = it->second;
}
