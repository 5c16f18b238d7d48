#ifndef ZUM_OPERATORS_LCNENTRY_H
#define ZUM_OPERATORS_LCNENTRY_H

// The entry record of every logical channel descriptor, and how a descriptor
// holds its entries.

#include <algorithm>
#include <cstddef>
#include <map>
#include <utility>
#include <vector>

// One entry of any logical channel descriptor; a field that an operator does
// not send keeps its neutral value.
struct _TTDescLCN {
    unsigned short serviceId;
    unsigned char visibleFlag;
    unsigned char numericSelectionFlag;
    unsigned short channelNumber;
    unsigned short regionId;
    unsigned short freesatServiceId;
    unsigned short dpIdFirst;
    unsigned short dpIdSecond;
    unsigned char customisableFlag;
    unsigned short polsatServiceId;
};

// Internal: the entries in one block, ascending by service id, an entry going
// behind its equals, so that they read as the multimap by service id that the
// interface describes.
class TCLCNEntryList {
public:
    using Range = std::pair<const _TTDescLCN*, const _TTDescLCN*>;

    void Reserve(std::size_t count) { m_entries.reserve(count); }
    void Clear() { m_entries.clear(); }
    void Add(const _TTDescLCN& entry)
    {
        const auto at = std::upper_bound(m_entries.begin(), m_entries.end(), entry.serviceId, ServiceIdBelow());
        m_entries.insert(at, entry);
    }

    std::size_t Size() const { return m_entries.size(); }
    const _TTDescLCN* Begin() const { return m_entries.data(); }
    const _TTDescLCN* End() const { return m_entries.data() + m_entries.size(); }
    // The entries of one service, in the order of the descriptor.
    Range EntriesOf(unsigned short serviceId) const
    {
        const auto range = std::equal_range(m_entries.begin(), m_entries.end(), serviceId, ServiceIdBelow());
        return {Begin() + (range.first - m_entries.begin()), Begin() + (range.second - m_entries.begin())};
    }
    // The first entry of the service; null when it has none.
    const _TTDescLCN* FirstOf(unsigned short serviceId) const
    {
        const Range range = EntriesOf(serviceId);
        return range.first != range.second ? range.first : nullptr;
    }
    // The entries as the multimap of the interface.
    void CopyTo(std::multimap<unsigned short, _TTDescLCN>& map) const
    {
        map.clear();
        for (const _TTDescLCN& entry : m_entries)
            map.emplace_hint(map.end(), entry.serviceId, entry);
    }

private:
    struct ServiceIdBelow {
        bool operator()(const _TTDescLCN& entry, unsigned short id) const { return entry.serviceId < id; }
        bool operator()(unsigned short id, const _TTDescLCN& entry) const { return id < entry.serviceId; }
    };

    std::vector<_TTDescLCN> m_entries;
};

// An entry with the neutral values of every field an operator may leave out.
inline _TTDescLCN LCNEmptyEntry(unsigned short serviceId)
{
    _TTDescLCN entry{};
    entry.serviceId = serviceId;
    entry.visibleFlag = 1;
    entry.numericSelectionFlag = 1;
    entry.polsatServiceId = 0xFFFF;
    return entry;
}

#endif
