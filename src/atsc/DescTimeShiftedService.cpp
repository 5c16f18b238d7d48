#include "DescTimeShiftedService.h"

#include "../core/ByteReader.h"
#include "../core/Log.h"
#include "../core/RecordAt.h"

namespace {

constexpr int kServiceSize = 5;

} // namespace

// ---------------------------------------------------------------- time shifted service

TCDescTimeShiftedService::TCDescTimeShiftedService() : TCBaseDesc(0xA2) {}

TCDescTimeShiftedService::~TCDescTimeShiftedService()
{
    DeleteAll();
}

void TCDescTimeShiftedService::DeleteAll()
{
    m_services.clear();
}

TCBaseDesc* TCDescTimeShiftedService::Fork() const
{
    return t_ForkAs(new TCDescTimeShiftedService());
}

int TCDescTimeShiftedService::t_Parse(const unsigned char* payload, unsigned char length)
{
    const int count = length ? payload[0] & 0x1F : 0;
    if (count == 0 || count * kServiceSize + 1 != length)
        return 0;
    DeleteAll();
    m_services.reserve(static_cast<size_t>(count));
    for (const unsigned char* r = payload + 1; r < payload + length; r += kServiceSize)
        m_services.push_back({static_cast<unsigned short>(ReadBE16(r) & 0x03FF),
                              static_cast<unsigned short>((r[2] & 0x0F) << 6 | r[3] >> 2),
                              static_cast<unsigned short>((r[3] & 0x03) << 8 | r[4])});
    return count * kServiceSize + 1;
}

int TCDescTimeShiftedService::TimeShift(int index) const
{
    return FieldAt(m_services, index, &TTService::timeShift);
}

int TCDescTimeShiftedService::MajorChannelNumber(int index) const
{
    return FieldAt(m_services, index, &TTService::major);
}

int TCDescTimeShiftedService::MinorChannelNumber(int index) const
{
    return FieldAt(m_services, index, &TTService::minor);
}

// ---------------------------------------------------------------- two part channel

TCDescTwoPartChannel::TCDescTwoPartChannel() : TCBaseDesc(0x94) {}

void TCDescTwoPartChannel::DeleteAll()
{
    m_major = m_minor = 0xFFFF;
}

TCBaseDesc* TCDescTwoPartChannel::Fork() const
{
    return t_ForkAs(new TCDescTwoPartChannel());
}

int TCDescTwoPartChannel::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length >= 4) {
        m_major = static_cast<unsigned short>(ReadBE16(payload) & 0x03FF);
        m_minor = static_cast<unsigned short>(ReadBE16(payload + 2) & 0x03FF);
    }
    return 4;
}

// ---------------------------------------------------------------- channel properties

TCDescChannelProperities::TCDescChannelProperities() : TCBaseDesc(0x95) {}

void TCDescChannelProperities::DeleteAll()
{
    m_channelTsid = 0;
    m_outOfBand = m_accessControlled = m_hideGuide = m_serviceType = 0;
}

TCBaseDesc* TCDescChannelProperities::Fork() const
{
    return t_ForkAs(new TCDescChannelProperities());
}

int TCDescChannelProperities::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length != 4) {
        ZUM_LOGD("TCDescChannelProperities Len[%d] is wrong!", length);
        return length;
    }
    m_channelTsid = static_cast<unsigned short>(ReadBE16(payload));
    m_outOfBand = (payload[2] >> 1) & 0x01;
    m_accessControlled = payload[2] & 0x01;
    m_hideGuide = (payload[3] >> 7) & 0x01;
    m_serviceType = payload[3] & 0x3F;
    return 4;
}

// ---------------------------------------------------------------- channel type

TCDescChannelType::TCDescChannelType() : TCBaseDesc(0xE0) {}

void TCDescChannelType::DeleteAll()
{
    m_flag1 = m_flag2 = 0;
    m_type = 0xFF;
}

TCBaseDesc* TCDescChannelType::Fork() const
{
    return t_ForkAs(new TCDescChannelType());
}

int TCDescChannelType::t_Parse(const unsigned char* payload, unsigned char length)
{
    if (length != 1)
        return length;
    m_flag1 = (payload[0] >> 7) & 0x01;
    m_flag2 = (payload[0] >> 6) & 0x01;
    m_type = payload[0] & 0x3F;
    return 1;
}
