#ifndef ZUM_CORE_DESCRIPTORCONTAINER_H
#define ZUM_CORE_DESCRIPTORCONTAINER_H

#include <list>

#include "Export.h"

class TCBaseDesc;

// Read access to the descriptors of one loop, by tag and by arrival. The
// container stays the owner of what it hands out, but for GetDescriptor's clones.
class ZUM_EXPORT IDescriptorContainer {
public:
    virtual ~IDescriptorContainer() = default;
    virtual int NumOfDescriptors(int tag) const = 0;
    virtual TCBaseDesc* Descriptor(int tag, unsigned int index) const = 0;
    virtual int NumOfDescriptors() const = 0;
    virtual TCBaseDesc* DescriptorByIndex(unsigned int index) const = 0;
    // Appends a clone of every descriptor, in order of arrival; the caller owns them.
    virtual bool GetDescriptor(std::list<TCBaseDesc*>* list) const = 0;
};

#endif
