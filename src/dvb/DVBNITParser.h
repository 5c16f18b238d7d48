#ifndef ZUM_DVB_DVBNITPARSER_H
#define ZUM_DVB_DVBNITPARSER_H

#include <climits>
#include <list>
#include <map>
#include <memory>
#include <vector>

#include <zum-platform/Codes.h>
#include <zum-platform/ZUMHandle.h>

#include "../core/BaseSection.h"
#include "../core/DescriptorHash.h"
#include "../core/SectionParser.h"

class IDescLogicalChannel;

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
    void DeleteAll() { m_descriptors.DeleteAll(); }

    unsigned short TransportStreamId() const { return m_transportStreamId; }
    unsigned short OriginalNetworkId() const { return m_originalNetworkId; }

    // Country 0xFFFF00 stands for any country.
    IDescLogicalChannel* LCNDescriptor(unsigned short serviceId, unsigned int tag, ECountryCode country) const;
    IDescLogicalChannel* LCNDescriptorbyPriority(bool useV2, unsigned short serviceId, ECountryCode country,
                                                 bool anyCountry) const;

private:
    int m_Parse(const unsigned char* data, int remaining, int reach);

    ZUMHandle m_handle;
    unsigned short m_tableId;
    unsigned short m_transportStreamId = 0;
    unsigned short m_originalNetworkId = 0;
};

// The sub-table of one network id: network descriptors and transport streams.
class ZUM_EXPORT TCDVBNITInstance : public TCBaseSection, public TCDescriptorHashOwner {
public:
    TCDVBNITInstance(unsigned char tableId, unsigned short networkId, const ZUMHandle& handle);
    ~TCDVBNITInstance() override;

    void DeleteAll() override;
    bool Parse(const unsigned char* body, int length, char version, int section, int last, unsigned int crc,
               bool currentNext);

    unsigned short NetworkId() const { return m_networkId; }
    int NumOfDVBItemMux() const { return static_cast<int>(m_muxes.size()); }
    TCDVBItemMux* DVBItemMuxOfIndex(unsigned int index) const;
    TCDVBItemMux* DVBItemMux(unsigned short transportStreamId) const;
    TCDVBItemMux* DVBItemMux(unsigned short transportStreamId, unsigned short originalNetworkId) const;
    // How many times a section completed this sub-table; survives DeleteAll.
    unsigned int GetCurrentNITCount(unsigned char* tableId, unsigned int* count) const;

private:
    void m_Parse(const unsigned char* body, int length, int section);

    ZUMHandle m_handle;
    unsigned char m_tableId;
    unsigned short m_networkId;
    // Owns the muxes; m_muxes lists them in section order.
    std::map<unsigned char, std::vector<std::unique_ptr<TCDVBItemMux>>> m_muxesBySection;
    std::vector<TCDVBItemMux*> m_muxes;
    unsigned int m_completeCount = 0;
};

// Network information table, actual (0x40) or other (0x41). Accessors with a
// network id select: for 0x40 the lowest network id whatever the argument,
// for 0x41 the network asked for.
class ZUM_EXPORT TCDVBNITParser : public TCSectionParser {
public:
    TCDVBNITParser(int tableId, const ZUMHandle& handle);
    ~TCDVBNITParser() override;

    int NetworkId() const;
    void NetworkIds(std::list<unsigned short>& ids) const;
    bool IsRecv(unsigned short networkId) const;
    TCDVBItemMux* DVBItemMux(unsigned short transportStreamId, unsigned short networkId) const;
    int NumOfDVBItemMux(unsigned short networkId) const;
    TCDVBItemMux* DVBItemMuxOfIndex(int index, unsigned short networkId) const;
    TCDVBNITInstance* GetFirstInstance() const;
    TCDVBNITInstance* GetInstance(unsigned short networkId) const;
    int DescriptorsLength(unsigned short networkId) const;
    TCBaseDesc* Descriptor(int tag, unsigned short networkId) const;
    bool GetDescriptor(std::list<TCBaseDesc*>* list, unsigned short networkId) const;
    bool AllSubtablesReceived() const { return m_allSubtablesReceived; }

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;

private:
    TCDVBNITInstance* m_Select(unsigned short networkId) const;
    void m_CheckAllSubtableReceived();

    std::map<unsigned short, std::unique_ptr<TCDVBNITInstance>> m_instances;
    bool m_allSubtablesReceived = false;
};

#endif
