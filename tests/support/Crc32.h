#ifndef ZUM_TESTS_SUPPORT_CRC32_H
#define ZUM_TESTS_SUPPORT_CRC32_H

#include <cstddef>
#include <cstdint>

namespace zumtest {
// CRC-32/MPEG-2 as carried at the end of a PSI/SI section: over a whole
// section including its CRC_32 it gives 0.
uint32_t Crc32Mpeg(const uint8_t* data, size_t size);
} // namespace zumtest

#endif
