#ifndef ZUM_CORE_DESCCONFBASE_H
#define ZUM_CORE_DESCCONFBASE_H

#include "BaseDesc.h"

// A factory maps a descriptor tag to a new, undecoded object for one loop of
// one broadcast system and table scope. Null means: skip the descriptor.
class ZUM_EXPORT TCDescConfBase {
public:
    TCDescConfBase() = default;
    virtual ~TCDescConfBase();
    // `data` points to the tag byte; `pds` is the loop's running private data specifier.
    virtual TCBaseDesc* NewDescriptor(int tag, const unsigned char* data, unsigned int pds) = 0;

    TCDescConfBase(const TCDescConfBase&) = delete;
    TCDescConfBase& operator=(const TCDescConfBase&) = delete;

protected:
    TCBaseDesc* t_ProcessPrivateDesc(int tag);
};

#endif
