#include "PATParser.h"

#include "../core/ByteReader.h"
#include "../core/Log.h"

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
    auto it = m_programList.begin();
    std::advance(it, index);
    return it->first;
}

int TCPATParser::ProgramPID(unsigned short programNumber) const
{
    // The entry inserted first: find may answer any of equal keys.
    const auto it = m_programList.lower_bound(programNumber);
    return it == m_programList.end() || it->first != programNumber ? -1 : it->second.pid;
}

void TCPATParser::t_AddProgram(unsigned short programNumber, short pid)
{
    if (programNumber == 0) {
        ZUM_LOGD("Program Number is ZERO!!(SIT..)");
        m_zeroProgramPid = pid;
        return;
    }
    m_programList.emplace(programNumber, TTProgramList{programNumber, pid});
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
