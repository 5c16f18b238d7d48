#ifndef ZUM_CORE_RECORDAT_H
#define ZUM_CORE_RECORDAT_H

// Internal: the records of a descriptor by the signed index that its
// accessors take, so that an index outside the list answers a fixed value:
// decoded records in a vector, or fixed-size records read from the raw copy.

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

// The record of `size` bytes at `index` in a loop of `count` such records
// at `data`; null when there is no such record.
inline const unsigned char* RawRecordAt(const unsigned char* data, int count, int size, int index)
{
    if (!data || index < 0 || index >= count)
        return nullptr;
    return data + static_cast<std::size_t>(index) * static_cast<std::size_t>(size);
}

#endif
