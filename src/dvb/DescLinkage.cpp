#include "DescLinkage.h"

#include <algorithm>

#include "../core/ByteReader.h"
#include "../core/Diagnostics.h"
#include "../core/Log.h"
#include "../core/RecordAt.h"
#include "DescText.h"

namespace {

constexpr int kHeadSize = 7;

} // namespace

// ---------------------------------------------------------------- update loops

void TTSSUSelector::t_Clear()
{
    m_OUI = 0;
    m_selectorLength = 0;
    m_pSelector = nullptr;
}

void TTSSUSelector::t_TakeSelector(const unsigned char* data)
{
    m_pSelector = m_selectorLength > 0 ? data : nullptr;
}

bool TTSSUSelector::SelectorByte(char* buffer, int* size) const
{
    return zum_text::Copy(m_pSelector, m_pSelector ? m_selectorLength : 0, buffer, size);
}

int CSSULinkLoop::Parse(const unsigned char* data, int left)
{
    t_Clear();
    if (!data || left < 4)
        return std::max(left, 0);
    m_OUI = (static_cast<unsigned int>(data[0]) << 16) | ReadBE16(data + 1);
    m_selectorLength = data[3];
    if (left <= m_selectorLength + 3) {
        ZUM_LOGD("[exception handling] m_selectorLength = %d. len = %d", m_selectorLength, left);
        return left;
    }
    if (m_selectorLength > 0) {
        ZUM_LOGD("[CSSULinkLoop::Parse] m_OUI=%u, m_selectorLength=%d", m_OUI, m_selectorLength);
        t_TakeSelector(data + 4);
    }
    ZUM_LOGD("[CSSULinkLoop::Parse] size=%d", 4 + m_selectorLength);
    return 4 + m_selectorLength;
}

int CSSUInfoLoop::Parse(const unsigned char* data, int left)
{
    t_Clear();
    m_updateType = m_updateVersioningFlag = m_updateVersion = 0;
    if (!data || left < 6)
        return std::max(left, 0);
    m_OUI = (static_cast<unsigned int>(data[0]) << 16) | ReadBE16(data + 1);
    m_updateType = data[3] & 0x0F;
    m_updateVersioningFlag = (data[4] >> 5) & 0x01;
    m_updateVersion = data[4] & 0x1F;
    m_selectorLength = data[5];
    // A selector past the loop's end is not read.
    if (6 + m_selectorLength > left)
        return left;
    t_TakeSelector(data + 6);
    return 6 + m_selectorLength;
}

// ---------------------------------------------------------------- M7 home transponders

int M7HomeTPLinkageData::Parse(const unsigned char* body, int length)
{
    m_pRecords = nullptr;
    m_count = 0;
    if (!body || length < 2)
        return 0;
    const unsigned int marker = ReadBE16(body);
    if (marker < 0x7701 || marker > 0x77FF)
        return 0;
    m_pRecords = body + 2;
    m_count = (length - 2) / kRecordSize;
    // A record cut by the body's end is not taken; its fields read whole still count.
    static const int kFieldEnds[] = {2, 3, 5, 7, 9, 11, 13};
    const int cut = (length - 2) % kRecordSize;
    int counted = 0;
    for (int end : kFieldEnds)
        if (end <= cut)
            counted = end;
    return 2 + m_count * kRecordSize + counted;
}

const unsigned char* M7HomeTPLinkageData::m_Record(TSOperatorID id) const
{
    for (int i = 0; i < m_count; ++i) {
        const unsigned char* record = m_pRecords + i * kRecordSize;
        if (ReadBE16(record) == id.operatorNetworkId && record[2] == id.sublistId)
            return record;
    }
    return nullptr;
}

unsigned int M7HomeTPLinkageData::GetVersion(TSOperatorID id) const
{
    const unsigned char* record = m_Record(id);
    return record ? record[13] & 0x1Fu : 0xFFFFFFFF;
}

