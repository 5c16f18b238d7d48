#ifndef ZUM_CORE_DESCRIPTOR_H
#define ZUM_CORE_DESCRIPTOR_H

#include <climits>
#include <memory>

#include <zum-platform/ZUMHandle.h>

#include "DescriptorHash.h"

class TCDescConfBase;

// Walks one descriptor loop: a factory per table scope makes an object per
// tag, the object decodes itself and goes into the caller's hash.
class ZUM_EXPORT TCDescriptorBase {
public:
    TCDescriptorBase() = default;
    virtual ~TCDescriptorBase();

    // Returns `length` (0 when the table scope has no factory).
    virtual int Parse(const unsigned char* data, int length, TCDescriptorHash& hash, unsigned char tableId);
    // `count` descriptors, each added before it is decoded; returns the bytes
    // walked. A `limit` of 0 or more ends the walk before a descriptor that
    // would pass it.
    virtual int ParseByCount(const unsigned char* data, int count, TCDescriptorHash& hash, unsigned char tableId,
                             int limit = INT_MAX);
    // A specifier known from elsewhere; it reaches the hooks, not the factory.
    virtual bool SetCachedPDSD(unsigned int pds);

    TCDescriptorBase(const TCDescriptorBase&) = delete;
    TCDescriptorBase& operator=(const TCDescriptorBase&) = delete;

protected:
    virtual TCDescConfBase* t_GetDescConf(unsigned char tableId) = 0;
    virtual void t_InitParse();
    // False skips the descriptor; may set the specifier the factory sees.
    virtual bool t_CheckAddingDesc(int tag, const unsigned char* data, unsigned int& pds);
    virtual bool t_checkContentDescriptor(TCBaseDesc* desc, unsigned int pds);
    virtual bool t_CheckLinkageDescriptor(TCBaseDesc* desc, unsigned int pds);
    virtual bool t_SetPDSOnCRIDDescriptor(TCBaseDesc* desc, unsigned int pds);

    static void t_SetTableId(TCBaseDesc* desc, unsigned char tableId) { desc->m_tableId = tableId; }

    unsigned int m_cachedPDSD = 0xFFFFFFFF;
};

// DVB: carries the private data specifier from descriptor to descriptor
// within one loop.
class ZUM_EXPORT TCDescriptorDVB : public TCDescriptorBase {
public:
    explicit TCDescriptorDVB(const ZUMHandle& handle) : m_handle(handle) {}

protected:
    TCDescConfBase* t_GetDescConf(unsigned char tableId) override;
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
    ZUMHandle m_handle;
};

class ZUM_EXPORT TCDescriptorJPN : public TCDescriptorISDB {
public:
    explicit TCDescriptorJPN(const ZUMHandle& handle) : TCDescriptorISDB(handle) {}

protected:
    TCDescConfBase* t_GetDescConf(unsigned char tableId) override;
};

class ZUM_EXPORT TCDescriptorATSC : public TCDescriptorBase {
protected:
    TCDescConfBase* t_GetDescConf(unsigned char tableId) override;
};

class ZUM_EXPORT TCDescriptorKR : public TCDescriptorATSC {
protected:
    TCDescConfBase* t_GetDescConf(unsigned char tableId) override;
};

// What a table parser constructs for each loop: picks the broadcast system
// by the receiver's country and forwards to it.
class ZUM_EXPORT TCDescriptor {
public:
    explicit TCDescriptor(const ZUMHandle& handle);
    virtual ~TCDescriptor();

    int Parse(const unsigned char* data, int length, TCDescriptorHash& hash, unsigned char tableId);
    int ParseByCount(const unsigned char* data, int count, TCDescriptorHash& hash, unsigned char tableId,
                     int limit = INT_MAX);
    bool SetCachedPDSD(unsigned int pds);

    TCDescriptor(const TCDescriptor&) = delete;
    TCDescriptor& operator=(const TCDescriptor&) = delete;

private:
    std::unique_ptr<TCDescriptorBase> m_pImp;
    ZUMHandle m_handle;
};

#endif
