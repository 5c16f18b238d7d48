#include "DescServiceLocation.h"

#include <algorithm>

#include "../core/ByteReader.h"
#include "../core/Diagnostics.h"
#include "../core/Log.h"

namespace {

constexpr int kHeaderSize = 3;
constexpr int kElementSize = 6;

} // namespace

TCDescServiceLocation::TCDescServiceLocation() : TCBaseDesc(0xA1) {}

TCDescServiceLocation::~TCDescServiceLocation()
{
    DeleteAll();
}

void TCDescServiceLocation::DeleteAll()
{
    m_pcrPid = 0xFFFF;
    m_numberElements = 0;
    m_elements = TTRawRun();
}

TCBaseDesc* TCDescServiceLocation::Fork() const
{
    return t_ForkAs(new TCDescServiceLocation());
}

int TCDescServiceLocation::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length < kHeaderSize)
        return 0;
    m_pcrPid = static_cast<unsigned short>(ReadBE16(payload) & 0x1FFF);
    const int count = payload[2];
    // An element past the body ends the list.
    const int held = std::min(count, (length - kHeaderSize) / kElementSize);
    m_numberElements = static_cast<unsigned char>(held);
    m_elements = t_Run(payload, payload + kHeaderSize, held * kElementSize);
    return kHeaderSize + kElementSize * count;
}

const unsigned char* TCDescServiceLocation::m_Element(int index, int line) const
{
    if (index < 0 || index >= m_numberElements || t_At(m_elements) == nullptr) {
        ZUM_LOGD("[ASSERTION!!!] TCDescServiceLocation Line = %d", line);
        (void)ZUM_ASSERT(0);
        return nullptr;
    }
    return t_At(m_elements) + index * kElementSize;
}

unsigned int TCDescServiceLocation::StreamType(int index) const
{
    const unsigned char* element = m_Element(index, __LINE__);
    return element ? element[0] : 0;
}

unsigned int TCDescServiceLocation::ElementaryPID(int index) const
{
    const unsigned char* element = m_Element(index, __LINE__);
    return element ? ReadBE16(element + 1) & 0x1FFF : 0xFFFFFFFF;
}

unsigned int TCDescServiceLocation::ISO639LanguageCode(int index) const
{
    const unsigned char* element = m_Element(index, __LINE__);
    return element ? (static_cast<unsigned int>(element[3]) << 16) | (element[4] << 8) | element[5] : 0;
}
