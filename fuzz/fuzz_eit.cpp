// EIT parser and item over arbitrary sections, several in a row so that the
// per-service trackers and the item's segments are exercised across inputs.
// Each section is preceded by one byte that picks its table id, so that
// plain (0x4E..0x6F) and zlib-compressed (0x80..0x9F) loops are both reached.

#include <cstddef>
#include <cstdint>

#include "FuzzSection.h"
#include "dvb/DVBEITParser.h"

namespace {

int PickTableId(uint8_t selector)
{
    const int index = selector >> 1;
    return (selector & 1) ? 0x80 + index % 0x20 : 0x4E + index % 0x22;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    TCDVBEITParser parser(0x4E, ZUMHandle());
    parser.Initialize();
    TCDVBEITItem item(0, 0, 0, ZUMHandle());
    size_t offset = 0;
    while (offset + 1 < size) {
        const int tableId = PickTableId(data[offset]);
        ++offset;
        zumfuzz::ExactSection section;
        if (!zumfuzz::MakeExactSection(data + offset, size - offset, section, tableId))
            break;
        const uint8_t* s = section.data();
        const int length = static_cast<int>(section.size);
        parser.Parse(0x12, s);
        // The item takes every section, also those the parser refused: it has its own bounds.
        if (length >= 8)
            item.Parse(s, length, (s[5] >> 1) & 0x1F, s[6], s[7], tableId);
        for (int i = 0; i < item.NumOfDVBEITItemEvent(); ++i) {
            const TCDVBEITItemEvent* e = item.DVBEITItemEvent(static_cast<unsigned>(i));
            unsigned int sum = e->StartTime() + e->Duration();
            for (int b = 0; b < e->DescriptorsLength(); ++b)
                sum += e->Descriptors()[b];
            item.FindDVBEitEvent(static_cast<unsigned short>(sum));
        }
        item.IsValid();
        offset += section.size;
    }
    return 0;
}
