#include "STTParser.h"

#include "../core/ByteReader.h"
#include "../core/Descriptor.h"
#include "../core/Log.h"

namespace {

constexpr int kSttTableId = 0xCD;
constexpr int kOobSttTableId = 0xC5;
// The seven fixed bytes and the CRC_32.
constexpr int kFrameSize = 11;
constexpr int kDescriptorsAt = 7;

} // namespace

TCSTTParser::TCSTTParser(const ZUMHandle& handle) : TCSTTParser(kSttTableId, handle) {}

TCSTTParser::TCSTTParser(int tableId, const ZUMHandle& handle) : TCSectionParser(tableId, handle) {}

TCSTTParser::~TCSTTParser()
{
    TCSTTParser::DeleteAll();
}

void TCSTTParser::DeleteAll()
{
    m_systemTime = 0;
    m_gpsUtcOffset = 0;
    m_daylightSavings = 0;
    m_descriptors.DeleteAll();
}

void TCSTTParser::t_Initialize()
{
    InitSection();
    DeleteAll();
}

bool TCSTTParser::t_CheckPSIPTable(unsigned char /*tableId*/)
{
    return true;
}

bool TCSTTParser::t_Parse(const unsigned char* body, int length)
{
    if (m_tableId != kSttTableId && m_tableId != kOobSttTableId)
        return true;
    if (length < kFrameSize) {
        ZUM_LOGD("TCSTTParser::t_Parse section too short, size = %d", length);
        return false;
    }
    if (m_tableId == kSttTableId) {
        m_systemTime = ReadBE32(body);
        m_gpsUtcOffset = body[4];
        m_daylightSavings = static_cast<unsigned short>(ReadBE16(body + 5));
    } else {
        // protocol_version and a zero byte come first; daylight saving is a descriptor's.
        m_systemTime = ReadBE32(body + 2);
        m_gpsUtcOffset = body[6];
        m_daylightSavings = 0;
    }
    TCDescriptor loop(m_handle);
    loop.Parse(body + kDescriptorsAt, length - kFrameSize, m_descriptors, m_tableId);
    return true;
}

TCOOBSTTParser::TCOOBSTTParser(const ZUMHandle& handle) : TCSTTParser(kOobSttTableId, handle) {}

TCOOBSTTParser::~TCOOBSTTParser() = default;
