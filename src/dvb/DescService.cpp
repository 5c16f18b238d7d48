#include "DescService.h"

#include <zum-platform/Binder.h>

#include "../core/ByteReader.h"
#include "../core/Diagnostics.h"
#include "../core/RecordAt.h"
#include "DescText.h"

namespace {

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
bool NameText(const std::unique_ptr<unsigned char[]>& text, unsigned char length, unsigned char* buffer,
              unsigned short& size)
{
    if (!buffer || !text || length == 0 || size == 0) {
        size = 0;
        return false;
    }
    return zum_text::Copy(text.get(), length, buffer, &size);
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
    m_pProviderName.reset();
    m_pServiceName.reset();
    m_providerNameLength = 0;
    m_serviceNameLength = 0;
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
        m_providerNameLength = static_cast<unsigned char>(zum_text::Take(reader, reader.U8(), m_pProviderName));
    if (reader.Has(1))
        m_serviceNameLength = static_cast<unsigned char>(zum_text::Take(reader, reader.U8(), m_pServiceName));
    return reader.Consumed();
}

bool TCDescService::ServiceProviderNameText(unsigned char* buffer, unsigned short& size) const
{
    return NameText(m_pProviderName, m_providerNameLength, buffer, size);
}

bool TCDescService::ServiceNameText(unsigned char* buffer, unsigned short& size) const
{
    return NameText(m_pServiceName, m_serviceNameLength, buffer, size);
}

// ---------------------------------------------------------------- service list

TCDescServiceList::TCDescServiceList() : TCBaseDesc(0x41) {}

TCDescServiceList::~TCDescServiceList()
{
    DeleteAll();
}

void TCDescServiceList::DeleteAll()
{
    m_entries.clear();
    m_numberOfLoop = 0;
}

TCBaseDesc* TCDescServiceList::Fork() const
{
    return t_ForkAs(new TCDescServiceList());
}

int TCDescServiceList::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    TCByteReader reader(payload, length);
    m_entries.reserve(length / 3);
    while (reader.Has(3)) {
        TTEntry entry;
        entry.serviceId = static_cast<unsigned short>(reader.U16());
        entry.serviceType = static_cast<unsigned char>(reader.U8());
        m_entries.push_back(entry);
    }
    m_numberOfLoop = static_cast<int>(m_entries.size());
    return reader.Consumed();
}

unsigned short TCDescServiceList::ServiceId(int index) const
{
    return FieldAt(m_entries, index, &TTEntry::serviceId, 0xFFFF);
}

unsigned char TCDescServiceList::ServiceType(int index) const
{
    return FieldAt(m_entries, index, &TTEntry::serviceType, 0xFF);
}
