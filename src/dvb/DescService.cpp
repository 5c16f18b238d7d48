#include "DescService.h"

#include <zum-platform/Binder.h>

#include "../core/ByteReader.h"
#include "../core/Diagnostics.h"
#include "../core/RecordAt.h"
#include "DescText.h"

namespace {

// Service id and type.
const int kServiceEntrySize = 3;

bool IsPresentedServiceType(unsigned char type)
{
    if (type <= 0x0C || (type >= 0x0E && type <= 0x20))
        return true;
    if ((type >= 0x98 && type <= 0x9B) || (type >= 0xA3 && type <= 0xA7))
        return true;
    switch (type) {
    case 0x80: case 0x81: case 0x82: case 0x8A: case 0x8C: case 0x8D:
    case 0xA1: case 0xC0: case 0xD3: case 0xF0: case 0xF9: return true;
    default: return false;
    }
}

// The service names answer through a reference and report an empty copy as size 0.
bool NameText(const unsigned char* text, unsigned char length, unsigned char* buffer, unsigned short& size)
{
    if (!buffer || !text || length == 0 || size == 0) {
        size = 0;
        return false;
    }
    return zum_text::Copy(text, length, buffer, &size);
}

} // namespace

// ---------------------------------------------------------------- service

TCDescService::TCDescService() : TCBaseDesc(0x48) {}

TCDescService::~TCDescService()
{
    DeleteAll();
}

void TCDescService::DeleteAll()
{
    m_providerName = TTRawRun();
    m_serviceName = TTRawRun();
}

TCBaseDesc* TCDescService::Fork() const
{
    return t_ForkAs(new TCDescService());
}

int TCDescService::t_AllocateServiceType(unsigned char type)
{
    if (IsPresentedServiceType(type))
        return type;
    if (type != 0x90)
        return -1;
    IBinder* pBinder = IBinder::Instance();
    if (!ZUM_ASSERT(pBinder))
        return 0;
    // Type 0x90 is shown only to a set under Dolby certification.
    if (pBinder->IsDolbyCertModeEnabled()) {
        ZUM_LOGD("t_AllocateServiceType Dolby Cert Mode Enabled");
        return type;
    }
    ZUM_LOGD("t_AllocateServiceType Dolby Cert Mode Disabled");
    return -1;
}

int TCDescService::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    TCByteReader reader(payload, length);
    if (!reader.Has(1))
        return reader.Consumed();
    m_serviceType = static_cast<unsigned char>(t_AllocateServiceType(static_cast<unsigned char>(reader.U8())));
    // A name that claims more than the body holds keeps what is there.
    if (reader.Has(1))
        m_providerName = zum_text::TakeRun<TTRawRun>(reader, payload, static_cast<int>(reader.U8()));
    if (reader.Has(1))
        m_serviceName = zum_text::TakeRun<TTRawRun>(reader, payload, static_cast<int>(reader.U8()));
    return reader.Consumed();
}

bool TCDescService::ServiceProviderNameText(unsigned char* buffer, unsigned short& size) const
{
    return NameText(t_At(m_providerName), m_providerName.length, buffer, size);
}

bool TCDescService::ServiceNameText(unsigned char* buffer, unsigned short& size) const
{
    return NameText(t_At(m_serviceName), m_serviceName.length, buffer, size);
}

// ---------------------------------------------------------------- service list

TCDescServiceList::TCDescServiceList() : TCBaseDesc(0x41) {}

TCDescServiceList::~TCDescServiceList()
{
    DeleteAll();
}

void TCDescServiceList::DeleteAll()
{
    m_numberOfLoop = 0;
}

TCBaseDesc* TCDescServiceList::Fork() const
{
    return t_ForkAs(new TCDescServiceList());
}

int TCDescServiceList::t_Parse(const unsigned char* /*payload*/, unsigned char length)
{
    m_numberOfLoop = length / kServiceEntrySize;
    return m_numberOfLoop * kServiceEntrySize;
}

unsigned short TCDescServiceList::ServiceId(int index) const
{
    const unsigned char* entry = RawRecordAt(t_Payload(), m_numberOfLoop, kServiceEntrySize, index);
    return entry ? static_cast<unsigned short>(ReadBE16(entry)) : 0xFFFF;
}

unsigned char TCDescServiceList::ServiceType(int index) const
{
    const unsigned char* entry = RawRecordAt(t_Payload(), m_numberOfLoop, kServiceEntrySize, index);
    return entry ? entry[2] : 0xFF;
}
