#include "DescFSatLinkage.h"

#include "../core/ByteReader.h"
#include "../core/Diagnostics.h"
#include "../core/RecordAt.h"
#include "../dvb/DescText.h"

namespace {

const int kStorageEntrySize = 3;
const int kInfoLocationSize = 6;

} // namespace

// ---------------------------------------------------------------- tunnelled data

TCDescFSatTunnelledData::~TCDescFSatTunnelledData()
{
    DeleteAll();
}

void TCDescFSatTunnelledData::DeleteAll()
{
    m_numOfEntries = 0;
}

TCBaseDesc* TCDescFSatTunnelledData::Fork() const
{
    return t_ForkAs(new TCDescFSatTunnelledData());
}

int TCDescFSatTunnelledData::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    const int pairs = length / 2;
    for (int i = 0; i < pairs; ++i) {
        bool seen = false;
        for (int j = 0; j < i && !seen; ++j)
            seen = payload[2 * j] == payload[2 * i];
        if (!seen)
            ++m_numOfEntries;
    }
    return length;
}

bool TCDescFSatTunnelledData::ComponentTag(unsigned int dataType, unsigned int& tag) const
{
    const unsigned char* payload = t_Payload();
    bool found = false;
    // The last pair of a data type is the one that counts.
    for (int i = 0; payload && i + 1 < m_length; i += 2) {
        if (payload[i] == dataType) {
            tag = payload[i + 1];
            found = true;
        }
    }
    return found;
}

// ---------------------------------------------------------------- alternative tunnelled data

TCDescFSatAltTunnelledData::~TCDescFSatAltTunnelledData()
{
    DeleteAll();
}

void TCDescFSatAltTunnelledData::DeleteAll()
{
    m_dataTypes.count = 0;
}

TCBaseDesc* TCDescFSatAltTunnelledData::Fork() const
{
    return t_ForkAs(new TCDescFSatAltTunnelledData());
}

int TCDescFSatAltTunnelledData::t_Parse(const unsigned char* /*payload*/, unsigned char length)
{
    m_dataTypes.count = length;
    return length;
}

unsigned int TCDescFSatAltTunnelledData::GetDataType(unsigned int index) const
{
    if (!ZUM_ASSERT(index < m_dataTypes.size()) || !t_Payload())
        return 0;
    return t_Payload()[index];
}

// ---------------------------------------------------------------- linkage

TCDescFSatLinkage::~TCDescFSatLinkage()
{
    DeleteAll();
}

void TCDescFSatLinkage::DeleteAll()
{
    m_linkages.clear();
}

TCBaseDesc* TCDescFSatLinkage::Fork() const
{
    return t_ForkAs(new TCDescFSatLinkage());
}

int TCDescFSatLinkage::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    TCByteReader reader(payload, length);
    while (reader.Left() > 0) {
        TTLinkage linkage;
        linkage.firstId = static_cast<unsigned short>(reader.U16());
        linkage.secondId = static_cast<unsigned short>(reader.U16());
        reader.Skip(static_cast<int>(reader.U8()));
        linkage.thirdId = static_cast<unsigned short>(reader.U16());
        const int types = static_cast<int>(reader.U8());
        if (reader.IsShort())
            break;
        linkage.dataTypes = zum_text::TakeRun<TTRawRun>(reader, payload, types);
        m_linkages.push_back(linkage);
    }
    return length;
}

bool TCDescFSatLinkage::GetLinkage(unsigned int index, Linkage& linkage) const
{
    if (index >= m_linkages.size())
        return false;
    const TTLinkage& stored = m_linkages[index];
    linkage.firstId = stored.firstId;
    linkage.secondId = stored.secondId;
    linkage.thirdId = stored.thirdId;
    linkage.dataTypes.clear();
    const unsigned char* types = t_At(stored.dataTypes);
    for (int i = 0; types && i < stored.dataTypes.length; ++i)
        linkage.dataTypes.push_back(types[i]);
    return true;
}

