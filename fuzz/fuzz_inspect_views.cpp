// The inspector from input to text over arbitrary bytes: demultiplexer,
// router, parsers, model with its names, the filters and views, and both
// renderings, for each receiver a country and operator make: DVB, ATSC, ISDB
// in Japan and Brazil, TKGS in Turkey, Korea, Freesat and Astra. So tables
// meet as in a receiver: the PAT names the PMTs, the MGT the PSIP PIDs, a PMT
// the TKGS, AIT and private-section streams.

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

#include <zum-platform/PlatformConfig.h>

#include "inspect/Renderers.h"
#include "inspect/Session.h"
#include "inspect/Views.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 2)
        return 0;
    struct Receiver {
        const char* country;
        unsigned int privateDataSpecifier;
    };
    static const Receiver kReceivers[] = {{"GBR", 0}, {"USA", 0}, {"JPN", 0}, {"BRA", 0},
                                          {"TUR", 0}, {"KOR", 0}, {"GBR", 0x46534154}, {"DEU", 1}};
    // Bits 0, 1 and 3 pick the receiver, bit 2 collects every PID.
    const Receiver& receiver = kReceivers[(data[0] & 3) | ((data[0] & 8) >> 1)];
    zuminspect::InspectSettings settings;
    settings.country = receiver.country;
    settings.privateDataSpecifier = receiver.privateDataSpecifier;
    settings.allPids = (data[0] & 4) != 0;
    zum_platform::SetBinder(zuminspect::BinderSettingsFor(settings));
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
