#ifndef ZUM_TESTS_SUPPORT_TKGSSTREAM_H
#define ZUM_TESTS_SUPPORT_TKGSSTREAM_H

// Builds the TKGS stream (table 0xA7) from readable fields and cuts it into
// sections: shared by the tests, the fuzz seeds and the sample generator.

#include <string>
#include <utility>
#include <vector>

#include "support/SectionBuilder.h"

namespace zumtest {

// A language (three letters) and its text bytes.
using TkgsText = std::pair<std::string, std::string>;

struct TkgsTransport {
    Bytes delivery;                              // delivery descriptors
    std::vector<Bytes> sdts;                     // whole SDT sections
    std::vector<std::pair<unsigned, Bytes>> pmts; // tkgsServiceId, whole PMT section
};

struct TkgsServiceList {
    std::vector<TkgsText> names;
    std::vector<std::pair<unsigned, unsigned>> numbers; // channel number, tkgsServiceId
};

struct TkgsStream {
    int interfaceVersion = 17;       // below 0: no interface version descriptor
    std::vector<TkgsText> infoTexts; // one 0x90 descriptor
    unsigned sourceTag = 0xA0;
    Bytes sourceData;
    std::vector<TkgsTransport> transports;
    std::vector<TkgsServiceList> lists;
    Bytes categories;   // the category descriptor loop
    int trailer = 2;    // bytes behind the category block
};

Bytes TkgsStreamBytes(const TkgsStream& stream);
// The stream cut into sections of at most `chunk` stream bytes each.
std::vector<Bytes> TkgsSections(const Bytes& stream, unsigned version, size_t chunk);

} // namespace zumtest

#endif
