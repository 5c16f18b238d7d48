#ifndef ZUM_ATSC_SVCTPARSER_H
#define ZUM_ATSC_SVCTPARSER_H

#include <memory>

#include "../core/BaseSection.h"
#include "../core/DescriptorHash.h"
#include "OOBSectionParser.h"
#include "SVCTParserDCM.h"
#include "SVCTParserICM.h"
#include "SVCTParserVCM.h"

// Short-form virtual channel table (0xC4), the out-of-band channel map of a
// cable system. Records merge over sections; repetition of known records
// says the map is stable, a differing record that it must be collected anew.
class ZUM_EXPORT TCSVCTParser : public TCOOBSectionParser, public TCBaseSection, public TCDescriptorHashOwner {
public:
    explicit TCSVCTParser(const ZUMHandle& handle);
    ~TCSVCTParser() override;

    void DeleteAll() override;
    // Completion was reported (or, for the NTT, the store takes no new records).
    bool IsCompleted() const { return m_completed; }

    // Owned by the parser; null before the subtable came. The defined
    // channels map is never read from sections here, so DCM() stays null.
    TCSVCTParserVCM* VCM() const { return m_pVCM.get(); }
    TCSVCTParserDCM* DCM() const { return m_pDCM.get(); }
    TCSVCTParserICM* ICM() const { return m_pICM.get(); }

    unsigned char ProtocolVersion() const { return m_protocolVersionOOB; }
    unsigned char TransmissionMedium() const { return m_transmissionMedium; }
    unsigned char TableSubtype() const { return m_tableSubtype; }
    unsigned short VCTId() const { return m_vctId; }

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;
    virtual bool t_CheckCompleted(char subtype, int status);

    bool m_completed = false;
    int m_vcmStatus = 0;
    int m_icmStatus = 0;
    int m_completeCNT = 3;

private:
    unsigned char m_protocolVersionOOB = 0;
    unsigned char m_transmissionMedium = 0;
    unsigned char m_tableSubtype = 0;
    unsigned short m_vctId = 0;
    std::unique_ptr<TCSVCTParserVCM> m_pVCM;
    std::unique_ptr<TCSVCTParserDCM> m_pDCM;
    std::unique_ptr<TCSVCTParserICM> m_pICM;
};

#endif
