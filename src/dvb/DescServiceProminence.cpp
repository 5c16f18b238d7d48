#include "DescServiceProminence.h"

#include <algorithm>

#include "../core/ByteReader.h"

namespace {

constexpr unsigned char kServiceProminenceTag = 0x22;
// The extension tag and the SOGI list length.
constexpr int kListAt = 2;

// The fields of a region entry behind its flags byte, each as far as it
// starts inside the body; a missing one stays 0.
TCDescServiceProminence::TSOGIRegion ReadRegion(TCByteReader& reader, unsigned int flags)
{
    // Once a field does not fit, none behind it is read.
    const auto take = [&reader](bool present, int size) -> unsigned int {
        if (!present || reader.IsShort())
            return 0;
        return size == 1 ? reader.U8() : size == 2 ? reader.U16() : reader.U24();
    };
    TCDescServiceProminence::TSOGIRegion region;
    region.regionDepth = static_cast<unsigned char>(flags & 0x03);
    region.countryCode = take((flags & 0x04) != 0, 3);
    region.primaryRegionCode = static_cast<unsigned char>(take(region.regionDepth != 0, 1));
    region.secondaryRegionCode = static_cast<unsigned char>(take((region.regionDepth & 0x02) != 0, 1));
    region.tertiaryRegionCode = static_cast<unsigned short>(take(region.regionDepth == 3, 2));
    return region;
}

} // namespace

TCDescServiceProminence::TCDescServiceProminence() = default;

void TCDescServiceProminence::DeleteAll() {}

TCBaseDesc* TCDescServiceProminence::Fork() const
{
    return t_ForkAs(new TCDescServiceProminence());
}

std::vector<unsigned char> TCDescServiceProminence::PrivateData() const
{
    const unsigned char* at = t_At(m_privateData);
    return at ? std::vector<unsigned char>(at, at + m_privateData.length) : std::vector<unsigned char>();
}

int TCDescServiceProminence::t_Parse(const unsigned char* payload, unsigned char length)
{
    const int len = length;
    if (len < 1 || payload[0] != kServiceProminenceTag)
        return 0;
    m_sogis.clear();
    // The bytes behind the list belong to this raw copy alone.
    m_privateData = TTRawRun();
    if (len < kListAt)
        return len;
    const int working = std::min<int>(payload[1], len);
    TCByteReader reader(payload + kListAt, len - kListAt);
    // The offset of the reader counted from the extension tag.
    const auto offset = [&]() { return kListAt + reader.Consumed(); };
    if (working >= 2) {
        do {
            if (reader.Left() < 2)
                break;
            const unsigned int head = reader.U16();
            TSSOGI sogi;
            sogi.sogiFlag = static_cast<unsigned char>(head >> 15);
            sogi.sogiPriority = static_cast<unsigned short>(head & 0x0FFF);
            if ((head & 0x2000) != 0 && reader.Left() > 0)
                sogi.serviceId = static_cast<unsigned short>(reader.U16());
            if ((head & 0x4000) != 0 && reader.Left() > 0 && !reader.IsShort()) {
                const int loopLength = static_cast<int>(reader.U8());
                // The bytes used count from 1, as the loop length byte were one of them.
                for (int used = 1; used < loopLength && reader.Left() > 0 && !reader.IsShort();) {
                    const int before = reader.Consumed();
                    const unsigned int flags = reader.U8();
                    sogi.targetRegions.push_back(ReadRegion(reader, flags));
                    used += reader.Consumed() - before;
                }
            }
            TSSOGI& entry = m_sogis[sogi.serviceId];
            entry = std::move(sogi);
        } while (offset() - 1 < working && !reader.IsShort());
    }
    const int at = offset();
    if (at < len)
        m_privateData = t_Run(payload, payload + at, len - at);
    return at < len ? len : at;
}
