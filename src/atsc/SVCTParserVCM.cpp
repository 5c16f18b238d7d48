#include "SVCTParserVCM.h"

#include <iterator>

#include "../core/ByteReader.h"
#include "../core/Descriptor.h"
#include "../core/Diagnostics.h"
#include "OOBSectionParser.h"

TCSVCTParserVC::TCSVCTParserVC(unsigned short virtualChannelNumber, const ZUMHandle& handle)
    : m_handle(handle), m_virtualChannelNumber(static_cast<short>(virtualChannelNumber))
{
}

int TCSVCTParserVC::Parse(const unsigned char* data, unsigned char descriptorsIncluded, unsigned char splice,
                          unsigned int activationTime, int size)
{
    if (!ZUM_ASSERT(m_virtualChannelNumber != (short)INVALID))
        return 0;
    const int fixed = kRecordSize + (descriptorsIncluded ? 1 : 0);
    if (!data || size < fixed)
        return 0;
    m_applicationVirtualChannel = (data[2] >> 7) & 0x01;
    m_pathSelect = (data[2] >> 5) & 0x01;
    m_transportType = (data[2] >> 4) & 0x01;
    m_channelType = data[2] & 0x0F;
    m_sourceId = ReadBE16(data + 3);
    m_cdsReference = data[5];
    if (m_transportType == 0) {
        m_programNumber = ReadBE16(data + 6);
        m_mmsReference = data[8];
        m_scrambled = m_videoStandard = 0;
    } else {
        m_programNumber = 0;
        m_mmsReference = 0;
        m_scrambled = (data[6] >> 7) & 0x01;
        m_videoStandard = data[6] & 0x0F;
    }
    m_splice = splice;
    m_activationTime = activationTime;
    if (!descriptorsIncluded)
        return kRecordSize;
    m_descriptorCount = data[kRecordSize];
    const int span = ZumDescriptorSpan(data + fixed, m_descriptorCount, size - fixed);
    if (span < 0)
        return 0;
    TCDescriptor(m_handle).ParseByCount(data + fixed, m_descriptorCount, m_descriptors, 0xC4, span);
    return fixed + span;
}

bool TCSVCTParserVC::IsEqual(TCSVCTParserVC* pCmpVC) const
{
    if (!ZUM_ASSERT(pCmpVC))
        return false;
    const TCSVCTParserVC& o = *pCmpVC;
    return m_applicationVirtualChannel == o.m_applicationVirtualChannel && m_pathSelect == o.m_pathSelect &&
           m_transportType == o.m_transportType && m_channelType == o.m_channelType &&
           m_activationTime == o.m_activationTime && m_sourceId == o.m_sourceId &&
           m_cdsReference == o.m_cdsReference;
}

TCSVCTParserVCM::~TCSVCTParserVCM() = default;

void TCSVCTParserVCM::DeleteAll()
{
    m_records.clear();
}

TCSVCTParserVC* TCSVCTParserVCM::VC(unsigned int index) const
{
    if (index >= m_records.size())
        return nullptr;
    return std::next(m_records.begin(), index)->second.get();
}

int TCSVCTParserVCM::t_Parse(const unsigned char* data, int* status)
{
    const int entryStatus = *status;
    if (t_size < 7)
        return 0;
    m_descriptorsIncluded = (data[0] >> 5) & 0x01;
    m_splice = (data[1] >> 7) & 0x01;
    m_activationTime = ReadBE32(data + 2);
    m_recordCount = data[6];
    int offset = 7;
    if (m_recordCount == 0) {
        *status = 1;
        return offset;
    }
    int read = 0, equal = 0;
    bool changed = false;
    for (; read < m_recordCount; ++read) {
        if (t_size - offset < 2)
            break;
        const unsigned short number = ReadBE16(data + offset) & 0x0FFF;
        auto vc = std::make_unique<TCSVCTParserVC>(number, m_handle);
        const int n = vc->Parse(data + offset, m_descriptorsIncluded, m_splice, m_activationTime, t_size - offset);
        if (n == 0)
            break;
        offset += n;
        const int key = static_cast<int>(number + (static_cast<unsigned int>(vc->SourceId()) << 16));
        auto held = m_records.find(key);
        if (held == m_records.end())
            m_records.emplace(key, std::move(vc));
        else if (held->second->IsEqual(vc.get()))
            ++equal;
        else
            changed = true;
    }
    if (equal == read && read > 0)
        *status = 1;
    else if (entryStatus != 1 && !changed)
        *status = 3;
    else {
        DeleteAll();
        *status = 2;
    }
    return offset;
}
