#ifndef ZUM_PLATFORM_SERVICEDATA_H
#define ZUM_PLATFORM_SERVICEDATA_H

// The platform's record of one service: numbered properties on a property
// object, set by whoever learnt them.

#include <map>
#include <utility>
#include <vector>

class TCPropertyObject {
public:
    void SetProperty(int id, long long value);
    // false, leaving `value` alone, for a property never set.
    bool GetProperty(int id, long long& value) const;
    // The ids in the order they were first set.
    const std::vector<int>& Order() const { return m_order; }

private:
    std::map<int, long long> m_values;
    std::vector<int> m_order;
};

class TCServiceData {
public:
    TCPropertyObject& PropertyObject() { return m_properties; }
    const TCPropertyObject& PropertyObject() const { return m_properties; }

private:
    TCPropertyObject m_properties;
};

#endif
