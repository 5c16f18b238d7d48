#ifndef ZUM_PSI_PATPARSER_H
#define ZUM_PSI_PATPARSER_H

#include <vector>

#include "../core/BaseSection.h"
#include "../core/SectionParser.h"

struct TTProgramList {
    unsigned short programNumber;
    short pid;
};

// Program association table (0x00): the programs of the transport stream
// with their PMT PIDs.
class ZUM_EXPORT TCPATParser : public TCSectionParser, public TCBaseSection {
public:
    explicit TCPATParser(const ZUMHandle& handle);
    ~TCPATParser() override;

    void DeleteAll() override;

    bool IsRecv() const;
    int NumOfProgramList() const;
    // Program number of the index-th entry in ascending order; -1 past the end.
    int ProgramNumber(unsigned int index) const;
    // PMT PID of the first entry with that number; -1 when there is none.
    int ProgramPID(unsigned short programNumber) const;

    int TransportStreamId() const { return m_transportStreamId; }
    // The PID beside program number 0 (network or SIT PID); -1 when absent.
    int ZeroProgramPid() const { return m_zeroProgramPid; }

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;
    void t_AddProgram(unsigned short programNumber, short pid);

private:
    // Ordered by program number; a repeated number's entries keep their order
    // of arrival. One block for the list, not one per program.
    std::vector<TTProgramList> m_programList;
    int m_transportStreamId = 0;
    int m_zeroProgramPid = -1;
};

#endif
