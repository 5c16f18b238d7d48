#ifndef ZUM_DVB_DVBSDTPARSER_H
#define ZUM_DVB_DVBSDTPARSER_H

#include <map>
#include <memory>
#include <vector>

#include <zum-platform/ZUMHandle.h>

#include "../core/BaseSection.h"
#include "../core/DescriptorHash.h"
#include "../core/SectionParser.h"

class TCDescriptor;

// Key of an SDT sub-table: original network id, then transport stream id.
struct ZUM_EXPORT TTNetworkKey {
    int originalNetworkId = 0;
    int transportStreamId = 0;

    bool operator<(const TTNetworkKey& o) const
    {
        return originalNetworkId != o.originalNetworkId ? originalNetworkId < o.originalNetworkId
                                                        : transportStreamId < o.transportStreamId;
    }
    bool operator==(const TTNetworkKey& o) const
    {
        return originalNetworkId == o.originalNetworkId && transportStreamId == o.transportStreamId;
    }
    void Set(const TTNetworkKey* other)
    {
        if (other)
            *this = *other;
    }
};

// One service of an SDT section with its descriptors.
class ZUM_EXPORT TCDVBSDTItemService : public TCDescriptorHashOwner {
public:
    explicit TCDVBSDTItemService(const ZUMHandle& handle);

    // Returns the bytes the entry takes (descriptors_loop_length + 5).
    int Parse(const unsigned char* data);
    // As above, reading the descriptor loop no further than `remaining` bytes from `data`.
    int Parse(const unsigned char* data, int remaining);
    // As above, walking the loop with the section's walker, so that a
    // section's loops share one factory.
    int Parse(const unsigned char* data, int remaining, TCDescriptor& loop);
    void DeleteAll() { m_descriptors.DeleteAll(); }

    unsigned short ServiceId() const { return m_serviceId; }
    unsigned char EITScheduleFlag() const { return m_eitScheduleFlag; }
    int EITPresentFollowingFlag() const { return m_eitPresentFollowingFlag; }
    int RunningStatus() const { return m_runningStatus; }
    unsigned char FreeCAMode() const { return m_freeCaMode; }

private:
    ZUMHandle m_handle;
    unsigned short m_serviceId = 0;
    unsigned char m_eitScheduleFlag = 0;
    int m_eitPresentFollowingFlag = -1;
    int m_runningStatus = -1;
    unsigned char m_freeCaMode = 0;
};

// The services of one transport stream (original network id and transport
// stream id), collected over the sections of its sub-table.
class ZUM_EXPORT TCDVBSDTInstance : public TCBaseSection {
public:
    explicit TCDVBSDTInstance(const ZUMHandle& handle);
    ~TCDVBSDTInstance() override;

    void DeleteAll() override;
    bool Parse(const unsigned char* body, int length, unsigned short transportStreamId,
               unsigned short originalNetworkId, char version, int section, int last, unsigned int crc,
               bool currentNext);

    int NumOfDVBSDTItemService() const { return static_cast<int>(m_services.size()); }
    TCDVBSDTItemService* DVBSDTItemServiceOfIndex(unsigned int index) const;
    TCDVBSDTItemService* DVBSDTItemServiceBySID(unsigned short serviceId) const;
    int IndexOfDVBSDTItemServiceBySID(unsigned short serviceId) const;

    unsigned short TransportStreamId() const { return m_transportStreamId; }
    unsigned short OriginalNetworkId() const { return m_originalNetworkId; }
    char VersionNumber() const { return m_versionNumber; }
    bool CurrentNextIndicator() const { return m_currentNextIndicator; }
    unsigned char SectionNumber() const { return m_sectionNumber; }
    unsigned char LastSectionNumber() const { return m_lastSectionNumber; }

protected:
    void t_Parse(const unsigned char* body, int length);

private:
    ZUMHandle m_handle;
    unsigned short m_transportStreamId = 0xFFFF;
    unsigned short m_originalNetworkId = 0xFFFF;
    char m_versionNumber = -1;
    bool m_currentNextIndicator = true;
    unsigned char m_sectionNumber = 0xFF;
    unsigned char m_lastSectionNumber = 0xFF;
    // Owns the services; m_services lists them in section order.
    std::map<unsigned char, std::vector<std::unique_ptr<TCDVBSDTItemService>>> m_servicesBySection;
    std::vector<TCDVBSDTItemService*> m_services;
};

// Service description table, actual (0x42) or other (0x46).
class ZUM_EXPORT TCDVBSDTParser : public TCSectionParser {
public:
    TCDVBSDTParser(int tableId, const ZUMHandle& handle);
    ~TCDVBSDTParser() override;

    virtual bool IsInstanceRecv(unsigned short transportStreamId, unsigned short originalNetworkId);

    TCDVBSDTInstance* DVBSDTInstance(unsigned short transportStreamId, unsigned short originalNetworkId) const;
    // The instance of the section parsed last.
    TCDVBSDTInstance* DVBSDTFirstInstance() const;
    int NumOfDVBSDTInstance() const { return static_cast<int>(m_instances.size()); }
    TCDVBSDTInstance* DVBSDTInstanceOfIndex(unsigned int index) const;

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;

private:
    unsigned short m_lastTransportStreamId = 0xFFFF;
    unsigned short m_lastOriginalNetworkId = 0xFFFF;
    std::map<TTNetworkKey, std::unique_ptr<TCDVBSDTInstance>> m_instances;
};

#endif
