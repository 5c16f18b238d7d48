#ifndef ZUM_ATSC_DESCREVISIONDETECTION_H
#define ZUM_ATSC_DESCREVISIONDETECTION_H

#include "../core/BaseDesc.h"

// revision_detection_descriptor (0x93) of the out-of-band tables: lets a head
// end say outright which version and section a table section is.
class ZUM_EXPORT TCDescRevisionDetection : public TCBaseDesc {
public:
    TCDescRevisionDetection();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char TableVersion() const { return m_tableVersion; }
    unsigned char SectionNumber() const { return m_sectionNumber; }
    unsigned char LastSectionNumber() const { return m_lastSectionNumber; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_tableVersion = 0;
    unsigned char m_sectionNumber = 0;
    unsigned char m_lastSectionNumber = 0;
};

#endif
