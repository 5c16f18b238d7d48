#include "DVBFNTParser.h"

#include "DescService.h"

namespace {

constexpr int kTagServiceList = 0x41;

bool Holds(const TCDescServiceList* list, unsigned short serviceId)
{
    for (int i = 0; list && i < list->NumberOfLoop(); ++i)
        if (list->ServiceId(i) == serviceId)
            return true;
    return false;
}

} // namespace

TCDVBFNTInstance::TCDVBFNTInstance(unsigned char tableId, unsigned short id, const ZUMHandle& handle)
    : TCDVBMuxInstance(handle, true), m_tableId(tableId), m_id(id)
{
}

bool TCDVBFNTInstance::Parse(const unsigned char* body, int length, char version, int section, int last,
                             unsigned int crc, bool /*currentNext*/)
{
    return t_ParseSection(body, length, version, section, last, crc, m_tableId);
}

TCDVBItemMux* TCDVBFNTInstance::DVBItemMux(unsigned short transportStreamId, unsigned short networkId,
                                           unsigned short serviceId) const
{
    for (int i = 0; i < NumOfDVBItemMux(); ++i) {
        TCDVBItemMux* mux = DVBItemMuxOfIndex(static_cast<unsigned int>(i));
        if (mux->TransportStreamId() != transportStreamId || mux->OriginalNetworkId() != networkId)
            continue;
        // Only the first service list descriptor of the transport counts.
        if (Holds(dynamic_cast<const TCDescServiceList*>(mux->Descriptor(kTagServiceList, 0)), serviceId))
            return mux;
    }
    return nullptr;
}

TCDVBFNTParser::TCDVBFNTParser(int tableId, const ZUMHandle& handle) : TCSectionParser(tableId, handle) {}

TCDVBFNTParser::~TCDVBFNTParser()
{
    Initialize();
}

void TCDVBFNTParser::t_Initialize()
{
    m_instances.clear();
}

bool TCDVBFNTParser::t_Parse(const unsigned char* body, int length)
{
    std::unique_ptr<TCDVBFNTInstance>& instance = m_instances[m_tableIdExtension];
    if (!instance)
        instance = std::make_unique<TCDVBFNTInstance>(m_tableId, m_tableIdExtension, m_handle);
    return instance->Parse(body, length, m_versionNumber, m_sectionNumber, m_lastSectionNumber, m_crc,
                           m_currentNextIndicator != 0);
}

unsigned int TCDVBFNTParser::NetworkId() const
{
    return m_instances.empty() ? 0xFFFFFFFF : m_instances.begin()->first;
}

void TCDVBFNTParser::NetworkIds(std::list<unsigned short>& ids) const
{
    for (const auto& entry : m_instances)
        ids.push_back(entry.first);
}

bool TCDVBFNTParser::IsRecv() const
{
    if (!m_isParsed)
        return false;
    const TCDVBFNTInstance* first = GetFirstInstance();
    return !first || first->IsValid();
}

int TCDVBFNTParser::NumOfDVBItemMux() const
{
    const TCDVBFNTInstance* first = GetFirstInstance();
    return first ? first->NumOfDVBItemMux() : 0;
}

TCDVBItemMux* TCDVBFNTParser::DVBItemMuxOfIndex(int index) const
{
    const TCDVBFNTInstance* first = GetFirstInstance();
    return first && index >= 0 ? first->DVBItemMuxOfIndex(static_cast<unsigned int>(index)) : nullptr;
}

TCDVBFNTInstance* TCDVBFNTParser::GetFirstInstance() const
{
    return m_instances.empty() ? nullptr : m_instances.begin()->second.get();
}

TCDVBFNTInstance* TCDVBFNTParser::GetInstance(unsigned short id) const
{
    const auto it = m_instances.find(id);
    return it == m_instances.end() ? nullptr : it->second.get();
}

int TCDVBFNTParser::DescriptorsLength() const
{
    const TCDVBFNTInstance* first = GetFirstInstance();
    return first ? first->NumOfDescriptors() : 0;
}

TCBaseDesc* TCDVBFNTParser::Descriptor(int tag) const
{
    const TCDVBFNTInstance* first = GetFirstInstance();
    return first ? first->Descriptor(tag, 0) : nullptr;
}

bool TCDVBFNTParser::GetDescriptor(std::list<TCBaseDesc*>* list) const
{
    const TCDVBFNTInstance* first = GetFirstInstance();
    return first ? first->GetDescriptor(list) : false;
}
