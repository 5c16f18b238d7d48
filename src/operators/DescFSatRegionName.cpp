#include "DescFSatRegionName.h"

#include <algorithm>
#include <cstring>

#include "../core/ByteReader.h"
#include "../core/Log.h"
#include "../dvb/DescText.h"

namespace {

enum { kNameExact = 0, kNameSubstitute = 1, kNameNone = 2 };

// Copies as much of the name as `size` has room for; `size` becomes what was copied.
template <class Size>
void CopyName(const unsigned char* name, int length, unsigned char* buffer, Size& size)
{
    size = static_cast<Size>(std::min<long>(static_cast<long>(size), length));
    if (buffer && name && size > 0)
        std::memcpy(buffer, name, static_cast<size_t>(size));
}

// A loop of entries (language 24 bits, name length 8 bits, name) read as a map by
// language: the language asked for, else the lowest one, a later entry of a
// language replacing an earlier; a name cut off by the end keeps what is there.
template <class Size>
int LookupByLanguage(const unsigned char* loop, int length, unsigned int language, unsigned char* buffer, Size& size)
{
    zum_text::TTText exact, lowest;
    bool haveExact = false, haveLowest = false;
    unsigned int lowestLanguage = 0;
    TCByteReader reader(loop, length);
    while (reader.Has(4)) {
        const unsigned int entryLanguage = reader.U24();
        const zum_text::TTText name = zum_text::Take(reader, static_cast<int>(reader.U8()));
        if (entryLanguage == language) {
            exact = name;
            haveExact = true;
        }
        if (!haveLowest || entryLanguage <= lowestLanguage) {
            lowest = name;
            lowestLanguage = entryLanguage;
            haveLowest = true;
        }
    }
    if (!haveLowest)
        return kNameNone;
    const zum_text::TTText& chosen = haveExact ? exact : lowest;
    CopyName(chosen.at, chosen.length, buffer, size);
    return haveExact ? kNameExact : kNameSubstitute;
}

} // namespace

// ---------------------------------------------------------------- region name

TCDescFSatRegionName::~TCDescFSatRegionName()
{
    DeleteAll();
}

void TCDescFSatRegionName::DeleteAll()
{
    m_regionNames.clear();
}

TCBaseDesc* TCDescFSatRegionName::Fork() const
{
    return t_ForkAs(new TCDescFSatRegionName());
}

int TCDescFSatRegionName::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    TCByteReader reader(payload, length);
    while (reader.Has(6)) {
        RegionName record;
        record.regionId = reader.U16();
        record.language = reader.U24();
        record.nameLength = reader.U8();
        record.name = zum_text::TakeRun<TTRawRun>(reader, payload, static_cast<int>(record.nameLength));
        m_regionNames.push_back(record);
    }
    return length;
}

bool TCDescFSatRegionName::ContainsRegionID(unsigned short regionId) const
{
    return std::any_of(m_regionNames.begin(), m_regionNames.end(),
                       [regionId](const RegionName& record) { return record.regionId == regionId; });
}

int TCDescFSatRegionName::GetRegionName(unsigned int regionId, unsigned int language, unsigned char* buffer,
                                        unsigned int& size) const
{
    const unsigned int room = size;
    bool substituted = false;
    for (const RegionName& record : m_regionNames) {
        if (record.regionId != regionId)
            continue;
        if (record.language == language) {
            // The exact name has the caller's whole room, whatever a substitute took.
            size = room;
            CopyName(t_At(record.name), record.name.length, buffer, size);
            return kNameExact;
        }
        if (!substituted) {
            CopyName(t_At(record.name), record.name.length, buffer, size);
            substituted = true;
        }
    }
    return substituted ? kNameSubstitute : kNameNone;
}

// ---------------------------------------------------------------- service group

TCDescFSatServiceGroup::~TCDescFSatServiceGroup()
{
    DeleteAll();
}

void TCDescFSatServiceGroup::DeleteAll()
{
    m_groups.clear();
}

TCBaseDesc* TCDescFSatServiceGroup::Fork() const
{
    return t_ForkAs(new TCDescFSatServiceGroup());
}

