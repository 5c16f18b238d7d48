#ifndef ZUM_LANG_COMMONTABLEDATAPARSER_H
#define ZUM_LANG_COMMONTABLEDATAPARSER_H

#include <list>
#include <memory>

#include "../core/Export.h"

// The common table block: a count, then entries of a code and two texts.
class ZUM_EXPORT TCCommonTableDataParser {
public:
    struct tagCommonData {
        unsigned char code = 0;
        unsigned char firstLength = 0;
        std::unique_ptr<unsigned char[]> firstText; // null for length 0
        unsigned char secondLength = 0;
        std::unique_ptr<unsigned char[]> secondText; // null for length 0
    };

    TCCommonTableDataParser() = default;
    ~TCCommonTableDataParser();
    TCCommonTableDataParser(const TCCommonTableDataParser&) = delete;
    TCCommonTableDataParser& operator=(const TCCommonTableDataParser&) = delete;

    // 1 for a block read to its end, 0 otherwise; the entries before a
    // shortage stay, the one cut short is dropped.
    int Parse(const unsigned char* data, unsigned int size);

    const std::list<tagCommonData>& CommonList() const { return m_entries; }

private:
    void m_clearAllData();

    std::list<tagCommonData> m_entries;
};

#endif
