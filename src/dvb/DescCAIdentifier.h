#ifndef ZUM_DVB_DESCCAIDENTIFIER_H
#define ZUM_DVB_DESCCAIDENTIFIER_H

#include <list>

#include "../core/BaseDesc.h"

// CA_identifier_descriptor (0x53): the CA systems of a service. Each decode
// appends to the list that CASystemIds hands out, so the ids are held decoded.
class ZUM_EXPORT TCDescCAIdentifier : public TCBaseDesc {
public:
    TCDescCAIdentifier();
    ~TCDescCAIdentifier() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    const std::list<unsigned short>& CASystemIds() const { return m_caSystemIds; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    std::list<unsigned short> m_caSystemIds;
};

#endif
