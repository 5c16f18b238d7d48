#ifndef ZUM_TESTS_ISDB_ISDBFEED_H
#define ZUM_TESTS_ISDB_ISDBFEED_H

#include <cstring>
#include <memory>

#include "core/SectionParser.h"
#include "support/SectionBuilder.h"

namespace zumtest {

// From a heap block of the section's exact size, so that a read past it shows.
inline bool FeedExact(TCSectionParser& parser, const Bytes& section, short pid = 0x0024)
{
    std::unique_ptr<unsigned char[]> exact(new unsigned char[section.size()]);
    std::memcpy(exact.get(), section.data(), section.size());
    return parser.Parse(pid, exact.get());
}

inline Bytes Section(unsigned tableId, unsigned extension, const Bytes& payload, unsigned version = 0,
                     unsigned section = 0, unsigned last = 0)
{
    SectionBuilder b(LongHeader(tableId, extension, version, section, last));
    b.Raw(payload);
    return b.Build();
}

} // namespace zumtest

#endif
