#include <zum-platform/ServiceData.h>

void TCPropertyObject::SetProperty(int id, long long value)
{
    if (m_values.find(id) == m_values.end())
        m_order.push_back(id);
    m_values[id] = value;
}

bool TCPropertyObject::GetProperty(int id, long long& value) const
{
    const auto it = m_values.find(id);
    if (it == m_values.end())
        return false;
    value = it->second;
    return true;
}
