#ifndef ZUM_TESTS_ATSC_ATSCCAPTURE_H
#define ZUM_TESTS_ATSC_ATSCCAPTURE_H

// The sections of one table id in an ATSC capture of sections back to back
// (by default KULX's MGT, TVCT and STT); empty when the captures are not
// beside the project.

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "support/SectionBuilder.h"

namespace atsctest {

inline std::vector<zumtest::Bytes> CaptureSections(unsigned tableId,
                                                  const char* name = "tsduck_tsduck-test__ref_test-040.tstables.bin")
{
    std::ifstream in(std::string(ZUM_CAPTURES_DIR) + "/" + name, std::ios::binary);
    const zumtest::Bytes file((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    std::vector<zumtest::Bytes> sections;
    for (size_t at = 0; at + 3 <= file.size();) {
        const size_t size = 3 + (((file[at + 1] & 0x0F) << 8) | file[at + 2]);
        if (file[at] == tableId && at + size <= file.size())
            sections.emplace_back(file.begin() + static_cast<long>(at), file.begin() + static_cast<long>(at + size));
        at += size;
    }
    return sections;
}

} // namespace atsctest

#endif
