#include "DescTelekomGrid.h"

#include "../core/ByteReader.h"
#include "../core/RecordAt.h"

namespace {
constexpr int kGridEntrySize = 4;
} // namespace

TCDescTelekomGrid::TCDescTelekomGrid() : TCBaseDesc(0xE2) {}

void TCDescTelekomGrid::DeleteAll()
{
    m_count = 0;
}

TCBaseDesc* TCDescTelekomGrid::Fork() const
{
    return t_ForkAs(new TCDescTelekomGrid());
}

bool TCDescTelekomGrid::GetGridPositionList(unsigned short serviceId, std::list<unsigned short>& positions) const
{
    for (int i = 0; i < m_count; ++i) {
        const unsigned char* entry = RawRecordAt(t_Payload(), m_count, kGridEntrySize, i);
        if (ReadBE16(entry) == serviceId)
            positions.push_back(static_cast<unsigned short>(ReadBE16(entry + 2)));
    }
    return !positions.empty();
}

bool TCDescTelekomGrid::GetServiceIDSet(std::set<unsigned short>& serviceIds) const
{
    for (int i = 0; i < m_count; ++i)
        serviceIds.insert(static_cast<unsigned short>(ReadBE16(RawRecordAt(t_Payload(), m_count, kGridEntrySize, i))));
    return !serviceIds.empty();
}

int TCDescTelekomGrid::t_Parse(const unsigned char* /*payload*/, unsigned char length)
{
    DeleteAll();
    if (length < kGridEntrySize)
        return 0;
    m_count = length / kGridEntrySize;
    return m_count * kGridEntrySize;
}
