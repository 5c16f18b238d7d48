#ifndef ZUM_OPERATORS_DESCTKGSCOMPONENT_H
#define ZUM_OPERATORS_DESCTKGSCOMPONENT_H

#include <map>
#include <string>
#include <vector>

#include <zum-platform/Codes.h>
#include <zum-platform/ZUMHandle.h>

#include "../core/BaseDesc.h"

// TKGS component descriptor (0x98 in a Turkish PMT): marks the stream that
// carries the operator's channel table; "TKGS" and one flag byte.
class ZUM_EXPORT TCDescTKGSComponent : public TCBaseDesc {
public:
    TCDescTKGSComponent();
    ~TCDescTKGSComponent() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // The top bit of the byte behind "TKGS".
    bool Flag() const { return m_flag; }
    // The body starts with "TKGS".
    bool Found() const { return m_found; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    bool m_flag = false;
    bool m_found = false;
};

// TKGS extended service descriptor (0x95 under 0x011FFFFF): the categories
// of a service, 12-bit ids read from the raw copy on access.
class ZUM_EXPORT TCDescTKGSExtendedService : public TCBaseDesc {
public:
    TCDescTKGSExtendedService();
    ~TCDescTKGSExtendedService() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    int NumOfCategories() const { return m_count; }
    // All bits set for an index outside the list.
    unsigned int CategoryId(int index) const;
    // Replaces `ids` with every category id, in order.
    void GetCategories(std::vector<unsigned int>& ids) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    int m_count = 0;
};

// TKGS multilingual category label descriptor (0x92 under 0x011FFFFF): a
// category id and its name per language, converted on the handle the
// descriptor was made with.
class ZUM_EXPORT TCDescTKGSMultilingualCategoryLabel : public TCBaseDesc {
public:
    explicit TCDescTKGSMultilingualCategoryLabel(const ZUMHandle& handle);
    ~TCDescTKGSMultilingualCategoryLabel() override;
    void DeleteAll() override;
    // The copy works on the default handle.
    TCBaseDesc* Fork() const override;

    unsigned int CategoryId() const { return m_categoryId; }
    // The name of `language`; a later entry of a language replaces an earlier.
    bool GetCategoryName(ELanguageCode language, std::basic_string<unsigned short>& name) const;
    // Replaces `names` with the name of every language.
    void GetCategoryNames(std::map<ELanguageCode, std::basic_string<unsigned short>>& names) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    ZUMHandle m_handle;
    unsigned int m_categoryId = 0;
};

#endif
