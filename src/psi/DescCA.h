#ifndef ZUM_PSI_DESCCA_H
#define ZUM_PSI_DESCCA_H

#include "../core/BaseDesc.h"

// CA_descriptor (0x09) of a CAT or a PMT loop: which CA system, on which PID,
// and its private bytes, handed over as they came.
class ZUM_EXPORT TCDescCA : public TCBaseDesc {
public:
    TCDescCA();
    ~TCDescCA() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned short CASystemId() const { return m_caSystemId; }
    unsigned short CAPid() const { return m_caPid; }
    // The bytes behind the PID, inside the raw copy; null when there are none.
    const unsigned char* PrivateData() const { return t_At(m_privateData); }
    int PrivateDataLength() const { return m_privateData.length; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned short m_caSystemId = 0;
    unsigned short m_caPid = 0;
    TTRawRun m_privateData;
};

#endif
