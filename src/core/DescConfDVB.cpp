#include "DescConfDVB.h"

#include <zum-platform/Binder.h>

#include "DescExtension.h"
#include "../av/DescAC3.h"
#include "../av/DescMetadata.h"
#include "../dvb/DescComponent.h"
#include "../dvb/DescContent.h"
#include "../dvb/DescCRID.h"
#include "../dvb/DescTargetRegion.h"
#include "../dvb/DescCountryAvailability.h"
#include "../dvb/DescMultilingualNetworkName.h"
#include "../dvb/DescNetworkName.h"
#include "../dvb/DescPrivateDataSpecifier.h"
#include "../dvb/DescService.h"
#include "../dvb/DescShortEvent.h"
#include "../dvb/DescLinkage.h"
#include "../dvb/DescLocalTimeOffset.h"
#include "../dvb/DescSatelliteDeliverySystem.h"
#include "../isdb/DescAbstractService.h"
#include "../isdb/DescAudioComponent.h"
#include "../isdb/DescBoardInformation.h"
#include "../isdb/DescComponentGroup.h"
#include "../isdb/DescDigitalCopyControl.h"
#include "../isdb/DescEventGroup.h"
#include "../isdb/DescScheduling.h"
#include "../isdb/DescARIBTerrestrialDeliverySystem.h"
#include "../isdb/DescDownloadContent.h"
#include "../isdb/DescExtendedBroadcaster.h"
#include "../operators/DescAstraServiceListName.h"
#include "../operators/DescCIPlusService.h"
#include "../operators/DescDSmartIdentifier.h"
#include "../operators/DescChannelOrder.h"
#include "../operators/DescDigiturkLogicalChannel.h"
#include "../operators/DescDigiturkServiceTheme.h"
#include "../operators/DescDishTVGenre.h"
#include "../operators/DescGTPLGenreList.h"
#include "../operators/DescMRP.h"
#include "../operators/DescTelekomGrid.h"
#include "../operators/DescTricolorRegionName.h"
#include "../operators/DescUKDTTServiceAttribute.h"
#include "../operators/DescFSatGuidance.h"
#include "../operators/DescFSatLinkage.h"
#include "../operators/DescFSatLogicalChannel.h"
#include "../operators/DescFSatRegionName.h"
#include "../operators/DescLogicalChannel.h"
#include "../operators/DescLogicalChannelV2.h"
#include "../operators/DescTKGSComponent.h"
#include "Diagnostics.h"
#include "PrivateTag.h"

TCDescConfDVB::TCDescConfDVB(const ZUMHandle& handle) : m_handle(handle) {}

TCBaseDesc* TCDescConfDVB::NewDescriptor(int tag, const unsigned char* data, unsigned int pds)
{
    switch (tag) {
    case 0x01: return new TCDescScheduling();
    case 0x03: return new TCDescSSULocation();
    case 0x25: return new TCDescMetadataPointer();
    case 0x40: return new TCDescNetworkName();
    case 0x41: return new TCDescServiceList();
    case 0x43: return new TCDescSatelliteDeliverySystem(0x43);
    case 0x44: return new TCDescCableDeliverySystem();
    case 0x47: return new TCDescBouquetName();
    case 0x48: return new TCDescService();
    case 0x49: return new TCDescCountryAvailability();
    case 0x4A: return new TCDescLinkage();
    case 0x4D: return new TCDescShortEvent();
    case 0x4E: return new TCDescExtendedEvent();
    case 0x50: return new TCDescComponent(0);
    case 0x54: return pds == 0xECCA0001 ? static_cast<TCBaseDesc*>(new TCDescDishTVGenre()) : new TCDescContent();
    case 0x55: return new TCDescParentalRating();
    case 0x58: return new TCDescLocalTimeOffset();
    case 0x5A: return new TCDescTerrestrialDeliverySystem();
    case 0x5B: return new TCDescMultilingualNetworkName();
    case 0x5C: return new TCDescMultilingualBouquetName();
    case 0x5D: return new TCDescMultilingualServiceName();
    case 0x5F: return new TCDescPrivateDataSpecifier();
    case 0x62: return new TCDescFrequencyList();
    case 0x64: return new TCDescDataBroadcast();
    case 0x66: return new TCDescDataBroadcastId();
    case 0x6A: return new TCDescAC3();
    case 0x71: return new TCDescServiceIdentifier();
    case 0x72: return new TCDescServiceAvailability();
    case 0x73: return new TCDescDefaultAuthority();
    case 0x76: return new TCDescCRID();
    case 0x7A: return new TCDescEnhancedAC3();
    case 0x7E: return new TCDescFTAContentManagement();
    case 0x7F: return TCDescExtension::ProcessExtensionDescriptor(data, pds);
    default: return t_ProcessPrivateDesc(tag, pds);
    }
}

