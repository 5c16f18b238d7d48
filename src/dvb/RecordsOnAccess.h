#ifndef ZUM_DVB_RECORDSONACCESS_H
#define ZUM_DVB_RECORDSONACCESS_H

// Internal: a loop of variable-length records that a descriptor hands out by
// pointer. t_Parse only counts them; the first access reads them from the raw
// copy into one vector of small records (numbers and views into the copy),
// which stays until the next Count or Clear.

#include <vector>

#include "../core/ByteReader.h"
#include "../core/RecordAt.h"

// `Record` has `int Parse(const unsigned char* data, int size)`, which reads
// no more than `size` bytes and answers the bytes it took. A record starts
// where at least `kHead` bytes are left.
template <class Record, int kHead>
class TCRecordsOnAccess {
public:
    // Counts the records of the loop of `size` bytes at `data`; answers the
    // bytes that they take.
    int Count(const unsigned char* data, int size)
    {
        Clear();
        return Walk(data, size, [this](const unsigned char* record, int left) {
            ++m_count;
            return Record().Parse(record, left);
        });
    }

    int Size() const { return m_count; }

    // The records of the loop that Count saw, now at `data`.
    const std::vector<Record>& All(const unsigned char* data, int size) const
    {
        if (data && m_records.empty() && m_count > 0) {
            m_records.reserve(static_cast<std::size_t>(m_count));
            Walk(data, size, [this](const unsigned char* record, int left) {
                m_records.emplace_back();
                return m_records.back().Parse(record, left);
            });
        }
        return m_records;
    }

    // Null for an index outside the records.
    const Record* At(const unsigned char* data, int size, int index) const
    {
        return RecordAt(All(data, size), index);
    }

    void Clear()
    {
        m_count = 0;
        m_records.clear();
    }

private:
    template <class Visit>
    static int Walk(const unsigned char* data, int size, Visit visit)
    {
        TCByteReader reader(data, size);
        while (reader.Has(kHead)) {
            const int taken = visit(reader.Here(), reader.Left());
            if (taken <= 0 || !reader.Skip(taken))
                break;
        }
        return reader.Consumed();
    }

    int m_count = 0;
    mutable std::vector<Record> m_records;
};

#endif