int TCDescFSatServiceGroup::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    TCByteReader reader(payload, length);
    while (reader.Has(3)) {
        TTGroup group;
        const unsigned int head = reader.U16();
        group.firstFlag = static_cast<unsigned char>((head >> 15) & 1);
        group.secondFlag = static_cast<unsigned char>((head >> 14) & 1);
        group.groupId = static_cast<unsigned short>(head & 0x07FF);
        group.freesatIds = zum_text::TakeRun<TTRawRun>(reader, payload, static_cast<int>(reader.U8()));
        m_groups.push_back(group);
    }
    return length;
}

bool TCDescFSatServiceGroup::GetServiceGroup(unsigned int index, ServiceGroup& group) const
{
    if (index >= m_groups.size())
        return false;
    const TTGroup& stored = m_groups[index];
    group.firstFlag = stored.firstFlag;
    group.secondFlag = stored.secondFlag;
    group.groupId = stored.groupId;
    group.freesatIds.clear();
    const unsigned char* ids = t_At(stored.freesatIds);
    for (int i = 0; ids && i + 1 < stored.freesatIds.length; i += 2)
        group.freesatIds.push_back(static_cast<unsigned short>(ReadBE16(ids + i) & 0x7FFF));
    return true;
}

// ---------------------------------------------------------------- service group name

TCDescFSatServiceGroupName::~TCDescFSatServiceGroupName()
{
    DeleteAll();
}

void TCDescFSatServiceGroupName::DeleteAll()
{
    m_groups.clear();
}

TCBaseDesc* TCDescFSatServiceGroupName::Fork() const
{
    return t_ForkAs(new TCDescFSatServiceGroupName());
}

int TCDescFSatServiceGroupName::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    const unsigned char* const end = payload + length;
    const unsigned char* p = payload;
    while (end - p >= 3) {
        TTGroupName group;
        const unsigned int head = ReadBE16(p);
        group.groupType = static_cast<unsigned char>(head >> 11);
        group.groupId = static_cast<unsigned short>(head & 0x07FF);
        const unsigned char* const loopEnd = p + 3 + p[2];
        if (loopEnd > end) {
            ZUM_LOGE("[TCDescFSatServiceGroupName::%s] language loop size is to big: loop_end[%p], desc_end[%p]",
                     __func__, static_cast<const void*>(loopEnd), static_cast<const void*>(end));
            return length;
        }
        const unsigned char* const loop = p + 3;
        const unsigned char* entry = loop;
        p = loopEnd;
        while (loopEnd - entry >= 4) {
            const unsigned char* const nameEnd = entry + 4 + entry[3];
            if (nameEnd > loopEnd) {
                ZUM_LOGE("[TCDescFSatServiceGroupName::%s] genre name size is to big: name_end[%p], loop_end[%p]",
                         __func__, static_cast<const void*>(nameEnd), static_cast<const void*>(loopEnd));
                // The next record starts where this name would have.
                p = entry + 4;
                break;
            }
            entry = nameEnd;
        }
        group.names = t_Run(payload, loop, static_cast<int>(entry - loop));
        m_groups.push_back(group);
    }
    return length;
}

bool TCDescFSatServiceGroupName::GroupType(unsigned int index, unsigned char& type) const
{
    if (index >= m_groups.size())
        return false;
    type = m_groups[index].groupType;
    return true;
}

int TCDescFSatServiceGroupName::GetEntry(unsigned int index, unsigned int language, unsigned short& groupId,
                                         unsigned char* buffer, unsigned int& size) const
{
    if (index >= m_groups.size())
        return kNameNone;
    const TTGroupName& group = m_groups[index];
    groupId = group.groupId;
    return LookupByLanguage(t_At(group.names), group.names.length, language, buffer, size);
}

// ---------------------------------------------------------------- short service name

TCDescFSatShortServiceName::~TCDescFSatShortServiceName()
{
    DeleteAll();
}

void TCDescFSatShortServiceName::DeleteAll() {}

TCBaseDesc* TCDescFSatShortServiceName::Fork() const
{
    return t_ForkAs(new TCDescFSatShortServiceName());
}

int TCDescFSatShortServiceName::t_Parse(const unsigned char* /*payload*/, unsigned char length)
{
    // The entries are read from the raw copy on each lookup.
    return length;
}

int TCDescFSatShortServiceName::GetName(unsigned int language, unsigned char* buffer, unsigned short& size) const
{
    const int result = LookupByLanguage(t_Payload(), m_length, language, buffer, size);
    if (result == kNameNone)
        size = 0;
    return result;
}
