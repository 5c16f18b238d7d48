#ifndef ZUM_OPERATORS_DESCCIPLUSSERVICE_H
#define ZUM_OPERATORS_DESCCIPLUSSERVICE_H

#include <list>
#include <vector>

#include "../core/BaseDesc.h"

// The descriptors a CI Plus operator sends behind specifier 0x40. The
// signalling is carried as data: nothing here acts on it.

// Content label (0xCB).
class ZUM_EXPORT TCDescCIPlusContentLabel : public TCBaseDesc {
public:
    TCDescCIPlusContentLabel();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char FirstByte() const { return m_first; }
    unsigned char SecondByte() const { return m_second; }
    // 0xFFFFFFFF before a body of five bytes was read.
    unsigned int Language() const { return m_language; }
    // A cut copy answers false.
    bool ContentLabel(unsigned char* buffer, unsigned char& size) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_first = 0;
    unsigned char m_second = 0;
    unsigned int m_language = 0xFFFFFFFF;
    TTRawRun m_label;
};

// Protection (0xCE): the free CI mode, the CICAM brands it is bound to, private data.
class ZUM_EXPORT TCDescCIPlusProtection : public TCBaseDesc {
public:
    TCDescCIPlusProtection();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    bool GetFreeCiModeFlag() const { return m_freeCiMode; }
    bool GetMatchBrandFlag() const { return m_matchBrand; }
    std::list<unsigned short> GetCiCamBrandIdentifier() const;
    std::list<unsigned char> GetPrivateData() const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    bool m_freeCiMode = false;
    bool m_matchBrand = false;
    TTRawRun m_brands;
    TTRawRun m_privateData;
};

// Service (0xCC): a service of the operator's list with its number and names.
class ZUM_EXPORT TCDescCIPlusService : public TCBaseDesc {
public:
    TCDescCIPlusService();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned short ServiceId() const { return m_serviceId; }
    // 0xFF for a type the receiver does not present.
    unsigned char ServiceType() const { return m_serviceType; }
    bool VisibleServiceFlag() const { return m_visible; }
    bool SelectableServiceFlag() const { return m_selectable; }
    unsigned short LogicalChannelNumber() const { return m_lcn; }
    // A cut copy answers false.
    bool ServiceProviderName(unsigned char* buffer, unsigned char& size) const;
    bool ServiceName(unsigned char* buffer, unsigned char& size) const;

protected:
    explicit TCDescCIPlusService(int tag);
    int t_Parse(const unsigned char* payload, unsigned char length) override;
    // The fields both service descriptors share; returns the offset behind the names.
    int t_ParseService(const unsigned char* payload, int length);

    unsigned short m_serviceId = 0xFFFF;
    unsigned char m_serviceType = 0xFF;
    bool m_visible = false;
    bool m_selectable = false;
    unsigned short m_lcn = 0xFFFF;
    TTRawRun m_providerName;
    TTRawRun m_serviceName;

private:
    static unsigned char m_AllocateServiceType(unsigned char type);
};

// Advanced service (0xD3): the service fields and the components that make it.
class ZUM_EXPORT TCDescCIPlusAdvancedService : public TCDescCIPlusService {
public:
    struct TCOperatorComponent {
        unsigned char streamContent = 0;
        unsigned char streamContentExtension = 0;
        unsigned char componentType = 0;
    };

    TCDescCIPlusAdvancedService();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    const std::vector<TCOperatorComponent>& Components() const { return m_components; }

protected:
    int t_Parse(const unsigned char* body, unsigned char length) override;
    int t_Parse(unsigned char* body, unsigned char length) override;

private:
    static unsigned char m_AllocateServiceType(unsigned char type);
    static bool m_IsUHDService(const TCOperatorComponent& component);
    static bool m_IsHFRService(const TCOperatorComponent& component);
    void m_ServiceTypeBaseOnComponentType(const TCOperatorComponent& component);

    std::vector<TCOperatorComponent> m_components;
};

// CICAM virtual channel (0xD2).
class ZUM_EXPORT TCDescCICAMVirtualChannel : public TCBaseDesc {
public:
    TCDescCICAMVirtualChannel();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned short LogicalChannelNumber() const { return m_lcn; }
    std::vector<unsigned char> ServiceProviderName() const { return m_Text(m_texts[0]); }
    std::vector<unsigned char> ServiceName() const { return m_Text(m_texts[1]); }
    std::vector<unsigned char> EventInformation() const { return m_Text(m_texts[2]); }
    std::vector<unsigned char> AppDomainIdentifier() const { return m_Text(m_texts[3]); }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    std::vector<unsigned char> m_Text(TTRawRun run) const;

    unsigned short m_lcn = 0;
    TTRawRun m_texts[4];
};

#endif
