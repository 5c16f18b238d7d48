#include "LCNDescParseHelper.h"

#include "../core/ByteReader.h"

namespace {

unsigned short NumberOf(const unsigned char* entry, unsigned char highMask)
{
    return static_cast<unsigned short>(ReadBE16(entry + 2) & ((highMask << 8) | 0xFF));
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

const ILCNDescParseHelper& LCNLayoutOf(unsigned int privateDataSpecifier, int tag)
{
    static const TCLCNDescParseHelper_Nordig nordig;
    static const TCLCNDescParseHelper_Philips philips;
    static const TCLCNDescParseHelper_EBook ebook;
    static const TCLCNDescParseHelper_DBook dbook;
    static const TCLCNDescParseHelper_M7 m7;
    switch (privateDataSpecifier) {
    case 0x00000014:
    case 0x00000022:
    case 0x00000029:
    case 0x00006003:
    case 0x000062E1:
    case 0xECCA0001:
    case 0xEFFFFFFF: return nordig;
    case 0x000001A0:
    case 0x00006001:
    case 0x002FFFFF:
    case 0x007FFFFF: return philips;
    case 0x000022C6:
    case 0x0000233A:
    case 0x00006002: return tag == 0x88 ? static_cast<const ILCNDescParseHelper&>(ebook) : dbook;
    case 0x010FFFFF: return m7;
    default: return ebook;
    }
}
