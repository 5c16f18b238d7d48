#ifndef ZUM_OPERATORS_DESCASTRASERVICELISTNAME_H
#define ZUM_OPERATORS_DESCASTRASERVICELISTNAME_H

#include <list>
#include <string>
#include <vector>

#include <zum-platform/Codes.h>

#include "../core/BaseDesc.h"

class TCUnicodeConverter;

// Astra's private descriptors, under specifier 1; they travel in the SGT.

// Service list name (0x88): the name of one service list, with its language.
class ZUM_EXPORT TCDescAstraServiceListName : public TCBaseDesc {
public:
    TCDescAstraServiceListName();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // 0x7A7A7B before a body of three bytes was read.
    ELanguageCode LanguageCode() const { return m_language; }
    // The name as UTF-16; `language` gets the stored language as an enumeration.
    std::basic_string<unsigned short> GetName(TCUnicodeConverter& converter, ELanguage& language) const;
    // The same; `language` gets the stored language as it is.
    std::basic_string<unsigned short> GetName(TCUnicodeConverter& converter, ELanguageCode& language) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    std::basic_string<unsigned short> m_Convert(TCUnicodeConverter& converter) const;

    ELanguageCode m_language = 0x7A7A7B;
    TTRawRun m_name;
};

// Bouquet list (0x93): names of bouquets.
class ZUM_EXPORT TCDescAstraBouquetList : public TCBaseDesc {
public:
    TCDescAstraBouquetList();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // Replaces `names` with zero-terminated names that stay the descriptor's;
    // false, leaving `names` alone, when none is held.
    bool Bouquets(std::list<unsigned char*>& names);

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    // The names one behind the other, each with its terminator: the raw copy
    // has no room for the terminators that callers of Bouquets rely on.
    std::vector<unsigned char> m_names;
};

// Virtual service id (0xD1).
class ZUM_EXPORT TCDescAstraVirtualServiceId : public TCBaseDesc {
public:
    TCDescAstraVirtualServiceId();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    void VirtualServiceId(unsigned short& id) const { id = m_id; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned short m_id = 0xFFFF;
};

#endif
