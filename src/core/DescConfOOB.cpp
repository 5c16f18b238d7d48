#include "DescConfOOB.h"

#include "../atsc/DescDaylightSavingTime.h"
#include "../atsc/DescModulationParameters.h"
#include "../atsc/DescRevisionDetection.h"
#include "../atsc/DescTimeShiftedService.h"

TCBaseDesc* TCDescConfOOB::NewDescriptor(int tag, const unsigned char* data, unsigned int pds)
{
    // The cable control channel's own descriptors; the rest as in band.
    switch (tag) {
    case 0x90: return new TCDescFrequencySpecification();
    case 0x91: return new TCDescModulationParameters();
    case 0x93: return new TCDescRevisionDetection();
    case 0x94: return new TCDescTwoPartChannel();
    case 0x95: return new TCDescChannelProperities();
    case 0x96: return new TCDescDaylightSavingTime();
    default: return TCDescConfPSIP::NewDescriptor(tag, data, pds);
    }
}
