#ifndef ZUM_CORE_DESCCONFPSIP_H
#define ZUM_CORE_DESCCONFPSIP_H

#include "DescConfBase.h"

// Factory of the ATSC PSIP tables (MGT, VCT, RRT, EIT, STT, EAS).
class ZUM_EXPORT TCDescConfPSIP : public TCDescConfBase {
public:
    TCBaseDesc* NewDescriptor(int tag, const unsigned char* data, unsigned int pds) override;
};

#endif
