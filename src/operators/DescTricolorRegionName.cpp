#include "DescTricolorRegionName.h"

#include <zum-platform/UnicodeConverter.h>

#include "../core/ByteReader.h"
#include "../core/CompareISO8859Char.h"
#include "../core/RecordAt.h"

namespace {

constexpr int kBouquetEntrySize = 6;
constexpr int kRegionGroupHead = 4;

// Walks the groups of a list type body, filling `types` when given; returns the offset reached.
int WalkListTypes(const unsigned char* payload, int length, TCDescTricolorListType::ListTypes* types)
{
    int offset = 0;
    while (offset < length) {
        const int codeLength = payload[offset++];
        const int behindCodeLength = offset;
        if (codeLength > length - offset)
            return offset;
        const unsigned char* codes = payload + offset;
        offset += codeLength;
        if (offset >= length)
            return behindCodeLength;
        const int typeLength = payload[offset++];
        if (typeLength > length - offset)
            return offset;
        for (int t = 0; types && t < typeLength; ++t) {
            std::set<std::string>& set = (*types)[payload[offset + t]];
            for (int c = 0; c + 1 < codeLength; c += 2)
                set.insert(std::string(reinterpret_cast<const char*>(codes + c), 2));
        }
        offset += typeLength;
    }
    return offset;
}

} // namespace

// ---------------------------------------------------------------- bouquet list

TCDescTricolorBouquetList::TCDescTricolorBouquetList() : TCBaseDesc(0x86) {}

void TCDescTricolorBouquetList::DeleteAll()
{
    m_count = 0;
}

TCBaseDesc* TCDescTricolorBouquetList::Fork() const
{
    return t_ForkAs(new TCDescTricolorBouquetList());
}

bool TCDescTricolorBouquetList::GetBouquet(int index, Bouquet& bouquet) const
{
    const unsigned char* entry = RawRecordAt(t_Payload(), m_count, kBouquetEntrySize, index);
    if (!entry)
        return false;
    bouquet.firstId = ReadBE16(entry);
    bouquet.secondId = ReadBE16(entry + 2);
    bouquet.serviceId = ReadBE16(entry + 4);
    return true;
}

bool TCDescTricolorBouquetList::ContainsServiceID(unsigned short serviceId) const
{
    Bouquet bouquet;
    for (int i = 0; GetBouquet(i, bouquet); ++i)
        if (bouquet.serviceId == serviceId)
            return true;
    return false;
}

int TCDescTricolorBouquetList::t_Parse(const unsigned char* /*payload*/, unsigned char length)
{
    DeleteAll();
    // An entry cut by the body's end is not taken.
    m_count = length / kBouquetEntrySize;
    return m_count * kBouquetEntrySize;
}

// ---------------------------------------------------------------- region name

TCDescTricolorRegionName::TCDescTricolorRegionName(const ZUMHandle& handle) : TCBaseDesc(0x88), m_handle(handle) {}

void TCDescTricolorRegionName::DeleteAll()
{
    m_regions.clear();
}

TCBaseDesc* TCDescTricolorRegionName::Fork() const
{
    return t_ForkAs(new TCDescTricolorRegionName(m_handle));
}

bool TCDescTricolorRegionName::GetRegionData(int index, RegionData& region) const
{
    const TTRegion* stored = RecordAt(m_regions, index);
    if (!stored)
        return false;
    region.language = stored->language;
    const unsigned char* key = t_At(stored->key);
    region.key = key ? std::string(reinterpret_cast<const char*>(key), stored->key.length) : std::string();
    region.name.clear();
    if (const unsigned char* name = t_At(stored->name)) {
        unsigned short size = stored->name.length;
        TCUnicodeConverter converter(m_handle);
        converter.ConvertToUnicode(const_cast<unsigned char*>(name), size, region.name, false, stored->language, true);
    }
    return true;
}

int TCDescTricolorRegionName::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    TCByteReader reader(payload, length);
    while (reader.Left() > 0) {
        if (reader.Left() < kRegionGroupHead - 1)
            return reader.Consumed();
        const ELanguageCode language = TCCompareISO8859Char::MakeLowerCase(reader.U24());
        const int loopLength = static_cast<int>(reader.U8());
        if (reader.IsShort() || loopLength > reader.Left())
            return reader.Consumed();
        TCByteReader loop(reader.Here(), loopLength);
        const int loopStart = reader.Consumed();
        reader.Skip(loopLength);
        while (loop.Left() > 0) {
            TTRegion region{language, TTRawRun(), TTRawRun()};
            for (TTRawRun* run : {&region.key, &region.name}) {
                const int size = static_cast<int>(loop.U8());
                if (loop.IsShort() || size > loop.Left())
                    return loopStart + loop.Consumed();
                *run = t_Run(payload, loop.Here(), size);
                loop.Skip(size);
            }
            m_regions.push_back(region);
        }
    }
    return reader.Consumed();
}

// ---------------------------------------------------------------- list type

TCDescTricolorListType::TCDescTricolorListType() : TCBaseDesc(0xB2) {}

void TCDescTricolorListType::DeleteAll() {}

TCBaseDesc* TCDescTricolorListType::Fork() const
{
    return t_ForkAs(new TCDescTricolorListType());
}

TCDescTricolorListType::ListTypes TCDescTricolorListType::GetListTypes() const
{
    ListTypes types;
    if (m_pRaw)
        WalkListTypes(t_Payload(), m_length, &types);
    return types;
}

int TCDescTricolorListType::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    return WalkListTypes(payload, length, nullptr);
}