unsigned int TCDescConfDVB::m_GetPrivateDataSpecification()
{
    if (m_pds != 0)
        return m_pds;
    IBinder* binder = IBinder::Instance();
    if (binder)
        m_pds = binder->GetPrivateDataSpecification(m_handle);
    return m_pds;
}

TCBaseDesc* TCDescConfDVB::t_ProcessPrivateDesc(int tag, unsigned int pds)
{
    if (!IsPrivateTag(tag))
        return new TCDescDefault(tag);
    IBinder* pBinder = IBinder::Instance();
    if (!ZUM_ASSERT(pBinder))
        return nullptr;
    const unsigned int op = pBinder->GetOperator(m_handle);
    // A stream without specifier, and operator 86 always, go by the receiver's own.
    const unsigned int effective = (pds == 0 || op == 86) ? m_GetPrivateDataSpecification() : pds;

    switch (effective) {
    case 0x00000008:
    case 0x00000031:
    case 0xFCFCFCFC: return m_NewSagemPrivateDesc(tag, effective);
    case 0x00000014:
    case 0x00000019:
    case 0x00000029:
    case 0x00002168:
    case 0x000021CA:
    case 0x00002221:
    case 0x000022FC:
    case 0x010FFFFF:
    case 0x41444250: return m_NewNordicPrivateDesc(tag, effective);
    case 0x00000022: return m_NewNumericablePrivateDesc(tag, effective);
    case 0x00000028: return m_NewEbookPrivateDesc(tag, effective);
    case 0x00000040: return m_NewCIPlusPrivateDesc(tag, effective);
    case 0x000001A0:
    case 0x007FFFFF: return m_NewRCSPrivateDesc(tag, effective);
    case 0x0000055F: return m_NewFransatPrivateDesc(tag, effective);
    case 0x0000233A: return m_NewDbookPrivateDesc(tag, effective);
    case 0x00006001:
        if (op == 68)
            return m_NewDSmartPrivateDesc(tag, effective);
        if (op == 90)
            return m_NewAirTelPrivateDesc(tag, effective);
        break;
    case 0x00006002:
    case 0x00006003: return m_NewNXTPrivateDesc(tag, effective);
    // GTPL is entered on the effective specifier but reads the loop's own.
    case 0x000062E1: return m_NewGTPLPrivateDesc(tag, pds);
    case 0x001FFFFF: return m_NewDigitalPlusPrivateDesc(tag, effective);
    case 0x002FFFFF: return m_NewDigiturkPrivateDesc(tag, effective);
    case 0x005FFFFF: return m_NewTelekartaPrivateDesc(tag, effective);
    case 0x006FFFFF: return m_NewTricolorPrivateDesc(tag, effective);
    case 0x011FFFFF: return m_NewTKGSPrivateDesc(tag, effective);
    case 0x46534154: return m_NewFSatPrivateDesc(tag, effective);
    case 0x4A4F4A4F: return m_NewKDGPrivateDesc(tag, effective);
    case 0xECCA0001: return m_NewDishTVPrivateDesc(tag, effective);
    default: break;
    }
    return t_NewDefaultPrivateDesc(tag, effective);
}

