#ifndef ZUM_OPERATORS_DESCGTPLGENRELIST_H
#define ZUM_OPERATORS_DESCGTPLGENRELIST_H

#include <list>
#include <map>

#include "../core/BaseDesc.h"

// One genre of GTPL's list; the name points into the descriptor's raw copy.
struct ZUM_EXPORT GTPLGenre {
    unsigned short id = 0;
    const unsigned char* name = nullptr;
    unsigned char nameLength = 0;
    unsigned char trailing = 0;
};

// GTPL's genre list (0x85 and 0x86 under the GTPL row): genre ids with names.
class ZUM_EXPORT TCDescGTPLGenreList : public TCBaseDesc {
public:
    // The tag it was created for; the object's tag is 0x85 for either.
    explicit TCDescGTPLGenreList(int tag);
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // The genres by id, the first record of an id standing; the names stay the descriptor's.
    std::map<unsigned short, GTPLGenre> GetGenreMap() const;

protected:
    // The records are read from the raw copy on access.
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    int m_createdFor;
};

// GTPL's genres of a service (0xCC under specifier 0x62E1).
class ZUM_EXPORT TCDescGTPLGenreOfService : public TCBaseDesc {
public:
    TCDescGTPLGenreOfService();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    std::list<unsigned char> GetGenreListOfService() const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;
};

#endif
