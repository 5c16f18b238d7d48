#ifndef ZUM_DVB_DESCTARGETREGION_H
#define ZUM_DVB_DESCTARGETREGION_H

#include <list>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "../core/DescExtension.h"

class TCDescCableDeliverySystem;

// network_change_notify_descriptor (extension 0x07): per cell, the planned
// changes of the network. The cells are read from the raw copy on access.
class ZUM_EXPORT TCDescNetworkChangeNotify : public TCDescExtension {
public:
    struct _TTNetworkChangeData {
        unsigned char networkChangeId = 0;
        unsigned char networkChangeVersion = 0;
        // Seconds since 6 January 1980, 0:00.
        unsigned int startTime = 0;
        // Seconds.
        unsigned int changeDuration = 0;
        // 0 and 1 as sent, any other value 2.
        unsigned int receiverCategory = 0;
        bool invariantTSPresent = false;
        // As sent, but 12 for every value with bit 2 set.
        unsigned int changeType = 0;
        unsigned char messageId = 0;
        unsigned short invariantTSTransportStreamId = 0;
        unsigned short invariantTSOriginalNetworkId = 0;
        unsigned char valid = 1;
    };
    struct _TTCellData {
        unsigned short cellId = 0;
        unsigned char loopLength = 0;
        std::list<_TTNetworkChangeData> changes;
    };

    TCDescNetworkChangeNotify();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned int NumOfCellData() const { return static_cast<unsigned int>(m_cells.size()); }
    // A copy of the cell with its changes; false behind the last.
    bool GetCellData(unsigned int index, _TTCellData& cell) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    // Three BCD bytes, hours, minutes, seconds, as seconds.
    static unsigned int m_ConvertBCD(const unsigned char* bcd);
    // A 16-bit MJD and three BCD bytes as seconds since 6 January 1980.
    static unsigned int m_ConvertMJD(const unsigned char* mjd);

    // Per cell, where its head stands in the payload and the bytes of its changes.
    struct TTCell {
        unsigned char at = 0;
        unsigned char changesLength = 0;
    };
    std::vector<TTCell> m_cells;
};

// message_descriptor (extension 0x08): a text for the change notices.
class ZUM_EXPORT TCDescMessage : public TCDescExtension {
public:
    TCDescMessage();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // A copy of the text. `size` holds the capacity on entry; all of it fits:
    // `size` becomes its length, true; else `size` bytes, false. No text: 0, false.
    bool TextChar(unsigned char* pData, unsigned short& size) const;
    unsigned char MessageId() const { return m_messageId; }
    unsigned int Language() const { return m_language; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_messageId = 0;
    unsigned int m_language = 0;
    TTRawRun m_text;
};

// target_region_descriptor (extension 0x09): regions of one country, at up
// to three levels. A country code in an entry stands for all entries.
class ZUM_EXPORT TCDescTargetRegion : public TCDescExtension {
public:
    TCDescTargetRegion();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned int Size() const { return static_cast<unsigned int>(m_regions.size()); }
    // False while the descriptor is not valid or behind the last region.
    bool GetRegion(unsigned int index, unsigned int& country, unsigned int& depth, unsigned char& primary,
                   unsigned char& secondary, unsigned short& tertiary) const;
    bool IsValid() const { return m_valid; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    struct TTRegion {
        unsigned int depth = 0;
        unsigned char primary = 0;
        unsigned char secondary = 0;
        unsigned short tertiary = 0;
    };
    unsigned int m_countryCode = 0;
    bool m_valid = false;
    std::vector<TTRegion> m_regions;
};

// target_region_name_descriptor (extension 0x0A): the names of regions of
// one country in one language.
class ZUM_EXPORT TCDescTargetRegionName : public TCDescExtension {
public:
    TCDescTargetRegionName();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned int Size() const { return static_cast<unsigned int>(m_regions.size()); }
    // As TCDescTargetRegion; `size` is lowered to the name's length and that
    // many bytes are copied into `name`.
    bool GetRegion(unsigned int index, unsigned char* name, unsigned int& size, unsigned int& country,
                   unsigned int& depth, unsigned char& primary, unsigned char& secondary,
                   unsigned short& tertiary) const;
    unsigned int Language() const { return m_language; }
    bool IsValid() const { return m_valid; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    struct TTRegion {
        unsigned int depth = 0;
        unsigned char primary = 0;
        unsigned char secondary = 0;
        unsigned short tertiary = 0;
        TTRawRun name;
    };
    unsigned int m_countryCode = 0;
    unsigned int m_language = 0;
    bool m_valid = false;
    std::vector<TTRegion> m_regions;
};

// KDG's relocated transport streams (0xAA under 0x4A4F4A4F): per pair of
// ids, the cable delivery descriptor of where the transport went.
class ZUM_EXPORT TCDescRelocatedTS : public TCBaseDesc {
public:
    using CableDeliveryMap = std::map<std::pair<unsigned short, unsigned short>, TCDescCableDeliverySystem*>;

    TCDescRelocatedTS();
    ~TCDescRelocatedTS() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // Replaces `info` with the pairs; the descriptors stay owned by this object.
    void GetCableDeliveryInfo(CableDeliveryMap& info) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    CableDeliveryMap m_cableDelivery;
};

// Tag 0xE2 of PSIP tables: a value and two texts.
class ZUM_EXPORT TCDescSOProperties : public TCBaseDesc {
public:
    TCDescSOProperties();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char Value() const { return m_value; }
    std::string FirstText() const;
    std::string SecondText() const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_value = 0;
    TTRawRun m_first;
    TTRawRun m_second;
};

#endif
