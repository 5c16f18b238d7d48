#include "DescCaptionService.h"

#include "../core/ByteReader.h"
#include "../core/Diagnostics.h"
#include "../core/Log.h"
#include "../core/RecordAt.h"

namespace {

constexpr int kRecordSize = 6;

} // namespace

TCDescCaptionService::TCDescCaptionService() : TCBaseDesc(0x86) {}

TCDescCaptionService::~TCDescCaptionService()
{
    DeleteAll();
}

void TCDescCaptionService::DeleteAll()
{
    m_numberOfServices = 0;
    m_recordsHeld = 0;
    m_records = TTRawRun();
}

TCBaseDesc* TCDescCaptionService::Fork() const
{
    return t_ForkAs(new TCDescCaptionService());
}

int TCDescCaptionService::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length < 1)
        return length;
    m_numberOfServices = payload[0] & 0x1F;
    int held = m_numberOfServices;
    if (1 + held * kRecordSize > length) {
        ZUM_LOGD("TCDescCaptionService::t_Parse wrong number of services");
        held = (length - 1) / kRecordSize;
    }
    m_recordsHeld = static_cast<unsigned char>(held);
    m_records = t_Run(payload, payload + 1, held * kRecordSize);
    return length;
}

const unsigned char* TCDescCaptionService::m_Record(unsigned char index, unsigned int& answer) const
{
    // Named as the assertion reports it: the records exist once services are announced.
    const bool m_service = m_numberOfServices > 0;
    if (!ZUM_ASSERT(m_service)) {
        answer = 0;
        return nullptr;
    }
    answer = kAbsent;
    return RawRecordAt(t_At(m_records), m_recordsHeld, kRecordSize, index);
}

unsigned int TCDescCaptionService::Language(unsigned char index) const
{
    return m_Field(index, [](const unsigned char* r) { return ReadBE24(r); });
}

unsigned int TCDescCaptionService::CcType(unsigned char index) const
{
    return m_Field(index, [](const unsigned char* r) { return (r[3] >> 7) & 0x01u; });
}

unsigned int TCDescCaptionService::Line21Field(unsigned char index) const
{
    return m_Field(index, [](const unsigned char* r) { return (r[3] & 0x80) ? 0xFFu : (r[3] & 0x01u); });
}

unsigned int TCDescCaptionService::CaptionServiceNumber(unsigned char index) const
{
    return m_Field(index, [](const unsigned char* r) { return (r[3] & 0x80) ? (r[3] & 0x3Fu) : 0xFFu; });
}

unsigned int TCDescCaptionService::EasyReader(unsigned char index) const
{
    return m_Field(index, [](const unsigned char* r) { return (r[4] >> 7) & 0x01u; });
}

unsigned int TCDescCaptionService::WideAspectRatio(unsigned char index) const
{
    return m_Field(index, [](const unsigned char* r) { return (r[4] >> 6) & 0x01u; });
}

unsigned int TCDescCaptionService::KoreanCode(unsigned char index) const
{
    return m_Field(index, [](const unsigned char* r) { return (r[4] >> 5) & 0x01u; });
}
