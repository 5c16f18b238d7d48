#include "DescCIPlusService.h"

#include <algorithm>

#include "../core/ByteReader.h"
#include "../dvb/DescText.h"

namespace {

// The buffer copy of this family: a cut copy counts as a failure.
bool CopyRun(const unsigned char* text, int stored, unsigned char* buffer, unsigned char& size)
{
    if (!buffer || size == 0 || !text || stored <= 0) {
        size = 0;
        return false;
    }
    return zum_text::Copy(text, stored, buffer, &size);
}

bool IsPresentedServiceType(unsigned char type)
{
    if (type <= 12 || (type >= 14 && type <= 17) || (type >= 22 && type <= 27))
        return true;
    if ((type >= 0x98 && type <= 0x9B) || (type >= 0xA5 && type <= 0xA7))
        return true;
    switch (type) {
    case 0x81: case 0x82: case 0xA1: case 0xA3: case 0xC0: case 0xD3: case 0xF0: case 0xF9: return true;
    default: return false;
    }
}

} // namespace

// ---------------------------------------------------------------- content label

TCDescCIPlusContentLabel::TCDescCIPlusContentLabel() : TCBaseDesc(0xCB) {}

void TCDescCIPlusContentLabel::DeleteAll()
{
    m_first = 0;
    m_second = 0;
    m_language = 0xFFFFFFFF;
    m_label = TTRawRun();
}

TCBaseDesc* TCDescCIPlusContentLabel::Fork() const
{
    return t_ForkAs(new TCDescCIPlusContentLabel());
}

bool TCDescCIPlusContentLabel::ContentLabel(unsigned char* buffer, unsigned char& size) const
{
    return CopyRun(t_At(m_label), m_label.length, buffer, size);
}

int TCDescCIPlusContentLabel::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    TCByteReader reader(payload, length);
    m_first = static_cast<unsigned char>(reader.U8());
    m_second = static_cast<unsigned char>(reader.U8());
    if (reader.Has(3))
        m_language = reader.U24();
    else
        reader.SkipToEnd();
    m_label = zum_text::TakeRun<TTRawRun>(reader, payload, reader.Left());
    return 5 + m_label.length;
}

// ---------------------------------------------------------------- protection

TCDescCIPlusProtection::TCDescCIPlusProtection() : TCBaseDesc(0xCE) {}

void TCDescCIPlusProtection::DeleteAll()
{
    m_freeCiMode = false;
    m_matchBrand = false;
    m_brands = TTRawRun();
    m_privateData = TTRawRun();
}

TCBaseDesc* TCDescCIPlusProtection::Fork() const
{
    return t_ForkAs(new TCDescCIPlusProtection());
}

std::list<unsigned short> TCDescCIPlusProtection::GetCiCamBrandIdentifier() const
{
    std::list<unsigned short> brands;
    const unsigned char* at = t_At(m_brands);
    for (int i = 0; at && i + 1 < m_brands.length; i += 2)
        brands.push_back(static_cast<unsigned short>(ReadBE16(at + i)));
    return brands;
}

std::list<unsigned char> TCDescCIPlusProtection::GetPrivateData() const
{
    const unsigned char* at = t_At(m_privateData);
    return at ? std::list<unsigned char>(at, at + m_privateData.length) : std::list<unsigned char>();
}

int TCDescCIPlusProtection::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length == 0)
        return 0;
    m_freeCiMode = (payload[0] & 0x80) != 0;
    m_matchBrand = (payload[0] & 0x40) != 0;
    int offset = 1;
    if (m_matchBrand) {
        if (length < 2)
            return 1;
        const int number = payload[1];
        offset = 2;
        const unsigned char* brands = payload + offset;
        int read = 0;
        while (read < number && length - offset >= 2) {
            offset += 2;
            ++read;
        }
        m_brands = t_Run(payload, brands, read * 2);
        // Fewer brands than announced: the body ends in them.
        if (read < number)
            return length;
    }
    m_privateData = t_Run(payload, payload + offset, length - offset);
    return length;
}

// ---------------------------------------------------------------- service

TCDescCIPlusService::TCDescCIPlusService() : TCBaseDesc(0xCC) {}

TCDescCIPlusService::TCDescCIPlusService(int tag) : TCBaseDesc(tag) {}

void TCDescCIPlusService::DeleteAll()
{
    m_serviceId = 0xFFFF;
    m_serviceType = 0xFF;
    m_visible = false;
    m_selectable = false;
    m_lcn = 0xFFFF;
    m_providerName = TTRawRun();
    m_serviceName = TTRawRun();
}

TCBaseDesc* TCDescCIPlusService::Fork() const
{
    return t_ForkAs(new TCDescCIPlusService());
}

unsigned char TCDescCIPlusService::m_AllocateServiceType(unsigned char type)
{
    return IsPresentedServiceType(type) ? type : 0xFF;
}

bool TCDescCIPlusService::ServiceProviderName(unsigned char* buffer, unsigned char& size) const
{
    return CopyRun(t_At(m_providerName), m_providerName.length, buffer, size);
}

