#ifndef ZUM_DVB_SERVICEKEY_H
#define ZUM_DVB_SERVICEKEY_H

#include <tuple>

#include "../core/Export.h"

// The DVB triplet that names a service: original network id, transport
// stream id, service id. All bits set means "no service".
class ZUM_EXPORT TCServiceKey {
public:
    TCServiceKey() = default;
    TCServiceKey(unsigned short originalNetworkId, unsigned short transportStreamId, unsigned short serviceId)
        : m_originalNetworkId(originalNetworkId), m_transportStreamId(transportStreamId), m_serviceId(serviceId)
    {
    }

    void Set(const TCServiceKey* other)
    {
        if (other)
            *this = *other;
    }

    bool operator<(const TCServiceKey& o) const { return m_Tie() < o.m_Tie(); }
    bool operator==(const TCServiceKey& o) const { return m_Tie() == o.m_Tie(); }
    bool operator!=(const TCServiceKey& o) const { return !(*this == o); }

    unsigned short m_originalNetworkId = 0xFFFF;
    unsigned short m_transportStreamId = 0xFFFF;
    unsigned short m_serviceId = 0xFFFF;

private:
    std::tuple<unsigned short, unsigned short, unsigned short> m_Tie() const
    {
        return std::make_tuple(m_originalNetworkId, m_transportStreamId, m_serviceId);
    }
};

#endif
