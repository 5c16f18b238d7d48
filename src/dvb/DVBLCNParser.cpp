#include "DVBLCNParser.h"

#include "../core/ByteReader.h"

namespace {

const int kHeaderSize = 8;
const int kRecordSize = 10;
const int kCrcSize = 4;

} // namespace

TCDVBLCNParser::TCDVBLCNParser(const ZUMHandle& handle) : TCSectionParser(0x85, handle) {}

TCDVBLCNParser::~TCDVBLCNParser()
{
    Initialize();
}

void TCDVBLCNParser::t_Initialize()
{
    InitSection();
    DeleteAll();
}

void TCDVBLCNParser::DeleteAll()
{
    m_lcnInfo.clear();
}

bool TCDVBLCNParser::t_Parse(const unsigned char* body, int length)
{
    const int result = t_CheckVersion(m_versionNumber, m_sectionNumber, m_lastSectionNumber, m_crc);
    if (result != TABLE_FIRST && result != TABLE_ADD && result != TABLE_CHANGED)
        return false;
    m_Parse(body, length);
    return IsValid();
}

bool TCDVBLCNParser::m_Parse(const unsigned char* body, int length)
{
    // Each section carries the whole list: the one parsed last stands alone.
    DeleteAll();

    // The header is read before the length test; a value the body does not hold stays.
    TCByteReader header(body, length);
    unsigned short* const values[] = {&m_headerValue1, &m_headerValue2, &m_headerValue3};
    for (unsigned short* value : values) {
        if (!header.Has(2))
            break;
        *value = static_cast<unsigned short>(header.U16());
    }

    const int end = length - kCrcSize;
    if (end < kHeaderSize)
        return false;
    for (int offset = kHeaderSize; offset + kRecordSize <= end; offset += kRecordSize) {
        TCByteReader record(body + offset, kRecordSize);
        const int first = static_cast<int>(record.U16());
        const int second = static_cast<int>(record.U16());
        const int third = static_cast<int>(record.U16());
        TTLCNInfo info;
        info.m_logicalChannelNumber = static_cast<unsigned short>(record.U16() & 0x0FFF);
        info.m_visible = static_cast<unsigned char>(record.U8() >> 7);
        info.m_extra = static_cast<unsigned short>(record.U8());
        info.m_reserved = 0xFFFF;
        m_AddLCNInfo(TCCacheLCNServiceKey(first, second, third, -1), info);
    }
    return true;
}

void TCDVBLCNParser::m_AddLCNInfo(const TCCacheLCNServiceKey& key, const TTLCNInfo& info)
{
    // A multimap insert goes behind equal keys, so repeated records keep their order.
    m_lcnInfo.emplace(key, info);
}
