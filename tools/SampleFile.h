#ifndef ZUM_TOOLS_SAMPLEFILE_H
#define ZUM_TOOLS_SAMPLEFILE_H

// The main of the sample generators: `zum-gen-xxx OUTPUT` writes the sample
// to OUTPUT, or to standard output for "-".

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

namespace zumtools {

inline int WriteSample(int argc, char** argv, const std::vector<uint8_t>& (*make)())
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s OUTPUT   (\"-\" for standard output)\n", argv[0]);
        return 2;
    }
    const std::vector<uint8_t>& sample = make();
    const std::string path = argv[1];
    FILE* file = path == "-" ? stdout : std::fopen(path.c_str(), "wb");
    if (file == nullptr) {
        std::perror(path.c_str());
        return 1;
    }
    const bool written = std::fwrite(sample.data(), 1, sample.size(), file) == sample.size();
    const bool closed = file == stdout ? std::fflush(file) == 0 : std::fclose(file) == 0;
    if (!written || !closed) {
        std::fprintf(stderr, "%s: write failed\n", path.c_str());
        return 1;
    }
    return 0;
}

} // namespace zumtools

#endif
