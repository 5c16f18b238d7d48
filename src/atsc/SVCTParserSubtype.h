#ifndef ZUM_ATSC_SVCTPARSERSUBTYPE_H
#define ZUM_ATSC_SVCTPARSERSUBTYPE_H

#include <climits>

#include "../core/Export.h"

// One subtable of the short-form virtual channel table. t_Parse returns the
// bytes consumed and writes the status word: 1 all records held and equal,
// 2 content changed and everything was dropped, 3 records added, 4 no records.
class ZUM_EXPORT TCSVCTParserSubtype {
public:
    virtual int t_Parse(const unsigned char* data, int* status) = 0;
    virtual ~TCSVCTParserSubtype() = default;
    virtual bool Create() { return true; }
    virtual void DeleteAll() {}

    // Without a size the subtable trusts its own counts; `size` bounds the
    // walk: a record that would pass it ends the subtable.
    int Parse(const unsigned char* data, int* status) { return Parse(data, status, INT_MAX); }
    int Parse(const unsigned char* data, int* status, int size)
    {
        t_size = size;
        return t_Parse(data, status);
    }

protected:
    int t_size = INT_MAX;
};

#endif
