#ifndef ZUM_CORE_DESCRIPTOR_H
#define ZUM_CORE_DESCRIPTOR_H

#include <memory>
#include <typeinfo>
#include <variant>

#include <zum-platform/ZUMHandle.h>

#include "DescriptorHash.h"

#include "DescConfBase.h"
#include "DescConfDS.h"
#include "DescConfDVB.h"
#include "DescConfOOB.h"
#include "DescConfPSIBase.h"
#include "DescConfPSIP.h"

// Where a walker keeps the factory of its table scope: a built-in system's
// factory in place, so that a loop allocates nothing for it; any other owned.
using TTDescConfSlot =
    std::variant<std::monostate, std::unique_ptr<TCDescConfBase>, TCDescConfPsiDVB, TCDescConfPsiISDB,
                 TCDescConfPsiATSC, TCDescConfPsiKR, TCDescConfDVB, TCDescConfAstra, TCDescConfISDB, TCDescConfJPN,
                 TCDescConfDS, TCDescConfPSIP, TCDescConfOOB>;

// Walks one descriptor loop: a factory per table scope makes an object per
// tag, the object decodes itself and goes into the caller's hash. One object
// may walk several loops of a table; it keeps its factory for the table scope
// it last served, so that further loops cost no allocation.
class ZUM_EXPORT TCDescriptorBase {
public:
    TCDescriptorBase() = default;

protected:
    virtual TCDescConfBase* t_GetDescConf(unsigned char tableId) = 0;
    // The factory the walk uses, made into `slot`; null when the scope has
    // none. By default the owned one of t_GetDescConf; the built-in systems
    // make theirs in place unless a subclass picks its own.
    virtual TCDescConfBase* t_MakeDescConf(unsigned char tableId, TTDescConfSlot& slot);
    virtual void t_InitParse();
    // False skips the descriptor; may set the specifier the factory sees.
    virtual bool t_CheckAddingDesc(int tag, const unsigned char* data, unsigned int& pds);
    virtual bool t_checkContentDescriptor(TCBaseDesc* desc, unsigned int pds);
    virtual bool t_CheckLinkageDescriptor(TCBaseDesc* desc, unsigned int pds);
    virtual bool t_SetPDSOnCRIDDescriptor(TCBaseDesc* desc, unsigned int pds);

public:
    virtual ~TCDescriptorBase();
    // Returns `length` (0 when the table scope has no factory).
    virtual int Parse(const unsigned char* data, int length, TCDescriptorHash& hash, unsigned char tableId);
    // `count` descriptors, each added before it is decoded; returns the bytes walked.
    virtual int ParseByCount(const unsigned char* data, int count, TCDescriptorHash& hash, unsigned char tableId);
    // A specifier known from elsewhere; it reaches the hooks, not the factory.
    virtual bool SetCachedPDSD(unsigned int pds);

    // ParseByCount for a caller that knows where its buffer ends: the walk
    // stops before a descriptor that would pass `limit` bytes (a negative
    // limit walks nothing).
    int ParseByCount(const unsigned char* data, int count, TCDescriptorHash& hash, unsigned char tableId, int limit);

    TCDescriptorBase(const TCDescriptorBase&) = delete;
    TCDescriptorBase& operator=(const TCDescriptorBase&) = delete;

protected:
    // Bytes of the loop from the descriptor the hooks are looking at; a hook
    // reads no further.
    int t_LoopLeft() const { return m_loopLeft; }
    static void t_SetTableId(TCBaseDesc* desc, unsigned char tableId) { desc->m_tableId = tableId; }
    // True when this walker is of exactly that class, not a subclass of it.
    bool t_IsExactly(const std::type_info& type) const { return typeid(*this) == type; }

    unsigned int m_cachedPDSD = 0xFFFFFFFF;

private:
    TCDescConfBase* m_Conf(unsigned char tableId);

    TTDescConfSlot m_confSlot;
    TCDescConfBase* m_pConf = nullptr;
    int m_confTableId = -1;
    int m_loopLeft = 0;
};

// DVB: carries the private data specifier from descriptor to descriptor
// within one loop.
class ZUM_EXPORT TCDescriptorDVB : public TCDescriptorBase {
public:
    explicit TCDescriptorDVB(const ZUMHandle& handle) : m_handle(handle) {}

protected:
    TCDescConfBase* t_GetDescConf(unsigned char tableId) override;
    TCDescConfBase* t_MakeDescConf(unsigned char tableId, TTDescConfSlot& slot) override;
    void t_InitParse() override;
    bool t_CheckAddingDesc(int tag, const unsigned char* data, unsigned int& pds) override;
    bool t_checkContentDescriptor(TCBaseDesc* desc, unsigned int pds) override;
    bool t_CheckLinkageDescriptor(TCBaseDesc* desc, unsigned int pds) override;
    bool t_SetPDSOnCRIDDescriptor(TCBaseDesc* desc, unsigned int pds) override;

    unsigned int m_currentPDS = 0;
    ZUMHandle m_handle;
};

class ZUM_EXPORT TCDescriptorISDB : public TCDescriptorBase {
public:
    explicit TCDescriptorISDB(const ZUMHandle& handle) : m_handle(handle) {}

protected:
    TCDescConfBase* t_GetDescConf(unsigned char tableId) override;
    TCDescConfBase* t_MakeDescConf(unsigned char tableId, TTDescConfSlot& slot) override;
    ZUMHandle m_handle;
};

class ZUM_EXPORT TCDescriptorJPN : public TCDescriptorISDB {
public:
    explicit TCDescriptorJPN(const ZUMHandle& handle) : TCDescriptorISDB(handle) {}

protected:
    TCDescConfBase* t_GetDescConf(unsigned char tableId) override;
    TCDescConfBase* t_MakeDescConf(unsigned char tableId, TTDescConfSlot& slot) override;
};

class ZUM_EXPORT TCDescriptorATSC : public TCDescriptorBase {
protected:
    TCDescConfBase* t_GetDescConf(unsigned char tableId) override;
    TCDescConfBase* t_MakeDescConf(unsigned char tableId, TTDescConfSlot& slot) override;
};

class ZUM_EXPORT TCDescriptorKR : public TCDescriptorATSC {
protected:
    TCDescConfBase* t_GetDescConf(unsigned char tableId) override;
    TCDescConfBase* t_MakeDescConf(unsigned char tableId, TTDescConfSlot& slot) override;
};

// What a table parser constructs for each loop, or for the loops of one
// section: picks the broadcast system by the receiver's country and forwards
// to it. The implementation is held inline, so a loop allocates nothing here.
class ZUM_EXPORT TCDescriptor {
public:
    explicit TCDescriptor(const ZUMHandle& handle);
    virtual ~TCDescriptor();

    int Parse(const unsigned char* data, int length, TCDescriptorHash& hash, unsigned char tableId);
    int ParseByCount(const unsigned char* data, int count, TCDescriptorHash& hash, unsigned char tableId);
    // The bounded walk of TCDescriptorBase.
    int ParseByCount(const unsigned char* data, int count, TCDescriptorHash& hash, unsigned char tableId, int limit);
    bool SetCachedPDSD(unsigned int pds);

    TCDescriptor(const TCDescriptor&) = delete;
    TCDescriptor& operator=(const TCDescriptor&) = delete;

private:
    std::variant<std::monostate, TCDescriptorDVB, TCDescriptorISDB, TCDescriptorJPN, TCDescriptorATSC,
                 TCDescriptorKR>
        m_imp;
    TCDescriptorBase* m_pImp = nullptr;
    ZUMHandle m_handle;
};

#endif