TCBaseDesc* TCDescConfDVB::t_NewDefaultPrivateDesc(int tag, unsigned int pds)
{
    switch (tag) {
    case 0xD1:
        return m_GetPrivateDataSpecification() == 0x004FFFFF ? new TCDescPolsatChannelListInfo() : nullptr;
    case 0x81:
        return m_GetPrivateDataSpecification() == 0x004FFFFF ? new TCDescPolsatLogicalChannel(pds) : nullptr;
    case 0x83: return new TCDescLogicalChannel(0x83, pds);
    case 0xE2: return m_GetPrivateDataSpecification() == 0x009FFFFF ? new TCDescTelekomGrid() : nullptr;
    case 0xE4: return m_GetPrivateDataSpecification() == 0x003FFFFF ? new TCDescOtauChannelOrder() : nullptr;
    default: return nullptr;
    }
}

// One operation per specifier family. Each holds the tags whose classes the
// library decodes; any other tag goes by the default rule.
TCBaseDesc* TCDescConfDVB::m_NewSagemPrivateDesc(int tag, unsigned int pds)
{
    switch (tag) {
    case 0x82: return new TCDescLogicalChannel(0x82, pds);
    default: return t_NewDefaultPrivateDesc(tag, pds);
    }
}
TCBaseDesc* TCDescConfDVB::m_NewNordicPrivateDesc(int tag, unsigned int pds)
{
    switch (tag) {
    case 0x87: return new TCDescLogicalChannelV2(m_handle);
    default: return t_NewDefaultPrivateDesc(tag, pds);
    }
}
TCBaseDesc* TCDescConfDVB::m_NewNumericablePrivateDesc(int tag, unsigned int pds)
{
    switch (tag) {
    case 0xB0: return new TCDescLogicalChannel(0xB0, pds);
    default: return t_NewDefaultPrivateDesc(tag, pds);
    }
}
TCBaseDesc* TCDescConfDVB::m_NewEbookPrivateDesc(int tag, unsigned int pds)
{
    switch (tag) {
    case 0x88: return new TCDescLogicalChannel(0x88, pds);
    default: return t_NewDefaultPrivateDesc(tag, pds);
    }
}
TCBaseDesc* TCDescConfDVB::m_NewCIPlusPrivateDesc(int tag, unsigned int pds)
{
    switch (tag) {
    case 0xCB: return new TCDescCIPlusContentLabel();
    case 0xCC: return new TCDescCIPlusService();
    case 0xCE: return new TCDescCIPlusProtection();
    case 0xD2: return new TCDescCICAMVirtualChannel();
    case 0xD3: return new TCDescCIPlusAdvancedService();
    default: return t_NewDefaultPrivateDesc(tag, pds);
    }
}
TCBaseDesc* TCDescConfDVB::m_NewRCSPrivateDesc(int tag, unsigned int pds)
{
    switch (tag) {
    case 0x86: return new TCDescLogicalChannel(0x86, pds);
    default: return t_NewDefaultPrivateDesc(tag, pds);
    }
}
TCBaseDesc* TCDescConfDVB::m_NewFransatPrivateDesc(int tag, unsigned int pds)
{
    switch (tag) {
    case 0x83: return new TCDescEutelsatChannelNumber();
    default: return t_NewDefaultPrivateDesc(tag, pds);
    }
}
TCBaseDesc* TCDescConfDVB::m_NewDbookPrivateDesc(int tag, unsigned int pds)
{
    switch (tag) {
    case 0x86: return new TCDescUKDTTServiceAttribute();
    case 0x88: return new TCDescLogicalChannel(0x88, pds);
    case 0x89: return new TCDescGuidance();
    default: return t_NewDefaultPrivateDesc(tag, pds);
    }
}
TCBaseDesc* TCDescConfDVB::m_NewDSmartPrivateDesc(int tag, unsigned int pds)
{
    switch (tag) {
    case 0xCE: return new TCDescDSmartIdentifier();
    case 0xE3:
    case 0xED: return new TCDescDSmartSatelliteDeliverySystem(tag);
    case 0xE2: return new TCDescLogicalChannel(0xE2, pds);
    default: return t_NewDefaultPrivateDesc(tag, pds);
    }
}
TCBaseDesc* TCDescConfDVB::m_NewAirTelPrivateDesc(int tag, unsigned int pds)
{
    switch (tag) {
    case 0xCC: return new TCDescEPGInformation();
    case 0xE2: return new TCDescLogicalChannel(0xE2, pds);
    default: return t_NewDefaultPrivateDesc(tag, pds);
    }
}
TCBaseDesc* TCDescConfDVB::m_NewNXTPrivateDesc(int tag, unsigned int pds)
{
    switch (tag) {
    case 0x82: return new TCDescLogicalChannel(0x82, pds);
    case 0x93: return new TCDescNXTServiceOrder();
    default: return t_NewDefaultPrivateDesc(tag, pds);
    }
}
TCBaseDesc* TCDescConfDVB::m_NewDigitalPlusPrivateDesc(int tag, unsigned int pds)
{
    switch (tag) {
    case 0x82:
    case 0x84: return new TCDescSogecablePrivateChannelList(tag);
    default: return t_NewDefaultPrivateDesc(tag, pds);
    }
}
TCBaseDesc* TCDescConfDVB::m_NewDigiturkPrivateDesc(int tag, unsigned int pds)
{
    switch (tag) {
    // 0x81 here has the Philips layout, not Digiturk's own.
    case 0x81: return new TCDescLogicalChannel(0x81, pds);
    case 0x83: return new TCDescDigiturkLogicalChannel(pds);
    case 0x96: return new TCDescDigiturkServiceTheme();
    default: return t_NewDefaultPrivateDesc(tag, pds);
    }
}
TCBaseDesc* TCDescConfDVB::m_NewTelekartaPrivateDesc(int tag, unsigned int pds)
{
    switch (tag) {
    case 0x83: return new TCDescTelekartaLogicalChannel(pds);
    default: return t_NewDefaultPrivateDesc(tag, pds);
    }
}
TCBaseDesc* TCDescConfDVB::m_NewTricolorPrivateDesc(int tag, unsigned int pds)
{
    switch (tag) {
    case 0x86: return new TCDescTricolorBouquetList();
    case 0x87: return new TCDescLogicalChannelV2(m_handle);
    case 0x88: return new TCDescTricolorRegionName(m_handle);
    case 0xB2: return new TCDescTricolorListType();
    default: return t_NewDefaultPrivateDesc(tag, pds);
    }
}
TCBaseDesc* TCDescConfDVB::m_NewTKGSPrivateDesc(int tag, unsigned int pds)
{
    switch (tag) {
    case 0x92: return new TCDescTKGSMultilingualCategoryLabel(m_handle);
    case 0x95: return new TCDescTKGSExtendedService();
    default: return t_NewDefaultPrivateDesc(tag, pds);
    }
}
TCBaseDesc* TCDescConfDVB::m_NewFSatPrivateDesc(int tag, unsigned int pds)
{
    switch (tag) {
    case 0xD0: return new TCDescFSatTunnelledData();
    case 0xD1: return new TCDescFSatAltTunnelledData();
    case 0xD2: return new TCDescFSatLinkage();
    case 0xD3: return new TCDescFSatLogicalChannel();
    case 0xD4: return new TCDescFSatRegionName();
    case 0xD5: return new TCDescFSatServiceGroup();
    case 0xD6: return new TCDescFSatInteractiveStorage();
    case 0xD7: return new TCDescFSatInfoLocation();
    case 0xD8: return new TCDescFSatServiceGroupName();
    case 0xD9: return new TCDescFSatShortServiceName();
    case 0xDA: return new TCDescFSatGuidance();
    case 0xDB: return new TCDescFSatInteractiveRestriction();
    case 0xDC: return new TCDescFSatContentManagement();
    default: return t_NewDefaultPrivateDesc(tag, pds);
    }
}
TCBaseDesc* TCDescConfDVB::m_NewKDGPrivateDesc(int tag, unsigned int pds)
{
    if (tag == 0xAA)
        return new TCDescRelocatedTS();
    return t_NewDefaultPrivateDesc(tag, pds);
}
TCBaseDesc* TCDescConfDVB::m_NewDishTVPrivateDesc(int tag, unsigned int pds)
{
    switch (tag) {
    case 0x86: return new TCDescDishTVSVL();
    case 0x87: return new TCDescMRP(0x87, pds);
    default: return t_NewDefaultPrivateDesc(tag, pds);
    }
}

