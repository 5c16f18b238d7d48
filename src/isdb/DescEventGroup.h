#ifndef ZUM_ISDB_DESCEVENTGROUP_H
#define ZUM_ISDB_DESCEVENTGROUP_H

#include <vector>

#include "../core/BaseDesc.h"

// event_group_descriptor of ARIB (0xD6): the events that share, relay or
// move this one, on this network or, for group types 4 and 5, on others.
class ZUM_EXPORT TCDescEventGroup : public TCBaseDesc {
public:
    struct TTEvent {
        unsigned short serviceId = 0;
        unsigned short eventId = 0;
    };
    struct TTOtherNetworkEvent {
        unsigned short originalNetworkId = 0;
        unsigned short transportStreamId = 0;
        unsigned short serviceId = 0;
        unsigned short eventId = 0;
    };

    TCDescEventGroup();
    ~TCDescEventGroup() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // 0 for a first byte of 0x60 or more.
    int GroupType() const { return m_groupType; }
    int EventCount() const { return m_eventCount; }
    int OtherNetworkCount() const { return static_cast<int>(m_others.size()); }
    int PrivateDataLength() const { return m_privateData.length; }
    // Owned by the descriptor; null, with a log line, for an index outside
    // the list (events cut off by the descriptor's end are outside it).
    const TTEvent* Group(int index) const;
    const TTOtherNetworkEvent* GroupOther(int index) const;
    // Copies up to `size` bytes of private data; false only for no buffer or a size below 1.
    bool PrivateDataBytes(int& size, unsigned char* buffer) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    int m_groupType = 0;
    int m_eventCount = 0;
    std::vector<TTEvent> m_events;
    std::vector<TTOtherNetworkEvent> m_others;
    TTRawRun m_privateData;
};

// series_descriptor of ARIB (0xD5): the series an event belongs to, its
// episode and the raw series name.
class ZUM_EXPORT TCDescSeries : public TCBaseDesc {
public:
    TCDescSeries();
    ~TCDescSeries() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned short SeriesId() const { return m_seriesId; }
    unsigned char RepeatLabel() const { return m_repeatLabel; }
    unsigned char ProgramPattern() const { return m_programPattern; }
    unsigned char ExpireDateValidFlag() const { return m_expireDateValidFlag; }
    // Days since MJD 44244 (6 January 1980), 0 for an earlier date.
    unsigned short ExpireDate() const { return m_expireDate; }
    unsigned short EpisodeNumber() const { return m_episodeNumber; }
    unsigned short LastEpisodeNumber() const { return m_lastEpisodeNumber; }
    unsigned short SeriesNameLength() const { return m_name.length; }
    // A buffer smaller than the name gets its size's worth; one just as long
    // gets the whole name; both answer false. Only a larger one answers true.
    bool GetSeriesName(unsigned char* buffer, unsigned short* size) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned short m_seriesId = 0;
    unsigned char m_repeatLabel = 0;
    unsigned char m_programPattern = 0;
    unsigned char m_expireDateValidFlag = 0;
    unsigned short m_expireDate = 0;
    unsigned short m_episodeNumber = 0;
    unsigned short m_lastEpisodeNumber = 0;
    TTRawRun m_name;
};

#endif
