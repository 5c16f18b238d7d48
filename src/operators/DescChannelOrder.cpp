#include "DescChannelOrder.h"

#include "../core/ByteReader.h"
#include "../core/Log.h"
#include "../core/RecordAt.h"

namespace {

const int kEutelsatEntrySize = 8;
const int kSogecableEntrySize = 4;
const int kNXTEntrySize = 4;
const int kOtauEntrySize = 5;
const int kOtauServiceIdSize = 2;
const int kOtauOrderSize = 3;

// The 16-bit field at `offset` of the record at `index`, shifted right by
// `shift`; 0 when there is no such record.
unsigned short Field16(const unsigned char* payload, int count, int size, int index, int offset, int shift = 0)
{
    const unsigned char* raw = RawRecordAt(payload, count, size, index);
    return raw ? static_cast<unsigned short>(ReadBE16(raw + offset) >> shift) : 0;
}

} // namespace

// ---------------------------------------------------------------- Polsat channel list info

TCDescPolsatChannelListInfo::TCDescPolsatChannelListInfo() : TCBaseDesc(0xD1) {}

void TCDescPolsatChannelListInfo::DeleteAll()
{
    m_info = TSChannelListInfo();
}

TCBaseDesc* TCDescPolsatChannelListInfo::Fork() const
{
    return t_ForkAs(new TCDescPolsatChannelListInfo());
}

int TCDescPolsatChannelListInfo::t_Parse(const unsigned char* payload, unsigned char length)
{
    // A short body keeps the defaults of the fields it does not reach.
    TCByteReader in(payload, length);
    if (in.Has(DESCRIPTOR_VERSION_LENGTH))
        m_info.version = in.U8();
    if (in.Has(DESCRIPTOR_OTHER_LENGTH))
        m_info.firstOther = in.U16();
    if (in.Has(DESCRIPTOR_OTHER_LENGTH))
        m_info.secondOther = in.U16();
    if (in.Has(DESCRIPTOR_UPDATE_LENGTH))
        m_info.update = in.U24();
    return DESCRIPTOR_VERSION_LENGTH + 2 * DESCRIPTOR_OTHER_LENGTH + DESCRIPTOR_UPDATE_LENGTH;
}

// ---------------------------------------------------------------- Eutelsat channel number

TCDescEutelsatChannelNumber::TCDescEutelsatChannelNumber() : TCBaseDesc(0x83) {}

void TCDescEutelsatChannelNumber::DeleteAll()
{
    m_count = 0;
}

TCBaseDesc* TCDescEutelsatChannelNumber::Fork() const
{
    return t_ForkAs(new TCDescEutelsatChannelNumber());
}

int TCDescEutelsatChannelNumber::t_Parse(const unsigned char* /*payload*/, unsigned char length)
{
    if (length % kEutelsatEntrySize != 0) {
        ZUM_LOGD("[ECN Descriptor] Wrong length of Eutelsat Channel Number descriptor, length = %d.", length);
        return 0;
    }
    m_count = length / kEutelsatEntrySize;
    return length;
}

void TCDescEutelsatChannelNumber::GetServices(std::multimap<TCServiceKey, unsigned short>& services) const
{
    services.clear();
    for (int i = 0; i < m_count; ++i) {
        const unsigned char* raw = RawRecordAt(t_Payload(), m_count, kEutelsatEntrySize, i);
        if (!raw)
            break;
        const TCServiceKey key(static_cast<unsigned short>(ReadBE16(raw)), static_cast<unsigned short>(ReadBE16(raw + 2)),
                               static_cast<unsigned short>(ReadBE16(raw + 4)));
        services.emplace(key, static_cast<unsigned short>(ReadBE16(raw + 6) >> 4));
    }
}

// ---------------------------------------------------------------- Digital+ private channel list

TCDescSogecablePrivateChannelList::TCDescSogecablePrivateChannelList(int tag) : TCBaseDesc(tag) {}

