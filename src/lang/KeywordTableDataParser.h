#ifndef ZUM_LANG_KEYWORDTABLEDATAPARSER_H
#define ZUM_LANG_KEYWORDTABLEDATAPARSER_H

#include <list>
#include <memory>

#include "../core/Export.h"

// The keyword table block: a count, then keywords of one length byte each.
class ZUM_EXPORT TCKeywordTableDataParser {
public:
    struct tagKeywordData {
        unsigned char length = 0;
        std::unique_ptr<unsigned char[]> keyword; // null for length 0
    };

    TCKeywordTableDataParser() = default;
    ~TCKeywordTableDataParser();
    TCKeywordTableDataParser(const TCKeywordTableDataParser&) = delete;
    TCKeywordTableDataParser& operator=(const TCKeywordTableDataParser&) = delete;

    // 1 for a block read to its end, 0 otherwise; the keywords read before a
    // shortage stay.
    int Parse(const unsigned char* data, unsigned int size);

    const std::list<tagKeywordData>& KeywordList() const { return m_keywords; }

private:
    void m_clearAllData();

    std::list<tagKeywordData> m_keywords;
};

#endif
