#include "ISDBNBITParser.h"

#include "../core/ByteReader.h"
#include "../core/Descriptor.h"
#include "../core/Log.h"
#include "ISDBTableUtil.h"

namespace {

constexpr int kMaxKeys = 2;
// The loop of 0xC5 sections is decoded as that of 0xC6.
constexpr unsigned char kLoopTableId = 0xC6;

} // namespace

// ---------------------------------------------------------------- TCISDBNBITInformation

TCISDBNBITInformation::TCISDBNBITInformation(const ZUMHandle& handle) : m_handle(handle) {}

bool TCISDBNBITInformation::Parse(const unsigned char* data, int length, int& consumed)
{
    consumed = 0;
    TCByteReader reader(data, length);
    if (!reader.Has(5))
        return false;
    m_informationId = static_cast<unsigned short>(reader.U16());
    const unsigned int flags = reader.U8();
    m_informationType = static_cast<int>(flags >> 4);
    m_descriptionBodyLocation = static_cast<int>((flags >> 2) & 0x03);
    m_userDefined = static_cast<unsigned char>(reader.U8());
    m_numberOfKeys = static_cast<unsigned char>(reader.U8());
    if (m_numberOfKeys > kMaxKeys)
        return false;
    if (!reader.Has(2 * m_numberOfKeys + 2))
        return false;
    for (int i = 0; i < m_numberOfKeys; ++i)
        m_keyIds.push_back(static_cast<unsigned short>(reader.U16()));
    m_descriptorsLength = static_cast<int>(reader.U16() & 0x0FFF);
    const int at = reader.Consumed();
    TCDescriptor loop(m_handle);
    loop.Parse(data + at, zum_isdb::Bounded(m_descriptorsLength, length, at), m_descriptors, kLoopTableId);
    consumed = at + m_descriptorsLength;
    return true;
}

// ---------------------------------------------------------------- TCISDBNBITInstance

TCISDBNBITInstance::TCISDBNBITInstance(const ZUMHandle& handle) : m_handle(handle) {}

TCISDBNBITInstance::~TCISDBNBITInstance() = default;

void TCISDBNBITInstance::DeleteAll()
{
    m_records.clear();
}

TCISDBNBITInformation* TCISDBNBITInstance::InformationOfIndex(unsigned int index) const
{
    return zum_isdb::At(m_records, index);
}

bool TCISDBNBITInstance::Parse(const unsigned char* data, int length, char version, unsigned char section,
                               unsigned char lastSection, unsigned int crc)
{
    const int check = t_CheckVersion(version, section, lastSection, crc);
    if (check == TABLE_SAME)
        return false;
    if (check == TABLE_IGNORE) {
        ZUM_LOGD("ISDBNBIT Section ignored...");
        return false;
    }
    int at = 0;
    while (length - at > 6) {
        std::unique_ptr<TCISDBNBITInformation> record(new TCISDBNBITInformation(m_handle));
        int consumed = 0;
        if (!record->Parse(data + at, length - at, consumed))
            return false;
        m_records.push_back(std::move(record));
        at += consumed;
    }
    return IsValid();
}

// ---------------------------------------------------------------- TCISDBNBITParser

TCISDBNBITParser::TCISDBNBITParser(unsigned char tableId, const ZUMHandle& handle) : TCSectionParser(tableId, handle)
{
}

TCISDBNBITParser::~TCISDBNBITParser() = default;

TCISDBNBITInstance* TCISDBNBITParser::NBITInstance(unsigned short id) const
{
    return zum_isdb::Find(m_instances, id);
}

void TCISDBNBITParser::t_Initialize()
{
    m_instances.clear();
}

bool TCISDBNBITParser::t_Parse(const unsigned char* body, int length)
{
    m_currentId = m_tableIdExtension;
    return zum_isdb::FindOrCreate(m_instances, m_currentId, m_handle)
        ->Parse(body, length, m_versionNumber, m_sectionNumber, m_lastSectionNumber, m_crc);
}
