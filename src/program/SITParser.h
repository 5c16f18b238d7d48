#ifndef ZUM_PROGRAM_SITPARSER_H
#define ZUM_PROGRAM_SITPARSER_H

#include <climits>
#include <memory>
#include <string>
#include <vector>

#include <zum-platform/ZUMHandle.h>

#include "../core/BaseSection.h"
#include "../core/DescriptorHash.h"
#include "../core/SectionParser.h"

// One program record of an SIT section: number, kind, start, duration and
// up to five texts. The library carries the values; their meaning is the
// broadcaster's.
class ZUM_EXPORT TCSITProgram {
public:
    // Text slots; the title is the only one with a name of its own.
    enum { TEXT_TYPE_TITLE = 0, MAX_TEXT_TYPE = 5 };

    TCSITProgram() = default;
    virtual ~TCSITProgram() = default;

    // Reads one record at `data`, bounded by `length` bytes. Answers the bytes
    // taken, -1 for a program kind above 5 (refused), 0 when the record does
    // not fit in `length`.
    int Parse(const unsigned char* data, int length = INT_MAX);

    unsigned short ProgramNumber() const { return m_programNumber; }
    unsigned char ProgramKind() const { return m_programKind; }
    unsigned int StartTime() const { return m_startTime; }
    bool Flag() const { return m_flag; }
    unsigned char Code() const { return m_code; }
    unsigned int Duration() const { return m_duration; }

    // Replaces the text of slot `type`.
    void SetText(char* text, int length, int type);
    // Copies the text of slot `type` into `text`, whose capacity is `*length`:
    // a text that fits sets `*length` to its size, a longer one is cut and
    // `*length` stays. False for a bad slot, a null buffer or no capacity.
    bool GetText(char* text, int* length, int type) const;
    int TextLength(int type) const;

private:
    unsigned short m_programNumber = 0;
    unsigned char m_programKind = 0;
    unsigned int m_startTime = 0;
    bool m_flag = false;
    unsigned char m_code = 0;
    unsigned int m_duration = 0;
    std::string m_text[MAX_TEXT_TYPE];
};

// SIT (0xD5 unless told otherwise): a table of the PSIP shape that lists
// program records and carries one descriptor loop per section.
class ZUM_EXPORT TCSITParser : public TCSectionParser, public TCBaseSection, public TCDescriptorHashOwner {
public:
    explicit TCSITParser(const ZUMHandle& handle);
    TCSITParser(int tableId, const ZUMHandle& handle);
    ~TCSITParser() override;

    // Resets the count and the loop length, drops every program and descriptor.
    void DeleteAll() override;

    // The index-th program in order of arrival; null behind the end. The parser owns it.
    TCSITProgram* Program(unsigned int index) const;
    int NumOfPrograms() const { return static_cast<int>(m_programs.size()); }
    // The count byte and the descriptors length of the last section parsed.
    unsigned char ProgramCount() const { return m_programCount; }
    int DescriptorsLength() const { return m_descriptorsLength; }

    bool IsRecv() const { return m_isParsed && IsValid(); }

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;
    bool t_CheckPSIPTable(unsigned char tableId) override;

private:
    unsigned char m_programCount = 0;
    std::vector<std::unique_ptr<TCSITProgram>> m_programs;
    int m_descriptorsLength = 0;
};

#endif
