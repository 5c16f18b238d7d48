#ifndef ZUM_DVB_DVBFSTPARSER_H
#define ZUM_DVB_DVBFSTPARSER_H

#include <list>
#include <map>
#include <memory>
#include <vector>

#include <zum-platform/ZUMHandle.h>

#include "../core/BaseSection.h"
#include "../core/DescriptorHash.h"
#include "../core/SectionParser.h"

// One service record of a fast-scan service table: the DVB triplet, the
// default PIDs as sent (reserved bits included) and the service's descriptors.
class TCDescriptor;

class ZUM_EXPORT TCDVBFSTItemService : public TCDescriptorHashOwner {
public:
    explicit TCDVBFSTItemService(const ZUMHandle& handle);

    // Reads the record at `data`, no further than `remaining` bytes; returns
    // 18 plus its descriptors length.
    int Parse(const unsigned char* data, int remaining);
    // As above, walking the loop with the section's walker.
    int Parse(const unsigned char* data, int remaining, TCDescriptor& loop);
    void DeleteAll() { m_descriptors.DeleteAll(); }

    unsigned short OriginalNetworkId() const { return m_originalNetworkId; }
    unsigned short TransportStreamId() const { return m_transportStreamId; }
    unsigned short ServiceId() const { return m_serviceId; }
    unsigned short DefaultVideoPid() const { return m_videoPid; }
    unsigned short DefaultAudioPid() const { return m_audioPid; }
    unsigned short DefaultVideoEcmPid() const { return m_videoEcmPid; }
    unsigned short DefaultAudioEcmPid() const { return m_audioEcmPid; }
    unsigned short DefaultPcrPid() const { return m_pcrPid; }
    unsigned short DescriptorsLength() const { return m_descriptorsLength; }

private:
    ZUMHandle m_handle;
    unsigned short m_originalNetworkId = 0;
    unsigned short m_transportStreamId = 0;
    unsigned short m_serviceId = 0;
    unsigned short m_videoPid = 0;
    unsigned short m_audioPid = 0;
    unsigned short m_videoEcmPid = 0;
    unsigned short m_audioEcmPid = 0;
    unsigned short m_pcrPid = 0;
    unsigned short m_descriptorsLength = 0;
};

// The fast-scan service table of one operator network id.
class ZUM_EXPORT TCDVBFSTInstance : public TCBaseSection {
public:
    explicit TCDVBFSTInstance(const ZUMHandle& handle);
    ~TCDVBFSTInstance() override;

    bool Parse(const unsigned char* body, int length, unsigned short id, char version, int section, int last,
               unsigned int crc, bool currentNext);
    void DeleteAll() override;

    int NumOfDVBFSTItemService() const { return static_cast<int>(m_services.size()); }
    TCDVBFSTItemService* DVBFSTItemServiceOfIndex(unsigned int index) const;

    unsigned short Id() const { return m_id; }
    unsigned char Version() const { return m_version; }
    unsigned char SectionNumber() const { return m_sectionNumber; }
    unsigned char LastSectionNumber() const { return m_lastSectionNumber; }
    bool CurrentNext() const { return m_currentNext; }

private:
    ZUMHandle m_handle;
    unsigned short m_id = 0;
    unsigned char m_version = 0;
    unsigned char m_sectionNumber = 0;
    unsigned char m_lastSectionNumber = 0;
    bool m_currentNext = false;
    std::vector<std::unique_ptr<TCDVBFSTItemService>> m_services;
};

// Fast-scan service table: one sub-table per operator network id (table id
// extension); the descriptor loops are read as table 0xBD.
class ZUM_EXPORT TCDVBFSTParser : public TCSectionParser {
public:
    TCDVBFSTParser(int tableId, const ZUMHandle& handle);
    ~TCDVBFSTParser() override;

    // The table id extension of the last section; 0xFFFF before the first.
    unsigned short OperatorNetworkId() const { return m_operatorNetworkId; }
    // For 0xFFFF the instance of the lowest id; null for none.
    TCDVBFSTInstance* DVBFSTInstance(unsigned short id) const;
    // Appends the id of every instance, ascending.
    void OperatorNetworkIds(std::list<unsigned short>& ids) const;

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;

private:
    std::map<unsigned short, std::unique_ptr<TCDVBFSTInstance>> m_instances;
    unsigned short m_operatorNetworkId = 0xFFFF;
};

#endif
