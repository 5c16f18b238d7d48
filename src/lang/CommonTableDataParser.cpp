#include "CommonTableDataParser.h"

#include "TableDataBytes.h"

TCCommonTableDataParser::~TCCommonTableDataParser()
{
    m_clearAllData();
}

void TCCommonTableDataParser::m_clearAllData()
{
    m_entries.clear();
}

int TCCommonTableDataParser::Parse(const unsigned char* data, unsigned int size)
{
    m_clearAllData();
    return zumtabledata::ParseCountedBlock(m_entries, data, size, [](TCByteReader& reader, tagCommonData& entry) {
        entry.code = static_cast<unsigned char>(reader.U8());
        entry.firstLength = static_cast<unsigned char>(reader.U8());
        if (reader.IsShort() || !zumtabledata::TakeBytes(reader, entry.firstLength, entry.firstText))
            return false;
        entry.secondLength = static_cast<unsigned char>(reader.U8());
        return !reader.IsShort() && zumtabledata::TakeBytes(reader, entry.secondLength, entry.secondText);
    });
}
