#ifndef ZUM_DVB_DVBFNTPARSER_H
#define ZUM_DVB_DVBFNTPARSER_H

#include <list>
#include <map>
#include <memory>

#include <zum-platform/ZUMHandle.h>

#include "../core/SectionParser.h"
#include "DVBItemMux.h"

// The fast-scan network table of one operator network id: network
// descriptors and the transports, as a NIT has them, listed as they came.
class ZUM_EXPORT TCDVBFNTInstance : public TCDVBMuxInstance {
public:
    TCDVBFNTInstance(unsigned char tableId, unsigned short id, const ZUMHandle& handle);

    bool Parse(const unsigned char* body, int length, char version, int section, int last, unsigned int crc,
               bool currentNext);

    unsigned char TableId() const { return m_tableId; }
    unsigned short Id() const { return m_id; }
    using TCDVBMuxInstance::DVBItemMux;
    // The first mux of both ids whose first service list descriptor holds the service; null for none.
    TCDVBItemMux* DVBItemMux(unsigned short transportStreamId, unsigned short networkId,
                             unsigned short serviceId) const;

private:
    unsigned char m_tableId;
    unsigned short m_id;
};

// Fast-scan network table, on the PID that an operator's home transponder
// linkage names: one sub-table per operator network id (table id extension).
class ZUM_EXPORT TCDVBFNTParser : public TCSectionParser {
public:
    TCDVBFNTParser(int tableId, const ZUMHandle& handle);
    ~TCDVBFNTParser() override;

    // The lowest network id; 0xFFFFFFFF without an instance.
    unsigned int NetworkId() const;
    // Appends every network id, ascending.
    void NetworkIds(std::list<unsigned short>& ids) const;
    // False before the first section since Initialize; else whether the first instance is complete.
    bool IsRecv() const;
    // The accessors below read the first instance, that of the lowest id.
    int NumOfDVBItemMux() const;
    TCDVBItemMux* DVBItemMuxOfIndex(int index) const;
    TCDVBFNTInstance* GetFirstInstance() const;
    TCDVBFNTInstance* GetInstance(unsigned short id) const;
    // The number of network descriptors, not their length in bytes.
    int DescriptorsLength() const;
    TCBaseDesc* Descriptor(int tag) const;
    // Clones that belong to the caller; false without an instance.
    bool GetDescriptor(std::list<TCBaseDesc*>* list) const;

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;

private:
    std::map<unsigned short, std::unique_ptr<TCDVBFNTInstance>> m_instances;
};

#endif