// GTPL has no default rule: what it does not hold is skipped.
TCBaseDesc* TCDescConfDVB::m_NewGTPLPrivateDesc(int tag, unsigned int pds)
{
    constexpr unsigned int kGtpl = 0x000062E1;
    switch (tag) {
    case 0x85:
    case 0x86: return new TCDescGTPLGenreList(tag);
    case 0xBA: return pds == kGtpl ? new TCDescMRP(0xBA, kGtpl) : nullptr;
    case 0xCC: return pds == kGtpl ? new TCDescGTPLGenreOfService() : nullptr;
    case 0xE2: return pds == kGtpl ? new TCDescLogicalChannel(0xE2, kGtpl) : nullptr;
    default: return nullptr;
    }
}

TCBaseDesc* TCDescConfDVB::m_NewAstraPrivateDesc(int tag, unsigned int /*pds*/)
{
    switch (tag) {
    case 0x88: return new TCDescAstraServiceListName();
    case 0x93: return new TCDescAstraBouquetList();
    case 0xD1: return new TCDescAstraVirtualServiceId();
    default: return new TCDescDefault(tag);
    }
}

TCDescConfAstra::TCDescConfAstra(const ZUMHandle& handle) : TCDescConfDVB(handle) {}

TCBaseDesc* TCDescConfAstra::t_ProcessPrivateDesc(int tag, unsigned int pds)
{
    if (!IsPrivateTag(tag))
        return new TCDescDefault(tag);
    IBinder* pBinder = IBinder::Instance();
    if (!ZUM_ASSERT(pBinder))
        return nullptr;
    const unsigned int configured = pds == 0 ? pBinder->GetPrivateDataSpecification(m_handle) : pds;
    if (configured == 1)
        return m_NewAstraPrivateDesc(tag, configured);
    return t_NewDefaultPrivateDesc(tag, configured);
}

