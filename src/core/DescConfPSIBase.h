#ifndef ZUM_CORE_DESCCONFPSIBASE_H
#define ZUM_CORE_DESCCONFPSIBASE_H

#include <zum-platform/ZUMHandle.h>

#include "DescConfBase.h"

// Factories of the program-specific tables (PMT, CAT): the MPEG rows common
// to all systems, then each system's own.
class ZUM_EXPORT TCDescConfPSIBase : public TCDescConfBase {
public:
    TCBaseDesc* NewDescriptor(int tag, const unsigned char* data, unsigned int pds) override;
};

class ZUM_EXPORT TCDescConfPsiDVB : public TCDescConfPSIBase {
public:
    explicit TCDescConfPsiDVB(const ZUMHandle& handle);
    TCBaseDesc* NewDescriptor(int tag, const unsigned char* data, unsigned int pds) override;

private:
    // The operators' private rows, in this slot order in front of t_ProcessPrivateDesc.
    virtual TCBaseDesc* m_NewFSatPrivateDesc(int tag, unsigned int pds);
    virtual TCBaseDesc* m_NewCHNPrivateDesc(int tag, unsigned int pds);
    virtual TCBaseDesc* m_NewTKGSPrivateDesc(int tag, unsigned int pds);

protected:
    using TCDescConfBase::t_ProcessPrivateDesc;
    // Reached only for tags 0x98, 0xA0, 0xD0 and 0xD1.
    virtual TCBaseDesc* t_ProcessPrivateDesc(int tag, unsigned int pds);

    ZUMHandle m_handle;
};

class ZUM_EXPORT TCDescConfPsiISDB : public TCDescConfPsiDVB {
public:
    explicit TCDescConfPsiISDB(const ZUMHandle& handle);
    TCBaseDesc* NewDescriptor(int tag, const unsigned char* data, unsigned int pds) override;
};

class ZUM_EXPORT TCDescConfPsiATSC : public TCDescConfPSIBase {
public:
    TCBaseDesc* NewDescriptor(int tag, const unsigned char* data, unsigned int pds) override;
};

class ZUM_EXPORT TCDescConfPsiKR : public TCDescConfPsiATSC {
public:
    TCBaseDesc* NewDescriptor(int tag, const unsigned char* data, unsigned int pds) override;
};

#endif
