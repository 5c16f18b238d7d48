#ifndef ZUM_OPERATORS_DESCDIGITURKSERVICETHEME_H
#define ZUM_OPERATORS_DESCDIGITURKSERVICETHEME_H

#include "../core/BaseDesc.h"

// Service themes of Digiturk's guide; the values the receiver presents.
enum EDPServiceTheme : int {
    EDP_SERVICE_THEME_NONE = 0,
};

// Digiturk's service theme (0x96 under specifier 0x2FFFFF): one byte.
class ZUM_EXPORT TCDescDigiturkServiceTheme : public TCBaseDesc {
public:
    TCDescDigiturkServiceTheme();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // 0 for a theme the receiver does not present.
    EDPServiceTheme Theme() const { return m_theme; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    static bool m_IsThemeSupported(EDPServiceTheme theme);
    EDPServiceTheme m_theme = EDP_SERVICE_THEME_NONE;
};

#endif
