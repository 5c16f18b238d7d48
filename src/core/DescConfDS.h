#ifndef ZUM_CORE_DESCCONFDS_H
#define ZUM_CORE_DESCCONFDS_H

#include "DescConfBase.h"

// Factory of the application information table (0x74), in every system.
class ZUM_EXPORT TCDescConfDS : public TCDescConfBase {
public:
    TCBaseDesc* NewDescriptor(int tag, const unsigned char* data, unsigned int pds) override;
};

#endif
