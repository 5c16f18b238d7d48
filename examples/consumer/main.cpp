// Decodes the PAT and PMT sections of files of concatenated raw sections and
// prints the programs and their streams: the smallest complete use of the
// library, built in the tree and against an installed one alike.

#include <cstdio>
#include <fstream>
#include <iterator>
#include <vector>

#include <zum-parser/psi/PATParser.h>
#include <zum-parser/psi/PMTParser.h>

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::fprintf(stderr, "usage: %s SECTIONS-FILE...\n", argv[0]);
        return 2;
    }
    TCPATParser pat(ZUMHandle(1, 0, 0));
    TCPMTParser pmt(ZUMHandle(1, 0, 0));
    pat.Initialize();
    pmt.Initialize();

    for (int a = 1; a < argc; ++a) {
        std::ifstream in(argv[a], std::ios::binary);
        if (!in) {
            std::fprintf(stderr, "cannot open %s\n", argv[a]);
            return 1;
        }
        const std::vector<unsigned char> bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
        // Each section is section_length + 3 bytes; a cut one at the end is left alone.
        size_t offset = 0;
        while (offset + 3 <= bytes.size()) {
            const size_t size = 3 + (((bytes[offset + 1] & 0x0F) << 8) | bytes[offset + 2]);
            if (offset + size > bytes.size())
                break;
            const unsigned char* section = bytes.data() + offset;
            if (section[0] == 0x00) {
                pat.Parse(0x0000, section);
            } else if (section[0] == 0x02) {
                const int program = (section[3] << 8) | section[4];
                pmt.Parse(static_cast<short>(pat.ProgramPID(static_cast<unsigned short>(program))), section);
            }
            offset += size;
        }
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
        const TCPMTInstance* program = pmt.PMTInstance(static_cast<unsigned short>(number));
        if (!program)
            continue;
        std::printf("    PCR PID 0x%04x, %d program descriptors\n", program->PCRPid(), program->NumOfDescriptors());
        for (int e = 0; e < program->NumOfElementary(); ++e) {
            const TCPMTElementary* stream = program->PMTElementary(static_cast<unsigned int>(e));
            std::printf("    stream type 0x%02x  PID 0x%04x  %d descriptors\n", stream->StreamType(),
                        stream->ElementaryPID(), stream->NumOfDescriptors());
        }
    }
    return 0;
}