// ---------------------------------------------------------------- interactive storage

TCDescFSatInteractiveStorage::~TCDescFSatInteractiveStorage() = default;

void TCDescFSatInteractiveStorage::DeleteAll() {}

TCBaseDesc* TCDescFSatInteractiveStorage::Fork() const
{
    return t_ForkAs(new TCDescFSatInteractiveStorage());
}

int TCDescFSatInteractiveStorage::t_Parse(const unsigned char* payload, unsigned char length)
{
    m_allocationUnit = 0;
    m_entries = 0;
    if (length < 1)
        return 0;
    const unsigned int exponent = payload[0] & 0x1F;
    m_allocationUnit = exponent == 0 ? 0 : (1u << exponent);
    m_entries = (length - 1) / kStorageEntrySize;
    return length;
}

void TCDescFSatInteractiveStorage::GetStorageAllocations(std::map<unsigned short, unsigned int>& first,
                                                         std::map<unsigned short, unsigned int>& second) const
{
    first.clear();
    second.clear();
    const unsigned char* entries = t_Payload() ? t_Payload() + 1 : nullptr;
    for (int i = 0; i < m_entries; ++i) {
        const unsigned char* entry = RawRecordAt(entries, m_entries, kStorageEntrySize, i);
        const unsigned short id = static_cast<unsigned short>(ReadBE16(entry) & 0x07FF);
        auto& map = (entry[0] & 0x80) ? first : second;
        map[id] = entry[2] * m_allocationUnit;
    }
}

// ---------------------------------------------------------------- info location

TCDescFSatInfoLocation::~TCDescFSatInfoLocation()
{
    DeleteAll();
}

void TCDescFSatInfoLocation::DeleteAll()
{
    m_infoLocation.clear();
}

TCBaseDesc* TCDescFSatInfoLocation::Fork() const
{
    return t_ForkAs(new TCDescFSatInfoLocation());
}

int TCDescFSatInfoLocation::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    TCByteReader reader(payload, length);
    while (reader.Left() > 0) {
        reader.Skip(static_cast<int>(reader.U8()));
        const int loopLength = static_cast<int>(reader.U8());
        if (reader.IsShort())
            break;
        // A group ends once its entries have reached the loop length.
        int used = 0;
        for (; used < loopLength && reader.Has(kInfoLocationSize); used += kInfoLocationSize) {
            InfoLocation location;
            location.firstId = reader.U16();
            location.secondId = reader.U16();
            location.thirdId = reader.U16();
            m_infoLocation.push_back(location);
        }
        // A group that the body's end cuts off ends the loop.
        if (used < loopLength)
            break;
    }
    return length;
}

TCDescFSatInfoLocation::InfoLocation TCDescFSatInfoLocation::GetInfoLocation(unsigned int index) const
{
    if (!ZUM_ASSERT(index < m_infoLocation.size()))
        return InfoLocation();
    return m_infoLocation[index];
}

// ---------------------------------------------------------------- interactive restriction

TCDescFSatInteractiveRestriction::~TCDescFSatInteractiveRestriction()
{
    DeleteAll();
}

void TCDescFSatInteractiveRestriction::DeleteAll()
{
    m_count = 0;
}

TCBaseDesc* TCDescFSatInteractiveRestriction::Fork() const
{
    return t_ForkAs(new TCDescFSatInteractiveRestriction());
}

int TCDescFSatInteractiveRestriction::t_Parse(const unsigned char* /*payload*/, unsigned char length)
{
    m_count = length / 2;
    return length;
}

void TCDescFSatInteractiveRestriction::GetRestrictedServices(std::list<unsigned short>& services) const
{
    services.clear();
    for (int i = 0; t_Payload() && i < m_count; ++i)
        services.push_back(static_cast<unsigned short>(ReadBE16(RawRecordAt(t_Payload(), m_count, 2, i))));
}
