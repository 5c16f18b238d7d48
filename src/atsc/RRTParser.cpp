#include "RRTParser.h"

#include <algorithm>

#include "../core/ByteReader.h"
#include "../core/Descriptor.h"
#include "../core/Log.h"

namespace {

constexpr int kRrtTableId = 0xCA;
// A multiple string structure of up to 8 bytes has no room for a character.
constexpr int kEmptyTextLength = 8;

// The structure of `length` bytes at `data`, or null for one that holds no character.
std::unique_ptr<TCMultipleStringStruct> TextOf(const unsigned char* data, int length)
{
    std::unique_ptr<TCMultipleStringStruct> text;
    if (length > kEmptyTextLength) {
        text.reset(new TCMultipleStringStruct);
        text->Set(data, static_cast<unsigned int>(length));
    }
    return text;
}

} // namespace

// ---------------------------------------------------------------- value

int TCRRTItemAbbrev::Parse(const unsigned char* data, int size)
{
    if (size < 1 || data[0] + 2 > size || data[0] + data[data[0] + 1] + 2 > size)
        return -1;
    m_abbrevLength = data[0];
    m_pAbbrev = TextOf(data + 1, m_abbrevLength);
    m_valueLength = data[m_abbrevLength + 1];
    m_pValue = TextOf(data + m_abbrevLength + 2, m_valueLength);
    return m_abbrevLength + m_valueLength + 2;
}

// ---------------------------------------------------------------- dimension

void TCRRTItemDimension::DeleteAll()
{
    m_abbrevs.clear();
    m_pName.reset();
    m_nameLength = 0;
    m_graduatedScale = 0;
    m_valuesDefined = 0;
}

TCRRTItemAbbrev* TCRRTItemDimension::RRTItemAbbrev(unsigned int index) const
{
    return index < m_abbrevs.size() ? m_abbrevs[index].get() : nullptr;
}

int TCRRTItemDimension::Parse(const unsigned char* data, int size)
{
    DeleteAll();
    if (size < 1 || data[0] + 2 > size) {
        ZUM_LOGD("TCRRTItemDimension::Parse error... parsed len = %d , total size = %d", size < 1 ? 1 : data[0] + 2,
                 size);
        return size;
    }
    m_nameLength = data[0];
    m_pName = TextOf(data + 1, m_nameLength);
    const unsigned char flags = data[m_nameLength + 1];
    m_graduatedScale = (flags >> 4) & 0x01;
    m_valuesDefined = flags & 0x0F;
    int consumed = m_nameLength + 2;
    for (int i = 0; i < m_valuesDefined; ++i) {
        std::unique_ptr<TCRRTItemAbbrev> value(new TCRRTItemAbbrev());
        // A value whose texts pass the section is not read.
        const int taken = value->Parse(data + consumed, size - consumed);
        if (taken < 0) {
            ZUM_LOGD("TCRRTItemDimension::Parse error... parsed len = %d , total size = %d", consumed, size);
            return size;
        }
        m_abbrevs.push_back(std::move(value));
        consumed += taken;
    }
    return consumed;
}

// ---------------------------------------------------------------- instance

TCRRTInstance::~TCRRTInstance()
{
    TCRRTInstance::DeleteAll();
}

void TCRRTInstance::DeleteAll()
{
    m_pName.reset();
    m_nameLength = 0;
    m_dimensionsDefined = 0;
    m_descriptorsLength = 0;
    m_crc = 0;
    m_dimensions.clear();
    m_descriptors.DeleteAll();
}

TCRRTItemDimension* TCRRTInstance::RRTItemDimension(unsigned int index) const
{
    return index < m_dimensions.size() ? m_dimensions[index].get() : nullptr;
}

bool TCRRTInstance::Parse(const unsigned char* data, int size, int version, int section, int lastSection)
{
    const int result = t_CheckVersion(version, section, lastSection, 0xFFFFFFFF);
    if (result == TABLE_SAME || result == TABLE_IGNORE)
        return false;
    m_Parse(data, size);
    return IsValid();
}

void TCRRTInstance::m_Parse(const unsigned char* data, int size)
{
    if (size < 1 || data[0] + 2 > size) {
        ZUM_LOGD("TCRRTInstance::t_Parse error... parsed len = %d , total size = %d", 0, size);
        return;
    }
    m_nameLength = data[0];
    m_pName = TextOf(data + 1, m_nameLength);
    m_dimensionsDefined = data[m_nameLength + 1];
    int parsed = m_nameLength + 2;
    for (int i = 0; i < m_dimensionsDefined; ++i) {
        std::unique_ptr<TCRRTItemDimension> dimension(new TCRRTItemDimension());
        parsed += dimension->Parse(data + parsed, size - parsed);
        if (parsed >= size) {
            ZUM_LOGD("TCRRTInstance::t_Parse error... parsed len = %d , total size = %d", parsed, size);
            return;
        }
        m_dimensions.push_back(std::move(dimension));
    }
    const int descriptorsLength = parsed + 2 <= size ? static_cast<int>(ReadBE16(data + parsed) & 0x03FF) : size;
    if (descriptorsLength + 2 + parsed > size) {
        ZUM_LOGD("TCRRTInstance::Descriptor parsing error... parsed len = %d , total size = %d", parsed, size);
        return;
    }
    m_descriptorsLength = static_cast<unsigned short>(descriptorsLength);
    TCDescriptor loop(m_handle);
    loop.Parse(data + parsed + 2, descriptorsLength, m_descriptors, kRrtTableId);
    const int crcAt = parsed + 2 + descriptorsLength;
    if (crcAt + 4 <= size)
        m_crc = ReadBE32(data + crcAt);
}

// ---------------------------------------------------------------- parser

TCRRTParser::TCRRTParser(const ZUMHandle& handle) : TCSectionParser(kRrtTableId, handle) {}

TCRRTParser::~TCRRTParser() = default;

void TCRRTParser::t_Initialize()
{
    m_instances.clear();
}

bool TCRRTParser::t_CheckPSIPTable(unsigned char /*tableId*/)
{
    return true;
}

TCRRTInstance* TCRRTParser::RRTInstance(ERRTRegion region) const
{
    const auto it = m_instances.find(region);
    return it == m_instances.end() ? nullptr : it->second.get();
}

bool TCRRTParser::t_Parse(const unsigned char* body, int length)
{
    if ((m_tableIdExtension & 0xFF) != RRT_REGION_KEPT)
        return true;
    auto& instance = m_instances[RRT_REGION_KEPT];
    if (!instance)
        instance.reset(new TCRRTInstance(m_handle, RRT_REGION_KEPT));
    return instance->Parse(body, length, m_versionNumber, m_sectionNumber, m_lastSectionNumber);
}
