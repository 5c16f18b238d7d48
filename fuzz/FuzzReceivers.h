#ifndef ZUM_FUZZ_FUZZRECEIVERS_H
#define ZUM_FUZZ_FUZZRECEIVERS_H

// The receivers a country and operator make, for the targets that take a
// whole stream: DVB, ATSC, ISDB in Japan and Brazil, TKGS in Turkey, Korea,
// Freesat and Astra. One input byte picks one and sets the binder for it.

#include <cstdint>
#include <vector>

#include <zum-platform/PlatformConfig.h>

#include "inspect/Session.h"

namespace zumfuzz {

// Bits 0, 1 and 3 pick the receiver, bit 2 collects every PID.
inline zuminspect::InspectSettings ReceiverFor(uint8_t selector)
{
    struct Receiver {
        const char* country;
        unsigned int privateDataSpecifier;
    };
    static const Receiver kReceivers[] = {{"GBR", 0}, {"USA", 0}, {"JPN", 0}, {"BRA", 0},
                                          {"TUR", 0}, {"KOR", 0}, {"GBR", 0x46534154}, {"DEU", 1}};
    const Receiver& receiver = kReceivers[(selector & 3) | ((selector & 8) >> 1)];
    zuminspect::InspectSettings settings;
    settings.country = receiver.country;
    settings.privateDataSpecifier = receiver.privateDataSpecifier;
    settings.allPids = (selector & 4) != 0;
    zum_platform::SetBinder(zuminspect::BinderSettingsFor(settings));
    return settings;
}

// A stream reaches tens of thousands of coverage features, where libFuzzer's
// entropic schedule took nine tenths of each run. Put first, so that the same
// flag on the command line still wins. For LLVMFuzzerInitialize.
inline void PlainSchedule(int* argc, char*** argv)
{
    static std::vector<char*> args;
    static char flag[] = "-entropic=0";
    args.assign(*argv, *argv + *argc);
    args.insert(args.begin() + 1, flag);
    args.push_back(nullptr);
    *argv = args.data();
    *argc += 1;
}

} // namespace zumfuzz

#endif
