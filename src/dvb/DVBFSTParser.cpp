#include "DVBFSTParser.h"

#include <algorithm>

#include "../core/ByteReader.h"
#include "../core/Descriptor.h"

namespace {

constexpr unsigned char kTableIdFSTLoops = 0xBD;
constexpr int kRecordHeadSize = 18;
constexpr int kCrcSize = 4;

} // namespace

// ---------------------------------------------------------------- service

TCDVBFSTItemService::TCDVBFSTItemService(const ZUMHandle& handle) : m_handle(handle) {}

int TCDVBFSTItemService::Parse(const unsigned char* data, int remaining)
{
    TCDescriptor loop(m_handle);
    return Parse(data, remaining, loop);
}

int TCDVBFSTItemService::Parse(const unsigned char* data, int remaining, TCDescriptor& loop)
{
    DeleteAll();
    TCByteReader in(data, remaining);
    m_originalNetworkId = static_cast<unsigned short>(in.U16());
    m_transportStreamId = static_cast<unsigned short>(in.U16());
    m_serviceId = static_cast<unsigned short>(in.U16());
    m_videoPid = static_cast<unsigned short>(in.U16());
    m_audioPid = static_cast<unsigned short>(in.U16());
    m_videoEcmPid = static_cast<unsigned short>(in.U16());
    m_audioEcmPid = static_cast<unsigned short>(in.U16());
    m_pcrPid = static_cast<unsigned short>(in.U16());
    m_descriptorsLength = static_cast<unsigned short>(in.U16() & 0x0FFF);
    // A loop that claims more than the section holds is read to its end.
    loop.Parse(in.Here(), std::min<int>(m_descriptorsLength, in.Left()), m_descriptors, kTableIdFSTLoops);
    return kRecordHeadSize + m_descriptorsLength;
}

// ---------------------------------------------------------------- instance

TCDVBFSTInstance::TCDVBFSTInstance(const ZUMHandle& handle) : m_handle(handle) {}

TCDVBFSTInstance::~TCDVBFSTInstance()
{
    TCDVBFSTInstance::DeleteAll();
}

void TCDVBFSTInstance::DeleteAll()
{
    m_services.clear();
}

bool TCDVBFSTInstance::Parse(const unsigned char* body, int length, unsigned short id, char version, int section,
                             int last, unsigned int crc, bool currentNext)
{
    m_id = id;
    m_version = static_cast<unsigned char>(version);
    m_sectionNumber = static_cast<unsigned char>(section);
    m_lastSectionNumber = static_cast<unsigned char>(last);
    m_currentNext = currentNext;
    const int result = t_CheckVersion(version, section, last, crc);
    if (result != TABLE_FIRST && result != TABLE_ADD && result != TABLE_CHANGED)
        return false;
    const int end = length - kCrcSize;
    if (length < 5)
        return IsValid();
    // One walker, and so one factory, serves all records of the section.
    TCDescriptor loop(m_handle);
    m_services.reserve(m_services.size() + static_cast<size_t>(CountRecords(body, end, kRecordHeadSize, 16)));
    // A record whose fixed fields do not fit before the CRC_32 is refused.
    for (int offset = 0; offset + kRecordHeadSize <= end;) {
        m_services.push_back(std::make_unique<TCDVBFSTItemService>(m_handle));
        offset += m_services.back()->Parse(body + offset, end - offset, loop);
    }
    return IsValid();
}

TCDVBFSTItemService* TCDVBFSTInstance::DVBFSTItemServiceOfIndex(unsigned int index) const
{
    return index < m_services.size() ? m_services[index].get() : nullptr;
}

// ---------------------------------------------------------------- parser

TCDVBFSTParser::TCDVBFSTParser(int tableId, const ZUMHandle& handle) : TCSectionParser(tableId, handle) {}

TCDVBFSTParser::~TCDVBFSTParser()
{
    Initialize();
}

void TCDVBFSTParser::t_Initialize()
{
    m_instances.clear();
    m_operatorNetworkId = 0xFFFF;
}

bool TCDVBFSTParser::t_Parse(const unsigned char* body, int length)
{
    m_operatorNetworkId = m_tableIdExtension;
    std::unique_ptr<TCDVBFSTInstance>& instance = m_instances[m_tableIdExtension];
    if (!instance)
        instance = std::make_unique<TCDVBFSTInstance>(m_handle);
    return instance->Parse(body, length, m_tableIdExtension, m_versionNumber, m_sectionNumber, m_lastSectionNumber,
                           m_crc, m_currentNextIndicator != 0);
}

TCDVBFSTInstance* TCDVBFSTParser::DVBFSTInstance(unsigned short id) const
{
    if (id == 0xFFFF)
        return m_instances.empty() ? nullptr : m_instances.begin()->second.get();
    const auto it = m_instances.find(id);
    return it == m_instances.end() ? nullptr : it->second.get();
}

void TCDVBFSTParser::OperatorNetworkIds(std::list<unsigned short>& ids) const
{
    for (const auto& entry : m_instances)
        ids.push_back(entry.first);
}
