#include "DescTargetRegion.h"

#include <algorithm>
#include <cstring>

#include "../core/ByteReader.h"
#include "../core/Diagnostics.h"
#include "DescSatelliteDeliverySystem.h"

namespace {

constexpr unsigned char kNetworkChangeNotifyTag = 0x07;
constexpr unsigned char kMessageTag = 0x08;
constexpr unsigned char kTargetRegionTag = 0x09;
constexpr unsigned char kTargetRegionNameTag = 0x0A;
// A change without its invariant transport stream, and the ids behind it.
constexpr int kChangeSize = 12;
constexpr int kInvariantTSSize = 4;
// MJD of 6 January 1980.
constexpr unsigned int kMJDOf1980 = 44244;
constexpr unsigned char kTagCableDelivery = 0x44;
constexpr unsigned char kCableDeliveryLength = 11;

unsigned int Bcd(unsigned char value)
{
    return (value >> 4) * 10u + (value & 0x0F);
}

std::string RunText(const unsigned char* at, int length)
{
    return at ? std::string(reinterpret_cast<const char*>(at), static_cast<size_t>(length)) : std::string();
}

// The region codes of a target region entry behind its head, as far as the
// body holds them; false for an entry that the body's end cuts off.
template <class Region>
bool ReadRegionCodes(TCByteReader& reader, unsigned int depth, Region& region)
{
    region.depth = depth;
    region.primary = static_cast<unsigned char>(reader.U8());
    if (depth >= 2)
        region.secondary = static_cast<unsigned char>(reader.U8());
    if (depth == 3)
        region.tertiary = static_cast<unsigned short>(reader.U16());
    return !reader.IsShort();
}

// The entries of a region loop to the body's end. `head` reads what stands
// between an entry's flags byte and its codes and gives the depth. Depth 0,
// or an entry that the end cuts off, ends the loop with false.
template <class Region, class Head>
bool ReadRegions(TCByteReader& reader, std::vector<Region>& regions, Head head)
{
    while (reader.Left() > 0) {
        Region region;
        const unsigned int depth = head(reader.U8(), region);
        if (depth == 0 || reader.IsShort() || !ReadRegionCodes(reader, depth, region))
            return false;
        regions.push_back(region);
    }
    return true;
}

// The region at `index` with the descriptor's country; null while the
// descriptor is not valid or behind the last.
template <class Region>
const Region* GiveRegion(bool valid, const std::vector<Region>& regions, unsigned int index, unsigned int countryCode,
                         unsigned int& country, unsigned int& depth, unsigned char& primary, unsigned char& secondary,
                         unsigned short& tertiary)
{
    if (!valid || index >= regions.size())
        return nullptr;
    const Region& region = regions[index];
    country = countryCode;
    depth = region.depth;
    primary = region.primary;
    secondary = region.secondary;
    tertiary = region.tertiary;
    return &region;
}

} // namespace

// ---------------------------------------------------------------- network change notify

TCDescNetworkChangeNotify::TCDescNetworkChangeNotify() = default;

void TCDescNetworkChangeNotify::DeleteAll()
{
    m_cells.clear();
}

TCBaseDesc* TCDescNetworkChangeNotify::Fork() const
{
    return t_ForkAs(new TCDescNetworkChangeNotify());
}

unsigned int TCDescNetworkChangeNotify::m_ConvertBCD(const unsigned char* bcd)
{
    return Bcd(bcd[0]) * 3600u + Bcd(bcd[1]) * 60u + Bcd(bcd[2]);
}

unsigned int TCDescNetworkChangeNotify::m_ConvertMJD(const unsigned char* mjd)
{
    return (ReadBE16(mjd) - kMJDOf1980) * 86400u + m_ConvertBCD(mjd + 2);
}

int TCDescNetworkChangeNotify::t_Parse(const unsigned char* payload, unsigned char length)
{
    const int len = length;
    if (len < 1 || payload[0] != kNetworkChangeNotifyTag)
        return 0;
    DeleteAll();
    int at = 1;
    while (at < len) {
        if (len - at < 3)
            return at;
        const int head = at;
        const int working = std::min<int>(payload[at + 2], len - at - 3);
        at += 3;
        if (working < kChangeSize)
            return at;
        TTCell cell;
        cell.at = static_cast<unsigned char>(head);
        cell.changesLength = static_cast<unsigned char>(working);
        m_cells.push_back(cell);
        at += working;
    }
    return at;
}

