#ifndef ZUM_APPS_DESCTRANSPORTPROTOCOL_H
#define ZUM_APPS_DESCTRANSPORTPROTOCOL_H

#include <string>
#include <vector>

#include "../core/BaseDesc.h"

// Where an application's files come from: the transport protocol, and the
// object carousel's prefetch hints and DII locations.

// transport_protocol_descriptor (0x02), with the selector by protocol id:
// object carousel (0x0001), multiprotocol encapsulation (0x0002), HTTP
// (0x0003) and the URL-only selector 0x0101.
class ZUM_EXPORT TCDescTransportProtocol : public TCBaseDesc {
public:
    enum : unsigned short {
        PROTOCOL_OBJECT_CAROUSEL = 0x0001,
        PROTOCOL_IP_MPE = 0x0002,
        PROTOCOL_HTTP = 0x0003,
        PROTOCOL_URL = 0x0101,
    };

    TCDescTransportProtocol();
    ~TCDescTransportProtocol() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned short ProtocolId() const { return m_protocolId; }
    unsigned char TransportProtocolLabel() const { return m_transportProtocolLabel; }
    unsigned char ComponentTag() const { return m_componentTag; }
    unsigned char AlignmentIndicator() const { return m_alignmentIndicator; }
    unsigned char RemoteConnection() const { return m_remoteConnection; }
    unsigned short OriginalNetworkId() const { return m_originalNetworkId; }
    unsigned short TransportStreamId() const { return m_transportStreamId; }
    unsigned short ServiceId() const { return m_serviceId; }
    std::string URLBase() const;
    unsigned int NumOfURLExtension() const { return static_cast<unsigned int>(m_urlExtensions.size()); }
    // Empty past the end.
    std::string URLExtension(unsigned int index) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    void m_ParseCarouselSelector(const unsigned char* selector, int size, bool alignment);
    void m_ParseURLSelector(const unsigned char* payload, const unsigned char* selector, int size, bool extensions);

    unsigned short m_protocolId = 0;
    unsigned char m_transportProtocolLabel = 0;
    unsigned char m_componentTag = 0;
    unsigned char m_alignmentIndicator = 0;
    unsigned char m_remoteConnection = 0;
    unsigned short m_originalNetworkId = 0;
    unsigned short m_transportStreamId = 0;
    unsigned short m_serviceId = 0;
    TTRawRun m_urlBase;
    std::vector<TTRawRun> m_urlExtensions;
};

// One label of a prefetch descriptor; the label stays in the descriptor's raw copy.
class ZUM_EXPORT TCPrefetchLabelChar {
public:
    virtual ~TCPrefetchLabelChar() = default;
    // Returns label length + 2; the label is kept only when `remaining` holds it and the priority.
    int Parse(const unsigned char* data, int remaining);

    unsigned char LabelLength() const { return m_labelLength; }
    // Null when the label was not kept.
    const unsigned char* Label() const { return m_pLabel; }
    unsigned char PrefetchPriority() const { return m_prefetchPriority; }

private:
    unsigned char m_labelLength = 0;
    const unsigned char* m_pLabel = nullptr;
    unsigned char m_prefetchPriority = 0;
};

// prefetch_descriptor (0x0C).
class ZUM_EXPORT TCDescPrefetch : public TCBaseDesc {
public:
    TCDescPrefetch();
    ~TCDescPrefetch() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char TransportProtocolLabel() const { return m_transportProtocolLabel; }
    unsigned int NumOfPrefetchLabelChar() const { return static_cast<unsigned int>(m_labels.size()); }
    TCPrefetchLabelChar* PrefetchLabelChar(unsigned int index) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_transportProtocolLabel = 0;
    std::vector<TCPrefetchLabelChar> m_labels;
};

// One module location of a DII location descriptor.
class ZUM_EXPORT TCDIISubField {
public:
    virtual ~TCDIISubField() = default;
    // Returns the four bytes an entry takes.
    int Parse(const unsigned char* data);

    unsigned short DIIIdentification() const { return m_diiIdentification; }
    unsigned short AssociationTag() const { return m_associationTag; }

private:
    unsigned short m_diiIdentification = 0;
    unsigned short m_associationTag = 0;
};

// DII_location_descriptor (0x0D).
class ZUM_EXPORT TCDescDIILocation : public TCBaseDesc {
public:
    TCDescDIILocation();
    ~TCDescDIILocation() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char TransportProtocolLabel() const { return m_transportProtocolLabel; }
    unsigned int NumOfDIISubField() const { return static_cast<unsigned int>(m_fields.size()); }
    TCDIISubField* DIISubField(unsigned int index) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_transportProtocolLabel = 0;
    std::vector<TCDIISubField> m_fields;
};

#endif
