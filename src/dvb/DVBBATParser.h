#ifndef ZUM_DVB_DVBBATPARSER_H
#define ZUM_DVB_DVBBATPARSER_H

#include <list>
#include <map>
#include <memory>

#include <zum-platform/ZUMHandle.h>

#include "../core/SectionParser.h"
#include "DVBItemMux.h"

// The sub-table of one bouquet id: bouquet descriptors and transport streams.
class ZUM_EXPORT TCDVBBATInstance : public TCDVBMuxInstance {
public:
    TCDVBBATInstance(unsigned short bouquetId, const ZUMHandle& handle);

    bool Parse(const unsigned char* body, int length, char version, int section, int last, unsigned int crc,
               bool currentNext);

    unsigned short BouquetId() const { return m_bouquetId; }

private:
    unsigned short m_bouquetId;
};

// Bouquet association table (0x4A): one sub-table per bouquet id, each
// tracked on its own.
class ZUM_EXPORT TCDVBBATParser : public TCSectionParser {
public:
    explicit TCDVBBATParser(const ZUMHandle& handle);
    ~TCDVBBATParser() override;

    // Appends every bouquet id, ascending.
    void BouquetIds(std::list<unsigned short>& ids) const;
    TCDVBBATInstance* GetInstance(unsigned short bouquetId) const;
    // False before the first section since Initialize; true for an unknown bouquet.
    bool IsRecv(unsigned short bouquetId) const;
    bool AllSubtablesReceived() const { return m_allSubtablesReceived; }

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;

private:
    void m_CheckAllSubtableReceived();

    std::map<unsigned short, std::unique_ptr<TCDVBBATInstance>> m_instances;
    bool m_allSubtablesReceived = false;
};

#endif