TCDescConfISDB::TCDescConfISDB(const ZUMHandle& handle) : TCDescConfDVB(handle) {}

TCBaseDesc* TCDescConfISDB::NewDescriptor(int tag, const unsigned char* data, unsigned int pds)
{
    switch (tag) {
    case 0x4D: return new TCDescShortEventISDB();
    case 0x50: return new TCDescComponent(1);
    default: return TCDescConfDVB::NewDescriptor(tag, data, pds);
    }
}

TCBaseDesc* TCDescConfISDB::t_ProcessPrivateDesc(int tag, unsigned int /*pds*/)
{
    switch (tag) {
    case 0xC4: return new TCDescAudioComponent();
    case 0xC7: return new TCDescDataContent();
    case 0xCD: return new TCDescTSInformation();
    case 0xCF: return new TCDescLogoTransmission();
    case 0xFA: return new TCDescARIBTerrestrialDeliverySystem();
    case 0xFB: return new TCDescPartialReception();
    default: return new TCDescDefault(tag);
    }
}

TCDescConfJPN::TCDescConfJPN(const ZUMHandle& handle) : TCDescConfISDB(handle) {}

TCBaseDesc* TCDescConfJPN::NewDescriptor(int tag, const unsigned char* data, unsigned int pds)
{
    switch (tag) {
    case 0xC1: return new TCDescDigitalCopyControl();
    case 0xD5: return new TCDescSeries();
    case 0xD6: return new TCDescEventGroup();
    case 0xD9: return new TCDescComponentGroup();
    case 0xDB: return new TCDescBoardInformation();
    case 0xDE: return new TCDescContentAvailability();
    case 0xC9: return new TCDescDownloadContent();
    case 0xCE: return new TCDescExtendedBroadcaster();
    case 0xDA: return new TCDescSIPrimeTS();
    default: return TCDescConfISDB::NewDescriptor(tag, data, pds);
    }
}
