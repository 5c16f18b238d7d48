#include "Descriptor.h"

#include <typeinfo>

#include <zum-platform/Binder.h>

#include "../dvb/DescContent.h"

#include "DescConfDS.h"
#include "DescConfDVB.h"
#include "DescConfPSIBase.h"
#include "DescConfPSIP.h"
#include "Diagnostics.h"

namespace {

constexpr unsigned int kNoSpecifier = 0xFFFFFFFF;
constexpr unsigned int kSpecifierEacem = 0x000022C6; // stored as a descriptor of its own
constexpr unsigned int kSpecifierFreesat = 0x46534154; // "FSAT"

unsigned int ReadBE32(const unsigned char* p)
{
    return (static_cast<unsigned int>(p[0]) << 24) | (static_cast<unsigned int>(p[1]) << 16) |
           (static_cast<unsigned int>(p[2]) << 8) | static_cast<unsigned int>(p[3]);
}

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

int TCDescriptorBase::Parse(const unsigned char* data, int length, TCDescriptorHash& hash, unsigned char tableId)
{
    t_InitParse();
    std::unique_ptr<TCDescConfBase> conf(t_GetDescConf(tableId));
    if (!conf)
        return 0;

    int consumed = 0;
    while (data && consumed < length) {
        // A length byte behind the loop's end cannot be read: stop before it.
        if (length - consumed < 2)
            break;
        const int tag = data[0];
        const int size = data[1] + 2;
        // A descriptor that runs over the loop ends it; nothing of it is read,
        // so neither hooks nor factory look past the loop.
        if (consumed + size > length) {
            consumed += size;
            break;
        }

        unsigned int pds = kNoSpecifier;
        TCBaseDesc* desc = nullptr;
        if (t_CheckAddingDesc(tag, data, pds))
            desc = conf->NewDescriptor(tag, data, pds);
        if (!desc) {
            data += size;
            consumed += size;
            continue;
        }

        const int n = desc->Parse(data);
        t_SetTableId(desc, tableId);
        if (m_cachedPDSD != kNoSpecifier)
            pds = m_cachedPDSD;
        t_SetPDSOnCRIDDescriptor(desc, pds);
        if (!t_checkContentDescriptor(desc, pds) || !t_CheckLinkageDescriptor(desc, pds))
            delete desc;
        else
            hash.Add(desc);
        data += n;
        consumed += n;
    }

    if (consumed != length)
        ZUM_LOGD("[Warning] TCDescriptorBase::Parse total len is not correct!inLen=%d, outLen=%d", length, consumed);
    return length;
}

int TCDescriptorBase::ParseByCount(const unsigned char* data, int count, TCDescriptorHash& hash,
                                   unsigned char tableId, int limit)
{
    std::unique_ptr<TCDescConfBase> conf(t_GetDescConf(tableId));
    if (!conf)
        return 0;
    int walked = 0;
    for (int i = 0; data && i < count; ++i) {
        if (limit - walked < 2 || data[1] + 2 > limit - walked)
            break;
        TCBaseDesc* desc = conf->NewDescriptor(data[0], data, 0);
        if (!desc)
            desc = new TCDescDefault(data[0]);
        // Added before it is decoded, so an extension descriptor files under -1.
        hash.Add(desc);
        const int n = desc->Parse(data);
        t_SetTableId(desc, tableId);
        data += n;
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
        if (m_currentPDS == kSpecifierEacem) {
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
    if (tag >= 0x80 && tag <= 0xFE) {
        IBinder* pBinder = IBinder::Instance();
        if (!ZUM_ASSERT(pBinder))
            return false;
        if (!pBinder->IsValidPrivateDataSpecification(m_handle, m_currentPDS))
            return false;
    }
    pds = m_currentPDS;
    return true;
}

bool TCDescriptorDVB::t_SetPDSOnCRIDDescriptor(TCBaseDesc* desc, unsigned int /*pds*/)
{
    if (desc->Tag() != 0x76)
        return true;
    // The content identifier class stores the specifier once it decodes.
    return false;
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
    // The Dish TV genre row still answers a plain default object; any other class is wrong here.
    return typeid(*desc) == typeid(TCDescDefault);
}

bool TCDescriptorDVB::t_CheckLinkageDescriptor(TCBaseDesc* desc, unsigned int /*pds*/)
{
    if (desc->Tag() != 0x4A)
        return true;
    // Until linkage descriptors decode, the tag stands as an unknown one.
    return dynamic_cast<TCDescDefault*>(desc) != nullptr;
}

TCDescConfBase* TCDescriptorDVB::t_GetDescConf(unsigned char tableId)
{
    switch (tableId) {
    case 0x01:
    case 0x02: return new TCDescConfPsiDVB(m_handle);
    case 0x40: case 0x41: case 0x42: case 0x46: case 0x4A: case 0x4B: case 0x4E: case 0x4F:
    case 0x50: case 0x51: case 0x60: case 0x61: case 0x70: case 0x73: case 0x76: case 0x80:
    case 0x81: case 0x85: case 0x90: case 0xA7: case 0xBC: case 0xBD: case 0xD5:
        return new TCDescConfDVB(m_handle);
    case 0x74: return new TCDescConfDS();
    case 0x91: return new TCDescConfAstra(m_handle);
    default: return nullptr;
    }
}

// ---------------------------------------------------------------- ISDB, JPN

TCDescConfBase* TCDescriptorISDB::t_GetDescConf(unsigned char tableId)
{
    switch (tableId) {
    case 0x01:
    case 0x02: return new TCDescConfPsiISDB(kZUMDefaultHandle);
    case 0x40: case 0x41: case 0x42: case 0x46: case 0x4E: case 0x4F: case 0x50: case 0x51:
    case 0x60: case 0x61: case 0x70: case 0x73: case 0x80: case 0x81: case 0x90: case 0x91:
    case 0xC3:
        return new TCDescConfISDB(m_handle);
    case 0x74: return new TCDescConfDS();
    default: return nullptr;
    }
}

TCDescConfBase* TCDescriptorJPN::t_GetDescConf(unsigned char tableId)
{
    switch (tableId) {
    case 0x40: case 0x41: case 0x42: case 0x46: case 0x4E: case 0x4F: case 0x50: case 0x51:
    case 0x60: case 0x61: case 0x70: case 0x73: case 0xC3: case 0xC4: case 0xC5: case 0xC6:
        return new TCDescConfJPN(m_handle);
    default: return TCDescriptorISDB::t_GetDescConf(tableId);
    }
}

// ---------------------------------------------------------------- ATSC, KR

TCDescConfBase* TCDescriptorATSC::t_GetDescConf(unsigned char tableId)
{
    switch (tableId) {
    case 0x02: return new TCDescConfPsiATSC();
    case 0x74: return new TCDescConfDS();
    case 0xC7: case 0xC8: case 0xC9: case 0xCA: case 0xCB: case 0xCD: case 0xD8:
        return new TCDescConfPSIP();
    default: return nullptr;
    }
}

TCDescConfBase* TCDescriptorKR::t_GetDescConf(unsigned char tableId)
{
    if (tableId == 0x02)
        return new TCDescConfPsiKR();
    return TCDescriptorATSC::t_GetDescConf(tableId);
}

// ---------------------------------------------------------------- country switch

namespace {

bool IsISDBCountry(ECountryCode code)
{
    switch (code) {
    case ZumPackCode('A', 'R', 'G'):
    case ZumPackCode('B', 'O', 'L'):
    case ZumPackCode('B', 'R', 'A'):
    case ZumPackCode('C', 'H', 'L'):
    case ZumPackCode('E', 'Q', 'U'):
    case ZumPackCode('P', 'A', 'R'):
    case ZumPackCode('P', 'E', 'R'):
    case ZumPackCode('U', 'R', 'U'):
    case ZumPackCode('c', 'r', 'i'): return true;
    default: return false;
    }
}

} // namespace

TCDescriptor::TCDescriptor(const ZUMHandle& handle) : m_handle(handle)
{
    IBinder* pBinder = IBinder::Instance();
    if (!ZUM_ASSERT(pBinder))
        return;
    const ECountryCode country = pBinder->GetCountryCode(handle);
    if (country == ZumPackCode('K', 'O', 'R'))
        m_pImp.reset(new TCDescriptorKR());
    else if (country == ZumPackCode('J', 'P', 'N'))
        m_pImp.reset(new TCDescriptorJPN(handle));
    else if (country == ZumPackCode('U', 'S', 'A'))
        m_pImp.reset(new TCDescriptorATSC());
    else if (IsISDBCountry(country))
        m_pImp.reset(new TCDescriptorISDB(handle));
    else if (country == ZumPackCode('P', 'H', 'L') && pBinder->GetOperator(handle) == 113)
        m_pImp.reset(new TCDescriptorISDB(handle));
    else
        m_pImp.reset(new TCDescriptorDVB(handle));
}

TCDescriptor::~TCDescriptor() = default;

int TCDescriptor::Parse(const unsigned char* data, int length, TCDescriptorHash& hash, unsigned char tableId)
{
    return m_pImp ? m_pImp->Parse(data, length, hash, tableId) : 0;
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
