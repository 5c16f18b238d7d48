#include "ISDBBITParser.h"

#include <climits>

#include "../core/ByteReader.h"
#include "../core/Descriptor.h"
#include "../core/Log.h"
#include "ISDBTableUtil.h"

namespace {

constexpr unsigned char kLoopTableId = 0xC4;
constexpr int kHeadSize = 3;
// A broadcaster's head and the CRC field behind the last one.
constexpr int kMinRemaining = kHeadSize + 4;

} // namespace

// ---------------------------------------------------------------- TCISDBBITBroadcaster

TCISDBBITBroadcaster::TCISDBBITBroadcaster(const ZUMHandle& handle) : m_handle(handle) {}

int TCISDBBITBroadcaster::Parse(const unsigned char* data)
{
    return Parse(data, INT_MAX);
}

int TCISDBBITBroadcaster::Parse(const unsigned char* data, int length)
{
    if (length < kHeadSize)
        return length > 0 ? length : 0;
    m_broadcasterId = data[0];
    m_descriptorsLength = static_cast<int>(ReadBE16(data + 1) & 0x0FFF);
    TCDescriptor loop(m_handle);
    loop.Parse(data + kHeadSize, zum_isdb::Bounded(m_descriptorsLength, length, kHeadSize), m_descriptors,
               kLoopTableId);
    return kHeadSize + m_descriptorsLength;
}

// ---------------------------------------------------------------- TCISDBBITInstance

TCISDBBITInstance::TCISDBBITInstance(const ZUMHandle& handle) : m_handle(handle) {}

TCISDBBITInstance::~TCISDBBITInstance() = default;

void TCISDBBITInstance::DeleteAll()
{
    m_records.clear();
    m_descriptors.DeleteAll();
}

TCISDBBITBroadcaster* TCISDBBITInstance::BroadcasterOfIndex(unsigned int index) const
{
    return zum_isdb::At(m_records, index);
}

bool TCISDBBITInstance::Parse(const unsigned char* data, int length, char version, unsigned char section,
                              unsigned char lastSection, unsigned int crc)
{
    const int check = t_CheckVersion(version, section, lastSection, crc);
    if (check == TABLE_SAME)
        return false;
    if (check == TABLE_IGNORE) {
        ZUM_LOGD("ISDBBIT Section ignored...");
        return false;
    }
    if (length < 2)
        return IsValid();
    m_broadcastViewPropriety = (data[0] & 0x10) != 0;
    m_firstDescriptorsLength = static_cast<int>(ReadBE16(data) & 0x0FFF);
    TCDescriptor loop(m_handle);
    loop.Parse(data + 2, zum_isdb::Bounded(m_firstDescriptorsLength, length, 2), m_descriptors, kLoopTableId);
    for (int at = 2 + m_firstDescriptorsLength; length - at >= kMinRemaining;) {
        std::unique_ptr<TCISDBBITBroadcaster> record(new TCISDBBITBroadcaster(m_handle));
        at += record->Parse(data + at, length - at);
        m_records.push_back(std::move(record));
    }
    return IsValid();
}

// ---------------------------------------------------------------- TCISDBBITParser

TCISDBBITParser::TCISDBBITParser(const ZUMHandle& handle) : TCSectionParser(0xC4, handle) {}

TCISDBBITParser::~TCISDBBITParser() = default;

TCISDBBITInstance* TCISDBBITParser::BITInstance(unsigned short id) const
{
    return zum_isdb::Find(m_instances, id);
}

void TCISDBBITParser::t_Initialize()
{
    m_instances.clear();
}

bool TCISDBBITParser::t_Parse(const unsigned char* body, int length)
{
    m_currentId = m_tableIdExtension;
    return zum_isdb::FindOrCreate(m_instances, m_currentId, m_handle)
        ->Parse(body, length, m_versionNumber, m_sectionNumber, m_lastSectionNumber, m_crc);
}
