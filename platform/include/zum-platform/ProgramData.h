#ifndef ZUM_PLATFORM_PROGRAMDATA_H
#define ZUM_PLATFORM_PROGRAMDATA_H

// The guide record the platform keeps for one event: identity, location,
// title, the event's raw descriptor loop and, once made, its components.

#include <array>
#include <memory>
#include <string>
#include <vector>

// Base of the platform's value types.
class TCMarshalable {
public:
    TCMarshalable() = default;
    TCMarshalable(const TCMarshalable&) = default;
    TCMarshalable(TCMarshalable&&) = default;
    TCMarshalable& operator=(const TCMarshalable&) = default;
    TCMarshalable& operator=(TCMarshalable&&) = default;
    virtual ~TCMarshalable() = default;
};

// Identity of an event in the guide.
class TCProgramId : public TCMarshalable {
public:
    unsigned long long serviceId = 0; // the platform's service key
    int eventId = 0;
    unsigned long utcStartTime = 0;
    unsigned long utcDuration = 0;
    int eitTableId = 0;
    int eitNumber = 0;

    bool operator==(const TCProgramId& other) const;
    bool operator!=(const TCProgramId& other) const { return !(*this == other); }
};

// A parental rating as the guide shows it.
struct TSRatingInfo {
    unsigned char ratingType = 0;
    unsigned char ratingValue = 0;
    unsigned char ratingExtra = 0;
};

class TCProgramData {
public:
    // Kinds of component; the values 0..3 are the valid ones.
    enum EComponentType : int {
        COMP_TYPE_INVALID = -1,
        COMP_TYPE_VIDEO = 0,
        COMP_TYPE_AUDIO = 1,
        COMP_TYPE_SUBTITLE = 2,
        COMP_TYPE_DATA = 3,
        COMP_TYPE_MAX = 4,
    };

    struct TTComp : public TCMarshalable {
        unsigned char componentTag = 0;
        unsigned char componentType = 0;
        unsigned int language = 0;         // language group key
        unsigned int qualityIndicator = 0; // audio components only, else 0
        std::unique_ptr<unsigned char[]> text; // converted text, allocated with new[]; null when none
        unsigned short textLength = 0;         // bytes of text

        TTComp() = default;
        TTComp(const TTComp& other);
        TTComp(TTComp&&) noexcept = default;
        TTComp& operator=(const TTComp& other);
        TTComp& operator=(TTComp&&) noexcept = default;
        ~TTComp() override = default;

        // Copies length bytes into a fresh text; null or 0 leaves no text.
        void SetText(const unsigned char* data, unsigned short length);
    };

    struct TTEventInfo : public TCMarshalable {
        unsigned short transportStreamId = 0;
        unsigned short originalNetworkId = 0;
        unsigned short serviceId = 0;
        unsigned short eventId = 0;
    };

    struct TTSeriesItem {
        static constexpr unsigned int kSeriesNameCapacity = 4096;

        unsigned short seriesId = 0;
        unsigned char repeatLabel = 0;
        unsigned short expireDate = 0; // as the series descriptor carries it
        unsigned char programPattern = 0;
        unsigned short episodeNumber = 0;
        unsigned short lastEpisodeNumber = 0;
        unsigned char seriesName[kSeriesNameCapacity] = {}; // UTF-16 text
        unsigned short seriesNameLength = 0;                // bytes of seriesName
    };

    // The components of one event, listed per type in order of addition.
    class TCProgCompData {
    public:
        // False, and nothing added, for a type outside 0..3.
        bool AddComponent(EComponentType type, const TTComp& comp);
        int NumOfComponent(EComponentType type) const;
        bool GetComponent(EComponentType type, int index, TTComp& comp) const;
        // Replaces list with the components of the type; true when there are any.
        bool GetComponentList(EComponentType type, std::vector<TTComp>& list) const;

    private:
        const std::vector<TTComp>* m_List(EComponentType type) const;

        std::array<std::vector<TTComp>, COMP_TYPE_MAX> m_components;
    };

    TCProgramData() = default;
    TCProgramData(const TCProgramData&) = default;
    TCProgramData& operator=(const TCProgramData&) = default;
    ~TCProgramData() = default;

    bool GetProgramId(TCProgramId& id) const;
    void SetProgramId(const TCProgramId& id);

    unsigned short OriginalNetworkId() const { return m_originalNetworkId; }
    void SetOriginalNetworkId(unsigned short id) { m_originalNetworkId = id; }
    unsigned short TransportStreamId() const { return m_transportStreamId; }
    void SetTransportStreamId(unsigned short id) { m_transportStreamId = id; }

    // In 16-bit units, without a terminator.
    unsigned int TitleLength() const;
    // *length is the capacity in units on entry and the units copied, without
    // the terminating zero that follows them, on return. A title that does not
    // fit with its terminator is cut and the answer is false.
    bool Title(unsigned short* title, unsigned int* length) const;
    void SetTitle(const unsigned short* title, unsigned int length);

    // Borrowed view of the stored loop, valid until the record changes; false
    // when no loop is stored. tableId is the table the loop came from.
    bool GetDescriptorRawDataBuffer(unsigned char*& data, unsigned short& length, int& tableId) const;
    void SetDescriptorRawData(const unsigned char* data, unsigned short length, int tableId);

    // False, and comp untouched, until components were stored.
    bool GetProgCompData(TCProgCompData& comp) const;
    void SetProgCompData(TCProgCompData& comp);

    // Where the record came from; decides which descriptors a guide keeps.
    unsigned int SourceKind() const { return m_sourceKind; }
    void SetSourceKind(unsigned int kind) { m_sourceKind = kind; }

    // The type of an ISDB component tag, COMP_TYPE_INVALID (0xFFFFFFFF) for a
    // tag of no type.
    static EComponentType ISDBCompType(unsigned char componentTag);

private:
    TCProgramId m_programId;
    unsigned short m_originalNetworkId = 0;
    unsigned short m_transportStreamId = 0;
    std::basic_string<unsigned short> m_title;
    std::vector<unsigned char> m_descriptorRaw;
    int m_descriptorTableId = -1;
    TCProgCompData m_compData;
    bool m_hasCompData = false;
    unsigned int m_sourceKind = 0;
};

#endif
