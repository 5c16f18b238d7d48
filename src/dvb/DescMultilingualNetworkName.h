#ifndef ZUM_DVB_DESCMULTILINGUALNETWORKNAME_H
#define ZUM_DVB_DESCMULTILINGUALNETWORKNAME_H

#include <vector>

#include "../core/BaseDesc.h"
#include "DescText.h"
#include "RecordsOnAccess.h"

// multilingual_network_name_descriptor (0x5B): one name per language.
class ZUM_EXPORT TCDescMultilingualNetworkName : public TCBaseDesc {
public:
    // One language's name. Parse reads no further than `size` bytes and
    // answers the bytes it took; a name that claims more keeps what is there.
    // The name stays where it stands in the bytes that Parse read, which must
    // outlive the record (the descriptor's raw copy for its own records).
    class CmultiNetworkNameDesc {
    public:
        // The record as it stands: language, length, and the name it claims.
        int Parse(const unsigned char* data);
        int Parse(const unsigned char* data, int size);
        unsigned int Language() const { return m_language; }
        unsigned char NetworkNameLength() const { return static_cast<unsigned char>(m_networkName.length); }
        // Text copy.
        bool NetworkNameChar(unsigned char* buffer, unsigned short* size) const;

    private:
        unsigned int m_language = 0;
        zum_text::TTText m_networkName;
    };

    TCDescMultilingualNetworkName();
    ~TCDescMultilingualNetworkName() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    int NumOfNetworkName() const { return m_names.Size(); }
    // Null for an index outside the list.
    const CmultiNetworkNameDesc* NetworkNameDesc(int index) const;
    // The name of the first entry whose language matches, case aside. `size`
    // is output only: the buffer must hold 255 bytes.
    bool GetNetworkNameByLanguage(unsigned int language, unsigned char* name, unsigned short* size) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    const std::vector<CmultiNetworkNameDesc>& m_Names() const;

    // Each record starts with a language and a length byte.
    TCRecordsOnAccess<CmultiNetworkNameDesc, 4> m_names;
};

// multilingual_service_name_descriptor (0x5D): provider and service name per language.
class ZUM_EXPORT TCDescMultilingualServiceName : public TCBaseDesc {
public:
    // One language's names; Parse as for the network names. Both copies answer
    // true also when they cut the text, and for an empty copy when no text is held.
    class CmultiServiceNameDesc {
    public:
        int Parse(const unsigned char* data, int size);
        unsigned int Language() const { return m_language; }
        unsigned char ServiceProviderNameLength() const { return static_cast<unsigned char>(m_providerName.length); }
        unsigned char ServiceNameLength() const { return static_cast<unsigned char>(m_serviceName.length); }
        bool ServiceProviderNameChar(unsigned char* buffer, unsigned short* size) const;
        bool ServiceNameChar(unsigned char* buffer, unsigned short* size) const;

    private:
        unsigned int m_language = 0;
        zum_text::TTText m_providerName;
        zum_text::TTText m_serviceName;
    };

    TCDescMultilingualServiceName();
    ~TCDescMultilingualServiceName() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    int NumOfServiceName() const { return m_names.Size(); }
    // Null for an index outside the list.
    const CmultiServiceNameDesc* ServiceNameDesc(int index) const;
    // First entry whose language matches, case aside; `size` is output only.
    bool GetServiceNameByLanguage(unsigned int language, unsigned char* name, unsigned short* size) const;
    // First entry of exactly this language, case included; `size` is output only.
    bool GetServiceProviderNameByLanguage(unsigned int language, unsigned char* name, unsigned short* size) const;
    // Entry `index`, its language into `*language`; `size` is output only.
    bool GetServiceNameByIndex(unsigned int index, unsigned int* language, unsigned char* name,
                               unsigned short* size) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    const std::vector<CmultiServiceNameDesc>& m_Names() const;

    TCRecordsOnAccess<CmultiServiceNameDesc, 4> m_names;
};

// multilingual_component_descriptor (0x5E): a component's text per language.
class ZUM_EXPORT TCDescMultilingualComponent : public TCBaseDesc {
public:
    // One language's text; Parse as for the network names.
    class CmultiComponentDesc {
    public:
        int Parse(const unsigned char* data, int size);
        unsigned int Language() const { return m_language; }
        unsigned char TextLength() const { return static_cast<unsigned char>(m_text.length); }
        // Text copy.
        bool TextDescChar(char* buffer, int* size) const;

    private:
        unsigned int m_language = 0;
        zum_text::TTText m_text;
    };

    TCDescMultilingualComponent();
    ~TCDescMultilingualComponent() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char ComponentTag() const { return m_componentTag; }
    int NumOfComponentText() const { return m_texts.Size(); }
    // Null for an index outside the list.
    const CmultiComponentDesc* ComponentDesc(int index) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_componentTag = 0;
    // Behind the component tag.
    TCRecordsOnAccess<CmultiComponentDesc, 4> m_texts;
};

using CmultiNetworkNameDesc = TCDescMultilingualNetworkName::CmultiNetworkNameDesc;
using CmultiServiceNameDesc = TCDescMultilingualServiceName::CmultiServiceNameDesc;
using CmultiComponentDesc = TCDescMultilingualComponent::CmultiComponentDesc;

#endif
