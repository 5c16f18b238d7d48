#ifndef ZUM_ISDB_ISDBTABLEUTIL_H
#define ZUM_ISDB_ISDBTABLEUTIL_H

// Internal: pieces shared by the ISDB table parsers.

#include <map>
#include <memory>
#include <vector>

#include <zum-platform/ZUMHandle.h>

#include "../core/ByteReader.h"

namespace zum_isdb {

// Seconds of MJD 44244 (1980-01-06) counted back from MJD 0, in 32-bit wrap-around.
constexpr unsigned int kMjdOffset = 472285696u;

inline unsigned int Bcd(unsigned char b)
{
    return (b >> 4) * 10u + (b & 0x0Fu);
}

// Five bytes: MJD, then hours, minutes, seconds in BCD; BCD digits are not checked.
inline unsigned int StartTime(const unsigned char* p)
{
    return ReadBE16(p) * 86400u + kMjdOffset + Bcd(p[2]) * 3600u + Bcd(p[3]) * 60u + Bcd(p[4]);
}

// Three BCD bytes of hours, minutes, seconds as seconds.
inline unsigned int DurationSeconds(const unsigned char* p)
{
    return Bcd(p[0]) * 3600u + Bcd(p[1]) * 60u + Bcd(p[2]);
}

// What is left of `length` from `at`, never below 0.
inline int Left(int length, int at)
{
    return at < length ? length - at : 0;
}

// A descriptor loop length as written, cut where the section ends.
inline int Bounded(int declared, int length, int at)
{
    const int left = Left(length, at);
    return declared < left ? declared : left;
}

// The instance of `id`, created with `handle` when it is missing.
template <class T>
T* FindOrCreate(std::map<unsigned short, std::unique_ptr<T>>& instances, unsigned short id, const ZUMHandle& handle)
{
    std::unique_ptr<T>& slot = instances[id];
    if (!slot)
        slot.reset(new T(handle));
    return slot.get();
}

template <class T>
T* Find(const std::map<unsigned short, std::unique_ptr<T>>& instances, unsigned short id)
{
    const auto it = instances.find(id);
    return it == instances.end() ? nullptr : it->second.get();
}

template <class T>
T* At(const std::vector<std::unique_ptr<T>>& records, unsigned int index)
{
    return index < records.size() ? records[index].get() : nullptr;
}

// The byte accessors' contract: null or a capacity below 1 gives 0 and false;
// otherwise the capacity is cut to what is stored, and the bytes copied.
bool CopyOut(const std::vector<unsigned char>& stored, int& length, unsigned char* out);

} // namespace zum_isdb

#endif
