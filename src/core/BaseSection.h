#ifndef ZUM_CORE_BASESECTION_H
#define ZUM_CORE_BASESECTION_H

#include <memory>

#include "Export.h"

// Results of TCBaseSection::t_CheckVersion.
enum {
    TABLE_SAME = 0,
    TABLE_FIRST = 1,
    TABLE_ADD = 2,
    TABLE_CHANGED = 3,
    TABLE_IGNORE = 4,
};

// Tracks the sections of one (sub-)table: which are in, whether the table
// changed, whether it is complete. On a change it makes its owner drop what
// it collected through DeleteAll before the new version is parsed.
class ZUM_EXPORT TCBaseSection {
public:
    TCBaseSection() = default;
    virtual void DeleteAll() = 0;
    virtual ~TCBaseSection();

    bool IsValid() const;
    bool IsRecvSection(int section) const;
    bool IsRecvSegment(int firstSegment, int lastSegment) const;
    bool RemoveSection(int section);
    void InitSection();

    TCBaseSection(const TCBaseSection&) = delete;
    TCBaseSection& operator=(const TCBaseSection&) = delete;

protected:
    int t_CheckVersion(int version, int sectionNumber, int lastSectionNumber, unsigned int crc);
    bool t_CheckChangeTable(int version, int sectionNumber, int lastSectionNumber, unsigned int crc) const;
    bool t_InitSection(int sectionNumber, int lastSectionNumber, unsigned int crc);
    bool t_CheckSegment(int sectionNumber, int lastSectionNumber, int segmentLastSectionNumber);

    int m_lastSection = 0;
    std::unique_ptr<unsigned int[]> m_pSectionCrc;
    std::unique_ptr<unsigned char[]> m_pMultiSectionFlag;
    int m_version = -1;

private:
    bool m_Holds(int section) const { return m_pMultiSectionFlag && section >= 0 && section <= m_lastSection; }
};

#endif
