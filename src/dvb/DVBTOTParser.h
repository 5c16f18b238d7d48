#ifndef ZUM_DVB_DVBTOTPARSER_H
#define ZUM_DVB_DVBTOTPARSER_H

#include <list>

#include "../core/BaseSection.h"
#include "../core/DescriptorHash.h"
#include "../core/SectionParser.h"

// Time offset table (0x73): the UTC time and the local time offset
// descriptors of the last section. It keeps no section state.
class ZUM_EXPORT TCDVBTOTParser : public TCSectionParser, public TCBaseSection, public TCDescriptorHashOwner {
public:
    explicit TCDVBTOTParser(const ZUMHandle& handle);
    ~TCDVBTOTParser() override;

    // Drops the descriptors; the time stays.
    void DeleteAll() override;

    // Seconds since 6 January 1980 of the last section.
    unsigned int Time() const { return m_time; }
    // Appends a clone of every local time offset descriptor, owned by the
    // caller. False when there is none.
    bool GetLocalTimeOffsetDescList(std::list<TCBaseDesc*>* pDescList) const;

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;

private:
    unsigned int m_time = 0;
};

#endif
