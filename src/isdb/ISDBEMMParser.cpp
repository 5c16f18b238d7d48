#include "ISDBEMMParser.h"

#include <algorithm>

#include "../core/ByteReader.h"
#include "../core/Log.h"
#include "ISDBTableUtil.h"

namespace {

constexpr int kCardIdSize = 6;
// Head of 13 bytes and the authentication field.
constexpr int kFixedSize = 17;
// A record and the CRC field behind the last one.
constexpr int kMinRemaining = kFixedSize + 4;

} // namespace

// ---------------------------------------------------------------- TCISDBEMMPayload

bool TCISDBEMMPayload::Parse(const unsigned char* data, int length, int& consumed)
{
    consumed = 0;
    if (!data || length < kFixedSize)
        return true;
    m_cardId.assign(data, data + kCardIdSize);
    m_associatedLength = data[6];
    m_protocolNumber = data[7];
    m_broadcasterGroupId = data[8];
    m_updateNumber = static_cast<unsigned short>(ReadBE16(data + 9));
    m_expirationDate = static_cast<unsigned short>(ReadBE16(data + 11));
    const int variable = std::max(0, std::min(length - kFixedSize, m_associatedLength - 10));
    m_variablePart.assign(data + 13, data + 13 + variable);
    m_authentication = ReadBE32(data + 13 + variable);
    consumed = kFixedSize + variable;
    m_record.assign(data, data + consumed);
    return true;
}

bool TCISDBEMMPayload::GetPayload(int& length, unsigned char* out) const
{
    return zum_isdb::CopyOut(m_record, length, out);
}

bool TCISDBEMMPayload::GetVariablePart(int& length, unsigned char* out) const
{
    return zum_isdb::CopyOut(m_variablePart, length, out);
}

bool TCISDBEMMPayload::CardID(int& length, unsigned char* out) const
{
    return zum_isdb::CopyOut(m_cardId, length, out);
}

// ---------------------------------------------------------------- TCISDBEMMParser

TCISDBEMMParser::TCISDBEMMParser(const ZUMHandle& handle) : TCSectionParser(0x84, handle) {}

TCISDBEMMParser::~TCISDBEMMParser() = default;

void TCISDBEMMParser::DeleteAll()
{
    m_records.clear();
}

void TCISDBEMMParser::t_Initialize()
{
    InitSection();
    DeleteAll();
}

TCISDBEMMPayload* TCISDBEMMParser::PayloadOfIndex(unsigned int index) const
{
    return zum_isdb::At(m_records, index);
}

bool TCISDBEMMParser::t_Parse(const unsigned char* body, int length)
{
    const int check = t_CheckVersion(m_versionNumber, m_sectionNumber, m_lastSectionNumber, m_crc);
    if (check == TABLE_SAME)
        return false;
    if (check == TABLE_IGNORE) {
        ZUM_LOGD("EMM Section ignored...");
        return false;
    }
    for (int at = 0; length - at >= kMinRemaining;) {
        std::unique_ptr<TCISDBEMMPayload> record(new TCISDBEMMPayload());
        int consumed = 0;
        record->Parse(body + at, length - at, consumed);
        m_records.push_back(std::move(record));
        at += consumed;
    }
    return IsValid();
}
