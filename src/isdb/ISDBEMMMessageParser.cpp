#include "ISDBEMMMessageParser.h"

#include <cstring>

#include "../core/ByteReader.h"
#include "../core/Log.h"
#include "ISDBTableUtil.h"

namespace {

constexpr int kCommonHead = 9;
constexpr int kIndividualHead = 12;
constexpr int kCrcSize = 4;

} // namespace

// ---------------------------------------------------------------- TCISDBEMMMessagePayload

TCISDBEMMMessagePayload::~TCISDBEMMMessagePayload() = default;

bool TCISDBEMMMessagePayload::GetMessageArea(int& length, unsigned char* out) const
{
    return zum_isdb::CopyOut(m_messageArea, length, out);
}

// ---------------------------------------------------------------- TCISDBEMMCommonMessage

TCISDBEMMCommonMessage::TCISDBEMMCommonMessage(unsigned short presetTextNumber)
    : TCISDBEMMMessagePayload(kCommon), m_presetTextNumber(presetTextNumber)
{
}

bool TCISDBEMMCommonMessage::Parse(const unsigned char* data, int length, int& consumed)
{
    consumed = 0;
    if (!data || length < kCommonHead + kCrcSize)
        return false;
    const int messageLength = static_cast<int>(ReadBE16(data + 7));
    if (messageLength != length - kCommonHead - kCrcSize) {
        ZUM_LOGD("TCISDBEMMCommonMessage::Parse return!message_length_=%d len_in=%d, pos=%d", messageLength, length,
                 kCommonHead);
        return false;
    }
    m_storedByte = data[0];
    std::memcpy(m_stored, data + 1, sizeof(m_stored));
    m_messageLength = static_cast<unsigned short>(messageLength);
    m_messageArea.assign(data + kCommonHead, data + kCommonHead + messageLength);
    consumed = kCommonHead + messageLength;
    return true;
}

// ---------------------------------------------------------------- TCISDBEMMIndividualMessage

TCISDBEMMIndividualMessage::TCISDBEMMIndividualMessage() : TCISDBEMMMessagePayload(kIndividual) {}

bool TCISDBEMMIndividualMessage::Parse(const unsigned char* data, int length, int& consumed)
{
    consumed = 0;
    if (!data || length < kIndividualHead)
        return false;
    // The length field counts four bytes besides the message; one below that is refused too.
    const int messageLength = static_cast<int>(ReadBE16(data + 6)) - 4;
    if (messageLength < 0 || length - kIndividualHead - messageLength < kCrcSize) {
        ZUM_LOGD("TCISDBEMMIndividualMessage::Parse return!message_length_=%d len_in=%d, pos=%d", messageLength,
                 length, kIndividualHead);
        return false;
    }
    m_cardId.assign(data, data + 6);
    m_stored[0] = data[8];
    m_storedByte = data[9];
    m_stored[1] = data[10];
    m_stored[2] = data[11];
    m_messageLength = static_cast<unsigned short>(messageLength);
    m_messageArea.assign(data + kIndividualHead, data + kIndividualHead + messageLength);
    consumed = kIndividualHead + messageLength;
    ZUM_LOGD("TCISDBEMMIndividualMessage::Parse   message_length_=%d len_in=%d, len_out=%d", messageLength, length,
             length - consumed);
    return true;
}

bool TCISDBEMMIndividualMessage::CardID(int& length, unsigned char* out) const
{
    return zum_isdb::CopyOut(m_cardId, length, out);
}

// ---------------------------------------------------------------- TCISDBEMMMessageParser

TCISDBEMMMessageParser::TCISDBEMMMessageParser(const ZUMHandle& handle) : TCSectionParser(0x85, handle) {}

TCISDBEMMMessageParser::~TCISDBEMMMessageParser() = default;

void TCISDBEMMMessageParser::DeleteAll()
{
    m_messages.clear();
}

void TCISDBEMMMessageParser::t_Initialize()
{
    InitSection();
    DeleteAll();
}

TCISDBEMMMessagePayload* TCISDBEMMMessageParser::MessageOfIndex(unsigned int index) const
{
    return zum_isdb::At(m_messages, index);
}

bool TCISDBEMMMessageParser::t_Parse(const unsigned char* body, int length)
{
    const int check = t_CheckVersion(m_versionNumber, m_sectionNumber, m_lastSectionNumber, m_crc);
    if (check == TABLE_SAME)
        return false;
    if (check == TABLE_IGNORE) {
        ZUM_LOGD("EMM Message ignored...");
        return false;
    }
    int consumed = 0;
    if (m_tableIdExtension != 0) {
        if (length < kCommonHead + kCrcSize)
            return IsValid();
        std::unique_ptr<TCISDBEMMCommonMessage> message(new TCISDBEMMCommonMessage(m_tableIdExtension));
        if (!message->Parse(body, length, consumed))
            return false;
        m_messages.push_back(std::move(message));
        return IsValid();
    }
    for (int at = 0; length - at >= 16;) {
        std::unique_ptr<TCISDBEMMIndividualMessage> message(new TCISDBEMMIndividualMessage());
        if (!message->Parse(body + at, length - at, consumed))
            break;
        m_messages.push_back(std::move(message));
        at += consumed;
    }
    return IsValid();
}
