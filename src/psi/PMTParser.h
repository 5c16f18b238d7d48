#ifndef ZUM_PSI_PMTPARSER_H
#define ZUM_PSI_PMTPARSER_H

#include <list>
#include <map>
#include <memory>
#include <vector>

#include <zum-platform/ZUMHandle.h>

#include "../core/BaseSection.h"
#include "../core/DescriptorHash.h"
#include "../core/SectionParser.h"

class TCDescriptor;

// One elementary stream of a program, with its ES_info descriptors.
class ZUM_EXPORT TCPMTElementary : public TCDescriptorHashOwner {
public:
    static constexpr unsigned short INVALID = 0xFFFF;

    explicit TCPMTElementary(const ZUMHandle& handle);

    // `remaining` counts the stream bytes left in front of the CRC_32; returns
    // the bytes this entry takes (ES_info_length + 5, cut to what is left).
    int Parse(const unsigned char* data, int remaining);
    // As above, walking the loop with the section's walker, so that a
    // section's loops share one factory.
    int Parse(const unsigned char* data, int remaining, TCDescriptor& loop);

    unsigned char StreamType() const;
    unsigned short ElementaryPID() const;
    int ESInfoLength() const { return m_esInfoLength; }

private:
    ZUMHandle m_handle;
    unsigned char m_streamType = 0;
    unsigned short m_elementary_PID = INVALID;
    int m_esInfoLength = 0;
};

// The map of one program: header fields, program_info descriptors, streams.
class ZUM_EXPORT TCPMTInstance : public TCBaseSection, public TCDescriptorHashOwner {
public:
    TCPMTInstance(short pid, const ZUMHandle& handle);
    ~TCPMTInstance() override;

    void DeleteAll() override;

    bool Parse(const unsigned char* body, int length, unsigned short programNumber, char version, int section,
               int last, unsigned int crc, bool currentNext);

    int NumOfElementary() const { return static_cast<int>(m_elementaries.size()); }
    TCPMTElementary* PMTElementary(unsigned int index) const;

    short Pid() const { return m_pid; }
    unsigned short ProgramNumber() const { return m_programNumber; }
    char VersionNumber() const { return m_versionNumber; }
    bool CurrentNextIndicator() const { return m_currentNextIndicator; }
    unsigned char SectionNumber() const { return m_sectionNumber; }
    unsigned char LastSectionNumber() const { return m_lastSectionNumber; }
    unsigned short PCRPid() const { return m_pcrPid; }
    unsigned short ProgramInfoLength() const { return m_programInfoLength; }

private:
    bool m_Parse(const unsigned char* data, int length);

    ZUMHandle m_handle;
    short m_pid;
    unsigned short m_programNumber = 0xFFFF;
    char m_versionNumber = 0;
    bool m_currentNextIndicator = false;
    unsigned char m_sectionNumber = 0;
    unsigned char m_lastSectionNumber = 0;
    unsigned short m_pcrPid = 0xFFFF;
    unsigned short m_programInfoLength = 0;
    std::vector<std::unique_ptr<TCPMTElementary>> m_elementaries;
};

// Program map tables (0x02) of all programs of a transport stream, with an
// optional PID/program filter, and whether the caller's channel list must be
// updated because a program's stream types changed.
class ZUM_EXPORT TCPMTParser : public TCSectionParser {
public:
    // The stream types of one program, in stream order.
    struct TSPmtData {
        TSPmtData() = default;
        explicit TSPmtData(const TCPMTInstance* pInstance);
        bool operator!=(const TSPmtData& other) const { return streamTypes != other.streamTypes; }
        std::list<unsigned char> streamTypes;
    };

    explicit TCPMTParser(const ZUMHandle& handle);
    ~TCPMTParser() override;

    int NumOfPMTInstance() const { return static_cast<int>(m_instances.size()); }
    TCPMTInstance* PMTInstance(unsigned short programNumber) const;
    TCPMTInstance* PMTInstanceOfIndex(unsigned int index) const;

    // Only sections whose PMTKey(pid, program) is a key of `elements` pass.
    void UpdatePMTElements(std::map<int, int>& elements);
    void ClearPMTElements();
    // In unsigned arithmetic, so that a PID of 0x8000 and above shifts cleanly.
    static constexpr int PMTKey(int pid, int programNumber)
    {
        return static_cast<int>((static_cast<unsigned int>(pid) << 16) | static_cast<unsigned int>(programNumber));
    }

    bool IsChannelListUpdateRequired() const { return m_channelListUpdateRequired; }
    unsigned short LastProgramNumber() const { return m_lastProgramNumber; }

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;
    virtual bool t_CheckIfChannelListUpdateRequired(TCPMTInstance* pInstance);

private:
    std::map<unsigned short, std::unique_ptr<TCPMTInstance>> m_instances;
    unsigned short m_lastProgramNumber = 0xFFFF;
    std::map<int, int> m_pmtElements;
    bool m_channelListUpdateRequired = false;
    std::map<unsigned short, TSPmtData> m_pmtData;
};

#endif
