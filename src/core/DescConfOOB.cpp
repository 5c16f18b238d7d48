#include "DescConfOOB.h"

#include "../atsc/DescRevisionDetection.h"

TCBaseDesc* TCDescConfOOB::NewDescriptor(int tag, const unsigned char* data, unsigned int pds)
{
    if (tag == 0x93)
        return new TCDescRevisionDetection();
    return TCDescConfPSIP::NewDescriptor(tag, data, pds);
}
