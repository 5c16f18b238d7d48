#include "DVBItemMux.h"

#include <algorithm>

#include "../core/ByteReader.h"
#include "../core/Descriptor.h"
#include "../core/SectionItems.h"
#include "../operators/DescLogicalChannel.h"
#include "../operators/DescLogicalChannelV2.h"

namespace {

constexpr int kMuxHeaderSize = 6;
constexpr ECountryCode kAnyCountry = 0xFFFF00;

} // namespace

// ---------------------------------------------------------------- mux

TCDVBItemMux::TCDVBItemMux(unsigned short tableId, const ZUMHandle& handle) : m_handle(handle), m_tableId(tableId) {}

int TCDVBItemMux::Parse(const unsigned char* data)
{
    TCDescriptor loop(m_handle);
    return m_Parse(data, INT_MAX, INT_MAX, loop);
}

int TCDVBItemMux::Parse(const unsigned char* data, int remaining)
{
    return Parse(data, remaining, remaining);
}

int TCDVBItemMux::Parse(const unsigned char* data, int remaining, int reach)
{
    TCDescriptor loop(m_handle);
    return Parse(data, remaining, reach, loop);
}

int TCDVBItemMux::Parse(const unsigned char* data, int remaining, int reach, TCDescriptor& loop)
{
    if (remaining < 1)
        return 0;
    return m_Parse(data, remaining, std::max(remaining, reach), loop);
}

int TCDVBItemMux::m_Parse(const unsigned char* data, int remaining, int reach, TCDescriptor& loop)
{
    DeleteAll();
    // Header bytes are read as they stand as far as the bytes reach; behind
    // that they read as 0.
    unsigned char head[kMuxHeaderSize] = {};
    std::copy(data, data + std::min(reach, kMuxHeaderSize), head);
    m_transportStreamId = static_cast<unsigned short>(ReadBE16(head));
    m_originalNetworkId = static_cast<unsigned short>(ReadBE16(head + 2));
    const int loopLength = static_cast<int>(ReadBE16(head + 4) & 0x0FFF);
    const int available = std::max(0, remaining - kMuxHeaderSize);
    // Each mux's loop starts without a specifier, as every loop does.
    loop.Parse(data + kMuxHeaderSize, std::min(loopLength, available), m_descriptors,
               static_cast<unsigned char>(m_tableId));
    return loopLength + kMuxHeaderSize;
}

IDescLogicalChannel* TCDVBItemMux::LCNDescriptor(unsigned short serviceId, unsigned int tag, ECountryCode country) const
{
    switch (tag) {
    case 0x82: case 0x83: case 0x87: case 0x88: case 0xB0: case 0xD3: break;
    default: return nullptr;
    }
    const bool anyCountry = country == kAnyCountry;
    IDescLogicalChannel* best = nullptr;
    int lowestList = -1;
    for (int i = 0; i < m_descriptors.NumOfDescriptors(static_cast<int>(tag)); ++i) {
        TCBaseDesc* desc = m_descriptors.Descriptor(static_cast<int>(tag), static_cast<unsigned int>(i));
        auto* lcn = dynamic_cast<IDescLogicalChannel*>(desc);
        if (!lcn)
            continue;
        int listId = -1;
        if (tag == 0x87) {
            ECountryCode listCountry = 0xFFFFFF;
            const auto* v2 = dynamic_cast<const IDescLogicalChannelV2*>(desc);
            if (!v2 || !v2->GetChannelListCountryId(listCountry, listId)) {
                listCountry = 0xFFFFFF;
                listId = -1;
            }
            if (anyCountry) {
                if (lowestList == -1 || listId < lowestList) {
                    lowestList = listId;
                    best = lcn;
                }
            } else if (listCountry == country && !best) {
                best = lcn;
            }
        }
        if (lcn->CheckServiceId(serviceId, country)) {
            if (tag != 0x87 || !anyCountry)
                return lcn;
            if (listId == lowestList)
                best = lcn;
        }
    }
    return best;
}

