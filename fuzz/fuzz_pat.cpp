// PAT parser over arbitrary sections, several in a row so that version and
// section tracking are exercised across inputs.

#include <cstddef>
#include <cstdint>

#include "FuzzSection.h"
#include "psi/PATParser.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    TCPATParser pat{ZUMHandle()};
    pat.Initialize();
    zumfuzz::ForEachSection(data, size, -1, [&pat](const zumfuzz::ExactSection& section) {
        pat.Parse(0, section.data());
        for (int i = 0; i < pat.NumOfProgramList(); ++i)
            pat.ProgramPID(static_cast<unsigned short>(pat.ProgramNumber(static_cast<unsigned>(i))));
        pat.IsRecv();
    });
    return 0;
}
