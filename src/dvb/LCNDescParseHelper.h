#ifndef ZUM_DVB_LCNDESCPARSEHELPER_H
#define ZUM_DVB_LCNDESCPARSEHELPER_H

#include "../core/Export.h"

// Reads one four-byte entry of a logical channel descriptor. Every operator
// packs the visible flag and the number differently into bytes 2 and 3; the
// service id is always bytes 0 and 1. `entry` must hold four bytes.
class ZUM_EXPORT ILCNDescParseHelper {
public:
    virtual ~ILCNDescParseHelper() = default;
    virtual unsigned short GetServiceId(const unsigned char* entry) const;
    virtual bool GetVisibleFlag(const unsigned char* entry) const = 0;
    virtual unsigned short GetChannelNumber(const unsigned char* entry) const = 0;
};

// Visible flag in the top bit, 10-bit number.
class ZUM_EXPORT TCLCNDescParseHelper_EBook : public virtual ILCNDescParseHelper {
public:
    bool GetVisibleFlag(const unsigned char* entry) const override;
    unsigned short GetChannelNumber(const unsigned char* entry) const override;
};

// No visible flag, 10-bit number.
class ZUM_EXPORT TCLCNDescParseHelper_DBook : public virtual ILCNDescParseHelper {
public:
    bool GetVisibleFlag(const unsigned char* entry) const override;
    unsigned short GetChannelNumber(const unsigned char* entry) const override;
};

// Visible flag in the top bit, 14-bit number.
class ZUM_EXPORT TCLCNDescParseHelper_Nordig : public virtual ILCNDescParseHelper {
public:
    bool GetVisibleFlag(const unsigned char* entry) const override;
    unsigned short GetChannelNumber(const unsigned char* entry) const override;
};

// A hidden flag in bit 6, 14-bit number.
class ZUM_EXPORT TCLCNDescParseHelper_M7 : public virtual ILCNDescParseHelper {
public:
    bool GetVisibleFlag(const unsigned char* entry) const override;
    unsigned short GetChannelNumber(const unsigned char* entry) const override;
};

// No visible flag, 16-bit number.
class ZUM_EXPORT TCLCNDescParseHelper_Philips : public ILCNDescParseHelper {
public:
    bool GetVisibleFlag(const unsigned char* entry) const override;
    unsigned short GetChannelNumber(const unsigned char* entry) const override;
};

// Internal: the layout that a version-1 logical channel descriptor of `tag`
// reads under `privateDataSpecifier`; one shared object per layout.
const ILCNDescParseHelper& LCNLayoutOf(unsigned int privateDataSpecifier, int tag);

#endif
