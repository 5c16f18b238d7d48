#include "DescDigiturkServiceTheme.h"

#include "../core/Log.h"

TCDescDigiturkServiceTheme::TCDescDigiturkServiceTheme() : TCBaseDesc(0x96) {}

void TCDescDigiturkServiceTheme::DeleteAll()
{
    m_theme = EDP_SERVICE_THEME_NONE;
}

TCBaseDesc* TCDescDigiturkServiceTheme::Fork() const
{
    return t_ForkAs(new TCDescDigiturkServiceTheme());
}

bool TCDescDigiturkServiceTheme::m_IsThemeSupported(EDPServiceTheme theme)
{
    return (theme >= 0 && theme <= 7) || (theme >= 11 && theme <= 13);
}

int TCDescDigiturkServiceTheme::t_Parse(const unsigned char* payload, unsigned char length)
{
    if (length != 1) {
        ZUM_LOGD("[Digiturk] Wrong length of service theme descriptor, length = %d.", length);
        return length;
    }
    const EDPServiceTheme theme = static_cast<EDPServiceTheme>(payload[0]);
    m_theme = m_IsThemeSupported(theme) ? theme : EDP_SERVICE_THEME_NONE;
    return length;
}
