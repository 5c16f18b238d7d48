#ifndef ZUM_APPS_APPRECORDS_H
#define ZUM_APPS_APPRECORDS_H

// Internal: what the application descriptors share to hand out their texts
// and records.

#include <string>
#include <vector>

namespace zum_apps {

// A run of the raw copy as a string; empty for none.
inline std::string RunText(const unsigned char* at, int length)
{
    return at ? std::string(reinterpret_cast<const char*>(at), static_cast<size_t>(length)) : std::string();
}

// The record at `index`, lent out by pointer as the accessors hand it; null past the end.
template <class Record>
Record* RecordPointer(const std::vector<Record>& records, unsigned int index)
{
    return index < records.size() ? const_cast<Record*>(&records[index]) : nullptr;
}

} // namespace zum_apps

#endif
