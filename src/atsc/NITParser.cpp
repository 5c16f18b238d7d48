#include "NITParser.h"

#include <cstdint>

#include "../core/ByteReader.h"
#include "../core/Descriptor.h"
#include "../core/Diagnostics.h"
#include "../core/Log.h"
#include "DescRevisionDetection.h"

// ---------------------------------------------------------------- records

TCNITParserRecord::TCNITParserRecord(unsigned char tableSubType, const ZUMHandle& handle)
    : t_tableSubType(tableSubType), t_handle(handle)
{
}

TCBaseDesc* TCNITParserRecord::Descriptor(int tag, unsigned int index) const
{
    if (!ZUM_ASSERT(t_tableSubType != (uint8_t)INVALID))
        return nullptr;
    return TCDescriptorHashOwner::Descriptor(tag, index);
}

int TCNITParserRecord::SetDescriptor(const unsigned char* data, unsigned char count, int size)
{
    if (!ZUM_ASSERT(t_tableSubType != (uint8_t)INVALID))
        return 0;
    const int span = ZumDescriptorSpan(data, count, size);
    if (span < 0)
        return 0;
    TCDescriptor(t_handle).ParseByCount(data, count, m_descriptors, 194, span);
    return span;
}

TCNITParserCDS::TCNITParserCDS(int index, const ZUMHandle& handle)
    : TCNITParserRecord(0, handle), m_index(static_cast<unsigned int>(index))
{
}

int TCNITParserCDS::Parse(const unsigned char* data)
{
    if (!ZUM_ASSERT(m_index != INVALID))
        return 0;
    m_numberOfCarriers = data[0];
    m_spacingUnit = (data[1] >> 7) & 0x01;
    m_frequencySpacing = ReadBE16(data + 1) & 0x3FFF;
    m_frequencyUnit = (data[3] >> 7) & 0x01;
    m_firstCarrierFrequency = ReadBE16(data + 3) & 0x7FFF;
    // A unit bit of 1 counts in 125 kHz, of 0 in 10 kHz.
    m_finalFrequency = m_firstCarrierFrequency * (m_frequencyUnit ? 125.0f : 10.0f) / 1000.0f;
    m_finalSpacing = m_frequencySpacing * (m_spacingUnit ? 125.0f : 10.0f) / 1000.0f;
    return kRecordSize;
}

float TCNITParserCDS::FinalFrequency() const
{
    if (!ZUM_ASSERT(m_index != INVALID))
        return 0.0f;
    return m_finalFrequency;
}

float TCNITParserCDS::FinalSpacing() const
{
    if (!ZUM_ASSERT(m_index != INVALID))
        return 0.0f;
    return m_finalSpacing;
}

TCNITParserMMS::TCNITParserMMS(int index, const ZUMHandle& handle) : TCNITParserRecord(1, handle), m_index(index) {}

int TCNITParserMMS::Parse(const unsigned char* data)
{
    m_transmissionSystem = (data[0] >> 4) & 0x0F;
    m_innerCodingMode = data[0] & 0x0F;
    m_splitBitstreamMode = (data[1] >> 7) & 0x01;
    m_modulationFormat = data[1] & 0x1F;
    m_symbolRate = (static_cast<unsigned int>(data[2] & 0x1F) << 16) | (data[3] << 8) | data[4];
    return kRecordSize;
}

// ---------------------------------------------------------------- parser

TCNITParser::TCNITParser(const ZUMHandle& handle) : TCOOBSectionParser(194, handle)
{
    for (float& f : m_cdsFrequency)
        f = -1.0f;
}

TCNITParser::~TCNITParser() = default;

void TCNITParser::DeleteAll()
{
    for (float& f : m_cdsFrequency)
        f = -1.0f;
    m_cds.clear();
    m_mms.clear();
    m_descriptors.DeleteAll();
    m_nitCdsTableComplete = m_nitMmsTableComplete = m_nitComplete = false;
    t_ClearAllVersionList();
}

void TCNITParser::t_Initialize()
{
    InitSection();
    DeleteAll();
}

bool TCNITParser::CDSRefence(unsigned char reference, float* frequency) const
{
    if (m_cdsFrequency[reference] < 0.0f || !frequency)
        return false;
    *frequency = m_cdsFrequency[reference];
    return true;
}

bool TCNITParser::MMSRefence(unsigned char reference, unsigned char* modulation) const
{
    auto it = m_mms.find(reference);
    if (it == m_mms.end() || !modulation)
        return false;
    *modulation = static_cast<const TCNITParserMMS*>(it->second.get())->ModulationFormat();
    return true;
}

