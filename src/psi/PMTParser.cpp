#include "PMTParser.h"

#include <iterator>

#include "../core/ByteReader.h"
#include "../core/Descriptor.h"
#include "../core/Diagnostics.h"

namespace {

constexpr unsigned char kPmtTableId = 0x02;

} // namespace

// ---------------------------------------------------------------- elementary

TCPMTElementary::TCPMTElementary(const ZUMHandle& handle) : m_handle(handle) {}

int TCPMTElementary::Parse(const unsigned char* data, int remaining)
{
    TCDescriptor loop(m_handle);
    return Parse(data, remaining, loop);
}

int TCPMTElementary::Parse(const unsigned char* data, int remaining, TCDescriptor& loop)
{
    // An entry with fewer than five bytes in front of the CRC_32 takes its
    // fields from the bytes at hand; they all lie inside the section.
    m_esInfoLength = static_cast<int>(ReadBE16(data + 3) & 0x0FFF);
    if (remaining != 0 && remaining < m_esInfoLength + 5)
        m_esInfoLength = remaining - 5;
    m_streamType = data[0];
    m_elementary_PID = static_cast<unsigned short>(ReadBE16(data + 1) & 0x1FFF);
    loop.Parse(data + 5, m_esInfoLength, m_descriptors, kPmtTableId);
    return m_esInfoLength + 5;
}

unsigned char TCPMTElementary::StreamType() const
{
    if (!ZUM_ASSERT(m_elementary_PID != INVALID))
        return 0;
    return m_streamType;
}

unsigned short TCPMTElementary::ElementaryPID() const
{
    if (!ZUM_ASSERT(m_elementary_PID != INVALID))
        return 0;
    return m_elementary_PID;
}

// ---------------------------------------------------------------- instance

TCPMTInstance::TCPMTInstance(short pid, const ZUMHandle& handle) : m_handle(handle), m_pid(pid) {}

TCPMTInstance::~TCPMTInstance()
{
    DeleteAll();
}

void TCPMTInstance::DeleteAll()
{
    m_elementaries.clear();
    m_descriptors.DeleteAll();
    m_programInfoLength = 0;
}

TCPMTElementary* TCPMTInstance::PMTElementary(unsigned int index) const
{
    return index < m_elementaries.size() ? m_elementaries[index].get() : nullptr;
}

bool TCPMTInstance::Parse(const unsigned char* body, int length, unsigned short programNumber, char version,
                          int section, int last, unsigned int crc, bool currentNext)
{
    m_programNumber = programNumber;
    m_versionNumber = version;
    m_currentNextIndicator = currentNext;
    m_sectionNumber = static_cast<unsigned char>(section);
    m_lastSectionNumber = static_cast<unsigned char>(last);
    m_pcrPid = length >= 2 ? static_cast<unsigned short>(ReadBE16(body) & 0x1FFF) : 0xFFFF;

    const int result = t_CheckVersion(version, section, last, crc);
    if (result == TABLE_IGNORE) {
        ZUM_LOGD("PMT Section Ignored... ");
        return false;
    }
    if (result == TABLE_SAME)
        return false;
    m_Parse(body + 2, length - 2);
    return IsValid();
}

bool TCPMTInstance::m_Parse(const unsigned char* data, int length)
{
    m_programInfoLength = length >= 2 ? static_cast<unsigned short>(ReadBE16(data) & 0x0FFF) : 0;
    if (length - 5 <= m_programInfoLength) {
        ZUM_LOGD("TCPMTInstance::m_Parse, m_programInfoLength[%d] Error", m_programInfoLength);
        return false;
    }
    TCDescriptor loop(m_handle);
    loop.Parse(data + 2, m_programInfoLength, m_descriptors, kPmtTableId);

    const unsigned char* p = data + 2 + m_programInfoLength;
    int remaining = length - m_programInfoLength - 6;
    while (remaining > 0) {
        m_elementaries.push_back(std::make_unique<TCPMTElementary>(m_handle));
        const int n = m_elementaries.back()->Parse(p, remaining, loop);
        p += n;
        remaining -= n;
    }
    return true;
}

// ---------------------------------------------------------------- parser

TCPMTParser::TSPmtData::TSPmtData(const TCPMTInstance* pInstance)
{
    if (!ZUM_ASSERT(pInstance))
        return;
    for (int i = 0; i < pInstance->NumOfElementary(); ++i)
        streamTypes.push_back(pInstance->PMTElementary(static_cast<unsigned int>(i))->StreamType());
}

TCPMTParser::TCPMTParser(const ZUMHandle& handle) : TCSectionParser(kPmtTableId, handle) {}

TCPMTParser::~TCPMTParser()
{
    Initialize();
}

TCPMTInstance* TCPMTParser::PMTInstance(unsigned short programNumber) const
{
    const auto it = m_instances.find(programNumber);
    return it == m_instances.end() ? nullptr : it->second.get();
}

TCPMTInstance* TCPMTParser::PMTInstanceOfIndex(unsigned int index) const
{
    if (index >= m_instances.size())
        return nullptr;
    return std::next(m_instances.begin(), index)->second.get();
}

void TCPMTParser::UpdatePMTElements(std::map<int, int>& elements)
{
    m_pmtElements = elements;
}

void TCPMTParser::ClearPMTElements()
{
    m_pmtElements.clear();
}

void TCPMTParser::t_Initialize()
{
    m_channelListUpdateRequired = false;
    m_pmtData.clear();
    m_lastProgramNumber = 0xFFFF;
    m_instances.clear();
    m_pmtElements.clear();
}

bool TCPMTParser::t_Parse(const unsigned char* body, int length)
{
    m_channelListUpdateRequired = false;
    if (!m_pmtElements.empty() && m_pmtElements.count(PMTKey(m_pid, m_tableIdExtension)) == 0)
        return false;
    m_lastProgramNumber = m_tableIdExtension;

    std::unique_ptr<TCPMTInstance>& slot = m_instances[m_tableIdExtension];
    if (!slot)
        slot = std::make_unique<TCPMTInstance>(m_pid, m_handle);
    if (!slot->Parse(body, length, m_tableIdExtension, m_versionNumber, m_sectionNumber, m_lastSectionNumber, m_crc,
                     m_currentNextIndicator != 0))
        return false;
    m_channelListUpdateRequired = t_CheckIfChannelListUpdateRequired(slot.get());
    return true;
}

bool TCPMTParser::t_CheckIfChannelListUpdateRequired(TCPMTInstance* pInstance)
{
    if (!ZUM_ASSERT(pInstance))
        return false;
    // The stored list becomes the new one in place: nodes are made only for
    // the part that differs, and each stream type is read once.
    std::list<unsigned char>& stored = m_pmtData[m_lastProgramNumber].streamTypes;
    auto kept = stored.begin();
    bool changed = false;
    for (int i = 0; i < pInstance->NumOfElementary(); ++i) {
        const unsigned char type = pInstance->PMTElementary(static_cast<unsigned int>(i))->StreamType();
        if (!changed && kept != stored.end() && *kept == type) {
            ++kept;
            continue;
        }
        if (!changed)
            kept = stored.erase(kept, stored.end());
        changed = true;
        stored.push_back(type);
    }
    if (!changed && kept != stored.end()) {
        stored.erase(kept, stored.end());
        changed = true;
    }
    return changed || stored.empty();
}
