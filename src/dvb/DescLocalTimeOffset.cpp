#include "DescLocalTimeOffset.h"

#include "../core/ByteReader.h"
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
    m_count = 0;
}

TCBaseDesc* TCDescLocalTimeOffset::Fork() const
{
    return t_ForkAs(new TCDescLocalTimeOffset());
}

TTLocalTimeOffset TCDescLocalTimeOffset::m_Entry(int index) const
{
    TTLocalTimeOffset e;
    const unsigned char* p = RawRecordAt(t_Payload(), m_count, kEntrySize, index);
    if (!p)
        return e;
    e.countryCode = ReadBE24(p);
    e.countryRegionId = static_cast<unsigned char>(p[3] >> 2);
    e.localTimeOffsetPolarity = static_cast<unsigned char>(p[3] & 0x01);
    e.localTimeOffset = ConvertBCDtoMin(p + 4);
    e.timeOfChange = ConvertDVBtimetoATSCtime(p + 6);
    e.nextTimeOffset = ConvertBCDtoMin(p + 11);
    return e;
}

unsigned int TCDescLocalTimeOffset::CountryCode(int index) const
{
    return m_Entry(index).countryCode;
}

unsigned char TCDescLocalTimeOffset::CountryRegionId(int index) const
{
    return m_Entry(index).countryRegionId;
}

unsigned char TCDescLocalTimeOffset::LocalTimeOffsetPolarity(int index) const
{
    return m_Entry(index).localTimeOffsetPolarity;
}

int TCDescLocalTimeOffset::LocalTimeOffset(int index) const
{
    return m_Entry(index).localTimeOffset;
}

unsigned int TCDescLocalTimeOffset::TimeOfChange(int index) const
{
    return m_Entry(index).timeOfChange;
}

int TCDescLocalTimeOffset::NextTimeOffset(int index) const
{
    return m_Entry(index).nextTimeOffset;
}

unsigned int TCDescLocalTimeOffset::ConvertDVBtimetoATSCtime(const unsigned char* data)
{
    if (!data)
        return 0;
    const unsigned int mjd = ReadBE16(data);
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

int TCDescLocalTimeOffset::t_Parse(const unsigned char* /*payload*/, unsigned char length)
{
    // A partial entry at the end is left undecoded.
    m_count = length / kEntrySize;
    return m_count * kEntrySize;
}
