#include "DescDTCP.h"

#include <cstring>

#include "../core/ByteReader.h"
#include "../core/Diagnostics.h"
#include "../core/Log.h"
#include "../dvb/DescText.h"

namespace {

// A 33-bit time base: bit 0 of the first byte is bit 32.
unsigned long long TimeBase(TCByteReader& reader)
{
    const unsigned long long high = reader.U8() & 0x01;
    return (high << 32) | reader.U32();
}

// The copy that refuses to truncate: a short buffer gets nothing and size 0.
template <class Size>
bool CopyWhole(const unsigned char* stored, int storedLength, unsigned char* out, Size* length)
{
    if (!stored || storedLength <= 0 || *length < storedLength) {
        *length = 0;
        return false;
    }
    std::memcpy(out, stored, static_cast<size_t>(storedLength));
    *length = static_cast<Size>(storedLength);
    return true;
}

} // namespace

// ---------------------------------------------------------------- DTCP

TCDescDTCP::TCDescDTCP() : TCBaseDesc(0x88) {}

TCDescDTCP::~TCDescDTCP()
{
    DeleteAll();
}

void TCDescDTCP::DeleteAll()
{
    m_caSystemId = 0;
    m_retentionMoveMode = m_retentionState = m_epn = m_dtcpCci = 0;
    m_imageConstraintToken = m_aps = 0;
}

TCBaseDesc* TCDescDTCP::Fork() const
{
    return t_ForkAs(new TCDescDTCP());
}

int TCDescDTCP::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length != 4) {
        ZUM_LOGD("TCDescDTCP Length is not valid... length = %d", length);
        return 0;
    }
    m_caSystemId = static_cast<unsigned short>(ReadBE16(payload));
    m_retentionMoveMode = (payload[2] >> 6) & 1;
    m_retentionState = (payload[2] >> 3) & 0x07;
    m_epn = (payload[2] >> 2) & 1;
    m_dtcpCci = payload[2] & 0x03;
    m_imageConstraintToken = (payload[3] >> 2) & 1;
    m_aps = payload[3] & 0x03;
    return 4;
}

// ---------------------------------------------------------------- redistribution control

TCDescRedistributionControl::TCDescRedistributionControl() : TCBaseDesc(0xAA) {}

TCDescRedistributionControl::~TCDescRedistributionControl()
{
    DeleteAll();
}

void TCDescRedistributionControl::DeleteAll()
{
    m_information = TTRawRun();
}

TCBaseDesc* TCDescRedistributionControl::Fork() const
{
    return t_ForkAs(new TCDescRedistributionControl());
}

int TCDescRedistributionControl::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    m_information = t_Run(payload, payload, length);
    return length;
}

bool TCDescRedistributionControl::GetRCInformation(unsigned char* out, unsigned char* length) const
{
    return zum_text::Copy(t_At(m_information), m_information.length, out, length);
}

// ---------------------------------------------------------------- content labeling

TCDescContentLabeling::TCDescContentLabeling() : TCBaseDesc(0x24) {}

TCDescContentLabeling::~TCDescContentLabeling()
{
    DeleteAll();
}

void TCDescContentLabeling::DeleteAll()
{
    m_applicationFormat = 0;
    m_applicationFormatIdentifier = 0;
    m_contentReferenceIdFlag = m_contentTimeBaseIndicator = 0;
    m_contentReferenceId = TTRawRun();
    m_contentTimeBaseValue = m_metadataTimeBaseValue = 0;
    m_contentId = m_timeBaseAssociationDataLength = 0;
    m_privateData = TTRawRun();
}

TCBaseDesc* TCDescContentLabeling::Fork() const
{
    return t_ForkAs(new TCDescContentLabeling());
}

int TCDescContentLabeling::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    TCByteReader reader(payload, length);
    m_applicationFormat = static_cast<unsigned short>(reader.U16());
    const bool identified = m_applicationFormat == 0xFFFF;
    if (identified)
        m_applicationFormatIdentifier = reader.U32();
    const unsigned int flags = reader.U8();
    m_contentReferenceIdFlag = (flags >> 7) & 1;
    m_contentTimeBaseIndicator = (flags >> 3) & 0x0F;
    if (m_contentReferenceIdFlag) {
        const int recordLength = static_cast<int>(reader.U8());
        if (recordLength + 3 + (identified ? 7 : 0) > length || !reader.Has(recordLength)) {
            DeleteAll();
            return 0;
        }
        m_contentReferenceId = zum_text::TakeRun<TTRawRun>(reader, payload, recordLength);
    }
    if (m_contentTimeBaseIndicator == 1 || m_contentTimeBaseIndicator == 2) {
        // Fixed fields: a body that ends inside them keeps the fields it held.
        if (reader.Has(5))
            m_contentTimeBaseValue = TimeBase(reader);
        if (reader.Has(5))
            m_metadataTimeBaseValue = TimeBase(reader);
        if (m_contentTimeBaseIndicator == 2 && reader.Has(1))
            m_contentId = reader.U8() & 0x7F;
    } else if (m_contentTimeBaseIndicator >= 3 && m_contentTimeBaseIndicator <= 7) {
        m_timeBaseAssociationDataLength = static_cast<unsigned char>(reader.U8());
        if (!reader.Skip(m_timeBaseAssociationDataLength))
            reader.SkipToEnd();
    }
    if (reader.Left() <= 0)
        return reader.Consumed();
    m_privateData = zum_text::TakeRun<TTRawRun>(reader, payload, reader.Left());
    return length;
}

bool TCDescContentLabeling::ContentReferenceIdByte(unsigned char* out, unsigned char* length) const
{
    unsigned char* pContentRef = out;
    unsigned char* pLength = length;
    if (!ZUM_ASSERT(pContentRef && pLength))
        return false;
    return CopyWhole(t_At(m_contentReferenceId), m_contentReferenceId.length, out, length);
}

bool TCDescContentLabeling::PrivateData(unsigned char* out, int* length) const
{
    unsigned char* pPrivateData = out;
    int* pLength = length;
    if (!ZUM_ASSERT(pPrivateData && pLength))
        return false;
    return CopyWhole(t_At(m_privateData), m_privateData.length, out, length);
}