bool TCNITParser::m_ParseCDS(const unsigned char* data, int size, int index, int count, int& offset)
{
    for (int r = 0; r < count; ++r) {
        if (size - offset < TCNITParserCDS::kRecordSize + 1)
            break;
        auto& slot = m_cds[index];
        if (!slot)
            slot = std::make_unique<TCNITParserCDS>(index, m_handle);
        auto* cds = static_cast<TCNITParserCDS*>(slot.get());
        offset += cds->Parse(data + offset);
        const int carriers = cds->NumberOfCarriers();
        if (carriers > 0) {
            m_nitCdsTableComplete = true;
            for (int k = 0; k < carriers && index + k < kSlots; ++k) {
                const float frequency = k * cds->FinalSpacing() + cds->FinalFrequency();
                float& held = m_cdsFrequency[index + k];
                if (held != frequency && held != -1.0f) {
                    DeleteAll();
                    ZUM_LOGD("NIT CDS Version Changed");
                    return false;
                }
                if (held == -1.0f)
                    m_nitCdsTableComplete = false;
                held = frequency;
            }
            index += carriers;
        }
        const unsigned char descriptors = data[offset++];
        const int n = cds->SetDescriptor(data + offset, descriptors, size - offset);
        if (n == 0 && descriptors > 0)
            break;
        offset += n;
    }
    return true;
}

bool TCNITParser::m_ParseMMS(const unsigned char* data, int size, int index, int count, int& offset)
{
    for (int r = 0; r < count; ++r, ++index) {
        if (size - offset < TCNITParserMMS::kRecordSize + 1)
            break;
        m_nitMmsTableComplete = true;
        auto it = m_mms.find(index);
        TCNITParserMMS* mms = nullptr;
        if (it != m_mms.end()) {
            mms = static_cast<TCNITParserMMS*>(it->second.get());
            const unsigned char modulation = mms->ModulationFormat();
            offset += mms->Parse(data + offset);
            if (mms->ModulationFormat() != modulation) {
                DeleteAll();
                InitSection();
                ZUM_LOGD("MMS CDS Version Changed");
                m_nitMmsTableComplete = false;
                return false;
            }
        } else {
            auto created = std::make_unique<TCNITParserMMS>(index, m_handle);
            mms = created.get();
            offset += mms->Parse(data + offset);
            m_mms.emplace(index, std::move(created));
            m_nitMmsTableComplete = false;
        }
        // Descriptors of a repeated record pile up in its hash.
        const unsigned char descriptors = data[offset++];
        const int n = mms->SetDescriptor(data + offset, descriptors, size - offset);
        if (n == 0 && descriptors > 0)
            break;
        offset += n;
    }
    return true;
}

bool TCNITParser::t_Parse(const unsigned char* data, int size)
{
    // Header and the CRC_32 at least.
    if (size < 8)
        return false;
    if (t_CheckRecieved(data, size)) {
        ZUM_LOGD("TCNITParser::t_Parse t_CheckVersion is false");
        return t_CheckCompleted();
    }
    const int firstIndex = data[1];
    const int count = data[2];
    const int subtype = data[3] & 0x0F;
    // Records end before the CRC_32.
    const int end = size - 4;
    int offset = 4;
    if (count != 0) {
        if (subtype == 1) {
            if (!m_ParseCDS(data, end, firstIndex, count, offset))
                return false;
        } else if (subtype == 2) {
            if (!m_ParseMMS(data, end, firstIndex, count, offset))
                return false;
        } else {
            return false;
        }
    }
    if (end - offset > 0)
        TCDescriptor(m_handle).Parse(data + offset, end - offset, m_descriptors, m_tableId);

    if (TCDescRevisionDetection* revision = t_RevisionDetection(m_descriptors)) {
        const int result = t_CheckVersion(revision->TableVersion(), revision->SectionNumber(),
                                          revision->LastSectionNumber(), 0xFFFFFFFF);
        if ((result == TABLE_FIRST || result == TABLE_ADD || result == TABLE_CHANGED) && IsValid()) {
            m_nitComplete = true;
            return true;
        }
    }
    if (!m_nitCdsTableComplete || !m_nitMmsTableComplete) {
        t_ClearAllVersionList();
        return false;
    }
    return t_CheckCompleted();
}

bool TCNITParser::t_CheckCompleted()
{
    ZUM_LOGD("NIT count=%d, m_nitCdsTableComplete=%d, m_nitMmsTableComplete=%d", m_repeatCount,
             m_nitCdsTableComplete, m_nitMmsTableComplete);
    if (m_repeatCount < 4) {
        ++m_repeatCount;
        if (m_repeatCount < 3)
            return false;
    }
    if (m_nitComplete)
        return false;
    m_nitComplete = true;
    return true;
}
