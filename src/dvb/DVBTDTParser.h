#ifndef ZUM_DVB_DVBTDTPARSER_H
#define ZUM_DVB_DVBTDTPARSER_H

#include "../core/BaseSection.h"
#include "../core/SectionParser.h"

// Time and date table (0x70): the current UTC time, as seconds since
// 6 January 1980. It keeps no section state; every good section counts.
class ZUM_EXPORT TCDVBTDTParser : public TCSectionParser, public TCBaseSection {
public:
    explicit TCDVBTDTParser(const ZUMHandle& handle);
    ~TCDVBTDTParser() override;

    // Nothing to drop: the time survives Initialize.
    void DeleteAll() override;

    unsigned int Time() const { return m_time; }

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;

private:
    unsigned int m_time = 0;
};

#endif
