#ifndef ZUM_DVB_DVBITEMMUX_H
#define ZUM_DVB_DVBITEMMUX_H

#include <climits>
#include <map>
#include <memory>
#include <vector>

#include <zum-platform/Codes.h>
#include <zum-platform/ZUMHandle.h>

#include "../core/BaseSection.h"
#include "../core/DescriptorHash.h"

class IDescLogicalChannel;
class TCDescriptor;

// One transport stream of a NIT or BAT loop, with its descriptors; answers
// which logical channel descriptor gives a service its number.
class ZUM_EXPORT TCDVBItemMux : public TCDescriptorHashOwner {
public:
    TCDVBItemMux(unsigned short tableId, const ZUMHandle& handle);

    // Returns the bytes the entry takes (transport_descriptors_length + 6).
    int Parse(const unsigned char* data);
    // 0 when `remaining` is below 1; the loop is read no further than `remaining`.
    int Parse(const unsigned char* data, int remaining);
    // As above; the header is read as far as `reach` (at least `remaining`)
    // bytes, such as a CRC_32 behind the loop.
    int Parse(const unsigned char* data, int remaining, int reach);
    // As above, walking the loop with the section's walker, so that a
    // section's loops share one factory.
    int Parse(const unsigned char* data, int remaining, int reach, TCDescriptor& loop);
    void DeleteAll() { m_descriptors.DeleteAll(); }

    unsigned short TransportStreamId() const { return m_transportStreamId; }
    unsigned short OriginalNetworkId() const { return m_originalNetworkId; }

    // Country 0xFFFF00 stands for any country.
    IDescLogicalChannel* LCNDescriptor(unsigned short serviceId, unsigned int tag, ECountryCode country) const;
    IDescLogicalChannel* LCNDescriptorbyPriority(bool useV2, unsigned short serviceId, ECountryCode country,
                                                 bool anyCountry) const;

private:
    int m_Parse(const unsigned char* data, int remaining, int reach, TCDescriptor& loop);

    ZUMHandle m_handle;
    unsigned short m_tableId;
    unsigned short m_transportStreamId = 0;
    unsigned short m_originalNetworkId = 0;
};

// A sub-table of the NIT or the BAT: the descriptors in front of the transport
// stream loop, of all sections in one container, and the transport streams
// of each section, listed in section order.
class ZUM_EXPORT TCDVBMuxInstance : public TCBaseSection, public TCDescriptorHashOwner {
public:
    ~TCDVBMuxInstance() override;

    void DeleteAll() override;

    int NumOfDVBItemMux() const { return static_cast<int>(m_muxes.size()); }
    TCDVBItemMux* DVBItemMuxOfIndex(unsigned int index) const;
    TCDVBItemMux* DVBItemMux(unsigned short transportStreamId) const;
    TCDVBItemMux* DVBItemMux(unsigned short transportStreamId, unsigned short originalNetworkId) const;

protected:
    // `inStreamOrder`: the muxes are listed as they came, not by section number.
    explicit TCDVBMuxInstance(const ZUMHandle& handle, bool inStreamOrder = false)
        : m_handle(handle), m_inStreamOrder(inStreamOrder)
    {
    }

    // Tracks the section; for a new one reads its loops. True when the sub-table is complete.
    bool t_ParseSection(const unsigned char* body, int length, char version, int section, int last,
                        unsigned int crc, unsigned char tableId);

    ZUMHandle m_handle;

private:
    bool m_inStreamOrder;
    void m_Parse(const unsigned char* body, int length, int section, unsigned char tableId);

    // Owns the muxes; m_muxes lists them in section order.
    std::map<unsigned char, std::vector<std::unique_ptr<TCDVBItemMux>>> m_muxesBySection;
    std::vector<TCDVBItemMux*> m_muxes;
};

#endif
