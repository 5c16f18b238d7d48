#ifndef ZUM_DVB_DESCSERVICE_H
#define ZUM_DVB_DESCSERVICE_H

#include "../core/BaseDesc.h"

// service_descriptor (0x48): the service type as the receiver knows it, and
// the provider and service names as raw broadcast text.
class ZUM_EXPORT TCDescService : public TCBaseDesc {
public:
    TCDescService();
    ~TCDescService() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // 0xFF for a type the receiver does not present.
    unsigned char ServiceType() const { return m_serviceType; }
    unsigned char ServiceProviderNameLength() const { return m_providerName.length; }
    unsigned char ServiceNameLength() const { return m_serviceName.length; }
    // Text copy; nothing to copy also sets the size to 0.
    bool ServiceProviderNameText(unsigned char* buffer, unsigned short& size) const;
    bool ServiceNameText(unsigned char* buffer, unsigned short& size) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;
    // The type itself when the receiver presents it, otherwise -1.
    virtual int t_AllocateServiceType(unsigned char type);

    unsigned char m_serviceType = 0;
    TTRawRun m_providerName;
    TTRawRun m_serviceName;
};

// service_list_descriptor (0x41): service ids with their types.
class ZUM_EXPORT TCDescServiceList : public TCBaseDesc {
public:
    TCDescServiceList();
    ~TCDescServiceList() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    int NumberOfLoop() const { return m_numberOfLoop; }
    // All bits set for an index outside the list.
    unsigned short ServiceId(int index) const;
    unsigned char ServiceType(int index) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    // The entries are read from the raw copy, three bytes each.
    int m_numberOfLoop = 0;
};

#endif
