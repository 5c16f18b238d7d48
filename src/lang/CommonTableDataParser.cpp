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
    if (data == nullptr || size == 0)
        return 0;
    TCByteReader reader = zumtabledata::BlockReader(data, size);
    const unsigned int count = reader.U8();
    for (unsigned int i = 0; i < count; ++i) {
        tagCommonData entry;
        entry.code = static_cast<unsigned char>(reader.U8());
        entry.firstLength = static_cast<unsigned char>(reader.U8());
        if (reader.IsShort() || !zumtabledata::TakeBytes(reader, entry.firstLength, entry.firstText))
            return 0;
        entry.secondLength = static_cast<unsigned char>(reader.U8());
        if (reader.IsShort() || !zumtabledata::TakeBytes(reader, entry.secondLength, entry.secondText))
            return 0;
        m_entries.push_back(std::move(entry));
    }
    return 1;
}
