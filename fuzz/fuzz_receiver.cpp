// The path a receiver takes, over arbitrary bytes: demultiplexer, router and
// every parser, for each receiver of FuzzReceivers.h. So tables meet as in a
// receiver: the PAT names the PMTs, the MGT the PSIP PIDs, a PMT the TKGS,
// AIT and private-section streams. No model is built, so a run costs what
// the parsing costs.

#include <cstddef>
#include <cstdint>

#include "FuzzReceivers.h"
#include "inspect/Session.h"

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    zumfuzz::PlainSchedule(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 1)
        return 0;
    const zuminspect::InspectSettings settings = zumfuzz::ReceiverFor(data[0]);
    zuminspect::Session session(zuminspect::DetectInputKind(data + 1, size - 1), settings);
    session.Feed(data + 1, size - 1);
    session.Finish();
    return 0;
}
