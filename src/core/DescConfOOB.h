#ifndef ZUM_CORE_DESCCONFOOB_H
#define ZUM_CORE_DESCCONFOOB_H

#include "DescConfPSIP.h"

// Factory of the out-of-band tables of the cable control channel (NIT, NTT,
// SVCT, STT, AEIT, AETT): the PSIP tags plus the carrier, channel, time and
// revision detection descriptors of the cable control channel.
class ZUM_EXPORT TCDescConfOOB : public TCDescConfPSIP {
public:
    TCBaseDesc* NewDescriptor(int tag, const unsigned char* data, unsigned int pds) override;
};

#endif
