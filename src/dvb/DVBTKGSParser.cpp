#include "DVBTKGSParser.h"

#include <algorithm>

#include "../core/ByteReader.h"
#include "../core/Descriptor.h"
#include "../core/Log.h"
#include "../operators/TKGSText.h"
#include "../psi/PMTParser.h"
#include "DVBSDTParser.h"

namespace {

constexpr int kTableIdTKGS = 0xA7;
constexpr unsigned char kTableIdSDT = 0x42;
constexpr short kPidSDT = 0x11;
constexpr short kPidPMT = 2;
constexpr int kClosingBytes = 4;
// The stream ends in two bytes that nobody reads.
constexpr unsigned int kTrailerBytes = 2;

constexpr unsigned char kTagInfoText = 0x90;
constexpr unsigned char kTagInterfaceVersion = 0x91;
constexpr unsigned char kTagListName = 0x93;
constexpr unsigned char kTagListNumber = 0x94;

bool SourceKind(unsigned char tag, EAntennaMode& kind)
{
    switch (tag) {
    case 0xA0: kind = EANTENNA_MODE_SATELLITE; return true;
    case 0xA1: kind = EANTENNA_MODE_CABLE; return true;
    case 0xA2: kind = EANTENNA_MODE_AIR; return true;
    default: return false;
    }
}

unsigned int Length20(const unsigned char* at)
{
    return ReadBE24(at) & 0xFFFFF;
}

} // namespace

TCDVBTKGSParser::TCDVBTKGSParser(const ZUMHandle& handle) : TCSectionParser(kTableIdTKGS, handle) {}

TCDVBTKGSParser::~TCDVBTKGSParser() = default;

void TCDVBTKGSParser::t_Initialize()
{
    m_lastCheck = TABLE_FIRST;
}

void TCDVBTKGSParser::DeleteAll()
{
    m_DeleteParsedData();
    m_rawSections.clear();
}

void TCDVBTKGSParser::m_DeleteParsedData()
{
    m_descriptors.reset();
    m_sdt.reset();
    m_pmt.reset();
    m_stream.clear();
    m_infoTexts.clear();
    m_servicesBySource.clear();
    m_serviceKeys.clear();
    m_deliveryIndex.clear();
    m_serviceLists.clear();
    m_complete = false;
}

bool TCDVBTKGSParser::t_Parse(const unsigned char* body, int length)
{
    m_lastCheck = t_CheckVersion(m_versionNumber, m_sectionNumber, m_lastSectionNumber, m_crc);
    switch (m_lastCheck) {
    case TABLE_FIRST:
    case TABLE_CHANGED: m_rawSections.clear(); break;
    case TABLE_ADD: break;
    default: return false;
    }
    return m_Parse(m_sectionNumber, body, length);
}

bool TCDVBTKGSParser::m_Parse(int sectionNumber, const unsigned char* body, int length)
{
    m_rawSections[sectionNumber].assign(body, body + std::max(0, length));
    if (!IsValid())
        return false;

    m_DeleteParsedData();
    m_sdt = std::make_unique<TCDVBSDTParser>(kTableIdSDT, kZUMDefaultHandle);
    m_pmt = std::make_unique<TCPMTParser>(m_handle);
    m_descriptors = std::make_unique<TCDescriptorHash>();

    size_t size = 0;
    for (const auto& raw : m_rawSections)
        size += raw.second.size() > kClosingBytes ? raw.second.size() - kClosingBytes : 0;
    m_stream.reserve(size);
    for (const auto& raw : m_rawSections)
        if (raw.second.size() > kClosingBytes)
            m_stream.insert(m_stream.end(), raw.second.begin(), raw.second.end() - kClosingBytes);
    m_rawSections.clear();

    unsigned int offset = 0;
    if (!m_ParseTkgsInfo(offset)) {
        ZUM_LOGE("TCDVBTKGSParser::m_Parse  Fail to parse TKGS Info section");
        return false;
    }
    if (m_interfaceVersion != SUPPORTED_INTERFACE_VERSION) {
        ZUM_LOGE("TCDVBTKGSParser::m_Parse  Wrong interface version supported:%d, current:%d",
                 SUPPORTED_INTERFACE_VERSION, m_interfaceVersion);
        return false;
    }
    if (!m_ParseBroadcastSource(offset)) {
        ZUM_LOGE("TCDVBTKGSParser::m_Parse  Fail to parse Broadcast Source section");
        return false;
    }
    if (!m_ParseServiceList(offset)) {
        ZUM_LOGE("TCDVBTKGSParser::m_Parse  Fail to parse Service List section");
        return false;
    }
    if (!m_ParseCategory(offset)) {
        ZUM_LOGE("TCDVBTKGSParser::m_Parse  Fail to parse Category section");
        return false;
    }
    m_complete = m_stream.size() == static_cast<size_t>(offset) + kTrailerBytes;
    return m_complete;
}

long long TCDVBTKGSParser::m_Left(unsigned int offset, unsigned long long end) const
{
    return static_cast<long long>(std::min<unsigned long long>(end, m_stream.size())) - offset;
}

