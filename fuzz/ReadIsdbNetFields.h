#ifndef ZUM_FUZZ_READISDBNETFIELDS_H
#define ZUM_FUZZ_READISDBNETFIELDS_H

// Reads the accessors of the ISDB network, conditional access, download and
// carousel descriptors, one index past each end, and every byte of the runs
// they hand out, so that the sanitizers see what they touch.

#include "FuzzCast.h"
#include "isdb/DescARIBTerrestrialDeliverySystem.h"
#include "isdb/DescCAContractInfo.h"
#include "isdb/DescCarouselIdent.h"
#include "isdb/DescDownloadContent.h"
#include "isdb/DescExtendedBroadcaster.h"

namespace isdbnetfields {

inline volatile unsigned long long g_sink;

inline void Take(unsigned long long v) { g_sink = g_sink + v; }

inline void Bytes(const unsigned char* data, int size)
{
    for (int i = 0; data && i < size; ++i)
        Take(data[i]);
}

template <class Obj, class Copy>
void Copies(const Obj& d, Copy copy)
{
    unsigned char buffer[256];
    for (unsigned short size : {0, 3, 256}) {
        unsigned short inOut = size;
        Take((d.*copy)(buffer, &inOut) + inOut);
    }
}

inline void Read(const TCBaseDesc* desc)
{
    if (auto* d = zumfuzz::As<const TCDescARIBTerrestrialDeliverySystem>(desc))
        for (int i = -1; i <= d->NumOfFrequency(); ++i)
            Take(d->Frequency(i) + d->AreaCode() + d->GuardInterval() + d->TransmissionMode());
    if (auto* d = zumfuzz::As<const TCDescPartialReception>(desc))
        for (int i = 0; i <= d->Count(); ++i)
            Take(d->ServiceId(static_cast<unsigned char>(i)));
    if (auto* d = zumfuzz::As<const TCDescTSInformation>(desc)) {
        Copies(*d, &TCDescTSInformation::TSNameChar);
        for (int r = 0; r <= d->TransmissionTypeCount(); ++r) {
            const auto record = static_cast<unsigned char>(r);
            Take(d->TransmissionTypeInfo(record) + d->NumOfService(record));
            for (int i = 0; i <= d->NumOfService(record); ++i)
                Take(d->ServiceId(record, static_cast<unsigned char>(i)));
        }
    }
    if (auto* d = zumfuzz::As<const TCDescExtendedBroadcaster>(desc)) {
        for (int i = -1; i <= d->NumOfAffiliationId(); ++i)
            Take(d->AffiliationId(i));
        for (int i = -1; i <= d->NumOfBroadcasterEntry(); ++i)
            Take(d->BroadcasterEntry(i));
        Bytes(d->PrivateData(), d->PrivateDataLength());
        Bytes(d->OtherData(), d->OtherDataLength());
    }
    if (auto* d = zumfuzz::As<const TCDescSIPrimeTS>(desc))
        for (int i = -1; i <= d->NumOfTableDescription(); ++i)
            if (const _tagTTSIPrimeTSItem* item = d->TableDescription(i))
                Bytes(item->table_description, item->table_description ? item->table_description_length : 0);
    if (auto* d = zumfuzz::As<const TCDescLogoTransmission>(desc))
        Copies(*d, &TCDescLogoTransmission::LogoChar);
    if (auto* d = zumfuzz::As<const TCDescTargetRegionJPN>(desc))
        Bytes(d->Bitmap(), d->BitmapLength());
    if (auto* d = zumfuzz::As<const TCDescCAContractInfo>(desc))
        for (int i = -1; i <= 256; ++i)
            Take(d->ComponentTag(i) + d->ContractVerificationInfo(i) + d->FeeName(i));
    if (auto* d = zumfuzz::As<const TCDescCAService>(desc))
        for (int i = -1; i <= d->Count(); ++i)
            Take(d->ServiceID(i));
    if (auto* d = zumfuzz::As<const TCDescDownloadContent>(desc)) {
        const TCCompatibilityDescriptor& c = d->Compatibility();
        for (int i = -1; i <= c.NumOfDescriptor(); ++i)
            if (const auto* e = c.Descriptor(i))
                for (const SubDescriptor& sub : e->subDescriptors)
                    Bytes(sub.AdditionalInformation(), sub.AdditionalInformation() ? sub.SubDescriptorLength() : 0);
        for (int i = -1; i <= d->NumOfModuleList(); ++i)
            if (const auto* m = d->Module(i))
                Bytes(m->module_info, m->module_info_length);
        Bytes(d->PrivateData(), d->PrivateData() ? d->PrivateDataLength() : 0);
        Bytes(d->Text(), d->TextLength());
    }
    if (auto* d = zumfuzz::As<const TCDescCarouselIdent>(desc)) {
        Bytes(d->FormatSpecifier().ObjectKey(), d->FormatSpecifier().ObjectKeyLength());
        Bytes(d->PrivateData(), d->PrivateDataLength());
    }
    if (auto* d = zumfuzz::As<const TCDescAssociationTag>(desc)) {
        Bytes(d->Selector(), d->Selector() ? d->SelectorByteLength() : 0);
        Bytes(d->PrivateData(), d->PrivateDataLength());
        Take(d->TransactionId() + d->Timeout());
    }
    if (auto* d = zumfuzz::As<const TCDescDeferredAssociationTags>(desc)) {
        for (int i = -1; i <= d->NumOfAssociationTag(); ++i)
            Take(d->AssociationTag(i));
        Bytes(d->PrivateData(), d->PrivateDataLength());
    }
    if (auto* d = zumfuzz::As<const TCDescStreamEvent>(desc))
        Bytes(d->PrivateData(), d->PrivateDataLength());
}

// A system management descriptor has no factory row: any raw descriptor is
// decoded as one by hand, as a caller would.
inline void DecodeAsSystemManagement(const unsigned char* raw)
{
    TCDescSystemManagement management;
    management.Parse(raw);
    for (int i = -1; i <= management.NumOfAdditionalIdentificationInfo(); ++i)
        Take(management.AdditionalIdentificationInfo(i) + management.BroadcastingFlag());
}

} // namespace isdbnetfields

#endif
