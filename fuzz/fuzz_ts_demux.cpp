// The inspector's demultiplexer over arbitrary bytes, fed in chunks of sizes
// drawn from the input itself, as a transport stream and as a section file.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "FuzzSection.h"
#include "inspect/TsDemux.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 2)
        return 0;
    const zuminspect::InputKind kind =
        (data[0] & 1) ? zuminspect::InputKind::Sections : zuminspect::DetectInputKind(data + 2, size - 2);
    uint32_t seed = data[1] | 0x100u;
    data += 2;
    size -= 2;

    zuminspect::TsDemux demux(
        [](uint16_t, const uint8_t* section, size_t sectionSize) {
            if (sectionSize < 3 || sectionSize != static_cast<size_t>(((section[1] & 0x0F) << 8) | section[2]) + 3)
                std::abort();
            volatile uint8_t last = section[sectionSize - 1];
            (void)last;
        },
        kind);
    demux.SetPidFilter([](uint16_t pid) { return pid != 0x0021; });
    size_t pos = 0;
    while (pos < size) {
        seed = seed * 1103515245u + 12345u;
        size_t chunk = 1 + (seed >> 16) % 400;
        if (chunk > size - pos)
            chunk = size - pos;
        // An exact heap copy, so that a read past the chunk is caught.
        std::unique_ptr<uint8_t[]> copy(new uint8_t[chunk]);
        std::memcpy(copy.get(), data + pos, chunk);
        demux.Feed(copy.get(), chunk);
        pos += chunk;
    }
    demux.Finish();
    return 0;
}
