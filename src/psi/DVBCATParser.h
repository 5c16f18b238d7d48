#ifndef ZUM_PSI_DVBCATPARSER_H
#define ZUM_PSI_DVBCATPARSER_H

#include "../core/BaseSection.h"
#include "../core/DescriptorHash.h"
#include "../core/SectionParser.h"

// Conditional access table (0x01): the descriptors of all sections of one
// version in one loop.
class ZUM_EXPORT TCDVBCATParser : public TCSectionParser, public TCBaseSection, public TCDescriptorHashOwner {
public:
    explicit TCDVBCATParser(const ZUMHandle& handle);
    ~TCDVBCATParser() override;

    void DeleteAll() override;

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;
};

#endif
