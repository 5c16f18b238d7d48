#include "Descriptor.h"

#include <climits>
#include <cstring>

#include <zum-platform/Binder.h>

#include "../dvb/DescContent.h"
#include "../dvb/DescCRID.h"
#include "../dvb/DescLinkage.h"
#include "../operators/DescDishTVGenre.h"

#include "DescConfDS.h"
#include "DescConfDVB.h"
#include "DescConfPSIBase.h"
#include "DescConfOOB.h"
#include "DescConfPSIP.h"
#include "BroadcastCountries.h"
#include "ByteReader.h"
#include "Diagnostics.h"
#include "PrivateTag.h"

namespace {

constexpr unsigned int kNoSpecifier = 0xFFFFFFFF;
// The one specifier whose own descriptor is stored in the loop.
constexpr unsigned int kSpecifierKeptInLoop = 0x000022C6;
constexpr unsigned int kSpecifierFreesat = 0x46534154; // "FSAT"
constexpr unsigned int kOperatorOwnLinkagesOnly = 70;
constexpr unsigned int kSpecifierOwnLinkages = 0xBE;

} // namespace

// ---------------------------------------------------------------- loop walk

TCDescriptorBase::~TCDescriptorBase() = default;

void TCDescriptorBase::t_InitParse() {}

bool TCDescriptorBase::t_CheckAddingDesc(int, const unsigned char*, unsigned int&)
{
    return true;
}

bool TCDescriptorBase::t_checkContentDescriptor(TCBaseDesc*, unsigned int)
{
    return true;
}

bool TCDescriptorBase::t_CheckLinkageDescriptor(TCBaseDesc*, unsigned int)
{
    return true;
}

bool TCDescriptorBase::t_SetPDSOnCRIDDescriptor(TCBaseDesc*, unsigned int)
{
    return true;
}

bool TCDescriptorBase::SetCachedPDSD(unsigned int pds)
{
    m_cachedPDSD = pds;
    return true;
}

TCDescConfBase* TCDescriptorBase::m_Conf(unsigned char tableId)
{
    if (m_confTableId != tableId || !m_pConf) {
        m_pConf = t_MakeDescConf(tableId, m_confSlot);
        m_confTableId = tableId;
    }
    return m_pConf;
}

int TCDescriptorBase::Parse(const unsigned char* data, int length, TCDescriptorHash& hash, unsigned char tableId)
{
    t_InitParse();
    TCDescConfBase* conf = m_Conf(tableId);
    if (!conf)
        return 0;

    // The loop's bytes from the first decoded descriptor on, copied once into
    // the hash's block: the objects' raw copies live there.
    const unsigned char* kept = nullptr;
    int keptFrom = 0;
    int consumed = 0;
    while (data && consumed < length) {
        // A length byte behind the loop's end cannot be read: stop before it.
        if (length - consumed < 2)
            break;
        const int tag = data[0];
        const int size = data[1] + 2;
        m_loopLeft = length - consumed;

        // A descriptor that runs over the loop still meets the hooks and the
        // factory; they see its bytes up to the loop's end and zeros after.
        unsigned char padded[257];
        const unsigned char* seen = data;
        if (size > m_loopLeft) {
            std::memcpy(padded, data, static_cast<size_t>(m_loopLeft));
            std::memset(padded + m_loopLeft, 0, sizeof(padded) - static_cast<size_t>(m_loopLeft));
            seen = padded;
        }

        unsigned int pds = kNoSpecifier;
        std::unique_ptr<TCBaseDesc> desc;
        if (t_CheckAddingDesc(tag, seen, pds))
            desc.reset(conf->NewDescriptor(tag, seen, pds));
        if (!desc) {
            data += size;
            consumed += size;
            continue;
        }
        if (size > m_loopLeft) {
            consumed += size;
            break;
        }

        if (!kept) {
            kept = hash.m_KeepBytes(data, length - consumed);
            keptFrom = consumed;
        }
        const int n = desc->m_ParseInPlace(kept + (consumed - keptFrom));
        t_SetTableId(desc.get(), tableId);
        if (m_cachedPDSD != kNoSpecifier)
            pds = m_cachedPDSD;
        t_SetPDSOnCRIDDescriptor(desc.get(), pds);
        if (t_checkContentDescriptor(desc.get(), pds) && t_CheckLinkageDescriptor(desc.get(), pds))
            hash.Add(desc.release());
        data += n;
        consumed += n;
    }

    if (consumed != length)
        ZUM_LOGD("[Warning] TCDescriptorBase::Parse total len is not correct!inLen=%d, outLen=%d", length, consumed);
    return length;
}

