#include "DescTransportProtocol.h"

#include <algorithm>

#include "../core/ByteReader.h"
#include "../core/Log.h"
#include "../dvb/DescText.h"
#include "AppRecords.h"

namespace {

constexpr int kTransProtocolBodyLen = 3;
constexpr int kCarouselIdsSize = 7; // remote_connection byte and the three ids
constexpr int kDIISubFieldSize = 4;

} // namespace

using zum_apps::RecordPointer;
using zum_apps::RunText;

// ---------------------------------------------------------------- transport protocol

TCDescTransportProtocol::TCDescTransportProtocol() : TCBaseDesc(0x02) {}

TCDescTransportProtocol::~TCDescTransportProtocol()
{
    DeleteAll();
}

void TCDescTransportProtocol::DeleteAll()
{
    m_protocolId = 0;
    m_transportProtocolLabel = 0;
    m_componentTag = 0;
    m_alignmentIndicator = 0;
    m_remoteConnection = 0;
    m_originalNetworkId = 0;
    m_transportStreamId = 0;
    m_serviceId = 0;
    m_urlBase = TTRawRun();
    m_urlExtensions.clear();
}

TCBaseDesc* TCDescTransportProtocol::Fork() const
{
    return t_ForkAs(new TCDescTransportProtocol());
}

int TCDescTransportProtocol::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length < kTransProtocolBodyLen) {
        ZUM_LOGE("TCDescTransportProtocol::t_Parse, len[%i] < TRANS_PROTOCOL_BODY_LEN[%i]", length,
                 kTransProtocolBodyLen);
        return 0;
    }
    m_protocolId = static_cast<unsigned short>(ReadBE16(payload));
    m_transportProtocolLabel = payload[2];
    const unsigned char* selector = payload + kTransProtocolBodyLen;
    const int size = length - kTransProtocolBodyLen;
    if (size == 0)
        return length;
    switch (m_protocolId) {
    case PROTOCOL_OBJECT_CAROUSEL: m_ParseCarouselSelector(selector, size, false); break;
    case PROTOCOL_IP_MPE: m_ParseCarouselSelector(selector, size, true); break;
    case PROTOCOL_HTTP: m_ParseURLSelector(payload, selector, size, true); break;
    case PROTOCOL_URL: m_ParseURLSelector(payload, selector, size, false); break;
    default: break;
    }
    return length;
}

void TCDescTransportProtocol::m_ParseCarouselSelector(const unsigned char* selector, int size, bool alignment)
{
    m_remoteConnection = (selector[0] >> 7) & 0x01;
    int tagAt = 1;
    if (m_remoteConnection && size >= kCarouselIdsSize) {
        m_originalNetworkId = static_cast<unsigned short>(ReadBE16(selector + 1));
        m_transportStreamId = static_cast<unsigned short>(ReadBE16(selector + 3));
        m_serviceId = static_cast<unsigned short>(ReadBE16(selector + 5));
        tagAt = kCarouselIdsSize;
    }
    if (size > tagAt) {
        if (alignment)
            m_alignmentIndicator = (selector[tagAt] >> 7) & 0x01;
        else
            m_componentTag = selector[tagAt];
    }
}

void TCDescTransportProtocol::m_ParseURLSelector(const unsigned char* payload, const unsigned char* selector, int size,
                                                 bool extensions)
{
    TCByteReader reader(selector, size);
    const int baseLength = static_cast<int>(reader.U8());
    m_urlBase = zum_text::TakeRun<TTRawRun>(reader, payload, baseLength);
    // Extensions follow only a whole base.
    if (!extensions || m_urlBase.length != baseLength || reader.Left() < 2)
        return;
    const unsigned int count = reader.U8();
    for (unsigned int i = 0; i < count && reader.Left() >= 2; ++i)
        m_urlExtensions.push_back(zum_text::TakeRun<TTRawRun>(reader, payload, static_cast<int>(reader.U8())));
}

std::string TCDescTransportProtocol::URLBase() const
{
    return RunText(t_At(m_urlBase), m_urlBase.length);
}

std::string TCDescTransportProtocol::URLExtension(unsigned int index) const
{
    return index < m_urlExtensions.size()
               ? RunText(t_At(m_urlExtensions[index]), m_urlExtensions[index].length)
               : std::string();
}

// ---------------------------------------------------------------- prefetch

int TCPrefetchLabelChar::Parse(const unsigned char* data, int remaining)
{
    m_labelLength = data[0];
    m_pLabel = remaining > m_labelLength + 1 ? data + 1 : nullptr;
    if (m_labelLength == 0)
        m_pLabel = nullptr;
    m_prefetchPriority = remaining > m_labelLength + 1 ? data[m_labelLength + 1] : 0;
    return m_labelLength + 2;
}

TCDescPrefetch::TCDescPrefetch() : TCBaseDesc(0x0C) {}

TCDescPrefetch::~TCDescPrefetch()
{
    DeleteAll();
}

void TCDescPrefetch::DeleteAll()
{
    m_transportProtocolLabel = 0;
    m_labels.clear();
}

TCBaseDesc* TCDescPrefetch::Fork() const
{
    return t_ForkAs(new TCDescPrefetch());
}

int TCDescPrefetch::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    m_transportProtocolLabel = payload[0];
    if (length <= 2)
        return 1;
    int parsed = 1;
    while (length - parsed >= 2) {
        m_labels.emplace_back();
        const int consumed = m_labels.back().Parse(payload + parsed, length - parsed);
        if (parsed + consumed > length) {
            ZUM_LOGD("TCDescPrefetch::t_Parse, parsedLen[%d] > len[%d]", parsed + consumed, length);
            break;
        }
        parsed += consumed;
    }
    return parsed;
}

TCPrefetchLabelChar* TCDescPrefetch::PrefetchLabelChar(unsigned int index) const
{
    return RecordPointer(m_labels, index);
}

// ---------------------------------------------------------------- DII location

int TCDIISubField::Parse(const unsigned char* data)
{
    m_diiIdentification = static_cast<unsigned short>(ReadBE16(data) & 0x7FFF);
    m_associationTag = static_cast<unsigned short>(ReadBE16(data + 2));
    return kDIISubFieldSize;
}

TCDescDIILocation::TCDescDIILocation() : TCBaseDesc(0x0D) {}

TCDescDIILocation::~TCDescDIILocation()
{
    DeleteAll();
}

void TCDescDIILocation::DeleteAll()
{
    m_transportProtocolLabel = 0;
    m_fields.clear();
}

TCBaseDesc* TCDescDIILocation::Fork() const
{
    return t_ForkAs(new TCDescDIILocation());
}

int TCDescDIILocation::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    m_transportProtocolLabel = payload[0];
    m_fields.resize(static_cast<size_t>((length - 1) / kDIISubFieldSize));
    for (size_t i = 0; i < m_fields.size(); ++i)
        m_fields[i].Parse(payload + 1 + i * kDIISubFieldSize);
    return 1 + kDIISubFieldSize * static_cast<int>(m_fields.size());
}

TCDIISubField* TCDescDIILocation::DIISubField(unsigned int index) const
{
    return RecordPointer(m_fields, index);
}
