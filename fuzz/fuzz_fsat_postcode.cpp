// Freesat's postcode tables 0xD2 over arbitrary sections, several in a row so
// that both subtables collect across sections and versions.

#include <cstddef>
#include <cstdint>

#include "FuzzSection.h"
#include "dvb/DVBFSatPostCodeParser.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    TCDVBFSatPostCodeParser postcodes{ZUMHandle()};
    postcodes.Initialize();
    zumfuzz::ForEachSection(data, size, 0xD2, [&](const zumfuzz::ExactSection& section) {
        postcodes.Parse(0x20, section.data());
        const auto tree = postcodes.GetPostCodeTreeTable();
        const auto keys = postcodes.GetPostCodeRegionKeyTable();
        volatile size_t sum = (tree ? tree->size() : 0) + (keys ? keys->size() : 0) + postcodes.IsValid();
        (void)sum;
    });
    return 0;
}