bool TCDescCIPlusService::ServiceName(unsigned char* buffer, unsigned char& size) const
{
    return CopyRun(t_At(m_serviceName), m_serviceName.length, buffer, size);
}

int TCDescCIPlusService::t_ParseService(const unsigned char* payload, int length)
{
    TCByteReader reader(payload, length);
    if (reader.Has(2))
        m_serviceId = static_cast<unsigned short>(reader.U16());
    if (reader.Has(1))
        m_serviceType = static_cast<unsigned char>(reader.U8());
    if (reader.Has(2)) {
        const unsigned int flags = reader.U16();
        m_visible = (flags & 0x8000) != 0;
        m_selectable = (flags & 0x4000) != 0;
        m_lcn = static_cast<unsigned short>(flags & 0x3FFF);
    }
    // Names that claim more than the body holds are cut at its end.
    m_providerName = zum_text::TakeRun<TTRawRun>(reader, payload, static_cast<int>(reader.U8()));
    m_serviceName = zum_text::TakeRun<TTRawRun>(reader, payload, static_cast<int>(reader.U8()));
    return reader.Consumed();
}

int TCDescCIPlusService::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    t_ParseService(payload, length);
    m_serviceType = m_AllocateServiceType(m_serviceType);
    return m_providerName.length + m_serviceName.length + 7;
}

// ---------------------------------------------------------------- advanced service

TCDescCIPlusAdvancedService::TCDescCIPlusAdvancedService() : TCDescCIPlusService(0xD3) {}

void TCDescCIPlusAdvancedService::DeleteAll()
{
    TCDescCIPlusService::DeleteAll();
    m_components.clear();
}

TCBaseDesc* TCDescCIPlusAdvancedService::Fork() const
{
    return t_ForkAs(new TCDescCIPlusAdvancedService());
}

unsigned char TCDescCIPlusAdvancedService::m_AllocateServiceType(unsigned char type)
{
    return IsPresentedServiceType(type) ? type : 0xFF;
}

bool TCDescCIPlusAdvancedService::m_IsUHDService(const TCOperatorComponent& c)
{
    return c.streamContent == 9 && c.streamContentExtension == 0 && c.componentType == 4;
}

bool TCDescCIPlusAdvancedService::m_IsHFRService(const TCOperatorComponent& c)
{
    return c.streamContent == 9 && c.streamContentExtension == 0 && (c.componentType == 6 || c.componentType == 7);
}

void TCDescCIPlusAdvancedService::m_ServiceTypeBaseOnComponentType(const TCOperatorComponent& component)
{
    if (m_IsUHDService(component) || m_IsHFRService(component))
        m_serviceType = 0xFF;
}

int TCDescCIPlusAdvancedService::t_Parse(const unsigned char* body, unsigned char length)
{
    return t_Parse(const_cast<unsigned char*>(body), length);
}

int TCDescCIPlusAdvancedService::t_Parse(unsigned char* body, unsigned char length)
{
    DeleteAll();
    const int names = t_ParseService(body, length);
    m_serviceType = m_AllocateServiceType(m_serviceType);
    TCByteReader reader(body + names, length - names);
    const int count = static_cast<int>(reader.U8());
    m_components.reserve(static_cast<size_t>(std::min(count, reader.Left() / 2)));
    for (int i = 0; i < count && reader.Has(2); ++i) {
        const unsigned int content = reader.U8();
        TCOperatorComponent component;
        component.streamContentExtension = static_cast<unsigned char>(content >> 4);
        component.streamContent = static_cast<unsigned char>(content & 0x0F);
        component.componentType = static_cast<unsigned char>(reader.U8());
        m_components.push_back(component);
        m_ServiceTypeBaseOnComponentType(component);
    }
    return m_providerName.length + m_serviceName.length + 8 + 2 * count;
}

// ---------------------------------------------------------------- virtual channel

TCDescCICAMVirtualChannel::TCDescCICAMVirtualChannel() : TCBaseDesc(0xD2) {}

void TCDescCICAMVirtualChannel::DeleteAll()
{
    m_lcn = 0;
    for (TTRawRun& text : m_texts)
        text = TTRawRun();
}

TCBaseDesc* TCDescCICAMVirtualChannel::Fork() const
{
    return t_ForkAs(new TCDescCICAMVirtualChannel());
}

std::vector<unsigned char> TCDescCICAMVirtualChannel::m_Text(TTRawRun run) const
{
    const unsigned char* at = t_At(run);
    return at ? std::vector<unsigned char>(at, at + run.length) : std::vector<unsigned char>();
}

int TCDescCICAMVirtualChannel::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length < 3)
        return 0;
    TCByteReader reader(payload, length);
    m_lcn = static_cast<unsigned short>(reader.U16() & 0x3FFF);
    for (TTRawRun& text : m_texts) {
        if (!reader.Has(1))
            return 0;
        const int size = static_cast<int>(reader.U8());
        if (!reader.Has(size))
            return 0;
        text = zum_text::TakeRun<TTRawRun>(reader, payload, size);
    }
    return reader.Consumed();
}