unsigned int M7HomeTPLinkageData::GetPID(TSOperatorID id) const
{
    const unsigned char* record = m_Record(id);
    return record ? ReadBE16(record + 11) : 0xFFFFFFFF;
}

std::vector<M7HomeTPLinkageData::HomeTransponder> M7HomeTPLinkageData::GetHomeTransponders(TSOperatorID id) const
{
    std::vector<HomeTransponder> transponders;
    if (const unsigned char* record = m_Record(id)) {
        transponders.emplace_back(ReadBE16(record + 3), ReadBE16(record + 5));
        transponders.emplace_back(ReadBE16(record + 7), ReadBE16(record + 9));
    }
    return transponders;
}

std::vector<M7HomeTPLinkageData::TSOperatorID> M7HomeTPLinkageData::Operators() const
{
    std::vector<TSOperatorID> ids;
    for (int i = 0; i < m_count; ++i) {
        const unsigned char* record = m_pRecords + i * kRecordSize;
        ids.push_back({static_cast<unsigned short>(ReadBE16(record)), record[2]});
    }
    std::sort(ids.begin(), ids.end());
    ids.erase(std::unique(ids.begin(), ids.end()), ids.end());
    return ids;
}

// ---------------------------------------------------------------- linkage

TCDescLinkage::TCDescLinkage() : TCBaseDesc(0x4A) {}

TCDescLinkage::~TCDescLinkage()
{
    DeleteAll();
}

void TCDescLinkage::DeleteAll()
{
    m_transportStreamId = m_originalNetworkId = m_serviceId = 0;
    m_linkageType = 0;
    m_ssuLinkLoops.clear();
    m_extEventLinkages.clear();
    m_privateDataLength = 0;
    m_privateData = TTRawRun();
    m_handOverType = m_originType = 0;
    m_networkId = m_initialServiceId = 0;
    m_OUIDataLength = m_tableType = m_simulcast = 0;
    m_targetId = m_lcnTablePID = 0;
    m_hasM7 = false;
    m_m7 = M7HomeTPLinkageData();
}

TCBaseDesc* TCDescLinkage::Fork() const
{
    TCDescLinkage* clone = new TCDescLinkage();
    // The loop's specifier is not in the raw bytes: it goes over with the clone.
    clone->m_pds = m_pds;
    return t_ForkAs(clone);
}

int TCDescLinkage::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    const int len = length;
    if (!ZUM_ASSERT(len))
        return 0;
    if (len < kHeadSize)
        return 0;
    m_transportStreamId = static_cast<unsigned short>(ReadBE16(payload));
    m_originalNetworkId = static_cast<unsigned short>(ReadBE16(payload + 2));
    m_serviceId = static_cast<unsigned short>(ReadBE16(payload + 4));
    m_linkageType = payload[6];
    ZUM_LOGD("Linkage Type = 0x%x", m_linkageType);
    if (len == kHeadSize)
        return kHeadSize;

    if (m_linkageType == 0x08)
        return m_ParseHandOver(payload, len);
    if (m_linkageType == 0x09)
        return m_ParseSSU(payload, len);
    if (m_linkageType == 0x0A) {
        m_tableType = payload[7];
        return 8;
    }
    if (m_linkageType == 0x0D) {
        TCByteReader reader(payload + kHeadSize, len - kHeadSize);
        m_targetId = static_cast<unsigned short>(reader.U16());
        m_simulcast = static_cast<unsigned char>((reader.U8() >> 6) & 0x01);
        return kHeadSize + reader.Consumed();
    }
    if (m_Is(0x0E, 0x1F))
        return m_ParseExtendedEvent(payload, len);
    if (m_linkageType == 0x85) {
        // A 13-bit PID behind three reserved bits.
        if (len < 9)
            return kHeadSize;
        m_lcnTablePID = static_cast<unsigned short>(ReadBE16(payload + 7) & 0x1FFF);
        return 9;
    }
    if (m_Is(0x88, 0x8A))
        return m_ParseM7(payload, len);
    return m_KeepPrivate(payload, kHeadSize, len);
}

