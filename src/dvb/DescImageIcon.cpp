#include "DescImageIcon.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace {

constexpr unsigned char kImageIconTag = 0x00;
constexpr unsigned char kURILinkageTag = 0x13;

std::string RunText(const unsigned char* at, int length)
{
    return at ? std::string(reinterpret_cast<const char*>(at), static_cast<size_t>(length)) : std::string();
}

// The digits of a locator as the C library reads them in base 16; 0 for none.
unsigned int Hex(const std::string& url, size_t from, size_t to)
{
    const std::string digits = url.substr(from, to - from);
    return static_cast<unsigned int>(std::strtol(digits.c_str(), nullptr, 16));
}

} // namespace

// ---------------------------------------------------------------- image icon

TCDescImageIcon::TCDescImageIcon() = default;

void TCDescImageIcon::DeleteAll()
{
    m_iconData = TTRawRun();
    m_iconDataLength = 0;
    m_iconType = TTRawRun();
    m_url = TTRawRun();
    m_carouselId = 0xFFFFFFFF;
    m_firstLocator = m_secondLocator = m_thirdLocator = 0xFFFF;
}

TCBaseDesc* TCDescImageIcon::Fork() const
{
    return t_ForkAs(new TCDescImageIcon());
}

std::string TCDescImageIcon::IconType() const
{
    return RunText(t_At(m_iconType), m_iconType.length);
}

std::string TCDescImageIcon::URL() const
{
    return RunText(t_At(m_url), m_url.length);
}

bool TCDescImageIcon::GetImagePart(unsigned char* buffer, unsigned short size) const
{
    const unsigned char* data = t_At(m_iconData);
    if (!data || !buffer || size == 0 || size != m_iconData.length)
        return false;
    std::memcpy(buffer, data, size);
    return true;
}

bool TCDescImageIcon::GetPathSegment(std::string& path) const
{
    if (m_pathSegment.length == 0)
        return false;
    path = RunText(t_At(m_pathSegment), m_pathSegment.length);
    return true;
}

bool TCDescImageIcon::GetCarouselInfo(unsigned int& carouselId, unsigned short& first, unsigned short& second,
                                      unsigned short& third) const
{
    if (m_url.length == 0 || m_carouselId == 0xFFFFFFFF)
        return false;
    carouselId = m_carouselId;
    first = m_firstLocator;
    second = m_secondLocator;
    third = m_thirdLocator;
    return true;
}

int TCDescImageIcon::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    // The path is a run of the raw copy this parse replaced: it cannot outlive it.
    m_pathSegment = TTRawRun();
    const int len = length;
    if (len < 1 || payload[0] != kImageIconTag)
        return 0;
    if (len < 3)
        return 1;
    m_descriptorNumber = payload[1] >> 4;
    m_lastDescriptorNumber = payload[1] & 0x0F;
    m_iconId = payload[2] & 0x07;
    if (m_iconId == 0)
        return len;
    if (len < 4)
        return 3;
    if (m_descriptorNumber != 0) {
        // A continuation holds data only.
        m_transportMode = 0;
        m_iconDataLength = payload[3];
        if (m_iconDataLength + 4 > len)
            return 4;
        m_iconData = t_Run(payload, payload + 4, m_iconDataLength);
        return m_iconDataLength + 4;
    }
    m_transportMode = payload[3] >> 6;
    m_positionFlag = (payload[3] & 0x20) != 0;
    int at = 4;
    if (m_positionFlag) {
        m_coordinateSystem = (payload[3] >> 2) & 0x07;
        if (m_coordinateSystem > 3)
            m_coordinateSystem = 3;
        if (len < 7)
            return 4;
        m_horizontalOrigin = static_cast<unsigned short>((payload[4] << 4) | (payload[5] >> 4));
        m_verticalOrigin = static_cast<unsigned short>(((payload[5] & 0x0F) << 8) | payload[6]);
        at = 7;
    } else {
        m_coordinateSystem = 3;
        m_horizontalOrigin = m_verticalOrigin = 0;
    }
    if (at >= len)
        return at;
    const int typeLength = payload[at];
    if (at + 1 + typeLength > len)
        return at + 1;
    m_iconType = t_Run(payload, payload + at + 1, typeLength);
    at += 1 + typeLength;

    if (m_transportMode == 0) {
        if (at >= len)
            return at;
        const int dataLength = payload[at];
        m_iconDataLength = static_cast<unsigned short>(dataLength);
        if (at + 1 + dataLength > len)
            return at + 1;
        m_iconData = t_Run(payload, payload + at + 1, dataLength);
        return at + 1 + dataLength;
    }
    if (m_transportMode == 1)
        return m_ParseUrl(payload, at, len);
    return at;
}

