#ifndef ZUM_ATSC_EITPARSER_H
#define ZUM_ATSC_EITPARSER_H

#include <map>
#include <memory>
#include <vector>

#include "../core/BaseSection.h"
#include "../core/SectionParser.h"

// One event of a PSIP event information table; title (a multiple string
// structure) and descriptor loop stay raw, in one owned block.
class ZUM_EXPORT TCEITItemEvent {
public:
    // Bytes the record takes: title_length + descriptors_length + 12. The
    // caller has checked that they lie in its buffer (RecordSize).
    int Parse(const unsigned char* data, int sectionNumber);
    void DeleteAll();
    // Copy of the raw title; *length is the capacity on entry. Truncates and
    // answers false when it does not fit.
    bool TitleText(unsigned char* text, int* length) const;

    // Bytes of the record at `data`, or -1 when its fields pass `size`.
    static int RecordSize(const unsigned char* data, int size);

    unsigned short EventId() const { return m_eventId; }
    unsigned int StartTime() const { return m_startTime; }
    unsigned char ETMLocation() const { return m_etmLocation; }
    unsigned int LengthInSeconds() const { return m_lengthInSeconds; }
    unsigned char TitleLength() const { return m_titleLength; }
    const unsigned char* Title() const { return m_titleLength ? m_bytes.data() : nullptr; }
    const unsigned char* Descriptors() const
    {
        return m_descriptorsLength ? m_bytes.data() + m_titleLength : nullptr;
    }
    unsigned short DescriptorsLength() const { return m_descriptorsLength; }
    unsigned char SectionNumber() const { return m_sectionNumber; }

private:
    unsigned short m_eventId = 0;
    unsigned int m_startTime = 0;
    unsigned char m_etmLocation = 0;
    unsigned int m_lengthInSeconds = 0;
    unsigned char m_titleLength = 0;
    unsigned short m_descriptorsLength = 0;
    unsigned char m_sectionNumber = 0;
    // The title, then the descriptor loop.
    std::vector<unsigned char> m_bytes;
};

// The events of one source on one PID, with the source's own version and
// section tracking.
class ZUM_EXPORT TCEITItem : public TCBaseSection {
public:
    explicit TCEITItem(unsigned short sourceId) : m_sourceId(sourceId) {}
    void DeleteAll() override;
    ~TCEITItem() override;

    // True when all sections of this source are in.
    bool Parse(const unsigned char* data, int size, int version, int section, int lastSection);
    unsigned int NumOfEITItemEvent() const { return static_cast<unsigned int>(m_events.size()); }
    TCEITItemEvent* EITItemEvent(unsigned int index) const;
    unsigned short SourceId() const { return m_sourceId; }

private:
    std::vector<std::unique_ptr<TCEITItemEvent>> m_events;
    unsigned short m_sourceId;
};

// The sources of one EIT PID, in order of first arrival.
class ZUM_EXPORT TCEITInstance {
public:
    explicit TCEITInstance(short pid) : m_pid(pid) {}
    ~TCEITInstance();
    TCEITInstance(const TCEITInstance&) = delete;
    TCEITInstance& operator=(const TCEITInstance&) = delete;

    bool Parse(const unsigned char* data, int size, unsigned short sourceId, int version, int section,
               int lastSection);
    void DeleteAll();
    unsigned int NumOfSourceId() const { return static_cast<unsigned int>(m_items.size()); }
    TCEITItem* EITItem(unsigned short sourceId) const;
    // In order of first arrival; null past the end.
    TCEITItem* EITItemOfIndex(unsigned int index) const;
    short PID() const { return m_pid; }

private:
    std::vector<std::unique_ptr<TCEITItem>> m_items;
    short m_pid;
};

// PSIP event information table (0xCB) of every PID the MGT names, by PID,
// then source, then event.
class ZUM_EXPORT TCEITParser : public TCSectionParser {
public:
    static constexpr unsigned int INVALID = 0xFFFFFFFF;

    explicit TCEITParser(const ZUMHandle& handle);
    ~TCEITParser() override;

    // The source id of the section read last; INVALID before the first.
    unsigned int SourceId() const;
    TCEITInstance* EITInstance(short pid) const;
    // The PIDs seen, ascending.
    std::vector<short> PIDs() const;

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;
    bool t_CheckPSIPTable(unsigned char tableId) override;

private:
    std::map<int, std::unique_ptr<TCEITInstance>> m_instances;
    unsigned int m_sourceId = INVALID;
};

#endif
