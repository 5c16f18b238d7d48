#include "DescDigiturkLogicalChannel.h"

#include "../core/ByteReader.h"
#include "../core/Log.h"

namespace {

const int kDigiturkHeadSize = 3;
const int kDigiturkEntrySize = 8;
const int kPolsatEntrySize = 3 * TCDescPolsatLogicalChannel::DESCRIPTOR_DATA_LENGTH;

} // namespace

// ---------------------------------------------------------------- Digiturk

TCDescDigiturkLogicalChannel::TCDescDigiturkLogicalChannel(unsigned int privateDataSpecifier)
    : TCDescLogicalChannel(0x83, privateDataSpecifier)
{
}

void TCDescDigiturkLogicalChannel::DeleteAll()
{
    TCDescLogicalChannel::DeleteAll();
    m_headValue = 0xFFFFFFFF;
    m_headFlag = 0xFFFFFFFF;
}

TCBaseDesc* TCDescDigiturkLogicalChannel::Fork() const
{
    return t_ForkAs(new TCDescDigiturkLogicalChannel(m_privateDataSpecifier));
}

int TCDescDigiturkLogicalChannel::t_Parse(const unsigned char* payload, unsigned char length)
{
    if (length < kDigiturkHeadSize || (length - kDigiturkHeadSize) % kDigiturkEntrySize != 0) {
        ZUM_LOGD("[Digiturk] Wrong length of Digiturk LCN descriptor, length = %d.", length);
        return 0;
    }
    m_headValue = ReadBE16(payload) * 1000u;
    m_headFlag = payload[2] & 0x01u;
    for (int at = kDigiturkHeadSize; at < length; at += kDigiturkEntrySize) {
        const unsigned char* raw = payload + at;
        _TTDescLCN entry = LCNEmptyEntry(static_cast<unsigned short>(ReadBE16(raw)));
        entry.channelNumber = static_cast<unsigned short>(ReadBE16(raw + 2));
        entry.dpIdFirst = static_cast<unsigned short>(ReadBE16(raw + 4));
        entry.dpIdSecond = static_cast<unsigned short>(ReadBE16(raw + 6));
        t_AddEntry(entry);
    }
    return length;
}

bool TCDescDigiturkLogicalChannel::GetDPIds(unsigned short serviceId, unsigned short& first,
                                            unsigned short& second) const
{
    const _TTDescLCN* entry = t_Entries().FirstOf(serviceId);
    if (!entry)
        return false;
    first = entry->dpIdFirst;
    second = entry->dpIdSecond;
    return true;
}

// ---------------------------------------------------------------- Polsat

TCDescPolsatLogicalChannel::TCDescPolsatLogicalChannel(unsigned int privateDataSpecifier)
    : TCDescLogicalChannel(0x81, privateDataSpecifier)
{
}

TCBaseDesc* TCDescPolsatLogicalChannel::Fork() const
{
    return t_ForkAs(new TCDescPolsatLogicalChannel(m_privateDataSpecifier));
}

int TCDescPolsatLogicalChannel::t_Parse(const unsigned char* payload, unsigned char length)
{
    int at = 0;
    // Only whole entries are read; a cut last one stays out.
    for (; at + kPolsatEntrySize <= length; at += kPolsatEntrySize) {
        const unsigned char* raw = payload + at;
        _TTDescLCN entry = LCNEmptyEntry(static_cast<unsigned short>(ReadBE16(raw)));
        entry.channelNumber = static_cast<unsigned short>(ReadBE16(raw + 2));
        entry.polsatServiceId = static_cast<unsigned short>(ReadBE16(raw + 4));
        t_AddEntry(entry);
    }
    return at;
}

bool TCDescPolsatLogicalChannel::PolsatServiceId(unsigned short serviceId, std::list<unsigned short>& polsatIds) const
{
    polsatIds.clear();
    const TCLCNEntryList::Range range = t_Entries().EntriesOf(serviceId);
    for (const _TTDescLCN* entry = range.first; entry != range.second; ++entry)
        polsatIds.push_back(entry->polsatServiceId);
    return !polsatIds.empty();
}

// ---------------------------------------------------------------- Telekarta

TCDescTelekartaLogicalChannel::TCDescTelekartaLogicalChannel(unsigned int privateDataSpecifier)
    : TCDescLogicalChannel(0x83, privateDataSpecifier)
{
}

TCBaseDesc* TCDescTelekartaLogicalChannel::Fork() const
{
    return t_ForkAs(new TCDescTelekartaLogicalChannel(m_privateDataSpecifier));
}

TCDescTelekartaLogicalChannel::TTBlock TCDescTelekartaLogicalChannel::m_ParseBlockData(unsigned int block)
{
    TTBlock out;
    out.visible = (block & 0x8000u) != 0;
    out.second = (block & 0x4000u) != 0;
    out.package = static_cast<int>((block >> 10) & 0x0Fu);
    out.number = static_cast<unsigned short>(block & 0x03FFu);
    return out;
}

int TCDescTelekartaLogicalChannel::t_Parse(const unsigned char* payload, unsigned char length)
{
    if (length < DESCRIPTOR_SERIVCE_ID_LENGTH)
        return length;
    const unsigned short serviceId = static_cast<unsigned short>(ReadBE16(payload));
    for (int at = DESCRIPTOR_SERIVCE_ID_LENGTH; at + DESCRIPTOR_DATA_BLOCK_LENGTH <= length;
         at += DESCRIPTOR_DATA_BLOCK_LENGTH) {
        const TTBlock block = m_ParseBlockData(ReadBE16(payload + at));
        if (block.package != DESCRIPTOR_PACKAGE)
            continue;
        _TTDescLCN entry = LCNEmptyEntry(serviceId);
        entry.visibleFlag = block.visible ? 1 : 0;
        entry.channelNumber = block.number;
        t_AddEntry(entry);
        break;
    }
    return length;
}
