// A descriptor loop held in an exactly-sized buffer: each descriptor becomes
// an object with a raw copy, goes into a TCDescriptorHash, and is cloned,
// compared and copied out again.

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <list>
#include <memory>

#include "core/BaseDesc.h"
#include "core/DescExtension.h"
#include "core/DescriptorDataTranslator.h"
#include "core/DescriptorHash.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    std::unique_ptr<uint8_t[]> loop(new uint8_t[size ? size : 1]);
    if (size)
        std::memcpy(loop.get(), data, size);

    TCDescriptorHash hash;
    size_t offset = 0;
    // A descriptor is decoded only when its whole body lies inside the loop.
    while (offset + 2 <= size && offset + 2 + loop[offset + 1] <= size) {
        const uint8_t* at = loop.get() + offset;
        TCBaseDesc* desc = at[0] == 0x7F ? TCDescExtension::ProcessExtensionDescriptor(at, 0xFFFFFFFF)
                                         : new TCDescDefault(at[0]);
        offset += static_cast<size_t>(desc->Parse(at));
        hash.Add(desc);
        TCDescriptorDataTranslator bits(at + 2, at[1]);
        while (!bits.EndOfData()) {
            bits.GetBits(3);
            bits.GetUInt8();
        }
    }

    TCDescriptorHash copy;
    copy = hash;
    if (!(copy == hash))
        __builtin_trap();
    std::list<TCBaseDesc*> clones;
    hash.GetDescriptor(&clones);
    unsigned char buffer[257];
    for (TCBaseDesc* clone : clones) {
        int capacity = sizeof buffer;
        clone->GetDescriptor(buffer, &capacity);
        hash.NumOfDescriptors(clone->Tag());
        delete clone;
    }
    return 0;
}