TCDVBTKGSParser::TTText TCDVBTKGSParser::m_Text(const unsigned char* text, int length, ELanguageCode language) const
{
    return TkgsText(m_handle, text, length, language);
}

// ---------------------------------------------------------------- info

bool TCDVBTKGSParser::m_ParseTkgsInfo(unsigned int& offset)
{
    const unsigned char* s = m_stream.data();
    const size_t size = m_stream.size();
    if (m_Left(offset, size) < 2)
        return false;
    const unsigned int infoLength = ReadBE16(s + offset);
    offset += 2;
    if (m_Left(offset, size) < infoLength)
        return false;
    const unsigned int end = offset + infoLength;
    while (offset < end) {
        if (m_Left(offset, size) < 2 || m_Left(offset + 2, size) < s[offset + 1])
            return false;
        const unsigned char tag = s[offset];
        const unsigned int last = offset + 1 + s[offset + 1];
        if (tag == kTagInfoText) {
            // Texts until the descriptor's last byte; each must lie inside the stream.
            offset += 2;
            while (offset < last) {
                if (m_Left(offset, size) < 4 || m_Left(offset + 4, size) < s[offset + 3])
                    return false;
                const ELanguageCode language = TkgsLanguage(s + offset);
                const int textLength = s[offset + 3];
                m_infoTexts[language] = m_Text(s + offset + 4, textLength, language);
                offset += 4 + textLength;
            }
        } else if (tag == kTagInterfaceVersion) {
            if (m_Left(offset, size) < 3)
                return false;
            m_interfaceVersion = s[offset + 2];
            offset += 3;
        } else {
            offset = last + 1;
        }
    }
    return true;
}

// ---------------------------------------------------------------- broadcast source

bool TCDVBTKGSParser::m_ParseBroadcastSource(unsigned int& offset)
{
    const unsigned char* s = m_stream.data();
    if (m_Left(offset, m_stream.size()) < 3)
        return false;
    const unsigned int blockLength = Length20(s + offset);
    offset += 3;
    if (blockLength == 0)
        return false;
    const unsigned long long blockEnd = static_cast<unsigned long long>(offset) + blockLength;

    if (m_Left(offset, blockEnd) < 1)
        return false;
    const unsigned int headerLength = s[offset++];
    if (m_Left(offset, blockEnd) < headerLength || m_Left(offset, blockEnd) < 2)
        return false;
    EAntennaMode source;
    if (!SourceKind(s[offset], source))
        return false;
    const int tagLength = s[offset + 1];
    if (tagLength > static_cast<int>(headerLength) - 2 || m_Left(offset + 2, blockEnd) < tagLength)
        return false;
    // The source data is not read; the transports follow it directly.
    offset += 2 + tagLength;

    if (m_Left(offset, blockEnd) <= 2)
        return false;
    const unsigned int transportsLength = Length20(s + offset);
    offset += 3;
    if (m_Left(offset, blockEnd) < transportsLength)
        return false;
    const unsigned int transportsEnd = offset + transportsLength;
    while (offset < transportsEnd)
        if (!m_ParseTransport(offset, transportsEnd, source))
            return false;
    return true;
}

bool TCDVBTKGSParser::m_ParseTransport(unsigned int& offset, unsigned int end, EAntennaMode source)
{
    const unsigned char* s = m_stream.data();
    if (m_Left(offset, end) < 1)
        return false;
    const unsigned int deliveryLength = s[offset++];
    if (m_Left(offset, end) < deliveryLength)
        return false;
    const int before = m_descriptors->NumOfDescriptors();
    TCDescriptor delivery(kZUMDefaultHandle);
    offset += static_cast<unsigned int>(
        std::max(0, delivery.Parse(s + offset, static_cast<int>(deliveryLength), *m_descriptors, kTableIdTKGS)));
    const unsigned int deliveryIndex =
        m_descriptors->NumOfDescriptors() == before + 1 ? static_cast<unsigned int>(before) : NO_DELIVERY_INDEX;

    while (m_Left(offset, end) >= 1 && s[offset] == kTableIdSDT) {
        if (m_Left(offset, end) < 3)
            return false;
        const unsigned int sectionSize = (ReadBE16(s + offset + 1) & 0x0FFF) + 3;
        if (m_Left(offset, end) < sectionSize)
            return false;
        m_sdt->Parse(kPidSDT, s + offset);
        offset += sectionSize;
    }

    if (m_Left(offset, end) < 2)
        return false;
    const unsigned int loopLength = ReadBE16(s + offset);
    offset += 2;
    if (m_Left(offset, end) < loopLength)
        return false;
    const unsigned int loopEnd = offset + loopLength;
    while (offset < loopEnd) {
        // An entry is not cut at the loop's end, but its section must lie inside the stream.
        if (m_Left(offset, m_stream.size()) < 5)
            return false;
        const unsigned int serviceId = ReadBE16(s + offset) & 0x1FFF;
        const unsigned int sectionSize = (ReadBE16(s + offset + 3) & 0x0FFF) + 3;
        if (m_Left(offset + 2, m_stream.size()) < sectionSize)
            return false;
        m_pmt->Parse(kPidPMT, s + offset + 2);
        m_serviceKeys[serviceId] =
            TCServiceKey(m_sdt->LastOriginalNetworkId(), m_sdt->LastTransportStreamId(), m_pmt->LastProgramNumber());
        m_servicesBySource[source].push_back(serviceId);
        m_deliveryIndex[serviceId] = deliveryIndex;
        offset += 2 + sectionSize;
    }
    return true;
}

