#ifndef ZUM_DVB_DESCSERVICEMOVE_H
#define ZUM_DVB_DESCSERVICEMOVE_H

#include "../core/BaseDesc.h"

class TCServiceKey;

// service_move_descriptor (0x60): where a service continues. All bits set
// until a body gives the ids.
class ZUM_EXPORT TCDescServiceMove : public TCBaseDesc {
public:
    TCDescServiceMove();
    ~TCDescServiceMove() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned short NewOriginalNetworkId() const { return m_newOriginalNetworkId; }
    unsigned short NewTransportStreamId() const { return m_newTransportStreamId; }
    unsigned short NewServiceId() const { return m_newServiceId; }
    void GetNewServiceLocation(TCServiceKey& key) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned short m_newOriginalNetworkId = 0xFFFF;
    unsigned short m_newTransportStreamId = 0xFFFF;
    unsigned short m_newServiceId = 0xFFFF;
};

#endif
