#ifndef ZUM_TOOLS_INSPECT_EITCOLLECTOR_H
#define ZUM_TOOLS_INSPECT_EITCOLLECTOR_H

// The caller's half of DVB event information: every section that the EIT
// parser reports as new is decoded by a TCDVBEITItem of its service and table
// id, and its events are kept, raw descriptor loops included, for as long as
// the item's tracker holds the section.

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <tuple>
#include <utility>
#include <vector>

#include <zum-platform/ZUMHandle.h>

class TCDVBEITItem;

namespace zuminspect {

class EitCollector {
public:
    struct Event {
        uint8_t tableId;
        uint8_t section;
        uint16_t eventId;
        uint32_t startTime; // seconds since 1980-01-06; 0xFFFFFFFF undefined
        uint32_t duration;  // seconds; 0xFFFFFF undefined
        int runningStatus;
        int freeCaMode;
        std::vector<uint8_t> descriptors;
    };
    using ServiceKey = std::tuple<uint16_t, uint16_t, uint16_t>; // original network, transport stream, service

    explicit EitCollector(const ZUMHandle& handle);
    ~EitCollector();

    // A whole EIT section, size section_length + 3, that the parser took as new.
    void Take(const uint8_t* section, size_t size);

    // All items of that table id have all their sections (segments counted).
    bool Complete(uint8_t tableId) const;
    // The events of each service by table id, section and loop order.
    std::map<ServiceKey, std::vector<const Event*>> EventsByService() const;

private:
    struct Table {
        std::unique_ptr<TCDVBEITItem> item;
        std::map<uint8_t, std::vector<Event>> sections;
    };

    ZUMHandle m_handle;
    std::map<std::pair<ServiceKey, uint8_t>, Table> m_tables;
};

} // namespace zuminspect

#endif
