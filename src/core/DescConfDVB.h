#ifndef ZUM_CORE_DESCCONFDVB_H
#define ZUM_CORE_DESCCONFDVB_H

#include <zum-platform/ZUMHandle.h>

#include "DescConfBase.h"

// Factory of the DVB SI tables. Tags 0x80..0xFE belong to whoever owns the
// private data specifier in force: t_ProcessPrivateDesc decides by effective
// specifier, operator and country.
class ZUM_EXPORT TCDescConfDVB : public TCDescConfBase {
public:
    explicit TCDescConfDVB(const ZUMHandle& handle);
    TCBaseDesc* NewDescriptor(int tag, const unsigned char* data, unsigned int pds) override;

protected:
    using TCDescConfBase::t_ProcessPrivateDesc;
    virtual TCBaseDesc* t_ProcessPrivateDesc(int tag, unsigned int pds);
    // The rows that look at the binder's configured specifier; null for the rest.
    TCBaseDesc* t_NewDefaultPrivateDesc(int tag, unsigned int pds);
    // The binder's configured specifier, asked once per factory (that is, per loop).
    unsigned int m_GetPrivateDataSpecification();
    // Astra's rows under specifier 1; any other tag is kept raw.
    TCBaseDesc* m_NewAstraPrivateDesc(int tag, unsigned int pds);

    ZUMHandle m_handle;
    unsigned int m_pds = 0;

private:
    TCBaseDesc* m_NewSagemPrivateDesc(int tag, unsigned int pds);
    TCBaseDesc* m_NewNordicPrivateDesc(int tag, unsigned int pds);
    TCBaseDesc* m_NewNumericablePrivateDesc(int tag, unsigned int pds);
    TCBaseDesc* m_NewEbookPrivateDesc(int tag, unsigned int pds);
    TCBaseDesc* m_NewCIPlusPrivateDesc(int tag, unsigned int pds);
    TCBaseDesc* m_NewRCSPrivateDesc(int tag, unsigned int pds);
    TCBaseDesc* m_NewFransatPrivateDesc(int tag, unsigned int pds);
    TCBaseDesc* m_NewDbookPrivateDesc(int tag, unsigned int pds);
    TCBaseDesc* m_NewDSmartPrivateDesc(int tag, unsigned int pds);
    TCBaseDesc* m_NewAirTelPrivateDesc(int tag, unsigned int pds);
    TCBaseDesc* m_NewNXTPrivateDesc(int tag, unsigned int pds);
    TCBaseDesc* m_NewGTPLPrivateDesc(int tag, unsigned int pds);
    TCBaseDesc* m_NewDigitalPlusPrivateDesc(int tag, unsigned int pds);
    TCBaseDesc* m_NewDigiturkPrivateDesc(int tag, unsigned int pds);
    TCBaseDesc* m_NewTelekartaPrivateDesc(int tag, unsigned int pds);
    TCBaseDesc* m_NewTricolorPrivateDesc(int tag, unsigned int pds);
    TCBaseDesc* m_NewTKGSPrivateDesc(int tag, unsigned int pds);
    TCBaseDesc* m_NewFSatPrivateDesc(int tag, unsigned int pds);
    TCBaseDesc* m_NewKDGPrivateDesc(int tag, unsigned int pds);
    TCBaseDesc* m_NewDishTVPrivateDesc(int tag, unsigned int pds);
};

// The Astra service guide table: its own rows under specifier 1.
class ZUM_EXPORT TCDescConfAstra : public TCDescConfDVB {
public:
    explicit TCDescConfAstra(const ZUMHandle& handle);

protected:
    TCBaseDesc* t_ProcessPrivateDesc(int tag, unsigned int pds) override;
};

// ISDB SI tables: a few tags of their own; private tags by tag alone.
class ZUM_EXPORT TCDescConfISDB : public TCDescConfDVB {
public:
    explicit TCDescConfISDB(const ZUMHandle& handle);
    TCBaseDesc* NewDescriptor(int tag, const unsigned char* data, unsigned int pds) override;

protected:
    TCBaseDesc* t_ProcessPrivateDesc(int tag, unsigned int pds) override;
};

// Japanese SI tables: the ARIB rows on top of ISDB.
class ZUM_EXPORT TCDescConfJPN : public TCDescConfISDB {
public:
    explicit TCDescConfJPN(const ZUMHandle& handle);
    TCBaseDesc* NewDescriptor(int tag, const unsigned char* data, unsigned int pds) override;
};

#endif