int TCDescriptorBase::ParseByCount(const unsigned char* data, int count, TCDescriptorHash& hash,
                                   unsigned char tableId)
{
    return ParseByCount(data, count, hash, tableId, INT_MAX);
}

int TCDescriptorBase::ParseByCount(const unsigned char* data, int count, TCDescriptorHash& hash,
                                   unsigned char tableId, int limit)
{
    TCDescConfBase* conf = m_Conf(tableId);
    if (!conf || !data)
        return 0;
    // The bytes of the descriptors to walk, to copy them once.
    int span = 0;
    int walkable = 0;
    for (; walkable < count; ++walkable) {
        if (limit - span < 2 || data[span + 1] + 2 > limit - span)
            break;
        span += data[span + 1] + 2;
    }
    const unsigned char* kept = walkable > 0 ? hash.m_KeepBytes(data, span) : nullptr;
    int walked = 0;
    for (int i = 0; i < walkable; ++i) {
        const unsigned char* at = kept + walked;
        std::unique_ptr<TCBaseDesc> desc(conf->NewDescriptor(at[0], at, 0));
        if (!desc)
            desc = std::make_unique<TCDescDefault>(at[0]);
        // Added before it is decoded, so an extension descriptor files under -1.
        TCBaseDesc* added = desc.get();
        hash.Add(desc.release());
        const int n = added->m_ParseInPlace(at);
        t_SetTableId(added, tableId);
        walked += n;
    }
    return walked;
}

// ---------------------------------------------------------------- DVB

void TCDescriptorDVB::t_InitParse()
{
    // A specifier reaches no further than the end of its own loop.
    m_currentPDS = 0;
}

bool TCDescriptorDVB::t_CheckAddingDesc(int tag, const unsigned char* data, unsigned int& pds)
{
    if (tag == 0x5F) {
        // A body too short to hold a specifier names none.
        m_currentPDS = data[1] >= 4 ? ReadBE32(data + 2) : 0;
        if (m_currentPDS == kSpecifierKeptInLoop) {
            pds = m_currentPDS;
            return true;
        }
        return false;
    }
    if (tag == 0x0F) {
        if (m_currentPDS == kSpecifierFreesat)
            m_currentPDS = 0;
        pds = m_currentPDS;
        return true;
    }
    if (IsPrivateTag(tag)) {
        IBinder* pBinder = IBinder::Instance();
        if (!ZUM_ASSERT(pBinder))
            return false;
        if (!pBinder->IsValidPrivateDataSpecification(m_handle, m_currentPDS))
            return false;
    }
    pds = m_currentPDS;
    return true;
}

bool TCDescriptorDVB::t_SetPDSOnCRIDDescriptor(TCBaseDesc* desc, unsigned int pds)
{
    if (desc->Tag() != 0x76)
        return true;
    TCDescCRID* crid = dynamic_cast<TCDescCRID*>(desc);
    if (!crid)
        return false;
    crid->SetPDSD(pds);
    return true;
}

bool TCDescriptorDVB::t_checkContentDescriptor(TCBaseDesc* desc, unsigned int pds)
{
    if (desc->Tag() != 0x54)
        return true;
    if (TCDescContent* content = dynamic_cast<TCDescContent*>(desc)) {
        IBinder* binder = IBinder::Instance();
        // UK genre user nibbles are read under the specifier; asked for the receiver, not this loop.
        if (binder && binder->GetCountryCode(kZUMDefaultHandle) == ZumPackCode('G', 'B', 'R') &&
            binder->IsValidPrivateDataSpecification(kZUMDefaultHandle, pds))
            content->SetPDSD(pds);
        return true;
    }
    return dynamic_cast<TCDescDishTVGenre*>(desc) != nullptr;
}

bool TCDescriptorDVB::t_CheckLinkageDescriptor(TCBaseDesc* desc, unsigned int pds)
{
    if (desc->Tag() != 0x4A)
        return true;
    TCDescLinkage* linkage = dynamic_cast<TCDescLinkage*>(desc);
    if (!linkage)
        return false;
    linkage->SetPDSD(pds);
    const unsigned char type = linkage->LinkageType();
    IBinder* binder = IBinder::Instance();
    // This operator's user-defined linkages are only its own (specifier 0xBE).
    if (type >= 0x80 && type <= 0xFE && binder)
        return !(binder->GetOperator(m_handle) == kOperatorOwnLinkagesOnly && pds != kSpecifierOwnLinkages);
    return true;
}