// ---------------------------------------------------------------- service lists

bool TCDVBTKGSParser::m_ParseServiceList(unsigned int& offset)
{
    if (m_Left(offset, m_stream.size()) < 3)
        return false;
    const unsigned int listsLength = Length20(m_stream.data() + offset);
    offset += 3;
    const unsigned int end = offset + listsLength;
    while (offset < end) {
        // A failing list leaves its partial record behind.
        m_serviceLists.emplace_back();
        if (!m_ParseOneServiceList(offset, end))
            return false;
    }
    return true;
}

bool TCDVBTKGSParser::m_ParseOneServiceList(unsigned int& offset, unsigned int end)
{
    const unsigned char* s = m_stream.data();
    TSServicesLists& list = m_serviceLists.back();
    if (m_Left(offset, end) < 2)
        return false;
    const unsigned int listLength = ReadBE16(s + offset);
    offset += 2;
    if (m_Left(offset, end) < listLength)
        return false;
    const unsigned int listEnd = offset + listLength;
    while (offset < listEnd) {
        if (m_Left(offset, listEnd) < 2)
            return false;
        const unsigned char tag = s[offset];
        const int length = s[offset + 1];
        if (m_Left(offset + 2, listEnd) < length)
            return false;
        const unsigned char* body = s + offset + 2;
        if (tag == kTagListName) {
            // Language, text length, text: all inside the descriptor.
            if (length < 4 || body[3] > length - 4)
                return false;
            const ELanguageCode language = TkgsLanguage(body);
            list.names[language] = m_Text(body + 4, body[3], language);
            offset += 2 + 4 + body[3];
        } else if (tag == kTagListNumber) {
            if (length < 4)
                return false;
            list.numbers[ReadBE16(body + 2) & 0x1FFF] = static_cast<unsigned short>(ReadBE16(body));
            offset += 6;
        } else {
            offset += 2 + length;
        }
    }
    return true;
}

// ---------------------------------------------------------------- categories

bool TCDVBTKGSParser::m_ParseCategory(unsigned int& offset)
{
    if (m_Left(offset, m_stream.size()) < 2)
        return false;
    const unsigned int categoryLength = ReadBE16(m_stream.data() + offset);
    offset += 2;
    if (m_Left(offset, m_stream.size()) < categoryLength)
        return false;
    TCDescriptor categories(kZUMDefaultHandle);
    categories.Parse(m_stream.data() + offset, static_cast<int>(categoryLength), *m_descriptors, kTableIdTKGS);
    offset += categoryLength;
    return true;
}

// ---------------------------------------------------------------- accessors

bool TCDVBTKGSParser::GetServiceKey(unsigned int serviceId, TCServiceKey& key) const
{
    const auto it = m_serviceKeys.find(serviceId);
    if (it == m_serviceKeys.end())
        return false;
    key = it->second;
    return true;
}

bool TCDVBTKGSParser::GetDeliverySystemIndex(unsigned int serviceId, unsigned int& index) const
{
    const auto it = m_deliveryIndex.find(serviceId);
    if (it == m_deliveryIndex.end())
        return false;
    index = it->second;
    return index != NO_DELIVERY_INDEX;
}

bool TCDVBTKGSParser::GetServiceListTranslationByIndex(unsigned int listIndex,
                                                       std::map<ELanguageCode, TTText>& names) const
{
    if (listIndex >= m_serviceLists.size())
        return false;
    names = m_serviceLists[listIndex].names;
    return true;
}

bool TCDVBTKGSParser::GetServicLcnByIndex(unsigned int listIndex, std::map<unsigned int, unsigned short>& numbers) const
{
    if (listIndex >= m_serviceLists.size())
        return false;
    numbers = m_serviceLists[listIndex].numbers;
    return true;
}

int TCDVBTKGSParser::NumOfDescriptors(int tag) const
{
    return m_descriptors ? m_descriptors->NumOfDescriptors(tag) : 0;
}

TCBaseDesc* TCDVBTKGSParser::Descriptor(int tag, unsigned int index) const
{
    return m_descriptors ? m_descriptors->Descriptor(tag, index) : nullptr;
}

int TCDVBTKGSParser::NumOfDescriptors() const
{
    return m_descriptors ? m_descriptors->NumOfDescriptors() : 0;
}

TCBaseDesc* TCDVBTKGSParser::DescriptorByIndex(unsigned int index) const
{
    return m_descriptors ? m_descriptors->DescriptorByIndex(index) : nullptr;
}

bool TCDVBTKGSParser::GetDescriptor(std::list<TCBaseDesc*>* list) const
{
    return m_descriptors && m_descriptors->GetDescriptor(list);
}
