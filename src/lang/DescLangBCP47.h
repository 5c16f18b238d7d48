#ifndef ZUM_LANG_DESCLANGBCP47_H
#define ZUM_LANG_DESCLANGBCP47_H

#include <string>

#include <zum-platform/Codes.h>

#include "../core/Export.h"

// A BCP 47 language tag ("en-GB", "zh-yue") turned into the three-letter
// code of the library. No descriptor of its own: AC-4 presentations use it.
class ZUM_EXPORT TCDescLangBCP47 {
public:
    TCDescLangBCP47() = default;
    virtual ~TCDescLangBCP47() = default;
    virtual void DeleteAll();
    // Keeps the first two subtags of `tag` (not NUL-terminated); answers `length`.
    virtual int Parse(const unsigned char* tag, unsigned char length);
    // The code of the tag, or 0xFFFFFFFF when none of its subtags has one.
    virtual ELanguageCode GetELanguageCodeISO639() const;

private:
    std::string m_primary;
    std::string m_secondary;
};

#endif
