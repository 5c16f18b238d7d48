#include "ISDBLDTParser.h"

#include <climits>

#include "../core/ByteReader.h"
#include "../core/Descriptor.h"
#include "../core/Log.h"
#include "ISDBTableUtil.h"

namespace {

constexpr unsigned char kLoopTableId = 0xC7;
constexpr int kHeadSize = 5;

} // namespace

// ---------------------------------------------------------------- TCISDBLDTDescription

TCISDBLDTDescription::TCISDBLDTDescription(const ZUMHandle& handle) : m_handle(handle) {}

bool TCISDBLDTDescription::Parse(const unsigned char* data)
{
    return Parse(data, INT_MAX);
}

bool TCISDBLDTDescription::Parse(const unsigned char* data, int length)
{
    if (length < kHeadSize)
        return true;
    m_descriptionId = static_cast<unsigned short>(ReadBE16(data));
    // Byte 2 and the top of byte 3 are reserved.
    m_descriptorsLength = static_cast<int>(ReadBE16(data + 3) & 0x0FFF);
    m_size = m_descriptorsLength + kHeadSize;
    TCDescriptor loop(m_handle);
    loop.Parse(data + kHeadSize, zum_isdb::Bounded(m_descriptorsLength, length, kHeadSize), m_descriptors,
               kLoopTableId);
    return true;
}

// ---------------------------------------------------------------- TCISDBLDTInstance

TCISDBLDTInstance::TCISDBLDTInstance(const ZUMHandle& handle) : m_handle(handle) {}

TCISDBLDTInstance::~TCISDBLDTInstance() = default;

void TCISDBLDTInstance::DeleteAll()
{
    m_records.clear();
}

TCISDBLDTDescription* TCISDBLDTInstance::DescriptionOfIndex(unsigned int index) const
{
    return zum_isdb::At(m_records, index);
}

bool TCISDBLDTInstance::Parse(const unsigned char* data, int length, int checkResult)
{
    if (checkResult == TABLE_SAME)
        return false;
    if (checkResult == TABLE_IGNORE) {
        ZUM_LOGD("ISDBLDT Section ignored...");
        return false;
    }
    TCByteReader reader(data, length);
    if (reader.Has(4)) {
        m_transportStreamId = static_cast<unsigned short>(reader.U16());
        m_originalNetworkId = static_cast<unsigned short>(reader.U16());
    }
    if (length < 5)
        return IsValid();
    for (int at = 4;;) {
        if (length - at < kHeadSize)
            return false;
        std::unique_ptr<TCISDBLDTDescription> record(new TCISDBLDTDescription(m_handle));
        record->Parse(data + at, length - at);
        at += record->Size();
        m_records.push_back(std::move(record));
        if (at == length)
            return IsValid();
    }
}

// ---------------------------------------------------------------- TCISDBLDTParser

TCISDBLDTParser::TCISDBLDTParser(const ZUMHandle& handle) : TCSectionParser(0xC7, handle) {}

TCISDBLDTParser::~TCISDBLDTParser() = default;

TCISDBLDTInstance* TCISDBLDTParser::LDTInstance(unsigned short id) const
{
    return zum_isdb::Find(m_instances, id);
}

void TCISDBLDTParser::t_Initialize()
{
    m_instances.clear();
}

bool TCISDBLDTParser::t_Parse(const unsigned char* body, int length)
{
    m_currentId = m_tableIdExtension;
    TCISDBLDTInstance* instance = zum_isdb::FindOrCreate(m_instances, m_currentId, m_handle);
    const int check = instance->CheckVersion(m_versionNumber, m_sectionNumber, m_lastSectionNumber, m_crc);
    return instance->Parse(body, length, check);
}
