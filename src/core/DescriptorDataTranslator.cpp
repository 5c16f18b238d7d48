#include "DescriptorDataTranslator.h"

#include "Log.h"

TCDescriptorDataTranslator::TCDescriptorDataTranslator(const unsigned char* data, unsigned char length)
    : m_pData(data), m_length(data ? length : 0), m_bitCount(m_length * 8), m_pEnd(data ? data + m_length : nullptr)
{
}

bool TCDescriptorDataTranslator::ReadBitsAt(const unsigned char* data, int byteLength, long long position,
                                            int count, uint64_t& value)
{
    // Counted against the bits left, so that no count overflows the sum.
    if (!data || count < 1 || count > 64 || position < 0 || count > byteLength * 8LL - position)
        return false;
    uint64_t bits = 0;
    for (long long p = position; p < position + count; ++p)
        bits = (bits << 1) | ((data[p / 8] >> (7 - (p & 7))) & 1u);
    value = bits;
    return true;
}

uint64_t TCDescriptorDataTranslator::GetBits(int count)
{
    uint64_t value = 0;
    if (!ReadBitsAt(m_pData, m_length, m_position, count, value))
        return 0;
    m_position = static_cast<unsigned short>(m_position + count);
    return value;
}

void TCDescriptorDataTranslator::SkipBits(int count)
{
    const long long target = static_cast<long long>(m_position) + count;
    if (target < 0 || target >= m_bitCount)
        return;
    m_position = static_cast<unsigned short>(target);
}

unsigned char TCDescriptorDataTranslator::GetUInt8()
{
    if (EndOfData()) {
        ZUM_LOGE("Reading out of bonds!");
        return 0;
    }
    const unsigned char value = m_pData[m_position / 8];
    m_position = static_cast<unsigned short>((m_position / 8 + 1) * 8);
    return value;
}

bool TCDescriptorDataTranslator::EndOfData() const
{
    return !m_pData || m_pData + m_position / 8 >= m_pEnd;
}
