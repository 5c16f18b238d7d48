#ifndef ZUM_CORE_SECTIONPARSER_H
#define ZUM_CORE_SECTIONPARSER_H

#include <zum-platform/ZUMHandle.h>

#include "Export.h"

// Base of every table parser: decodes the section header into members and
// hands the table's own body to the subclass hook t_Parse.
class ZUM_EXPORT TCSectionParser {
public:
    virtual ~TCSectionParser();

    // Forgets the table: the subclass's t_Initialize first, then the receipt state.
    virtual void Initialize();

    // `data` holds one whole section, section_length + 3 bytes. True when the
    // section was taken in and its table or sub-table is now complete.
    virtual bool Parse(short pid, const unsigned char* data);

    TCSectionParser(const TCSectionParser&) = delete;
    TCSectionParser& operator=(const TCSectionParser&) = delete;

protected:
    TCSectionParser(int tableId, const ZUMHandle& handle);

    // `length` counts from `body` to the end of the section, CRC_32 included.
    virtual bool t_Parse(const unsigned char* body, int length) = 0;
    virtual void t_Initialize() = 0;
    // True for tables with the PSIP header (protocol_version after last_section_number).
    virtual bool t_CheckPSIPTable(unsigned char tableId);

    const unsigned char* m_pData = nullptr;
    short m_pid = 0;
    unsigned char m_tableId;
    unsigned char m_sectionSyntaxIndicator = 0;
    unsigned char m_privateIndicator = 0;
    short m_sectionLength = 0;
    unsigned short m_tableIdExtension = 0;
    char m_versionNumber = 0;
    unsigned char m_currentNextIndicator = 0;
    unsigned char m_sectionNumber = 0;
    unsigned char m_lastSectionNumber = 0;
    unsigned char m_protocolVersion = 0;
    unsigned int m_crc = 0;
    ZUMHandle m_handle;
    bool m_isParsed = false;
};

#endif
