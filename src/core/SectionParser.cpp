#include "SectionParser.h"

#include "ByteReader.h"
#include "Log.h"

TCSectionParser::TCSectionParser(int tableId, const ZUMHandle& handle)
    : m_tableId(static_cast<unsigned char>(tableId & 0xFF)), m_handle(handle)
{
}

TCSectionParser::~TCSectionParser() = default;

void TCSectionParser::Initialize()
{
    t_Initialize();
    m_isParsed = false;
    m_pData = nullptr;
    m_sectionLength = 0;
}

bool TCSectionParser::t_CheckPSIPTable(unsigned char /*tableId*/)
{
    return false;
}

bool TCSectionParser::Parse(short pid, const unsigned char* data)
{
    // A refused section counts as an entry too, a null one included.
    m_isParsed = true;
    if (!data)
        return false;
    m_pid = pid;
    m_pData = data;
    m_tableId = data[0];
    m_sectionSyntaxIndicator = (data[1] >> 7) & 0x01;
    m_privateIndicator = (data[1] >> 6) & 0x01;
    const int length = ((data[1] & 0x0F) << 8) | data[2];
    m_sectionLength = static_cast<short>(length);

    if (!m_sectionSyntaxIndicator)
        return t_Parse(data + 3, length);

    // Header fields are read only as far as the section reaches; the CRC_32 is
    // always the last four bytes, even where they overlap the header.
    m_tableIdExtension = length >= 2 ? static_cast<unsigned short>((data[3] << 8) | data[4]) : 0;
    m_versionNumber = length >= 3 ? static_cast<char>((data[5] >> 1) & 0x1F) : 0;
    m_currentNextIndicator = length >= 3 ? (data[5] & 0x01) : 0;
    m_sectionNumber = length >= 4 ? data[6] : 0;
    m_lastSectionNumber = length >= 5 ? data[7] : 0;
    m_crc = length >= 1 ? ReadBE32(data + length - 1) : 0;

    if (t_CheckPSIPTable(m_tableId)) {
        if (length < 6) {
            ZUM_LOGE("[TCSectionParser::%s] psip section too short, length:%d", "Parse", length);
            return false;
        }
        m_protocolVersion = data[8];
        if (m_protocolVersion != 0 || m_currentNextIndicator == 0) {
            ZUM_LOGD("Protocol_Version error tid=0x%x, pv=%d, cnid[%d]", m_tableId, m_protocolVersion,
                     m_currentNextIndicator);
            return false;
        }
        return t_Parse(data + 9, length - 6);
    }

    if (length <= 4) {
        ZUM_LOGE("[TCSectionParser::%s] dvb section too short, length:%d", "Parse", length);
        return false;
    }
    return t_Parse(data + 8, length - 5);
}