void TCDescSogecablePrivateChannelList::DeleteAll()
{
    m_count = 0;
}

TCBaseDesc* TCDescSogecablePrivateChannelList::Fork() const
{
    return t_ForkAs(new TCDescSogecablePrivateChannelList(m_tag));
}

int TCDescSogecablePrivateChannelList::t_Parse(const unsigned char* /*payload*/, unsigned char length)
{
    if (length < kSogecableEntrySize) {
        ZUM_LOGD("[Digital+] Wrong length of private channel list descriptor, length = %d.", length);
        return 0;
    }
    m_count = length / kSogecableEntrySize;
    return m_count * kSogecableEntrySize;
}

bool TCDescSogecablePrivateChannelList::GetChannelNumber(unsigned short serviceId, unsigned short& number) const
{
    for (int i = 0; t_Payload() && i < m_count; ++i) {
        if (ServiceId(i) == serviceId) {
            number = ChannelNumber(i);
            return true;
        }
    }
    return false;
}

unsigned short TCDescSogecablePrivateChannelList::ServiceId(int index) const
{
    return Field16(t_Payload(), m_count, kSogecableEntrySize, index, 0);
}

unsigned short TCDescSogecablePrivateChannelList::ChannelNumber(int index) const
{
    return Field16(t_Payload(), m_count, kSogecableEntrySize, index, 2);
}

// ---------------------------------------------------------------- NXT service order

TCDescNXTServiceOrder::TCDescNXTServiceOrder() : TCBaseDesc(0x93) {}

void TCDescNXTServiceOrder::DeleteAll()
{
    m_count = 0;
}

TCBaseDesc* TCDescNXTServiceOrder::Fork() const
{
    return t_ForkAs(new TCDescNXTServiceOrder());
}

int TCDescNXTServiceOrder::t_Parse(const unsigned char* /*payload*/, unsigned char length)
{
    DeleteAll();
    m_count = static_cast<unsigned int>(length / kNXTEntrySize);
    return static_cast<int>(m_count) * kNXTEntrySize;
}

unsigned short TCDescNXTServiceOrder::ServiceId(int index) const
{
    return Field16(t_Payload(), static_cast<int>(m_count), kNXTEntrySize, index, 0);
}

unsigned short TCDescNXTServiceOrder::ServiceOrder(int index) const
{
    return Field16(t_Payload(), static_cast<int>(m_count), kNXTEntrySize, index, 2);
}

// ---------------------------------------------------------------- Otau channel order

TCDescOtauChannelOrder::TCDescOtauChannelOrder() : TCBaseDesc(0xE4) {}

void TCDescOtauChannelOrder::DeleteAll()
{
    m_count = 0;
}

TCBaseDesc* TCDescOtauChannelOrder::Fork() const
{
    return t_ForkAs(new TCDescOtauChannelOrder());
}

int TCDescOtauChannelOrder::t_Parse(const unsigned char* /*payload*/, unsigned char length)
{
    DeleteAll();
    if (length == 0)
        return 0;
    for (int at = 0; at < length; at += kOtauEntrySize) {
        if (length - at < kOtauServiceIdSize)
            return at;
        if (length - at - kOtauServiceIdSize < kOtauOrderSize)
            return at + kOtauServiceIdSize;
        ++m_count;
    }
    return length;
}

unsigned int TCDescOtauChannelOrder::GetOrder(unsigned short serviceId) const
{
    unsigned int order = 0xFFFFFFFF;
    // A service sent twice keeps its later order.
    for (int i = 0; t_Payload() && i < m_count; ++i)
        if (ServiceId(i) == serviceId)
            order = Order(i);
    return order;
}

unsigned short TCDescOtauChannelOrder::ServiceId(int index) const
{
    return Field16(t_Payload(), m_count, kOtauEntrySize, index, 0);
}

unsigned short TCDescOtauChannelOrder::Order(int index) const
{
    return Field16(t_Payload(), m_count, kOtauEntrySize, index, kOtauServiceIdSize, 4);
}
