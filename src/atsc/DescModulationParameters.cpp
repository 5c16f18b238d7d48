#include "DescModulationParameters.h"

#include "../core/ByteReader.h"
#include "../core/Log.h"
#include "../core/RecordAt.h"

namespace {

constexpr int kExceptionSize = 3;

} // namespace

// ---------------------------------------------------------------- frequency

TCDescFrequencySpecification::TCDescFrequencySpecification() : TCBaseDesc(0x90) {}

void TCDescFrequencySpecification::DeleteAll()
{
    m_unit = 0;
    m_frequency = 0;
}

TCBaseDesc* TCDescFrequencySpecification::Fork() const
{
    return t_ForkAs(new TCDescFrequencySpecification());
}

int TCDescFrequencySpecification::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length >= 2) {
        m_unit = (payload[0] >> 7) & 0x01;
        m_frequency = static_cast<unsigned short>(ReadBE16(payload) & 0x7FFF);
    }
    return 2;
}

// ---------------------------------------------------------------- modulation

TCDescModulationParameters::TCDescModulationParameters() : TCBaseDesc(0x91) {}

void TCDescModulationParameters::DeleteAll()
{
    m_transmissionSystem = m_innerCodingMode = m_splitBitstreamMode = m_modulationFormat = 0;
    m_symbolRate = 0;
}

TCBaseDesc* TCDescModulationParameters::Fork() const
{
    return t_ForkAs(new TCDescModulationParameters());
}

int TCDescModulationParameters::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length >= 5) {
        m_transmissionSystem = (payload[0] >> 4) & 0x0F;
        m_innerCodingMode = payload[0] & 0x0F;
        m_splitBitstreamMode = (payload[1] >> 7) & 0x01;
        m_modulationFormat = payload[1] & 0x1F;
        m_symbolRate = ReadBE24(payload + 2) & 0x0FFFFF;
    }
    return 6;
}

// ---------------------------------------------------------------- in-band details

TCDescInBandDetailsChannel::TCDescInBandDetailsChannel() : TCBaseDesc(0x00) {}

void TCDescInBandDetailsChannel::DeleteAll()
{
    m_rfChannel = 0;
    m_programNumber = 0;
}

TCBaseDesc* TCDescInBandDetailsChannel::Fork() const
{
    return t_ForkAs(new TCDescInBandDetailsChannel());
}

int TCDescInBandDetailsChannel::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length >= 3) {
        m_rfChannel = payload[0];
        m_programNumber = static_cast<unsigned short>(ReadBE16(payload + 1));
    }
    return length;
}

// ---------------------------------------------------------------- in-band exceptions

TCDescInBandExceptionChannels::TCDescInBandExceptionChannels() : TCBaseDesc(0x01) {}

void TCDescInBandExceptionChannels::DeleteAll()
{
    m_count = 0;
    m_records = TTRawRun();
}

TCBaseDesc* TCDescInBandExceptionChannels::Fork() const
{
    return t_ForkAs(new TCDescInBandExceptionChannels());
}

int TCDescInBandExceptionChannels::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    const int count = length ? payload[0] : 0;
    if (count == 0 || count * kExceptionSize + 1 != length) {
        ZUM_LOGD("TCDescInBandExceptionChannels::t_Parse ERROR, m_exception_channel_count[%d]", count);
        return 0;
    }
    m_count = static_cast<unsigned char>(count);
    m_records = t_Run(payload, payload + 1, count * kExceptionSize);
    return length;
}

int TCDescInBandExceptionChannels::ExceptionRFChannel(int index) const
{
    const unsigned char* r = RawRecordAt(t_At(m_records), m_count, kExceptionSize, index);
    return r ? r[0] : 0;
}

int TCDescInBandExceptionChannels::ExceptionProgramNumber(int index) const
{
    const unsigned char* r = RawRecordAt(t_At(m_records), m_count, kExceptionSize, index);
    return r ? static_cast<int>(ReadBE16(r + 1)) : 0;
}
