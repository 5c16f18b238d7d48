#ifndef ZUM_OPERATORS_DESCTRICOLORREGIONNAME_H
#define ZUM_OPERATORS_DESCTRICOLORREGIONNAME_H

#include <map>
#include <set>
#include <string>
#include <vector>

#include <zum-platform/Codes.h>
#include <zum-platform/ZUMHandle.h>

#include "../core/BaseDesc.h"

// Tricolor's private descriptors, under specifier 0x6FFFFF. Each parse
// replaces what was held.

// Bouquet list (0x86): six-byte entries read from the raw copy.
class ZUM_EXPORT TCDescTricolorBouquetList : public TCBaseDesc {
public:
    struct Bouquet {
        unsigned int firstId = 0;
        unsigned int secondId = 0;
        unsigned int serviceId = 0;
    };

    TCDescTricolorBouquetList();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    int NumOfBouquets() const { return m_count; }
    // false for an index outside the list.
    bool GetBouquet(int index, Bouquet& bouquet) const;
    bool ContainsServiceID(unsigned short serviceId) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    int m_count = 0;
};

// Region names (0x88): region keys with names, in groups by language.
class ZUM_EXPORT TCDescTricolorRegionName : public TCBaseDesc {
public:
    struct RegionData {
        ELanguageCode language = 0;
        std::string key;
        std::basic_string<unsigned short> name;
    };

    explicit TCDescTricolorRegionName(const ZUMHandle& handle);
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    int NumOfRegions() const { return static_cast<int>(m_regions.size()); }
    // The record with its name converted on the handle; false for an index outside the list.
    bool GetRegionData(int index, RegionData& region) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    struct TTRegion {
        ELanguageCode language;
        TTRawRun key;
        TTRawRun name;
    };

    ZUMHandle m_handle;
    std::vector<TTRegion> m_regions;
};

// List types (0xB2): for each list type the two-character codes it serves.
class ZUM_EXPORT TCDescTricolorListType : public TCBaseDesc {
public:
    using ListTypes = std::map<unsigned char, std::set<std::string>>;

    TCDescTricolorListType();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // Read from the raw copy on each call.
    ListTypes GetListTypes() const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;
};

#endif