int TCDescImageIcon::m_ParseUrl(const unsigned char* payload, int at, int length)
{
    if (at >= length)
        return at;
    const int urlLength = payload[at];
    if (at + 1 + urlLength > length)
        return at + 1;
    m_url = t_Run(payload, payload + at + 1, urlLength);
    m_SplitLocator();
    return at + 1 + urlLength;
}

// "dvb://<onid>.<tsid>.<sid>$<component tag>/<path>": the numbers in hex, each
// part optional as the stream gives it.
void TCDescImageIcon::m_SplitLocator()
{
    const std::string url = URL();
    if (url.size() < 4 || url.compare(0, 4, "dvb:") != 0)
        return;
    const auto setPath = [&](size_t slash) {
        m_pathSegment.offset = static_cast<unsigned char>(m_url.offset + slash);
        m_pathSegment.length = static_cast<unsigned char>(url.size() - slash);
    };
    if (url.find("//", 4) == std::string::npos) {
        const size_t slash = url.find('/', 4);
        if (slash != std::string::npos)
            setPath(slash);
        return;
    }
    size_t start = 6;
    size_t dot = url.find('.', start);
    if (dot != std::string::npos) {
        m_firstLocator = static_cast<unsigned short>(Hex(url, start, dot));
        start = dot + 1;
    }
    size_t third = start + 1;
    dot = url.find('.', start);
    if (dot != std::string::npos) {
        m_secondLocator = static_cast<unsigned short>(Hex(url, start, dot));
        third = dot + 1;
    }
    size_t fourth = third;
    const size_t dollar = url.find('$', third);
    if (dollar != std::string::npos) {
        m_thirdLocator = static_cast<unsigned short>(Hex(url, third, dollar));
        fourth = dollar + 1;
    }
    const size_t slash = url.find('/', fourth);
    if (slash == std::string::npos)
        return;
    m_carouselId = Hex(url, fourth, slash) & 0xFFFF;
    setPath(slash);
}

// ---------------------------------------------------------------- URI linkage

TCDescURILinkage::TCDescURILinkage() = default;

void TCDescURILinkage::DeleteAll()
{
    m_uriLinkageType = 0;
    m_uri = TTRawRun();
    m_minPollingInterval = 0;
    m_privateData = TTRawRun();
}

TCBaseDesc* TCDescURILinkage::Fork() const
{
    return t_ForkAs(new TCDescURILinkage());
}

std::string TCDescURILinkage::GetURIString() const
{
    return RunText(t_At(m_uri), m_uri.length);
}

std::vector<unsigned char> TCDescURILinkage::GetPrivateData() const
{
    const unsigned char* at = t_At(m_privateData);
    return at ? std::vector<unsigned char>(at, at + m_privateData.length) : std::vector<unsigned char>();
}

int TCDescURILinkage::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    const int len = length;
    if (len < 1 || payload[0] != kURILinkageTag)
        return 0;
    if (len < 3)
        return len;
    m_uriLinkageType = payload[1];
    // A URI longer than the body is cut at its end.
    const int uriLength = std::min<int>(payload[2], len - 3);
    m_uri = t_Run(payload, payload + 3, uriLength);
    int at = 3 + uriLength;
    if (m_uriLinkageType == 0 || m_uriLinkageType == 1) {
        if (at + 2 > len)
            return len;
        m_minPollingInterval = static_cast<unsigned short>((payload[at] << 8) | payload[at + 1]);
        at += 2;
    }
    if (at >= len)
        return at;
    m_privateData = t_Run(payload, payload + at, len - at);
    return len;
}
