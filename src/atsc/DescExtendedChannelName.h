#ifndef ZUM_ATSC_DESCEXTENDEDCHANNELNAME_H
#define ZUM_ATSC_DESCEXTENDEDCHANNELNAME_H

#include <memory>

#include "../core/BaseDesc.h"
#include "MultipleStringStruct.h"

// extended_channel_name_descriptor (0xA0): the channel's long name as a
// multiple string structure over the whole body.
class ZUM_EXPORT TCDescExtendedChannelName : public TCBaseDesc {
public:
    TCDescExtendedChannelName();
    ~TCDescExtendedChannelName() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // Stays owned by the descriptor; null for an empty body.
    TCMultipleStringStruct* ExtendedChannelNameString() const { return m_pNameString.get(); }
    unsigned char ExtendedChannelNameLength() const { return m_nameLength; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    std::unique_ptr<TCMultipleStringStruct> m_pNameString;
    unsigned char m_nameLength = 0;
};

#endif
