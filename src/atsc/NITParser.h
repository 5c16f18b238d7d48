#ifndef ZUM_ATSC_NITPARSER_H
#define ZUM_ATSC_NITPARSER_H

#include <map>
#include <memory>

#include <zum-platform/ZUMHandle.h>

#include "../core/BaseSection.h"
#include "../core/DescriptorHash.h"
#include "OOBSectionParser.h"

// One record of the out-of-band NIT with its descriptors.
class ZUM_EXPORT TCNITParserRecord : public TCDescriptorHashOwner {
public:
    static constexpr unsigned char INVALID = 0xFF;

    TCNITParserRecord(unsigned char tableSubType, const ZUMHandle& handle);

    TCBaseDesc* Descriptor(int tag, unsigned int index) const override;
    // Reads `count` descriptors; the bytes consumed, 0 when they pass `size`.
    int SetDescriptor(const unsigned char* data, unsigned char count, int size = 255 * 257);
    void DeleteAll() { m_descriptors.DeleteAll(); }

protected:
    unsigned char t_tableSubType;
    ZUMHandle t_handle;
};

// Carrier definition: a run of carriers from a first frequency at a spacing.
class ZUM_EXPORT TCNITParserCDS : public TCNITParserRecord {
public:
    static constexpr unsigned int INVALID = 0xFFFFFFFF;
    static constexpr int kRecordSize = 5;

    TCNITParserCDS(int index, const ZUMHandle& handle);
    int Parse(const unsigned char* data);

    float FinalFrequency() const;
    float FinalSpacing() const;
    unsigned char NumberOfCarriers() const { return m_numberOfCarriers; }
    unsigned char SpacingUnit() const { return m_spacingUnit; }
    unsigned short FrequencySpacing() const { return m_frequencySpacing; }
    unsigned char FrequencyUnit() const { return m_frequencyUnit; }
    unsigned short FirstCarrierFrequency() const { return m_firstCarrierFrequency; }
    int Index() const { return static_cast<int>(m_index); }

private:
    unsigned int m_index;
    unsigned char m_numberOfCarriers = 0;
    unsigned char m_spacingUnit = 0;
    unsigned short m_frequencySpacing = 0;
    unsigned char m_frequencyUnit = 0;
    unsigned short m_firstCarrierFrequency = 0;
    float m_finalFrequency = 0.0f;
    float m_finalSpacing = 0.0f;
};

// Modulation mode: transmission system, coding and modulation of a reference.
class ZUM_EXPORT TCNITParserMMS : public TCNITParserRecord {
public:
    static constexpr int kRecordSize = 6;

    TCNITParserMMS(int index, const ZUMHandle& handle);
    int Parse(const unsigned char* data);

    unsigned char TransmissionSystem() const { return m_transmissionSystem; }
    unsigned char InnerCodingMode() const { return m_innerCodingMode; }
    unsigned char SplitBitstreamMode() const { return m_splitBitstreamMode; }
    unsigned char ModulationFormat() const { return m_modulationFormat; }
    unsigned int SymbolRate() const { return m_symbolRate; }
    int Index() const { return m_index; }

private:
    int m_index;
    unsigned char m_transmissionSystem = 0;
    unsigned char m_innerCodingMode = 0;
    unsigned char m_splitBitstreamMode = 0;
    unsigned char m_modulationFormat = 0;
    unsigned int m_symbolRate = 0;
};

// Out-of-band network information table (0xC2): the carrier frequencies and
// modulation modes that the short-form channel map refers to. Carriers are
// expanded at once into 256 frequency slots.
class ZUM_EXPORT TCNITParser : public TCOOBSectionParser, public TCBaseSection, public TCDescriptorHashOwner {
public:
    static constexpr int kSlots = 256;

    explicit TCNITParser(const ZUMHandle& handle);
    ~TCNITParser() override;

    void DeleteAll() override;
    // Completion was reported (or, for the NTT, the store takes no new records).
    bool IsCompleted() const { return m_nitComplete; }

    // False when the slot holds no frequency.
    bool CDSRefence(unsigned char reference, float* frequency) const;
    // False when no such record; else its modulation format.
    bool MMSRefence(unsigned char reference, unsigned char* modulation) const;

    const std::map<int, std::unique_ptr<TCNITParserRecord>>& CDSRecords() const { return m_cds; }
    const std::map<int, std::unique_ptr<TCNITParserRecord>>& MMSRecords() const { return m_mms; }

protected:
    bool t_Parse(const unsigned char* body, int length) override;
    void t_Initialize() override;
    virtual bool t_CheckCompleted();

    float m_cdsFrequency[kSlots];
    bool m_nitCdsTableComplete = false;
    bool m_nitMmsTableComplete = false;
    bool m_nitComplete = false;

private:
    // False when a carrier changed and the table was reset.
    bool m_ParseCDS(const unsigned char* data, int size, int firstIndex, int count, int& offset);
    bool m_ParseMMS(const unsigned char* data, int size, int firstIndex, int count, int& offset);

    std::map<int, std::unique_ptr<TCNITParserRecord>> m_cds;
    std::map<int, std::unique_ptr<TCNITParserRecord>> m_mms;
};

#endif
