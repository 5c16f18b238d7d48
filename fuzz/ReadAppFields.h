#ifndef ZUM_FUZZ_READAPPFIELDS_H
#define ZUM_FUZZ_READAPPFIELDS_H

// Reads every accessor of the application descriptors, one index past each
// end, texts and records included, so that the sanitizers see what they touch.

#include <string>

#include "FuzzCast.h"
#include "apps/DescApplication.h"
#include "apps/DescApplicationSignalling.h"
#include "apps/DescTransportProtocol.h"

namespace fuzzfields {

inline volatile unsigned int g_appSink;

inline void TakeApp(unsigned int v) { g_appSink = g_appSink + v; }

inline void TakeBytes(const unsigned char* bytes, unsigned int length)
{
    for (unsigned int i = 0; bytes && i < length; ++i)
        TakeApp(bytes[i]);
}

inline void TakeText(const std::string& text)
{
    TakeBytes(reinterpret_cast<const unsigned char*>(text.data()), static_cast<unsigned int>(text.size()));
}

inline void ReadApp(TCBaseDesc* desc)
{
    if (auto* d = zumfuzz::As<TCDescApplication>(desc)) {
        for (unsigned i = 0; i <= d->TransportProtocolLabelCount(); ++i)
            TakeApp(d->TransportProtocolLabel(i));
        for (unsigned i = 0; i <= d->NumOfAppProfile(); ++i)
            if (const TCAppProfile* p = d->AppProfile(i))
                TakeApp(p->ApplicationProfile() + p->VersionMajor() + p->VersionMinor() + p->VersionMicro());
        TakeApp(d->ServiceBoundFlag() + d->Visibility() + d->ApplicationPriority());
    }
    if (auto* d = zumfuzz::As<TCDescApplicationName>(desc))
        for (unsigned i = 0; i <= d->NumOfAppNameChar(); ++i)
            if (const TCAppNameChar* n = d->AppNameChar(i))
                TakeBytes(n->ApplicationNameChar(0xFF), n->NameLength() + (n->Language() & 0));
    if (auto* d = zumfuzz::As<TCDescTransportProtocol>(desc)) {
        TakeText(d->URLBase());
        for (unsigned i = 0; i <= d->NumOfURLExtension(); ++i)
            TakeText(d->URLExtension(i));
        TakeApp(d->ComponentTag() + d->OriginalNetworkId() + d->ServiceId());
    }
    if (auto* d = zumfuzz::As<TCDescExternalApplicationAuthrisation>(desc))
        for (unsigned i = 0; i <= d->NumOfExtAppAuth(); ++i)
            if (const TCExtAppAuth* e = d->ExtAppAuth(i))
                TakeApp(e->OrganisationId() + e->ApplicationId() + e->ApplicationPriority());
    if (auto* d = zumfuzz::As<TCDescApplicationIcons>(desc)) {
        TakeBytes(d->IconLocator(), d->IconLocatorLength());
        TakeText(d->IconLocatorText());
    }
    if (auto* d = zumfuzz::As<TCDescPrefetch>(desc))
        for (unsigned i = 0; i <= d->NumOfPrefetchLabelChar(); ++i)
            if (const TCPrefetchLabelChar* l = d->PrefetchLabelChar(i))
                TakeBytes(l->Label(), l->LabelLength());
    if (auto* d = zumfuzz::As<TCDescDIILocation>(desc))
        for (unsigned i = 0; i <= d->NumOfDIISubField(); ++i)
            if (const TCDIISubField* f = d->DIISubField(i))
                TakeApp(f->DIIIdentification() + f->AssociationTag());
    if (auto* d = zumfuzz::As<TCDescApplicationSimpleLocation>(desc))
        TakeText(d->InitialPath());
    if (auto* d = zumfuzz::As<TCDescApplicationBoundary>(desc))
        for (unsigned i = 0; i <= d->NumOfBoundaryExtension(); ++i)
            TakeText(d->BoundaryExtension(i));
    if (auto* d = zumfuzz::As<TCDescApplicationSignalling>(desc)) {
        char version = 0;
        for (unsigned i = 0; i <= d->NumOfAppType(); ++i)
            TakeApp(d->AppType(i) + static_cast<unsigned>(d->AITVersion(i)) + d->IsAppTypePresent(d->AppType(i), &version));
    }
}

} // namespace fuzzfields

#endif
