#ifndef ZUM_DVB_DVBSGTPARSER_H
#define ZUM_DVB_DVBSGTPARSER_H

#include <list>
#include <map>
#include <memory>
#include <vector>

#include <zum-platform/ZUMHandle.h>

#include "../core/BaseSection.h"
#include "../core/DescriptorHash.h"
#include "../core/SectionParser.h"

class TCServiceData;

// One service of an Astra service list, with its channel number and flags.
class ZUM_EXPORT TCDVBSGTItemService : public TCDescriptorHashOwner {
public:
    // Bytes of a record ahead of its descriptors.
    static constexpr int kHeaderSize = 12;

    explicit TCDVBSGTItemService(const ZUMHandle& handle);

    // `record` holds at least kHeaderSize bytes and the descriptors that they
    // announce. Returns kHeaderSize plus the descriptors length.
    int Parse(const unsigned char* record);
    // Sets the service's numbered properties; a null record does nothing.
    void GetServiceData(TCServiceData* data) const;

    unsigned short ServiceId() const { return m_serviceId; }
    unsigned short TransportStreamId() const { return m_transportStreamId; }
    unsigned short OriginalNetworkId() const { return m_originalNetworkId; }
    unsigned short LogicalChannelNumber() const { return m_logicalChannelNumber; }
    bool VisibleServiceFlag() const { return m_visible; }
    bool NewServiceFlag() const { return m_new; }
    unsigned short GenreCode() const { return m_genreCode; }

private:
    ZUMHandle m_handle;
    unsigned short m_serviceId = 0xFFFF;
    unsigned short m_transportStreamId = 0xFFFF;
    unsigned short m_originalNetworkId = 0xFFFF;
    unsigned short m_logicalChannelNumber = 0xFFFF;
    bool m_visible = true;
    bool m_new = false;
    unsigned short m_genreCode = 255;
};

// One service list (a value of the table id extension): its list-level
// descriptors, the list's name among them, and its services in stream order.
class ZUM_EXPORT TCDVBSGTInstance : public TCBaseSection, public TCDescriptorHashOwner {
public:
    explicit TCDVBSGTInstance(const ZUMHandle& handle);
    ~TCDVBSGTInstance() override;

    // Deletes the services; the list-level descriptors stay.
    void DeleteAll() override;
    bool Parse(const unsigned char* body, int length, int version, int section, int last, unsigned int crc);

    // Whether the list-level loop holds a service list name.
    bool ServiceListValid() const;
    int NumOfServices() const { return static_cast<int>(m_services.size()); }
    // Null for an index outside the list.
    TCDVBSGTItemService* Service(int index) const;

private:
    ZUMHandle m_handle;
    std::vector<std::unique_ptr<TCDVBSGTItemService>> m_services;
};

// Astra's service guide table (0x91): one instance per service list.
class ZUM_EXPORT TCDVBSGTParser : public TCSectionParser {
public:
    explicit TCDVBSGTParser(const ZUMHandle& handle);
    ~TCDVBSGTParser() override;

    TCDVBSGTInstance* Instance(unsigned short id) const;
    // The named list of the lowest id; null if none is named.
    TCDVBSGTInstance* GetFirstInstance() const;
    bool FlagValidServiceList() const;
    // Appends the ids of the named lists, ascending; whether any list exists at all.
    bool ServiceListsIds(std::list<unsigned short>& ids) const;
    // Set when a section arrives for a list already complete.
    bool IsValid() const { return m_allReceived; }
    bool AllSubtablesReceived() const { return m_AllSubtablesValid(); }
    void Reset();

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    // Lists outlive an Initialize: only Reset and destruction remove them.
    void t_Initialize() override;

private:
    bool m_AllSubtablesValid() const;

    std::map<unsigned short, std::unique_ptr<TCDVBSGTInstance>> m_instances;
    bool m_allReceived = false;
};

#endif
