#include "DVBCATParser.h"

#include "../core/Descriptor.h"

TCDVBCATParser::TCDVBCATParser(const ZUMHandle& handle) : TCSectionParser(0x01, handle) {}

TCDVBCATParser::~TCDVBCATParser()
{
    Initialize();
}

void TCDVBCATParser::DeleteAll()
{
    m_descriptors.DeleteAll();
}

void TCDVBCATParser::t_Initialize()
{
    InitSection();
    DeleteAll();
}

bool TCDVBCATParser::t_Parse(const unsigned char* body, int length)
{
    const int result = t_CheckVersion(m_versionNumber, m_sectionNumber, m_lastSectionNumber, m_crc);
    if (result != TABLE_FIRST && result != TABLE_ADD && result != TABLE_CHANGED)
        return false;
    TCDescriptor loop(m_handle);
    loop.Parse(body, length - 4, m_descriptors, m_tableId);
    return IsValid();
}
