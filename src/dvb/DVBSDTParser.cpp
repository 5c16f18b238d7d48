#include "DVBSDTParser.h"

#include <algorithm>
#include <climits>
#include <iterator>

#include "../core/ByteReader.h"
#include "../core/Descriptor.h"
#include "../core/SectionItems.h"

namespace {

constexpr unsigned char kSdtLoopTableId = 0x42;
constexpr int kServiceHeaderSize = 5;

} // namespace

// ---------------------------------------------------------------- service

TCDVBSDTItemService::TCDVBSDTItemService(const ZUMHandle& handle) : m_handle(handle) {}

int TCDVBSDTItemService::Parse(const unsigned char* data)
{
    return Parse(data, INT_MAX);
}

int TCDVBSDTItemService::Parse(const unsigned char* data, int remaining)
{
    TCDescriptor loop(m_handle);
    return Parse(data, remaining, loop);
}

int TCDVBSDTItemService::Parse(const unsigned char* data, int remaining, TCDescriptor& loop)
{
    DeleteAll();
    m_serviceId = static_cast<unsigned short>(ReadBE16(data));
    m_eitScheduleFlag = (data[2] >> 1) & 0x01;
    m_eitPresentFollowingFlag = data[2] & 0x01;
    m_runningStatus = (data[3] >> 5) & 0x07;
    m_freeCaMode = (data[3] >> 4) & 0x01;
    const int loopLength = static_cast<int>(ReadBE16(data + 3) & 0x0FFF);
    // A loop that claims more than the section holds is read up to its end.
    const int available = std::max(0, remaining - kServiceHeaderSize);
    loop.Parse(data + kServiceHeaderSize, std::min(loopLength, available), m_descriptors, kSdtLoopTableId);
    return loopLength + kServiceHeaderSize;
}

// ---------------------------------------------------------------- instance

TCDVBSDTInstance::TCDVBSDTInstance(const ZUMHandle& handle) : m_handle(handle) {}

TCDVBSDTInstance::~TCDVBSDTInstance()
{
    DeleteAll();
}

void TCDVBSDTInstance::DeleteAll()
{
    m_services.clear();
    m_servicesBySection.clear();
}

bool TCDVBSDTInstance::Parse(const unsigned char* body, int length, unsigned short transportStreamId,
                             unsigned short originalNetworkId, char version, int section, int last, unsigned int crc,
                             bool currentNext)
{
    m_transportStreamId = transportStreamId;
    m_originalNetworkId = originalNetworkId;
    m_versionNumber = version;
    m_currentNextIndicator = currentNext;
    m_sectionNumber = static_cast<unsigned char>(section);
    m_lastSectionNumber = static_cast<unsigned char>(last);

    const int result = t_CheckVersion(version, section, last, crc);
    if (result != TABLE_FIRST && result != TABLE_ADD && result != TABLE_CHANGED)
        return false;
    t_Parse(body, length);
    return IsValid();
}

void TCDVBSDTInstance::t_Parse(const unsigned char* body, int length)
{
    // The loop starts behind original_network_id and a reserved byte; the
    // limit stays three bytes short of its end, and an entry takes five.
    const int loopEnd = length - 1;
    const int limit = length - 4;
    // A section parsed again (after RemoveSection) adds its services behind
    // those it brought before: no service that a caller may hold is freed
    // before the next version.
    std::vector<std::unique_ptr<TCDVBSDTItemService>>& services = m_servicesBySection[m_sectionNumber];
    if (limit >= 4) {
        services.reserve(services.size() + CountRecords(body + 3, loopEnd - 3, kServiceHeaderSize, 3));
        int position = 3;
        TCDescriptor loop(m_handle);
        while (position < limit) {
            services.push_back(std::make_unique<TCDVBSDTItemService>(m_handle));
            position += services.back()->Parse(body + position, loopEnd - position, loop);
        }
    }
    FlattenBySection(m_servicesBySection, m_services);
}

TCDVBSDTItemService* TCDVBSDTInstance::DVBSDTItemServiceOfIndex(unsigned int index) const
{
    return index < m_services.size() ? m_services[index] : nullptr;
}

int TCDVBSDTInstance::IndexOfDVBSDTItemServiceBySID(unsigned short serviceId) const
{
    const auto it = std::find_if(m_services.begin(), m_services.end(),
                                 [serviceId](const TCDVBSDTItemService* s) { return s->ServiceId() == serviceId; });
    return it == m_services.end() ? -1 : static_cast<int>(it - m_services.begin());
}

TCDVBSDTItemService* TCDVBSDTInstance::DVBSDTItemServiceBySID(unsigned short serviceId) const
{
    const int index = IndexOfDVBSDTItemServiceBySID(serviceId);
    return index < 0 ? nullptr : m_services[static_cast<size_t>(index)];
}

// ---------------------------------------------------------------- parser

TCDVBSDTParser::TCDVBSDTParser(int tableId, const ZUMHandle& handle) : TCSectionParser(tableId, handle) {}

TCDVBSDTParser::~TCDVBSDTParser()
{
    Initialize();
}

void TCDVBSDTParser::t_Initialize()
{
    m_instances.clear();
    m_lastTransportStreamId = 0xFFFF;
    m_lastOriginalNetworkId = 0xFFFF;
}

bool TCDVBSDTParser::t_Parse(const unsigned char* body, int length)
{
    m_lastTransportStreamId = m_tableIdExtension;
    m_lastOriginalNetworkId = length >= 2 ? static_cast<unsigned short>(ReadBE16(body)) : 0xFFFF;
    const TTNetworkKey key{m_lastOriginalNetworkId, m_lastTransportStreamId};
    std::unique_ptr<TCDVBSDTInstance>& instance = m_instances[key];
    if (!instance)
        instance = std::make_unique<TCDVBSDTInstance>(m_handle);
    return instance->Parse(body, length - 3, m_lastTransportStreamId, m_lastOriginalNetworkId, m_versionNumber,
                           m_sectionNumber, m_lastSectionNumber, m_crc, m_currentNextIndicator != 0);
}

TCDVBSDTInstance* TCDVBSDTParser::DVBSDTInstance(unsigned short transportStreamId,
                                                 unsigned short originalNetworkId) const
{
    const auto it = m_instances.find(TTNetworkKey{originalNetworkId, transportStreamId});
    return it == m_instances.end() ? nullptr : it->second.get();
}

TCDVBSDTInstance* TCDVBSDTParser::DVBSDTFirstInstance() const
{
    return DVBSDTInstance(m_lastTransportStreamId, m_lastOriginalNetworkId);
}

TCDVBSDTInstance* TCDVBSDTParser::DVBSDTInstanceOfIndex(unsigned int index) const
{
    if (index >= m_instances.size())
        return nullptr;
    return std::next(m_instances.begin(), index)->second.get();
}

bool TCDVBSDTParser::IsInstanceRecv(unsigned short transportStreamId, unsigned short originalNetworkId)
{
    if (!m_isParsed)
        return false;
    if (m_tableId == 0x42)
        return m_instances.empty() || m_instances.begin()->second->IsValid();
    if (m_tableId == 0x46) {
        const TCDVBSDTInstance* instance = DVBSDTInstance(transportStreamId, originalNetworkId);
        return !instance || instance->IsValid();
    }
    return false;
}
