#ifndef ZUM_DVB_DESCLINKAGE_H
#define ZUM_DVB_DESCLINKAGE_H

#include <utility>
#include <vector>

#include "../core/BaseDesc.h"

// The byte runs of this family are views into the descriptor's raw copy;
// their copy accessors (PrivateDataByte, SelectorByte, TextChar,
// IDSelectorByte) answer false, writing nothing, for a null buffer or size, no
// bytes or a size of 0; copy all and set the size when it holds them; else
// copy `*size` bytes, leave it and answer false.

// A record with an OUI and a selector, as the update loops of TS 102 006 give them.
class ZUM_EXPORT TTSSUSelector {
public:
    unsigned int OUI() const { return m_OUI; }
    unsigned char SelectorLength() const { return m_selectorLength; }
    bool SelectorByte(char* buffer, int* size) const;

protected:
    void t_Clear();
    // Takes the selector of `m_selectorLength` bytes at `data`.
    void t_TakeSelector(const unsigned char* data);

    unsigned int m_OUI = 0;
    unsigned char m_selectorLength = 0;
    // Into the bytes given to Parse, which outlive the record.
    const unsigned char* m_pSelector = nullptr;
};

// One OUI entry of a system software update linkage (type 0x09).
class ZUM_EXPORT CSSULinkLoop : public TTSSUSelector {
public:
    // `left` bytes of the loop from `data`; returns the bytes used.
    int Parse(const unsigned char* data, int left);
};

// One OUI entry of a system software update data broadcast id (0x000A).
class ZUM_EXPORT CSSUInfoLoop : public TTSSUSelector {
public:
    // Returns 6 plus the selector length; what is left when it does not fit.
    int Parse(const unsigned char* data, int left);
    unsigned char UpdateType() const { return m_updateType; }
    unsigned char UpdateVersioningFlag() const { return m_updateVersioningFlag; }
    unsigned char UpdateVersion() const { return m_updateVersion; }

private:
    unsigned char m_updateType = 0;
    unsigned char m_updateVersioningFlag = 0;
    unsigned char m_updateVersion = 0;
};

// One entry of an extended event linkage (types 0x0E to 0x1F).
class ZUM_EXPORT CEXTEventLinkageInfo {
public:
    unsigned short TargetEventId() const { return m_targetEventId; }
    unsigned char LinkType() const { return m_linkType; }
    unsigned char TargetIdType() const { return m_targetIdType; }
    unsigned short UserDefinedId() const { return m_userDefinedId; }
    // 0xFFFFFFFF where the entry names none.
    unsigned int TargetTransportStreamId() const { return m_targetTransportStreamId; }
    unsigned int TargetOriginalNetworkId() const { return m_targetOriginalNetworkId; }
    unsigned int TargetServiceId() const { return m_targetServiceId; }
    bool EventSimulcast() const { return m_eventSimulcast; }

private:
    unsigned short m_targetEventId = 0;
    unsigned char m_linkType = 0xFF;
    unsigned char m_targetIdType = 0xFF;
    unsigned short m_userDefinedId = 0;
    unsigned int m_targetTransportStreamId = 0xFFFFFFFF;
    unsigned int m_targetOriginalNetworkId = 0xFFFFFFFF;
    unsigned int m_targetServiceId = 0xFFFFFFFF;
    bool m_eventSimulcast = false;

    friend class TCDescLinkage;
    // Builds the records of its links from the linkages of a stored event.
    friend class TCProgramDescriptorUtil;
};

// The home transponders of fast-scan operators (linkage types 0x88 to 0x8A):
// a marker 0x7701 to 0x77FF, then 14-byte records. The first record of an
// operator id stands; the records are read where they lie, in the bytes given
// to Parse, which must outlive the object.
class ZUM_EXPORT M7HomeTPLinkageData {
public:
    struct TSOperatorID {
        unsigned short operatorNetworkId = 0;
        unsigned char sublistId = 0;
        bool operator<(const TSOperatorID& o) const
        {
            return operatorNetworkId != o.operatorNetworkId ? operatorNetworkId < o.operatorNetworkId
                                                            : sublistId < o.sublistId;
        }
        bool operator==(const TSOperatorID& o) const
        {
            return operatorNetworkId == o.operatorNetworkId && sublistId == o.sublistId;
        }
        bool operator!=(const TSOperatorID& o) const { return !(*this == o); }
    };
    // Original network id and transport stream id.
    using HomeTransponder = std::pair<unsigned short, unsigned short>;

    // 0 for a body that is not of this format; else the bytes of the fields read whole.
    int Parse(const unsigned char* body, int length);

    // 0xFFFFFFFF for an unknown operator.
    unsigned int GetVersion(TSOperatorID id) const;
    unsigned int GetPID(TSOperatorID id) const;
    // Empty for an unknown operator.
    std::vector<HomeTransponder> GetHomeTransponders(TSOperatorID id) const;
    // Every operator once, in ascending order.
    std::vector<TSOperatorID> Operators() const;

private:
    static constexpr int kRecordSize = 14;
    const unsigned char* m_Record(TSOperatorID id) const;

    const unsigned char* m_pRecords = nullptr;
    int m_count = 0;
};

// linkage_descriptor (0x4A): the head, then the fields of its linkage type.
// A reader of a field of another linkage type answers 0.
class ZUM_EXPORT TCDescLinkage : public TCBaseDesc {
public:
    TCDescLinkage();
    ~TCDescLinkage() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned short TransportStreamId() const { return m_transportStreamId; }
    unsigned short OriginalNetworkId() const { return m_originalNetworkId; }
    unsigned short ServiceId() const { return m_serviceId; }
    unsigned char LinkageType() const { return m_linkageType; }

