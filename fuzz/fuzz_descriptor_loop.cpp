// One descriptor loop in an exactly-sized buffer, walked by TCDescriptor for
// a broadcast system, table scope and binder setting chosen by the first
// three input bytes; every object's fields are read, and the hash is then
// cloned, compared and copied out, the clones read after their source is gone.

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <list>
#include <memory>

#include <zum-platform/PlatformConfig.h>

#include "FuzzSection.h"
#include "core/BaseDesc.h"
#include "core/Descriptor.h"
#include "core/DescriptorDataTranslator.h"
#include "core/DescriptorHash.h"
#include "ReadDescFields.h"

namespace {

const char* const kCountries[] = {"GBR", "DEU", "KOR", "JPN", "USA", "BRA", "cri", "PHL", "TUR", "CHN"};
const unsigned char kTableIds[] = {0x01, 0x02, 0x40, 0x41, 0x42, 0x46, 0x4A, 0x4E, 0x50, 0x70, 0x73, 0x74,
                                   0x76, 0x80, 0x85, 0x91, 0xA7, 0xBD, 0xC3, 0xC4, 0xC7, 0xC8, 0xCA, 0xD5,
                                   0xC9, 0xCB, 0xCD, 0xD8, 0xC2, 0xD6, 0xD7, 0x4B, 0xBC, 0xC5};
const unsigned int kSpecifiers[] = {0,        1,        0x28,      0x40,       0x233A,    0x6001, 0x62E1, 0xBE,
                                    0x2FFFFF, 0x6FFFFF, 0x9FFFFF, 0x11FFFFF, 0x46534154, 0xECCA0001,
                                    0x3FFFFF, 0x4FFFFF, 0x5FFFFF, 0x1FFFFF, 0x55F,      0x6002,
                                    0x41444250, 0x4A4F4A4F};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 3)
        return 0;
    zum_platform::BinderSettings settings;
    settings.countryCode = ZumPackCode(kCountries[data[0] % (sizeof kCountries / sizeof kCountries[0])]);
    settings.country = static_cast<ECountry>(data[0] & 0x1F);
    settings.operatorId = (data[0] & 0x80) ? 113 : ((data[0] & 0x40) ? 86 : ((data[2] & 0x40) ? 70 : 68));
    // AirTel's rows under 0x00006001.
    if (settings.operatorId == 68 && (data[1] & 0x80))
        settings.operatorId = 90;
    settings.privateDataSpecifier = kSpecifiers[data[2] % (sizeof kSpecifiers / sizeof kSpecifiers[0])];
    const bool refuseOdd = data[2] & 0x80;
    settings.acceptSpecifier = [refuseOdd](unsigned int pds) { return !refuseOdd || (pds & 1) == 0; };
    zum_platform::SetBinder(settings);
    const unsigned char tableId = kTableIds[data[1] % sizeof kTableIds];

    const size_t length = size - 3;
    std::unique_ptr<uint8_t[]> loop(new uint8_t[length ? length : 1]);
    std::memcpy(loop.get(), data + 3, length);

    TCDescriptor descriptor{ZUMHandle()};
    TCDescriptorHash hash;
    descriptor.Parse(loop.get(), static_cast<int>(length), hash, tableId);
    descriptor.ParseByCount(loop.get(), 8, hash, tableId, static_cast<int>(length));
    // The objects hold their bytes themselves.
    loop.reset();

    TCDescriptorHash copy;
    copy = hash;
    if (!(copy == hash))
        __builtin_trap();
    for (int i = 0; i < hash.NumOfDescriptors(); ++i)
        fuzzfields::Read(hash.DescriptorByIndex(static_cast<unsigned int>(i)));
    std::list<TCBaseDesc*> clones;
    copy.GetDescriptor(&clones);
    copy.DeleteAll();
    for (TCBaseDesc* clone : clones)
        fuzzfields::Read(clone);
    unsigned char buffer[257];
    for (TCBaseDesc* clone : clones) {
        int capacity = sizeof buffer;
        if (clone->GetDescriptor(buffer, &capacity) && capacity > 2) {
            isdbnetfields::DecodeAsSystemManagement(buffer);
            TCDescriptorDataTranslator bits(buffer + 2, static_cast<unsigned char>(capacity - 2));
            while (!bits.EndOfData()) {
                bits.GetBits(3);
                bits.GetUInt8();
            }
        }
        hash.NumOfDescriptors(clone->Tag());
        delete clone;
    }
    return 0;
}
