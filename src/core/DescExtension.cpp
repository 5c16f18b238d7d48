#include "DescExtension.h"

#include "../av/DescAACAudio.h"
#include "../av/DescTTMLSubtitling.h"
#include "../av/DescAC4.h"
#include "../av/DescAPD.h"
#include "../dvb/DescImageIcon.h"
#include "../dvb/DescServiceProminence.h"
#include "../dvb/DescT2SystemDelivery.h"
#include "../dvb/DescTargetRegion.h"
#include "../operators/DescADBLCNv2Activate.h"

TCDescExtension::TCDescExtension() : TCBaseDesc(0x7F) {}

void TCDescExtension::DeleteAll() {}

TCBaseDesc* TCDescExtension::Fork() const
{
    return t_ForkAs(new TCDescExtension());
}

int TCDescExtension::Tag() const
{
    if (!m_pRaw || m_rawLength < 3)
        return -1;
    return 0x7F00 + m_pRaw[2];
}

int TCDescExtension::t_Parse(const unsigned char* /*payload*/, unsigned char /*length*/)
{
    return m_length;
}

TCBaseDesc* TCDescExtension::ProcessExtensionDescriptor(const unsigned char* data, unsigned int pds)
{
    if (!data)
        return nullptr;
    // A body of length 0 has no extension byte to look at.
    if (data[1] == 0)
        return new TCDescExtension();
    // Extensions without a class of their own stay plain TCDescExtension objects.
    switch (data[2]) {
    case 0x00: return new TCDescImageIcon();
    case 0x04: return new TCDescT2SystemDelivery();
    case 0x06: return new TCDescSupplementaryAudio();
    case 0x07: return new TCDescNetworkChangeNotify();
    case 0x08: return new TCDescMessage();
    case 0x09: return new TCDescTargetRegion();
    case 0x0A: return new TCDescTargetRegionName();
    case 0x13: return new TCDescURILinkage();
    case 0x20: return new TCDescTTMLSubtitling();
    case 0x15: return new TCDescAC4();
    case 0x19: return new TCDescAPD();
    case 0x22: return new TCDescServiceProminence();
    // ADB's activation extension; under any other specifier a plain extension.
    case 0xA3: return pds == 0x41444250 ? static_cast<TCBaseDesc*>(new TCDescADBLCNv2Activate()) : new TCDescExtension();
    default: return new TCDescExtension();
    }
}
