#include "PATParser.h"

#include <algorithm>

#include "../core/ByteReader.h"
#include "../core/Log.h"

namespace {

// Orders entries by program number, for the searches of both directions.
struct ByNumber {
    bool operator()(const TTProgramList& entry, unsigned short number) const { return entry.programNumber < number; }
    bool operator()(unsigned short number, const TTProgramList& entry) const { return number < entry.programNumber; }
};

} // namespace

TCPATParser::TCPATParser(const ZUMHandle& handle) : TCSectionParser(0x00, handle) {}

TCPATParser::~TCPATParser()
{
    Initialize();
}

void TCPATParser::t_Initialize()
{
    InitSection();
    DeleteAll();
}

void TCPATParser::DeleteAll()
{
    m_programList.clear();
    m_transportStreamId = 0;
    m_zeroProgramPid = -1;
}

bool TCPATParser::IsRecv() const
{
    return m_isParsed && IsValid();
}

int TCPATParser::NumOfProgramList() const
{
    return static_cast<int>(m_programList.size());
}

int TCPATParser::ProgramNumber(unsigned int index) const
{
    if (index >= m_programList.size())
        return -1;
    return m_programList[index].programNumber;
}

int TCPATParser::ProgramPID(unsigned short programNumber) const
{
    const auto it = std::lower_bound(m_programList.begin(), m_programList.end(), programNumber, ByNumber());
    return it == m_programList.end() || it->programNumber != programNumber ? -1 : it->pid;
}

void TCPATParser::t_AddProgram(unsigned short programNumber, short pid)
{
    if (programNumber == 0) {
        ZUM_LOGD("Program Number is ZERO!!(SIT..)");
        m_zeroProgramPid = pid;
        return;
    }
    const auto at = std::upper_bound(m_programList.begin(), m_programList.end(), programNumber, ByNumber());
    m_programList.insert(at, TTProgramList{programNumber, pid});
}

bool TCPATParser::t_Parse(const unsigned char* body, int /*length*/)
{
    const int result = t_CheckVersion(m_versionNumber, m_sectionNumber, m_lastSectionNumber, m_crc);
    if (result == TABLE_IGNORE) {
        ZUM_LOGD("PAT Section Ignored... ");
        return false;
    }
    if (result == TABLE_SAME)
        return false;

    m_transportStreamId = m_tableIdExtension;
    // The loop is bounded by section_length alone: 5 header bytes and the CRC_32.
    if (m_sectionLength > 12) {
        const int count = (m_sectionLength - 9) / 4;
        m_programList.reserve(m_programList.size() + static_cast<size_t>(count));
        for (int i = 0; i < count; ++i) {
            const unsigned char* entry = body + i * 4;
            const unsigned short programNumber = static_cast<unsigned short>(ReadBE16(entry));
            const short pid = static_cast<short>(ReadBE16(entry + 2) & 0x1FFF);
            t_AddProgram(programNumber, pid);
            ZUM_LOGD("Program Number[%d]", programNumber);
            ZUM_LOGD("PMT PID[%d]", pid);
        }
    }
    return IsValid();
}
