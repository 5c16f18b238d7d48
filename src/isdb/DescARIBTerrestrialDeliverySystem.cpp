#include "DescARIBTerrestrialDeliverySystem.h"

#include "../core/ByteReader.h"
#include "../core/DescriptorDataTranslator.h"
#include "../core/RecordAt.h"
#include "../dvb/DescText.h"

namespace {

const int kIdSize = 2;

// The 16-bit number at `index` of a run of them; 0 out of range.
unsigned short NumberAt(const unsigned char* run, int count, int index)
{
    const unsigned char* at = RawRecordAt(run, count, kIdSize, index);
    return at ? static_cast<unsigned short>(ReadBE16(at)) : 0;
}

} // namespace

// ---------------------------------------------------------------- terrestrial delivery system

TCDescARIBTerrestrialDeliverySystem::TCDescARIBTerrestrialDeliverySystem() : TCBaseDesc(0xFA) {}

TCDescARIBTerrestrialDeliverySystem::~TCDescARIBTerrestrialDeliverySystem()
{
    DeleteAll();
}

void TCDescARIBTerrestrialDeliverySystem::DeleteAll()
{
    m_areaCode = 0;
    m_guardInterval = 0;
    m_transmissionMode = 0;
    m_numOfFrequency = 0;
}

TCBaseDesc* TCDescARIBTerrestrialDeliverySystem::Fork() const
{
    return t_ForkAs(new TCDescARIBTerrestrialDeliverySystem());
}

int TCDescARIBTerrestrialDeliverySystem::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length < 2)
        return 0;
    m_areaCode = static_cast<unsigned short>(ReadBE16(payload) >> 4);
    m_guardInterval = (payload[1] >> 2) & 0x03;
    m_transmissionMode = payload[1] & 0x03;
    m_numOfFrequency = static_cast<unsigned char>((length - 2) / kIdSize);
    return 2 + kIdSize * m_numOfFrequency;
}

unsigned short TCDescARIBTerrestrialDeliverySystem::Frequency(int index) const
{
    const unsigned char* payload = t_Payload();
    return NumberAt(payload ? payload + 2 : nullptr, m_numOfFrequency, index);
}

// ---------------------------------------------------------------- partial reception

TCDescPartialReception::TCDescPartialReception() : TCBaseDesc(0xFB) {}

TCDescPartialReception::~TCDescPartialReception()
{
    DeleteAll();
}

void TCDescPartialReception::DeleteAll()
{
    m_count = 0;
}

TCBaseDesc* TCDescPartialReception::Fork() const
{
    return t_ForkAs(new TCDescPartialReception());
}

int TCDescPartialReception::t_Parse(const unsigned char* /*payload*/, unsigned char length)
{
    DeleteAll();
    if (length % kIdSize != 0)
        return 0;
    m_count = static_cast<unsigned char>(length / kIdSize);
    return length;
}

unsigned short TCDescPartialReception::ServiceId(unsigned char index) const
{
    return NumberAt(t_Payload(), m_count, index);
}

// ---------------------------------------------------------------- TS information

TCDescTSInformation::TCDescTSInformation() : TCBaseDesc(0xCD) {}

TCDescTSInformation::~TCDescTSInformation()
{
    DeleteAll();
}

void TCDescTSInformation::DeleteAll()
{
    m_remoteControlKeyId = 0;
    m_transmissionTypeCount = 0;
    m_tsName = TTRawRun();
    m_records.clear();
}

TCBaseDesc* TCDescTSInformation::Fork() const
{
    return t_ForkAs(new TCDescTSInformation());
}