int TCDescLinkage::m_KeepPrivate(const unsigned char* payload, int from, int length)
{
    m_privateDataLength = std::max(0, length - from);
    if (m_privateDataLength > 0)
        m_privateData = t_Run(payload, payload + from, m_privateDataLength);
    return from + m_privateDataLength;
}

int TCDescLinkage::m_ParseHandOver(const unsigned char* payload, int length)
{
    TCByteReader reader(payload + kHeadSize, length - kHeadSize);
    const unsigned int types = reader.U8();
    m_handOverType = static_cast<unsigned char>(types >> 4);
    m_originType = static_cast<unsigned char>(types & 0x01);
    if (m_handOverType >= 1 && m_handOverType <= 3)
        m_networkId = static_cast<unsigned short>(reader.U16());
    if (m_originType == 0)
        m_initialServiceId = static_cast<unsigned short>(reader.U16());
    return m_KeepPrivate(payload, std::min(length, kHeadSize + reader.Consumed()), length);
}

int TCDescLinkage::m_ParseSSU(const unsigned char* payload, int length)
{
    m_OUIDataLength = payload[7];
    if (m_OUIDataLength + 8 > length)
        return 8;
    ZUM_LOGD("[TCDescLinkage::t_Parse] endIndex=m_OUIDataLength=%d, len=%d", m_OUIDataLength, length);
    const int end = 8 + m_OUIDataLength;
    for (int at = 8; at < end;) {
        m_ssuLinkLoops.emplace_back();
        at += m_ssuLinkLoops.back().Parse(payload + at, end - at);
    }
    return m_KeepPrivate(payload, end, length);
}

int TCDescLinkage::m_ParseExtendedEvent(const unsigned char* payload, int length)
{
    const int loopLength = payload[7];
    if (loopLength < 3)
        return 8;
    const int end = std::min(8 + loopLength, length);
    int at = 8;
    while (end - at >= 3) {
        CEXTEventLinkageInfo info;
        info.m_targetEventId = static_cast<unsigned short>(ReadBE16(payload + at));
        const unsigned char flags = payload[at + 2];
        at += 3;
        info.m_eventSimulcast = (flags & 0x40) != 0;
        info.m_linkType = (flags >> 4) & 0x03;
        info.m_targetIdType = (flags >> 2) & 0x03;
        if (end - at < 3) {
            m_extEventLinkages.push_back(info);
            break;
        }
        if (info.m_targetIdType == 3) {
            info.m_userDefinedId = static_cast<unsigned short>(ReadBE16(payload + at));
            at += 2;
        } else {
            if (info.m_targetIdType == 1) {
                info.m_targetTransportStreamId = ReadBE16(payload + at);
                at += 2;
            }
            if ((flags & 0x02) && end - at >= 3) {
                info.m_targetOriginalNetworkId = ReadBE16(payload + at);
                at += 2;
            }
            if ((flags & 0x01) && end - at >= 3) {
                info.m_targetServiceId = ReadBE16(payload + at);
                at += 2;
            }
        }
        m_extEventLinkages.push_back(info);
    }
    return at;
}

int TCDescLinkage::m_ParseM7(const unsigned char* payload, int length)
{
    m_privateDataLength = length - kHeadSize;
    const int used = m_m7.Parse(payload + kHeadSize, length - kHeadSize);
    m_hasM7 = used > 0;
    if (!m_hasM7)
        m_privateData = t_Run(payload, payload + kHeadSize, m_privateDataLength);
    return kHeadSize + used;
}

unsigned char TCDescLinkage::HandOverType() const
{
    return m_linkageType == 0x08 ? m_handOverType : 0;
}

unsigned char TCDescLinkage::OriginType() const
{
    return m_linkageType == 0x08 ? m_originType : 0;
}

unsigned short TCDescLinkage::NetworkId() const
{
    return m_linkageType == 0x08 && m_handOverType >= 1 && m_handOverType <= 3 ? m_networkId : 0;
}

