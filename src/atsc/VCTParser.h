#ifndef ZUM_ATSC_VCTPARSER_H
#define ZUM_ATSC_VCTPARSER_H

#include <list>
#include <memory>
#include <vector>

#include <zum-platform/ZUMHandle.h>

#include "../core/BaseSection.h"
#include "../core/DescriptorHash.h"
#include "../core/SectionParser.h"

// One virtual channel: numbers, where it is carried, and its descriptors.
class ZUM_EXPORT TCVCTChannel : public TCDescriptorHashOwner {
public:
    static constexpr int kShortNameArea = 50;
    // short_name on air: seven UTF-16 big-endian units.
    static constexpr int kShortNameBytes = 14;

    explicit TCVCTChannel(const ZUMHandle& handle) : m_handle(handle) {}

    // Returns the bytes the record takes; `size` when it does not fit in them.
    int Parse(const unsigned char* data, int size, unsigned char tableId);

    // The 50-byte area: short_name unconverted in the first 14 bytes, zero behind.
    const unsigned char* ShortName() const { return m_shortName; }
    unsigned short MajorChannelNumber() const { return m_majorChannelNumber; }
    unsigned short MinorChannelNumber() const { return m_minorChannelNumber; }
    unsigned int CarrierFrequency() const { return m_carrierFrequency; }
    unsigned short ChannelTSID() const { return m_channelTSID; }
    unsigned short ProgramNumber() const { return m_programNumber; }
    unsigned char ModulationMode() const { return m_modulationMode; }
    unsigned char ETMLocation() const { return m_etmLocation; }
    unsigned char AccessControlled() const { return m_accessControlled; }
    unsigned char Hidden() const { return m_hidden; }
    unsigned char PathSelect() const { return m_pathSelect; }
    unsigned char HideGuide() const { return m_hideGuide; }
    unsigned char ServiceType() const { return m_serviceType; }
    unsigned short SourceId() const { return m_sourceId; }

private:
    ZUMHandle m_handle;
    unsigned char m_shortName[kShortNameArea] = {};
    unsigned short m_majorChannelNumber = 0;
    unsigned short m_minorChannelNumber = 0;
    unsigned int m_carrierFrequency = 0;
    unsigned short m_channelTSID = 0;
    unsigned short m_programNumber = 0;
    unsigned char m_modulationMode = 0;
    unsigned char m_etmLocation = 0;
    unsigned char m_accessControlled = 0;
    unsigned char m_hidden = 0;
    unsigned char m_pathSelect = 0;
    unsigned char m_hideGuide = 0;
    unsigned char m_serviceType = 0;
    unsigned short m_sourceId = 0;
};

// Virtual channel table. A section is taken only when its version passes the
// gate of the version the caller settled on and the one the MGT announces.
// Call Initialize before the first Parse.
class ZUM_EXPORT TCVCTParser : public TCSectionParser, public TCBaseSection, public TCDescriptorHashOwner {
public:
    TCVCTParser(int tableId, const ZUMHandle& handle);
    ~TCVCTParser() override;

    void DeleteAll() override;

    unsigned long long NumOfVCTChannel() const { return m_channels.size(); }
    TCVCTChannel* VCTChannel(unsigned int index) const;
    // Appends every channel of the source to `channels`; no match is still true.
    bool VCTChannelBySourceId(unsigned short sourceId, std::list<TCVCTChannel*>* channels) const;
    TCVCTChannel* VCTChannelByProgramNumber(unsigned short programNumber) const;
    unsigned char NumChannelsInSection() const { return m_numChannelsInSection; }
    bool IsRecv() const;

    void SetSelectedVCTVersion(char version) { m_selectedVCTVersion = static_cast<signed char>(version); }
    void SetCurrentMGTVCTVersion(char version) { m_currentMGTVersion = static_cast<signed char>(version); }
    // True lets only the selected version through.
    void SetMatchedVersion(bool matched) { m_bMatchedVersion = matched; }

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;
    bool t_CheckPSIPTable(unsigned char tableId) override;
    virtual bool t_CheckPreParsingCondition();

    bool m_bMatchedVersion = false;
    signed char m_selectedVCTVersion = -1;
    signed char m_currentMGTVersion = -1;

private:
    unsigned char m_numChannelsInSection = 0;
    std::vector<std::unique_ptr<TCVCTChannel>> m_channels;
};

// Terrestrial VCT, table id 0xC8.
class ZUM_EXPORT TCTVCTParser : public TCVCTParser {
public:
    explicit TCTVCTParser(const ZUMHandle& handle) : TCVCTParser(0xC8, handle) {}
};

// Cable VCT, table id 0xC9.
class ZUM_EXPORT TCCVCTParser : public TCVCTParser {
public:
    explicit TCCVCTParser(const ZUMHandle& handle) : TCVCTParser(0xC9, handle) {}
};

// Cable VCT (0xC9) taken at any version.
class ZUM_EXPORT TCLVCTParser : public TCVCTParser {
public:
    explicit TCLVCTParser(const ZUMHandle& handle) : TCVCTParser(0xC9, handle) {}

protected:
    bool t_CheckPreParsingCondition() override;
};

#endif
