#include "DescLocalTimeOffset.h"

#include "../core/RecordAt.h"
#include "BcdDigits.h"

namespace {

const unsigned int kMjdOf6Jan1980 = 44244;
const int kEntrySize = 13;

} // namespace

TCDescLocalTimeOffset::TCDescLocalTimeOffset() : TCBaseDesc(0x58) {}

TCDescLocalTimeOffset::~TCDescLocalTimeOffset()
{
    DeleteAll();
}

void TCDescLocalTimeOffset::DeleteAll()
{
    m_entries.clear();
}

TCBaseDesc* TCDescLocalTimeOffset::Fork() const
{
    return t_ForkAs(new TCDescLocalTimeOffset());
}

unsigned int TCDescLocalTimeOffset::CountryCode(int index) const
{
    return FieldAt(m_entries, index, &TTLocalTimeOffset::countryCode);
}

unsigned char TCDescLocalTimeOffset::CountryRegionId(int index) const
{
    return FieldAt(m_entries, index, &TTLocalTimeOffset::countryRegionId);
}

unsigned char TCDescLocalTimeOffset::LocalTimeOffsetPolarity(int index) const
{
    return FieldAt(m_entries, index, &TTLocalTimeOffset::localTimeOffsetPolarity);
}

int TCDescLocalTimeOffset::LocalTimeOffset(int index) const
{
    return FieldAt(m_entries, index, &TTLocalTimeOffset::localTimeOffset);
}

unsigned int TCDescLocalTimeOffset::TimeOfChange(int index) const
{
    return FieldAt(m_entries, index, &TTLocalTimeOffset::timeOfChange);
}

int TCDescLocalTimeOffset::NextTimeOffset(int index) const
{
    return FieldAt(m_entries, index, &TTLocalTimeOffset::nextTimeOffset);
}

unsigned int TCDescLocalTimeOffset::ConvertDVBtimetoATSCtime(const unsigned char* data)
{
    if (!data)
        return 0;
    const unsigned int mjd = (static_cast<unsigned int>(data[0]) << 8) | data[1];
    const unsigned int hours = ZumBcdDigits(data + 2, 2);
    const unsigned int minutes = ZumBcdDigits(data + 3, 2);
    const unsigned int seconds = ZumBcdDigits(data + 4, 2);
    // A leap second (60) and the end of day (24:00) are let through.
    if (hours > 24 || minutes > 60 || seconds > 60)
        return 0;
    // Unsigned on purpose: a day before 6 January 1980 wraps, it is not clamped.
    return (mjd - kMjdOf6Jan1980) * 86400u + hours * 3600u + minutes * 60u + seconds;
}

unsigned int TCDescLocalTimeOffset::ConvertDVBtimetoATSCtime(unsigned int mjd)
{
    return mjd < kMjdOf6Jan1980 ? 0 : mjd - kMjdOf6Jan1980;
}

int TCDescLocalTimeOffset::ConvertBCDtoMin(const unsigned char* data)
{
    if (!data)
        return 0;
    return static_cast<int>(ZumBcdDigits(data, 2) * 60 + ZumBcdDigits(data + 1, 2));
}

int TCDescLocalTimeOffset::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    // A partial entry at the end is left undecoded.
    const int count = length / kEntrySize;
    for (int i = 0; i < count; ++i) {
        const unsigned char* p = payload + i * kEntrySize;
        TTLocalTimeOffset e;
        e.countryCode = (static_cast<unsigned int>(p[0]) << 16) | (static_cast<unsigned int>(p[1]) << 8) | p[2];
        e.countryRegionId = static_cast<unsigned char>(p[3] >> 2);
        e.localTimeOffsetPolarity = static_cast<unsigned char>(p[3] & 0x01);
        e.localTimeOffset = ConvertBCDtoMin(p + 4);
        e.timeOfChange = ConvertDVBtimetoATSCtime(p + 6);
        e.nextTimeOffset = ConvertBCDtoMin(p + 11);
        m_entries.push_back(e);
    }
    return count * kEntrySize;
}
