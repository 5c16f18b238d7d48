#include "MGTParser.h"

#include <algorithm>

#include "../core/ByteReader.h"
#include "../core/Descriptor.h"
#include "../core/Log.h"

namespace {

constexpr int kMgtTableId = 0xC7;
constexpr int kTableHeaderSize = 11;
constexpr int kTablesDefinedSize = 2;
constexpr int kDescriptorsLengthSize = 2;

} // namespace

// ---------------------------------------------------------------- table

void TCMGTTable::DeleteAll()
{
    m_descriptors.DeleteAll();
}

int TCMGTTable::Parse(const unsigned char* data, int size)
{
    DeleteAll();
    if (size < kTableHeaderSize) {
        // Not even the fixed part is here: nothing is read.
        ZUM_LOGD("MGT Descriptor Parsing error total size = %d , parsed len = %d", size, kTableHeaderSize);
        return size;
    }
    m_tableType = static_cast<unsigned short>(ReadBE16(data));
    m_pid = static_cast<unsigned short>(ReadBE16(data + 2) & 0x1FFF);
    m_version = data[4] & 0x1F;
    m_numberBytes = ReadBE32(data + 5);
    const int length = ReadBE16(data + 9) & 0x0FFF;
    if (length + 10 >= size) {
        ZUM_LOGD("MGT Descriptor Parsing error total size = %d , parsed len = %d", size, length + kTableHeaderSize);
        return size;
    }
    // An empty loop has nothing to walk.
    if (length > 0) {
        TCDescriptor loop(m_handle);
        loop.Parse(data + kTableHeaderSize, length, m_descriptors, kMgtTableId);
    }
    return length + kTableHeaderSize;
}

// ---------------------------------------------------------------- parser

TCMGTParser::TCMGTParser(const ZUMHandle& handle) : TCSectionParser(kMgtTableId, handle) {}

TCMGTParser::~TCMGTParser()
{
    DeleteAll();
}

void TCMGTParser::DeleteAll()
{
    m_eitCount = 0;
    m_ettCount = 0;
    m_descriptors.DeleteAll();
    m_tables.clear();
}

void TCMGTParser::t_Initialize()
{
    InitSection();
    DeleteAll();
}

bool TCMGTParser::t_CheckPSIPTable(unsigned char /*tableId*/)
{
    return true;
}

bool TCMGTParser::t_Parse(const unsigned char* body, int length)
{
    const int result = t_CheckVersion(m_versionNumber, m_sectionNumber, m_lastSectionNumber, m_crc);
    if (result == TABLE_IGNORE) {
        ZUM_LOGD("MGT Section Ignored... ");
        return false;
    }
    // Only the first section to arrive of a version is read.
    if (result != TABLE_FIRST && result != TABLE_CHANGED)
        return false;
    if (length < kTablesDefinedSize) {
        ZUM_LOGD("TCMGTParser::t_Parse error... parsed len = %d , total size = %d", 0, length);
        return false;
    }
    const int tablesDefined = static_cast<int>(ReadBE16(body));
    const unsigned char* tables = body + kTablesDefinedSize;
    // Bytes behind tables_defined, CRC_32 included.
    const int available = length - kTablesDefinedSize;
    int parsed = 0;
    m_tables.reserve(std::min(tablesDefined, available / kTableHeaderSize));
    for (int i = 0; i < tablesDefined; ++i) {
        std::unique_ptr<TCMGTTable> table(new TCMGTTable(m_handle));
        parsed += table->Parse(tables + parsed, available - parsed);
        // An entry that took all that was left ran over the section.
        if (parsed >= available) {
            ZUM_LOGD("TCMGTParser::t_Parse error... parsed len = %d , total size = %d", parsed, length);
            return false;
        }
        const int type = table->TableType();
        if (type >= 0x0100 && type <= 0x017F)
            ++m_eitCount;
        else if (type >= 0x0200 && type <= 0x027F)
            ++m_ettCount;
        // A repeated type keeps its first entry.
        const auto at = m_LowerBound(type);
        if (at == m_tables.end() || (*at)->TableType() != type)
            m_tables.insert(at, std::move(table));
    }
    if (parsed + kDescriptorsLengthSize > available) {
        ZUM_LOGD("TCMGTParser::Descriptor parsing error... parsed len = %d , total size = %d", parsed, length);
        return false;
    }
    const int descriptorsLength = ReadBE16(tables + parsed) & 0x0FFF;
    if (descriptorsLength + kDescriptorsLengthSize + parsed > length) {
        ZUM_LOGD("TCMGTParser::Descriptor parsing error... parsed len = %d , total size = %d", parsed, length);
        return false;
    }
    // Bounded by the end of the section.
    const int loopStart = parsed + kDescriptorsLengthSize;
    TCDescriptor loop(m_handle);
    loop.Parse(tables + loopStart, std::min(descriptorsLength, available - loopStart), m_descriptors, m_tableId);
    return true;
}

std::vector<std::unique_ptr<TCMGTTable>>::const_iterator TCMGTParser::m_LowerBound(int tableType) const
{
    return std::lower_bound(m_tables.begin(), m_tables.end(), tableType,
                            [](const std::unique_ptr<TCMGTTable>& t, int type) { return t->TableType() < type; });
}

TCMGTTable* TCMGTParser::MGTTable(unsigned short tableType) const
{
    const auto it = m_LowerBound(tableType);
    return it == m_tables.end() || (*it)->TableType() != tableType ? nullptr : it->get();
}

TCMGTTable* TCMGTParser::MGTTableOfIndex(unsigned int index) const
{
    return index < m_tables.size() ? m_tables[index].get() : nullptr;
}
