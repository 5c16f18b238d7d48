#include "SVCTParserDCM.h"

#include <algorithm>

#include "../core/ByteReader.h"
#include "../core/Diagnostics.h"

TCSVCTParserDCM::~TCSVCTParserDCM() = default;

void TCSVCTParserDCM::DeleteAll()
{
    m_repeatCount = 0;
    m_cycle.clear();
    m_channels.clear();
    m_channelCount = 0;
}

bool TCSVCTParserDCM::GetDCMChannelList(std::list<int*>* pChannelList) const
{
    if (!ZUM_ASSERT(pChannelList))
        return false;
    if (m_channels.empty())
        return false;
    for (int channel : m_channels)
        pChannelList->push_back(new int(channel));
    return true;
}

int TCSVCTParserDCM::t_Parse(const unsigned char* data, int* status)
{
    if (t_size < 3)
        return 0;
    int channel = ReadBE16(data) & 0x0FFF;
    int length = data[2] & 0x7F;
    // A data byte behind the section's end is not read.
    if (length > t_size - 3)
        length = t_size - 3;
    // Virtual channel numbers have 12 bits: a run past them names no channel,
    // and hostile counts could otherwise grow the map by a hundred thousand.
    constexpr int kChannelEnd = 0x1000;
    for (int i = 0; i < length && channel < kChannelEnd; ++i) {
        const bool defined = (data[3 + i] & 0x80) != 0;
        const int count = data[3 + i] & 0x7F;
        if (defined) {
            for (int c = channel; c < std::min(channel + count, kChannelEnd); ++c) {
                if (!m_cycle.emplace(c, c).second)
                    ++m_repeatCount;
            }
        }
        channel += count;
    }
    if (m_repeatCount < static_cast<int>(m_cycle.size()))
        return length + 3;
    if (*status != 1) {
        m_channels.clear();
        for (const auto& entry : m_cycle)
            m_channels.push_back(entry.first);
        m_channelCount = static_cast<int>(m_channels.size());
        m_repeatCount = 0;
        m_cycle.clear();
        *status = 1;
    } else if (m_repeatCount == m_channelCount) {
        m_repeatCount = 0;
        m_cycle.clear();
        *status = 1;
    } else {
        DeleteAll();
        *status = 2;
    }
    return length + 3;
}
