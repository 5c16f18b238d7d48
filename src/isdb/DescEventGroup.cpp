#include "DescEventGroup.h"

#include <algorithm>
#include <cstring>

#include "../core/ByteReader.h"
#include "../core/Log.h"
#include "../core/RecordAt.h"
#include "../dvb/DescLocalTimeOffset.h"
#include "../dvb/DescText.h"

// ---------------------------------------------------------------- event group

TCDescEventGroup::TCDescEventGroup() : TCBaseDesc(0xD6) {}

TCDescEventGroup::~TCDescEventGroup()
{
    DeleteAll();
}

void TCDescEventGroup::DeleteAll()
{
    m_groupType = 0;
    m_eventCount = 0;
    m_events.clear();
    m_others.clear();
    m_privateData = TTRawRun();
}

TCBaseDesc* TCDescEventGroup::Fork() const
{
    return t_ForkAs(new TCDescEventGroup());
}

int TCDescEventGroup::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length == 0)
        return 0;
    TCByteReader reader(payload, length);
    const unsigned int head = reader.U8();
    m_groupType = head < 0x60 ? static_cast<int>(head >> 4) : 0;
    m_eventCount = static_cast<int>(head & 0x0F);
    // Events that the descriptor cuts off are not read.
    m_events.reserve(static_cast<size_t>(std::min(m_eventCount, reader.Left() / 4)));
    for (int i = 0; i < m_eventCount && reader.Has(4); ++i) {
        TTEvent event;
        event.serviceId = static_cast<unsigned short>(reader.U16());
        event.eventId = static_cast<unsigned short>(reader.U16());
        m_events.push_back(event);
    }
    if (m_groupType == 4 || m_groupType == 5) {
        const int count = reader.Left() / 8;
        m_others.reserve(static_cast<size_t>(count));
        for (int i = 0; i < count; ++i) {
            TTOtherNetworkEvent event;
            event.originalNetworkId = static_cast<unsigned short>(reader.U16());
            event.transportStreamId = static_cast<unsigned short>(reader.U16());
            event.serviceId = static_cast<unsigned short>(reader.U16());
            event.eventId = static_cast<unsigned short>(reader.U16());
            m_others.push_back(event);
        }
    } else {
        m_privateData = zum_text::TakeRun<TTRawRun>(reader, payload, reader.Left());
    }
    return reader.Consumed();
}

const TCDescEventGroup::TTEvent* TCDescEventGroup::Group(int index) const
{
    const TTEvent* event = index < m_eventCount ? RecordAt(m_events, index) : nullptr;
    if (!event)
        ZUM_LOGD("TCDescEventGroup::Groupwrong index = %d", index);
    return event;
}

const TCDescEventGroup::TTOtherNetworkEvent* TCDescEventGroup::GroupOther(int index) const
{
    const TTOtherNetworkEvent* event = RecordAt(m_others, index);
    if (!event)
        ZUM_LOGD("TCDescEventGroup::GroupOther index = %d", index);
    return event;
}

bool TCDescEventGroup::PrivateDataBytes(int& size, unsigned char* buffer) const
{
    if (!buffer || size < 1) {
        size = 0;
        return false;
    }
    size = std::min(size, static_cast<int>(m_privateData.length));
    if (size > 0)
        std::memcpy(buffer, t_At(m_privateData), static_cast<size_t>(size));
    return true;
}

// ---------------------------------------------------------------- series

TCDescSeries::TCDescSeries() : TCBaseDesc(0xD5) {}

TCDescSeries::~TCDescSeries()
{
    DeleteAll();
}

void TCDescSeries::DeleteAll()
{
    m_name = TTRawRun();
}

TCBaseDesc* TCDescSeries::Fork() const
{
    return t_ForkAs(new TCDescSeries());
}

int TCDescSeries::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    TCByteReader reader(payload, length);
    m_seriesId = static_cast<unsigned short>(reader.U16());
    const unsigned int pattern = reader.U8();
    m_repeatLabel = static_cast<unsigned char>(pattern >> 4);
    m_programPattern = static_cast<unsigned char>((pattern >> 1) & 0x07);
    m_expireDateValidFlag = static_cast<unsigned char>(pattern & 0x01);
    if (reader.Has(2))
        m_expireDate = static_cast<unsigned short>(TCDescLocalTimeOffset::ConvertDVBtimetoATSCtime(reader.U16()));
    const unsigned int episodes = reader.U24();
    m_episodeNumber = static_cast<unsigned short>(episodes >> 12);
    m_lastEpisodeNumber = static_cast<unsigned short>(episodes & 0x0FFF);
    if (reader.IsShort())
        return reader.Consumed();
    m_name = zum_text::TakeRun<TTRawRun>(reader, payload, reader.Left());
    return reader.Consumed();
}

bool TCDescSeries::GetSeriesName(unsigned char* buffer, unsigned short* size) const
{
    if (!buffer || !size || m_name.length == 0)
        return false;
    if (m_name.length < *size) {
        std::memcpy(buffer, t_At(m_name), m_name.length);
        *size = m_name.length;
        return true;
    }
    std::memcpy(buffer, t_At(m_name), *size);
    return false;
}