bool TCDescNetworkChangeNotify::GetCellData(unsigned int index, _TTCellData& cell) const
{
    const unsigned char* payload = t_Payload();
    if (index >= m_cells.size() || !payload)
        return false;
    const TTCell& where = m_cells[index];
    const unsigned char* head = payload + where.at;
    cell.cellId = static_cast<unsigned short>(ReadBE16(head));
    cell.loopLength = head[2];
    cell.changes.clear();
    const unsigned char* p = head + 3;
    int left = where.changesLength;
    // A change that the loop's end cuts off is not handed out.
    while (left >= kChangeSize) {
        const bool present = (p[10] & 0x10) != 0;
        if (present && left < kChangeSize + kInvariantTSSize)
            break;
        _TTNetworkChangeData change;
        change.networkChangeId = p[0];
        change.networkChangeVersion = p[1];
        change.startTime = m_ConvertMJD(p + 2);
        change.changeDuration = m_ConvertBCD(p + 7);
        const unsigned int category = p[10] >> 5;
        change.receiverCategory = category <= 1 ? category : 2;
        change.invariantTSPresent = present;
        const unsigned int type = p[10] & 0x0F;
        change.changeType = (type & 0x04) != 0 ? 12 : type;
        change.messageId = p[11];
        if (present) {
            change.invariantTSTransportStreamId = static_cast<unsigned short>(ReadBE16(p + 12));
            change.invariantTSOriginalNetworkId = static_cast<unsigned short>(ReadBE16(p + 14));
        }
        const int size = kChangeSize + (present ? kInvariantTSSize : 0);
        p += size;
        left -= size;
        cell.changes.push_back(change);
    }
    return true;
}

// ---------------------------------------------------------------- message

TCDescMessage::TCDescMessage() = default;

void TCDescMessage::DeleteAll()
{
    m_messageId = 0;
    m_language = 0;
    m_text = TTRawRun();
}

TCBaseDesc* TCDescMessage::Fork() const
{
    return t_ForkAs(new TCDescMessage());
}

int TCDescMessage::t_Parse(const unsigned char* payload, unsigned char length)
{
    const int len = length;
    if (len < 1 || payload[0] != kMessageTag)
        return 0;
    DeleteAll();
    TCByteReader reader(payload + 1, len - 1);
    m_messageId = static_cast<unsigned char>(reader.U8());
    m_language = reader.U24();
    if (reader.IsShort())
        return len;
    if (len > 5)
        m_text = t_Run(payload, payload + 5, len - 5);
    return len;
}

bool TCDescMessage::TextChar(unsigned char* pData, unsigned short& size) const
{
    if (!ZUM_ASSERT(pData))
        return false;
    const unsigned char* text = t_At(m_text);
    if (!text) {
        size = 0;
        return false;
    }
    const bool whole = size >= m_text.length;
    const unsigned short count = whole ? m_text.length : size;
    std::memcpy(pData, text, count);
    size = count;
    return whole;
}

// ---------------------------------------------------------------- target region

TCDescTargetRegion::TCDescTargetRegion() = default;

void TCDescTargetRegion::DeleteAll()
{
    m_regions.clear();
}

TCBaseDesc* TCDescTargetRegion::Fork() const
{
    return t_ForkAs(new TCDescTargetRegion());
}

int TCDescTargetRegion::t_Parse(const unsigned char* payload, unsigned char length)
{
    const int len = length;
    if (len < 1 || payload[0] != kTargetRegionTag)
        return 0;
    m_regions.clear();
    TCByteReader reader(payload + 1, len - 1);
    m_countryCode = reader.U24();
    // A country in an entry stands for the whole descriptor.
    m_valid = !reader.IsShort() && ReadRegions(reader, m_regions, [&](unsigned int flags, TTRegion&) {
        if ((flags & 0x04) != 0) {
            const unsigned int country = reader.U24();
            if (!reader.IsShort())
                m_countryCode = country;
        }
        return flags & 0x03;
    });
    return len;
}

bool TCDescTargetRegion::GetRegion(unsigned int index, unsigned int& country, unsigned int& depth,
                                   unsigned char& primary, unsigned char& secondary, unsigned short& tertiary) const
{
    return GiveRegion(m_valid, m_regions, index, m_countryCode, country, depth, primary, secondary, tertiary);
}

// ---------------------------------------------------------------- target region name

TCDescTargetRegionName::TCDescTargetRegionName() = default;

void TCDescTargetRegionName::DeleteAll()
{
    m_regions.clear();
}

TCBaseDesc* TCDescTargetRegionName::Fork() const
{
    return t_ForkAs(new TCDescTargetRegionName());
}