unsigned short TCDescLinkage::InitialServiceId() const
{
    return m_linkageType == 0x08 && m_originType == 0 ? m_initialServiceId : 0;
}

unsigned char TCDescLinkage::OUIDataLength() const
{
    return m_linkageType == 0x09 ? m_OUIDataLength : 0;
}

int TCDescLinkage::NumOfSSULinkLoop() const
{
    return m_linkageType == 0x09 ? static_cast<int>(m_ssuLinkLoops.size()) : 0;
}

const CSSULinkLoop* TCDescLinkage::SSULinkLoop(unsigned int index) const
{
    return m_linkageType == 0x09 ? RecordAt(m_ssuLinkLoops, static_cast<int>(index)) : nullptr;
}

unsigned char TCDescLinkage::TableType() const
{
    return m_linkageType == 0x0A ? m_tableType : 0;
}

unsigned char TCDescLinkage::Simulcast() const
{
    return m_linkageType == 0x0D ? m_simulcast : 0;
}

unsigned short TCDescLinkage::TargetId() const
{
    return m_linkageType == 0x0D ? m_targetId : 0;
}

int TCDescLinkage::NumOfExtLinkageLoop() const
{
    return m_Is(0x0E, 0x1F) ? static_cast<int>(m_extEventLinkages.size()) : 0;
}

const CEXTEventLinkageInfo* TCDescLinkage::EXTEventLinkageInfoLoop(unsigned int index) const
{
    return m_Is(0x0E, 0x1F) ? RecordAt(m_extEventLinkages, static_cast<int>(index)) : nullptr;
}

unsigned short TCDescLinkage::LCNTablePID() const
{
    return m_linkageType == 0x85 ? m_lcnTablePID : 0;
}

int TCDescLinkage::NumOfPrivateDataByte() const
{
    return m_linkageType == 0x0A ? 0 : m_privateDataLength;
}

bool TCDescLinkage::PrivateDataByte(char* buffer, int* size) const
{
    if (m_linkageType == 0x0A)
        return false;
    return zum_text::Copy(t_At(m_privateData), m_privateData.length, buffer, size);
}

const M7HomeTPLinkageData* TCDescLinkage::M7HomeTPData() const
{
    return m_hasM7 && m_Is(0x88, 0x8A) ? &m_m7 : nullptr;
}

// ---------------------------------------------------------------- data broadcast

TCDescDataBroadcast::TCDescDataBroadcast() : TCBaseDesc(0x64) {}

TCDescDataBroadcast::~TCDescDataBroadcast()
{
    DeleteAll();
}

void TCDescDataBroadcast::DeleteAll()
{
    m_dataBroadcastId = 0;
    m_componentTag = 0;
    m_selector = TTRawRun();
    m_language = 0;
    m_text = TTRawRun();
}

TCBaseDesc* TCDescDataBroadcast::Fork() const
{
    return t_ForkAs(new TCDescDataBroadcast());
}

int TCDescDataBroadcast::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length < 2)
        return 0;
    TCByteReader reader(payload, length);
    m_dataBroadcastId = static_cast<unsigned short>(reader.U16());
    if (!reader.Has(1))
        return reader.Consumed();
    m_componentTag = static_cast<unsigned char>(reader.U8());
    if (!reader.Has(1))
        return reader.Consumed();
    const int selectorLength = static_cast<int>(reader.U8());
    if (!reader.Has(selectorLength))
        return reader.Consumed();
    m_selector = t_Run(payload, reader.Here(), selectorLength);
    reader.Skip(selectorLength);
    if (!reader.Has(3))
        return reader.Consumed();
    m_language = reader.U24();
    if (!reader.Has(1) || !reader.Has(1 + reader.Here()[0]))
        return reader.Consumed();
    const int textLength = static_cast<int>(reader.U8());
    m_text = t_Run(payload, reader.Here(), textLength);
    reader.Skip(textLength);
    return reader.Consumed();
}

bool TCDescDataBroadcast::SelectorByte(char* buffer, int* size) const
{
    return zum_text::Copy(t_At(m_selector), m_selector.length, buffer, size);
}

