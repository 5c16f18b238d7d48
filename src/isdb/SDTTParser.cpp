#include "SDTTParser.h"

#include "../core/ByteReader.h"
#include "../core/Descriptor.h"
#include "../core/Log.h"
#include "ISDBTableUtil.h"

namespace {

constexpr unsigned char kLoopTableId = 0xC3;
constexpr int kHeadSize = 8;
constexpr int kEntrySize = 8;

} // namespace

// ---------------------------------------------------------------- SDContent

SDContent::SDContent(const ZUMHandle& handle) : m_handle(handle) {}

bool SDContent::Parse(const unsigned char* data, int length, int& consumed)
{
    consumed = 0;
    if (!data || length < kHeadSize)
        return false;
    m_group = static_cast<unsigned char>(data[0] >> 4);
    m_targetVersion = static_cast<unsigned short>(ReadBE16(data) & 0x0FFF);
    m_newVersion = static_cast<unsigned short>(ReadBE16(data + 2) >> 4);
    const int level = (data[3] >> 2) & 0x03;
    if (level <= 1)
        m_downloadLevel = level;
    m_versionIndicator = data[3] & 0x03;
    m_contentDescriptionLength = static_cast<unsigned short>(ReadBE16(data + 4) >> 4);
    m_scheduleDescriptionLength = static_cast<unsigned short>(ReadBE16(data + 6) >> 4);
    m_scheduleTimeShift = static_cast<unsigned char>(data[7] & 0x0F);

    if (m_scheduleDescriptionLength + kHeadSize > length) {
        consumed = kHeadSize;
        return false;
    }
    const int entries = m_scheduleDescriptionLength / kEntrySize;
    for (int i = 0; i < entries; ++i) {
        const unsigned char* entry = data + kHeadSize + kEntrySize * i;
        m_schedule.push_back(TTSchedule{zum_isdb::StartTime(entry), ReadBE24(entry + 5)});
    }
    const int loopAt = kHeadSize + kEntrySize * entries;
    const int loopLength = m_contentDescriptionLength - m_scheduleDescriptionLength;
    if (loopLength < 0 || loopAt + loopLength > length) {
        consumed = loopAt;
        return false;
    }
    TCDescriptor loop(m_handle);
    loop.Parse(data + loopAt, loopLength, m_descriptors, kLoopTableId);
    consumed = loopAt + loopLength;
    return true;
}

// ---------------------------------------------------------------- TCSDTTInstance

TCSDTTInstance::TCSDTTInstance(const ZUMHandle& handle) : m_handle(handle) {}

TCSDTTInstance::~TCSDTTInstance() = default;

void TCSDTTInstance::DeleteAll()
{
    m_contents.clear();
}

SDContent* TCSDTTInstance::ContentOfIndex(unsigned int index) const
{
    return zum_isdb::At(m_contents, index);
}

bool TCSDTTInstance::m_Fail(int site)
{
    ZUM_LOGD("TCSDTTInstance::Parse return false : %d", site);
    return false;
}

bool TCSDTTInstance::Parse(const unsigned char* data, int length, char version, unsigned char section,
                           unsigned char lastSection, unsigned int crc)
{
    ZUM_LOGD("TCSDTTInstance::Parse section_number:%d, last_section_number:%d", section, lastSection);
    const int check = t_CheckVersion(version, section, lastSection, crc);
    if (check == TABLE_SAME)
        return false;
    if (check == TABLE_IGNORE) {
        ZUM_LOGD("SDTT Section ignored...");
        return false;
    }
    if (length <= 6)
        return m_Fail(1);
    m_transportStreamId = static_cast<unsigned short>(ReadBE16(data));
    m_originalNetworkId = static_cast<unsigned short>(ReadBE16(data + 2));
    m_serviceId = static_cast<unsigned short>(ReadBE16(data + 4));
    m_numOfContents = data[6];
    int at = 7;
    for (int i = 0; i < m_numOfContents; ++i) {
        std::unique_ptr<SDContent> content(new SDContent(m_handle));
        int consumed = 0;
        if (!content->Parse(data + at, zum_isdb::Left(length, at), consumed))
            return m_Fail(2);
        m_contents.push_back(std::move(content));
        at += consumed;
        if (i + 1 < m_numOfContents && at > length)
            return m_Fail(3);
    }
    ZUM_LOGD("TCSDTTInstance::Parse return sectionValid:%d", IsValid());
    return IsValid();
}

// ---------------------------------------------------------------- TCSDTTParser

TCSDTTParser::TCSDTTParser(const ZUMHandle& handle, unsigned char tableId) : TCSectionParser(tableId, handle) {}

TCSDTTParser::~TCSDTTParser() = default;

TCSDTTInstance* TCSDTTParser::SDTTInstance(unsigned short id) const
{
    return zum_isdb::Find(m_instances, id);
}

void TCSDTTParser::t_Initialize()
{
    m_instances.clear();
}

bool TCSDTTParser::t_Parse(const unsigned char* body, int length)
{
    return zum_isdb::FindOrCreate(m_instances, m_tableIdExtension, m_handle)
        ->Parse(body, length, m_versionNumber, m_sectionNumber, m_lastSectionNumber, m_crc);
}
