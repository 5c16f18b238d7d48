#include "inspect/TableIds.h"

#include "core/BroadcastCountries.h"

namespace zuminspect {

namespace {

// table_id to last_table_id, in front of the event loop.
constexpr size_t kEitHeadBytes = 14;
constexpr size_t kCrcBytes = 4;

} // namespace

uint8_t EventLoopTableId(uint8_t tableId)
{
    if ((tableId >= 0x50 && tableId <= 0x6F) || IsCompressedEitRange(tableId))
        return static_cast<uint8_t>(tableId & 0xF0);
    return tableId;
}

BroadcastSystem SystemOf(ECountryCode country, unsigned int operatorId)
{
    switch (country) {
    case ZumPackCode('K', 'O', 'R'):
    case ZumPackCode('U', 'S', 'A'): return BroadcastSystem::Atsc;
    case ZumPackCode('J', 'P', 'N'): return BroadcastSystem::Isdb;
    case ZumPackCode('P', 'H', 'L'): return operatorId == 113 ? BroadcastSystem::Isdb : BroadcastSystem::Dvb;
    default: return IsISDBCountry(country) ? BroadcastSystem::Isdb : BroadcastSystem::Dvb;
    }
}

bool IsCompressedEitRange(uint8_t tableId)
{
    return tableId >= 0x80 && tableId <= 0x9F;
}

bool HasCompressedEitShape(const uint8_t* s, size_t size)
{
    if (s == nullptr || size < kEitHeadBytes + 2 + kCrcBytes || (s[1] & 0x80) == 0)
        return false;
    const unsigned section = s[6], last = s[7], segmentLast = s[12], segmentBase = section & ~7u;
    if (section > last || segmentLast < segmentBase || segmentLast > segmentBase + 7)
        return false;
    // RFC 1950: deflate with a window of at most 32 KiB, no preset dictionary, check bits.
    const unsigned cmf = s[kEitHeadBytes], flg = s[kEitHeadBytes + 1];
    return (cmf & 0x0F) == 8 && (cmf >> 4) <= 7 && (flg & 0x20) == 0 && ((cmf << 8) | flg) % 31 == 0;
}

} // namespace zuminspect
