// PMT parser over arbitrary sections on two PIDs, with and without a
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
    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
    return 0;
}
