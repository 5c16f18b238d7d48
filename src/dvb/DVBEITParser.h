#ifndef ZUM_DVB_DVBEITPARSER_H
#define ZUM_DVB_DVBEITPARSER_H

#include <map>
#include <memory>
#include <vector>

#include "../core/BaseSection.h"
#include "../core/SectionParser.h"
#include "ServiceKey.h"

// Section tracker of one service's event information: it only tells whether
// a section is new; the events are decoded by a TCDVBEITItem of the caller.
class ZUM_EXPORT TCDVBEITInstance : public TCBaseSection {
public:
    TCDVBEITInstance() = default;
    void DeleteAll() override {}

    // `body` follows the section header, `length` counts to the end, CRC_32
    // included. True when the section is new.
    bool Parse(const unsigned char* body, int length, unsigned short serviceId, int version, int sectionNumber,
               int lastSectionNumber, unsigned int crc);

    unsigned short TransportStreamId() const { return m_transportStreamId; }
    unsigned short OriginalNetworkId() const { return m_originalNetworkId; }
    unsigned char LastTableId() const { return m_lastTableId; }

private:
    unsigned short m_transportStreamId = 0;
    unsigned short m_originalNetworkId = 0;
    unsigned char m_lastTableId = 0;
};

// Event information tables (0x4E..0x6F, compressed 0x80..0x9F): one tracker
// per service. Parse answers true for every new section, not for a complete
// table; the caller then hands the section to its TCDVBEITItem.
class ZUM_EXPORT TCDVBEITParser : public TCSectionParser {
public:
    TCDVBEITParser(int tableId, const ZUMHandle& handle);
    ~TCDVBEITParser() override;

    static bool IsEITPFTable(unsigned char tableId);
    static bool IsEITActualTable(unsigned char tableId);

    // Null when no section of that service came in.
    TCDVBEITInstance* EITInstance(TCServiceKey key) const;
    // Has the service's tracker take `section` as new at its next arrival.
    bool RemoveSection(int originalNetworkId, unsigned short transportStreamId, unsigned short serviceId,
                       int section);

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;

private:
    // The key holds no table id: all EIT tables of a service share one tracker.
    TCServiceKey m_key;
    std::map<TCServiceKey, std::unique_ptr<TCDVBEITInstance>> m_instances;
};

// One event of an EIT section. The descriptor loop is kept as raw bytes and
// decoded later by the guide utilities.
class ZUM_EXPORT TCDVBEITItemEvent {
public:
    explicit TCDVBEITItemEvent(const ZUMHandle& handle);

    // `data` is the event record, which must hold its whole descriptor loop.
    // Answers the bytes of the record: 12 plus the loop length.
    int Parse(const unsigned char* data, int tableId, unsigned char flag);
    // As above, reading no more than `length` bytes: header bytes past them
    // read as 0, and a loop that runs past them is kept as far as it goes.
    int Parse(const unsigned char* data, int length, int tableId, unsigned char flag);
    // Six BCD digits hhmmss as seconds.
    unsigned int ConvertBCDtoSec(const unsigned char* data) const;
    void DeleteAll();

    const ZUMHandle& Handle() const { return m_handle; }
    int TableId() const { return m_tableId; }
    unsigned char Flag() const { return m_flag; }
    unsigned short EventId() const { return m_eventId; }
    // Seconds since 6 January 1980; 0xFFFFFFFF when undefined.
    unsigned int StartTime() const { return m_startTime; }
    // Seconds; 0xFFFFFF when undefined.
    unsigned int Duration() const { return m_duration; }
    int RunningStatus() const { return m_runningStatus; }
    int FreeCaMode() const { return m_freeCaMode; }
    // Null when the loop is empty.
    const unsigned char* Descriptors() const { return m_pDescriptors.get(); }
    unsigned short DescriptorsLength() const { return m_descriptorsLength; }

    static constexpr int kHeaderLength = 12;

private:
    ZUMHandle m_handle;
    int m_tableId = 0;
    unsigned char m_flag = 0;
    unsigned short m_eventId = 0;
    unsigned int m_startTime = 0;
    unsigned int m_duration = 0;
    int m_runningStatus = -1;
    int m_freeCaMode = 0;
    std::unique_ptr<unsigned char[]> m_pDescriptors;
    unsigned short m_descriptorsLength = 0;
};

// The caller's decoder of EIT sections of one service: holds the events of
// the section in hand and tracks sections and schedule segments.
class ZUM_EXPORT TCDVBEITItem : public TCBaseSection {
public:
    TCDVBEITItem(int originalNetworkId, unsigned short transportStreamId, unsigned short serviceId,
                 const ZUMHandle& handle);
    ~TCDVBEITItem() override;

    // Destroys the events of the section in hand.
    void DeleteAll() override;

    // `section` is the whole section from its table_id, `length` its size.
    bool Parse(const unsigned char* section, int length, int version, int sectionNumber, int lastSectionNumber,
               int tableId);

    int NumOfDVBEITItemEvent() const;
    TCDVBEITItemEvent* DVBEITItemEvent(unsigned int index) const;
    bool FindDVBEitEvent(unsigned short eventId) const;
    // zlib stream into `target`, which holds 4096 bytes; *targetLength is
    // output only and becomes the size.
    static bool ExtractCompressed(const unsigned char* source, unsigned int sourceLength, unsigned char* target,
                                  unsigned int* targetLength);

    int OriginalNetworkId() const { return m_originalNetworkId; }
    unsigned short TransportStreamId() const { return m_transportStreamId; }
    unsigned short ServiceId() const { return m_serviceId; }
    unsigned char SectionNumber() const { return m_sectionNumber; }
    unsigned char SegmentLastSectionNumber() const { return m_segmentLastSectionNumber; }
    unsigned char LastTableId() const { return m_lastTableId; }
    int VersionNumber() const { return m_versionNumber; }
    bool IsComplete() const { return m_complete; }

    static constexpr unsigned int kMaxEventBytes = 4096;

private:
    bool m_Parse(const unsigned char* section, int length, int tableId);

    ZUMHandle m_handle;
    int m_originalNetworkId;
    unsigned short m_transportStreamId;
    unsigned short m_serviceId;
    unsigned char m_sectionNumber = 0;
    unsigned char m_segmentLastSectionNumber = 0;
    unsigned char m_lastTableId = 0;
    std::vector<std::unique_ptr<TCDVBEITItemEvent>> m_events;
    bool m_complete = false;
    int m_versionNumber = 0;
};

#endif