bool TCDescDataBroadcast::TextChar(char* buffer, int* size) const
{
    return zum_text::Copy(t_At(m_text), m_text.length, buffer, size);
}

// ---------------------------------------------------------------- data broadcast id

TCDescDataBroadcastId::TCDescDataBroadcastId() : TCBaseDesc(0x66) {}

TCDescDataBroadcastId::~TCDescDataBroadcastId()
{
    DeleteAll();
}

void TCDescDataBroadcastId::DeleteAll()
{
    m_dataBroadcastId = 0;
    m_ssuInfoLoops.clear();
    m_OUIDataLength = 0;
    m_bytes = TTRawRun();
}

TCBaseDesc* TCDescDataBroadcastId::Fork() const
{
    return t_ForkAs(new TCDescDataBroadcastId());
}

int TCDescDataBroadcastId::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length < 2)
        return 0;
    m_dataBroadcastId = static_cast<unsigned short>(ReadBE16(payload));
    int at = 2;
    if (m_IsUpdate() && length > 2) {
        m_OUIDataLength = payload[2];
        const int end = std::min(3 + m_OUIDataLength, static_cast<int>(length));
        for (at = 3; at < end;) {
            m_ssuInfoLoops.emplace_back();
            at += m_ssuInfoLoops.back().Parse(payload + at, end - at);
        }
    }
    if (at < length)
        m_bytes = t_Run(payload, payload + at, length - at);
    return length;
}

unsigned char TCDescDataBroadcastId::OUIDataLength() const
{
    return m_IsUpdate() ? m_OUIDataLength : 0;
}

int TCDescDataBroadcastId::NumOfSSUInfoLoop() const
{
    return m_IsUpdate() ? static_cast<int>(m_ssuInfoLoops.size()) : 0;
}

const CSSUInfoLoop* TCDescDataBroadcastId::SSUInfoLoop(unsigned int index) const
{
    return m_IsUpdate() ? RecordAt(m_ssuInfoLoops, static_cast<int>(index)) : nullptr;
}

int TCDescDataBroadcastId::NumOfPrivateDataByte() const
{
    return m_IsUpdate() ? m_bytes.length : 0;
}

bool TCDescDataBroadcastId::PrivateDataByte(char* buffer, int* size) const
{
    return m_IsUpdate() && zum_text::Copy(t_At(m_bytes), m_bytes.length, buffer, size);
}

int TCDescDataBroadcastId::NumOfIDSelectorByte() const
{
    return m_IsUpdate() ? 0 : m_bytes.length;
}

bool TCDescDataBroadcastId::IDSelectorByte(char* buffer, int* size) const
{
    return !m_IsUpdate() && zum_text::Copy(t_At(m_bytes), m_bytes.length, buffer, size);
}

// ---------------------------------------------------------------- SSU location

TCDescSSULocation::TCDescSSULocation() : TCBaseDesc(0x03) {}

TCDescSSULocation::~TCDescSSULocation()
{
    DeleteAll();
}

void TCDescSSULocation::DeleteAll()
{
    m_dataBroadcastId = 0;
    m_associationTag = 0;
    m_privateData = TTRawRun();
}

TCBaseDesc* TCDescSSULocation::Fork() const
{
    return t_ForkAs(new TCDescSSULocation());
}

int TCDescSSULocation::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    TCByteReader reader(payload, length);
    m_dataBroadcastId = static_cast<unsigned short>(reader.U16());
    if (m_dataBroadcastId == TCDescDataBroadcastId::kSystemSoftwareUpdate)
        m_associationTag = static_cast<unsigned short>(reader.U16());
    if (reader.Left() > 0 && !reader.IsShort())
        m_privateData = t_Run(payload, reader.Here(), reader.Left());
    return reader.IsShort() ? reader.Consumed() : length;
}

bool TCDescSSULocation::PrivateDataByte(char* buffer, int* size) const
{
    return zum_text::Copy(t_At(m_privateData), m_privateData.length, buffer, size);
}
