#include "SVCTParserICM.h"

#include <iterator>

#include "../core/ByteReader.h"

TCSVCTParserICM::~TCSVCTParserICM() = default;

void TCSVCTParserICM::DeleteAll()
{
    m_records.clear();
}

const TCSVCTParserICM::TTRecord* TCSVCTParserICM::Record(unsigned int position) const
{
    if (position >= m_records.size())
        return nullptr;
    return std::next(m_records.begin(), position)->second.get();
}

const TCSVCTParserICM::TTRecord* TCSVCTParserICM::RecordByIndex(int index) const
{
    auto it = m_records.find(index);
    return it == m_records.end() ? nullptr : it->second.get();
}

int TCSVCTParserICM::t_Parse(const unsigned char* data, int* status)
{
    if (t_size < 3)
        return 0;
    const int firstIndex = ReadBE16(data) & 0x0FFF;
    const int count = data[2] & 0x7F;
    if (count == 0) {
        *status = 4;
        return 3;
    }
    *status = 1;
    bool changed = false;
    int read = 0;
    for (; read < count && 3 + 4 * (read + 1) <= t_size; ++read) {
        const unsigned char* at = data + 3 + 4 * read;
        TTRecord record;
        record.index = static_cast<unsigned short>(firstIndex + read);
        record.sourceId = ReadBE16(at);
        record.virtualChannelNumber = ReadBE16(at + 2) & 0x0FFF;
        auto held = m_records.find(record.index);
        if (held == m_records.end()) {
            m_records.emplace(record.index, std::make_unique<TTRecord>(record));
            *status = 3;
        } else if (held->second->index == record.index && held->second->sourceId == record.sourceId &&
                   held->second->virtualChannelNumber == record.virtualChannelNumber) {
            *status = 1;
        } else {
            changed = true;
        }
    }
    if (changed) {
        DeleteAll();
        *status = 2;
    }
    return 4 * read + 3;
}
