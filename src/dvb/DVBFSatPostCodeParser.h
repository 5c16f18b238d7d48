#ifndef ZUM_DVB_DVBFSATPOSTCODEPARSER_H
#define ZUM_DVB_DVBFSATPOSTCODEPARSER_H

#include <map>
#include <memory>
#include <vector>

#include "../core/BaseSection.h"
#include "../core/SectionParser.h"

// The sections of one postcode subtable, kept by section number and handed
// out joined; what the bytes mean is the caller's business.
class ZUM_EXPORT TCDVBFSatPostCodeBlock : public TCBaseSection {
public:
    ~TCDVBFSatPostCodeBlock() override;
    // True when the subtable has all its sections.
    bool Parse(const unsigned char* body, int length, int version, int section, int lastSection, unsigned int crc,
               int currentNext);
    // The sections joined in the order of their numbers, owned by the caller;
    // empty before any section, null when a number is missing.
    std::unique_ptr<std::vector<unsigned char>> GetDatabase() const;
    void DeleteAll() override;

private:
    std::map<int, std::vector<unsigned char>> m_sections;
};

// Table id extension 0: the postcode tree.
class ZUM_EXPORT TCDVBFSatPostCodeTree : public TCDVBFSatPostCodeBlock {};
// Table id extension 1: the region keys.
class ZUM_EXPORT TCDVBFSatPostCodeRegion : public TCDVBFSatPostCodeBlock {};

// Freesat's postcode database, table id 0xD2, in two subtables.
class ZUM_EXPORT TCDVBFSatPostCodeParser : public TCSectionParser {
public:
    explicit TCDVBFSatPostCodeParser(const ZUMHandle& handle);
    ~TCDVBFSatPostCodeParser() override;

    std::unique_ptr<std::vector<unsigned char>> GetPostCodeTreeTable() const { return m_tree.GetDatabase(); }
    std::unique_ptr<std::vector<unsigned char>> GetPostCodeRegionKeyTable() const { return m_region.GetDatabase(); }
    bool IsValid() const { return m_tree.IsValid() && m_region.IsValid(); }
    void DeleteAll();

protected:
    // True when both subtables are complete.
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;

private:
    TCDVBFSatPostCodeTree m_tree;
    TCDVBFSatPostCodeRegion m_region;
};

#endif
