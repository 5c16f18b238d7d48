// The out-of-band tables of the cable control channel over arbitrary
// sections: NIT, NTT, short-form VCT (with a defined channels map fed by
// hand), AEIT and AETT, with their accessors read after every section.

#include <cstddef>
#include <cstdint>
#include <list>

#include <zum-platform/PlatformConfig.h>

#include "FuzzSection.h"
#include "atsc/AEITParser.h"
#include "atsc/AETTParser.h"
#include "atsc/MultipleStringStruct.h"
#include "atsc/NITParser.h"
#include "atsc/NTTParser.h"
#include "atsc/SVCTParser.h"

namespace {

volatile unsigned g_sink;

void Read(const TCNITParser& nit)
{
    for (int r = 0; r < 256; ++r) {
        float f = 0;
        unsigned char m = 0;
        g_sink = g_sink + nit.CDSRefence(static_cast<unsigned char>(r), &f) + nit.MMSRefence(static_cast<unsigned char>(r), &m);
    }
}

void Read(const TCNTTParser& ntt)
{
    for (unsigned i = 0; i <= ntt.SNS()->Size(); ++i)
        if (const TCNTTRecord* r = ntt.SNS()->GetNttRecord(i)) {
            TCMultilingualTextString name;
            r->GetSourceName(&name);
            g_sink = g_sink + name.NumOfMultilingualText() + static_cast<unsigned>(r->NumOfDescriptors());
        }
}

void Read(const TCSVCTParser& svct)
{
    if (const TCSVCTParserVCM* vcm = svct.VCM())
        for (int i = 0; i <= vcm->VCSize(); ++i)
            if (const TCSVCTParserVC* vc = vcm->VC(static_cast<unsigned>(i)))
                g_sink = g_sink + vc->SourceId() + static_cast<unsigned>(vc->NumOfDescriptors());
    if (const TCSVCTParserICM* icm = svct.ICM())
        for (int i = 0; i <= icm->RecordSize(); ++i)
            if (const auto* r = icm->Record(static_cast<unsigned>(i)))
                g_sink = g_sink + r->sourceId;
}

void Read(const TCAEITParser& aeit)
{
    const TCAEITParserTag* tag = aeit.AEITParserTag(aeit.LastTag());
    for (int s = 0; tag && s < 256; ++s)
        if (const TCAEITSourceMap* sources = tag->AEITParserSourceList(s))
            for (const auto& source : *sources)
                for (int e = 0; e <= source.second->SizeOfAEITParserEvent(); ++e)
                    if (const TCAEITParserEvent* ev = source.second->AEITParserEvent(static_cast<unsigned>(e))) {
                        unsigned char text[300];
                        int length = 1 + ev->EventId() % 300;
                        ev->TitleText(text, &length);
                        TCMultipleStringStruct mss;
                        if (ev->Title())
                            mss.Set(ev->Title(), ev->TitleLength());
                    }
}

void Read(const TCAETTParser& aett)
{
    const TCAETTItem* item = aett.AETTItem(aett.LastTag());
    for (int s = 0; item && s < 256; ++s)
        if (const TCAETTBlockMap* blocks = item->AETTParserSourceList(s))
            for (const auto& b : *blocks) {
                unsigned char text[4096];
                unsigned short length = static_cast<unsigned short>(1 + b.second->ETMId() % 4096);
                b.second->ETTExtendTextMsg(text, &length);
            }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 2)
        return 0;
    zum_platform::BinderSettings settings;
    settings.countryCode = ZumPackCode((data[0] & 1) ? "USA" : "KOR");
    settings.preferredLanguage = ZumPackCode("eng");
    zum_platform::SetBinder(settings);

    TCNITParser nit(ZUMHandle{});
    TCNTTParser ntt(ZUMHandle{});
    TCSVCTParser svct(ZUMHandle{});
    TCAEITParser aeit(ZUMHandle{});
    TCAETTParser aett(ZUMHandle{});
    TCSVCTParserDCM dcm;
    int dcmStatus = 0;
    const int tables[] = {0xC2, 0xC3, 0xC4, 0xD6, 0xD7};
    const int table = (data[1] & 0x80) ? -1 : tables[data[1] % 5];

    zumfuzz::ForEachSection(data + 2, size - 2, table, [&](const zumfuzz::ExactSection& section) {
        switch (section.data()[0]) {
        case 0xC2: nit.Parse(0x1FFC, section.data()); Read(nit); break;
        case 0xC3: ntt.Parse(0x1FFC, section.data()); Read(ntt); break;
        case 0xC4:
            svct.Parse(0x1FFC, section.data());
            Read(svct);
            if (section.size > 3) {
                dcm.Parse(section.data() + 3, &dcmStatus, static_cast<int>(section.size - 3));
                std::list<int*> channels;
                if (dcm.GetDCMChannelList(&channels))
                    for (int* c : channels)
                        delete c;
            }
            break;
        case 0xD6: aeit.Parse(0x1FFC, section.data()); Read(aeit); break;
        case 0xD7: aett.Parse(0x1FFC, section.data()); Read(aett); break;
        default: break;
        }
    });
    return 0;
}