    unsigned char HandOverType() const;
    unsigned char OriginType() const;
    unsigned short NetworkId() const;
    unsigned short InitialServiceId() const;
    unsigned char OUIDataLength() const;
    int NumOfSSULinkLoop() const;
    const CSSULinkLoop* SSULinkLoop(unsigned int index) const;
    unsigned char TableType() const;
    unsigned char Simulcast() const;
    unsigned short TargetId() const;
    int NumOfExtLinkageLoop() const;
    const CEXTEventLinkageInfo* EXTEventLinkageInfoLoop(unsigned int index) const;
    unsigned short LCNTablePID() const;
    int NumOfPrivateDataByte() const;
    bool PrivateDataByte(char* buffer, int* size) const;
    // Null unless the linkage type is 0x88 to 0x8A and its body has that format.
    const M7HomeTPLinkageData* M7HomeTPData() const;

    // The private data specifier of the loop, stored by the loop.
    void SetPDSD(unsigned int pds) { m_pds = pds; }
    unsigned int GetPDSD() const { return m_pds; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    bool m_Is(int first, int last) const { return m_linkageType >= first && m_linkageType <= last; }
    int m_ParseHandOver(const unsigned char* payload, int length);
    int m_ParseSSU(const unsigned char* payload, int length);
    int m_ParseExtendedEvent(const unsigned char* payload, int length);
    int m_ParseM7(const unsigned char* payload, int length);
    int m_KeepPrivate(const unsigned char* payload, int from, int length);

    unsigned short m_transportStreamId = 0;
    unsigned short m_originalNetworkId = 0;
    unsigned short m_serviceId = 0;
    unsigned char m_linkageType = 0;
    // Only one of the two is filled, by the linkage type.
    std::vector<CSSULinkLoop> m_ssuLinkLoops;
    std::vector<CEXTEventLinkageInfo> m_extEventLinkages;
    int m_privateDataLength = 0;
    TTRawRun m_privateData;
    unsigned char m_handOverType = 0;
    unsigned char m_originType = 0;
    unsigned short m_networkId = 0;
    unsigned short m_initialServiceId = 0;
    unsigned char m_OUIDataLength = 0;
    unsigned char m_tableType = 0;
    unsigned short m_targetId = 0;
    unsigned char m_simulcast = 0;
    unsigned short m_lcnTablePID = 0;
    unsigned int m_pds = 0;
    bool m_hasM7 = false;
    M7HomeTPLinkageData m_m7;
};

// data_broadcast_descriptor (0x64).
class ZUM_EXPORT TCDescDataBroadcast : public TCBaseDesc {
public:
    TCDescDataBroadcast();
    ~TCDescDataBroadcast() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned short DataBroadcastId() const { return m_dataBroadcastId; }
    unsigned char ComponentTag() const { return m_componentTag; }
    unsigned char SelectorLength() const { return m_selector.length; }
    bool SelectorByte(char* buffer, int* size) const;
    unsigned int Language() const { return m_language; }
    int TextLength() const { return m_text.length; }
    bool TextChar(char* buffer, int* size) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned short m_dataBroadcastId = 0;
    unsigned char m_componentTag = 0;
    TTRawRun m_selector;
    unsigned int m_language = 0;
    TTRawRun m_text;
};

// data_broadcast_id_descriptor (0x66): for id 0x000A the update loops of
// TS 102 006 and private data, for any other id a selector. A reader of the
// other kind answers 0.
class ZUM_EXPORT TCDescDataBroadcastId : public TCBaseDesc {
public:
    static constexpr unsigned short kSystemSoftwareUpdate = 0x000A;

    TCDescDataBroadcastId();
    ~TCDescDataBroadcastId() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned short DataBroadcastId() const { return m_dataBroadcastId; }
    unsigned char OUIDataLength() const;
    int NumOfSSUInfoLoop() const;
    const CSSUInfoLoop* SSUInfoLoop(unsigned int index) const;
    int NumOfPrivateDataByte() const;
    bool PrivateDataByte(char* buffer, int* size) const;
    int NumOfIDSelectorByte() const;
    bool IDSelectorByte(char* buffer, int* size) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    bool m_IsUpdate() const { return m_dataBroadcastId == kSystemSoftwareUpdate; }

    unsigned short m_dataBroadcastId = 0;
    std::vector<CSSUInfoLoop> m_ssuInfoLoops;
    unsigned char m_OUIDataLength = 0;
    // The private data for 0x000A, the ID selector for any other id.
    TTRawRun m_bytes;
};

// SSU_location_descriptor (0x03), in update notification tables.
class ZUM_EXPORT TCDescSSULocation : public TCBaseDesc {
public:
    TCDescSSULocation();
    ~TCDescSSULocation() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned short DataBroadcastId() const { return m_dataBroadcastId; }
    // Only for data broadcast id 0x000A; 0 otherwise.
    unsigned short AssociationTag() const { return m_associationTag; }
    int NumOfPrivateDataByte() const { return m_privateData.length; }
    bool PrivateDataByte(char* buffer, int* size) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned short m_dataBroadcastId = 0;
    unsigned short m_associationTag = 0;
    TTRawRun m_privateData;
};

#endif
