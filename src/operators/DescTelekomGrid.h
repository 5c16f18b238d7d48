#ifndef ZUM_OPERATORS_DESCTELEKOMGRID_H
#define ZUM_OPERATORS_DESCTELEKOMGRID_H

#include <list>
#include <set>

#include "../core/BaseDesc.h"

// Deutsche Telekom's grid (0xE2 under the receiver's specifier 0x9FFFFF):
// grid positions of services, four-byte entries read from the raw copy.
class ZUM_EXPORT TCDescTelekomGrid : public TCBaseDesc {
public:
    TCDescTelekomGrid();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    int GridSize() const { return m_count; }
    // Appends the service's positions in body order; whether `positions` holds any now.
    bool GetGridPositionList(unsigned short serviceId, std::list<unsigned short>& positions) const;
    // Adds every service id; whether `serviceIds` holds any now.
    bool GetServiceIDSet(std::set<unsigned short>& serviceIds) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    int m_count = 0;
};

#endif
