#include "DescConfDS.h"

#include "../atsc/DescExtendedChannelName.h"
#include "../dvb/DescContent.h"

TCBaseDesc* TCDescConfDS::NewDescriptor(int tag, const unsigned char* /*data*/, unsigned int /*pds*/)
{
    switch (tag) {
    case 0x55: return new TCDescParentalRating();
    case 0xA3: return new TCDescComponentName();
    default: return new TCDescDefault(tag);
    }
}