int TCDescTargetRegionName::t_Parse(const unsigned char* payload, unsigned char length)
{
    const int len = length;
    if (len < 1 || payload[0] != kTargetRegionNameTag)
        return 0;
    m_regions.clear();
    TCByteReader reader(payload + 1, len - 1);
    m_countryCode = reader.U24();
    m_language = reader.U24();
    m_valid = !reader.IsShort() && ReadRegions(reader, m_regions, [&](unsigned int flags, TTRegion& region) {
        const int nameLength = static_cast<int>(flags & 0x3F);
        if (!reader.Skip(nameLength))
            return 0u;
        region.name = t_Run(payload, reader.Here() - nameLength, nameLength);
        return flags >> 6;
    });
    return len;
}

bool TCDescTargetRegionName::GetRegion(unsigned int index, unsigned char* name, unsigned int& size,
                                       unsigned int& country, unsigned int& depth, unsigned char& primary,
                                       unsigned char& secondary, unsigned short& tertiary) const
{
    const TTRegion* region =
        GiveRegion(m_valid, m_regions, index, m_countryCode, country, depth, primary, secondary, tertiary);
    if (!region)
        return false;
    size = std::min<unsigned int>(size, region->name.length);
    const unsigned char* text = t_At(region->name);
    if (name && text && size > 0)
        std::memcpy(name, text, size);
    else
        size = 0;
    return true;
}

// ---------------------------------------------------------------- relocated TS

TCDescRelocatedTS::TCDescRelocatedTS() : TCBaseDesc(0xAA) {}

TCDescRelocatedTS::~TCDescRelocatedTS()
{
    DeleteAll();
}

void TCDescRelocatedTS::DeleteAll()
{
    for (auto& entry : m_cableDelivery)
        delete entry.second;
    m_cableDelivery.clear();
}

TCBaseDesc* TCDescRelocatedTS::Fork() const
{
    return t_ForkAs(new TCDescRelocatedTS());
}

void TCDescRelocatedTS::GetCableDeliveryInfo(CableDeliveryMap& info) const
{
    info = m_cableDelivery;
}

int TCDescRelocatedTS::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    const int len = length;
    if (len < 5)
        return len;
    int at = 0;
    while (len - at > 4) {
        const std::pair<unsigned short, unsigned short> ids(static_cast<unsigned short>(ReadBE16(payload + at)),
                                                            static_cast<unsigned short>(ReadBE16(payload + at + 2)));
        const int loopEnd = std::min(len, at + 5 + payload[at + 4]);
        at += 5;
        while (at < loopEnd) {
            if (len - at < 2)
                return at;
            const unsigned char tag = payload[at];
            const unsigned char size = payload[at + 1];
            if (tag == kTagCableDelivery && size == kCableDeliveryLength) {
                // The first cable delivery descriptor of the entry stands; the rest is passed over.
                if (len - at >= kCableDeliveryLength + 2 && m_cableDelivery.count(ids) == 0) {
                    auto* cable = new TCDescCableDeliverySystem();
                    cable->Parse(payload + at);
                    m_cableDelivery.emplace(ids, cable);
                }
                at = loopEnd;
                break;
            }
            at += 2 + size;
        }
        at = std::min(at, len);
    }
    return at;
}

// ---------------------------------------------------------------- SO properties

TCDescSOProperties::TCDescSOProperties() : TCBaseDesc(0xE2) {}

void TCDescSOProperties::DeleteAll()
{
    m_value = 0;
    m_first = TTRawRun();
    m_second = TTRawRun();
}

TCBaseDesc* TCDescSOProperties::Fork() const
{
    return t_ForkAs(new TCDescSOProperties());
}

std::string TCDescSOProperties::FirstText() const
{
    return RunText(t_At(m_first), m_first.length);
}

std::string TCDescSOProperties::SecondText() const
{
    return RunText(t_At(m_second), m_second.length);
}

int TCDescSOProperties::t_Parse(const unsigned char* payload, unsigned char length)
{
    const int len = length;
    if (len < 3)
        return len;
    DeleteAll();
    TCByteReader reader(payload, len);
    m_value = static_cast<unsigned char>(reader.U8());
    // A text longer than the body is cut at its end.
    const int firstLength = static_cast<int>(reader.U8());
    m_first = t_Run(payload, reader.Here(), std::min(firstLength, reader.Left()));
    reader.Skip(m_first.length);
    const int secondLength = static_cast<int>(reader.U8());
    m_second = t_Run(payload, reader.Here(), std::min(secondLength, reader.Left()));
    reader.Skip(m_second.length);
    return reader.Consumed();
}
