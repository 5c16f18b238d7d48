#ifndef ZUM_ATSC_RRTPARSER_H
#define ZUM_ATSC_RRTPARSER_H

#include <map>
#include <memory>
#include <vector>

#include <zum-platform/ZUMHandle.h>

#include "../core/BaseSection.h"
#include "../core/DescriptorHash.h"
#include "../core/SectionParser.h"
#include "MultipleStringStruct.h"

// rating_region of a rating region table.
enum ERRTRegion {
    RRT_REGION_US = 0x01,
    RRT_REGION_CANADA = 0x02,
    // The only region the parser keeps.
    RRT_REGION_KEPT = 0x05,
};

// One rating value of a dimension: its abbreviation and its text.
class ZUM_EXPORT TCRRTItemAbbrev {
public:
    // Bytes the value takes, or -1 when its texts pass `size`.
    int Parse(const unsigned char* data, int size);

    unsigned char AbbrevRatingValueLength() const { return m_abbrevLength; }
    // Null for a text of 8 bytes or less, which has no room for a character.
    TCMultipleStringStruct* AbbrevRatingValueText() const { return m_pAbbrev.get(); }
    unsigned char RatingValueLength() const { return m_valueLength; }
    TCMultipleStringStruct* RatingValueText() const { return m_pValue.get(); }

private:
    unsigned char m_abbrevLength = 0;
    std::unique_ptr<TCMultipleStringStruct> m_pAbbrev;
    unsigned char m_valueLength = 0;
    std::unique_ptr<TCMultipleStringStruct> m_pValue;
};

// One rating dimension: its name, whether it is graduated, its values.
class ZUM_EXPORT TCRRTItemDimension {
public:
    // Bytes consumed; `size` when a value ran past it.
    int Parse(const unsigned char* data, int size);
    void DeleteAll();

    unsigned int NumOfAbbrev() const { return static_cast<unsigned int>(m_abbrevs.size()); }
    TCRRTItemAbbrev* RRTItemAbbrev(unsigned int index) const;
    unsigned char DimensionNameLength() const { return m_nameLength; }
    TCMultipleStringStruct* DimensionNameText() const { return m_pName.get(); }
    unsigned char GraduatedScale() const { return m_graduatedScale; }
    unsigned char ValuesDefined() const { return m_valuesDefined; }

private:
    unsigned char m_nameLength = 0;
    std::unique_ptr<TCMultipleStringStruct> m_pName;
    unsigned char m_graduatedScale = 0;
    unsigned char m_valuesDefined = 0;
    std::vector<std::unique_ptr<TCRRTItemAbbrev>> m_abbrevs;
};

// The rating region table of one region.
class ZUM_EXPORT TCRRTInstance : public TCBaseSection, public TCDescriptorHashOwner {
public:
    TCRRTInstance(const ZUMHandle& handle, ERRTRegion region) : m_handle(handle), m_region(region) {}
    void DeleteAll() override;
    ~TCRRTInstance() override;

    // IsValid() of a section that was new; false for a repeat.
    bool Parse(const unsigned char* data, int size, int version, int section, int lastSection);

    unsigned int NumOfDimension() const { return static_cast<unsigned int>(m_dimensions.size()); }
    TCRRTItemDimension* RRTItemDimension(unsigned int index) const;
    ERRTRegion Region() const { return m_region; }
    unsigned int CRC() const { return m_crc; }
    unsigned short RatingRegionNameLength() const { return m_nameLength; }
    TCMultipleStringStruct* RatingRegionNameText() const { return m_pName.get(); }
    unsigned char DimensionsDefined() const { return m_dimensionsDefined; }
    unsigned short DescriptorsLength() const { return m_descriptorsLength; }

private:
    void m_Parse(const unsigned char* data, int size);

    ZUMHandle m_handle;
    ERRTRegion m_region;
    unsigned int m_crc = 0;
    unsigned short m_nameLength = 0;
    std::unique_ptr<TCMultipleStringStruct> m_pName;
    unsigned char m_dimensionsDefined = 0;
    unsigned short m_descriptorsLength = 0;
    std::vector<std::unique_ptr<TCRRTItemDimension>> m_dimensions;
};

// Rating region table (0xCA): the names of a region's rating dimensions and
// values. Only region 5 is kept; the others are answered and dropped.
class ZUM_EXPORT TCRRTParser : public TCSectionParser {
public:
    explicit TCRRTParser(const ZUMHandle& handle);
    ~TCRRTParser() override;

    TCRRTInstance* RRTInstance(ERRTRegion region) const;

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;
    bool t_CheckPSIPTable(unsigned char tableId) override;

private:
    std::map<ERRTRegion, std::unique_ptr<TCRRTInstance>> m_instances;
};

#endif
