#ifndef ZUM_ATSC_DESCEXTENDEDCHANNELNAME_H
#define ZUM_ATSC_DESCEXTENDEDCHANNELNAME_H

// The name descriptors of the North American tables, whose whole body is one
// multiple string structure: the extended channel name of a virtual channel
// and the component name of a program or stream.

#include <memory>

#include "../core/BaseDesc.h"
#include "MultipleStringStruct.h"

class ZUM_EXPORT TCDescMultipleStringName : public TCBaseDesc {
public:
    ~TCDescMultipleStringName() override;
    void DeleteAll() override;

    // Stays owned by the descriptor; null for an empty body.
    TCMultipleStringStruct* NameStructure() const { return m_pNameString.get(); }
    unsigned char NameLength() const { return m_nameLength; }

protected:
    explicit TCDescMultipleStringName(int tag);
    int t_Parse(const unsigned char* payload, unsigned char length) override;

    std::unique_ptr<TCMultipleStringStruct> m_pNameString;
    unsigned char m_nameLength = 0;
};

// extended_channel_name_descriptor (0xA0).
class ZUM_EXPORT TCDescExtendedChannelName : public TCDescMultipleStringName {
public:
    TCDescExtendedChannelName();
    TCBaseDesc* Fork() const override;

    TCMultipleStringStruct* ExtendedChannelNameString() const { return NameStructure(); }
    unsigned char ExtendedChannelNameLength() const { return NameLength(); }
};

// component_name_descriptor (0xA3).
class ZUM_EXPORT TCDescComponentName : public TCDescMultipleStringName {
public:
    TCDescComponentName();
    TCBaseDesc* Fork() const override;

    // With no structure (an empty body) the assertion logs and the answer is null.
    TCMultipleStringStruct* ComponentNameString() const;
    unsigned char ComponentNameLength() const { return NameLength(); }
};

#endif
