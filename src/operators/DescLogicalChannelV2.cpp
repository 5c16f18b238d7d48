#include "DescLogicalChannelV2.h"

#include <algorithm>

#include <zum-platform/Binder.h>

#include "../core/ByteReader.h"
#include "../core/Diagnostics.h"
#include "../dvb/LCNDescParseHelper.h"

namespace {

const int kEntrySize = 4;
// Country code and services loop length behind a list's name.
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
    for (TTList& list : m_lists) {
        list.held = false;
        list.name.clear();
        list.entries.Clear();
    }
    m_walking = false;
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
        // A name that reaches the body's end leaves nothing of the list to read.
        if (nameLength >= reader.Left())
            break;
        TTList& list = m_ListOf(listId);
        list.held = true;
        list.name.assign(reinterpret_cast<const char*>(reader.Here()), static_cast<size_t>(nameLength));
        reader.Skip(nameLength);
        // The country as far as the body goes; a cut list still takes part in the selection.
        unsigned int country = 0;
        for (int letter = 0; letter < 3; ++letter)
            country = (country << 8) | (reader.Has(1) ? CountryLetter(reader.U8()) : 0);
        list.country = country;
        m_UpdateSelection(listId, receiverCountry);
        consumed = reader.Consumed();
        if (!reader.Has(1))
            break;

        const int loopLength = static_cast<int>(reader.U8());
        const int present = std::min(loopLength, reader.Left());
        list.entries.Reserve(list.entries.Size() + static_cast<size_t>(present / kEntrySize));
        for (int offset = 0; offset + kEntrySize <= present; offset += kEntrySize) {
            const unsigned char* raw = reader.Here() + offset;
            _TTDescLCN entry = LCNEmptyEntry(layout.GetServiceId(raw));
            entry.channelNumber = layout.GetChannelNumber(raw);
            entry.visibleFlag = layout.GetVisibleFlag(raw) ? 1 : 0;
            list.entries.Add(entry);
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

TCDescLogicalChannelV2::TTList& TCDescLogicalChannelV2::m_ListOf(unsigned int listId)
{
    for (TTList& list : m_lists)
        if (list.id == listId)
            return list;
    m_lists.emplace_back();
    m_lists.back().id = listId;
    return m_lists.back();
}

const TCDescLogicalChannelV2::TTList* TCDescLogicalChannelV2::m_Find(unsigned int listId) const
{
    for (const TTList& list : m_lists)
        if (list.id == listId)
            return &list;
    return nullptr;
}

const TCLCNEntryList* TCDescLogicalChannelV2::m_HeldEntries(unsigned int listId) const
{
    const TTList* list = m_Find(listId);
    return list && list->held ? &list->entries : nullptr;
}

const TCLCNEntryList* TCDescLogicalChannelV2::m_SelectedEntries() const
{
    if (m_selectedList == s_invalid_channel_id)
        return nullptr;
    return m_HeldEntries(m_selectedList);
}

ECountryCode TCDescLogicalChannelV2::m_CountryOf(unsigned int listId) const
{
    const TTList* list = m_Find(listId);
    return list ? list->country : 0;
}

bool TCDescLogicalChannelV2::GetAvailableRegions(std::list<unsigned short>& /*regions*/) const
{
    return false;
}

unsigned int TCDescLogicalChannelV2::NumOfServices(unsigned short /*region*/) const
{
    const TCLCNEntryList* entries = m_SelectedEntries();
    return entries ? static_cast<unsigned int>(entries->Size()) : 0;
}

bool TCDescLogicalChannelV2::CheckServiceId(unsigned short serviceId, ECountryCode country) const
{
    if (m_selectedList == s_invalid_channel_id)
        return false;
    if (country != kAnyCountry && country != m_CountryOf(m_selectedList))
        return false;
    const TCLCNEntryList* entries = m_SelectedEntries();
    return entries && entries->FirstOf(serviceId) != nullptr;
}

unsigned int TCDescLogicalChannelV2::LogicalChannelNumber(unsigned short serviceId) const
{
    const TCLCNEntryList* entries = m_SelectedEntries();
    if (!entries)
        return s_invalid_lcn;
    const _TTDescLCN* entry = entries->FirstOf(serviceId);
    return entry ? entry->channelNumber : s_invalid_lcn;
}

void TCDescLogicalChannelV2::GetLogicalChannelNumberList(unsigned short serviceId,
                                                         std::list<unsigned short>& numbers) const
{
    const TCLCNEntryList* entries = m_SelectedEntries();
    if (!entries)
        return;
    const TCLCNEntryList::Range range = entries->EntriesOf(serviceId);
    for (const _TTDescLCN* entry = range.first; entry != range.second; ++entry)
        numbers.push_back(entry->channelNumber);
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
    const TCLCNEntryList* entries = m_SelectedEntries();
    if (!entries)
        return s_default_visible_flag != 0;
    const _TTDescLCN* entry = entries->FirstOf(serviceId);
    return entry ? entry->visibleFlag != 0 : s_default_visible_flag != 0;
}

bool TCDescLogicalChannelV2::NumericSelectionFlag(unsigned short /*serviceId*/, unsigned short /*region*/) const
{
    return true;
}

const _TTDescLCN* TCDescLogicalChannelV2::First(unsigned short region)
{
    m_walking = m_SelectedEntries() != nullptr;
    if (!m_walking)
        return nullptr;
    m_walkList = m_selectedList;
    m_readPosition = 0;
    return Next(region);
}

const _TTDescLCN* TCDescLogicalChannelV2::Next(unsigned short /*region*/)
{
    const TCLCNEntryList* entries = m_walking ? m_HeldEntries(m_walkList) : nullptr;
    if (m_selectedList == s_invalid_channel_id || !entries || m_readPosition >= entries->Size())
        return nullptr;
    return entries->Begin() + m_readPosition++;
}

bool TCDescLogicalChannelV2::ServiceIDList(std::set<unsigned short>& serviceIds) const
{
    if (const TCLCNEntryList* entries = m_SelectedEntries()) {
        for (const _TTDescLCN* entry = entries->Begin(); entry != entries->End(); ++entry)
            serviceIds.insert(entry->serviceId);
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
    lists.clear();
    for (const TTList& list : m_lists)
        if (list.held)
            lists.emplace(list.id, list.name);
}

bool TCDescLogicalChannelV2::SelectChannelList(unsigned int listId)
{
    if (!m_HeldEntries(listId))
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
    if (const TCLCNEntryList* held = m_HeldEntries(listId))
        held->CopyTo(entries);
}
