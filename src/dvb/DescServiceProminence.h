#ifndef ZUM_DVB_DESCSERVICEPROMINENCE_H
#define ZUM_DVB_DESCSERVICEPROMINENCE_H

#include <map>
#include <vector>

#include "../core/DescExtension.h"

// service_prominence_descriptor (extension 0x22): per service, a service of
// general interest (SOGI) record with its priority and the regions where it
// holds, then private bytes.
class ZUM_EXPORT TCDescServiceProminence : public TCDescExtension {
public:
    struct TSOGIRegion {
        // 0 where the entry has none.
        unsigned int countryCode = 0;
        unsigned char regionDepth = 0;
        unsigned char primaryRegionCode = 0;
        unsigned char secondaryRegionCode = 0;
        unsigned short tertiaryRegionCode = 0;
    };
    struct TSSOGI {
        unsigned char sogiFlag = 0;
        // 0 where the entry has none.
        unsigned short serviceId = 0;
        unsigned short sogiPriority = 0;
        std::vector<TSOGIRegion> targetRegions;
    };
    using SOGIMap = std::map<unsigned short, TSSOGI>;

    TCDescServiceProminence();
    // Nothing: a parse empties the records itself.
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // By service id, 0 for the last entry without one.
    const SOGIMap& SOGIs() const { return m_sogis; }
    std::vector<unsigned char> PrivateData() const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    SOGIMap m_sogis;
    TTRawRun m_privateData;
};

#endif
