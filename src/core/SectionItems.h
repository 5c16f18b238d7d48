#ifndef ZUM_CORE_SECTIONITEMS_H
#define ZUM_CORE_SECTIONITEMS_H

#include <cstddef>
#include <map>
#include <memory>
#include <vector>

// Internal: the items of a sub-table owned per section number, listed flat in
// order of section number, then of arrival, for the accessors that read by index.
template <class T>
void FlattenBySection(const std::map<unsigned char, std::vector<std::unique_ptr<T>>>& bySection, std::vector<T*>& flat)
{
    std::size_t count = 0;
    for (const auto& entry : bySection)
        count += entry.second.size();
    flat.clear();
    flat.reserve(count);
    for (const auto& entry : bySection)
        for (const auto& item : entry.second)
            flat.push_back(item.get());
}

#endif
