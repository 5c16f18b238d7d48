#ifndef ZUM_DVB_DESCLOCALTIMEOFFSET_H
#define ZUM_DVB_DESCLOCALTIMEOFFSET_H

#include "../core/BaseDesc.h"

// One region's entry of a local_time_offset_descriptor.
struct TTLocalTimeOffset {
    unsigned int countryCode = 0;          // three letters, the first in bits 23..16
    unsigned char countryRegionId = 0;
    unsigned char localTimeOffsetPolarity = 0;
    int localTimeOffset = 0;               // minutes
    unsigned int timeOfChange = 0;         // seconds since 6 January 1980
    int nextTimeOffset = 0;                // minutes
};

// local_time_offset_descriptor (0x58) of the TOT. It also owns the DVB time
// conversion: every DVB time becomes seconds since 6 January 1980, 00:00:00,
// the clock of the ATSC side.
class ZUM_EXPORT TCDescLocalTimeOffset : public TCBaseDesc {
public:
    TCDescLocalTimeOffset();
    ~TCDescLocalTimeOffset() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    int NumOfEntries() const { return m_count; }
    // Each answers 0 for an index outside the entries.
    unsigned int CountryCode(int index) const;
    unsigned char CountryRegionId(int index) const;
    unsigned char LocalTimeOffsetPolarity(int index) const;
    int LocalTimeOffset(int index) const;
    unsigned int TimeOfChange(int index) const;
    int NextTimeOffset(int index) const;

    // 16-bit MJD then hh, mm, ss in BCD: seconds since MJD 44244. A field
    // out of range (hours above 24, minutes or seconds above 60) gives 0.
    static unsigned int ConvertDVBtimetoATSCtime(const unsigned char* data);
    // Days since MJD 44244; 0 for an earlier day.
    static unsigned int ConvertDVBtimetoATSCtime(unsigned int mjd);
    // Two BCD bytes hh, mm as minutes.
    static int ConvertBCDtoMin(const unsigned char* data);

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    // The entry at `index`, decoded from the raw copy; all 0 outside the entries.
    TTLocalTimeOffset m_Entry(int index) const;

    // Thirteen-byte entries, read from the raw copy.
    int m_count = 0;
};

#endif
