#ifndef ZUM_TOOLS_INSPECT_TABLEIDS_H
#define ZUM_TOOLS_INSPECT_TABLEIDS_H

// What the inspector knows about table ids beyond the parsers: which table id
// the descriptor factories serve for an event loop, which broadcast system a
// country picks, and the shape of a compressed EIT section, which decides a
// table id that several tables share when a file of sections gives no PID.

#include <cstddef>
#include <cstdint>

#include <zum-platform/Codes.h>

namespace zuminspect {

// The factories know the first table id of each EIT schedule family: 0x50 for
// 0x50..0x5F, 0x60 for 0x60..0x6F, and so 0x80 and 0x90 for the compressed
// ones. Every other table id is served as it is.
uint8_t EventLoopTableId(uint8_t tableId);

enum class BroadcastSystem { Dvb, Isdb, Atsc };
// The system that the receiver's country (and operator) picks, as the descriptor loop does.
BroadcastSystem SystemOf(ECountryCode country, unsigned int operatorId);

// Table ids 0x80..0x9F: compressed EIT, and also other tables (0x85 channel
// numbers, 0x91 Astra SGT, ISDB ECM and EMM ...).
bool IsCompressedEitRange(uint8_t tableId);
// A whole section of `size` bytes that reads as a compressed EIT: long form,
// section within last section, segment end within its segment, and a zlib
// stream header where the event loop starts.
bool HasCompressedEitShape(const uint8_t* section, size_t size);

} // namespace zuminspect

#endif
