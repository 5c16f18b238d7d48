#ifndef ZUM_CORE_DESCRIPTORHASH_H
#define ZUM_CORE_DESCRIPTORHASH_H

#include <memory>
#include <vector>

#include "BaseDesc.h"
#include "DescriptorContainer.h"

// The descriptor objects of one loop, by tag and by order of arrival. It owns
// them, and the blocks that hold the raw copies its loops made.
class ZUM_EXPORT TCDescriptorHash : public IDescriptorContainer {
public:
    TCDescriptorHash() = default;
    TCDescriptorHash(const TCDescriptorHash& other);
    ~TCDescriptorHash() override;

    // Takes ownership; files the object under the Tag() it answers now.
    void Add(TCBaseDesc* desc);
    void DeleteAll();

    int NumOfDescriptors(int tag) const override;
    TCBaseDesc* Descriptor(int tag, unsigned int index) const override;
    int NumOfDescriptors() const override;
    TCBaseDesc* DescriptorByIndex(unsigned int index) const override;
    bool GetDescriptor(std::list<TCBaseDesc*>* list) const override;

    bool operator==(const TCDescriptorHash& other) const;
    // Deep copy: every descriptor of `other` is cloned.
    TCDescriptorHash& operator=(const TCDescriptorHash& other);

private:
    // One block per loop walked into this container: a link to the block
    // before it, then the loop's bytes, which its descriptors read as their
    // raw copies. Freed after the descriptors.
    const unsigned char* m_KeepBytes(const unsigned char* data, int length);
    void m_FreeBlocks();

    // Arrival order, with the tag each answered at Add: loops are short, so
    // a scan finds a tag's entries faster than a map would be built.
    struct TTEntry {
        std::unique_ptr<TCBaseDesc> desc;
        int tag;
    };
    std::vector<TTEntry> m_byArrival;
    unsigned char* m_pBlocks = nullptr;

    friend class TCDescriptorBase;
};

// Base for tables, instances and items that own one descriptor loop: the
// container interface, forwarded to the loop's hash.
class ZUM_EXPORT TCDescriptorHashOwner : public IDescriptorContainer {
public:
    int NumOfDescriptors(int tag) const override { return m_descriptors.NumOfDescriptors(tag); }
    TCBaseDesc* Descriptor(int tag, unsigned int index) const override { return m_descriptors.Descriptor(tag, index); }
    int NumOfDescriptors() const override { return m_descriptors.NumOfDescriptors(); }
    TCBaseDesc* DescriptorByIndex(unsigned int index) const override { return m_descriptors.DescriptorByIndex(index); }
    bool GetDescriptor(std::list<TCBaseDesc*>* list) const override { return m_descriptors.GetDescriptor(list); }

protected:
    TCDescriptorHash m_descriptors;
};

#endif
