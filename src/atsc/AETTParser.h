#ifndef ZUM_ATSC_AETTPARSER_H
#define ZUM_ATSC_AETTPARSER_H

#include <map>
#include <memory>
#include <vector>

#include "../core/BaseSection.h"
#include "../core/SectionParser.h"

// One extended text of an aggregate text table, raw.
class ZUM_EXPORT TCAETTParserBlock {
public:
    // Source id and event id of an ETM id, without its low two bits.
    static unsigned int KeyOf(unsigned int etmId) { return (etmId & 0xFFFF0000u) | ((etmId & 0xFFFFu) >> 2); }

    // The block's length, or -1 when it runs past `size`.
    int Parse(const unsigned char* data, int size);
    // Copy of the raw text (a multiple string structure); *length is the
    // capacity on entry. Truncates and answers false when it does not fit.
    bool ETTExtendTextMsg(unsigned char* text, unsigned short* length) const;

    unsigned int Key() const { return m_key; }
    unsigned int ETMId() const { return m_etmId; }
    unsigned short TextLength() const { return m_textLength; }
    const unsigned char* Text() const { return m_text.empty() ? nullptr : m_text.data(); }

private:
    unsigned int m_key = 0;
    unsigned int m_etmId = 0;
    unsigned short m_textLength = 0;
    std::vector<unsigned char> m_text;
};

using TCAETTBlockMap = std::multimap<int, std::unique_ptr<TCAETTParserBlock>>;

// The texts of one MGT tag, per section number.
class ZUM_EXPORT TCAETTItem : public TCBaseSection {
public:
    explicit TCAETTItem(unsigned char tag) : m_tag(tag) {}
    void DeleteAll() override;
    ~TCAETTItem() override;

    // True when the section was new, whatever its blocks held.
    bool Parse(const unsigned char* data, int size, int version, int section, int lastSection, unsigned int crc);
    const TCAETTBlockMap* AETTParserSourceList(int section) const;
    // Through the sections in ascending order; the first hit wins.
    TCAETTParserBlock* AETTParserBlock(unsigned int key) const;
    unsigned char Tag() const { return m_tag; }

private:
    void m_Parse(int section, const unsigned char* data, int size);

    unsigned char m_tag;
    std::map<int, std::unique_ptr<TCAETTBlockMap>> m_sections;
};

// Aggregate extended text table (0xD7): long texts of the aggregate events.
class ZUM_EXPORT TCAETTParser : public TCSectionParser {
public:
    explicit TCAETTParser(const ZUMHandle& handle);
    ~TCAETTParser() override;

    TCAETTItem* AETTItem(unsigned char tag) const;
    unsigned char LastTag() const { return m_lastTag; }

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;

private:
    std::map<int, std::unique_ptr<TCAETTItem>> m_items;
    unsigned char m_lastTag = 0;
};

#endif
