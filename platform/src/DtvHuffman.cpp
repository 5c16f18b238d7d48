#include "zum-platform/DtvHuffman.h"

#include <algorithm>
#include <cstring>

namespace {
constexpr unsigned int kNoCompression = 0;
}

bool TCDtvHuffman::DecompressString(unsigned int compressionType, const unsigned char* data, unsigned char length,
                                    unsigned char* target, unsigned int* targetLength)
{
    if (targetLength == nullptr)
        return false;
    const unsigned int capacity = *targetLength;
    *targetLength = 0;
    if (compressionType != kNoCompression || data == nullptr || target == nullptr)
        return false;
    const unsigned int copied = std::min<unsigned int>(length, capacity);
    std::memcpy(target, data, copied);
    *targetLength = copied;
    return copied == length;
}
