#ifndef ZUM_ATSC_OOBSECTIONPARSER_H
#define ZUM_ATSC_OOBSECTIONPARSER_H

#include <list>
#include <memory>

#include "../core/BaseCheckSection.h"
#include "../core/SectionParser.h"

class IDescriptorContainer;
class TCDescRevisionDetection;

// Bytes that `count` descriptors at `data` take, or -1 when they pass `limit`.
inline int ZumDescriptorSpan(const unsigned char* data, int count, int limit)
{
    int span = 0;
    for (int i = 0; i < count; ++i) {
        if (limit - span < 2 || data[span + 1] + 2 > limit - span)
            return -1;
        span += data[span + 1] + 2;
    }
    return span;
}

// Base of the out-of-band tables without meaningful section numbers (NIT,
// NTT, short-form VCT): they repeat without end, so completeness is judged
// from repetition. Keeps one identity record per distinct section seen since
// the last reset, and the repeat counter that the derived rule drives.
class ZUM_EXPORT TCOOBSectionParser : public TCSectionParser {
public:
    ~TCOOBSectionParser() override;

protected:
    TCOOBSectionParser(int tableId, const ZUMHandle& handle);

    // True when this very section was seen before; a new one is recorded.
    bool t_CheckRecieved(const unsigned char* data, int size);
    bool t_CheckExist(TCBaseCheckSection* pData);
    // Takes ownership.
    bool t_AddVersionList(const TCBaseCheckSection* record);
    bool t_ClearAllVersionList();

    // The first revision detection descriptor of the loop when it names a
    // last section other than 0, so that the section tracker should judge.
    static TCDescRevisionDetection* t_RevisionDetection(const IDescriptorContainer& descriptors);

    int m_repeatCount = 0;

private:
    std::list<std::unique_ptr<const TCBaseCheckSection>> m_versionList;
};

#endif
