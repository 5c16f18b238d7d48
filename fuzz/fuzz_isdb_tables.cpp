// The ISDB tables NBIT, LDT, PCAT, BIT, SDTT, CDT, ECM, EMM and EMM message:
// the first byte picks the parser (and the broadcast system of the loops),
// the rest is cut into exactly-sized sections; every accessor is read after each.

#include <cstddef>
#include <cstdint>
#include <list>
#include <vector>

#include <zum-platform/PlatformConfig.h>

#include "FuzzSection.h"
#include "core/BaseDesc.h"
#include "isdb/ISDBBITParser.h"
#include "isdb/ISDBCDTParser.h"
#include "isdb/ISDBECMParser.h"
#include "isdb/ISDBEMMMessageParser.h"
#include "isdb/ISDBEMMParser.h"
#include "isdb/ISDBLDTParser.h"
#include "isdb/ISDBNBITParser.h"
#include "isdb/ISDBPCATParser.h"
#include "isdb/SDTTParser.h"

namespace {

volatile unsigned int g_sink;

void Touch(const IDescriptorContainer& c)
{
    std::list<TCBaseDesc*> clones;
    c.GetDescriptor(&clones);
    for (TCBaseDesc* d : clones) {
        g_sink += d->Tag();
        delete d;
    }
    for (int i = 0; i < c.NumOfDescriptors(); ++i)
        g_sink += c.DescriptorByIndex(static_cast<unsigned int>(i))->Tag();
}

void Read(const TCISDBNBITParser& p, unsigned short id)
{
    if (const TCISDBNBITInstance* i = p.NBITInstance(id))
        for (int n = 0; n < i->NumOfInformation(); ++n) {
            const TCISDBNBITInformation* r = i->InformationOfIndex(static_cast<unsigned int>(n));
            g_sink += r->InformationId() + r->KeyIds().size() + r->DescriptorsLength();
            Touch(*r);
        }
}

void Read(const TCISDBLDTParser& p, unsigned short id)
{
    if (const TCISDBLDTInstance* i = p.LDTInstance(id))
        for (int n = 0; n < i->NumOfDescription(); ++n) {
            g_sink += i->DescriptionOfIndex(static_cast<unsigned int>(n))->Size();
            Touch(*i->DescriptionOfIndex(static_cast<unsigned int>(n)));
        }
}

void Read(const TCISDBPCATParser& p, unsigned short id)
{
    if (const TCISDBPCATInstance* i = p.PCATInstance(id))
        for (int n = 0; n < i->NumOfContentVersion(); ++n) {
            const TCISDBPCATContentVersion* r = i->ContentVersionOfIndex(static_cast<unsigned int>(n));
            for (unsigned int t : r->StartTimes())
                g_sink += t;
            for (unsigned int d : r->Durations())
                g_sink += d;
            Touch(*r);
        }
}

void Read(const TCISDBBITParser& p, unsigned short id)
{
    if (const TCISDBBITInstance* i = p.BITInstance(id)) {
        Touch(*i);
        for (int n = 0; n < i->NumOfBroadcaster(); ++n)
            Touch(*i->BroadcasterOfIndex(static_cast<unsigned int>(n)));
    }
}

void Read(const TCSDTTParser& p, unsigned short id)
{
    if (const TCSDTTInstance* i = p.SDTTInstance(id))
        for (int n = 0; n < i->NumOfContent(); ++n) {
            const SDContent* c = i->ContentOfIndex(static_cast<unsigned int>(n));
            for (const SDContent::TTSchedule& s : c->Schedule())
                g_sink += s.startTime + s.duration;
            Touch(*c);
        }
}

void Read(const TCISDBCDTParser& p, unsigned short)
{
    for (int n = 0; n < p.NumOfCDTInstance(); ++n) {
        const TCCDTInstance* i = p.CDTInstanceOfIndex(static_cast<unsigned int>(n));
        Touch(*i);
        std::list<CLogoData*> logos;
        i->GetLogoDataList(logos);
        for (CLogoData* l : logos) {
            for (int b = 0; b < l->DataSize(); ++b)
                g_sink += l->Data()[b];
            delete l;
        }
    }
}

template <class F>
void ReadBytes(F get)
{
    unsigned char out[4096];
    int length = sizeof(out);
    get(length, out);
    for (int b = 0; b < length; ++b)
        g_sink += out[b];
}

void Read(const TCISDBECMParser& p, unsigned short)
{
    ReadBytes([&](int& l, unsigned char* o) { return p.GetPayload(l, o); });
    ReadBytes([&](int& l, unsigned char* o) { return p.GetVariablePart(l, o); });
    ReadBytes([&](int& l, unsigned char* o) { return p.GetScramblingKeyOdd(l, o); });
}

void Read(const TCISDBEMMParser& p, unsigned short)
{
    for (int n = 0; n < p.NumOfPayload(); ++n) {
        const TCISDBEMMPayload* r = p.PayloadOfIndex(static_cast<unsigned int>(n));
        ReadBytes([&](int& l, unsigned char* o) { return r->GetPayload(l, o); });
        ReadBytes([&](int& l, unsigned char* o) { return r->GetVariablePart(l, o); });
    }
}

void Read(const TCISDBEMMMessageParser& p, unsigned short)
{
    for (int n = 0; n < p.NumOfMessage(); ++n) {
        const TCISDBEMMMessagePayload* m = p.MessageOfIndex(static_cast<unsigned int>(n));
        ReadBytes([&](int& l, unsigned char* o) { return m->GetMessageArea(l, o); });
    }
}

template <class P>
void Run(P& parser, int tableId, const uint8_t* data, size_t size)
{
    zumfuzz::ForEachSection(data, size, tableId, [&](const zumfuzz::ExactSection& s) {
        parser.Parse(0x24, s.data());
        const unsigned short id = s.size >= 5 ? static_cast<unsigned short>((s.data()[3] << 8) | s.data()[4]) : 0;
        Read(parser, id);
    });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 1)
        return 0;
    const unsigned selector = data[0];
    // The high bit picks the loops' system: Japan or Brazil.
    zum_platform::Binder().countryCode = ZumPackCode((selector & 0x80) ? "JPN" : "BRA");
    ++data;
    --size;
    const ZUMHandle handle(1, 0, 0);
    switch ((selector & 0x7F) % 9) {
    case 0: { TCISDBNBITParser p((selector & 0x10) ? 0xC5 : 0xC6, handle); Run(p, -1, data, size); break; }
    case 1: { TCISDBLDTParser p(handle); Run(p, 0xC7, data, size); break; }
    case 2: { TCISDBPCATParser p(handle); Run(p, 0xC2, data, size); break; }
    case 3: { TCISDBBITParser p(handle); Run(p, 0xC4, data, size); break; }
    case 4: { TCSDTTParser p(handle); Run(p, 0xC3, data, size); break; }
    case 5: { TCISDBCDTParser p(handle); Run(p, 0xC8, data, size); break; }
    case 6: { TCISDBECMParser p(handle); Run(p, 0x82, data, size); break; }
    case 7: { TCISDBEMMParser p(handle); Run(p, 0x84, data, size); break; }
    default: { TCISDBEMMMessageParser p(handle); Run(p, 0x85, data, size); break; }
    }
    return 0;
}
