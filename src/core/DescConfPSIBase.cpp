#include "DescConfPSIBase.h"

#include <zum-platform/Binder.h>

#include "DescExtension.h"
#include "../apps/DescApplicationSignalling.h"
#include "../atsc/DescATSCLinakge.h"
#include "../atsc/DescCaptionService.h"
#include "../atsc/DescContentAdvisory.h"
#include "../atsc/DescExtendedChannelName.h"
#include "../av/DescAACAudio.h"
#include "../av/DescAC3.h"
#include "../av/DescAVCVideo.h"
#include "../av/DescDTCP.h"
#include "../av/DescMetadata.h"
#include "../dvb/DescComponent.h"
#include "../dvb/DescContent.h"
#include "../dvb/DescCRID.h"
#include "../dvb/DescLanguage.h"
#include "../dvb/DescLinkage.h"
#include "../dvb/DescPrivateDataSpecifier.h"
#include "../dvb/DescServiceMove.h"
#include "../isdb/DescAudioComponent.h"
#include "../isdb/DescDigitalCopyControl.h"
#include "../isdb/DescARIBTerrestrialDeliverySystem.h"
#include "../isdb/DescCAContractInfo.h"
#include "../isdb/DescCarouselIdent.h"
#include "../isdb/DescEmergencyInformation.h"
#include "../isdb/DescExtendedBroadcaster.h"
#include "../operators/DescTKGSComponent.h"
#include "../operators/DescFSatLinkage.h"
#include "PrivateTag.h"
#include "../psi/DescCA.h"

TCBaseDesc* TCDescConfPSIBase::NewDescriptor(int tag, const unsigned char* /*data*/, unsigned int /*pds*/)
{
    switch (tag) {
    case 0x09: return new TCDescCA();
    case 0x0A: return new TCDescLanguage();
    case 0x13: return new TCDescCarouselIdent();
    case 0x14: return new TCDescAssociationTag();
    case 0x15: return new TCDescDeferredAssociationTags();
    case 0x18: return new TCDescNPTReference();
    case 0x1C: return new TCDescMpeg4Audio();
    case 0x21: return new TCDescStreamEvent();
    case 0x24: return new TCDescContentLabeling();
    case 0x52: return new TCDescStreamIdentifier();
    case 0x66: return new TCDescDataBroadcastId();
    case 0x88: return new TCDescDTCP();
    case 0xB6: return new TCDescContentIdentifier();
    default: return new TCDescDefault(tag);
    }
}

TCDescConfPsiDVB::TCDescConfPsiDVB(const ZUMHandle& handle) : m_handle(handle) {}

TCBaseDesc* TCDescConfPsiDVB::NewDescriptor(int tag, const unsigned char* data, unsigned int pds)
{
    switch (tag) {
    case 0x05: return new TCDescDRARegistration();
    case 0x26: return new TCDescMetadata();
    case 0x28: return new TCDescAVCVideo();
    case 0x56: return new TCDescTeletext();
    case 0x59: return new TCDescSubtitling();
    case 0x5F: return new TCDescPrivateDataSpecifier();
    case 0x60: return new TCDescServiceMove();
    case 0x6A: return new TCDescAC3();
    case 0x7A: return new TCDescEnhancedAC3();
    case 0x7C: return new TCDescAACAudio();
    case 0x6F: return new TCDescApplicationSignalling();
    // Program tables carry no specifier into extensions: the 0xA3 row needs the SI factory.
    case 0x7F: return TCDescExtension::ProcessExtensionDescriptor(data, 0xFFFFFFFF);
    case 0x98:
    case 0xA0:
    case 0xD0:
    case 0xD1: return t_ProcessPrivateDesc(tag, pds);
    default: return TCDescConfPSIBase::NewDescriptor(tag, data, pds);
    }
}

TCBaseDesc* TCDescConfPsiDVB::t_ProcessPrivateDesc(int tag, unsigned int pds)
{
    if (!IsPrivateTag(tag))
        return nullptr;
    if (pds == 0x46534154)
        return m_NewFSatPrivateDesc(tag, pds);
    IBinder* binder = IBinder::Instance();
    if (pds == 0 && binder) {
        const ECountry country = binder->GetCountry(m_handle);
        if (country == ECOUNTRY_TURKEY && binder->GetPrivateDataSpecification(m_handle) == 0x011FFFFF)
            return m_NewTKGSPrivateDesc(tag, 0);
        if (country == ECOUNTRY_CHINA)
            return m_NewCHNPrivateDesc(tag, 0);
    }
    return nullptr;
}

TCBaseDesc* TCDescConfPsiDVB::m_NewFSatPrivateDesc(int tag, unsigned int /*pds*/)
{
    switch (tag) {
    case 0xD0: return new TCDescFSatTunnelledData();
    case 0xD1: return new TCDescFSatAltTunnelledData();
    default: return nullptr;
    }
}

TCBaseDesc* TCDescConfPsiDVB::m_NewCHNPrivateDesc(int tag, unsigned int /*pds*/)
{
    switch (tag) {
    case 0xA0: return new TCDescDRAAudioStream();
    default: return nullptr;
    }
}

TCBaseDesc* TCDescConfPsiDVB::m_NewTKGSPrivateDesc(int tag, unsigned int /*pds*/)
{
    switch (tag) {
    case 0x98: return new TCDescTKGSComponent();
    default: return nullptr;
    }
}

TCDescConfPsiISDB::TCDescConfPsiISDB(const ZUMHandle& handle) : TCDescConfPsiDVB(handle) {}

TCBaseDesc* TCDescConfPsiISDB::NewDescriptor(int tag, const unsigned char* data, unsigned int pds)
{
    switch (tag) {
    case 0x55: return new TCDescParentalRating();
    case 0xC1: return new TCDescDigitalCopyControl();
    case 0xDE: return new TCDescContentAvailability();
    case 0xC0: return new TCDescHierarchicalTransmission();
    case 0xC6: return new TCDescTargetRegionJPN();
    case 0xCA: return new TCDescCA_EMM_TS();
    case 0xCB: return new TCDescCAContractInfo();
    case 0xCC: return new TCDescCAService();
    case 0xFC: return new TCDescEmergencyInformation();
    case 0xFD: return new TCDescDataComponent();
    default: return TCDescConfPsiDVB::NewDescriptor(tag, data, pds);
    }
}

TCBaseDesc* TCDescConfPsiATSC::NewDescriptor(int tag, const unsigned char* data, unsigned int pds)
{
    switch (tag) {
    case 0x35: return new TCDescStereoScopicProgramInfo();
    case 0x36: return new TCDescStereoScopicVideoInfo();
    case 0x6A: return new TCDescAC3();
    case 0x81: return new TCDescAC3Audio();
    case 0x86: return new TCDescCaptionService();
    case 0x87: return new TCDescContentAdvisory();
    case 0xA3: return new TCDescComponentName();
    case 0xCC: return new TCDescATSCEnhancedAC3();
    default: return TCDescConfPSIBase::NewDescriptor(tag, data, pds);
    }
}

TCBaseDesc* TCDescConfPsiKR::NewDescriptor(int tag, const unsigned char* data, unsigned int pds)
{
    switch (tag) {
    case 0x37: return new TCDescATSCLinakge();
    case 0x38: return new TCDescStereoScopicSyncronization();
    default: return TCDescConfPsiATSC::NewDescriptor(tag, data, pds);
    }
}
