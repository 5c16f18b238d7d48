#ifndef ZUM_ATSC_DESCSERVICELOCATION_H
#define ZUM_ATSC_DESCSERVICELOCATION_H

#include "../core/BaseDesc.h"

// service_location_descriptor (0xA1): the PCR PID and the elementary
// streams of a virtual channel, read from the raw copy on access.
class ZUM_EXPORT TCDescServiceLocation : public TCBaseDesc {
public:
    TCDescServiceLocation();
    ~TCDescServiceLocation() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned short PCRPID() const { return m_pcrPid; }
    // The elements that lie in the body.
    unsigned char NumberElements() const { return m_numberElements; }
    // An index outside the elements logs and answers 0, 0xFFFFFFFF, 0.
    unsigned int StreamType(int index) const;
    unsigned int ElementaryPID(int index) const;
    unsigned int ISO639LanguageCode(int index) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    const unsigned char* m_Element(int index, int line) const;

    unsigned short m_pcrPid = 0xFFFF;
    unsigned char m_numberElements = 0;
    TTRawRun m_elements;
};

#endif
