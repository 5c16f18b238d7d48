#include "LCNDescParseHelper.h"

#include "../core/ByteReader.h"

namespace {

unsigned short NumberOf(const unsigned char* entry, unsigned char highMask)
{
    return static_cast<unsigned short>(ReadBE16(entry + 2) & ((highMask << 8) | 0xFFu));
}

bool TopBit(const unsigned char* entry)
{
    return (entry[2] & 0x80) != 0;
}

} // namespace

unsigned short ILCNDescParseHelper::GetServiceId(const unsigned char* entry) const
{
    return static_cast<unsigned short>(ReadBE16(entry));
}

bool TCLCNDescParseHelper_EBook::GetVisibleFlag(const unsigned char* entry) const
{
    return TopBit(entry);
}

unsigned short TCLCNDescParseHelper_EBook::GetChannelNumber(const unsigned char* entry) const
{
    return NumberOf(entry, 0x03);
}

bool TCLCNDescParseHelper_DBook::GetVisibleFlag(const unsigned char* /*entry*/) const
{
    return true;
}

unsigned short TCLCNDescParseHelper_DBook::GetChannelNumber(const unsigned char* entry) const
{
    return NumberOf(entry, 0x03);
}

bool TCLCNDescParseHelper_Nordig::GetVisibleFlag(const unsigned char* entry) const
{
    return TopBit(entry);
}

unsigned short TCLCNDescParseHelper_Nordig::GetChannelNumber(const unsigned char* entry) const
{
    return NumberOf(entry, 0x3F);
}

bool TCLCNDescParseHelper_M7::GetVisibleFlag(const unsigned char* entry) const
{
    return (entry[2] & 0x40) == 0;
}

unsigned short TCLCNDescParseHelper_M7::GetChannelNumber(const unsigned char* entry) const
{
    return NumberOf(entry, 0x3F);
}

bool TCLCNDescParseHelper_Philips::GetVisibleFlag(const unsigned char* /*entry*/) const
{
    return true;
}

unsigned short TCLCNDescParseHelper_Philips::GetChannelNumber(const unsigned char* entry) const
{
    return NumberOf(entry, 0xFF);
}
