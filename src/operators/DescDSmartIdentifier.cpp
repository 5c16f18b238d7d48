#include "DescDSmartIdentifier.h"

#include "../core/ByteReader.h"
#include "../core/Log.h"

namespace {

// Walks the records of an identifier body; `take` sees each whole one. A
// record cut by the body's end is not taken. Returns the records taken.
template <class Take>
int WalkIdentifiers(const unsigned char* payload, int length, Take take)
{
    TCByteReader reader(payload, length);
    int count = 0;
    while (reader.Left() > 0) {
        const unsigned int head = reader.U8();
        const unsigned int id = reader.U16();
        const int dataLength = static_cast<int>((head >> 3) & 0x03) + 1;
        const unsigned char* data = reader.Here();
        if (reader.IsShort() || !reader.Skip(dataLength))
            break;
        take(static_cast<unsigned char>(head >> 5), static_cast<unsigned short>(id), data, dataLength);
        ++count;
        if (!reader.Skip(static_cast<int>(head & 0x07)))
            break;
    }
    return count;
}

} // namespace

TCDescDSmartIdentifier::TCDescDSmartIdentifier() : TCBaseDesc(0xCE) {}

TCDescDSmartIdentifier::~TCDescDSmartIdentifier()
{
    DeleteAll();
}

void TCDescDSmartIdentifier::DeleteAll() {}

TCBaseDesc* TCDescDSmartIdentifier::Fork() const
{
    return t_ForkAs(new TCDescDSmartIdentifier());
}

void TCDescDSmartIdentifier::GetIdentifierInfoList(std::vector<TSIdentifierInfo>& list) const
{
    list.clear();
    WalkIdentifiers(t_Payload(), m_pRaw ? m_length : 0,
                    [&list](unsigned char type, unsigned short id, const unsigned char* data, int size) {
                        TSIdentifierInfo info;
                        info.type = type;
                        info.id = id;
                        info.data.assign(data, data + size);
                        list.push_back(std::move(info));
                    });
}

int TCDescDSmartIdentifier::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    const size_t count = static_cast<size_t>(
        WalkIdentifiers(payload, length, [](unsigned char, unsigned short, const unsigned char*, int) {}));
    ZUM_LOGI("TCDescDSmartIdentifier::%s Size Of IdentifierInfo List =  %zu", "t_Parse", count);
    return length;
}

// ---------------------------------------------------------------- satellite delivery

namespace {
constexpr int kDSmartDeliveryBodySize = 13;
}

TCDescDSmartSatelliteDeliverySystem::TCDescDSmartSatelliteDeliverySystem(int tag) : TCDescSatelliteDeliverySystem(tag) {}

void TCDescDSmartSatelliteDeliverySystem::DeleteAll()
{
    TCDescSatelliteDeliverySystem::DeleteAll();
    m_value = 0xFFFF;
}

TCBaseDesc* TCDescDSmartSatelliteDeliverySystem::Fork() const
{
    return t_ForkAs(new TCDescDSmartSatelliteDeliverySystem(m_tag));
}

int TCDescDSmartSatelliteDeliverySystem::t_Parse(const unsigned char* payload, unsigned char length)
{
    if (length != kDSmartDeliveryBodySize) {
        ZUM_LOGD("[DSmart] Wrong length of DSmart private satellite delivery system descriptor, length = %d.", length);
        return 0;
    }
    const int base = TCDescSatelliteDeliverySystem::t_Parse(payload, length);
    m_value = static_cast<unsigned short>(ReadBE16(payload + 11));
    return base + 2;
}
