// The three table data block parsers over arbitrary blocks, each block in a
// heap buffer of exactly its size; byte 0 picks the parser.

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>

#include "lang/CommonTableDataParser.h"
#include "lang/FrequencyInformationParser.h"
#include "lang/KeywordTableDataParser.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 1)
        return 0;
    const size_t blockSize = size - 1;
    std::unique_ptr<unsigned char[]> block(new unsigned char[blockSize > 0 ? blockSize : 1]);
    if (blockSize > 0)
        std::memcpy(block.get(), data + 1, blockSize);
    const unsigned int length = static_cast<unsigned int>(blockSize);
    switch (data[0] % 3) {
    case 0: {
        TCKeywordTableDataParser keywords;
        keywords.Parse(block.get(), length);
        break;
    }
    case 1: {
        TCCommonTableDataParser common;
        common.Parse(block.get(), length);
        // A second block empties the first.
        common.Parse(block.get(), length / 2);
        break;
    }
    default: {
        TCFrequencyInformationParser frequency;
        frequency.Parse(block.get(), length);
        const unsigned char* trailing = frequency.TrailingBytes();
        volatile unsigned char last = trailing ? trailing[frequency.TrailingLength() - 1] : 0;
        (void)last;
        break;
    }
    }
    return 0;
}
