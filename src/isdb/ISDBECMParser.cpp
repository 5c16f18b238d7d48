#include "ISDBECMParser.h"

#include "../core/ByteReader.h"
#include "../core/Log.h"
#include "ISDBTableUtil.h"

namespace {

// Fixed part of 26 bytes, authentication field and CRC field.
constexpr int kMinLength = 34;
constexpr int kKeySize = 8;

} // namespace

TCISDBECMParser::TCISDBECMParser(const ZUMHandle& handle) : TCSectionParser(0x82, handle) {}

TCISDBECMParser::~TCISDBECMParser() = default;

void TCISDBECMParser::DeleteAll()
{
    for (unsigned char& b : m_head)
        b = 0;
    m_keyOdd.clear();
    m_keyEven.clear();
    m_judgementType = 0;
    m_dateTime = 0;
    m_recordingControl = 0;
    m_authentication = 0;
    m_variablePart.clear();
    m_payload.clear();
}

void TCISDBECMParser::t_Initialize()
{
    InitSection();
    DeleteAll();
}

bool TCISDBECMParser::t_Parse(const unsigned char* body, int length)
{
    const int check = t_CheckVersion(m_versionNumber, m_sectionNumber, m_lastSectionNumber, m_crc);
    if (check == TABLE_SAME)
        return false;
    if (check == TABLE_IGNORE) {
        ZUM_LOGD("ECM Section ignored...");
        return false;
    }
    if (length < kMinLength)
        return false;
    for (int i = 0; i < 3; ++i)
        m_head[i] = body[i];
    m_keyOdd.assign(body + 3, body + 3 + kKeySize);
    m_keyEven.assign(body + 11, body + 11 + kKeySize);
    m_judgementType = body[19];
    m_dateTime = zum_isdb::StartTime(body + 20);
    m_recordingControl = body[25];
    const int authAt = length - 8;
    m_variablePart.assign(body + 26, body + authAt);
    m_authentication = ReadBE32(body + authAt);
    m_payload.assign(body, body + authAt + 4);
    return IsValid();
}

bool TCISDBECMParser::GetPayload(int& length, unsigned char* out) const
{
    return zum_isdb::CopyOut(m_payload, length, out);
}

bool TCISDBECMParser::GetScramblingKeyOdd(int& length, unsigned char* out) const
{
    return zum_isdb::CopyOut(m_keyOdd, length, out);
}

bool TCISDBECMParser::GetScramblingKeyEven(int& length, unsigned char* out) const
{
    return zum_isdb::CopyOut(m_keyEven, length, out);
}

bool TCISDBECMParser::GetVariablePart(int& length, unsigned char* out) const
{
    return zum_isdb::CopyOut(m_variablePart, length, out);
}
