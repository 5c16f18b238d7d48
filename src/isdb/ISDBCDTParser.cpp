#include "ISDBCDTParser.h"

#include <cstring>
#include <iterator>

#include "../core/ByteReader.h"
#include "../core/Descriptor.h"
#include "../core/Log.h"
#include "ISDBTableUtil.h"

namespace {

constexpr unsigned char kLoopTableId = 0xC8;
constexpr int kLogoHeadSize = 7;
constexpr int kCrcSize = 4;

} // namespace

// ---------------------------------------------------------------- CLogoData

CLogoData::CLogoData(const unsigned char* data, int length)
{
    if (length < kLogoHeadSize)
        return;
    m_logoType = data[0];
    m_logoId = static_cast<unsigned short>(ReadBE16(data + 1) & 0x01FF);
    m_logoVersion = data[4];
    const int declared = static_cast<int>(ReadBE16(data + 5));
    m_recordSize = kLogoHeadSize + declared;
    m_dataSize = static_cast<unsigned short>(zum_isdb::Bounded(declared, length, kLogoHeadSize));
    if (m_dataSize > 0) {
        m_data.reset(new unsigned char[m_dataSize]);
        std::memcpy(m_data.get(), data + kLogoHeadSize, m_dataSize);
    }
}

CLogoData* CLogoData::Fork() const
{
    CLogoData* copy = new CLogoData();
    copy->m_logoType = m_logoType;
    copy->m_logoId = m_logoId;
    copy->m_logoVersion = m_logoVersion;
    copy->m_dataSize = m_dataSize;
    copy->m_recordSize = m_recordSize;
    if (m_data) {
        copy->m_data.reset(new unsigned char[m_dataSize]);
        std::memcpy(copy->m_data.get(), m_data.get(), m_dataSize);
    }
    return copy;
}

// ---------------------------------------------------------------- TCCDTInstance

TCCDTInstance::TCCDTInstance(const ZUMHandle& handle) : m_handle(handle) {}

TCCDTInstance::~TCCDTInstance() = default;

void TCCDTInstance::DeleteAll()
{
    ZUM_LOGD("TCCDTInstance::DeleteAll");
    m_descriptors.DeleteAll();
    m_logos.clear();
    m_logoCount = 0;
    m_downloadDataId = 0;
    m_originalNetworkId = 0;
    m_dataType = 0;
}

bool TCCDTInstance::Parse(const unsigned char* data, int length, unsigned short id, char version, bool currentNext,
                          unsigned char section, unsigned char lastSection, unsigned int crc)
{
    m_downloadDataId = id;
    m_version = version;
    m_currentNext = currentNext;
    m_sectionNumber = section;
    m_lastSectionNumber = lastSection;
    ZUM_LOGD("TCCDTInstance::Parse m_downloadDataId:%d, m_sectionNumber:%d, m_lastSectionNumber:%d",
             m_downloadDataId, m_sectionNumber, m_lastSectionNumber);
    const int check = t_CheckVersion(version, section, lastSection, crc);
    if (check != TABLE_FIRST && check != TABLE_ADD && check != TABLE_CHANGED) {
        ZUM_LOGD("TCCDTInstance::Parse t_CheckVersion return value is false");
        return false;
    }
    const bool parsed = m_Parse(data, length);
    ZUM_LOGD("TCCDTInstance::Parse m_Parse : [%d], Valid :[%d]", parsed, IsValid());
    return IsValid();
}

bool TCCDTInstance::m_Parse(const unsigned char* data, int length)
{
    ZUM_LOGD("TCCDTInstance::m_Parse Called");
    if (length >= 3) {
        m_originalNetworkId = static_cast<unsigned short>(ReadBE16(data));
        m_dataType = data[2];
    }
    int at = length;
    if (length >= 5) {
        const int loopLength = static_cast<int>(ReadBE16(data + 3) & 0x0FFF);
        TCDescriptor loop(kZUMDefaultHandle);
        loop.Parse(data + 5, zum_isdb::Bounded(loopLength, length, 5), m_descriptors, kLoopTableId);
        at = 5 + loopLength;
    }
    // The data of the last logo may reach into the CRC field, never past the section.
    for (const int end = length - kCrcSize; at < end;) {
        std::unique_ptr<CLogoData> logo(new CLogoData(data + at, length - at));
        if (logo->RecordSize() == 0)
            break;
        at += logo->RecordSize();
        m_logos.push_back(std::move(logo));
        ++m_logoCount;
    }
    ZUM_LOGD("TCISDBCDTParser::m_Parse return true");
    return true;
}

bool TCCDTInstance::GetLogoDataList(std::list<CLogoData*>& logos) const
{
    ZUM_LOGD("TCISDBCDTParser::GetLogoDataList Called");
    if (m_logos.empty())
        return false;
    for (const auto& logo : m_logos)
        logos.push_back(logo->Fork());
    ZUM_LOGD("TCISDBCDTParser::GetLogoDataList return true");
    return true;
}

// ---------------------------------------------------------------- TCISDBCDTParser

TCISDBCDTParser::TCISDBCDTParser(const ZUMHandle& handle) : TCSectionParser(0xC8, handle) {}

TCISDBCDTParser::~TCISDBCDTParser() = default;

TCCDTInstance* TCISDBCDTParser::CDTInstance(unsigned short id) const
{
    return zum_isdb::Find(m_instances, id);
}

TCCDTInstance* TCISDBCDTParser::CDTInstanceOfIndex(unsigned int index) const
{
    if (index >= m_instances.size())
        return nullptr;
    return std::next(m_instances.begin(), static_cast<long>(index))->second.get();
}

void TCISDBCDTParser::t_Initialize()
{
    m_instances.clear();
}

bool TCISDBCDTParser::t_Parse(const unsigned char* body, int length)
{
    m_currentId = m_tableIdExtension;
    return zum_isdb::FindOrCreate(m_instances, m_currentId, m_handle)
        ->Parse(body, length, m_currentId, m_versionNumber, m_currentNextIndicator != 0, m_sectionNumber,
                m_lastSectionNumber, m_crc);
}
