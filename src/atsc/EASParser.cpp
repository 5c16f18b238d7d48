#include "EASParser.h"

#include <cstring>

TCEASParser::TCEASParser(const ZUMHandle& handle) : TCSectionParser(0xD8, handle) {}

TCEASParser::~TCEASParser() = default;

void TCEASParser::DeleteAll()
{
    m_pSection.reset();
    m_length = 0;
}

void TCEASParser::t_Initialize()
{
    InitSection();
    DeleteAll();
}

bool TCEASParser::t_CheckPSIPTable(unsigned char /*tableId*/)
{
    return true;
}

bool TCEASParser::t_Parse(const unsigned char* /*body*/, int /*length*/)
{
    const int result = t_CheckVersion(m_versionNumber, m_sectionNumber, m_lastSectionNumber, 0xFFFFFFFF);
    if (result != TABLE_FIRST && result != TABLE_CHANGED)
        return false;
    DeleteAll();
    m_length = m_sectionLength + 3;
    m_pSection.reset(new unsigned char[static_cast<size_t>(m_length)]);
    std::memcpy(m_pSection.get(), m_pData, static_cast<size_t>(m_length));
    return IsValid();
}

bool TCEASParser::GetSection(unsigned char* data, int* length) const
{
    if (!m_pSection || !data || !length || *length < m_length)
        return false;
    std::memcpy(data, m_pSection.get(), static_cast<size_t>(m_length));
    *length = m_length;
    return true;
}
