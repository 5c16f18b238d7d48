#include "DVBNITParser.h"

#include <algorithm>

// ---------------------------------------------------------------- instance

TCDVBNITInstance::TCDVBNITInstance(unsigned char tableId, unsigned short networkId, const ZUMHandle& handle)
    : TCDVBMuxInstance(handle), m_tableId(tableId), m_networkId(networkId)
{
}

bool TCDVBNITInstance::Parse(const unsigned char* body, int length, char version, int section, int last,
                             unsigned int crc, bool /*currentNext*/)
{
    if (!t_ParseSection(body, length, version, section, last, crc, m_tableId))
        return false;
    ++m_completeCount;
    return true;
}

unsigned int TCDVBNITInstance::GetCurrentNITCount(unsigned char* tableId, unsigned int* count) const
{
    if (tableId)
        *tableId = m_tableId;
    if (count)
        *count = m_completeCount;
    return m_completeCount;
}

// ---------------------------------------------------------------- parser

TCDVBNITParser::TCDVBNITParser(int tableId, const ZUMHandle& handle) : TCSectionParser(tableId, handle) {}

TCDVBNITParser::~TCDVBNITParser()
{
    Initialize();
}

void TCDVBNITParser::t_Initialize()
{
    m_instances.clear();
    m_allSubtablesReceived = false;
}

void TCDVBNITParser::m_CheckAllSubtableReceived()
{
    m_allSubtablesReceived = std::all_of(m_instances.begin(), m_instances.end(),
                                         [](const auto& entry) { return entry.second->IsValid(); });
}

bool TCDVBNITParser::t_Parse(const unsigned char* body, int length)
{
    std::unique_ptr<TCDVBNITInstance>& instance = m_instances[m_tableIdExtension];
    if (instance) {
        // Checked before the section is handled, on a repetition of a complete sub-table.
        if (instance->IsValid())
            m_CheckAllSubtableReceived();
    } else {
        instance.reset(new TCDVBNITInstance(m_tableId, m_tableIdExtension, m_handle));
    }
    return instance->Parse(body, length, m_versionNumber, m_sectionNumber, m_lastSectionNumber, m_crc,
                           m_currentNextIndicator != 0);
}

TCDVBNITInstance* TCDVBNITParser::GetFirstInstance() const
{
    return m_instances.empty() ? nullptr : m_instances.begin()->second.get();
}

TCDVBNITInstance* TCDVBNITParser::GetInstance(unsigned short networkId) const
{
    const auto it = m_instances.find(networkId);
    return it == m_instances.end() ? nullptr : it->second.get();
}

TCDVBNITInstance* TCDVBNITParser::m_Select(unsigned short networkId) const
{
    if (m_tableId == 0x40)
        return GetFirstInstance();
    if (m_tableId == 0x41)
        return GetInstance(networkId);
    return nullptr;
}

int TCDVBNITParser::NetworkId() const
{
    return (m_tableId == 0x40 && !m_instances.empty()) ? m_instances.begin()->first : -1;
}

void TCDVBNITParser::NetworkIds(std::list<unsigned short>& ids) const
{
    for (const auto& entry : m_instances)
        ids.push_back(entry.first);
}

bool TCDVBNITParser::IsRecv(unsigned short networkId) const
{
    if (!m_isParsed)
        return false;
    const TCDVBNITInstance* instance = m_Select(networkId);
    return !instance || instance->IsValid();
}

TCDVBItemMux* TCDVBNITParser::DVBItemMux(unsigned short transportStreamId, unsigned short networkId) const
{
    const TCDVBNITInstance* instance = m_Select(networkId);
    return instance ? instance->DVBItemMux(transportStreamId) : nullptr;
}

int TCDVBNITParser::NumOfDVBItemMux(unsigned short networkId) const
{
    const TCDVBNITInstance* instance = m_Select(networkId);
    return instance ? instance->NumOfDVBItemMux() : 0;
}

TCDVBItemMux* TCDVBNITParser::DVBItemMuxOfIndex(int index, unsigned short networkId) const
{
    const TCDVBNITInstance* instance = m_Select(networkId);
    return (instance && index >= 0) ? instance->DVBItemMuxOfIndex(static_cast<unsigned int>(index)) : nullptr;
}

int TCDVBNITParser::DescriptorsLength(unsigned short networkId) const
{
    const TCDVBNITInstance* instance = m_Select(networkId);
    return instance ? instance->NumOfDescriptors() : 0;
}

TCBaseDesc* TCDVBNITParser::Descriptor(int tag, unsigned short networkId) const
{
    const TCDVBNITInstance* instance = m_Select(networkId);
    return instance ? instance->Descriptor(tag, 0) : nullptr;
}

bool TCDVBNITParser::GetDescriptor(std::list<TCBaseDesc*>* list, unsigned short networkId) const
{
    const TCDVBNITInstance* instance = m_Select(networkId);
    return instance ? instance->GetDescriptor(list) : false;
}
