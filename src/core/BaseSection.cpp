#include "BaseSection.h"

#include <algorithm>

#include "Log.h"

TCBaseSection::~TCBaseSection()
{
    InitSection();
}

void TCBaseSection::InitSection()
{
    m_version = -1;
    m_lastSection = 0;
    m_pSectionCrc.reset();
    m_pMultiSectionFlag.reset();
}

bool TCBaseSection::t_InitSection(int sectionNumber, int lastSectionNumber, unsigned int crc)
{
    const int count = lastSectionNumber + 1;
    // Arrays of the same size are refilled rather than made anew; they hold
    // m_lastSection + 1 entries, so m_lastSection must not have moved yet.
    if (!m_pMultiSectionFlag || m_lastSection != lastSectionNumber) {
        m_pSectionCrc.reset(new unsigned int[count]);
        m_pMultiSectionFlag.reset(new unsigned char[count]);
    }
    std::fill_n(m_pSectionCrc.get(), count, 0xFFFFFFFFu);
    std::fill_n(m_pMultiSectionFlag.get(), count, static_cast<unsigned char>(0));
    m_pMultiSectionFlag[sectionNumber] = 1;
    m_pSectionCrc[sectionNumber] = crc;
    return true;
}

bool TCBaseSection::t_CheckChangeTable(int version, int sectionNumber, int lastSectionNumber,
                                       unsigned int crc) const
{
    if (version != m_version || lastSectionNumber != m_lastSection)
        return true;
    // A section not received yet cannot signal a change by its fingerprint.
    return m_Holds(sectionNumber) && m_pMultiSectionFlag[sectionNumber] && m_pSectionCrc[sectionNumber] != crc;
}

int TCBaseSection::t_CheckVersion(int version, int sectionNumber, int lastSectionNumber, unsigned int crc)
{
    if (sectionNumber > lastSectionNumber) {
        ZUM_LOGD("TABLE_IGNORE :: sectionNum > lastSectionNum ");
        return TABLE_IGNORE;
    }
    // Section numbers come from one byte; anything else is not a section.
    if (sectionNumber < 0 || lastSectionNumber > 0xFF)
        return TABLE_IGNORE;

    if (m_version == -1) {
        m_version = version;
        t_InitSection(sectionNumber, lastSectionNumber, crc);
        m_lastSection = lastSectionNumber;
        return TABLE_FIRST;
    }

    if (!t_CheckChangeTable(version, sectionNumber, lastSectionNumber, crc)) {
        if (m_pMultiSectionFlag[sectionNumber] && m_pSectionCrc[sectionNumber] == crc)
            return TABLE_SAME;
        m_pMultiSectionFlag[sectionNumber] = 1;
        m_pSectionCrc[sectionNumber] = crc;
        return TABLE_ADD;
    }

    DeleteAll();
    m_version = version;
    t_InitSection(sectionNumber, lastSectionNumber, crc);
    m_lastSection = lastSectionNumber;
    return TABLE_CHANGED;
}

bool TCBaseSection::t_CheckSegment(int sectionNumber, int lastSectionNumber, int segmentLastSectionNumber)
{
    const int base = sectionNumber - (sectionNumber % 8);
    if (segmentLastSectionNumber < base || segmentLastSectionNumber > base + 7) {
        ZUM_LOGD("TCBaseSection::t_CheckSegment=> Invalid Segment Last Section Number. return false");
        return false;
    }
    // Sections behind the segment's real end are never sent: count them as in.
    const int to = std::min(base + 7, lastSectionNumber);
    for (int s = segmentLastSectionNumber + 1; s <= to; ++s) {
        if (m_Holds(s))
            m_pMultiSectionFlag[s] = 1;
    }
    return true;
}

bool TCBaseSection::IsValid() const
{
    if (!m_pMultiSectionFlag) {
        ZUM_LOGD("TCBaseSection::IsValid, m_pMultiSectionFlag is NULL");
        return false;
    }
    for (int s = 0; s <= m_lastSection; ++s) {
        if (!m_pMultiSectionFlag[s])
            return false;
    }
    return true;
}

bool TCBaseSection::IsRecvSection(int section) const
{
    return m_Holds(section) && m_pMultiSectionFlag[section];
}

bool TCBaseSection::IsRecvSegment(int firstSegment, int lastSegment) const
{
    if (!m_pMultiSectionFlag) {
        ZUM_LOGD("TCBaseSection::IsValid, m_pMultiSectionFlag is NULL");
        return false;
    }
    // In 64 bits, so that no segment number overflows the section arithmetic.
    const long long from = std::max(0LL, std::min(firstSegment * 8LL, static_cast<long long>(m_lastSection)));
    const long long to = std::min(lastSegment * 8LL + 8, m_lastSection + 1LL);
    for (long long s = from; s < to; ++s) {
        if (!m_pMultiSectionFlag[s])
            return false;
    }
    return true;
}

bool TCBaseSection::RemoveSection(int section)
{
    if (!m_Holds(section))
        return false;
    m_pMultiSectionFlag[section] = 0;
    return true;
}
