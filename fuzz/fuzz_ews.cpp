// The emergency warning table 0x80 over arbitrary sections (first byte even),
// or a run of emergency information descriptors (first byte odd), each in an
// exactly-sized buffer; every accessor is read after each piece.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <zum-platform/PlatformConfig.h>

#include "FuzzSection.h"
#include "isdb/DescEmergencyInformation.h"
#include "isdb/EWSParser.h"

namespace {

void ReadAll(const TCEWSParser& ews)
{
    std::vector<TCEWSRegion::TSLocationCode*> list;
    ews.Locations(list);
    for (TCEWSRegion::TSLocationCode* location : list)
        delete location;
    std::map<unsigned int, TCEWSRegion::TSLocationCode> byCode;
    ews.Locations(byCode);

    std::map<unsigned short, TCEWSCode::TSDisasterCode*> disasters;
    ews.Disasters(disasters);
    TCEWSCode::TSDisasterCode one;
    for (const auto& entry : disasters) {
        ews.Disaster(entry.first, one);
        delete entry.second;
    }
    ews.Disaster(ews.DisasterCode(), one);

    std::vector<std::string> texts;
    ews.InformationMessages(texts);
    std::multimap<unsigned short, std::string> byKey;
    ews.InformationMessages(byKey);
    volatile unsigned int sink = ews.IsValidTRDW() + ews.IsValidTCDW() + ews.IsValidTMDW() + ews.TRDWCrc() +
                                 ews.TCDWCrc() + ews.TMDWCrc() + ews.LocationTypeCode() + ews.PackageId();
    (void)sink;
}

void ReadAll(const TCDescEmergencyInformation& d)
{
    for (unsigned long i = 0; i <= d.NumOfDescLoop(); ++i) {
        unsigned short value = 0;
        bool flag = false;
        unsigned char count = 0;
        d.GetServiceID(i, value);
        d.GetStartEndFlag(i, flag);
        d.GetSignalLevel(i, flag);
        d.GetAreaCodeLength(i, count);
        EJapanWideArea wide;
        EJapanPrefecture prefecture;
        for (unsigned long a = 0; a <= count; ++a)
            d.GetAreaCode(i, a, wide, prefecture);
    }
}

void Descriptors(const uint8_t* data, size_t size)
{
    while (size >= 2) {
        const size_t length = 2 + std::min<size_t>(data[1], size - 2);
        std::unique_ptr<uint8_t[]> exact(new uint8_t[length]);
        std::memcpy(exact.get(), data, length);
        exact[0] = 0xFC;
        exact[1] = static_cast<uint8_t>(length - 2);
        TCDescEmergencyInformation d;
        d.Parse(exact.get());
        ReadAll(d);
        std::unique_ptr<TCBaseDesc> clone(d.Fork());
        ReadAll(static_cast<const TCDescEmergencyInformation&>(*clone));
        data += length;
        size -= length;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 1)
        return 0;
    // Every log line is formatted, none printed.
    zum_platform::SetLogSink([](int, const char*, const std::string&) {});
    if (data[0] & 1) {
        Descriptors(data + 1, size - 1);
        return 0;
    }
    TCEWSParser ews;
    ews.Initialize();
    zumfuzz::ForEachSection(data + 1, size - 1, 0x80, [&ews](const zumfuzz::ExactSection& section) {
        ews.Parse(0x0901, section.data());
        ReadAll(ews);
    });
    if (data[0] & 2)
        ews.DeleteAll();
    ReadAll(ews);
    return 0;
}
