#include "DescSatelliteDeliverySystem.h"

#include <cstdint>

#include "../core/ByteReader.h"
#include "../core/RecordAt.h"
#include "BcdDigits.h"

namespace {

// The fixed body of the satellite and terrestrial descriptors.
const int kDeliveryBodySize = 11;
const int kFrequencySize = 4;

int SatelliteModulation(unsigned int code)
{
    static const int kValues[4] = {-1, 7, 16, 0}; // auto, QPSK, 8PSK, 16-QAM
    return kValues[code & 0x03];
}

int SatelliteFecInner(unsigned int code)
{
    static const int kValues[16] = {-1, 0, 1, 2, 3, 4, 10, 8, 9, 11, -1, -1, -1, -1, -1, 12};
    return kValues[code & 0x0F];
}

} // namespace

TCDescSatelliteDeliverySystem::TCDescSatelliteDeliverySystem(int tag) : TCBaseDesc(tag) {}

TCDescSatelliteDeliverySystem::~TCDescSatelliteDeliverySystem()
{
    DeleteAll();
}

void TCDescSatelliteDeliverySystem::DeleteAll() {}

TCBaseDesc* TCDescSatelliteDeliverySystem::Fork() const
{
    return t_ForkAs(new TCDescSatelliteDeliverySystem(m_tag));
}

int TCDescSatelliteDeliverySystem::t_Parse(const unsigned char* payload, unsigned char length)
{
    // Each field is taken only when its bytes are inside the body.
    if (length >= 3)
        m_frequency = ZumBcdDigits(payload, 6) * 1000; // the two 10 kHz digits are dropped
    if (length >= 6)
        m_orbitalPosition = static_cast<unsigned short>(ZumBcdDigits(payload + 4, 4));
    if (length >= 7) {
        const unsigned char flags = payload[6];
        m_westEastFlag = static_cast<unsigned char>(flags >> 7);
        // Bit 5 alone: horizontal and circular left read the same.
        m_polarization = (flags >> 5) & 0x01;
        m_modulation = SatelliteModulation(flags);
    }
    if (length >= 10)
        m_symbolRate = static_cast<unsigned short>(ZumBcdDigits(payload + 7, 6));
    if (length >= 11)
        m_fecInner = SatelliteFecInner(payload[10]);
    return kDeliveryBodySize;
}

TCDescCableDeliverySystem::TCDescCableDeliverySystem() : TCBaseDesc(0x44) {}

TCDescCableDeliverySystem::~TCDescCableDeliverySystem()
{
    DeleteAll();
}

void TCDescCableDeliverySystem::DeleteAll() {}

TCBaseDesc* TCDescCableDeliverySystem::Fork() const
{
    return t_ForkAs(new TCDescCableDeliverySystem());
}

int TCDescCableDeliverySystem::Modulation() const
{
    switch (m_modulationCode) {
    case 1: return 0;  // 16-QAM
    case 2: return 15; // 32-QAM
    case 3: return 1;  // 64-QAM
    case 4: return 2;  // 128-QAM
    case 5: return 3;  // 256-QAM
    default: return -1;
    }
}

int TCDescCableDeliverySystem::t_Parse(const unsigned char* payload, unsigned char length)
{
    if (length >= 4)
        m_frequency = ZumBcdDigits(payload, 8) / 10; // 100 Hz digits to kHz
    if (length >= 6)
        m_fecOuter = static_cast<unsigned char>(payload[5] & 0x0F);
    if (length >= 7)
        m_modulationCode = payload[6];
    if (length >= 11) {
        m_symbolRate100 = ZumBcdDigits(payload + 7, 7);
        m_fecInner = static_cast<unsigned char>(payload[10] & 0x0F);
    }
    return m_length;
}

TCDescTerrestrialDeliverySystem::TCDescTerrestrialDeliverySystem() : TCBaseDesc(0x5A) {}

TCDescTerrestrialDeliverySystem::~TCDescTerrestrialDeliverySystem()
{
    DeleteAll();
}

void TCDescTerrestrialDeliverySystem::DeleteAll() {}

TCBaseDesc* TCDescTerrestrialDeliverySystem::Fork() const
{
    return t_ForkAs(new TCDescTerrestrialDeliverySystem());
}

int TCDescTerrestrialDeliverySystem::t_Parse(const unsigned char* payload, unsigned char length)
{
    if (length >= 4)
        m_centreFrequency = ReadBE32(payload);
    if (length >= 5)
        m_bandwidth = static_cast<unsigned char>(payload[4] >> 5);
    if (length >= 6) {
        const unsigned char b = payload[5];
        m_constellation = static_cast<unsigned char>(b >> 6);
        m_hierarchy = static_cast<unsigned char>((b >> 3) & 0x07);
        m_codeRateHP = static_cast<unsigned char>(b & 0x07);
    }
    if (length >= 7) {
        const unsigned char b = payload[6];
        m_codeRateLP = static_cast<unsigned char>(b >> 5);
        m_guardInterval = static_cast<unsigned char>((b >> 3) & 0x03);
        m_transmissionMode = static_cast<unsigned char>((b >> 1) & 0x03);
        m_otherFrequencyFlag = static_cast<unsigned char>(b & 0x01);
    }
    return kDeliveryBodySize;
}

TCDescFrequencyList::TCDescFrequencyList() : TCBaseDesc(0x62) {}

TCDescFrequencyList::~TCDescFrequencyList()
{
    DeleteAll();
}

void TCDescFrequencyList::DeleteAll()
{
    m_count = 0;
}

TCBaseDesc* TCDescFrequencyList::Fork() const
{
    return t_ForkAs(new TCDescFrequencyList());
}

float TCDescFrequencyList::CentreFrequency(int index) const
{
    const unsigned char* payload = t_Payload();
    const unsigned char* entry = RawRecordAt(payload ? payload + 1 : nullptr, m_count, kFrequencySize, index);
    if (!entry)
        return 0.0f;
    const int32_t value = static_cast<int32_t>(ReadBE32(entry));
    return static_cast<float>(value / 100000.0);
}

int TCDescFrequencyList::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length < 1)
        return 0;
    m_codingType = static_cast<unsigned char>(payload[0] & 0x03);
    m_count = static_cast<unsigned char>((length - 1) / kFrequencySize);
    return 1 + m_count * kFrequencySize;
}
