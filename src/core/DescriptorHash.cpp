#include "DescriptorHash.h"

#include <algorithm>
#include <cstring>

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
    std::unique_ptr<TCBaseDesc> owned(desc);
    // Most loops hold a handful of descriptors: one block instead of growing 1, 2, 4.
    if (m_byArrival.capacity() == 0)
        m_byArrival.reserve(kFirstCapacity);
    const int tag = owned->Tag();
    m_byArrival.push_back(TTEntry{std::move(owned), tag});
}

const unsigned char* TCDescriptorHash::m_KeepBytes(const unsigned char* data, int length)
{
    unsigned char* block = new unsigned char[sizeof(unsigned char*) + static_cast<size_t>(length)];
    std::memcpy(block, &m_pBlocks, sizeof(unsigned char*));
    std::memcpy(block + sizeof(unsigned char*), data, static_cast<size_t>(length));
    m_pBlocks = block;
    // The loop's descriptors will arrive next: room for all of them in one block.
    size_t count = 0;
    for (int at = 0; at + 2 <= length; at += data[at + 1] + 2)
        ++count;
    // A hash that keeps growing over many loops still grows geometrically.
    const size_t need = m_byArrival.size() + count;
    if (need > m_byArrival.capacity())
        m_byArrival.reserve(std::max(need, 2 * m_byArrival.capacity()));
    return block + sizeof(unsigned char*);
}

void TCDescriptorHash::m_FreeBlocks()
{
    while (m_pBlocks) {
        unsigned char* next = nullptr;
        std::memcpy(&next, m_pBlocks, sizeof(unsigned char*));
        delete[] m_pBlocks;
        m_pBlocks = next;
    }
}

void TCDescriptorHash::DeleteAll()
{
    // The descriptors first: they read their raw copies from the blocks.
    m_byArrival.clear();
    m_FreeBlocks();
}

int TCDescriptorHash::NumOfDescriptors() const
{
    return static_cast<int>(m_byArrival.size());
}

int TCDescriptorHash::NumOfDescriptors(int tag) const
{
    int count = 0;
    for (const TTEntry& entry : m_byArrival)
        count += entry.tag == tag;
    return count;
}

TCBaseDesc* TCDescriptorHash::DescriptorByIndex(unsigned int index) const
{
    return index < m_byArrival.size() ? m_byArrival[index].desc.get() : nullptr;
}

TCBaseDesc* TCDescriptorHash::Descriptor(int tag, unsigned int index) const
{
    for (const TTEntry& entry : m_byArrival) {
        if (entry.tag != tag)
            continue;
        if (index == 0)
            return entry.desc.get();
        --index;
    }
    return nullptr;
}

bool TCDescriptorHash::GetDescriptor(std::list<TCBaseDesc*>* pDesc) const
{
    if (!ZUM_ASSERT(pDesc))
        return false;
    if (m_byArrival.empty())
        return false;
    for (const TTEntry& entry : m_byArrival) {
        std::unique_ptr<TCBaseDesc> clone(entry.desc->Fork());
        pDesc->push_back(clone.get());
        clone.release();
    }
    return true;
}

bool TCDescriptorHash::operator==(const TCDescriptorHash& other) const
{
    if (m_byArrival.size() != other.m_byArrival.size())
        return false;
    for (size_t i = 0; i < m_byArrival.size(); ++i) {
        if (!m_byArrival[i].desc->FlagEqual(other.m_byArrival[i].desc.get()))
            return false;
    }
    return true;
}

TCDescriptorHash& TCDescriptorHash::operator=(const TCDescriptorHash& other)
{
    if (this == &other)
        return *this;
    DeleteAll();
    m_byArrival.reserve(other.m_byArrival.size());
    for (const TTEntry& entry : other.m_byArrival)
        Add(entry.desc->Fork());
    return *this;
}
