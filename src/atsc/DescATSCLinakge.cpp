#include "DescATSCLinakge.h"

#include "../core/ByteReader.h"
#include "../core/Log.h"
#include "../core/RecordAt.h"
#include "../dvb/DescText.h"

namespace {

constexpr int kProgramNumberBodyLength = 2;

} // namespace

// ---------------------------------------------------------------- linkage

TCDescATSCLinakge::TCDescATSCLinakge() : TCBaseDesc(0x37) {}

void TCDescATSCLinakge::DeleteAll()
{
    m_linkType = 0xFF;
    m_programNumber = 0xFFFF;
    m_url = TTRawRun();
    m_programCode = TTRawRun();
}

TCBaseDesc* TCDescATSCLinakge::Fork() const
{
    return t_ForkAs(new TCDescATSCLinakge());
}

int TCDescATSCLinakge::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length == 0) {
        ZUM_LOGD("TCDescATSCLinakge::t_Parse, len[%i] < 1[%i]", 0, 1);
        return 0;
    }
    m_linkType = payload[0] & 0x07;
    if (m_linkType == 1) {
        if (length != 3) {
            ZUM_LOGD("TCDescATSCLinakge::t_Parse, len[%i] < PROGRAM_NUMBER_BODY_LENGTH[%i]", length,
                     kProgramNumberBodyLength);
            return length;
        }
        m_programNumber = static_cast<unsigned short>(ReadBE16(payload + 1));
        return 3;
    }
    if (m_linkType != 2)
        return 1;
    if (length < 3) {
        ZUM_LOGD("TCDescATSCLinakge::t_Parse, len[%i] < 3[%i]", length, 3);
        return length;
    }
    const int urlLength = static_cast<int>(ReadBE16(payload + 1));
    if (urlLength + 3 > length) {
        ZUM_LOGD("TCDescATSCLinakge::t_Parse, len[%i] < m_URL_Length[%i]", length, urlLength);
        return length;
    }
    m_url = t_Run(payload, payload + 3, urlLength);
    const int codeAt = 3 + urlLength;
    const int codeLength = codeAt < length ? payload[codeAt] & 0x1F : -1;
    if (codeLength < 0 || codeAt + 1 + codeLength > length) {
        ZUM_LOGD("TCDescATSCLinakge::t_Parse, len[%i] < m_Program_Code_Length[%i]", length, codeLength);
        return length;
    }
    m_programCode = t_Run(payload, payload + codeAt + 1, codeLength);
    return urlLength + codeLength + 4;
}

bool TCDescATSCLinakge::GetURLByte(char* url, int* length) const
{
    return zum_text::Copy(t_At(m_url), m_url.length, url, length);
}

bool TCDescATSCLinakge::GetProgramCode(char* code, int* length) const
{
    return zum_text::Copy(t_At(m_programCode), m_programCode.length, code, length);
}

// ---------------------------------------------------------------- private information

TCDescATSCPrivateInformation::TCDescATSCPrivateInformation() : TCBaseDesc(0xAD) {}

void TCDescATSCPrivateInformation::DeleteAll()
{
    m_formatIdentifier = 0xFFFFFFFF;
    m_detailCount = 0;
    m_details.clear();
}

TCBaseDesc* TCDescATSCPrivateInformation::Fork() const
{
    return t_ForkAs(new TCDescATSCPrivateInformation());
}

int TCDescATSCPrivateInformation::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length < 4) {
        ZUM_LOGD("TCDescATSCPrivateInformation::t_Parse, len[%i] < 4[%i]", length, 4);
        return length;
    }
    m_formatIdentifier = ReadBE32(payload);
    if (m_formatIdentifier != kFormatTTA0 || length == 4)
        return length;
    m_detailCount = payload[4];
    if (m_detailCount == 0) {
        ZUM_LOGD("TCDescATSCPrivateInformation::t_Parse, There is no Private_Info_Detail data");
        return 5;
    }
    int offset = 5;
    for (int i = 0; i < m_detailCount; ++i) {
        if (length - offset < 2)
            return offset;
        TTPrivateInfoDetail detail;
        detail.type = static_cast<TTA0_TYPE>(payload[offset]);
        detail.length = payload[offset + 1];
        const unsigned char* data = payload + offset + 2;
        if (detail.type == TTA0_TYPE_1 && detail.length != 1) {
            ZUM_LOGD("TCDescATSCPrivateInformation::t_Parse, Invalid PrivateInfo Length [%d]", detail.length);
            return offset + 2;
        }
        if (detail.type == TTA0_TYPE_2 && detail.length != 2) {
            ZUM_LOGD("TCDescATSCPrivateInformation::t_Parse, Invalid PrivateInfo Type2 Length [%d]", detail.length);
            return offset + 2;
        }
        // The bytes a detail claims must lie in the body.
        if (offset + 2 + detail.length > length)
            return offset + 2;
        switch (detail.type) {
        case TTA0_TYPE_1:
            detail.value[0] = (data[0] >> 7) & 0x01;
            detail.value[1] = (data[0] >> 6) & 0x01;
            detail.value[2] = data[0] & 0x3F;
            detail.value[3] = detail.value[4] = detail.value[5] = 0xFF;
            break;
        case TTA0_TYPE_2:
            detail.value[0] = detail.value[1] = 1;
            detail.value[2] = 0xFF;
            detail.value[3] = data[0];
            detail.value[4] = (data[1] >> 4) & 0x0F;
            detail.value[5] = data[1] & 0x0F;
            break;
        default:
            ZUM_LOGD("TCDescATSCPrivateInformation::t_Parse, undefined Length [%d]", detail.length);
            detail.value[0] = detail.value[1] = 1;
            detail.value[2] = detail.value[3] = detail.value[4] = detail.value[5] = 0xFF;
            break;
        }
        m_details.push_back(detail);
        offset += 2 + detail.length;
    }
    return offset;
}

void TCDescATSCPrivateInformation::GetPrivateInfoDetail(int index, TTPrivateInfoDetail& out) const
{
    if (const TTPrivateInfoDetail* detail = RecordAt(m_details, index))
        out = *detail;
}

bool TCDescATSCPrivateInformation::GetPrivateInfoDetailByType(TTA0_TYPE type, TTPrivateInfoDetail& out) const
{
    for (const TTPrivateInfoDetail& detail : m_details)
        if (detail.type == type) {
            out = detail;
            return true;
        }
    return false;
}
