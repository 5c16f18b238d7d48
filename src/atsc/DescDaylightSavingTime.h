#ifndef ZUM_ATSC_DESCDAYLIGHTSAVINGTIME_H
#define ZUM_ATSC_DESCDAYLIGHTSAVINGTIME_H

#include "../core/BaseDesc.h"

// daylight_savings_time_descriptor (0x96) of the out-of-band system time table.
class ZUM_EXPORT TCDescDaylightSavingTime : public TCBaseDesc {
public:
    static constexpr unsigned char INVALID = 0xFF;

    TCDescDaylightSavingTime();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // Before a body came: assertion, 0.
    int DSStatus() const;
    int DSDayOfMonth() const;
    int DSHour() const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    char m_dSStatus = static_cast<char>(INVALID);
    unsigned char m_dayOfMonth = 0;
    unsigned char m_hour = 0;
};

#endif
