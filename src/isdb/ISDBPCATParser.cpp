#include "ISDBPCATParser.h"

#include <climits>

#include "../core/ByteReader.h"
#include "../core/Descriptor.h"
#include "../core/Log.h"
#include "ISDBTableUtil.h"

namespace {

constexpr unsigned char kLoopTableId = 0xC2;
constexpr int kHeadSize = 8;
constexpr int kEntrySize = 8;

} // namespace

// ---------------------------------------------------------------- TCISDBPCATContentVersion

TCISDBPCATContentVersion::TCISDBPCATContentVersion(const ZUMHandle& handle) : m_handle(handle) {}

bool TCISDBPCATContentVersion::Parse(const unsigned char* data)
{
    return Parse(data, INT_MAX);
}

bool TCISDBPCATContentVersion::Parse(const unsigned char* data, int length)
{
    if (length < kHeadSize)
        return true;
    m_contentVersion = static_cast<unsigned short>(ReadBE16(data));
    m_contentMinorVersion = static_cast<unsigned short>(ReadBE16(data + 2));
    m_versionIndicator = data[4] >> 6;
    m_contentDescriptorLength = static_cast<int>(ReadBE16(data + 4) & 0x0FFF);
    m_scheduleDescriptionLength = static_cast<int>(ReadBE16(data + 6) & 0x0FFF);
    m_scheduleCount = m_scheduleDescriptionLength / kEntrySize;
    m_size = kHeadSize + m_contentDescriptorLength;

    for (int i = 0; i < m_scheduleCount; ++i) {
        const int at = kHeadSize + kEntrySize * i;
        if (zum_isdb::Left(length, at) < kEntrySize)
            break;
        m_startTimes.push_back(zum_isdb::StartTime(data + at));
        m_durations.push_back(zum_isdb::DurationSeconds(data + at + 5));
    }
    const int loopAt = kHeadSize + kEntrySize * m_scheduleCount;
    const int loopLength = m_contentDescriptorLength - m_scheduleDescriptionLength;
    if (loopLength > 0) {
        TCDescriptor loop(m_handle);
        loop.Parse(data + loopAt, zum_isdb::Bounded(loopLength, length, loopAt), m_descriptors, kLoopTableId);
    }
    return true;
}

// ---------------------------------------------------------------- TCISDBPCATInstance

TCISDBPCATInstance::TCISDBPCATInstance(const ZUMHandle& handle) : m_handle(handle) {}

TCISDBPCATInstance::~TCISDBPCATInstance() = default;

void TCISDBPCATInstance::DeleteAll()
{
    m_records.clear();
}

TCISDBPCATContentVersion* TCISDBPCATInstance::ContentVersionOfIndex(unsigned int index) const
{
    return zum_isdb::At(m_records, index);
}

bool TCISDBPCATInstance::Parse(const unsigned char* data, int length, int checkResult)
{
    if (checkResult == TABLE_SAME)
        return false;
    if (checkResult == TABLE_IGNORE) {
        ZUM_LOGD("ISDBPCAT Section ignored...");
        return false;
    }
    TCByteReader reader(data, length);
    if (!reader.Has(9))
        return false;
    m_transportStreamId = static_cast<unsigned short>(reader.U16());
    m_originalNetworkId = static_cast<unsigned short>(reader.U16());
    m_contentId = reader.U32();
    m_numOfContentVersions = static_cast<unsigned char>(reader.U8());
    int at = reader.Consumed();
    for (int i = 0; i < m_numOfContentVersions; ++i) {
        if (zum_isdb::Left(length, at) < kHeadSize)
            return false;
        std::unique_ptr<TCISDBPCATContentVersion> record(new TCISDBPCATContentVersion(m_handle));
        record->Parse(data + at, length - at);
        at += record->Size();
        m_records.push_back(std::move(record));
    }
    return IsValid();
}

// ---------------------------------------------------------------- TCISDBPCATParser

TCISDBPCATParser::TCISDBPCATParser(const ZUMHandle& handle) : TCSectionParser(0xC2, handle) {}

TCISDBPCATParser::~TCISDBPCATParser() = default;

TCISDBPCATInstance* TCISDBPCATParser::PCATInstance(unsigned short id) const
{
    return zum_isdb::Find(m_instances, id);
}

void TCISDBPCATParser::t_Initialize()
{
    m_instances.clear();
}

bool TCISDBPCATParser::t_Parse(const unsigned char* body, int length)
{
    m_currentId = m_tableIdExtension;
    TCISDBPCATInstance* instance = zum_isdb::FindOrCreate(m_instances, m_currentId, m_handle);
    const int check = instance->CheckVersion(m_versionNumber, m_sectionNumber, m_lastSectionNumber, m_crc);
    return instance->Parse(body, length, check);
}