namespace {

// A factory made either on the heap for the caller to own (t_GetDescConf) or
// in a walker's slot: one selection table per system serves both.
struct TTNewConf {
    template <class T, class... A> TCDescConfBase* Make(const A&... a) const { return new T(a...); }
};
struct TTConfInSlot {
    TTDescConfSlot& slot;
    template <class T, class... A> TCDescConfBase* Make(const A&... a) const { return &slot.emplace<T>(a...); }
};

template <class Maker> TCDescConfBase* DVBConf(unsigned char tableId, const ZUMHandle& handle, const Maker& make)
{
    switch (tableId) {
    case 0x01:
    case 0x02: return make.template Make<TCDescConfPsiDVB>(handle);
    case 0x40: case 0x41: case 0x42: case 0x46: case 0x4A: case 0x4B: case 0x4E: case 0x4F:
    case 0x50: case 0x51: case 0x60: case 0x61: case 0x70: case 0x73: case 0x76: case 0x80:
    case 0x81: case 0x85: case 0x90: case 0xA7: case 0xBC: case 0xBD: case 0xD5:
        return make.template Make<TCDescConfDVB>(handle);
    case 0x74: return make.template Make<TCDescConfDS>();
    case 0x91: return make.template Make<TCDescConfAstra>(handle);
    default: return nullptr;
    }
}

template <class Maker> TCDescConfBase* ISDBConf(unsigned char tableId, const ZUMHandle& handle, const Maker& make)
{
    switch (tableId) {
    case 0x01:
    case 0x02: return make.template Make<TCDescConfPsiISDB>(kZUMDefaultHandle);
    case 0x40: case 0x41: case 0x42: case 0x46: case 0x4E: case 0x4F: case 0x50: case 0x51:
    case 0x60: case 0x61: case 0x70: case 0x73: case 0x80: case 0x81: case 0x90: case 0x91:
    case 0xC3:
        return make.template Make<TCDescConfISDB>(handle);
    case 0x74: return make.template Make<TCDescConfDS>();
    default: return nullptr;
    }
}

template <class Maker> TCDescConfBase* JPNConf(unsigned char tableId, const ZUMHandle& handle, const Maker& make)
{
    switch (tableId) {
    case 0x40: case 0x41: case 0x42: case 0x46: case 0x4E: case 0x4F: case 0x50: case 0x51:
    case 0x60: case 0x61: case 0x70: case 0x73: case 0xC3: case 0xC4: case 0xC5: case 0xC6:
        return make.template Make<TCDescConfJPN>(handle);
    default: return ISDBConf(tableId, handle, make);
    }
}

template <class Maker> TCDescConfBase* ATSCConf(unsigned char tableId, const Maker& make)
{
    switch (tableId) {
    case 0x02: return make.template Make<TCDescConfPsiATSC>();
    case 0x74: return make.template Make<TCDescConfDS>();
    case 0xC7: case 0xC8: case 0xC9: case 0xCA: case 0xCB: case 0xCD: case 0xD8:
        return make.template Make<TCDescConfPSIP>();
    // Out-of-band tables: without a factory their records' descriptors could not be stepped over.
    case 0xC2: case 0xC3: case 0xC4: case 0xC5: case 0xD6: case 0xD7:
        return make.template Make<TCDescConfOOB>();
    default: return nullptr;
    }
}

template <class Maker> TCDescConfBase* KRConf(unsigned char tableId, const Maker& make)
{
    if (tableId == 0x02)
        return make.template Make<TCDescConfPsiKR>();
    return ATSCConf(tableId, make);
}

} // namespace

TCDescConfBase* TCDescriptorBase::t_MakeDescConf(unsigned char tableId, TTDescConfSlot& slot)
{
    return slot.emplace<std::unique_ptr<TCDescConfBase>>(t_GetDescConf(tableId)).get();
}

// Each built-in system makes its factory in place only when it is the walker
// itself: a subclass may override t_GetDescConf, and then that one is asked.

TCDescConfBase* TCDescriptorDVB::t_GetDescConf(unsigned char tableId)
{
    return DVBConf(tableId, m_handle, TTNewConf{});
}

TCDescConfBase* TCDescriptorDVB::t_MakeDescConf(unsigned char tableId, TTDescConfSlot& slot)
{
    return t_IsExactly(typeid(TCDescriptorDVB)) ? DVBConf(tableId, m_handle, TTConfInSlot{slot})
                                                  : TCDescriptorBase::t_MakeDescConf(tableId, slot);
}

