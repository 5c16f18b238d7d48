#ifndef ZUM_OPERATORS_DESCUKDTTSERVICEATTRIBUTE_H
#define ZUM_OPERATORS_DESCUKDTTSERVICEATTRIBUTE_H

#include "../core/BaseDesc.h"

// The UK DTT platform's service attributes (0x86 under specifier 0x233A).
struct ZUM_EXPORT _TTDescUKDTT {
    unsigned short serviceId = 0;
    unsigned char numericSelectionFlag = 0;
    unsigned char visibleServiceFlag = 0;
};

class ZUM_EXPORT TCDescUKDTTServiceAttribute : public TCBaseDesc {
public:
    TCDescUKDTTServiceAttribute();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // Services listed, each once.
    unsigned char NumOfDescLoop() const { return static_cast<unsigned char>(m_distinct); }
    // true for a service that is not listed.
    bool NumericSelectionFlag(unsigned short serviceId) const;
    bool VisibleServiceFlag(unsigned short serviceId) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    // The first entry of the service; false when it is not listed.
    bool m_Find(unsigned short serviceId, _TTDescUKDTT& entry) const;
    // Entries of the raw copy, read on access.
    int m_count = 0;
    int m_distinct = 0;
};

#endif
