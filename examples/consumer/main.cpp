// Decodes one PAT section read from a file and prints its programs, using
// nothing but the installed headers and libraries.

#include <cstdio>
#include <fstream>
#include <iterator>
#include <vector>

#include <zum-parser/psi/PATParser.h>

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s PAT-SECTION-FILE\n", argv[0]);
        return 2;
    }
    std::ifstream in(argv[1], std::ios::binary);
    const std::vector<unsigned char> section((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    // The parser reads section_length + 3 bytes: refuse a file that holds fewer.
    if (section.size() < 3 || section.size() < 3u + (((section[1] & 0x0F) << 8) | section[2])) {
        std::fprintf(stderr, "%s: not a whole section\n", argv[1]);
        return 1;
    }

    TCPATParser pat(ZUMHandle(1, 0, 0));
    pat.Initialize();
    if (!pat.Parse(0x0000, section.data())) {
        std::fprintf(stderr, "%s: not a complete PAT\n", argv[1]);
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
