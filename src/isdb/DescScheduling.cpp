#include "DescScheduling.h"

#include "../core/ByteReader.h"
#include "../core/RecordAt.h"

namespace {

unsigned long long ReadBE40(const unsigned char* p)
{
    return (static_cast<unsigned long long>(p[0]) << 32) | ReadBE32(p + 1);
}

} // namespace

// ---------------------------------------------------------------- scheduling

TCDescScheduling::TCDescScheduling() : TCBaseDesc(0x01) {}

TCDescScheduling::~TCDescScheduling()
{
    DeleteAll();
}

void TCDescScheduling::DeleteAll()
{
    m_private = TTRawRun();
}

TCBaseDesc* TCDescScheduling::Fork() const
{
    return t_ForkAs(new TCDescScheduling());
}

int TCDescScheduling::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    // The fixed part is read only where the descriptor holds it.
    if (length < 10)
        return 0;
    m_startDateTime = ReadBE40(payload);
    m_endDateTime = ReadBE40(payload + 5);
    if (length < 14)
        return 10;
    const unsigned char units = payload[10];
    m_finalAvailability = units >> 7;
    m_periodicityFlag = (units >> 6) & 0x01;
    m_periodUnit = (units >> 4) & 0x03;
    m_durationUnit = (units >> 2) & 0x03;
    m_estimatedCycleTimeUnit = units & 0x03;
    m_period = payload[11];
    m_duration = payload[12];
    m_estimatedCycleTime = payload[13];
    if (length - 14 < 1)
        return 14;
    m_private = t_Run(payload, payload + 14, length - 14);
    return length;
}

// ---------------------------------------------------------------- service availability

TCDescServiceAvailability::TCDescServiceAvailability() : TCBaseDesc(0x72) {}

TCDescServiceAvailability::~TCDescServiceAvailability()
{
    DeleteAll();
}

void TCDescServiceAvailability::DeleteAll()
{
    m_count = 0;
    m_stored = 0;
}

TCBaseDesc* TCDescServiceAvailability::Fork() const
{
    return t_ForkAs(new TCDescServiceAvailability());
}

int TCDescServiceAvailability::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    m_availabilityFlag = payload[0] >> 7;
    m_count = (length - 1) / 2;
    if (length < 3)
        return 1;
    m_stored = m_count;
    return 1 + 2 * m_count;
}

unsigned short TCDescServiceAvailability::CellId(int index) const
{
    const unsigned char* payload = t_Payload();
    const unsigned char* id = RawRecordAt(payload ? payload + 1 : nullptr, m_stored, 2, index);
    return id ? static_cast<unsigned short>(ReadBE16(id)) : 0xFFFF;
}

// ---------------------------------------------------------------- service identifier

TCDescServiceIdentifier::TCDescServiceIdentifier() : TCBaseDesc(0x71) {}

TCDescServiceIdentifier::~TCDescServiceIdentifier()
{
    DeleteAll();
}

void TCDescServiceIdentifier::DeleteAll()
{
    m_identifier = TTRawRun();
}

TCBaseDesc* TCDescServiceIdentifier::Fork() const
{
    return t_ForkAs(new TCDescServiceIdentifier());
}

int TCDescServiceIdentifier::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    m_identifier = t_Run(payload, payload, length);
    return length;
}

std::string TCDescServiceIdentifier::ServiceIdentifier() const
{
    const unsigned char* at = t_At(m_identifier);
    return at ? std::string(reinterpret_cast<const char*>(at), m_identifier.length) : std::string();
}

// ---------------------------------------------------------------- PDC

TCDescPDC::TCDescPDC() : TCBaseDesc(0x69) {}

TCDescPDC::~TCDescPDC()
{
    DeleteAll();
}

void TCDescPDC::DeleteAll() {}

TCBaseDesc* TCDescPDC::Fork() const
{
    return t_ForkAs(new TCDescPDC());
}

int TCDescPDC::t_Parse(const unsigned char* payload, unsigned char length)
{
    if (length < 3)
        return 0;
    m_label = ReadBE24(payload) & 0xFFFFF;
    return 3;
}

// ---------------------------------------------------------------- transport stream id

TCDescTransportStreamID::TCDescTransportStreamID() : TCBaseDesc(0x92) {}

TCDescTransportStreamID::~TCDescTransportStreamID()
{
    DeleteAll();
}

void TCDescTransportStreamID::DeleteAll() {}

TCBaseDesc* TCDescTransportStreamID::Fork() const
{
    return t_ForkAs(new TCDescTransportStreamID());
}

int TCDescTransportStreamID::t_Parse(const unsigned char* payload, unsigned char length)
{
    if (length < 2)
        return 0;
    m_transportStreamId = static_cast<unsigned short>(ReadBE16(payload));
    return 2;
}
