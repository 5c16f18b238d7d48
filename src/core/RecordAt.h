#ifndef ZUM_CORE_RECORDAT_H
#define ZUM_CORE_RECORDAT_H

// Internal: the decoded records of a descriptor by the signed index that its
// accessors take, so that an index outside the list answers a fixed value.

#include <cstddef>
#include <type_traits>
#include <vector>

template <class Record>
const Record* RecordAt(const std::vector<Record>& records, int index)
{
    if (index < 0 || index >= static_cast<int>(records.size()))
        return nullptr;
    return &records[static_cast<std::size_t>(index)];
}

// One field of the record at `index`; `none` when there is no such record.
template <class Record, class Field>
Field FieldAt(const std::vector<Record>& records, int index, Field Record::*field,
              std::common_type_t<Field> none = Field())
{
    const Record* record = RecordAt(records, index);
    return record ? record->*field : none;
}

#endif