// ---------------------------------------------------------------- ISDB, JPN

TCDescConfBase* TCDescriptorISDB::t_GetDescConf(unsigned char tableId)
{
    return ISDBConf(tableId, m_handle, TTNewConf{});
}

TCDescConfBase* TCDescriptorISDB::t_MakeDescConf(unsigned char tableId, TTDescConfSlot& slot)
{
    return t_IsExactly(typeid(TCDescriptorISDB)) ? ISDBConf(tableId, m_handle, TTConfInSlot{slot})
                                                  : TCDescriptorBase::t_MakeDescConf(tableId, slot);
}

TCDescConfBase* TCDescriptorJPN::t_GetDescConf(unsigned char tableId)
{
    return JPNConf(tableId, m_handle, TTNewConf{});
}

TCDescConfBase* TCDescriptorJPN::t_MakeDescConf(unsigned char tableId, TTDescConfSlot& slot)
{
    return t_IsExactly(typeid(TCDescriptorJPN)) ? JPNConf(tableId, m_handle, TTConfInSlot{slot})
                                                  : TCDescriptorBase::t_MakeDescConf(tableId, slot);
}

// ---------------------------------------------------------------- ATSC, KR

TCDescConfBase* TCDescriptorATSC::t_GetDescConf(unsigned char tableId)
{
    return ATSCConf(tableId, TTNewConf{});
}

TCDescConfBase* TCDescriptorATSC::t_MakeDescConf(unsigned char tableId, TTDescConfSlot& slot)
{
    return t_IsExactly(typeid(TCDescriptorATSC)) ? ATSCConf(tableId, TTConfInSlot{slot})
                                                  : TCDescriptorBase::t_MakeDescConf(tableId, slot);
}

TCDescConfBase* TCDescriptorKR::t_GetDescConf(unsigned char tableId)
{
    return KRConf(tableId, TTNewConf{});
}

TCDescConfBase* TCDescriptorKR::t_MakeDescConf(unsigned char tableId, TTDescConfSlot& slot)
{
    return t_IsExactly(typeid(TCDescriptorKR)) ? KRConf(tableId, TTConfInSlot{slot})
                                                  : TCDescriptorBase::t_MakeDescConf(tableId, slot);
}

// ---------------------------------------------------------------- country switch

TCDescriptor::TCDescriptor(const ZUMHandle& handle) : m_handle(handle)
{
    IBinder* pBinder = IBinder::Instance();
    if (!ZUM_ASSERT(pBinder))
        return;
    const ECountryCode country = pBinder->GetCountryCode(handle);
    if (country == ZumPackCode('K', 'O', 'R'))
        m_pImp = &m_imp.emplace<TCDescriptorKR>();
    else if (country == ZumPackCode('J', 'P', 'N'))
        m_pImp = &m_imp.emplace<TCDescriptorJPN>(handle);
    else if (country == ZumPackCode('U', 'S', 'A'))
        m_pImp = &m_imp.emplace<TCDescriptorATSC>();
    else if (IsISDBCountry(country))
        m_pImp = &m_imp.emplace<TCDescriptorISDB>(handle);
    else if (country == ZumPackCode('P', 'H', 'L') && pBinder->GetOperator(handle) == 113)
        m_pImp = &m_imp.emplace<TCDescriptorISDB>(handle);
    else
        m_pImp = &m_imp.emplace<TCDescriptorDVB>(handle);
}

TCDescriptor::~TCDescriptor() = default;

int TCDescriptor::Parse(const unsigned char* data, int length, TCDescriptorHash& hash, unsigned char tableId)
{
    return m_pImp ? m_pImp->Parse(data, length, hash, tableId) : 0;
}

int TCDescriptor::ParseByCount(const unsigned char* data, int count, TCDescriptorHash& hash, unsigned char tableId)
{
    return m_pImp ? m_pImp->ParseByCount(data, count, hash, tableId) : 0;
}

int TCDescriptor::ParseByCount(const unsigned char* data, int count, TCDescriptorHash& hash, unsigned char tableId,
                               int limit)
{
    return m_pImp ? m_pImp->ParseByCount(data, count, hash, tableId, limit) : 0;
}

bool TCDescriptor::SetCachedPDSD(unsigned int pds)
{
    return m_pImp ? m_pImp->SetCachedPDSD(pds) : false;
}
