// PMT parser over arbitrary sections on a few PIDs, with and without a
// program filter, for DVB, ISDB and ATSC countries.

#include <cstddef>
#include <cstdint>
#include <map>

#include <zum-platform/PlatformConfig.h>

#include "FuzzSection.h"
#include "psi/PMTParser.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 1)
        return 0;
    static const char* const kCountries[] = {"GBR", "BRA", "JPN", "USA", "KOR"};
    zum_platform::BinderSettings settings;
    settings.countryCode = ZumPackCode(kCountries[data[0] % 5]);
    zum_platform::SetBinder(settings);

    TCPMTParser pmt{ZUMHandle()};
    pmt.Initialize();
    if (data[0] & 0x80) {
        std::map<int, int> filter{{TCPMTParser::PMTKey(0x100, 1), 0}};
        pmt.UpdatePMTElements(filter);
    }
    size_t offset = 1;
    while (offset < size) {
        zumfuzz::ExactSection section;
        if (!zumfuzz::MakeExactSection(data + offset, size - offset, section, 0x02))
            break;
        pmt.Parse(static_cast<short>(0x100 + (offset & 1)), section.data());
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
        offset += section.size;
    }
    return 0;
}
