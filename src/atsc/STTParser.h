#ifndef ZUM_ATSC_STTPARSER_H
#define ZUM_ATSC_STTPARSER_H

#include "../core/BaseSection.h"
#include "../core/DescriptorHash.h"
#include "../core/SectionParser.h"

// System time table: in band (0xCD) as PSIP sends it, or through
// TCOOBSTTParser the out-of-band form (0xC5). Keeps the last time seen; every
// section is whole in itself, so there is no version tracking.
class ZUM_EXPORT TCSTTParser : public TCSectionParser, public TCBaseSection, public TCDescriptorHashOwner {
public:
    explicit TCSTTParser(const ZUMHandle& handle);
    // The table id picks the layout: 0xCD or 0xC5; any other stores nothing.
    TCSTTParser(int tableId, const ZUMHandle& handle);
    ~TCSTTParser() override;

    void DeleteAll() override;

    // GPS seconds since 1980-01-06 00:00:00 UTC, as on air.
    unsigned int SystemTime() const { return m_systemTime; }
    unsigned char GPSUTCOffset() const { return m_gpsUtcOffset; }
    // DS_status, DS_day_of_month and DS_hour as on air; 0 in the out-of-band form.
    unsigned short DaylightSavings() const { return m_daylightSavings; }

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;
    bool t_CheckPSIPTable(unsigned char tableId) override;

private:
    unsigned int m_systemTime = 0;
    unsigned char m_gpsUtcOffset = 0;
    unsigned short m_daylightSavings = 0;
};

// The out-of-band system time table of the cable control channel (0xC5); its
// daylight saving comes in a descriptor (0x96).
class ZUM_EXPORT TCOOBSTTParser : public TCSTTParser {
public:
    explicit TCOOBSTTParser(const ZUMHandle& handle);
    ~TCOOBSTTParser() override;
};

#endif
