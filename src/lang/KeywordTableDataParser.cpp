#include "KeywordTableDataParser.h"

#include "TableDataBytes.h"

TCKeywordTableDataParser::~TCKeywordTableDataParser()
{
    m_clearAllData();
}

void TCKeywordTableDataParser::m_clearAllData()
{
    m_keywords.clear();
}

int TCKeywordTableDataParser::Parse(const unsigned char* data, unsigned int size)
{
    m_clearAllData();
    return zumtabledata::ParseCountedBlock(m_keywords, data, size, [](TCByteReader& reader, tagKeywordData& entry) {
        entry.length = static_cast<unsigned char>(reader.U8());
        return !reader.IsShort() && zumtabledata::TakeBytes(reader, entry.length, entry.keyword);
    });
}
