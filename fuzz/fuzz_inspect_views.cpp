// The inspector from input to text over arbitrary bytes: demultiplexer,
// router, parsers, model with its names, the filters and views, and both
// renderings, for each receiver of FuzzReceivers.h. The model and views cost
// several times the parsing; fuzz_receiver runs the parsing path alone.

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

#include "FuzzReceivers.h"
#include "inspect/Renderers.h"
#include "inspect/Session.h"
#include "inspect/Views.h"

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    zumfuzz::PlainSchedule(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 2)
        return 0;
    const zuminspect::InspectSettings settings = zumfuzz::ReceiverFor(data[0]);
    const uint8_t selector = data[1];
    data += 2;
    size -= 2;

    zuminspect::Session session(zuminspect::DetectInputKind(data, size), settings);
    session.Feed(data, size);
    session.Finish();
    const zuminspect::Json whole = session.Model();

    zuminspect::ModelFilter filter;
    if (selector & 1)
        filter.pid = 0x0010 + (selector >> 5);
    if (selector & 2)
        filter.table = (selector & 8) ? "EIT" : "0x42";
    if (selector & 4)
        filter.serviceIds = zuminspect::ResolveServices(whole, (selector & 16) ? "a" : "0x0101");
    const zuminspect::Json model = zuminspect::FilterModel(whole, filter);

    std::ostringstream out;
    zuminspect::RenderTree(model, out);
    zuminspect::RenderTree(zuminspect::SummaryOnly(model), out);
    zuminspect::RenderServiceLines(zuminspect::ServiceList(model), out);
    zuminspect::RenderEventLines(zuminspect::EventList(model), out);
    zuminspect::RenderJson(model, out);
    return 0;
}
