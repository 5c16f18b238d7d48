#include "NTTParser.h"

#include <iterator>

#include <zum-platform/Binder.h>

#include "../core/ByteReader.h"
#include "../core/Descriptor.h"
#include "../core/Diagnostics.h"
#include "../core/Log.h"
#include "DescRevisionDetection.h"
#include "MultipleStringStruct.h"

// ---------------------------------------------------------------- record

TCNTTRecord::TCNTTRecord(char applicationType, unsigned short id, const ZUMHandle& handle)
    : m_handle(handle), m_applicationType(static_cast<unsigned char>(applicationType)), m_id(id)
{
}

int TCNTTRecord::Parse(const unsigned char* data, int size)
{
    if (size < 5)
        return 0;
    m_applicationType = (data[0] >> 7) & 0x01;
    m_id = ReadBE16(data + 1);
    const int nameLength = data[3];
    if (size < nameLength + 5)
        return 0;
    m_nameLength = static_cast<unsigned char>(nameLength);
    m_name.assign(data + 4, data + 4 + nameLength);
    m_descriptorCount = data[4 + nameLength];
    const unsigned char* loop = data + 5 + nameLength;
    const int span = ZumDescriptorSpan(loop, m_descriptorCount, size - 5 - nameLength);
    if (span < 0)
        return 0;
    TCDescriptor(m_handle).ParseByCount(loop, m_descriptorCount, m_descriptors, 0xC3, span);
    return nameLength + 5 + span;
}

bool TCNTTRecord::GetSourceName(TCMultilingualTextString* pSourceName) const
{
    if (!ZUM_ASSERT(pSourceName))
        return false;
    if (m_name.empty())
        return false;
    return pSourceName->Set(m_name.data(), static_cast<int>(m_name.size()));
}

bool TCNTTRecord::FlagEqual(TCNTTRecord* pCompare) const
{
    if (!ZUM_ASSERT(pCompare))
        return false;
    return m_nameLength == pCompare->m_nameLength && m_applicationType == pCompare->m_applicationType &&
           m_name == pCompare->m_name;
}

// ---------------------------------------------------------------- SNS store

TCNTTRecord* TCNTTSNS::GetNttRecord(unsigned int index) const
{
    if (index >= m_records.size())
        return nullptr;
    return std::next(m_records.begin(), index)->second.get();
}

TCNTTRecord* TCNTTSNS::m_Find(int key) const
{
    auto it = m_records.find(key);
    return it == m_records.end() ? nullptr : it->second.get();
}

TCNTTRecord* TCNTTSNS::SourceId(unsigned short id) const
{
    return m_Find(id);
}

TCNTTRecord* TCNTTSNS::ApplicationId(unsigned short id) const
{
    return m_Find(0x10000 + id);
}

int TCNTTSNS::Parse(const unsigned char* data, bool& snsComplete, bool& completed, int size)
{
    if (size < 1) {
        snsComplete = false;
        return 0;
    }
    const int count = data[0];
    int offset = 1, read = 0, equal = 0;
    bool changed = false;
    for (; read < count; ++read) {
        if (size - offset < 3)
            break;
        const char applicationType = static_cast<char>((data[offset] >> 7) & 0x01);
        const unsigned short id = ReadBE16(data + offset + 1);
        auto record = std::make_unique<TCNTTRecord>(applicationType, id, m_handle);
        const int n = record->Parse(data + offset, size - offset);
        if (n == 0)
            break;
        offset += n;
        const int key = id + (applicationType ? 0x10000 : 0);
        TCNTTRecord* held = m_Find(key);
        if (!held) {
            if (completed)
                changed = true;
            else
                m_records.emplace(key, std::move(record));
        } else if (held->FlagEqual(record.get())) {
            ++equal;
        } else {
            changed = true;
        }
    }
    if (changed) {
        DeleteAll();
        completed = false;
    }
    // A section cut short is not a full repeat.
    snsComplete = equal == count && read == count;
    return offset;
}

// ---------------------------------------------------------------- parser

TCNTTParser::TCNTTParser(const ZUMHandle& handle) : TCOOBSectionParser(0xC3, handle), m_sns(handle) {}

TCNTTParser::~TCNTTParser()
{
    m_sns.DeleteAll();
}

void TCNTTParser::DeleteAll()
{
    m_snsComplete = m_completed = false;
    m_language = 0;
    m_protocolVersionOOB = m_transmissionMedium = m_tableSubtype = 0;
    m_descriptors.DeleteAll();
    t_ClearAllVersionList();
}

void TCNTTParser::t_Initialize()
{
    InitSection();
    DeleteAll();
}

bool TCNTTParser::m_CheckPriorityOfISO639LANG(unsigned int language) const
{
    IBinder* pBinder = IBinder::Instance();
    if (!ZUM_ASSERT(pBinder))
        return false;
    if (TCMultipleStringStruct::MultipleSound(pBinder->GetPreferredLanguage(m_handle)) == language)
        return true;
    const unsigned int fallback = TCMultipleStringStruct::DefaultPreferLanguage(
        pBinder->GetLanguageCode(m_handle), static_cast<int>(pBinder->GetCountry(m_handle)));
    return TCMultipleStringStruct::MultipleSound(fallback) == language;
}

bool TCNTTParser::t_Parse(const unsigned char* data, int size)
{
    // Header, record count and the CRC_32 at least.
    if (size < 10)
        return false;
    const unsigned int language = ReadBE24(data + 1);
    if (!m_CheckPriorityOfISO639LANG(language))
        return false;
    m_protocolVersionOOB = data[0] & 0x1F;
    m_language = language;
    m_transmissionMedium = (data[4] >> 4) & 0x0F;
    m_tableSubtype = data[4] & 0x0F;

    if (t_CheckRecieved(data, size)) {
        ZUM_LOGD("TCNTTParser::t_Parse t_CheckVersion is false");
        return t_CheckCompleted();
    }
    if (m_tableSubtype != 6) {
        ZUM_LOGD("NTT Parser Receiving..........  Return Fasle SubType Error ");
        return false;
    }
    const int consumed = m_sns.Parse(data + 5, m_snsComplete, m_completed, size - 9);
    if (size - 9 - consumed > 0)
        TCDescriptor(m_handle).Parse(data + 5 + consumed, size - 9 - consumed, m_descriptors, m_tableId);

    if (TCDescRevisionDetection* revision = t_RevisionDetection(m_descriptors)) {
        const int result = t_CheckVersion(revision->TableVersion(), revision->SectionNumber(),
                                          revision->LastSectionNumber(), 0xFFFFFFFF);
        if ((result == TABLE_FIRST || result == TABLE_ADD || result == TABLE_CHANGED) && IsValid()) {
            ZUM_LOGD("NTT Parser Receiving..........  pRevision is TRUE  ");
            m_completed = true;
            return true;
        }
    }
    if (m_snsComplete)
        return t_CheckCompleted();
    return false;
}

bool TCNTTParser::t_CheckCompleted()
{
    ZUM_LOGD("### TCNTTParser::t_CheckCompleted ####");
    ++m_repeatCount;
    ZUM_LOGD("NTT Parser Receiving..........  Receiving Count = %d ", m_repeatCount);
    if (!m_completed && m_repeatCount > 3) {
        m_completed = true;
        return true;
    }
    ZUM_LOGD("NTT Parser Receiving..........  Return False.... m_snsComplete = %d", m_snsComplete);
    return false;
}
