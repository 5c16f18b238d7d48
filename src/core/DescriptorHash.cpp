#include "DescriptorHash.h"

#include "Diagnostics.h"

namespace {

constexpr size_t kFirstCapacity = 4;

} // namespace

TCDescriptorHash::TCDescriptorHash(const TCDescriptorHash& other) : IDescriptorContainer()
{
    *this = other;
}

TCDescriptorHash::~TCDescriptorHash()
{
    DeleteAll();
}

void TCDescriptorHash::Add(TCBaseDesc* desc)
{
    if (!desc)
        return;
    // Most loops hold a handful of descriptors: one block instead of growing 1, 2, 4.
    if (m_byArrival.empty())
        m_byArrival.reserve(kFirstCapacity);
    m_byArrival.emplace_back(desc);
    m_byTag[desc->Tag()].push_back(desc);
}

void TCDescriptorHash::DeleteAll()
{
    m_byTag.clear();
    m_byArrival.clear();
}

int TCDescriptorHash::NumOfDescriptors() const
{
    return static_cast<int>(m_byArrival.size());
}

int TCDescriptorHash::NumOfDescriptors(int tag) const
{
    const auto it = m_byTag.find(tag);
    return it == m_byTag.end() ? 0 : static_cast<int>(it->second.size());
}

TCBaseDesc* TCDescriptorHash::DescriptorByIndex(unsigned int index) const
{
    return index < m_byArrival.size() ? m_byArrival[index].get() : nullptr;
}

TCBaseDesc* TCDescriptorHash::Descriptor(int tag, unsigned int index) const
{
    const auto it = m_byTag.find(tag);
    if (it == m_byTag.end() || index >= it->second.size())
        return nullptr;
    return it->second[index];
}

bool TCDescriptorHash::GetDescriptor(std::list<TCBaseDesc*>* pDesc) const
{
    if (!ZUM_ASSERT(pDesc))
        return false;
    if (m_byArrival.empty())
        return false;
    for (const auto& desc : m_byArrival)
        pDesc->push_back(desc->Fork());
    return true;
}

bool TCDescriptorHash::operator==(const TCDescriptorHash& other) const
{
    if (m_byArrival.size() != other.m_byArrival.size())
        return false;
    for (size_t i = 0; i < m_byArrival.size(); ++i) {
        if (!m_byArrival[i]->FlagEqual(other.m_byArrival[i].get()))
            return false;
    }
    return true;
}

TCDescriptorHash& TCDescriptorHash::operator=(const TCDescriptorHash& other)
{
    if (this == &other)
        return *this;
    DeleteAll();
    for (const auto& desc : other.m_byArrival)
        Add(desc->Fork());
    return *this;
}
