#include "DVBSGTParser.h"

#include <algorithm>

#include <zum-platform/ServiceData.h>

#include "../core/ByteReader.h"
#include "../core/Descriptor.h"
#include "../core/Log.h"

namespace {

constexpr unsigned char kSgtLoopTableId = 0x91;
constexpr int kCrcSize = 4;
// Reserved 16 bits, then the list descriptors length.
constexpr int kListLoopAt = 4;
// The service loop length that stands between the two loops.
constexpr int kServiceLoopLengthSize = 2;
constexpr int kServiceListNameTag = 0x88;

} // namespace

// ---------------------------------------------------------------- service

TCDVBSGTItemService::TCDVBSGTItemService(const ZUMHandle& handle) : m_handle(handle) {}

int TCDVBSGTItemService::Parse(const unsigned char* record)
{
    m_serviceId = static_cast<unsigned short>(ReadBE16(record));
    m_transportStreamId = static_cast<unsigned short>(ReadBE16(record + 2));
    m_originalNetworkId = static_cast<unsigned short>(ReadBE16(record + 4));
    const unsigned int number = ReadBE16(record + 6);
    m_logicalChannelNumber = static_cast<unsigned short>(number >> 2);
    m_visible = (number & 0x02) != 0;
    m_new = (number & 0x01) != 0;
    m_genreCode = static_cast<unsigned short>(ReadBE16(record + 8));
    const int loopLength = static_cast<int>(ReadBE16(record + 10) & 0x0FFF);
    TCDescriptor loop(m_handle);
    loop.Parse(record + kHeaderSize, loopLength, m_descriptors, kSgtLoopTableId);
    return kHeaderSize + loopLength;
}

void TCDVBSGTItemService::GetServiceData(TCServiceData* data) const
{
    if (!data)
        return;
    TCPropertyObject& properties = data->PropertyObject();
    properties.SetProperty(15, m_serviceId);
    properties.SetProperty(18, m_transportStreamId);
    properties.SetProperty(41, m_originalNetworkId);
    properties.SetProperty(42, m_logicalChannelNumber);
    properties.SetProperty(27, !m_visible);
    properties.SetProperty(26, !m_visible);
    properties.SetProperty(45, m_new);
}

// ---------------------------------------------------------------- instance

TCDVBSGTInstance::TCDVBSGTInstance(const ZUMHandle& handle) : m_handle(handle) {}

TCDVBSGTInstance::~TCDVBSGTInstance()
{
    DeleteAll();
}

void TCDVBSGTInstance::DeleteAll()
{
    m_services.clear();
}

bool TCDVBSGTInstance::ServiceListValid() const
{
    return m_descriptors.NumOfDescriptors(kServiceListNameTag) > 0;
}

TCDVBSGTItemService* TCDVBSGTInstance::Service(int index) const
{
    return index >= 0 && index < NumOfServices() ? m_services[static_cast<size_t>(index)].get() : nullptr;
}

bool TCDVBSGTInstance::Parse(const unsigned char* body, int length, int version, int section, int last,
                             unsigned int crc)
{
    const int result = t_CheckVersion(version, section, last, crc);
    if (result != TABLE_FIRST && result != TABLE_ADD && result != TABLE_CHANGED)
        return false;
    // Everything is read no further than the CRC.
    const int end = length - kCrcSize;
    if (end < kListLoopAt)
        return IsValid();
    const int listLength = static_cast<int>(ReadBE16(body + 2) & 0x0FFF);
    TCDescriptor listLoop(m_handle);
    listLoop.Parse(body + kListLoopAt, std::min(listLength, end - kListLoopAt), m_descriptors, kSgtLoopTableId);
    int offset = kListLoopAt + listLength + kServiceLoopLengthSize;
    while (offset < end) {
        // A record, with its descriptors, that runs past the section is refused.
        if (end - offset < TCDVBSGTItemService::kHeaderSize ||
            end - offset < TCDVBSGTItemService::kHeaderSize + static_cast<int>(ReadBE16(body + offset + 10) & 0x0FFF))
            break;
        auto service = std::make_unique<TCDVBSGTItemService>(m_handle);
        offset += service->Parse(body + offset);
        m_services.push_back(std::move(service));
    }
    return IsValid();
}

// ---------------------------------------------------------------- parser

TCDVBSGTParser::TCDVBSGTParser(const ZUMHandle& handle) : TCSectionParser(0x91, handle) {}

TCDVBSGTParser::~TCDVBSGTParser()
{
    Reset();
}

void TCDVBSGTParser::t_Initialize() {}

void TCDVBSGTParser::Reset()
{
    m_instances.clear();
    m_allReceived = false;
}

bool TCDVBSGTParser::m_AllSubtablesValid() const
{
    return !m_instances.empty() && std::all_of(m_instances.begin(), m_instances.end(),
                                               [](const auto& entry) { return entry.second->IsValid(); });
}

bool TCDVBSGTParser::t_Parse(const unsigned char* body, int length)
{
    std::unique_ptr<TCDVBSGTInstance>& instance = m_instances[m_tableIdExtension];
    if (!instance)
        instance = std::make_unique<TCDVBSGTInstance>(m_handle);
    if (instance->IsValid()) {
        ZUM_LOGD("[Astra HD+] All SGT subtables received.");
        m_allReceived = m_AllSubtablesValid();
    }
    return instance->Parse(body, length, m_versionNumber, m_sectionNumber, m_lastSectionNumber, m_crc);
}

TCDVBSGTInstance* TCDVBSGTParser::Instance(unsigned short id) const
{
    const auto it = m_instances.find(id);
    return it == m_instances.end() ? nullptr : it->second.get();
}

TCDVBSGTInstance* TCDVBSGTParser::GetFirstInstance() const
{
    for (const auto& entry : m_instances)
        if (entry.second->ServiceListValid())
            return entry.second.get();
    return nullptr;
}

bool TCDVBSGTParser::FlagValidServiceList() const
{
    return GetFirstInstance() != nullptr;
}

bool TCDVBSGTParser::ServiceListsIds(std::list<unsigned short>& ids) const
{
    for (const auto& entry : m_instances)
        if (entry.second->ServiceListValid())
            ids.push_back(entry.first);
    return !m_instances.empty();
}
