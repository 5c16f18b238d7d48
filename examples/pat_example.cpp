// Decodes the PAT sections of a file of concatenated raw sections and prints
// the programs: the smallest complete use of the library.

#include <cstdio>
#include <fstream>
#include <iterator>
#include <vector>

#include <zum-platform/PlatformConfig.h>

#include "psi/PATParser.h"

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s SECTIONS-FILE\n", argv[0]);
        return 2;
    }
    std::ifstream in(argv[1], std::ios::binary);
    if (!in) {
        std::fprintf(stderr, "cannot open %s\n", argv[1]);
        return 1;
    }
    const std::vector<unsigned char> bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());

    TCPATParser pat(ZUMHandle(1, 0, 0));
    pat.Initialize();
    size_t offset = 0;
    // Each section is section_length + 3 bytes; a cut one at the end is left alone.
    while (offset + 3 <= bytes.size()) {
        const size_t size = 3 + (((bytes[offset + 1] & 0x0F) << 8) | bytes[offset + 2]);
        if (offset + size > bytes.size())
            break;
        if (bytes[offset] == 0x00)
            pat.Parse(0, bytes.data() + offset);
        offset += size;
    }

    if (!pat.IsRecv()) {
        std::printf("PAT incomplete\n");
        return 1;
    }
    std::printf("PAT transport_stream_id %d\n", pat.TransportStreamId());
    if (pat.ZeroProgramPid() >= 0)
        std::printf("  network PID 0x%04x\n", pat.ZeroProgramPid());
    for (int i = 0; i < pat.NumOfProgramList(); ++i) {
        const int number = pat.ProgramNumber(static_cast<unsigned int>(i));
        std::printf("  program %5d  PMT PID 0x%04x\n", number, pat.ProgramPID(static_cast<unsigned short>(number)));
    }
    return 0;
}
