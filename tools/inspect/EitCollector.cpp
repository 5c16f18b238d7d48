#include "inspect/EitCollector.h"

#include "dvb/DVBEITParser.h"

namespace zuminspect {

namespace {

// Header up to last_table_id, and the CRC_32.
constexpr size_t kMinSectionSize = 14 + 4;

uint16_t U16(const uint8_t* p)
{
    return static_cast<uint16_t>((p[0] << 8) | p[1]);
}

} // namespace

EitCollector::EitCollector(const ZUMHandle& handle) : m_handle(handle) {}

EitCollector::~EitCollector() = default;

void EitCollector::Take(const uint8_t* section, size_t size)
{
    if (section == nullptr || size < kMinSectionSize)
        return;
    const uint8_t tableId = section[0];
    const uint16_t serviceId = U16(section + 3);
    const int version = (section[5] >> 1) & 0x1F;
    const uint8_t sectionNumber = section[6];
    const uint16_t transportStreamId = U16(section + 8);
    const uint16_t originalNetworkId = U16(section + 10);

    Table& table = m_tables[{ServiceKey(originalNetworkId, transportStreamId, serviceId), tableId}];
    if (!table.item)
        table.item = std::make_unique<TCDVBEITItem>(originalNetworkId, transportStreamId, serviceId, m_handle);
    if (!table.item->Parse(section, static_cast<int>(size), version, sectionNumber, section[7], tableId))
        return;

    std::vector<Event>& events = table.sections[sectionNumber];
    events.clear();
    for (int i = 0; i < table.item->NumOfDVBEITItemEvent(); ++i) {
        const TCDVBEITItemEvent* e = table.item->DVBEITItemEvent(static_cast<unsigned int>(i));
        const uint8_t* loop = e->Descriptors();
        events.push_back({tableId, sectionNumber, e->EventId(), e->StartTime(), e->Duration(), e->RunningStatus(),
                          e->FreeCaMode(),
                          loop ? std::vector<uint8_t>(loop, loop + e->DescriptorsLength()) : std::vector<uint8_t>()});
    }
    // A new version or fingerprint made the tracker forget the other sections: so do we.
    for (auto it = table.sections.begin(); it != table.sections.end();)
        it = table.item->IsRecvSection(it->first) ? std::next(it) : table.sections.erase(it);
}

bool EitCollector::Complete(uint8_t tableId) const
{
    bool any = false;
    for (const auto& entry : m_tables) {
        if (entry.first.second != tableId)
            continue;
        any = true;
        if (!entry.second.item->IsComplete())
            return false;
    }
    return any;
}

std::map<EitCollector::ServiceKey, std::vector<const EitCollector::Event*>> EitCollector::EventsByService() const
{
    std::map<ServiceKey, std::vector<const Event*>> out;
    for (const auto& entry : m_tables) {
        if (entry.second.sections.empty())
            continue;
        std::vector<const Event*>& events = out[entry.first.first];
        for (const auto& section : entry.second.sections)
            for (const Event& e : section.second)
                events.push_back(&e);
    }
    return out;
}

} // namespace zuminspect
