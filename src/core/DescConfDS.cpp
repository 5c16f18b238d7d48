#include "DescConfDS.h"

#include "../dvb/DescContent.h"

TCBaseDesc* TCDescConfDS::NewDescriptor(int tag, const unsigned char* /*data*/, unsigned int /*pds*/)
{
    switch (tag) {
    case 0x55: return new TCDescParentalRating();
    default: return new TCDescDefault(tag);
    }
}