int TCDescTSInformation::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length < 2)
        return 0;
    m_remoteControlKeyId = payload[0];
    const int nameLength = payload[1] >> 2;
    m_transmissionTypeCount = payload[1] & 0x03;
    if (length - 2 < nameLength)
        return 2;
    TCByteReader reader(payload + 2, length - 2);
    m_tsName = zum_text::TakeRun<TTRawRun>(reader, payload, nameLength);
    if (m_transmissionTypeCount == 0)
        return length;
    m_records.resize(m_transmissionTypeCount);
    for (TTTransmissionType& record : m_records) {
        if (!reader.Has(2))
            return 2 + reader.Consumed();
        record.transmissionTypeInfo = static_cast<unsigned char>(reader.U8());
        record.numOfService = static_cast<unsigned char>(reader.U8());
        // Only whole ids are kept: the count stays as read, the ids missing read as 0.
        const int whole = reader.Left() / kIdSize < record.numOfService ? reader.Left() / kIdSize : record.numOfService;
        record.serviceIds = t_Run(payload, reader.Here(), whole * kIdSize);
        reader.Skip(whole * kIdSize);
        if (whole < record.numOfService)
            return 2 + reader.Consumed();
    }
    return length;
}

bool TCDescTSInformation::TSNameChar(unsigned char* buffer, unsigned short* size) const
{
    return zum_text::Copy(t_At(m_tsName), m_tsName.length, buffer, size);
}

unsigned char TCDescTSInformation::TransmissionTypeInfo(unsigned char index) const
{
    return FieldAt(m_records, index, &TTTransmissionType::transmissionTypeInfo);
}

unsigned char TCDescTSInformation::NumOfService(unsigned char index) const
{
    return FieldAt(m_records, index, &TTTransmissionType::numOfService);
}

unsigned short TCDescTSInformation::ServiceId(unsigned char record, unsigned char index) const
{
    const TTTransmissionType* r = RecordAt(m_records, record);
    if (!r || index >= r->numOfService)
        return 0;
    return NumberAt(t_At(r->serviceIds), r->serviceIds.length / kIdSize, index);
}

// ---------------------------------------------------------------- hierarchical transmission

TCDescHierarchicalTransmission::TCDescHierarchicalTransmission() : TCBaseDesc(0xC0) {}

TCDescHierarchicalTransmission::~TCDescHierarchicalTransmission()
{
    DeleteAll();
}

void TCDescHierarchicalTransmission::DeleteAll()
{
    m_qualityLevel = 1;
    m_referencePID = 0xFFFF;
}

TCBaseDesc* TCDescHierarchicalTransmission::Fork() const
{
    return t_ForkAs(new TCDescHierarchicalTransmission());
}

int TCDescHierarchicalTransmission::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length == 3) {
        m_qualityLevel = payload[0] & 0x01;
        m_referencePID = static_cast<unsigned short>(ReadBE16(payload + 1) & 0x1FFF);
    }
    return length;
}

// ---------------------------------------------------------------- system management

TCDescSystemManagement::TCDescSystemManagement() : TCBaseDesc(0xFF) {}

TCDescSystemManagement::~TCDescSystemManagement()
{
    DeleteAll();
}

void TCDescSystemManagement::DeleteAll()
{
    m_broadcastingFlag = 0;
    m_broadcastingIdentifier = 0;
    m_additionalBroadcastingIdentification = 0;
    m_additionalInfo = TTRawRun();
}

TCBaseDesc* TCDescSystemManagement::Fork() const
{
    return t_ForkAs(new TCDescSystemManagement());
}

int TCDescSystemManagement::t_Parse(const unsigned char* payload, unsigned char length)
{
    m_additionalInfo = TTRawRun();
    TCDescriptorDataTranslator bits(payload, length);
    m_broadcastingFlag = static_cast<unsigned char>(bits.GetBits(2));
    m_broadcastingIdentifier = static_cast<unsigned char>(bits.GetBits(6));
    m_additionalBroadcastingIdentification = static_cast<unsigned char>(bits.GetBits(8));
    // The rest, byte by byte: it stays where it is in the raw copy.
    int count = 0;
    for (; !bits.EndOfData(); ++count)
        bits.GetUInt8();
    m_additionalInfo = t_Run(payload, payload + (length - count), count);
    return length;
}

unsigned char TCDescSystemManagement::AdditionalIdentificationInfo(int index) const
{
    const unsigned char* at = RawRecordAt(t_At(m_additionalInfo), m_additionalInfo.length, 1, index);
    return at ? *at : 0;
}
