#ifndef ZUM_ATSC_ETTPARSER_H
#define ZUM_ATSC_ETTPARSER_H

#include <map>
#include <memory>
#include <vector>

#include "../core/BaseSection.h"
#include "../core/SectionParser.h"

// The extended text of one ETM id, raw (a multiple string structure). Only
// the first section of a version is read.
class ZUM_EXPORT TCETTItem : public TCBaseSection {
public:
    explicit TCETTItem(unsigned int etmId) : m_etmId(etmId) {}
    void DeleteAll() override;
    ~TCETTItem() override;

    // True when the item is complete.
    bool Parse(const unsigned char* data, int size, int version, int section, int lastSection);
    // Copy of the raw text; *length is the capacity on entry. Truncates and
    // answers false when it does not fit.
    bool ETTExtendTextMsg(unsigned char* text, unsigned short* length) const;

    unsigned int ETMId() const { return m_etmId; }
    unsigned short TextLength() const { return static_cast<unsigned short>(m_text.size()); }
    const unsigned char* Text() const { return m_text.empty() ? nullptr : m_text.data(); }

private:
    unsigned int m_etmId;
    std::vector<unsigned char> m_text;
};

// The texts of one ETT PID, in order of first arrival.
class ZUM_EXPORT TCETTInstance {
public:
    TCETTInstance() = default;
    ~TCETTInstance();
    TCETTInstance(const TCETTInstance&) = delete;
    TCETTInstance& operator=(const TCETTInstance&) = delete;

    bool Parse(const unsigned char* data, int size, unsigned int etmId, int version, int section, int lastSection);
    void DeleteAll();
    unsigned int NumOfETTItem() const { return static_cast<unsigned int>(m_items.size()); }
    TCETTItem* ETTItem(unsigned int etmId) const;
    // -1 for every instance.
    short Value() const { return m_value; }

private:
    std::vector<std::unique_ptr<TCETTItem>> m_items;
    short m_value = -1;
};

// PSIP extended text table (0xCC) of every PID the MGT names, by PID, then ETM id.
class ZUM_EXPORT TCETTParser : public TCSectionParser {
public:
    explicit TCETTParser(const ZUMHandle& handle);
    ~TCETTParser() override;

    TCETTInstance* ETTInstance(short pid) const;
    unsigned int NumOfInstance() const { return static_cast<unsigned int>(m_instances.size()); }
    // The ETM id of the section read last; 0xFFFFFFFF before the first.
    unsigned int ETMId() const { return m_etmId; }
    // The ETM id of an event: source id, event id, and 0b10.
    static unsigned int EventETMId(unsigned short sourceId, unsigned short eventId)
    {
        return (static_cast<unsigned int>(sourceId) << 16) | ((eventId & 0x3FFFu) << 2) | 0x2u;
    }

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;
    bool t_CheckPSIPTable(unsigned char tableId) override;

private:
    std::map<int, std::unique_ptr<TCETTInstance>> m_instances;
    unsigned int m_etmId = 0xFFFFFFFF;
};

#endif
