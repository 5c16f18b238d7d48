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
    if (data == nullptr || size == 0)
        return 0;
    TCByteReader reader = zumtabledata::BlockReader(data, size);
    const unsigned int count = reader.U8();
    for (unsigned int i = 0; i < count; ++i) {
        tagKeywordData entry;
        entry.length = static_cast<unsigned char>(reader.U8());
        if (reader.IsShort() || !zumtabledata::TakeBytes(reader, entry.length, entry.keyword))
            return 0;
        m_keywords.push_back(std::move(entry));
    }
    return 1;
}
