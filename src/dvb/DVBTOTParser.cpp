#include "DVBTOTParser.h"

#include <algorithm>

#include "../core/ByteReader.h"
#include "../core/Descriptor.h"
#include "../core/Diagnostics.h"
#include "DescLocalTimeOffset.h"

namespace {

const int kLocalTimeOffsetTag = 0x58;
const int kUtcTimeSize = 5;
// UTC_time (5 bytes), then reserved bits and descriptors_loop_length.
const int kLoopStart = 7;

} // namespace

TCDVBTOTParser::TCDVBTOTParser(const ZUMHandle& handle) : TCSectionParser(0x73, handle) {}

TCDVBTOTParser::~TCDVBTOTParser()
{
    DeleteAll();
}

void TCDVBTOTParser::DeleteAll()
{
    m_descriptors.DeleteAll();
}

void TCDVBTOTParser::t_Initialize() {}

bool TCDVBTOTParser::GetLocalTimeOffsetDescList(std::list<TCBaseDesc*>* pDescList) const
{
    if (!ZUM_ASSERT(pDescList))
        return false;
    const int count = m_descriptors.NumOfDescriptors(kLocalTimeOffsetTag);
    for (int i = 0; i < count; ++i)
        pDescList->push_back(m_descriptors.Descriptor(kLocalTimeOffsetTag, static_cast<unsigned int>(i))->Fork());
    return count > 0;
}

bool TCDVBTOTParser::t_Parse(const unsigned char* body, int length)
{
    // Only the last section's descriptors stand.
    DeleteAll();
    // UTC_time is read as far as the section reaches; bytes behind its end read as 0.
    unsigned char utc[kUtcTimeSize] = {};
    std::copy(body, body + std::max(0, std::min(length, kUtcTimeSize)), utc);
    m_time = TCDescLocalTimeOffset::ConvertDVBtimetoATSCtime(utc);
    // Without room for the loop length there is no loop.
    if (length < kLoopStart)
        return true;
    // A loop that claims more than the section holds is cut at its end.
    const int loopLength = std::min(static_cast<int>(ReadBE16(body + 5) & 0x0FFF), length - kLoopStart);
    TCDescriptor descriptor(m_handle);
    descriptor.Parse(body + kLoopStart, loopLength, m_descriptors, m_tableId);
    return true;
}
