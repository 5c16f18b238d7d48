#include "SVCTParser.h"

#include "../core/ByteReader.h"
#include "../core/Descriptor.h"
#include "../core/Log.h"
#include "DescRevisionDetection.h"

TCSVCTParser::TCSVCTParser(const ZUMHandle& handle) : TCOOBSectionParser(0xC4, handle) {}

TCSVCTParser::~TCSVCTParser() = default;

void TCSVCTParser::DeleteAll()
{
    m_pVCM.reset();
    m_pDCM.reset();
    m_pICM.reset();
    m_descriptors.DeleteAll();
    m_completed = false;
    m_vcmStatus = m_icmStatus = 0;
    m_repeatCount = 0;
    m_completeCNT = 3;
    t_ClearAllVersionList();
}

void TCSVCTParser::t_Initialize()
{
    InitSection();
    DeleteAll();
}

bool TCSVCTParser::t_Parse(const unsigned char* data, int size)
{
    // protocol_version, subtype, VCT id and the CRC_32 at least.
    if (size < 8)
        return false;
    m_protocolVersionOOB = data[0] & 0x1F;
    m_transmissionMedium = (data[1] >> 4) & 0x0F;
    m_tableSubtype = data[1] & 0x0F;
    m_vctId = ReadBE16(data + 2);
    const char subtype = static_cast<char>(m_tableSubtype);

    if (t_CheckRecieved(data, size)) {
        ZUM_LOGD("TCSVCTParser::t_Parse t_CheckVersion is false");
        return t_CheckCompleted(subtype, 1);
    }
    if (subtype == 1)
        return false;

    // The subtable ends before the CRC_32.
    const int bodyLeft = size - 8;
    int consumed = 0;
    int status = 0;
    if (subtype == 0) {
        if (!m_pVCM)
            m_pVCM = std::make_unique<TCSVCTParserVCM>(m_handle);
        consumed = m_pVCM->Parse(data + 4, &m_vcmStatus, bodyLeft);
        status = m_vcmStatus;
    } else if (subtype == 2) {
        if (!m_pICM)
            m_pICM = std::make_unique<TCSVCTParserICM>();
        consumed = m_pICM->Parse(data + 4, &m_icmStatus, bodyLeft);
        status = m_icmStatus;
    }

    if (size - consumed - 8 > 0)
        TCDescriptor(m_handle).Parse(data + 4 + consumed, size - consumed - 8, m_descriptors, m_tableId);

    if (TCDescRevisionDetection* revision = t_RevisionDetection(m_descriptors)) {
        const int result = t_CheckVersion(revision->TableVersion(), revision->SectionNumber(),
                                          revision->LastSectionNumber(), 0xFFFFFFFF);
        if (result == TABLE_FIRST || result == TABLE_ADD || result == TABLE_CHANGED)
            return IsValid();
    }

    ZUM_LOGD("SVCT type=%d, count=%d, completeCNT=%d, check_ver=%d", subtype, m_repeatCount, m_completeCNT, status);
    if (m_vcmStatus == 2) {
        t_Initialize();
        return false;
    }
    if (m_vcmStatus == 1)
        return t_CheckCompleted(subtype, status);
    return false;
}

bool TCSVCTParser::t_CheckCompleted(char subtype, int status)
{
    ZUM_LOGD("### TCSVCTParser::t_CheckCompleted ####");
    if (subtype != 0)
        return false;
    switch (status) {
    case 0:
    case 2:
        m_completeCNT = 3;
        t_ClearAllVersionList();
        break;
    case 1:
    case 4:
        if (m_repeatCount < 255)
            ++m_repeatCount;
        break;
    case 3:
        if (m_completeCNT < 255)
            ++m_completeCNT;
        break;
    default: break;
    }
    if (m_repeatCount < m_completeCNT) {
        m_vcmStatus = 0;
        return false;
    }
    if (!m_completed) {
        m_completed = true;
        return true;
    }
    return false;
}