IDescLogicalChannel* TCDVBItemMux::LCNDescriptorbyPriority(bool useV2, unsigned short serviceId, ECountryCode country,
                                                           bool anyCountry) const
{
    IDescLogicalChannel* found = nullptr;
    if (useV2) {
        found = LCNDescriptor(serviceId, 0x87, country);
        if (!found && anyCountry)
            found = LCNDescriptor(serviceId, 0x87, kAnyCountry);
    }
    for (unsigned int tag : {0x83u, 0x82u, 0xD3u, 0xB0u}) {
        if (found)
            break;
        found = LCNDescriptor(serviceId, tag, country);
    }
    return found;
}

// ---------------------------------------------------------------- sub-table with a mux loop

TCDVBMuxInstance::~TCDVBMuxInstance()
{
    TCDVBMuxInstance::DeleteAll();
}

void TCDVBMuxInstance::DeleteAll()
{
    m_descriptors.DeleteAll();
    m_muxes.clear();
    m_muxesBySection.clear();
}

bool TCDVBMuxInstance::t_ParseSection(const unsigned char* body, int length, char version, int section, int last,
                                      unsigned int crc, unsigned char tableId)
{
    const int result = t_CheckVersion(version, section, last, crc);
    if (result != TABLE_FIRST && result != TABLE_ADD && result != TABLE_CHANGED)
        return false;
    m_Parse(body, length, section, tableId);
    return IsValid();
}

void TCDVBMuxInstance::m_Parse(const unsigned char* body, int length, int section, unsigned char tableId)
{
    const int end = length - 4;
    const int descriptorsLength = length >= 2 ? static_cast<int>(ReadBE16(body) & 0x0FFF) : 0;
    // The descriptors of all sections collect in one container; a loop
    // longer than the section is read up to the CRC_32.
    TCDescriptor loop(m_handle);
    loop.Parse(body + 2, std::min(descriptorsLength, std::max(0, end - 2)), m_descriptors, tableId);

    // A section parsed again (after RemoveSection) appends its muxes, as it
    // does its descriptors: nothing a caller holds is freed before the next version.
    std::vector<std::unique_ptr<TCDVBItemMux>>& muxes =
        m_muxesBySection[m_inStreamOrder ? 0 : static_cast<unsigned char>(section)];
    const int first = descriptorsLength + 4;
    if (first < end)
        muxes.reserve(muxes.size() +
                      static_cast<size_t>(CountRecords(body + first, end - first, kMuxHeaderSize, 4)));
    for (int position = first; position < end;) {
        muxes.push_back(std::make_unique<TCDVBItemMux>(tableId, m_handle));
        // The header of a short last entry reads on into the CRC_32.
        position += muxes.back()->Parse(body + position, end - position, length - position, loop);
    }
    FlattenBySection(m_muxesBySection, m_muxes);
}

TCDVBItemMux* TCDVBMuxInstance::DVBItemMuxOfIndex(unsigned int index) const
{
    return index < m_muxes.size() ? m_muxes[index] : nullptr;
}

TCDVBItemMux* TCDVBMuxInstance::DVBItemMux(unsigned short transportStreamId) const
{
    const auto it = std::find_if(m_muxes.begin(), m_muxes.end(), [transportStreamId](const TCDVBItemMux* m) {
        return m->TransportStreamId() == transportStreamId;
    });
    return it == m_muxes.end() ? nullptr : *it;
}

TCDVBItemMux* TCDVBMuxInstance::DVBItemMux(unsigned short transportStreamId, unsigned short originalNetworkId) const
{
    const auto it = std::find_if(m_muxes.begin(), m_muxes.end(), [=](const TCDVBItemMux* m) {
        return m->TransportStreamId() == transportStreamId && m->OriginalNetworkId() == originalNetworkId;
    });
    return it == m_muxes.end() ? nullptr : *it;
}
