#ifndef ZUM_ATSC_EASPARSER_H
#define ZUM_ATSC_EASPARSER_H

#include <memory>

#include "../core/BaseSection.h"
#include "../core/SectionParser.h"

// Cable emergency alert (0xD8): the last accepted section is kept whole,
// header and CRC_32 included, for the caller's emergency logic to read.
class ZUM_EXPORT TCEASParser : public TCSectionParser, public TCBaseSection {
public:
    explicit TCEASParser(const ZUMHandle& handle);
    ~TCEASParser() override;

    void DeleteAll() override;
    // False with no section held or a buffer below its length (nothing
    // written); else copies it and sets *length to its length.
    bool GetSection(unsigned char* data, int* length) const;
    int SectionLength() const { return m_length; }

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;
    bool t_CheckPSIPTable(unsigned char tableId) override;

private:
    std::unique_ptr<unsigned char[]> m_pSection;
    int m_length = 0;
};

#endif
