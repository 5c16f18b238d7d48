#ifndef ZUM_DVB_DVBNITPARSER_H
#define ZUM_DVB_DVBNITPARSER_H

#include <list>
#include <map>
#include <memory>

#include <zum-platform/ZUMHandle.h>

#include "../core/SectionParser.h"
#include "DVBItemMux.h"

// The sub-table of one network id: network descriptors and transport streams.
class ZUM_EXPORT TCDVBNITInstance : public TCDVBMuxInstance {
public:
    TCDVBNITInstance(unsigned char tableId, unsigned short networkId, const ZUMHandle& handle);

    bool Parse(const unsigned char* body, int length, char version, int section, int last, unsigned int crc,
               bool currentNext);

    unsigned short NetworkId() const { return m_networkId; }
    // How many times a section completed this sub-table; survives DeleteAll.
    unsigned int GetCurrentNITCount(unsigned char* tableId, unsigned int* count) const;

private:
    unsigned char m_tableId;
    unsigned short m_networkId;
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
