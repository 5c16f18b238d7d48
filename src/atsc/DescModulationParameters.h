#ifndef ZUM_ATSC_DESCMODULATIONPARAMETERS_H
#define ZUM_ATSC_DESCMODULATIONPARAMETERS_H

// The carrier descriptors of the cable tables: frequency and modulation of
// a carrier, and the in-band channel details and exceptions.

#include "../core/BaseDesc.h"

// frequency_spec_descriptor (0x90); no factory creates it.
class ZUM_EXPORT TCDescFrequencySpecification : public TCBaseDesc {
public:
    TCDescFrequencySpecification();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char FrequencyUnit() const { return m_unit; }
    unsigned short CarrierFrequency() const { return m_frequency; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_unit = 0;
    unsigned short m_frequency = 0;
};

// modulation_params_descriptor (0x91); no factory creates it.
class ZUM_EXPORT TCDescModulationParameters : public TCBaseDesc {
public:
    TCDescModulationParameters();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char TransmissionSystem() const { return m_transmissionSystem; }
    unsigned char InnerCodingMode() const { return m_innerCodingMode; }
    unsigned char SplitBitstreamMode() const { return m_splitBitstreamMode; }
    unsigned char ModulationFormat() const { return m_modulationFormat; }
    unsigned int SymbolRate() const { return m_symbolRate; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_transmissionSystem = 0;
    unsigned char m_innerCodingMode = 0;
    unsigned char m_splitBitstreamMode = 0;
    unsigned char m_modulationFormat = 0;
    unsigned int m_symbolRate = 0;
};

// In-band channel details (0x00 in the PSIP tables).
class ZUM_EXPORT TCDescInBandDetailsChannel : public TCBaseDesc {
public:
    TCDescInBandDetailsChannel();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char RFChannel() const { return m_rfChannel; }
    unsigned short ProgramNumber() const { return m_programNumber; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_rfChannel = 0;
    unsigned short m_programNumber = 0;
};

// In-band exception channels (0x01 in the PSIP tables), three-byte records
// read from the raw copy on access.
class ZUM_EXPORT TCDescInBandExceptionChannels : public TCBaseDesc {
public:
    TCDescInBandExceptionChannels();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char ExceptionChannelCount() const { return m_count; }
    // 0 when the index is not below the count.
    int ExceptionRFChannel(int index) const;
    int ExceptionProgramNumber(int index) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_count = 0;
    TTRawRun m_records;
};

#endif
