#ifndef ZUM_ATSC_SVCTPARSERVCM_H
#define ZUM_ATSC_SVCTPARSERVCM_H

#include <map>
#include <memory>

#include <zum-platform/ZUMHandle.h>

#include "../core/DescriptorHash.h"
#include "SVCTParserSubtype.h"

// One virtual channel record of the virtual channel map.
class ZUM_EXPORT TCSVCTParserVC : public TCDescriptorHashOwner {
public:
    static constexpr unsigned short INVALID = 0xFFFF;
    // Fixed part of a record; a count byte follows when descriptors are included.
    static constexpr int kRecordSize = 9;

    TCSVCTParserVC(unsigned short virtualChannelNumber, const ZUMHandle& handle);

    // Bytes consumed, 0 when the record does not fit in `size`.
    int Parse(const unsigned char* data, unsigned char descriptorsIncluded, unsigned char splice,
              unsigned int activationTime, int size = kRecordSize + 1 + 255 * 257);
    // Same channel, carriage and source; program number, MMS reference,
    // splice and descriptors are not compared.
    bool IsEqual(TCSVCTParserVC* pCmpVC) const;

    unsigned short VirtualChannelNumber() const { return static_cast<unsigned short>(m_virtualChannelNumber); }
    unsigned char ApplicationVirtualChannel() const { return m_applicationVirtualChannel; }
    unsigned char PathSelect() const { return m_pathSelect; }
    unsigned char TransportType() const { return m_transportType; }
    unsigned char ChannelType() const { return m_channelType; }
    unsigned short SourceId() const { return m_sourceId; }
    unsigned char CDSReference() const { return m_cdsReference; }
    unsigned short ProgramNumber() const { return m_programNumber; }
    unsigned char MMSReference() const { return m_mmsReference; }
    unsigned char Scrambled() const { return m_scrambled; }
    unsigned char VideoStandard() const { return m_videoStandard; }
    unsigned char Splice() const { return m_splice; }
    unsigned int ActivationTime() const { return m_activationTime; }
    unsigned char DescriptorCount() const { return m_descriptorCount; }

private:
    ZUMHandle m_handle;
    short m_virtualChannelNumber;
    unsigned char m_applicationVirtualChannel = 0;
    unsigned char m_pathSelect = 0;
    unsigned char m_transportType = 0;
    unsigned char m_channelType = 0;
    unsigned short m_sourceId = 0;
    unsigned char m_cdsReference = 0;
    unsigned short m_programNumber = 0;
    unsigned char m_mmsReference = 0;
    unsigned char m_scrambled = 0;
    unsigned char m_videoStandard = 0;
    unsigned char m_splice = 0;
    unsigned int m_activationTime = 0;
    unsigned char m_descriptorCount = 0;
};

// Virtual channel map (subtype 0): cumulative over sections, keyed by
// channel number and source id.
class ZUM_EXPORT TCSVCTParserVCM : public TCSVCTParserSubtype {
public:
    explicit TCSVCTParserVCM(const ZUMHandle& handle) : m_handle(handle) {}
    ~TCSVCTParserVCM() override;
    int t_Parse(const unsigned char* data, int* status) override;
    void DeleteAll() override;

    int VCSize() const { return static_cast<int>(m_records.size()); }
    // In key order; null past the end.
    TCSVCTParserVC* VC(unsigned int index) const;

    unsigned char DescriptorsIncluded() const { return m_descriptorsIncluded; }
    unsigned char Splice() const { return m_splice; }
    unsigned int ActivationTime() const { return m_activationTime; }
    unsigned char RecordCount() const { return m_recordCount; }

private:
    ZUMHandle m_handle;
    unsigned char m_descriptorsIncluded = 0;
    unsigned char m_splice = 0;
    unsigned int m_activationTime = 0;
    unsigned char m_recordCount = 0;
    std::map<int, std::unique_ptr<TCSVCTParserVC>> m_records;
};

#endif
