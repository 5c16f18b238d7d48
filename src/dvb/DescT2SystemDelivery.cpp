#include "DescT2SystemDelivery.h"

#include "../core/ByteReader.h"

namespace {

const unsigned int kT2ExtensionTag = 0x04;
// The fields of bytes 4, 5 are read only from a body of this size on.
const int kMinBodyWithFlags = 7;
// Room from the cell id on for one cell's fixed part.
const int kMinCellWithTfs = 8;    // cell id, loop length, one frequency, sub-cell length
const int kMinCellWithoutTfs = 7; // cell id, one frequency, sub-cell length
const int kFrequencySize = 4;
const int kSubCellSize = 5;

int T2Bandwidth(unsigned int code)
{
    static const int kValues[6] = {3, 2, 1, 0, 4, 5};
    return code < 6 ? kValues[code] : -1;
}

} // namespace

TCDescT2SystemDelivery::TCDescT2SystemDelivery() = default;

TCDescT2SystemDelivery::~TCDescT2SystemDelivery()
{
    DeleteAll();
}

void TCDescT2SystemDelivery::DeleteAll()
{
    m_cellIdMap.clear();
    m_subCellIdMap.clear();
}

TCBaseDesc* TCDescT2SystemDelivery::Fork() const
{
    return t_ForkAs(new TCDescT2SystemDelivery());
}

void TCDescT2SystemDelivery::GetCellIdMap(std::map<unsigned short, std::vector<unsigned int>>& map) const
{
    map = m_cellIdMap;
}

void TCDescT2SystemDelivery::GetSubCellIdMap(
    std::map<unsigned short, std::map<unsigned char, unsigned int>>& map) const
{
    map = m_subCellIdMap;
}

int TCDescT2SystemDelivery::t_Parse(const unsigned char* payload, unsigned char length)
{
    TCByteReader reader(payload, length);
    if (!reader.Has(1) || reader.U8() != kT2ExtensionTag)
        return 0;
    if (!reader.Has(1))
        return reader.Consumed();
    m_plpId = static_cast<unsigned char>(reader.U8());
    if (!reader.Has(2))
        return reader.Consumed();
    m_t2SystemId = static_cast<unsigned short>(reader.U16());
    if (length < kMinBodyWithFlags)
        return reader.Consumed();

    const unsigned int b4 = reader.U8();
    const unsigned int b5 = reader.U8();
    m_sisoMiso = static_cast<unsigned char>(b4 >> 6);
    m_bandwidth = T2Bandwidth((b4 >> 2) & 0x0F);
    m_guardInterval = static_cast<unsigned char>(b5 >> 5);
    m_transmissionMode = static_cast<unsigned char>((b5 >> 2) & 0x07);
    m_otherFrequencyFlag = static_cast<unsigned char>((b5 >> 1) & 0x01);
    m_tfsFlag = static_cast<unsigned char>(b5 & 0x01);
    m_ParseCells(reader);
    return reader.Consumed();
}

void TCDescT2SystemDelivery::m_ParseCells(TCByteReader& reader)
{
    while (reader.Left() >= 3) {
        const int fromCell = reader.Left();
        const unsigned short cellId = static_cast<unsigned short>(reader.U16());
        // The entry stays even when the walk ends before its frequencies.
        std::vector<unsigned int>& frequencies = m_cellIdMap[cellId];
        if (m_tfsFlag) {
            if (fromCell < kMinCellWithTfs)
                return;
            const int loopLength = static_cast<int>(reader.U8());
            for (int i = 0; i + kFrequencySize <= loopLength; i += kFrequencySize) {
                if (!reader.Has(kFrequencySize))
                    return;
                frequencies.push_back(reader.U32());
            }
            // Bytes of a loop length that is no multiple of four are passed over.
            if (!reader.Skip(loopLength % kFrequencySize))
                return;
        } else {
            if (fromCell < kMinCellWithoutTfs)
                return;
            frequencies.push_back(reader.U32());
        }

        if (!reader.Has(1))
            return;
        const int subLength = static_cast<int>(reader.U8());
        if (subLength == 0)
            continue;
        if (!reader.Has(subLength))
            return;
        std::map<unsigned char, unsigned int>& subCells = m_subCellIdMap[cellId];
        for (int i = 0; i + kSubCellSize <= subLength; i += kSubCellSize) {
            const unsigned char extension = static_cast<unsigned char>(reader.U8());
            subCells[extension] = reader.U32(); // a repeated extension keeps the later frequency
        }
        reader.Skip(subLength % kSubCellSize);
    }
}
