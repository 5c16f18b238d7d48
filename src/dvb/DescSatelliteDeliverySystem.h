#ifndef ZUM_DVB_DESCSATELLITEDELIVERYSYSTEM_H
#define ZUM_DVB_DESCSATELLITEDELIVERYSYSTEM_H

#include "../core/BaseDesc.h"

// Delivery system descriptors: where a transport stream is found, with the
// fields in the units and enumerations of the tuner front end.
// Modulation: 0 16-QAM, 1 64-QAM, 2 128-QAM, 3 256-QAM, 7 QPSK, 15 32-QAM,
// 16 8PSK, -1 automatic or unknown. Code rate: 0 1/2, 1 2/3, 2 3/4, 3 5/6,
// 4 7/8, 8 3/5, 9 4/5, 10 8/9, 11 9/10, 12 no coding, -1 not defined.

// satellite_delivery_system_descriptor (0x43). The tag is an argument so that
// operator variants with a tag of their own build on it.
class ZUM_EXPORT TCDescSatelliteDeliverySystem : public TCBaseDesc {
public:
    explicit TCDescSatelliteDeliverySystem(int tag);
    ~TCDescSatelliteDeliverySystem() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // kHz.
    unsigned int Frequency() const { return m_frequency; }
    // ksym/s.
    unsigned short SymbolRate() const { return m_symbolRate; }
    // Tenths of a degree.
    unsigned short OrbitalPosition() const { return m_orbitalPosition; }
    unsigned char WestEastFlag() const { return m_westEastFlag; }
    // 0 linear horizontal or circular left, 1 linear vertical or circular right.
    int Polarization() const { return m_polarization; }
    int Modulation() const { return m_modulation; }
    int FecInner() const { return m_fecInner; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned int m_frequency = 0;
    unsigned short m_symbolRate = 0;
    unsigned short m_orbitalPosition = 0;
    unsigned char m_westEastFlag = 0;
    int m_polarization = -1;
    int m_modulation = -1;
    int m_fecInner = -1;
};

// cable_delivery_system_descriptor (0x44).
class ZUM_EXPORT TCDescCableDeliverySystem : public TCBaseDesc {
public:
    TCDescCableDeliverySystem();
    ~TCDescCableDeliverySystem() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // kHz.
    unsigned int Frequency() const { return m_frequency; }
    unsigned char FecOuter() const { return m_fecOuter; }
    // The modulation field as sent.
    unsigned char ModulationCode() const { return m_modulationCode; }
    // Units of 100 sym/s.
    unsigned int SymbolRate100() const { return m_symbolRate100; }
    // The FEC_inner field as sent.
    unsigned char FecInner() const { return m_fecInner; }
    // The modulation code as a front end value.
    int Modulation() const;
    // ksym/s.
    unsigned int SymbolRate() const { return m_symbolRate100 / 10; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned int m_frequency = 0;
    unsigned char m_fecOuter = 0;
    unsigned char m_modulationCode = 0;
    unsigned int m_symbolRate100 = 0;
    unsigned char m_fecInner = 0;
};

// terrestrial_delivery_system_descriptor (0x5A): all fields as sent.
class ZUM_EXPORT TCDescTerrestrialDeliverySystem : public TCBaseDesc {
public:
    TCDescTerrestrialDeliverySystem();
    ~TCDescTerrestrialDeliverySystem() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // Units of 10 Hz.
    unsigned int CentreFrequency() const { return m_centreFrequency; }
    unsigned char Bandwidth() const { return m_bandwidth; }
    unsigned char Constellation() const { return m_constellation; }
    unsigned char Hierarchy() const { return m_hierarchy; }
    unsigned char CodeRateHP() const { return m_codeRateHP; }
    unsigned char CodeRateLP() const { return m_codeRateLP; }
    unsigned char GuardInterval() const { return m_guardInterval; }
    unsigned char TransmissionMode() const { return m_transmissionMode; }
    unsigned char OtherFrequencyFlag() const { return m_otherFrequencyFlag; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned int m_centreFrequency = 0;
    unsigned char m_bandwidth = 0;
    unsigned char m_constellation = 0;
    unsigned char m_hierarchy = 0;
    unsigned char m_codeRateHP = 0;
    unsigned char m_codeRateLP = 0;
    unsigned char m_guardInterval = 0;
    unsigned char m_transmissionMode = 0;
    unsigned char m_otherFrequencyFlag = 0;
};

// frequency_list_descriptor (0x62). Every entry is read as a signed number
// of 10 Hz units and given in MHz; the coding type is kept, not applied.
class ZUM_EXPORT TCDescFrequencyList : public TCBaseDesc {
public:
    TCDescFrequencyList();
    ~TCDescFrequencyList() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char CodingType() const { return m_codingType; }
    int NumOfEntries() const { return m_count; }
    // MHz; 0.0 for an index outside the entries.
    float CentreFrequency(int index) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_codingType = 0;
    // Four-byte entries behind the coding type, read from the raw copy.
    unsigned char m_count = 0;
};

#endif
