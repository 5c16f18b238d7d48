#include "DescConfDS.h"

#include "../apps/DescApplication.h"
#include "../apps/DescTransportProtocol.h"
#include "../atsc/DescExtendedChannelName.h"
#include "../dvb/DescContent.h"
#include "../isdb/DescAbstractService.h"

TCBaseDesc* TCDescConfDS::NewDescriptor(int tag, const unsigned char* /*data*/, unsigned int /*pds*/)
{
    switch (tag) {
    case 0x00: return new TCDescApplication();
    case 0x01: return new TCDescApplicationName();
    case 0x02: return new TCDescTransportProtocol();
    case 0x05: return new TCDescExternalApplicationAuthrisation();
    case 0x0B: return new TCDescApplicationIcons();
    case 0x0C: return new TCDescPrefetch();
    case 0x0D: return new TCDescDIILocation();
    case 0x10: return new TCDescApplicationStorageCapability();
    case 0x15: return new TCDescApplicationSimpleLocation();
    case 0x16: return new TCDescApplicationUsage();
    case 0x17: return new TCDescApplicationBoundary();
    case 0x55: return new TCDescParentalRating();
    case 0x66:
    case 0xAE: return new TCDescAbstractService();
    case 0x68:
    case 0xB1: return new TCDescPrivilegedCertificate();
    case 0x67:
    case 0xAF: return new TCDescUnboundApplication(tag);
    case 0x69:
    case 0xB0: return new TCDescApplicationStorage(tag);
    case 0xA3: return new TCDescComponentName();
    default: return new TCDescDefault(tag);
    }
}
