#ifndef ZUM_ISDB_DESCEMERGENCYINFORMATION_H
#define ZUM_ISDB_DESCEMERGENCYINFORMATION_H

#include <vector>

#include <zum-platform/Codes.h>

#include "../core/BaseDesc.h"

// emergency_information_descriptor of ARIB (0xFC): per loop, a service that
// carries an emergency broadcast, whether it starts or ends, its signal level,
// and the 12-bit codes of the areas concerned.
class ZUM_EXPORT TCDescEmergencyInformation : public TCBaseDesc {
public:
    TCDescEmergencyInformation();
    ~TCDescEmergencyInformation() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // The loop count found from the first loop's size; loops past the end of
    // the descriptor count here but answer no field.
    unsigned int NumOfDescLoop() const { return m_numOfDescLoop; }

    // Each logs and answers false on a bad index, the output untouched.
    bool GetServiceID(unsigned long index, unsigned short& serviceId) const;
    bool GetStartEndFlag(unsigned long index, bool& startEnd) const;
    bool GetSignalLevel(unsigned long index, bool& signalLevel) const;
    // The number of area codes of the loop, not their byte length.
    bool GetAreaCodeLength(unsigned long index, unsigned char& count) const;
    bool GetAreaCode(unsigned long index, unsigned long areaIndex, unsigned short& areaCode) const;
    // The code as a wide area (prefecture left at 63) or a prefecture (wide area left at 0).
    bool GetAreaCode(unsigned long index, unsigned long areaIndex, EJapanWideArea& wideArea,
                     EJapanPrefecture& prefecture) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    struct TTLoop {
        unsigned short serviceId = 0;
        bool startEndFlag = false;
        bool signalLevel = false;
        unsigned char lowBits = 0;
        unsigned int areaCodeCount = 0;
        TTRawRun areaCodes; // two bytes per code
    };

    // The loop at `index`; null, with the accessor's log line, for a bad index.
    const TTLoop* m_Loop(unsigned long index, const char* accessor) const;
    // One field of the loop at `index` into `out`, which a bad index leaves untouched.
    template <class Field, class Out>
    bool m_Field(unsigned long index, const char* accessor, Field TTLoop::*field, Out& out) const
    {
        const TTLoop* loop = m_Loop(index, accessor);
        if (loop)
            out = static_cast<Out>(loop->*field);
        return loop != nullptr;
    }
    bool m_ConvertToEnumValue(unsigned short code, EJapanWideArea& wideArea, EJapanPrefecture& prefecture) const;

    unsigned int m_numOfDescLoop = 0;
    std::vector<TTLoop> m_loops;
};

#endif
