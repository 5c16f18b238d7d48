#ifndef ZUM_ISDB_DESCARIBTERRESTRIALDELIVERYSYSTEM_H
#define ZUM_ISDB_DESCARIBTERRESTRIALDELIVERYSYSTEM_H

#include <vector>

#include "../core/BaseDesc.h"

// ARIB descriptors of a network's transport streams: where they are tuned,
// what a one-segment receiver takes, and how a scan names them.

// terrestrial_delivery_system_descriptor (0xFA): area, guard interval,
// transmission mode and the frequencies as the stream gives them (1/7 MHz).
class ZUM_EXPORT TCDescARIBTerrestrialDeliverySystem : public TCBaseDesc {
public:
    TCDescARIBTerrestrialDeliverySystem();
    ~TCDescARIBTerrestrialDeliverySystem() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned short AreaCode() const { return m_areaCode; }
    unsigned char GuardInterval() const { return m_guardInterval; }
    unsigned char TransmissionMode() const { return m_transmissionMode; }
    unsigned char NumOfFrequency() const { return m_numOfFrequency; }
    // The 16-bit number of the stream; 0 for an index out of range.
    unsigned short Frequency(int index) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned short m_areaCode = 0;
    unsigned char m_guardInterval = 0;
    unsigned char m_transmissionMode = 0;
    // The frequencies are read from the raw copy, two bytes each from byte 2.
    unsigned char m_numOfFrequency = 0;
};

// partial_reception_descriptor (0xFB): the services of the one-segment layer.
class ZUM_EXPORT TCDescPartialReception : public TCBaseDesc {
public:
    TCDescPartialReception();
    ~TCDescPartialReception() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char Count() const { return m_count; }
    // 0 for an index not below the count.
    unsigned short ServiceId(unsigned char index) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_count = 0;
};

// ts_information_descriptor (0xCD): the remote control key and name of a
// transport stream, and its services by transmission type.
class ZUM_EXPORT TCDescTSInformation : public TCBaseDesc {
public:
    TCDescTSInformation();
    ~TCDescTSInformation() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char RemoteControlKeyId() const { return m_remoteControlKeyId; }
    // Set only when the name was stored.
    unsigned char LengthOfTsName() const { return m_tsName.length; }
    unsigned char TransmissionTypeCount() const { return m_transmissionTypeCount; }
    // Text copy; a smaller buffer gets its size's worth and the answer false.
    bool TSNameChar(unsigned char* buffer, unsigned short* size) const;
    // Each 0 for a record not below TransmissionTypeCount().
    unsigned char TransmissionTypeInfo(unsigned char index) const;
    unsigned char NumOfService(unsigned char index) const;
    // 0 for an index not below the record's count, and for an id the body did not hold.
    unsigned short ServiceId(unsigned char record, unsigned char index) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    struct TTTransmissionType {
        unsigned char transmissionTypeInfo = 0;
        unsigned char numOfService = 0;
        TTRawRun serviceIds; // the ids read, two bytes each
    };

    unsigned char m_remoteControlKeyId = 0;
    unsigned char m_transmissionTypeCount = 0;
    TTRawRun m_tsName;
    std::vector<TTTransmissionType> m_records;
};

// hierarchical_transmission_descriptor (0xC0): the layer quality of a stream
// and the PID of its reference stream.
class ZUM_EXPORT TCDescHierarchicalTransmission : public TCBaseDesc {
public:
    TCDescHierarchicalTransmission();
    ~TCDescHierarchicalTransmission() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char QualityLevel() const { return m_qualityLevel; }
    unsigned short ReferencePID() const { return m_referencePID; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_qualityLevel = 1;
    unsigned short m_referencePID = 0xFFFF;
};

// system_management_descriptor of ARIB, under the library's own tag 0xFF: no
// factory makes it, a caller decodes it itself.
class ZUM_EXPORT TCDescSystemManagement : public TCBaseDesc {
public:
    TCDescSystemManagement();
    ~TCDescSystemManagement() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char BroadcastingFlag() const { return m_broadcastingFlag; }
    unsigned char BroadcastingIdentifier() const { return m_broadcastingIdentifier; }
    unsigned char AdditionalBroadcastingIdentification() const { return m_additionalBroadcastingIdentification; }
    // Every byte behind the identification.
    int NumOfAdditionalIdentificationInfo() const { return m_additionalInfo.length; }
    // 0 for an index out of range.
    unsigned char AdditionalIdentificationInfo(int index) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_broadcastingFlag = 0;
    unsigned char m_broadcastingIdentifier = 0;
    unsigned char m_additionalBroadcastingIdentification = 0;
    TTRawRun m_additionalInfo;
};

#endif
