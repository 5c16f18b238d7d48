#include "DVBBATParser.h"

#include <algorithm>

namespace {

constexpr unsigned char kTableIdBAT = 0x4A;

} // namespace

TCDVBBATInstance::TCDVBBATInstance(unsigned short bouquetId, const ZUMHandle& handle)
    : TCDVBMuxInstance(handle), m_bouquetId(bouquetId)
{
}

bool TCDVBBATInstance::Parse(const unsigned char* body, int length, char version, int section, int last,
                             unsigned int crc, bool /*currentNext*/)
{
    return t_ParseSection(body, length, version, section, last, crc, kTableIdBAT);
}

TCDVBBATParser::TCDVBBATParser(const ZUMHandle& handle) : TCSectionParser(kTableIdBAT, handle) {}

TCDVBBATParser::~TCDVBBATParser()
{
    Initialize();
}

void TCDVBBATParser::t_Initialize()
{
    m_instances.clear();
    m_allSubtablesReceived = false;
}

void TCDVBBATParser::m_CheckAllSubtableReceived()
{
    m_allSubtablesReceived = std::all_of(m_instances.begin(), m_instances.end(),
                                         [](const auto& entry) { return entry.second->IsValid(); });
}

bool TCDVBBATParser::t_Parse(const unsigned char* body, int length)
{
    std::unique_ptr<TCDVBBATInstance>& instance = m_instances[m_tableIdExtension];
    if (instance) {
        // Checked before the section is handled, on a repetition of a complete bouquet.
        if (instance->IsValid())
            m_CheckAllSubtableReceived();
    } else {
        instance = std::make_unique<TCDVBBATInstance>(m_tableIdExtension, m_handle);
    }
    return instance->Parse(body, length, m_versionNumber, m_sectionNumber, m_lastSectionNumber, m_crc,
                           m_currentNextIndicator != 0);
}

void TCDVBBATParser::BouquetIds(std::list<unsigned short>& ids) const
{
    for (const auto& entry : m_instances)
        ids.push_back(entry.first);
}

TCDVBBATInstance* TCDVBBATParser::GetInstance(unsigned short bouquetId) const
{
    const auto it = m_instances.find(bouquetId);
    return it == m_instances.end() ? nullptr : it->second.get();
}

bool TCDVBBATParser::IsRecv(unsigned short bouquetId) const
{
    if (!m_isParsed)
        return false;
    const TCDVBBATInstance* instance = GetInstance(bouquetId);
    return !instance || instance->IsValid();
}
