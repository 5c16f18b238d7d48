#include "DescConfPSIP.h"

#include "../atsc/DescATSCLinakge.h"
#include "../atsc/DescCaptionService.h"
#include "../atsc/DescComponentList.h"
#include "../atsc/DescContentAdvisory.h"
#include "../atsc/DescExtendedChannelName.h"
#include "../atsc/DescModulationParameters.h"
#include "../atsc/DescServiceLocation.h"
#include "../atsc/DescTimeShiftedService.h"
#include "../av/DescAACAudio.h"
#include "../av/DescAC3.h"
#include "../av/DescAVCVideo.h"
#include "../av/DescAudioFile.h"
#include "../dvb/DescTargetRegion.h"

TCBaseDesc* TCDescConfPSIP::NewDescriptor(int tag, const unsigned char* /*data*/, unsigned int /*pds*/)
{
    switch (tag) {
    case 0x00: return new TCDescInBandDetailsChannel();
    case 0x01: return new TCDescInBandExceptionChannels();
    case 0x02: return new TCDescAudioFile();
    case 0x1C: return new TCDescMpeg4Audio();
    case 0x35: return new TCDescStereoScopicProgramInfo();
    case 0x81: return new TCDescAC3Audio();
    case 0x86: return new TCDescCaptionService();
    case 0x87: return new TCDescContentAdvisory();
    case 0xA0: return new TCDescExtendedChannelName();
    case 0xA1: return new TCDescServiceLocation();
    case 0xA2: return new TCDescTimeShiftedService();
    case 0xAD: return new TCDescATSCPrivateInformation();
    case 0xBB: return new TCDescComponentList();
    case 0xE0: return new TCDescChannelType();
    case 0xE1: return new TCDescResolutionClass();
    case 0xE2: return new TCDescSOProperties();
    default: return new TCDescDefault(tag);
    }
}
