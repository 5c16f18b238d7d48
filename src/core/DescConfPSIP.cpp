#include "DescConfPSIP.h"

#include "../atsc/DescExtendedChannelName.h"
#include "../atsc/DescServiceLocation.h"

TCBaseDesc* TCDescConfPSIP::NewDescriptor(int tag, const unsigned char* /*data*/, unsigned int /*pds*/)
{
    switch (tag) {
    case 0xA0: return new TCDescExtendedChannelName();
    case 0xA1: return new TCDescServiceLocation();
    default: return new TCDescDefault(tag);
    }
}
