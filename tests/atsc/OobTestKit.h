#ifndef ZUM_TESTS_ATSC_OOBTESTKIT_H
#define ZUM_TESTS_ATSC_OOBTESTKIT_H

// Out-of-band sections: the short header, the body, and a fingerprint in the
// last four bytes where the CRC_32 stands on air.

#include "support/Crc32.h"
#include "support/SectionBuilder.h"

namespace zumtest {

inline Bytes OobSection(unsigned tableId, const Bytes& body)
{
    SectionHeader header;
    header.tableId = tableId;
    header.syntax = false;
    SectionBuilder b(header);
    b.Raw(body).U32(Crc32Mpeg(body.data(), body.size()));
    return b.Build();
}

} // namespace zumtest

#endif
